// Adjacent elements moved as they are.
#pragma once

#include "frame/shuffles.h"
#include "frame/widths.h"

namespace zelm::movement {

using namespace zelm::frame;

// From this length on the processor's own move of a string is faster than a loop over packs.
constexpr Address kStringBytes = 1536;

ZELM_INLINE void moveString(Address to, Address from, Address bytes) {
    __asm__ volatile("rep movsb" : "+D"(to), "+S"(from), "+c"(bytes) : : "memory");
}

// Up to four packs, without a loop: the last ones may cover elements of those before them once more.
template <typename V>
ZELM_INLINE void moveShortRun(Address to, Address from, Address bytes) {
    constexpr Address pack = sizeof(V);
    if (bytes > 2 * pack) {
        const V packs[4] = {loadAs<V>(from), loadAs<V>(from + pack), loadAs<V>(from + bytes - 2 * pack),
                            loadAs<V>(from + bytes - pack)};
        storePack(to, packs[0]);
        storePack(to + pack, packs[1]);
        storePack(to + bytes - 2 * pack, packs[2]);
        storePack(to + bytes - pack, packs[3]);
    } else if (bytes >= pack) {
        const V first = loadAs<V>(from), last = loadAs<V>(from + bytes - pack);
        storePack(to, first);
        storePack(to + bytes - pack, last);
    } else if constexpr (pack > kBlockBytes) {
        moveShortRun<Pack<ElementOf<V>, pack / 2>>(to, from, bytes);
    } else {
        const bool half = bytes >= pack / 2;
        if (half)
            copyElement<double>(to, from);
        const Address at = half ? pack / 2 : 0;
        if (at != bytes)
            copyElement<float>(to + at, from + at);
    }
}

template <typename V>
ZELM_INLINE void moveFourPacks(Address to, Address from) {
    V packs[4];
    ZELM_UNROLL
    for (unsigned p = 0; p < 4; ++p)
        packs[p] = loadAs<V>(from + p * sizeof(V));
    ZELM_UNROLL
    for (unsigned p = 0; p < 4; ++p)
        storePack(to + p * sizeof(V), packs[p]);
}

// The destination must be apart from the source, or be the source.
template <typename T>
ZELM_INLINE void moveRun(Address to, Address from, Address elements) {
    using V = Pack<T, kShortRunBytes>;
    constexpr Address fourPacks = 4 * sizeof(V);
    const Address bytes = elements * sizeof(T);
    if (bytes <= fourPacks)
        return moveShortRun<V>(to, from, bytes);
    if (bytes >= kStringBytes)
        return moveString(to, from, bytes);
    Address at = 0;
    for (; bytes - at > fourPacks; at += fourPacks)
        moveFourPacks<V>(to + at, from + at);
    moveFourPacks<V>(to + bytes - fourPacks, from + bytes - fourPacks);
}

} // namespace zelm::movement
