// Euclidean lengths.
#pragma once

#include "vector/pairs.h"
#include "vector/results.h"
#include "vector/roots.h"
#include "vector/tested_squares.h"

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
    if constexpr (isDense && sizeof(ElementOf<V>) == 4)
        return rootByRefinedReciprocal(squares);
    else
        return squareRoot(squares);
}

template <bool isDense, bool isArray, unsigned N, typename S>
ZELM_INLINE auto fixedLength(const S &s) {
    using T = typename S::Element;
    constexpr Sum order = kSquaresOrder<T, isDense, isArray, N>;
    if constexpr (S::isDense && kSumsByPairs<order, T, N>)
        return squareRoot(sumByPairs<order, N>(Squares<T>{s.start}));
    T squares[N];
    ZELM_UNROLL
    for (unsigned j = 0; j < N; ++j)
        squares[j] = s.get(j) * s.get(j);
    return lengthOf<isDense>(sumOf<order>(squares));
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
        T squares = 0;
        if (!sumSquaresTested(s, shape, squares))
            return ZELM_ERR_NULL_PTR;
        *dst = squareRoot(squares);
    } else if constexpr (Shape::isFixed)
        *dst = fixedLength<S::isDense, false, Shape::columns()>(s);
    else if constexpr (S::isDense)
        *dst = squareRoot(longSum<T>(Squares<T>{s.start}, s.start, shape.columns()));
    else
        *dst = lengthOfRunTime(s, shape.columns());
    return ZELM_OK;
}

// Vectors of a length known at run time.
template <typename S, typename T, typename Shape>
ZELM_NOINLINE ZelmStatus lengthsOfRunTime(S s, T *dst, Shape shape, std::uint32_t count) {
    const DenseArray<T> results = resultsAt(dst);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        results.object(k).set(0, lengthOfRunTime(s.object(k), shape.columns()));
        return ZELM_OK;
    };
    if constexpr (kHasPlanesOfRunTime<S, false>) {
        const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
            using V = typename decltype(pack)::Pack;
            storePack(results.object(k).start, squareRoot(sumOverPlanes<V>(s, s, k, shape.columns())));
            return true;
        };
        if (shape.columns() <= kMostPositions)
            return forEachInGroups<kShortKernels>(count, NoBuffer(), group, one, writes(results, 1, 1),
                                                  reads(s, 1, shape.columns()));
    }
    return forEachObject(count, one, s);
}

// isDense: whether the called form is one of the standard and L layouts, which have a root of their own.
template <bool isDense, unsigned N, typename S, typename T>
ZELM_NOINLINE ZelmStatus lengthsOf(S s, T *dst, std::uint32_t count) {
    const DenseArray<T> results = resultsAt(dst);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        results.object(k).set(0, fixedLength<isDense, true, N>(s.object(k)));
        return ZELM_OK;
    };
    // A root takes longer than gathering the elements of several objects does.
    constexpr Grouping grouping = kLoadsInGroups<S> || kIsAlternate<S> ? kShortKernels : kGatheredProducts;
    const Vectors<N, S> vectors(s);
    const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
        using V = typename decltype(pack)::Pack;
        V elements[N], squares[N];
        vectors.load(k, elements);
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            squares[j] = elements[j] * elements[j];
        const V sum = sumOf<kSquaresOrder<T, isDense, true, N>>(squares);
        storePack(results.object(k).start, lengthOf<isDense>(sum));
        return true;
    };
    return forEachInGroups<grouping>(count, NoBuffer(), group, one, writes(results, 1, 1), reads(s, 1, N));
}

template <typename S, typename T, typename Shape>
ZELM_INLINE ZelmStatus l2NormArray(const S &s, T *dst, Shape shape, std::uint32_t count) {
    if (ZelmStatus status =
            checkArray(shape.isZero(), count, tested(s, shape.elements()), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
    constexpr bool isDense = kHasDenseObjects<S>;
    return withPlainestVectors<Shape::isFixed>(
        [&](const auto &plain) ZELM_INLINE_LAMBDA {
            if constexpr (Shape::isFixed)
                return lengthsOf<isDense, Shape::columns()>(plain, dst, count);
            else
                return lengthsOfRunTime(plain, dst, shape, count);
        },
        s);
}

} // namespace zelm::vector
