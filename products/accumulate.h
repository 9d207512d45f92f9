// Sums that live in dst: run-time forms, and single objects of P. An element of dst is set to zero and takes
// one product after the other, each stored.
#pragma once

#include "frame/objects.h"
#include "frame/overlap.h"
#include "products/matrix_rows.h"

namespace zelm::products {

// What stands in dst between two products is what was stored there last, so that the sum is kept beside it;
// the stores are for sources that lie over dst.
template <typename A, typename B, typename D>
ZELM_INLINE void accumulateMatrix(const A &a, const B &b, const D &d, Bounds bounds, Pitches pitches) {
    using T = typename D::Element;
    for (std::uint32_t i = 0; i < bounds.rows; ++i) {
        for (std::uint32_t j = 0; j < bounds.columns; ++j) {
            T sum = 0;
            d.set(i, j, pitches.result, sum);
            for (std::uint32_t t = 0; t < bounds.terms; ++t) {
                sum = sum + used(a, i, t, pitches.first) * used(b, t, j, pitches.second);
                d.set(i, j, pitches.result, sum);
            }
        }
    }
}

// The entries of a position are tested just before it is used, dst's before it is set to zero.
template <typename A, typename B, typename T>
ZELM_NOINLINE ZelmStatus accumulateTested(A a, B b, Table<T> d, Bounds bounds, Pitches pitches) {
    for (std::uint32_t i = 0; i < bounds.rows; ++i) {
        for (std::uint32_t j = 0; j < bounds.columns; ++j) {
            if (d.elementIsNull(usedEntry(d, i, j, pitches.result)))
                return ZELM_ERR_NULL_PTR;
            T sum = 0;
            d.set(i, j, pitches.result, sum);
            for (std::uint32_t t = 0; t < bounds.terms; ++t) {
                if (a.elementIsNull(usedEntry(a, i, t, pitches.first)) ||
                    b.elementIsNull(usedEntry(b, t, j, pitches.second)))
                    return ZELM_ERR_NULL_PTR;
                sum = sum + used(a, i, t, pitches.first) * used(b, t, j, pitches.second);
                d.set(i, j, pitches.result, sum);
            }
        }
    }
    return ZELM_OK;
}

// The same for a small order: where no entry is null, none is tested where it is used.
template <unsigned entries, typename Operand>
ZELM_INLINE bool anyIsNull(const Operand &operand) {
    ZELM_UNROLL
    for (unsigned e = 0; e < entries; ++e)
        if (operand.elementIsNull(e))
            return true;
    return false;
}

// Tables whose entries ascend from one that isn't null have no null entry, and their elements lie between the
// first and the last. (Entries that shifts take around the whole address space have no such range.)
template <unsigned entries, typename T>
ZELM_INLINE bool ascends(const Table<T> &operand) {
    if (operand.elementIsNull(0))
        return false;
    ZELM_UNROLL
    for (unsigned e = 1; e < entries; ++e)
        if (addressOf(operand.table[e]) <= addressOf(operand.table[e - 1]))
            return false;
    return signedDistance(operand.position(entries - 1) - operand.position(0)) >= 0;
}

template <unsigned entries, typename S, typename D>
ZELM_INLINE bool ascendingAreDisjoint(const Table<S> &s, const Table<D> &d) {
    return areDisjoint(s.position(0), s.position(entries - 1) - s.position(0) + sizeof(S), d.position(0),
                       d.position(entries - 1) - d.position(0) + sizeof(D));
}

// Row by row in packs, where no partial sum can be seen. Lanes behind the last column hold it again.
template <unsigned N, typename A, typename B, typename T>
ZELM_INLINE void multiplyTablesApart(const A &a, const B &b, const Table<T> &d) {
    constexpr unsigned lanes = kLanes<T>, packs = (N + lanes - 1) / lanes;
    Pack<T> rows[N][packs];
    ZELM_UNROLL
    for (unsigned t = 0; t < N; ++t) {
        ZELM_UNROLL
        for (unsigned p = 0; p < packs; ++p) {
            rows[t][p] = packOf<T>([&](unsigned lane) ZELM_INLINE_LAMBDA {
                const unsigned j = p * lanes + lane;
                return used(b, t, j < N ? j : N - 1, N);
            });
        }
    }
    for (unsigned i = 0; i < N; ++i) {
        Pack<T> sums[packs] = {};
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t) {
            const Pack<T> factor = spread<Pack<T>>(used(a, i, t, N));
            ZELM_UNROLL
            for (unsigned p = 0; p < packs; ++p)
                sums[p] = sums[p] + factor * rows[t][p];
        }
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            d.set(i, j, N, inAllLanes(sums[j / lanes])[j % lanes]);
    }
}

