#include "solvers/qr_kernels.h"

#include "solvers/instances.h"

namespace zelm::solvers {

template <typename T, unsigned N>
unsigned qrFactor(T (&a)[N][N], T (&v)[N]) {
    ZELM_UNROLL
    for (unsigned k = 0; k < N - 1; ++k) {
        const T q = sumOfSquares(a, k);
        if (!(q >= static_cast<T>(kQrThreshold)))
            return k;
        reflect(a, v, k, q);
    }
    return N - 1;
}

template <typename V, unsigned N>
bool qrFactorGroup(V (&a)[N][N], V (&v)[N]) {
    return qrFactorHere(a, v);
}

#define ZELM_INSTANTIATE_ALONE(T, N) template unsigned qrFactor<T, N>(T(&)[N][N], T(&)[N]);
#define ZELM_INSTANTIATE_GROUP(V, N) template bool qrFactorGroup<V, N>(V(&)[N][N], V(&)[N]);
ZELM_ELEMENTS(ZELM_INSTANTIATE_ALONE)
ZELM_PACKS(ZELM_INSTANTIATE_GROUP)

} // namespace zelm::solvers
