// Products of every order with each operand in front of a page that can't be touched, and results behind
// tables whose positions lie across each other.
#include "guarded_page.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

// The dense forms of one order and type.
template <class T>
struct Forms {
    std::uint32_t n;
    ZelmStatus (*mv)(const T *, std::int32_t, const T *, T *);
    ZelmStatus (*mTv)(const T *, std::int32_t, const T *, T *);
    ZelmStatus (*mva)(const T *, std::int32_t, const T *const *, std::int32_t, T *const *, std::int32_t,
                      std::uint32_t);
    ZelmStatus (*gaxpy)(const T *, std::int32_t, const T *, const T *, T *);
    ZelmStatus (*gaxpys)(const T *, std::int32_t, const T *const *, std::int32_t, const T *const *,
                         std::int32_t, T *const *, std::int32_t, std::uint32_t);
};

#define FORMS(type, n)                                                                                       \
    {                                                                                                        \
        n, zelmMul_mv_##type##_##n##x##n, zelmMul_mTv_##type##_##n##x##n,                                    \
            zelmMul_mva_##type##_##n##x##n##_L, zelmGaxpy_v_##type##_##n##x##n,                              \
            zelmGaxpy_va_##type##_##n##x##n##_L                                                              \
    }
constexpr Forms<float> formsOf32f[] = {FORMS(32f, 3), FORMS(32f, 4), FORMS(32f, 5), FORMS(32f, 6)};
constexpr Forms<double> formsOf64f[] = {FORMS(64f, 3), FORMS(64f, 4), FORMS(64f, 5), FORMS(64f, 6)};

// Numbers whose sums are exact in any order.
template <class T>
struct Operands {
    GuardedPage pages[4];
    std::uint32_t n;
    T *matrix, *x, *z, *result;
    explicit Operands(std::uint32_t order)
        : n(order), matrix(pages[0].last<T>(n * n)), x(pages[1].last<T>(n)), z(pages[2].last<T>(n)),
          result(pages[3].last<T>(n)) {
        for (std::uint32_t e = 0; e < n * n; ++e)
            matrix[e] = static_cast<T>(1 + e * e % 7 + 10 * e);
        for (std::uint32_t j = 0; j < n; ++j) {
            x[j] = static_cast<T>(2 + 3 * j);
            z[j] = static_cast<T>(1000 + j);
        }
    }
    std::vector<T> product(bool isTransposed, bool adds) const {
        std::vector<T> sums;
        for (std::uint32_t i = 0; i < n; ++i) {
            T sum = adds ? z[i] : 0;
            for (std::uint32_t j = 0; j < n; ++j)
                sum += matrix[isTransposed ? j * n + i : i * n + j] * x[j];
            sums.push_back(sum);
        }
        return sums;
    }
    // What stands in dst; it is cleared for the next one.
    std::vector<T> taken() const {
        std::vector<T> values(result, result + n);
        std::fill_n(result, n, T{0});
        return values;
    }
};

template <class T>
void expectProducts(const Forms<T> &forms) {
    const std::uint32_t n = forms.n;
    SCOPED_TRACE(n);
    const Operands<T> o(n);
    const auto row = static_cast<std::int32_t>(n * sizeof(T));
    EXPECT_EQ(forms.mv(o.matrix, row, o.x, o.result), ZELM_OK);
    EXPECT_EQ(o.taken(), o.product(false, false));
    EXPECT_EQ(forms.mTv(o.matrix, row, o.x, o.result), ZELM_OK);
    EXPECT_EQ(o.taken(), o.product(true, false));
    EXPECT_EQ(forms.gaxpy(o.matrix, row, o.x, o.z, o.result), ZELM_OK);
    EXPECT_EQ(o.taken(), o.product(false, true));
    for (const std::uint32_t count : {1u, 2u, 9u}) {
        std::vector<T> before(count * n);
        std::vector<const T *> vectors(count, o.x), added(count, o.z);
        std::vector<T *> results;
        for (std::uint32_t k = 0; k + 1 < count; ++k)
            results.push_back(&before[k * n]);
        results.push_back(o.result);
        EXPECT_EQ(forms.mva(o.matrix, row, vectors.data(), 0, results.data(), 0, count), ZELM_OK);
        EXPECT_EQ(o.taken(), o.product(false, false));
        EXPECT_EQ(forms.gaxpys(o.matrix, row, vectors.data(), 0, added.data(), 0, results.data(), 0, count),
                  ZELM_OK);
        EXPECT_EQ(o.taken(), o.product(false, true));
        for (std::uint32_t e = 0; e + n < count * n; ++e)
            EXPECT_EQ(before[e], o.product(false, true)[e % n]);
    }
}

