// LU decomposition with partial pivoting: P*A = L*U, rows of the result left where A has them.
#pragma once

#include "frame/groups.h"
#include "frame/objects.h"
#include "frame/overlap.h"
#include "solvers/lu_kernels.h"

namespace zelm::solvers {

ZELM_INLINE Address pivotAddress(const std::uint32_t *pivotIndex, Address i) {
    return addressOf(pivotIndex) + i * sizeof(std::uint32_t);
}

// One matrix, factored in d. Division and negation of the multiplier are in 64-bit float in both element
// types, the update of the rows below is in T.
template <typename S, typename D, typename Size>
__attribute__((noinline)) ZelmStatus luDecompObject(const S &s, Address pivots, const D &d, Size size) {
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
            const double multiplier = static_cast<double>(d.get(r, k, n)) / static_cast<double>(pivot);
            d.set(r, k, n, static_cast<T>(multiplier));
            const T negated = static_cast<T>(0.0 - multiplier);
            for (std::uint32_t c = k + 1; c < n; ++c)
                d.set(r, c, n, d.get(pivotRow, c, n) * negated + d.get(r, c, n));
        }
    }
    if (!(magnitude(d.get(row(n - 1), n - 1, n)) >= threshold))
        return ZELM_ERR_DIV_BY_ZERO;
    return ZELM_OK;
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

// From how many objects on a test that looks at every table entry is worth its time.
constexpr std::uint32_t kGroupsInTablesCount = 16;

// Whether groups of objects may be factored, asked once for a whole array.
template <unsigned N, typename S, typename D>
ZELM_INLINE bool luDecompInGroups(const S &s, const std::uint32_t *pivotIndex, const D &d,
                                  std::uint32_t count) {
    if (count < (D::isTable ? kGroupsInTablesCount : kLanes<typename D::Element>) ||
        count > kMostObjectsInRange)
        return false;
    if (!elementsAreApart(d, N, N, count))
        return false;
    const Range pivots = rangeFrom(addressOf(pivotIndex), std::int64_t{count} * N * 4);
    return (coincide(s, d) || isUntouched(s, N, N, d, N, N, count)) &&
           areDisjoint(pivots, rangeOf(d, N, N, count)) && areDisjoint(pivots, rangeOf(s, N, N, count));
}

// The same for one group of a list.
template <unsigned N, typename S, typename D>
ZELM_INLINE bool luDecompListGroup(const Group<S> &s, const Range &pivots, const Group<D> &d) {
    constexpr unsigned lanes = Group<D>::lanes;
    Range source[lanes], target[lanes];
    bool fit = elementsAreApart(d.objects[0], N, N);
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < lanes; ++lane) {
        source[lane] = rangeOfObject(s.objects[lane], N, N);
        target[lane] = rangeOfObject(d.objects[lane], N, N);
        fit = fit && isKnown(source[lane]) && isKnown(target[lane]) && areDisjoint(source[lane], pivots) &&
              areDisjoint(target[lane], pivots);
    }
    for (unsigned lane = 0; lane < lanes && fit; ++lane) {
        for (unsigned other = 0; other < lanes; ++other) {
            if (other != lane)
                fit = fit && areDisjoint(target[lane], target[other]) &&
                      areDisjoint(target[lane], source[other]);
            else
                fit = fit &&
                      (coincide(s.objects[lane], d.objects[lane]) || areDisjoint(target[lane], source[lane]));
        }
    }
    return fit;
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
    const auto one = [&](std::uint32_t k) {
        return luDecompObject(s.object(k), pivotAddress(pivotIndex, k * n), d.object(k), size);
    };
    if constexpr (Size::fixed == 0) {
        return forEachObject(count, one, s, d);
    } else {
        constexpr unsigned N = Size::fixed;
        constexpr unsigned lanes = kLanes<typename D::Element>;
        if constexpr (D::isList) {
            const auto group = [&](std::uint32_t k) {
                if (anyEntryNull(s, k) || anyEntryNull(d, k))
                    return false;
                const Group<S> source = groupAt(s, k);
                const Group<D> target = groupAt(d, k);
                const Address pivots = pivotAddress(pivotIndex, k * n);
                return luDecompListGroup<N>(source, rangeFrom(pivots, lanes * N * 4), target) &&
                       luDecompGroup<N>(source, pivots, target);
            };
            return forEachGroup<lanes>(count, group, one, s, d);
        } else {
            if (!luDecompInGroups<N>(s, pivotIndex, d, count))
                return forEachObject(count, one, s, d);
            const auto group = [&](std::uint32_t k) {
                return luDecompGroup<N>(groupAt(s, k), pivotAddress(pivotIndex, k * n), groupAt(d, k));
            };
            return forEachGroup<lanes>(count, group, one, s, d);
        }
    }
}

} // namespace zelm::solvers
