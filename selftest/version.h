// The fingerprint of zelmGetLibVersion, the one function that computes nothing.
#pragma once

#include "zelm.h"

#include <cstdint>

namespace zelmtest {

// A hash of the record's fields. Those that name the target count as right or wrong only, so that all targets
// have one fingerprint: `fileName` is the name of the library of `targetCode`. `isTheSame`: a second call
// gave the same pointer.
std::uint64_t fingerprintOf(const ZelmLibVersion &version, bool isTheSame);

} // namespace zelmtest
