// Arrays of systems whose right sides and results lie over each other in every way, and results over the
// table that they are read by. What stands afterwards is what solving one system after the other leaves.
#include "zelm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <sys/mman.h>
#include <type_traits>
#include <vector>

namespace {

// The factor's diagonal holds reciprocals; what lies above it is of no use.
template <class T>
const T factor[] = {T{1} / 2, 99, 99, T{1} / 2, T{1} / 4, 99, T{-1} / 4, T{1} / 2, T{1} / 2};

constexpr std::uint32_t n = 3;

template <class T>
constexpr std::int32_t bytes(std::int64_t elements) {
    return static_cast<std::int32_t>(elements * static_cast<std::int64_t>(sizeof(T)));
}

ZelmStatus solve(const float *b, std::int32_t bStep, float *x, std::int32_t xStep) {
    return zelmCholeskyBackSubst_mv_32f_3x3_S2(factor<float>, bytes<float>(n), bytes<float>(1), b, bStep, x,
                                               xStep);
}
ZelmStatus solve(const double *b, std::int32_t bStep, double *x, std::int32_t xStep) {
    return zelmCholeskyBackSubst_mv_64f_3x3_S2(factor<double>, bytes<double>(n), bytes<double>(1), b, bStep,
                                               x, xStep);
}

float *at(std::uintptr_t place) {
    return reinterpret_cast<float *>(place);
}

// Vectors in memory: where each of them starts, and how far apart its elements lie.
struct Vectors {
    std::vector<std::int64_t> starts;
    std::int64_t step;
};

Vectors row(std::int64_t start, std::int64_t objStride, std::int64_t step, std::uint32_t count) {
    Vectors vectors{{}, step};
    for (std::uint32_t k = 0; k < count; ++k)
        vectors.starts.push_back(start + k * objStride);
    return vectors;
}

template <class T>
std::vector<T> numbers() {
    static const std::vector<T> memory = [] {
        std::vector<T> made;
        for (int e = 0; e < 700; ++e)
            made.push_back(static_cast<T>(e * e % 23 - 9));
        return made;
    }();
    return memory;
}

template <class T>
std::vector<T> solvedOneByOne(const Vectors &b, const Vectors &x) {
    std::vector<T> memory = numbers<T>();
    T *const at = memory.data();
    for (std::size_t k = 0; k < b.starts.size(); ++k)
        EXPECT_EQ(solve(at + b.starts[k], bytes<T>(b.step), at + x.starts[k], bytes<T>(x.step)), ZELM_OK);
    return memory;
}

template <class T>
std::vector<T> solvedAsLists(const Vectors &b, const Vectors &x) {
    std::vector<T> memory = numbers<T>();
    const auto count = static_cast<std::int32_t>(b.starts.size());
    std::vector<const T *> factors(b.starts.size(), factor<T>), right;
    std::vector<T *> results;
    for (std::size_t k = 0; k < b.starts.size(); ++k) {
        right.push_back(memory.data() + b.starts[k]);
        results.push_back(memory.data() + x.starts[k]);
    }
    const std::int32_t bStep = bytes<T>(b.step), xStep = bytes<T>(x.step);
    if constexpr (std::is_same_v<T, float>)
        EXPECT_EQ(zelmCholeskyBackSubst_mava_32f_3x3_LS2(factors.data(), 0, bytes<T>(n), bytes<T>(1),
                                                         right.data(), 0, bStep, results.data(), 0, xStep,
                                                         count),
                  ZELM_OK);
    else if (b.step == 1 && x.step == 1)
        EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_3x3_L(factors.data(), 0, bytes<T>(n), right.data(), 0,
                                                       results.data(), 0, count),
                  ZELM_OK);
    else
        EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_3x3_LS2(factors.data(), 0, bytes<T>(n), bytes<T>(1),
                                                         right.data(), 0, bStep, results.data(), 0, xStep,
                                                         count),
                  ZELM_OK);
    return memory;
}

void expectListsInOrder(const Vectors &b, const Vectors &x) {
    EXPECT_EQ(solvedAsLists<float>(b, x), solvedOneByOne<float>(b, x));
    EXPECT_EQ(solvedAsLists<double>(b, x), solvedOneByOne<double>(b, x));
}

