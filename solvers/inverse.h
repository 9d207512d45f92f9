// Inverses: cofactor by cofactor (run-time size), in closed form (3x3, 4x4), by blocks of pivots (5x5, 6x6).
#pragma once

#include "solvers/determinant.h"
#include "solvers/inverse_kernels.h"
#include "solvers/inverse_rows.h"
#include "solvers/tested_matrix.h"

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
ZELM_NOINLINE ZelmStatus invertByElimination(const S &s, void *scratch, const D &d, std::uint32_t n) {
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
template <bool dense, typename T, unsigned N, typename D>
ZELM_INLINE ZelmStatus storeSingular(Outcome outcome, const T (&a)[N][N], const D &d) {
    if constexpr (inverseRule(dense, sizeof(T) == 4, N).way == Way::Pivots) {
        // Row 0 was copied for a search only; without one its first element alone is stored.
        const unsigned inRow0 = outcome == Outcome::SingularAfterSearch ? N : 1;
        for (unsigned j = 0; j < inRow0; ++j)
            d.set(0, j, N, a[0][j]);
        if constexpr (N == 6)
            for (unsigned j = 0; j < N; ++j)
                d.set(1, j, N, a[1][j]);
    }
    return ZELM_ERR_DIV_BY_ZERO;
}

ZELM_INLINE ZelmStatus invertRowsOfThree(const Dense<const float> &s, const Dense<float> &d) {
    constexpr Address third = 2 * sizeof(float);
    Floats4 rows[3];
    ZELM_UNROLL
    for (unsigned i = 0; i < 3; ++i) {
        const Address row = s.rowStart(i);
        rows[i] = _mm_movelh_ps(loadTwo(row), inFirstLane(load<float>(row + third)));
    }
    if (!invertRows(rows))
        return ZELM_ERR_DIV_BY_ZERO;
    ZELM_UNROLL
    for (unsigned i = 0; i < 3; ++i) {
        const Address row = d.rowStart(i);
        _mm_storel_pi(reinterpret_cast<__m64 *>(row), rows[i]);
        store(row + third, rows[i][2]);
    }
    return ZELM_OK;
}

ZELM_INLINE ZelmStatus invertDenseRows(const Dense<const float> &s, const Dense<float> &d) {
    Floats4 rows[4];
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i)
        rows[i] = loadPack<float>(s.rowStart(i));
    if (!invertRows(rows))
        return ZELM_ERR_DIV_BY_ZERO;
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i)
        storePack(d.rowStart(i), rows[i]);
    return ZELM_OK;
}

ZELM_INLINE ZelmStatus invertDenseRows(const Dense<const double> &s, const Dense<double> &d) {
    Doubles2 rows[4][2];
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i) {
        rows[i][0] = loadPack<double>(s.rowStart(i));
        rows[i][1] = loadPack<double>(s.rowStart(i) + kBlockBytes);
    }
    if (!invertRows(rows))
        return ZELM_ERR_DIV_BY_ZERO;
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i) {
        storePack(d.rowStart(i), rows[i][0]);
        storePack(d.rowStart(i) + kBlockBytes, rows[i][1]);
    }
    return ZELM_OK;
}

// Closed inverses are short enough to stand where they are called, and to need less memory so.
template <bool dense, unsigned N, typename T, typename D>
ZELM_INLINE ZelmStatus invertInRegisters(const T (&a)[N][N], const D &d) {
    T inverse[N][N];
    if (anyLane(invertClosed<dense, inverseRule(dense, kIs32<T>, N).singular>(a, inverse)))
        return ZELM_ERR_DIV_BY_ZERO;
    writeMatrix(d, inverse);
    return ZELM_OK;
}

template <bool dense, unsigned N, typename S, typename D>
ZELM_INLINE ZelmStatus invertInCopy(const S &s, const D &d) {
    typename D::Element a[N][N];
    readMatrix(s, a);
    const Outcome outcome = invertAlone<dense>(a);
    if (outcome != Outcome::Inverted)
        return storeSingular<dense>(outcome, a, d);
    writeMatrix(d, a);
    return ZELM_OK;
}

