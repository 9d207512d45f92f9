// The kernels a6_Det_*: their sums, their temporaries, and the precision that they run with.
#include "zelm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>
#include <random>
#include <vector>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

template <class T>
struct Kernels {
    std::uint32_t n;
    decltype(+[](const T *, std::int32_t, T *) { return std::int32_t{}; }) m;
    void (*ma)(const T *, std::int32_t, std::int32_t, T *, std::uint32_t);
    std::int32_t (*list)(const T *const *, std::int32_t, std::int32_t, T *, std::uint32_t);

    std::int32_t row() const { return static_cast<std::int32_t>(n * sizeof(T)); }
};

constexpr Kernels<float> kernels32[] = {{3, a6_Det_m_32f_3x3, a6_Det_ma_32f_3x3, a6_Det_ma_32f_3x3_L},
                                        {4, a6_Det_m_32f_4x4, a6_Det_ma_32f_4x4, a6_Det_ma_32f_4x4_L},
                                        {5, a6_Det_m_32f_5x5, a6_Det_ma_32f_5x5, a6_Det_ma_32f_5x5_L},
                                        {6, a6_Det_m_32f_6x6, a6_Det_ma_32f_6x6, a6_Det_ma_32f_6x6_L}};
constexpr Kernels<double> kernels64[] = {{3, a6_Det_m_64f_3x3, a6_Det_ma_64f_3x3, a6_Det_ma_64f_3x3_L},
                                         {4, a6_Det_m_64f_4x4, a6_Det_ma_64f_4x4, a6_Det_ma_64f_4x4_L},
                                         {5, a6_Det_m_64f_5x5, a6_Det_ma_64f_5x5, a6_Det_ma_64f_5x5_L},
                                         {6, a6_Det_m_64f_6x6, a6_Det_ma_64f_6x6, a6_Det_ma_64f_6x6_L}};

template <class T>
struct Results {
    T m, ma, list;
};

template <class T>
Results<T> determinants(const Kernels<T> &kernels, const T *matrix) {
    Results<T> r{7, 7, 7};
    EXPECT_EQ(kernels.m(matrix, kernels.row(), &r.m), 0);
    kernels.ma(matrix, 0, kernels.row(), &r.ma, 1);
    EXPECT_EQ(kernels.list(&matrix, 0, kernels.row(), &r.list, 1), 0);
    return r;
}

// The minors are all 1, so that the terms of the sum are the first row, or the first column.
template <class T>
Results<T> sumsOfRow(const Kernels<T> &kernels, T t0, T t1, T t2) {
    const T matrix[] = {t0, t1, t2, 1, -1, 0, 0, 1, -1};
    return determinants(kernels, matrix);
}

template <class T>
T sumOfColumn(const Kernels<T> &kernels, T u0, T u1, T u2) {
    const T matrix[] = {u0, 1, 0, u1, -1, 1, u2, 0, -1};
    return determinants(kernels, matrix).m;
}

template <class T>
void expectSumsOfOrder3(const Kernels<T> &kernels) {
    constexpr T x = 0x1p70f; // absorbs a 1 in the extended format too
    EXPECT_EQ(sumsOfRow<T>(kernels, 1, x, -x).ma, 0);
    EXPECT_EQ(sumsOfRow<T>(kernels, x, 1, -x).ma, 1);
    EXPECT_EQ(sumsOfRow<T>(kernels, x, -x, 1).ma, 0);
    EXPECT_EQ(sumsOfRow<T>(kernels, 1, x, -x).list, 1);
    EXPECT_EQ(sumsOfRow<T>(kernels, x, 1, -x).list, 0);
    EXPECT_EQ(sumsOfRow<T>(kernels, x, -x, 1).list, 0);
}

