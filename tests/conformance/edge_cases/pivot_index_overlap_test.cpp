// pivotIndex over the matrix that is factored, results over the pivotIndex of later systems, and a scratch
// over later right sides: the steps of the definition, one after the other on the same memory, say what comes
// of it.
#include "zelm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

constexpr double threshold = 0x1p-23;

// Bytes that are read and written as elements at any multiple of four.
class Memory {
public:
    explicit Memory(std::size_t bytes) : words_(bytes / 8 + 1) {}
    template <class T>
    T get(std::size_t at) const {
        T value;
        std::memcpy(&value, bytes() + at, sizeof value);
        return value;
    }
    template <class T>
    void set(std::size_t at, T value) {
        std::memcpy(bytes() + at, &value, sizeof value);
    }
    template <class T>
    T *pointer(std::size_t at) {
        return reinterpret_cast<T *>(bytes() + at);
    }
    bool operator==(const Memory &) const = default;

private:
    std::vector<std::uint64_t> words_;
    std::uint8_t *bytes() { return reinterpret_cast<std::uint8_t *>(words_.data()); }
    const std::uint8_t *bytes() const { return reinterpret_cast<const std::uint8_t *>(words_.data()); }
};

// Matrices of n rows behind each other, and as many row numbers for each from `pivots` on.
template <class T>
struct Layout {
    std::uint32_t n;
    std::size_t pivots, matrix;
    std::size_t element(std::size_t k, std::size_t i, std::size_t j) const {
        return matrix + ((k * n + i) * n + j) * sizeof(T);
    }
    std::size_t row(std::size_t k, std::size_t i) const { return pivots + (k * n + i) * 4; }
};

// LUDecomp of object k in place.
template <class T>
ZelmStatus factorByTheSteps(Memory &m, const Layout<T> &at, std::size_t k) {
    const std::uint32_t n = at.n;
    const auto row = [&](std::size_t i) { return m.get<std::uint32_t>(at.row(k, i)); };
    const auto element = [&](std::size_t i, std::size_t j) { return m.get<T>(at.element(k, i, j)); };
    for (std::uint32_t i = 0; i < n; ++i)
        m.set(at.row(k, i), i);
    for (std::uint32_t s = 0; s + 1 < n; ++s) {
        std::uint32_t best = s;
        for (std::uint32_t j = s + 1; j < n; ++j)
            if (std::abs(element(row(j), s)) > std::abs(element(row(best), s)))
                best = j;
        const std::uint32_t pivotRow = row(best), other = row(s);
        m.set(at.row(k, best), other);
        m.set(at.row(k, s), pivotRow);
        const std::uint32_t p = row(s);
        const T pivot = element(p, s);
        if (!(std::abs(pivot) >= static_cast<T>(threshold)))
            return ZELM_ERR_DIV_BY_ZERO;
        for (std::uint32_t j = s + 1; j < n; ++j) {
            const std::uint32_t r = row(j);
            const double l = static_cast<double>(element(r, s)) / static_cast<double>(pivot);
            m.set(at.element(k, r, s), static_cast<T>(l));
            const T negated = static_cast<T>(0.0 - l);
            for (std::uint32_t c = s + 1; c < n; ++c) {
                const T product = element(p, c) * negated;
                m.set(at.element(k, r, c), static_cast<T>(product + element(r, c)));
            }
        }
    }
    return std::abs(element(row(n - 1), n - 1)) >= static_cast<T>(threshold) ? ZELM_OK : ZELM_ERR_DIV_BY_ZERO;
}

// Whether an object's row numbers lie over its own matrix, which is of another type.
template <class T>
bool meetsItself(const Layout<T> &at, std::size_t count) {
    for (std::size_t k = 0; k < count; ++k)
        if (at.row(k, 0) < at.element(k, at.n, 0) && at.element(k, 0, 0) < at.row(k, at.n))
            return true;
    return false;
}

// Matrices with ones on the diagonal, factored in place with pivotIndex at every distance where the two meet.
template <class T>
void expectTheStepsOfLU(std::uint32_t n, std::size_t count, auto decompose) {
    const std::size_t rows = 4 * n * count, matrices = sizeof(T) * n * n * count;
    int compared = 0;
    for (std::size_t pivots = 0; pivots <= rows + matrices; pivots += 4) {
        const Layout<T> at{n, pivots, (rows + 7) / 8 * 8};
        if (meetsItself(at, count))
            continue;
        Memory memory(2 * rows + matrices + 8);
        for (std::size_t k = 0; k < count; ++k)
            for (std::uint32_t i = 0; i < n; ++i)
                memory.set(at.element(k, i, i), T{1});
        Memory expected = memory;
        ZelmStatus status = ZELM_OK;
        for (std::size_t k = 0; k < count && status == ZELM_OK; ++k)
            status = factorByTheSteps(expected, at, k);
        ++compared;
        EXPECT_EQ(decompose(memory, at), status);
        ASSERT_TRUE(memory == expected)
            << n << "x" << n << ", " << count << " objects, pivotIndex at " << pivots;
    }
    EXPECT_GT(compared, 0);
}

TEST(LUDecompOverlap, PivotIndexOverOtherMatrices) {
    for (const std::uint32_t count : {2u, 4u, 9u}) {
        expectTheStepsOfLU<float>(3, count, [=](Memory &m, const Layout<float> &at) {
            float *const a = m.pointer<float>(at.matrix);
            return zelmLUDecomp_ma_32f_3x3(a, 36, 12, m.pointer<std::uint32_t>(at.pivots), a, 36, 12, count);
        });
        expectTheStepsOfLU<double>(4, count, [=](Memory &m, const Layout<double> &at) {
            double *const a = m.pointer<double>(at.matrix);
            return zelmLUDecomp_ma_64f_4x4(a, 128, 32, m.pointer<std::uint32_t>(at.pivots), a, 128, 32,
                                           count);
        });
    }
}

} // namespace
