#include "low_memory.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

// The elements from 0 to N - 1 are 9 before the call.
template <class T, std::size_t N>
std::array<T, N> nines() {
    std::array<T, N> numbers;
    numbers.fill(9);
    return numbers;
}

TEST(LoadIdentity, OfOneObjectIsAnIdentityInItsRows) {
    auto matrix = nines<float, 24>();
    EXPECT_EQ(zelmLoadIdentity_ma_32f_S(matrix.data(), 0, 32, f, 3, 3, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<float, 24>{1, 0, 0, 9, 9, 9, 9, 9, 0, 1, 0, 9, //
                                             9, 9, 9, 9, 0, 0, 1, 9, 9, 9, 9, 9}));
}

TEST(LoadIdentity, TheDiagonalRunsOnFromObjectToObject) {
    const std::array<double, 48> expected = {
        1, 0, 0, 9, 9, 9, 9, 9, 0, 1, 0, 9, 9, 9, 9, 9, 0, 0, 1, 9, 9, 9, 9, 9, // object 0
        0, 0, 0, 1, 9, 9, 9, 9, 0, 0, 0, 9, 1, 9, 9, 9, 0, 0, 0, 9, 9, 1, 9, 9, // ones in columns 3, 4, 5
    };
    auto strided = nines<double, 48>(), listed = nines<double, 48>();
    EXPECT_EQ(zelmLoadIdentity_ma_64f_S(strided.data(), 24 * d, 8 * d, d, 3, 3, 2), ZELM_OK);
    EXPECT_EQ(strided, expected);
    double *const objects[] = {&listed[1], &listed[25]};
    EXPECT_EQ(zelmLoadIdentity_ma_64f_L(objects, -d, 8 * d, d, 3, 3, 2), ZELM_OK);
    EXPECT_EQ(listed, expected);
}

TEST(LoadIdentity, ZerosOfALaterRowCoverTheOnesOfAnEarlierOne) {
    auto matrices = nines<float, 22>();
    EXPECT_EQ(zelmLoadIdentity_ma_32f_S(matrices.data(), 9 * f, 3 * f, f, 3, 3, 2), ZELM_OK);
    EXPECT_EQ(matrices,
              (std::array<float, 22>{1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 9, 9, 1, 9}));
}

TEST(LoadIdentity, TheTableIsReadBehindItsPositions) {
    // Object 1 of 2x2 matrices: the ones of rows 0 and 1 at entries 2 and 2 + 3.
    auto elements = nines<double, 12>();
    double *table[6];
    for (std::size_t e = 0; e < 6; ++e)
        table[e] = &elements[2 * e + 1];
    EXPECT_EQ(zelmLoadIdentity_ma_64f_P(table, -d, d, 2, 2, 2), ZELM_OK);
    // Entry 2 has the one of row 0 covered by the zero of row 1.
    EXPECT_EQ(elements, (std::array<double, 12>{1, 0, 0, 0, 0, 0, 1, 0, 9, 9, 9, 1}));
}

TEST(LoadIdentity, MoreRowsThanColumnsPutOnesBehindTheRows) {
    auto matrix = nines<float, 16>();
    EXPECT_EQ(zelmLoadIdentity_ma_32f_S(matrix.data(), 0, 4 * f, f, 2, 4, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<float, 16>{1, 0, 9, 9, 0, 1, 9, 9, 0, 0, 1, 9, 0, 0, 9, 1}));
}

TEST(LoadIdentity, MoreColumnsThanRowsAreZero) {
    auto matrix = nines<double, 11>();
    EXPECT_EQ(zelmLoadIdentity_ma_64f_S(matrix.data(), 0, 0, 0, 5, 2, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<double, 11>{1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 9}));
}

TEST(LoadIdentity, SmallStridesCountAsThoseOfAPackedMatrix) {
    const std::array<float, 10> identity = {1, 0, 0, 0, 1, 0, 0, 0, 1, 9};
    for (const std::int32_t elemStride : {0, 1, 3, 4})
        for (const std::int32_t rowStride : {0, 1, 11, 12}) {
            auto strided = nines<float, 10>(), listed = nines<float, 10>();
            float *const object = listed.data();
            EXPECT_EQ(zelmLoadIdentity_ma_32f_S(strided.data(), 0, rowStride, elemStride, 3, 3, 1), ZELM_OK);
            EXPECT_EQ(zelmLoadIdentity_ma_32f_L(&object, 0, rowStride, elemStride, 3, 3, 1), ZELM_OK);
            EXPECT_EQ(strided, identity);
            EXPECT_EQ(listed, identity);
        }
    auto wide = nines<double, 5>();
    EXPECT_EQ(zelmLoadIdentity_ma_64f_S(wide.data(), 0, 15, 7, 2, 2, 1), ZELM_OK);
    EXPECT_EQ(wide, (std::array<double, 5>{1, 0, 0, 1, 9}));
}