TEST(ExtendedDeterminant, TheSumsOfOrder3HaveOrdersOfTheirOwn) {
    constexpr float x = 0x1p70f;
    expectSumsOfOrder3(kernels32[0]);
    expectSumsOfOrder3(kernels64[0]);
    EXPECT_EQ(sumsOfRow<float>(kernels32[0], 1, x, -x).m, 1);
    EXPECT_EQ(sumsOfRow<float>(kernels32[0], x, 1, -x).m, 0);
    EXPECT_EQ(sumsOfRow<float>(kernels32[0], x, -x, 1).m, 0);
    EXPECT_EQ(sumOfColumn<double>(kernels64[0], 1, x, -x), 0);
    EXPECT_EQ(sumOfColumn<double>(kernels64[0], x, 1, -x), 1);
    EXPECT_EQ(sumOfColumn<double>(kernels64[0], x, -x, 1), 0);
}

template <class T, std::size_t N>
void expectSameBits(const Kernels<T> (&all)[N]) {
    std::mt19937 random(1);
    for (const Kernels<T> &kernels : all) {
        if (kernels.n == 3)
            continue;
        for (int round = 0; round < 2000; ++round) {
            T matrix[36];
            for (T &element : matrix)
                element = static_cast<T>(
                    std::ldexp(static_cast<double>(random()) * 0x1p-31 - 1, static_cast<int>(random() % 8)));
            const Results<T> r = determinants(kernels, matrix);
            EXPECT_EQ(std::memcmp(&r.m, &r.ma, sizeof(T)), 0) << kernels.n;
            EXPECT_EQ(std::memcmp(&r.m, &r.list, sizeof(T)), 0) << kernels.n;
        }
    }
}

TEST(ExtendedDeterminant, TheKernelsOfOneSizeAndTypeGiveTheSameBitsFromOrder4Up) {
    expectSameBits(kernels32);
    expectSameBits(kernels64);
}

// Is the minor of the last `k` rows in columns `order[0..k-1]` seen beyond the width of T? The determinant is
// (1+e)^2 - (1+2e), where the square is that minor and comes from no smaller one; all other products are
// exact. With the minor rounded it is 0, else e^2, unless a minor that contains it is rounded.
template <class T>
bool isSeenBeyondT(const Kernels<T> &kernels, std::uint32_t k, const std::vector<std::uint32_t> &order) {
    const std::uint32_t n = kernels.n;
    const T e = sizeof(T) == 4 ? static_cast<T>(0x1p-23) : static_cast<T>(0x1p-30);
    const std::uint32_t a = order[0], b = order[1], p = order[k], q = order[k + 1];
    T least = 7;
    for (const T sign : {T{1}, T{-1}}) {
        T matrix[36] = {};
        const auto at = [&](std::uint32_t i, std::uint32_t j) -> T & { return matrix[i * n + j]; };
        std::uint32_t i = 0;
        for (std::uint32_t t = k + 2; t < n; ++t)
            at(i++, order[t]) = 1;
        at(i, a) = sign * (1 + 2 * e);
        at(i++, p) = 1;
        at(i, b) = 1;
        at(i++, q) = 1;
        at(i, a) = 1 + e;
        at(i++, q) = 1;
        at(i, b) = 1 + e;
        at(i++, p) = 1;
        for (std::uint32_t t = 2; t < k; ++t)
            at(i++, order[t]) = 1;
        T result = 7;
        kernels.m(matrix, kernels.row(), &result);
        least = std::min(least, std::fabs(result));
    }
    EXPECT_TRUE(least == 0 || least == e * e);
    return least != 0;
}

template <class T>
int minorsRoundedToT(const Kernels<T> &kernels) {
    int rounded = 0;
    for (std::uint32_t k = 2; k + 2 <= kernels.n; ++k)
        for (unsigned set = 0; set < 1u << kernels.n; ++set) {
            std::vector<std::uint32_t> order(kernels.n);
            std::iota(order.begin(), order.end(), 0u);
            const auto inSet = [&](std::uint32_t j) { return set >> j & 1; };
            const auto behind = std::stable_partition(order.begin(), order.end(), inSet);
            if (behind - order.begin() != static_cast<std::ptrdiff_t>(k))
                continue;
            bool seen = false;
            do
                seen = isSeenBeyondT(kernels, k, order);
            while (!seen && std::next_permutation(behind, order.end()));
            rounded += !seen;
        }
    return rounded;
}

