#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cfenv>
#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

TEST(SaxpyLcomb, ProductsAreRoundedBeforeTheyAreAdded) {
    // The product's last bit, 2^-24, is lost in rounding; a fused operation would leave it over.
    std::array<float, 64> source, other, result;
    source.fill(1 + 0x1p-12f);
    other.fill(-(1 + 0x1p-11f));
    EXPECT_EQ(zelmSaxpy_vv_32f(source.data(), 1 + 0x1p-12f, other.data(), result.data(), 64), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 64>{}));
    EXPECT_EQ(zelmLComb_vv_32f(source.data(), 1 + 0x1p-12f, other.data(), 1, result.data(), 64), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 64>{}));
    EXPECT_EQ(zelmLComb_vv_32f(other.data(), 1, source.data(), 1 + 0x1p-12f, result.data(), 64), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 64>{}));

    const double first[] = {1 + 0x1p-27, 1, 1}, second[] = {-(1 + 0x1p-26), 1, 1};
    double of64[3];
    EXPECT_EQ(zelmSaxpy_vv_64f_3x1(first, 1 + 0x1p-27, second, of64), ZELM_OK);
    EXPECT_EQ(of64[0], 0);
    EXPECT_EQ(zelmLComb_vv_64f_3x1(second, 1, first, 1 + 0x1p-27, of64), ZELM_OK);
    EXPECT_EQ(of64[0], 0);
}

TEST(SaxpyLcomb, AnArrayAndAVectorEachWithItsFactor) {
    const float array[] = {1, 2, 3, 4, 5, 6}, vector[] = {10, 20, 30};
    std::array<float, 6> result{};
    EXPECT_EQ(zelmSaxpy_vav_32f(array, 3 * f, 2, vector, result.data(), 3 * f, 3, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 6>{12, 24, 36, 18, 30, 42}));
    EXPECT_EQ(zelmSaxpy_vva_32f(vector, 2, array, 3 * f, result.data(), 3 * f, 3, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 6>{21, 42, 63, 24, 45, 66}));
    EXPECT_EQ(zelmLComb_vav_32f(array, 3 * f, 2, vector, 3, result.data(), 3 * f, 3, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 6>{32, 64, 96, 38, 70, 102}));
    EXPECT_EQ(zelmLComb_vava_32f_3x1(array, 3 * f, 2, array, 3 * f, -1, result.data(), 3 * f, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 6>{1, 2, 3, 4, 5, 6}));
}

TEST(SaxpyLcomb, DstMayBeEitherSource) {
    std::array<double, 70> first, second, saxpy, lcomb;
    for (std::size_t j = 0; j < 70; ++j) {
        first[j] = static_cast<double>(j + 1);
        second[j] = static_cast<double>(1000 * j);
        saxpy[j] = first[j] * 0.1 + second[j];
        lcomb[j] = first[j] * 0.1 + second[j] * 0.3;
    }
    auto a = first, b = second;
    EXPECT_EQ(zelmSaxpy_vv_64f(a.data(), 0.1, b.data(), a.data(), 70), ZELM_OK);
    EXPECT_EQ(a, saxpy);
    EXPECT_EQ(zelmSaxpy_vv_64f(first.data(), 0.1, b.data(), b.data(), 70), ZELM_OK);
    EXPECT_EQ(b, saxpy);
    a = first, b = second;
    EXPECT_EQ(zelmLComb_vava_64f_5x1(a.data(), 5 * d, 0.1, b.data(), 5 * d, 0.3, a.data(), 5 * d, 14),
              ZELM_OK);
    EXPECT_EQ(a, lcomb);
    EXPECT_EQ(zelmLComb_vv_64f(first.data(), 0.1, b.data(), 0.3, b.data(), 70), ZELM_OK);
    EXPECT_EQ(b, lcomb);
}

TEST(SaxpyLcomb, AFactorOfZeroHasNoShortcut) {
    const float infinity = std::numeric_limits<float>::infinity();
    const float source[] = {infinity, std::numeric_limits<float>::quiet_NaN(), -1, 1};
    const float zeros[] = {-0.0f, -0.0f, -0.0f, -0.0f};
    float result[4];
    EXPECT_EQ(zelmSaxpy_vv_32f_4x1(source, 0, zeros, result), ZELM_OK);
    EXPECT_TRUE(std::isnan(result[0]));
    EXPECT_TRUE(std::isnan(result[1]));
    EXPECT_TRUE(std::signbit(result[2])); // -1 * 0 + -0
    EXPECT_FALSE(std::signbit(result[3]));
    EXPECT_EQ(zelmLComb_vv_32f_4x1(zeros, 1, source, 0, result), ZELM_OK);
    EXPECT_TRUE(std::isnan(result[0]));
    EXPECT_TRUE(std::isnan(result[1]));
    EXPECT_TRUE(std::signbit(result[2]));
    EXPECT_FALSE(std::signbit(result[3]));
}