// `dense` is the rule of the standard and L forms: a form keeps its rule where it is given rows without gaps.
template <bool dense, unsigned N, typename S, typename D>
ZELM_INLINE ZelmStatus invertObject(const S &s, const D &d) {
    if constexpr (dense && N == 4) {
        return invertDenseRows(s, d);
    } else if constexpr (dense && N == 3 && kIs32<typename D::Element>) {
        return invertRowsOfThree(s, d);
    } else if constexpr (N <= 4) {
        typename D::Element a[N][N];
        readMatrix(s, a);
        return invertInRegisters<dense>(a, d);
    } else {
        return invertInCopy<dense, N>(s, d);
    }
}

// The same as a real function, which what arrays leave over shares.
template <bool dense, unsigned N, typename S, typename D>
ZELM_NOINLINE ZelmStatus invertObjectAlone(const S &s, const D &d) {
    return invertObject<dense, N>(s, d);
}

// Groups of matrices from k on, up to one where a matrix must be inverted alone.
template <typename V, bool dense, unsigned N, typename S, typename D>
ZELM_NOINLINE std::uint32_t invertGroups(const S &s, const D &d, std::uint32_t k, std::uint32_t end) {
    constexpr InverseRule rule = inverseRule(dense, kIs32<V>, N);
    return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
        V a[N][N];
        loadMatrix(s, group, a);
        if constexpr (rule.way == Way::Closed) {
            if (anyLane(invertClosed<dense, rule.singular>(a, a)))
                return false;
        } else {
            if (!invertGroup<dense>(a))
                return false;
        }
        storeMatrix(d, group, a);
        return true;
    });
}

// The matrices of an array.
template <bool dense, unsigned N, typename S, typename D>
ZELM_NOINLINE ZelmStatus invertObjects(const S &s, const D &d, std::uint32_t count) {
    constexpr bool areListsOfTwo = S::isList && !kIs32<typename D::Element> && kWidestBytes == kBlockBytes;
    if constexpr (N == 3 && (areListsOfTwo || !kGainsByGroups<S>)) {
        const auto one = [&](std::uint32_t k)
                             ZELM_INLINE_LAMBDA { return invertObject<dense, N>(s.object(k), d.object(k)); };
        return forEachObject(count, one, s, d); // 0.73 to 0.98 of the time of groups, which gather
    }
    const auto one = [&](std::uint32_t k)
                         ZELM_INLINE_LAMBDA { return invertObjectAlone<dense, N>(s.object(k), d.object(k)); };
    const auto group = [&](auto pack, std::uint32_t k, std::uint32_t end) ZELM_INLINE_LAMBDA {
        return invertGroups<typename decltype(pack)::Pack, dense, N>(s, d, k, end);
    };
    constexpr bool isSmall = N == 3 && !kIs32<typename D::Element> && kHasDenseObjects<D>;
    constexpr Grouping grouping = isSmall ? kSmallDoubleKernels : kLongKernels;
    return forEachInGroups<grouping>(count, NoBuffer(), inRuns<S, D>(count, group), one, writes(d, N, N),
                                     reads(s, N, N));
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
    } else if constexpr (D::isTable && Size::fixed <= 4) {
        if (ZelmStatus status = checkSingle(false, s, d); status != kProceed)
            return status;
        T a[Size::fixed][Size::fixed];
        if (!readMatrixTested(s, a) || hasNullEntry<Size::fixed * Size::fixed>(d))
            return ZELM_ERR_NULL_PTR;
        return invertInRegisters<false>(a, d);
    } else {
        constexpr unsigned entries = Size::fixed * Size::fixed;
        if (ZelmStatus status =
                checkAlone(false, testedAlone<entries>(s, entries), testedAlone<entries>(d, entries));
            status != kProceed)
            return status;
        return invertObject<D::isDense, Size::fixed>(s, d);
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
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            return invertByElimination<T>(s.object(k), scratch, d.object(k), size.value());
        };
        return forEachObject(count, one, s, d);
    } else {
        if (ZelmStatus status = checkArray(false, count, tested(s, n * n), tested(d, n * n));
            status != kProceed)
            return status;
        constexpr bool dense = kHasDenseObjects<D>;
        return withPlainest(
            [&](const auto &source, const auto &target)
                ZELM_INLINE_LAMBDA { return invertObjects<dense, Size::fixed>(source, target, count); },
            s, d);
    }
}

} // namespace zelm::solvers
