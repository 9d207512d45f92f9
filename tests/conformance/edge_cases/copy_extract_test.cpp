#include "low_memory.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <vector>

namespace {

template <class T>
T *nowhere() {
    return reinterpret_cast<T *>(std::uintptr_t{16});
}

template <class T>
std::vector<T> counted(int n) {
    std::vector<T> numbers;
    for (int e = 1; e <= n; ++e)
        numbers.push_back(static_cast<T>(e));
    return numbers;
}

template <class T>
using CopyVectors = ZelmStatus(const T *const *, std::int32_t, std::int32_t, T *const *, std::int32_t,
                               std::int32_t, std::uint32_t, std::uint32_t);
template <class T>
using CopyMatrices = ZelmStatus(const T *const *, std::int32_t, std::int32_t, T *const *, std::int32_t,
                                std::int32_t, std::uint32_t, std::uint32_t, std::uint32_t);

// Three positions: the source's objects lie four elements behind dst's, in steps of two.
template <class T>
void expectBothSidesFromDstTable(CopyVectors<T> *copy) {
    constexpr std::int32_t size = sizeof(T);
    auto memory = counted<T>(30);
    auto expected = memory;
    T *const table[] = {&memory[20], &memory[0], &memory[10]};
    for (const std::size_t position : {20u, 0u, 10u})
        for (std::size_t k = 0; k < 3; ++k)
            expected[position + k] = memory[position + 4 + 2 * k];
    // Of srcTable no more than that it isn't null.
    EXPECT_EQ(copy(nowhere<const T *>(), 4 * size, 2 * size, table, 0, size, 3, 3), ZELM_OK);
    EXPECT_EQ(memory, expected);

    // A shift of dst moves dst alone, and both may be negative.
    memory = counted<T>(30);
    expected = memory;
    T *const behind[] = {&memory[9], &memory[29]};
    for (const std::size_t position : {9u, 29u})
        for (std::size_t k = 0; k < 2; ++k)
            expected[position - 1 - k] = memory[position - 8 + k];
    EXPECT_EQ(copy(nowhere<const T *>(), -8 * size, size, behind, -size, -size, 2, 2), ZELM_OK);
    EXPECT_EQ(memory, expected);

    EXPECT_EQ(copy(nullptr, 0, size, table, 0, size, 3, 3), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(copy(nowhere<const T *>(), 0, size, nullptr, 0, size, 3, 3), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(copy(nowhere<const T *>(), 0, size, table, 0, size, 0, 3), ZELM_ERR_SIZE);
    EXPECT_EQ(memory, expected);
}

TEST(Copy, VectorsPPTakeBothSidesFromDstTable) {
    expectBothSidesFromDstTable<float>(zelmCopy_va_32f_PP);
    expectBothSidesFromDstTable<double>(zelmCopy_va_64f_PP);
}

TEST(Copy, VectorsPPFollowANullEntryOfDstTable) {
    const edge::LowMemory low;
    auto *const numbers = low.as<float>();
    numbers[0] = 0;
    numbers[1] = 7;
    float *const table[] = {nullptr};
    EXPECT_EQ(zelmCopy_va_32f_PP(nowhere<const float *>(), low.shift() + 4, 0, table, low.shift(), 0, 1, 1),
              ZELM_OK);
    EXPECT_EQ(numbers[0], 7);
}

template <class T>
void expectBothTables(CopyMatrices<T> *copy) {
    constexpr std::int32_t size = sizeof(T);
    const auto source = counted<T>(8);
    std::vector<T> result(8);
    const T *const from[] = {&source[6], &source[4], &source[2], &source[0]};
    T *const to[] = {&result[0], &result[2], &result[4], &result[6]};
    EXPECT_EQ(copy(from, 0, size, to, 0, size, 2, 2, 2), ZELM_OK);
    EXPECT_EQ(result, (std::vector<T>{7, 8, 5, 6, 3, 4, 1, 2}));
}

TEST(Copy, MatricesPPUseBothTables) {
    expectBothTables<float>(zelmCopy_ma_32f_PP);
    expectBothTables<double>(zelmCopy_ma_64f_PP);
}

TEST(Copy, OfMatricesWithoutRowsOrColumnsMovesNothing) {
    const double *const sources[] = {nowhere<double>(), nowhere<double>()};
    double *const results[] = {nowhere<double>(), nowhere<double>()};
    for (const auto &[width, height] : {std::pair{0u, 3u}, {3u, 0u}, {0u, 0u}}) {
        EXPECT_EQ(zelmCopy_ma_64f_SS(sources[0], 8, 8, 8, results[0], 8, 8, 8, width, height, 2), ZELM_OK);
        EXPECT_EQ(zelmCopy_ma_64f_PP(sources, 0, 8, results, 0, 8, width, height, 2), ZELM_OK);
        EXPECT_EQ(zelmCopy_ma_64f_LL(sources, 0, 8, 8, results, 0, 8, 8, width, height, 2), ZELM_OK);
        EXPECT_EQ(zelmCopy_ma_64f_SL(sources[0], 8, 8, 8, results, 0, 8, 8, width, height, 2), ZELM_OK);
        EXPECT_EQ(zelmCopy_ma_64f_LP(sources, 0, 8, 8, results, 0, 8, width, height, 2), ZELM_OK);
        EXPECT_EQ(zelmCopy_ma_64f_PS(sources, 0, 8, results[0], 8, 8, 8, width, height, 2), ZELM_OK);
    }
}

TEST(Copy, AZeroObjectStrideOfTheSourceCopiesOneObjectIntoAll) {
    const auto source = counted<float>(6);
    std::array<float, 9> strided{}, listed{}, planes{};
    float *const objects[] = {&listed[6], &listed[3], &listed[0]};
    float *const positions[] = {&planes[0], &planes[3], &planes[6]};
    EXPECT_EQ(zelmCopy_va_32f_SS(source.data(), 0, 4, strided.data(), 12, 4, 3, 3), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_SL(source.data(), 0, 4, objects, 0, 4, 3, 3), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_SP(source.data(), 0, 4, positions, 0, 4, 3, 3), ZELM_OK);
    EXPECT_EQ(strided, (std::array<float, 9>{1, 2, 3, 1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(listed, strided);
    EXPECT_EQ(planes, (std::array<float, 9>{1, 1, 1, 2, 2, 2, 3, 3, 3}));
}

TEST(Copy, AZeroStrideOfTheDestinationKeepsTheLast) {
    const auto source = counted<double>(12);
    double result[] = {0, 0, 99};
    EXPECT_EQ(zelmCopy_va_64f_SS(source.data(), 16, 8, result, 0, 8, 2, 6), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<double, 3>{11, 12, 99}));
    // Rows upon each other, and then elements.
    EXPECT_EQ(zelmCopy_ma_64f_SS(source.data(), 0, 16, 8, result, 0, 0, 8, 2, 3, 1), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<double, 3>{5, 6, 99}));
    EXPECT_EQ(zelmCopy_ma_64f_SS(source.data(), 0, 16, 8, result, 0, 0, 0, 2, 4, 1), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<double, 3>{8, 6, 99}));
}

TEST(Copy, NegativeStridesTurnAMatrix) {
    const auto source = counted<float>(6);
    std::array<float, 6> result{};
    EXPECT_EQ(zelmCopy_ma_32f_SS(&source[5], 0, -12, -4, result.data(), 0, 12, 4, 3, 2, 1), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 6>{6, 5, 4, 3, 2, 1}));
}

// Two objects of three elements, told in the three ways: the addresses are the same on both sides.
TEST(Copy, OntoItselfChangesNothing) {
    auto numbers = counted<float>(6);
    const auto before = numbers;
    float *const data = numbers.data();
    float *const positions[] = {&data[0], &data[1], &data[2]}, *const objects[] = {&data[0], &data[3]};
    EXPECT_EQ(zelmCopy_va_32f_SS(data, 12, 4, data, 12, 4, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_SP(data, 12, 4, positions, 0, 12, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_SL(data, 12, 4, objects, 0, 4, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_PS(positions, 0, 12, data, 12, 4, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_PP(positions, 0, 12, positions, 0, 12, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_PL(positions, 0, 12, objects, 0, 4, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_LS(objects, 0, 4, data, 12, 4, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_LP(objects, 0, 4, positions, 0, 12, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_va_32f_LL(objects, 0, 4, objects, 0, 4, 3, 2), ZELM_OK);
    EXPECT_EQ(zelmCopy_ma_32f_SS(data, 12, 12, 4, data, 12, 12, 4, 3, 1, 2), ZELM_OK);
    EXPECT_EQ(numbers, before);
}

template <class T>
using ExtractTable = ZelmStatus(const T *const *, std::int32_t, T *, std::uint32_t, std::uint32_t);

// Two rows of three in the table: three rows of two in dst, and the shift leads nowhere.
template <class T>
void expectTableTransposedUnshifted(ExtractTable<T> *extract) {
    const auto source = counted<T>(6);
    const T *const table[] = {&source[0], &source[1], &source[2], &source[3], &source[4], &source[5]};
    std::vector<T> result(7, T{99});
    for (const std::int32_t shift : {0, 1, 0x40000000, -0x40000000}) {
        EXPECT_EQ(extract(table, shift, result.data(), 3, 2), ZELM_OK);
        EXPECT_EQ(result, (std::vector<T>{1, 4, 2, 5, 3, 6, 99}));
        std::fill_n(result.begin(), 6, T{0});
    }
    EXPECT_EQ(extract(table, 8, result.data(), 6, 1), ZELM_OK);
    EXPECT_EQ(result, (std::vector<T>{1, 2, 3, 4, 5, 6, 99}));
}

TEST(Extract, TransposedPTakesTheTableAsRowsOfTheResultsColumns) {
    expectTableTransposedUnshifted<float>(zelmExtract_mT_32f_P);
    expectTableTransposedUnshifted<double>(zelmExtract_mT_64f_P);
}

TEST(Extract, TransposedPKeepsSignallingNaNs) {
    std::array<std::uint64_t, 16> source, result{};
    const double *table[16];
    for (std::size_t e = 0; e < 16; ++e) {
        source[e] = 0x7ff0000000000001u + e;
        table[e] = reinterpret_cast<const double *>(&source[e]);
    }
    EXPECT_EQ(zelmExtract_mT_64f_P(table, 0, reinterpret_cast<double *>(result.data()), 4, 4), ZELM_OK);
    for (std::size_t e = 0; e < 16; ++e)
        EXPECT_EQ(result[e], source[e % 4 * 4 + e / 4]);
}

template <class T>
using ExtractTables = ZelmStatus(const T *const *, std::int32_t, std::int32_t, T *, std::uint32_t,
                                 std::uint32_t, std::uint32_t);

template <class T>
void expectNoTransposition(ExtractTables<T> *transposed, ExtractTables<T> *plain) {
    constexpr std::int32_t size = sizeof(T);
    const auto source = counted<T>(24);
    const T *table[6];
    for (std::size_t e = 0; e < 6; ++e)
        table[e] = &source[4 * e];
    for (auto *extract : {transposed, plain}) {
        std::vector<T> result(19, T{99});
        EXPECT_EQ(extract(table, size, size, result.data(), 3, 2, 3), ZELM_OK);
        EXPECT_EQ(result,
                  (std::vector<T>{2, 6, 10, 14, 18, 22, 3, 7, 11, 15, 19, 23, 4, 8, 12, 16, 20, 24, 99}));
    }
}

TEST(Extract, TransposedPS2DoesNotTranspose) {
    expectNoTransposition<float>(zelmExtract_maT_32f_PS2, zelmExtract_ma_32f_PS2);
    expectNoTransposition<double>(zelmExtract_maT_64f_PS2, zelmExtract_ma_64f_PS2);
}

TEST(Extract, TransposedStridedAndListedFormsTranspose) {
    const auto source = counted<float>(12);
    const float *const objects[] = {&source[6], &source[0]};
    std::array<float, 12> result{};
    // The sizes are those of the result: two rows of three from three rows of two.
    EXPECT_EQ(zelmExtract_mT_32f_S2(source.data(), 8, 4, result.data(), 3, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 12>{1, 3, 5, 2, 4, 6}));
    EXPECT_EQ(zelmExtract_maT_32f_S2(source.data(), 24, 8, 4, result.data(), 3, 2, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 12>{1, 3, 5, 2, 4, 6, 7, 9, 11, 8, 10, 12}));
    EXPECT_EQ(zelmExtract_maT_32f_LS2(objects, 0, 8, 4, result.data(), 3, 2, 2), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 12>{7, 9, 11, 8, 10, 12, 1, 3, 5, 2, 4, 6}));
}

TEST(Extract, OnlyOneTypeOfVectorsPTests) {
    EXPECT_EQ(zelmExtract_v_32f_P(nullptr, 0, nowhere<float>(), 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmExtract_v_32f_P(nowhere<const float *>(), 0, nullptr, 3), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmExtract_v_32f_P(nowhere<const float *>(), 0, nowhere<float>(), 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmExtract_v_64f_P(nullptr, 0, nullptr, 0), ZELM_OK);
}

TEST(Extract, MatricesPTestNoSize) {
    EXPECT_EQ(zelmExtract_m_32f_P(nowhere<const float *>(), 0, nowhere<float>(), 3, 0), ZELM_OK);
    EXPECT_EQ(zelmExtract_m_64f_P(nowhere<const double *>(), 0, nowhere<double>(), 0, 3), ZELM_OK);
    EXPECT_EQ(zelmExtract_mT_32f_P(nullptr, 0, nullptr, 0, 3), ZELM_OK);
    EXPECT_EQ(zelmExtract_mT_64f_P(nullptr, 0, nullptr, 3, 0), ZELM_OK);
}

// Each element is moved before the next is read, also where dst lies across the source.
TEST(Extract, AcrossItsSourceFollowsTheTraversal) {
    auto numbers = counted<double>(8);
    EXPECT_EQ(zelmExtract_v_64f_S2(&numbers[0], 8, &numbers[1], 6), ZELM_OK);
    EXPECT_EQ(numbers, (std::vector<double>{1, 1, 1, 1, 1, 1, 1, 8}));
    numbers = counted<double>(8);
    EXPECT_EQ(zelmExtract_ma_64f_S2(&numbers[2], 16, 8, 8, &numbers[0], 2, 1, 3), ZELM_OK);
    EXPECT_EQ(numbers, (std::vector<double>{3, 4, 5, 6, 7, 8, 7, 8}));
    numbers = counted<double>(8);
    const double *const table[] = {&numbers[0], &numbers[1], &numbers[2], &numbers[3]};
    EXPECT_EQ(zelmExtract_mT_64f_P(table, 0, &numbers[1], 2, 2), ZELM_OK);
    EXPECT_EQ(numbers, (std::vector<double>{1, 1, 3, 1, 1, 6, 7, 8}));
}

// A null table or dst is used as it stands.
void expectFault(auto call) {
    EXPECT_EXIT(
        {
            std::signal(SIGSEGV, SIG_DFL);
            call();
        },
        testing::KilledBySignal(SIGSEGV), "");
}

TEST(ExtractDeathTest, FiveMembersFollowNullPointers) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer reports the access before it faults";
#endif
    const float one = 1;
    const double two = 2;
    const float *const ones[] = {&one};
    const double *const twos[] = {&two};
    float f;
    double d;
    expectFault([&] { zelmExtract_m_32f_P(nullptr, 0, &f, 1, 1); });
    expectFault([&] { zelmExtract_m_32f_P(ones, 0, nullptr, 1, 1); });
    expectFault([&] { zelmExtract_m_64f_P(nullptr, 0, &d, 1, 1); });
    expectFault([&] { zelmExtract_m_64f_P(twos, 0, nullptr, 1, 1); });
    expectFault([&] { zelmExtract_mT_32f_P(nullptr, 0, &f, 1, 1); });
    expectFault([&] { zelmExtract_mT_32f_P(ones, 0, nullptr, 1, 1); });
    expectFault([&] { zelmExtract_mT_64f_P(nullptr, 0, &d, 1, 1); });
    expectFault([&] { zelmExtract_mT_64f_P(twos, 0, nullptr, 1, 1); });
    expectFault([&] { zelmExtract_v_64f_P(nullptr, 0, &d, 1); });
    expectFault([&] { zelmExtract_v_64f_P(twos, 0, nullptr, 1); });
}

TEST(Extract, AZeroCountIsAnErrorUnlikeElsewhere) {
    EXPECT_EQ(zelmExtract_va_32f_S2(nowhere<float>(), 12, 4, nowhere<float>(), 3, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(
        zelmAdd_vava_32f_S2(nowhere<float>(), 12, 4, nowhere<float>(), 12, 4, nowhere<float>(), 12, 4, 3, 0),
        ZELM_OK);
}

TEST(Extract, AZeroObjectStrideRepeatsOneObject) {
    const auto source = counted<double>(4);
    std::array<double, 12> result{};
    EXPECT_EQ(zelmExtract_ma_64f_S2(source.data(), 0, 16, 8, result.data(), 2, 2, 3), ZELM_OK);
    EXPECT_EQ(result, (std::array<double, 12>{1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4}));
}

} // namespace
