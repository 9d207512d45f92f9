// A group: as many objects as a pack has lanes, loaded so that lane l of a pack holds an element of object l.
#pragma once

#include "frame/operands.h"
#include "frame/pack.h"

#include <utility>

namespace zelm::frame {

template <typename T>
using LaneAddresses = Address[kLanes<T>];

// ---- one element of each object

ZELM_INLINE __m128 gather(const LaneAddresses<float> &at) {
    return _mm_setr_ps(load<float>(at[0]), load<float>(at[1]), load<float>(at[2]), load<float>(at[3]));
}

ZELM_INLINE __m128d gather(const LaneAddresses<double> &at) {
    return _mm_loadh_pd(_mm_load_sd(reinterpret_cast<const double *>(at[0])),
                        reinterpret_cast<const double *>(at[1]));
}

ZELM_INLINE void scatter(const LaneAddresses<float> &at, __m128 value) {
    _mm_store_ss(reinterpret_cast<float *>(at[0]), value);
    _mm_store_ss(reinterpret_cast<float *>(at[1]), _mm_shuffle_ps(value, value, 0x55));
    _mm_store_ss(reinterpret_cast<float *>(at[2]), _mm_movehl_ps(value, value));
    _mm_store_ss(reinterpret_cast<float *>(at[3]), _mm_shuffle_ps(value, value, 0xff));
}

ZELM_INLINE void scatter(const LaneAddresses<double> &at, __m128d value) {
    _mm_storel_pd(reinterpret_cast<double *>(at[0]), value);
    _mm_storeh_pd(reinterpret_cast<double *>(at[1]), value);
}

// ---- adjacent elements of each object, transposed on the way; nothing beside them is touched

ZELM_INLINE void loadFour(const LaneAddresses<float> &at, Address offset, __m128 *out) {
    __m128 r0 = loadPack<float>(at[0] + offset), r1 = loadPack<float>(at[1] + offset);
    __m128 r2 = loadPack<float>(at[2] + offset), r3 = loadPack<float>(at[3] + offset);
    _MM_TRANSPOSE4_PS(r0, r1, r2, r3);
    out[0] = r0, out[1] = r1, out[2] = r2, out[3] = r3;
}

ZELM_INLINE void storeFour(const LaneAddresses<float> &at, Address offset, const __m128 *in) {
    __m128 r0 = in[0], r1 = in[1], r2 = in[2], r3 = in[3];
    _MM_TRANSPOSE4_PS(r0, r1, r2, r3);
    storePack(at[0] + offset, r0);
    storePack(at[1] + offset, r1);
    storePack(at[2] + offset, r2);
    storePack(at[3] + offset, r3);
}

ZELM_INLINE void loadTwo(const LaneAddresses<float> &at, Address offset, __m128 *out) {
    const __m128 a = loadTwoAndTwo(at[0] + offset, at[1] + offset);
    const __m128 b = loadTwoAndTwo(at[2] + offset, at[3] + offset);
    out[0] = _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0));
    out[1] = _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
}

ZELM_INLINE void storeTwo(const LaneAddresses<float> &at, Address offset, const __m128 *in) {
    const auto half = [&](unsigned lane) { return reinterpret_cast<__m64 *>(at[lane] + offset); };
    const __m128 a = _mm_unpacklo_ps(in[0], in[1]), b = _mm_unpackhi_ps(in[0], in[1]);
    _mm_storel_pi(half(0), a);
    _mm_storeh_pi(half(1), a);
    _mm_storel_pi(half(2), b);
    _mm_storeh_pi(half(3), b);
}

ZELM_INLINE void loadTwo(const LaneAddresses<double> &at, Address offset, __m128d *out) {
    const __m128d a = loadPack<double>(at[0] + offset), b = loadPack<double>(at[1] + offset);
    out[0] = _mm_unpacklo_pd(a, b);
    out[1] = _mm_unpackhi_pd(a, b);
}

ZELM_INLINE void storeTwo(const LaneAddresses<double> &at, Address offset, const __m128d *in) {
    storePack(at[0] + offset, _mm_unpacklo_pd(in[0], in[1]));
    storePack(at[1] + offset, _mm_unpackhi_pd(in[0], in[1]));
}

