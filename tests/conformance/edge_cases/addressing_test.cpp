// What strides, shifts and tables mean.
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <sys/mman.h>

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

#ifdef __i386__

// Four pages a quarter of the address space apart: steps of a quarter come back to the first after the
// fourth.
class AddressingWraps : public testing::Test {
protected:
    static constexpr std::int32_t quarter = 0x40000000;

    void SetUp() override {
        for (std::uintptr_t first = 0x10000000; first < 0x30000000 && !mapped_; first += 0x1000000)
            mapped_ = map(first);
        if (!mapped_)
            GTEST_SKIP() << "the address space has no such places free";
        for (std::uintptr_t k = 0; k < 4; ++k)
            for (std::uintptr_t j = 0; j < 3; ++j)
                object(k)[j] = static_cast<float>(10 * k);
    }

    void TearDown() override {
        for (std::uintptr_t k = 0; mapped_ && k < 4; ++k)
            munmap(object(k), 4096);
    }

    bool map(std::uintptr_t first) {
        first_ = first;
        for (std::uintptr_t k = 0; k < 4; ++k)
            if (mmap(object(k), 4096, PROT_READ | PROT_WRITE,
                     MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0) == MAP_FAILED) {
                while (k-- > 0)
                    munmap(object(k), 4096);
                return false;
            }
        return true;
    }

    float *object(std::uintptr_t k) const { return reinterpret_cast<float *>(first_ + k % 4 * quarter); }

    std::array<float, 4> lastElements() const {
        return {object(0)[2], object(1)[2], object(2)[2], object(3)[2]};
    }

private:
    std::uintptr_t first_ = 0;
    bool mapped_ = false;
};

TEST_F(AddressingWraps, ObjectsCoincideAfterTheWholeAddressSpace) {
    EXPECT_EQ(zelmAdd_vac_32f_3x1(object(0), quarter, 1, object(0), quarter, 6), ZELM_OK);
    EXPECT_EQ(lastElements(), (std::array<float, 4>{2, 12, 21, 31}));
    EXPECT_EQ(zelmSub_vac_32f(object(3), -quarter, 1, object(3), -quarter, 3, 6), ZELM_OK);
    EXPECT_EQ(lastElements(), (std::array<float, 4>{1, 11, 19, 29}));
}

TEST_F(AddressingWraps, AResultFeedsTheNextObjectAcrossTheEnd) {
    EXPECT_EQ(zelmAdd_vac_32f_3x1(object(0), quarter, 1, object(1), quarter, 9), ZELM_OK);
    EXPECT_EQ(lastElements(), (std::array<float, 4>{8, 9, 6, 7}));
    EXPECT_EQ(zelmAdd_vac_32f(object(0), quarter, 1, object(1), quarter, 3, 9), ZELM_OK);
    EXPECT_EQ(lastElements(), (std::array<float, 4>{16, 17, 14, 15}));
}

#endif

} // namespace
