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

// The row of largest magnitude in column k takes place k.
template <typename T, unsigned N>
ZELM_INLINE std::uint32_t choosePivotRow(const T (&a)[N][N], std::uint32_t (&order)[N], unsigned k) {
    std::uint32_t bestPos = k;
    ZELM_UNROLL
    for (std::uint32_t j = k + 1; j < N; ++j)
        if (magnitude(a[order[j]][k]) > magnitude(a[order[bestPos]][k]))
            bestPos = j;
    const std::uint32_t pivotRow = order[bestPos];
    order[bestPos] = order[k];
    order[k] = pivotRow;
    return pivotRow;
}

} // namespace

template <typename T, unsigned N>
bool luFactorAlone(T (&a)[N][N], std::uint32_t (&order)[N]) {
    constexpr T threshold = static_cast<T>(kLuThreshold);
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        order[i] = i;
    ZELM_UNROLL
    for (unsigned k = 0; k < N - 1; ++k) {
        const T(&pivotRow)[N] = a[choosePivotRow(a, order, k)];
        const T pivot = pivotRow[k];
        if (!(magnitude(pivot) >= threshold))
            return false;
        ZELM_UNROLL
        for (unsigned j = k + 1; j < N; ++j) {
            T(&row)[N] = a[order[j]];
            const Multiplier<T> multiplier = luMultiplier(row[k], pivot);
            row[k] = multiplier.value;
            ZELM_UNROLL
            for (unsigned c = k + 1; c < N; ++c)
                row[c] = pivotRow[c] * multiplier.negated + row[c];
        }
    }
    return magnitude(a[order[N - 1]][N - 1]) >= threshold;
}

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

#define ZELM_INSTANTIATE_ALONE(T, N) template bool luFactorAlone<T, N>(T(&)[N][N], std::uint32_t(&)[N]);
#define ZELM_INSTANTIATE_GROUP(V, N) template bool luFactor<V, N>(V(&)[N][N], V(&)[N]);
ZELM_ELEMENTS(ZELM_INSTANTIATE_ALONE)
ZELM_PACKS(ZELM_INSTANTIATE_GROUP)

} // namespace zelm::solvers
