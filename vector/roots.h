// The square root by the processor's approximate reciprocal root with one Newton step.
// The approximation has no test of its argument: a zero and +infinity give NaN.
#pragma once

#include "frame/shuffles.h"

namespace zelm::vector {

using namespace zelm::frame;

ZELM_INLINE Floats4 approximateReciprocalRoot(Floats4 value) {
    return _mm_rsqrt_ps(value);
}
ZELM_INLINE float approximateReciprocalRoot(float value) {
    return firstLane(_mm_rsqrt_ss(spread<Floats4>(value)));
}
#if defined(__AVX2__)
ZELM_INLINE Floats8 approximateReciprocalRoot(Floats8 value) {
    return _mm256_rsqrt_ps(value);
}
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
// 512 bits have an approximation of their own only, with other bits.
ZELM_INLINE Floats16 approximateReciprocalRoot(Floats16 value) {
    return joined(_mm256_rsqrt_ps(lowHalf(value)), _mm256_rsqrt_ps(highHalf(value)));
}
#endif

// s * (r * (0.5 * (3 - s * (r * r)))) with r near 1 / sqrt(s), in this bracketing.
template <typename V>
ZELM_INLINE V rootByRefinedReciprocal(V s) {
    const V r = approximateReciprocalRoot(s);
    const V half = spread<V>(0.5f) * (spread<V>(3.0f) - s * (r * r));
    return s * (r * half);
}

} // namespace zelm::vector
