#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);
constexpr double threshold = 0x1p-23;

using Pivots = std::array<std::uint32_t, 3>;

TEST(LuDecomp, FactorsInUnexchangedRows) {
    // Pivots: 4 (row 1), then row 2 (remainder 3 against 1), then row 0.
    const double source[] = {2, 3, 1, 4, 4, 4, 2, 5, 8};
    std::array<double, 9> result{};
    Pivots pivots{};
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(source, 3 * d, pivots.data(), result.data(), 3 * d), ZELM_OK);
    EXPECT_EQ(pivots, (Pivots{1, 2, 0}));
    // row 1: U 4 4 4; row 2: l 0.5, then 3 6; row 0: l 0.5, (1 / 3), (-1 - 6 / 3)
    EXPECT_EQ(result, (std::array<double, 9>{0.5, 1.0 / 3, -1 + -(1.0 / 3) * 6, 4, 4, 4, 0.5, 3, 6}));
}

TEST(LuDecomp, InPlace) {
    double matrix[] = {2, 3, 1, 4, 4, 4, 2, 5, 8};
    double apart[9];
    Pivots pivots{}, pivotsApart{};
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(matrix, 3 * d, pivotsApart.data(), apart, 3 * d), ZELM_OK);
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(matrix, 3 * d, pivots.data(), matrix, 3 * d), ZELM_OK);
    EXPECT_EQ(std::to_array(matrix), std::to_array(apart));
    EXPECT_EQ(pivots, pivotsApart);
}

TEST(LuDecomp, AZeroMatrixIsCopiedAndRefused) {
    const float source[9] = {0.0f, -0.0f};
    std::array<float, 9> result{7, 7, 7, 7, 7, 7, 7, 7, 7};
    Pivots pivots{9, 9, 9};
    EXPECT_EQ(zelmLUDecomp_m_32f(source, 3 * f, pivots.data(), result.data(), 3 * f, 3),
              ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, (std::array<float, 9>{}));
    EXPECT_TRUE(std::signbit(result[1]));
    EXPECT_EQ(pivots, (Pivots{0, 1, 2}));
}

TEST(LuDecomp, OneElement) {
    const double source[] = {threshold};
    double result = 7;
    std::uint32_t pivot = 9;
    EXPECT_EQ(zelmLUDecomp_m_64f(source, d, &pivot, &result, d, 1), ZELM_OK);
    EXPECT_EQ(result, threshold);
    EXPECT_EQ(pivot, 0u);

    const double small[] = {std::nextafter(threshold, 0.0)};
    pivot = 9;
    EXPECT_EQ(zelmLUDecomp_m_64f(small, d, &pivot, &result, d, 1), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result, small[0]);
    EXPECT_EQ(pivot, 0u);
}

TEST(LuDecomp, OfEqualMagnitudesTheFirstStays) {
    const float source[] = {-2, 1, 0, 2, 1, 0, 2, 0, 1};
    float result[9];
    Pivots pivots{};
    EXPECT_EQ(zelmLUDecomp_m_32f_3x3(source, 3 * f, pivots.data(), result, 3 * f), ZELM_OK);
    EXPECT_EQ(pivots, (Pivots{0, 1, 2}));
    EXPECT_EQ(result[3], -1);
    EXPECT_EQ(result[4], 2);
}

TEST(LuDecomp, ANanNeverWinsTheSearchAndIsNeverReplaced) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    double result[9];
    Pivots pivots{};
    const double below[] = {1, 0, 0, nan, 1, 0, 2, 0, 1};
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(below, 3 * d, pivots.data(), result, 3 * d), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(pivots[0], 2u) << "the 2 has won, and the NaN came into the second column";

    const double first[] = {nan, 0, 0, 5, 1, 0, 2, 0, 1};
    pivots = {9, 9, 9};
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(first, 3 * d, pivots.data(), result, 3 * d), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(pivots, (Pivots{0, 1, 2}));
    EXPECT_EQ(result[3], 5);
}

TEST(LuDecomp, AnInfiniteElementWinsAndPasses) {
    const float infinity = std::numeric_limits<float>::infinity();
    const float source[] = {1, 1, 0, infinity, 0, 0, 2, 0, 1};
    float result[9];
    Pivots pivots{};
    // Multipliers are 0, so the rest is untouched: rows 0 and 2 of the identity's columns.
    EXPECT_EQ(zelmLUDecomp_m_32f_3x3(source, 3 * f, pivots.data(), result, 3 * f), ZELM_OK);
    EXPECT_EQ(pivots, (Pivots{1, 0, 2}));
    EXPECT_EQ(result[0], 0);
    EXPECT_EQ(result[6], 0);
    EXPECT_EQ(result[1], 1);
    EXPECT_EQ(result[8], 1);
}

