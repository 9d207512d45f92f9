// The version record.

#include "zelm/types.h"

namespace {

const ZelmLibVersion kVersion = {4, 1, 11, 30, ZELM_TARGET_CODE, ZELM_FILE_NAME, "v4.1", "Jul 17 2004"};

} // namespace

const ZelmLibVersion *zelmGetLibVersion(void) {
    return &kVersion;
}
