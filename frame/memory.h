// Addresses as numbers, and elements moved to and from them.
//
// Strides and shifts are added modulo the word size, so addresses are unsigned numbers here. Elements may
// overlap each other in any way, and every store counts for every later load of the same type; tables of
// pointers and other arguments are never written.
#pragma once

#include <cstdint>
#include <type_traits>

// The helpers of the frame vanish in their callers in every build: a float returned by a real function would
// pass through x87 on 32-bit x86, which quiets signalling NaNs.
#define ZELM_INLINE inline __attribute__((always_inline))
#define ZELM_INLINE_LAMBDA __attribute__((always_inline))

// What several members or layouts share is one real function, or the library's text doubles.
#define ZELM_NOINLINE __attribute__((noinline))

// A loop with constant bounds, written out, so that its index picks registers and not memory. No limit but
// that of the compilers: the bounds are those of a matrix or of its packs.
#define ZELM_UNROLL _Pragma("GCC unroll 64")

namespace zelm::frame {

using Address = std::uintptr_t;

// Whether three addresses and their steps take all registers that there are, as on 32-bit x86.
constexpr bool kHasFewRegisters = sizeof(Address) == 4;

// A signed count of bytes as the distance that it adds to an address.
ZELM_INLINE constexpr Address distance(std::int32_t bytes) {
    return static_cast<Address>(static_cast<std::intptr_t>(bytes));
}

ZELM_INLINE Address addressOf(const void *pointer) {
    return reinterpret_cast<Address>(pointer);
}

// What some members ask of addresses and strides. It is part of what they do, and no width changes it.
ZELM_INLINE constexpr bool isMultipleOf16(Address address) {
    return address % 16 == 0;
}

// An element at any address: on 32-bit x86 the alignment of a double is not a multiple of its size.
template <typename T>
struct Anywhere {
    typedef T type __attribute__((aligned(1)));
};

template <typename T>
ZELM_INLINE T load(Address from) {
    return *reinterpret_cast<const typename Anywhere<T>::type *>(from);
}

template <typename T>
ZELM_INLINE void store(Address to, T value) {
    *reinterpret_cast<typename Anywhere<T>::type *>(to) = value;
}

// Moves one element as bits: through an SSE register as all arithmetic is, never through x87.
template <typename T>
ZELM_INLINE void copyElement(Address to, Address from) {
    store(to, load<T>(from));
}

} // namespace zelm::frame
