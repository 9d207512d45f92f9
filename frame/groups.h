// A group: as many objects as a pack has lanes, loaded so that lane l of a pack holds an element of object l.
#pragma once

#include "frame/operands.h"
#include "frame/shuffles.h"

#include <utility>

namespace zelm::frame {

// One address per lane.
template <typename V>
using LaneAddresses = Address[kLanesOf<V>];

// ---- one element of each object

ZELM_INLINE Floats4 gatherBlock(const Address *at, float) {
    return _mm_setr_ps(load<float>(at[0]), load<float>(at[1]), load<float>(at[2]), load<float>(at[3]));
}

ZELM_INLINE Doubles2 gatherBlock(const Address *at, double) {
    return _mm_loadh_pd(_mm_load_sd(reinterpret_cast<const double *>(at[0])),
                        reinterpret_cast<const double *>(at[1]));
}

ZELM_INLINE void scatterBlock(const Address *at, Floats4 value) {
    _mm_store_ss(reinterpret_cast<float *>(at[0]), value);
    _mm_store_ss(reinterpret_cast<float *>(at[1]), _mm_shuffle_ps(value, value, 0x55));
    _mm_store_ss(reinterpret_cast<float *>(at[2]), _mm_movehl_ps(value, value));
    _mm_store_ss(reinterpret_cast<float *>(at[3]), _mm_shuffle_ps(value, value, 0xff));
}

ZELM_INLINE void scatterBlock(const Address *at, Doubles2 value) {
    _mm_storel_pd(reinterpret_cast<double *>(at[0]), value);
    _mm_storeh_pd(reinterpret_cast<double *>(at[1]), value);
}

template <typename V>
ZELM_INLINE V gather(const Address *at) {
    using T = ElementOf<V>;
    return fromBlocks<V>([at](unsigned b)
                             ZELM_INLINE_LAMBDA { return gatherBlock(at + b * kLanes<T>, T{}); });
}

template <typename V>
ZELM_INLINE void scatter(const Address *at, V value) {
    toBlocks(value, [at](unsigned b, auto block)
                        ZELM_INLINE_LAMBDA { scatterBlock(at + b * kLanes<ElementOf<V>>, block); });
}

// ---- adjacent elements of each object, transposed on the way; nothing beside them is touched

// Block b is the 16 bytes at the first address of that block.
template <typename V>
ZELM_INLINE V loadBlocks(const Address *at, Address offset) {
    using T = ElementOf<V>;
    return fromBlocks<V>([&](unsigned b)
                             ZELM_INLINE_LAMBDA { return loadPack<T>(at[b * kLanes<T>] + offset); });
}

template <typename V>
ZELM_INLINE void storeBlocks(const Address *at, Address offset, V value) {
    toBlocks(value, [&](unsigned b, auto block)
                        ZELM_INLINE_LAMBDA { storePack(at[b * kLanes<ElementOf<V>>] + offset, block); });
}

// Two elements of each of the first two objects of a block.
template <typename V>
ZELM_INLINE V loadPairs(const Address *at, Address offset) {
    return fromBlocks<V>([&](unsigned b) ZELM_INLINE_LAMBDA {
        return loadTwoAndTwo(at[b * 4] + offset, at[b * 4 + 1] + offset);
    });
}

template <typename V>
ZELM_INLINE void storePairs(const Address *at, Address offset, V value) {
    toBlocks(value, [&](unsigned b, auto block) ZELM_INLINE_LAMBDA {
        _mm_storel_pi(reinterpret_cast<__m64 *>(at[b * 4] + offset), block);
        _mm_storeh_pi(reinterpret_cast<__m64 *>(at[b * 4 + 1] + offset), block);
    });
}

template <typename V>
ZELM_INLINE void loadFour(const Address *at, Address offset, V *out) {
    V r0 = loadBlocks<V>(at, offset), r1 = loadBlocks<V>(at + 1, offset);
    V r2 = loadBlocks<V>(at + 2, offset), r3 = loadBlocks<V>(at + 3, offset);
    transposeFour(r0, r1, r2, r3);
    out[0] = r0, out[1] = r1, out[2] = r2, out[3] = r3;
}

template <typename V>
ZELM_INLINE void storeFour(const Address *at, Address offset, const V *in) {
    V r0 = in[0], r1 = in[1], r2 = in[2], r3 = in[3];
    transposeFour(r0, r1, r2, r3);
    storeBlocks(at, offset, r0);
    storeBlocks(at + 1, offset, r1);
    storeBlocks(at + 2, offset, r2);
    storeBlocks(at + 3, offset, r3);
}

template <typename V>
ZELM_INLINE void loadTwo(const Address *at, Address offset, V *out) {
    if constexpr (sizeof(ElementOf<V>) == 4) {
        const V a = loadPairs<V>(at, offset), b = loadPairs<V>(at + 2, offset);
        out[0] = shuffle<0, 2, 0, 2>(a, b);
        out[1] = shuffle<1, 3, 1, 3>(a, b);
    } else {
        const V a = loadBlocks<V>(at, offset), b = loadBlocks<V>(at + 1, offset);
        out[0] = interleaveLow(a, b);
        out[1] = interleaveHigh(a, b);
    }
}

template <typename V>
ZELM_INLINE void storeTwo(const Address *at, Address offset, const V *in) {
    const V low = interleaveLow(in[0], in[1]), high = interleaveHigh(in[0], in[1]);
    if constexpr (sizeof(ElementOf<V>) == 4) {
        storePairs(at, offset, low);
        storePairs(at + 2, offset, high);
    } else {
        storeBlocks(at, offset, low);
        storeBlocks(at + 1, offset, high);
    }
}

template <typename V>
ZELM_INLINE void shifted(const Address *at, Address offset, Address *out) {
    ZELM_UNROLL
    for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
        out[lane] = at[lane] + offset;
}

template <unsigned N, typename V>
ZELM_INLINE void loadAdjacent(const Address *at, V *out) {
    using T = ElementOf<V>;
    constexpr unsigned four = sizeof(T) == 4 ? N / 4 * 4 : 0, two = N / 2 * 2;
    if constexpr (four != 0)
        loadFour(at, 0, out);
    ZELM_UNROLL
    for (unsigned j = four; j < two; j += 2)
        loadTwo(at, j * sizeof(T), out + j);
    if constexpr (two != N) {
        LaneAddresses<V> last;
        shifted<V>(at, two * sizeof(T), last);
        out[two] = gather<V>(last);
    }
}

template <unsigned N, typename V>
ZELM_INLINE void storeAdjacent(const Address *at, const V *in) {
    using T = ElementOf<V>;
    constexpr unsigned four = sizeof(T) == 4 ? N / 4 * 4 : 0, two = N / 2 * 2;
    if constexpr (four != 0)
        storeFour(at, 0, in);
    ZELM_UNROLL
    for (unsigned j = four; j < two; j += 2)
        storeTwo(at, j * sizeof(T), in + j);
    if constexpr (two != N) {
        LaneAddresses<V> last;
        shifted<V>(at, two * sizeof(T), last);
        scatter(last, in[two]);
    }
}

// ---- every second element: the packs that hold them, up to the last one's end, shuffled

template <typename V, unsigned... lane>
ZELM_INLINE V loadAlternate(Address first, std::integer_sequence<unsigned, lane...>) {
    constexpr unsigned lanes = kLanesOf<V>;
    const V low = loadAs<V>(first), high = loadAs<V>(first + (lanes - 1) * sizeof(ElementOf<V>));
    return __builtin_shufflevector(low, high, (lane < lanes / 2 ? 2 * lane : 2 * lane + 1)...);
}
template <typename V>
ZELM_INLINE V loadAlternate(Address first) {
    return loadAlternate<V>(first, std::make_integer_sequence<unsigned, kLanesOf<V>>());
}

#if defined(__AVX512VL__) && defined(__AVX512DQ__)
// Stored likewise: the elements between them are not touched.
ZELM_INLINE void storeEven(Address to, Floats4 a) {
    _mm_mask_storeu_ps(reinterpret_cast<void *>(to), 0x5, a);
}
ZELM_INLINE void storeEven(Address to, Floats8 a) {
    _mm256_mask_storeu_ps(reinterpret_cast<void *>(to), 0x55, a);
}
ZELM_INLINE void storeEven(Address to, Floats16 a) {
    _mm512_mask_storeu_ps(reinterpret_cast<void *>(to), 0x5555, a);
}
ZELM_INLINE void storeEven(Address to, Doubles2 a) {
    _mm_mask_storeu_pd(reinterpret_cast<void *>(to), 0x1, a);
}
ZELM_INLINE void storeEven(Address to, Doubles4 a) {
    _mm256_mask_storeu_pd(reinterpret_cast<void *>(to), 0x5, a);
}
ZELM_INLINE void storeEven(Address to, Doubles8 a) {
    _mm512_mask_storeu_pd(reinterpret_cast<void *>(to), 0x55, a);
}

template <typename V, unsigned... lane>
ZELM_INLINE void storeAlternate(Address first, V a, std::integer_sequence<unsigned, lane...>) {
    storeEven(first, __builtin_shufflevector(a, a, (lane / 2)...));
    storeEven(first + sizeof(V), __builtin_shufflevector(a, a, (kLanesOf<V> / 2 + lane / 2)...));
}
template <typename V>
ZELM_INLINE void storeAlternate(Address first, V a) {
    storeAlternate(first, a, std::make_integer_sequence<unsigned, kLanesOf<V>>());
}
#endif

// Whether an array's objects may lie so. Narrow packs are gathered as fast.
template <typename Array>
constexpr bool kAlternatesInGroups = false;
template <typename T>
constexpr bool kAlternatesInGroups<TableArray<T>> = kWidestBytes > kBlockBytes;

// ---- objects of three adjacent elements that follow each other without a gap: a block of objects is three
// blocks of memory

template <typename V>
ZELM_INLINE V loadThird(Address at, unsigned third) {
    return fromBlocks<V>([&](unsigned b) ZELM_INLINE_LAMBDA {
        return loadPack<ElementOf<V>>(at + (b * 3 + third) * kBlockBytes);
    });
}

template <typename V>
ZELM_INLINE void storeThird(Address at, unsigned third, V value) {
    toBlocks(value, [&](unsigned b, auto block)
                        ZELM_INLINE_LAMBDA { storePack(at + (b * 3 + third) * kBlockBytes, block); });
}

// Three packs of such memory to one pack per element.
template <typename V>
ZELM_INLINE void transposeThrees(V r0, V r1, V r2, V *out) {
    if constexpr (sizeof(ElementOf<V>) == 4) {
        const V a = shuffle<2, 3, 1, 2>(r1, r2), b = shuffle<1, 2, 0, 1>(r0, r1);
        out[0] = shuffle<0, 3, 0, 2>(r0, a);
        out[1] = shuffle<0, 2, 1, 3>(b, a);
        out[2] = shuffle<1, 3, 0, 3>(b, r2);
    } else {
        out[0] = shuffle<0, 1>(r0, r1);
        out[1] = shuffle<1, 0>(r0, r2);
        out[2] = shuffle<0, 1>(r1, r2);
    }
}

template <typename V>
ZELM_INLINE void loadThrees(Address at, V *out) {
    transposeThrees(loadThird<V>(at, 0), loadThird<V>(at, 1), loadThird<V>(at, 2), out);
}

template <typename V>
ZELM_INLINE void storeThrees(Address at, const V *in) {
    if constexpr (sizeof(ElementOf<V>) == 4) {
        const V a = shuffle<0, 2, 0, 2>(in[0], in[1]), b = shuffle<1, 3, 1, 3>(in[1], in[2]);
        const V c = shuffle<0, 2, 1, 3>(in[2], in[0]);
        storeThird(at, 0, shuffle<0, 2, 0, 2>(a, c));
        storeThird(at, 1, shuffle<0, 2, 1, 3>(b, a));
        storeThird(at, 2, shuffle<1, 3, 1, 3>(c, b));
    } else {
        storeThird(at, 0, interleaveLow(in[0], in[1]));
        storeThird(at, 1, shuffle<0, 1>(in[2], in[0]));
        storeThird(at, 2, interleaveHigh(in[1], in[2]));
    }
}

// ---- rows of groups

template <typename Array>
constexpr bool kIsDenseArray = false;
template <typename T>
constexpr bool kIsDenseArray<DenseArray<T>> = true;

// The first N elements of row number row(lane) of each of the objects from k on.
template <unsigned N, unsigned columns = N, typename V, typename Array, typename RowOfLane>
ZELM_INLINE void loadRowOfEach(const Array &array, std::uint32_t k, RowOfLane row, V *out) {
    LaneAddresses<V> at;
    if constexpr (kHasDenseObjects<Array>) {
        ZELM_UNROLL
        for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
            at[lane] = array.object(k + lane).rowStart(row(lane));
        loadAdjacent<N>(at, out);
    } else {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j) {
            ZELM_UNROLL
            for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
                at[lane] = array.object(k + lane).address(row(lane), j, columns);
            out[j] = gather<V>(at);
        }
    }
}

