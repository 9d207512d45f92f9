// The library that is looked at: found as any program finds it, or given as a file.
#pragma once

#include "zelm.h"

#include <string>

namespace zelmtest {

class Library {
public:
    // Loads `path`, or, if it is empty, what the dynamic loader takes for the name that programs are linked
    // with. Throws std::runtime_error with a sentence.
    explicit Library(const std::string &path);

    // The exported function, or null.
    void (*function(const std::string &name) const)();

    // Which file it is, with all links followed.
    std::string file() const;

private:
    void *handle_;
};

} // namespace zelmtest
