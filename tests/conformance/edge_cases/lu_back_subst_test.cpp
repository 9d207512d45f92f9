#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

using Vector = std::array<double, 3>;

// P*A = L*U with L = {1; 0.5 1; 0.25 0.5 1} and U = {4 2 1; 0 2 1; 0 0 2}; row i lies in row pivots[i].
const std::uint32_t pivots[] = {2, 0, 1};
const double factors[] = {0.5, 2, 1, 0.25, 0.5, 2, 4, 2, 1};

TEST(LuBackSubst, Solves) {
    // x = (1, 2, 3): U*x = (11, 7, 6), L*U*x = (11, 12.5, 12.25), found in b at rows 2, 0, 1
    const double b[] = {12.5, 12.25, 11};
    Vector x{};
    EXPECT_EQ(zelmLUBackSubst_mv_64f_3x3(factors, 3 * d, pivots, b, x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));
    x = {};
    EXPECT_EQ(zelmLUBackSubst_mv_64f(factors, 3 * d, pivots, b, x.data(), 3), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));
}

TEST(LuBackSubst, AZeroDiagonalIsNoFailure) {
    const std::uint32_t identity[] = {0, 1, 2};
    const float zeroDiagonal[] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
    const float b[] = {1, -1, 0};
    float x[3] = {};
    EXPECT_EQ(zelmLUBackSubst_mv_32f_3x3(zeroDiagonal, 3 * f, identity, b, x), ZELM_OK);
    EXPECT_TRUE(std::isnan(x[2])); // 0 / 0, and then 0 * NaN
    EXPECT_TRUE(std::isnan(x[1]));
    EXPECT_TRUE(std::isnan(x[0]));

    const float lastOnly[] = {1, 0, 0, 0, 1, 0, 0, 0, 0};
    const float b2[] = {1, 1, -2};
    EXPECT_EQ(zelmLUBackSubst_mv_32f_3x3(lastOnly, 3 * f, identity, b2, x), ZELM_OK);
    EXPECT_EQ(x[2], -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(x[0])); // 0 * infinity
}

TEST(LuBackSubst, InPlaceIsRightWithTheIdentityOnly) {
    const std::uint32_t identity[] = {0, 1, 2};
    const double unit[] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    Vector x{1, 2, 3};
    EXPECT_EQ(zelmLUBackSubst_mv_64f_3x3(unit, 3 * d, identity, x.data(), x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));

    // A rotation: x[0] = b[1], then x[1] = b[2], then x[2] = b[0], which is x[0] by now.
    const std::uint32_t rotation[] = {1, 2, 0};
    const double rotated[] = {0, 0, 1, 1, 0, 0, 0, 1, 0};
    x = {10, 20, 30};
    EXPECT_EQ(zelmLUBackSubst_mv_64f_3x3(rotated, 3 * d, rotation, x.data(), x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{20, 30, 20}));
}

TEST(LuBackSubst, OneUnknownHonoursPivotIndex) {
    const double a[] = {4, 8};
    const double b[] = {10, 24};
    double x = 0;
    const std::uint32_t zero = 0;
    EXPECT_EQ(zelmLUBackSubst_mv_64f(a, d, &zero, b, &x, 1), ZELM_OK);
    EXPECT_EQ(x, 2.5);
    const std::uint32_t one = 1;
    EXPECT_EQ(zelmLUBackSubst_mv_64f(a, d, &one, b, &x, 1), ZELM_OK);
    EXPECT_EQ(x, 3);
}