TEST(ExtendedDeterminant, SoManyMinorsAreRoundedToT) {
    EXPECT_EQ(minorsRoundedToT(kernels32[1]), 1);
    EXPECT_EQ(minorsRoundedToT(kernels64[1]), 1);
    EXPECT_EQ(minorsRoundedToT(kernels32[2]), 15);
    EXPECT_EQ(minorsRoundedToT(kernels64[2]), 15);
    EXPECT_EQ(minorsRoundedToT(kernels32[3]), 44);
    EXPECT_EQ(minorsRoundedToT(kernels64[3]), 45);
}

TEST(ExtendedDeterminant, InOrder4ItIsTheFirstMinorOfTheLastRows) {
    EXPECT_FALSE(isSeenBeyondT(kernels32[1], 2, {0, 1, 2, 3}));
    EXPECT_FALSE(isSeenBeyondT(kernels64[1], 2, {0, 1, 2, 3}));
    EXPECT_TRUE(isSeenBeyondT(kernels32[1], 2, {2, 3, 0, 1}));
    EXPECT_TRUE(isSeenBeyondT(kernels64[1], 2, {2, 3, 0, 1}));
}

std::uint16_t controlWord() {
    std::uint16_t word;
    asm volatile("fnstcw %0" : "=m"(word));
    return word;
}

void setControlWord(std::uint16_t word) {
    asm volatile("fldcw %0" : : "m"(word));
}

TEST(ExtendedDeterminant, RunsWithThePrecisionOfTheCaller) {
    const double e = 0x1p-30;
    double matrix[16] = {}; // (1+e)^2 - (1+2e), and ones
    matrix[0] = matrix[5] = 1;
    matrix[10] = matrix[15] = 1 + e;
    matrix[11] = 1 + 2 * e;
    matrix[14] = 1;
    const double order3[] = {1, 0, 0, 0, 1 + e, 1 + 2 * e, 0, 1, 1 + e};
    const std::uint16_t before = controlWord();
    const std::uint16_t precisionOf53Bits = (before & ~0x300) | 0x200;
    for (const Kernels<double> &kernels : {kernels64[0], kernels64[1]}) {
        const double *m = kernels.n == 3 ? order3 : matrix;
        const Results<double> extended = determinants(kernels, m);
        setControlWord(precisionOf53Bits);
        const Results<double> narrow = determinants(kernels, m);
        const std::uint16_t after = controlWord();
        setControlWord(before);
        EXPECT_EQ(after, precisionOf53Bits);
        EXPECT_EQ(extended.m, e * e);
        EXPECT_EQ(extended.ma, e * e);
        EXPECT_EQ(extended.list, e * e);
        EXPECT_EQ(narrow.m, 0);
        EXPECT_EQ(narrow.ma, 0);
        EXPECT_EQ(narrow.list, 0);
    }
}

TEST(ExtendedDeterminant, AListStopsAtANullEntryWithItsOwnNumber) {
    const float unit[] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const float *objects[] = {unit, nullptr, unit};
    float results[] = {7, 7, 7};
    EXPECT_EQ(a6_Det_ma_32f_3x3_L(objects, 0, 3 * f, results, 3), -2);
    EXPECT_EQ(results[0], 1);
    EXPECT_EQ(results[1], 7);
    EXPECT_EQ(results[2], 7);
    EXPECT_EQ(zelmDet_ma_32f_3x3_L(objects, 0, 3 * f, results, 3), ZELM_ERR_NULL_PTR);
}

TEST(ExtendedDeterminant, ACountOfZeroTouchesNothing) {
    double result = 7;
    a6_Det_ma_64f_6x6(nullptr, d, d, &result, 0);
    EXPECT_EQ(a6_Det_ma_64f_6x6_L(nullptr, 0, d, &result, 0), 0);
    EXPECT_EQ(result, 7);
}

} // namespace
