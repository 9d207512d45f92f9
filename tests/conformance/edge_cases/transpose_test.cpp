#include "grid_table.h"
#include "guarded_page.h"
#include "library.h"
#include "low_memory.h"
#include "placed.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string_view>
#include <vector>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

template <class T>
T *nowhere() {
    return reinterpret_cast<T *>(std::uintptr_t{16});
}

// Each table entry leads to a word of its own, which holds the entry's number and one.
template <class T, std::size_t entries>
struct Numbered {
    explicit Numbered(std::size_t objects = 1) : numbers(entries * objects) {
        for (std::size_t e = 0; e < entries; ++e) {
            for (std::size_t k = 0; k < objects; ++k)
                numbers[e * objects + k] = static_cast<T>(100 * k + e + 1);
            table[e] = &numbers[e * objects];
        }
    }
    std::vector<T> numbers;
    T *table[entries];
};

TEST(Transpose, OneColumnBecomesARow) {
    const float column[] = {1, 9, 2, 9, 3, 9, 4};
    std::array<float, 5> row{};
    EXPECT_EQ(zelmTranspose_m_32f(column, 2 * f, 1, 4, row.data(), 4 * f), ZELM_OK);
    EXPECT_EQ(row, (std::array<float, 5>{1, 2, 3, 4, 0}));
}

TEST(Transpose, TablesAreNumberedByTheOtherOperandsRows) {
    // Two rows of three: (i, j) at i*2 + j of srcTable and j*3 + i of dstTable.
    const Numbered<float, 6> source;
    std::array<float, 9> result{};
    float *results[9];
    for (std::size_t e = 0; e < 9; ++e)
        results[e] = &result[e];
    const std::array<float, 9> expected = {1, 3, 0, 2, 4, 0, 3, 5, 0};
    EXPECT_EQ(zelmTranspose_m_32f_P(source.table, 0, 3, 2, results, 0), ZELM_OK);
    EXPECT_EQ(result, expected);
    result = {};
    EXPECT_EQ(zelmTranspose_ma_32f_P(source.table, 0, 3, 2, results, 0, 1), ZELM_OK);
    EXPECT_EQ(result, expected);
    result = {};
    EXPECT_EQ(zelmTranspose_ma_32f_PS2(source.table, 0, 0, 3, 2, results, 0, 0, 1), ZELM_OK);
    EXPECT_EQ(result, expected);
}

TEST(Transpose, ATallMatrixReadsSrcTableBehindItsPositions) {
    // Four rows of three: up to entry 3*4 + 2, while dst is written up to 2*3 + 3.
    const Numbered<double, 15> source(2);
    std::array<double, 20> result{};
    double *results[12];
    for (std::size_t e = 0; e < 12; ++e)
        results[e] = &result[2 * e % 20];
    EXPECT_EQ(zelmTranspose_ma_64f_P(source.table, 0, 3, 4, results, 0, 2), ZELM_OK);
    // dst entries 3 and 6 are written by two elements each, last by the one of the lower row.
    const std::array<double, 20> expected = {1,  101, 5,  105, 9, 109, 13, 113, 6,  106,
                                             10, 110, 14, 114, 7, 107, 11, 111, 15, 115};
    EXPECT_EQ(result, expected);
}

