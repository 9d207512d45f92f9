// Cholesky decomposition: A = L*L^T, with the reciprocals of L's diagonal on the diagonal of the result.
#pragma once

#include "solvers/cholesky_kernels.h"
#include "solvers/departures.h"
#include "solvers/groups.h"
#include "solvers/roots.h"

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
__attribute__((noinline)) ZelmStatus choleskyInPlace(const S &s, const D &d, std::uint32_t n) {
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
__attribute__((noinline)) ZelmStatus choleskyInRegisters(const S &s, const D &d) {
    using T = typename D::Element;
    T l[N][N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
#pragma GCC unroll 6
        for (unsigned j = 0; j < i; ++j) {
            T sum = s.get(i, j, N);
#pragma GCC unroll 6
            for (unsigned k = 0; k < j; ++k)
                sum = sum - l[i][k] * l[j][k];
            l[i][j] = sum * l[j][j];
            d.set(i, j, N, l[i][j]);
        }
        T pivot = s.get(i, i, N);
#pragma GCC unroll 6
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
                                       : choleskyInPlace(source, target, N);
}

template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus choleskyObject(const S &s, const D &d, Size size) {
    if constexpr (Size::fixed != 0) {
        return choleskyOfOrder<Size::fixed>(s, d);
    } else {
        switch (size.value()) {
        case 3:
            return choleskyOfOrder<3>(s, d);
        case 4:
            return choleskyOfOrder<4>(s, d);
        case 5:
            return choleskyOfOrder<5>(s, d);
        case 6:
            return choleskyOfOrder<6>(s, d);
        default:
            return choleskyInPlace(s, d, size.value());
        }
    }
}

// As many matrices as a pack has lanes. False, with nothing written, where one of them is not positive
// definite.
template <unsigned N, typename S, typename D>
__attribute__((noinline)) bool choleskyGroup(const Group<S> &s, const Group<D> &d) {
    using T = typename D::Element;
    Pack<T> a[N][N];
    loadLower<N>(s, a);
    if (!choleskyFactor<T, N, kCholeskyRoot<D>>(a))
        return false;
    storeLower<N>(d, a);
    return true;
}

// ---- the exported rows

template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus choleskySingle(const S &s, const D &d, Size size) {
    if (ZelmStatus status = checkSingle(size.isZero(), s, d); status != kProceed)
        return status;
    return choleskyObject(s, d, size);
}

// `count` is signed in the layouts without a table per element; below zero nothing is done.
template <typename S, typename D, typename Size, typename Count>
ZELM_INLINE ZelmStatus choleskyArray(const S &givenS, const D &givenD, Size size, Count count) {
    if (ZelmStatus status = checkSingle(size.isZero() || count == 0, givenS, givenD); status != kProceed)
        return status;
    if constexpr (std::is_signed_v<Count>)
        if (count < 0)
            return ZELM_OK;
    const std::uint32_t objects = static_cast<std::uint32_t>(count);
    const auto one = [&](const S &s, const D &d) __attribute__((always_inline)) {
        return [&s, &d, size](std::uint32_t k) {
            const auto source = s.object(k);
            const auto target = d.object(k);
            if (source.isNull() || target.isNull())
                return ZELM_ERR_NULL_PTR;
            return choleskyObject(source, target, size);
        };
    };
    if constexpr (Size::fixed == 0) {
        return forEachObject(objects, one(givenS, givenD));
    } else {
        constexpr unsigned N = Size::fixed;
        constexpr unsigned lanes = kLanes<typename D::Element>;
        const S s = departures::wholeSteps(givenS);
        const D d = departures::wholeSteps(givenD);
        if constexpr (D::isList) {
            const ListGroups<D> groups(d, N, N);
            const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                return !anyObjectNull(s, k) && !anyObjectNull(d, k) && groups.mayWrite(k) &&
                       groups.mayRead(s, N, k) && choleskyGroup<N>(groupAt(s, k), groupAt(d, k));
            };
            return forEachGroup<lanes>(objects, group, one(s, d));
        } else {
            if (!mayWriteGroups<N>(d, N, objects) || !mayReadAhead(s, N, N, d, N, objects) ||
                !hasNoNullObject(s, N, N, objects) || !hasNoNullObject(d, N, N, objects))
                return forEachObject(objects, one(s, d));
            const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                return choleskyGroup<N>(groupAt(s, k), groupAt(d, k));
            };
            return forEachGroup<lanes>(objects, group, one(s, d));
        }
    }
}

} // namespace zelm::solvers
