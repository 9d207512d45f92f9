#include "extended.h"
#include "guarded_page.h"

#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

template <class T>
constexpr T infinity = std::numeric_limits<T>::infinity();
template <class T>
constexpr T nan = std::numeric_limits<T>::quiet_NaN();

TEST(QrDecomp, OneElementIsCopiedWhateverItIs) {
    float scratch = 0;
    for (const float element : {0.0f, -0.0f, 3.0f, infinity<float>, nan<float>}) {
        float result = 7;
        EXPECT_EQ(zelmQRDecomp_m_32f(&element, f, &scratch, &result, f, 1, 1), ZELM_OK);
        EXPECT_EQ(std::bit_cast<std::uint32_t>(result), std::bit_cast<std::uint32_t>(element));
    }
}

TEST(QrDecomp, OneColumnIsOneReflector) {
    // q = 25, s = 5, c = 1/8, v = (1, 0.5, 0), b = -2/1.25
    const double source[] = {3, 4, 0};
    std::array<double, 3> result{}, scratch{};
    EXPECT_EQ(zelmQRDecomp_m_64f(source, d, scratch.data(), result.data(), d, 1, 3), ZELM_OK);
    EXPECT_EQ(result, (std::array<double, 3>{3 + 5 * (-2 / 1.25), 0.5, 0}));
}

TEST(QrDecomp, TheIdentityHasTwoSignsTurned) {
    const double identity[] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const std::array<double, 9> expected = {-1, 0, 0, 0, -1, 0, 0, 0, 1};
    std::array<double, 9> result{};
    std::array<double, 3> scratch{};
    EXPECT_EQ(zelmQRDecomp_m_64f_3x3(identity, 3 * d, scratch.data(), result.data(), 3 * d), ZELM_OK);
    EXPECT_EQ(result, expected);
    result = {};
    EXPECT_EQ(zelmQRDecomp_m_64f(identity, 3 * d, scratch.data(), result.data(), 3 * d, 3, 3), ZELM_OK);
    EXPECT_EQ(result, expected);
}

// The vectors (1, 0, 0) and (0, 1, 0.5), of which scratch keeps the 1 of the first.
constexpr std::array<double, 9> twoReflectors = {1, 0, 0, 0, 3, 0, 0, 4, 0};
// (1, 0.5, 0), then a column of zeros.
constexpr std::array<double, 9> oneReflector = {3, 0, 0, 4, 0, 0, 0, 0, 0};

TEST(QrDecomp, ScratchHoldsTheLastReflectorThatWasMade) {
    using Scratch = std::array<double, 3>;
    const auto both = [](const std::array<double, 9> &source, ZelmStatus status, const Scratch &expected) {
        std::array<double, 9> result;
        Scratch scratch{};
        EXPECT_EQ(zelmQRDecomp_m_64f_3x3(source.data(), 3 * d, scratch.data(), result.data(), 3 * d), status);
        EXPECT_EQ(scratch, expected);
        scratch = {};
        EXPECT_EQ(zelmQRDecomp_m_64f(source.data(), 3 * d, scratch.data(), result.data(), 3 * d, 3, 3),
                  status);
        EXPECT_EQ(scratch, expected);
    };
    both(twoReflectors, ZELM_OK, {1, 1, 0.5});
    both(oneReflector, ZELM_ERR_DIV_BY_ZERO, {1, 0.5, 0});
}

TEST(QrDecomp, ScratchHoldsTheLastReflectorOfAnArray) {
    for (const std::uint32_t count : {37u, 48u}) { // with and without objects that no group takes
        for (const std::uint32_t failing : {0u, 1u, 16u, 36u, count}) {
            std::array<std::array<double, 9>, 48> sources, results;
            sources.fill(twoReflectors);
            sources[count - 1][7] = -4;
            if (failing < count)
                sources[failing] = oneReflector;
            std::array<double, 3> scratch{};
            const ZelmStatus status = zelmQRDecomp_ma_64f_3x3(sources[0].data(), 9 * d, 3 * d, scratch.data(),
                                                              results[0].data(), 9 * d, 3 * d, count);
            EXPECT_EQ(status, failing < count ? ZELM_ERR_DIV_BY_ZERO : ZELM_OK);
            EXPECT_EQ(scratch, (failing < count ? std::array{1.0, 0.5, 0.0} : std::array{1.0, 1.0, -0.5}))
                << failing << " of " << count;
        }
    }
}

