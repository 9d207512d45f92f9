// How a product or a sum of two operands uses them: "maTm" is an array used transposed, and a matrix.
#pragma once

#include "cell.h"

namespace zelmref {

struct Use {
    bool array, transposed;
};

struct Uses {
    explicit Uses(std::string_view descriptor) {
        const std::size_t begin = descriptor.find_first_of("mv", 1);
        const auto use = [](std::string_view letters) {
            return Use{letters.find('a') != std::string_view::npos,
                       letters.find('T') != std::string_view::npos};
        };
        first = use(descriptor.substr(0, begin));
        second = use(descriptor.substr(begin));
    }
    Use first, second;
};

} // namespace zelmref
