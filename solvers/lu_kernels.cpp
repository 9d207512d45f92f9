#include "solvers/lu_kernels.h"

namespace zelm::solvers {

template <typename T, unsigned N>
bool luFactor(Pack<T> (&a)[N][N], Pack<T> (&order)[N]) {
    using V = Pack<T>;
    const V zero = broadcast(T{0});
    const V threshold = broadcast(static_cast<T>(kLuThreshold));
    V fails = zero;
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        order[i] = broadcast(static_cast<T>(i));

#pragma GCC unroll 6
    for (unsigned k = 0; k < N - 1; ++k) {
        // The first row of largest magnitude; a NaN never wins and is never replaced.
        V best = magnitude(a[k][k]), bestPos = broadcast(static_cast<T>(k));
#pragma GCC unroll 6
        for (unsigned j = k + 1; j < N; ++j) {
            const V value = magnitude(a[j][k]);
            const V wins = greater(value, best);
            best = select(wins, value, best);
            bestPos = select(wins, broadcast(static_cast<T>(j)), bestPos);
        }
#pragma GCC unroll 6
        for (unsigned j = k + 1; j < N; ++j) {
            const V here = equal(bestPos, broadcast(static_cast<T>(j)));
            exchange(here, order[k], order[j]);
#pragma GCC unroll 6
            for (unsigned c = 0; c < N; ++c)
                exchange(here, a[k][c], a[j][c]);
        }
        const V pivot = a[k][k];
        fails = bitOr(fails, notGreaterEqual(magnitude(pivot), threshold));
#pragma GCC unroll 6
        for (unsigned j = k + 1; j < N; ++j) {
            // One division in T has the bits of a division in 64-bit float that is rounded to T: the quotient
            // of two 24-bit significands is never near enough to a rounding boundary for the first rounding
            // to matter.
            const V multiplier = a[j][k] / pivot;
            if constexpr (sizeof(T) == 4)
                fails = bitOr(fails, bitAnd(equal(multiplier, zero), notEqual(a[j][k], zero)));
            a[j][k] = multiplier;
            const V negated = zero - multiplier;
#pragma GCC unroll 6
            for (unsigned c = k + 1; c < N; ++c)
                a[j][c] = a[k][c] * negated + a[j][c];
        }
    }
    fails = bitOr(fails, notGreaterEqual(magnitude(a[N - 1][N - 1]), threshold));
    return !anyLane(fails);
}

template <typename T, unsigned N>
void luSolve(const Pack<T> (&a)[N][N], Pack<T> (&x)[N]) {
    using V = Pack<T>;
#pragma GCC unroll 6
    for (unsigned i = 1; i < N; ++i) {
        V sum = broadcast(T{0});
#pragma GCC unroll 6
        for (unsigned j = 0; j < i; ++j)
            sum = sum + a[i][j] * x[j];
        x[i] = x[i] - sum;
    }
    x[N - 1] = x[N - 1] / a[N - 1][N - 1];
#pragma GCC unroll 6
    for (unsigned m = 0; m < N - 1; ++m) {
        const unsigned i = N - 2 - m;
        V sum = broadcast(T{0});
#pragma GCC unroll 6
        for (unsigned j = i + 1; j < N; ++j)
            sum = sum + a[i][j] * x[j];
        x[i] = (x[i] - sum) / a[i][i];
    }
}

template bool luFactor<float, 3>(Pack<float> (&)[3][3], Pack<float> (&)[3]);
template bool luFactor<float, 4>(Pack<float> (&)[4][4], Pack<float> (&)[4]);
template bool luFactor<float, 5>(Pack<float> (&)[5][5], Pack<float> (&)[5]);
template bool luFactor<float, 6>(Pack<float> (&)[6][6], Pack<float> (&)[6]);
template bool luFactor<double, 3>(Pack<double> (&)[3][3], Pack<double> (&)[3]);
template bool luFactor<double, 4>(Pack<double> (&)[4][4], Pack<double> (&)[4]);
template bool luFactor<double, 5>(Pack<double> (&)[5][5], Pack<double> (&)[5]);
template bool luFactor<double, 6>(Pack<double> (&)[6][6], Pack<double> (&)[6]);

template void luSolve<float, 3>(const Pack<float> (&)[3][3], Pack<float> (&)[3]);
template void luSolve<float, 4>(const Pack<float> (&)[4][4], Pack<float> (&)[4]);
template void luSolve<float, 5>(const Pack<float> (&)[5][5], Pack<float> (&)[5]);
template void luSolve<float, 6>(const Pack<float> (&)[6][6], Pack<float> (&)[6]);
template void luSolve<double, 3>(const Pack<double> (&)[3][3], Pack<double> (&)[3]);
template void luSolve<double, 4>(const Pack<double> (&)[4][4], Pack<double> (&)[4]);
template void luSolve<double, 5>(const Pack<double> (&)[5][5], Pack<double> (&)[5]);
template void luSolve<double, 6>(const Pack<double> (&)[6][6], Pack<double> (&)[6]);

} // namespace zelm::solvers
