// Determinants: by elimination in a scratch (run-time size), by an extended-precision kernel (fixed size, the
// standard and L forms), or by the closed expansion in the element type (the other fixed forms).
#pragma once

#include "solvers/determinant_kernels.h"
#include "solvers/elimination.h"
#include "solvers/expansion.h"
#include "solvers/matrix_groups.h"
#include "solvers/proved_determinant.h"
#include "solvers/tested_matrix.h"

namespace zelm::solvers {

// ---- run-time size

template <typename T, typename S>
ZELM_INLINE void copyToWorkSpace(const S &s, const WorkSpace<T> &space) {
    for (std::uint32_t i = 0; i < space.n; ++i)
        for (std::uint32_t j = 0; j < space.n; ++j)
            copyElement<T>(space.element(i, j), s.address(i, j, space.n));
}

// The result is set to one before the matrix is read: dst is the running product.
template <typename T, typename S>
ZELM_INLINE ZelmStatus determinantByElimination(const S &s, void *scratch, T *dst, std::uint32_t n) {
    const WorkSpace<T> space(scratch, n);
    store(addressOf(dst), T{1});
    for (std::uint32_t i = 0; i < n; ++i) {
        for (std::uint32_t j = 0; j < n; ++j) {
            if constexpr (S::isTable)
                if (s.elementIsNull(Address{i} * n + j))
                    return ZELM_ERR_NULL_PTR;
            copyElement<T>(space.element(i, j), s.address(i, j, n));
        }
    }
    Elimination<T> result;
    eliminate<T, MultiplierIn::Double>(space, n, result);
    store(addressOf(dst), result.pivotFailed ? T{0} : result.value);
    return ZELM_OK;
}

// In an array a failed pivot leaves a zero of the sign that the last element gives it, or NaN.
template <typename T, typename S>
ZELM_NOINLINE ZelmStatus determinantsByElimination(const S &s, void *scratch, T *dst, std::uint32_t n,
                                                   std::uint32_t count) {
    const WorkSpace<T> space(scratch, n);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        const Address result = addressOf(dst) + Address{k} * sizeof(T);
        store(result, T{1});
        copyToWorkSpace(s.object(k), space);
        Elimination<T> elimination;
        eliminate<T, MultiplierIn::Double>(space, n, elimination);
        store(result, elimination.value);
        return ZELM_OK;
    };
    return forEachObject(count, one, s);
}

// ---- the closed expansion in the element type

// Orders 3 and 4 are short enough to stand where they are called: then their elements need no memory.
template <unsigned N, typename V>
ZELM_INLINE V determinantHere(const V (&a)[N][N]) {
    const auto element = [&a](unsigned i, unsigned j) ZELM_INLINE_LAMBDA { return a[i][j]; };
    if constexpr (N == 3) {
        return determinantOfOrder3(a);
    } else if constexpr (N == 4) {
        return expandByMinors<N, V>(element, MinorsAsTheyAre{});
    } else {
        V determinant;
        determinantOf(a, determinant);
        return determinant;
    }
}

template <unsigned N, typename T, typename S>
ZELM_INLINE void determinantInElementType(const S &s, const Dense<T> &result) {
    T a[N][N];
    readMatrix(s, a);
    result.set(0, determinantHere(a));
}

template <typename V, unsigned N, typename S>
ZELM_NOINLINE std::uint32_t determinantsOfGroups(const S &s, Address results, std::uint32_t k,
                                                 std::uint32_t end) {
    return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
        V a[N][N];
        loadMatrix(s, group, a);
        storePack(results + group * sizeof(ElementOf<V>), determinantHere(a));
        return true;
    });
}

template <unsigned N, typename S, typename T>
ZELM_NOINLINE ZelmStatus determinantsInElementType(const S &s, T *dst, std::uint32_t count) {
    const DenseArray<T> results(dst, std::int32_t{sizeof(T)}, 0);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        determinantInElementType<N>(s.object(k), results.object(k));
        return ZELM_OK;
    };
    if constexpr (N <= 4 && !kGainsByGroups<S>)
        return forEachObject(count, one, s); // 0.53 to 0.99 of the time of groups, which gather
    const auto group = [&](auto pack, std::uint32_t k, std::uint32_t end) ZELM_INLINE_LAMBDA {
        return determinantsOfGroups<typename decltype(pack)::Pack, N>(s, results.start, k, end);
    };
    return forEachInGroups<kLongKernels>(count, NoBuffer(), inRuns<S>(count, group), one,
                                         writes(results, 1, 1), reads(s, N, N));
}

