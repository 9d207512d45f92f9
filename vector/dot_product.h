// Dot products.
#pragma once

#include "vector/long_sum.h"
#include "vector/results.h"

namespace zelm::vector {

// The order of a fixed-size sum. In 64-bit float the standard and L forms sum the lanes of pairs.
template <typename T, typename Object>
constexpr Sum kDotOrder = sizeof(T) == 8 && Object::isDense ? Sum::EvenOddThenRest : Sum::Chain;

template <Sum order, unsigned N, typename A, typename B>
ZELM_INLINE auto dotOf(const A &a, const B &b) {
    typename A::Element products[N];
#pragma GCC unroll 6
    for (unsigned j = 0; j < N; ++j)
        products[j] = a.get(j) * b.get(j);
    return sumOf<order>(products);
}

template <typename A, typename B>
ZELM_INLINE auto dotOfLength(const A &a, const B &b, std::uint32_t length) {
    typename A::Element sum = 0;
    for (std::uint32_t j = 0; j < length; ++j)
        sum = sum + a.get(j) * b.get(j);
    return sum;
}

// ---- one pair

template <typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotSingle(const A &a, const B &b, T *dst, Shape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), a, b, Pointer(dst)); status != kProceed)
        return status;
    if constexpr (A::isTable) {
        // The result is stored at the end, so that where a null entry stops the sum can't be seen.
        if (a.hasNullEntry(shape.columns()) || b.hasNullEntry(shape.columns()))
            return ZELM_ERR_NULL_PTR;
    }
    if constexpr (Shape::isFixed)
        *dst = dotOf<kDotOrder<T, A>, Shape::columns()>(a, b);
    else if constexpr (A::isDense)
        *dst = longSum<T>(Products<T>{a.start, b.start}, b.start, shape.columns());
    else
        *dst = dotOfLength(a, b, shape.columns());
    return ZELM_OK;
}

// ---- arrays

template <Sum order, typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotObjects(const A &a, const B &b, T *dst, Shape shape, std::uint32_t count) {
    const DenseArray<T> results = resultsAt(dst);
    if constexpr (!Shape::isFixed) {
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            results.object(k).set(0, dotOfLength(a.object(k), b.object(k), shape.columns()));
            return ZELM_OK;
        };
        return forEachObject(count, one, a, b);
    } else {
        constexpr unsigned N = Shape::columns();
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            results.object(k).set(0, dotOf<order, N>(a.object(k), b.object(k)));
            return ZELM_OK;
        };
        if constexpr (kLoadsInGroups<A>) {
            if (count >= kResultGroupsCount && resultsMissSource<1, N>(a, results, count) &&
                resultsMissSource<1, N>(b, results, count)) {
                const VectorsOfGroup<N, A> firsts(a);
                const VectorsOfGroup<N, B> seconds(b);
                const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                    if (!resultsMissGroup<1, N>(a, results, k) || !resultsMissGroup<1, N>(b, results, k))
                        return false;
                    Pack<T> first[N], second[N], products[N];
                    firsts.load(k, first);
                    seconds.load(k, second);
#pragma GCC unroll 6
                    for (unsigned j = 0; j < N; ++j)
                        products[j] = first[j] * second[j];
                    storePack(results.object(k).start, sumOf<order>(products));
                    return true;
                };
                return forEachGroup<kLanes<T>>(count, group, one, a, b);
            }
        }
        return forEachObject(count, one, a, b);
    }
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

#include "vector/departures.h"
