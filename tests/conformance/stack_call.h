// Calls a function of 32-bit x86 with a stack of any 4-byte alignment, as old callers do.
#pragma once

#include "target.h"

namespace zelmtest {

#ifdef __i386__

// `misalignment` (0, 4, 8 or 12): how far the stack pointer at the call lies below a multiple of 16. The
// convention of today's compilers is 0.
ZelmStatus callWithStack(void (*function)(), const Target &target, const std::vector<Value> &values,
                         unsigned misalignment);

#endif

} // namespace zelmtest
