// The processor's modes that a call must leave alone.
#pragma once

#include <cstdint>

namespace zelmtest {

struct ControlState {
    std::uint32_t mxcsr; // without the sticky exception flags, which any arithmetic sets
    std::uint16_t x87;

    bool operator==(const ControlState &) const = default;
};

inline ControlState controlState() {
    std::uint32_t mxcsr;
    std::uint16_t x87;
    asm volatile("stmxcsr %0" : "=m"(mxcsr));
    asm volatile("fnstcw %0" : "=m"(x87));
    return {mxcsr & ~0x3fu, x87};
}

} // namespace zelmtest
