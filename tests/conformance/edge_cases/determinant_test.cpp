#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);
constexpr double threshold32 = 0x1p-23, threshold64 = 0x1p-52;
constexpr double infinity = std::numeric_limits<double>::infinity();

double atRunTime(const double *matrix, std::uint32_t n) {
    double scratch[6 * 6 + 3], result = 7;
    EXPECT_EQ(zelmDet_m_64f(matrix, static_cast<std::int32_t>(n) * d, n, scratch, &result), ZELM_OK);
    return result;
}

float atRunTime(const float *matrix, std::uint32_t n) {
    float scratch[6 * 6 + 6], result = 7;
    EXPECT_EQ(zelmDet_m_32f(matrix, static_cast<std::int32_t>(n) * f, n, scratch, &result), ZELM_OK);
    return result;
}

TEST(Determinant, OfOneElement) {
    const float atThreshold32 = threshold32, above32 = std::nextafter(atThreshold32, 1.0f), plain32 = -3;
    EXPECT_EQ(atRunTime(&atThreshold32, 1), 0);
    EXPECT_EQ(atRunTime(&above32, 1), above32);
    EXPECT_EQ(atRunTime(&plain32, 1), -3);
    const double atThreshold64 = -threshold64, above64 = std::nextafter(atThreshold64, -1.0);
    EXPECT_EQ(atRunTime(&atThreshold64, 1), 0);
    EXPECT_EQ(atRunTime(&above64, 1), above64);
}

TEST(Determinant, AThresholdPassesAsAPivotAndFailsAsTheLast) {
    const double first[] = {threshold64, 0, 0, 1}, last[] = {1, 0, 0, threshold64};
    EXPECT_EQ(atRunTime(first, 2), threshold64);
    EXPECT_EQ(atRunTime(last, 2), 0);
    const float first32[] = {threshold32, 0, 0, 1}, last32[] = {1, 0, 0, threshold32};
    EXPECT_EQ(atRunTime(first32, 2), threshold32);
    EXPECT_EQ(atRunTime(last32, 2), 0);
}

TEST(Determinant, OnlyARealExchangeTurnsTheSign) {
    const double unit[] = {1, 0, 0, 1}, exchanged[] = {0, 1, 1, 0};
    EXPECT_EQ(atRunTime(unit, 2), 1);
    EXPECT_EQ(atRunTime(exchanged, 2), -1);
}

TEST(Determinant, SmallPivotsAreZeroAtRunTimeOnly) {
    const float small = 1e-8f, matrix[] = {small, 0, 0, 0, small, 0, 0, 0, small};
    EXPECT_EQ(atRunTime(matrix, 3), 0);
    float result = 0;
    EXPECT_EQ(zelmDet_m_32f_3x3_S2(matrix, 3 * f, f, &result), ZELM_OK);
    EXPECT_EQ(result, (small * small) * small);
    EXPECT_EQ(zelmDet_m_32f_3x3(matrix, 3 * f, &result), ZELM_OK);
    EXPECT_GT(result, 0);
}

// The last element tells which row was taken: equal to the threshold it gives 0, a little above it does not.
TEST(Determinant, TheBestMagnitudeOf64fIsRoundedTo32Bits) {
    // row 0 rounds up above row 1, which is greater
    const double a = 1 + 0x1p-24 + 0x1p-40, b = 1 + 0x1p-23 - 0x1p-30;
    const double roundsUp[] = {a, threshold64, b, 0};
    EXPECT_EQ(atRunTime(roundsUp, 2), a * -((b / a) * threshold64));
    // row 0 rounds down below row 1, which is less
    const double c = 1 + 0x1p-25, e = 1 + 0x1p-26;
    const double roundsDown[] = {c, 0, e, threshold64};
    EXPECT_EQ(atRunTime(roundsDown, 2), e * ((c / e) * threshold64));
    // row 0 rounds to infinity
    const double beyond[] = {0x1p130, 0x1p-60, 0x1p900, 0};
    EXPECT_EQ(atRunTime(beyond, 2), -0x1p840);
}

