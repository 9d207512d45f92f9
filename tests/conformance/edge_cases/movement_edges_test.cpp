// Transposes of every order whose last element stands in front of a page that can't be touched, and copies at
// all small strides.
#include "guarded_page.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace {

template <class T>
std::int32_t bytes(std::int64_t elements) {
    return static_cast<std::int32_t>(elements * static_cast<std::int64_t>(sizeof(T)));
}

template <class T>
using Transpose = ZelmStatus(const T *, std::int32_t, T *, std::int32_t);

// Rows of n elements and a gap.
template <class T>
void expectTransposed(std::uint32_t n, Transpose<T> *transpose) {
    for (std::uint32_t srcRow = n; srcRow <= n + 2; ++srcRow)
        for (std::uint32_t dstRow = n; dstRow <= n + 2; ++dstRow) {
            const GuardedPage from, to;
            const std::uint32_t srcSize = srcRow * (n - 1) + n, dstSize = dstRow * (n - 1) + n;
            T *const src = from.last<T>(srcSize), *const dst = to.last<T>(dstSize);
            std::iota(src, src + srcSize, T{1});
            std::vector<T> expected(dstSize, T{-1});
            std::copy(expected.begin(), expected.end(), dst);
            for (std::uint32_t i = 0; i < n; ++i)
                for (std::uint32_t j = 0; j < n; ++j)
                    expected[j * dstRow + i] = src[i * srcRow + j];
            EXPECT_EQ(transpose(src, bytes<T>(srcRow), dst, bytes<T>(dstRow)), ZELM_OK);
            EXPECT_EQ(std::vector<T>(dst, dst + dstSize), expected)
                << n << "x" << n << ", rows at " << srcRow << " and " << dstRow;
        }
}

TEST(TransposeEdges, RowsWithGapsBeforeAPage) {
    expectTransposed<float>(3, zelmTranspose_m_32f_3x3);
    expectTransposed<float>(4, zelmTranspose_m_32f_4x4);
    expectTransposed<float>(5, zelmTranspose_m_32f_5x5);
    expectTransposed<float>(6, zelmTranspose_m_32f_6x6);
    expectTransposed<double>(3, zelmTranspose_m_64f_3x3);
    expectTransposed<double>(4, zelmTranspose_m_64f_4x4);
    expectTransposed<double>(5, zelmTranspose_m_64f_5x5);
    expectTransposed<double>(6, zelmTranspose_m_64f_6x6);
}

// ---- copies; src lies apart, and objects of dst may lie over each other

constexpr std::int64_t middle = 400;

template <class T>
std::vector<T> numbers() {
    std::vector<T> made(2 * middle);
    std::iota(made.begin(), made.end(), T{1});
    return made;
}

struct Strides {
    std::int64_t object, row;
};

void expectRowsCopied(std::uint32_t width, std::uint32_t height, Strides s, Strides d) {
    constexpr std::uint32_t count = 5;
    const auto src = numbers<float>();
    std::vector<float> dst(src.size()), expected = dst;
    for (std::int64_t k = 0; k < count; ++k)
        for (std::int64_t i = 0; i < height; ++i)
            for (std::int64_t j = 0; j < width; ++j)
                expected[static_cast<std::size_t>(middle + k * d.object + i * d.row + j)] =
                    src[static_cast<std::size_t>(middle + k * s.object + i * s.row + j)];
    EXPECT_EQ(zelmCopy_ma_32f_SS(&src[middle], bytes<float>(s.object), bytes<float>(s.row), 4, &dst[middle],
                                 bytes<float>(d.object), bytes<float>(d.row), 4, width, height, count),
              ZELM_OK);
    ASSERT_EQ(dst, expected) << width << " columns, " << height << " rows, src at " << s.object << ", "
                             << s.row << ", dst at " << d.object << ", " << d.row;
}

TEST(CopyEdges, RowsAtAllStridesThatMayLookLikeOneRun) {
    for (const std::uint32_t width : {1u, 2u, 3u, 5u})
        for (const std::uint32_t height : {1u, 2u, 3u}) {
            const std::int64_t w = width, h = height;
            const std::int64_t rows[] = {w, -w, 0, w + 1, w * h},
                               objects[] = {w * h, -w * h, w, w * w, w * h + 2};
            for (const std::int64_t row : rows)
                for (const std::int64_t object : objects) {
                    expectRowsCopied(width, height, {object, row}, {w * h, w});
                    expectRowsCopied(width, height, {w * h, w}, {object, row});
                    if (testing::Test::HasFatalFailure())
                        return;
                }
        }
}

// Vectors of three at every distance, to and from one array per component.
template <class T>
void expectThreesCopied(auto toPositions, auto fromPositions) {
    constexpr std::uint32_t count = 21;
    for (std::int64_t apart = 0; apart <= 6; ++apart) {
        const auto vectors = numbers<T>();
        std::vector<T> planes(3 * count), expected = planes, results(2 * middle), expectedResults = results;
        for (std::size_t k = 0; k < count; ++k)
            for (std::size_t j = 0; j < 3; ++j)
                expected[j * count + k] = vectors[k * static_cast<std::size_t>(apart) + j];
        T *const to[] = {&planes[0], &planes[count], &planes[2 * count]};
        EXPECT_EQ(toPositions(vectors.data(), bytes<T>(apart), to, count), ZELM_OK);
        EXPECT_EQ(planes, expected) << "vectors " << apart << " apart";
        for (std::size_t k = 0; k < count; ++k)
            for (std::size_t j = 0; j < 3; ++j)
                expectedResults[k * static_cast<std::size_t>(apart) + j] = planes[j * count + k];
        const T *const from[] = {to[0], to[1], to[2]};
        EXPECT_EQ(fromPositions(from, results.data(), bytes<T>(apart), count), ZELM_OK);
        EXPECT_EQ(results, expectedResults) << "vectors " << apart << " apart";
    }
}

TEST(CopyEdges, ThreesAtEveryDistance) {
    expectThreesCopied<float>(
        [](const float *src, std::int32_t apart, float *const *to, std::uint32_t count) {
            return zelmCopy_va_32f_SP(src, apart, 4, to, 0, 4, 3, count);
        },
        [](const float *const *from, float *dst, std::int32_t apart, std::uint32_t count) {
            return zelmCopy_va_32f_PS(from, 0, 4, dst, apart, 4, 3, count);
        });
    expectThreesCopied<double>(
        [](const double *src, std::int32_t apart, double *const *to, std::uint32_t count) {
            return zelmCopy_va_64f_SP(src, apart, 8, to, 0, 8, 3, count);
        },
        [](const double *const *from, double *dst, std::int32_t apart, std::uint32_t count) {
            return zelmCopy_va_64f_PS(from, 0, 8, dst, apart, 8, 3, count);
        });
}

} // namespace
