// The reference model of one function, run in a mode of the processor and watched for the exceptions that it
// raises.
#pragma once

#include "processor_mode.h"
#include "target.h"

namespace zelmtest {

// One at a time, as a family is reached by plain pointers.
class WatchedModel {
public:
    WatchedModel(const Target &target, const ControlState &state);
    ~WatchedModel();
    WatchedModel(const WatchedModel &) = delete;
    WatchedModel &operator=(const WatchedModel &) = delete;

    // For the runner, in the place of the one that was given.
    const Target &target() const { return target_; }

    // What the model gave and raised in the last case.
    ZelmStatus status() const;
    std::uint32_t exceptions() const;

private:
    zelmref::Family family_;
    Target target_;
};

} // namespace zelmtest
