// Shared objects, loaded by path.
#pragma once

#include "member.h"

#include <string>

namespace zelmbench {

class Library {
public:
    explicit Library(const std::string &path); // throws std::runtime_error
    AnyFunction find(const std::string &name) const;

private:
    void *handle_;
};

} // namespace zelmbench
