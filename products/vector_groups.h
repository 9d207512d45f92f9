// Products of matrices and vectors across objects: one pack per element, of as many objects as it has lanes.
#pragma once

#include "frame/threes.h"
#include "products/vector_rows.h"

namespace zelm::products {

// Row by row, with the order of sums of the called form.
template <unsigned N, bool isDense, bool isTransposed, unsigned row, bool adds, typename M, typename V>
ZELM_INLINE void multiplyRowsAcross(const M &m, std::uint32_t k, const V (&x)[N], const V (&z)[N],
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
        multiplyRowsAcross<N, isDense, isTransposed, row + 1, adds>(m, k, x, z, result);
}

// `isDense`: whether the called form is one of the standard and L layouts.
template <unsigned N, bool isDense, typename A, typename X, typename Z, typename D>
ZELM_NOINLINE ZelmStatus multiplyInGroups(A a, X x, Z z, D d, std::uint32_t count) {
    const AcrossObjects<N, N, A> matrices(a);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        multiplyVectorObject<N, isDense>(a.object(k), x.object(k), z.object(k), d.object(k));
        return ZELM_OK;
    };
    // To gather a matrix to each object takes more than its arithmetic, but where pointers are saved.
    constexpr bool gathers = !D::isList && (!kIsArray<A> || (D::isTable && !kIsArray<X>));
    constexpr Grouping grouping = productGroupingOf<D>(gathers);
    constexpr InPlace inPlace = isDense ? InPlace::Yes : InPlace::No;
    const auto run = [&](const auto &vector, const auto &addend, const auto &sum) ZELM_INLINE_LAMBDA {
        const AcrossObjects<1, N, std::remove_cvref_t<decltype(vector)>> vectors(vector);
        const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
            using V = typename decltype(pack)::Pack;
            V factors[N], added[N], result[N];
            vectors.loadRowOf(k, 0, factors);
            if constexpr (kAdds<Z>)
                loadRow<N>(addend, k, 0, added);
            multiplyRowsAcross<N, isDense, kIsTransposed<A>, 0, kAdds<Z>>(matrices, k, factors, added,
                                                                          result);
            storeRow<N>(sum, k, 0, result);
            return true;
        };
        if constexpr (kAdds<Z>)
            return forEachInGroups<grouping>(count, NoBuffer(), group, one, writes(d, 1, N), reads(a, N, N),
                                             reads(x, 1, N, inPlace), reads(z, 1, N, inPlace));
        else
            return forEachInGroups<grouping>(count, NoBuffer(), group, one, writes(d, 1, N), reads(a, N, N),
                                             reads(x, 1, N, inPlace));
    };
    return withThrees<N>(run, x, z, d);
}

#if defined(__AVX2__)
// Dense vectors of four, one matrix for all: whole vectors in a pack.
template <typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus multiplyFours(const A &a, const X &x, const Z &z, const D &d, std::uint32_t count) {
    using T = typename D::Element;
    using Fours = RowsOfFour<T>;
    const HeldFours<T> columns(asColumns(a));
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        multiplyVectorObject<4, true>(a, x.object(k), z.object(k), d.object(k));
        return ZELM_OK;
    };
    const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
        ZELM_UNROLL
        for (unsigned object = 0; object < kLanesOf<typename decltype(pack)::Pack>;
             object += kRowsOf<Fours>) {
            const auto vectors = foursFrom<Fours>(x.object(k + object).start, x.objStride);
            const Fours products[4] = {
                spreadInFours<0>(vectors) * columns.row[0], spreadInFours<1>(vectors) * columns.row[1],
                spreadInFours<2>(vectors) * columns.row[2], spreadInFours<3>(vectors) * columns.row[3]};
            Fours sums = sumOf<vectorSumOfRow<T, true, kIsTransposed<A>, 4>(0)>(products);
            if constexpr (kAdds<Z>)
                sums = sums + foursFrom<Fours>(z.object(k + object).start, z.objStride);
            storeFours(d.object(k + object).start, d.objStride, sums);
        }
        return true;
    };
    if constexpr (kAdds<Z>)
        return forEachInGroups<kVectorsOfFour>(count, NoBuffer(), group, one, writes(d, 1, 4), reads(a, 4, 4),
                                               reads(x, 1, 4, InPlace::Yes), reads(z, 1, 4, InPlace::Yes));
    else
        return forEachInGroups<kVectorsOfFour>(count, NoBuffer(), group, one, writes(d, 1, 4), reads(a, 4, 4),
                                               reads(x, 1, 4, InPlace::Yes));
}
#endif

} // namespace zelm::products
