// LU decomposition with partial pivoting: P*A = L*U, rows of the result left where A has them.
#pragma once

#include "solvers/groups.h"
#include "solvers/lu_kernels.h"

namespace zelm::solvers {

ZELM_INLINE Address pivotAddress(const std::uint32_t *pivotIndex, Address i) {
    return addressOf(pivotIndex) + i * sizeof(std::uint32_t);
}

// The multiplier of a row and its negation. Both are defined in 64-bit float and rounded to T; for 32-bit
// float the quotient in T has the same bits (see luFactor), and so has its negation unless it underflows to
// zero.
template <typename T>
struct Multiplier {
    T value, negated;
};

template <typename T>
ZELM_INLINE Multiplier<T> luMultiplier(T element, T pivot) {
    const T value = element / pivot;
    if (sizeof(T) == 4 && value == 0 && element != 0)
        return {value, static_cast<T>(0.0 - static_cast<double>(element) / static_cast<double>(pivot))};
    return {value, T{0} - value};
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

template <typename S, typename D, typename Size>
ZELM_NOINLINE ZelmStatus luDecompThroughDst(const S &s, Address pivots, const D &d, Size size) {
    using T = typename D::Element;
    const std::uint32_t n = size.value();
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

// One matrix whose rows lie in whole packs of a local copy: a row is updated a pack at a time, with the lanes
// up to the pivot's column left as they are. Writes the local copy and the order of its rows; the caller
// stores them.
template <typename T, unsigned N>
struct LuRows {
    static constexpr unsigned packs = (N + kLanes<T> - 1) / kLanes<T>;
    static constexpr unsigned width = packs * kLanes<T>;
    alignas(kBlockBytes) T element[N][width];
    std::uint32_t order[N];
};

// All bits of the lanes behind column k, none of the others.
template <typename T>
struct LaneMasks {
    using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
    Bits bits[2 * kLanes<T>];
};
template <typename T>
inline constexpr LaneMasks<T> kLaneMasks = [] {
    LaneMasks<T> masks = {};
    for (unsigned lane = kLanes<T>; lane < 2 * kLanes<T>; ++lane)
        masks.bits[lane] = ~typename LaneMasks<T>::Bits{0};
    return masks;
}();

// b, but a in the lanes from `first` on.
template <typename V>
ZELM_INLINE V onlyFrom(unsigned first, V a, V b) {
    using T = ElementOf<V>;
    const V mask = loadPack<T>(addressOf(kLaneMasks<T>.bits + kLanes<T> - first));
    return bitOr(bitAnd(mask, a), (V)(~(BitsOf<V>)mask & (BitsOf<V>)b));
}

// The row of largest magnitude in column k takes place k.
template <typename T, unsigned N>
ZELM_INLINE std::uint32_t choosePivotRow(LuRows<T, N> &rows, std::uint32_t k) {
    auto &order = rows.order;
    T best = magnitude(rows.element[order[k]][k]);
    std::uint32_t bestPos = k;
    ZELM_UNROLL
    for (std::uint32_t j = k + 1; j < N; ++j) {
        const T value = magnitude(rows.element[order[j]][k]);
        const std::uint32_t wins = value > best;
        best = value > best ? value : best;
        bestPos ^= (bestPos ^ j) & (0 - wins);
    }
    const std::uint32_t pivotRow = order[bestPos];
    order[bestPos] = order[k];
    order[k] = pivotRow;
    return pivotRow;
}

template <typename T, unsigned N>
ZELM_INLINE void eliminateRows(LuRows<T, N> &rows, std::uint32_t k, std::uint32_t pivotRow, T pivot) {
    constexpr unsigned lanes = kLanes<T>;
    const unsigned first = (k + 1) / lanes; // the first pack that holds a column behind k
    const unsigned ahead = (k + 1) % lanes; // its lanes that do not
    ZELM_UNROLL
    for (std::uint32_t j = k + 1; j < N; ++j) {
        T *row = rows.element[rows.order[j]];
        const Multiplier<T> multiplier = luMultiplier(row[k], pivot);
        const Pack<T> negated = spread<Pack<T>>(multiplier.negated);
        ZELM_UNROLL
        for (unsigned p = first; p < LuRows<T, N>::packs; ++p) {
            const Address at = addressOf(row + p * lanes);
            const Pack<T> old = loadPack<T>(at);
            const Pack<T> updated =
                loadPack<T>(addressOf(rows.element[pivotRow] + p * lanes)) * negated + old;
            storePack(at, p == first ? onlyFrom(ahead, updated, old) : updated);
        }
        row[k] = multiplier.value;
    }
}

template <typename T, unsigned N>
ZELM_NOINLINE ZelmStatus luFactorRows(LuRows<T, N> &rows) {
    constexpr T threshold = static_cast<T>(kLuThreshold);
    ZELM_UNROLL
    for (std::uint32_t i = 0; i < N; ++i)
        rows.order[i] = i;
    ZELM_UNROLL
    for (std::uint32_t k = 0; k + 1 < N; ++k) {
        const std::uint32_t pivotRow = choosePivotRow(rows, k);
        const T pivot = rows.element[pivotRow][k];
        if (!(magnitude(pivot) >= threshold))
            return ZELM_ERR_DIV_BY_ZERO;
        eliminateRows(rows, k, pivotRow, pivot);
    }
    return magnitude(rows.element[rows.order[N - 1]][N - 1]) >= threshold ? ZELM_OK : ZELM_ERR_DIV_BY_ZERO;
}

// The first N elements in the lanes of a pack, the others zero.
template <typename T, unsigned N>
ZELM_INLINE Pack<T> loadFirst(Address from) {
    constexpr Address third = 2 * sizeof(T);
    if constexpr (N == 1)
        return inFirstLane(load<T>(from));
    else if constexpr (N == 2)
        return loadTwo(from);
    else
        return _mm_movelh_ps(loadTwo(from), inFirstLane(load<T>(from + third)));
}

// One row of N elements to a local row of whole packs, and back.
template <typename T, unsigned N>
ZELM_INLINE void loadLocalRow(Address local, Address from) {
    constexpr unsigned whole = N / kLanes<T>;
    ZELM_UNROLL
    for (unsigned p = 0; p < whole; ++p)
        storePack(local + p * kBlockBytes, loadPack<T>(from + p * kBlockBytes));
    if constexpr (N % kLanes<T> != 0)
        storePack(local + whole * kBlockBytes, loadFirst<T, N % kLanes<T>>(from + whole * kBlockBytes));
}

template <typename T, unsigned N>
ZELM_INLINE void storeLocalRow(Address to, Address local) {
    constexpr unsigned whole = N / kLanes<T>;
    ZELM_UNROLL
    for (unsigned p = 0; p < whole; ++p)
        storePack(to + p * kBlockBytes, loadPack<T>(local + p * kBlockBytes));
    ZELM_UNROLL
    for (unsigned j = whole * kLanes<T>; j < N; ++j)
        copyElement<T>(to + j * sizeof(T), local + j * sizeof(T));
}

template <typename T, unsigned N>
ZELM_INLINE ZelmStatus luDecompDense(const Dense<const T> &s, Address pivots, const Dense<T> &d) {
    LuRows<T, N> rows;
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        loadLocalRow<T, N>(addressOf(rows.element[i]), s.rowStart(i));
    const ZelmStatus status = luFactorRows(rows);
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        storeLocalRow<T, N>(d.rowStart(i), addressOf(rows.element[i]));
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        store(pivots + i * 4, rows.order[i]);
    return status;
}

// One matrix, factored into d. Adjacent rows of a fixed size are factored in a local copy, unless the rows of
// d lie over each other or over pivotIndex.
template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus luDecompObject(const S &s, Address pivots, const D &d, Size size) {
    using T = typename D::Element;
    if constexpr (D::isDense && Size::fixed != 0) {
        constexpr unsigned N = Size::fixed;
        if (static_cast<std::int32_t>(d.rowStride) >= static_cast<std::int32_t>(N * sizeof(T)) &&
            areDisjoint(pivots, N * 4, d.start, d.rowStride * (N - 1) + N * sizeof(T)))
            return luDecompDense<T, N>(s, pivots, d);
    }
    return luDecompThroughDst(s, pivots, d, size);
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
    if constexpr (kRowsAreAdjacent<D>) {
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
        return luDecompObject(s.object(k), pivotAddress(pivotIndex, Address{k} * N), d.object(k),
                              FixedSize<N>());
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
    const Address n = size.value();
    if (ZelmStatus status = checkSingleWhole(size.isZero(), tested(s, n * n), tested(d, n * n),
                                             tested(Pointer(pivotIndex), 0));
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
