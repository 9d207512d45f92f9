#include "watched_model.h"

#include <cassert>

namespace zelmtest {
namespace {

struct Watch {
    const zelmref::Family *family = nullptr;
    ControlState state{};
    ZelmStatus status = ZELM_OK;
    std::uint32_t exceptions = 0;
};

Watch watch;

ZelmStatus runWatched(const zelmref::Call &call, zelmref::ComputedElements &results) {
    const ControlStateScope scope(watch.state);
    watch.status = watch.family->run(call, results);
    watch.exceptions = raisedExceptions();
    return watch.status;
}

} // namespace

WatchedModel::WatchedModel(const Target &target, const ControlState &state)
    : family_(*target.family), target_(target) {
    assert(!watch.family);
    watch = {target.family, state};
    family_.run = runWatched;
    target_.family = &family_;
}

WatchedModel::~WatchedModel() {
    watch.family = nullptr;
}

ZelmStatus WatchedModel::status() const {
    return watch.status;
}

std::uint32_t WatchedModel::exceptions() const {
    return watch.exceptions;
}

} // namespace zelmtest
