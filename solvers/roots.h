// Reciprocals of square roots, of elements and of packs.
#pragma once

#include "frame/shuffles.h"

namespace zelm::solvers {

using namespace zelm::frame;

// One over the square root, in the type of the argument ...
template <typename V>
ZELM_INLINE V reciprocalRoot(V a) {
    return spread<V>(1) / squareRoot(a);
}

// ... and in 64-bit float, rounded once to the type of the argument.
template <typename V>
ZELM_INLINE V reciprocalRootWidened(V a) {
    if constexpr (sizeof(ElementOf<V>) == 8) {
        return reciprocalRoot(a);
    } else if constexpr (std::is_same_v<V, float>) {
        return static_cast<float>(reciprocalRoot(static_cast<double>(a)));
    } else if constexpr (std::is_same_v<V, Floats4>) {
        const Doubles2 low = reciprocalRoot<Doubles2>(_mm_cvtps_pd(a));
        const Doubles2 high = reciprocalRoot<Doubles2>(_mm_cvtps_pd(_mm_movehl_ps(a, a)));
        return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
    }
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Floats8>) {
        const Doubles4 low = reciprocalRoot<Doubles4>(_mm256_cvtps_pd(lowHalf(a)));
        const Doubles4 high = reciprocalRoot<Doubles4>(_mm256_cvtps_pd(highHalf(a)));
        return joined(Floats4(_mm256_cvtpd_ps(low)), Floats4(_mm256_cvtpd_ps(high)));
    }
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else {
        const Doubles8 low = reciprocalRoot<Doubles8>(_mm512_cvtps_pd(lowHalf(a)));
        const Doubles8 high = reciprocalRoot<Doubles8>(_mm512_cvtps_pd(highHalf(a)));
        return joined(Floats8(_mm512_cvtpd_ps(low)), Floats8(_mm512_cvtpd_ps(high)));
    }
#endif
}

} // namespace zelm::solvers