// ---- arrays in extended precision. Of 32-bit floats 64-bit float mostly proves what the kernel would give,
// in 0.35 to 0.91 of its time; of higher orders too many minors are rounded on the way.

template <unsigned N, typename T>
constexpr bool kIsProved = sizeof(T) == 4 && N <= 4;

// The objects from k to before end by the kernel.
template <typename S, typename T, typename Kernel>
ZELM_INLINE ZelmStatus determinantsByKernel(const S &s, T *dst, std::uint32_t k, std::uint32_t end,
                                            Kernel kernel) {
    const auto rowStride = static_cast<std::int32_t>(s.rowStride);
    if constexpr (S::isList) {
        const std::int32_t result =
            kernel(s.table + k, static_cast<std::int32_t>(s.shift), rowStride, dst + k, end - k);
        return result == 0 ? ZELM_OK : ZELM_ERR_NULL_PTR;
    } else {
        kernel(reinterpret_cast<const T *>(s.object(k).start), static_cast<std::int32_t>(s.objStride),
               rowStride, dst + k, end - k);
        return ZELM_OK;
    }
}

template <unsigned N, typename S, typename T, typename Kernel>
ZELM_NOINLINE ZelmStatus determinantsProved(const S &s, T *dst, std::uint32_t count, Kernel kernel) {
    const DenseArray<T> results(dst, std::int32_t{sizeof(T)}, 0);
    const auto one = [&](std::uint32_t k)
                         ZELM_INLINE_LAMBDA { return determinantsByKernel(s, dst, k, k + 1, kernel); };
    const auto group = [&](auto pack, std::uint32_t first, std::uint32_t end) ZELM_INLINE_LAMBDA {
        using V = typename decltype(pack)::Pack;
        return groupsFrom<V>(first, end, [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            V a[N][N], determinants;
            loadMatrix(s, k, a);
            if (!proveDeterminants(a, determinants))
                return false;
            storePack(addressOf(dst + k), determinants);
            return true;
        });
    };
    return forEachInGroups<kLongKernels>(count, NoBuffer(), inRuns<S>(count, group), one,
                                         writes(results, 1, 1), reads(s, N, N));
}

// ---- the exported rows

// `kernel` is the extended-precision kernel that serves the member, if one does; a fixed size has no scratch.
template <typename S, typename T, typename Size, typename Kernel>
ZELM_INLINE ZelmStatus determinantSingle(const S &s, void *scratch, T *dst, Size size, Kernel kernel) {
    if constexpr (Size::fixed == 0) {
        if (ZelmStatus status = checkSingle(size.isZero(), s, Pointer(dst), Pointer(scratch));
            status != kProceed)
            return status;
        return determinantByElimination(s, scratch, dst, size.value());
    } else {
        if (ZelmStatus status = checkSingle(false, s, Pointer(dst)); status != kProceed)
            return status;
        if constexpr (S::isDense) {
            kernel(reinterpret_cast<const T *>(s.start), static_cast<std::int32_t>(s.rowStride), dst);
        } else {
            T a[Size::fixed][Size::fixed];
            if (!readMatrixTested(s, a))
                return ZELM_ERR_NULL_PTR;
            Dense<T>(dst, 0).set(0, determinantHere(a));
        }
        return ZELM_OK;
    }
}

template <typename S, typename T, typename Size, typename Kernel>
ZELM_INLINE ZelmStatus determinantArray(const S &s, void *scratch, T *dst, Size size, std::uint32_t count,
                                        Kernel kernel) {
    const Address n = size.value();
    if constexpr (Size::fixed == 0) {
        if (ZelmStatus status = checkArray(size.isZero(), count, tested(s, n * n), tested(Pointer(dst), 0),
                                           tested(Pointer(scratch), 0));
            status != kProceed)
            return status;
        return determinantsByElimination(s, scratch, dst, size.value(), count);
    } else {
        if (ZelmStatus status = checkArray(false, count, tested(s, n * n), tested(Pointer(dst), 0));
            status != kProceed)
            return status;
        if constexpr (kHasDenseObjects<S>) {
            if constexpr (kIsProved<Size::fixed, T>)
                if (arithmeticIsUsual())
                    return determinantsProved<Size::fixed>(s, dst, count, kernel);
            return determinantsByKernel(s, dst, 0, count, kernel);
        } else {
            return withPlainest(
                [&](const auto &plain)
                    ZELM_INLINE_LAMBDA { return determinantsInElementType<Size::fixed>(plain, dst, count); },
                s);
        }
    }
}

} // namespace zelm::solvers
