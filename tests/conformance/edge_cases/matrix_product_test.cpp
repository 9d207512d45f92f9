#include "low_memory.h"

#include "zelm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

// 1, 2, 3...
template <class T>
std::vector<T> counting(std::size_t size, T first = 1) {
    std::vector<T> numbers(size);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

template <class T>
std::vector<T *> tableOf(T *first, std::size_t size) {
    std::vector<T *> table(size);
    for (std::size_t e = 0; e < size; ++e)
        table[e] = first + e;
    return table;
}

// dst(i, j) = sum over t of a[i*aRow + t*aColumn] * b[t*bRow + j*bColumn], for whole numbers.
struct Strides {
    std::size_t row, column;
};

std::vector<float> product(const std::vector<float> &a, Strides sa, const std::vector<float> &b, Strides sb,
                           std::size_t rows, std::size_t columns, std::size_t terms) {
    std::vector<float> result;
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            float sum = 0;
            for (std::size_t t = 0; t < terms; ++t)
                sum += a[i * sa.row + t * sa.column] * b[t * sb.row + j * sb.column];
            result.push_back(sum);
        }
    return result;
}

TEST(MatrixProduct, OneMatrixByAnotherIsTheTrueProduct) {
    const auto a = counting<float>(6), b = counting<float>(6, 10);
    std::vector<float> result(9);
    EXPECT_EQ(zelmMul_mm_32f(a.data(), 2 * f, 2, 3, b.data(), 3 * f, 3, 2, result.data(), 3 * f), ZELM_OK);
    EXPECT_EQ(result, product(a, {2, 1}, b, {3, 1}, 3, 3, 2));
}

TEST(MatrixProduct, ArraysOfTheSecondAskForAnotherEquality) {
    const auto a = counting<float>(6), b = counting<float>(12, 10);
    std::vector<float> result(9), untouched(9);
    // 3x2 by 2x3: the height of the first is the width of the second.
    EXPECT_EQ(zelmMul_mma_32f(a.data(), 2 * f, 2, 3, b.data(), 0, 3 * f, 3, 2, result.data(), 0, 3 * f, 1),
              ZELM_OK);
    EXPECT_EQ(result, product(a, {2, 1}, b, {3, 1}, 3, 3, 2));
    // 2x3 by 3x4: a product, but not for mma and mama.
    result = untouched;
    EXPECT_EQ(zelmMul_mm_32f(a.data(), 3 * f, 3, 2, b.data(), 4 * f, 4, 3, result.data(), 4 * f), ZELM_OK);
    const auto expected = product(a, {3, 1}, b, {4, 1}, 2, 4, 3);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), result.begin()));
    result = untouched;
    EXPECT_EQ(zelmMul_mma_32f(a.data(), 3 * f, 3, 2, b.data(), 0, 4 * f, 4, 3, result.data(), 0, 4 * f, 1),
              ZELM_ERR_SIZE);
    EXPECT_EQ(
        zelmMul_mama_32f(a.data(), 0, 3 * f, 3, 2, b.data(), 0, 4 * f, 4, 3, result.data(), 0, 4 * f, 1),
        ZELM_ERR_SIZE);
    EXPECT_EQ(result, untouched);
    EXPECT_EQ(zelmMul_mam_32f(a.data(), 0, 3 * f, 3, 2, b.data(), 4 * f, 4, 3, result.data(), 0, 4 * f, 1),
              ZELM_OK);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), result.begin()));
}

TEST(MatrixProduct, MmaReadsItsFirstUpToTheHeightOfTheSecond) {
    // Rows of 3 elements although src1Width is 1.
    const auto a = counting<float>(6), b = counting<float>(6, 10);
    std::vector<float> result(4);
    EXPECT_EQ(zelmMul_mma_32f(a.data(), 3 * f, 1, 2, b.data(), 0, 2 * f, 2, 3, result.data(), 0, 2 * f, 1),
              ZELM_OK);
    EXPECT_EQ(result, product(a, {3, 1}, b, {2, 1}, 2, 2, 3));
}

