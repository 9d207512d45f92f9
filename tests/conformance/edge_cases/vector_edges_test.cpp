// Norms of every order, traces and dot products behind tables: null entries that are followed, and results
// over a source.
#include "low_memory.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

namespace {

// The sum of squares is exact in any order.
template <class T>
void expectNorm(std::uint32_t n, ZelmStatus (*norm)(const T *, std::int32_t, T *)) {
    std::vector<T> matrix;
    T sum = 0, result = 0;
    for (std::uint32_t e = 0; e < n * n; ++e) {
        matrix.push_back(static_cast<T>(1 + e));
        sum += matrix.back() * matrix.back();
    }
    EXPECT_EQ(norm(matrix.data(), static_cast<std::int32_t>(n * sizeof(T)), &result), ZELM_OK);
    // Those of 32 bits are refined from the processor's approximation.
    const T error = sizeof(T) == 4 ? std::sqrt(sum) * static_cast<T>(0x1p-21) : 0;
    EXPECT_LE(std::abs(result - std::sqrt(sum)), error) << n << "x" << n;
}

TEST(FrobNormEdges, EveryOrder) {
    expectNorm<float>(3, zelmFrobNorm_m_32f_3x3);
    expectNorm<float>(4, zelmFrobNorm_m_32f_4x4);
    expectNorm<float>(5, zelmFrobNorm_m_32f_5x5);
    expectNorm<float>(6, zelmFrobNorm_m_32f_6x6);
    expectNorm<double>(3, zelmFrobNorm_m_64f_3x3);
    expectNorm<double>(4, zelmFrobNorm_m_64f_4x4);
    expectNorm<double>(5, zelmFrobNorm_m_64f_5x5);
    expectNorm<double>(6, zelmFrobNorm_m_64f_6x6);
}

// Arrays test the first n entries of their table, and follow the others.
TEST(TraceEdges, ANullEntryBehindTheFirstRowIsFollowed) {
    const edge::LowMemory low;
    double *const memory = low.as<double>();
    for (int e = 0; e < 8; ++e)
        memory[e] = 1 << e;
    for (const std::uint32_t count : {1u, 3u}) {
        const double *const table[] = {low.entryFor(memory + 1), low.entryFor(memory + 2),
                                       low.entryFor(memory + 3), low.entryFor(memory)};
        ASSERT_EQ(table[3], nullptr);
        std::vector<double> result(count), expected;
        for (std::uint32_t k = 0; k < count; ++k)
            expected.push_back(memory[1 + k] + memory[k]);
        EXPECT_EQ(zelmTrace_ma_64f_P(table, low.shift(), 2, result.data(), count), ZELM_OK);
        EXPECT_EQ(result, expected);
    }
}

// Results at every place over the positions of a source.
template <class T>
void expectDotProductsInOrder(auto multiply) {
    constexpr std::size_t n = 5, count = 20, positions = n * count;
    std::vector<T> other(positions);
    for (std::size_t e = 0; e < positions; ++e)
        other[e] = static_cast<T>(e % 3) - 1;
    for (std::size_t dst = 0; dst <= positions; ++dst) {
        std::vector<T> memory(positions + count);
        for (std::size_t e = 0; e < memory.size(); ++e)
            memory[e] = static_cast<T>(e % 7);
        std::vector<T> expected = memory;
        for (std::size_t k = 0; k < count; ++k) {
            T sum = 0;
            for (std::size_t j = 0; j < n; ++j)
                sum += expected[j * count + k] * other[j * count + k];
            expected[dst + k] = sum;
        }
        std::vector<const T *> first, second;
        for (std::size_t j = 0; j < n; ++j) {
            first.push_back(&memory[j * count]);
            second.push_back(&other[j * count]);
        }
        EXPECT_EQ(multiply(first.data(), second.data(), &memory[dst], static_cast<std::uint32_t>(count)),
                  ZELM_OK);
        ASSERT_EQ(memory, expected) << "dst at " << dst;
    }
}

TEST(DotProductEdges, ResultsOverThePositionsOfASource) {
    const auto both = []<class T>(auto *multiply, T) {
        expectDotProductsInOrder<T>([=](auto *a, auto *b, T *dst, std::uint32_t count) {
            return multiply(a, 0, b, 0, dst, 5, count);
        });
        expectDotProductsInOrder<T>([=](auto *a, auto *b, T *dst, std::uint32_t count) {
            return multiply(b, 0, a, 0, dst, 5, count);
        });
    };
    both(zelmDotProduct_vava_32f_P, 0.0f);
    both(zelmDotProduct_vava_64f_P, 0.0);
}

} // namespace
