#include "solvers/inverse_kernels.h"

namespace zelm::solvers {

namespace {

// Orders 3 and 4 in all forms, 5 and 6 in those with strides or tables: no lane takes another way than the
// others. A mask of the lanes whose matrix is singular.
template <bool dense, typename T, unsigned N>
ZELM_INLINE Pack<T> invertAlike(Pack<T> (&a)[N][N]) {
    if constexpr (N > 4) {
        return invertWithSearch<T>(a);
    } else {
        constexpr Singular rule = !dense                     ? Singular::InBand
                                  : N == 3 && sizeof(T) == 8 ? Singular::ReciprocalZero
                                                             : Singular::Zero;
        return invertClosed<dense, rule>(a, a);
    }
}

} // namespace

template <bool dense, typename T, unsigned N>
bool invertGroup(Pack<T> (&a)[N][N]) {
    if constexpr (!dense || N <= 4) {
        return !anyLane(invertAlike<dense, T>(a));
    } else if constexpr (sizeof(T) == 4) {
        return invertByPivotsInPlace(a);
    } else {
        const Pack<T> closed = inBand(determinantOfOrder2(a[0][0], a[0][1], a[1][0], a[1][1]));
        return !anyLane(closed) && !anyLane(invertByBlocks<2, true>(a));
    }
}

template <bool dense, typename T, unsigned N>
Outcome invertAlone(Pack<T> (&a)[N][N]) {
    if constexpr (!dense || N <= 4)
        return invertGroup<dense, T>(a) ? Outcome::Inverted : Outcome::Singular;
    else if constexpr (sizeof(T) == 4)
        return invertByPivots(a);
    else
        return invertWithColumnPair(a) ? Outcome::Inverted : Outcome::Singular;
}

#define ZELM_INSTANTIATE(T, N)                                                                               \
    template bool invertGroup<true, T>(Pack<T>(&)[N][N]);                                                    \
    template bool invertGroup<false, T>(Pack<T>(&)[N][N]);                                                   \
    template Outcome invertAlone<true, T>(Pack<T>(&)[N][N]);                                                 \
    template Outcome invertAlone<false, T>(Pack<T>(&)[N][N]);
ZELM_INSTANTIATE(float, 3)
ZELM_INSTANTIATE(float, 4)
ZELM_INSTANTIATE(float, 5)
ZELM_INSTANTIATE(float, 6)
ZELM_INSTANTIATE(double, 3)
ZELM_INSTANTIATE(double, 4)
ZELM_INSTANTIATE(double, 5)
ZELM_INSTANTIATE(double, 6)
#undef ZELM_INSTANTIATE

} // namespace zelm::solvers
