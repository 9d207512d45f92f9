// Lists of systems whose results lie over the entries of later ones, null entries that a shift leads to an
// object beside the results, and lists with shifts: what stands afterwards is what solving one system after
// the other leaves.
#include "low_memory.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

// With these factors the first three unknowns are what stands on the right with its sign changed.
constexpr std::uint32_t n = 4;
constexpr double identity[n * n] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
using Vector = std::array<double, n>;

Vector solution(const Vector &b) {
    return {-b[0], -b[1], -b[2], b[3]};
}

Vector read(const void *from) {
    Vector vector;
    std::memcpy(vector.data(), from, sizeof vector);
    return vector;
}
void write(void *to, const Vector &vector) {
    std::memcpy(to, vector.data(), sizeof vector);
}

struct Lists {
    const double *const *factors, *const *right;
    double *const *results;
    std::int32_t shift = 0; // of right and results
};

ZelmStatus solve(const Lists &lists, std::uint32_t count) {
    Vector scratch;
    return zelmQRBackSubst_mava_64f_4x4_L(lists.factors, 0, 32, scratch.data(), lists.right, lists.shift,
                                          lists.results, lists.shift, count);
}

template <class T>
T *shifted(T *entry, std::int32_t shift) {
    return reinterpret_cast<T *>(reinterpret_cast<std::uintptr_t>(entry) +
                                 static_cast<std::uintptr_t>(static_cast<std::intptr_t>(shift)));
}

void solveOneByOne(const Lists &lists, std::uint32_t objects) {
    for (std::uint32_t k = 0; k < objects; ++k)
        write(shifted(lists.results[k], lists.shift), solution(read(shifted(lists.right[k], lists.shift))));
}

// ---- a result of zeros over entries: as far as they are still to come they are null then

constexpr std::uint32_t count = 130, room = 24;

struct Tables {
    std::vector<std::uintptr_t> entries[3];
    std::vector<Vector> right, results;

    Tables(std::uint32_t writer, std::uint32_t table, std::uint32_t entry)
        : right(count), results(count, {9, 9, 9, 9}) {
        for (std::uint32_t k = 0; k < count; ++k)
            right[k] = {1.0 + k, 2, 3, 4};
        right[writer] = {};
        for (auto &list : entries)
            list.resize(count + 2 * room, 1);
        for (std::uint32_t k = 0; k < count; ++k) {
            entries[0][room + k] = reinterpret_cast<std::uintptr_t>(identity);
            entries[1][room + k] = reinterpret_cast<std::uintptr_t>(&right[k]);
            entries[2][room + k] = reinterpret_cast<std::uintptr_t>(&results[k]);
        }
        entries[2][room + writer] = reinterpret_cast<std::uintptr_t>(&entries[table][entry]);
    }
    Lists lists() {
        return {reinterpret_cast<const double *const *>(&entries[0][room]),
                reinterpret_cast<const double *const *>(&entries[1][room]),
                reinterpret_cast<double *const *>(&entries[2][room])};
    }
};

// What the definition leaves: the number of systems that are solved.
std::uint32_t solvedSystems(std::uint32_t writer, std::uint32_t firstEntry) {
    constexpr std::uint32_t entries = sizeof(Vector) / sizeof(std::uintptr_t);
    const std::uint32_t first = std::max(firstEntry, room + writer + 1);
    return first < firstEntry + entries && first < room + count ? first - room : count;
}

TEST(ListOverlap, ResultsOverEntriesThatAreStillToCome) {
    for (const std::uint32_t writer : {0u, 1u, 2u, 3u, 5u, 62u, 63u, 64u, 65u, 67u, 100u, 127u})
        for (std::uint32_t table = 0; table < 3; ++table)
            for (std::uint32_t entry = writer + room - 10; entry <= writer + room + 12; entry += 2) {
                SCOPED_TRACE(testing::Message()
                             << "result " << writer << " over table " << table << ", entry "
                             << static_cast<int>(entry) - static_cast<int>(room));
                Tables tables(writer, table, entry);
                const std::uint32_t solved = solvedSystems(writer, entry);
                EXPECT_EQ(solve(tables.lists(), count), solved == count ? ZELM_OK : ZELM_ERR_NULL_PTR);
                for (std::uint32_t k = 0; k < count; ++k) {
                    if (k == writer)
                        continue;
                    ASSERT_EQ(tables.results[k],
                              k < solved ? solution(tables.right[k]) : (Vector{9, 9, 9, 9}))
                        << "object " << k;
                }
            }
}

// ---- null entries

TEST(ListOverlap, ANullEntryWhoseObjectLiesBesideTheResults) {
    constexpr std::uint32_t objects = 8;
    const edge::LowMemory low;
    for (std::int32_t distance = -40; distance <= 40; distance += 8)
        for (std::uint32_t null = 0; null < objects; ++null) {
            std::memset(low.as<char>(), 0, edge::LowMemory::size);
            char *const results = low.as<char>() + 512, *const right =
                                                            results + objects * sizeof(Vector) + distance;
            const std::int32_t shift =
                low.shift() + 512 + static_cast<std::int32_t>(objects * sizeof(Vector)) + distance;
            std::vector<const double *> factors(objects, identity), from;
            std::vector<double *> to;
            for (std::uint32_t k = 0; k < objects; ++k) {
                const std::uint32_t place = k == null ? 0 : 1 + (k + 3) % objects;
                from.push_back(shifted(reinterpret_cast<double *>(right + 48 * place), -shift));
                to.push_back(reinterpret_cast<double *>(results + k * sizeof(Vector)));
            }
            ASSERT_EQ(from[null], nullptr);
            Vector scratch;
            EXPECT_EQ(zelmQRBackSubst_mava_64f_4x4_L(factors.data(), 0, 32, scratch.data(), from.data(),
                                                     shift, to.data(), 0, objects),
                      ZELM_ERR_NULL_PTR)
                << "null entry " << null << ", its object " << distance << " bytes behind the results";
        }
}

// ---- shifts

TEST(ListOverlap, ResultsFromTheEndOnOverRightSidesWithAShift) {
    constexpr std::int32_t objects = 20, size = sizeof(double);
    for (const std::int32_t shift : {4 * size, 16 * size, 64 * size, -4 * size, -16 * size, -64 * size})
        for (std::int32_t by = -12; by <= 12; ++by)
            for (const std::int32_t step : {4, -4}) {
                std::vector<double> memory(600), expected;
                for (std::size_t e = 0; e < memory.size(); ++e)
                    memory[e] = static_cast<double>(e % 37);
                expected = memory;
                const auto listsIn = [&](std::vector<double> &numbers, std::vector<const double *> &from,
                                         std::vector<double *> &to) {
                    for (std::int32_t k = 0; k < objects; ++k) {
                        from.push_back(shifted(numbers.data() + 300 + step * k, -shift));
                        to.push_back(shifted(numbers.data() + 300 + by - step * k, -shift));
                    }
                };
                std::vector<const double *> factors(objects, identity), from, expectedFrom;
                std::vector<double *> to, expectedTo;
                listsIn(memory, from, to);
                listsIn(expected, expectedFrom, expectedTo);
                EXPECT_EQ(solve({factors.data(), from.data(), to.data(), shift}, objects), ZELM_OK);
                solveOneByOne({factors.data(), expectedFrom.data(), expectedTo.data(), shift}, objects);
                ASSERT_EQ(memory, expected) << "shift " << shift << ", by " << by << ", step " << step;
            }
}

} // namespace