constexpr std::int64_t steps[] = {-3, -2, -1, 0, 1, 2, 3};
constexpr std::uint32_t count = 20;

TEST(GroupOverlap, ListsFromTheSameStartsByOtherStrides) {
    for (const std::int64_t bStep : steps)
        for (const std::int64_t xStep : steps)
            for (std::int64_t distance = -7; distance <= 7; ++distance) {
                SCOPED_TRACE(testing::Message() << "steps " << bStep << ", " << xStep << ", " << distance);
                const std::int64_t start = distance < 0 ? 200 : 20;
                expectListsInOrder(row(start, distance, bStep, count), row(start, distance, xStep, count));
                if (HasFailure())
                    return;
            }
}

TEST(GroupOverlap, ListsOfResultsThatLieAcrossEachOther) {
    for (const std::int64_t step : steps)
        for (std::int64_t distance = -4; distance <= 4; ++distance) {
            SCOPED_TRACE(testing::Message() << "step " << step << ", " << distance);
            expectListsInOrder(row(400, 4, 1, count), row(150, distance, step, count));
        }
}

TEST(GroupOverlap, OneResultBesideTheRightSideThatTheOthersReplace) {
    for (std::uint32_t k = 0; k < count; ++k)
        for (std::int64_t by = -6; by <= 6; ++by) {
            SCOPED_TRACE(testing::Message() << "object " << k << " by " << by);
            const Vectors b = row(20, 5, 1, count);
            Vectors x = b;
            x.starts[k] += by;
            expectListsInOrder(b, x);
        }
}

TEST(GroupOverlap, TwoResultsOfAListThatOverlap) {
    for (std::uint32_t k = 1; k < count; ++k)
        for (std::uint32_t before = 0; before < k; ++before)
            for (std::int64_t by = -2; by <= 2; ++by) {
                SCOPED_TRACE(testing::Message() << "object " << k << " by " << by << " behind " << before);
                Vectors x = row(200, 4, 1, count);
                x.starts[k] = x.starts[before] + by;
                expectListsInOrder(row(20, 4, 1, count), x);
            }
}

template <class T>
std::vector<T> solvedAsArrays(const Vectors &b, const Vectors &x, std::int64_t bObj, std::int64_t xObj) {
    std::vector<T> memory = numbers<T>();
    const auto objects = static_cast<std::int32_t>(b.starts.size());
    const T *const right = memory.data() + b.starts[0];
    T *const results = memory.data() + x.starts[0];
    if constexpr (std::is_same_v<T, float>)
        EXPECT_EQ(zelmCholeskyBackSubst_mava_32f_3x3_S2(factor<T>, 0, bytes<T>(n), bytes<T>(1), right,
                                                        bytes<T>(bObj), bytes<T>(b.step), results,
                                                        bytes<T>(xObj), bytes<T>(x.step), objects),
                  ZELM_OK);
    else
        EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_3x3_S2(factor<T>, 0, bytes<T>(n), bytes<T>(1), right,
                                                        bytes<T>(bObj), bytes<T>(b.step), results,
                                                        bytes<T>(xObj), bytes<T>(x.step), objects),
                  ZELM_OK);
    return memory;
}

// Of `objects` systems, at all small distances from object to object and from element to element, the results
// by so many elements behind the right sides.
void expectArraysInOrder(std::uint32_t objects, std::int64_t by) {
    for (const std::int64_t bObj : {0, 1, 3, 4, 6})
        for (const std::int64_t xObj : {-3, 0, 1, 3, 4, 6, 9})
            for (const std::int64_t bStep : {0, 1, 2, 3, 4, 6})
                for (const std::int64_t xStep : {0, 1, 2, 3, 4, 5, 6}) {
                    SCOPED_TRACE(testing::Message()
                                 << objects << " objects at " << bObj << ", " << xObj << ", elements at "
                                 << bStep << ", " << xStep << ", by " << by);
                    const Vectors b = row(100, bObj, bStep, objects), x = row(100 + by, xObj, xStep, objects);
                    EXPECT_EQ(solvedAsArrays<float>(b, x, bObj, xObj), solvedOneByOne<float>(b, x));
                    EXPECT_EQ(solvedAsArrays<double>(b, x, bObj, xObj), solvedOneByOne<double>(b, x));
                    if (testing::Test::HasFailure())
                        return;
                }
}

