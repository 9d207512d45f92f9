// Addresses as numbers, and elements moved to and from them.
//
// Strides and shifts are added modulo the word size and operands may overlap in any way, so that addresses
// are unsigned numbers here and every access may alias every other.
#pragma once

#include <cstdint>
#include <type_traits>

// The helpers of the frame vanish in their callers in every build: a float returned by a real function would
// pass through x87 on 32-bit x86, which quiets signalling NaNs.
#define ZELM_INLINE inline __attribute__((always_inline))

namespace zelm::frame {

using Address = std::uintptr_t;

// A signed count of bytes as the distance that it adds to an address.
ZELM_INLINE constexpr Address distance(std::int32_t bytes) {
    return static_cast<Address>(static_cast<std::intptr_t>(bytes));
}

ZELM_INLINE Address addressOf(const void *pointer) {
    return reinterpret_cast<Address>(pointer);
}

template <typename T>
ZELM_INLINE T load(Address from) {
    T value;
    __builtin_memcpy(&value, reinterpret_cast<const void *>(from), sizeof value);
    return value;
}

template <typename T>
ZELM_INLINE void store(Address to, T value) {
    __builtin_memcpy(reinterpret_cast<void *>(to), &value, sizeof value);
}

// Moves one element as bits.
template <typename T>
ZELM_INLINE void copyElement(Address to, Address from) {
    using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
    store(to, load<Bits>(from));
}

} // namespace zelm::frame
