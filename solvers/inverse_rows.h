// One inverse with its rows in registers: the bits of invertClosed in a part of its time.
#pragma once

#include "solvers/closed_inverse.h"

namespace zelm::solvers {

template <int e0, int e1, int e2, int e3>
ZELM_INLINE Floats4 pick(Floats4 v) {
    return _mm_shuffle_ps(v, v, _MM_SHUFFLE(e3, e2, e1, e0));
}

// ---- order 3, 32-bit float: a row in a pack, whose last lane is zero

// In place; false if the matrix is singular, with the rows as they were.
ZELM_INLINE bool invertRows(Floats4 (&a)[3]) {
    const Floats4 turned[3] = {pick<1, 2, 0, 3>(a[0]), pick<1, 2, 0, 3>(a[1]), pick<1, 2, 0, 3>(a[2])};
    // The cofactors of columns 2, 0 and 1 of a row: the cross product of the two rows after it.
    Floats4 c[3];
    ZELM_UNROLL
    for (unsigned i = 0; i < 3; ++i) {
        const unsigned p = (i + 1) % 3, q = (i + 2) % 3;
        c[i] = a[p] * turned[q] - turned[p] * a[q];
    }
    const Floats4 terms = pick<2, 0, 1, 3>(a[0]) * c[0];
    const Floats4 det = pick<0, 0, 0, 0>((pick<1, 1, 1, 1>(terms) + pick<2, 2, 2, 2>(terms)) + terms);
    if (anyLane(equal(det, Floats4{})))
        return false;
    const Floats4 r = reciprocalOfOrder3(det);
    const Floats4 low = interleaveLow(c[0], c[1]), high = interleaveHigh(c[0], c[1]);
    a[0] = shuffle<2, 3, 1, 3>(low, c[2]) * r;
    a[1] = shuffle<0, 1, 2, 3>(high, c[2]) * r;
    a[2] = shuffle<0, 1, 0, 3>(low, c[2]) * r;
    return true;
}

// ---- order 4, 32-bit float: a row in a pack

// The elements that stand first and second in the two differences of the cofactors of a row, and those of the
// third term: C0 = (v1*m23 - v2*m13) + v3*m12, C1 = (v2*m03 - v0*m23) - v3*m02 and so on.
struct RowFactors {
    Floats4 first, second, third;
    ZELM_INLINE explicit RowFactors(Floats4 v)
        : first(pick<1, 2, 0, 1>(v)), second(pick<2, 0, 1, 0>(v)), third(pick<3, 3, 3, 2>(v)) {}
};

// The order 2 minors of two rows, each where the factor that it meets stands.
struct RowMinors {
    Floats4 first, second, third; // 23 03 13 02, 13 23 03 12, 12 02 01 01
    ZELM_INLINE RowMinors(Floats4 upper, Floats4 lower) {
        const RowFactors u(upper), l(lower);
        first = u.second * l.third - l.second * u.third;
        second = u.first * l.third - l.first * u.third;
        third = pick<1, 0, 0, 0>(upper) * pick<2, 2, 1, 1>(lower) -
                pick<1, 0, 0, 0>(lower) * pick<2, 2, 1, 1>(upper);
    }
};

// The cofactors that belong to a row's minors, from the row `v` beside it. The signs of neighbours differ.
ZELM_INLINE Floats4 cofactorsFrom(const RowFactors &v, const RowMinors &m, bool negative) {
    const Floats4 p = v.first * m.first, q = v.second * m.second, third = v.third * m.third;
    if (negative)
        return (q - p) + bitXor(third, Floats4{-0.0f, 0.0f, -0.0f, 0.0f});
    return (p - q) + bitXor(third, Floats4{0.0f, -0.0f, 0.0f, -0.0f});
}

// In place; false if the matrix is singular, with the rows as they were.
ZELM_INLINE bool invertRows(Floats4 (&a)[4]) {
    const RowMinors lower(a[2], a[3]), upper(a[0], a[1]);
    Floats4 c[4] = {
        cofactorsFrom(RowFactors(a[1]), lower, false), cofactorsFrom(RowFactors(a[0]), lower, true),
        cofactorsFrom(RowFactors(a[3]), upper, false), cofactorsFrom(RowFactors(a[2]), upper, true)};
    const Floats4 det = pick<0, 0, 0, 0>((a[1] * c[1] + a[3] * c[3]) + (a[0] * c[0] + a[2] * c[2]));
    if (anyLane(equal(det, Floats4{})))
        return false;
    const Floats4 r = reciprocalOfOrder4(det);
    _MM_TRANSPOSE4_PS(c[0], c[1], c[2], c[3]);
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i)
        a[i] = c[i] * r;
    return true;
}

