// What strides, shifts and tables mean.
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

TEST(Addressing, AZeroObjectStrideOfASourceReadsOneObject) {
    const float source[] = {1, 2, 3, 9, 9, 9};
    float result[6] = {};
    EXPECT_EQ(zelmAdd_vac_32f_3x1(source, 0, 10, result, 3 * f, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<float, 6>{11, 12, 13, 11, 12, 13}));
}

TEST(Addressing, AZeroObjectStrideOfTheDestinationLeavesTheLastObject) {
    const float source[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    float result[] = {0, 0, 0, 99};
    EXPECT_EQ(zelmAdd_vac_32f_3x1(source, 3 * f, 10, result, 0, 3), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<float, 4>{17, 18, 19, 99}));
}

TEST(Addressing, ANegativeRowStrideWalksFromTheLastRow) {
    // The rows in memory are the matrix upside down.
    const double memory[] = {0, 0, 4, /**/ 0, 2, 0, /**/ 8, 0, 0};
    double result[9] = {};
    std::uint32_t pivots[3];
    EXPECT_EQ(zelmLUDecomp_m_64f_3x3(&memory[6], -3 * d, pivots, result, 3 * d), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<double, 9>{8, 0, 0, 0, 2, 0, 0, 0, 4}));
}

TEST(Addressing, PS2WithAPackedStrideIsP) {
    // Three positions with four objects side by side at each.
    const double source[] = {1, 2, 3, 4, 10, 20, 30, 40, 100, 200, 300, 400};
    double byP[12] = {}, byPS2[12] = {};
    const double *const sources[] = {&source[0], &source[4], &source[8]};
    double *const p[] = {&byP[0], &byP[4], &byP[8]};
    double *const ps2[] = {&byPS2[0], &byPS2[4], &byPS2[8]};
    EXPECT_EQ(zelmSub_vac_64f_3x1_P(sources, 0, 1, p, 0, 4), ZELM_OK);
    EXPECT_EQ(zelmSub_vac_64f_3x1_PS2(sources, 0, d, 1, ps2, 0, d, 4), ZELM_OK);
    EXPECT_EQ(std::to_array(byP), (std::array<double, 12>{0, 1, 2, 3, 9, 19, 29, 39, 99, 199, 299, 399}));
    EXPECT_EQ(std::to_array(byPS2), std::to_array(byP));
}

TEST(Addressing, AShiftSelectsAFieldOfEachListedObject) {
    struct Particle {
        float position[3], velocity[3];
    };
    Particle particles[] = {{{1, 2, 3}, {10, 20, 30}}, {{4, 5, 6}, {40, 50, 60}}};
    const float *const sources[] = {particles[1].position, particles[0].position};
    float *const results[] = {particles[1].position, particles[0].position};
    const std::int32_t velocity = 3 * f;
    EXPECT_EQ(zelmAdd_vava_32f_3x1_L(sources, 0, sources, velocity, results, 0, 2), ZELM_OK);
    const std::array<float, 12> expected = {11, 22, 33, 10, 20, 30, 44, 55, 66, 40, 50, 60};
    EXPECT_EQ(std::memcmp(particles, expected.data(), sizeof particles), 0);
}

TEST(Addressing, AListsTableNeedsCountEntriesAndNoMore) {
    const float source[] = {1, 2, 3};
    float result[3] = {};
    const float *const sources[] = {source, nullptr};
    float *const results[] = {result, nullptr};
    EXPECT_EQ(zelmAdd_vac_32f_3x1_L(sources, 0, 1, results, 0, 1), ZELM_OK);
    EXPECT_EQ(result[2], 4);
}

TEST(Addressing, APositionTableNeedsItsPositionsWhateverTheCount) {
    const float source[15] = {1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 3, 3, 3, 3, 3};
    float result[15] = {};
    const float *const sources[] = {&source[0], &source[5], &source[10], nullptr};
    float *const results[] = {&result[0], &result[5], &result[10], nullptr};
    EXPECT_EQ(zelmAdd_vac_32f_3x1_P(sources, 0, 1, results, 0, 5), ZELM_OK);
    EXPECT_EQ(result[0], 2);
    EXPECT_EQ(result[4], 2);
    EXPECT_EQ(result[14], 4);
}

TEST(Addressing, AZeroCountReadsNoElement) {
    auto *const nowhere = reinterpret_cast<float *>(std::uintptr_t{16});
    std::uint32_t *const noPivots = reinterpret_cast<std::uint32_t *>(std::uintptr_t{16});
    EXPECT_EQ(zelmAdd_vav_32f_3x1(nowhere, 12, nowhere, nowhere, 12, 0), ZELM_OK);
    EXPECT_EQ(zelmLUDecomp_ma_32f_4x4(nowhere, 64, 16, noPivots, nowhere, 64, 16, 0), ZELM_OK);
    EXPECT_EQ(zelmLUBackSubst_mva_32f_4x4(nowhere, 64, 16, noPivots, nowhere, 16, nowhere, 16, 0), ZELM_OK);
    auto *const noTable = reinterpret_cast<float **>(std::uintptr_t{16});
    EXPECT_EQ(zelmAdd_vav_32f_3x1_L(noTable, 0, nowhere, noTable, 0, 0), ZELM_OK);
}

} // namespace
