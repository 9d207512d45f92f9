#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

TEST(Scaling, TransposedSizesAreThoseOfTheResult) {
    const double source[] = {1, 2, 3, /**/ 4, 5, 6}; // two rows of three
    const double *sources[6];
    std::array<double, 6> result{};
    double *results[6];
    for (std::size_t e = 0; e < 6; ++e) {
        sources[e] = &source[e];
        results[e] = &result[e];
    }
    const std::array<double, 6> expected = {10, 40, 20, 50, 30, 60}; // three rows of two
    EXPECT_EQ(zelmMul_mTc_64f(source, 3 * d, 10, result.data(), 2 * d, 2, 3), ZELM_OK);
    EXPECT_EQ(result, expected);
    result = {};
    EXPECT_EQ(zelmMul_mTc_64f_S2(source, 3 * d, d, 10, result.data(), 2 * d, d, 2, 3), ZELM_OK);
    EXPECT_EQ(result, expected);
    result = {};
    EXPECT_EQ(zelmMul_mTc_64f_P(sources, 0, 10, results, 0, 2, 3), ZELM_OK);
    EXPECT_EQ(result, expected);
}

TEST(Scaling, TransposedSizesOfArraysInEveryLayout) {
    const double source[] = {1, 2, 3, 4, 5, 6, /**/ 7, 8, 9, 10, 11, 12};
    std::array<double, 12> result{};
    const double *positions[6];
    double *resultPositions[6];
    for (std::size_t e = 0; e < 6; ++e) {
        positions[e] = &source[e];
        resultPositions[e] = &result[e];
    }
    const double *const objects[] = {source, source + 6};
    double *const results[] = {result.data(), result.data() + 6};
    const auto expectTransposed = [&] {
        EXPECT_EQ(result, (std::array<double, 12>{10, 40, 20, 50, 30, 60, 70, 100, 80, 110, 90, 120}));
        result = {};
    };
    EXPECT_EQ(zelmMul_maTc_64f(source, 6 * d, 3 * d, 10, result.data(), 6 * d, 2 * d, 2, 3, 2), ZELM_OK);
    expectTransposed();
    EXPECT_EQ(zelmMul_maTc_64f_S2(source, 6 * d, 3 * d, d, 10, result.data(), 6 * d, 2 * d, d, 2, 3, 2),
              ZELM_OK);
    expectTransposed();
    EXPECT_EQ(zelmMul_maTc_64f_L(objects, 0, 3 * d, 10, results, 0, 2 * d, 2, 3, 2), ZELM_OK);
    expectTransposed();
    EXPECT_EQ(zelmMul_maTc_64f_LS2(objects, 0, 3 * d, d, 10, results, 0, 2 * d, d, 2, 3, 2), ZELM_OK);
    expectTransposed();
    EXPECT_EQ(zelmMul_maTc_64f_PS2(positions, 0, 6 * d, 10, resultPositions, 0, 6 * d, 2, 3, 2), ZELM_OK);
    expectTransposed();
    for (const std::int32_t shift :
         {0, 6 * d}) // in P the objects of a position are packed: one at a time here
        EXPECT_EQ(zelmMul_maTc_64f_P(positions, shift, 10, resultPositions, shift, 2, 3, 1), ZELM_OK);
    expectTransposed();
}

// Matrices to transpose in place: `whole` as if apart, otherwise as rows from 0 upward and columns from 0
// overwrite what is read later.
template <class T, std::size_t n>
struct InPlace {
    static constexpr std::int32_t row = n * sizeof(T), object = n * row;

    InPlace() {
        for (std::size_t e = 0; e < 2 * n * n; ++e)
            memory[e] = static_cast<T>(e + 1);
        start = memory;
        for (std::size_t e = 0; e < n * n; ++e)
            positions[e] = &memory[e];
        objects[0] = memory.data();
        objects[1] = memory.data() + n * n;
    }

    void expect(ZelmStatus status, bool whole, std::size_t count = 2) {
        EXPECT_EQ(status, ZELM_OK);
        auto expected = start;
        for (std::size_t k = 0; k < count; ++k)
            for (std::size_t i = 0; i < n; ++i)
                for (std::size_t j = 0; j < n; ++j)
                    expected[k * n * n + i * n + j] = 3 * (whole ? start : expected)[k * n * n + j * n + i];
        EXPECT_EQ(memory, expected);
        memory = start;
    }

    std::array<T, 2 * n * n> memory, start;
    T *positions[n * n], *objects[2];
};

