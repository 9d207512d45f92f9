// The members of Add and Sub of matrices that depart from their rows, by name.
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <csignal>
#include <string_view>
#include <sys/mman.h>
#include <variant>
#include <vector>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);
constexpr std::int32_t unread = 0x10000000;

template <class T>
struct Operand {
    T *start;
    std::int32_t objStride, rowStride;

    T *element(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        const std::int64_t offset = std::int64_t{k} * objStride + std::int64_t{i} * rowStride;
        return reinterpret_cast<T *>(reinterpret_cast<std::uintptr_t>(start) +
                                     static_cast<std::uintptr_t>(offset)) +
               j;
    }
};

// An invariant operand has an objStride of 0.
template <class T>
struct Call {
    Operand<const T> src1, src2;
    Operand<T> dst;
    std::uint32_t count = 2;
};

template <class T>
std::vector<T *> tableOf(const Operand<T> &operand, std::uint32_t count) {
    std::vector<T *> table;
    for (std::uint32_t k = 0; k < count; ++k)
        table.push_back(operand.element(k, 0, 0));
    return table;
}

using I = std::int32_t;
using U = std::uint32_t;
template <class T>
using Table = T *const *;

// The argument lists, named after an array and an invariant matrix, the other way round, and two arrays.
template <class T>
using Mam = ZelmStatus(const T *, I, I, const T *, I, T *, I, I, U);
template <class T>
using Mma = ZelmStatus(const T *, I, const T *, I, I, T *, I, I, U);
template <class T>
using Mama = ZelmStatus(const T *, I, I, const T *, I, I, T *, I, I, U);
template <class T>
using MamList = ZelmStatus(Table<const T>, I, I, const T *, I, Table<T>, I, I, U);
template <class T>
using MmaList = ZelmStatus(const T *, I, Table<const T>, I, I, Table<T>, I, I, U);
template <class T>
using MamaList = ZelmStatus(Table<const T>, I, I, Table<const T>, I, I, Table<T>, I, I, U);

template <class T>
ZelmStatus invoke(Mam<T> *function, const Call<T> &c) {
    return function(c.src1.start, c.src1.objStride, c.src1.rowStride, c.src2.start, c.src2.rowStride,
                    c.dst.start, c.dst.objStride, c.dst.rowStride, c.count);
}

template <class T>
ZelmStatus invoke(Mma<T> *function, const Call<T> &c) {
    return function(c.src1.start, c.src1.rowStride, c.src2.start, c.src2.objStride, c.src2.rowStride,
                    c.dst.start, c.dst.objStride, c.dst.rowStride, c.count);
}

template <class T>
ZelmStatus invoke(Mama<T> *function, const Call<T> &c) {
    return function(c.src1.start, c.src1.objStride, c.src1.rowStride, c.src2.start, c.src2.objStride,
                    c.src2.rowStride, c.dst.start, c.dst.objStride, c.dst.rowStride, c.count);
}

template <class T>
ZelmStatus invoke(MamList<T> *function, const Call<T> &c) {
    return function(tableOf(c.src1, c.count).data(), 0, c.src1.rowStride, c.src2.start, c.src2.rowStride,
                    tableOf(c.dst, c.count).data(), 0, c.dst.rowStride, c.count);
}

template <class T>
ZelmStatus invoke(MmaList<T> *function, const Call<T> &c) {
    return function(c.src1.start, c.src1.rowStride, tableOf(c.src2, c.count).data(), 0, c.src2.rowStride,
                    tableOf(c.dst, c.count).data(), 0, c.dst.rowStride, c.count);
}

template <class T>
ZelmStatus invoke(MamaList<T> *function, const Call<T> &c) {
    return function(tableOf(c.src1, c.count).data(), 0, c.src1.rowStride, tableOf(c.src2, c.count).data(), 0,
                    c.src2.rowStride, tableOf(c.dst, c.count).data(), 0, c.dst.rowStride, c.count);
}

template <class T>
struct Member {
    std::string_view name;
    std::variant<Mam<T> *, Mma<T> *, Mama<T> *, MamList<T> *, MmaList<T> *, MamaList<T> *> function;

    // "zelmSub_mTma_64f_3x3_L": mT, then ma.
    std::string_view descriptor() const { return name.substr(8, name.find('_', 8) - 8); }
    std::string_view first() const { return descriptor().substr(0, descriptor().find('m', 1)); }
    std::string_view second() const { return descriptor().substr(descriptor().find('m', 1)); }
    static bool isTransposed(std::string_view operand) { return operand.ends_with('T'); }
    static bool isArray(std::string_view operand) { return operand.starts_with("ma"); }
    std::uint32_t order() const { return static_cast<std::uint32_t>(name[name.find('x') + 1] - '0'); }

