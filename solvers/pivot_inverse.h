// Inverses of orders 5 and 6 in the dense forms of 32-bit float: single pivots until a matrix of order 4
// remains, of one matrix or of one matrix per lane of V.
#pragma once

#include "solvers/block_inverse.h"

namespace zelm::solvers {

// How the inversion of one matrix ended.
enum class Outcome { Inverted, Singular, SingularAfterSearch };

// The lanes where a pivot is not good enough where it stands and must be searched for.
template <typename V, unsigned N>
ZELM_INLINE Mask<V> needsSearch(const V (&a)[N][N]) {
    const Mask<V> first = inBand(a[0][0]);
    if constexpr (N == 5)
        return first;
    else
        return first | inBand(determinantOfOrder2(a[0][0], a[0][1], a[1][0], a[1][1]));
}

// Takes the element (P, P) as the pivot: its reciprocal comes into its place, the multipliers l of the rows
// below into the column below it, and the trailing matrix is reduced.
template <unsigned P, typename V, unsigned N>
ZELM_INLINE void eliminateBelow(V (&a)[N][N]) {
    a[P][P] = reciprocalOfOrder4(a[P][P]);
    ZELM_UNROLL
    for (unsigned i = P + 1; i < N; ++i) {
        a[i][P] = a[i][P] * a[P][P];
        ZELM_UNROLL
        for (unsigned j = P + 1; j < N; ++j)
            a[i][j] = a[i][j] - a[P][j] * a[i][P];
    }
}

// From the inverse W of the matrix behind (P, P) to that of the matrix from there on.
template <unsigned P, typename V, unsigned N>
ZELM_INLINE void extendInverse(V (&a)[N][N]) {
    const V r = a[P][P];
    V m[N], u[N];
    ZELM_UNROLL
    for (unsigned i = P + 1; i < N; ++i) {
        m[i] = V{} - a[i][P];
        u[i] = a[P][i];
    }
    // Its first column x = W * m.
    ZELM_UNROLL
    for (unsigned i = P + 1; i < N; ++i) {
        V sum = a[i][P + 1] * m[P + 1];
        ZELM_UNROLL
        for (unsigned j = P + 2; j < N; ++j)
            sum = sum + a[i][j] * m[j];
        a[i][P] = sum;
    }
    // Its first row -(u * W) * r.
    ZELM_UNROLL
    for (unsigned j = P + 1; j < N; ++j) {
        V sum = u[P + 1] * a[P + 1][j];
        ZELM_UNROLL
        for (unsigned i = P + 2; i < N; ++i)
            sum = sum + u[i] * a[i][j];
        a[P][j] = -sum * r;
    }
    // Its corner r - (u * x) * r.
    V sum = u[P + 1] * a[P + 1][P];
    ZELM_UNROLL
    for (unsigned i = P + 2; i < N; ++i)
        sum = sum + u[i] * a[i][P];
    a[P][P] = r - sum * r;
}

// The inverse of the trailing matrix of order 4 in its place; the lanes where it is singular.
template <typename V, unsigned N>
ZELM_INLINE Mask<V> invertTrailing(V (&a)[N][N]) {
    constexpr unsigned P = N - 4;
    V z[4][4], w[4][4];
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < 4; ++j)
            z[i][j] = a[P + i][P + j];
    }
    const Mask<V> singular = invertClosed<true, Singular::Zero>(z, w);
    // Where a matrix is singular, its working rows are part of the result: nothing is overwritten.
    if (anyLane(singular))
        return singular;
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < 4; ++j)
            a[P + i][P + j] = w[i][j];
    }
    return singular;
}

// ---- one matrix, whose pivots are searched for where they have to be

// The columns in the order in which they compete: of equal magnitudes the first wins.
inline constexpr unsigned kCompetingOf5[5] = {3, 2, 1, 0, 4}, kCompetingOf6[6] = {5, 4, 3, 2, 1, 0};

// Exchanges column P with the one from there on that has the largest magnitude in row P, of which `c` is the
// number. False if that is no pivot either.
template <unsigned P, unsigned N>
ZELM_INLINE bool bringPivotColumn(float (&a)[N][N], unsigned &c) {
    const unsigned *const order = N == 5 ? kCompetingOf5 : kCompetingOf6;
    c = order[0];
    ZELM_UNROLL
    for (unsigned i = 1; i < N - P; ++i)
        if (magnitude(a[P][order[i]]) > magnitude(a[P][c]))
            c = order[i];
    if (inBand(a[P][c]).lanes)
        return false;
    exchangeColumns(a, P, c);
    return true;
}

// One matrix. Where it is singular, row 0 (in order 6 rows 0 and 1) is left as the steps left it.
template <unsigned N>
ZELM_INLINE Outcome invertByPivots(float (&a)[N][N]) {
    // 1. Pivots that are good enough where they stand are taken unsearched.
    const bool search = needsSearch(a).lanes;
    const Outcome singular = search ? Outcome::SingularAfterSearch : Outcome::Singular;
    // 2. Otherwise the column with the largest element of row 0 comes first.
    unsigned c0 = 0, c1 = 1;
    if (search && !bringPivotColumn<0>(a, c0))
        return singular;
    // 3. The first elimination.
    eliminateBelow<0>(a);
    // 4. In order 6 a second one, after a search in row 1. The column below the first pivot holds multipliers
    //    and stays.
    if constexpr (N == 6) {
        if (search && !bringPivotColumn<1>(a, c1))
            return singular;
        eliminateBelow<1>(a);
    }
    // 5. The closed inverse of what remains.
    if (invertTrailing(a).lanes)
        return singular;
    // 6. The inverse is extended over the pivots, the last one first.
    if constexpr (N == 6)
        extendInverse<1>(a);
    extendInverse<0>(a);
    // 7. Rows take the places that the columns had.
    if (search) {
        exchangeRows(a, 1, c1);
        exchangeRows(a, 0, c0);
    }
    return Outcome::Inverted;
}

// ---- a group: false if one of its matrices needs a search or is singular

template <typename V, unsigned N>
ZELM_INLINE bool invertByPivotsUnsearched(V (&a)[N][N]) {
    if (anyLane(needsSearch(a)))
        return false;
    eliminateBelow<0>(a);
    if constexpr (N == 6)
        eliminateBelow<1>(a);
    if (anyLane(invertTrailing(a)))
        return false;
    if constexpr (N == 6)
        extendInverse<1>(a);
    extendInverse<0>(a);
    return true;
}

} // namespace zelm::solvers
