// Shuffles inside the blocks of 16 bytes of a pack: written once for every width, as no lane leaves its
// block.
#pragma once

#include "frame/pack.h"

namespace zelm::frame {

// Of every block, elements i and j of a, then k and l of b.
template <unsigned i, unsigned j, unsigned k, unsigned l, typename V>
requires(sizeof(ElementOf<V>) == 4) ZELM_INLINE V shuffle(V a, V b) {
    constexpr int control = static_cast<int>(i | j << 2 | k << 4 | l << 6);
    if constexpr (std::is_same_v<V, Floats4>)
        return _mm_shuffle_ps(a, b, control);
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_shuffle_ps(a, b, control);
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return _mm512_shuffle_ps(a, b, control);
#endif
}

// Of every block, element i of a, then j of b.
template <unsigned i, unsigned j, typename V>
requires(sizeof(ElementOf<V>) == 8) ZELM_INLINE V shuffle(V a, V b) {
    if constexpr (std::is_same_v<V, Doubles2>)
        return _mm_shuffle_pd(a, b, i | j << 1);
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Doubles4>)
        return _mm256_shuffle_pd(a, b, (i | j << 1) * 5);
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return _mm512_shuffle_pd(a, b, (i | j << 1) * 85);
#endif
}

// The lower halves of the blocks of a and b interleaved, and the upper ones.
template <typename V>
ZELM_INLINE V interleaveLow(V a, V b) {
    if constexpr (sizeof(ElementOf<V>) == 8)
        return shuffle<0, 0>(a, b);
    else if constexpr (std::is_same_v<V, Floats4>)
        return _mm_unpacklo_ps(a, b);
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_unpacklo_ps(a, b);
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return _mm512_unpacklo_ps(a, b);
#endif
}

template <typename V>
ZELM_INLINE V interleaveHigh(V a, V b) {
    if constexpr (sizeof(ElementOf<V>) == 8)
        return shuffle<1, 1>(a, b);
    else if constexpr (std::is_same_v<V, Floats4>)
        return _mm_unpackhi_ps(a, b);
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_unpackhi_ps(a, b);
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return _mm512_unpackhi_ps(a, b);
#endif
}

// The 4x4 elements of four packs of 32-bit float, block by block.
template <typename V>
ZELM_INLINE void transposeFour(V &r0, V &r1, V &r2, V &r3) {
    const V a = interleaveLow(r0, r1), b = interleaveLow(r2, r3);
    const V c = interleaveHigh(r0, r1), d = interleaveHigh(r2, r3);
    r0 = shuffle<0, 1, 0, 1>(a, b);
    r1 = shuffle<2, 3, 2, 3>(a, b);
    r2 = shuffle<0, 1, 0, 1>(c, d);
    r3 = shuffle<2, 3, 2, 3>(c, d);
}

// ---- packs from blocks, and blocks of packs

#if defined(__AVX2__)
ZELM_INLINE Floats8 joined(Floats4 low, Floats4 high) {
    return _mm256_insertf128_ps(_mm256_castps128_ps256(low), high, 1);
}
ZELM_INLINE Doubles4 joined(Doubles2 low, Doubles2 high) {
    return _mm256_insertf128_pd(_mm256_castpd128_pd256(low), high, 1);
}
ZELM_INLINE Floats4 lowHalf(Floats8 a) {
    return _mm256_castps256_ps128(a);
}
ZELM_INLINE Doubles2 lowHalf(Doubles4 a) {
    return _mm256_castpd256_pd128(a);
}
ZELM_INLINE Floats4 highHalf(Floats8 a) {
    return _mm256_extractf128_ps(a, 1);
}
ZELM_INLINE Doubles2 highHalf(Doubles4 a) {
    return _mm256_extractf128_pd(a, 1);
}
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
ZELM_INLINE Floats16 joined(Floats8 low, Floats8 high) {
    return _mm512_insertf32x8(_mm512_castps256_ps512(low), high, 1);
}
ZELM_INLINE Doubles8 joined(Doubles4 low, Doubles4 high) {
    return _mm512_insertf64x4(_mm512_castpd256_pd512(low), high, 1);
}
ZELM_INLINE Floats8 lowHalf(Floats16 a) {
    return _mm512_castps512_ps256(a);
}
ZELM_INLINE Doubles4 lowHalf(Doubles8 a) {
    return _mm512_castpd512_pd256(a);
}
ZELM_INLINE Floats8 highHalf(Floats16 a) {
    return _mm512_extractf32x8_ps(a, 1);
}
ZELM_INLINE Doubles4 highHalf(Doubles8 a) {
    return _mm512_extractf64x4_pd(a, 1);
}
#endif

// The pack whose block b is block(b).
template <typename V, unsigned first = 0, typename BlockAt>
ZELM_INLINE V fromBlocks(BlockAt block) {
    if constexpr (sizeof(V) == kBlockBytes) {
        return block(first);
    } else {
        using Half = Pack<ElementOf<V>, sizeof(V) / 2>;
        return joined(fromBlocks<Half, first>(block), fromBlocks<Half, first + kBlocksOf<Half>>(block));
    }
}

// Hands block b of the pack to use(b, block).
template <unsigned first = 0, typename V, typename Use>
ZELM_INLINE void toBlocks(V a, Use use) {
    if constexpr (sizeof(V) == kBlockBytes) {
        use(first, a);
    } else {
        toBlocks<first>(lowHalf(a), use);
        toBlocks<first + kBlocksOf<V> / 2>(highHalf(a), use);
    }
}

} // namespace zelm::frame
