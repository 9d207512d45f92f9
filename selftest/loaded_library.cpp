#include "loaded_library.h"

#include <cstdlib>
#include <dlfcn.h>
#include <link.h>
#include <stdexcept>

namespace zelmtest {

Library::Library(const std::string &path)
    : handle_(dlopen(path.empty()                          ? ZELM_SONAME
                     : path.find('/') == std::string::npos ? ("./" + path).c_str()
                                                           : path.c_str(),
                     RTLD_NOW | RTLD_LOCAL)) {
    if (!handle_)
        throw std::runtime_error("cannot load the library: " + std::string(dlerror()));
    if (!function("zelmGetLibVersion"))
        throw std::runtime_error(file() + " is not zelm: it does not export zelmGetLibVersion");
}

void (*Library::function(const std::string &name) const)() {
    return reinterpret_cast<void (*)()>(dlsym(handle_, name.c_str()));
}

std::string Library::file() const {
    link_map *map = nullptr;
    if (dlinfo(handle_, RTLD_DI_LINKMAP, &map) != 0 || !map)
        return "unknown file";
    char *const real = realpath(map->l_name, nullptr);
    const std::string name = real ? real : map->l_name;
    std::free(real);
    return name;
}

} // namespace zelmtest
