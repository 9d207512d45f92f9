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

} // namespace zelm::products
