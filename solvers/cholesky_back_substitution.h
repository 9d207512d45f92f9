// Solving A*x = b with the Cholesky factor of A: forward with L, backward with its transpose, no division.
#pragma once

#include "solvers/cholesky_kernels.h"
#include "solvers/systems.h"

namespace zelm::solvers {

// One system, as the definition has it: d is the only work space.
template <typename A, typename B, typename D>
ZELM_NOINLINE void choleskySolveThroughDst(const A &a, const B &b, const D &d, std::uint32_t n) {
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
ZELM_INLINE void choleskySolveInRegisters(const A &a, const B &b, const D &d) {
    using T = typename D::Element;
    T x[N];
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        T sum = b.get(i);
        ZELM_UNROLL
        for (unsigned k = 0; k < i; ++k)
            sum = sum - a.get(i, k, N) * x[k];
        x[i] = sum * a.get(i, i, N);
        d.set(i, x[i]);
    }
    ZELM_UNROLL
    for (unsigned back = 1; back <= N; ++back) {
        const unsigned i = N - back;
        T sum = x[i];
        ZELM_UNROLL
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
    choleskySolveThroughDst(aside(a), aside(b), aside(d), size.value());
}

// The same as a real function, which what arrays leave over shares.
template <unsigned N, typename A, typename B, typename D>
ZELM_NOINLINE void choleskySolveAlone(const A &a, const B &b, const D &d) {
    choleskySolveObject(a, b, d, FixedSize<N>());
}

// Systems by their Cholesky factors: see systems.h.
template <unsigned N>
struct CholeskySystems {
    static constexpr unsigned order = N;
    static constexpr bool heldInStages = kShortChainsInStages<N>, ownInStages = false;
    template <typename F>
    struct Factors {
        F a[N][N];
    };

    template <typename A, typename B, typename V>
    ZELM_INLINE bool loadGroup(const A &a, const B &b, std::uint32_t k, Factors<V> &factors,
                               V (&x)[N]) const {
        loadLower(a, k, factors.a);
        loadRight(b, k, x);
        return true;
    }

    template <typename A, typename F>
    ZELM_INLINE bool hold(const A &a, Factors<F> &factors) const {
        for (unsigned i = 0; i < N; ++i)
            for (unsigned j = 0; j <= i; ++j)
                factors.a[i][j] = spread<F>(a.get(i, j, N));
        return true;
    }

    template <typename B, typename V>
    ZELM_INLINE void loadRight(const B &b, std::uint32_t k, V (&x)[N]) const {
        readRow<N>(b, k, 0, x);
    }

    template <typename F, typename V>
    ZELM_INLINE void forward(const Factors<F> &factors, V (&x)[N]) const {
        choleskyForward(factors.a, x);
    }
    template <typename F, typename V>
    ZELM_INLINE void backward(const Factors<F> &factors, V (&x)[N]) const {
        choleskyBackward(factors.a, x);
    }
};

// The systems of an array. An object at null is passed over.
template <typename A, typename B, typename D, typename Size>
ZELM_NOINLINE ZelmStatus choleskySolveObjects(const A &a, const B &b, const D &d, Size size,
                                              std::uint32_t count) {
    const auto each = [&](auto solve) ZELM_INLINE_LAMBDA {
        return [&a, &b, &d, solve](std::uint32_t k) ZELM_INLINE_LAMBDA {
            const auto matrix = a.object(k);
            const auto right = b.object(k);
            const auto target = d.object(k);
            if (!matrix.isNull() && !right.isNull() && !target.isNull())
                solve(matrix, right, target);
            return ZELM_OK;
        };
    };
    if constexpr (Size::fixed != 0) {
        constexpr unsigned N = Size::fixed;
        const auto one =
            each([](const auto &...object) ZELM_INLINE_LAMBDA { choleskySolveAlone<N>(object...); });
        if constexpr (kSolvesAlone<N, A, D>) {
            if (resultIsDistinct<N>(d))
                return forEachObject(count, each([](const auto &...object) ZELM_INLINE_LAMBDA {
                                         choleskySolveInRegisters<N>(object...);
                                     }));
        } else if (hasNoNullObject(a, N, N, count) && hasNoNullObject(b, 1, N, count) &&
                   hasNoNullObject(d, 1, N, count)) {
            return solveSystems<kShortSystems<N, D>>(CholeskySystems<N>(), NoBuffer(), one, a, b,
                                                     InPlace::Yes, d, count);
        }
        return forEachObject(count, one);
    } else {
        return forEachObject(count, each([size](const auto &...object) ZELM_INLINE_LAMBDA {
                                 choleskySolveThroughDst(object..., size.value());
                             }));
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
    return withPlainest(
        [&](const auto &matrix, const auto &right, const auto &target) ZELM_INLINE_LAMBDA {
            return choleskySolveObjects(untested(matrix), untested(right), untested(target), size,
                                        static_cast<std::uint32_t>(count));
        },
        a, b, d);
}

} // namespace zelm::solvers