TEST(Scaling, FiveTransposedMembersWorkInPlace) {
    InPlace<float, 4> a;
    a.expect(zelmMul_mTc_32f_4x4(a.memory.data(), a.row, 3, a.memory.data(), a.row), true, 1);
    a.expect(zelmMul_maTc_32f_4x4(a.memory.data(), a.object, a.row, 3, a.memory.data(), a.object, a.row, 2),
             true);
    a.expect(zelmMul_maTc_32f_4x4_L(a.objects, 0, a.row, 3, a.objects, 0, a.row, 2), true);
    InPlace<double, 4> b;
    b.expect(zelmMul_mTc_64f_4x4(b.memory.data(), b.row, 3, b.memory.data(), b.row), true, 1);
    b.expect(zelmMul_maTc_64f_4x4(b.memory.data(), b.object, b.row, 3, b.memory.data(), b.object, b.row, 2),
             true);
}

TEST(Scaling, TheOtherTransposed4x4MembersDoNotWorkInPlace) {
    InPlace<float, 4> a;
    const auto m = a.memory.data();
    a.expect(zelmMul_mTc_32f_4x4_S2(m, a.row, f, 3, m, a.row, f), false, 1);
    a.expect(zelmMul_mTc_32f_4x4_P(a.positions, 0, 3, a.positions, 0), false, 1);
    a.expect(zelmMul_maTc_32f_4x4_S2(m, a.object, a.row, f, 3, m, a.object, a.row, f, 2), false);
    a.expect(zelmMul_maTc_32f_4x4_P(a.positions, 0, 3, a.positions, 0, 1), false, 1);
    a.expect(zelmMul_maTc_32f_4x4_PS2(a.positions, 0, a.object, 3, a.positions, 0, a.object, 2), false);
    a.expect(zelmMul_maTc_32f_4x4_LS2(a.objects, 0, a.row, f, 3, a.objects, 0, a.row, f, 2), false);
    InPlace<double, 4> b;
    b.expect(zelmMul_maTc_64f_4x4_L(b.objects, 0, b.row, 3, b.objects, 0, b.row, 2), false);
    b.expect(zelmMul_maTc_64f_4x4_LS2(b.objects, 0, b.row, d, 3, b.objects, 0, b.row, d, 2), false);
}

TEST(Scaling, TransposedFormsOfOtherSizesDoNotWorkInPlace) {
    InPlace<float, 3> a;
    a.expect(zelmMul_mTc_32f_3x3(a.memory.data(), a.row, 3, a.memory.data(), a.row), false, 1);
    a.expect(zelmMul_maTc_32f_3x3(a.memory.data(), a.object, a.row, 3, a.memory.data(), a.object, a.row, 2),
             false);
    a.expect(zelmMul_maTc_32f_3x3_L(a.objects, 0, a.row, 3, a.objects, 0, a.row, 2), false);
    InPlace<double, 5> b;
    b.expect(zelmMul_mTc_64f_5x5(b.memory.data(), b.row, 3, b.memory.data(), b.row), false, 1);
    b.expect(zelmMul_maTc_64f_5x5(b.memory.data(), b.object, b.row, 3, b.memory.data(), b.object, b.row, 2),
             false);
    InPlace<float, 6> c;
    c.expect(zelmMul_mTc_32f_6x6(c.memory.data(), c.row, 3, c.memory.data(), c.row), false, 1);
    c.expect(zelmMul_maTc_32f_6x6_L(c.objects, 0, c.row, 3, c.objects, 0, c.row, 2), false);
    InPlace<double, 4> e; // a run-time size, also where it is 4
    e.expect(zelmMul_mTc_64f(e.memory.data(), e.row, 3, e.memory.data(), e.row, 4, 4), false, 1);
    e.expect(zelmMul_maTc_64f(e.memory.data(), e.object, e.row, 3, e.memory.data(), e.object, e.row, 4, 4, 2),
             false);
    e.expect(zelmMul_maTc_64f_L(e.objects, 0, e.row, 3, e.objects, 0, e.row, 4, 4, 2), false);
}