TEST(Determinant, ASingularObjectIsZeroInItsOwnWay) {
    const double matrices[] = {0, 5, 0, -3, 2, 0, 0, 3, 0, 5, 0, -infinity, 0, 0, 0, 0, 1, 0, 0, 4};
    double scratch[5], results[] = {7, 7, 7, 7, 7}, single = 7;
    EXPECT_EQ(zelmDet_ma_64f(matrices, 4 * d, 2 * d, 2, scratch, results, 5), ZELM_OK);
    EXPECT_EQ(results[0], 0); // 0 times the last element, -3
    EXPECT_TRUE(std::signbit(results[0]));
    EXPECT_EQ(results[1], 6);
    EXPECT_TRUE(std::isnan(results[2]));
    EXPECT_EQ(results[3], 0);
    EXPECT_FALSE(std::signbit(results[3]));
    EXPECT_EQ(results[4], 4);
    for (const int object : {0, 2}) {
        EXPECT_EQ(zelmDet_m_64f(matrices + 4 * object, 2 * d, 2, scratch, &single), ZELM_OK);
        EXPECT_EQ(single, 0);
        EXPECT_FALSE(std::signbit(single));
    }
}

TEST(Determinant, ANanIsNoPivotAndFlowsThroughTheFixedSizes) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float matrix[] = {nan, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_EQ(atRunTime(matrix, 3), 0);
    float result = 7;
    EXPECT_EQ(zelmDet_m_32f_3x3(matrix, 3 * f, &result), ZELM_OK);
    EXPECT_TRUE(std::isnan(result));
    EXPECT_EQ(zelmDet_m_32f_3x3_S2(matrix, 3 * f, f, &result), ZELM_OK);
    EXPECT_TRUE(std::isnan(result));
}

TEST(Determinant, RoundsOnceInThePackedLayoutAndAtEveryStepInS2) {
    const float e = 0x1p-23f;
    const float matrix[] = {1, 0, 0, 0, 1 + e, 1 + 2 * e, 0, 1, 1 + e}; // exactly e squared
    float result = 7;
    EXPECT_EQ(zelmDet_ma_32f_3x3(matrix, 0, 3 * f, &result, 1), ZELM_OK);
    EXPECT_EQ(result, e * e);
    EXPECT_EQ(zelmDet_ma_32f_3x3_S2(matrix, 0, 3 * f, f, &result, 1), ZELM_OK);
    EXPECT_EQ(result, 0);
}

TEST(Determinant, ASingularMatrixOfFixedSizeGivesWhatTheSumsGive) {
    // Three times 0.1, 0.2, ... in a row of 0.3, 0.6, ...: singular but for the rounding of the elements.
    const double matrix[] = {0.1, 0.2, 0.7, 0.3, 0.6, 2.1, 0.5, 0.4, 0.9};
    const double t0 = (0.6 * 0.9 - 0.4 * 2.1) * 0.1, t1 = (2.1 * 0.5 - 0.9 * 0.3) * 0.2,
                 t2 = (0.3 * 0.4 - 0.5 * 0.6) * 0.7;
    double result = 7;
    EXPECT_EQ(zelmDet_m_64f_3x3_S2(matrix, 3 * d, d, &result), ZELM_OK);
    EXPECT_EQ(result, (t0 + t1) + t2);
}

TEST(Determinant, ANullEntryOfTheRunTimePFormLeavesOne) {
    const float element = 2;
    float scratch[6], result = 7;
    const float *table[] = {&element, &element, nullptr, &element};
    EXPECT_EQ(zelmDet_m_32f_P(table, 0, 2, scratch, &result), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, 1);
}

