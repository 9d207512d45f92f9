#include "library.h"

#include <cstdlib>
#include <dlfcn.h>
#include <stdexcept>
#include <string>

namespace zelmtest {

const char *libraryPath() {
    const char *path = std::getenv("ZELM_LIBRARY_PATH");
    return path ? path : ZELM_LIBRARY_PATH;
}

AnyFunction exported(const char *name) {
    static const std::string path = libraryPath();
    static void *const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error("cannot load " + path);
    return reinterpret_cast<AnyFunction>(dlsym(library, name));
}

} // namespace zelmtest