TEST(GroupOverlap, ArraysAtAllSmallStrides) {
    for (const std::uint32_t objects : {2u, 4u, 5u, count})
        for (const std::int64_t by : {-3, -1, 0, 1, 3, 300})
            expectArraysInOrder(objects, by);
}

TEST(GroupOverlap, PositionsOfResultsThatLieAcrossEachOther) {
    std::vector<const float *> matrix;
    for (std::uint32_t e = 0; e < n * n; ++e)
        matrix.push_back(factor<float> + e);
    for (std::int64_t apart = 0; apart <= count; ++apart)
        for (const std::int64_t obj : {1, 2}) {
            const Vectors b = row(20, obj, 100, count), x = row(400, obj, apart, count);
            std::vector<float> memory = numbers<float>();
            std::vector<const float *> right;
            std::vector<float *> results;
            for (std::uint32_t j = 0; j < n; ++j) {
                right.push_back(&memory[20 + j * 100]);
                results.push_back(memory.data() + 400 + j * apart);
            }
            EXPECT_EQ(obj == 1 ? zelmCholeskyBackSubst_mva_32f_3x3_P(matrix.data(), 0, right.data(), 0,
                                                                     results.data(), 0, count)
                               : zelmCholeskyBackSubst_mva_32f_3x3_PS2(matrix.data(), 0, right.data(), 0,
                                                                       bytes<float>(obj), results.data(), 0,
                                                                       bytes<float>(obj), count),
                      ZELM_OK);
            EXPECT_EQ(memory, solvedOneByOne<float>(b, x)) << apart << " apart, objects " << obj;
        }
}

// ---- matrices

ZelmStatus decompose(const float *a, std::uint32_t *pivots, float *lu, std::int32_t row, std::int32_t elem) {
    return zelmLUDecomp_m_32f_3x3_S2(a, bytes<float>(n), bytes<float>(1), pivots, lu, row, elem);
}
ZelmStatus decompose(const double *a, std::uint32_t *pivots, double *lu, std::int32_t row,
                     std::int32_t elem) {
    return zelmLUDecomp_m_64f_3x3_S2(a, bytes<double>(n), bytes<double>(1), pivots, lu, row, elem);
}
ZelmStatus decompose(const float *a, std::uint32_t *pivots, float *lu, std::int32_t obj, std::int32_t row,
                     std::int32_t elem, std::uint32_t objects) {
    return zelmLUDecomp_ma_32f_3x3_S2(a, bytes<float>(n * n), bytes<float>(n), bytes<float>(1), pivots, lu,
                                      obj, row, elem, objects);
}
ZelmStatus decompose(const double *a, std::uint32_t *pivots, double *lu, std::int32_t obj, std::int32_t row,
                     std::int32_t elem, std::uint32_t objects) {
    return zelmLUDecomp_ma_64f_3x3_S2(a, bytes<double>(n * n), bytes<double>(n), bytes<double>(1), pivots, lu,
                                      obj, row, elem, objects);
}

// An object's elements are distinct, and may be those of other objects.
template <class T>
void expectMatricesInOrder(std::int64_t obj, std::int64_t row, std::int64_t elem, std::uint32_t objects) {
    std::vector<T> a, array(400), single = array;
    for (std::uint32_t e = 0; e < objects * n * n; ++e)
        a.push_back(static_cast<T>(e % 9 % 4 == 0 ? 20 + e : 1 + e % 5)); // large on the diagonal
    std::vector<std::uint32_t> pivots(objects * n), pivotsOfOne(n);
    EXPECT_EQ(decompose(a.data(), pivots.data(), array.data(), bytes<T>(obj), bytes<T>(row), bytes<T>(elem),
                        objects),
              ZELM_OK);
    for (std::uint32_t k = 0; k < objects; ++k)
        EXPECT_EQ(decompose(&a[k * n * n], pivotsOfOne.data(), single.data() + k * obj, bytes<T>(row),
                            bytes<T>(elem)),
                  ZELM_OK);
    EXPECT_EQ(array, single) << objects << " objects at " << obj << ", rows at " << row << ", elements at "
                             << elem;
}

