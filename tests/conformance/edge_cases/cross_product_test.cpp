#include "zelm.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr float infinity = INFINITY;

TEST(CrossProduct, IsTheFormula) {
    const float a[3] = {1, 2, 3}, b[3] = {5, -7, 11};
    float dst[3];
    ASSERT_EQ(zelmCrossProduct_vv_32f_3x1(a, b, dst), ZELM_OK);
    EXPECT_EQ(dst[0], 2.0f * 11 - 3.0f * -7);
    EXPECT_EQ(dst[1], 3.0f * 5 - 1.0f * 11);
    EXPECT_EQ(dst[2], 1.0f * -7 - 2.0f * 5);
}

// In the forms that negate the invariant it is 0 - x: a zero of either sign becomes +0, and the sum of two
// zero products has another sign than their difference.
TEST(CrossProduct, NegatedInvariantsShowInTheSignOfZero) {
    const double array[3] = {-1, 1, 1}, invariant[3] = {0, 0, 0};
    double subtracted[3], added[3];
    // dst[1] = a2*b0 - a0*b2 = 0 - (-0) = +0 against a2*b0 + (0 - b2)*a0 = 0 + (-0) = +0;
    // dst[0] = a1*b2 - a2*b1 = 0 - 0 = +0 in both; with negative elements the signs part:
    const double negative[3] = {1, -1, 1};
    ASSERT_EQ(zelmCrossProduct_vav_64f_3x1(negative, 24, invariant, subtracted, 24, 1), ZELM_OK);
    ASSERT_EQ(zelmCrossProduct_vav_64f_3x1_S2(negative, 24, 8, invariant, 8, added, 24, 8, 1), ZELM_OK);
    // dst[0]: (-1)*0 - 1*0 = -0 - 0 = -0, and (-1)*0 + (0 - 0)*1 = -0 + 0 = +0
    EXPECT_TRUE(std::signbit(subtracted[0]));
    EXPECT_FALSE(std::signbit(added[0]));
    ASSERT_EQ(zelmCrossProduct_vva_64f_3x1(invariant, array, 24, subtracted, 24, 1), ZELM_OK);
    ASSERT_EQ(zelmCrossProduct_vva_64f_3x1_S2(invariant, 8, array, 24, 8, added, 24, 8, 1), ZELM_OK);
    // dst[1]: a2*b0 - a0*b2 = 0*(-1) - 0*1 = -0 - 0 = -0, and 0*(-1) + (0 - 0)*1 = -0 + 0 = +0
    EXPECT_TRUE(std::signbit(subtracted[1]));
    EXPECT_FALSE(std::signbit(added[1]));
}

TEST(CrossProduct, NanAndInfinityFollowTheArithmetic) {
    const float a[3] = {infinity, 0, 0}, b[3] = {0, 1, 0};
    float dst[3];
    ASSERT_EQ(zelmCrossProduct_vv_32f_3x1(a, b, dst), ZELM_OK);
    EXPECT_EQ(dst[0], 0);
    EXPECT_TRUE(std::isnan(dst[1])); // 0*0 - infinity*0
    EXPECT_EQ(dst[2], infinity);
}

TEST(CrossProduct, TheSinglePFormTestsItsWholeTablesFirst) {
    double a[3] = {1, 2, 3}, b[3] = {4, 5, 6}, dst[3] = {7, 8, 9};
    const double *first[3] = {&a[0], &a[1], &a[2]}, *second[3] = {&b[0], &b[1], &b[2]};
    double *results[3] = {&dst[0], &dst[1], nullptr};
    EXPECT_EQ(zelmCrossProduct_vv_64f_3x1_P(first, 0, second, 0, results, 0), ZELM_ERR_NULL_PTR);
    results[2] = &dst[2];
    second[0] = nullptr;
    EXPECT_EQ(zelmCrossProduct_vv_64f_3x1_P(first, 0, second, 0, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(dst[0], 7);
    EXPECT_EQ(dst[1], 8);
    EXPECT_EQ(dst[2], 9);
}

TEST(CrossProduct, WorksInPlaceInTheStandardAndListLayouts) {
    float vectors[2][3] = {{1, 2, 3}, {4, 5, 6}};
    const float other[2][3] = {{7, 8, 10}, {-1, 2, 5}};
    float apart[2][3];
    ASSERT_EQ(zelmCrossProduct_vava_32f_3x1(vectors[0], 12, other[0], 12, apart[0], 12, 2), ZELM_OK);
    float *list[2] = {vectors[0], vectors[1]};
    const float *others[2] = {other[0], other[1]};
    ASSERT_EQ(zelmCrossProduct_vava_32f_3x1_L(list, 0, others, 0, list, 0, 2), ZELM_OK);
    for (int k = 0; k < 2; ++k)
        for (int j = 0; j < 3; ++j)
            EXPECT_EQ(vectors[k][j], apart[k][j]);
}

TEST(CrossProduct, InPlaceElsewhereReadsWhatItHasWritten) {
    float a[3] = {1, 2, 3};
    const float b[3] = {7, 8, 10};
    ASSERT_EQ(zelmCrossProduct_vv_32f_3x1_S2(a, 4, b, 4, a, 4), ZELM_OK);
    const float first = 2.0f * 10 - 3.0f * 8, second = 3.0f * 7 - first * 10, third = first * 8 - second * 7;
    EXPECT_EQ(a[0], first);
    EXPECT_EQ(a[1], second);
    EXPECT_EQ(a[2], third);
}

} // namespace
