// Determinants of order 3 and 4 of arrays of 32-bit floats as their extended-precision kernels give them,
// computed in 64-bit float where that proves the kernel's result.
//
// Let x be the value that the kernel's expansion by minors has in exact arithmetic, and S the sum of the
// magnitudes of all its products of N elements. Products of two elements are exact in both formats. From
// there on a product goes through at most 8 roundings (order 4: the minor, its product, two sums, the product
// with the first row, three sums), each of relative error 2^-53 here and 2^-64 there. Of order 4 one minor is
// rounded to 32-bit float on the way: x and S then have the rounded one, the same here and there, and S at
// most twice the magnitudes of the products, as rounding never makes more of a number. Let P be at least
// S / 2. With the value d here and k in the kernel
//
//     |d - x| <= ((1 + 2^-53)^8 - 1) 2P < 2^-49 (1 + 2^-40) P,    |k - x| < 2^-60 (1 + 2^-40) P,
//
// and k lies between d - E and d + E with E = 2^-48 P: that has room for the errors of P itself and for the
// roundings of d - E and d + E (2^-53 (P + E) each). Rounding to 32-bit float is monotonic. If both ends
// round to the same number, k does too.
//
// Order 3 takes the sum of its terms' magnitudes for P, whose minors are off by one rounding; order 4 the
// product over the columns of the sums of their elements' magnitudes, in 32-bit float (relative error 2^-21),
// which is at least the sum of all products. The minor is proved alike: exact products, one rounding of their
// difference in either format, and both of these lie between the neighbours of the one here.
//
// Nothing overflows or underflows in 64-bit float: products have at most four factors between 2^-149 and
// 2^130. A sum that overflows in 32-bit float makes E infinite, an element that is infinite or NaN makes an
// end NaN, and the ends differ. Nothing is said of the sign of a zero, so a zero is the kernel's.
#pragma once

#include "frame/masks.h"
#include "frame/widened.h"
#include "solvers/expansion.h"

namespace zelm::solvers {

// The proof speaks of rounding to nearest, with subnormal numbers, of both units, and of an x87 unit at
// extended precision. Exceptions must be masked too: other operations are inexact here, and sums overflow.
// Reading MXCSR takes longer than the kernel of order 3, so that it pays for arrays only.
ZELM_INLINE bool arithmeticIsUsual() {
    std::uint16_t control;
    asm volatile("fnstcw %0" : "=m"(control));
    constexpr unsigned status = 0x3f, usual = 0x1f80;
    return (control & 0x0f3f) == 0x033f && (_mm_getcsr() & ~status) == usual;
}

// The ends of an interval, each rounded to 32-bit float, and where they differ.
template <typename D>
struct Ends {
    D low;
    Mask<D> differ;
};
template <typename D>
ZELM_INLINE Ends<D> endsAround(D value, D error) {
    const D low = asFloats(value - error);
    return {low, notEqual(low, asFloats(value + error))};
}

// The determinant in each lane, whose elements are a(i, j), and where it isn't proved.
template <typename D, typename Elements>
ZELM_INLINE Ends<D> proveOrder3(const Elements &a) {
    D t[3];
    termsOfOrder3(a, t);
    return endsAround((t[0] + t[1]) + t[2],
                      spread<D>(0x1p-48) * (magnitude(t[0]) + magnitude(t[1]) + magnitude(t[2])));
}

// `columns` has the sums of the columns' magnitudes.
template <typename D, typename Elements>
ZELM_INLINE Ends<D> proveOrder4(const Elements &a, const D (&columns)[4]) {
    Mask<D> minorsDiffer = noLane<D>();
    const auto keep = [&](unsigned order, unsigned number, D minor) ZELM_INLINE_LAMBDA {
        if (order != 2 || number != 0)
            return minor;
        const Ends<D> rounded = endsAround(minor, spread<D>(0x1p-52) * magnitude(minor));
        minorsDiffer = rounded.differ;
        return rounded.low;
    };
    const D value = expandByMinors<4, D>(a, keep);
    const D product = (columns[0] * columns[1]) * (columns[2] * columns[3]);
    const Ends<D> ends = endsAround(value, spread<D>(0x1p-48) * product);
    return {ends.low, ends.differ | minorsDiffer};
}

template <unsigned N, typename V>
ZELM_INLINE V columnMagnitude(const V (&a)[N][N], unsigned j) {
    V sum = magnitude(a[0][j]);
    ZELM_UNROLL
    for (unsigned i = 1; i < N; ++i)
        sum += magnitude(a[i][j]);
    return sum;
}

// One determinant in each lane of V; false if one of them isn't proved.
template <unsigned N, typename V>
ZELM_INLINE bool proveDeterminants(const V (&a)[N][N], V &determinants) {
    using D = WidenedOf<V>;
    D halves[kWidenedHalves<V>];
    bool proved = true;
    ZELM_UNROLL
    for (unsigned half = 0; half < kWidenedHalves<V>; ++half) {
        const auto element = [&](unsigned i, unsigned j)
                                 ZELM_INLINE_LAMBDA { return widened(a[i][j], half); };
        Ends<D> ends;
        if constexpr (N == 3) {
            ends = proveOrder3<D>(element);
        } else {
            D columns[N];
            ZELM_UNROLL
            for (unsigned j = 0; j < N; ++j)
                columns[j] = widened(columnMagnitude(a, j), half);
            ends = proveOrder4<D>(element, columns);
        }
        proved &= !anyLane(ends.differ | equal(ends.low, D{}));
        halves[half] = ends.low;
    }
    determinants = narrowed<V>(halves);
    return proved;
}

} // namespace zelm::solvers
