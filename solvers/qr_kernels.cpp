#include "solvers/qr_kernels.h"

#include "solvers/roots.h"

namespace zelm::solvers {

// A constant as an element or in all lanes.
ZELM_INLINE void spread(float &to, float value) {
    to = value;
}
ZELM_INLINE void spread(double &to, float value) {
    to = value;
}
ZELM_INLINE void spread(__m128 &to, float value) {
    to = broadcast(value);
}
ZELM_INLINE void spread(__m128d &to, float value) {
    to = broadcast(static_cast<double>(value));
}

template <typename V>
ZELM_INLINE V constant(float value) {
    V v;
    spread(v, value);
    return v;
}

// -s where not (a > 0). s is not zero, so the sign bit is all there is to it; a NaN stays one.
ZELM_INLINE float negatedUnlessPositive(float s, float a) {
    return a > 0 ? s : 0 - s;
}
ZELM_INLINE double negatedUnlessPositive(double s, double a) {
    return a > 0 ? s : 0 - s;
}
ZELM_INLINE __m128 negatedUnlessPositive(__m128 s, __m128 a) {
    const __m128 zero = _mm_setzero_ps();
    return select(greater(a, zero), s, zero - s);
}
ZELM_INLINE __m128d negatedUnlessPositive(__m128d s, __m128d a) {
    const __m128d zero = _mm_setzero_pd();
    return select(greater(a, zero), s, zero - s);
}

template <typename V, unsigned N>
ZELM_INLINE V sumOfSquares(const V (&a)[N][N], unsigned k) {
    // The sum starts at +0, which a square takes up without a change.
    V q = a[k][k] * a[k][k];
#pragma GCC unroll 6
    for (unsigned i = k + 1; i < N; ++i)
        q = q + a[i][k] * a[i][k];
    return q;
}

// The reflector of column k, whose sum of squares is q, made and applied.
template <typename V, unsigned N>
ZELM_INLINE void reflect(V (&a)[N][N], V (&v)[N], unsigned k, V q) {
    const V one = constant<V>(1);
    // The root of a 32-bit q in 64-bit float, rounded, is the root in 32-bit float.
    const V s = negatedUnlessPositive(squareRoot(q), a[k][k]);
    const V c = one / (a[k][k] + s);
    v[k] = one;
    V u = one;
#pragma GCC unroll 6
    for (unsigned i = k + 1; i < N; ++i) {
        v[i] = a[i][k] * c;
        u = u + v[i] * v[i];
    }
    const V b = constant<V>(-2) / u;
#pragma GCC unroll 6
    for (unsigned j = k; j < N; ++j) {
        V t = a[k][j];
#pragma GCC unroll 6
        for (unsigned i = k + 1; i < N; ++i)
            t = t + a[i][j] * v[i];
        t = t * b;
        a[k][j] = a[k][j] + t;
        if (j == k)
            continue; // the vector takes the place of what is below
#pragma GCC unroll 6
        for (unsigned i = k + 1; i < N; ++i)
            a[i][j] = a[i][j] + v[i] * t;
    }
#pragma GCC unroll 6
    for (unsigned i = k + 1; i < N; ++i)
        a[i][k] = v[i];
}

template <typename T, unsigned N>
unsigned qrFactor(T (&a)[N][N], T (&v)[N]) {
#pragma GCC unroll 6
    for (unsigned k = 0; k < N - 1; ++k) {
        const T q = sumOfSquares(a, k);
        if (!(q >= static_cast<T>(kQrThreshold)))
            return k;
        reflect(a, v, k, q);
    }
    return N - 1;
}

template <typename T, unsigned N>
bool qrFactorGroup(Pack<T> (&a)[N][N], Pack<T> (&v)[N]) {
    const Pack<T> threshold = broadcast(static_cast<T>(kQrThreshold));
    Pack<T> fails = broadcast(T{0});
#pragma GCC unroll 6
    for (unsigned k = 0; k < N - 1; ++k) {
        const Pack<T> q = sumOfSquares(a, k);
        fails = bitOr(fails, notGreaterEqual(q, threshold));
        reflect(a, v, k, q);
    }
    return !anyLane(fails);
}

template <typename V, unsigned N>
void qrScales(const V (&a)[N][N], V (&scale)[N]) {
#pragma GCC unroll 6
    for (unsigned k = 0; k < N - 1; ++k) {
        V u = constant<V>(1);
#pragma GCC unroll 6
        for (unsigned i = k + 1; i < N; ++i)
            u = u + a[i][k] * a[i][k];
        scale[k] = constant<V>(-2) / u;
    }
}

template <typename V, unsigned N>
void qrSolve(const V (&a)[N][N], const V (&scale)[N], V (&w)[N], V (&x)[N]) {
#pragma GCC unroll 6
    for (unsigned k = 0; k < N - 1; ++k) {
        V t = w[k];
#pragma GCC unroll 6
        for (unsigned i = k + 1; i < N; ++i)
            t = t + w[i] * a[i][k];
        t = t * scale[k];
        w[k] = w[k] + t;
#pragma GCC unroll 6
        for (unsigned i = k + 1; i < N; ++i)
            w[i] = w[i] + a[i][k] * t;
    }
    x[N - 1] = w[N - 1] / a[N - 1][N - 1];
#pragma GCC unroll 6
    for (unsigned back = 2; back <= N; ++back) {
        const unsigned i = N - back;
        V sum = constant<V>(0);
#pragma GCC unroll 6
        for (unsigned j = i + 1; j < N; ++j)
            sum = sum + a[i][j] * x[j];
        x[i] = (w[i] - sum) / a[i][i];
    }
}

#define ZELM_QR(T, N)                                                                                        \
    template unsigned qrFactor(T(&)[N][N], T(&)[N]);                                                         \
    template bool qrFactorGroup<T, N>(Pack<T>(&)[N][N], Pack<T>(&)[N]);                                      \
    template void qrScales(const T(&)[N][N], T(&)[N]);                                                       \
    template void qrScales(const Pack<T>(&)[N][N], Pack<T>(&)[N]);                                           \
    template void qrSolve(const T(&)[N][N], const T(&)[N], T(&)[N], T(&)[N]);                                \
    template void qrSolve(const Pack<T>(&)[N][N], const Pack<T>(&)[N], Pack<T>(&)[N], Pack<T>(&)[N])

ZELM_QR(float, 3);
ZELM_QR(float, 4);
ZELM_QR(float, 5);
ZELM_QR(float, 6);
ZELM_QR(double, 3);
ZELM_QR(double, 4);
ZELM_QR(double, 5);
ZELM_QR(double, 6);

} // namespace zelm::solvers
