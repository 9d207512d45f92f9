// Products of matrices inside one object: rows of the result as packs, each the sum of rows of src2 times an
// element of src1's row. Every element keeps its chain of sums.
#pragma once

#include "frame/groups.h"
#include "frame/widths.h"
#include "products/rules.h"

namespace zelm::products {

// Rows of 64-bit float begin with a pack of four where the build has it.
template <typename T, unsigned N>
constexpr unsigned kWideLanes = kInsideBytes == 32 && sizeof(T) == 8 && N > 4 ? 4 : 0;

template <typename T, unsigned N>
constexpr unsigned kRowPacks = (N - kWideLanes<T, N>) / kLanes<T>;

// The columns behind the packs: one element by element, two of 32f in pairs of rows.
template <typename T, unsigned N>
constexpr unsigned kRowRest = N % kLanes<T>;

// An element that is used by itself and in all lanes is loaded once. The compiler would otherwise make the
// load a part of every instruction that spreads it: there are more places to multiply than to load, and a 3x3
// product of 64-bit float took 1.3 times as long.
template <typename T>
ZELM_INLINE T loadedOnce(T element) {
    if constexpr (kWidestBytes == 64)
        __asm__("" : "+v"(element));
    return element;
}

// Whether the elements of a row as it is used are adjacent.
template <typename Object>
constexpr bool kHasRows = Object::isDense && !kIsTransposed<Object>;

template <unsigned first, typename B>
ZELM_INLINE Pack<typename B::Element> packOfRow(const B &b, std::uint32_t row) {
    using T = typename B::Element;
    if constexpr (kHasRows<B>)
        return loadPack<T>(b.rowStart(row) + first * sizeof(T));
    else
        return packOf<T>([&](unsigned lane) ZELM_INLINE_LAMBDA { return used(b, row, first + lane, 0); });
}

template <typename T, unsigned N>
using WideOfRow = Pack<T, kWideLanes<T, N> == 0 ? kBlockBytes : 32>;

template <unsigned N, typename B>
ZELM_INLINE WideOfRow<typename B::Element, N> wideOfRow(const B &b, std::uint32_t row) {
    using T = typename B::Element;
    if constexpr (kWideLanes<T, N> == 0)
        return {};
    else if constexpr (kHasRows<B>)
        return loadAs<WideOfRow<T, N>>(b.rowStart(row));
    else
        return joined(packOfRow<0>(b, row), packOfRow<2>(b, row));
}

// A matrix read ahead of the writes.
template <typename T, unsigned N>
struct HeldRows {
    static constexpr unsigned wide = kWideLanes<T, N>, packs = kRowPacks<T, N>, rest = kRowRest<T, N>;
    WideOfRow<T, N> first[wide == 0 ? 1 : N];
    Pack<T> pack[N][packs == 0 ? 1 : packs];
    Pack<T> pair[rest == 2 ? N : 1]; // the last two elements, twice
    T last[rest == 1 ? N : 1];

    template <typename B>
    ZELM_INLINE explicit HeldRows(const B &b) {
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t) {
            if constexpr (wide != 0)
                first[t] = wideOfRow<N>(b, t);
            if constexpr (packs > 0)
                pack[t][0] = packOfRow<wide>(b, t);
            if constexpr (packs > 1)
                pack[t][1] = packOfRow<2>(b, t);
            if constexpr (packs > 2)
                pack[t][2] = packOfRow<4>(b, t);
            if constexpr (rest == 2) {
                const Floats4 two =
                    _mm_unpacklo_ps(_mm_set_ss(used(b, t, N - 2, 0)), _mm_set_ss(used(b, t, N - 1, 0)));
                pair[t] = _mm_movelh_ps(two, two);
            }
            if constexpr (rest == 1)
                last[t] = used(b, t, N - 1, 0);
        }
    }
};

template <typename T, unsigned N>
struct RowResult {
    WideOfRow<T, N> first;
    Pack<T> pack[kRowPacks<T, N> == 0 ? 1 : kRowPacks<T, N>];
    T last;
};

