// How many instructions some work takes.
#pragma once

#include <cstdint>
#include <functional>

namespace zelmbench {

// Counted one by one: the processor stops behind each, which takes microseconds.
std::uint64_t instructionsOf(const std::function<void()> &work);

} // namespace zelmbench