bool elementsAreDistinct(std::int64_t row, std::int64_t elem) {
    std::vector<std::int64_t> places;
    for (std::int64_t i = 0; i < n; ++i)
        for (std::int64_t j = 0; j < n; ++j)
            places.push_back(i * row + j * elem);
    std::ranges::sort(places);
    return std::ranges::adjacent_find(places) == places.end();
}

TEST(GroupOverlap, MatricesThatLieAcrossEachOther) {
    for (const std::uint32_t objects : {2u, 4u, 5u, 16u})
        for (const std::int64_t obj : {0, 1, 2, 3, 7, 9})
            for (std::int64_t elem = 0; elem <= 20; ++elem)
                for (std::int64_t row = 0; row <= 50; row += row < 12 ? 1 : 3)
                    if (elementsAreDistinct(row, elem)) {
                        expectMatricesInOrder<float>(obj, row, elem, objects);
                        expectMatricesInOrder<double>(obj, row, elem, objects);
                        if (HasFailure())
                            return;
                    }
}

// ---- tables

// Of the width of a table's entries, so that a result of zeros makes entries null.
using Word = std::conditional_t<sizeof(void *) == 8, double, float>;

// Systems of zeros by three tables: a matrix for all, right sides, results. The results from object 64 on,
// where another stretch of entries begins, lie behind one of the tables.
class Tables {
public:
    static constexpr std::uint32_t stretch = 64, ahead = 8;
    Tables(std::size_t table, std::uint32_t objects)
        : objects_(objects), right_(objects * n), results_(objects * n, 7) {
        for (std::vector<Word *> &entries : tables_)
            entries.resize(ahead + objects + ahead + n * objects);
        for (std::uint32_t k = 0; k < objects; ++k) {
            places_.push_back(k < stretch ? &results_[k * n]
                                          : room(table, objects + ahead + n * (k - stretch)));
            std::copy_n(&results_[0], n, places_[k]);
            tables_[0][ahead + k] = matrix_;
            tables_[1][ahead + k] = &right_[k * n];
            tables_[2][ahead + k] = places_[k];
        }
    }
    // The memory of an entry.
    Word *room(std::size_t table, std::uint32_t entry) {
        void *const memory = &tables_[table][ahead + entry];
        return static_cast<Word *>(memory);
    }
    void putResult(std::uint32_t k, Word *place) { tables_[2][ahead + k] = place; }
    void putRight(std::uint32_t k, Word value) { std::fill_n(&right_[k * n], n, value); }
    Word result(std::uint32_t k) const {
        Word first;
        std::memcpy(&first, places_[k], sizeof first);
        return first;
    }
    ZelmStatus solve() const {
        return call(tables_[0].data() + ahead, tables_[1].data() + ahead, tables_[2].data() + ahead,
                    static_cast<std::int32_t>(objects_));
    }

private:
    static ZelmStatus call(const double *const *a, const double *const *b, double *const *x,
                           std::int32_t objects) {
        return zelmCholeskyBackSubst_mava_64f_3x3_L(a, 0, bytes<double>(n), b, 0, x, 0, objects);
    }
    static ZelmStatus call(const float *const *a, const float *const *b, float *const *x,
                           std::int32_t objects) {
        return zelmCholeskyBackSubst_mava_32f_3x3_L(a, 0, bytes<float>(n), b, 0, x, 0, objects);
    }

    std::uint32_t objects_;
    Word matrix_[n * n] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    std::vector<Word> right_, results_;
    std::vector<Word *> tables_[3], places_;
};

// Result k comes over three entries of a table, the first of them that of object `over`. An object whose
// entry is null when its turn comes is passed over.
void expectEntriesReadInTurn(std::size_t table, std::uint32_t k, std::uint32_t over, std::uint32_t objects) {
    SCOPED_TRACE(testing::Message() << "table " << table << ", object " << k << " over entry " << over
                                    << " of " << objects);
    Tables tables(table, objects);
    tables.putResult(k, tables.room(table, over));
    EXPECT_EQ(tables.solve(), ZELM_OK);
    for (std::uint32_t o = 0; o < objects; ++o) {
        const bool isPassedOver = o == k || (o > k && o >= over && o < over + n);
        EXPECT_EQ(tables.result(o), isPassedOver ? 7 : 0) << o;
    }
}