template <unsigned N, unsigned columns = N, typename V, typename Array, typename RowOfLane>
ZELM_INLINE void storeRowOfEach(const Array &array, std::uint32_t k, RowOfLane row, const V *in) {
    LaneAddresses<V> at;
    if constexpr (kHasDenseObjects<Array>) {
        ZELM_UNROLL
        for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
            at[lane] = array.object(k + lane).rowStart(row(lane));
        storeAdjacent<N>(at, in);
    } else {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j) {
            ZELM_UNROLL
            for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
                at[lane] = array.object(k + lane).address(row(lane), j, columns);
            scatter(at, in[j]);
        }
    }
}

// The first N elements of row i, which has `columns` of them, of each of the objects from k on.
template <unsigned N, unsigned columns = N, typename V, typename Array>
ZELM_INLINE void loadRow(const Array &array, std::uint32_t k, unsigned i, V *out) {
    if constexpr (kLanesOf<V> == 1) {
        const auto object = array.object(k);
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            out[j] = object.get(i, j, columns);
    } else if constexpr (Array::isSideBySide) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            out[j] = loadAs<V>(array.object(k).address(i, j, columns));
    } else {
        if constexpr (kAlternatesInGroups<Array>) {
            if (array.objStride == 2 * sizeof(ElementOf<V>)) {
                ZELM_UNROLL
                for (unsigned j = 0; j < N; ++j)
                    out[j] = loadAlternate<V>(array.object(k).address(i, j, columns));
                return;
            }
        }
        if constexpr (N == 3 && kIsDenseArray<Array>)
            if (array.objStride == 3 * sizeof(ElementOf<V>))
                return loadThrees(array.object(k).rowStart(i), out);
        loadRowOfEach<N, columns>(
            array, k, [i](unsigned) { return i; }, out);
    }
}

template <unsigned N, unsigned columns = N, typename V, typename Array>
ZELM_INLINE void storeRow(const Array &array, std::uint32_t k, unsigned i, const V *in) {
    if constexpr (kLanesOf<V> == 1) {
        const auto object = array.object(k);
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            object.set(i, j, columns, in[j]);
    } else if constexpr (Array::isSideBySide) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            storePack(array.object(k).address(i, j, columns), in[j]);
    } else {
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
        if constexpr (kAlternatesInGroups<Array>) {
            if (array.objStride == 2 * sizeof(ElementOf<V>)) {
                ZELM_UNROLL
                for (unsigned j = 0; j < N; ++j)
                    storeAlternate(array.object(k).address(i, j, columns), in[j]);
                return;
            }
        }
#endif
        if constexpr (N == 3 && kIsDenseArray<Array>)
            if (array.objStride == 3 * sizeof(ElementOf<V>))
                return storeThrees(array.object(k).rowStart(i), in);
        storeRowOfEach<N, columns>(
            array, k, [i](unsigned) { return i; }, in);
    }
}

} // namespace zelm::frame
