// Products of dense 4x4 matrices, and of vectors of four, where a pack has room for a whole one or more:
// packs of the result are sums of rows of src2 times elements of src1's rows. Every element keeps its order
// of sums.
#pragma once

#include "products/matrix_rows.h"

namespace zelm::products {

#if defined(__AVX2__)
template <typename T>
using RowsOfFour = Pack<T, kWholeBytes>;

template <typename V>
constexpr unsigned kRowsOf = kLanesOf<V> / 4;

// Four elements, as often as a pack has room for them.
template <typename V>
ZELM_INLINE V fourRepeated(Address from) {
    using T = ElementOf<V>;
    const auto four = loadAs<Pack<T, 4 * sizeof(T)>>(from);
    if constexpr (std::is_same_v<V, std::remove_cvref_t<decltype(four)>>)
        return four;
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_broadcast_ps(reinterpret_cast<const __m128 *>(from));
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else if constexpr (std::is_same_v<V, Floats16>)
        return _mm512_broadcast_f32x4(four);
    else
        return _mm512_broadcast_f64x4(four);
#endif
}

// Element t of each four in all of their lanes.
template <unsigned t, typename V>
ZELM_INLINE V spreadInFours(V a) {
    if constexpr (sizeof(ElementOf<V>) == 4)
        return shuffle<t, t, t, t>(a, a);
    else if constexpr (std::is_same_v<V, Doubles4>)
        return _mm256_permute4x64_pd(a, t * 0x55);
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return _mm512_permutex_pd(a, t * 0x55);
#endif
}

// Element i of the first four in all of their lanes, element i + 1 of the second, and so on.
template <unsigned i, typename V, unsigned... lane>
ZELM_INLINE V spreadDiagonally(V a, std::integer_sequence<unsigned, lane...>) {
    return __builtin_shufflevector(a, a, (lane / 4 * 5 + i)...);
}

ZELM_INLINE void transposeFours(Doubles4 (&r)[4]) {
    const Doubles4 a = interleaveLow(r[0], r[1]), b = interleaveHigh(r[0], r[1]);
    const Doubles4 c = interleaveLow(r[2], r[3]), d = interleaveHigh(r[2], r[3]);
    r[0] = _mm256_permute2f128_pd(a, c, 0x20), r[1] = _mm256_permute2f128_pd(b, d, 0x20);
    r[2] = _mm256_permute2f128_pd(a, c, 0x31), r[3] = _mm256_permute2f128_pd(b, d, 0x31);
}

// The rows of src2 as used, each as often as a pack has room for it.
template <typename T>
struct HeldFours {
    using V = RowsOfFour<T>;
    V row[4];
    template <typename B>
    ZELM_INLINE explicit HeldFours(const B &b) {
        if constexpr (kIsTransposed<B> && sizeof(T) == 8) {
            Doubles4 rows[4];
            ZELM_UNROLL
            for (unsigned t = 0; t < 4; ++t)
                rows[t] = loadAs<Doubles4>(b.rowStart(t));
            transposeFours(rows);
            ZELM_UNROLL
            for (unsigned t = 0; t < 4; ++t)
                row[t] = repeated(rows[t]);
        } else {
            ZELM_UNROLL
            for (unsigned t = 0; t < 4; ++t)
                row[t] = fourRepeated<V>(b.rowStart(t));
            if constexpr (kIsTransposed<B>)
                transposeFour(row[0], row[1], row[2], row[3]);
        }
    }
    static ZELM_INLINE V repeated(Doubles4 four) {
        if constexpr (std::is_same_v<V, Doubles4>)
            return four;
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
        else
            return _mm512_broadcast_f64x4(four);
#endif
    }
};

// The matrix whose rows, as used, are another's columns.
template <typename T>
ZELM_INLINE Transposed<Dense<T>> asColumns(const Dense<T> &a) {
    return Transposed<Dense<T>>(a);
}
template <typename T>
ZELM_INLINE const Dense<T> &asColumns(const Transposed<Dense<T>> &a) {
    return a;
}

// As many fours as a pack has room for, a stride apart.
template <typename V>
ZELM_INLINE V foursFrom(Address start, Address stride) {
    using T = ElementOf<V>;
    using Half = Pack<T, sizeof(V) / 2>;
    if (kRowsOf<V> == 1 || stride == 4 * sizeof(T))
        return loadAs<V>(start);
    if constexpr (kRowsOf<V> == 4)
        return fromBlocks<V>([&](unsigned b) ZELM_INLINE_LAMBDA { return loadPack<T>(start + b * stride); });
    else
        return joined(loadAs<Half>(start), loadAs<Half>(start + stride));
}

template <typename V>
ZELM_INLINE void storeFours(Address start, Address stride, V fours) {
    if (kRowsOf<V> == 1 || stride == 4 * sizeof(ElementOf<V>)) {
        storePack(start, fours);
    } else if constexpr (kRowsOf<V> == 4) {
        toBlocks(fours,
                 [&](unsigned b, auto four) ZELM_INLINE_LAMBDA { storePack(start + b * stride, four); });
    } else {
        storePack(start, lowHalf(fours));
        storePack(start + stride, highHalf(fours));
    }
}

// Rows i, i + 1 and so on of the product. Those of src1 are read before one of dst is written.
template <unsigned i, typename T, typename A>
ZELM_INLINE void multiplyRowsFrom(const A &a, const HeldFours<T> &b, const Dense<T> &d) {
    using V = RowsOfFour<T>;
    V sums;
    const auto sumUp = [&](auto factorOf) ZELM_INLINE_LAMBDA {
        sums = factorOf.template operator()<0>() * b.row[0];
        sums = sums + factorOf.template operator()<1>() * b.row[1];
        sums = sums + factorOf.template operator()<2>() * b.row[2];
        sums = sums + factorOf.template operator()<3>() * b.row[3];
    };
    if constexpr (kRowsOf<V> == 1) {
        sumUp([&]<unsigned t>() ZELM_INLINE_LAMBDA { return spread<V>(used(a, i, t, 0)); });
    } else if constexpr (kIsTransposed<A>) {
        sumUp([&]<unsigned t>() ZELM_INLINE_LAMBDA {
            return spreadDiagonally<i>(fourRepeated<V>(a.rowStart(t)),
                                       std::make_integer_sequence<unsigned, kLanesOf<V>>());
        });
    } else {
        const V rows = foursFrom<V>(a.rowStart(i), a.rowStride);
        sumUp([&]<unsigned t>() ZELM_INLINE_LAMBDA { return spreadInFours<t>(rows); });
    }
    storeFours(d.rowStart(i), d.rowStride, sums);
    if constexpr (i + kRowsOf<V> < 4)
        multiplyRowsFrom<i + kRowsOf<V>>(a, b, d);
}

template <typename T, typename A>
ZELM_INLINE void multiplyRows(const A &a, const HeldFours<T> &b, const Dense<T> &d) {
    multiplyRowsFrom<0>(a, b, d);
}
#endif

} // namespace zelm::products
