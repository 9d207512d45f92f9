// The processor's approximate reciprocals and reciprocal roots: which table of them it has.
#pragma once

#include <cstdint>
#include <string>

namespace zelmtest {

// A hash over what rcpps and rsqrtps give for every mantissa, and for every exponent. Two processors with the
// same hash give the same bits in every function.
std::uint64_t approximations();

// What the processor calls itself.
std::string processorName();

} // namespace zelmtest