TEST(GroupOverlap, EntriesAreReadWhenTheirObjectsTurnComes) {
    for (const std::uint32_t objects : {20u, 90u})
        for (std::size_t table = 0; table < 3; ++table)
            for (std::uint32_t k = objects < Tables::stretch ? 0 : 60; k < objects - 1; ++k)
                for (std::uint32_t over = k < 2 ? 0 : k - 2; over <= k + 5; ++over)
                    expectEntriesReadInTurn(table, k, over, objects);
}

TEST(GroupOverlap, ResultsOnBothSidesOfATableOverlap) {
    constexpr std::uint32_t objects = 20;
    for (std::size_t table = 0; table < 3; ++table) {
        Tables tables(table, objects);
        Word *const front = tables.room(table, 0) - Tables::ahead;
        for (std::uint32_t k = 0; k < objects; ++k) {
            tables.putRight(k, static_cast<Word>(k + 1));
            tables.putResult(k, k < 2 ? front + k : tables.room(table, objects + n * k));
        }
        EXPECT_EQ(tables.solve(), ZELM_OK);
        Word results[n + 1];
        std::memcpy(results, front, sizeof results);
        EXPECT_EQ(std::to_array(results), (std::array<Word, n + 1>{1, 2, 2, 2}));
    }
}

// What is read lies above the other results, the tables on the heap as well.
TEST(GroupOverlap, AResultThatItsShiftBringsToNullIsPassedOver) {
    constexpr std::int32_t shift = bytes<float>(-4);
    static struct {
        std::array<float, n * count> results, right;
        float matrix[n * n];
    } memory;
    auto &[results, right, matrix] = memory;
    right.fill(1);
    std::copy_n(factor<float>, n * n, matrix);
    for (std::uint32_t null = 0; null < count; ++null) {
        results.fill(7);
        std::vector<float *> places;
        std::vector<const float *> rights, factors(count, matrix);
        for (std::uint32_t k = 0; k < count; ++k) {
            places.push_back(k == null ? at(static_cast<std::uintptr_t>(-shift)) : &results[n * k] + 4);
            rights.push_back(&right[n * k]);
        }
        EXPECT_EQ(zelmCholeskyBackSubst_mava_32f_3x3_L(factors.data(), 0, bytes<float>(n), rights.data(), 0,
                                                       places.data(), shift, count),
                  ZELM_OK);
        for (std::uint32_t k = 0; k < count; ++k)
            EXPECT_EQ(results[n * k] == 7, k == null) << k << ", without " << null;
    }
}

// ---- low memory

