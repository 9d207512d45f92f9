// Transposes in P whose dst lies across src, at every distance, and transposes and copies into a P array that
// lies across itself: they give what moving object after object gives.
#include "zelm.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace {

// The positions lie `pitch` elements apart; the first is the lowest or the highest one.
struct Planes {
    std::size_t positions, count, pitch;
    bool descend;

    std::size_t at(std::size_t position, std::size_t object) const {
        return (descend ? positions - 1 - position : position) * pitch + object;
    }
    template <class T>
    std::vector<T *> table(T *first) const {
        std::vector<T *> entries;
        for (std::size_t e = 0; e < positions; ++e)
            entries.push_back(first + at(e, 0));
        return entries;
    }
};

template <class T>
using Transpose = ZelmStatus(const T *const *, std::int32_t, T *const *, std::int32_t, std::uint32_t);

template <class T>
void expectObjectOrder(std::size_t n, Transpose<T> *function, const Planes &s, const Planes &d) {
    const std::size_t elements = n * n * s.count, src = elements + 1;
    std::vector<T> start(3 * elements + 2);
    std::iota(start.begin(), start.end(), T{1});
    for (std::size_t dst = 0; dst <= 2 * elements + 2; ++dst) {
        auto memory = start, expected = start;
        for (std::size_t k = 0; k < s.count; ++k)
            for (std::size_t i = 0; i < n; ++i)
                for (std::size_t j = 0; j < n; ++j)
                    expected[dst + d.at(j * n + i, k)] = expected[src + s.at(i * n + j, k)];
        const auto from = s.table<const T>(&memory[src]);
        const auto to = d.table<T>(&memory[dst]);
        EXPECT_EQ(function(from.data(), 0, to.data(), 0, static_cast<std::uint32_t>(s.count)), ZELM_OK);
        ASSERT_EQ(memory, expected) << n << "x" << n << ", " << s.count << " objects, src at " << src
                                    << ", dst at " << dst;
    }
}

template <class T>
void expectObjectOrder(std::size_t n, Transpose<T> *function) {
    for (const std::size_t count : {15u, 16u, 17u, 20u})
        for (const bool srcDescends : {false, true})
            for (const bool dstDescends : {false, true})
                for (const std::size_t pitch : {count, count - 1, count / 2,
                                                std::size_t{1}}) // of dst: side by side, or across each other
                    expectObjectOrder<T>(n, function, {n * n, count, count, srcDescends},
                                         {n * n, count, pitch, dstDescends});
}

TEST(TransposeOverlap, PlanesAreMovedAsObjects) {
    expectObjectOrder<float>(3, zelmTranspose_ma_32f_3x3_P);
    expectObjectOrder<float>(4, zelmTranspose_ma_32f_4x4_P);
    expectObjectOrder<double>(3, zelmTranspose_ma_64f_3x3_P);
    expectObjectOrder<double>(4, zelmTranspose_ma_64f_4x4_P);
}

// Copies of matrices of 2 rows of 3 elements; src lies apart.
template <class T>
void expectCopyInObjectOrder(auto copy) {
    for (const std::size_t count : {15u, 16u, 17u, 20u})
        for (const bool descend : {false, true})
            for (const std::size_t pitch : {count, count - 1, count / 2, std::size_t{1}}) {
                const Planes d{6, count, pitch, descend};
                std::vector<T> src(6 * count), memory(6 * count), expected = memory;
                std::iota(src.begin(), src.end(), T{1});
                for (std::size_t k = 0; k < count; ++k)
                    for (std::size_t e = 0; e < 6; ++e)
                        expected[d.at(e, k)] = src[k * 6 + e];
                const auto to = d.table<T>(memory.data());
                EXPECT_EQ(copy(src.data(), to.data(), static_cast<std::uint32_t>(count)), ZELM_OK);
                ASSERT_EQ(memory, expected) << count << " objects, positions " << pitch << " apart";
            }
}

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

TEST(CopyOverlap, RowsGoToPlanesAsObjects) {
    expectCopyInObjectOrder<float>([](const float *src, float *const *to, std::uint32_t count) {
        return zelmCopy_ma_32f_SP(src, 6 * f, 3 * f, f, to, 0, f, 3, 2, count);
    });
    expectCopyInObjectOrder<double>([](const double *src, double *const *to, std::uint32_t count) {
        return zelmCopy_ma_64f_SP(src, 6 * d, 3 * d, d, to, 0, d, 3, 2, count);
    });
}

// The planes of src are made of the same packed objects.
template <class T>
ZelmStatus copyPlanes(const T *src, T *const *to, std::uint32_t count, auto *copy) {
    const Planes s{6, count, count, false};
    std::vector<T> planes(6 * count);
    for (std::size_t k = 0; k < count; ++k)
        for (std::size_t e = 0; e < 6; ++e)
            planes[s.at(e, k)] = src[k * 6 + e];
    const auto from = s.table<const T>(planes.data());
    return copy(from.data(), 0, sizeof(T), to, 0, sizeof(T), 3, 2, count);
}

TEST(CopyOverlap, PlanesAreCopiedAsObjects) {
    expectCopyInObjectOrder<float>([](const float *src, float *const *to, std::uint32_t count) {
        return copyPlanes(src, to, count, zelmCopy_ma_32f_PP);
    });
    expectCopyInObjectOrder<double>([](const double *src, double *const *to, std::uint32_t count) {
        return copyPlanes(src, to, count, zelmCopy_ma_64f_PP);
    });
}

} // namespace
