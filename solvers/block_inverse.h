// Inverses of orders 5 and 6 by a block of pivots in the first rows and its Schur complement, all arithmetic
// in the element type, of one matrix or of one matrix per lane of V.
#pragma once

#include "solvers/closed_inverse.h"

namespace zelm::solvers {

template <typename V, unsigned N>
ZELM_INLINE void exchangeColumns(V (&a)[N][N], unsigned c, unsigned d) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        const V held = a[i][c];
        a[i][c] = a[i][d];
        a[i][d] = held;
    }
}

template <typename V, unsigned N>
ZELM_INLINE void exchangeRows(V (&a)[N][N], unsigned c, unsigned d) {
    ZELM_UNROLL
    for (unsigned j = 0; j < N; ++j) {
        const V held = a[c][j];
        a[c][j] = a[d][j];
        a[d][j] = held;
    }
}

// ---- the steps of the inverse of [P Q; R T], P being of order B. Every sum runs left to right in ascending
// index.

// X = P^-1 * Q and Y = R * P^-1.
template <unsigned B, unsigned M, typename V, unsigned N>
ZELM_INLINE void multiplyByInverse(const V (&a)[N][N], const V (&pInverse)[B][B], V (&x)[B][M],
                                   V (&y)[M][B]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < B; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < M; ++j) {
            x[i][j] = pInverse[i][0] * a[0][B + j];
            y[j][i] = a[B + j][0] * pInverse[0][i];
            ZELM_UNROLL
            for (unsigned k = 1; k < B; ++k) {
                x[i][j] = x[i][j] + pInverse[i][k] * a[k][B + j];
                y[j][i] = y[j][i] + a[B + j][k] * pInverse[k][i];
            }
        }
    }
}

// Z = T - Y * Q, the Schur complement.
template <unsigned B, unsigned M, typename V, unsigned N>
ZELM_INLINE void schurComplement(const V (&a)[N][N], const V (&y)[M][B], V (&z)[M][M]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < M; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < M; ++j) {
            V sum = y[i][0] * a[0][B + j];
            ZELM_UNROLL
            for (unsigned k = 1; k < B; ++k)
                sum = sum + y[i][k] * a[k][B + j];
            z[i][j] = a[B + i][B + j] - sum;
        }
    }
}

// The blocks of the inverse: P^-1 + X*W*Y, -X*W, -W*Y and W, the inverse of the complement.
template <unsigned B, unsigned M, typename V, unsigned N>
ZELM_INLINE void composeInverse(const V (&pInverse)[B][B], const V (&x)[B][M], const V (&y)[M][B],
                                const V (&w)[M][M], V (&a)[N][N]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < B; ++i) {
        V xw[M];
        ZELM_UNROLL
        for (unsigned j = 0; j < M; ++j) {
            V wy = w[j][0] * y[0][i];
            xw[j] = x[i][0] * w[0][j];
            ZELM_UNROLL
            for (unsigned k = 1; k < M; ++k) {
                wy = wy + w[j][k] * y[k][i];
                xw[j] = xw[j] + x[i][k] * w[k][j];
            }
            a[B + j][i] = -wy;
            a[i][B + j] = -xw[j];
        }
        ZELM_UNROLL
        for (unsigned j = 0; j < B; ++j) {
            V sum = xw[0] * y[0][j];
            ZELM_UNROLL
            for (unsigned k = 1; k < M; ++k)
                sum = sum + xw[k] * y[k][j];
            a[i][j] = pInverse[i][j] + sum;
        }
    }
    ZELM_UNROLL
    for (unsigned i = 0; i < M; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < M; ++j)
            a[B + i][B + j] = w[i][j];
    }
}

// In place. The result is the lanes where P or the complement counts as singular.
template <unsigned B, bool dense, typename V, unsigned N>
ZELM_INLINE Mask<V> invertByBlocks(V (&a)[N][N]) {
    constexpr unsigned M = N - B;
    V p[B][B], pInverse[B][B];
    ZELM_UNROLL
    for (unsigned i = 0; i < B; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < B; ++j)
            p[i][j] = a[i][j];
    }
    Mask<V> singular = noLane<V>();
    if constexpr (B == 2)
        singular = invertOrder2(p, pInverse);
    else
        singular = invertClosed<dense, Singular::InBand>(p, pInverse);

    V x[B][M], y[M][B], z[M][M], w[M][M];
    multiplyByInverse<B, M>(a, pInverse, x, y);
    schurComplement<B, M>(a, y, z);
    constexpr Singular rule = dense ? Singular::ReciprocalZero : Singular::InBand;
    singular = singular | invertClosed<dense, rule>(z, w);
    composeInverse<B, M>(pInverse, x, y, w, a);
    return singular;
}

