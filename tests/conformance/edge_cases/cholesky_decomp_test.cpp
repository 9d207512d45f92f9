#include "extended.h"
#include "guarded_page.h"

#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);
constexpr float infinity = std::numeric_limits<float>::infinity(),
                nan = std::numeric_limits<float>::quiet_NaN();

using Square = std::array<double, 9>;

// L = {2; 1 4; 3 -2 1}, whose diagonal is kept as 0.5, 0.25, 1
const Square definite = {4, 2, 6, 2, 17, -5, 6, -5, 14};

TEST(CholeskyDecomp, KeepsReciprocalsAndLeavesTheUpperTriangle) {
    Square result{};
    result.fill(7);
    const Square expected = {0.5, 7, 7, 1, 0.25, 7, 3, -2, 1};
    EXPECT_EQ(zelmCholeskyDecomp_m_64f_3x3(definite.data(), 3 * d, result.data(), 3 * d), ZELM_OK);
    EXPECT_EQ(result, expected);
    result.fill(7);
    EXPECT_EQ(zelmCholeskyDecomp_m_64f(definite.data(), 3 * d, result.data(), 3 * d, 3), ZELM_OK);
    EXPECT_EQ(result, expected);
}

TEST(CholeskyDecomp, InPlaceTheUpperTriangleOfTheSourceStays) {
    Square matrix = definite;
    matrix[1] = matrix[2] = matrix[5] = 99;
    EXPECT_EQ(zelmCholeskyDecomp_m_64f_3x3(matrix.data(), 3 * d, matrix.data(), 3 * d), ZELM_OK);
    EXPECT_EQ(matrix, (Square{0.5, 99, 99, 1, 0.25, 99, 3, -2, 1}));
}

TEST(CholeskyDecomp, TheIdentityAndInfinity) {
    const float identity[] = {1, 0, 0, 1};
    std::array<float, 4> result = {7, 7, 7, 7};
    EXPECT_EQ(zelmCholeskyDecomp_m_32f(identity, 2 * f, result.data(), 2 * f, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 4>{1, 7, 0, 1}));
    const float infinite[] = {infinity, 0, 3, 4};
    EXPECT_EQ(zelmCholeskyDecomp_m_32f(infinite, 2 * f, result.data(), 2 * f, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 4>{0, 7, 0, 0.5f}));
}

TEST(CholeskyDecomp, AFirstPivotThatIsNotPositiveWritesNothing) {
    for (const float pivot : {0.0f, -0.0f, -1.0f, nan, -infinity}) {
        float source[9] = {pivot, 1, 1, 1, 1, 1, 1, 1, 1};
        std::array<float, 9> result{};
        result.fill(7);
        const std::array<float, 9> before = result;
        EXPECT_EQ(zelmCholeskyDecomp_m_32f_3x3(source, 3 * f, result.data(), 3 * f), ZELM_ERR_NOT_POS_DEF);
        EXPECT_EQ(result, before) << pivot;
    }
    // No tolerance: the smallest number there is will do. 1 / sqrt(2^-149) is not representable exactly.
    const float least = std::numeric_limits<float>::denorm_min();
    float result = 0;
    EXPECT_EQ(zelmCholeskyDecomp_m_32f(&least, f, &result, f, 1), ZELM_OK);
    EXPECT_EQ(result, static_cast<float>(1 / std::sqrt(0x1p-149)));
}

TEST(CholeskyDecomp, ASecondPivotThatFailsLeavesItsRowBegun) {
    const double source[] = {4, 0, 0, 6, 9, 0, 1, 1, 1}; // 9 - 3*3
    Square result{};
    result.fill(7);
    EXPECT_EQ(zelmCholeskyDecomp_m_64f_3x3(source, 3 * d, result.data(), 3 * d), ZELM_ERR_NOT_POS_DEF);
    EXPECT_EQ(result, (Square{0.5, 7, 7, 3, 7, 7, 7, 7, 7}));
}

