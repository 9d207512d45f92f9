// Solving A*x = b, or the least squares of a tall A, with what the QR decomposition stored.
#pragma once

#include "solvers/qr_decomposition.h"

namespace zelm::solvers {

// One system, as the definition has it: scratch holds what the reflectors make of b.
template <typename A, typename B, typename D, typename Shape>
__attribute__((noinline)) void qrSolveInPlace(const A &a, Address scratch, const B &b, const D &d,
                                              Shape shape) {
    using T = typename D::Element;
    const std::uint32_t rows = shape.rows(), columns = shape.columns(), r = reflectors(shape);
    const Dense<T> w(scratch, 0);
    for (std::uint32_t i = 0; i < rows; ++i)
        copyElement<T>(w.address(0, i, 0), b.address(0, i, 0));
    for (std::uint32_t k = 0; k < r; ++k) {
        T u = 1, t = w.get(k);
        for (std::uint32_t i = k + 1; i < rows; ++i) {
            const T element = a.get(i, k, columns);
            t = t + w.get(i) * element;
            u = u + element * element;
        }
        t = t * (-2 / u);
        w.set(k, w.get(k) + t);
        for (std::uint32_t i = k + 1; i < rows; ++i)
            w.set(i, w.get(i) + a.get(i, k, columns) * t);
    }
    const std::uint32_t last = columns - 1;
    d.set(last, w.get(last) / a.get(last, last, columns));
    for (std::uint32_t i = last; i-- > 0;) {
        T sum = 0;
        for (std::uint32_t j = i + 1; j < columns; ++j)
            sum = sum + a.get(i, j, columns) * d.get(j);
        d.set(i, (w.get(i) - sum) / a.get(i, i, columns));
    }
}

// One system of a fixed size in local copies, where the elements of d are distinct.
template <unsigned N, typename A, typename B, typename D>
__attribute__((noinline)) void qrSolveInCopy(const A &a, Address scratch, const B &b, const D &d) {
    using T = typename D::Element;
    T factors[N][N], scale[N], w[N], x[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        w[i] = b.get(i);
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            factors[i][j] = a.get(i, j, N);
    }
    qrScales(factors, scale);
    qrSolve(factors, scale, w, x);
    storeScratch(scratch, w);
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        d.set(i, x[i]);
}

template <typename A, typename B, typename D, typename Shape>
ZELM_INLINE void qrSolveObject(const A &a, Address scratch, const B &b, const D &d, Shape shape) {
    if constexpr (Shape::isFixed)
        if (resultIsDistinct<Shape::rows()>(d))
            return qrSolveInCopy<Shape::rows()>(a, scratch, b, d);
    qrSolveInPlace(a, scratch, b, d, RunTimeShape{shape.rows(), shape.columns()});
}

// As many systems as a pack has lanes, with the factors and their scales in packs.
template <unsigned N, typename T, typename B, typename D>
__attribute__((noinline)) void qrSolveGroupShared(const Pack<T> (&factors)[N][N], const Pack<T> (&scale)[N],
                                                  Address scratch, const Group<B> &b, const Group<D> &d) {
    Pack<T> w[N], x[N];
    loadRow<N>(b, 0, w);
    qrSolve(factors, scale, w, x);
    storeScratchOfGroup<T, N>(scratch, w);
    storeRow<N>(d, 0, x);
}

// The same with a matrix for each system.
template <unsigned N, typename A, typename B, typename D>
__attribute__((noinline)) void qrSolveGroup(const Group<A> &a, Address scratch, const Group<B> &b,
                                            const Group<D> &d) {
    using T = typename D::Element;
    Pack<T> factors[N][N], scale[N], w[N], x[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        loadRow<N>(a, i, factors[i]);
    loadRow<N>(b, 0, w);
    qrScales(factors, scale);
    qrSolve(factors, scale, w, x);
    storeScratchOfGroup<T, N>(scratch, w);
    storeRow<N>(d, 0, x);
}

// Whether groups may be solved, asked once for an array that is no list.
template <unsigned N, typename A, typename B, typename D>
ZELM_INLINE bool qrSolveInGroups(const A &a, const void *scratch, const B &b, const D &d,
                                 std::uint32_t count) {
    constexpr std::int64_t bytes = N * sizeof(typename D::Element);
    return mayWriteGroups<N>(d, 1, count) && isUntouched(a, N, N, d, 1, N, count) &&
           mayReadAhead(b, 1, N, d, 1, count) && missesBuffer(a, N, N, count, scratch, bytes) &&
           missesBuffer(b, 1, N, count, scratch, bytes) && missesBuffer(d, 1, N, count, scratch, bytes);
}

template <unsigned N, typename A, typename B, typename D>
ZELM_INLINE bool qrSolveFits(const ListGroups<D> &groups, const A &a, const void *scratch, const B &b,
                             std::uint32_t k) {
    return groups.mayWrite(k) && groups.mayRead(a, N, k) && groups.mayRead(b, 1, k) &&
           groups.miss(scratch, N * sizeof(typename D::Element), k);
}

// A matrix for each system.
template <unsigned N, typename A, typename B, typename D, typename One>
ZELM_INLINE ZelmStatus qrSolveOwn(const A &a, const void *scratch, const B &b, const D &d, One one,
                                  std::uint32_t count) {
    constexpr unsigned lanes = kLanes<typename D::Element>;
    if constexpr (!D::isList)
        if (!qrSolveInGroups<N>(a, scratch, b, d, count))
            return forEachObject(count, one, a, b, d);
    const auto solve = [&](std::uint32_t k) {
        qrSolveGroup<N>(groupAt(a, k), addressOf(scratch), groupAt(b, k), groupAt(d, k));
        return true;
    };
    if constexpr (D::isList) {
        const ListGroups<D> groups(d, 1, N);
        const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
            return qrSolveFits<N>(groups, a, scratch, b, k) && solve(k);
        };
        return forEachGroup<lanes>(count, group, one, a, b, d);
    } else {
        return forEachGroup<lanes>(count, solve, one, a, b, d);
    }
}

// One matrix for all systems: its elements are spread over all lanes once.
template <unsigned N, typename A, typename B, typename D, typename One>
ZELM_INLINE ZelmStatus qrSolveShared(const A &a, const void *scratch, const B &b, const D &d, One one,
                                     std::uint32_t count) {
    using T = typename D::Element;
    constexpr unsigned lanes = kLanes<T>;
    bool grouped = count >= lanes;
    if constexpr (!D::isList)
        grouped = grouped && qrSolveInGroups<N>(a, scratch, b, d, count);
    if (!grouped)
        return forEachObject(count, one, a, b, d);

    Pack<T> factors[N][N], scale[N];
    for (unsigned i = 0; i < N; ++i)
        for (unsigned j = 0; j < N; ++j)
            factors[i][j] = broadcast(a.get(i, j, N));
    qrScales(factors, scale);
    const auto solve = [&](std::uint32_t k) {
        qrSolveGroupShared<N, T>(factors, scale, addressOf(scratch), groupAt(b, k), groupAt(d, k));
        return true;
    };
    if constexpr (D::isList) {
        const ListGroups<D> groups(d, 1, N);
        const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
            // Once an object is done by itself for its overlap, the matrix may be another one than was
            // spread.
            grouped = grouped && qrSolveFits<N>(groups, a, scratch, b, k);
            return grouped && solve(k);
        };
        return forEachGroup<lanes>(count, group, one, a, b, d);
    } else {
        return forEachGroup<lanes>(count, solve, one, a, b, d);
    }
}

