#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

TEST(MatrixAddSub, AZeroWidthOrHeightIsAnErrorWhateverTheCount) {
    float matrix[] = {1, 2, 3};
    for (const std::uint32_t count : {0u, 2u}) {
        EXPECT_EQ(zelmAdd_mama_32f(matrix, f, f, matrix, f, f, matrix, f, f, 0, 1, count), ZELM_ERR_SIZE);
        EXPECT_EQ(zelmSub_mTma_32f(matrix, f, matrix, f, f, matrix, f, f, 1, 0, count), ZELM_ERR_SIZE);
    }
    EXPECT_EQ(zelmAdd_mmT_32f(matrix, f, matrix, f, matrix, f, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmAdd_mmT_32f(nullptr, f, matrix, f, matrix, f, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::to_array(matrix), (std::array<float, 3>{1, 2, 3}));
}

TEST(MatrixAddSub, AZeroCountDoesNothing) {
    const float source[16] = {1};
    float result = 7;
    EXPECT_EQ(zelmAdd_mam_32f_4x4(source, 0, 0, source, 0, &result, 0, 0, 0), ZELM_OK);
    EXPECT_EQ(zelmAdd_mam_32f(source, 0, 0, source, 0, &result, 0, 0, 3, 3, 0), ZELM_OK);
    EXPECT_EQ(zelmAdd_mam_32f_3x3_S2(source, 0, 0, 0, source, 0, 0, &result, 0, 0, 0, 0), ZELM_OK);
    EXPECT_EQ(zelmAdd_mama_32f_3x3(source, 0, 0, source, 0, 0, &result, 0, 0, 0), ZELM_OK);
    EXPECT_EQ(result, 7);
}

TEST(MatrixAddSub, ATransposedOperandIsStoredWithWidthRowsOfHeightElements) {
    const float first[] = {1, 2, /**/ 3, 4, /**/ 5, 6}, second[] = {10, 20, 30, /**/ 40, 50, 60};
    std::array<float, 7> result{0, 0, 0, 0, 0, 0, 7};
    EXPECT_EQ(zelmAdd_mmT_32f(first, 2 * f, second, 3 * f, result.data(), 2 * f, 2, 3), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 7>{11, 42, 23, 54, 35, 66, 7}));
}

// Two objects of width 2 and height 3: both sources are stored as 2 rows of 3.
class MatrixAddSubOblong : public testing::Test {
protected:
    const float first[12] = {100, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 1100, 1200};
    const float second[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    std::array<float, 12> result{};
    const float *firsts[6], *seconds[6];
    float *results[6];

    // Objects behind each other, or position by position.
    void listObjects() {
        for (std::size_t k = 0; k < 2; ++k) {
            firsts[k] = &first[6 * k];
            seconds[k] = &second[6 * k];
            results[k] = &result[6 * k];
        }
    }
    void listPositions() {
        for (std::size_t e = 0; e < 6; ++e) {
            firsts[e] = &first[e];
            seconds[e] = &second[e];
            results[e] = &result[e];
        }
    }
    void expectTransposedDifference() {
        EXPECT_EQ(result,
                  (std::array<float, 12>{99, 396, 198, 495, 297, 594, 693, 990, 792, 1089, 891, 1188}));
        result = {};
    }
};

TEST_F(MatrixAddSubOblong, ArraysInEveryLayout) {
    EXPECT_EQ(
        zelmSub_maTmaT_32f(first, 6 * f, 3 * f, second, 6 * f, 3 * f, result.data(), 6 * f, 2 * f, 2, 3, 2),
        ZELM_OK);
    expectTransposedDifference();
    EXPECT_EQ(zelmSub_maTmaT_32f_S2(first, 6 * f, 3 * f, f, second, 6 * f, 3 * f, f, result.data(), 6 * f,
                                    2 * f, f, 2, 3, 2),
              ZELM_OK);
    expectTransposedDifference();
    listObjects();
    EXPECT_EQ(zelmSub_maTmaT_32f_L(firsts, 0, 3 * f, seconds, 0, 3 * f, results, 0, 2 * f, 2, 3, 2), ZELM_OK);
    expectTransposedDifference();
    EXPECT_EQ(
        zelmSub_maTmaT_32f_LS2(firsts, 0, 3 * f, f, seconds, 0, 3 * f, f, results, 0, 2 * f, f, 2, 3, 2),
        ZELM_OK);
    expectTransposedDifference();
    listPositions();
    EXPECT_EQ(zelmSub_maTmaT_32f_PS2(firsts, 0, 6 * f, seconds, 0, 6 * f, results, 0, 6 * f, 2, 3, 2),
              ZELM_OK);
    expectTransposedDifference();
    for (std::size_t k = 0; k < 2; ++k) { // in P the objects of a position are packed: one at a time here
        const auto shift = static_cast<std::int32_t>(6 * k) * f;
        EXPECT_EQ(zelmSub_maTmaT_32f_P(firsts, shift, seconds, shift, results, shift, 2, 3, 1), ZELM_OK);
    }
    expectTransposedDifference();
}

TEST_F(MatrixAddSubOblong, SingleMatricesInEveryLayout) {
    listPositions();
    const std::array<float, 12> expected = {99, 396, 198, 495, 297, 594};
    EXPECT_EQ(zelmSub_mTmT_32f(first, 3 * f, second, 3 * f, result.data(), 2 * f, 2, 3), ZELM_OK);
    EXPECT_EQ(result, expected);
    result = {};
    EXPECT_EQ(zelmSub_mTmT_32f_S2(first, 3 * f, f, second, 3 * f, f, result.data(), 2 * f, f, 2, 3), ZELM_OK);
    EXPECT_EQ(result, expected);
    result = {};
    const float *padded[8] = {firsts[0], firsts[1], firsts[2], firsts[3], firsts[4], firsts[5], first, first};
    const float *also[8] = {seconds[0], seconds[1], seconds[2], seconds[3],
                            seconds[4], seconds[5], second,     second};
    EXPECT_EQ(zelmSub_mTmT_32f_P(padded, 0, also, 0, results, 0, 2, 3), ZELM_OK);
    EXPECT_EQ(result, expected);
}

TEST(MatrixAddSub, DstMayBeEitherSource) {
    const std::array<double, 18> first = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};
    std::array<double, 18> second, apart;
    for (std::size_t e = 0; e < 18; ++e)
        second[e] = 100 * first[17 - e];
    for (std::size_t e = 0; e < 18; ++e)
        apart[e] = first[e] - second[e];
    auto a = first, b = second;
    EXPECT_EQ(zelmSub_mama_64f_3x3(a.data(), 9 * d, 3 * d, b.data(), 9 * d, 3 * d, a.data(), 9 * d, 3 * d, 2),
              ZELM_OK);
    EXPECT_EQ(a, apart);
    a = first;
    EXPECT_EQ(zelmSub_mama_64f_3x3(a.data(), 9 * d, 3 * d, b.data(), 9 * d, 3 * d, b.data(), 9 * d, 3 * d, 2),
              ZELM_OK);
    EXPECT_EQ(b, apart);
    b = second;
    EXPECT_EQ(zelmSub_mm_64f(a.data(), 6 * d, b.data(), 6 * d, b.data(), 6 * d, 6, 3), ZELM_OK);
    EXPECT_EQ(b, apart);
    EXPECT_EQ(zelmSub_mm_64f(a.data(), 6 * d, a.data(), 6 * d, a.data(), 6 * d, 6, 3), ZELM_OK);
    EXPECT_EQ(a, (std::array<double, 18>{}));
}

// Memory of n matrices behind each other, in which dst lies across the source that is not transposed.
template <class T>
void expectAscendingLoopAcross(auto add, auto subtract, int n) {
    const auto size = static_cast<std::size_t>(n * n);
    const auto row = static_cast<std::int32_t>(n * sizeof(T));
    std::vector<T> start, transposed;
    for (std::size_t e = 0; e < 3 * size; ++e)
        start.push_back(static_cast<T>(e * e % 31) - 9);
    for (std::size_t e = 0; e < size; ++e)
        transposed.push_back(static_cast<T>(100 * e));
    for (std::size_t at = 0; at <= 2 * size; ++at) {
        std::vector<T> sum = start, difference = start, expectedSum = start, expectedDifference = start;
        for (std::size_t e = 0; e < size; ++e) {
            const T mirror = transposed[e % static_cast<std::size_t>(n) * static_cast<std::size_t>(n) +
                                        e / static_cast<std::size_t>(n)];
            expectedSum[at + e] = mirror + expectedSum[size + e];
            expectedDifference[at + e] = expectedDifference[size + e] - mirror;
        }
        EXPECT_EQ(add(transposed.data(), row, &sum[size], row, &sum[at], row), ZELM_OK);
        EXPECT_EQ(subtract(&difference[size], row, transposed.data(), row, &difference[at], row), ZELM_OK);
        EXPECT_EQ(sum, expectedSum) << "order " << n << ", dst at " << at;
        EXPECT_EQ(difference, expectedDifference) << "order " << n << ", dst at " << at;
    }
}

TEST(MatrixAddSub, DstMayLieAcrossTheSourceThatIsNotTransposed) {
    expectAscendingLoopAcross<float>(zelmAdd_mTm_32f_3x3, zelmSub_mmT_32f_3x3, 3);
    expectAscendingLoopAcross<float>(zelmAdd_mTm_32f_4x4, zelmSub_mmT_32f_4x4, 4);
    expectAscendingLoopAcross<double>(zelmAdd_mTm_64f_3x3, zelmSub_mmT_64f_3x3, 3);
    expectAscendingLoopAcross<double>(zelmAdd_mTm_64f_4x4, zelmSub_mmT_64f_4x4, 4);
}

TEST(MatrixAddSub, ARunTimeTransposedFormInPlaceFollowsTheTraversal) {
    std::array<float, 4> matrix = {1, 10, 100, 1000};
    EXPECT_EQ(zelmAdd_mmT_32f(matrix.data(), 2 * f, matrix.data(), 2 * f, matrix.data(), 2 * f, 2, 2),
              ZELM_OK);
    EXPECT_EQ(matrix, (std::array<float, 4>{2, 110, 210, 2000})); // row 1 saw the 110
}

TEST(MatrixAddSub, AnInvariantOfARunTimeSizeOrAStridedLayoutIsReadAnew) {
    const std::array<float, 18> start = {10, 20, 30, 40, 50, 60, 70, 80, 90};
    const std::array<float, 18> anew = {-9, -19, -29, -39, -49, -59, -69, -79, -89,
                                        11, 21,  31,  41,  51,  61,  71,  81,  91};
    const std::array<float, 18> held = {-9, -19, -29, -39, -49, -59, -69, -79, -89,
                                        -8, -18, -28, -38, -48, -58, -68, -78, -88};
    float source[18];
    for (std::size_t e = 0; e < 18; ++e)
        source[e] = e < 9 ? 1 : 2;
    auto memory = start;
    EXPECT_EQ(
        zelmSub_mam_32f(source, 9 * f, 3 * f, memory.data(), 3 * f, memory.data(), 9 * f, 3 * f, 3, 3, 2),
        ZELM_OK);
    EXPECT_EQ(memory, anew);
    memory = start;
    EXPECT_EQ(zelmSub_mam_32f_3x3_S2(source, 9 * f, 3 * f, f, memory.data(), 3 * f, f, memory.data(), 9 * f,
                                     3 * f, f, 2),
              ZELM_OK);
    EXPECT_EQ(memory, anew);
    memory = start;
    EXPECT_EQ(zelmSub_mam_32f_3x3(source, 9 * f, 3 * f, memory.data(), 3 * f, memory.data(), 9 * f, 3 * f, 2),
              ZELM_OK);
    EXPECT_EQ(memory, held);
}

TEST(MatrixAddSub, NansInfinitiesAndSignedZeros) {
    const double infinity = std::numeric_limits<double>::infinity(),
                 nan = std::numeric_limits<double>::quiet_NaN();
    const double first[9] = {infinity, infinity, nan, 1, -0.0, -0.0, 0.0, 1, -infinity};
    const double second[9] = {infinity, -infinity, 1, nan, -0.0, 0.0, 0.0, infinity, 1};
    double sum[9], difference[9];
    EXPECT_EQ(zelmAdd_mm_64f_3x3(first, 3 * d, second, 3 * d, sum, 3 * d), ZELM_OK);
    EXPECT_EQ(zelmSub_mm_64f_3x3(first, 3 * d, second, 3 * d, difference, 3 * d), ZELM_OK);
    EXPECT_EQ(sum[0], infinity);
    EXPECT_TRUE(std::isnan(sum[1]));
    EXPECT_TRUE(std::isnan(difference[0]));
    EXPECT_EQ(difference[1], infinity);
    for (const std::size_t e : {2u, 3u}) {
        EXPECT_TRUE(std::isnan(sum[e]));
        EXPECT_TRUE(std::isnan(difference[e]));
    }
    EXPECT_TRUE(std::signbit(sum[4]));
    EXPECT_FALSE(std::signbit(sum[5]));
    EXPECT_FALSE(std::signbit(difference[4]));
    EXPECT_TRUE(std::signbit(difference[5]));
    EXPECT_FALSE(std::signbit(difference[6]));
    EXPECT_EQ(difference[7], -infinity);
    EXPECT_EQ(sum[8], -infinity);
}

TEST(MatrixAddSub, NullEntries) {
    const float source[18] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    std::array<float, 18> result;
    result.fill(7);
    const auto untouched = result;
    const float *sources[9];
    float *results[9];
    for (std::size_t e = 0; e < 9; ++e) {
        sources[e] = &source[2 * e];
        results[e] = &result[2 * e];
    }
    results[8] = nullptr;
    for (const std::uint32_t count : {0u, 2u}) { // an array in P or PS2: nothing is written
        EXPECT_EQ(zelmAdd_mama_32f_3x3_P(sources, 0, sources, 0, results, 0, count), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(zelmAdd_maTm_32f_PS2(sources, 0, f, sources, 0, results, 0, f, 3, 3, count),
                  ZELM_ERR_NULL_PTR);
    }
    EXPECT_EQ(result, untouched);
    results[4] = nullptr; // a single matrix: what comes before is written
    EXPECT_EQ(zelmAdd_mm_32f_3x3_P(sources, 0, sources, 0, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 18>{2, 7, 2, 7, 2, 7, 2, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7}));

    const float *const lists[] = {source, nullptr};
    float *const into[] = {result.data(), result.data() + 9};
    result = untouched;
    EXPECT_EQ(zelmSub_mma_32f_3x3_L(source, 3 * f, lists, 0, 3 * f, into, 0, 3 * f, 0), ZELM_OK);
    EXPECT_EQ(zelmSub_mma_32f_3x3_L(nullptr, 3 * f, lists, 0, 3 * f, into, 0, 3 * f, 2), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, untouched);
    EXPECT_EQ(zelmSub_mma_32f_3x3_L(source, 3 * f, lists, 0, 3 * f, into, 0, 3 * f, 2), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 18>{0, 0, 0, 0, 0, 0, 0, 0, 0, 7, 7, 7, 7, 7, 7, 7, 7, 7}));
}

TEST(MatrixAddSub, RowsThatFollowEachOtherMayHaveGapsFromObjectToObject) {
    // One row of two elements to an object, at the row stride of packed ones.
    std::array<float, 8> memory{1, 2, 9, 3, 4, 9, 5, 6};
    float *const m = memory.data();
    EXPECT_EQ(zelmAdd_mama_32f(m, 3 * f, 2 * f, m, 3 * f, 2 * f, m, 3 * f, 2 * f, 2, 1, 3), ZELM_OK);
    EXPECT_EQ(memory, (std::array<float, 8>{2, 4, 9, 6, 8, 9, 10, 12}));
}

} // namespace