TEST(LuDecomp, TheThresholdIsTheSameForBothTypes) {
    double result[9];
    Pivots pivots{};
    const double exact[] = {1, 0, 0, 0, 1, 0, 0, 0, -threshold};
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(exact, 3 * d, pivots.data(), result, 3 * d), ZELM_OK);
    const double under[] = {1, 0, 0, 0, 1, 0, 0, 0, std::nextafter(threshold, 0.0)};
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(under, 3 * d, pivots.data(), result, 3 * d), ZELM_ERR_DIV_BY_ZERO);
    const double small[] = {1e-8, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(small, 3 * d, pivots.data(), result, 3 * d), ZELM_ERR_DIV_BY_ZERO);

    float result32[9];
    const float exact32[] = {0x1p-23f, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_EQ(zelmLUDecomp_m_32f_3x3(exact32, 3 * f, pivots.data(), result32, 3 * f), ZELM_OK);
    const float under32[] = {0x1.fffffep-24f, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_EQ(zelmLUDecomp_m_32f_3x3(under32, 3 * f, pivots.data(), result32, 3 * f), ZELM_ERR_DIV_BY_ZERO);
}

TEST(LuDecomp, APivotThatVanishesLastLeavesCompleteFactors) {
    const double source[] = {4, 2, 0, 2, 3, 1, 0, 2, 1};
    std::array<double, 9> result{};
    Pivots pivots{};
    // After column 0: row 1 is 0.5 | 2 1, row 2 is 0 | 2 1; after column 1 row 2 ends in 1 - 1.
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(source, 3 * d, pivots.data(), result.data(), 3 * d),
              ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(pivots, (Pivots{0, 1, 2}));
    EXPECT_EQ(result, (std::array<double, 9>{4, 2, 0, 0.5, 2, 1, 0, 1, 0}));
}

TEST(LuDecomp, ANullEntryAndAZeroCount) {
    const float element = 1;
    float result = 7;
    std::uint32_t pivots[3];
    const float *sources[9];
    float *results[9];
    for (int e = 0; e < 9; ++e) {
        sources[e] = &element;
        results[e] = &result;
    }
    sources[8] = nullptr;
    EXPECT_EQ(zelmLUDecomp_ma_32f_3x3_P(sources, 0, pivots, results, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLUDecomp_ma_32f_PS2(sources, 0, f, pivots, results, 0, f, 3, 0), ZELM_ERR_NULL_PTR);
    sources[0] = nullptr;
    EXPECT_EQ(zelmLUDecomp_ma_32f_3x3_L(sources, 0, 3 * f, pivots, results, 0, 3 * f, 0), ZELM_OK);
    EXPECT_EQ(zelmLUDecomp_ma_32f_3x3_L(sources, 0, 3 * f, pivots, results, 0, 3 * f, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, 7);
}

TEST(LuDecomp, ASingleNullEntryOfAPFormWritesNothing) {
    float matrix[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1}, result[9] = {7, 7, 7, 7, 7, 7, 7, 7, 7};
    std::uint32_t pivots[3] = {9, 9, 9};
    const float *sources[9];
    float *results[9];
    for (int e = 0; e < 9; ++e) {
        sources[e] = &matrix[e];
        results[e] = &result[e];
    }
    results[8] = nullptr;
    EXPECT_EQ(zelmLUDecomp_m_32f_3x3_P(sources, 0, pivots, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result[0], 7);
    EXPECT_EQ(pivots[0], 9u);
}

TEST(LuDecomp, ASingularObjectStopsTheArray) {
    double source[27] = {2, 0, 0, 0, 2, 0, 0, 0, 2}; // the second object is zero
    source[18] = source[22] = source[26] = 3;
    std::array<double, 27> result{};
    result.fill(7);
    std::array<std::uint32_t, 9> pivots{9, 9, 9, 9, 9, 9, 9, 9, 9};
    EXPECT_EQ(zelmLUDecomp_ma_64f_3x3(source, 9 * d, 3 * d, pivots.data(), result.data(), 9 * d, 3 * d, 3),
              ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(pivots, (std::array<std::uint32_t, 9>{0, 1, 2, 0, 1, 2, 9, 9, 9}));
    EXPECT_EQ(result, (std::array<double, 27>{2, 0, 0, 0, 2, 0, 0, 0, 2, 0, 0, 0, 0, 0,
                                              0, 0, 0, 0, 7, 7, 7, 7, 7, 7, 7, 7, 7}));
}

TEST(LuDecomp, TheNegatedMultiplierIsNeverMinusZero) {
    // l is -0 in row 1 and +0 in row 2: both give m = +0, so 1 * m + (-0) is +0 in both.
    const float source[] = {1, 1, 0, -0.0f, -0.0f, 1, 0.0f, 2, 0};
    float result[9];
    Pivots pivots{};
    EXPECT_EQ(zelmLUDecomp_m_32f_3x3(source, 3 * f, pivots.data(), result, 3 * f), ZELM_OK);
    EXPECT_TRUE(std::signbit(result[3]));
    EXPECT_FALSE(std::signbit(result[6]));
    EXPECT_EQ(pivots, (Pivots{0, 2, 1}));
    EXPECT_FALSE(std::signbit(result[4]));
}

TEST(LuDecomp, TheNegatedMultiplierComesFromTheUnroundedQuotient) {
    // 1 / 3 rounds up in 32 bits. The update of a 32f form still multiplies by -(1 / 3) rounded once.
    const float third = 1.0f / 3.0f;
    const float source[] = {3, 3, 0, 1, 2, 0, 0, 0, 1};
    float result[9];
    Pivots pivots{};
    EXPECT_EQ(zelmLUDecomp_m_32f_3x3(source, 3 * f, pivots.data(), result, 3 * f), ZELM_OK);
    EXPECT_EQ(result[3], third);
    EXPECT_EQ(result[4], 1.0f);
}

} // namespace
