// The matrices of a group, and what is asked of a result before it is kept in registers.
#pragma once

#include "frame/batch.h"
#include "frame/groups.h"
#include "frame/objects.h"
#include "frame/plainest.h"
#include "frame/shapes.h"

namespace zelm::solvers {

using namespace zelm::frame;

// Positions at most this far apart: so many of them as one object has stay away from where an address would
// wrap.
constexpr Address kMostApart = Address{1} << 24;

// Whether each of a table's positions lies behind the one before it, as most tables have them: one sum of
// bits shows all gaps.
template <unsigned entries, typename T>
ZELM_INLINE bool positionsAscend(const Table<T> &d) {
    Address gaps = 0;
    ZELM_UNROLL
    for (unsigned e = 1; e < entries; ++e)
        gaps |= addressOf(d.table[e]) - addressOf(d.table[e - 1]) - sizeof(T);
    return gaps < kMostApart;
}

// Whether the elements of one result vector are distinct; those of an array's objects all are if those of the
// first are.
template <unsigned N, typename D>
ZELM_INLINE bool resultIsDistinct(const D &d) {
    if constexpr (D::isTable)
        return positionsAscend<N>(d.object(0)) ||
               positionsAreApart(d.object(0), N, sizeof(typename D::Element));
    else
        return span(d.elemStride) >= std::int64_t{sizeof(typename D::Element)};
}

// Whether the elements of one result matrix are surely distinct: rows behind each other, and far from where
// an address would wrap.
template <unsigned N, typename D>
ZELM_INLINE bool matrixIsDistinct(const D &d) {
    using T = typename D::Element;
    if constexpr (D::isTable) {
        return positionsAscend<N * N>(d) || positionsAreApart(d, N * N, sizeof(T));
    } else {
        const Address row = (N - 1) * d.elemStride + sizeof(T);
        return d.elemStride - sizeof(T) < kMostApart && d.rowStride - row < kMostApart;
    }
}

// A copy of an operand for a real function that is rarely called: handed over itself, it would lie in memory
// on the common way too.
template <typename Operand>
ZELM_INLINE Operand aside(const Operand &operand) {
    return operand;
}

// No object starts at null. Of lists the frame asks it group by group.
template <typename Operand>
ZELM_INLINE bool hasNoNullObject(const Operand &operand, unsigned rows, unsigned columns,
                                 std::uint32_t count) {
    if constexpr (Operand::isTable || Operand::isList) {
        return true;
    } else {
        const Range range = rangeOf(operand, rows, columns, count);
        return isKnown(range) && range.low > 0;
    }
}

// A list whose entries mean nothing by themselves: null is where entry and shift come to it.
template <typename Operand>
ZELM_INLINE auto untested(const Operand &operand) {
    if constexpr (Operand::isList)
        return Untested<Operand>(operand);
    else
        return operand;
}

// ---- rows of groups whose objects follow each other at a stride, elements apart: one step of the stride
// from lane to lane

template <typename Array>
constexpr bool kIsSpacedArray = requires(const Array &array) {
    array.objStride;
}
&&!kHasDenseObjects<Array> && !Array::isSideBySide;

template <typename V>
ZELM_INLINE V gatherSpaced(Address first, Address stride) {
    using T = ElementOf<V>;
    return fromBlocks<V>([=](unsigned b) ZELM_INLINE_LAMBDA {
        const Address at = first + b * kLanes<T> * stride;
        const Address lanes[] = {at, at + stride, at + 2 * stride, at + 3 * stride};
        return gatherBlock(lanes, T{});
    });
}

template <typename V>
ZELM_INLINE void scatterSpaced(Address first, Address stride, V value) {
    toBlocks(value, [=](unsigned b, auto block) ZELM_INLINE_LAMBDA {
        const Address at = first + b * kLanes<ElementOf<V>> * stride;
        const Address lanes[] = {at, at + stride, at + 2 * stride, at + 3 * stride};
        scatterBlock(lanes, block);
    });
}

// The first N elements of row i, which has `columns` of them.
template <unsigned N, unsigned columns = N, typename V, typename Array>
ZELM_INLINE void readRow(const Array &array, std::uint32_t k, unsigned i, V *out) {
    if constexpr (kIsSpacedArray<Array>) {
        if constexpr (Array::isTable && kLanesOf<V> >= 4) {
            if (array.objStride == 2 * sizeof(ElementOf<V>)) {
                ZELM_UNROLL
                for (unsigned j = 0; j < N; ++j)
                    out[j] = loadAlternate<V>(array.object(k).address(i, j, columns));
                return;
            }
        }
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            out[j] = gatherSpaced<V>(array.object(k).address(i, j, columns), array.objStride);
    } else {
        loadRow<N, columns>(array, k, i, out);
    }
}

template <unsigned N, unsigned columns = N, typename V, typename Array>
ZELM_INLINE void writeRow(const Array &array, std::uint32_t k, unsigned i, const V *in) {
    if constexpr (kIsSpacedArray<Array>) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            scatterSpaced(array.object(k).address(i, j, columns), array.objStride, in[j]);
    } else {
        storeRow<N, columns>(array, k, i, in);
    }
}

