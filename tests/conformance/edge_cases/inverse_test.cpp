// Invert at run-time size and in closed form, and what all forms share.
#include "inverse_cases.h"

#include <array>
#include <limits>

namespace {

using zelmtest::refinedReciprocal;

constexpr std::int32_t f = sizeof(float), d = sizeof(double);
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Inverse, OfOneElement) {
    const float half = 0.5f, atThreshold = 0x1p-23f;
    float scratch[2], result = 7;
    EXPECT_EQ(zelmInvert_m_32f(&half, f, 1, scratch, &result, f), ZELM_OK);
    EXPECT_EQ(result, 2);
    EXPECT_EQ(zelmInvert_m_32f(&atThreshold, f, 1, scratch, &result, f), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, 2);
    const double three = 3, atThreshold64 = -0x1p-52;
    double scratch64[2], result64 = 7;
    EXPECT_EQ(zelmInvert_m_64f(&three, d, 1, scratch64, &result64, d), ZELM_OK);
    EXPECT_EQ(result64, 1.0 / 3);
    EXPECT_EQ(zelmInvert_m_64f(&atThreshold64, d, 1, scratch64, &result64, d), ZELM_ERR_DIV_BY_ZERO);
}

TEST(Inverse, ASmallCofactorIsZeroAtRunTime) {
    const float matrix[] = {1, 1e-9f, 0, 1};
    float scratch[8];
    std::array<float, 4> result{7, 7, 7, 7};
    EXPECT_EQ(zelmInvert_m_32f(matrix, 2 * f, 2, scratch, result.data(), 2 * f), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 4>{1, 0, 0, 1}));
}

TEST(Inverse, TheMultiplierOf32fIsDividedIn32Bits) {
    // l = 2 / 3 as a 32-bit float; the last element is 1 - 3 * l rounded twice, and det is 3 times that.
    const float l = 2.0f / 3.0f, product = 1.7f * -l, last = product + 2.0f, det = 3 * last, r = 1.0f / det;
    const float matrix[] = {3, 1.7f, 2, 2};
    float scratch[8], result[4];
    EXPECT_EQ(zelmInvert_m_32f(matrix, 2 * f, 2, scratch, result, 2 * f), ZELM_OK);
    EXPECT_EQ(result[0], 2 * r);
    EXPECT_EQ(result[1], (1.7f * r) * -1);
    EXPECT_EQ(result[2], (2 * r) * -1);
    EXPECT_EQ(result[3], 3 * r);
}

TEST(Inverse, AThresholdPassesAsAPivotAndFailsAsTheLast) {
    const double e = 0x1p-52, first[] = {e, 0, 0, 1}, last[] = {1, 0, 0, e};
    double scratch[5];
    std::array<double, 4> result{};
    EXPECT_EQ(zelmInvert_m_64f(first, 2 * d, 2, scratch, result.data(), 2 * d), ZELM_OK);
    EXPECT_EQ(result, (std::array<double, 4>{0x1p52, 0, 0, 0})) << "the cofactor e counts as zero";
    result.fill(7);
    EXPECT_EQ(zelmInvert_m_64f(last, 2 * d, 2, scratch, result.data(), 2 * d), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, (std::array<double, 4>{7, 7, 7, 7}));
}

