// LU decomposition with partial pivoting: P*A = L*U, rows of the result left where A has them.
#pragma once

#include "solvers/lu_kernels.h"
#include "solvers/matrix_groups.h"
#include "solvers/tested_matrix.h"

namespace zelm::solvers {

ZELM_INLINE Address pivotAddress(const std::uint32_t *pivotIndex, Address i) {
    return addressOf(pivotIndex) + i * sizeof(std::uint32_t);
}

// One matrix, factored in d as the definition has it, whatever overlaps.
template <typename D>
struct LuThroughDst {
    using T = typename D::Element;
    const D &d;
    Address pivots;
    std::uint32_t n;

    ZELM_INLINE std::uint32_t row(std::uint32_t i) const {
        return load<std::uint32_t>(pivots + Address{i} * 4);
    }
    ZELM_INLINE void setRow(std::uint32_t i, std::uint32_t r) const { store(pivots + Address{i} * 4, r); }
    ZELM_INLINE T element(std::uint32_t i, std::uint32_t j) const { return d.get(row(i), j, n); }
    ZELM_INLINE static bool isPivot(T element) { return magnitude(element) >= static_cast<T>(kLuThreshold); }

    // The row of largest magnitude in column k takes place k.
    ZELM_INLINE std::uint32_t choosePivotRow(std::uint32_t k) const {
        T best = magnitude(element(k, k));
        std::uint32_t bestPos = k;
        for (std::uint32_t j = k + 1; j < n; ++j) {
            const T value = magnitude(element(j, k));
            if (value > best) {
                best = value;
                bestPos = j;
            }
        }
        const std::uint32_t pivotRow = row(bestPos);
        setRow(bestPos, row(k));
        setRow(k, pivotRow);
        return pivotRow;
    }

    ZELM_INLINE void eliminate(std::uint32_t k, std::uint32_t pivotRow, T pivot) const {
        for (std::uint32_t j = k + 1; j < n; ++j) {
            const std::uint32_t r = row(j);
            const Multiplier<T> multiplier = luMultiplier(d.get(r, k, n), pivot);
            d.set(r, k, n, multiplier.value);
            for (std::uint32_t c = k + 1; c < n; ++c)
                d.set(r, c, n, d.get(pivotRow, c, n) * multiplier.negated + d.get(r, c, n));
        }
    }
};

template <typename S, typename D>
ZELM_NOINLINE ZelmStatus luDecompThroughDst(const S &s, Address pivots, const D &d, std::uint32_t n) {
    using T = typename D::Element;
    const LuThroughDst<D> lu = {d, pivots, n};
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j)
            copyElement<T>(d.address(i, j, n), s.address(i, j, n));
    for (std::uint32_t i = 0; i < n; ++i)
        lu.setRow(i, i);
    for (std::uint32_t k = 0; k + 1 < n; ++k) {
        const std::uint32_t pivotRow = lu.choosePivotRow(k);
        const T pivot = d.get(pivotRow, k, n);
        if (!lu.isPivot(pivot))
            return ZELM_ERR_DIV_BY_ZERO;
        lu.eliminate(k, pivotRow, pivot);
    }
    return lu.isPivot(lu.element(n - 1, n - 1)) ? ZELM_OK : ZELM_ERR_DIV_BY_ZERO;
}

// Whether a matrix can be factored in a local copy: its elements in d are distinct, and pivotIndex lies apart
// from them.
template <unsigned N, typename D>
ZELM_INLINE bool mayFactorInCopy(const D &d, Address pivots) {
    constexpr Address size = sizeof(typename D::Element), last = N - 1;
    if constexpr (D::isTable) {
        const Address first = d.position(0), bytes = d.position(N * N - 1) - first + size;
        return positionsAscend<N * N>(d) && areDisjoint(pivots, N * 4, first, bytes);
    } else {
        const Address bytes = last * (d.rowStride + d.elemStride) + size;
        return matrixIsDistinct<N>(d) && areDisjoint(pivots, N * 4, d.start, bytes);
    }
}

template <unsigned N, typename S, typename D>
ZELM_INLINE ZelmStatus luDecompInCopy(const S &s, Address pivots, const D &d) {
    typename D::Element a[N][N];
    std::uint32_t order[N];
    readMatrix(s, a);
    const bool isFactored = luFactorAlone(a, order);
    writeMatrix(d, a);
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        store(pivots + i * 4, order[i]);
    return isFactored ? ZELM_OK : ZELM_ERR_DIV_BY_ZERO;
}

// One matrix, factored into d.
template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus luDecompObject(const S &s, Address pivots, const D &d, Size size) {
    if constexpr (Size::fixed != 0)
        if (mayFactorInCopy<Size::fixed>(d, pivots))
            return luDecompInCopy<Size::fixed>(s, pivots, d);
    return luDecompThroughDst(aside(s), pivots, aside(d), size.value());
}

