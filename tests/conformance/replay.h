// A case as a C program that can be pasted into a file and run.
#pragma once

#include "arena.h"
#include "case.h"

#include <string>

namespace zelmtest {

// The memory of the case must lie in the arena as it was before the call. The program prints the status and,
// if `differing` is not 0, the element there.
std::string replayProgram(const Case &theCase, const Arena &arena, zelmref::Address differing);

} // namespace zelmtest
