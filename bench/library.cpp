#include "library.h"

#include <dlfcn.h>

#include <stdexcept>

namespace zelmbench {

Library::Library(const std::string &path) : handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) {
        throw std::runtime_error(dlerror());
    }
}

AnyFunction Library::find(const std::string &name) const {
    void *symbol = dlsym(handle_, name.c_str());
    if (symbol == nullptr) {
        throw std::runtime_error(dlerror());
    }
    return reinterpret_cast<AnyFunction>(symbol);
}

} // namespace zelmbench
