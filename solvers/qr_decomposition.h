// QR decomposition by Householder reflections; Q is kept as the vectors of its reflectors.
#pragma once

#include "solvers/matrix_groups.h"
#include "solvers/qr_kernels.h"
#include "solvers/tested_matrix.h"

namespace zelm::solvers {

// The number of reflectors: the last column of a square matrix has none.
template <typename Shape>
ZELM_INLINE std::uint32_t reflectors(Shape shape) {
    return shape.rows() == shape.columns() ? shape.columns() - 1 : shape.columns();
}

// The reflector of column k, whose sum of squares is q, made in v and applied to d.
template <typename T, typename D>
ZELM_INLINE void reflectThroughDst(const D &d, const Dense<T> &v, std::uint32_t k, T q, std::uint32_t rows,
                                   std::uint32_t columns) {
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

// One matrix, factored in d as the definition has it, whatever overlaps.
template <typename S, typename D, typename Shape>
ZELM_NOINLINE ZelmStatus qrThroughDst(const S &s, Address scratch, const D &d, Shape shape) {
    using T = typename D::Element;
    const std::uint32_t rows = shape.rows(), columns = shape.columns(), r = reflectors(shape);
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
        reflectThroughDst(d, Dense<T>(scratch, 0), k, q, rows, columns);
    }
    return ZELM_OK;
}

// What is in scratch after the first `made` reflectors of d: the vector of the last behind the ones that
// those before it begin with. The kernels have no use for scratch.
template <unsigned N, typename D>
ZELM_INLINE void leaveReflector(const D &d, Address scratch, unsigned made) {
    using T = typename D::Element;
    if (made == 0)
        return;
    for (unsigned i = 0; i < made; ++i)
        store(scratch + i * sizeof(T), T{1});
    for (unsigned i = made; i < N; ++i)
        copyElement<T>(scratch + i * sizeof(T), d.address(i, made - 1, N));
}

// One matrix of a fixed size in a local copy, where the elements of d are distinct.
template <unsigned N, typename S, typename D>
ZELM_INLINE ZelmStatus qrInCopy(const S &s, Address scratch, const D &d) {
    using T = typename D::Element;
    T a[N][N];
    readMatrix(s, a);
    unsigned made;
    if constexpr (N <= 4)
        made = qrFactorInRegisters(a);
    else
        made = qrFactor(a);
    writeMatrix(d, a);
    if (made == N - 1) {
        leaveReflector<N>(d, scratch, N - 1);
        return ZELM_OK;
    }
    leaveReflector<N>(d, scratch, made);
    return ZELM_ERR_DIV_BY_ZERO;
}

template <typename S, typename D, typename Shape>
ZELM_INLINE ZelmStatus qrObject(const S &s, Address scratch, const D &d, Shape shape) {
    if constexpr (Shape::isFixed)
        if (matrixIsDistinct<Shape::rows()>(d))
            return qrInCopy<Shape::rows()>(s, scratch, d);
    return qrThroughDst(aside(s), scratch, aside(d), RunTimeShape{shape.rows(), shape.columns()});
}

// The same as a real function, which what arrays leave over shares.
template <typename S, typename D, typename Shape>
ZELM_NOINLINE ZelmStatus qrAlone(const S &s, Address scratch, const D &d, Shape shape) {
    return qrObject(s, scratch, d, shape);
}

// A few groups, column by column from K on, up to the first group where a column fails. The number of groups
// made.
template <unsigned K, typename V, unsigned N, unsigned most, typename S, typename D>
ZELM_INLINE unsigned qrStages(const S &s, const D &d, std::uint32_t k, V (&kept)[most][N][N],
                              unsigned groups) {
    for (unsigned g = 0; g < groups; ++g) {
        if constexpr (K > 0 && K < N - 2) {
            if (!reflectTested(kept[g], K))
                groups = g;
        } else {
            V a[N][N];
            if constexpr (K == 0)
                loadMatrix(s, k + g * kLanesOf<V>, a);
            else
                copyMatrix(kept[g], a);
            if (!reflectTested(a, K))
                groups = g;
            else if constexpr (K == N - 2)
                storeMatrix(d, k + g * kLanesOf<V>, a);
            else
                copyMatrix(a, kept[g]);
        }
    }
    if constexpr (K < N - 2)
        return qrStages<K + 1>(s, d, k, kept, groups);
    else
        return groups;
}

// Groups of matrices from k on, up to one where a column of a matrix fails.
template <typename V, unsigned N, typename S, typename D>
ZELM_NOINLINE std::uint32_t qrGroups(const S &s, const D &d, std::uint32_t k, std::uint32_t end) {
    if constexpr (S::isSideBySide && D::isSideBySide) {
        constexpr unsigned most = N <= 4 ? 8 : 4; // not too much of the stack
        V kept[most][N][N];
        return groupsInStages<V, most>(k, end, [&](std::uint32_t first, unsigned groups) ZELM_INLINE_LAMBDA {
            return qrStages<0>(s, d, first, kept, groups);
        });
    } else {
        return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
            V a[N][N];
            loadMatrix(s, group, a);
            bool isMade;
            if constexpr (N <= (kWidestBytes == 64 ? 4 : 3))
                isMade = qrFactorHere(a);
            else
                isMade = qrFactorGroup(a);
            if (isMade)
                storeMatrix(d, group, a);
            return isMade;
        });
    }
}

// The matrices of an array, of a fixed size.
template <unsigned N, typename S, typename D>
ZELM_NOINLINE ZelmStatus qrObjects(const S &s, void *scratch, const D &d, std::uint32_t count) {
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        return qrAlone(s.object(k), addressOf(scratch), d.object(k), FixedShape<N, N>());
    };
    const auto group = [&](auto pack, std::uint32_t k, std::uint32_t end) ZELM_INLINE_LAMBDA {
        const std::uint32_t next = qrGroups<typename decltype(pack)::Pack, N>(s, d, k, end);
        if (next != k)
            leaveReflector<N>(d.object(next - 1), addressOf(scratch), N - 1);
        return next;
    };
    return forEachInGroups<kLongKernels>(count, writesForAll(scratch, N * sizeof(typename D::Element)),
                                         inRuns<S, D>(count, group), one, writes(d, N, N),
                                         reads(s, N, N, InPlace::Yes));
}

// ---- the exported rows

template <typename S, typename T, typename D, typename Shape>
ZELM_INLINE ZelmStatus qrSingle(const S &s, T *scratch, const D &d, Shape shape) {
    constexpr unsigned entries = Shape::columnsIfFixed * Shape::columnsIfFixed;
    if (ZelmStatus status =
            checkAlone(shape.isZero(), testedAlone<entries>(s, shape.elements()),
                       testedAlone<entries>(d, shape.elements()), tested(Pointer(scratch), 0));
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
    if constexpr (Shape::isFixed) {
        return withPlainest(
            [&](const auto &source, const auto &target)
                ZELM_INLINE_LAMBDA { return qrObjects<Shape::rows()>(source, scratch, target, count); },
            s, d);
    } else {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            return qrObject(s.object(k), addressOf(scratch), d.object(k), shape);
        };
        return forEachObject(count, one, s, d);
    }
}

} // namespace zelm::solvers
