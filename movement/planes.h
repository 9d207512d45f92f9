// The P layout: the elements of one position, over all objects, are adjacent.
#pragma once

#include "frame/overlap.h"
#include "movement/copied_run.h"

namespace zelm::movement {

// From how many objects on moving plane by plane is worth its overlap test, and up to which number of
// positions: the test grows with its square.
constexpr std::uint32_t kPlanesCount = 16;
constexpr Address kPlanesElements = 64;

// More rows or columns than this are moved in order: the arithmetic on ranges could overflow.
constexpr std::uint32_t kMostInGroups = std::uint32_t{1} << 24;

ZELM_INLINE constexpr bool planesAreWorthIt(Address elements, std::uint32_t count) {
    return count >= kPlanesCount && count <= kMostObjectsInRange && elements <= kPlanesElements;
}

template <typename Array>
ZELM_INLINE bool planesAreApart(const Array &d, Address elements, std::uint32_t count) {
    using T = typename Array::Element;
    return positionsAreApart(d.object(0), static_cast<unsigned>(elements),
                             span(d.objStride) * (count - 1) + std::int64_t{sizeof(T)});
}

// Whether planes may be moved one after the other, where the objects are to be moved one after the other.
template <typename S, typename D>
ZELM_INLINE bool planesMayMove(const S &s, const D &d, Address elements, std::uint32_t count) {
    const auto entries = static_cast<unsigned>(elements);
    return planesAreWorthIt(elements, count) && planesAreApart(d, elements, count) &&
           isUntouched(s, 1, entries, d, 1, entries, count);
}

// Elements a step apart. Left to itself, the compiler makes each address of the one before it, which takes a
// cycle an element; and so short a loop takes twice as long where its end meets that of a line of
// instructions.
template <typename T>
ZELM_NOINLINE void moveSteps(Address to, Address toStep, Address from, Address fromStep,
                             std::uint32_t count) {
    Address toPair = 2 * toStep, fromPair = 2 * fromStep;
    asm("" : "+r"(toPair), "+r"(fromPair));
    for (; count >= 8; count -= 8) {
        ZELM_UNROLL
        for (unsigned pair = 0; pair < 4; ++pair) {
            copyElement<T>(to, from);
            copyElement<T>(to + toStep, from + fromStep);
            to += toPair, from += fromPair;
            asm("" : "+r"(to), "+r"(from));
        }
    }
    for (; count != 0; --count, to += toStep, from += fromStep)
        copyElement<T>(to, from);
}

template <typename S, typename D>
ZELM_INLINE void movePlane(const S &s, const D &d, Address from, Address to, std::uint32_t count) {
    using T = typename D::Element;
    if constexpr (S::isSideBySide && D::isSideBySide)
        moveRun<T>(to, from, count);
    else
        moveSteps<T>(to, d.objStride, from, s.objStride, count);
}

} // namespace zelm::movement