TEST(ProductEdges, DenseOperandsEndBeforeAPage) {
    for (const auto &forms : formsOf32f)
        expectProducts(forms);
    for (const auto &forms : formsOf64f)
        expectProducts(forms);
}

// ---- results behind tables, at every distance from position to position

template <class T>
void expectResultsInOrder(auto multiply) {
    constexpr std::uint32_t n = 3, count = 20;
    for (std::uint32_t apart = 0; apart <= count + 1; ++apart) {
        std::vector<T> matrix(n * n), x(n * count), memory(n * (count + 2)), expected = memory;
        for (std::uint32_t e = 0; e < n * n; ++e)
            matrix[e] = static_cast<T>(1 + e);
        for (std::uint32_t e = 0; e < n * count; ++e)
            x[e] = static_cast<T>(e % 11);
        for (std::uint32_t k = 0; k < count; ++k)
            for (std::uint32_t i = 0; i < n; ++i) {
                T sum = 0;
                for (std::uint32_t j = 0; j < n; ++j)
                    sum += matrix[i * n + j] * x[j * count + k];
                expected[i * apart + k] = sum;
            }
        std::vector<const T *> entries, vectors;
        std::vector<T *> results;
        for (T &element : matrix)
            entries.push_back(&element);
        for (std::uint32_t j = 0; j < n; ++j) {
            vectors.push_back(&x[j * count]);
            results.push_back(&memory[j * apart]);
        }
        EXPECT_EQ(multiply(entries.data(), vectors.data(), results.data(), count), ZELM_OK);
        EXPECT_EQ(memory, expected) << "positions " << apart << " apart";
    }
}

TEST(ProductEdges, PositionsOfResultsAcrossEachOther) {
    expectResultsInOrder<float>([](auto *a, auto *x, auto *d, std::uint32_t count) {
        return zelmMul_mva_32f_3x3_P(a, 0, x, 0, d, 0, count);
    });
    expectResultsInOrder<double>([](auto *a, auto *x, auto *d, std::uint32_t count) {
        return zelmMul_mva_64f_3x3_P(a, 0, x, 0, d, 0, count);
    });
    expectResultsInOrder<float>([](auto *a, auto *x, auto *d, std::uint32_t count) {
        return zelmMul_mva_32f_3x3_PS2(a, 0, x, 0, sizeof(float), d, 0, sizeof(float), count);
    });
}

// ---- in place, in a form where that gives another product: each element reads its row and column anew

template <class T>
void expectReadAnew(ZelmStatus (*multiply)(const T *, std::int32_t, std::int32_t, const T *, std::int32_t,
                                           std::int32_t, T *, std::int32_t, std::int32_t)) {
    constexpr std::size_t n = 3;
    constexpr std::int32_t row = 2 * n * sizeof(T), element = 2 * sizeof(T);
    for (const bool overFirst : {true, false}) {
        std::vector<T> memory(2 * n * n), other(2 * n * n);
        for (std::size_t e = 0; e < 2 * n * n; ++e) {
            memory[e] = static_cast<T>(1 + e % 5);
            other[e] = static_cast<T>(e % 4);
        }
        std::vector<T> expected = memory;
        const std::vector<T> &first = overFirst ? expected : other, &second = overFirst ? other : expected;
        for (std::size_t i = 0; i < n; ++i)
            for (std::size_t j = 0; j < n; ++j) {
                T sum = 0;
                for (std::size_t t = 0; t < n; ++t)
                    sum += first[2 * (i * n + t)] * second[2 * (t * n + j)];
                expected[2 * (i * n + j)] = sum;
            }
        const std::vector<T> &a = overFirst ? memory : other, &b = overFirst ? other : memory;
        EXPECT_EQ(multiply(a.data(), row, element, b.data(), row, element, memory.data(), row, element),
                  ZELM_OK);
        EXPECT_EQ(memory, expected) << (overFirst ? "src1" : "src2");
    }
}

TEST(ProductEdges, InPlaceElementsAreReadAnew) {
    expectReadAnew<float>(zelmMul_mm_32f_3x3_S2);
    expectReadAnew<double>(zelmMul_mm_64f_3x3_S2);
}

} // namespace