TEST(CholeskyDecomp, AnArrayStopsAtTheFailingObject) {
    const double sources[] = {4, 0, 2, 2, 4, 0, 6, 9, 4, 0, 2, 2};
    std::array<double, 12> results{};
    results.fill(7);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f(sources, 4 * d, 2 * d, results.data(), 4 * d, 2 * d, 2, 3),
              ZELM_ERR_NOT_POS_DEF);
    EXPECT_EQ(results, (std::array<double, 12>{0.5, 7, 1, 1, 0.5, 7, 3, 7, 7, 7, 7, 7}));
}

// Element (i, j) lies i - j elements before the end of a page, so that all above the diagonal lies behind it.
template <class T>
void expectUpperTriangleUnread(ZelmStatus (*single)(const T *, std::int32_t, T *, std::int32_t,
                                                    std::uint32_t),
                               ZelmStatus (*array)(const T *, std::int32_t, std::int32_t, T *, std::int32_t,
                                                   std::int32_t, std::uint32_t, std::int32_t)) {
    constexpr std::int32_t size = sizeof(T);
    const GuardedPage page;
    for (std::uint32_t n = 1; n <= 8; ++n) {
        T *const diagonal = page.last<T>(1);
        for (std::uint32_t i = 1; i < n; ++i)
            *(diagonal - i) = T(1) / static_cast<T>(1 + i);
        *diagonal = 4;
        std::array<T, 64> plain{}, result{};
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j <= i; ++j)
                plain[i * n + j] = *(diagonal - (i - j));
        const auto row = static_cast<std::int32_t>(n) * size;
        EXPECT_EQ(single(plain.data(), row, plain.data(), row, n), ZELM_OK);
        EXPECT_EQ(single(diagonal, -size, result.data(), row, n), ZELM_OK);
        EXPECT_EQ(result, plain) << n;
        std::vector<T> results(9 * 64);
        EXPECT_EQ(array(diagonal, 0, -size, results.data(), 64 * size, row, n, 9), ZELM_OK);
        for (std::size_t k = 0; k < 9; ++k)
            for (std::size_t e = 0; e < 64; ++e)
                EXPECT_EQ(results[k * 64 + e], plain[e]) << n;
    }
}

TEST(CholeskyDecomp, ReadsNothingAboveTheDiagonal) {
    expectUpperTriangleUnread(zelmCholeskyDecomp_m_32f, zelmCholeskyDecomp_ma_32f);
    expectUpperTriangleUnread(zelmCholeskyDecomp_m_64f, zelmCholeskyDecomp_ma_64f);
}

TEST(CholeskyDecomp, TablesOfPositionsMakeReciprocalsIn32Bits) {
    int differing = 0;
    for (float pivot = 1; pivot < 4; pivot += 0x1p-6f) {
        const float root = std::sqrt(pivot);
        const float narrow = 1.0f / root,
                    wide = static_cast<float>(1 / std::sqrt(static_cast<double>(pivot)));
        differing += narrow != wide;
        float result = 0;
        const float *const source[] = {&pivot};
        float *const destination[] = {&result};
        EXPECT_EQ(zelmCholeskyDecomp_m_32f(&pivot, f, &result, f, 1), ZELM_OK);
        EXPECT_EQ(result, wide);
        EXPECT_EQ(zelmCholeskyDecomp_m_32f_S2(&pivot, f, f, &result, f, f, 1), ZELM_OK);
        EXPECT_EQ(result, wide);
        EXPECT_EQ(zelmCholeskyDecomp_ma_32f_L(source, 0, f, destination, 0, f, 1, 1), ZELM_OK);
        EXPECT_EQ(result, wide);
        EXPECT_EQ(zelmCholeskyDecomp_ma_32f_LS2(source, 0, f, f, destination, 0, f, f, 1, 1), ZELM_OK);
        EXPECT_EQ(result, wide);
        EXPECT_EQ(zelmCholeskyDecomp_m_32f_P(source, 0, destination, 0, 1), ZELM_OK);
        EXPECT_EQ(result, narrow);
        EXPECT_EQ(zelmCholeskyDecomp_ma_32f_P(source, 0, destination, 0, 1, 1), ZELM_OK);
        EXPECT_EQ(result, narrow);
        EXPECT_EQ(zelmCholeskyDecomp_ma_32f_PS2(source, 0, 0, destination, 0, 0, 1, 1), ZELM_OK);
        EXPECT_EQ(result, narrow);
    }
    EXPECT_GT(differing, 10);
}

