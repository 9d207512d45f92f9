// Comparisons of packs lane by lane, and what is done with their results.
#pragma once

#include "frame/pack.h"

namespace zelm::frame {

// The lanes of a pack that a comparison holds for: all bits of a lane or none, or a bit per lane where the
// processor keeps masks in registers of their own. Of an element, a truth value.
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
template <typename V>
using MaskBits = std::conditional_t<kLanesOf<V> == 16, __mmask16, __mmask8>;
#else
template <typename V>
using MaskBits = V;
#endif

template <typename V>
struct Mask {
    MaskBits<V> lanes;
};
template <>
struct Mask<float> {
    bool lanes;
};
template <>
struct Mask<double> {
    bool lanes;
};

template <typename V>
constexpr bool kMasksAreBits = !std::is_same_v<decltype(Mask<V>::lanes), V>;

enum class Compare { Greater, NotGreater, NotGreaterEqual, Equal, NotEqual };

#if defined(__AVX__)
constexpr int predicateOf(Compare compare) {
    return compare == Compare::Greater           ? _CMP_GT_OS
           : compare == Compare::NotGreater      ? _CMP_NGT_US
           : compare == Compare::NotGreaterEqual ? _CMP_NGE_US
           : compare == Compare::Equal           ? _CMP_EQ_OQ
                                                 : _CMP_NEQ_UQ;
}
#endif

#if defined(__AVX512VL__) && defined(__AVX512DQ__)
template <Compare compare, typename V>
ZELM_INLINE Mask<V> compared(V a, V b) {
    constexpr int predicate = predicateOf(compare);
    if constexpr (std::is_same_v<V, Floats4>)
        return {_mm_cmp_ps_mask(a, b, predicate)};
    else if constexpr (std::is_same_v<V, Doubles2>)
        return {_mm_cmp_pd_mask(a, b, predicate)};
    else if constexpr (std::is_same_v<V, Floats8>)
        return {_mm256_cmp_ps_mask(a, b, predicate)};
    else if constexpr (std::is_same_v<V, Doubles4>)
        return {_mm256_cmp_pd_mask(a, b, predicate)};
    else if constexpr (std::is_same_v<V, Floats16>)
        return {_mm512_cmp_ps_mask(a, b, predicate)};
    else
        return {_mm512_cmp_pd_mask(a, b, predicate)};
}
#elif defined(__AVX__)
template <Compare compare, typename V>
ZELM_INLINE Mask<V> compared(V a, V b) {
    constexpr int predicate = predicateOf(compare);
    if constexpr (std::is_same_v<V, Floats4>)
        return {_mm_cmp_ps(a, b, predicate)};
    else if constexpr (std::is_same_v<V, Doubles2>)
        return {_mm_cmp_pd(a, b, predicate)};
    else if constexpr (std::is_same_v<V, Floats8>)
        return {_mm256_cmp_ps(a, b, predicate)};
    else
        return {_mm256_cmp_pd(a, b, predicate)};
}
#else
template <Compare compare>
ZELM_INLINE Mask<Floats4> compared(Floats4 a, Floats4 b) {
    if constexpr (compare == Compare::Greater)
        return {_mm_cmpgt_ps(a, b)};
    else if constexpr (compare == Compare::NotGreater)
        return {_mm_cmpngt_ps(a, b)};
    else if constexpr (compare == Compare::NotGreaterEqual)
        return {_mm_cmpnge_ps(a, b)};
    else if constexpr (compare == Compare::Equal)
        return {_mm_cmpeq_ps(a, b)};
    else
        return {_mm_cmpneq_ps(a, b)};
}
template <Compare compare>
ZELM_INLINE Mask<Doubles2> compared(Doubles2 a, Doubles2 b) {
    if constexpr (compare == Compare::Greater)
        return {_mm_cmpgt_pd(a, b)};
    else if constexpr (compare == Compare::NotGreater)
        return {_mm_cmpngt_pd(a, b)};
    else if constexpr (compare == Compare::NotGreaterEqual)
        return {_mm_cmpnge_pd(a, b)};
    else if constexpr (compare == Compare::Equal)
        return {_mm_cmpeq_pd(a, b)};
    else
        return {_mm_cmpneq_pd(a, b)};
}
#endif

template <typename V>
ZELM_INLINE Mask<V> greater(V a, V b) {
    if constexpr (std::is_floating_point_v<V>)
        return {a > b};
    else
        return compared<Compare::Greater>(a, b);
}
template <typename V>
ZELM_INLINE Mask<V> notGreater(V a, V b) {
    if constexpr (std::is_floating_point_v<V>)
        return {!(a > b)};
    else
        return compared<Compare::NotGreater>(a, b);
}
template <typename V>
ZELM_INLINE Mask<V> notGreaterEqual(V a, V b) {
    if constexpr (std::is_floating_point_v<V>)
        return {!(a >= b)};
    else
        return compared<Compare::NotGreaterEqual>(a, b);
}
template <typename V>
ZELM_INLINE Mask<V> equal(V a, V b) {
    if constexpr (std::is_floating_point_v<V>)
        return {a == b};
    else
        return compared<Compare::Equal>(a, b);
}
template <typename V>
ZELM_INLINE Mask<V> notEqual(V a, V b) {
    if constexpr (std::is_floating_point_v<V>)
        return {a != b};
    else
        return compared<Compare::NotEqual>(a, b);
}

template <typename V>
ZELM_INLINE Mask<V> noLane() {
    return {decltype(Mask<V>::lanes){}};
}

template <typename V>
ZELM_INLINE Mask<V> operator|(Mask<V> a, Mask<V> b) {
    if constexpr (kMasksAreBits<V>)
        return {static_cast<decltype(a.lanes)>(a.lanes | b.lanes)};
    else
        return {bitOr(a.lanes, b.lanes)};
}
template <typename V>
ZELM_INLINE Mask<V> operator&(Mask<V> a, Mask<V> b) {
    if constexpr (kMasksAreBits<V>)
        return {static_cast<decltype(a.lanes)>(a.lanes & b.lanes)};
    else
        return {bitAnd(a.lanes, b.lanes)};
}

template <typename V>
ZELM_INLINE bool anyLane(Mask<V> mask) {
    if constexpr (kMasksAreBits<V>)
        return mask.lanes != 0;
    else if constexpr (std::is_same_v<V, Floats4>)
        return _mm_movemask_ps(mask.lanes) != 0;
    else if constexpr (std::is_same_v<V, Doubles2>)
        return _mm_movemask_pd(mask.lanes) != 0;
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_movemask_ps(mask.lanes) != 0;
    else
        return _mm256_movemask_pd(mask.lanes) != 0;
#endif
}

// a where the mask is set, b elsewhere.
template <typename V>
ZELM_INLINE V select(Mask<V> mask, V a, V b) {
    if constexpr (std::is_floating_point_v<V>)
        return mask.lanes ? a : b;
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else if constexpr (std::is_same_v<V, Floats4>)
        return _mm_mask_blend_ps(mask.lanes, b, a);
    else if constexpr (std::is_same_v<V, Doubles2>)
        return _mm_mask_blend_pd(mask.lanes, b, a);
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_mask_blend_ps(mask.lanes, b, a);
    else if constexpr (std::is_same_v<V, Doubles4>)
        return _mm256_mask_blend_pd(mask.lanes, b, a);
    else if constexpr (std::is_same_v<V, Floats16>)
        return _mm512_mask_blend_ps(mask.lanes, b, a);
    else
        return _mm512_mask_blend_pd(mask.lanes, b, a);
#elif defined(__AVX__)
    else if constexpr (std::is_same_v<V, Floats4>)
        return _mm_blendv_ps(b, a, mask.lanes);
    else if constexpr (std::is_same_v<V, Doubles2>)
        return _mm_blendv_pd(b, a, mask.lanes);
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_blendv_ps(b, a, mask.lanes);
    else
        return _mm256_blendv_pd(b, a, mask.lanes);
#else
    else
        return (V)(((BitsOf<V>)mask.lanes & (BitsOf<V>)a) | (~(BitsOf<V>)mask.lanes & (BitsOf<V>)b));
#endif
}

// Exchanges a and b in the lanes of the mask.
template <typename V>
ZELM_INLINE void exchangeWhere(Mask<V> mask, V &a, V &b) {
    if constexpr (kMasksAreBits<V>) {
        const V first = select(mask, b, a);
        b = select(mask, a, b);
        a = first;
    } else {
        const V difference = bitAnd(mask.lanes, bitXor(a, b));
        a = bitXor(a, difference);
        b = bitXor(b, difference);
    }
}

} // namespace zelm::frame
