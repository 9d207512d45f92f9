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
template <typename S, typename D, typename Size>
__attribute__((noinline)) ZelmStatus luDecompInPlace(const S &s, Address pivots, const D &d, Size size) {
    using T = typename D::Element;
    const std::uint32_t n = size.value();
    const auto row = [&](std::uint32_t i) { return load<std::uint32_t>(pivots + Address{i} * 4); };
    const auto setRow = [&](std::uint32_t i, std::uint32_t r) { store(pivots + Address{i} * 4, r); };
    constexpr T threshold = static_cast<T>(kLuThreshold);

    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j)
            copyElement<T>(d.address(i, j, n), s.address(i, j, n));
    for (std::uint32_t i = 0; i < n; ++i)
        setRow(i, i);

    for (std::uint32_t k = 0; k + 1 < n; ++k) {
        T best = magnitude(d.get(row(k), k, n));
        std::uint32_t bestPos = k;
        for (std::uint32_t j = k + 1; j < n; ++j) {
            const T value = magnitude(d.get(row(j), k, n));
            if (value > best) {
                best = value;
                bestPos = j;
            }
        }
        const std::uint32_t pivotRow = row(bestPos);
        setRow(bestPos, row(k));
        setRow(k, pivotRow);

        const T pivot = d.get(pivotRow, k, n);
        if (!(magnitude(pivot) >= threshold))
            return ZELM_ERR_DIV_BY_ZERO;
        for (std::uint32_t j = k + 1; j < n; ++j) {
            const std::uint32_t r = row(j);
            const Multiplier<T> multiplier = luMultiplier(d.get(r, k, n), pivot);
            d.set(r, k, n, multiplier.value);
            for (std::uint32_t c = k + 1; c < n; ++c)
                d.set(r, c, n, d.get(pivotRow, c, n) * multiplier.negated + d.get(r, c, n));
        }
    }
    if (!(magnitude(d.get(row(n - 1), n - 1, n)) >= threshold))
        return ZELM_ERR_DIV_BY_ZERO;
    return ZELM_OK;
}

// One matrix whose rows lie in whole packs of a local copy: a row is updated a pack at a time, with the lanes
// up to the pivot's column left as they are. Writes the local copy and the order of its rows; the caller
// stores them.
template <typename T, unsigned N>
struct LuRows {
    static constexpr unsigned packs = (N + kLanes<T> - 1) / kLanes<T>;
    static constexpr unsigned width = packs * kLanes<T>;
    alignas(kPackBytes) T element[N][width];
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

template <typename T, unsigned N>
__attribute__((noinline)) ZelmStatus luFactorRows(LuRows<T, N> &rows) {
    using Rows = LuRows<T, N>;
    constexpr T threshold = static_cast<T>(kLuThreshold);
    auto &order = rows.order;
#pragma GCC unroll 6
    for (std::uint32_t i = 0; i < N; ++i)
        order[i] = i;
#pragma GCC unroll 6
    for (std::uint32_t k = 0; k + 1 < N; ++k) {
        T best = magnitude(rows.element[order[k]][k]);
        std::uint32_t bestPos = k;
#pragma GCC unroll 6
        for (std::uint32_t j = k + 1; j < N; ++j) {
            const T value = magnitude(rows.element[order[j]][k]);
            const std::uint32_t wins = value > best;
            best = value > best ? value : best;
            bestPos ^= (bestPos ^ j) & (0 - wins);
        }
        const std::uint32_t pivotRow = order[bestPos];
        order[bestPos] = order[k];
        order[k] = pivotRow;

        const T pivot = rows.element[pivotRow][k];
        if (!(magnitude(pivot) >= threshold))
            return ZELM_ERR_DIV_BY_ZERO;
        constexpr unsigned lanes = kLanes<T>;
        const unsigned first = (k + 1) / lanes; // the first pack that holds a column behind k
        const Pack<T> behind = loadPack<T>(addressOf(kLaneMasks<T>.bits + lanes - (k + 1) % lanes));
#pragma GCC unroll 6
        for (std::uint32_t j = k + 1; j < N; ++j) {
            T *row = rows.element[order[j]];
            const Multiplier<T> multiplier = luMultiplier(row[k], pivot);
            const Pack<T> negated = broadcast(multiplier.negated);
#pragma GCC unroll 3
            for (unsigned p = first; p < Rows::packs; ++p) {
                const Address at = addressOf(row + p * lanes);
                const Pack<T> old = loadPack<T>(at);
                const Pack<T> updated =
                    loadPack<T>(addressOf(rows.element[pivotRow] + p * lanes)) * negated + old;
                storePack(at, p == first ? select(behind, updated, old) : updated);
            }
            row[k] = multiplier.value;
        }
    }
    return magnitude(rows.element[order[N - 1]][N - 1]) >= threshold ? ZELM_OK : ZELM_ERR_DIV_BY_ZERO;
}

// One row of N elements to or from a local row of whole packs.
template <typename T, unsigned N>
ZELM_INLINE void copyRow(Address to, Address from) {
    constexpr unsigned whole = N / kLanes<T>;
#pragma GCC unroll 3
    for (unsigned p = 0; p < whole; ++p)
        storePack(to + p * kPackBytes, loadPack<T>(from + p * kPackBytes));
#pragma GCC unroll 3
    for (unsigned j = whole * kLanes<T>; j < N; ++j)
        copyElement<T>(to + j * sizeof(T), from + j * sizeof(T));
}

template <typename T, unsigned N>
ZELM_INLINE ZelmStatus luDecompDense(const Dense<const T> &s, Address pivots, const Dense<T> &d) {
    LuRows<T, N> rows;
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        copyRow<T, N>(addressOf(rows.element[i]), s.rowStart(i));
#pragma GCC unroll 3
        for (unsigned j = N; j < rows.width; ++j)
            rows.element[i][j] = 0;
    }
    const ZelmStatus status = luFactorRows(rows);
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        copyRow<T, N>(d.rowStart(i), addressOf(rows.element[i]));
#pragma GCC unroll 6
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
    return luDecompInPlace(s, pivots, d, size);
}

