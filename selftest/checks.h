// Fingerprints taken of what is called: the library's functions, or a model of them.
#pragma once

#include "fingerprints.h"
#include "stream.h"

#include <functional>

namespace zelmtest {

using StreamCallee = std::function<ZelmStatus(const StreamCall &)>;

// The hash over all calls of a function's stream but those that are left out.
std::uint64_t fingerprintOf(Stream &stream, const Function &function, std::uint64_t leftOut,
                            const StreamCallee &callee);

} // namespace zelmtest
