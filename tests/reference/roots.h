// The square roots of the norms.
#pragma once

#include "approximations.h"

#include <cmath>

namespace zelmref {

// x / sqrt(x) by the raw approximation and one Newton step. Zero and infinity give NaN.
inline float refinedRoot(float x) {
    const float r = approximateReciprocalRoot(x);
    const float u = r * r;
    const float v = x * u;
    const float w = 3.0f - v;
    const float y = 0.5f * w;
    const float z = r * y;
    return x * z;
}

} // namespace zelmref
