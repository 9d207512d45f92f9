// One 4x4 inverse of 32-bit float with its rows in registers: the bits of invertClosed in a third of its
// time.
#pragma once

#include "solvers/closed_inverse.h"

namespace zelm::solvers {

template <int e0, int e1, int e2, int e3>
ZELM_INLINE __m128 pick(__m128 v) {
    return _mm_shuffle_ps(v, v, _MM_SHUFFLE(e3, e2, e1, e0));
}

// The elements that stand first and second in the two differences of the cofactors of a row, and those of the
// third term: C0 = (v1*m23 - v2*m13) + v3*m12, C1 = (v2*m03 - v0*m23) - v3*m02 and so on.
struct RowFactors {
    __m128 first, second, third;
    ZELM_INLINE explicit RowFactors(__m128 v)
        : first(pick<1, 2, 0, 1>(v)), second(pick<2, 0, 1, 0>(v)), third(pick<3, 3, 3, 2>(v)) {}
};

// The order 2 minors of two rows, each where the factor that it meets stands.
struct RowMinors {
    __m128 first, second, third; // 23 03 13 02, 13 23 03 12, 12 02 01 01
    ZELM_INLINE RowMinors(__m128 upper, __m128 lower) {
        const RowFactors u(upper), l(lower);
        first = u.second * l.third - l.second * u.third;
        second = u.first * l.third - l.first * u.third;
        third = pick<1, 0, 0, 0>(upper) * pick<2, 2, 1, 1>(lower) -
                pick<1, 0, 0, 0>(lower) * pick<2, 2, 1, 1>(upper);
    }
};

// The cofactors that belong to a row's minors, from the row `v` beside it. The signs of neighbours differ.
ZELM_INLINE __m128 cofactorsFrom(const RowFactors &v, const RowMinors &m, bool negative) {
    const __m128 p = v.first * m.first, q = v.second * m.second, third = v.third * m.third;
    if (negative)
        return (q - p) + bitXor(third, __m128{-0.0f, 0.0f, -0.0f, 0.0f});
    return (p - q) + bitXor(third, __m128{0.0f, -0.0f, 0.0f, -0.0f});
}

// In place; false if the matrix is singular, with the rows as they were.
ZELM_INLINE bool invertRows(__m128 (&a)[4]) {
    const RowMinors lower(a[2], a[3]), upper(a[0], a[1]);
    __m128 c[4] = {
        cofactorsFrom(RowFactors(a[1]), lower, false), cofactorsFrom(RowFactors(a[0]), lower, true),
        cofactorsFrom(RowFactors(a[3]), upper, false), cofactorsFrom(RowFactors(a[2]), upper, true)};
    const __m128 det = pick<0, 0, 0, 0>((a[1] * c[1] + a[3] * c[3]) + (a[0] * c[0] + a[2] * c[2]));
    if (anyLane(equal(det, __m128{})))
        return false;
    const __m128 r = reciprocalOfOrder4(det);
    _MM_TRANSPOSE4_PS(c[0], c[1], c[2], c[3]);
#pragma GCC unroll 4
    for (unsigned i = 0; i < 4; ++i)
        a[i] = c[i] * r;
    return true;
}

} // namespace zelm::solvers
