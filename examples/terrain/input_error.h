// What is wrong with an input file: one line that names the file, the line in it and what was expected.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace terrain {

class InputError : public std::runtime_error {
public:
    InputError(const std::string &file, const std::string &text) : std::runtime_error(file + ": " + text) {}
    InputError(const std::string &file, std::size_t line, const std::string &text)
        : std::runtime_error(file + ":" + std::to_string(line) + ": " + text) {}
};

} // namespace terrain
