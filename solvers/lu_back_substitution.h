// Solving A*x = b with the LU factors of A, by forward and back substitution.
#pragma once

#include "solvers/lu_decomposition.h"

namespace zelm::solvers {

// One system. d is the only work space: it holds the forward pass's results, so where it overlaps b, later
// rows of b are read after they were overwritten.
template <typename A, typename B, typename D, typename Size>
__attribute__((noinline)) void luBackSubstObject(const A &a, Address pivots, const B &b, const D &d,
                                                 Size size) {
    using T = typename D::Element;
    const std::uint32_t n = size.value();
    const auto row = [&](std::uint32_t i) { return load<std::uint32_t>(pivots + Address{i} * 4); };

    d.set(0, b.get(row(0)));
    for (std::uint32_t i = 1; i < n; ++i) {
        const std::uint32_t r = row(i);
        T sum = 0;
        for (std::uint32_t j = 0; j < i; ++j)
            sum = sum + a.get(r, j, n) * d.get(j);
        d.set(i, b.get(r) - sum);
    }
    d.set(n - 1, d.get(n - 1) / a.get(row(n - 1), n - 1, n));
    for (std::uint32_t i = n - 1; i-- > 0;) {
        const std::uint32_t r = row(i);
        T sum = 0;
        for (std::uint32_t j = i + 1; j < n; ++j)
            sum = sum + a.get(r, j, n) * d.get(j);
        d.set(i, (d.get(i) - sum) / a.get(r, i, n));
    }
}

// Row numbers are used as given, whatever they are; groups keep to those that lie inside the matrix, since
// only for them is it known which bytes are read.
ZELM_INLINE bool rowsAreInside(Address pivots, unsigned rows, unsigned entries) {
    bool inside = true;
    for (unsigned e = 0; e < entries; ++e)
        inside &= load<std::uint32_t>(pivots + e * 4) < rows;
    return inside;
}

// As many systems as a pack has lanes, each with a matrix of its own.
template <unsigned N, typename A, typename B, typename D>
__attribute__((noinline)) void luBackSubstGroup(const Group<A> &a, Address pivots, const Group<B> &b,
                                                const Group<D> &d) {
    using T = typename D::Element;
    const auto physical = [pivots](unsigned lane, unsigned i) {
        return load<std::uint32_t>(pivots + (lane * N + i) * 4);
    };
    Pack<T> factors[N][N], x[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        loadRowOfEach<N>(
            a, [&](unsigned lane) { return physical(lane, i); }, factors[i]);
        LaneAddresses<T> at;
#pragma GCC unroll 4
        for (unsigned lane = 0; lane < kLanes<T>; ++lane)
            at[lane] = b.objects[lane].address(0, physical(lane, i), 0);
        x[i] = gather(at);
    }
    luSolve<T, N>(factors, x);
    storeRow<N>(d, 0, x);
}

// The same with one matrix for all systems, which lies in `factors`, each element in all lanes.
template <unsigned N, typename T, typename B, typename D>
__attribute__((noinline)) void luBackSubstGroupShared(const Pack<T> (&factors)[N][N], Address pivots,
                                                      const Group<B> &b, const Group<D> &d) {
    Pack<T> right[N], x[N];
    loadRow<N>(b, 0, right);
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        x[i] = right[load<std::uint32_t>(pivots + i * 4)];
    luSolve<T, N>(factors, x);
    storeRow<N>(d, 0, x);
}

// Whether groups of systems may be solved, asked once for a whole array.
template <unsigned N, typename A, typename B, typename D>
ZELM_INLINE bool luBackSubstInGroups(const A &a, const Range &pivots, const B &b, const D &d,
                                     std::uint32_t count) {
    if (count < (D::isTable ? kGroupsInTablesCount : kLanes<typename D::Element>) ||
        count > kMostObjectsInRange)
        return false;
    return elementsAreApart(d, 1, N, count) && isUntouched(a, N, N, d, 1, N, count) &&
           isUntouched(b, 1, N, d, 1, N, count) && areDisjoint(pivots, rangeOf(d, 1, N, count));
}

// The same for one group of a list.
template <unsigned N, typename A, typename B, typename D>
ZELM_INLINE bool luBackSubstListGroup(const Group<A> &a, const Range &pivots, const Group<B> &b,
                                      const Group<D> &d) {
    constexpr unsigned lanes = Group<D>::lanes;
    Range target[lanes];
    bool fit = elementsAreApart(d.objects[0], 1, N);
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < lanes; ++lane) {
        target[lane] = rangeOfObject(d.objects[lane], 1, N);
        fit = fit && isKnown(target[lane]) && areDisjoint(target[lane], pivots);
    }
    for (unsigned lane = 0; lane < lanes && fit; ++lane) {
        const Range matrix = rangeOfObject(a.objects[lane], N, N),
                    right = rangeOfObject(b.objects[lane], 1, N);
        fit = isKnown(matrix) && isKnown(right);
        for (unsigned other = 0; other < lanes; ++other)
            fit = fit && areDisjoint(target[other], matrix) && areDisjoint(target[other], right) &&
                  (other == lane || areDisjoint(target[other], target[lane]));
    }
    return fit;
}