template <typename T, unsigned N, typename A>
ZELM_INLINE RowResult<T, N> rowOf(const A &a, std::uint32_t i, const HeldRows<T, N> &b) {
    RowResult<T, N> row;
    row.last = 0;
    ZELM_UNROLL
    for (unsigned t = 0; t < N; ++t) {
        const T element = kRowRest<T, N> == 1 ? loadedOnce(used(a, i, t, 0)) : used(a, i, t, 0);
        if constexpr (kWideLanes<T, N> != 0) {
            const auto products = spread<WideOfRow<T, N>>(element) * b.first[t];
            row.first = t == 0 ? products : row.first + products;
        }
        const Pack<T> factor = spread<Pack<T>>(element);
        ZELM_UNROLL
        for (unsigned p = 0; p < kRowPacks<T, N>; ++p)
            row.pack[p] = t == 0 ? factor * b.pack[t][p] : row.pack[p] + factor * b.pack[t][p];
        if constexpr (kRowRest<T, N> == 1)
            row.last = t == 0 ? element * b.last[t] : row.last + element * b.last[t];
    }
    return row;
}

// From element (i, j) on.
template <typename V, typename D>
ZELM_INLINE void storeInRow(const D &d, std::uint32_t i, std::uint32_t j, V values) {
    if constexpr (D::isDense) {
        storePack(d.address(i, j, 0), values);
    } else {
        LaneAddresses<V> at;
        ZELM_UNROLL
        for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
            at[lane] = d.address(i, j + lane, 0);
        scatter(at, values);
    }
}

template <typename T, unsigned N, typename D>
ZELM_INLINE void storeRowOf(const RowResult<T, N> &row, const D &d, std::uint32_t i) {
    constexpr unsigned wide = kWideLanes<T, N>;
    if constexpr (wide != 0)
        storeInRow(d, i, 0, row.first);
    ZELM_UNROLL
    for (unsigned p = 0; p < kRowPacks<T, N>; ++p)
        storeInRow(d, i, wide + p * kLanes<T>, row.pack[p]);
    if constexpr (kRowRest<T, N> == 1)
        d.set(i, N - 1, 0, row.last);
}

template <typename A>
ZELM_INLINE void multiplyRows(const A &a, const HeldRows<float, 6> &b, const Dense<float> &d) {
    ZELM_UNROLL
    for (unsigned i = 0; i < 6; i += 2) {
        Floats4 sums[2], pair;
        ZELM_UNROLL
        for (unsigned t = 0; t < 6; ++t) {
            const Floats4 one = spread<Floats4>(used(a, i, t, 0));
            const Floats4 other = spread<Floats4>(used(a, i + 1, t, 0));
            const Floats4 both = _mm_movelh_ps(one, other) * b.pair[t];
            sums[0] = t == 0 ? one * b.pack[t][0] : sums[0] + one * b.pack[t][0];
            sums[1] = t == 0 ? other * b.pack[t][0] : sums[1] + other * b.pack[t][0];
            pair = t == 0 ? both : pair + both;
        }
        storePack(d.rowStart(i), sums[0]);
        _mm_storel_pi(reinterpret_cast<__m64 *>(d.rowStart(i) + 16), pair);
        storePack(d.rowStart(i + 1), sums[1]);
        _mm_storeh_pi(reinterpret_cast<__m64 *>(d.rowStart(i + 1) + 16), pair);
    }
}

template <typename T, unsigned N, typename A, typename D>
ZELM_INLINE void multiplyRows(const A &a, const HeldRows<T, N> &b, const D &d) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        storeRowOf(rowOf<T, N>(a, i, b), d, i);
}

// A pack of which some lanes are stored. clang++ takes unmasked exceptions for impossible: the other lanes it
// would compute on whatever is at hand, which may trap.
template <typename V>
ZELM_INLINE V inAllLanes(V pack) {
#if defined(__clang__)
    __asm__("" : "+x"(pack));
#endif
    return pack;
}

