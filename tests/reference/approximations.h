// The processor's approximations, whose bits differ between makers. Counted, so that it can be told which
// functions rest on them.
#pragma once

#include <cstdint>
#include <xmmintrin.h>

namespace zelmref {

inline thread_local std::uint64_t approximationsTaken = 0;

inline float approximateReciprocal(float x) {
    ++approximationsTaken;
    return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
}

inline float approximateReciprocalRoot(float x) {
    ++approximationsTaken;
    return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x)));
}

} // namespace zelmref