TEST(Transpose, ArraysFollowEntriesBehindTheTestedOnes) {
    // Rows: 3, columns: 2; srcTable is read up to 2*3 + 1. Entry 7 is null and leads to low memory.
    const edge::LowMemory low;
    auto *const numbers = low.as<float>();
    for (std::size_t e = 0; e < 8; ++e)
        numbers[e] = static_cast<float>(e + 1);
    const float *table[8];
    for (std::size_t e = 0; e < 7; ++e)
        table[e] = low.entryFor(&numbers[e + 1]);
    table[7] = nullptr; // the first number
    std::array<float, 6> result{};
    float *results[6];
    for (std::size_t e = 0; e < 6; ++e)
        results[e] = &result[e];
    // (i, j) from i*3 + j to j*2 + i.
    const std::array<float, 6> expected = {2, 5, 8, 6, 1, 0};
    EXPECT_EQ(zelmTranspose_ma_32f_P(table, low.shift(), 2, 3, results, 0, 1), ZELM_OK);
    EXPECT_EQ(result, expected);
    result = {};
    EXPECT_EQ(zelmTranspose_ma_32f_PS2(table, low.shift(), f, 2, 3, results, 0, f, 1), ZELM_OK);
    EXPECT_EQ(result, expected);
    table[5] = nullptr; // one of the tested, though no element is there
    result = {};
    EXPECT_EQ(zelmTranspose_ma_32f_P(table, low.shift(), 2, 3, results, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmTranspose_ma_32f_PS2(table, low.shift(), f, 2, 3, results, 0, f, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 6>{}));
}

TEST(Transpose, ASingleMatrixStopsAtTheFirstZeroWordOfTheWalk) {
    Numbered<double, 8> source;
    std::array<double, 6> result{};
    double *results[6];
    for (std::size_t e = 0; e < 6; ++e)
        results[e] = &result[e];
    source.table[7] = nullptr; // behind the six entries, for the last element
    EXPECT_EQ(zelmTranspose_m_64f_P(source.table, 0, 2, 3, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<double, 6>{1, 4, 7, 5, 0, 0}));
    source.table[5] = nullptr; // never reached
    source.table[4] = nullptr; // (1, 1)
    result = {};
    EXPECT_EQ(zelmTranspose_m_64f_P(source.table, 0, 2, 3, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<double, 6>{1, 4, 2, 0, 0, 0}));
}

TEST(Transpose, ASingleMatrixTestsTheEntryOfDstFirst) {
    // One row of four: srcTable ends before the element whose dst entry is null.
    const GuardedPage page;
    const float numbers[] = {1, 2};
    const float **const table = page.last<const float *>(2);
    table[0] = &numbers[0];
    table[1] = &numbers[1];
    std::array<float, 13> result{};
    float *results[13] = {};
    results[0] = &result[0];
    results[4] = &result[4];
    EXPECT_EQ(zelmTranspose_m_32f_P(table, 0, 4, 1, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 13>{1, 0, 0, 0, 2}));
}

TEST(Transpose, FixedSizesMoveRowsOfTheSourceUpToANullEntry) {
    Numbered<float, 9> source;
    std::array<float, 9> result{};
    float *results[9];
    for (std::size_t e = 0; e < 9; ++e)
        results[e] = &result[e];
    results[4] = nullptr; // for (1, 1)
    EXPECT_EQ(zelmTranspose_m_32f_3x3_P(source.table, 0, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 9>{1, 4, 0, 2, 0, 0, 3, 0, 0}));
    results[4] = &result[4];
    source.table[2] = nullptr; // for (0, 2)
    result = {};
    EXPECT_EQ(zelmTranspose_m_32f_3x3_P(source.table, 0, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 9>{1, 0, 0, 2, 0, 0, 0, 0, 0}));
    result = {};
    EXPECT_EQ(zelmTranspose_ma_32f_3x3_P(source.table, 0, results, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmTranspose_ma_32f_3x3_P(source.table, 0, results, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 9>{}));
}

TEST(Transpose, AListStopsAtANullEntryBehindMovedObjects) {
    const double source[] = {1, 2, 3, 4, 5, 6};
    std::array<double, 6> first{}, third{};
    const double *const sources[] = {source, source, source};
    double *const results[] = {first.data(), nullptr, third.data()};
    EXPECT_EQ(zelmTranspose_ma_64f_L(sources, 0, 3 * d, 3, 2, results, 0, 2 * d, 3), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(first, (std::array<double, 6>{1, 4, 2, 5, 3, 6}));
    EXPECT_EQ(third, (std::array<double, 6>{}));
    first = {};
    const double *const gap[] = {source, nullptr};
    double *const both[] = {first.data(), third.data()};
    EXPECT_EQ(zelmTranspose_ma_64f_LS2(gap, 0, 3 * d, d, 3, 2, both, 0, 2 * d, d, 2), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(first, (std::array<double, 6>{1, 4, 2, 5, 3, 6}));
    EXPECT_EQ(zelmTranspose_ma_64f_LS2(gap, 0, 3 * d, d, 3, 2, both, 0, 2 * d, d, 1), ZELM_OK);
    const double *const none[] = {nullptr};
    EXPECT_EQ(zelmTranspose_ma_64f_L(none, 0, 3 * d, 3, 2, both, 0, 2 * d, 0), ZELM_OK);
}

// With dst at src the mirror of an element above the diagonal is gone before it is read, but in three
// members.
template <class T>
void expectInPlace(const zelmtest::Function &function, std::uint32_t n, std::uint32_t count, bool works) {
    const zelmtest::OperandMemory memory;
    const zelmtest::Placed<T> matrices(memory, function.layout, {n, n, count});
    for (std::uint32_t k = 0; k < count; ++k)
        for (std::uint32_t e = 0; e < n * n; ++e)
            matrices.set(k, e / n, e % n, static_cast<T>(100 * k + e));
    const auto status = zelmtest::callWith(function, [&](const zelmtest::Argument &argument) {
        if (*argument.operand)
            return matrices.value(argument.kind);
        zelmtest::Value value{};
        value.size = argument.kind == zelmtest::ArgumentKind::Count ? count : n;
        return value;
    });
    EXPECT_EQ(status, ZELM_OK);
    for (std::uint32_t k = 0; k < count; ++k)
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j) {
                const std::uint32_t row = works || i > j ? j : i, column = works || i > j ? i : j;
                ASSERT_EQ(matrices.number(k, i, j), static_cast<T>(100 * k + row * n + column))
                    << function.name << ", order " << n << ", " << count << " objects: (" << i << ", " << j
                    << ") of " << k;
            }
}

TEST(Transpose, OnlyThreeMembersWorkInPlace) {
    const std::set<std::string_view> inPlace = {"zelmTranspose_m_32f_4x4", "zelmTranspose_m_64f_4x4",
                                                "zelmTranspose_ma_32f_4x4"};
    int members = 0;
    for (std::size_t number = 0; number < zelmtest::functionCount; ++number) {
        const zelmtest::Function &function = zelmtest::functions[number];
        if (std::string_view(function.operation) != "Transpose")
            continue;
        ++members;
        const bool array = std::string_view(function.descriptor) == "ma",
                   works = inPlace.count(function.name);
        for (std::uint32_t n : {2u, 3u, 4u, 5u, 6u, 8u, 9u})
            for (std::uint32_t count : {1u, 2u, 3u, 4u, 5u, 9u, 21u}) {
                if ((*function.size && n != static_cast<std::uint32_t>(*function.size - '0')) ||
                    (!array && count != 1))
                    continue;
                if (std::string_view(function.type) == "32f")
                    expectInPlace<float>(function, n, count, works);
                else
                    expectInPlace<double>(function, n, count, works);
                if (HasFatalFailure())
                    return;
            }
    }
    EXPECT_EQ(members, 90);
}

TEST(Transpose, AZeroSourceStrideRepeatsOneMatrix) {
    const float source[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    std::array<float, 18> result{};
    EXPECT_EQ(zelmTranspose_ma_32f_3x3(source, 0, 3 * f, result.data(), 9 * f, 3 * f, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 18>{1, 4, 7, 2, 5, 8, 3, 6, 9, 1, 4, 7, 2, 5, 8, 3, 6, 9}));
}

TEST(Transpose, SizesAreTestedBeforeTablesAndCount) {
    const float *const sources[] = {nullptr};
    float *const results[] = {nullptr};
    EXPECT_EQ(zelmTranspose_ma_32f_P(sources, 0, 0, 1, results, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmTranspose_ma_32f_PS2(sources, 0, f, 1, 0, results, 0, f, 1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmTranspose_m_32f(nowhere<float>(), f, 0, 0, nowhere<float>(), f), ZELM_ERR_SIZE);
}

} // namespace
