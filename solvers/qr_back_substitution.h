// Solving A*x = b, or the least squares of a tall A, with what the QR decomposition stored.
#pragma once

#include "solvers/qr_decomposition.h"
#include "solvers/systems.h"

namespace zelm::solvers {

// One system, as the definition has it: scratch holds what the reflectors make of b.
template <typename A, typename B, typename D, typename Shape>
ZELM_NOINLINE void qrSolveThroughScratch(const A &a, Address scratch, const B &b, const D &d, Shape shape) {
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

// One system of a fixed size in local copies, where the elements of d are distinct. It needs no scratch,
// whose contents are open afterwards.
template <unsigned N, typename A, typename B, typename D>
ZELM_INLINE void qrSolveInCopy(const A &a, const B &b, const D &d) {
    using T = typename D::Element;
    T factors[N][N], scale[N], x[N];
    readMatrix(a, factors);
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        x[i] = b.get(i);
    qrScales(factors, scale);
    qrForward(factors, scale, x);
    qrBackward(factors, x);
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        d.set(i, x[i]);
}

template <typename A, typename B, typename D, typename Shape>
ZELM_INLINE void qrSolveObject(const A &a, Address scratch, const B &b, const D &d, Shape shape) {
    if constexpr (Shape::isFixed)
        if (resultIsDistinct<Shape::rows()>(d))
            return qrSolveInCopy<Shape::rows()>(a, b, d);
    qrSolveThroughScratch(aside(a), scratch, aside(b), aside(d), RunTimeShape{shape.rows(), shape.columns()});
}

// The same as a real function, which what arrays leave over shares.
template <typename A, typename B, typename D, typename Shape>
ZELM_NOINLINE void qrSolveAlone(const A &a, Address scratch, const B &b, const D &d, Shape shape) {
    qrSolveObject(a, scratch, b, d, shape);
}

// Systems by their QR factors: see systems.h.
template <unsigned N>
struct QrSystems {
    static constexpr unsigned order = N;
    static constexpr bool heldInStages = true, ownInStages = true;
    template <typename F>
    struct Factors {
        F a[N][N], scale[N];
    };

    template <typename A, typename B, typename V>
    ZELM_INLINE bool loadGroup(const A &a, const B &b, std::uint32_t k, Factors<V> &factors,
                               V (&x)[N]) const {
        loadMatrix(a, k, factors.a);
        qrScales(factors.a, factors.scale);
        loadRight(b, k, x);
        return true;
    }

    template <typename A, typename F>
    ZELM_NOINLINE bool hold(const A &a, Factors<F> &factors) const {
        for (unsigned i = 0; i < N; ++i)
            for (unsigned j = 0; j < N; ++j)
                factors.a[i][j] = spread<F>(a.get(i, j, N));
        qrScales(factors.a, factors.scale);
        return true;
    }

    template <typename B, typename V>
    ZELM_INLINE void loadRight(const B &b, std::uint32_t k, V (&x)[N]) const {
        readRow<N>(b, k, 0, x);
    }

    template <typename F, typename V>
    ZELM_INLINE void forward(const Factors<F> &factors, V (&x)[N]) const {
        qrForward(factors.a, factors.scale, x);
    }
    template <typename F, typename V>
    ZELM_INLINE void backward(const Factors<F> &factors, V (&x)[N]) const {
        qrBackward(factors.a, x);
    }
};

// The systems of an array, of a fixed size.
template <unsigned N, typename A, typename B, typename D>
ZELM_NOINLINE ZelmStatus qrSolveObjects(const A &a, void *scratch, const B &b, const D &d,
                                        std::uint32_t count) {
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        qrSolveAlone(a.object(k), addressOf(scratch), b.object(k), d.object(k), FixedShape<N, N>());
        return ZELM_OK;
    };
    // Rows of adjacent elements take less gathering.
    constexpr bool isEasilyGathered = kHasDenseObjects<D> && !kHasFewRegisters;
    if constexpr (kIsArray<A> && kSolvesAlone<N + isEasilyGathered, A, D>)
        if (resultIsDistinct<N>(d))
            return forEachObject(
                count,
                [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
                    qrSolveInCopy<N>(a.object(k), b.object(k), d.object(k));
                    return ZELM_OK;
                },
                a, b, d);
    return solveSystems<kLongKernels>(QrSystems<N>(), NoBuffer(), one, a, b, InPlace::Yes, d, count);
}

// ---- the exported rows

template <typename A, typename T, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus qrSolveSingle(const A &a, T *scratch, const B &b, const D &d, Shape shape) {
    constexpr unsigned N = Shape::columnsIfFixed;
    if (ZelmStatus status =
            checkAlone(shape.isZero(), testedAlone<N * N>(a, shape.elements()), tested(Pointer(scratch), 0),
                       testedAlone<N>(b, shape.columns()), testedAlone<N>(d, shape.columns()));
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
    if constexpr (Shape::isFixed) {
        return withPlainest(
            [&](const auto &matrix, const auto &right, const auto &target) ZELM_INLINE_LAMBDA {
                return qrSolveObjects<Shape::rows()>(matrix, scratch, right, target, count);
            },
            a, b, d);
    } else {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            qrSolveObject(a.object(k), addressOf(scratch), b.object(k), d.object(k), shape);
            return ZELM_OK;
        };
        return forEachObject(count, one, a, b, d);
    }
}

} // namespace zelm::solvers