// ---- the exported rows

template <typename A, typename T, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus qrSolveSingle(const A &a, T *scratch, const B &b, const D &d, Shape shape) {
    if (ZelmStatus status =
            checkSingleWhole(shape.isZero(), tested(a, shape.elements()), tested(Pointer(scratch), 0),
                             tested(b, shape.columns()), tested(d, shape.columns()));
        status != kProceed)
        return status;
    qrSolveObject(a, addressOf(scratch), b, d, shape);
    return ZELM_OK;
}

template <typename A, typename T, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus qrSolveArray(const A &a, T *scratch, const B &b, const D &d, Shape shape,
                                    std::uint32_t count) {
    if (ZelmStatus status =
            checkArray(shape.isZero(), count, tested(a, shape.elements()), tested(Pointer(scratch), 0),
                       tested(b, shape.columns()), tested(d, shape.columns()));
        status != kProceed)
        return status;
    const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
        qrSolveObject(a.object(k), addressOf(scratch), b.object(k), d.object(k), shape);
        return ZELM_OK;
    };
    if constexpr (!Shape::isFixed)
        return forEachObject(count, one, a, b, d);
    else if constexpr (kIsShared<A>)
        return qrSolveShared<Shape::rows()>(a, scratch, b, d, one, count);
    else
        return qrSolveOwn<Shape::rows()>(a, scratch, b, d, one, count);
}

} // namespace zelm::solvers