TEST(MatrixProduct, TheRunTimeMmTHasBoundsOfItsOwn) {
    // src1 has 2 rows of 3, src2 as stored 4 rows of 3: the true product has 2 rows of 4.
    const auto a = counting<float>(12), b = counting<float>(12, 10);
    std::vector<float> result(8);
    EXPECT_EQ(zelmMul_mmT_32f(a.data(), 3 * f, 3, 2, b.data(), 3 * f, 3, 4, result.data(), 4 * f), ZELM_OK);
    EXPECT_EQ(result, product(a, {3, 1}, b, {1, 3}, 2, 4, 3));
    const std::vector<double> wideA(a.begin(), a.end()), wideB(b.begin(), b.end());
    std::vector<double> wide(8);
    EXPECT_EQ(zelmMul_mmT_64f(wideA.data(), 3 * d, 3, 2, wideB.data(), 3 * d, 3, 4, wide.data(), 4 * d),
              ZELM_OK);
    EXPECT_TRUE(std::equal(result.begin(), result.end(), wide.begin()));

    // The same arguments in S2 and P: 2 rows of 3, each sum of 4 terms, src2 read as 3 rows of 4.
    const auto others = product(a, {4, 1}, b, {1, 4}, 2, 3, 4);
    result.assign(6, 0);
    EXPECT_EQ(zelmMul_mmT_32f_S2(a.data(), 4 * f, f, 3, 2, b.data(), 4 * f, f, 3, 4, result.data(), 3 * f, f),
              ZELM_OK);
    EXPECT_EQ(result, others);
    // In a table the rows of src1 are 3 entries apart.
    const auto entriesA = tableOf(a.data(), 12), entriesB = tableOf(b.data(), 12);
    const auto entries = tableOf(result.data(), 6);
    EXPECT_EQ(zelmMul_mmT_32f_P(entriesA.data(), 0, 3, 2, entriesB.data(), 0, 3, 4, entries.data(), 0),
              ZELM_OK);
    EXPECT_EQ(result, product(a, {3, 1}, b, {1, 4}, 2, 3, 4));
}

TEST(MatrixProduct, ATransposedFirstIsReadAsASquare) {
    // src1 stored with rows of 5; of it the leftmost two columns of two rows are used.
    const auto a = counting<float>(10), b = counting<float>(6, 10);
    std::vector<float> result(6);
    EXPECT_EQ(zelmMul_mTm_32f(a.data(), 5 * f, 5, 2, b.data(), 3 * f, 3, 2, result.data(), 3 * f), ZELM_OK);
    EXPECT_EQ(result, product(a, {1, 5}, b, {3, 1}, 2, 3, 2));
    // In a table the rows are src1Height entries apart.
    const auto entriesA = tableOf(a.data(), 10), entriesB = tableOf(b.data(), 6);
    const auto entries = tableOf(result.data(), 10); // 2 * 2 of them tested, 6 used
    EXPECT_EQ(zelmMul_maTm_32f_P(entriesA.data(), 0, 5, 2, entriesB.data(), 0, 3, 2, entries.data(), 0, 1),
              ZELM_OK);
    EXPECT_EQ(result, product(a, {1, 2}, b, {3, 1}, 2, 3, 2));
}

TEST(MatrixProduct, BothTransposedGiveASquare) {
    const auto a = counting<float>(12), b = counting<float>(12, 10);
    std::vector<float> result(9);
    // H1 = W2 = 3, H2 = 2
    EXPECT_EQ(zelmMul_mTmT_32f(a.data(), 3 * f, 4, 3, b.data(), 2 * f, 3, 2, result.data(), 3 * f), ZELM_OK);
    EXPECT_EQ(result, product(a, {1, 3}, b, {1, 2}, 3, 3, 2));
}

