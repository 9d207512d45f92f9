#include "version.h"

#include <string>

namespace zelmtest {

std::uint64_t fingerprintOf(const ZelmLibVersion &version, bool isTheSame) {
    const std::string target(version.targetCode,
                             version.targetCode[3] ? 4 : std::string(version.targetCode).size());
    const bool fits = (target == "t7" || target == "x64") && "libzelm" + target + ".so" == version.fileName;
    const std::string text = std::to_string(version.major) + " " + std::to_string(version.minor) + " " +
                             std::to_string(version.buildMajor) + " " + std::to_string(version.buildMinor) +
                             " " + version.versionText + " " + version.buildDate +
                             (fits ? " its file" : " another file") +
                             (isTheSame ? ", one record" : ", two records");
    std::uint64_t hash = 0;
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x9e3779b97f4a7c15u;
        hash ^= hash >> 32;
    }
    return hash;
}

} // namespace zelmtest
