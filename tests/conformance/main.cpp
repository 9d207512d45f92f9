// conformance [gtest options] [--seed N] [--cases N] [--function NAME [--case N]] [--also LIBRARY]...
// [--digest FILE] [--summary FILE]
#include "crash.h"
#include "library.h"
#include "options.h"
#include "summary.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

bool writeLine(const std::string &path, const std::string &text) {
    std::ofstream file(path);
    file << text << '\n';
    file.close();
    return !file.fail();
}

} // namespace

int main(int argc, char **argv) {
    using namespace zelmtest;
    testing::InitGoogleTest(&argc, argv);
    try {
        parseOptions(argc, argv);
        exported("zelmGetLibVersion"); // one message if the library cannot be loaded, not one per function
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
    installCrashHandler();
    std::printf("seed %" PRIu64 ", %" PRIu64 " cases per function\n", options().seed, options().cases);
    std::fflush(stdout);

    const auto start = std::chrono::steady_clock::now();
    int result = RUN_ALL_TESTS();
    const std::string text = summary().text(options().seed, std::chrono::steady_clock::now() - start);
    if (!options().function.empty() && summary().names() == 0) {
        std::fprintf(stderr, "no function %s\n", options().function.c_str());
        return 2;
    }

    std::puts(text.c_str());
    if (!options().summary.empty() && !writeLine(options().summary, text)) {
        std::fprintf(stderr, "cannot write %s\n", options().summary.c_str());
        result = 1;
    }
    if (!options().digest.empty() && !summary().writeDigest(options().digest)) {
        std::fprintf(stderr, "cannot write %s\n", options().digest.c_str());
        result = 1;
    }
    return result;
}
