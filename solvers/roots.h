// Reciprocals of square roots, of elements and of packs.
#pragma once

#include "frame/pack.h"

namespace zelm::solvers {

using namespace zelm::frame;

// One over the square root, in the type of the argument ...
ZELM_INLINE float reciprocalRoot(float a) {
    return 1.0f / squareRoot(a);
}
ZELM_INLINE double reciprocalRoot(double a) {
    return 1.0 / squareRoot(a);
}
ZELM_INLINE __m128 reciprocalRoot(__m128 a) {
    return broadcast(1.0f) / squareRoot(a);
}
ZELM_INLINE __m128d reciprocalRoot(__m128d a) {
    return broadcast(1.0) / squareRoot(a);
}

// ... and in 64-bit float, rounded once to the type of the argument.
ZELM_INLINE float reciprocalRootWidened(float a) {
    return static_cast<float>(reciprocalRoot(static_cast<double>(a)));
}
ZELM_INLINE double reciprocalRootWidened(double a) {
    return reciprocalRoot(a);
}
ZELM_INLINE __m128 reciprocalRootWidened(__m128 a) {
    const __m128d low = reciprocalRoot(_mm_cvtps_pd(a));
    const __m128d high = reciprocalRoot(_mm_cvtps_pd(_mm_movehl_ps(a, a)));
    return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
}
ZELM_INLINE __m128d reciprocalRootWidened(__m128d a) {
    return reciprocalRoot(a);
}

} // namespace zelm::solvers
