// How many instructions some work takes.
#pragma once

#include <cstdint>
#include <functional>

namespace zelmbench {

// Counted one by one in a process of its own, which this one follows; what the work changes stays there.
std::uint64_t instructionsOf(const std::function<void()> &work);

} // namespace zelmbench
