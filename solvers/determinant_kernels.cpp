#include "solvers/determinant_kernels.h"

#include "solvers/expansion.h"
#include "solvers/instances.h"

namespace zelm::solvers {

template <typename V, unsigned N>
void determinantOf(const V (&a)[N][N], V &determinant) {
    const auto element = [&a](unsigned i, unsigned j) ZELM_INLINE_LAMBDA { return a[i][j]; };
    determinant = expandByMinors<N, V>(element, MinorsAsTheyAre{});
}

#define ZELM_INSTANTIATE(V, N) template void determinantOf<V, N>(const V(&)[N][N], V &);
ZELM_ELEMENTS(ZELM_INSTANTIATE)
ZELM_PACKS(ZELM_INSTANTIATE)

} // namespace zelm::solvers