// The same as a real function, which what arrays leave over shares.
template <unsigned N, typename S, typename D>
ZELM_NOINLINE ZelmStatus luDecompAlone(const S &s, Address pivots, const D &d) {
    return luDecompObject(s, pivots, d, FixedSize<N>());
}

// The order of the rows of a group, from numbers in the element type to the pivotIndex of each object.
template <unsigned N, typename V>
ZELM_INLINE void storeOrder(const V (&order)[N], Address pivots) {
    if constexpr (sizeof(ElementOf<V>) == 4) {
        typedef std::int32_t Numbers __attribute__((vector_size(sizeof(V))));
        V numbers[N];
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            numbers[i] = (V) __builtin_convertvector(order[i], Numbers);
        LaneAddresses<V> at;
        ZELM_UNROLL
        for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
            at[lane] = pivots + lane * N * 4;
        storeAdjacent<N>(at, numbers);
    } else {
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            toBlocks(order[i], [&](unsigned b, Doubles2 two) ZELM_INLINE_LAMBDA {
                const __m128i numbers = _mm_cvttpd_epi32(two);
                store(pivots + (2 * b * N + i) * 4, _mm_cvtsi128_si32(numbers));
                store(pivots + ((2 * b + 1) * N + i) * 4, _mm_cvtsi128_si32(_mm_shuffle_epi32(numbers, 1)));
            });
    }
}

template <unsigned N, typename D, typename V>
ZELM_INLINE void storeRowsAtPivots(const D &d, std::uint32_t k, Address pivots, const V (&a)[N][N]) {
    const auto storeRowAt = [&](unsigned i) ZELM_INLINE_LAMBDA {
        storeRowOfEach<N>(
            d, k, [&](unsigned lane) { return load<std::uint32_t>(pivots + (lane * N + i) * 4); }, a[i]);
    };
    if constexpr (kHasDenseObjects<D>) {
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            storeRowAt(i);
    } else {
#pragma GCC unroll 1
        for (unsigned i = 0; i < N; ++i)
            storeRowAt(i);
    }
}

// Groups of matrices from k on, up to one where a matrix needs luDecompObject.
template <typename V, unsigned N, typename S, typename D>
ZELM_NOINLINE std::uint32_t luDecompGroups(const S &s, const std::uint32_t *pivotIndex, const D &d,
                                           std::uint32_t k, std::uint32_t end) {
    return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
        V a[N][N], order[N];
        loadMatrix(s, group, a);
        if (!luFactor(a, order))
            return false;
        const Address pivots = pivotAddress(pivotIndex, Address{group} * N);
        storeOrder(order, pivots);
        storeRowsAtPivots(d, group, pivots, a);
        return true;
    });
}

// The matrices of an array, of a fixed size.
template <unsigned N, typename S, typename D>
ZELM_NOINLINE ZelmStatus luDecompObjects(const S &s, std::uint32_t *pivotIndex, const D &d,
                                         std::uint32_t count) {
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        return luDecompAlone<N>(s.object(k), pivotAddress(pivotIndex, Address{k} * N), d.object(k));
    };
    const auto group = [&](auto pack, std::uint32_t k, std::uint32_t end) ZELM_INLINE_LAMBDA {
        return luDecompGroups<typename decltype(pack)::Pack, N>(s, pivotIndex, d, k, end);
    };
    return forEachInGroups<kLongKernels>(count, writesPerObject(pivotIndex, N * 4),
                                         inRuns<S, D>(count, group), one, writes(d, N, N),
                                         reads(s, N, N, InPlace::Yes));
}

// ---- the exported rows

template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus luDecompSingle(const S &s, std::uint32_t *pivotIndex, const D &d, Size size) {
    constexpr unsigned N = Size::fixed;
    const Address n = size.value();
    if (ZelmStatus status = checkAlone(size.isZero(), testedAlone<N * N>(s, n * n),
                                       testedAlone<N * N>(d, n * n), tested(Pointer(pivotIndex), 0));
        status != kProceed)
        return status;
    return luDecompObject(s, addressOf(pivotIndex), d, size);
}

template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus luDecompArray(const S &s, std::uint32_t *pivotIndex, const D &d, Size size,
                                     std::uint32_t count) {
    const Address n = size.value();
    if (ZelmStatus status = checkArray(size.isZero(), count, tested(s, n * n), tested(d, n * n),
                                       tested(Pointer(pivotIndex), 0));
        status != kProceed)
        return status;
    if constexpr (Size::fixed == 0) {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            return luDecompObject(s.object(k), pivotAddress(pivotIndex, k * n), d.object(k), size);
        };
        return forEachObject(count, one, s, d);
    } else {
        return withPlainest(
            [&](const auto &source, const auto &target) ZELM_INLINE_LAMBDA {
                return luDecompObjects<Size::fixed>(source, pivotIndex, target, count);
            },
            s, d);
    }
}

} // namespace zelm::solvers
