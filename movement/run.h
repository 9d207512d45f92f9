// Adjacent elements moved as they are.
#pragma once

#include "frame/pack.h"

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
    if (bytes < kPackBytes) {
        if (bytes >= kPackBytes / 2) {
            copyElement<double>(to, from);
            at = kPackBytes / 2;
        }
        if (at != bytes)
            copyElement<float>(to + at, from + at);
        return;
    }
    for (; bytes - at >= kPackBytes; at += kPackBytes)
        storePack(to + at, loadPack<T>(from + at));
    if (at != bytes)
        storePack(to + bytes - kPackBytes, loadPack<T>(from + bytes - kPackBytes));
}

} // namespace zelm::movement