TEST(LoadIdentity, TheLeastRowStrideLeavesOutTheElementStride) {
    // Elements two apart and rows three: 0, 2, 4; 3, 5, 7; 6, 8, 10.
    auto matrix = nines<float, 12>();
    EXPECT_EQ(zelmLoadIdentity_ma_32f_S(matrix.data(), 0, 0, 2 * f, 3, 3, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<float, 12>{1, 9, 0, 0, 0, 1, 0, 0, 0, 9, 1, 9}));
}

TEST(LoadIdentity, NegativeStridesPassUnchanged) {
    auto matrix = nines<float, 10>();
    EXPECT_EQ(zelmLoadIdentity_ma_32f_S(&matrix[9], 0, -3 * f, -f, 3, 2, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<float, 10>{9, 9, 9, 9, 0, 1, 0, 0, 0, 1}));
    // A negative object stride in P.
    auto elements = nines<double, 4>();
    double *const table[] = {&elements[2], &elements[3]};
    EXPECT_EQ(zelmLoadIdentity_ma_64f_P(table, 0, -2 * d, 1, 1, 2), ZELM_OK);
    EXPECT_EQ(elements, (std::array<double, 4>{0, 1, 1, 9}));
}

TEST(LoadIdentity, OnlyPRepairsTheObjectStride) {
    // In S both objects lie at one place: the second one's zero stays, and its one stands behind.
    auto strided = nines<float, 3>();
    EXPECT_EQ(zelmLoadIdentity_ma_32f_S(strided.data(), 0, f, f, 1, 1, 2), ZELM_OK);
    EXPECT_EQ(strided, (std::array<float, 3>{0, 1, 9}));
    auto elements = nines<float, 8>();
    float *const table[] = {&elements[0], &elements[4]};
    EXPECT_EQ(zelmLoadIdentity_ma_32f_P(table, 0, 0, 1, 1, 2), ZELM_OK);
    EXPECT_EQ(elements, (std::array<float, 8>{1, 0, 9, 9, 9, 1, 9, 9}));
}

TEST(LoadIdentity, WithoutColumnsOnlyOnesAreStored) {
    auto matrix = nines<float, 9>();
    EXPECT_EQ(zelmLoadIdentity_ma_32f_S(matrix.data(), 0, 3 * f, f, 0, 3, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<float, 9>{1, 9, 9, 9, 1, 9, 9, 9, 1}));
    // The least row stride is 0.
    matrix = nines<float, 9>();
    EXPECT_EQ(zelmLoadIdentity_ma_32f_S(matrix.data(), 0, 0, 2 * f, 0, 3, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<float, 9>{1, 9, 1, 9, 1, 9, 9, 9, 9}));
    float *const table[] = {&matrix[8], &matrix[7], &matrix[6]};
    EXPECT_EQ(zelmLoadIdentity_ma_32f_P(table, 0, f, 0, 3, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<float, 9>{1, 9, 1, 9, 1, 9, 1, 1, 1}));
}

TEST(LoadIdentity, ANegativeWidthHasNoColumns) {
    // The least row stride, one element back, is a large number: it is the one that counts.
    auto matrix = nines<double, 8>();
    EXPECT_EQ(zelmLoadIdentity_ma_64f_S(&matrix[3], 0, 3 * d, 2 * d, ~0u, 3, 1), ZELM_OK);
    EXPECT_EQ(matrix, (std::array<double, 8>{9, 9, 9, 1, 1, 1, 9, 9}));
}

TEST(LoadIdentity, WithoutRowsNothingIsWritten) {
    auto matrix = nines<float, 4>();
    float *const table[] = {matrix.data(), matrix.data(), matrix.data(), matrix.data()};
    for (const std::uint32_t height : {0u, ~0u, 0x80000000u}) {
        EXPECT_EQ(zelmLoadIdentity_ma_32f_S(matrix.data(), 0, 2 * f, f, 2, height, 1), ZELM_OK);
        EXPECT_EQ(zelmLoadIdentity_ma_32f_P(table, 0, f, 2, height, 1), ZELM_OK);
        EXPECT_EQ(zelmLoadIdentity_ma_32f_L(table, 0, 2 * f, f, 2, height, 1), ZELM_OK);
    }
    EXPECT_EQ(matrix, (nines<float, 4>()));
}

TEST(LoadIdentity, FollowsANullEntry) {
    const edge::LowMemory low;
    auto *const elements = low.as<float>();
    for (std::size_t e = 0; e < 4; ++e)
        elements[e] = 9;
    float *const null[] = {nullptr};
    EXPECT_EQ(zelmLoadIdentity_ma_32f_L(null, low.shift(), 2 * f, f, 2, 2, 1), ZELM_OK);
    EXPECT_EQ((std::array{elements[0], elements[1], elements[2], elements[3]}),
              (std::array<float, 4>{1, 0, 0, 1}));
    elements[0] = 9;
    EXPECT_EQ(zelmLoadIdentity_ma_32f_P(null, low.shift(), f, 1, 1, 1), ZELM_OK);
    EXPECT_EQ(elements[0], 1);
}

} // namespace
