#include "solvers/determinant_kernels.h"

#include "solvers/expansion.h"
#include "solvers/instances.h"

namespace zelm::solvers {

template <typename V, unsigned N>
void determinantOf(const V (&a)[N][N], V &determinant) {
    const auto element = [&a](unsigned i, unsigned j) __attribute__((always_inline)) {
        return a[i][j];
    };
    if constexpr (N == 3) {
        V t[3];
        termsOfOrder3(element, t);
        determinant = (t[0] + t[1]) + t[2];
    } else {
        determinant = expandByMinors<N, V>(element, MinorsAsTheyAre{});
    }
}

#define ZELM_INSTANTIATE(V, N) template void determinantOf<V, N>(const V(&)[N][N], V &);
ZELM_ELEMENTS(ZELM_INSTANTIATE)
ZELM_PACKS(ZELM_INSTANTIATE)

} // namespace zelm::solvers
