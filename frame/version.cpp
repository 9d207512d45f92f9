// The version record: the interface that callers find, the same in every release and every build of a target.
// The file name is the one to link with, also where a versioned file stands behind it.

#include "zelm/types.h"

namespace {

const ZelmLibVersion kVersion = {
    4, 1, 11, 30, ZELM_TARGET_CODE, "libzelm" ZELM_TARGET_CODE ".so", "v4.1", "Jul 17 2004"};

} // namespace

const ZelmLibVersion *zelmGetLibVersion(void) {
    return &kVersion;
}
