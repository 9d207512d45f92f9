// What a run of the conformance test can be told, by --name=value or by the environment as ZELM_NAME.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zelmtest {

struct Options {
    std::uint64_t seed = 20040717;
    std::uint64_t cases = 300;             // per function
    std::optional<std::uint64_t> onlyCase; // --case: this one alone
    std::vector<std::string> also;         // --also: files of other builds, which get the same cases
    std::string function;                  // --function: this one alone
    std::string digest;                    // --digest: the file to write
    std::string summary;                   // --summary: likewise
};

Options &options();
void parseOptions(int argc, char **argv); // throws std::invalid_argument

} // namespace zelmtest
