#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

TEST(MatrixVectorProduct, AMatrixByAVector) {
    const float a[] = {1, 2, 3, 4, 5, 6}, x[] = {10, 100, 1000};
    float y[] = {7, 7, 7};
    EXPECT_EQ(zelmMul_mv_32f(a, 3 * f, 3, 2, x, 3, y), ZELM_OK);
    EXPECT_EQ(std::to_array(y), (std::array<float, 3>{3210, 6540, 7}));
    float both[4] = {};
    EXPECT_EQ(zelmMul_mava_32f(a, 0, 3 * f, 3, 2, x, 0, 3, both, 2 * f, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(both), (std::array<float, 4>{3210, 6540, 3210, 6540}));
}

TEST(MatrixVectorProduct, ATransposedFormHasHeightSumsOfWidthTerms) {
    // 3 rows of 2 are read, and element (t, i) for sum i; the third element of x lies behind src2Len.
    const float a[] = {1, 2, 3, 4, 5, 6}, x[] = {10, 100, 1000};
    float y[] = {7, 7, 7};
    EXPECT_EQ(zelmMul_mTv_32f(a, 2 * f, 3, 2, x, 2, y), ZELM_OK);
    EXPECT_EQ(std::to_array(y), (std::array<float, 3>{5310, 6420, 7}));
    // The rows of the table are src1Height entries apart.
    const float *const entriesA[] = {&a[0], &a[1], &a[2], &a[3], &a[4], &a[5]};
    const float *const entriesX[] = {&x[0], &x[1], &x[2]};
    float z[] = {7, 7, 7};
    float *const entries[] = {&z[0], &z[1], &z[2]}; // 3 tested, 2 used
    EXPECT_EQ(zelmMul_mTv_32f_P(entriesA, 0, 3, 2, entriesX, 0, 2, entries, 0), ZELM_OK);
    EXPECT_EQ(std::to_array(z), std::to_array(y));
    z[0] = z[1] = 0;
    EXPECT_EQ(zelmMul_maTv_32f_P(entriesA, 0, 3, 2, entriesX, 0, 2, entries, 0, 1), ZELM_OK);
    EXPECT_EQ(std::to_array(z), std::to_array(y));
    float *const holed[] = {&z[0], &z[1], nullptr};
    EXPECT_EQ(zelmMul_mTv_32f_P(entriesA, 0, 3, 2, entriesX, 0, 2, holed, 0), ZELM_OK);
    EXPECT_EQ(zelmMul_maTv_32f_P(entriesA, 0, 3, 2, entriesX, 0, 2, holed, 0, 1), ZELM_ERR_NULL_PTR);
}

TEST(MatrixVectorProduct, TheSizeTestSpeaksOfTheStoredMatrix) {
    const double a[6] = {}, x[3] = {};
    double y[] = {7, 7, 7};
    EXPECT_EQ(zelmMul_mv_64f(a, 3 * d, 3, 2, x, 2, y), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mva_64f(a, 3 * d, 3, 2, x, 0, 2, y, 0, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mTv_64f(a, 2 * d, 3, 2, x, 3, y), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_maTva_64f(a, 0, 2 * d, 3, 2, x, 0, 3, y, 0, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mv_64f(a, 3 * d, 3, 0, x, 3, y), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mv_64f(a, 3 * d, 0, 2, x, 0, y), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mav_64f(a, 0, 3 * d, 3, 2, x, 2, y, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mv_64f(a, 3 * d, 3, 0, nullptr, 3, y), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::to_array(y), (std::array<double, 3>{7, 7, 7}));
}

TEST(MatrixVectorProduct, ANullEntryLeavesAPartialSum) {
    const float a[] = {1, 2, 3, 4, 5, 6, 7, 8, 9}, x[] = {10, 100, 1000};
    float y[3];
    for (const bool fixed : {true, false}) {
        SCOPED_TRACE(fixed);
        const float *entriesA[9], *entriesX[3];
        float *entries[3];
        const auto call = [&] {
            y[0] = y[1] = y[2] = 7;
            return fixed ? zelmMul_mv_32f_3x3_P(entriesA, 0, entriesX, 0, entries, 0)
                         : zelmMul_mv_32f_P(entriesA, 0, 3, 3, entriesX, 0, 3, entries, 0);
        };
        const auto result = [&] { return std::to_array(y); };
        for (std::size_t e = 0; e < 9; ++e)
            entriesA[e] = &a[e];
        for (std::size_t e = 0; e < 3; ++e) {
            entriesX[e] = &x[e];
            entries[e] = &y[e];
        }
        entriesA[5] = nullptr;
        EXPECT_EQ(call(), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result(), (std::array<float, 3>{3210, 540, 7}));
        entriesX[1] = nullptr;
        EXPECT_EQ(call(), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result(), (std::array<float, 3>{10, 7, 7}));
        entriesX[1] = &x[1];
        entries[1] = nullptr;
        EXPECT_EQ(call(), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result(), (std::array<float, 3>{3210, 7, 7}));
        entriesA[0] = nullptr;
        EXPECT_EQ(call(), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result(), (std::array<float, 3>{0, 7, 7}));
    }
}

TEST(MatrixVectorProduct, AZeroCountComesBehindTheTablesOfPositions) {
    const float a[16] = {};
    float y[4] = {};
    const float *entries[16];
    float *const results[] = {y, y, y, nullptr};
    for (const float *&entry : entries)
        entry = a;
    EXPECT_EQ(zelmMul_mva_32f_4x4_P(entries, 0, entries, 0, results, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_mav_32f_PS2(entries, 0, f, 4, 4, entries, 0, 4, results, 0, f, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_mva_32f_4x4_L(a, 4 * f, &entries[0], 0, &results[3], 0, 0), ZELM_OK);
    EXPECT_EQ(zelmMul_mava_32f_LS2(entries, 0, 4 * f, f, 4, 4, entries, 0, f, 4, &results[3], 0, f, 0),
              ZELM_OK);
    EXPECT_EQ(zelmMul_mava_32f_4x4_LS2(entries, 0, 4 * f, f, entries, 0, f, &results[3], 0, f, 1),
              ZELM_ERR_NULL_PTR);
}

TEST(MatrixVectorProduct, NansAndInfinitiesPassThrough) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const double a[] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const double x[] = {infinity, 1, std::numeric_limits<double>::quiet_NaN()};
    double y[3] = {};
    EXPECT_EQ(zelmMul_mv_64f_3x3(a, 3 * d, x, y), ZELM_OK);
    for (const double sum : y) // 0 * infinity, and NaN
        EXPECT_TRUE(std::isnan(sum));
    const double ones[] = {1, 1, 0, 1, 1, 0, 1, 1, 0}, finite[] = {infinity, 1, 2};
    EXPECT_EQ(zelmMul_mTv_64f_3x3_S2(ones, d, 3 * d, finite, d, y, d), ZELM_OK);
    EXPECT_EQ(y[0], infinity);
}

TEST(MatrixVectorProduct, RowFourOfA5x5RoundsUnlikeTheOthers) {
    // rows 0 to 3: ((1 + 2^-24) - 1) + (2^-23 + 0); row 4: ((1 + 2^-23) - 1) + (2^-24 + 0)
    const float row[] = {1, 0x1p-24F, 0x1p-23F, 0, -1};
    float a[25];
    for (std::size_t e = 0; e < 25; ++e)
        a[e] = row[e % 5];
    const float x[] = {1, 1, 1, 1, 1};
    float y[5] = {};
    EXPECT_EQ(zelmMul_mv_32f_5x5(a, 5 * f, x, y), ZELM_OK);
    EXPECT_EQ(std::to_array(y),
              (std::array<float, 5>{0x1p-23F, 0x1p-23F, 0x1p-23F, 0x1p-23F, 0x1p-23F + 0x1p-24F}));
}

} // namespace
