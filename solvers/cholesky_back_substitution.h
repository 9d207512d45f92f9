// Solving A*x = b with the Cholesky factor of A: forward with L, backward with its transpose, no division.
#pragma once

#include "solvers/cholesky_kernels.h"
#include "solvers/groups.h"

namespace zelm::solvers {

// One system, as the definition has it: d is the only work space.
template <typename A, typename B, typename D>
__attribute__((noinline)) void choleskySolveInPlace(const A &a, const B &b, const D &d, std::uint32_t n) {
    using T = typename D::Element;
    for (std::uint32_t i = 0; i < n; ++i) {
        T x = b.get(i);
        for (std::uint32_t k = 0; k < i; ++k)
            x = x - a.get(i, k, n) * d.get(k);
        d.set(i, x * a.get(i, i, n));
    }
    for (std::uint32_t i = n; i-- > 0;) {
        T x = d.get(i);
        for (std::uint32_t k = n; k-- > i + 1;)
            x = x - a.get(k, i, n) * d.get(k);
        d.set(i, x * a.get(i, i, n));
    }
}

// The same for a fixed size, where the elements of d are distinct: what was stored in d is read from
// registers.
template <unsigned N, typename A, typename B, typename D>
__attribute__((noinline)) void choleskySolveInRegisters(const A &a, const B &b, const D &d) {
    using T = typename D::Element;
    T x[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        T sum = b.get(i);
#pragma GCC unroll 6
        for (unsigned k = 0; k < i; ++k)
            sum = sum - a.get(i, k, N) * x[k];
        x[i] = sum * a.get(i, i, N);
        d.set(i, x[i]);
    }
#pragma GCC unroll 6
    for (unsigned back = 1; back <= N; ++back) {
        const unsigned i = N - back;
        T sum = x[i];
#pragma GCC unroll 6
        for (unsigned k = N - 1; k > i; --k)
            sum = sum - a.get(k, i, N) * x[k];
        x[i] = sum * a.get(i, i, N);
        d.set(i, x[i]);
    }
}

template <typename A, typename B, typename D, typename Size>
ZELM_INLINE void choleskySolveObject(const A &a, const B &b, const D &d, Size size) {
    if constexpr (Size::fixed != 0) {
        constexpr unsigned N = Size::fixed;
        if (resultIsDistinct<N>(d))
            return choleskySolveInRegisters<N>(a, b, d);
    }
    choleskySolveInPlace(a, b, d, size.value());
}

// As many systems as a pack has lanes, each with a matrix of its own ...
template <unsigned N, typename A, typename B, typename D>
__attribute__((noinline)) void choleskySolveGroup(const Group<A> &a, const Group<B> &b, const Group<D> &d) {
    using T = typename D::Element;
    Pack<T> factor[N][N], x[N];
    loadLower<N>(a, factor);
    loadRow<N>(b, 0, x);
    choleskySolve<T, N>(factor, x);
    storeRow<N>(d, 0, x);
}

// ... or with one matrix, each element of it in all lanes.
template <unsigned N, typename T, typename B, typename D>
__attribute__((noinline)) void choleskySolveGroupShared(const Pack<T> (&factor)[N][N], const Group<B> &b,
                                                        const Group<D> &d) {
    Pack<T> x[N];
    loadRow<N>(b, 0, x);
    choleskySolve<T, N>(factor, x);
    storeRow<N>(d, 0, x);
}

// A matrix for each system.
template <unsigned N, typename A, typename B, typename D, typename One>
ZELM_INLINE ZelmStatus choleskySolveOwn(const A &a, const B &b, const D &d, One one, std::uint32_t count) {
    constexpr unsigned lanes = kLanes<typename D::Element>;
    if constexpr (D::isList) {
        const ListGroups<D> groups(d, 1, N);
        const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
            if (anyObjectNull(a, k) || anyObjectNull(b, k) || anyObjectNull(d, k) || !groups.mayWrite(k) ||
                !groups.mayRead(a, N, k) || !groups.mayRead(b, 1, k))
                return false;
            choleskySolveGroup<N>(groupAt(a, k), groupAt(b, k), groupAt(d, k));
            return true;
        };
        return forEachGroup<lanes>(count, group, one);
    } else {
        if (!mayWriteGroups<N>(d, 1, count) || !mayReadAhead(a, N, N, d, 1, count) ||
            !mayReadAhead(b, 1, N, d, 1, count) || !hasNoNullObject(a, N, N, count) ||
            !hasNoNullObject(b, 1, N, count) || !hasNoNullObject(d, 1, N, count))
            return forEachObject(count, one);
        const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
            choleskySolveGroup<N>(groupAt(a, k), groupAt(b, k), groupAt(d, k));
            return true;
        };
        return forEachGroup<lanes>(count, group, one);
    }
}