// ---- 32f 3x3: a row is a pack whose last lane is not used. It holds the element before it again, which
// raises no exception that this element doesn't raise. Rows that follow each other without a gap are loaded
// and stored over each other, never outside of the matrix.

ZELM_INLINE Floats4 loadThree(Address from) {
    const Floats4 third = _mm_load_ss(reinterpret_cast<const float *>(from + 8));
    return _mm_shuffle_ps(loadTwo(from), third, _MM_SHUFFLE(0, 0, 1, 0));
}

template <typename A>
ZELM_INLINE Floats4 threeOfRow(const A &a, std::uint32_t row) {
    if constexpr (kIsTransposed<A>)
        return _mm_setr_ps(used(a, row, 0, 0), used(a, row, 1, 0), used(a, row, 2, 0), used(a, row, 2, 0));
    else
        return loadThree(a.rowStart(row));
}

// Where the next row's first element is loaded along, the last lane holds that, ...
template <typename A>
ZELM_INLINE void loadThreeRows(const A &a, Floats4 (&row)[3]) {
    if constexpr (!kIsTransposed<A>) {
        if (__builtin_expect(a.rowStride == 12, 1)) {
            row[0] = loadPack<float>(a.start);
            row[1] = loadPack<float>(a.start + 12);
            const Floats4 last = loadPack<float>(a.start + 20);
            row[2] = _mm_shuffle_ps(last, last, _MM_SHUFFLE(3, 3, 2, 1));
            return;
        }
    }
    ZELM_UNROLL
    for (unsigned t = 0; t < 3; ++t)
        row[t] = threeOfRow(a, t);
}

// ... but not in rows that are multiplied.
template <>
struct HeldRows<float, 3> {
    Floats4 row[3];
    template <typename A>
    ZELM_INLINE explicit HeldRows(const A &a) {
        loadThreeRows(a, row);
        ZELM_UNROLL
        for (unsigned t = 0; t < 2; ++t)
            row[t] = _mm_shuffle_ps(row[t], row[t], _MM_SHUFFLE(2, 2, 1, 0));
    }
};

ZELM_INLINE void storeThree(Address to, Floats4 row) {
    row = inAllLanes(row);
    _mm_storel_pi(reinterpret_cast<__m64 *>(to), row);
    _mm_store_ss(reinterpret_cast<float *>(to + 8), _mm_movehl_ps(row, row));
}

template <unsigned lane>
ZELM_INLINE Floats4 spreadLane(Floats4 pack) {
    return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(pack), lane * 0x55));
}

template <unsigned i, typename A>
ZELM_INLINE Floats4 rowOfThrees(const Floats4 (&a)[3], const HeldRows<float, 3> &b) {
    if constexpr (kIsTransposed<A>)
        return (spreadLane<i>(a[0]) * b.row[0] + spreadLane<i>(a[1]) * b.row[1]) +
               spreadLane<i>(a[2]) * b.row[2];
    else
        return (spreadLane<0>(a[i]) * b.row[0] + spreadLane<1>(a[i]) * b.row[1]) +
               spreadLane<2>(a[i]) * b.row[2];
}

template <typename A>
ZELM_INLINE void multiplyRows(const A &a, const HeldRows<float, 3> &b, const Dense<float> &d) {
    Floats4 first[3]; // as stored
    loadThreeRows(static_cast<const Dense<const float> &>(a), first);
    const Floats4 rows[3] = {rowOfThrees<0, A>(first, b), rowOfThrees<1, A>(first, b),
                             rowOfThrees<2, A>(first, b)};
    if (__builtin_expect(d.rowStride == 12, 1)) {
        storePack(d.start, rows[0]);
        storePack(d.start + 12, rows[1]);
        storeThree(d.start + 24, rows[2]);
    } else {
        ZELM_UNROLL
        for (unsigned i = 0; i < 3; ++i)
            storeThree(d.rowStart(i), rows[i]);
    }
}

} // namespace zelm::products