// The order of the rows of a group, from numbers in T to the pivotIndex of each object.
template <unsigned N>
ZELM_INLINE void storeOrder(const __m128 (&order)[N], Address pivots) {
    __m128 numbers[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        numbers[i] = _mm_castsi128_ps(_mm_cvttps_epi32(order[i]));
    const LaneAddresses<float> at = {pivots, pivots + N * 4, pivots + N * 8, pivots + N * 12};
    storeAdjacent<float, N>(at, numbers);
}

template <unsigned N>
ZELM_INLINE void storeOrder(const __m128d (&order)[N], Address pivots) {
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        const __m128i numbers = _mm_cvttpd_epi32(order[i]);
        store(pivots + i * 4, _mm_cvtsi128_si32(numbers));
        store(pivots + (N + i) * 4, _mm_cvtsi128_si32(_mm_shuffle_epi32(numbers, 1)));
    }
}

// As many matrices as a pack has lanes. False, with nothing written, where one of them needs luDecompObject.
template <unsigned N, typename S, typename D>
__attribute__((noinline)) bool luDecompGroup(const Group<S> &s, Address pivots, const Group<D> &d) {
    using T = typename D::Element;
    Pack<T> a[N][N], order[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        loadRow<N>(s, i, a[i]);
    if (!luFactor<T, N>(a, order))
        return false;
    storeOrder<N>(order, pivots);
    const auto physical = [pivots](unsigned lane, unsigned i) {
        return load<std::uint32_t>(pivots + (lane * N + i) * 4);
    };
    if constexpr (D::isTable) {
        // Rows of different lanes go to different table entries: element by element.
        for (unsigned i = 0; i < N; ++i) {
            for (unsigned lane = 0; lane < kLanes<T>; ++lane) {
                const std::uint32_t r = physical(lane, i);
#pragma GCC unroll 6
                for (unsigned j = 0; j < N; ++j)
                    copyElement<T>(d.objects[lane].address(r, j, N), addressOf(&a[i][j]) + lane * sizeof(T));
            }
        }
    } else {
#pragma GCC unroll 6
        for (unsigned i = 0; i < N; ++i)
            storeRowOfEach<N>(
                d, [&](unsigned lane) { return physical(lane, i); }, a[i]);
    }
    return true;
}

// Whether groups of objects may be factored, asked once for a whole array.
template <unsigned N, typename S, typename D>
ZELM_INLINE bool luDecompInGroups(const S &s, const std::uint32_t *pivotIndex, const D &d,
                                  std::uint32_t count) {
    if (!mayWriteGroups<N>(d, N, count))
        return false;
    const Range pivots = rangeFrom(addressOf(pivotIndex), std::int64_t{count} * N * 4);
    return (coincide(s, d) || isUntouched(s, N, N, d, N, N, count)) &&
           areDisjoint(pivots, rangeOf(d, N, N, count)) && areDisjoint(pivots, rangeOf(s, N, N, count));
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
    const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
        return luDecompObject(s.object(k), pivotAddress(pivotIndex, k * n), d.object(k), size);
    };
    if constexpr (Size::fixed == 0) {
        return forEachObject(count, one, s, d);
    } else {
        constexpr unsigned N = Size::fixed;
        constexpr unsigned lanes = kLanes<typename D::Element>;
        if constexpr (D::isList) {
            const Extent read = extentOf(s, N, N), written = extentOf(d, N, N);
            const bool distinct = objectElementsAreApart(d, N, N);
            const bool sameStrides = s.rowStride == d.rowStride && s.elemStride == d.elemStride;
            const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                if (!distinct || anyEntryNull(s, k) || anyEntryNull(d, k))
                    return false;
                const Lowest<lanes> source = lowestOf<lanes>(s, read, k),
                                    target = lowestOf<lanes>(d, written, k);
                const Address pivots = pivotAddress(pivotIndex, k * n);
                constexpr Address pivotBytes = lanes * N * 4;
                bool inPlace = sameStrides;
                for (unsigned lane = 0; lane < lanes; ++lane)
                    inPlace &= source.at[lane] == target.at[lane];
                if (!areApartFromEachOther(target, written.bytes) ||
                    !(inPlace || areApartFrom(target, written.bytes, source, read.bytes)))
                    return false;
                for (unsigned lane = 0; lane < lanes; ++lane)
                    if (!areDisjoint(pivots, pivotBytes, target.at[lane], written.bytes) ||
                        !areDisjoint(pivots, pivotBytes, source.at[lane], read.bytes))
                        return false;
                return luDecompGroup<N>(groupAt(s, k), pivots, groupAt(d, k));
            };
            return forEachGroup<lanes>(count, group, one, s, d);
        } else {
            if (!luDecompInGroups<N>(s, pivotIndex, d, count))
                return forEachObject(count, one, s, d);
            const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                return luDecompGroup<N>(groupAt(s, k), pivotAddress(pivotIndex, k * n), groupAt(d, k));
            };
            return forEachGroup<lanes>(count, group, one, s, d);
        }
    }
}

} // namespace zelm::solvers