TEST(Scaling, UntransposedFormsWorkInPlace) {
    constexpr std::size_t elements = 32;
    std::array<float, elements> start, memory, expected;
    for (std::size_t e = 0; e < elements; ++e) {
        start[e] = static_cast<float>(e) + 0.5f;
        expected[e] = start[e] * 0.3f;
    }
    const float *sources[16];
    float *results[16];
    for (std::size_t e = 0; e < 16; ++e) {
        sources[e] = &memory[2 * e];
        results[e] = &memory[2 * e];
    }
    const float *const objects[] = {&memory[0], &memory[16]};
    float *const into[] = {&memory[0], &memory[16]};
    float *const m = memory.data();
    const auto expect = [&](auto call) {
        memory = start;
        EXPECT_EQ(call(), ZELM_OK);
        EXPECT_EQ(memory, expected);
    };
    expect([&] { return zelmMul_vc_32f(m, 0.3f, m, 32); });
    expect([&] { return zelmMul_vac_32f(m, 16 * f, 0.3f, m, 16 * f, 16, 2); });
    expect([&] { return zelmMul_vac_32f_4x1_S2(m, 4 * f, f, 0.3f, m, 4 * f, f, 8); });
    expect([&] { return zelmMul_mc_32f_S2(m, 8 * f, f, 0.3f, m, 8 * f, f, 8, 4); });
    expect([&] { return zelmMul_mac_32f_4x4(m, 16 * f, 4 * f, 0.3f, m, 16 * f, 4 * f, 2); });
    expect([&] { return zelmMul_mac_32f_4x4_P(sources, 0, 0.3f, results, 0, 2); });
    expect([&] { return zelmMul_mac_32f_PS2(sources, 0, f, 0.3f, results, 0, f, 2, 8, 2); });
    expect([&] { return zelmMul_mac_32f_4x4_L(objects, 0, 4 * f, 0.3f, into, 0, 4 * f, 2); });
    expect([&] { return zelmMul_mac_32f_LS2(objects, 0, 8 * f, f, 0.3f, into, 0, 8 * f, f, 8, 2, 2); });
}

TEST(Scaling, NoShortcutForAConstantOfZeroOrOne) {
    const float infinity = std::numeric_limits<float>::infinity();
    const float source[9] = {infinity, -infinity, std::numeric_limits<float>::quiet_NaN(), 1, -1, 0.0f, -0.0f,
                             2,        3};
    float result[9];
    EXPECT_EQ(zelmMul_mc_32f_3x3(source, 3 * f, 0, result, 3 * f), ZELM_OK);
    for (std::size_t e = 0; e < 9; ++e) {
        EXPECT_EQ(std::isnan(result[e]), e < 3) << e;
        if (e >= 3) {
            EXPECT_EQ(std::signbit(result[e]), e == 4 || e == 6) << e;
        }
    }
    EXPECT_EQ(zelmMul_mc_32f_3x3(source, 3 * f, -0.0f, result, 3 * f), ZELM_OK);
    for (std::size_t e = 3; e < 9; ++e) {
        EXPECT_EQ(result[e], 0) << e;
        EXPECT_EQ(std::signbit(result[e]), e != 4 && e != 6) << e;
    }
    EXPECT_EQ(zelmMul_mc_32f_3x3(source, 3 * f, 1, result, 3 * f), ZELM_OK);
    EXPECT_EQ(result[0], infinity);
    EXPECT_TRUE(std::isnan(result[2]));
    EXPECT_TRUE(std::signbit(result[6]));
}

TEST(Scaling, BadInput) {
    const float source[18] = {1, 2, 3};
    std::array<float, 18> result;
    result.fill(7);
    const auto untouched = result;
    const float *sources[9];
    float *results[9];
    for (std::size_t e = 0; e < 9; ++e) {
        sources[e] = &source[2 * e];
        results[e] = &result[2 * e];
    }
    EXPECT_EQ(zelmMul_vc_32f(nullptr, 2, result.data(), 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_vc_32f(source, 2, result.data(), 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_maTc_32f(source, f, f, 2, result.data(), f, f, 3, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_maTc_32f(source, f, f, 2, result.data(), f, f, 3, 3, 0), ZELM_OK);
    sources[8] = nullptr;
    for (const std::uint32_t count : {0u, 2u}) {
        EXPECT_EQ(zelmMul_maTc_32f_3x3_P(sources, 0, 2, results, 0, count), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(zelmMul_mac_32f_PS2(sources, 0, f, 2, results, 0, f, 3, 3, count), ZELM_ERR_NULL_PTR);
    }
    EXPECT_EQ(result, untouched);

    // The stored element (0, 1) is tested for (1, 0).
    sources[1] = nullptr;
    EXPECT_EQ(zelmMul_mTc_32f_P(sources, 0, 2, results, 0, 3, 3), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 18>{2, 7, 0, 7, 0, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7}));

    const float *const objects[] = {source, nullptr};
    float *const into[] = {&result[0], &result[9]};
    result = untouched;
    EXPECT_EQ(zelmMul_vac_32f_3x1_L(objects + 1, 0, 2, into, 0, 0), ZELM_OK);
    EXPECT_EQ(result, untouched);
    EXPECT_EQ(zelmMul_vac_32f_3x1_L(objects, 0, 2, into, 0, 2), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 18>{2, 4, 6, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7}));
}

} // namespace
