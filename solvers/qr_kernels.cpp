#include "solvers/qr_kernels.h"

#include "solvers/instances.h"

namespace zelm::solvers {

template <typename T, unsigned N>
unsigned qrFactor(T (&a)[N][N]) {
    return qrFactorInRegisters(a);
}

template <typename V, unsigned N>
bool qrFactorGroup(V (&a)[N][N]) {
    return qrFactorHere(a);
}

#define ZELM_INSTANTIATE_ALONE(T, N) template unsigned qrFactor<T, N>(T(&)[N][N]);
#define ZELM_INSTANTIATE_GROUP(V, N) template bool qrFactorGroup<V, N>(V(&)[N][N]);
ZELM_ELEMENTS(ZELM_INSTANTIATE_ALONE)
ZELM_PACKS(ZELM_INSTANTIATE_GROUP)

} // namespace zelm::solvers
