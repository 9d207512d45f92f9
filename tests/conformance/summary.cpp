#include "summary.h"

#include <cinttypes>
#include <cstdio>

namespace zelmtest {

std::string Summary::text(std::uint64_t seed, std::chrono::duration<double> time) const {
    char text[128];
    std::snprintf(text, sizeof text, "conformance: %zu names, %" PRIu64 " calls, seed %" PRIu64 ", %.1f s",
                  lines_.size(), calls_, seed, time.count());
    return text;
}

bool Summary::writeDigest(const std::string &path) const {
    std::FILE *file = std::fopen(path.c_str(), "w");
    if (!file)
        return false;
    bool good = true;
    for (const Line &line : lines_)
        good = std::fprintf(file, "%s %016" PRIx64 "\n", line.function.c_str(), line.digest) > 0 && good;
    return std::fclose(file) == 0 && good;
}

Summary &summary() {
    static Summary instance;
    return instance;
}

} // namespace zelmtest
