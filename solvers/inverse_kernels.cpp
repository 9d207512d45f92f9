#include "solvers/inverse_kernels.h"

#include "solvers/instances.h"

namespace zelm::solvers {

template <bool dense, typename V, unsigned N>
bool invertGroup(V (&a)[N][N]) {
    constexpr InverseRule rule = inverseRule(dense, kIs32<V>, N);
    if constexpr (rule.way == Way::Closed) {
        return !anyLane(invertClosed<dense, rule.singular>(a, a));
    } else if constexpr (rule.way == Way::Pivots) {
        return invertByPivotsUnsearched(a);
    } else if constexpr (rule.way == Way::ColumnPair) {
        const Mask<V> closed = inBand(determinantOfOrder2(a[0][0], a[0][1], a[1][0], a[1][1]));
        return !anyLane(closed) && !anyLane(invertByBlocks<2, true>(a));
    } else {
        return !anyLane(invertWithSearch(a));
    }
}

template <bool dense, typename T, unsigned N>
Outcome invertAlone(T (&a)[N][N]) {
    constexpr Way way = inverseRule(dense, kIs32<T>, N).way;
    if constexpr (way == Way::Pivots)
        return invertByPivots(a);
    else if constexpr (way == Way::ColumnPair)
        return invertWithColumnPair(a) ? Outcome::Inverted : Outcome::Singular;
    else
        return invertGroup<dense>(a) ? Outcome::Inverted : Outcome::Singular;
}

#define ZELM_INSTANTIATE_GROUP(V, N)                                                                         \
    template bool invertGroup<true, V, N>(V(&)[N][N]);                                                       \
    template bool invertGroup<false, V, N>(V(&)[N][N]);
// A matrix of order 3 or 4 alone is inverted where its form is.
#define ZELM_INSTANTIATE_ALONE(T)                                                                            \
    template Outcome invertAlone<false, T, 5>(T(&)[5][5]);                                                   \
    template Outcome invertAlone<false, T, 6>(T(&)[6][6]);
#define ZELM_INSTANTIATE_DENSE(T)                                                                            \
    template Outcome invertAlone<true, T, 5>(T(&)[5][5]);                                                    \
    template Outcome invertAlone<true, T, 6>(T(&)[6][6]);
ZELM_PACKS(ZELM_INSTANTIATE_GROUP)
ZELM_INSTANTIATE_ALONE(float)
ZELM_INSTANTIATE_ALONE(double)
ZELM_INSTANTIATE_DENSE(float)
ZELM_INSTANTIATE_DENSE(double)

} // namespace zelm::solvers
