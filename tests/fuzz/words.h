// A command line of any bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zelmfuzz {

// The words between the ends of lines, behind the program's own name, as main() gets them.
class Words {
public:
    Words(const std::uint8_t *bytes, std::size_t count) {
        words_.emplace_back("program");
        const auto end = bytes + count;
        for (const std::uint8_t *at = bytes; at != end; ++at) {
            if (at == bytes || at[-1] == '\n') {
                words_.emplace_back();
            }
            if (*at != '\n' && *at != 0) {
                words_.back() += static_cast<char>(*at);
            }
        }
        for (std::string &word : words_) {
            pointers_.push_back(word.data());
        }
        pointers_.push_back(nullptr);
    }
    Words(const Words &) = delete;
    Words &operator=(const Words &) = delete;

    int argc() const { return static_cast<int>(words_.size()); }
    char **argv() { return pointers_.data(); }

private:
    std::vector<std::string> words_;
    std::vector<char *> pointers_;
};

} // namespace zelmfuzz
