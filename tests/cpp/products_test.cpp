// Products of every shape, operand by operand transposed or not, against plain loops.
#include <gtest/gtest.h>

#include "zelm.hpp"

namespace {

using namespace zelm;

constexpr std::size_t kObjects = 3, kMost = 7;

enum class Way { Dense, Strided, List };

/** An operand of any shape in memory of its own. */
template <class T>
struct Matrices {
    std::size_t rows, columns;
    Way way;
    std::vector<T> memory = std::vector<T>(kObjects * 2 * kMost * kMost + 64);
    std::vector<T *> table;

    Matrices(std::size_t r, std::size_t c, Way w, unsigned seed) : rows(r), columns(c), way(w) {
        for (T &x : memory) {
            seed = seed * 1664525u + 1013904223u;
            x = static_cast<T>(static_cast<int>(seed >> 16) % 1000) / 256;
        }
        for (std::size_t k = 0; k < kObjects; ++k) {
            table.push_back(&memory[((k * 2) % kObjects) * object()]);
        }
    }
    std::size_t step() const { return way == Way::Strided ? 2 : 1; }
    std::size_t row() const { return columns * step() + 1; }
    std::size_t object() const { return rows * row() + 2; }
    T &at(std::size_t k, std::size_t i, std::size_t j) {
        T *first = way == Way::List ? table[k] : &memory[k * object()];
        return first[i * row() + j * step()];
    }

