// The reference model's part: which calls of a stream have a meaning, and what comes of them.
#pragma once

#include "family.h"
#include "stream.h"
#include "target.h"

#include <optional>

namespace zelmtest {

class StreamModel {
public:
    StreamModel(const Target &target, const Stream &stream) : target_(target), stream_(stream) {}

    // Is what the call does left open, or does it fault, as it may?
    bool leavesOut(const StreamCall &call) const;

    ZelmStatus run(const StreamCall &call) const;

private:
    zelmref::Call read(const StreamCall &call) const;
    bool entryMayBeNull(const zelmref::Call &call, const StreamCall &made) const;

    const Target &target_;
    const Stream &stream_;
};

} // namespace zelmtest
