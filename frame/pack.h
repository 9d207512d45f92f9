// Several elements in one register: the packs that batch paths are written over.
//
// A pack is the compiler's own vector type, so that a + b reads the same for elements and for packs and
// rounds each lane as one element is rounded. Memory access is unaligned throughout.
#pragma once

#include "frame/memory.h"

#include <pmmintrin.h>

namespace zelm::frame {

constexpr unsigned kPackBytes = 16;
template <typename T>
constexpr unsigned kLanes = kPackBytes / sizeof(T);

template <typename T>
struct PackOf;
template <>
struct PackOf<float> {
    using type = __m128;
};
template <>
struct PackOf<double> {
    using type = __m128d;
};
template <typename T>
using Pack = typename PackOf<T>::type;

ZELM_INLINE bool isMultipleOf16(Address address) {
    return address % kPackBytes == 0;
}

template <typename T>
ZELM_INLINE Pack<T> loadPack(Address from) {
    if constexpr (sizeof(T) == 4)
        return _mm_loadu_ps(reinterpret_cast<const float *>(from));
    else
        return _mm_loadu_pd(reinterpret_cast<const double *>(from));
}

ZELM_INLINE void storePack(Address to, __m128 value) {
    _mm_storeu_ps(reinterpret_cast<float *>(to), value);
}

ZELM_INLINE void storePack(Address to, __m128d value) {
    _mm_storeu_pd(reinterpret_cast<double *>(to), value);
}

ZELM_INLINE __m128 broadcast(float value) {
    return _mm_set1_ps(value);
}

ZELM_INLINE __m128d broadcast(double value) {
    return _mm_set1_pd(value);
}

// The first lane, and a pack that is zero but for it.
ZELM_INLINE float firstLane(__m128 a) {
    return a[0];
}
ZELM_INLINE double firstLane(__m128d a) {
    return a[0];
}
ZELM_INLINE __m128 inFirstLane(float value) {
    return _mm_set_ss(value);
}
ZELM_INLINE __m128d inFirstLane(double value) {
    return _mm_set_sd(value);
}

// Two adjacent elements in the first lanes, the others zero.
ZELM_INLINE __m128 loadTwo(Address from) {
    return _mm_loadl_pi(_mm_setzero_ps(), reinterpret_cast<const __m64 *>(from));
}

// Two from one place and two from another.
ZELM_INLINE __m128 loadTwoAndTwo(Address first, Address second) {
    return _mm_loadh_pi(loadTwo(first), reinterpret_cast<const __m64 *>(second));
}

// Comparisons give a mask: all bits of a lane set or none.
ZELM_INLINE __m128 greater(__m128 a, __m128 b) {
    return _mm_cmpgt_ps(a, b);
}
ZELM_INLINE __m128d greater(__m128d a, __m128d b) {
    return _mm_cmpgt_pd(a, b);
}
ZELM_INLINE __m128 notGreater(__m128 a, __m128 b) {
    return _mm_cmpngt_ps(a, b);
}
ZELM_INLINE __m128d notGreater(__m128d a, __m128d b) {
    return _mm_cmpngt_pd(a, b);
}
ZELM_INLINE __m128 notGreaterEqual(__m128 a, __m128 b) {
    return _mm_cmpnge_ps(a, b);
}
ZELM_INLINE __m128d notGreaterEqual(__m128d a, __m128d b) {
    return _mm_cmpnge_pd(a, b);
}
ZELM_INLINE __m128 equal(__m128 a, __m128 b) {
    return _mm_cmpeq_ps(a, b);
}
ZELM_INLINE __m128d equal(__m128d a, __m128d b) {
    return _mm_cmpeq_pd(a, b);
}
ZELM_INLINE __m128 notEqual(__m128 a, __m128 b) {
    return _mm_cmpneq_ps(a, b);
}
ZELM_INLINE __m128d notEqual(__m128d a, __m128d b) {
    return _mm_cmpneq_pd(a, b);
}

ZELM_INLINE __m128 bitAnd(__m128 a, __m128 b) {
    return _mm_and_ps(a, b);
}
ZELM_INLINE __m128d bitAnd(__m128d a, __m128d b) {
    return _mm_and_pd(a, b);
}
ZELM_INLINE __m128 bitOr(__m128 a, __m128 b) {
    return _mm_or_ps(a, b);
}
ZELM_INLINE __m128d bitOr(__m128d a, __m128d b) {
    return _mm_or_pd(a, b);
}
ZELM_INLINE __m128 bitXor(__m128 a, __m128 b) {
    return _mm_xor_ps(a, b);
}
ZELM_INLINE __m128d bitXor(__m128d a, __m128d b) {
    return _mm_xor_pd(a, b);
}
ZELM_INLINE __m128 bitAndNot(__m128 mask, __m128 value) {
    return _mm_andnot_ps(mask, value);
}
ZELM_INLINE __m128d bitAndNot(__m128d mask, __m128d value) {
    return _mm_andnot_pd(mask, value);
}

ZELM_INLINE bool anyLane(__m128 mask) {
    return _mm_movemask_ps(mask) != 0;
}
ZELM_INLINE bool anyLane(__m128d mask) {
    return _mm_movemask_pd(mask) != 0;
}

// a where the mask is set, b elsewhere.
template <typename V>
ZELM_INLINE V select(V mask, V a, V b) {
    return bitOr(bitAnd(mask, a), bitAndNot(mask, b));
}

ZELM_INLINE float squareRoot(float a) {
    return __builtin_sqrtf(a);
}
ZELM_INLINE double squareRoot(double a) {
    return __builtin_sqrt(a);
}
ZELM_INLINE __m128 squareRoot(__m128 a) {
    return _mm_sqrt_ps(a);
}
ZELM_INLINE __m128d squareRoot(__m128d a) {
    return _mm_sqrt_pd(a);
}

ZELM_INLINE float magnitude(float a) {
    return __builtin_fabsf(a);
}
ZELM_INLINE double magnitude(double a) {
    return __builtin_fabs(a);
}
ZELM_INLINE __m128 magnitude(__m128 a) {
    return _mm_andnot_ps(_mm_set1_ps(-0.0f), a);
}
ZELM_INLINE __m128d magnitude(__m128d a) {
    return _mm_andnot_pd(_mm_set1_pd(-0.0), a);
}

// Exchanges a and b in the lanes of the mask.
template <typename V>
ZELM_INLINE void exchange(V mask, V &a, V &b) {
    const V difference = bitAnd(mask, bitXor(a, b));
    a = bitXor(a, difference);
    b = bitXor(b, difference);
}

} // namespace zelm::frame
