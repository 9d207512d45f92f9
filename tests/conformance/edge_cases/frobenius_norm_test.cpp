#include "copies.h"
#include "sum_orders.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <xmmintrin.h>

namespace {

using edge::Numbers;

// q * (r * (0.5 * (3 - q*(r*r)))): not bracketed as L2Norm's.
float refined(float q) {
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(q)));
    return q * (r * (0.5f * (3.0f - q * (r * r))));
}

template <class T>
std::vector<T> squares(const std::vector<T> &x) {
    std::vector<T> s;
    for (const T element : x)
        s.push_back(element * element);
    return s;
}

TEST(FrobeniusNorm, AZeroMatrixIsNanInTheRefinedFormsOnly) {
    const float zero[36] = {};
    const double zero64[9] = {};
    const float *list = zero;
    float dst = 1;
    double dst64 = 1;
    ASSERT_EQ(zelmFrobNorm_m_32f_3x3(zero, 12, &dst), ZELM_OK);
    EXPECT_TRUE(std::isnan(dst));
    ASSERT_EQ(zelmFrobNorm_ma_32f_6x6_L(&list, 0, 24, &dst, 1), ZELM_OK);
    EXPECT_TRUE(std::isnan(dst));
    ASSERT_EQ(zelmFrobNorm_m_32f_3x3_S2(zero, 12, 4, &dst), ZELM_OK);
    EXPECT_EQ(dst, 0);
    ASSERT_EQ(zelmFrobNorm_m_32f(zero, 12, 3, 3, &dst), ZELM_OK);
    EXPECT_EQ(dst, 0);
    ASSERT_EQ(zelmFrobNorm_m_64f_3x3(zero64, 24, &dst64), ZELM_OK);
    EXPECT_EQ(dst64, 0);
}

// The single form goes by rows, the array form by columns.
TEST(FrobeniusNorm, SingleFormsSumByRowsAndArraysByColumns) {
    Numbers numbers;
    int apart = 0;
    for (int attempt = 0; attempt < 200; ++attempt) {
        const std::vector<double> x = numbers.next<double>(6, true), s = squares(x); // 2 rows of 3
        const double byRows = ((((s[0] + s[1]) + s[2]) + s[3]) + s[4]) + s[5];
        const double byColumns = ((((s[0] + s[3]) + s[1]) + s[4]) + s[2]) + s[5];
        double single, array;
        ASSERT_EQ(zelmFrobNorm_m_64f(x.data(), 24, 3, 2, &single), ZELM_OK);
        ASSERT_EQ(zelmFrobNorm_ma_64f(x.data(), 48, 24, 3, 2, &array, 1), ZELM_OK);
        EXPECT_EQ(single, std::sqrt(byRows));
        EXPECT_EQ(array, std::sqrt(byColumns));
        apart += single != array;
    }
    EXPECT_GT(apart, 0);
}

// In groups of four 3x3 and 4x4 have another tree than the objects behind the last group.
TEST(FrobeniusNorm, ThreeByThreeInGroupsOfFour) {
    Numbers numbers;
    int apart = 0;
    for (int attempt = 0; attempt < 200; ++attempt) {
        const std::vector<float> x = numbers.next<float>(9, true), s = squares(x);
        const float group = (((s[0] + s[1]) + s[8]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7]));
        const float c0 = (s[0] + s[3]) + s[6], c1 = (s[1] + s[4]) + s[7], c2 = (s[2] + s[5]) + s[8];
        const float rest = (c0 + c1) + c2;
        const edge::Copies<float> objects(x, 7);
        float dst[7];
        ASSERT_EQ(zelmFrobNorm_ma_32f_3x3(objects.data(), 36, 12, dst, 7), ZELM_OK);
        for (int k = 0; k < 7; ++k)
            EXPECT_EQ(dst[k], refined(k < 4 ? group : rest));
        apart += dst[3] != dst[4];
    }
    EXPECT_GT(apart, 0);
}

TEST(FrobeniusNorm, FourByFourInGroupsOfFour) {
    Numbers numbers;
    int apart = 0;
    for (int attempt = 0; attempt < 200; ++attempt) {
        const std::vector<float> x = numbers.next<float>(16, true), s = squares(x);
        float c[4];
        for (std::size_t j = 0; j < 4; ++j)
            c[j] = (s[j] + s[4 + j]) + (s[8 + j] + s[12 + j]);
        const edge::Copies<float> objects(x, 5);
        float dst[5];
        ASSERT_EQ(zelmFrobNorm_ma_32f_4x4_L(objects.byObject(), 0, 16, dst, 5), ZELM_OK);
        EXPECT_EQ(dst[3], refined((c[0] + c[1]) + (c[2] + c[3])));
        EXPECT_EQ(dst[4], refined((c[0] + c[2]) + (c[1] + c[3])));
        apart += dst[3] != dst[4];
    }
    EXPECT_GT(apart, 0);
}

TEST(FrobeniusNorm, SixBySixDependsOnItsAlignment) {
    Numbers numbers;
    int apart = 0;
    for (int attempt = 0; attempt < 200; ++attempt) {
        const std::vector<float> x = numbers.next<float>(36, true), s = squares(x);
        const auto at = [&](std::size_t i, std::size_t j) { return s[i * 6 + j]; };
        float even[6], odd[4];
        for (std::size_t j = 0; j < 4; ++j) {
            even[j] = ((at(0, j) + at(1, j)) + (at(2, j) + at(3, j))) + (at(4, j) + at(5, j));
            odd[j] = ((at(0, j) + at(1, j)) + at(5, j)) + ((at(2, j) + at(3, j)) + at(4, j));
        }
        for (std::size_t j = 4; j < 6; ++j)
            even[j] = ((at(0, j) + at(2, j)) + at(4, j)) + ((at(1, j) + at(3, j)) + at(5, j));
        const auto three = [&](std::size_t i, std::size_t j) {
            return (at(i, j) + at(i + 2, j)) + at(i + 4, j);
        };
        const float aligned = ((even[0] + even[2]) + (even[1] + even[3])) + (even[4] + even[5]);
        const float other = ((odd[0] + three(0, 4)) + (odd[2] + three(1, 4))) +
                            ((odd[1] + three(0, 5)) + (odd[3] + three(1, 5)));
        alignas(16) float memory[6 * 8 + 4];
        const auto norm = [&](std::size_t offset) {
            for (std::size_t i = 0; i < 6; ++i)
                std::memcpy(memory + offset + i * 8, &x[i * 6], 24);
            float dst;
            EXPECT_EQ(zelmFrobNorm_m_32f_6x6(memory + offset, 32, &dst), ZELM_OK);
            return dst;
        };
        EXPECT_EQ(norm(0), refined(aligned));
        EXPECT_EQ(norm(1), refined(other));
        apart += norm(0) != norm(1);
    }
    EXPECT_GT(apart, 0);
}

} // namespace