TEST(LuBackSubst, MvaNeverReadsTheObjectStrideOfItsMatrix) {
    const double b[] = {12.5, 12.25, 11, 12.5, 12.25, 11, 12.5, 12.25, 11, 12.5, 12.25, 11, 12.5, 12.25, 11};
    const std::array<double, 15> expected = {1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3};
    for (const std::int32_t stride :
         {0, 9 * d, -1, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        std::array<double, 15> x{};
        EXPECT_EQ(zelmLUBackSubst_mva_64f_3x3(factors, stride, 3 * d, pivots, b, 3 * d, x.data(), 3 * d, 5),
                  ZELM_OK);
        EXPECT_EQ(x, expected) << stride;
        x = {};
        EXPECT_EQ(zelmLUBackSubst_mva_64f_S2(factors, stride, 3 * d, d, pivots, b, 3 * d, d, x.data(), 3 * d,
                                             d, 3, 5),
                  ZELM_OK);
        EXPECT_EQ(x, expected) << stride;
    }
}

TEST(LuBackSubst, MavaTakesABlockOfPivotIndexPerObjectAndMvaTheFirst) {
    // The same matrix twice: with rows {0, 1, 2} it is the unit matrix, with {2, 1, 0} U has zeros on its
    // diagonal.
    const double units[] = {1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 0, 0, 0, 1, 0, 0, 0, 1};
    const std::uint32_t blocks[] = {0, 1, 2, 2, 1, 0};
    const double b[] = {1, 2, 3, 1, 2, 3};
    std::array<double, 6> x{};
    EXPECT_EQ(zelmLUBackSubst_mva_64f_3x3(units, 0, 3 * d, blocks, b, 3 * d, x.data(), 3 * d, 2), ZELM_OK);
    EXPECT_EQ(x, (std::array<double, 6>{1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(zelmLUBackSubst_mava_64f_3x3(units, 9 * d, 3 * d, blocks, b, 3 * d, x.data(), 3 * d, 2),
              ZELM_OK);
    EXPECT_EQ(x[0], 1);
    EXPECT_EQ(x[2], 3);
    // rows of the second: (0 0 1), (0 1 0), (1 0 0); b as 3, 2, 1 and then 1 - 1*3
    EXPECT_EQ(x[5], -std::numeric_limits<double>::infinity());
}

TEST(LuBackSubst, ANullEntryAndAZeroCount) {
    const float element = 1;
    float result = 7;
    const std::uint32_t identity[] = {0, 1, 2};
    const float *sources[9];
    float *results[3] = {&result, &result, &result};
    for (const float *&entry : sources)
        entry = &element;
    sources[8] = nullptr;
    EXPECT_EQ(zelmLUBackSubst_mava_32f_3x3_P(sources, 0, identity, sources, 0, results, 0, 0),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLUBackSubst_mva_32f_3x3_PS2(sources, 0, identity, sources, 0, f, results, 0, f, 0),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLUBackSubst_mv_32f_3x3_P(sources, 0, identity, sources, 0, results, 0), ZELM_ERR_NULL_PTR);
    sources[0] = nullptr;
    EXPECT_EQ(zelmLUBackSubst_mava_32f_3x3_L(sources, 0, 3 * f, identity, sources, 0, results, 0, 0),
              ZELM_OK);
    EXPECT_EQ(zelmLUBackSubst_mava_32f_3x3_L(sources, 0, 3 * f, identity, sources, 0, results, 0, 1),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, 7);
}

TEST(LuBackSubst, APivotBeyondTheOrderIsFollowed) {
    // Row 3 of a matrix that is taller than its order, and element 3 of b.
    const double tall[] = {1, 0, 0, 0, 1, 0, 9, 9, 9, 0, 0, 2};
    const double b[] = {5, 6, 99, 8};
    const std::uint32_t rows[] = {0, 1, 3};
    Vector x{};
    EXPECT_EQ(zelmLUBackSubst_mv_64f_3x3(tall, 3 * d, rows, b, x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{5, 6, 4}));
    std::array<double, 3> y{};
    EXPECT_EQ(zelmLUBackSubst_mva_64f_3x3(tall, 0, 3 * d, rows, b, 0, y.data(), 0, 1), ZELM_OK);
    EXPECT_EQ(y, x);
}

TEST(LuBackSubst, APivotBeyondTheOrderIsFollowedForManyVectorsToo) {
    const float tall[] = {1, 0, 0, 0, 1, 0, 9, 9, 9, 0, 0, 2};
    const std::uint32_t rows[] = {0, 1, 3};
    constexpr std::uint32_t count = 9;
    std::array<float, 4 * count> b{};
    std::array<float, 3 * count> x{}, expected{};
    for (std::size_t k = 0; k < count; ++k) {
        const auto number = static_cast<float>(k);
        b[4 * k] = expected[3 * k] = 5 + number;
        b[4 * k + 1] = expected[3 * k + 1] = 6 - number;
        b[4 * k + 2] = 99;
        b[4 * k + 3] = 8 * number;
        expected[3 * k + 2] = 4 * number;
    }
    EXPECT_EQ(zelmLUBackSubst_mva_32f_3x3(tall, 0, 3 * f, rows, b.data(), 4 * f, x.data(), 3 * f, count),
              ZELM_OK);
    EXPECT_EQ(x, expected);
}

TEST(LuBackSubst, ReadsWhatTheDecompositionWrote) {
    // The systems of one array, with exchanges, through both calls.
    std::array<double, 18> matrices = {0, 2, 0, 4, 0, 0, 0, 0, 8, 1, 2, 0, 2, 2, 0, 0, 1, 4};
    std::array<std::uint32_t, 6> rows{};
    std::array<double, 18> lu{};
    EXPECT_EQ(zelmLUDecomp_ma_64f_3x3(matrices.data(), 9 * d, 3 * d, rows.data(), lu.data(), 9 * d, 3 * d, 2),
              ZELM_OK);
    const std::array<double, 6> b = {4, 4, 24, 5, 6, 14}; // x = (1, 2, 3) in both
    std::array<double, 6> x{};
    EXPECT_EQ(zelmLUBackSubst_mava_64f_3x3(lu.data(), 9 * d, 3 * d, rows.data(), b.data(), 3 * d, x.data(),
                                           3 * d, 2),
              ZELM_OK);
    EXPECT_EQ(x, (std::array<double, 6>{1, 2, 3, 1, 2, 3}));
}

} // namespace
