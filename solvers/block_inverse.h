// Inverses of orders 5 and 6 by a block of pivots in the first rows and its Schur complement, all arithmetic
// in the element type, of as many matrices as a pack has lanes.
#pragma once

#include "solvers/closed_inverse.h"

namespace zelm::solvers {

template <typename V, unsigned N>
ZELM_INLINE void exchangeColumns(V (&a)[N][N], unsigned c, unsigned d) {
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        const V held = a[i][c];
        a[i][c] = a[i][d];
        a[i][d] = held;
    }
}

template <typename V, unsigned N>
ZELM_INLINE void exchangeRows(V (&a)[N][N], unsigned c, unsigned d) {
#pragma GCC unroll 6
    for (unsigned j = 0; j < N; ++j) {
        const V held = a[c][j];
        a[c][j] = a[d][j];
        a[d][j] = held;
    }
}

// The inverse of [P Q; R T], P being of order B, in place. Every sum runs left to right in ascending index.
// The result is a mask of the lanes where P or the complement counts as singular.
template <unsigned B, bool dense, typename V, unsigned N>
ZELM_INLINE V invertByBlocks(V (&a)[N][N]) {
    constexpr unsigned M = N - B;
    // The inverse of P.
    V p[B][B], pInverse[B][B], singular;
#pragma GCC unroll 3
    for (unsigned i = 0; i < B; ++i)
#pragma GCC unroll 3
        for (unsigned j = 0; j < B; ++j)
            p[i][j] = a[i][j];
    if constexpr (B == 2)
        singular = invertOrder2(p, pInverse);
    else
        singular = invertClosed<dense, Singular::InBand>(p, pInverse);

    // X = P^-1 * Q and Y = R * P^-1.
    V x[B][M], y[M][B];
#pragma GCC unroll 3
    for (unsigned i = 0; i < B; ++i) {
#pragma GCC unroll 4
        for (unsigned j = 0; j < M; ++j) {
            x[i][j] = pInverse[i][0] * a[0][B + j];
            y[j][i] = a[B + j][0] * pInverse[0][i];
#pragma GCC unroll 3
            for (unsigned k = 1; k < B; ++k) {
                x[i][j] = x[i][j] + pInverse[i][k] * a[k][B + j];
                y[j][i] = y[j][i] + a[B + j][k] * pInverse[k][i];
            }
        }
    }

    // Z = T - Y * Q, the Schur complement, and its inverse W.
    V z[M][M], w[M][M];
#pragma GCC unroll 4
    for (unsigned i = 0; i < M; ++i) {
#pragma GCC unroll 4
        for (unsigned j = 0; j < M; ++j) {
            V sum = y[i][0] * a[0][B + j];
#pragma GCC unroll 3
            for (unsigned k = 1; k < B; ++k)
                sum = sum + y[i][k] * a[k][B + j];
            z[i][j] = a[B + i][B + j] - sum;
        }
    }
    constexpr Singular rule = dense ? Singular::ReciprocalZero : Singular::InBand;
    singular = bitOr(singular, invertClosed<dense, rule>(z, w));

    // The blocks of the inverse: P^-1 + X*W*Y, -X*W, -W*Y and W.
#pragma GCC unroll 3
    for (unsigned i = 0; i < B; ++i) {
        V xw[M];
#pragma GCC unroll 4
        for (unsigned j = 0; j < M; ++j) {
            V wy = w[j][0] * y[0][i];
            xw[j] = x[i][0] * w[0][j];
#pragma GCC unroll 4
            for (unsigned k = 1; k < M; ++k) {
                wy = wy + w[j][k] * y[k][i];
                xw[j] = xw[j] + x[i][k] * w[k][j];
            }
            a[B + j][i] = -wy;
            a[i][B + j] = -xw[j];
        }
#pragma GCC unroll 3
        for (unsigned j = 0; j < B; ++j) {
            V sum = xw[0] * y[0][j];
#pragma GCC unroll 4
            for (unsigned k = 1; k < M; ++k)
                sum = sum + xw[k] * y[k][j];
            a[i][j] = pInverse[i][j] + sum;
        }
    }
#pragma GCC unroll 4
    for (unsigned i = 0; i < M; ++i)
#pragma GCC unroll 4
        for (unsigned j = 0; j < M; ++j)
            a[B + i][B + j] = w[i][j];
    return singular;
}

// ---- the forms with strides or tables inside an object: a search in every row of the pivot block

