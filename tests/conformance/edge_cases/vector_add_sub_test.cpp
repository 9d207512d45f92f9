#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

TEST(VectorAddSub, AZeroLengthIsAnError) {
    float vector[] = {1, 2, 3};
    EXPECT_EQ(zelmSub_vc_32f(vector, 1, vector, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmSub_vava_32f(vector, f, vector, f, vector, f, 0, 3), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmSub_vava_32f(vector, f, vector, f, vector, f, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(std::to_array(vector), (std::array<float, 3>{1, 2, 3}));
}

TEST(VectorAddSub, AZeroCountDoesNothing) {
    float vector[] = {1, 2, 3};
    EXPECT_EQ(zelmSub_vava_32f(vector, f, vector, f, vector, f, 1, 0), ZELM_OK);
    EXPECT_EQ(std::to_array(vector), (std::array<float, 3>{1, 2, 3}));
    float *const table[] = {&vector[0], nullptr};
    EXPECT_EQ(zelmSub_vava_32f_PS2(table, 0, f, table, 0, f, table, 0, f, 2, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmSub_vava_32f_P(table, 0, table, 0, table, 0, 2, 0), ZELM_ERR_NULL_PTR);
}

TEST(VectorAddSub, CvIsTheConstantMinusTheVector) {
    const float source[] = {1, 2};
    float result[2] = {};
    EXPECT_EQ(zelmSub_cv_32f(source, 5, result, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<float, 2>{4, 3}));
    EXPECT_EQ(zelmSub_vc_32f(source, 5, result, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<float, 2>{-4, -3}));
}

TEST(VectorAddSub, TheConstantMayBeNanOrInfinite) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double source[] = {1, infinity, -infinity};
    double result[3] = {};
    EXPECT_EQ(zelmAdd_vc_64f_3x1(source, infinity, result), ZELM_OK);
    EXPECT_EQ(result[0], infinity);
    EXPECT_EQ(result[1], infinity);
    EXPECT_TRUE(std::isnan(result[2]));
    EXPECT_EQ(zelmSub_cv_64f(source, std::numeric_limits<double>::quiet_NaN(), result, 3), ZELM_OK);
    for (const double x : result)
        EXPECT_TRUE(std::isnan(x));
}

TEST(VectorAddSub, AnInvariantOfAListIsAPlainPointer) {
    const float first[] = {1, 2, 3}, invariant[] = {10, 20, 30};
    float result[] = {0, 0, 0, 7, 7, 7};
    const float *const sources[] = {first, nullptr};
    float *const results[] = {&result[0], &result[3]};
    EXPECT_EQ(zelmAdd_vav_32f_L(sources, 0, nullptr, results, 0, 3, 2), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result[0], 0);
    EXPECT_EQ(zelmAdd_vav_32f_L(sources, 0, invariant, results, 0, 3, 2), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::to_array(result), (std::array<float, 6>{11, 22, 33, 7, 7, 7}));
}

TEST(VectorAddSub, ASinglePFormStopsAtTheNullPosition) {
    const float source[] = {1, 2, 3, 4};
    float result[] = {7, 7, 7, 7};
    const float *const sources[] = {&source[0], &source[1], nullptr, &source[3]};
    float *const results[] = {&result[0], &result[1], &result[2], &result[3]};
    EXPECT_EQ(zelmAdd_vv_32f_4x1_P(sources, 0, sources, 0, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::to_array(result), (std::array<float, 4>{2, 4, 7, 7}));
}

TEST(VectorAddSub, AHeldInvariantDoesNotSeeWhatIsWritten) {
    // dst's first object is the invariant itself.
    const double source[] = {1, 1, 1, 1, 1, 2, 2, 2, 2, 2};
    double memory[] = {10, 20, 30, 40, 50, 0, 0, 0, 0, 0};
    EXPECT_EQ(zelmAdd_vav_64f_5x1(source, 5 * d, memory, memory, 5 * d, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(memory), (std::array<double, 10>{11, 21, 31, 41, 51, 12, 22, 32, 42, 52}));
}

TEST(VectorAddSub, AnInvariantReadAnewSeesWhatIsWritten) {
    const double source[] = {1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2};
    const std::array<double, 12> expected = {11, 21, 31, 41, 51, 61, 13, 23, 33, 43, 53, 63};
    const std::array<double, 12> start = {10, 20, 30, 40, 50, 60, 0, 0, 0, 0, 0, 0};

    auto memory = start; // the member that departs from the fixed sizes
    EXPECT_EQ(zelmAdd_vav_64f_6x1(source, 6 * d, memory.data(), memory.data(), 6 * d, 2), ZELM_OK);
    EXPECT_EQ(memory, expected);

    memory = start; // and its list
    const double *const sources[] = {&source[0], &source[6]};
    double *const results[] = {&memory[0], &memory[6]};
    EXPECT_EQ(zelmAdd_vav_64f_6x1_L(sources, 0, memory.data(), results, 0, 2), ZELM_OK);
    EXPECT_EQ(memory, expected);

    memory = start; // a run-time length
    EXPECT_EQ(zelmAdd_vav_64f(source, 6 * d, memory.data(), memory.data(), 6 * d, 6, 2), ZELM_OK);
    EXPECT_EQ(memory, expected);

    memory = start; // a fixed size in a layout that reads anew
    EXPECT_EQ(zelmAdd_vav_64f_6x1_S2(source, 6 * d, d, memory.data(), d, memory.data(), 6 * d, d, 2),
              ZELM_OK);
    EXPECT_EQ(memory, expected);
}

TEST(VectorAddSub, Sub64f6x1ReadsItsInvariantAnew) {
    const double source[] = {1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2};
    std::array<double, 12> memory = {10, 20, 30, 40, 50, 60};
    EXPECT_EQ(zelmSub_vav_64f_6x1(source, 6 * d, memory.data(), memory.data(), 6 * d, 2), ZELM_OK);
    EXPECT_EQ(memory, (std::array<double, 12>{-9, -19, -29, -39, -49, -59, 11, 21, 31, 41, 51, 61}));
    memory = {10, 20, 30, 40, 50, 60};
    EXPECT_EQ(zelmSub_vva_64f_6x1(memory.data(), source, 6 * d, memory.data(), 6 * d, 2), ZELM_OK);
    EXPECT_EQ(memory, (std::array<double, 12>{9, 19, 29, 39, 49, 59, 7, 17, 27, 37, 47, 57}));
}

TEST(VectorAddSub, InPlace) {
    float vector[20];
    for (int i = 0; i < 20; ++i)
        vector[i] = static_cast<float>(i);
    EXPECT_EQ(zelmAdd_vv_32f(vector, vector, vector, 20), ZELM_OK);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(vector[i], static_cast<float>(2 * i));
}

TEST(VectorAddSub, PartialOverlapGivesWhatThePlainLoopGives) {
    // Each result is the next element's source: 1, then 1 + 1, ... a running sum of ones, at any length.
    float vector[41] = {1};
    EXPECT_EQ(zelmAdd_vc_32f(vector, 1, vector + 1, 40), ZELM_OK);
    for (int i = 0; i < 41; ++i)
        EXPECT_EQ(vector[i], static_cast<float>(i + 1));
}

TEST(VectorAddSub, ObjectsThatLieAcrossEachOtherAreDoneOneByOne) {
    // Each object of four elements begins at the middle of the one before it.
    std::array<float, 10> memory{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    EXPECT_EQ(zelmAdd_vac_32f_4x1(memory.data(), 8, 1, memory.data(), 8, 3), ZELM_OK);
    EXPECT_EQ(memory, (std::array<float, 10>{2, 3, 5, 6, 7, 8, 8, 9, 9, 10}));
}

// One vector less each of a list.
template <class T, std::size_t N>
void expectDifferences(auto subtract) {
    std::array<T, N> first, second, result{};
    for (std::size_t j = 0; j < N; ++j) {
        first[j] = static_cast<T>(100 + 7 * j);
        second[j] = static_cast<T>(j * j);
    }
    const T *const list[] = {second.data(), first.data()};
    std::array<T, N> zeros;
    T *const results[] = {result.data(), zeros.data()};
    EXPECT_EQ(subtract(first.data(), list, 0, results, 0, 2), ZELM_OK);
    for (std::size_t j = 0; j < N; ++j) {
        EXPECT_EQ(result[j], first[j] - second[j]);
        EXPECT_EQ(zeros[j], 0);
    }
}

TEST(VectorAddSub, AListIsSubtractedFromOneVector) {
    expectDifferences<float, 3>(zelmSub_vva_32f_3x1_L);
    expectDifferences<float, 4>(zelmSub_vva_32f_4x1_L);
    expectDifferences<float, 5>(zelmSub_vva_32f_5x1_L);
    expectDifferences<float, 6>(zelmSub_vva_32f_6x1_L);
    expectDifferences<double, 3>(zelmSub_vva_64f_3x1_L);
    expectDifferences<double, 4>(zelmSub_vva_64f_4x1_L);
    expectDifferences<double, 5>(zelmSub_vva_64f_5x1_L);
    expectDifferences<double, 6>(zelmSub_vva_64f_6x1_L);
}

} // namespace
