// The memory functions that the compilers invent calls of, hidden, so that the library imports nothing.

#include <cstddef>

namespace {

// The empty statement keeps a loop from being recognised as the function that it implements.
inline void keepLoop() {
    __asm__ volatile("");
}

} // namespace

// Under names of their own, as the compilers know the real ones and what their visibility is.
extern "C" __attribute__((visibility("hidden"), used)) void *
zelmCopyBytes(void *to, const void *from, std::size_t size) __asm__("memcpy");
extern "C" __attribute__((visibility("hidden"), used)) void *zelmSetBytes(void *to, int value,
                                                                          std::size_t size) __asm__("memset");

void *zelmCopyBytes(void *to, const void *from, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
        static_cast<unsigned char *>(to)[i] = static_cast<const unsigned char *>(from)[i];
        keepLoop();
    }
    return to;
}

void *zelmSetBytes(void *to, int value, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
        static_cast<unsigned char *>(to)[i] = static_cast<unsigned char>(value);
        keepLoop();
    }
    return to;
}
