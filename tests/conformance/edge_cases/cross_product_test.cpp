#include "zelm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

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

TEST(CrossProduct, OfAVectorWithItselfIsPositiveZero) {
    const float a[3] = {-3, 5, 1e-20f}, unbounded[3] = {1, infinity, 2};
    float dst[3] = {9, 9, 9};
    ASSERT_EQ(zelmCrossProduct_vv_32f_3x1(a, a, dst), ZELM_OK);
    for (const float line : dst)
        EXPECT_TRUE(line == 0 && !std::signbit(line));
    ASSERT_EQ(zelmCrossProduct_vv_32f_3x1(unbounded, unbounded, dst), ZELM_OK);
    EXPECT_TRUE(std::isnan(dst[0]));
    EXPECT_EQ(dst[1], 0);
    EXPECT_TRUE(std::isnan(dst[2]));
}

TEST(CrossProduct, TheSinglePFormTestsAllNineEntriesFirst) {
    double a[3] = {1, 2, 3}, b[3] = {4, 5, 6}, dst[3] = {7, 8, 9};
    for (std::size_t broken = 0; broken < 9; ++broken) {
        double *entries[9] = {&a[0], &a[1], &a[2], &b[0], &b[1], &b[2], &dst[0], &dst[1], &dst[2]};
        entries[broken] = nullptr;
        EXPECT_EQ(zelmCrossProduct_vv_64f_3x1_P(entries, 0, entries + 3, 0, entries + 6, 0),
                  ZELM_ERR_NULL_PTR);
        EXPECT_TRUE(dst[0] == 7 && dst[1] == 8 && dst[2] == 9) << "entry " << broken;
    }
}

// Few objects and enough for groups, each source in turn as the destination.
TEST(CrossProduct, WorksInPlaceInTheStandardAndListLayouts) {
    for (const std::uint32_t count : {1u, 2u, 19u}) {
        std::vector<float> a(3 * count), b(3 * count), apart(3 * count);
        std::vector<float *> list;
        std::vector<const float *> others;
        for (std::uint32_t e = 0; e < 3 * count; ++e) {
            a[e] = static_cast<float>(e * 7 % 11) + 0.1f;
            b[e] = static_cast<float>(e * 5 % 13) - 6.3f;
        }
        for (std::uint32_t k = 0; k < count; ++k) {
            list.push_back(&a[3 * k]);
            others.push_back(&b[3 * k]);
        }
        const std::vector<float> first = a, second = b;
        const auto expectInPlace = [&](std::vector<float> &changed, ZelmStatus status) {
            EXPECT_EQ(status, ZELM_OK);
            EXPECT_EQ(changed, apart) << count;
            a = first, b = second;
        };
        float *const x = a.data(), *const y = b.data();
        const float held[3] = {2.5f, -1.25f, 3.1f};

        ASSERT_EQ(zelmCrossProduct_vava_32f_3x1(x, 12, y, 12, apart.data(), 12, count), ZELM_OK);
        expectInPlace(a, zelmCrossProduct_vava_32f_3x1(x, 12, y, 12, x, 12, count));
        expectInPlace(b, zelmCrossProduct_vava_32f_3x1(x, 12, y, 12, y, 12, count));
        expectInPlace(
            a, zelmCrossProduct_vava_32f_3x1_L(list.data(), 0, others.data(), 0, list.data(), 0, count));
        ASSERT_EQ(zelmCrossProduct_vav_32f_3x1(x, 12, held, apart.data(), 12, count), ZELM_OK);
        expectInPlace(a, zelmCrossProduct_vav_32f_3x1(x, 12, held, x, 12, count));
        expectInPlace(a, zelmCrossProduct_vav_32f_3x1_L(list.data(), 0, held, list.data(), 0, count));
        ASSERT_EQ(zelmCrossProduct_vva_32f_3x1(held, y, 12, apart.data(), 12, count), ZELM_OK);
        expectInPlace(b, zelmCrossProduct_vva_32f_3x1(held, y, 12, y, 12, count));
    }
    float a[3] = {1, 2, 3}, b[3] = {7, 8, 10};
    ASSERT_EQ(zelmCrossProduct_vv_32f_3x1(a, b, a), ZELM_OK);
    EXPECT_TRUE(a[0] == -4 && a[1] == 11 && a[2] == -6);
    ASSERT_EQ(zelmCrossProduct_vv_32f_3x1(a, b, b), ZELM_OK);
    EXPECT_TRUE(b[0] == 158 && b[1] == -2 && b[2] == -109);
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
