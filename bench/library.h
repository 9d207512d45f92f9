// The shared object under measurement, loaded as any caller would load it.
#pragma once

#include <string>

namespace zelmbench {

// The address of an exported function; throws std::runtime_error if the library or the name isn't there. The
// library is the file that the environment variable ZELM_LIBRARY names, or else the one that was built with
// this program.
void *findSymbol(const std::string &name);

template <class Function>
Function *find(const std::string &name) {
    return reinterpret_cast<Function *>(findSymbol(name));
}

} // namespace zelmbench
