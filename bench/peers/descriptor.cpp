#include "descriptor.h"

#include <sstream>

namespace zelmbench {

std::string memberName(const char *operation, const char *descriptor, std::size_t elementBytes, bool isVector,
                       std::size_t size, Layout layout) {
    constexpr const char *suffixes[] = {"", "_S2", "_P", "_PS2", "_L", "_LS2"};
    std::ostringstream name;
    name << "zelm" << operation << '_' << descriptor << '_' << elementBytes * 8 << 'f';
    if (size != 0) {
        name << '_' << size << 'x' << (isVector ? 1 : size);
    }
    name << suffixes[static_cast<std::size_t>(layout)];
    return name.str();
}

} // namespace zelmbench