// dst's first object is the invariant, in fixed sizes of the standard and list layouts too.
TEST(SaxpyLcomb, AnInvariantIsReadForEachObject) {
    const double array[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    const double *const arrays[] = {&array[0], &array[3], &array[6]};
    std::array<double, 9> memory;
    double *const results[] = {&memory[0], &memory[3], &memory[6]};
    const auto expect = [&](std::array<double, 9> expected, auto call) {
        memory = {10, 20, 30};
        EXPECT_EQ(call(), ZELM_OK);
        EXPECT_EQ(memory, expected);
    };
    double *const m = memory.data();
    const std::array<double, 9> vav = {12, 24, 36, 20, 34, 48, 26, 40, 54}; // 2 * array + the first result
    expect(vav, [&] { return zelmSaxpy_vav_64f_3x1(array, 3 * d, 2, m, m, 3 * d, 3); });
    expect(vav, [&] { return zelmSaxpy_vav_64f_3x1_L(arrays, 0, 2, m, results, 0, 3); });
    expect(vav, [&] { return zelmSaxpy_vav_64f(array, 3 * d, 2, m, m, 3 * d, 3, 3); });
    expect(vav, [&] { return zelmLComb_vav_64f_3x1(array, 3 * d, 2, m, 1, m, 3 * d, 3); });
    expect(vav, [&] { return zelmLComb_vav_64f_3x1_L(arrays, 0, 2, m, 1, results, 0, 3); });
    const std::array<double, 9> vva = {21, 42, 63, 46, 89, 132, 49, 92, 135}; // 2 * the first result + array
    expect(vva, [&] { return zelmSaxpy_vva_64f_3x1(m, 2, array, 3 * d, m, 3 * d, 3); });
    expect(vva, [&] { return zelmSaxpy_vva_64f_3x1_L(m, 2, arrays, 0, results, 0, 3); });
    expect(vva, [&] { return zelmSaxpy_vva_64f(m, 2, array, 3 * d, m, 3 * d, 3, 3); });
}

TEST(SaxpyLcomb, AListStopsAtANullEntry) {
    const float array[] = {1, 2, 3}, vector[] = {10, 20, 30};
    std::array<float, 12> result;
    result.fill(7);
    const auto untouched = result;
    const float *const arrays[] = {array, array, nullptr, array};
    float *const results[] = {&result[0], &result[3], &result[6], &result[9]};
    EXPECT_EQ(zelmSaxpy_vav_32f_3x1_L(arrays, 0, 2, nullptr, results, 0, 4), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLComb_vav_32f_L(arrays, 0, 2, nullptr, 1, results, 0, 3, 4), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmSaxpy_vav_32f_3x1_L(arrays + 2, 0, 2, vector, results, 0, 0), ZELM_OK);
    EXPECT_EQ(result, untouched);
    EXPECT_EQ(zelmSaxpy_vav_32f_3x1_L(arrays, 0, 2, vector, results, 0, 4), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 12>{12, 24, 36, 12, 24, 36, 7, 7, 7, 7, 7, 7}));
}

TEST(SaxpyLcomb, PositionsAndSizes) {
    const double source[] = {1, 2, 3};
    std::array<double, 3> result = {7, 7, 7};
    const double *const sources[] = {&source[0], nullptr, &source[2]};
    double *const results[] = {&result[0], &result[1], &result[2]};
    for (const std::uint32_t count : {0u, 1u})
        EXPECT_EQ(zelmSaxpy_vva_64f_3x1_P(sources, 0, 2, sources, 0, results, 0, count), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLComb_vava_64f_PS2(sources, 0, d, 2, sources, 0, d, 1, results, 0, d, 3, 0),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmSaxpy_vv_64f(source, 2, source, result.data(), 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmLComb_vava_64f(source, d, 2, source, d, 1, result.data(), d, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmLComb_vava_64f(source, d, 2, source, d, 1, result.data(), d, 3, 0), ZELM_OK);
    EXPECT_EQ(result, (std::array<double, 3>{7, 7, 7}));
    EXPECT_EQ(zelmLComb_vv_64f_P(sources, 0, 2, sources, 0, 1, results, 0, 3), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<double, 3>{3, 7, 7}));
}

// What the one vector of a list makes is not asked for ahead of the first object: the product would overflow.
TEST(SaxpyLcomb, NothingIsMultipliedForAnObjectThatIsMissing) {
    constexpr float scale = 0x1p100f;
    const float vector[] = {scale, scale, scale}, source[] = {1, 2, 3};
    float result[3];
    const float *const none[] = {nullptr}, *const one[] = {source};
    float *const nowhere[] = {nullptr}, *const there[] = {result};
    std::feclearexcept(FE_ALL_EXCEPT);
    EXPECT_EQ(zelmSaxpy_vva_32f_3x1_L(vector, scale, none, 0, there, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmSaxpy_vva_32f_3x1_L(vector, scale, one, 0, nowhere, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLComb_vav_32f_3x1_L(none, 0, 1, vector, scale, there, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLComb_vav_32f_3x1_L(one, 0, 1, vector, scale, nowhere, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::fetestexcept(FE_OVERFLOW), 0);
    EXPECT_EQ(zelmSaxpy_vva_32f_3x1_L(vector, scale, one, 0, there, 0, 1), ZELM_OK);
    EXPECT_NE(std::fetestexcept(FE_OVERFLOW), 0);
}

// Nor of elements that the first result takes the place of.
TEST(SaxpyLcomb, NothingIsMultipliedThatTheFirstObjectReplaces) {
    constexpr float scale = 0x1p100f;
    float memory[] = {0, scale, scale, 0};
    const float source[] = {0, 1, 2};
    const float *const one[] = {source};
    float *const behind[] = {memory + 1};
    std::feclearexcept(FE_ALL_EXCEPT);
    EXPECT_EQ(zelmSaxpy_vva_32f_3x1_L(memory, scale, one, 0, behind, 0, 1), ZELM_OK);
    EXPECT_EQ(std::fetestexcept(FE_OVERFLOW), 0);
    EXPECT_EQ(std::to_array(memory), (std::array<float, 4>{0, 0, 1, scale}));
}

} // namespace
