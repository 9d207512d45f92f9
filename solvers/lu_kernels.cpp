#include "solvers/lu_kernels.h"

#include "frame/masks.h"
#include "solvers/instances.h"

namespace zelm::solvers {

namespace {

// Exchanges row k with the first row from there on of largest magnitude in column k; a NaN never wins and is
// never replaced.
template <typename V, unsigned N>
ZELM_INLINE void bringPivotUp(V (&a)[N][N], V (&order)[N], unsigned k) {
    using T = ElementOf<V>;
    V best = magnitude(a[k][k]), bestPos = spread<V>(static_cast<T>(k));
    ZELM_UNROLL
    for (unsigned j = k + 1; j < N; ++j) {
        const V value = magnitude(a[j][k]);
        const Mask<V> wins = greater(value, best);
        best = select(wins, value, best);
        bestPos = select(wins, spread<V>(static_cast<T>(j)), bestPos);
    }
    ZELM_UNROLL
    for (unsigned j = k + 1; j < N; ++j) {
        const Mask<V> here = equal(bestPos, spread<V>(static_cast<T>(j)));
        exchangeWhere(here, order[k], order[j]);
        ZELM_UNROLL
        for (unsigned c = 0; c < N; ++c)
            exchangeWhere(here, a[k][c], a[j][c]);
    }
}

// The lanes whose multiplier is too small.
template <typename V, unsigned N>
ZELM_INLINE Mask<V> eliminateColumn(V (&a)[N][N], unsigned k) {
    const V zero = {}, pivot = a[k][k];
    Mask<V> fails = noLane<V>();
    ZELM_UNROLL
    for (unsigned j = k + 1; j < N; ++j) {
        // One division in the element type has the bits of a division in 64-bit float that is rounded to it:
        // the quotient of two 24-bit significands is never near enough to a rounding boundary for the first
        // rounding to matter.
        const V multiplier = a[j][k] / pivot;
        if constexpr (sizeof(ElementOf<V>) == 4)
            fails = fails | (equal(multiplier, zero) & notEqual(a[j][k], zero));
        a[j][k] = multiplier;
        const V negated = zero - multiplier;
        ZELM_UNROLL
        for (unsigned c = k + 1; c < N; ++c)
            a[j][c] = a[k][c] * negated + a[j][c];
    }
    return fails;
}

} // namespace

template <typename V, unsigned N>
bool luFactor(V (&a)[N][N], V (&order)[N]) {
    using T = ElementOf<V>;
    const V threshold = spread<V>(static_cast<T>(kLuThreshold));
    Mask<V> fails = noLane<V>();
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        order[i] = spread<V>(static_cast<T>(i));
    ZELM_UNROLL
    for (unsigned k = 0; k < N - 1; ++k) {
        bringPivotUp(a, order, k);
        fails = fails | notGreaterEqual(magnitude(a[k][k]), threshold);
        fails = fails | eliminateColumn(a, k);
    }
    return !anyLane(fails | notGreaterEqual(magnitude(a[N - 1][N - 1]), threshold));
}

#define ZELM_INSTANTIATE(V, N) template bool luFactor<V, N>(V(&)[N][N], V(&)[N]);
ZELM_PACKS(ZELM_INSTANTIATE)

} // namespace zelm::solvers