// Pages at places of their own; without them there is nothing to test.
class Pages {
public:
    explicit Pages(std::vector<std::uintptr_t> places) {
        for (const std::uintptr_t place : places) {
            void *const memory = mmap(reinterpret_cast<void *>(place), size, PROT_READ | PROT_WRITE,
                                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
            if (memory != MAP_FAILED)
                mapped_.push_back(memory);
            areThere_ = areThere_ && memory == reinterpret_cast<void *>(place);
        }
    }
    ~Pages() {
        for (void *const memory : mapped_)
            munmap(memory, size);
    }
    Pages(const Pages &) = delete;
    Pages &operator=(const Pages &) = delete;
    bool areThere() const { return areThere_; }

private:
    static constexpr std::size_t size = 4096;
    std::vector<void *> mapped_;
    bool areThere_ = true;
};

// So far apart lie the elements of a right side that there is no room for one below the results.
TEST(GroupOverlap, ResultsInLowMemoryOverRightSides) {
    constexpr std::uintptr_t far = 1u << 24;
    const Pages pages({far, 2 * far, 3 * far});
    if (!pages.areThere())
        GTEST_SKIP() << "other memory lies there";
    std::vector<float> results[2];
    for (std::vector<float> &result : results) {
        std::vector<const float *> right;
        std::vector<float *> dst;
        for (std::uint32_t k = 0; k < count; ++k) {
            right.push_back(at(far) + k);
            dst.push_back(at(2 * far) + 1 + n * k); // the first over the next one's second element
            for (std::uint32_t i = 1; i <= n; ++i)
                at(i * far)[k] = static_cast<float>(k * i + 1);
        }
        if (&result == results)
            EXPECT_EQ(zelmCholeskyBackSubst_mva_32f_3x3_LS2(factor<float>, bytes<float>(n), bytes<float>(1),
                                                            right.data(), 0, far, dst.data(), 0,
                                                            bytes<float>(1), count),
                      ZELM_OK);
        else
            for (std::uint32_t k = 0; k < count; ++k)
                EXPECT_EQ(solve(right[k], far, dst[k], bytes<float>(1)), ZELM_OK);
        result.assign(at(2 * far), at(2 * far) + 1 + n * count);
    }
    EXPECT_EQ(results[0], results[1]);
}

#ifdef __i386__
// Addresses count modulo the word size: so far apart that the second object lies below the first.
constexpr std::uintptr_t high = 0xfd000000u, beyond = 0x04000000u;
constexpr std::uint32_t farObjects = 8;

TEST(GroupOverlap, RightSidesOverTheEndOfTheAddressSpace) {
    std::vector<std::uintptr_t> places;
    for (std::uint32_t k = 0; k < farObjects; ++k)
        places.push_back(high + k * beyond);
    const Pages pages(places);
    if (!pages.areThere())
        GTEST_SKIP() << "other memory lies there";
    constexpr float matrix[] = {2, 1, 1, 0.5f, 4, 1, 0.25f, 0.5f, 8};
    constexpr std::uint32_t pivots[] = {0, 1, 2};
    float *const x = at(places[1]); // the first result over the second right side
    std::vector<float> results[2];
    for (std::vector<float> &result : results) {
        for (const std::uintptr_t place : places)
            for (std::uint32_t j = 0; j < n; ++j)
                at(place)[j] = static_cast<float>(place / beyond + j);
        if (&result == results)
            EXPECT_EQ(zelmLUBackSubst_mva_32f_3x3(matrix, 0, bytes<float>(n), pivots, at(high), beyond, x,
                                                  bytes<float>(n), farObjects),
                      ZELM_OK);
        else
            for (std::uint32_t k = 0; k < farObjects; ++k)
                EXPECT_EQ(
                    zelmLUBackSubst_mv_32f_3x3(matrix, bytes<float>(n), pivots, at(places[k]), x + k * n),
                    ZELM_OK);
        result.assign(x, x + farObjects * n);
    }
    EXPECT_EQ(results[0], results[1]);
}
// One matrix for all systems of a list, with a result over its second row: what follows is solved by the new
// row.
TEST(GroupOverlap, AMatrixOverTheEndOfTheAddressSpace) {
    constexpr std::uintptr_t first = 0xf0000000u, far = 0x18000000u;
    constexpr std::uint32_t over = 5;
    constexpr float elements[n][n] = {{2, 1, 1}, {0.5f, 4, 1}, {0.25f, 0.5f, 8}};
    constexpr std::uint32_t pivots[] = {0, 1, 2};
    const Pages pages({first, first + far, first + 2 * far});
    if (!pages.areThere())
        GTEST_SKIP() << "other memory lies there";
    std::vector<float> results[2];
    for (std::vector<float> &x : results) {
        for (std::uint32_t i = 0; i < n; ++i)
            std::copy_n(elements[i], n, at(first + i * far));
        std::vector<float> b(n * count);
        x.resize(n * count);
        std::vector<const float *> right;
        std::vector<float *> dst;
        for (std::uint32_t k = 0; k < count; ++k) {
            std::fill_n(&b[n * k], n, static_cast<float>(k + 1));
            right.push_back(&b[n * k]);
            dst.push_back(k == over ? at(first + far) : &x[n * k]);
        }
        if (&x == results)
            EXPECT_EQ(zelmLUBackSubst_mva_32f_3x3_L(at(first), 0, far, pivots, right.data(), 0, dst.data(), 0,
                                                    count),
                      ZELM_OK);
        else
            for (std::uint32_t k = 0; k < count; ++k)
                EXPECT_EQ(zelmLUBackSubst_mv_32f_3x3(at(first), far, pivots, right[k], dst[k]), ZELM_OK);
        std::copy_n(at(first + far), n, &x[n * over]);
    }
    EXPECT_EQ(results[0], results[1]);
}

#endif

} // namespace
