// Dot products.
#pragma once

#include "vector/pairs.h"
#include "vector/results.h"

namespace zelm::vector {

// The order of a fixed-size sum. In 64-bit float the standard and L forms sum the lanes of pairs.
template <typename T, typename Object>
constexpr Sum kDotOrder = sizeof(T) == 8 && Object::isDense ? Sum::EvenOddThenRest : Sum::Chain;

template <typename T, unsigned N>
constexpr bool kFillsPack = sizeof(T) == 4 && N == 4;

template <typename T>
ZELM_INLINE Pack<T> packOf(const Dense<const T> &b) {
    return loadPack<T>(b.start);
}
template <unsigned N, typename B>
ZELM_INLINE auto packOf(const Vectors<N, B> &b) {
    return Pack<typename B::Element>{b.get(0), b.get(1), b.get(2), b.get(3)};
}

// `areListed`: each pair of vectors stands alone, and loads are what takes the time.
template <Sum order, unsigned N, bool areListed = false, typename A, typename B>
ZELM_INLINE auto dotOf(const A &a, const B &b) {
    using T = typename A::Element;
    if constexpr (areListed && sizeof(T) == 8 && N == 3)
        if constexpr (A::isDense)
            return sumByPairs<Sum::EvenOddThenRest, N>(Products<T>{a.start, b.start});
    if constexpr (kSumsByPairs<order, T, N>)
        if constexpr (A::isDense && B::isDense)
            return sumByPairs<order, N>(Products<T>{a.start, b.start});
    T products[N];
    if constexpr (A::isDense && kFillsPack<T, N>) {
        const Pack<T> pack = loadPack<T>(a.start) * packOf(b);
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            products[j] = pack[j];
    } else {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            products[j] = a.get(j) * b.get(j);
    }
    return sumOf<order>(products);
}

template <typename A, typename B>
ZELM_INLINE auto dotOfLength(const A &a, const B &b, std::uint32_t length) {
    using T = typename A::Element;
    T sum = 0;
    if constexpr (A::isDense && B::isDense)
        return chainedSum(Products<T>{a.start, b.start}, sum, 0, length);
    for (std::uint32_t j = 0; j < length; ++j)
        sum = sum + a.get(j) * b.get(j);
    return sum;
}

// ---- the products of a group of pairs, one pack per element: multiplied object by object and then
// transposed, instead of both operands

template <typename V>
ZELM_INLINE V productsAt(const Address *a, const Address *b, Address offset) {
    LaneAddresses<V> first, second;
    shifted<V>(a, offset, first);
    shifted<V>(b, offset, second);
    return gather<V>(first) * gather<V>(second);
}

template <unsigned N, typename V>
ZELM_INLINE void productsAcross(const Address *a, const Address *b, V (&out)[N]) {
    const auto blocks = [&](unsigned object, Address offset) ZELM_INLINE_LAMBDA {
        return loadBlocks<V>(a + object, offset) * loadBlocks<V>(b + object, offset);
    };
    constexpr unsigned lanes = kLanes<ElementOf<V>>;
    if constexpr (lanes == 4) {
        ZELM_UNROLL
        for (unsigned object = 0; object < 4; ++object)
            out[object] = blocks(object, 0);
        transposeFour(out[0], out[1], out[2], out[3]);
        if constexpr (N == 6) {
            const V upper = loadPairs<V>(a, 16) * loadPairs<V>(b, 16);
            const V lower = loadPairs<V>(a + 2, 16) * loadPairs<V>(b + 2, 16);
            out[4] = shuffle<0, 2, 0, 2>(upper, lower);
            out[5] = shuffle<1, 3, 1, 3>(upper, lower);
        }
    } else {
        ZELM_UNROLL
        for (unsigned j = 0; j + 1 < N; j += 2) {
            const V first = blocks(0, j * sizeof(double)), second = blocks(1, j * sizeof(double));
            out[j] = interleaveLow(first, second);
            out[j + 1] = interleaveHigh(first, second);
        }
    }
    if constexpr (N % 2 == 1)
        out[N - 1] = productsAt<V>(a, b, (N - 1) * sizeof(ElementOf<V>));
}

template <typename S>
constexpr bool kIsArrayOfRows = kIsArray<S> &&kHasDenseObjects<S>;

template <unsigned N, typename V, typename A, typename B>
ZELM_INLINE void productsOfGroup(const Vectors<N, A> &a, const Vectors<N, B> &b, std::uint32_t k,
                                 V (&products)[N]) {
    if constexpr (kLanesOf < V >> 1 && kIsThrees<A> && kIsThrees<B>) {
        const Address first = a.operand.object(k).start, second = b.operand.object(k).start;
        const auto third = [&](unsigned number) ZELM_INLINE_LAMBDA {
            return loadThird<V>(first, number) * loadThird<V>(second, number);
        };
        transposeThrees(third(0), third(1), third(2), products);
    } else if constexpr (kLanesOf < V >> 1 && N > 3 && kIsArrayOfRows<A> && kIsArrayOfRows<B>) {
        LaneAddresses<V> first, second;
        ZELM_UNROLL
        for (unsigned lane = 0; lane < kLanesOf<V>; ++lane) {
            first[lane] = a.operand.object(k + lane).start;
            second[lane] = b.operand.object(k + lane).start;
        }
        productsAcross<N>(first, second, products);
    } else {
        V firsts[N], seconds[N];
        a.load(k, firsts);
        b.load(k, seconds);
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            products[j] = firsts[j] * seconds[j];
    }
}

// ---- one pair

// Entries are tested as they are reached; the result is stored at the end.
template <typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotByTables(const A &a, const B &b, T *dst, Shape shape) {
    T sum = 0;
    const bool complete = whileTrue(shape, [&](std::uint32_t, std::uint32_t j) ZELM_INLINE_LAMBDA {
        if (a.elementIsNull(j) || b.elementIsNull(j))
            return false;
        const T product = a.get(j) * b.get(j);
        // Sums of a fixed size begin with the first product.
        sum = Shape::isFixed && j == 0 ? product : sum + product;
        return true;
    });
    if (!complete)
        return ZELM_ERR_NULL_PTR;
    *dst = sum;
    return ZELM_OK;
}

template <typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotSingle(const A &a, const B &b, T *dst, Shape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), a, b, Pointer(dst)); status != kProceed)
        return status;
    if constexpr (A::isTable)
        return dotByTables(a, b, dst, shape);
    else if constexpr (Shape::isFixed)
        *dst = dotOf<kDotOrder<T, A>, Shape::columns()>(a, b);
    else if constexpr (A::isDense)
        *dst = longSum<T>(Products<T>{a.start, b.start}, b.start, shape.columns());
    else
        *dst = dotOfLength(a, b, shape.columns());
    return ZELM_OK;
}