    template <Way W, bool Array>
    auto view() {
        const auto r = row_bytes(static_cast<std::ptrdiff_t>(row() * sizeof(T)));
        const auto o = object_bytes(static_cast<std::ptrdiff_t>(object() * sizeof(T)));
        const shape s{rows, columns};
        if constexpr (!Array && W == Way::Strided) {
            return as_matrix(memory.data(), s, r, element_bytes(2 * sizeof(T)));
        } else if constexpr (!Array) {
            return as_matrix(&at(0, 0, 0), s, r);
        } else if constexpr (W == Way::List) {
            return as_matrices_by_object(table.data(), s, kObjects, r);
        } else if constexpr (W == Way::Strided) {
            return as_matrices(memory.data(), s, kObjects, o, r, element_bytes(2 * sizeof(T)));
        } else {
            return as_matrices(memory.data(), s, kObjects, o, r);
        }
    }
};

template <bool Turned, class V>
auto turned(const V &v) {
    if constexpr (Turned) {
        return transposed(v);
    } else {
        return v;
    }
}

template <class T, Way W, bool ArrayA, bool ArrayB, bool TurnA, bool TurnB>
void multiply(std::size_t rows, std::size_t terms, std::size_t columns) {
    Matrices<T> a(TurnA ? terms : rows, TurnA ? rows : terms, W, 1),
        b(TurnB ? columns : terms, TurnB ? terms : columns, W, 2), d(rows, columns, W, 3);
    constexpr bool array = ArrayA || ArrayB;
    const auto result = mul(turned<TurnA>(a.template view<W, ArrayA>()),
                            turned<TurnB>(b.template view<W, ArrayB>()), d.template view<W, array>());
    ASSERT_TRUE(result) << result.message();
    Matrices<T> expected(rows, columns, W, 3);
    for (std::size_t k = 0; k < (array ? kObjects : 1); ++k) {
        for (std::size_t i = 0; i < rows; ++i) {
            for (std::size_t j = 0; j < columns; ++j) {
                T sum = 0;
                for (std::size_t t = 0; t < terms; ++t) {
                    const T x = TurnA ? a.at(ArrayA ? k : 0, t, i) : a.at(ArrayA ? k : 0, i, t);
                    const T y = TurnB ? b.at(ArrayB ? k : 0, j, t) : b.at(ArrayB ? k : 0, t, j);
                    sum = sum + x * y;
                }
                expected.at(k, i, j) = sum;
            }
        }
    }
    ASSERT_EQ(d.memory, expected.memory) << rows << 'x' << terms << " by " << terms << 'x' << columns;
}

template <class T, Way W, bool ArrayA, bool ArrayB>
void multiplyAll() {
    for (std::size_t rows = 1; rows <= kMost; rows += 1) {
        for (std::size_t terms = 1; terms <= kMost; terms += 2) {
            for (std::size_t columns = 1; columns <= kMost; columns += 1) {
                multiply<T, W, ArrayA, ArrayB, false, false>(rows, terms, columns);
                multiply<T, W, ArrayA, ArrayB, true, false>(rows, terms, columns);
                multiply<T, W, ArrayA, ArrayB, false, true>(rows, terms, columns);
                multiply<T, W, ArrayA, ArrayB, true, true>(rows, terms, columns);
                if (testing::Test::HasFatalFailure()) {
                    return;
                }
            }
        }
    }
}

TEST(Products, OfOneMatrixByOneOfAnyShape) {
    multiplyAll<float, Way::Dense, false, false>();
    multiplyAll<double, Way::Strided, false, false>();
}

TEST(Products, OfAnArrayByOneMatrixOfAnyShape) {
    multiplyAll<float, Way::Dense, true, false>();
    multiplyAll<float, Way::Strided, true, false>();
    multiplyAll<double, Way::List, true, false>();
}

TEST(Products, OfOneMatrixByAnArrayOfAnyShape) {
    multiplyAll<double, Way::Dense, false, true>();
    multiplyAll<float, Way::Strided, false, true>();
    multiplyAll<float, Way::List, false, true>();
}

TEST(Products, OfTwoArraysOfAnyShape) {
    multiplyAll<double, Way::Dense, true, true>();
    multiplyAll<double, Way::Strided, true, true>();
    multiplyAll<float, Way::List, true, true>();
}

TEST(Products, OfSizesKnownAtCompileTime) {
    double a[2][3] = {{1, 2, 3}, {4, 5, 6}}, b[3][5], d[2][5];
    for (int i = 0; i < 15; ++i) {
        b[i / 5][i % 5] = i;
    }
    ASSERT_TRUE(mul(a, b, d));
    EXPECT_EQ(d[1][4], 4 * 4 + 5 * 9 + 6 * 14);
    double e[3][3];
    ASSERT_TRUE(mul(transposed(a), a, e));
    EXPECT_EQ(e[0][2], 1 * 3 + 4 * 6);
    double x[2] = {7, 8}, y[3];
    ASSERT_TRUE(mul(transposed(a), x, y));
    EXPECT_EQ(y[2], 3 * 7 + 6 * 8);
    // By components, in tables: 2x2 matrices of two objects each, times a matrix used transposed.
    std::vector<float> c00{1, 2}, c01{3, 4}, c10{5, 6}, c11{7, 8}, r0(2), r1(2), r2(2), r3(2);
    const float by[2][2] = {{1, 10}, {100, 1000}};
    ASSERT_TRUE(
        (mul(components<2, 2>(c00, c01, c10, c11), transposed(by), components<2, 2>(r0, r1, r2, r3))));
    EXPECT_EQ(r0, (std::vector<float>{31, 42}));
    EXPECT_EQ(r3, (std::vector<float>{7500, 8600}));
    ASSERT_TRUE((mul(by, components<2, 2>(c00, c01, c10, c11), components<2, 2>(r0, r1, r2, r3))));
    EXPECT_EQ(r1, (std::vector<float>{1 * 3 + 10 * 7, 1 * 4 + 10 * 8}));
    EXPECT_EQ(r2, (std::vector<float>{100 * 1 + 1000 * 5, 100 * 2 + 1000 * 6}));
}

TEST(Products, AllObjectsOfAlignedArraysHaveTheirOwnFactor) {
    // Everything at multiples of 16 bytes: the form of adjacent doubles would take object 0 of the first
    // array for all.
    struct alignas(16) Matrix {
        double m[4][4];
    };
    std::vector<Matrix> a(3), b(3), d(3);
    for (std::size_t k = 0; k < 3; ++k) {
        for (int i = 0; i < 4; ++i) {
            a[k].m[i][i] = static_cast<double>(k + 1);
            b[k].m[i][i] = 1;
        }
    }
    ASSERT_TRUE(mul(field(a, &Matrix::m), field(b, &Matrix::m), field(d, &Matrix::m)));
    EXPECT_EQ(d[2].m[3][3], 3);
}

TEST(Products, DifferencesOfTransposesAreRight) {
    float a[6][6], b[6][6], d[6][6];
    for (int i = 0; i < 36; ++i) {
        a[i / 6][i % 6] = static_cast<float>(i * i);
        b[i / 6][i % 6] = static_cast<float>(i);
    }
    ASSERT_TRUE(sub(transposed(a), transposed(b), d));
    for (int i = 0; i < 6; ++i) {
        for (int j = 0; j < 6; ++j) {
            EXPECT_EQ(d[i][j], a[j][i] - b[j][i]);
        }
    }
}

TEST(Products, SumsOfWideAndTallTransposesInTables) {
    // Tall ones would be tested behind their table by the form of single objects.
    float a[2][3] = {{1, 2, 3}, {4, 5, 6}}, b[3][2] = {{10, 20}, {30, 40}, {50, 60}}, d[3][2] = {};
    const float *ta[6], *tb[6];
    float *td[6];
    for (int e = 0; e < 6; ++e) {
        ta[e] = &a[0][0] + e;
        tb[e] = &b[0][0] + e;
        td[e] = &d[0][0] + e;
    }
    ASSERT_TRUE(add(transposed(as_matrix_by_element(ta, shape{2, 3})), as_matrix_by_element(tb, shape{3, 2}),
                    as_matrix_by_element(td, shape{3, 2})));
    EXPECT_EQ(d[2][0], 3 + 50);
    EXPECT_EQ(d[0][1], 4 + 20);
    EXPECT_EQ(d[2][1], 6 + 60);
}

} // namespace