TEST(Determinant, ANullEntryElsewhere) {
    const float elements[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    float scratch[6], result[] = {7, 7};
    const float *positions[9], *objects[] = {elements, nullptr};
    for (int e = 0; e < 9; ++e)
        positions[e] = &elements[e];
    positions[3] = nullptr;
    EXPECT_EQ(zelmDet_m_32f_3x3_P(positions, 0, result), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmDet_ma_32f_P(positions, 0, 2, scratch, result, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmDet_ma_32f_3x3_PS2(positions, 0, f, result, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result[0], 7);
    EXPECT_EQ(zelmDet_ma_32f_3x3_L(objects + 1, 0, 3 * f, result, 0), ZELM_OK);
    EXPECT_EQ(zelmDet_ma_32f_LS2(objects + 1, 0, 3 * f, f, 2, scratch, result, 0), ZELM_OK);
    EXPECT_EQ(zelmDet_ma_32f_3x3_L(objects, 0, 3 * f, result, 2), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result[0], 1);
    EXPECT_EQ(result[1], 7);
}

TEST(Determinant, PointersComeBeforeTheOrder) {
    double matrix[] = {1}, scratch[2], result = 7;
    EXPECT_EQ(zelmDet_m_64f(matrix, d, 0, nullptr, &result), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmDet_m_64f(matrix, d, 0, scratch, &result), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmDet_ma_64f(matrix, d, d, 0, scratch, &result, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmDet_ma_64f(matrix, d, d, 1, scratch, &result, 0), ZELM_OK);
    EXPECT_EQ(result, 7);
}

// The sum of all products with their signs, or, for the scale of the rounding errors, of their magnitudes.
template <class T>
long double leibniz(const T *a, std::uint32_t n, std::uint32_t row, unsigned taken, bool magnitudes) {
    if (row == n)
        return 1;
    long double sum = 0;
    bool negative = false;
    for (std::uint32_t j = 0; j < n; ++j) {
        if (taken >> j & 1)
            continue;
        const long double x = a[row * n + j];
        const long double rest = leibniz(a, n, row + 1, taken | 1u << j, magnitudes);
        sum += magnitudes ? std::fabs(x) * rest : negative ? -x * rest : x * rest;
        negative = !negative;
    }
    return sum;
}

template <class T, class Plain, class Strided>
void expectNear(std::uint32_t n, Plain plain, Strided strided) {
    const long double unit = std::numeric_limits<T>::epsilon() / 2;
    const auto row = static_cast<std::int32_t>(n * sizeof(T));
    std::mt19937 random(n);
    for (int round = 0; round < 200; ++round) {
        T a[36], scratch[45], extended = 0, inT = 0, byElimination = 0;
        for (std::uint32_t e = 0; e < n * n; ++e)
            a[e] = static_cast<T>(static_cast<double>(random()) * 0x1p-31 - 1);
        const long double exact = leibniz(a, n, 0, 0, false), scale = leibniz(a, n, 0, 0, true);
        EXPECT_EQ(plain(a, row, &extended), ZELM_OK);
        EXPECT_EQ(strided(a, row, static_cast<std::int32_t>(sizeof(T)), &inT), ZELM_OK);
        if constexpr (sizeof(T) == 4)
            EXPECT_EQ(zelmDet_m_32f(a, row, n, scratch, &byElimination), ZELM_OK);
        else
            EXPECT_EQ(zelmDet_m_64f(a, row, n, scratch, &byElimination), ZELM_OK);
        // One rounding of the result and at most one of each level of minors; one of each operation.
        EXPECT_LE(std::fabs(extended - exact),
                  unit * std::fabs(exact) * 1.01L + (n - 3) * unit * scale * 1.01L);
        EXPECT_LE(std::fabs(inT - exact), 2 * n * unit * scale);
        EXPECT_LE(std::fabs(byElimination - exact), 8 * n * n * unit * scale);
    }
}

TEST(Determinant, AgainstExtendedPrecision) {
    expectNear<float>(3, zelmDet_m_32f_3x3, zelmDet_m_32f_3x3_S2);
    expectNear<float>(4, zelmDet_m_32f_4x4, zelmDet_m_32f_4x4_S2);
    expectNear<float>(5, zelmDet_m_32f_5x5, zelmDet_m_32f_5x5_S2);
    expectNear<float>(6, zelmDet_m_32f_6x6, zelmDet_m_32f_6x6_S2);
    expectNear<double>(3, zelmDet_m_64f_3x3, zelmDet_m_64f_3x3_S2);
    expectNear<double>(4, zelmDet_m_64f_4x4, zelmDet_m_64f_4x4_S2);
    expectNear<double>(5, zelmDet_m_64f_5x5, zelmDet_m_64f_5x5_S2);
    expectNear<double>(6, zelmDet_m_64f_6x6, zelmDet_m_64f_6x6_S2);
}

} // namespace
