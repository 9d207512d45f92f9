#include "library.h"

#include <dlfcn.h>

#include <cstdlib>
#include <stdexcept>

namespace zelmbench {
namespace {

void *openLibrary() {
    const char *chosen = std::getenv("ZELM_LIBRARY");
    void *library = dlopen(chosen != nullptr ? chosen : ZELM_BENCH_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        throw std::runtime_error(dlerror());
    }
    return library;
}

} // namespace

void *findSymbol(const std::string &name) {
    static void *const library = openLibrary();
    void *symbol = dlsym(library, name.c_str());
    if (symbol == nullptr) {
        throw std::runtime_error(dlerror());
    }
    return symbol;
}

} // namespace zelmbench
