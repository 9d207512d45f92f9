// Adjacent elements moved as they are.
#pragma once

#include "frame/shuffles.h"

namespace zelm::movement {

using namespace zelm::frame;

// From this length on the processor's own move of a string is faster than a loop over packs.
constexpr Address kStringBytes = 2048;

ZELM_INLINE void moveString(Address to, Address from, Address bytes) {
    __asm__ volatile("rep movsb" : "+D"(to), "+S"(from), "+c"(bytes) : : "memory");
}

// The destination must be apart from the source, or be the source. The last pack may cover elements of the
// one before it once more.
template <typename T>
ZELM_INLINE void moveRun(Address to, Address from, Address elements) {
    const Address bytes = elements * sizeof(T);
    if (bytes >= kStringBytes)
        return moveString(to, from, bytes);
    Address at = 0;
    if (bytes < kBlockBytes) {
        if (bytes >= kBlockBytes / 2) {
            copyElement<double>(to, from);
            at = kBlockBytes / 2;
        }
        if (at != bytes)
            copyElement<float>(to + at, from + at);
        return;
    }
    for (; bytes - at >= kBlockBytes; at += kBlockBytes)
        storePack(to + at, loadPack<T>(from + at));
    if (at != bytes)
        storePack(to + bytes - kBlockBytes, loadPack<T>(from + bytes - kBlockBytes));
}

} // namespace zelm::movement