TEST(CholeskyDecomp, ElementStridesAreRoundedDownForOrdersThreeToSix) {
    // Diagonal matrices: at a stride of one element, at one and a half, and backwards.
    for (std::uint32_t n = 1; n <= 8; ++n)
        for (const std::int32_t stride : {12, 15, -4, -9}) {
            const bool rounded = n >= 3 && n <= 6;
            const std::int32_t used = !rounded ? stride : stride > 0 ? 8 : stride == -4 ? -8 : -16;
            alignas(16) std::array<unsigned char, 4096> source{}, expected{}, result{};
            constexpr std::int32_t row = 256, middle = 2048 - 4 * row;
            for (std::int32_t i = 0; i < static_cast<std::int32_t>(n); ++i)
                for (std::int32_t j = 0; j <= i; ++j) {
                    const double zero = 0, four = 4, half = 0.5;
                    const std::int32_t at = middle + i * row + j * used;
                    std::memcpy(&source[static_cast<std::size_t>(at)], i == j ? &four : &zero, d);
                    std::memcpy(&expected[static_cast<std::size_t>(at)], i == j ? &half : &zero, d);
                }
            const auto *from = reinterpret_cast<const double *>(&source[middle]);
            auto *to = reinterpret_cast<double *>(&result[middle]);
            // Elements that overlap say nothing, and a single row has no step.
            if (!rounded && (stride == -4 || n == 1))
                continue;
            EXPECT_EQ(zelmCholeskyDecomp_m_64f_S2(from, row, stride, to, row, stride, n), ZELM_OK);
            EXPECT_EQ(result, expected) << n << " " << stride;
            result = {};
            EXPECT_EQ(zelmCholeskyDecomp_ma_64f_LS2(&from, 0, row, stride, &to, 0, row, stride, n, 1),
                      ZELM_OK);
            EXPECT_EQ(result, expected) << n << " " << stride;
        }
}

