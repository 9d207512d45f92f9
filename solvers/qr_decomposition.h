// QR decomposition by Householder reflections; Q is kept as the vectors of its reflectors.
#pragma once

#include "frame/shapes.h"
#include "solvers/groups.h"
#include "solvers/qr_kernels.h"
#include "solvers/roots.h"

namespace zelm::solvers {

// The number of reflectors: the last column of a square matrix has none.
template <typename Shape>
ZELM_INLINE std::uint32_t reflectors(Shape shape) {
    return shape.rows() == shape.columns() ? shape.columns() - 1 : shape.columns();
}

// One matrix, factored in d as the definition has it, whatever overlaps.
template <typename S, typename D, typename Shape>
__attribute__((noinline)) ZelmStatus qrInPlace(const S &s, Address scratch, const D &d, Shape shape) {
    using T = typename D::Element;
    const std::uint32_t rows = shape.rows(), columns = shape.columns(), r = reflectors(shape);
    const Dense<T> v(scratch, 0);
    for (std::uint32_t i = 0; i < rows; ++i)
        for (std::uint32_t j = 0; j < columns; ++j)
            copyElement<T>(d.address(i, j, columns), s.address(i, j, columns));

    for (std::uint32_t k = 0; k < r; ++k) {
        T q = 0;
        for (std::uint32_t i = k; i < rows; ++i) {
            const T element = d.get(i, k, columns);
            q = q + element * element;
        }
        if (!(q >= static_cast<T>(kQrThreshold)))
            return ZELM_ERR_DIV_BY_ZERO;
        const T a = d.get(k, k, columns);
        const T root = squareRoot(q);
        const T norm = a > 0 ? root : 0 - root;
        v.set(k, 1);
        const T c = 1 / (a + norm);
        T u = 1;
        for (std::uint32_t i = k + 1; i < rows; ++i) {
            const T element = d.get(i, k, columns) * c;
            v.set(i, element);
            u = u + element * element;
        }
        const T b = -2 / u;
        for (std::uint32_t j = k; j < columns; ++j) {
            T t = d.get(k, j, columns);
            for (std::uint32_t i = k + 1; i < rows; ++i)
                t = t + d.get(i, j, columns) * v.get(i);
            t = t * b;
            for (std::uint32_t i = k; i < rows; ++i)
                d.set(i, j, columns, d.get(i, j, columns) + v.get(i) * t);
        }
        for (std::uint32_t i = k + 1; i < rows; ++i)
            d.set(i, k, columns, v.get(i));
    }
    return ZELM_OK;
}

// What the reflectors leave in scratch: element i of the last one, a leading 1 for each column behind.
template <unsigned N, typename T>
ZELM_INLINE void storeScratch(Address scratch, const T (&v)[N]) {
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        store(scratch + i * sizeof(T), v[i]);
}

// The same as the last object of a group leaves it.
template <typename T, unsigned N>
ZELM_INLINE void storeScratchOfGroup(Address scratch, const Pack<T> (&v)[N]) {
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        copyElement<T>(scratch + i * sizeof(T), addressOf(&v[i]) + kPackBytes - sizeof(T));
}

// One matrix of a fixed size in a local copy, where the elements of d are distinct.
template <unsigned N, typename S, typename D>
__attribute__((noinline)) ZelmStatus qrInCopy(const S &s, Address scratch, const D &d) {
    using T = typename D::Element;
    T a[N][N], v[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            a[i][j] = s.get(i, j, N);
    const unsigned made = qrFactor<T, N>(a, v);
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            d.set(i, j, N, a[i][j]);
    if (made != 0)
        storeScratch(scratch, v);
    return made == N - 1 ? ZELM_OK : ZELM_ERR_DIV_BY_ZERO;
}

template <typename S, typename D, typename Shape>
ZELM_INLINE ZelmStatus qrObject(const S &s, Address scratch, const D &d, Shape shape) {
    if constexpr (Shape::isFixed)
        if (matrixIsDistinct<Shape::rows()>(d))
            return qrInCopy<Shape::rows()>(s, scratch, d);
    return qrInPlace(s, scratch, d, RunTimeShape{shape.rows(), shape.columns()});
}

// As many matrices as a pack has lanes. False, with nothing written, where a column of one of them fails.
template <unsigned N, typename S, typename D>
__attribute__((noinline)) bool qrGroup(const Group<S> &s, Address scratch, const Group<D> &d) {
    using T = typename D::Element;
    Pack<T> a[N][N], v[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        loadRow<N>(s, i, a[i]);
    if (!qrFactorGroup<T, N>(a, v))
        return false;
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        storeRow<N>(d, i, a[i]);
    storeScratchOfGroup<T, N>(scratch, v);
    return true;
}

// ---- the exported rows

template <typename S, typename T, typename D, typename Shape>
ZELM_INLINE ZelmStatus qrSingle(const S &s, T *scratch, const D &d, Shape shape) {
    if (ZelmStatus status = checkSingleWhole(shape.isZero(), tested(s, shape.elements()),
                                             tested(d, shape.elements()), tested(Pointer(scratch), 0));
        status != kProceed)
        return status;
    return qrObject(s, addressOf(scratch), d, shape);
}

template <typename S, typename T, typename D, typename Shape>
ZELM_INLINE ZelmStatus qrArray(const S &s, T *scratch, const D &d, Shape shape, std::uint32_t count) {
    if (ZelmStatus status = checkArray(shape.isZero(), count, tested(s, shape.elements()),
                                       tested(d, shape.elements()), tested(Pointer(scratch), 0));
        status != kProceed)
        return status;
    const Address buffer = addressOf(scratch);
    const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
        return qrObject(s.object(k), buffer, d.object(k), shape);
    };
    if constexpr (!Shape::isFixed) {
        return forEachObject(count, one, s, d);
    } else {
        constexpr unsigned N = Shape::rows(), lanes = kLanes<T>;
        if constexpr (D::isList) {
            const ListGroups<D> groups(d, N, N);
            const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                return groups.mayWrite(k) && groups.mayRead(s, N, k) &&
                       groups.miss(scratch, N * sizeof(T), k) &&
                       qrGroup<N>(groupAt(s, k), buffer, groupAt(d, k));
            };
            return forEachGroup<lanes>(count, group, one, s, d);
        } else {
            if (!mayWriteGroups<N>(d, N, count) || !mayReadAhead(s, N, N, d, N, count) ||
                !missesBuffer(s, N, N, count, scratch, N * sizeof(T)) ||
                !missesBuffer(d, N, N, count, scratch, N * sizeof(T)))
                return forEachObject(count, one, s, d);
            const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                return qrGroup<N>(groupAt(s, k), buffer, groupAt(d, k));
            };
            return forEachGroup<lanes>(count, group, one, s, d);
        }
    }
}

} // namespace zelm::solvers
