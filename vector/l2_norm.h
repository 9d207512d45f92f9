// Euclidean lengths.
#pragma once

#include "vector/long_sum.h"
#include "vector/results.h"
#include "vector/roots.h"

namespace zelm::vector {

// The order of a fixed-size sum of squares. It differs between one vector and an array in the dense 32-bit
// forms.
template <typename T, bool isDense, bool isArray, unsigned N>
constexpr Sum kSquaresOrder = !isDense         ? Sum::Chain
                              : sizeof(T) == 8 ? Sum::EvenOdd
                              : !isArray       ? Sum::Pairs
                              : N == 5         ? Sum::Pairs
                              : N == 6         ? Sum::EvenOdd
                                               : Sum::Chain;

// The dense 32-bit forms of a fixed size take the refined reciprocal root, all others the correctly rounded
// root.
template <bool isDense, typename V>
ZELM_INLINE V lengthOf(V squares) {
    if constexpr (isDense && sizeof(squares[0]) == 4)
        return rootByRefinedReciprocal(squares);
    else
        return squareRoot(squares);
}

template <bool isArray, unsigned N, typename S>
ZELM_INLINE auto fixedLength(const S &s) {
    using T = typename S::Element;
    T squares[N];
#pragma GCC unroll 6
    for (unsigned j = 0; j < N; ++j)
        squares[j] = s.get(j) * s.get(j);
    const T sum = sumOf<kSquaresOrder<T, S::isDense, isArray, N>>(squares);
    if constexpr (S::isDense && sizeof(T) == 4)
        return rootByRefinedReciprocal(sum);
    else
        return squareRoot(sum);
}

template <typename S>
ZELM_INLINE auto lengthOfRunTime(const S &s, std::uint32_t length) {
    typename S::Element sum = 0;
    for (std::uint32_t j = 0; j < length; ++j)
        sum = sum + s.get(j) * s.get(j);
    return squareRoot(sum);
}

template <typename S, typename T, typename Shape>
ZELM_INLINE ZelmStatus l2NormSingle(const S &s, T *dst, Shape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), s, Pointer(dst)); status != kProceed)
        return status;
    if constexpr (S::isTable) {
        // The result is stored at the end, so that where a null entry stops the sum can't be seen.
        if (s.hasNullEntry(shape.columns()))
            return ZELM_ERR_NULL_PTR;
    }
    if constexpr (Shape::isFixed)
        *dst = fixedLength<false, Shape::columns()>(s);
    else if constexpr (S::isDense)
        *dst = squareRoot(longSum<T>(Squares<T>{s.start}, s.start, shape.columns()));
    else
        *dst = lengthOfRunTime(s, shape.columns());
    return ZELM_OK;
}

template <typename S, typename T, typename Shape>
ZELM_INLINE ZelmStatus l2NormArray(const S &s, T *dst, Shape shape, std::uint32_t count) {
    if (ZelmStatus status =
            checkArray(shape.isZero(), count, tested(s, shape.elements()), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
    const DenseArray<T> results = resultsAt(dst);
    if constexpr (!Shape::isFixed) {
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            results.object(k).set(0, lengthOfRunTime(s.object(k), shape.columns()));
            return ZELM_OK;
        };
        return forEachObject(count, one, s);
    } else {
        constexpr unsigned N = Shape::columns();
        constexpr bool isDense = decltype(s.object(0))::isDense;
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            results.object(k).set(0, fixedLength<true, N>(s.object(k)));
            return ZELM_OK;
        };
        if constexpr (kLoadsInGroups<S>) {
            if (count >= kResultGroupsCount && resultsMissSource<1, N>(s, results, count)) {
                const VectorsOfGroup<N, S> vectors(s);
                const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                    if (!resultsMissGroup<1, N>(s, results, k))
                        return false;
                    Pack<T> elements[N], squares[N];
                    vectors.load(k, elements);
#pragma GCC unroll 6
                    for (unsigned j = 0; j < N; ++j)
                        squares[j] = elements[j] * elements[j];
                    const Pack<T> sum = sumOf<kSquaresOrder<T, isDense, true, N>>(squares);
                    storePack(results.object(k).start, lengthOf<isDense>(sum));
                    return true;
                };
                return forEachGroup<kLanes<T>>(count, group, one, s);
            }
        }
        return forEachObject(count, one, s);
    }
}

} // namespace zelm::vector

#include "vector/departures.h"