TEST(CholeskyDecomp, PointersThenSizesThenASignedCount) {
    const double source = 4;
    double result = 7;
    EXPECT_EQ(zelmCholeskyDecomp_m_64f(nullptr, d, &result, d, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmCholeskyDecomp_m_64f(&source, d, nullptr, d, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmCholeskyDecomp_m_64f(&source, d, &result, d, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f(&source, d, d, nullptr, d, d, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f(&source, d, d, &result, d, d, 1, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f(&source, d, d, &result, d, d, 0, -1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_3x3(&source, d, d, &result, d, d, 0), ZELM_ERR_SIZE);

    const double *const sources[] = {&source};
    double *const results[] = {&result};
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_P(sources, 0, results, 0, 1, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f(&source, d, d, &result, d, d, 1, -1), ZELM_OK);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_3x3_S2(&source, d, d, d, &result, d, d, d, -5), ZELM_OK);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_4x4_L(sources, 0, d, results, 0, d, INT32_MIN), ZELM_OK);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_LS2(sources, 0, d, d, results, 0, d, d, 1, -1), ZELM_OK);
    EXPECT_EQ(result, 7);

    // With a table of positions it is a number of objects, of which the first fails here.
    const double negative = -4;
    const double *const failing[] = {&negative};
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_P(failing, 0, results, 0, 1, UINT32_MAX), ZELM_ERR_NOT_POS_DEF);
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_PS2(failing, 0, d, results, 0, d, 1, UINT32_MAX),
              ZELM_ERR_NOT_POS_DEF);
}

TEST(CholeskyDecomp, AnEntryAndItsShiftThatComeToNullStopTheArray) {
    const double source[] = {4, 16};
    double result[] = {7, 7, 7};
    for (const std::int32_t shift : {0, d, -d}) {
        const auto entry = [&](const void *address) {
            return reinterpret_cast<std::uintptr_t>(address) -
                   static_cast<std::uintptr_t>(std::intptr_t{shift});
        };
        const std::uintptr_t sources[] = {entry(source), entry(nullptr), entry(source)};
        const std::uintptr_t results[] = {entry(result), entry(result + 1), entry(result + 2)};
        const auto *from = reinterpret_cast<const double *const *>(sources);
        auto *to = reinterpret_cast<double *const *>(results);
        result[0] = 7;
        EXPECT_EQ(zelmCholeskyDecomp_ma_64f_L(from, shift, d, to, shift, d, 1, 3), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(std::to_array(result), (std::array<double, 3>{0.5, 7, 7}));
        result[0] = 7;
        EXPECT_EQ(zelmCholeskyDecomp_ma_64f_LS2(from, shift, d, d, to, shift, d, d, 1, 3), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(std::to_array(result), (std::array<double, 3>{0.5, 7, 7}));
    }
}

#ifdef __i386__

// Here a shift reaches every address.
std::int32_t reaching(const void *address) {
    return static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(address));
}

TEST(CholeskyDecomp, ANullEntryIsFollowed) {
    const double source = 4;
    double result = 0;
    const double *const sources[] = {nullptr};
    double *const results[] = {nullptr};
    EXPECT_EQ(zelmCholeskyDecomp_m_64f_P(sources, reaching(&source), results, reaching(&result), 1), ZELM_OK);
    EXPECT_EQ(result, 0.5);
    result = 0;
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_P(sources, reaching(&source), results, reaching(&result), 1, 1),
              ZELM_OK);
    EXPECT_EQ(result, 0.5);
    result = 0;
    EXPECT_EQ(
        zelmCholeskyDecomp_ma_64f_PS2(sources, reaching(&source), d, results, reaching(&result), d, 1, 1),
        ZELM_OK);
    EXPECT_EQ(result, 0.5);
    result = 0;
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f_L(sources, reaching(&source), d, results, reaching(&result), d, 1, 1),
              ZELM_OK);
    EXPECT_EQ(result, 0.5);
}

TEST(CholeskyDecomp, AStrideThatComesToNullStopsTheArray) {
    const double source[] = {4, 4};
    double result[] = {7, 7};
    EXPECT_EQ(zelmCholeskyDecomp_ma_64f(source, -reaching(source), d, result, d, d, 1, 2), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result[0], 0.5);
    EXPECT_EQ(result[1], 7);
}

#endif

// |A - L*L'| <= 4*n*u*|A| in the norm of the sum of squares.
template <class T>
void expectReconstruction(ZelmStatus (*decompose)(const T *, std::int32_t, T *, std::int32_t,
                                                  std::uint32_t)) {
    extended::Numbers numbers;
    for (std::uint32_t n = 1; n <= 8; ++n)
        for (int repetition = 0; repetition < 50; ++repetition) {
            const extended::Matrix g(numbers.draw<T>(n * (n + 2)), n + 2);
            const extended::Matrix product = g * extended::transposed(g);
            const std::vector<T> source(product.elements.begin(), product.elements.end());
            const auto row = static_cast<std::int32_t>(n * sizeof(T));
            std::vector<T> result(n * n);
            ASSERT_EQ(decompose(source.data(), row, result.data(), row, n), ZELM_OK);
            extended::Matrix l(result, n);
            for (std::uint32_t i = 0; i < n; ++i)
                l(i, i) = 1 / l(i, i);
            const extended::Matrix a(source, n);
            EXPECT_LE(extended::norm(a - l * extended::transposed(l)),
                      4 * n * extended::unitRoundoff<T> * extended::norm(a))
                << n;
        }
}

TEST(CholeskyDecomp, TheFactorGivesBackTheMatrix) {
    expectReconstruction(zelmCholeskyDecomp_m_32f);
    expectReconstruction(zelmCholeskyDecomp_m_64f);
}

} // namespace