template <typename T>
ZELM_INLINE void shifted(const LaneAddresses<T> &at, Address offset, LaneAddresses<T> &out) {
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < kLanes<T>; ++lane)
        out[lane] = at[lane] + offset;
}

template <typename T, unsigned N>
ZELM_INLINE void loadAdjacent(const LaneAddresses<T> &at, Pack<T> *out) {
    constexpr unsigned four = sizeof(T) == 4 ? N / 4 * 4 : 0, two = N / 2 * 2;
    if constexpr (four != 0)
        loadFour(at, 0, out);
#pragma GCC unroll 3
    for (unsigned j = four; j < two; j += 2)
        loadTwo(at, j * sizeof(T), out + j);
    if constexpr (two != N) {
        LaneAddresses<T> last;
        shifted<T>(at, two * sizeof(T), last);
        out[two] = gather(last);
    }
}

template <typename T, unsigned N>
ZELM_INLINE void storeAdjacent(const LaneAddresses<T> &at, const Pack<T> *in) {
    constexpr unsigned four = sizeof(T) == 4 ? N / 4 * 4 : 0, two = N / 2 * 2;
    if constexpr (four != 0)
        storeFour(at, 0, in);
#pragma GCC unroll 3
    for (unsigned j = four; j < two; j += 2)
        storeTwo(at, j * sizeof(T), in + j);
    if constexpr (two != N) {
        LaneAddresses<T> last;
        shifted<T>(at, two * sizeof(T), last);
        scatter(last, in[two]);
    }
}

// ---- objects of three adjacent elements that follow each other without a gap

ZELM_INLINE void loadThrees(Address at, __m128 *out) {
    const __m128 r0 = loadPack<float>(at), r1 = loadPack<float>(at + 16), r2 = loadPack<float>(at + 32);
    const __m128 a = _mm_shuffle_ps(r1, r2, _MM_SHUFFLE(2, 1, 3, 2));
    const __m128 b = _mm_shuffle_ps(r0, r1, _MM_SHUFFLE(1, 0, 2, 1));
    out[0] = _mm_shuffle_ps(r0, a, _MM_SHUFFLE(2, 0, 3, 0));
    out[1] = _mm_shuffle_ps(b, a, _MM_SHUFFLE(3, 1, 2, 0));
    out[2] = _mm_shuffle_ps(b, r2, _MM_SHUFFLE(3, 0, 3, 1));
}

ZELM_INLINE void storeThrees(Address at, const __m128 *in) {
    const __m128 a = _mm_shuffle_ps(in[0], in[1], _MM_SHUFFLE(2, 0, 2, 0));
    const __m128 b = _mm_shuffle_ps(in[1], in[2], _MM_SHUFFLE(3, 1, 3, 1));
    const __m128 c = _mm_shuffle_ps(in[2], in[0], _MM_SHUFFLE(3, 1, 2, 0));
    storePack(at, _mm_shuffle_ps(a, c, _MM_SHUFFLE(2, 0, 2, 0)));
    storePack(at + 16, _mm_shuffle_ps(b, a, _MM_SHUFFLE(3, 1, 2, 0)));
    storePack(at + 32, _mm_shuffle_ps(c, b, _MM_SHUFFLE(3, 1, 3, 1)));
}

ZELM_INLINE void loadThrees(Address at, __m128d *out) {
    const __m128d r0 = loadPack<double>(at), r1 = loadPack<double>(at + 16), r2 = loadPack<double>(at + 32);
    out[0] = _mm_shuffle_pd(r0, r1, 2);
    out[1] = _mm_shuffle_pd(r0, r2, 1);
    out[2] = _mm_shuffle_pd(r1, r2, 2);
}

ZELM_INLINE void storeThrees(Address at, const __m128d *in) {
    storePack(at, _mm_unpacklo_pd(in[0], in[1]));
    storePack(at + 16, _mm_shuffle_pd(in[2], in[0], 2));
    storePack(at + 32, _mm_unpackhi_pd(in[1], in[2]));
}

