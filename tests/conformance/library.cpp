#include "library.h"

#include <cstdlib>
#include <dlfcn.h>
#include <map>
#include <stdexcept>
#include <string>

namespace zelmtest {
namespace {

void *load(const std::string &path) {
    void *const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error("cannot load " + path);
    return library;
}

} // namespace

const char *libraryPath() {
    const char *path = std::getenv("ZELM_LIBRARY_PATH");
    return path ? path : ZELM_LIBRARY_PATH;
}

AnyFunction exported(const char *name) {
    static const std::string path = libraryPath();
    static void *const library = load(path);
    return reinterpret_cast<AnyFunction>(dlsym(library, name));
}

AnyFunction exportedBy(const std::string &path, const char *name) {
    static std::map<std::string, void *> libraries;
    void *&library = libraries[path];
    if (!library)
        library = load(path);
    return reinterpret_cast<AnyFunction>(dlsym(library, name));
}

} // namespace zelmtest
