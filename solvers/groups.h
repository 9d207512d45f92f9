// The matrices of a group, and what is asked of a result before it is kept in registers.
#pragma once

#include "frame/batch.h"
#include "frame/groups.h"
#include "frame/objects.h"
#include "frame/plainest.h"
#include "frame/shapes.h"

namespace zelm::solvers {

using namespace zelm::frame;

// Whether the elements of one result vector are distinct; those of an array's objects all are if those of the
// first are.
template <unsigned N, typename D>
ZELM_INLINE bool resultIsDistinct(const D &d) {
    if constexpr (D::isTable)
        return positionsAreApart(d.object(0), N, sizeof(typename D::Element));
    else
        return span(d.elemStride) >= std::int64_t{sizeof(typename D::Element)};
}

// Whether the elements of one result matrix are surely distinct: rows behind each other, and far from where
// an address would wrap.
template <unsigned N, typename D>
ZELM_INLINE bool matrixIsDistinct(const D &d) {
    using T = typename D::Element;
    if constexpr (D::isTable) {
        return positionsAreApart(d.object(0), N * N, sizeof(T));
    } else {
        constexpr Address most = Address{1} << 24;
        const Address row = (N - 1) * d.elemStride + sizeof(T);
        return d.elemStride - sizeof(T) < most && d.rowStride - row < most;
    }
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

// ---- whole matrices. A loop over the rows where the elements of many lanes are gathered one by one: that is
// long code.

template <typename Array>
constexpr bool kRowsAreAdjacent = decltype(std::declval<const Array &>().object(0))::isDense;

template <typename V, typename Array>
constexpr bool kUnrollsRows = kRowsAreAdjacent<Array> || Array::isSideBySide || kLanesOf<V> == 2;

template <unsigned N, typename V, typename Array>
ZELM_INLINE void loadMatrix(const Array &array, std::uint32_t k, V (&out)[N][N]) {
    if constexpr (kUnrollsRows<V, Array>) {
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            loadRow<N>(array, k, i, out[i]);
    } else {
#pragma GCC unroll 1
        for (unsigned i = 0; i < N; ++i)
            loadRow<N>(array, k, i, out[i]);
    }
}

template <unsigned N, typename V, typename Array>
ZELM_INLINE void storeMatrix(const Array &array, std::uint32_t k, const V (&in)[N][N]) {
    if constexpr (kUnrollsRows<V, Array>) {
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            storeRow<N>(array, k, i, in[i]);
    } else {
#pragma GCC unroll 1
        for (unsigned i = 0; i < N; ++i)
            storeRow<N>(array, k, i, in[i]);
    }
}

// ---- lower triangles: what lies above the diagonal is not touched

template <unsigned N, unsigned I = 0, typename V, typename Array>
ZELM_INLINE void loadLower(const Array &array, std::uint32_t k, V (&out)[N][N]) {
    loadRow<I + 1, N>(array, k, I, out[I]);
    if constexpr (I + 1 < N)
        loadLower<N, I + 1>(array, k, out);
}

template <unsigned N, unsigned I = 0, typename V, typename Array>
ZELM_INLINE void storeLower(const Array &array, std::uint32_t k, const V (&in)[N][N]) {
    storeRow<I + 1, N>(array, k, I, in[I]);
    if constexpr (I + 1 < N)
        storeLower<N, I + 1>(array, k, in);
}

// ---- one matrix in a local copy

template <unsigned N, typename T, typename S>
ZELM_INLINE void readMatrix(const S &s, T (&out)[N][N]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        ZELM_UNROLL
    for (unsigned j = 0; j < N; ++j)
        out[i][j] = s.get(i, j, N);
}

template <unsigned N, typename T, typename D>
ZELM_INLINE void writeMatrix(const D &d, const T (&in)[N][N]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        ZELM_UNROLL
    for (unsigned j = 0; j < N; ++j)
        d.set(i, j, N, in[i][j]);
}

} // namespace zelm::solvers
