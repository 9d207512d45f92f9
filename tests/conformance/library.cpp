#include "library.h"

#include <cstdlib>
#include <dlfcn.h>
#include <stdexcept>

namespace zelmtest {

const char *libraryPath() {
    const char *path = std::getenv("ZELM_LIBRARY_PATH");
    return path ? path : ZELM_LIBRARY_PATH;
}

AnyFunction exported(const char *name) {
    static void *const library = dlopen(libraryPath(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error(dlerror());
    return reinterpret_cast<AnyFunction>(dlsym(library, name));
}

} // namespace zelmtest
