// What every member of the products promises by its name: the order of its sums, its first term, and where it
// works in place.
#include "dense_call.h"
#include "matrix_product_departures.h"
#include "uses.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace zelmtest {
namespace {

using zelmref::Cell;
using zelmref::isArray;
using zelmref::Layout;
using zelmref::Type;
using zelmref::Uses;

constexpr std::uint32_t objects = 9;

struct Member {
    const Function *function;
    Cell cell;
    bool gaxpy, vector; // vector: src2 is one
};

std::vector<Member> members() {
    std::vector<Member> all;
    for (std::size_t i = 0; i < functionCount; ++i) {
        const Function &f = functions[i];
        const std::string_view operation = f.operation, descriptor = f.descriptor;
        const bool product = operation == "Mul" && descriptor.find('c') == std::string_view::npos;
        if (product || operation == "Gaxpy")
            all.push_back({&f, zelmref::parseCell(f.operation, f.descriptor, f.type, f.size, f.layout),
                           !product, descriptor.find('v') != std::string_view::npos});
    }
    return all;
}

bool isAdjacent(const Cell &cell) {
    return cell.layout == Layout::Standard || cell.layout == Layout::L;
}

bool isSingleByPosition(const Cell &cell) {
    return cell.layout == Layout::P && !isArray(cell);
}

// Calls `test` with the member's element type and each order that it has.
template <class Test>
void forEachMember(std::size_t expectedMembers, Test test) {
    const std::vector<Member> all = members();
    ASSERT_EQ(all.size(), expectedMembers);
    for (const Member &member : all)
        for (std::uint32_t n = 3; n <= 6; ++n) {
            if (member.cell.order != 0 && member.cell.order != n)
                continue;
            const std::string name = member.function->name;
            SCOPED_TRACE(name + ", order " + std::to_string(n));
            if (member.cell.type == Type::Float32)
                test.template operator()<float>(member, n);
            else
                test.template operator()<double>(member, n);
        }
}

template <class T>
using Sum = T (*)(const T *p, std::uint32_t n);

template <class T>
T leftToRight(const T *p, std::uint32_t n) {
    T sum = p[0];
    for (std::uint32_t t = 1; t < n; ++t)
        sum = sum + p[t];
    return sum;
}

template <class T>
T pairs(const T *p, std::uint32_t n) {
    const T four = (p[0] + p[1]) + (p[2] + p[3]);
    return n == 4 ? four : n == 5 ? four + p[4] : four + (p[4] + p[5]);
}

template <class T>
T evenAndOdd(const T *p, std::uint32_t n) {
    return n == 4   ? (p[0] + p[2]) + (p[1] + p[3])
           : n == 5 ? ((p[0] + p[2]) + p[4]) + (p[1] + p[3])
                    : ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
}

template <class T>
T fifthFirst(const T *p, std::uint32_t) {
    return ((p[0] + p[1]) + p[4]) + (p[2] + p[3]);
}

template <class T>
Sum<T> sumOf(const Member &member, std::uint32_t n, std::uint32_t row) {
    const Cell &c = member.cell;
    const std::string_view name = member.function->name;
    if (name == "zelmMul_mm_32f_6x6_S2" || name == "zelmMul_mmT_32f_6x6_S2" ||
        name == "zelmMul_mTmT_32f_6x6_S2")
        return pairs<T>;
    if (!(member.vector && c.order != 0 && isAdjacent(c)) || n == 3)
        return leftToRight<T>;
    const bool transposed = c.descriptor.find('T') != std::string_view::npos;
    if (c.type == Type::Float64)
        return pairs<T>;
    if (n == 5)
        return transposed || row < 4 ? fifthFirst<T> : evenAndOdd<T>;
    return transposed ? pairs<T> : evenAndOdd<T>;
}

// Numbers whose sum is another one in each order of n terms, or of three terms in each bracketing.
template <class T>
std::vector<T> tellingTerms(std::uint32_t n) {
    std::vector<T> p(n);
    for (std::uint64_t seed = 1;; ++seed) {
        std::uint64_t state = seed;
        for (T &term : p) {
            state = state * 6364136223846793005u + 1442695040888963407u;
            term = static_cast<T>(static_cast<std::int64_t>(state >> 8)) * static_cast<T>(0x1p-55);
            if (state >> 63)
                term = -term;
        }
        std::set<T> sums = {leftToRight(p.data(), n)};
        std::size_t orders = 3;
        if (n == 3) {
            sums.insert(p[0] + (p[1] + p[2]));
            sums.insert((p[0] + p[2]) + p[1]);
        } else {
            sums.insert(pairs(p.data(), n));
            sums.insert(evenAndOdd(p.data(), n));
            if (n == 5)
                sums.insert(fifthFirst(p.data(), n)), ++orders;
        }
        if (sums.size() == orders)
            return p;
    }
}

template <class T>
void fill(DenseCall<T> &call, const char *operand, std::uint32_t n, T value) {
    for (std::uint32_t k = 0; call.has(operand) && k < objects; ++k)
        for (std::uint32_t e = 0; e < n * n; ++e)
            call.element(operand, k, e) = value;
}

TEST(ProductMembers, EachSumsInItsOwnOrder) {
    forEachMember(1350, []<class T>(const Member &member, std::uint32_t n) {
        const std::vector<T> p = tellingTerms<T>(n);
        DenseCall<T> call(*member.function, n, objects);
        fill<T>(call, "src2", n, 1);
        const bool transposed = !member.gaxpy && Uses(member.cell.descriptor).first.transposed;
        for (std::uint32_t k = 0; k < objects; ++k)
            for (std::uint32_t i = 0; i < n; ++i)
                for (std::uint32_t t = 0; t < n; ++t) // every row as used is p
                    call.element("src1", k, transposed ? t * n + i : i * n + t) = p[t];
        EXPECT_EQ(call.run(), ZELM_OK);
        for (std::uint32_t k = 0; k < (isArray(member.cell) ? objects : 1); ++k)
            for (std::uint32_t i = 0; i < n; ++i)
                for (std::uint32_t j = 0; j < (member.vector ? 1 : n); ++j)
                    EXPECT_EQ(call.element("dst", k, member.vector ? i : i * n + j),
                              sumOf<T>(member, n, i)(p.data(), n))
                        << "object " << k << ", row " << i;
    });
}

TEST(ProductMembers, NegativeZerosAddUpToThatOfTheFirstTerm) {
    forEachMember(1350, []<class T>(const Member &member, std::uint32_t n) {
        DenseCall<T> call(*member.function, n, objects);
        fill<T>(call, "src1", n, static_cast<T>(-0.0));
        fill<T>(call, "src2", n, 1);
        fill<T>(call, "src3", n, static_cast<T>(-0.0));
        fill<T>(call, "dst", n, 7);
        EXPECT_EQ(call.run(), ZELM_OK);
        const Cell &c = member.cell;
        const bool fromZero = c.order == 0 || isSingleByPosition(c) || (member.gaxpy && !isAdjacent(c));
        for (std::uint32_t e = 0; e < n; ++e) {
            const T sum = call.element("dst", 0, e);
            EXPECT_EQ(sum, 0);
            EXPECT_EQ(std::signbit(sum), !fromZero);
        }
    });
}

struct Sizes {
    std::uint32_t w1, h1, w2, h2; // of a vector only w2, its length
};

// Whether the dimensions of stored operands pass, as each descriptor has it.
bool agree(std::string_view descriptor, const Sizes &s) {
    if (descriptor == "mm" || descriptor == "mam")
        return s.w1 == s.h2;
    if (descriptor == "mmT" || descriptor == "mmaT" || descriptor == "mamT" || descriptor == "mamaT")
        return s.w1 == s.w2;
    if (descriptor == "mTm" || descriptor == "mTma" || descriptor == "maTm" || descriptor == "maTma")
        return s.h1 == s.h2;
    if (descriptor == "mv" || descriptor == "mva" || descriptor == "mav" || descriptor == "mava")
        return s.w1 == s.w2;
    if (descriptor == "mTv" || descriptor == "mTva" || descriptor == "maTv" || descriptor == "maTva")
        return s.h1 == s.w2;
    return s.h1 == s.w2; // mTmT, mma, mTmaT, maTmT, mama, maTmaT
}

template <class T>
ZelmStatus runWith(const Member &member, const Sizes &s, bool &untouched) {
    DenseCall<T> call(*member.function, 3, 2);
    call.setDimension("src1Width", s.w1);
    call.setDimension("src1Height", s.h1);
    call.setDimension(member.vector ? "src2Len" : "src2Width", s.w2);
    call.setDimension("src2Height", s.h2);
    for (std::uint32_t e = 0; e < 18; ++e)
        call.element("dst", e / 9, e % 9) = 7;
    const ZelmStatus status = call.run();
    untouched = true;
    for (std::uint32_t e = 0; e < 18; ++e)
        untouched = untouched && call.element("dst", e / 9, e % 9) == 7;
    return status;
}

TEST(ProductMembers, TestTheSizesThatTheirDescriptorNames) {
    forEachMember(1350, []<class T>(const Member &member, std::uint32_t n) {
        if (member.gaxpy || member.cell.order != 0 || n != 3)
            return;
        constexpr std::uint32_t sizes[] = {0, 2, 3};
        for (std::uint32_t choice = 0; choice < (member.vector ? 27u : 81u); ++choice) {
            const Sizes s = {sizes[choice % 3], sizes[choice / 3 % 3], sizes[choice / 9 % 3],
                             member.vector ? 1 : sizes[choice / 27]};
            const bool noColumns = s.w2 == 0 && member.cell.descriptor == "mam";
            const bool passes = s.w1 != 0 && s.h1 != 0 && (s.w2 != 0 || noColumns) && s.h2 != 0 &&
                                agree(member.cell.descriptor, s);
            bool untouched;
            EXPECT_EQ(runWith<T>(member, s, untouched), passes ? ZELM_OK : ZELM_ERR_SIZE)
                << s.w1 << ' ' << s.h1 << ' ' << s.w2 << ' ' << s.h2;
            EXPECT_EQ(untouched, !passes || noColumns);
        }
    });
}

bool worksInPlace(const Member &member, const char *source) {
    const Cell &c = member.cell;
    if (c.order == 0 || isSingleByPosition(c))
        return false;
    if (member.vector)
        return isAdjacent(c);
    return source == std::string_view("src1") ? zelmref::departs::worksInPlaceOfFirst(c)
                                              : zelmref::departs::worksInPlaceOfSecond(c);
}

template <class T>
bool sameInPlace(const Member &member, std::uint32_t n, const char *source) {
    DenseCall<T> apart(*member.function, n, objects), inPlace(*member.function, n, objects);
    std::uint32_t state = 1;
    for (const char *operand : {"src1", "src2"})
        for (std::uint32_t k = 0; k < objects; ++k)
            for (std::uint32_t e = 0; e < n * n; ++e) {
                state = state * 1664525 + 1013904223;
                const T number = 1 + static_cast<T>(state >> 8) * static_cast<T>(0x1p-24);
                apart.element(operand, k, e) = inPlace.element(operand, k, e) = number;
            }
    inPlace.placeDstAt(source);
    EXPECT_EQ(apart.run(), ZELM_OK);
    EXPECT_EQ(inPlace.run(), ZELM_OK);
    bool same = true;
    for (std::uint32_t k = 0; k < (isArray(member.cell) ? objects : 1); ++k)
        for (std::uint32_t e = 0; e < (member.vector ? n : n * n); ++e)
            same = same && apart.element("dst", k, e) == inPlace.element("dst", k, e);
    return same;
}

TEST(ProductMembers, WorkInPlaceExactlyWhereTheyPromise) {
    forEachMember(1350, []<class T>(const Member &member, std::uint32_t n) {
        if (member.gaxpy)
            return;
        const Uses uses(member.cell.descriptor);
        for (const char *source : {"src1", "src2"}) {
            const bool first = source == std::string_view("src1");
            if ((first && member.vector) || (first ? uses.first : uses.second).array != isArray(member.cell))
                continue;
            EXPECT_EQ(sameInPlace<T>(member, n, source), worksInPlace(member, source)) << source;
            if (member.cell.order == 0) {
                EXPECT_FALSE(sameInPlace<T>(member, 1, source)) << source << ", order 1";
            }
        }
    });
}

} // namespace
} // namespace zelmtest
