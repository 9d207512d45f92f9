// Products of matrices and vectors whose dimensions are arguments, where dst lies apart from the sources.
#pragma once

#include "products/run_time.h"

namespace zelm::products {

// The dimensions of a product by a vector: rows of the result, terms of a sum, table entries to a row.
struct VectorBounds {
    std::uint32_t rows, terms, pitch;
};

// Elements i to i + width - 1 of dst.
template <unsigned width, typename V, typename A, typename X, typename Z, typename D>
ZELM_INLINE void sumRows(const A &a, const X &x, const Z &z, const D &d, std::uint32_t k, std::uint32_t i,
                         const VectorBounds &bounds) {
    V sums[width] = {};
    for (std::uint32_t t = 0; t < bounds.terms; ++t) {
        const V factor = elementsOf<V>(x, k, 0, t, 0);
        ZELM_UNROLL
        for (unsigned r = 0; r < width; ++r)
            sums[r] = sums[r] + elementsOf<V>(a, k, i + r, t, bounds.pitch) * factor;
    }
    ZELM_UNROLL
    for (unsigned r = 0; r < width; ++r) {
        if constexpr (kAdds<Z>)
            sums[r] = sums[r] + elementsOf<V>(z, k, 0, i + r, 0);
        storeElements(d, k, 0, i + r, 0, sums[r]);
    }
}

template <typename V, typename A, typename X, typename Z, typename D>
ZELM_INLINE void multiplyVectorRows(const A &a, const X &x, const Z &z, const D &d, std::uint32_t k,
                                    std::uint32_t first, const VectorBounds &bounds) {
    std::uint32_t i = first;
    for (; bounds.rows - i >= 4; i += 4)
        sumRows<4, V>(a, x, z, d, k, i, bounds);
    for (; i < bounds.rows; ++i)
        sumRows<1, V>(a, x, z, d, k, i, bounds);
}

// A transposed matrix of adjacent elements: as many rows at once as a pack has lanes. The number that is
// done.
template <typename V, typename T, typename X, typename Z, typename D>
ZELM_INLINE std::uint32_t multiplyRowPacks(const Transposed<Dense<const T>> &a, const X &x, const Z &z,
                                           const D &d, const VectorBounds &bounds) {
    std::uint32_t i = 0;
    for (; bounds.rows - i >= kLanesOf<V>; i += kLanesOf<V>) {
        V sum = {};
        for (std::uint32_t t = 0; t < bounds.terms; ++t)
            sum = sum + loadAs<V>(a.address(t, i, 0)) * spread<V>(x.get(t));
        if constexpr (kAdds<Z>)
            sum = sum + loadAs<V>(z.address(0, i, 0));
        storePack(d.address(0, i, 0), sum);
    }
    return i;
}

// One object.
template <typename A, typename X, typename Z, typename D>
ZELM_NOINLINE void multiplyVectorApart(const A &matrix, const X &vector, const Z &added, const D &result,
                                       const VectorBounds &size) {
    using T = typename D::Element;
    const A a = matrix;
    const X x = vector;
    const Z z = added;
    const D d = result;
    const VectorBounds bounds = size;
    std::uint32_t done = 0;
    if constexpr (std::is_same_v<A, Transposed<Dense<const T>>> && D::isDense)
        done = multiplyRowPacks<Pack<T>>(a, x, z, d, bounds);
    multiplyVectorRows<T>(a, x, z, d, 0, done, bounds);
}

template <typename D>
ZELM_INLINE bool isInReach(const VectorBounds &bounds) {
    return isInReach<D>(Bounds{bounds.rows, 1, bounds.terms}, Pitches{bounds.pitch, 0, 0});
}

template <typename A, typename X, typename Z, typename D>
ZELM_INLINE bool vectorProductIsApart(const A &a, const X &x, const Z &z, const D &d,
                                      const VectorBounds &bounds) {
    if (!isInReach<D>(bounds))
        return false;
    const Result<D> result = writes(d, 1, bounds.rows);
    if constexpr (kAdds<Z>)
        if (!objectMisses(reads(z, 1, bounds.rows), result))
            return false;
    return resultIsApart(result) &&
           objectMisses(readsUsed(a, bounds.rows, bounds.terms, bounds.pitch), result) &&
           objectMisses(reads(x, 1, bounds.terms), result);
}

// ---- arrays

template <typename A, typename X, typename Z, typename D>
ZELM_NOINLINE ZelmStatus multiplyVectorsRunTime(A a, X x, Z z, D d, VectorBounds bounds,
                                                std::uint32_t count) {
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        accumulateVector(a.object(k), x.object(k), z.object(k), d.object(k), bounds.rows, bounds.terms,
                         bounds.pitch);
        return ZELM_OK;
    };
    if (!isInReach<D>(bounds))
        return forEachObject(count, one, a, x, z, d);
    const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
        using V = typename decltype(pack)::Pack;
        if constexpr (kLanesOf<V> == 1)
            multiplyVectorApart(a.object(k), x.object(k), z.object(k), d.object(k), bounds);
        else
            multiplyVectorRows<V>(a, x, z, d, k, 0, bounds);
        return true;
    };
    constexpr Grouping grouping = {(D::isSideBySide ? kProductKernels : kOneAtATime).bytes, 1};
    const auto run = [&](const auto &...sources) ZELM_INLINE_LAMBDA {
        return forEachInGroups<grouping>(count, NoBuffer(), group, one, writes(d, 1, bounds.rows),
                                         readsUsed(a, bounds.rows, bounds.terms, bounds.pitch),
                                         reads(x, 1, bounds.terms), sources...);
    };
    if constexpr (kAdds<Z>)
        return run(reads(z, 1, bounds.rows));
    else
        return run();
}

} // namespace zelm::products
