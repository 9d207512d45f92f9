// What the library's functions return.
#pragma once

#include <stdexcept>
#include <string>
#include <zelm.h>

namespace terrain {

inline void requireOk(ZelmStatus status, const char *function) {
    if (status != ZELM_OK) {
        throw std::logic_error(std::string(function) + " returned status " + std::to_string(status));
    }
}

} // namespace terrain