// ---- groups by the run

// The step that takes groups for the frame, one for each call. Where the frame decides for all objects at
// once, which it does not for lists, the first call goes on to the end, and the next ones find their groups
// done. group(pack, k, end) computes the groups from k on as far as they go and returns the first object
// left.
template <bool ahead, typename Group>
struct Runs {
    Group group;
    std::uint32_t count, done;

    template <typename Named>
    ZELM_INLINE bool operator()(Named pack, std::uint32_t k) {
        if constexpr (ahead) {
            if (k >= done)
                done = group(pack, k, count);
            return k < done;
        } else {
            return group(pack, k, k + kLanesOf<typename Named::Pack>) != k;
        }
    }
};

template <typename... Operands, typename Group>
ZELM_INLINE auto inRuns(std::uint32_t count, Group group) {
    return Runs<!(Operands::isList || ...), Group>{group, count, 0};
}

// The groups from k on up to the first where group(k) says no.
template <typename V, typename Group>
ZELM_INLINE std::uint32_t groupsFrom(std::uint32_t k, std::uint32_t end, Group group) {
    while (end - k >= kLanesOf<V> && group(k))
        k += kLanesOf<V>;
    return k;
}

// The same where what is done with a group is a long chain of operations that wait for each other: a few
// groups are taken through each stage of it before the next stage, so that fewer operations wait at a time.
// stages(k, groups) says how many groups from k on it has done.
template <typename V, unsigned most, typename Stages>
ZELM_INLINE std::uint32_t groupsInStages(std::uint32_t k, std::uint32_t end, Stages stages) {
    while (const std::uint32_t left = (end - k) / kLanesOf<V>) {
        const unsigned groups = left < most ? left : most;
        const unsigned done = stages(k, groups);
        k += done * kLanesOf<V>;
        if (done != groups)
            break;
    }
    return k;
}

// ---- whole matrices. A loop over the rows where the elements of many lanes are gathered one by one: that is
// long code. Small matrices go without it and then need no memory.

template <unsigned N, typename V, typename Array>
constexpr bool kUnrollsRows = kHasDenseObjects<Array> || Array::isSideBySide || kLanesOf<V> == 2 ||
                              (kIsSpacedArray<Array> && N <= 4);

template <unsigned N, typename V, typename Array>
ZELM_INLINE void loadMatrix(const Array &array, std::uint32_t k, V (&out)[N][N]) {
    if constexpr (kUnrollsRows<N, V, Array>) {
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            readRow<N>(array, k, i, out[i]);
    } else {
#pragma GCC unroll 1
        for (unsigned i = 0; i < N; ++i)
            readRow<N>(array, k, i, out[i]);
    }
}

template <unsigned N, typename V, typename Array>
ZELM_INLINE void storeMatrix(const Array &array, std::uint32_t k, const V (&in)[N][N]) {
    if constexpr (kUnrollsRows<N, V, Array>) {
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            writeRow<N>(array, k, i, in[i]);
    } else {
#pragma GCC unroll 1
        for (unsigned i = 0; i < N; ++i)
            writeRow<N>(array, k, i, in[i]);
    }
}

template <unsigned N, typename V>
ZELM_INLINE void copyMatrix(const V (&from)[N][N], V (&to)[N][N]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            to[i][j] = from[i][j];
    }
}

// ---- lower triangles: what lies above the diagonal is not touched

template <unsigned N, unsigned I = 0, typename V, typename Array>
ZELM_INLINE void loadLower(const Array &array, std::uint32_t k, V (&out)[N][N]) {
    readRow<I + 1, N>(array, k, I, out[I]);
    if constexpr (I + 1 < N)
        loadLower<N, I + 1>(array, k, out);
}

template <unsigned N, unsigned I = 0, typename V, typename Array>
ZELM_INLINE void storeLower(const Array &array, std::uint32_t k, const V (&in)[N][N]) {
    writeRow<I + 1, N>(array, k, I, in[I]);
    if constexpr (I + 1 < N)
        storeLower<N, I + 1>(array, k, in);
}

// ---- one matrix in a local copy

template <unsigned N, typename T, typename S>
ZELM_INLINE void readMatrix(const S &s, T (&out)[N][N]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            out[i][j] = s.get(i, j, N);
    }
}

template <unsigned N, typename T, typename D>
ZELM_INLINE void writeMatrix(const D &d, const T (&in)[N][N]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            d.set(i, j, N, in[i][j]);
    }
}

} // namespace zelm::solvers
