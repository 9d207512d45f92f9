// Cholesky decomposition: A = L*L^T, with the reciprocals of L's diagonal on the diagonal of the result.
#pragma once

#include "solvers/cholesky_kernels.h"
#include "solvers/departures.h"
#include "solvers/matrix_groups.h"
#include "solvers/reciprocal_roots.h"

namespace zelm::solvers {

// The reciprocal root of a pivot: the tables compute it in the element type, the other layouts in 64-bit
// float.
template <typename D>
constexpr Root kCholeskyRoot = D::isTable || sizeof(typename D::Element) == 8 ? Root::InType : Root::Widened;

template <Root root, typename T>
ZELM_INLINE T choleskyReciprocal(T pivot) {
    return root == Root::Widened ? reciprocalRootWidened(pivot) : reciprocalRoot(pivot);
}

// One matrix, as the definition has it, whatever overlaps.
template <typename S, typename D>
ZELM_NOINLINE ZelmStatus choleskyThroughDst(const S &s, const D &d, std::uint32_t n) {
    using T = typename D::Element;
    for (std::uint32_t i = 0; i < n; ++i) {
        for (std::uint32_t j = 0; j < i; ++j) {
            T sum = s.get(i, j, n);
            for (std::uint32_t k = 0; k < j; ++k)
                sum = sum - d.get(i, k, n) * d.get(j, k, n);
            d.set(i, j, n, sum * d.get(j, j, n));
        }
        T pivot = s.get(i, i, n);
        for (std::uint32_t k = 0; k < i; ++k)
            pivot = pivot - d.get(i, k, n) * d.get(i, k, n);
        if (!(pivot > 0))
            return ZELM_ERR_NOT_POS_DEF;
        d.set(i, i, n, choleskyReciprocal<kCholeskyRoot<D>>(pivot));
    }
    return ZELM_OK;
}

// The same for a fixed size, where the elements of d are distinct: what was stored in d is read from
// registers.
template <unsigned N, typename S, typename D>
ZELM_INLINE ZelmStatus choleskyInRegisters(const S &s, const D &d) {
    using T = typename D::Element;
    T l[N][N];
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < i; ++j) {
            T sum = s.get(i, j, N);
            ZELM_UNROLL
            for (unsigned k = 0; k < j; ++k)
                sum = sum - l[i][k] * l[j][k];
            l[i][j] = sum * l[j][j];
            d.set(i, j, N, l[i][j]);
        }
        T pivot = s.get(i, i, N);
        ZELM_UNROLL
        for (unsigned k = 0; k < i; ++k)
            pivot = pivot - l[i][k] * l[i][k];
        if (!(pivot > 0))
            return ZELM_ERR_NOT_POS_DEF;
        l[i][i] = choleskyReciprocal<kCholeskyRoot<D>>(pivot);
        d.set(i, i, N, l[i][i]);
    }
    return ZELM_OK;
}

template <unsigned N, typename S, typename D>
ZELM_INLINE ZelmStatus choleskyOfOrder(const S &s, const D &d) {
    const auto source = departures::wholeSteps(s);
    const auto target = departures::wholeSteps(d);
    return matrixIsDistinct<N>(target) ? choleskyInRegisters<N>(source, target)
                                       : choleskyThroughDst(aside(source), aside(target), N);
}

// The same as a real function, which run-time sizes and what arrays leave over share.
template <unsigned N, typename S, typename D>
ZELM_NOINLINE ZelmStatus choleskyAlone(const S &s, const D &d) {
    return choleskyOfOrder<N>(s, d);
}

template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus choleskyObject(const S &s, const D &d, Size size) {
    if constexpr (Size::fixed != 0) {
        return choleskyAlone<Size::fixed>(s, d);
    } else {
        switch (size.value()) {
        case 3:
            return choleskyAlone<3>(s, d);
        case 4:
            return choleskyAlone<4>(s, d);
        case 5:
            return choleskyAlone<5>(s, d);
        case 6:
            return choleskyAlone<6>(s, d);
        default:
            return choleskyThroughDst(s, d, size.value());
        }
    }
}

// Groups of matrices from k on, up to one where a matrix is not positive definite.
template <typename V, unsigned N, typename S, typename D>
ZELM_NOINLINE std::uint32_t choleskyGroups(const S &s, const D &d, std::uint32_t k, std::uint32_t end) {
    return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
        V a[N][N];
        loadLower(s, group, a);
        if (!choleskyFactor<kCholeskyRoot<D>>(a))
            return false;
        storeLower(d, group, a);
        return true;
    });
}

// Object k of an array; one at null ends the call.
template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus choleskyObjectAt(const S &s, const D &d, Size size, std::uint32_t k) {
    const auto source = s.object(k);
    const auto target = d.object(k);
    if (source.isNull() || target.isNull())
        return ZELM_ERR_NULL_PTR;
    return choleskyObject(source, target, size);
}

// The matrices of an array, of a fixed size.
template <unsigned N, typename S, typename D>
ZELM_NOINLINE ZelmStatus choleskyObjects(const S &s, const D &d, std::uint32_t count) {
    const auto one = [&](std::uint32_t k)
                         ZELM_INLINE_LAMBDA { return choleskyObjectAt(s, d, FixedSize<N>(), k); };
    const auto group = [&](auto pack, std::uint32_t k, std::uint32_t end) ZELM_INLINE_LAMBDA {
        return choleskyGroups<typename decltype(pack)::Pack, N>(s, d, k, end);
    };
    if (hasNoNullObject(s, N, N, count) && hasNoNullObject(d, N, N, count))
        return forEachInGroups<kLongKernels>(count, NoBuffer(), inRuns<S, D>(count, group), one,
                                             writes(d, N, N), reads(s, N, N, InPlace::Yes));
    return forEachObject(count, one);
}

// ---- the exported rows

template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus choleskySingle(const S &s, const D &d, Size size) {
    if (ZelmStatus status = checkSingle(size.isZero(), s, d); status != kProceed)
        return status;
    if constexpr (Size::fixed != 0)
        return choleskyOfOrder<Size::fixed>(s, d);
    else
        return choleskyObject(s, d, size);
}

// `count` is signed in the layouts without a table per element; below zero nothing is done.
template <typename S, typename D, typename Size, typename Count>
ZELM_INLINE ZelmStatus choleskyArray(const S &s, const D &d, Size size, Count count) {
    if (ZelmStatus status = checkSingle(size.isZero() || count == 0, s, d); status != kProceed)
        return status;
    if constexpr (std::is_signed_v<Count>)
        if (count < 0)
            return ZELM_OK;
    const std::uint32_t objects = static_cast<std::uint32_t>(count);
    if constexpr (Size::fixed == 0) {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA { return choleskyObjectAt(s, d, size, k); };
        return forEachObject(objects, one);
    } else {
        return withPlainest(
            [&](const auto &source, const auto &target) ZELM_INLINE_LAMBDA {
                return choleskyObjects<Size::fixed>(untested(source), untested(target), objects);
            },
            departures::wholeSteps(s), departures::wholeSteps(d));
    }
}

} // namespace zelm::solvers
