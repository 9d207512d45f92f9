// Sums that live in dst: run-time forms, and single objects of P. An element of dst is set to zero and takes
// one product after the other, each stored.
#pragma once

#include "frame/objects.h"
#include "products/rules.h"

namespace zelm::products {

// Whether the running sum is read back from dst for every term, or kept beside it.
template <typename D>
constexpr bool kSumLivesInDst = D::isTable || D::isList;

template <bool livesInDst, typename A, typename B, typename D>
ZELM_INLINE void accumulateMatrix(const A &a, const B &b, const D &d, Bounds bounds, Pitches pitches) {
    using T = typename D::Element;
    for (std::uint32_t i = 0; i < bounds.rows; ++i) {
        for (std::uint32_t j = 0; j < bounds.columns; ++j) {
            T sum = 0;
            d.set(i, j, pitches.result, sum);
            for (std::uint32_t t = 0; t < bounds.terms; ++t) {
                const T product = used(a, i, t, pitches.first) * used(b, t, j, pitches.second);
                if constexpr (livesInDst)
                    sum = d.get(i, j, pitches.result);
                sum = sum + product;
                d.set(i, j, pitches.result, sum);
            }
        }
    }
}

// The entries of a position are tested just before it is used, dst's before it is set to zero.
template <typename A, typename B, typename T>
ZELM_INLINE ZelmStatus accumulateTested(const A &a, const B &b, const Table<T> &d, Bounds bounds,
                                        Pitches pitches) {
    for (std::uint32_t i = 0; i < bounds.rows; ++i) {
        for (std::uint32_t j = 0; j < bounds.columns; ++j) {
            if (d.elementIsNull(usedEntry(d, i, j, pitches.result)))
                return ZELM_ERR_NULL_PTR;
            d.set(i, j, pitches.result, T{0});
            for (std::uint32_t t = 0; t < bounds.terms; ++t) {
                if (a.elementIsNull(usedEntry(a, i, t, pitches.first)) ||
                    b.elementIsNull(usedEntry(b, t, j, pitches.second)))
                    return ZELM_ERR_NULL_PTR;
                const T product = used(a, i, t, pitches.first) * used(b, t, j, pitches.second);
                d.set(i, j, pitches.result, d.get(i, j, pitches.result) + product);
            }
        }
    }
    return ZELM_OK;
}

// ---- by vectors

// Gaxpy's third operand, where there is one.
struct Nothing : WithoutTable {
    static constexpr bool isNull() { return false; }
    ZELM_INLINE Nothing object(std::uint32_t) const { return {}; }
};

template <typename Z>
constexpr bool kAdds = !std::is_same_v<Z, Nothing>;

template <typename T, typename Z>
ZELM_INLINE T plus(T sum, const Z &z, std::uint32_t i) {
    if constexpr (kAdds<Z>)
        return sum + z.get(i);
    else
        return sum;
}

template <bool livesInDst, typename A, typename X, typename Z, typename D>
ZELM_INLINE void accumulateVector(const A &a, const X &x, const Z &z, const D &d, std::uint32_t rows,
                                  std::uint32_t terms, std::uint32_t pitch) {
    using T = typename D::Element;
    for (std::uint32_t i = 0; i < rows; ++i) {
        T sum = 0;
        d.set(i, sum);
        for (std::uint32_t t = 0; t < terms; ++t) {
            const T product = used(a, i, t, pitch) * x.get(t);
            if constexpr (livesInDst)
                sum = d.get(i);
            sum = sum + product;
            d.set(i, sum);
        }
        if constexpr (kAdds<Z>)
            d.set(i, d.get(i) + z.get(i));
    }
}

// The same without a loop, for small orders.
template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE void accumulateVectorUnrolled(const A &a, const X &x, const Z &z, const D &d) {
    using T = typename D::Element;
    ZELM_UNROLL
    for (std::uint32_t i = 0; i < N; ++i) {
        T sum = 0;
        d.set(i, sum);
        ZELM_UNROLL
        for (std::uint32_t t = 0; t < N; ++t) {
            sum = sum + used(a, i, t, N) * x.get(t);
            d.set(i, sum);
        }
        d.set(i, sum + z.get(i));
    }
}

// Mul tests src1's entry ahead of src2's, Gaxpy the other way round: a null one of either ends the call
// alike.
template <typename A, typename X, typename Z, typename T>
ZELM_INLINE ZelmStatus accumulateVectorTested(const A &a, const X &x, const Z &z, const Table<T> &d,
                                              std::uint32_t rows, std::uint32_t terms, std::uint32_t pitch) {
    for (std::uint32_t i = 0; i < rows; ++i) {
        if (z.elementIsNull(i) || d.elementIsNull(i))
            return ZELM_ERR_NULL_PTR;
        d.set(i, T{0});
        for (std::uint32_t t = 0; t < terms; ++t) {
            if (a.elementIsNull(usedEntry(a, i, t, pitch)) || x.elementIsNull(t))
                return ZELM_ERR_NULL_PTR;
            const T product = used(a, i, t, pitch) * x.get(t);
            d.set(i, d.get(i) + product);
        }
        if constexpr (kAdds<Z>)
            d.set(i, d.get(i) + z.get(i));
    }
    return ZELM_OK;
}

} // namespace zelm::products