    ZelmStatus operator()(const Call<T> &call) const {
        return std::visit([&](auto *member) { return invoke<T>(member, call); }, function);
    }
    T combine(T a, T b) const { return name.starts_with("zelmSub") ? a - b : a + b; }
    T firstOf(const Call<T> &c, std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        return isTransposed(first()) ? *c.src1.element(k, j, i) : *c.src1.element(k, i, j);
    }
    T secondOf(const Call<T> &c, std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        return isTransposed(second()) ? *c.src2.element(k, j, i) : *c.src2.element(k, i, j);
    }
    T regular(const Call<T> &c, std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        return combine(firstOf(c, k, i, j), secondOf(c, k, i, j));
    }
};

// The name tells what to expect, the function what to call.
#define MEMBER(function)                                                                                     \
    { #function, function }

template <class T>
std::vector<T> counted(std::size_t count, int first, int step = 1) {
    std::vector<T> numbers(count);
    for (std::size_t n = 0; n < count; ++n)
        numbers[n] = static_cast<T>(first + step * static_cast<int>(n));
    return numbers;
}

template <class T>
void expectRegular(const Member<T> &member, const Call<T> &call) {
    EXPECT_EQ(member(call), ZELM_OK);
    for (std::uint32_t k = 0; k < call.count; ++k)
        for (std::uint32_t i = 0; i < member.order(); ++i)
            for (std::uint32_t j = 0; j < member.order(); ++j)
                EXPECT_EQ(*call.dst.element(k, i, j), member.regular(call, k, i, j));
}

// ---- Software-pipelined.

const Member<float> pipelined[] = {
    MEMBER(zelmAdd_mam_32f_3x3),
    MEMBER(zelmAdd_mamT_32f_3x3),
    MEMBER(zelmSub_mam_32f_3x3),
    MEMBER(zelmSub_mamT_32f_3x3),
};
const Member<float> pipelinedLists[] = {
    MEMBER(zelmAdd_mam_32f_3x3_L),
    MEMBER(zelmAdd_mamT_32f_3x3_L),
    MEMBER(zelmSub_mam_32f_3x3_L),
    MEMBER(zelmSub_mamT_32f_3x3_L),
};

MamList<float> *listFunction(const Member<float> &member) {
    return std::get<MamList<float> *>(member.function);
}

class Pipelined : public testing::Test {
protected:
    static constexpr std::uint32_t objects = 4;
    const std::vector<float> source = counted<float>(9 * objects, 1000), invariant = counted<float>(9, 0, 64);
    std::vector<float> result = std::vector<float>(9 * objects, 7);

    Call<float> call(std::uint32_t count) {
        return {{source.data(), 9 * f, 3 * f},
                {invariant.data(), 0, 3 * f},
                {result.data(), 9 * f, 3 * f},
                count};
    }

    // The first `written` objects are results, the others as before.
    void expectWritten(const Member<float> &member, std::uint32_t written) {
        for (std::uint32_t k = 0; k < objects; ++k)
            for (std::uint32_t i = 0; i < 3; ++i)
                for (std::uint32_t j = 0; j < 3; ++j)
                    EXPECT_EQ(result[9 * k + 3 * i + j],
                              k < written ? member.regular(call(objects), k, i, j) : 7);
        result.assign(9 * objects, 7);
    }
};

TEST_F(Pipelined, ACountOfZeroIsTakenAsOne) {
    for (const auto &member : pipelined)
        for (const std::uint32_t count : {0u, 1u}) {
            SCOPED_TRACE(member.name);
            EXPECT_EQ(member(call(count)), ZELM_OK);
            expectWritten(member, 1);
        }
}

TEST_F(Pipelined, TheListsTakeTheWordBeforeTheTableForACountOfZero) {
    const float *const sources[] = {source.data()};
    float *const before[] = {result.data(), nullptr}, *const nullBefore[] = {nullptr, result.data()};
    for (const auto &member : pipelinedLists) {
        SCOPED_TRACE(member.name);
        const auto function = listFunction(member);
        EXPECT_EQ(function(sources, 0, 3 * f, invariant.data(), 3 * f, before + 1, 0, 3 * f, 0), ZELM_OK);
        expectWritten(member, 1);
        EXPECT_EQ(function(sources, 0, 3 * f, invariant.data(), 3 * f, nullBefore + 1, 0, 3 * f, 0),
                  ZELM_ERR_NULL_PTR);
        expectWritten(member, 0);
    }
}

TEST_F(Pipelined, TheListsTestTheFirstSourceAheadOfTheLastResult) {
    // The word before the table cannot be read.
    constexpr std::size_t page = 4096;
    void *const pages = mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(pages, MAP_FAILED);
    ASSERT_EQ(mprotect(pages, page, PROT_NONE), 0);
    auto *const results = reinterpret_cast<float **>(static_cast<char *>(pages) + page);
    const float *const sources[] = {nullptr};
    for (const auto &member : pipelinedLists) {
        SCOPED_TRACE(member.name);
        EXPECT_EQ(listFunction(member)(sources, 0, 3 * f, invariant.data(), 3 * f, results, 0, 3 * f, 0),
                  ZELM_ERR_NULL_PTR);
    }
    munmap(pages, 2 * page);
}

TEST_F(Pipelined, TheListsTestASourceOneObjectAheadOfItsResult) {
    struct {
        int nullSource, nullResult;
        std::uint32_t written;
    } const cases[] = {{-1, -1, 4}, {0, -1, 0}, {1, -1, 0}, {2, -1, 1}, {3, -1, 2},
                       {-1, 0, 0},  {-1, 1, 1}, {-1, 2, 2}, {-1, 3, 0}, {3, 1, 1}};
    for (const auto &member : pipelinedLists)
        for (const auto &[nullSource, nullResult, written] : cases) {
            SCOPED_TRACE(member.name);
            auto sources = tableOf(call(objects).src1, objects);
            auto results = tableOf(call(objects).dst, objects);
            if (nullSource >= 0)
                sources[static_cast<std::size_t>(nullSource)] = nullptr;
            if (nullResult >= 0)
                results[static_cast<std::size_t>(nullResult)] = nullptr;
            EXPECT_EQ(listFunction(member)(sources.data(), 0, 3 * f, invariant.data(), 3 * f, results.data(),
                                           0, 3 * f, objects),
                      written == objects ? ZELM_OK : ZELM_ERR_NULL_PTR);
            expectWritten(member, written);
        }
}

TEST_F(Pipelined, TheTopLevelPointersAreTestedForACountOfZeroToo) {
    for (const auto &member : pipelined) {
        SCOPED_TRACE(member.name);
        auto withNull = call(0);
        withNull.src2.start = nullptr;
        EXPECT_EQ(member(withNull), ZELM_ERR_NULL_PTR);
        expectWritten(member, 0);
    }
}

// dst is src1, `distance` objects on: one object is read ahead, so that a result feeds back from two on.
void expectReadAhead(const Member<float> &member, std::uint32_t distance) {
    SCOPED_TRACE(member.name);
    constexpr std::uint32_t count = 40;
    const auto start = counted<float>(9 * (count + 2), 1000), invariant = counted<float>(9, 0, 64);
    const auto onto = [&](std::vector<float> &memory) {
        return Call<float>{{memory.data(), 9 * f, 3 * f},
                           {invariant.data(), 0, 3 * f},
                           {memory.data() + 9 * distance, 9 * f, 3 * f},
                           count};
    };
    auto expected = start, original = start;
    for (std::uint32_t k = 0; k < count; ++k)
        for (std::uint32_t e = 0; e < 9; ++e)
            expected[9 * (k + distance) + e] =
                member.regular(onto(distance == 1 ? original : expected), k, e / 3, e % 3);
    auto memory = start;
    EXPECT_EQ(member(onto(memory)), ZELM_OK);
    EXPECT_EQ(memory, expected);
}

TEST_F(Pipelined, AnObjectIsReadAheadOfStoringTheOneBefore) {
    for (const std::uint32_t distance : {1u, 2u}) {
        for (const auto &member : pipelined)
            expectReadAhead(member, distance);
        for (const auto &member : pipelinedLists)
            expectReadAhead(member, distance);
    }
}

// ---- Strides of the other operand.

TEST(MatrixAddSubDepartures, The32f3x3MamTMembersDoNotReadSrc2RowStride) {
    const Member<float> members[] = {
        MEMBER(zelmAdd_mamT_32f_3x3),
        MEMBER(zelmAdd_mamT_32f_3x3_L),
        MEMBER(zelmSub_mamT_32f_3x3),
        MEMBER(zelmSub_mamT_32f_3x3_L),
    };
    const auto source = counted<float>(24, 1000), invariant = counted<float>(12, 0, 64);
    for (const auto &member : members) {
        SCOPED_TRACE(member.name);
        std::vector<float> result(18);
        Call<float> call{
            {source.data(), 12 * f, 4 * f}, {invariant.data(), 0, unread}, {result.data(), 9 * f, 3 * f}};
        EXPECT_EQ(member(call), ZELM_OK);
        call.src2.rowStride = call.src1.rowStride;
        for (std::uint32_t e = 0; e < 18; ++e)
            EXPECT_EQ(result[e], member.regular(call, e / 9, e % 9 / 3, e % 3));
    }
}

TEST(MatrixAddSubDepartures, The64f5x5MembersTakeColumn4AtSrc2RowStride) {
    const Member<double> members[] = {
        MEMBER(zelmAdd_mam_64f_5x5),    MEMBER(zelmAdd_mam_64f_5x5_L),  MEMBER(zelmAdd_mama_64f_5x5),
        MEMBER(zelmAdd_mama_64f_5x5_L), MEMBER(zelmSub_mam_64f_5x5),    MEMBER(zelmSub_mam_64f_5x5_L),
        MEMBER(zelmSub_mama_64f_5x5),   MEMBER(zelmSub_mama_64f_5x5_L),
    };
    const auto source = counted<double>(80, 1000), second = counted<double>(80, 0, 128);
    for (const auto &member : members) {
        SCOPED_TRACE(member.name);
        std::vector<double> result(50);
        const auto call = [&](std::int32_t firstRow, std::int32_t secondRow) {
            return Call<double>{{source.data(), 40 * d, firstRow},
                                {second.data(), member.isArray(member.second()) ? 40 * d : 0, secondRow},
                                {result.data(), 25 * d, 5 * d}};
        };
        expectRegular(member, call(6 * d, 6 * d));
        const auto different = call(6 * d, 7 * d);
        EXPECT_EQ(member(different), ZELM_OK);
        for (std::uint32_t k = 0; k < 2; ++k)
            for (std::uint32_t i = 0; i < 5; ++i) {
                for (std::uint32_t j = 0; j < 4; ++j)
                    EXPECT_EQ(result[25 * k + 5 * i + j], member.regular(different, k, i, j));
                EXPECT_EQ(result[25 * k + 5 * i + 4],
                          member.combine(source[40 * k + 7 * i + 4], *different.src2.element(k, i, 4)));
            }
    }
}

TEST(MatrixAddSubDepartures, SubMTm64f6x6S2DoesNotReadSrc2ElemStride) {
    const auto first = counted<double>(72, 1000), second = counted<double>(72, 0, 128);
    std::vector<double> result(36);
    EXPECT_EQ(zelmSub_mTm_64f_6x6_S2(first.data(), 12 * d, 2 * d, second.data(), 12 * d, unread,
                                     result.data(), 6 * d, d),
              ZELM_OK);
    for (std::size_t i = 0; i < 6; ++i)
        for (std::size_t j = 0; j < 6; ++j)
            EXPECT_EQ(result[6 * i + j], first[12 * j + 2 * i] - second[12 * i + 2 * j]);
}

// ---- Results of other elements.

TEST(MatrixAddSubDepartures, SubMTmT32f6x6RepeatsRow2InRow3) {
    const auto first = counted<float>(36, 1000), second = counted<float>(36, 0, 64);
    std::vector<float> difference(36), sum(36);
    EXPECT_EQ(zelmSub_mTmT_32f_6x6(first.data(), 6 * f, second.data(), 6 * f, difference.data(), 6 * f),
              ZELM_OK);
    EXPECT_EQ(zelmAdd_mTmT_32f_6x6(first.data(), 6 * f, second.data(), 6 * f, sum.data(), 6 * f), ZELM_OK);
    for (std::size_t i = 0; i < 6; ++i)
        for (std::size_t j = 0; j < 6; ++j) {
            const std::size_t row = i == 3 ? 2 : i;
            EXPECT_EQ(difference[6 * i + j], first[6 * j + row] - second[6 * j + row]);
            EXPECT_EQ(sum[6 * i + j], first[6 * j + i] + second[6 * j + i]);
        }
}

TEST(MatrixAddSubDepartures, SubMaTmaT32f6x6TakesItsElementsFromATable) {
    // Row and column in the stored matrices.
    constexpr std::string_view taken[6][6] = {
        {"00", "40", "02", "42", "04", "44"}, {"10", "50", "12", "52", "14", "54"},
        {"20", "41", "22", "43", "24", "45"}, {"20", "41", "22", "43", "24", "45"},
        {"01", "21", "03", "23", "05", "25"}, {"11", "31", "13", "33", "15", "35"}};
    const Member<float> members[] = {MEMBER(zelmSub_maTmaT_32f_6x6), MEMBER(zelmSub_maTmaT_32f_6x6_L)};
    const auto first = counted<float>(96, 1000), second = counted<float>(96, 0, 64);
    for (const auto &member : members) {
        SCOPED_TRACE(member.name);
        std::vector<float> result(72);
        const Call<float> call{
            {first.data(), 48 * f, 8 * f}, {second.data(), 48 * f, 7 * f}, {result.data(), 36 * f, 6 * f}};
        EXPECT_EQ(member(call), ZELM_OK);
        for (std::uint32_t k = 0; k < 2; ++k)
            for (std::uint32_t e = 0; e < 36; ++e) {
                const std::string_view from = taken[e / 6][e % 6];
                const auto row = static_cast<std::uint32_t>(from[0] - '0'),
                           column = static_cast<std::uint32_t>(from[1] - '0');
                EXPECT_EQ(result[36 * k + e],
                          *call.src1.element(k, row, column) - *call.src2.element(k, row, column));
            }
    }
}

// ---- Two decisions on alignment.

bool isMultipleOf16(const double *start, std::int32_t rowStride) {
    return reinterpret_cast<std::uintptr_t>(start) % 16 == 0 && rowStride % 16 == 0;
}

TEST(MatrixAddSubDepartures, The64f3x3ListsPairHeldValuesByTwoDecisions) {
    const Member<double> members[] = {
        MEMBER(zelmAdd_mam_64f_3x3_L),  MEMBER(zelmAdd_mamT_64f_3x3_L), MEMBER(zelmSub_mam_64f_3x3_L),
        MEMBER(zelmSub_mamT_64f_3x3_L), MEMBER(zelmSub_mma_64f_3x3_L),  MEMBER(zelmSub_mTma_64f_3x3_L),
    };
    alignas(16) std::array<double, 40> objects, invariant;
    for (std::size_t n = 0; n < 40; ++n) {
        objects[n] = n % 2 ? -0.0 : 1000 + static_cast<double>(n); // a zero is added to some: it shows in -0
        invariant[n] = 64 * static_cast<double>(n + 1);
    }
    for (const auto &member : members)
        for (unsigned odd = 0; odd < 64; ++odd) { // which starts and row strides are not multiples of 16
            SCOPED_TRACE(testing::Message() << member.name << ", odd " << odd);
            alignas(16) std::array<double, 40> result{};
            const bool invariantFirst = member.isArray(member.second());
            const auto start = [&](unsigned bit) { return odd >> bit & 1; };
            const auto row = [&](unsigned bit) { return odd >> bit & 1 ? 3 * d : 4 * d; };
            // The second object's alignment is the other one.
            const Operand<const double> held{invariant.data() + start(0), 0, row(1)},
                array{objects.data() + start(2), 17 * d, row(3)};
            const Operand<double> dst{result.data() + start(4), 17 * d, row(5)};
            const Call<double> call =
                invariantFirst ? Call<double>{held, array, dst} : Call<double>{array, held, dst};
            EXPECT_EQ(member(call), ZELM_OK);
            const bool heldPacked = isMultipleOf16(held.start, held.rowStride);
            for (std::uint32_t k = 0; k < 2; ++k) {
                const bool packed = isMultipleOf16(array.element(k, 0, 0), array.rowStride) &&
                                    isMultipleOf16(dst.element(k, 0, 0), dst.rowStride);
                const auto m = [&](std::uint32_t i, std::uint32_t j) {
                    return invariantFirst ? member.firstOf(call, k, i, j) : member.secondOf(call, k, i, j);
                };
                const double regular[3][3] = {
                    {m(0, 0), m(0, 1), m(0, 2)}, {m(1, 0), m(1, 1), m(1, 2)}, {m(2, 0), m(2, 1), m(2, 2)}};
                const double packedInSingle[3][3] = {
                    {m(0, 0), m(0, 2), m(1, 0)}, {m(1, 2), m(2, 0), m(2, 2)}, {0, 0, 0}};
                const double singleInPacked[3][3] = {
                    {m(0, 0), 0, m(0, 1)}, {m(0, 2), 0, m(1, 0)}, {m(1, 1), 0, m(1, 2)}};
                const auto &paired = heldPacked == packed ? regular
                                     : packed             ? singleInPacked
                                                          : packedInSingle;
                for (std::uint32_t e = 0; e < 9; ++e) {
                    const std::uint32_t i = e / 3, j = e % 3;
                    const double other = paired[i][j];
                    const double expected = invariantFirst
                                                ? member.combine(other, member.secondOf(call, k, i, j))
                                                : member.combine(member.firstOf(call, k, i, j), other);
                    EXPECT_EQ(std::bit_cast<std::uint64_t>(*dst.element(k, i, j)),
                              std::bit_cast<std::uint64_t>(expected))
                        << k << " " << i << " " << j;
                }
            }
        }
}

// ---- Invariants that are read anew.

// The last element of dst's first object is the first of the invariant, whatever is read ahead of storing.
template <class T>
void expectInvariant(const Member<T> &member, bool readAnew) {
    SCOPED_TRACE(member.name);
    const std::uint32_t n = member.order(), all = n * n;
    constexpr auto size = static_cast<std::int32_t>(sizeof(T));
    const auto row = static_cast<std::int32_t>(n) * size, object = static_cast<std::int32_t>(all) * size;
    const auto source = counted<T>(2 * all, 1000);
    auto memory = counted<T>(3 * all - 1, 0, 128);
    const Operand<const T> array{source.data(), object, row}, invariant{memory.data() + all - 1, 0, row};
    const Operand<T> dst{memory.data(), 2 * object - size, row};
    const bool invariantFirst = member.isArray(member.second());
    const Call<T> call = invariantFirst ? Call<T>{invariant, array, dst} : Call<T>{array, invariant, dst};
    const auto results = [&](std::uint32_t k) {
        std::vector<T> of;
        for (std::uint32_t e = 0; e < all; ++e)
            of.push_back(member.regular(call, k, e / n, e % n));
        return of;
    };
    const std::vector<T> first = results(0);
    const T before = memory[all - 1];
    if (readAnew)
        memory[all - 1] = first[all - 1];
    const std::vector<T> second = results(1);
    memory[all - 1] = before;

    EXPECT_EQ(member(call), ZELM_OK);
    EXPECT_EQ(std::vector<T>(memory.data(), memory.data() + all), first);
    EXPECT_EQ(std::vector<T>(&memory[2 * all - 1], memory.data() + memory.size()), second);
}

TEST(MatrixAddSubDepartures, ThirteenMembersReadTheInvariantAnew) {
    const Member<float> members32[] = {MEMBER(zelmSub_mma_32f_6x6), MEMBER(zelmSub_mma_32f_6x6_L),
                                       MEMBER(zelmSub_mmaT_32f_6x6), MEMBER(zelmSub_mmaT_32f_6x6_L)};
    const Member<double> members64[] = {
        MEMBER(zelmSub_mma_64f_6x6),    MEMBER(zelmSub_mma_64f_6x6_L),   MEMBER(zelmSub_mTma_64f_6x6),
        MEMBER(zelmSub_mTma_64f_6x6_L), MEMBER(zelmSub_mmaT_64f_6x6),    MEMBER(zelmSub_mmaT_64f_6x6_L),
        MEMBER(zelmSub_mTmaT_64f_6x6),  MEMBER(zelmSub_mTmaT_64f_6x6_L), MEMBER(zelmAdd_maTmT_64f_3x3)};
    for (const auto &member : members32)
        expectInvariant(member, true);
    for (const auto &member : members64)
        expectInvariant(member, true);
}

TEST(MatrixAddSubDepartures, TheirNeighboursHoldTheInvariant) {
    const Member<float> members32[] = {
        MEMBER(zelmSub_mTma_32f_6x6),    MEMBER(zelmSub_mTma_32f_6x6_L), MEMBER(zelmSub_mTmaT_32f_6x6),
        MEMBER(zelmSub_mTmaT_32f_6x6_L), MEMBER(zelmSub_mma_32f_5x5),    MEMBER(zelmSub_mam_32f_6x6),
        MEMBER(zelmSub_mam_32f_6x6_L),   MEMBER(zelmAdd_mam_32f_3x3),    MEMBER(zelmSub_mamT_32f_3x3_L)};
    const Member<double> members64[] = {MEMBER(zelmAdd_maTmT_64f_3x3_L), MEMBER(zelmSub_maTmT_64f_3x3),
                                        MEMBER(zelmSub_mma_64f_5x5),     MEMBER(zelmSub_mma_64f_5x5_L),
                                        MEMBER(zelmSub_mam_64f_6x6),     MEMBER(zelmAdd_maTm_64f_6x6),
                                        MEMBER(zelmAdd_mam_64f_5x5_L)};
    for (const auto &member : members32)
        expectInvariant(member, false);
    for (const auto &member : members64)
        expectInvariant(member, false);
}

// ---- Entries tested at i*height + j.

template <class T>
using SingleP = ZelmStatus(Table<const T>, I, Table<const T>, I, Table<T>, I, U, U);

// Width 2 and height 3, each operand with the words that follow its table.
template <class T>
class Tables {
public:
    Tables(bool firstTransposed, bool secondTransposed) : transposed{firstTransposed, secondTransposed} {
        for (std::size_t e = 0; e < 8; ++e) {
            sources[0][e] = &numbers[e % 6];
            sources[1][e] = &numbers[6 + e % 6];
        }
        for (std::size_t e = 0; e < 6; ++e)
            results[e] = &result[e];
    }

    void expect(SingleP<T> *function, bool subtracts, ZelmStatus status, std::size_t written) {
        result.fill(7);
        EXPECT_EQ(function(sources[0].data(), 0, sources[1].data(), 0, results.data(), 0, 2, 3), status);
        for (std::size_t e = 0; e < 6; ++e) {
            const std::size_t across = e % 2 * 3 + e / 2;
            const T a = numbers[transposed[0] ? across : e], b = numbers[6 + (transposed[1] ? across : e)];
            EXPECT_EQ(result[e], e >= written ? 7 : subtracts ? a - b : a + b) << e;
        }
    }

    const bool transposed[2];
    const std::vector<T> numbers = counted<T>(12, 1, 1000);
    std::array<T, 6> result;
    std::array<const T *, 8> sources[2];
    std::array<T *, 6> results;
};

template <class T>
void expectTestsByRows(const char *name, SingleP<T> *function, bool first, bool second, bool subtracts) {
    SCOPED_TRACE(name);
    for (const std::size_t operand : {0u, 1u}) {
        if (!(operand == 0 ? first : second))
            continue;
        Tables<T> tables(first, second);
        tables.expect(function, subtracts, ZELM_OK, 6);
        tables.sources[operand][6] = nullptr; // the first word behind the table, tested for (2, 0)
        tables.expect(function, subtracts, ZELM_ERR_NULL_PTR, 4);
        tables.sources[operand][6] = tables.sources[operand][0];
        tables.sources[operand][7] = nullptr; // for (2, 1)
        tables.expect(function, subtracts, ZELM_ERR_NULL_PTR, 5);
        tables.sources[operand][1] = nullptr; // read for (1, 0), tested for (0, 1)
        tables.expect(function, subtracts, ZELM_ERR_NULL_PTR, 1);
    }
}

TEST(MatrixAddSubDepartures, TransposedRunTimePFormsTestTheEntryOfTheUntransposedPlace) {
    expectTestsByRows<float>("Add_mmT_32f", zelmAdd_mmT_32f_P, false, true, false);
    expectTestsByRows<float>("Add_mTm_32f", zelmAdd_mTm_32f_P, true, false, false);
    expectTestsByRows<float>("Add_mTmT_32f", zelmAdd_mTmT_32f_P, true, true, false);
    expectTestsByRows<float>("Sub_mmT_32f", zelmSub_mmT_32f_P, false, true, true);
    expectTestsByRows<float>("Sub_mTm_32f", zelmSub_mTm_32f_P, true, false, true);
    expectTestsByRows<float>("Sub_mTmT_32f", zelmSub_mTmT_32f_P, true, true, true);
    expectTestsByRows<double>("Add_mmT_64f", zelmAdd_mmT_64f_P, false, true, false);
    expectTestsByRows<double>("Add_mTm_64f", zelmAdd_mTm_64f_P, true, false, false);
    expectTestsByRows<double>("Add_mTmT_64f", zelmAdd_mTmT_64f_P, true, true, false);
    expectTestsByRows<double>("Sub_mmT_64f", zelmSub_mmT_64f_P, false, true, true);
    expectTestsByRows<double>("Sub_mTm_64f", zelmSub_mTm_64f_P, true, false, true);
    expectTestsByRows<double>("Sub_mTmT_64f", zelmSub_mTmT_64f_P, true, true, true);
}

TEST(MatrixAddSubDepartures, AFixedSizeTestsTheEntryThatItReads) {
    const auto numbers = counted<float>(9, 1);
    std::array<float, 9> result;
    result.fill(7);
    const float *first[9], *second[9];
    float *results[9];
    for (std::size_t e = 0; e < 9; ++e) {
        first[e] = second[e] = &numbers[e];
        results[e] = &result[e];
    }
    second[1] = nullptr; // for (1, 0)
    EXPECT_EQ(zelmAdd_mmT_32f_3x3_P(first, 0, second, 0, results, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, (std::array<float, 9>{2, 6, 10, 7, 7, 7, 7, 7, 7}));
}

// ---- Aligned access.

const Member<double> aligned[] = {
    MEMBER(zelmAdd_maTm_64f_6x6),  MEMBER(zelmAdd_maTmT_64f_6x6),   MEMBER(zelmAdd_mamT_64f_6x6),
    MEMBER(zelmSub_maTmT_64f_6x6), MEMBER(zelmSub_mamT_64f_6x6),    MEMBER(zelmSub_maTma_64f_5x5_L),
    MEMBER(zelmSub_mamT_64f_3x3),  MEMBER(zelmSub_mamaT_64f_4x4_L), MEMBER(zelmSub_mama_64f_4x4_L),
};

// All starts and strides are multiples of 16 but for a step to every start and one to dst's second object.
class Aligned {
public:
    Aligned(const Member<double> &member, std::size_t step, std::int32_t dstStep) {
        const auto n = static_cast<std::int32_t>(member.order()), row = (n + n % 2) * d, object = n * row;
        for (std::size_t e = 0; e < 80; ++e) {
            first[e] = 1000 + static_cast<double>(e);
            second[e] = 128 * static_cast<double>(e);
        }
        call = {{first.data() + step, object, row},
                {second.data() + step, member.isArray(member.second()) ? object : 0, row},
                {result.data() + step, object + dstStep, row}};
    }
    alignas(16) std::array<double, 80> first, second, result;
    Call<double> call;
};

TEST(MatrixAddSubDepartures, NineMembersAreRegularIfAllOrNothingIsAligned) {
    for (const auto &member : aligned) {
        SCOPED_TRACE(member.name);
        expectRegular(member, Aligned(member, 0, 0).call);
        expectRegular(member, Aligned(member, 1, 0).call);
        expectRegular(member, Aligned(member, 1, d).call);
    }
}

TEST(MatrixAddSubDeathTest, NineMembersRaiseAnAlignmentFaultForAMixture) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer reports the store before the processor can refuse it";
#endif
    for (const auto &member : aligned) {
        SCOPED_TRACE(member.name);
        const Aligned mixture(member, 0, d);
        EXPECT_EXIT(
            {
                std::signal(SIGSEGV, SIG_DFL);
                member(mixture.call);
            },
            testing::KilledBySignal(SIGSEGV), "");
    }
}

// The second object of src1 is not aligned, and dst's lies one element on: each result is the next one's
// source.
TEST(MatrixAddSubDepartures, SubMama64f4x4ListFollowsTheTraversalAcrossAlignedPairs) {
    alignas(16) std::array<double, 40> memory;
    alignas(16) std::array<double, 32> other;
    for (std::size_t e = 0; e < 40; ++e)
        memory[e] = static_cast<double>(e * e);
    for (std::size_t e = 0; e < 32; ++e)
        other[e] = static_cast<double>(3 * e);
    auto expected = memory;
    for (const std::size_t start : {0u, 17u})
        for (std::size_t e = 0; e < 16; ++e)
            expected[start + start % 2 + e] = expected[start + e] - other[start / 17 * 16 + e];
    const double *const sources[] = {&memory[0], &memory[17]}, *const others[] = {&other[0], &other[16]};
    double *const results[] = {&memory[0], &memory[18]};
    EXPECT_EQ(zelmSub_mama_64f_4x4_L(sources, 0, 4 * d, others, 0, 4 * d, results, 0, 4 * d, 2), ZELM_OK);
    EXPECT_EQ(memory, expected);
}

TEST(MatrixAddSubDepartures, TheirNeighboursTakeAMixture) {
    const Member<double> members[] = {
        MEMBER(zelmSub_maTm_64f_6x6), MEMBER(zelmAdd_mam_64f_6x6),     MEMBER(zelmAdd_maTma_64f_5x5_L),
        MEMBER(zelmAdd_mamT_64f_3x3), MEMBER(zelmAdd_mamaT_64f_4x4_L), MEMBER(zelmAdd_mama_64f_4x4_L),
        MEMBER(zelmSub_mama_64f_4x4),
    };
    for (const auto &member : members) {
        SCOPED_TRACE(member.name);
        expectRegular(member, Aligned(member, 0, d).call);
    }
}

} // namespace
