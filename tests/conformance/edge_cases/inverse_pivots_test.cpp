// Invert 5x5 and 6x6: gates, searches, pairs of columns, singular exits and what they leave in dst.
#include "inverse_cases.h"

#include <algorithm>
#include <array>

namespace {

using zelmtest::Form;
using zelmtest::invert;
using zelmtest::refinedReciprocal;
using zelmtest::unit;

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

// A matrix whose first rows stand in the columns given and which is regular: the other rows are plain.
template <class T>
std::vector<T> permutation(const std::vector<std::uint32_t> &columns) {
    const auto n = static_cast<std::uint32_t>(columns.size());
    std::vector<T> a(n * n);
    for (std::uint32_t i = 0; i < n; ++i)
        a[i * n + columns[i]] = 1;
    return a;
}

template <class T>
void expectTransposed(const zelmtest::Inverted<T> &result, const std::vector<T> &a, std::uint32_t n) {
    EXPECT_EQ(result.status, ZELM_OK);
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j) // 1, or the reciprocal of 1 that a 32f form approximates
            EXPECT_NEAR(static_cast<double>(result.elements[i * n + j]), static_cast<double>(a[j * n + i]),
                        1e-5);
}

TEST(InversePivots, ColumnFiveNeverCompetesInTheS2Family) {
    const std::vector<std::uint32_t> columns = {5, 1, 2, 3, 4, 0};
    const auto a32 = permutation<float>(columns);
    const auto a64 = permutation<double>(columns);
    expectTransposed(invert(Form::Standard, 6, a32), a32, 6);
    expectTransposed(invert(Form::Standard, 6, a64), a64, 6);
    for (const auto status : {invert(Form::S2, 6, a32).status, invert(Form::S2, 6, a64).status})
        EXPECT_EQ(status, ZELM_ERR_DIV_BY_ZERO);

    std::vector<double> x(36, 7);
    const double *list = a64.data(), *table[36];
    double *resultList = x.data(), *resultTable[36];
    for (std::size_t e = 0; e < 36; ++e) {
        table[e] = &a64[e];
        resultTable[e] = &x[e];
    }
    EXPECT_EQ(zelmInvert_m_64f_6x6_P(table, 0, resultTable, 0), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(zelmInvert_ma_64f_6x6_P(table, 0, resultTable, 0, 1), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(zelmInvert_ma_64f_6x6_PS2(table, 0, 0, resultTable, 0, 0, 1), ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(zelmInvert_ma_64f_6x6_LS2(&list, 0, 6 * d, d, &resultList, 0, 6 * d, d, 1),
              ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(x, std::vector<double>(36, 7));
    EXPECT_EQ(zelmInvert_ma_64f_6x6_L(&list, 0, 6 * d, &resultList, 0, 6 * d, 1), ZELM_OK);
}

// Every place that the first rows can stand in, with nothing else in them.
template <class T>
void expectEveryPermutation(std::uint32_t n) {
    std::vector<std::uint32_t> columns(n);
    for (std::uint32_t i = 0; i < n; ++i)
        columns[i] = i;
    do {
        const auto a = permutation<T>(columns);
        expectTransposed(invert(Form::Standard, n, a), a, n);
        const bool beyond =
            n == 6 && std::find(columns.begin(), columns.begin() + 3, 5u) != columns.begin() + 3;
        if (beyond)
            EXPECT_EQ(invert(Form::S2, n, a).status, ZELM_ERR_DIV_BY_ZERO);
        else
            expectTransposed(invert(Form::S2, n, a), a, n);
    } while (std::next_permutation(columns.begin(), columns.end()));
}

TEST(InversePivots, EveryPairAndTripleOfColumns) {
    expectEveryPermutation<float>(5);
    expectEveryPermutation<double>(5);
    expectEveryPermutation<float>(6);
    expectEveryPermutation<double>(6);
}

TEST(InversePivots, TwoEqualFirstRowsHaveNoPair) {
    for (std::uint32_t n = 5; n <= 6; ++n) {
        std::vector<double> a = unit<double>(n);
        for (std::uint32_t j = 0; j < n; ++j)
            a[j] = a[n + j] = j + 1;
        for (const Form form : {Form::Standard, Form::S2}) {
            const auto result = invert(form, n, a);
            EXPECT_EQ(result.status, ZELM_ERR_DIV_BY_ZERO) << n;
            EXPECT_EQ(result.elements, std::vector<double>(n * n, 7)) << n;
        }
    }
}

TEST(InversePivots, ASingularRemainder) {
    for (std::uint32_t n = 5; n <= 6; ++n) {
        std::vector<double> a = unit<double>(n);
        a[n * n - 1] = 0;
        const auto standard = invert(Form::Standard, n, a); // 1 / 0 is not 0
        EXPECT_EQ(standard.status, ZELM_OK);
        EXPECT_FALSE(std::isfinite(standard.elements[n * n - 1]));
        const auto s2 = invert(Form::S2, n, a);
        EXPECT_EQ(s2.status, ZELM_ERR_DIV_BY_ZERO);
        EXPECT_EQ(s2.elements, std::vector<double>(n * n, 7));
        a[n * n - 1] = 1e-15;
        EXPECT_EQ(invert(Form::S2, n, a).status, ZELM_OK);
        a[n * n - 1] = std::nextafter(1e-15, 0.0);
        EXPECT_EQ(invert(Form::S2, n, a).status, ZELM_ERR_DIV_BY_ZERO);
    }
}

// The 64f standard forms take the first pair that will do, though a later one is far greater: what they lose
// by that shows in the result.
TEST(InversePivots, TheFirstPairOf64fStandardIsTakenAndNotTheLargest) {
    std::mt19937 random(1);
    for (std::uint32_t n = 5; n <= 6; ++n) {
        std::vector<double> a = zelmtest::randomMatrix<double>(random, n, 10);
        a[1] = a[0];
        a[n + 1] = a[n] + 1e-13 / a[0]; // columns 0 and 1 have a determinant of 1e-13
        EXPECT_GT(zelmtest::residual(a, invert(Form::Standard, n, a).elements, n), 1e-6) << n;
        EXPECT_LT(zelmtest::residual(a, invert(Form::S2, n, a).elements, n), 1e-7) << n;
        a[n + 1] = a[n]; // now they are passed over
        EXPECT_LT(zelmtest::residual(a, invert(Form::Standard, n, a).elements, n), 1e-7) << n;
    }
}

TEST(InversePivots, ASmallFirstElementPassesTheGateOf32fStandard) {
    std::mt19937 random(2);
    for (std::uint32_t n = 5; n <= 6; ++n) {
        std::vector<float> a = zelmtest::randomMatrix<float>(random, n, 10);
        a[0] = 1e-6f;
        EXPECT_GT(zelmtest::residual(a, invert(Form::Standard, n, a).elements, n), 1e-3) << n;
        EXPECT_LT(zelmtest::residual(a, invert(Form::S2, n, a).elements, n), 1e-3) << n;
        a[0] = 1e-8f; // too small: the rest of the row is searched
        EXPECT_LT(zelmtest::residual(a, invert(Form::Standard, n, a).elements, n), 1e-3) << n;
    }
}

TEST(InversePivots, TheGateOf6x6LooksAtTwoColumns) {
    std::mt19937 random(3);
    std::vector<float> a = zelmtest::randomMatrix<float>(random, 6, 10);
    a[0] = a[1] = 2; // both columns begin alike
    a[6] = a[7] = 1;
    EXPECT_LT(zelmtest::residual(a, invert(Form::Standard, 6, a).elements, 6), 1e-3);
    a[7] = 1 + 0x1p-22f; // a determinant of 2^-21 is outside of the band
    EXPECT_GT(zelmtest::residual(a, invert(Form::Standard, 6, a).elements, 6), 1e-3);
}

// dst after a singular exit: `rows` in its first rows, the rest untouched.
void expectLeft(std::uint32_t n, const std::vector<float> &a, const std::vector<float> &rows) {
    const auto result = invert(Form::Standard, n, a);
    std::vector<float> expected(n * n, 7);
    std::copy(rows.begin(), rows.end(), expected.begin());
    EXPECT_EQ(result.status, ZELM_ERR_DIV_BY_ZERO);
    EXPECT_EQ(result.elements, expected) << n;
}

const float one = refinedReciprocal(1);

TEST(InversePivots, AZeroLastRowLeavesTheReciprocalOfThePivot) {
    std::vector<float> a5 = unit<float>(5), a6 = unit<float>(6);
    a5[0] = a6[0] = 3;
    a5[24] = a6[35] = 0;
    expectLeft(5, a5, {refinedReciprocal(3)});
    // In 6x6 row 1 stands in dst as the second pivot's; the rest of row 0 does not.
    expectLeft(6, a6, {refinedReciprocal(3), 7, 7, 7, 7, 7, 0, one, 0, 0, 0, 0});
}

TEST(InversePivots, NoFirstPivotLeavesTheFirstRows) {
    std::vector<float> a5 = unit<float>(5), a6 = unit<float>(6);
    for (std::uint32_t j = 0; j < 6; ++j)
        a6[j] = 1e-9f * static_cast<float>(j);
    for (std::uint32_t j = 0; j < 5; ++j)
        a5[j] = -1e-9f * static_cast<float>(j);
    expectLeft(5, a5, std::vector<float>(a5.begin(), a5.begin() + 5));
    expectLeft(6, a6, std::vector<float>(a6.begin(), a6.begin() + 12));
}

TEST(InversePivots, NoSecondPivotLeavesTheReducedRow) {
    std::vector<float> a = unit<float>(6);
    const float rows[] = {0, 0, 0, 4, 0, 0, 0, 0, 0, 8, 0, 0}; // row 1 is twice row 0
    std::copy(std::begin(rows), std::end(rows), a.begin());
    const float r = refinedReciprocal(4), l = 8 * r;
    expectLeft(6, a, {r, 0, 0, 0, 0, 0, l, 0, 0, 0, 0, 0});
}

// Which of equal magnitudes is taken shows in row 0 after a singular exit: it begins with the reciprocal, and
// where the pivot was stands what stood in column 0.
TEST(InversePivots, TiesOf5x5) {
    const std::uint32_t order[] = {3, 2, 1, 4}; // column 0 can't tie: the gate has seen it
    for (std::size_t first = 0; first < 4; ++first) {
        std::vector<float> a = unit<float>(5);
        a[0] = 1e-9f;
        a[24] = 0;
        for (std::size_t later = first; later < 4; ++later)
            a[order[later]] = later % 2 == 0 ? -2.0f : 2.0f;
        const std::uint32_t taken = order[first];
        std::vector<float> row(a.begin(), a.begin() + 5);
        row[0] = refinedReciprocal(a[taken]);
        row[taken] = 1e-9f;
        for (std::uint32_t i = 1; i < 5; ++i) // zero rows below: whatever is eliminated, nothing comes in
            for (std::uint32_t j = 0; j < 5; ++j)
                a[i * 5 + j] = 0;
        expectLeft(5, a, row);
    }
}

TEST(InversePivots, TiesOf6x6) {
    for (std::uint32_t taken = 1; taken < 6; ++taken) {
        std::vector<float> a(36);
        a[0] = 1e-9f;
        for (std::uint32_t j = 1; j <= taken; ++j)
            a[j] = j % 2 == 0 ? -2.0f : 2.0f;
        std::vector<float> rows(a.begin(), a.begin() + 12);
        rows[0] = refinedReciprocal(a[taken]);
        rows[taken] = 1e-9f;
        expectLeft(6, a, rows); // no second pivot either
    }
}

TEST(InversePivots, TiesOfTheSecondPivotOf6x6) {
    for (std::uint32_t taken = 2; taken < 6; ++taken) {
        std::vector<float> a(36);
        a[1] = 4; // the first pivot comes from column 1; column 0 takes its place
        for (std::uint32_t j = 2; j <= taken; ++j)
            a[6 + j] = j % 2 == 0 ? -2.0f : 2.0f;
        std::vector<float> rows(12);
        rows[0] = refinedReciprocal(4);
        std::copy(a.begin() + 7, a.begin() + 12, rows.begin() + 7);
        rows[7] = refinedReciprocal(a[6 + taken]);
        rows[6 + taken] = 0; // what stood in column 1
        expectLeft(6, a, rows);
    }
}

TEST(InversePivots, AFailingObjectInTheMiddleOfAnArray) {
    std::vector<float> a(3 * 25), x(3 * 25, 7);
    for (const std::size_t k : {0u, 25u, 50u})
        for (std::size_t i = 0; i < 5; ++i)
            a[k + i * 6] = 2;
    a[25 + 24] = 0;
    EXPECT_EQ(zelmInvert_ma_32f_5x5(a.data(), 25 * f, 5 * f, x.data(), 25 * f, 5 * f, 3),
              ZELM_ERR_DIV_BY_ZERO);
    EXPECT_NEAR(x[24], 0.5, 1e-6);
    EXPECT_EQ(x[25], refinedReciprocal(2));
    EXPECT_EQ(std::count(x.begin() + 25, x.end(), 7.0f), 49);
}

} // namespace
