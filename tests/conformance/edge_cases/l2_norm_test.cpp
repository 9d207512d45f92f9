#include "copies.h"
#include "low_memory.h"
#include "sum_orders.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <xmmintrin.h>

namespace {

using edge::LowMemory;
using edge::Numbers;

// S * (r * (0.5 * (3 - S*(r*r)))), with the processor's own approximation r.
float refined(float s) {
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s)));
    const float u = r * r, v = s * u, w = 3.0f - v, y = 0.5f * w, z = r * y;
    return s * z;
}

TEST(L2Norm, RefinedRootsHaveTheirBracketing) {
    Numbers numbers;
    for (int attempt = 0; attempt < 1000; ++attempt) {
        const std::vector<float> x = numbers.next<float>(3, true);
        const float s = (x[0] * x[0] + x[1] * x[1]) + x[2] * x[2];
        float dst;
        ASSERT_EQ(zelmL2Norm_v_32f_3x1(x.data(), &dst), ZELM_OK);
        EXPECT_EQ(dst, refined(s));
        ASSERT_EQ(zelmL2Norm_v_32f_3x1_S2(x.data(), 4, &dst), ZELM_OK);
        EXPECT_EQ(dst, std::sqrt(s));
    }
}

TEST(L2Norm, AZeroVectorIsNanInTheRefinedFormsOnly) {
    const float zero[6] = {};
    const double zero64[6] = {};
    const float *list = zero, *table[6] = {zero, zero, zero, zero, zero, zero};
    float dst = 1;
    double dst64 = 1;
    const auto isNan = [&] { return std::isnan(dst); };
    for (const auto function :
         {zelmL2Norm_v_32f_3x1, zelmL2Norm_v_32f_4x1, zelmL2Norm_v_32f_5x1, zelmL2Norm_v_32f_6x1}) {
        ASSERT_EQ(function(zero, &dst), ZELM_OK);
        EXPECT_TRUE(isNan());
    }
    ASSERT_EQ(zelmL2Norm_va_32f_3x1(zero, 0, &dst, 1), ZELM_OK);
    EXPECT_TRUE(isNan());
    ASSERT_EQ(zelmL2Norm_va_32f_6x1_L(&list, 0, &dst, 1), ZELM_OK);
    EXPECT_TRUE(isNan());
    ASSERT_EQ(zelmL2Norm_v_32f_3x1_S2(zero, 4, &dst), ZELM_OK);
    EXPECT_EQ(dst, 0);
    ASSERT_EQ(zelmL2Norm_va_32f_4x1_P(table, 0, &dst, 1), ZELM_OK);
    EXPECT_EQ(dst, 0);
    ASSERT_EQ(zelmL2Norm_v_32f(zero, &dst, 3), ZELM_OK);
    EXPECT_EQ(dst, 0);
    ASSERT_EQ(zelmL2Norm_v_64f_3x1(zero64, &dst64), ZELM_OK);
    EXPECT_EQ(dst64, 0);
}

TEST(L2Norm, InfinityIsNanInTheRefinedFormsOnly) {
    const float large[3] = {3e38f, 3e38f, 0};
    float dst;
    ASSERT_EQ(zelmL2Norm_v_32f_3x1(large, &dst), ZELM_OK);
    EXPECT_TRUE(std::isnan(dst));
    ASSERT_EQ(zelmL2Norm_v_32f(large, &dst, 3), ZELM_OK);
    EXPECT_EQ(dst, INFINITY);
}

// Four objects at a time and the rest: the same bits wherever an object stands.
TEST(L2Norm, ThePositionInTheArrayDoesNotMatter) {
    Numbers numbers;
    const std::vector<float> x = numbers.next<float>(6, true);
    const edge::Copies<float> objects(x, 11);
    std::array<float, 11> dst;
    ASSERT_EQ(zelmL2Norm_va_32f_6x1(objects.data(), 24, dst.data(), 11), ZELM_OK);
    for (const float result : dst)
        EXPECT_EQ(result, dst[0]);
}

// Sums of long vectors, told apart from the plain one by the address.
template <class T>
T sumOfLong(const T *x, std::size_t length) {
    const std::size_t rest = reinterpret_cast<std::uintptr_t>(x) % 16;
    std::size_t t = 0;
    T s[8] = {};
    for (; t < (rest ? (16 - rest) / sizeof(T) : 0); ++t)
        s[0] = s[0] + x[t] * x[t];
    constexpr std::size_t sums = sizeof(T) == 4 ? 8 : 4;
    for (const std::size_t start = t; length - t >= 8;)
        for (int n = 0; n < 8; ++n, ++t)
            s[(t - start) % sums] = s[(t - start) % sums] + x[t] * x[t];
    T sum = sizeof(T) == 4 ? ((s[0] + s[4]) + (s[1] + s[5])) + ((s[2] + s[6]) + (s[3] + s[7]))
                           : (s[0] + s[2]) + (s[1] + s[3]);
    for (; t < length; ++t)
        sum = sum + x[t] * x[t];
    return sum;
}

template <class T>
void expectLongSums(ZelmStatus (*norm)(const T *, T *, std::uint32_t), std::size_t least) {
    Numbers numbers;
    alignas(16) T memory[80];
    int apart = 0;
    for (std::size_t offset = 0; offset < 16 / sizeof(T); ++offset)
        for (std::size_t length = 1; length <= 64; ++length) {
            const std::vector<T> x = numbers.next<T>(length, true);
            std::copy(x.begin(), x.end(), memory + offset);
            T plain = 0;
            for (const T element : x)
                plain = plain + element * element;
            const T expected = length < least ? plain : sumOfLong(memory + offset, length);
            T dst;
            ASSERT_EQ(norm(memory + offset, &dst, static_cast<std::uint32_t>(length)), ZELM_OK);
            EXPECT_EQ(dst, std::sqrt(expected)) << length << " elements, offset " << offset;
            apart += std::sqrt(expected) != std::sqrt(plain);
        }
    EXPECT_GT(apart, 20);
}

TEST(L2Norm, LongVectorsAreSplit32f) {
    expectLongSums<float>(zelmL2Norm_v_32f, 11);
}

TEST(L2Norm, LongVectorsAreSplit64f) {
    expectLongSums<double>(zelmL2Norm_v_64f, 9);
}

// A null entry is followed: with the shift it is the address of the object.
TEST(L2Norm, Va32f4x1LTestsNoEntry) {
    const LowMemory memory;
    float *const x = memory.as<float>();
    x[0] = 3, x[1] = 0, x[2] = 4, x[3] = 0;
    const float *const table[2] = {nullptr, nullptr};
    float dst[2] = {};
    ASSERT_EQ(zelmL2Norm_va_32f_4x1_L(table, memory.shift(), dst, 2), ZELM_OK);
    EXPECT_EQ(dst[0], refined(25));
    EXPECT_EQ(dst[1], refined(25));
    EXPECT_EQ(zelmL2Norm_va_32f_5x1_L(table, memory.shift(), dst, 2), ZELM_ERR_NULL_PTR);
}

TEST(L2Norm, ANullPositionLeavesTheResultAlone) {
    const float x = 2;
    const float *const table[3] = {&x, &x, nullptr};
    float dst = 9;
    EXPECT_EQ(zelmL2Norm_v_32f_3x1_P(table, 0, &dst), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmL2Norm_va_32f_3x1_P(table, 0, &dst, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(dst, 9);
}

} // namespace
