#include "checks.h"

namespace zelmtest {

std::uint64_t fingerprintOf(Stream &stream, const Function &function, std::uint64_t leftOut,
                            const StreamCallee &callee) {
    std::uint64_t hash = 0;
    for (std::size_t number = 0; number < Stream::callCount(function); ++number) {
        if (leftOut >> number & 1)
            continue;
        const ZelmStatus status = callee(stream.make(function, number));
        hash = stream.digest(hash, status);
        stream.restore();
    }
    return hash;
}

} // namespace zelmtest