// ---- order 4, 64-bit float: two rows side by side, lane by lane

// The order 2 minors of two rows, each in both lanes: of the columns 01, 02, 03, 12, 13, 23.
ZELM_INLINE void minorsOfRows(const Doubles2 (&u)[2], const Doubles2 (&l)[2], Doubles2 (&m)[6]) {
    const auto lows = [](Doubles2 a, Doubles2 b) { return _mm_unpacklo_pd(a, b); };
    const auto highs = [](Doubles2 a, Doubles2 b) { return _mm_unpackhi_pd(a, b); };
    const Doubles2 outer = lows(u[0], u[1]) * highs(l[0], l[1]) - lows(l[0], l[1]) * highs(u[0], u[1]);
    const Doubles2 of0 = lows(u[0], u[0]) * l[1] - lows(l[0], l[0]) * u[1];
    const Doubles2 of1 = highs(u[0], u[0]) * l[1] - highs(l[0], l[0]) * u[1];
    m[0] = lows(outer, outer);
    m[1] = lows(of0, of0);
    m[2] = highs(of0, of0);
    m[3] = lows(of1, of1);
    m[4] = highs(of1, of1);
    m[5] = highs(outer, outer);
}

// The cofactors of two neighbouring rows, column by column, each from the other row. Those of the second row
// have the opposite signs, which its elements take here.
ZELM_INLINE void cofactorsOfRows(const Doubles2 (&second)[2], const Doubles2 (&first)[2],
                                 const Doubles2 (&m)[6], Doubles2 (&c)[4]) {
    const Doubles2 minus = _mm_set1_pd(-0.0);
    Doubles2 plain[4], opposite[4];
    ZELM_UNROLL
    for (unsigned half = 0; half < 2; ++half) {
        const Doubles2 other = bitXor(first[half], minus);
        plain[2 * half] = _mm_unpacklo_pd(second[half], other);
        plain[2 * half + 1] = _mm_unpackhi_pd(second[half], other);
    }
    ZELM_UNROLL
    for (unsigned j = 0; j < 4; ++j)
        opposite[j] = bitXor(plain[j], minus);
    c[0] = (plain[1] * m[5] - plain[2] * m[4]) + plain[3] * m[3];
    c[1] = (opposite[0] * m[5] - opposite[2] * m[2]) + opposite[3] * m[1];
    c[2] = (plain[0] * m[4] - plain[1] * m[2]) + plain[3] * m[0];
    c[3] = (opposite[0] * m[3] - opposite[1] * m[1]) + opposite[2] * m[0];
}

// In place; false if the matrix is singular, with the rows as they were.
ZELM_INLINE bool invertRows(Doubles2 (&a)[4][2]) {
    Doubles2 m[6], upper[4], lower[4];
    minorsOfRows(a[2], a[3], m);
    cofactorsOfRows(a[1], a[0], m, upper);
    minorsOfRows(a[0], a[1], m);
    cofactorsOfRows(a[3], a[2], m, lower);
    const Doubles2 pairs =
        _mm_unpacklo_pd(a[0][0], a[1][0]) * upper[0] + _mm_unpacklo_pd(a[2][0], a[3][0]) * lower[0];
    const Doubles2 det = _mm_unpackhi_pd(pairs, pairs) + _mm_unpacklo_pd(pairs, pairs);
    if (anyLane(equal(det, Doubles2{})))
        return false;
    const Doubles2 r = reciprocal(det);
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i) {
        a[i][0] = upper[i] * r;
        a[i][1] = lower[i] * r;
    }
    return true;
}

} // namespace zelm::solvers