TEST(QrDecomp, ZeroAndNegativeCountAsNegative) {
    double result[2], scratch[2];
    const auto diagonal = [&](double first, double second) {
        const double source[] = {first, second};
        EXPECT_EQ(zelmQRDecomp_m_64f(source, d, scratch, result, d, 1, 2), ZELM_OK);
        return result[0];
    };
    EXPECT_EQ(diagonal(2, 0), -2);
    EXPECT_EQ(diagonal(-2, 0), 2);
    EXPECT_EQ(diagonal(0.0, 1), 1);
    EXPECT_EQ(diagonal(-0.0, 1), 1);
    EXPECT_EQ(diagonal(0.0, -1), 1);
    EXPECT_TRUE(std::isnan(diagonal(infinity<double>, 0))); // infinity passes the threshold
}

// Columns of three whose squares sum to 2^-23 exactly, and to less by as little as possible; then the last
// entry is nothing.
template <class T>
void expectThreshold(ZelmStatus (*decompose)(const T *, std::int32_t, T *, T *, std::int32_t)) {
    constexpr std::int32_t size = sizeof(T);
    const T half = T(0x1p-12), below = std::nextafter(half, T(0));
    std::array<T, 9> source, result;
    const auto status = [&](T first, T second, T third) {
        source = {first, 0, 0, second, 0, 1, third, 1, 2};
        T scratch[3];
        return decompose(source.data(), 3 * size, scratch, result.data(), 3 * size);
    };
    EXPECT_EQ(status(half, half, 0), ZELM_OK);
    EXPECT_EQ(status(half, -half, 0), ZELM_OK);
    EXPECT_EQ(status(half, below, 0), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, source);
    EXPECT_EQ(status(T(1e-4), T(1e-4), T(1e-4)), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, source);
    EXPECT_EQ(status(0, 0, 0), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, source);
    EXPECT_EQ(status(1, nan<T>, 0), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_TRUE(std::isnan(result[3]));
    EXPECT_EQ(result[0], 1);
    EXPECT_EQ(status(1, infinity<T>, 0), ZELM_ERR_DIV_BY_ZERO); // by the NaN that it makes of column 1
    EXPECT_TRUE(std::isnan(result[4]));
}

TEST(QrDecomp, TheThresholdIsOnTheSquaredNorm) {
    expectThreshold(zelmQRDecomp_m_32f_3x3);
    expectThreshold(zelmQRDecomp_m_64f_3x3);
}

TEST(QrDecomp, ALaterColumnThatFailsLeavesTheFirstReflector) {
    const double source[] = {3, 6, 4,
                             8}; // two equal columns but for a factor; a square matrix has no last test
    double result[4], scratch[3];
    EXPECT_EQ(zelmQRDecomp_m_64f(source, 2 * d, scratch, result, 2 * d, 2, 2), ZELM_OK);
    EXPECT_NEAR(result[3], 0, 1e-14);

    const double tall[] = {3, 6, 4, 8, 0, 0};
    std::array<double, 6> r{};
    EXPECT_EQ(zelmQRDecomp_m_64f(tall, 2 * d, scratch, r.data(), 2 * d, 2, 3), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_NEAR(r[0], -5, 1e-14);
    EXPECT_NEAR(r[1], -10, 1e-14);
    EXPECT_EQ(r[2], 0.5);
    EXPECT_NEAR(r[3], 0, 1e-14);
    EXPECT_EQ(r[4], 0);
    EXPECT_EQ(r[5], 0);
}

TEST(QrDecomp, MoreColumnsThanRowsEndInAnEmptySum) {
    const double source[] = {3, 4};
    std::array<double, 2> result{};
    double scratch = 0;
    EXPECT_EQ(zelmQRDecomp_m_64f(source, 2 * d, &scratch, result.data(), 2 * d, 2, 1), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, (std::array<double, 2>{-3, -4})); // after the one reflector
}

TEST(QrDecomp, AnArrayStopsAtTheFailingObject) {
    const double sources[] = {1, 0, 0, 1, 0, 5, 0, 6, 1, 0, 0, 1};
    std::array<double, 12> results{};
    results.fill(7);
    double scratch[2];
    EXPECT_EQ(zelmQRDecomp_ma_64f(sources, 4 * d, 2 * d, scratch, results.data(), 4 * d, 2 * d, 2, 2, 3),
              ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(results, (std::array<double, 12>{-1, 0, 0, 1, 0, 5, 0, 6, 7, 7, 7, 7}));
}

TEST(QrDecomp, InPlace) {
    std::array<float, 16> matrix{}, apart{};
    extended::Numbers numbers;
    const std::vector<float> source = numbers.draw<float>(16);
    std::copy(source.begin(), source.end(), matrix.begin());
    float scratch[4];
    EXPECT_EQ(zelmQRDecomp_m_32f_4x4(matrix.data(), 4 * f, scratch, apart.data(), 4 * f), ZELM_OK);
    EXPECT_EQ(zelmQRDecomp_m_32f_4x4(matrix.data(), 4 * f, scratch, matrix.data(), 4 * f), ZELM_OK);
    EXPECT_EQ(matrix, apart);
}

TEST(QrDecomp, ScratchIsAsLongAsAColumn) {
    const GuardedPage page;
    extended::Numbers numbers;
    for (std::uint32_t height = 1; height <= 30; ++height)
        for (std::uint32_t width = 1; width <= std::min(height, 8u); ++width) {
            constexpr std::uint32_t count = 9;
            const std::uint32_t object = height * width;
            const std::vector<double> source = numbers.draw<double>(count * object);
            std::vector<double> result(count * object), again(object);
            double *const scratch = page.last<double>(height);
            *(scratch - 1) = 7;
            const auto row = static_cast<std::int32_t>(width) * d;
            EXPECT_EQ(zelmQRDecomp_ma_64f(source.data(), static_cast<std::int32_t>(object) * d, row, scratch,
                                          result.data(), static_cast<std::int32_t>(object) * d, row, width,
                                          height, count),
                      ZELM_OK);
            EXPECT_EQ(zelmQRDecomp_m_64f(source.data(), row, page.last<double>(height), again.data(), row,
                                         width, height),
                      ZELM_OK);
            EXPECT_TRUE(std::equal(again.begin(), again.end(), result.begin()));
            EXPECT_EQ(*(scratch - 1), 7);
        }
    const std::vector<float> source = numbers.draw<float>(9 * 16);
    std::vector<float> result(9 * 16);
    EXPECT_EQ(zelmQRDecomp_ma_32f_4x4(source.data(), 16 * f, 4 * f, page.last<float>(4), result.data(),
                                      16 * f, 4 * f, 9),
              ZELM_OK);
}

TEST(QrDecomp, PointersThenSizesThenTablesThenTheCount) {
    const float element = 1;
    float result = 7, scratch[3];
    EXPECT_EQ(zelmQRDecomp_m_32f(&element, f, nullptr, &result, f, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmQRDecomp_m_32f(&element, f, scratch, &result, f, 0, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmQRDecomp_m_32f(&element, f, scratch, &result, f, 1, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmQRDecomp_ma_32f(&element, f, f, scratch, &result, f, f, 0, 1, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmQRDecomp_ma_32f(&element, f, f, scratch, &result, f, f, 1, 1, 0), ZELM_OK);
    EXPECT_EQ(zelmQRDecomp_ma_32f_3x3(&element, f, f, nullptr, &result, f, f, 0), ZELM_ERR_NULL_PTR);

    std::array<const float *, 9> sources{};
    std::array<float *, 9> results{};
    sources.fill(&element);
    results.fill(&result);
    for (const std::size_t null : {std::size_t{0}, std::size_t{5}, std::size_t{8}}) {
        sources[null] = nullptr;
        EXPECT_EQ(zelmQRDecomp_m_32f_3x3_P(sources.data(), 0, scratch, results.data(), 0), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(zelmQRDecomp_m_32f_P(sources.data(), 4, scratch, results.data(), 0, 3, 3),
                  ZELM_ERR_NULL_PTR);
        EXPECT_EQ(zelmQRDecomp_ma_32f_3x3_P(sources.data(), 0, scratch, results.data(), 0, 0),
                  ZELM_ERR_NULL_PTR);
        EXPECT_EQ(zelmQRDecomp_ma_32f_PS2(sources.data(), 0, 0, scratch, results.data(), 0, 0, 3, 3, 0),
                  ZELM_ERR_NULL_PTR);
        sources[null] = &element;
        results[null] = nullptr;
        EXPECT_EQ(zelmQRDecomp_m_32f_3x3_P(sources.data(), 0, scratch, results.data(), 0), ZELM_ERR_NULL_PTR);
        results[null] = &result;
    }
    EXPECT_EQ(zelmQRDecomp_ma_32f_3x3_P(sources.data(), 0, scratch, results.data(), 0, 0), ZELM_OK);
    EXPECT_EQ(result, 7);
}

TEST(QrDecomp, AListIsTestedEntryByEntryBeforeTheShift) {
    // The third entry is null, and its shift would make an address of it.
    const double identity[] = {9, 1, 0, 0, 1};
    std::array<double, 13> results{};
    results.fill(7);
    double scratch[2];
    const double *const sources[] = {identity, identity, nullptr};
    double *const destinations[] = {&results[0], &results[4], &results[8]};
    const std::array<double, 13> expected = {7, -1, 0, 0, 1, -1, 0, 0, 1, 7, 7, 7, 7};
    EXPECT_EQ(zelmQRDecomp_ma_64f_L(sources, d, 2 * d, scratch, destinations, d, 2 * d, 2, 2, 3),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(results, expected);
    results.fill(7);
    EXPECT_EQ(zelmQRDecomp_ma_64f_LS2(sources, d, 2 * d, d, scratch, destinations, d, 2 * d, d, 2, 2, 3),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(results, expected);
    EXPECT_EQ(zelmQRDecomp_ma_64f_L(sources + 2, d, 2 * d, scratch, destinations, d, 2 * d, 2, 2, 0),
              ZELM_OK);
}

// H_0 * H_1 * ... * R
extended::Matrix product(const extended::Matrix &factor) {
    extended::Matrix result = factor;
    for (std::size_t i = 0; i < result.rows; ++i)
        for (std::size_t j = 0; j < std::min(i, result.columns); ++j)
            result(i, j) = 0;
    const std::size_t reflectors = result.rows == result.columns ? result.columns - 1 : result.columns;
    for (std::size_t k = reflectors; k-- > 0;) {
        extended::Matrix v(result.rows, 1);
        v(k, 0) = 1;
        for (std::size_t i = k + 1; i < result.rows; ++i)
            v(i, 0) = factor(i, k);
        const long double squares = extended::norm(v) * extended::norm(v);
        const extended::Matrix along = extended::transposed(v) * result;
        for (std::size_t i = 0; i < result.rows; ++i)
            for (std::size_t j = 0; j < result.columns; ++j)
                result(i, j) -= 2 / squares * v(i, 0) * along(0, j);
    }
    return result;
}

// |A - Q*R| <= 4*height*u*|A| in the norm of the sum of squares.
template <class T>
void expectReconstruction(ZelmStatus (*decompose)(const T *, std::int32_t, T *, T *, std::int32_t,
                                                  std::uint32_t, std::uint32_t)) {
    extended::Numbers numbers;
    for (const auto &[width, height] :
         {std::pair{2u, 2u}, {3u, 3u}, {4u, 4u}, {5u, 5u}, {6u, 6u}, {8u, 8u}, {1u, 4u}, {3u, 5u}, {6u, 25u}})
        for (int repetition = 0; repetition < 50; ++repetition) {
            const std::vector<T> source = numbers.draw<T>(width * height);
            std::vector<T> result(width * height), scratch(height);
            const auto row = static_cast<std::int32_t>(width * sizeof(T));
            ASSERT_EQ(decompose(source.data(), row, scratch.data(), result.data(), row, width, height),
                      ZELM_OK);
            const extended::Matrix a(source, width);
            EXPECT_LE(extended::norm(a - product(extended::Matrix(result, width))),
                      4 * height * extended::unitRoundoff<T> * extended::norm(a))
                << width << " " << height;
        }
}

TEST(QrDecomp, TheFactorsGiveBackTheMatrix) {
    expectReconstruction(zelmQRDecomp_m_32f);
    expectReconstruction(zelmQRDecomp_m_64f);
}

} // namespace