template <unsigned N, typename A, typename B, typename T>
ZELM_INLINE ZelmStatus accumulateTested(const A &a, const B &b, const Table<T> &d) {
    constexpr unsigned entries = N * N;
    if (ascends<entries>(d) && ascends<entries>(a) && ascends<entries>(b) &&
        ascendingAreDisjoint<entries>(a, d) && ascendingAreDisjoint<entries>(b, d)) {
        multiplyTablesApart<N>(a, b, d);
        return ZELM_OK;
    }
    if (anyIsNull<N * N>(a) || anyIsNull<N * N>(b) || anyIsNull<N * N>(d))
        return accumulateTested(a, b, d, Bounds{N, N, N}, Pitches{N, N, N});
    for (unsigned i = 0; i < N; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j) {
            T sum = 0;
            d.set(i, j, N, sum);
            ZELM_UNROLL
            for (unsigned t = 0; t < N; ++t) {
                sum = sum + used(a, i, t, N) * used(b, t, j, N);
                d.set(i, j, N, sum);
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

template <typename A, typename X, typename Z, typename D>
ZELM_INLINE void accumulateVector(const A &a, const X &x, const Z &z, const D &d, std::uint32_t rows,
                                  std::uint32_t terms, std::uint32_t pitch) {
    using T = typename D::Element;
    for (std::uint32_t i = 0; i < rows; ++i) {
        T sum = 0;
        d.set(i, sum);
        for (std::uint32_t t = 0; t < terms; ++t) {
            sum = sum + used(a, i, t, pitch) * x.get(t);
            d.set(i, sum);
        }
        if constexpr (kAdds<Z>)
            d.set(i, sum + z.get(i));
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
        if constexpr (kAdds<Z>)
            d.set(i, sum + z.get(i));
    }
}

// Mul tests src1's entry ahead of src2's, Gaxpy the other way round: a null one of either ends the call
// alike.
template <typename A, typename X, typename Z, typename T>
ZELM_NOINLINE ZelmStatus accumulateVectorTested(A a, X x, Z z, Table<T> d, std::uint32_t rows,
                                                std::uint32_t terms, std::uint32_t pitch) {
    for (std::uint32_t i = 0; i < rows; ++i) {
        if (z.elementIsNull(i) || d.elementIsNull(i))
            return ZELM_ERR_NULL_PTR;
        T sum = 0;
        d.set(i, sum);
        for (std::uint32_t t = 0; t < terms; ++t) {
            if (a.elementIsNull(usedEntry(a, i, t, pitch)) || x.elementIsNull(t))
                return ZELM_ERR_NULL_PTR;
            sum = sum + used(a, i, t, pitch) * x.get(t);
            d.set(i, sum);
        }
        if constexpr (kAdds<Z>)
            d.set(i, sum + z.get(i));
    }
    return ZELM_OK;
}

template <unsigned N, typename A, typename X, typename Z, typename T>
ZELM_INLINE ZelmStatus accumulateVectorTested(const A &a, const X &x, const Z &z, const Table<T> &d) {
    if (anyIsNull<N * N>(a) || anyIsNull<N>(x) || anyIsNull<N>(z) || anyIsNull<N>(d))
        return accumulateVectorTested(a, x, z, d, N, N, N);
    accumulateVectorUnrolled<N>(a, x, z, d);
    return ZELM_OK;
}

} // namespace zelm::products
