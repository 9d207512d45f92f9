// Packs of 32-bit float as 64-bit float, half of the lanes at a time, and back. An element is its own half.
#pragma once

#include "frame/shuffles.h"

namespace zelm::frame {

template <typename V>
using WidenedOf = Pack<double, std::is_same_v<V, float> ? sizeof(double) : sizeof(V)>;
template <typename V>
constexpr unsigned kWidenedHalves = std::is_same_v<V, float> ? 1 : 2;

// Half 0 has the lower lanes.
template <typename V>
ZELM_INLINE WidenedOf<V> widened(V a, [[maybe_unused]] unsigned half) {
    if constexpr (std::is_same_v<V, float>)
        return a;
    else if constexpr (std::is_same_v<V, Floats4>)
        return _mm_cvtps_pd(half == 0 ? a : _mm_movehl_ps(a, a));
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_cvtps_pd(half == 0 ? lowHalf(a) : highHalf(a));
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return _mm512_cvtps_pd(half == 0 ? lowHalf(a) : highHalf(a));
#endif
}

// Each lane rounded to 32-bit float.
template <typename V>
ZELM_INLINE V narrowed(const WidenedOf<V> (&halves)[kWidenedHalves<V>]) {
    if constexpr (std::is_same_v<V, float>)
        return static_cast<float>(halves[0]);
    else if constexpr (std::is_same_v<V, Floats4>)
        return _mm_movelh_ps(_mm_cvtpd_ps(halves[0]), _mm_cvtpd_ps(halves[1]));
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Floats8>)
        return joined(Floats4(_mm256_cvtpd_ps(halves[0])), Floats4(_mm256_cvtpd_ps(halves[1])));
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return joined(Floats8(_mm512_cvtpd_ps(halves[0])), Floats8(_mm512_cvtpd_ps(halves[1])));
#endif
}

// Each lane rounded to 32-bit float, as 64-bit float.
template <typename D>
ZELM_INLINE D asFloats(D a) {
    if constexpr (std::is_same_v<D, double>)
        return static_cast<float>(a);
    else if constexpr (std::is_same_v<D, Doubles2>)
        return _mm_cvtps_pd(_mm_cvtpd_ps(a));
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<D, Doubles4>)
        return _mm256_cvtps_pd(_mm256_cvtpd_ps(a));
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return _mm512_cvtps_pd(_mm512_cvtpd_ps(a));
#endif
}

} // namespace zelm::frame