// ---- groups

// The objects k to k + lanes - 1 of an array.
template <typename Array>
struct Group {
    using T = typename Array::Element;
    using Object = decltype(std::declval<const Array &>().object(0));
    static constexpr unsigned lanes = kLanes<T>;
    Object objects[lanes];
};

template <typename Array>
ZELM_INLINE Group<Array> groupAt(const Array &array, std::uint32_t k) {
    if constexpr (Group<Array>::lanes == 4)
        return {{array.object(k), array.object(k + 1), array.object(k + 2), array.object(k + 3)}};
    else
        return {{array.object(k), array.object(k + 1)}};
}

template <typename Array>
ZELM_INLINE bool anyEntryNull(const Array &array, std::uint32_t k) {
    bool null = false;
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < kLanes<typename Array::Element>; ++lane)
        null |= array.entryIsNull(k + lane);
    return null;
}

// The row of N elements with number row(lane) of each object.
template <unsigned N, typename Array, typename RowOfLane>
ZELM_INLINE void loadRowOfEach(const Group<Array> &group, RowOfLane row, Pack<typename Array::Element> *out) {
    using T = typename Array::Element;
    LaneAddresses<T> at;
    if constexpr (Group<Array>::Object::isDense) {
#pragma GCC unroll 4
        for (unsigned lane = 0; lane < kLanes<T>; ++lane)
            at[lane] = group.objects[lane].rowStart(row(lane));
        loadAdjacent<T, N>(at, out);
    } else {
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j) {
#pragma GCC unroll 4
            for (unsigned lane = 0; lane < kLanes<T>; ++lane)
                at[lane] = group.objects[lane].address(row(lane), j, N);
            out[j] = gather(at);
        }
    }
}

template <unsigned N, typename Array, typename RowOfLane>
ZELM_INLINE void storeRowOfEach(const Group<Array> &group, RowOfLane row,
                                const Pack<typename Array::Element> *in) {
    using T = typename Array::Element;
    LaneAddresses<T> at;
    if constexpr (Group<Array>::Object::isDense) {
#pragma GCC unroll 4
        for (unsigned lane = 0; lane < kLanes<T>; ++lane)
            at[lane] = group.objects[lane].rowStart(row(lane));
        storeAdjacent<T, N>(at, in);
    } else {
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j) {
#pragma GCC unroll 4
            for (unsigned lane = 0; lane < kLanes<T>; ++lane)
                at[lane] = group.objects[lane].address(row(lane), j, N);
            scatter(at, in[j]);
        }
    }
}

template <typename Array>
constexpr bool kIsDenseArray = false;
template <typename T>
constexpr bool kIsDenseArray<DenseArray<T>> = true;

template <typename Array>
ZELM_INLINE bool followWithoutGap(const Group<Array> &group) {
    return group.objects[1].start - group.objects[0].start == 3 * sizeof(typename Array::Element);
}

// Row i of each object.
template <unsigned N, typename Array>
ZELM_INLINE void loadRow(const Group<Array> &group, unsigned i, Pack<typename Array::Element> *out) {
    if constexpr (Array::isSideBySide) {
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            out[j] = loadPack<typename Array::Element>(group.objects[0].address(i, j, N));
    } else {
        if constexpr (N == 3 && kIsDenseArray<Array>)
            if (followWithoutGap(group))
                return loadThrees(group.objects[0].rowStart(i), out);
        loadRowOfEach<N>(
            group, [i](unsigned) { return i; }, out);
    }
}

template <unsigned N, typename Array>
ZELM_INLINE void storeRow(const Group<Array> &group, unsigned i, const Pack<typename Array::Element> *in) {
    if constexpr (Array::isSideBySide) {
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            storePack(group.objects[0].address(i, j, N), in[j]);
    } else {
        if constexpr (N == 3 && kIsDenseArray<Array>)
            if (followWithoutGap(group))
                return storeThrees(group.objects[0].rowStart(i), in);
        storeRowOfEach<N>(
            group, [i](unsigned) { return i; }, in);
    }
}

} // namespace zelm::frame
