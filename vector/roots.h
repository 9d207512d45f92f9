// The square root by the processor's approximate reciprocal root with one Newton step.
// The approximation has no test of its argument: a zero and +infinity give NaN.
#pragma once

#include "frame/pack.h"

namespace zelm::vector {

using namespace zelm::frame;

ZELM_INLINE __m128 approximateReciprocalRoot(__m128 value) {
    return _mm_rsqrt_ps(value);
}
ZELM_INLINE float approximateReciprocalRoot(float value) {
    return firstLane(_mm_rsqrt_ss(inFirstLane(value)));
}

// Spreads a constant like the value beside it.
ZELM_INLINE float like(float, float constant) {
    return constant;
}
ZELM_INLINE __m128 like(__m128, float constant) {
    return broadcast(constant);
}

// s * (r * (0.5 * (3 - s * (r * r)))) with r near 1 / sqrt(s), in this bracketing.
template <typename V>
ZELM_INLINE V rootByRefinedReciprocal(V s) {
    const V r = approximateReciprocalRoot(s);
    const V half = like(s, 0.5f) * (like(s, 3.0f) - s * (r * r));
    return s * (r * half);
}

} // namespace zelm::vector