// ---- the forms with strides or tables inside an object: a search in every row of the pivot block

// The first of positions `from` to 4 with the largest value(q), a number in the element type; position 5
// never competes.
template <typename V, typename Value>
ZELM_INLINE V largestOf(unsigned from, Value value) {
    using T = ElementOf<V>;
    V best = value(from), position = spread<V>(static_cast<T>(from));
    ZELM_UNROLL
    for (unsigned q = from + 1; q <= 4; ++q) {
        const V v = value(q);
        const Mask<V> wins = greater(v, best);
        best = select(wins, v, best);
        position = select(wins, spread<V>(static_cast<T>(q)), position);
    }
    return position;
}

// Exchanges column or row `stage` with that at the position.
template <typename V, unsigned N>
ZELM_INLINE void exchangeColumnsAt(V position, V (&a)[N][N], unsigned stage) {
    ZELM_UNROLL
    for (unsigned q = stage + 1; q <= 4; ++q) {
        const Mask<V> here = equal(position, spread<V>(static_cast<ElementOf<V>>(q)));
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            exchangeWhere(here, a[i][stage], a[i][q]);
    }
}
template <typename V, unsigned N>
ZELM_INLINE void exchangeRowsAt(V position, V (&a)[N][N], unsigned stage) {
    ZELM_UNROLL
    for (unsigned q = stage + 1; q <= 4; ++q) {
        const Mask<V> here = equal(position, spread<V>(static_cast<ElementOf<V>>(q)));
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            exchangeWhere(here, a[stage][j], a[q][j]);
    }
}

template <typename V, unsigned N>
ZELM_INLINE Mask<V> invertWithSearch(V (&a)[N][N]) {
    constexpr unsigned B = N == 5 ? 2 : 3;
    V position[B];
    // 1. The column with the largest element of row 0 comes first.
    position[0] = largestOf<V>(0, [&](unsigned q) ZELM_INLINE_LAMBDA { return magnitude(a[0][q]); });
    exchangeColumnsAt(position[0], a, 0);
    // 2. Beside it, the one with the largest determinant of order 2.
    position[1] = largestOf<V>(
        1, [&](unsigned q) ZELM_INLINE_LAMBDA { return magnitude(a[1][q] * a[0][0] - a[0][q] * a[1][0]); });
    exchangeColumnsAt(position[1], a, 1);
    // 3. In order 6, beside both the one with the largest determinant of order 3.
    if constexpr (B == 3) {
        position[2] = largestOf<V>(2, [&](unsigned q) ZELM_INLINE_LAMBDA {
            const V p[3][3] = {
                {a[0][0], a[0][1], a[0][q]}, {a[1][0], a[1][1], a[1][q]}, {a[2][0], a[2][1], a[2][q]}};
            V c[3][3];
            cofactors(p, c);
            return magnitude(determinantFrom<false>(p, c));
        });
        exchangeColumnsAt(position[2], a, 2);
    }
    // 4. The inverse by blocks.
    const Mask<V> singular = invertByBlocks<B, false>(a);
    // 5. Its rows take the places that the columns had.
    ZELM_UNROLL
    for (unsigned back = 1; back <= B; ++back)
        exchangeRowsAt(position[B - back], a, B - back);
    return singular;
}

// ---- the dense forms of 64-bit float: the first pair of columns that is good enough

struct ColumnPair {
    unsigned first, second;
};

// Columns 0 and 1 if their determinant in rows 0 and 1 lies outside the band; else the first such pair from
// the last column down. False if there is none.
template <unsigned N>
ZELM_INLINE bool findColumnPair(const double (&a)[N][N], ColumnPair &pair) {
    const auto isGood = [&](unsigned j, unsigned q) {
        return !inBand(determinantOfOrder2(a[0][j], a[0][q], a[1][j], a[1][q])).lanes;
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

// One matrix. False if it counts as singular.
template <unsigned N>
ZELM_INLINE bool invertWithColumnPair(double (&a)[N][N]) {
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
    if (invertByBlocks<2, true>(a).lanes)
        return false;
    // 4. Its rows take the places that the columns had.
    if (exchanged) {
        exchangeRows(a, 1, second);
        exchangeRows(a, 0, pair.first);
    }
    return true;
}

} // namespace zelm::solvers