TEST(MatrixProduct, AWidthOfZeroPassesInMamOnly) {
    float a[4] = {1, 1, 1, 1}, result[4] = {7, 7, 7, 7};
    float *const table[] = {a, a, a, a}, *const results[] = {result, result, result, result};
    float *const holed[] = {a, a, a, nullptr};
    EXPECT_EQ(zelmMul_mam_32f(a, 0, 2 * f, 2, 2, a, 2 * f, 0, 2, result, 0, 2 * f, 1), ZELM_OK);
    EXPECT_EQ(zelmMul_mam_32f_S2(a, 0, 2 * f, f, 2, 2, a, 2 * f, f, 0, 2, result, 0, 2 * f, f, 1), ZELM_OK);
    EXPECT_EQ(zelmMul_mam_32f_P(table, 0, 2, 2, table, 0, 0, 2, results, 0, 1), ZELM_OK);
    EXPECT_EQ(zelmMul_mam_32f_PS2(table, 0, f, 2, 2, table, 0, 0, 2, results, 0, f, 1), ZELM_OK);
    EXPECT_EQ(zelmMul_mam_32f_P(holed, 0, 2, 2, table, 0, 0, 2, results, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_mam_32f_L(table, 0, 2 * f, 2, 2, a, 2 * f, 0, 2, results, 0, 2 * f, 1), ZELM_OK);
    EXPECT_EQ(zelmMul_mam_32f_LS2(table, 0, 2 * f, f, 2, 2, a, 2 * f, f, 0, 2, results, 0, 2 * f, f, 1),
              ZELM_OK);
    EXPECT_EQ(zelmMul_mam_32f(a, 0, 2 * f, 2, 2, a, 2 * f, 0, 1, result, 0, 2 * f, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mam_32f(a, 0, 2 * f, 2, 0, a, 2 * f, 0, 2, result, 0, 2 * f, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mam_32f(nullptr, 0, 2 * f, 2, 2, a, 2 * f, 0, 2, result, 0, 2 * f, 1),
              ZELM_ERR_NULL_PTR);
    const double wide[4] = {1, 1, 1, 1};
    double wideResult[4] = {7, 7, 7, 7};
    EXPECT_EQ(zelmMul_mam_64f(wide, 0, 2 * d, 2, 2, wide, 2 * d, 0, 2, wideResult, 0, 2 * d, 1), ZELM_OK);
    EXPECT_EQ(wideResult[0], 7);

    EXPECT_EQ(zelmMul_mm_32f(a, 2 * f, 2, 2, a, 2 * f, 0, 2, result, 2 * f), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_maTm_32f(a, 0, 2 * f, 2, 2, a, 2 * f, 0, 2, result, 0, 2 * f, 1), ZELM_ERR_SIZE);
    // Both zero are equal, and refused.
    EXPECT_EQ(zelmMul_mamT_32f(a, 0, 2 * f, 0, 2, a, 2 * f, 0, 2, result, 0, 2 * f, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmMul_mama_32f(a, 0, 2 * f, 2, 0, a, 0, 2 * f, 0, 2, result, 0, 2 * f, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(std::to_array(result), (std::array<float, 4>{7, 7, 7, 7}));
}

TEST(MatrixProduct, ATreeOfTheThree6x6InS2) {
    // From left to right each 2^-24 is lost in 1; two of them together, or four, are not.
    std::vector<float> a(36, 0x1p-24F), b(36, 1), result(36);
    for (std::size_t e = 0; e < 6; ++e) // column 0, for both uses
        a[6 * e] = a[e] = 1;
    const auto firstRow = [&](auto function) {
        EXPECT_EQ(function(a.data(), 6 * f, f, b.data(), 6 * f, f, result.data(), 6 * f, f), ZELM_OK);
        return result[7]; // row 1, column 1
    };
    const float tree = 1 + 0x1p-22F;
    EXPECT_EQ(firstRow(zelmMul_mm_32f_6x6_S2), tree);
    EXPECT_EQ(firstRow(zelmMul_mmT_32f_6x6_S2), tree);
    EXPECT_EQ(firstRow(zelmMul_mTmT_32f_6x6_S2), tree);
    EXPECT_EQ(firstRow(zelmMul_mTm_32f_6x6_S2), 1);
}

TEST(MatrixProduct, ANullEntryLeavesAPartialSum) {
    const auto a = counting<float>(9), b = counting<float>(9, 10);
    const auto whole = product(a, {3, 1}, b, {3, 1}, 3, 3, 3);
    std::vector<float> result;
    const auto call = [&](std::size_t holeA, std::size_t holeB, std::size_t holeDst, bool fixed) {
        result.assign(9, 7);
        auto entriesA = tableOf(a.data(), 9), entriesB = tableOf(b.data(), 9);
        auto entries = tableOf(result.data(), 9);
        (holeA < 9 ? entriesA[holeA] : holeB < 9 ? entriesB[holeB] : entriesA[0]) = nullptr;
        if (holeDst < 9) {
            entriesA[0] = a.data();
            entries[holeDst] = nullptr;
        }
        return fixed
                   ? zelmMul_mm_32f_3x3_P(entriesA.data(), 0, entriesB.data(), 0, entries.data(), 0)
                   : zelmMul_mm_32f_P(entriesA.data(), 0, 3, 3, entriesB.data(), 0, 3, 3, entries.data(), 0);
    };
    for (const bool fixed : {true, false}) {
        SCOPED_TRACE(fixed);
        // Element (1, 2) of src1 is term 2 of dst (1, 0).
        EXPECT_EQ(call(5, 9, 9, fixed), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result, (std::vector<float>{whole[0], whole[1], whole[2], a[3] * b[0] + a[4] * b[3], 7, 7,
                                              7, 7, 7}));
        // Element (1, 1) of src2 is term 1 of dst (0, 1).
        EXPECT_EQ(call(9, 4, 9, fixed), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result, (std::vector<float>{whole[0], a[0] * b[1], 7, 7, 7, 7, 7, 7, 7}));
        // A null entry of dst is found before anything of its element is done.
        EXPECT_EQ(call(9, 9, 2, fixed), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result, (std::vector<float>{whole[0], whole[1], 7, 7, 7, 7, 7, 7, 7}));
        // The first term: dst is zeroed already.
        EXPECT_EQ(call(0, 9, 9, fixed), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result, (std::vector<float>{0, 7, 7, 7, 7, 7, 7, 7, 7}));
    }
}

TEST(MatrixProduct, AZeroCountComesBehindTheTablesOfPositions) {
    float a[9] = {}, result[9] = {};
    auto table = tableOf(a, 9), results = tableOf(result, 9);
    table[8] = nullptr;
    EXPECT_EQ(zelmMul_mama_32f_3x3_P(table.data(), 0, table.data(), 0, results.data(), 0, 0),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_mma_32f_PS2(table.data(), 0, 3, 3, table.data(), 0, f, 3, 3, results.data(), 0, f, 0),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_mama_32f_3x3_L(&table[8], 0, 3 * f, &table[8], 0, 3 * f, &table[8], 0, 3 * f, 0),
              ZELM_OK);
    EXPECT_EQ(zelmMul_mma_32f_LS2(a, 3 * f, f, 3, 3, &table[8], 0, 3 * f, f, 3, 3, &table[8], 0, 3 * f, f, 0),
              ZELM_OK);
}

TEST(MatrixProduct, TheTestedEntriesAreNotTheUsedOnes) {
    const auto a = counting<float>(10), b = counting<float>(6, 10);
    // mama with W1 = 5, H1 = W2 = 2, H2 = 3: 4 entries of dstTable are used and 5 * 3 tested.
    std::vector<float> result(4);
    const auto entriesA = tableOf(a.data(), 10), entriesB = tableOf(b.data(), 6);
    std::vector<float *> entries(15, result.data());
    for (std::size_t e = 0; e < 4; ++e)
        entries[e] = &result[e];
    EXPECT_EQ(zelmMul_mama_32f_P(entriesA.data(), 0, 5, 2, entriesB.data(), 0, 2, 3, entries.data(), 0, 1),
              ZELM_OK);
    EXPECT_EQ(result, product(a, {5, 1}, b, {2, 1}, 2, 2, 3));
    entries[14] = nullptr;
    EXPECT_EQ(zelmMul_mama_32f_P(entriesA.data(), 0, 5, 2, entriesB.data(), 0, 2, 3, entries.data(), 0, 1),
              ZELM_ERR_NULL_PTR);
}

class MatrixProductFollowsNull : public testing::Test {
protected:
    void SetUp() override {
        std::iota(a(), a() + 9, 1.0F);
        std::iota(b(), b() + 9, 10.0F);
    }

    float *a() const { return low_.as<float>(); }
    float *b() const { return a() + 100; }
    float *dst() const { return a() + 200; }
    std::int32_t shiftA() const { return low_.shift(); }
    std::int32_t shiftB() const { return low_.shift() + 100 * f; }
    std::int32_t shiftDst() const { return low_.shift() + 200 * f; }

    std::vector<float> takeDst(std::size_t size) {
        const std::vector<float> result(dst(), dst() + size);
        std::fill(dst(), dst() + size, 0.0F);
        return result;
    }

    static constexpr Strides stored{3, 1}, transposed{1, 3};
    std::vector<float> expected(Strides ofA, Strides ofB) {
        return product({a(), a() + 9}, ofA, {b(), b() + 9}, ofB, 3, 3, 3);
    }

    edge::LowMemory low_;
};

TEST_F(MatrixProductFollowsNull, TenMembersTestNoEntry) {
    std::vector<float *> positions; // the first is null
    for (std::uintptr_t e = 0; e < 9; ++e)
        positions.push_back(low_.entryFor(a() + e));
    float *const *p = positions.data();
    EXPECT_EQ(zelmMul_mam_32f_3x3_P(p, shiftA(), p, shiftB(), p, shiftDst(), 1), ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(stored, stored));
    EXPECT_EQ(zelmMul_maTm_32f_3x3_P(p, shiftA(), p, shiftB(), p, shiftDst(), 1), ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(transposed, stored));
    EXPECT_EQ(zelmMul_mamT_32f_3x3_P(p, shiftA(), p, shiftB(), p, shiftDst(), 1), ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(stored, transposed));
    EXPECT_EQ(zelmMul_mam_32f_3x3_PS2(p, shiftA(), f, p, shiftB(), p, shiftDst(), f, 1), ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(stored, stored));
    EXPECT_EQ(zelmMul_maTm_32f_3x3_PS2(p, shiftA(), f, p, shiftB(), p, shiftDst(), f, 1), ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(transposed, stored));
    EXPECT_EQ(zelmMul_mamT_32f_3x3_PS2(p, shiftA(), f, p, shiftB(), p, shiftDst(), f, 1), ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(stored, transposed));
    // With a count of zero too.
    EXPECT_EQ(zelmMul_mam_32f_3x3_P(p, shiftA(), p, shiftB(), p, shiftDst(), 0), ZELM_OK);

    constexpr std::int32_t row = 3 * f;
    float *const null = nullptr;
    EXPECT_EQ(zelmMul_mam_32f_3x3_LS2(&null, shiftA(), row, f, b(), row, f, &null, shiftDst(), row, f, 1),
              ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(stored, stored));
    EXPECT_EQ(zelmMul_maTm_32f_3x3_LS2(&null, shiftA(), row, f, b(), row, f, &null, shiftDst(), row, f, 1),
              ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(transposed, stored));
    EXPECT_EQ(zelmMul_mamT_32f_3x3_LS2(&null, shiftA(), row, f, b(), row, f, &null, shiftDst(), row, f, 1),
              ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(stored, transposed));
    EXPECT_EQ(zelmMul_maTmT_32f_3x3_LS2(&null, shiftA(), row, f, b(), row, f, &null, shiftDst(), row, f, 1),
              ZELM_OK);
    EXPECT_EQ(takeDst(9), expected(transposed, transposed));
}

TEST_F(MatrixProductFollowsNull, TheirNeighboursTestAllEntries) {
    std::vector<float *> positions;
    for (std::uintptr_t e = 0; e < 16; ++e)
        positions.push_back(low_.entryFor(a() + e));
    float *const *p = positions.data();
    EXPECT_EQ(zelmMul_maTmT_32f_3x3_P(p, shiftA(), p, shiftB(), p, shiftDst(), 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_mama_32f_3x3_PS2(p, shiftA(), f, p, shiftB(), f, p, shiftDst(), f, 1),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_mma_32f_3x3_P(p, shiftA(), p, shiftB(), p, shiftDst(), 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmMul_mam_32f_4x4_P(p, shiftA(), p, shiftB(), p, shiftDst(), 1), ZELM_ERR_NULL_PTR);
    float *const null = nullptr;
    EXPECT_EQ(zelmMul_mam_32f_3x3_L(&null, shiftA(), 3 * f, b(), 3 * f, &null, shiftDst(), 3 * f, 1),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(
        zelmMul_mma_32f_3x3_LS2(a(), 3 * f, f, &null, shiftB(), 3 * f, f, &null, shiftDst(), 3 * f, f, 1),
        ZELM_ERR_NULL_PTR);
    EXPECT_EQ(takeDst(9), std::vector<float>(9));
}

TEST_F(MatrixProductFollowsNull, AnEntryOfDstBehindTheTestedOnesIsWrittenThrough) {
    // mama with W1 = 1, H1 = W2 = 3, H2 = 2: of dstTable 1 * 2 entries are tested and 9 used; src1 is read up
    // to entry 2 * 1 + 1.
    std::vector<float *> positions, backwards;
    for (std::uintptr_t e = 0; e < 9; ++e) {
        positions.push_back(a() + e);
        backwards.push_back(low_.entryFor(a() + 8 - e)); // the last is null
    }
    EXPECT_EQ(zelmMul_mama_32f_P(positions.data(), 0, 1, 3, positions.data(), 0, 3, 2, backwards.data(),
                                 shiftDst(), 1),
              ZELM_OK);
    const std::vector<float> numbers(a(), a() + 9);
    auto result = takeDst(9);
    std::reverse(result.begin(), result.end());
    EXPECT_EQ(result, product(numbers, {1, 1}, numbers, {3, 1}, 3, 3, 2));
}

// The arrays of 64-bit floats whose src1 stays at its first object on data at multiples of 16.
using ArrayProduct = decltype(&zelmMul_mama_64f_3x3);

struct Stepping {
    const char *name;
    ArrayProduct function;
    std::size_t n;
    bool firstTransposed, secondTransposed;
};

const Stepping steppings[] = {
    {"mama_3x3", zelmMul_mama_64f_3x3, 3, false, false},
    {"mama_4x4", zelmMul_mama_64f_4x4, 4, false, false},
    {"mama_5x5", zelmMul_mama_64f_5x5, 5, false, false},
    {"mama_6x6", zelmMul_mama_64f_6x6, 6, false, false},
    {"maTma_3x3", zelmMul_maTma_64f_3x3, 3, true, false},
    {"maTma_4x4", zelmMul_maTma_64f_4x4, 4, true, false},
    {"maTma_5x5", zelmMul_maTma_64f_5x5, 5, true, false},
    {"maTma_6x6", zelmMul_maTma_64f_6x6, 6, true, false},
    {"mamaT_3x3", zelmMul_mamaT_64f_3x3, 3, false, true},
    {"mamaT_4x4", zelmMul_mamaT_64f_4x4, 4, false, true},
    {"mamaT_5x5", zelmMul_mamaT_64f_5x5, 5, false, true},
    {"mamaT_6x6", zelmMul_mamaT_64f_6x6, 6, false, true},
    {"maTmaT_3x3", zelmMul_maTmaT_64f_3x3, 3, true, true},
    {"maTmaT_4x4", zelmMul_maTmaT_64f_4x4, 4, true, true},
    {"maTmaT_5x5", zelmMul_maTmaT_64f_5x5, 5, true, true},
    {"maTmaT_6x6", zelmMul_maTmaT_64f_6x6, 6, true, true},
};

class ObjectStep : public testing::TestWithParam<Stepping> {
protected:
    // An operand: where it begins behind a multiple of 16, and its strides, in elements.
    struct Place {
        std::size_t start = 0, row, object;
    };
    struct Places {
        Place src1, src2, dst;
    };

    static constexpr std::size_t count = 5;

    // All at multiples of 16.
    static Places aligned() {
        const std::size_t row = (GetParam().n + 1) / 2 * 2;
        const Place place{0, row, row * GetParam().n};
        return {place, place, place};
    }

    double &at(double *memory, const Place &p, std::size_t k, std::size_t i, std::size_t j) {
        return memory[p.start + k * p.object + i * p.row + j];
    }

    double used(double *memory, const Place &p, bool transposed, std::size_t k, std::size_t i,
                std::size_t j) {
        return transposed ? at(memory, p, k, j, i) : at(memory, p, k, i, j);
    }

    ZelmStatus call(const Places &p, double *first) {
        const auto bytes = [](std::size_t elements) { return static_cast<std::int32_t>(elements) * d; };
        return GetParam().function(first + p.src1.start, bytes(p.src1.object), bytes(p.src1.row),
                                   src2_ + p.src2.start, bytes(p.src2.object), bytes(p.src2.row),
                                   dst_ + p.dst.start, bytes(p.dst.object), bytes(p.dst.row), count);
    }

    void expectSteps(const Places &p, bool advances) {
        const Stepping &s = GetParam();
        for (std::size_t e = 0; e < elements; ++e) {
            src1_[e] = 1 + std::fmod(static_cast<double>(e) * 0.7312, 1.0);
            src2_[e] = 1 + std::fmod(static_cast<double>(e) * 0.2179, 1.0);
            dst_[e] = 0;
        }
        EXPECT_EQ(call(p, src1_), ZELM_OK);
        for (std::size_t k = 0; k < count; ++k)
            for (std::size_t i = 0; i < s.n; ++i)
                for (std::size_t j = 0; j < s.n; ++j) {
                    double sum = 0;
                    for (std::size_t t = 0; t < s.n; ++t)
                        sum += used(src1_, p.src1, s.firstTransposed, advances ? k : 0, i, t) *
                               used(src2_, p.src2, s.secondTransposed, k, t, j);
                    ASSERT_EQ(at(dst_, p.dst, k, i, j), sum) << k << ' ' << i << ' ' << j;
                }
    }

    static constexpr std::size_t elements = 400;
    alignas(16) double src1_[elements], src2_[elements], dst_[elements];
};

TEST_P(ObjectStep, StaysAtTheFirstObjectOnMultiplesOf16) {
    Places p = aligned();
    expectSteps(p, false);
    p.src1.start = 1; // neither the address nor the strides of src1 matter, nor src2ObjStride
    p.src1.row += 1;
    p.src1.object += 9;
    expectSteps(p, false);
    p.src2.object += 1;
    expectSteps(p, false);
}

TEST_P(ObjectStep, AdvancesIfAnyOfTheFiveIsNoMultipleOf16) {
    for (std::size_t which = 0; which < 5; ++which) {
        SCOPED_TRACE(which);
        Places p = aligned();
        p.src2.object += 2 * GetParam().n; // room for longer rows
        p.dst.object += 2 * GetParam().n;
        std::size_t *const five[] = {&p.src2.start, &p.src2.row, &p.dst.start, &p.dst.object, &p.dst.row};
        expectSteps(p, false);
        *five[which] += 1;
        expectSteps(p, true);
    }
}

TEST_P(ObjectStep, IsNotInPlaceOfTheFirstOnMultiplesOf16) {
    const Places p = aligned();
    expectSteps(p, false);
    const std::vector<double> apart(dst_, dst_ + elements);
    std::copy(src1_, src1_ + elements, dst_);
    EXPECT_EQ(call(p, dst_), ZELM_OK);
    bool same = true;
    for (std::size_t k = 0; k < count; ++k)
        for (std::size_t i = 0; i < GetParam().n; ++i)
            for (std::size_t j = 0; j < GetParam().n; ++j)
                same = same && at(dst_, p.dst, k, i, j) == apart[k * p.dst.object + i * p.dst.row + j];
    EXPECT_FALSE(same);
}

INSTANTIATE_TEST_SUITE_P(MatrixProduct, ObjectStep, testing::ValuesIn(steppings),
                         [](const auto &test) { return std::string(test.param.name); });

TEST(MatrixProduct, ArraysOf32BitFloatsAlwaysAdvance) {
    alignas(16) float a[32] = {}, b[32] = {}, result[32] = {};
    for (std::size_t i = 0; i < 4; ++i) {
        a[5 * i] = 1;
        a[16 + 5 * i] = 3;
        b[5 * i] = b[16 + 5 * i] = 1;
    }
    EXPECT_EQ(zelmMul_mama_32f_4x4(a, 16 * f, 4 * f, b, 16 * f, 4 * f, result, 16 * f, 4 * f, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(result), std::to_array(a));
}

// Rows of dst begin inside of each other: a later row's elements stand over an earlier one's.
TEST(MatrixProduct, RowsOfTheResultMayLieAcrossEachOther) {
    constexpr std::size_t terms = 3;
    const std::vector<float> a = counting<float>(6 * terms), b = counting<float>(terms * 12);
    for (std::uint32_t rows = 1; rows <= 6; ++rows)
        for (std::uint32_t columns = 1; columns <= 12; ++columns)
            for (std::uint32_t apart = 0; apart <= columns; ++apart) {
                std::vector<float> expected(100, 7), single = expected, array = expected;
                for (std::size_t i = 0; i < rows; ++i)
                    for (std::size_t j = 0; j < columns; ++j) {
                        float sum = 0;
                        for (std::size_t t = 0; t < terms; ++t)
                            sum += a[i * terms + t] * b[t * 12 + j];
                        expected[i * apart + j] = sum;
                    }
                const auto step = static_cast<std::int32_t>(apart) * f;
                EXPECT_EQ(zelmMul_mm_32f(a.data(), terms * f, terms, rows, b.data(), 12 * f, columns, terms,
                                         single.data(), step),
                          ZELM_OK);
                EXPECT_EQ(zelmMul_mam_32f(a.data(), 0, terms * f, terms, rows, b.data(), 12 * f, columns,
                                          terms, array.data(), 0, step, 1),
                          ZELM_OK);
                ASSERT_EQ(single, expected) << rows << " rows of " << columns << ", " << apart << " apart";
                ASSERT_EQ(array, expected) << rows << " rows of " << columns << ", " << apart << " apart";
            }
}

} // namespace