// One matrix for all systems: its elements are spread over all lanes once.
template <unsigned N, typename A, typename B, typename D, typename One>
ZELM_INLINE ZelmStatus choleskySolveShared(const A &a, const B &b, const D &d, One one, std::uint32_t count) {
    using T = typename D::Element;
    constexpr unsigned lanes = kLanes<T>;
    bool grouped = count >= lanes;
    if constexpr (!D::isList)
        grouped = grouped && mayWriteGroups<N>(d, 1, count) && isUntouched(a, N, N, d, 1, N, count) &&
                  mayReadAhead(b, 1, N, d, 1, count) && hasNoNullObject(b, 1, N, count) &&
                  hasNoNullObject(d, 1, N, count);
    if (!grouped)
        return forEachObject(count, one);

    Pack<T> factor[N][N];
    for (unsigned i = 0; i < N; ++i)
        for (unsigned j = 0; j <= i; ++j)
            factor[i][j] = broadcast(a.get(i, j, N));
    if constexpr (D::isList) {
        const ListGroups<D> groups(d, 1, N);
        const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
            // Once an object is done by itself for its overlap, the matrix may be another one than was
            // spread.
            grouped = grouped && !anyObjectNull(b, k) && !anyObjectNull(d, k) && groups.mayWrite(k) &&
                      groups.mayRead(a, N, k) && groups.mayRead(b, 1, k);
            if (grouped)
                choleskySolveGroupShared<N, T>(factor, groupAt(b, k), groupAt(d, k));
            return grouped;
        };
        return forEachGroup<lanes>(count, group, one);
    } else {
        const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
            choleskySolveGroupShared<N, T>(factor, groupAt(b, k), groupAt(d, k));
            return true;
        };
        return forEachGroup<lanes>(count, group, one);
    }
}

// ---- the exported rows. n and count are signed, and below zero nothing is done.

template <typename Size>
ZELM_INLINE bool isNegative(Size size) {
    return static_cast<std::int32_t>(size.value()) < 0;
}

template <typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus choleskySolveSingle(const A &a, const B &b, const D &d, Size size) {
    if (ZelmStatus status = checkSingle(size.isZero(), a, b, d); status != kProceed)
        return status;
    if (!isNegative(size))
        choleskySolveObject(a, b, d, size);
    return ZELM_OK;
}

template <typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus choleskySolveArray(const A &a, const B &b, const D &d, Size size, std::int32_t count) {
    if (ZelmStatus status = checkSingle(size.isZero() || count == 0, a, b, d); status != kProceed)
        return status;
    if (count < 0 || isNegative(size))
        return ZELM_OK;
    const std::uint32_t objects = static_cast<std::uint32_t>(count);
    // An object at null is passed over.
    const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
        const auto matrix = a.object(k);
        const auto right = b.object(k);
        const auto target = d.object(k);
        if (!matrix.isNull() && !right.isNull() && !target.isNull())
            choleskySolveObject(matrix, right, target, size);
        return ZELM_OK;
    };
    if constexpr (Size::fixed == 0)
        return forEachObject(objects, one);
    else if constexpr (kIsShared<A>)
        return choleskySolveShared<Size::fixed>(a, b, d, one, objects);
    else
        return choleskySolveOwn<Size::fixed>(a, b, d, one, objects);
}

} // namespace zelm::solvers
