// Names the case that crashed before the process dies of it.
#pragma once

#include <cstdint>

namespace zelmtest {

void installCrashHandler();

// What runs now; `function` must stay valid.
void nameRunningCase(const char *function, std::uint64_t seed, std::uint64_t number);
void nameNoCase();

} // namespace zelmtest
