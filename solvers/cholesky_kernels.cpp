#include "solvers/cholesky_kernels.h"

#include "solvers/roots.h"

namespace zelm::solvers {

template <typename T, unsigned N, Root root>
bool choleskyFactor(Pack<T> (&a)[N][N]) {
    using V = Pack<T>;
    const V zero = broadcast(T{0});
    V fails = zero;
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
#pragma GCC unroll 6
        for (unsigned j = 0; j < i; ++j) {
            V s = a[i][j];
#pragma GCC unroll 6
            for (unsigned k = 0; k < j; ++k)
                s = s - a[i][k] * a[j][k];
            a[i][j] = s * a[j][j];
        }
        V d = a[i][i];
#pragma GCC unroll 6
        for (unsigned k = 0; k < i; ++k)
            d = d - a[i][k] * a[i][k];
        fails = bitOr(fails, notGreater(d, zero));
        a[i][i] = root == Root::Widened ? reciprocalRootWidened(d) : reciprocalRoot(d);
    }
    return !anyLane(fails);
}

template <typename T, unsigned N>
void choleskySolve(const Pack<T> (&a)[N][N], Pack<T> (&x)[N]) {
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        Pack<T> sum = x[i];
#pragma GCC unroll 6
        for (unsigned k = 0; k < i; ++k)
            sum = sum - a[i][k] * x[k];
        x[i] = sum * a[i][i];
    }
#pragma GCC unroll 6
    for (unsigned back = 1; back <= N; ++back) {
        const unsigned i = N - back;
        Pack<T> sum = x[i];
#pragma GCC unroll 6
        for (unsigned k = N - 1; k > i; --k)
            sum = sum - a[k][i] * x[k];
        x[i] = sum * a[i][i];
    }
}

template bool choleskyFactor<float, 3, Root::Widened>(Pack<float> (&)[3][3]);
template bool choleskyFactor<float, 4, Root::Widened>(Pack<float> (&)[4][4]);
template bool choleskyFactor<float, 5, Root::Widened>(Pack<float> (&)[5][5]);
template bool choleskyFactor<float, 6, Root::Widened>(Pack<float> (&)[6][6]);
template bool choleskyFactor<float, 3, Root::InType>(Pack<float> (&)[3][3]);
template bool choleskyFactor<float, 4, Root::InType>(Pack<float> (&)[4][4]);
template bool choleskyFactor<float, 5, Root::InType>(Pack<float> (&)[5][5]);
template bool choleskyFactor<float, 6, Root::InType>(Pack<float> (&)[6][6]);
template bool choleskyFactor<double, 3, Root::InType>(Pack<double> (&)[3][3]);
template bool choleskyFactor<double, 4, Root::InType>(Pack<double> (&)[4][4]);
template bool choleskyFactor<double, 5, Root::InType>(Pack<double> (&)[5][5]);
template bool choleskyFactor<double, 6, Root::InType>(Pack<double> (&)[6][6]);

template void choleskySolve<float, 3>(const Pack<float> (&)[3][3], Pack<float> (&)[3]);
template void choleskySolve<float, 4>(const Pack<float> (&)[4][4], Pack<float> (&)[4]);
template void choleskySolve<float, 5>(const Pack<float> (&)[5][5], Pack<float> (&)[5]);
template void choleskySolve<float, 6>(const Pack<float> (&)[6][6], Pack<float> (&)[6]);
template void choleskySolve<double, 3>(const Pack<double> (&)[3][3], Pack<double> (&)[3]);
template void choleskySolve<double, 4>(const Pack<double> (&)[4][4], Pack<double> (&)[4]);
template void choleskySolve<double, 5>(const Pack<double> (&)[5][5], Pack<double> (&)[5]);
template void choleskySolve<double, 6>(const Pack<double> (&)[6][6], Pack<double> (&)[6]);

} // namespace zelm::solvers
