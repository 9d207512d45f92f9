// Inverses: cofactor by cofactor (run-time size), in closed form (3x3, 4x4), by blocks of pivots (5x5, 6x6).
#pragma once

#include "solvers/determinant.h"
#include "solvers/inverse_kernels.h"
#include "solvers/inverse_rows.h"

namespace zelm::solvers {

// ---- run-time size

// The minor of element (i, j), into the upper left of the work space.
template <typename T, typename S>
ZELM_INLINE void copyMinor(const S &s, std::uint32_t i, std::uint32_t j, const WorkSpace<T> &space) {
    const std::uint32_t n = space.n;
    for (std::uint32_t r = 0, to = 0; r < n; ++r) {
        if (r == i)
            continue;
        for (std::uint32_t c = 0, toColumn = 0; c < n; ++c)
            if (c != j)
                copyElement<T>(space.element(to, toColumn++), s.address(r, c, n));
        ++to;
    }
}

template <typename T, typename S, typename D>
__attribute__((noinline)) ZelmStatus invertByElimination(const S &s, void *scratch, const D &d,
                                                         std::uint32_t n) {
    // In 64-bit float it is one and the same.
    constexpr MultiplierIn multiplier = sizeof(T) == 4 ? MultiplierIn::Element : MultiplierIn::Double;
    const WorkSpace<T> space(scratch, n);
    Elimination<T> elimination;

    // 1. The determinant of the whole matrix.
    copyToWorkSpace(s, space);
    eliminate<T, multiplier>(space, n, elimination);
    if (elimination.pivotFailed || elimination.lastFailed)
        return ZELM_ERR_DIV_BY_ZERO;
    const T r = T{1} / elimination.value;
    if (n == 1) {
        d.set(0, 0, n, r);
        return ZELM_OK;
    }
    // 2. All cofactors. One whose minor has a pivot that fails is a zero.
    for (std::uint32_t i = 0; i < n; ++i) {
        for (std::uint32_t j = 0; j < n; ++j) {
            copyMinor(s, i, j, space);
            eliminate<T, multiplier>(space, n - 1, elimination);
            d.set(j, i, n, (elimination.value * r) * ((i + j) % 2 == 0 ? T{1} : T{-1}));
        }
    }
    return ZELM_OK;
}

// ---- fixed size

// What a singular matrix leaves in d: where single pivots are taken, the working rows.
template <typename T, unsigned N, typename D>
ZELM_INLINE ZelmStatus storeSingular(Outcome outcome, const Pack<T> (&a)[N][N], const D &d) {
    if constexpr (D::isDense && sizeof(T) == 4 && N > 4) {
        // Row 0 was copied for a search only; without one its first element alone is stored.
        const unsigned inRow0 = outcome == Outcome::SingularAfterSearch ? N : 1;
        for (unsigned j = 0; j < inRow0; ++j)
            d.set(0, j, N, a[0][j][0]);
        if constexpr (N == 6)
            for (unsigned j = 0; j < N; ++j)
                d.set(1, j, N, a[1][j][0]);
    }
    return ZELM_ERR_DIV_BY_ZERO;
}

ZELM_INLINE ZelmStatus invertDenseRows(const Dense<const float> &s, const Dense<float> &d) {
    __m128 rows[4];
#pragma GCC unroll 4
    for (unsigned i = 0; i < 4; ++i)
        rows[i] = loadPack<float>(s.rowStart(i));
    if (!invertRows(rows))
        return ZELM_ERR_DIV_BY_ZERO;
#pragma GCC unroll 4
    for (unsigned i = 0; i < 4; ++i)
        storePack(d.rowStart(i), rows[i]);
    return ZELM_OK;
}

ZELM_INLINE ZelmStatus invertDenseRows(const Dense<const double> &s, const Dense<double> &d) {
    __m128d rows[4][2];
#pragma GCC unroll 4
    for (unsigned i = 0; i < 4; ++i) {
        rows[i][0] = loadPack<double>(s.rowStart(i));
        rows[i][1] = loadPack<double>(s.rowStart(i) + kPackBytes);
    }
    if (!invertRows(rows))
        return ZELM_ERR_DIV_BY_ZERO;
#pragma GCC unroll 4
    for (unsigned i = 0; i < 4; ++i) {
        storePack(d.rowStart(i), rows[i][0]);
        storePack(d.rowStart(i) + kPackBytes, rows[i][1]);
    }
    return ZELM_OK;
}

template <typename T, unsigned N, typename S, typename D>
__attribute__((noinline)) ZelmStatus invertByPacks(const S &s, const D &d) {
    Pack<T> a[N][N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            a[i][j] = broadcast(s.get(i, j, N));
    const Outcome outcome = invertAlone<D::isDense, T>(a);
    if (outcome != Outcome::Inverted)
        return storeSingular<T, N>(outcome, a, d);
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            d.set(i, j, N, a[i][j][0]);
    return ZELM_OK;
}

template <typename T, unsigned N, typename S, typename D>
ZELM_INLINE ZelmStatus invertObject(const S &s, const D &d) {
    if constexpr (D::isDense && N == 4)
        return invertDenseRows(s, d);
    else
        return invertByPacks<T, N>(s, d);
}

template <typename T, unsigned N, typename S, typename D>
ZELM_INLINE bool invertGroupOf(const Group<S> &s, const Group<D> &d) {
    Pack<T> a[N][N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        loadRow<N>(s, i, a[i]);
    if (!invertGroup<Group<D>::Object::isDense, T>(a))
        return false;
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        storeRow<N>(d, i, a[i]);
    return true;
}

// ---- the exported rows

template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus invertSingle(const S &s, void *scratch, const D &d, Size size) {
    using T = typename D::Element;
    const Address n = size.value();
    if constexpr (Size::fixed == 0) {
        if (ZelmStatus status = checkSingleWhole(size.isZero(), tested(s, n * n), tested(d, n * n),
                                                 tested(Pointer(scratch), 0));
            status != kProceed)
            return status;
        return invertByElimination<T>(s, scratch, d, size.value());
    } else {
        if (ZelmStatus status = checkSingleWhole(false, tested(s, n * n), tested(d, n * n));
            status != kProceed)
            return status;
        return invertObject<T, Size::fixed>(s, d);
    }
}

template <typename S, typename D, typename Size>
ZELM_INLINE ZelmStatus invertArray(const S &s, void *scratch, const D &d, Size size, std::uint32_t count) {
    using T = typename D::Element;
    const Address n = size.value();
    if constexpr (Size::fixed == 0) {
        if (ZelmStatus status = checkArray(size.isZero(), count, tested(s, n * n), tested(d, n * n),
                                           tested(Pointer(scratch), 0));
            status != kProceed)
            return status;
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            return invertByElimination<T>(s.object(k), scratch, d.object(k), size.value());
        };
        return forEachObject(count, one, s, d);
    } else {
        constexpr unsigned N = Size::fixed;
        if (ZelmStatus status = checkArray(false, count, tested(s, n * n), tested(d, n * n));
            status != kProceed)
            return status;
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            return invertObject<T, N>(s.object(k), d.object(k));
        };
        const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
            return invertGroupOf<T, N, S, D>(groupAt(s, k), groupAt(d, k));
        };
        return forEachMatrix<N, N>(count, group, one, s, d);
    }
}

} // namespace zelm::solvers
