// Inverses of orders 5 and 6 in the dense forms of 32-bit float: single pivots until a matrix of order 4
// remains, of as many matrices as a pack has lanes.
#pragma once

#include "solvers/block_inverse.h"

namespace zelm::solvers {

// How the inversion of one matrix ended.
enum class Outcome { Inverted, Singular, SingularAfterSearch };

// Whether the pivots may be taken where they stand, a mask.
template <unsigned N>
ZELM_INLINE __m128 closesGate(const __m128 (&a)[N][N]) {
    const __m128 first = inBand(a[0][0]);
    if constexpr (N == 5)
        return first;
    else
        return bitOr(first, inBand(determinantOfOrder2(a[0][0], a[0][1], a[1][0], a[1][1])));
}

// Takes the element (P, P) as the pivot: its reciprocal comes into its place, the multipliers l of the rows
// below into the column below it, and the trailing matrix is reduced.
template <unsigned P, unsigned N>
ZELM_INLINE void eliminateBelow(__m128 (&a)[N][N]) {
    a[P][P] = reciprocalOfOrder4(a[P][P]);
#pragma GCC unroll 6
    for (unsigned i = P + 1; i < N; ++i) {
        a[i][P] = a[i][P] * a[P][P];
#pragma GCC unroll 6
        for (unsigned j = P + 1; j < N; ++j)
            a[i][j] = a[i][j] - a[P][j] * a[i][P];
    }
}

// From the inverse W of the matrix behind (P, P) to that of the matrix from there on.
template <unsigned P, unsigned N>
ZELM_INLINE void extendInverse(__m128 (&a)[N][N]) {
    const __m128 r = a[P][P];
    __m128 m[N], u[N];
#pragma GCC unroll 6
    for (unsigned i = P + 1; i < N; ++i) {
        m[i] = __m128{} - a[i][P];
        u[i] = a[P][i];
    }
    // Its first column x = W * m.
#pragma GCC unroll 6
    for (unsigned i = P + 1; i < N; ++i) {
        __m128 sum = a[i][P + 1] * m[P + 1];
#pragma GCC unroll 6
        for (unsigned j = P + 2; j < N; ++j)
            sum = sum + a[i][j] * m[j];
        a[i][P] = sum;
    }
    // Its first row -(u * W) * r.
#pragma GCC unroll 6
    for (unsigned j = P + 1; j < N; ++j) {
        __m128 sum = u[P + 1] * a[P + 1][j];
#pragma GCC unroll 6
        for (unsigned i = P + 2; i < N; ++i)
            sum = sum + u[i] * a[i][j];
        a[P][j] = -sum * r;
    }
    // Its corner r - (u * x) * r.
    __m128 sum = u[P + 1] * a[P + 1][P];
#pragma GCC unroll 6
    for (unsigned i = P + 2; i < N; ++i)
        sum = sum + u[i] * a[i][P];
    a[P][P] = r - sum * r;
}

// The inverse of the trailing matrix of order 4 in its place; a mask of the lanes where it is singular.
template <unsigned N>
ZELM_INLINE __m128 invertTrailing(__m128 (&a)[N][N]) {
    constexpr unsigned P = N - 4;
    __m128 z[4][4], w[4][4];
#pragma GCC unroll 4
    for (unsigned i = 0; i < 4; ++i)
#pragma GCC unroll 4
        for (unsigned j = 0; j < 4; ++j)
            z[i][j] = a[P + i][P + j];
    const __m128 singular = invertClosed<true, Singular::Zero>(z, w);
    // Where a matrix is singular, its working rows are part of the result: nothing is overwritten.
    if (anyLane(singular))
        return singular;
#pragma GCC unroll 4
    for (unsigned i = 0; i < 4; ++i)
#pragma GCC unroll 4
        for (unsigned j = 0; j < 4; ++j)
            a[P + i][P + j] = w[i][j];
    return singular;
}

// The column of the largest magnitude in a row: of equal ones the first in the given order.
template <unsigned P, unsigned N, unsigned count>
ZELM_INLINE unsigned largestColumn(const __m128 (&a)[N][N], const unsigned (&order)[count]) {
    unsigned best = order[0];
    for (unsigned c : order)
        if (magnitude(a[P][c])[0] > magnitude(a[P][best])[0])
            best = c;
    return best;
}

// One matrix, the same in all lanes. Where it is singular, row 0 (in order 6 rows 0 and 1) is left as the
// steps left it.
template <unsigned N>
ZELM_INLINE Outcome invertByPivots(__m128 (&a)[N][N]) {
    // 1. The gate: pivots that are good enough where they stand are taken unsearched.
    const bool search = anyLane(closesGate(a));
    const Outcome singular = search ? Outcome::SingularAfterSearch : Outcome::Singular;
    // 2. Otherwise the column with the largest element of row 0 comes first.
    unsigned c0 = 0, c1 = 1;
    if (search) {
        if constexpr (N == 5)
            c0 = largestColumn<0>(a, {3, 2, 1, 0, 4});
        else
            c0 = largestColumn<0>(a, {5, 4, 3, 2, 1, 0});
        if (anyLane(inBand(a[0][c0])))
            return singular;
        exchangeColumns(a, 0, c0);
    }
    // 3. The first elimination.
    eliminateBelow<0>(a);
    // 4. In order 6 a second one, after a search in row 1. The column below the first pivot holds multipliers
    //    and stays.
    if constexpr (N == 6) {
        if (search) {
            c1 = largestColumn<1>(a, {5, 4, 3, 2, 1});
            if (anyLane(inBand(a[1][c1])))
                return singular;
            exchangeColumns(a, 1, c1);
        }
        eliminateBelow<1>(a);
    }
    // 5. The closed inverse of what remains.
    if (anyLane(invertTrailing(a)))
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

// Several matrices at once: false if one of them needs a search or is singular.
template <unsigned N>
ZELM_INLINE bool invertByPivotsInPlace(__m128 (&a)[N][N]) {
    if (anyLane(closesGate(a)))
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