// ---- arrays

// Vectors of a length known at run time.
template <typename A, typename B, typename T, typename Shape>
ZELM_NOINLINE ZelmStatus dotsOfRunTime(A a, B b, T *dst, Shape shape, std::uint32_t count) {
    const DenseArray<T> results = resultsAt(dst);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        results.object(k).set(0, dotOfLength(a.object(k), b.object(k), shape.columns()));
        return ZELM_OK;
    };
    if constexpr (kHasPlanesOfRunTime<A, false>) {
        const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
            using V = typename decltype(pack)::Pack;
            storePack(results.object(k).start, sumOverPlanes<V>(a, b, k, shape.columns()));
            return true;
        };
        if (shape.columns() <= kMostPositions)
            return forEachInGroups<kShortKernels>(count, NoBuffer(), group, one, writes(results, 1, 1),
                                                  reads(a, 1, shape.columns()), reads(b, 1, shape.columns()));
    }
    return forEachObject(count, one, a, b);
}

// One instance serves the layouts that come to the same operands and the same order.
template <Sum order, unsigned N, typename A, typename B, typename T>
ZELM_NOINLINE ZelmStatus dotsInOrder(A a, B b, T *dst, std::uint32_t count) {
    const DenseArray<T> results = resultsAt(dst);
    constexpr bool areListed = A::isList && kIsArray<B>;
    const auto oneBy = [&](const auto &second) ZELM_INLINE_LAMBDA {
        return [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            results.object(k).set(0, dotOf<order, N, areListed>(a.object(k), second.object(k)));
            return ZELM_OK;
        };
    };
    // Pairs of arrays whose sums are ones of pairs, and short lists: the null tests and the sum cost less
    // than collecting the objects does.
    constexpr bool byPairs = kSumsByPairs<order, T, N>;
    constexpr bool isShort =
        byPairs ? A::isList || kIsArray<B> : A::isList && (N == 3 || (kLoadsInGroups<A> && kFillsPack<T, N>));
    // One at a time, what is held is all that a group gains.
    constexpr bool isAlone = kVectorGrouping<A>.bytes == 0 && kIsArray<B>;
    if constexpr (!kGainsByGroups<A> || isShort || isAlone) {
        if constexpr (isShort && !byPairs && !kIsArray<B>)
            if (isUntouched(b, 1, N, results, 1, 1, count))
                return forEachObject(count, oneBy(Vectors<N, B>(b)), a);
        return forEachObject(count, oneBy(b), a, b);
    } else {
        const auto run = [&](const auto &first, const auto &second) ZELM_INLINE_LAMBDA {
            const Vectors<N, std::remove_cvref_t<decltype(first)>> firsts(first);
            const Vectors<N, std::remove_cvref_t<decltype(second)>> seconds(second);
            const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
                typename decltype(pack)::Pack products[N];
                productsOfGroup<N>(firsts, seconds, k, products);
                storePack(results.object(k).start, sumOf<order>(products));
                return true;
            };
            return forEachInGroups<kVectorGrouping<A>>(count, NoBuffer(), group, oneBy(b),
                                                       writes(results, 1, 1), reads(a, 1, N), reads(b, 1, N));
        };
        return withThrees<N>(run, a, b);
    }
}

template <Sum order, typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotObjects(const A &a, const B &b, T *dst, Shape shape, std::uint32_t count) {
    return withPlainestVectors<Shape::isFixed>(
        [&](const auto &first, const auto &second) ZELM_INLINE_LAMBDA {
            if constexpr (Shape::isFixed)
                return dotsInOrder<order, Shape::columns()>(first, second, dst, count);
            else
                return dotsOfRunTime(first, second, dst, shape, count);
        },
        a, b);
}

template <typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotArray(const A &a, const B &b, T *dst, Shape shape, std::uint32_t count) {
    const Address n = shape.elements();
    if (ZelmStatus status =
            checkArray(shape.isZero(), count, tested(a, n), tested(b, n), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
    return dotObjects<kDotOrder<T, decltype(a.object(0))>>(a, b, dst, shape, count);
}

} // namespace zelm::vector
