// QR decomposition and its solver on matrices that lie in local arrays: V is an element, for one matrix, or a
// pack, for a group of matrices, one per lane.
#pragma once

#include "frame/masks.h"

namespace zelm::solvers {

using namespace zelm::frame;

// The least sum of squares of a column that is reflected, in both element types.
constexpr double kQrThreshold = 0x1p-23;

// -s where not (a > 0). s is a root over the threshold, so the sign bit is all there is to it.
template <typename V>
ZELM_INLINE V negatedUnlessPositive(V s, V a) {
    const V zero = {};
    if constexpr (std::is_floating_point_v<V>)
        return a > 0 ? s : zero - s;
    else if constexpr (kMasksAreBits<V>)
        return bitXor(s, select(greater(a, zero), zero, spread<V>(-0.0f)));
    else
        return bitXor(s, bitAnd(notGreater(a, zero).lanes, spread<V>(-0.0f)));
}

template <typename V, unsigned N>
ZELM_INLINE V sumOfSquares(const V (&a)[N][N], unsigned k) {
    // The sum starts at +0, which a square takes up without a change.
    V q = a[k][k] * a[k][k];
    ZELM_UNROLL
    for (unsigned i = k + 1; i < N; ++i)
        q = q + a[i][k] * a[i][k];
    return q;
}

// The reflector of column k, whose sum of squares is q, made and applied. Its vector takes the place of what
// is below the diagonal.
template <typename V, unsigned N>
ZELM_INLINE void reflect(V (&a)[N][N], unsigned k, V q) {
    const V one = spread<V>(1);
    // The root of a 32-bit q in 64-bit float, rounded, is the root in 32-bit float.
    const V c = one / (a[k][k] + negatedUnlessPositive(squareRoot(q), a[k][k]));
    V u = one, t = a[k][k];
    ZELM_UNROLL
    for (unsigned i = k + 1; i < N; ++i) {
        const V v = a[i][k] * c;
        u = u + v * v;
        t = t + a[i][k] * v;
        a[i][k] = v;
    }
    const V b = spread<V>(-2) / u;
    a[k][k] = a[k][k] + t * b;
    ZELM_UNROLL
    for (unsigned j = k + 1; j < N; ++j) {
        t = a[k][j];
        ZELM_UNROLL
        for (unsigned i = k + 1; i < N; ++i)
            t = t + a[i][j] * a[i][k];
        t = t * b;
        a[k][j] = a[k][j] + t;
        ZELM_UNROLL
        for (unsigned i = k + 1; i < N; ++i)
            a[i][j] = a[i][j] + a[i][k] * t;
    }
}

// The same where the column passes the threshold, in all lanes.
template <typename V, unsigned N>
ZELM_INLINE bool reflectTested(V (&a)[N][N], unsigned k) {
    const V q = sumOfSquares(a, k);
    if (anyLane(notGreaterEqual(q, spread<V>(static_cast<ElementOf<V>>(kQrThreshold)))))
        return false;
    reflect(a, k, q);
    return true;
}

// Factors a in place. The number of reflectors made: N - 1, or fewer where a column fails the threshold.
template <typename T, unsigned N>
ZELM_INLINE unsigned qrFactorInRegisters(T (&a)[N][N]) {
    ZELM_UNROLL
    for (unsigned k = 0; k < N - 1; ++k)
        if (!reflectTested(a, k))
            return k;
    return N - 1;
}

// It as a real function, where the elements are more than registers hold.
template <typename T, unsigned N>
unsigned qrFactor(T (&a)[N][N]);

// The same for a group. False where a column of any lane fails: the contents are then of no use.
template <typename V, unsigned N>
ZELM_INLINE bool qrFactorHere(V (&a)[N][N]) {
    const V threshold = spread<V>(static_cast<ElementOf<V>>(kQrThreshold));
    Mask<V> fails = noLane<V>();
    ZELM_UNROLL
    for (unsigned k = 0; k < N - 1; ++k) {
        const V q = sumOfSquares(a, k);
        fails = fails | notGreaterEqual(q, threshold);
        reflect(a, k, q);
    }
    return !anyLane(fails);
}

// It as a real function, which is faster from order 4 on: written out where it is called, it spills more than
// the call stores.
template <typename V, unsigned N>
bool qrFactorGroup(V (&a)[N][N]);

// -2 / v.v of each reflector of the factors a.
template <typename V, unsigned N>
ZELM_INLINE void qrScales(const V (&a)[N][N], V (&scale)[N]) {
    ZELM_UNROLL
    for (unsigned k = 0; k < N - 1; ++k) {
        V u = spread<V>(1);
        ZELM_UNROLL
        for (unsigned i = k + 1; i < N; ++i)
            u = u + a[i][k] * a[i][k];
        scale[k] = spread<V>(-2) / u;
    }
}

// Applies the reflectors of the factors a with their scales to x. F is V, or a block whose lanes are all
// alike where one matrix serves all lanes.
template <typename V, typename F, unsigned N>
ZELM_INLINE void qrForward(const F (&a)[N][N], const F (&scale)[N], V (&x)[N]) {
    const auto factor = [&a](unsigned i, unsigned j) ZELM_INLINE_LAMBDA { return inLanes<V>(a[i][j]); };
    ZELM_UNROLL
    for (unsigned k = 0; k < N - 1; ++k) {
        V t = x[k];
        ZELM_UNROLL
        for (unsigned i = k + 1; i < N; ++i)
            t = t + x[i] * factor(i, k);
        t = t * inLanes<V>(scale[k]);
        x[k] = x[k] + t;
        ZELM_UNROLL
        for (unsigned i = k + 1; i < N; ++i)
            x[i] = x[i] + factor(i, k) * t;
    }
}

// Solves with R.
template <typename V, typename F, unsigned N>
ZELM_INLINE void qrBackward(const F (&a)[N][N], V (&x)[N]) {
    const auto factor = [&a](unsigned i, unsigned j) ZELM_INLINE_LAMBDA { return inLanes<V>(a[i][j]); };
    x[N - 1] = x[N - 1] / factor(N - 1, N - 1);
    ZELM_UNROLL
    for (unsigned back = 2; back <= N; ++back) {
        const unsigned i = N - back;
        V sum = {};
        ZELM_UNROLL
        for (unsigned j = i + 1; j < N; ++j)
            sum = sum + factor(i, j) * x[j];
        x[i] = (x[i] - sum) / factor(i, i);
    }
}

} // namespace zelm::solvers
