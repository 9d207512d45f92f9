#include "zelm.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

TEST(Gaxpy, ThreeRowsOfTwo) {
    const float a[] = {1, 2, 3, 4, 5, 6}, x[] = {10, 100}, z[] = {1000, 2000, 3000};
    float y[] = {7, 7, 7, 7};
    EXPECT_EQ(zelmGaxpy_v_32f(a, 2 * f, x, z, y, 2, 3), ZELM_OK);
    EXPECT_EQ(std::to_array(y), (std::array<float, 4>{1210, 2430, 3650, 7}));
    const float pairs[] = {10, 100, 1, 1};
    float both[6] = {};
    EXPECT_EQ(zelmGaxpy_va_32f(a, 2 * f, pairs, 2 * f, z, 0, both, 3 * f, 2, 3, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(both), (std::array<float, 6>{1210, 2430, 3650, 1003, 2007, 3011}));
}

TEST(Gaxpy, OneColumn) {
    const double a[] = {2, 3}, x[] = {5}, z[] = {1, 1};
    double y[2] = {};
    EXPECT_EQ(zelmGaxpy_v_64f(a, d, x, z, y, 1, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(y), (std::array<double, 2>{11, 16}));
}

TEST(Gaxpy, TheThirdOperandIsAddedLast) {
    // The products cancel before z comes; with z first, 1 would take nothing from it.
    const float a[] = {1, -1, 0, 1, -1, 0, 1, -1, 0}, x[] = {1, 1, 1};
    const float z[] = {0x1p-30F, 0x1p-30F, 0x1p-30F};
    float y[3] = {};
    EXPECT_EQ(zelmGaxpy_v_32f_3x3(a, 3 * f, x, z, y), ZELM_OK);
    EXPECT_EQ(std::to_array(y), std::to_array(z));
    y[0] = y[1] = y[2] = 0;
    EXPECT_EQ(zelmGaxpy_v_32f(a, 3 * f, x, z, y, 3, 3), ZELM_OK);
    EXPECT_EQ(std::to_array(y), std::to_array(z));
}

TEST(Gaxpy, AStandardFormAndItsS2FormRoundDifferently) {
    // From left to right 1 takes nothing from each 2^-53; the last two together are enough.
    double a[16], y[4], s2[4];
    for (std::size_t e = 0; e < 16; ++e)
        a[e] = e % 4 == 0 ? 1 : 0x1p-53;
    const double x[] = {1, 1, 1, 1}, z[] = {0, 0, 0, 0};
    EXPECT_EQ(zelmGaxpy_v_64f_4x4(a, 4 * d, x, z, y), ZELM_OK);
    EXPECT_EQ(zelmGaxpy_v_64f_4x4_S2(a, 4 * d, d, x, d, z, d, s2, d), ZELM_OK);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(y[i], 1 + 0x1p-52);
        EXPECT_EQ(s2[i], 1);
    }
}

TEST(Gaxpy, EqualRowsOfA5x5RoundDifferentlyInTheLast) {
    // rows 0 to 3: ((1 + 2^-24) - 1) + (2^-23 + 0); row 4: ((1 + 2^-23) - 1) + (2^-24 + 0)
    const float row[] = {1, 0x1p-24F, 0x1p-23F, 0, -1};
    float a[25], y[5];
    for (std::size_t e = 0; e < 25; ++e)
        a[e] = row[e % 5];
    const float x[] = {1, 1, 1, 1, 1}, z[5] = {};
    EXPECT_EQ(zelmGaxpy_v_32f_5x5(a, 5 * f, x, z, y), ZELM_OK);
    EXPECT_EQ(std::to_array(y),
              (std::array<float, 5>{0x1p-23F, 0x1p-23F, 0x1p-23F, 0x1p-23F, 0x1p-23F + 0x1p-24F}));
}

TEST(Gaxpy, ASumThatLivesInDstDoublesInPlaceOfTheThird) {
    const float a[] = {1, 0, 0, 0, 1, 0, 0, 0, 1}, x[] = {1, 2, 3};
    const std::array<float, 3> doubled = {2, 4, 6};
    std::array<float, 3> y = {10, 20, 30};
    EXPECT_EQ(zelmGaxpy_v_32f(a, 3 * f, x, y.data(), y.data(), 3, 3), ZELM_OK);
    EXPECT_EQ(y, doubled);
    y = {10, 20, 30};
    EXPECT_EQ(zelmGaxpy_v_32f_3x3_S2(a, 3 * f, f, x, f, y.data(), f, y.data(), f), ZELM_OK);
    EXPECT_EQ(y, doubled);
    const float *entriesA[9], *entriesX[3];
    float *entries[3];
    for (std::size_t e = 0; e < 9; ++e)
        entriesA[e] = &a[e];
    for (std::size_t e = 0; e < 3; ++e) {
        entriesX[e] = &x[e];
        entries[e] = &y[e];
    }
    y = {10, 20, 30};
    EXPECT_EQ(zelmGaxpy_v_32f_3x3_P(entriesA, 0, entriesX, 0, entries, 0, entries, 0), ZELM_OK);
    EXPECT_EQ(y, doubled);
    y = {10, 20, 30};
    EXPECT_EQ(zelmGaxpy_va_32f_3x3_P(entriesA, 0, entriesX, 0, entries, 0, entries, 0, 1), ZELM_OK);
    EXPECT_EQ(y, doubled);
}

TEST(Gaxpy, ANullEntryLeavesAPartialSum) {
    const float a[] = {1, 2, 3, 4, 5, 6, 7, 8, 9}, x[] = {10, 100, 1000}, z[] = {1, 2, 3};
    for (const bool fixed : {true, false}) {
        SCOPED_TRACE(fixed);
        const float *entriesA[9], *entriesX[3], *entriesZ[3];
        float y[3], *entries[3];
        for (std::size_t e = 0; e < 9; ++e)
            entriesA[e] = &a[e];
        for (std::size_t e = 0; e < 3; ++e) {
            entriesX[e] = &x[e];
            entriesZ[e] = &z[e];
            entries[e] = &y[e];
        }
        const auto call = [&] {
            y[0] = y[1] = y[2] = 7;
            return fixed ? zelmGaxpy_v_32f_3x3_P(entriesA, 0, entriesX, 0, entriesZ, 0, entries, 0)
                         : zelmGaxpy_v_32f_P(entriesA, 0, entriesX, 0, entriesZ, 0, entries, 0, 3, 3);
        };
        entriesA[5] = nullptr; // row 1, term 2
        EXPECT_EQ(call(), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(std::to_array(y), (std::array<float, 3>{3211, 540, 7}));
        entriesX[1] = nullptr;
        EXPECT_EQ(call(), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(std::to_array(y), (std::array<float, 3>{10, 7, 7}));
        entriesX[0] = nullptr;
        EXPECT_EQ(call(), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(std::to_array(y), (std::array<float, 3>{0, 7, 7}));
        entriesZ[0] = nullptr; // before dst is zeroed
        EXPECT_EQ(call(), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(std::to_array(y), (std::array<float, 3>{7, 7, 7}));
    }
}

TEST(Gaxpy, PointersThenSizesThenTablesThenTheCount) {
    const float a[9] = {};
    float y[] = {7, 7, 7};
    EXPECT_EQ(zelmGaxpy_va_32f(a, 3 * f, a, 3 * f, a, 3 * f, y, 3 * f, 3, 3, 0), ZELM_OK);
    EXPECT_EQ(zelmGaxpy_va_32f(a, 3 * f, a, 3 * f, a, 3 * f, y, 3 * f, 0, 3, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmGaxpy_va_32f(a, 3 * f, a, 3 * f, a, 3 * f, y, 3 * f, 3, 0, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmGaxpy_v_32f(a, 3 * f, a, nullptr, y, 0, 0), ZELM_ERR_NULL_PTR);
    const float *entries[9];
    for (const float *&entry : entries)
        entry = a;
    float *const results[] = {y, y, nullptr}, *const noResults[] = {nullptr};
    EXPECT_EQ(zelmGaxpy_va_32f_3x3_P(entries, 0, entries, 0, entries, 0, results, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmGaxpy_va_32f_3x3_PS2(entries, 0, entries, 0, f, entries, 0, f, results, 0, f, 0),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmGaxpy_va_32f_P(entries, 0, entries, 0, entries, 0, results, 0, 3, 2, 0), ZELM_OK);
    EXPECT_EQ(zelmGaxpy_va_32f_3x3_L(a, 3 * f, entries, 0, entries, 0, noResults, 0, 0), ZELM_OK);
    EXPECT_EQ(zelmGaxpy_va_32f_3x3_L(a, 3 * f, entries, 0, entries, 0, noResults, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::to_array(y), (std::array<float, 3>{7, 7, 7}));
}

} // namespace
