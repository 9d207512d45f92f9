// The built library, loaded by path as a user's program would load it.
#pragma once

#include "grid_table.h"

#include <string>

namespace zelmtest {

using AnyFunction = void (*)();

// The exported function, or null. The library is ZELM_LIBRARY_PATH of the environment, else the one that was
// built. Throws std::runtime_error if there is none.
AnyFunction exported(const char *name);

// The exported function of the library in a file, which is loaded beside all others.
AnyFunction exportedBy(const std::string &path, const char *name);

const char *libraryPath();

} // namespace zelmtest
