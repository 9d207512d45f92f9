// The square roots of the norms.
#pragma once

#include <cmath>
#include <xmmintrin.h>

namespace zelmref {

// The approximation that the processor makes: its bits differ between makers.
inline float rawReciprocalRoot(float x) {
    return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x)));
}

// x / sqrt(x) by the raw approximation and one Newton step. Zero and infinity give NaN.
inline float refinedRoot(float x) {
    const float r = rawReciprocalRoot(x);
    const float u = r * r;
    const float v = x * u;
    const float w = 3.0f - v;
    const float y = 0.5f * w;
    const float z = r * y;
    return x * z;
}

} // namespace zelmref