// The first of positions `from` to 4 with the largest value(q); position 5 never competes.
template <typename T, typename Value>
ZELM_INLINE Pack<T> largestOf(unsigned from, Value value) {
    Pack<T> best = value(from), position = broadcast(static_cast<T>(from));
#pragma GCC unroll 4
    for (unsigned q = from + 1; q <= 4; ++q) {
        const Pack<T> v = value(q);
        const Pack<T> wins = greater(v, best);
        best = select(wins, v, best);
        position = select(wins, broadcast(static_cast<T>(q)), position);
    }
    return position;
}

template <typename T, unsigned N>
ZELM_INLINE Pack<T> invertWithSearch(Pack<T> (&a)[N][N]) {
    using V = Pack<T>;
    constexpr unsigned B = N == 5 ? 2 : 3;
    V position[B];
    const auto exchangeWith = [&](unsigned stage) __attribute__((always_inline)) {
#pragma GCC unroll 4
        for (unsigned q = stage + 1; q <= 4; ++q) {
            const V here = equal(position[stage], broadcast(static_cast<T>(q)));
#pragma GCC unroll 6
            for (unsigned i = 0; i < N; ++i)
                exchange(here, a[i][stage], a[i][q]);
        }
    };
    // 1. The column with the largest element of row 0 comes first.
    position[0] = largestOf<T>(0, [&](unsigned q) { return magnitude(a[0][q]); });
    exchangeWith(0);
    // 2. Beside it, the one with the largest determinant of order 2.
    position[1] =
        largestOf<T>(1, [&](unsigned q) { return magnitude(a[1][q] * a[0][0] - a[0][q] * a[1][0]); });
    exchangeWith(1);
    // 3. In order 6, beside both the one with the largest determinant of order 3.
    if constexpr (B == 3) {
        position[2] = largestOf<T>(2, [&](unsigned q) {
            const V p[3][3] = {
                {a[0][0], a[0][1], a[0][q]}, {a[1][0], a[1][1], a[1][q]}, {a[2][0], a[2][1], a[2][q]}};
            V c[3][3];
            cofactors(p, c);
            return magnitude(determinantFrom<false>(p, c));
        });
        exchangeWith(2);
    }
    // 4. The inverse by blocks.
    const V singular = invertByBlocks<B, false>(a);
    // 5. Its rows take the places that the columns had.
#pragma GCC unroll 3
    for (unsigned back = 0; back < B; ++back) {
        const unsigned stage = B - 1 - back;
#pragma GCC unroll 4
        for (unsigned q = stage + 1; q <= 4; ++q) {
            const V here = equal(position[stage], broadcast(static_cast<T>(q)));
#pragma GCC unroll 6
            for (unsigned j = 0; j < N; ++j)
                exchange(here, a[stage][j], a[q][j]);
        }
    }
    return singular;
}

// ---- the dense forms of 64-bit float: the first pair of columns that is good enough

struct ColumnPair {
    unsigned first, second;
};

// Columns 0 and 1 if their determinant in rows 0 and 1 lies outside the band; else the first such pair from
// the last column down. False if there is none.
template <unsigned N>
ZELM_INLINE bool findColumnPair(const __m128d (&a)[N][N], ColumnPair &pair) {
    const auto isGood = [&](unsigned j, unsigned q) {
        return !anyLane(inBand(determinantOfOrder2(a[0][j], a[0][q], a[1][j], a[1][q])));
    };
    pair = {0, 1};
    if (isGood(0, 1))
        return true;
    for (unsigned j = N - 1; j >= 1; --j) {
        for (unsigned q = j; q-- > 0;) {
            if (isGood(j, q)) {
                pair = {j, q};
                return true;
            }
        }
    }
    return false;
}

// One matrix, the same in all lanes. False if it counts as singular.
template <unsigned N>
ZELM_INLINE bool invertWithColumnPair(__m128d (&a)[N][N]) {
    // 1. The pair of pivot columns.
    ColumnPair pair;
    if (!findColumnPair(a, pair))
        return false;
    // 2. It comes first. Once column 0 has changed places, it is found where the first of the pair was.
    const bool exchanged = pair.first != 0;
    const unsigned second = exchanged && pair.second == 0 ? pair.first : pair.second;
    if (exchanged) {
        exchangeColumns(a, 0, pair.first);
        exchangeColumns(a, 1, second);
    }
    // 3. The inverse by blocks.
    if (anyLane(invertByBlocks<2, true>(a)))
        return false;
    // 4. Its rows take the places that the columns had.
    if (exchanged) {
        exchangeRows(a, 1, second);
        exchangeRows(a, 0, pair.first);
    }
    return true;
}

} // namespace zelm::solvers
