// Several elements in one register: the packs that batch paths are written over.
//
// A pack is the compiler's own vector type, so that a + b reads the same for elements and for packs and
// rounds each lane as one element is rounded. A pack consists of blocks of 16 bytes; shuffles stay inside a
// block, so that they are the same for every width. Memory access is unaligned throughout.
#pragma once

#include "frame/memory.h"

#if defined(__AVX__)
// g++ warns of the values that its own header leaves undefined on purpose.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#include <immintrin.h>
#pragma GCC diagnostic pop
#else
#include <pmmintrin.h>
#endif

namespace zelm::frame {

constexpr unsigned kBlockBytes = 16;

// The widest pack that this build has registers for. How much of it each class of kernels takes stands in
// frame/widths.h.
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
constexpr unsigned kWidestBytes = 64;
#elif defined(__AVX2__)
constexpr unsigned kWidestBytes = 32;
#else
constexpr unsigned kWidestBytes = 16;
#endif

// Types of our own, which take part in templates; the processor's types carry an attribute that does not.
template <typename T, unsigned Bytes>
struct PackType {
    typedef T type __attribute__((vector_size(Bytes)));
};
// A pack of one lane is an element.
template <typename T>
struct PackType<T, sizeof(T)> {
    using type = T;
};
template <typename T, unsigned Bytes = kBlockBytes>
using Pack = typename PackType<T, Bytes>::type;
using Floats4 = Pack<float, 16>;
using Doubles2 = Pack<double, 16>;
using Floats8 = Pack<float, 32>;
using Doubles4 = Pack<double, 32>;
using Floats16 = Pack<float, 64>;
using Doubles8 = Pack<double, 64>;

// The element type of a pack, and of an element.
template <typename V>
struct ElementType {
    using type = std::remove_cvref_t<decltype(V{}[0])>;
};
template <>
struct ElementType<float> {
    using type = float;
};
template <>
struct ElementType<double> {
    using type = double;
};
template <typename V>
using ElementOf = typename ElementType<V>::type;

template <typename V>
constexpr unsigned kLanesOf = sizeof(V) / sizeof(ElementOf<V>);
template <typename V>
constexpr unsigned kBlocksOf = sizeof(V) / kBlockBytes;
// The lanes of one block.
template <typename T>
constexpr unsigned kLanes = kBlockBytes / sizeof(T);

// ---- memory

// As memory a pack is so many elements and no alias of anything else.
template <typename V>
struct AnywherePack {
    typedef ElementOf<V> type __attribute__((vector_size(sizeof(V)), aligned(1)));
};

template <typename V>
ZELM_INLINE V loadAs(Address from) {
    if constexpr (std::is_floating_point_v<V>)
        return load<V>(from);
    else
        return (V) * reinterpret_cast<const typename AnywherePack<V>::type *>(from);
}

template <typename T>
ZELM_INLINE Pack<T> loadPack(Address from) {
    return loadAs<Pack<T>>(from);
}

template <typename V>
ZELM_INLINE void storePack(Address to, V value) {
    if constexpr (std::is_floating_point_v<V>)
        store(to, value);
    else
        *reinterpret_cast<typename AnywherePack<V>::type *>(to) = (typename AnywherePack<V>::type)value;
}

// A block whose lanes are taken one by one.
template <typename T, typename ElementOfLane>
ZELM_INLINE Pack<T> packOf(ElementOfLane element) {
    if constexpr (sizeof(T) == 4)
        return _mm_setr_ps(element(0), element(1), element(2), element(3));
    else
        return _mm_setr_pd(element(0), element(1));
}

// ---- one value in all lanes, or in the first

template <typename V>
ZELM_INLINE V spread(ElementOf<V> value) {
    if constexpr (std::is_floating_point_v<V>)
        return value;
    else if constexpr (std::is_same_v<V, Floats4>)
        return _mm_set1_ps(value);
    else if constexpr (std::is_same_v<V, Doubles2>)
        return _mm_set1_pd(value);
#if defined(__AVX2__)
    else if constexpr (std::is_same_v<V, Floats8>)
        return _mm256_set1_ps(value);
    else if constexpr (std::is_same_v<V, Doubles4>)
        return _mm256_set1_pd(value);
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else if constexpr (std::is_same_v<V, Floats16>)
        return _mm512_set1_ps(value);
    else if constexpr (std::is_same_v<V, Doubles8>)
        return _mm512_set1_pd(value);
#endif
}

// The first lane, and a pack that is zero but for it.
template <typename V>
ZELM_INLINE ElementOf<V> firstLane(V a) {
    return a[0];
}

// A value for each lane as it is, one that is the same in all lanes of a block in all lanes.
template <typename V, typename F>
ZELM_INLINE V inLanes(const F &value) {
    if constexpr (std::is_same_v<F, V>)
        return value;
    else
        return spread<V>(firstLane(value));
}
ZELM_INLINE Floats4 inFirstLane(float value) {
    return _mm_set_ss(value);
}
ZELM_INLINE Doubles2 inFirstLane(double value) {
    return _mm_set_sd(value);
}

// Two adjacent elements in the first lanes, the others zero.
ZELM_INLINE Floats4 loadTwo(Address from) {
    return _mm_loadl_pi(_mm_setzero_ps(), reinterpret_cast<const __m64 *>(from));
}

// Two from one place and two from another.
ZELM_INLINE Floats4 loadTwoAndTwo(Address first, Address second) {
    return _mm_loadh_pi(loadTwo(first), reinterpret_cast<const __m64 *>(second));
}

// ---- bits

template <typename V>
struct BitsType {
    typedef long long type __attribute__((vector_size(sizeof(V))));
};
template <typename V>
using BitsOf = typename BitsType<V>::type;

template <typename V>
ZELM_INLINE V bitAnd(V a, V b) {
    return (V)((BitsOf<V>)a & (BitsOf<V>)b);
}
template <typename V>
ZELM_INLINE V bitOr(V a, V b) {
    return (V)((BitsOf<V>)a | (BitsOf<V>)b);
}
template <typename V>
ZELM_INLINE V bitXor(V a, V b) {
    return (V)((BitsOf<V>)a ^ (BitsOf<V>)b);
}

// ---- arithmetic that has no operator

ZELM_INLINE float squareRoot(float a) {
    return __builtin_sqrtf(a);
}
ZELM_INLINE double squareRoot(double a) {
    return __builtin_sqrt(a);
}
ZELM_INLINE Floats4 squareRoot(Floats4 a) {
    return _mm_sqrt_ps(a);
}
ZELM_INLINE Doubles2 squareRoot(Doubles2 a) {
    return _mm_sqrt_pd(a);
}
#if defined(__AVX2__)
ZELM_INLINE Floats8 squareRoot(Floats8 a) {
    return _mm256_sqrt_ps(a);
}
ZELM_INLINE Doubles4 squareRoot(Doubles4 a) {
    return _mm256_sqrt_pd(a);
}
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
ZELM_INLINE Floats16 squareRoot(Floats16 a) {
    return _mm512_sqrt_ps(a);
}
ZELM_INLINE Doubles8 squareRoot(Doubles8 a) {
    return _mm512_sqrt_pd(a);
}
#endif

ZELM_INLINE float magnitude(float a) {
    return __builtin_fabsf(a);
}
ZELM_INLINE double magnitude(double a) {
    return __builtin_fabs(a);
}
template <typename V>
ZELM_INLINE V magnitude(V a) {
    return (V)(~(BitsOf<V>)spread<V>(ElementOf<V>{-0.0f}) & (BitsOf<V>)a);
}

} // namespace zelm::frame