// ---- array forms of a fixed size

// A matrix for each system.
template <unsigned N, typename A, typename B, typename D, typename One>
ZELM_INLINE ZelmStatus luBackSubstOwn(const A &a, const std::uint32_t *pivotIndex, const B &b, const D &d,
                                      One one, std::uint32_t count) {
    constexpr unsigned lanes = kLanes<typename D::Element>;
    if constexpr (!D::isList) {
        const Range pivots = rangeFrom(addressOf(pivotIndex), std::int64_t{count} * N * 4);
        if (!luBackSubstInGroups<N>(a, pivots, b, d, count))
            return forEachObject(count, one, a, b, d);
    }
    const auto group = [&](std::uint32_t k) {
        if (anyEntryNull(a, k) || anyEntryNull(b, k) || anyEntryNull(d, k))
            return false;
        const Address pivots = pivotAddress(pivotIndex, Address{k} * N);
        const Group<A> matrices = groupAt(a, k);
        const Group<B> right = groupAt(b, k);
        const Group<D> target = groupAt(d, k);
        if constexpr (D::isList) {
            if (!luBackSubstListGroup<N>(matrices, rangeFrom(pivots, lanes * N * 4), right, target))
                return false;
        }
        if (!rowsAreInside(pivots, N, lanes * N))
            return false;
        luBackSubstGroup<N>(matrices, pivots, right, target);
        return true;
    };
    return forEachGroup<lanes>(count, group, one, a, b, d);
}

// One matrix for all systems: its elements are spread over all lanes once.
template <unsigned N, typename A, typename B, typename D, typename One>
ZELM_INLINE ZelmStatus luBackSubstShared(const A &a, Address pivots, const B &b, const D &d, One one,
                                         std::uint32_t count) {
    using T = typename D::Element;
    constexpr unsigned lanes = kLanes<T>;
    const Range pivotRange = rangeFrom(pivots, N * 4);
    bool grouped = count >= lanes && rowsAreInside(pivots, N, N);
    if constexpr (!D::isList)
        grouped = grouped && luBackSubstInGroups<N>(a, pivotRange, b, d, count);
    if (!grouped)
        return forEachObject(count, one, a, b, d);

    Pack<T> factors[N][N];
    for (unsigned i = 0; i < N; ++i)
        for (unsigned j = 0; j < N; ++j)
            factors[i][j] = broadcast(a.get(load<std::uint32_t>(pivots + i * 4), j, N));

    const auto group = [&](std::uint32_t k) {
        if (!grouped || anyEntryNull(b, k) || anyEntryNull(d, k))
            return false;
        const Group<B> right = groupAt(b, k);
        const Group<D> target = groupAt(d, k);
        if constexpr (D::isList) {
            // Once an object is done by itself for its overlap, the matrix may be another one than was
            // spread.
            grouped = luBackSubstListGroup<N>(groupAt(a, k), pivotRange, right, target);
            if (!grouped)
                return false;
        }
        luBackSubstGroupShared<N, T>(factors, pivots, right, target);
        return true;
    };
    return forEachGroup<lanes>(count, group, one, a, b, d);
}

// ---- the exported rows

template <typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus luBackSubstSingle(const A &a, const std::uint32_t *pivotIndex, const B &b, const D &d,
                                         Size size) {
    const Address n = size.value();
    if (ZelmStatus status = checkSingleWhole(size.isZero(), tested(a, n * n), tested(b, n), tested(d, n),
                                             tested(Pointer(pivotIndex), 0));
        status != kProceed)
        return status;
    luBackSubstObject(a, addressOf(pivotIndex), b, d, size);
    return ZELM_OK;
}

// A matrix of each object's own has its own block of pivotIndex; a matrix that serves all objects has one.
template <typename A>
constexpr bool kIsShared = requires(const A &a) {
    a.get(0u, 0u, 0u);
};

template <typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus luBackSubstArray(const A &a, const std::uint32_t *pivotIndex, const B &b, const D &d,
                                        Size size, std::uint32_t count) {
    const Address n = size.value();
    if (ZelmStatus status = checkArray(size.isZero(), count, tested(a, n * n), tested(b, n), tested(d, n),
                                       tested(Pointer(pivotIndex), 0));
        status != kProceed)
        return status;
    const auto pivotsOf = [&](std::uint32_t k) { return pivotAddress(pivotIndex, kIsShared<A> ? 0 : k * n); };
    const auto one = [&](std::uint32_t k) {
        luBackSubstObject(a.object(k), pivotsOf(k), b.object(k), d.object(k), size);
        return ZELM_OK;
    };
    if constexpr (Size::fixed == 0) {
        return forEachObject(count, one, a, b, d);
    } else if constexpr (kIsShared<A>) {
        return luBackSubstShared<Size::fixed>(a, addressOf(pivotIndex), b, d, one, count);
    } else {
        return luBackSubstOwn<Size::fixed>(a, pivotIndex, b, d, one, count);
    }
}

} // namespace zelm::solvers
