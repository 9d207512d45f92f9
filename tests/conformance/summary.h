// What a run has covered, and a hash of all that the functions gave.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace zelmtest {

class Summary {
public:
    void add(const std::string &function, std::uint64_t calls, std::uint64_t digest) {
        lines_.push_back({function, digest});
        calls_ += calls;
    }

    std::size_t names() const { return lines_.size(); }

    // What the run was, on one line.
    std::string text(std::uint64_t seed, std::chrono::duration<double> time) const;

    // One line `name hash` per function; false if the file cannot be written.
    bool writeDigest(const std::string &path) const;

private:
    struct Line {
        std::string function;
        std::uint64_t digest;
    };

    std::vector<Line> lines_;
    std::uint64_t calls_ = 0;
};

Summary &summary();

} // namespace zelmtest