TEST(Inverse, ASingular3x3) {
    const float matrix32[] = {1, 2, 3, 4, 5, 6, 2, 4, 6};
    const double matrix64[] = {1, 2, 3, 4, 5, 6, 2, 4, 6};
    std::array<float, 9> result32{};
    std::array<double, 9> result64{};
    const auto touched = [&] {
        return result32 != std::array<float, 9>{} || result64 != std::array<double, 9>{};
    };
    EXPECT_EQ(zelmInvert_m_32f_3x3(matrix32, 3 * f, result32.data(), 3 * f), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(zelmInvert_m_32f_3x3_S2(matrix32, 3 * f, f, result32.data(), 3 * f, f), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(zelmInvert_m_64f_3x3_S2(matrix64, 3 * d, d, result64.data(), 3 * d, d), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_FALSE(touched());
    EXPECT_EQ(zelmInvert_m_64f_3x3(matrix64, 3 * d, result64.data(), 3 * d), ZELM_OK);
    for (const double element : result64)
        EXPECT_FALSE(std::isfinite(element));
    const double *list = matrix64;
    double *results = result64.data();
    EXPECT_EQ(zelmInvert_ma_64f_3x3_L(&list, 0, 3 * d, &results, 0, 3 * d, 1), ZELM_OK);
}

TEST(Inverse, OnlyAnInfiniteDeterminantIsSingularIn64f3x3) {
    const double matrix[] = {1e200, 0, 0, 0, 1e200, 0, 0, 0, 1};
    std::array<double, 9> result{};
    EXPECT_EQ(zelmInvert_m_64f_3x3(matrix, 3 * d, result.data(), 3 * d), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, (std::array<double, 9>{}));
    EXPECT_EQ(zelmInvert_m_64f_3x3_S2(matrix, 3 * d, d, result.data(), 3 * d, d), ZELM_OK);
    const double matrix4[] = {1e200, 0, 0, 0, 0, 1e200, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    double result4[16];
    EXPECT_EQ(zelmInvert_m_64f_4x4(matrix4, 4 * d, result4, 4 * d), ZELM_OK);
}

TEST(Inverse, ASmallDeterminantIsSingularInS2Only) {
    const float matrix[] = {1e-8f, 0, 0, 0, 1, 0, 0, 0, 1};
    float result[9];
    EXPECT_EQ(zelmInvert_m_32f_3x3(matrix, 3 * f, result, 3 * f), ZELM_OK);
    EXPECT_EQ(zelmInvert_m_32f_3x3_S2(matrix, 3 * f, f, result, 3 * f, f), ZELM_ERR_DIV_BY_ZERO);
    const float matrix4[] = {1e-8f, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    float result4[16];
    EXPECT_EQ(zelmInvert_m_32f_4x4(matrix4, 4 * f, result4, 4 * f), ZELM_OK);
    EXPECT_EQ(zelmInvert_m_32f_4x4_S2(matrix4, 4 * f, f, result4, 4 * f, f), ZELM_ERR_DIV_BY_ZERO);
}

ZelmStatus invertDiagonal(double x) {
    const double matrix[] = {x, 0, 0, 0, 1, 0, 0, 0, 1};
    double result[9];
    return zelmInvert_m_64f_3x3_S2(matrix, 3 * d, d, result, 3 * d, d);
}

ZelmStatus invertDiagonal(float x) {
    const float matrix[] = {x, 0, 0, 0, 1, 0, 0, 0, 1};
    float result[9];
    return zelmInvert_m_32f_3x3_S2(matrix, 3 * f, f, result, 3 * f, f);
}

TEST(Inverse, TheBoundsOfTheBandAreOutsideOfIt) {
    EXPECT_EQ(invertDiagonal(1e-15), ZELM_OK);
    EXPECT_EQ(invertDiagonal(-1e-15), ZELM_OK);
    EXPECT_EQ(invertDiagonal(std::nextafter(1e-15, 0.0)), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(invertDiagonal(-std::nextafter(1e-15, 0.0)), ZELM_ERR_DIV_BY_ZERO);
    // No 32-bit float is 1e-7; the band is that of 64-bit floats.
    const float nearest = 1e-7f;
    const float above = nearest >= 1e-7 ? nearest : std::nextafter(nearest, 1.0f);
    EXPECT_EQ(invertDiagonal(above), ZELM_OK);
    EXPECT_EQ(invertDiagonal(std::nextafter(above, 0.0f)), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(invertDiagonal(std::numeric_limits<float>::quiet_NaN()), ZELM_OK);
}

TEST(Inverse, TheReciprocalOf32fIsRefinedOnceInTheBracketsOfItsSize) {
    int different = 0;
    for (int i = 3; i < 500; ++i) {
        const float x = static_cast<float>(i) * 1.37f, r0 = zelmtest::rawReciprocal(x);
        const float product = x * r0, correction = product * r0, r3 = (r0 + r0) - correction;
        const float r4 = refinedReciprocal(x);
        const float matrix3[] = {x, 0, 0, 0, 1, 0, 0, 0, 1};
        const float matrix4[] = {x, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
        float result3[9], result4[16];
        EXPECT_EQ(zelmInvert_m_32f_3x3(matrix3, 3 * f, result3, 3 * f), ZELM_OK);
        EXPECT_EQ(result3[0], r3);
        EXPECT_EQ(zelmInvert_m_32f_4x4(matrix4, 4 * f, result4, 4 * f), ZELM_OK);
        EXPECT_EQ(result4[0], r4);
        EXPECT_EQ(zelmInvert_m_32f_3x3_S2(matrix3, 3 * f, f, result3, 3 * f, f), ZELM_OK);
        EXPECT_EQ(result3[0], 1.0f / x);
        different += r3 != r4;
    }
    EXPECT_GT(different, 0) << "the numbers do not tell the two brackets apart";
}

TEST(Inverse, ANanIsSingularAtRunTimeOnly) {
    for (std::uint32_t n = 3; n <= 6; ++n) {
        std::vector<float> matrix = zelmtest::unit<float>(n);
        matrix[0] = std::numeric_limits<float>::quiet_NaN();
        const std::vector<double> wide(matrix.begin(), matrix.end());
        EXPECT_EQ(zelmtest::invert(zelmtest::Form::RunTime, n, matrix).status, ZELM_ERR_DIV_BY_ZERO);
        EXPECT_EQ(zelmtest::invert(zelmtest::Form::RunTime, n, wide).status, ZELM_ERR_DIV_BY_ZERO);
        for (const auto form : {zelmtest::Form::Standard, zelmtest::Form::S2}) {
            const auto result32 = zelmtest::invert(form, n, matrix);
            const auto result64 = zelmtest::invert(form, n, wide);
            // The searches of orders 5 and 6 keep a NaN in column 0; the 64f standard ones take any pair.
            EXPECT_EQ(result32.status, ZELM_OK) << n;
            EXPECT_EQ(result64.status, ZELM_OK) << n;
            EXPECT_TRUE(std::isnan(result32.elements[0])) << n;
            EXPECT_TRUE(std::isnan(result64.elements[0])) << n;
        }
    }
}

TEST(Inverse, InfinitiesFlowThroughTheFixedSizes) {
    const double matrix[] = {infinity, 0, 0, 0, 1, 0, 0, 0, 1};
    double result[9] = {};
    EXPECT_EQ(zelmInvert_m_64f_3x3_S2(matrix, 3 * d, d, result, 3 * d, d), ZELM_OK);
    EXPECT_TRUE(std::isnan(result[8])); // 0 * infinity in the determinant
}

TEST(Inverse, ASingularObjectStopsTheArray) {
    std::vector<double> source(3 * 9), result(3 * 9, 7);
    for (const std::size_t e : {0u, 4u, 8u})
        source[e] = source[18 + e] = 2;
    const auto expectStopped = [&](ZelmStatus status) {
        EXPECT_EQ(status, ZELM_ERR_DIV_BY_ZERO);
        EXPECT_EQ(result[0], 0.5);
        EXPECT_EQ(result[8], 0.5);
        for (std::size_t e = 9; e < 27; ++e)
            EXPECT_EQ(result[e], 7);
        result.assign(27, 7);
    };
    double scratch[11];
    const double *sources[] = {&source[0], &source[9], &source[18]};
    double *results[] = {&result[0], &result[9], &result[18]};
    const double *positions[9];
    double *resultPositions[9];
    for (std::size_t e = 0; e < 9; ++e) {
        positions[e] = &source[e];
        resultPositions[e] = &result[e];
    }
    expectStopped(
        zelmInvert_ma_64f_3x3_S2(source.data(), 9 * d, 3 * d, d, result.data(), 9 * d, 3 * d, d, 3));
    expectStopped(zelmInvert_ma_64f(source.data(), 9 * d, 3 * d, 3, scratch, result.data(), 9 * d, 3 * d, 3));
    expectStopped(zelmInvert_ma_64f_L(sources, 0, 3 * d, 3, scratch, results, 0, 3 * d, 3));
    expectStopped(zelmInvert_ma_64f_3x3_LS2(sources, 0, 3 * d, d, results, 0, 3 * d, d, 3));
    expectStopped(zelmInvert_ma_64f_3x3_PS2(positions, 0, 9 * d, resultPositions, 0, 9 * d, 3));
    for (std::size_t e = 0; e < 9;
         ++e) // an infinite determinant is what the standard form takes for singular
        source[9 + e] = e % 4 == 0 ? 1e200 : 0;
    expectStopped(zelmInvert_ma_64f_3x3(source.data(), 9 * d, 3 * d, result.data(), 9 * d, 3 * d, 3));
    expectStopped(zelmInvert_ma_64f_3x3_L(sources, 0, 3 * d, results, 0, 3 * d, 3));
}

TEST(Inverse, ANullEntryAndAZeroCount) {
    float elements[9] = {2, 0, 0, 0, 2, 0, 0, 0, 2}, results[9] = {7, 7, 7, 7, 7, 7, 7, 7, 7}, scratch[12];
    const float *sources[9];
    float *targets[9];
    for (int e = 0; e < 9; ++e) {
        sources[e] = &elements[e];
        targets[e] = &results[e];
    }
    targets[8] = nullptr;
    EXPECT_EQ(zelmInvert_ma_32f_3x3_P(sources, 0, targets, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmInvert_ma_32f_PS2(sources, 0, f, 3, scratch, targets, 0, f, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmInvert_m_32f_3x3_P(sources, 0, targets, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmInvert_m_32f_P(sources, 0, 3, scratch, targets, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmInvert_ma_32f_3x3_L(sources, 0, 3 * f, targets + 8, 0, 3 * f, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmInvert_ma_32f_3x3_L(sources, 0, 3 * f, targets + 8, 0, 3 * f, 0), ZELM_OK);
    EXPECT_EQ(zelmInvert_ma_32f(elements, 0, 3 * f, 0, scratch, results, 0, 3 * f, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmInvert_ma_32f(elements, 0, 3 * f, 0, nullptr, results, 0, 3 * f, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(results[0], 7);
}

// Forms of order 5 and 6 that take the first columns as pivots if only they are not tiny lose what these are
// smaller than the rest.
template <class T>
bool hasSmallFirstPivots(const std::vector<T> &a, std::uint32_t n) {
    return std::fabs(a[0]) < T(0.1) || std::fabs(a[0] * a[n + 1] - a[1] * a[n]) < T(0.1);
}

// |A * inverse - I| in units of condition number times unit roundoff.
template <class T>
double worstResidual(zelmtest::Form form, std::uint32_t n) {
    const double unitRoundoff = std::numeric_limits<T>::epsilon() / 2;
    std::mt19937 random(n);
    double worst = 0;
    for (int round = 0; round < 300; ++round) {
        const double greatest = sizeof(T) == 4 ? 5 : 12;
        const double condition = std::pow(10.0, greatest * (round % 30) / 29);
        std::vector<T> matrix = zelmtest::randomMatrix<T>(random, n, condition);
        while (form == zelmtest::Form::Standard && n >= 5 && hasSmallFirstPivots(matrix, n))
            matrix = zelmtest::randomMatrix<T>(random, n, condition);
        const auto result = zelmtest::invert(form, n, matrix);
        if (result.status != ZELM_OK)
            return infinity;
        worst = std::max(worst, zelmtest::residual(matrix, result.elements, n) / (condition * unitRoundoff));
    }
    return worst;
}

template <class T>
void expectSmallResiduals(zelmtest::Form form, std::uint32_t n, double multiple) {
    EXPECT_LE(worstResidual<T>(form, n), multiple) << "order " << n << ", " << sizeof(T) << " bytes";
}

TEST(Inverse, ResidualsAtRunTime) {
    for (std::uint32_t n = 2; n <= 6; ++n) {
        expectSmallResiduals<float>(zelmtest::Form::RunTime, n, 16);
        expectSmallResiduals<double>(zelmtest::Form::RunTime, n, 16);
    }
}

TEST(Inverse, ResidualsOfTheStandardForms) {
    for (std::uint32_t n = 3; n <= 6; ++n) {
        expectSmallResiduals<float>(zelmtest::Form::Standard, n, 100);
        expectSmallResiduals<double>(zelmtest::Form::Standard, n, 100);
    }
}

TEST(Inverse, ResidualsOfTheS2Forms) {
    for (std::uint32_t n = 3; n <= 6; ++n) {
        expectSmallResiduals<float>(zelmtest::Form::S2, n, 16);
        expectSmallResiduals<double>(zelmtest::Form::S2, n, 16);
    }
}

} // namespace
