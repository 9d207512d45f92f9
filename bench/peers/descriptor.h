// The operands that a descriptor such as "maTm" names.
#pragma once

#include "access.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace zelmbench {

// A string as a template argument.
template <std::size_t size>
struct Text {
    char characters[size];
    constexpr Text(const char (&text)[size]) { std::copy_n(text, size, characters); }
};

// The operands of a descriptor, in order; constants leave no trace.
struct Parsed {
    char shape = 0;
    bool isArray = false, isTransposed = false;
};
template <std::size_t size>
constexpr std::array<Parsed, 3> parse(const Text<size> &descriptor) {
    std::array<Parsed, 3> parsed{};
    std::size_t found = 0;
    for (const char letter : descriptor.characters) {
        if (letter == 'v' || letter == 'm') {
            parsed[found++].shape = letter;
        } else if (letter == 'a') {
            parsed[found - 1].isArray = true;
        } else if (letter == 'T') {
            parsed[found - 1].isTransposed = true;
        }
    }
    return parsed;
}

template <Text descriptor, std::size_t i>
using OperandFormAt =
    OperandForm<parse(descriptor)[i].shape, parse(descriptor)[i].isArray, parse(descriptor)[i].isTransposed>;

template <class First, class Second, class Third, class Result>
struct OperandForms {
    using Src1 = First;
    using Src2 = Second;
    using Src3 = Third;
    using Dst = Result;
};

// Those of a row whose sources are what its descriptor says.
template <Text descriptor, char resultShape>
using OperandFormsFor = OperandForms<
    OperandFormAt<descriptor, 0>, OperandFormAt<descriptor, 1>, OperandForm<0>,
    OperandForm<resultShape, OperandFormAt<descriptor, 0>::isArray || OperandFormAt<descriptor, 1>::isArray>>;

// The exported name of a function; size 0 is its run-time form.
std::string memberName(const char *operation, const char *descriptor, std::size_t elementBytes, bool isVector,
                       std::size_t size, Layout layout);

} // namespace zelmbench
