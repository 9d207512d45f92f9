// The modes of the processor that a caller may have set: rounding, denormals, x87 precision, exceptions.
#pragma once

#include "control_state.h"

#include <cstdint>

namespace zelmtest {

// The bits of MXCSR and of the x87 control word.
constexpr std::uint32_t denormalsAreZero = 0x0040, flushToZero = 0x8000, sseRounding = 0x6000;
constexpr std::uint32_t sseMasks = 0x1f80, sseDefault = 0x1f80;
constexpr std::uint16_t x87Precision = 0x0300, x87Rounding = 0x0c00, x87Masks = 0x003f, x87Default = 0x037f;

// The exceptions, as bits of both status words; shifted by 7 they are the masks of MXCSR.
constexpr std::uint32_t invalid = 1, denormal = 2, divideByZero = 4, overflow = 8, underflow = 16,
                        inexact = 32;

inline void setControlState(const ControlState &state) {
    const std::uint32_t mxcsr = state.mxcsr; // without sticky flags
    asm volatile("fnclex\n\tfldcw %0" ::"m"(state.x87));
    asm volatile("ldmxcsr %0" ::"m"(mxcsr));
}

// The exceptions since the state was set.
inline std::uint32_t raisedExceptions() {
    std::uint32_t mxcsr;
    std::uint16_t x87;
    asm volatile("stmxcsr %0" : "=m"(mxcsr));
    asm volatile("fnstsw %0" : "=m"(x87));
    return (mxcsr | x87) & 0x3f;
}

// Sets a state for a scope.
class ControlStateScope {
public:
    explicit ControlStateScope(const ControlState &state) : before_(controlState()) {
        setControlState(state);
    }
    ~ControlStateScope() { setControlState(before_); }
    ControlStateScope(const ControlStateScope &) = delete;
    ControlStateScope &operator=(const ControlStateScope &) = delete;

private:
    ControlState before_;
};

} // namespace zelmtest
