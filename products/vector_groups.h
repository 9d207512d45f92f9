// Products of matrices and vectors across objects: one pack per element, of as many objects as it has lanes.
#pragma once

#include "frame/batch.h"
#include "products/vector_rows.h"

namespace zelm::products {

// The elements of matrices as used, for a group. One matrix for all objects is read once: it is asked for
// only where no result is stored in it.
template <unsigned N, typename A>
struct GroupMatrices {
    typename A::Element element[N][N];
    ZELM_INLINE explicit GroupMatrices(const A &a) {
        for (unsigned i = 0; i < N; ++i)
            for (unsigned t = 0; t < N; ++t)
                element[i][t] = used(a, i, t, N);
    }
    template <typename V>
    ZELM_INLINE void loadRowOf(std::uint32_t, unsigned i, V (&row)[N]) const {
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t)
            row[t] = spread<V>(element[i][t]);
    }
};

template <unsigned N, typename A>
requires kIsArray<A>
struct GroupMatrices<N, A> {
    const A &array;
    ZELM_INLINE explicit GroupMatrices(const A &a) : array(a) {}
    template <typename V>
    ZELM_INLINE void loadRowOf(std::uint32_t k, unsigned i, V (&row)[N]) const {
        if constexpr (!kIsTransposed<A>) {
            loadRow<N>(array, k, i, row);
        } else {
            ZELM_UNROLL
            for (unsigned t = 0; t < N; ++t)
                row[t] = loadAs<V>(array.object(k).address(t, i, N)); // planes, or a single lane
        }
    }
};

template <unsigned N, typename V, typename X>
ZELM_INLINE void loadVectors(const X &x, std::uint32_t k, V (&out)[N]) {
    if constexpr (kIsArray<X>) {
        loadRow<N>(x, k, 0, out);
    } else {
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t)
            out[t] = spread<V>(x.get(t));
    }
}

// Row by row, with the order of sums of the called form.
template <unsigned N, bool isDense, bool isTransposed, unsigned row, bool adds, typename M, typename V>
ZELM_INLINE void multiplyAcross(const M &m, std::uint32_t k, const V (&x)[N], const V (&z)[N],
                                V (&result)[N]) {
    using T = ElementOf<V>;
    V products[N];
    m.loadRowOf(k, row, products);
    ZELM_UNROLL
    for (unsigned t = 0; t < N; ++t)
        products[t] = products[t] * x[t];
    if (adds && !isDense) // the sum begins at +0, which shows where all products are -0
        products[0] = products[0] + V{};
    const V sum = sumOf<vectorSumOfRow<T, isDense, isTransposed, N>(row)>(products);
    result[row] = adds ? sum + z[row] : sum;
    if constexpr (row + 1 < N)
        multiplyAcross<N, isDense, isTransposed, row + 1, adds>(m, k, x, z, result);
}

// `isDense`: whether the called form is one of the standard and L layouts.
template <unsigned N, bool isDense, typename A, typename X, typename Z, typename D>
ZELM_NOINLINE ZelmStatus multiplyInGroups(A a, X x, Z z, D d, std::uint32_t count) {
    const GroupMatrices<N, A> matrices(a);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        multiplyVectorObject<N, isDense>(a.object(k), x.object(k), z.object(k), d.object(k));
        return ZELM_OK;
    };
    const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
        using V = typename decltype(pack)::Pack;
        V vectors[N], added[N], result[N];
        loadVectors(x, k, vectors);
        if constexpr (kAdds<Z>)
            loadVectors(z, k, added);
        multiplyAcross<N, isDense, kIsTransposed<A>, 0, kAdds<Z>>(matrices, k, vectors, added, result);
        storeRow<N>(d, k, 0, result);
        return true;
    };
    constexpr InPlace vector = isDense ? InPlace::Yes : InPlace::No;
    if constexpr (kAdds<Z>)
        return forEachInGroups<groupingOf<D>(kProductKernels)>(count, NoBuffer(), group, one, writes(d, 1, N),
                                                               reads(a, N, N), reads(x, 1, N, vector),
                                                               reads(z, 1, N, vector));
    else
        return forEachInGroups<groupingOf<D>(kProductKernels)>(count, NoBuffer(), group, one, writes(d, 1, N),
                                                               reads(a, N, N), reads(x, 1, N, vector));
}

} // namespace zelm::products
