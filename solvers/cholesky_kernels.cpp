#include "solvers/cholesky_kernels.h"

#include "frame/masks.h"
#include "solvers/instances.h"
#include "solvers/roots.h"

namespace zelm::solvers {

template <Root root, typename V, unsigned N>
bool choleskyFactor(V (&a)[N][N]) {
    const V zero = {};
    Mask<V> fails = noLane<V>();
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < i; ++j) {
            V s = a[i][j];
            ZELM_UNROLL
            for (unsigned k = 0; k < j; ++k)
                s = s - a[i][k] * a[j][k];
            a[i][j] = s * a[j][j];
        }
        V d = a[i][i];
        ZELM_UNROLL
        for (unsigned k = 0; k < i; ++k)
            d = d - a[i][k] * a[i][k];
        fails = fails | notGreater(d, zero);
        a[i][i] = root == Root::Widened ? reciprocalRootWidened(d) : reciprocalRoot(d);
    }
    return !anyLane(fails);
}

template <typename V, typename F, unsigned N>
void choleskySolve(const F (&a)[N][N], V (&x)[N]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        V sum = x[i];
        ZELM_UNROLL
        for (unsigned k = 0; k < i; ++k)
            sum = sum - inLanes<V>(a[i][k]) * x[k];
        x[i] = sum * inLanes<V>(a[i][i]);
    }
    ZELM_UNROLL
    for (unsigned back = 1; back <= N; ++back) {
        const unsigned i = N - back;
        V sum = x[i];
        ZELM_UNROLL
        for (unsigned k = N - 1; k > i; --k)
            sum = sum - inLanes<V>(a[k][i]) * x[k];
        x[i] = sum * inLanes<V>(a[i][i]);
    }
}

#define ZELM_INSTANTIATE(V, N)                                                                               \
    template bool choleskyFactor<Root::InType, V, N>(V(&)[N][N]);                                            \
    template bool choleskyFactor<Root::Widened, V, N>(V(&)[N][N]);                                           \
    template void choleskySolve<V, V, N>(const V(&)[N][N], V(&)[N]);
#define ZELM_INSTANTIATE_SHARED(V, N)                                                                        \
    template void choleskySolve<V, Pack<ElementOf<V>>, N>(const Pack<ElementOf<V>>(&)[N][N], V(&)[N]);
ZELM_PACKS(ZELM_INSTANTIATE)
ZELM_WIDE_PACKS(ZELM_INSTANTIATE_SHARED)

} // namespace zelm::solvers
