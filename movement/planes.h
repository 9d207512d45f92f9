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

// The bytes of all planes.
template <typename T>
ZELM_INLINE Range rangeOfPlanes(const PackedTableArray<T> &array, Address elements, std::uint32_t count) {
    Range range = rangeOfObject(array.object(0), 1, static_cast<unsigned>(elements));
    range.high += std::int64_t{count - 1} * static_cast<std::int64_t>(sizeof(T));
    return range;
}

template <typename T>
ZELM_INLINE bool planesAreApart(const PackedTableArray<T> &d, Address elements, std::uint32_t count) {
    return positionsAreApart(d.object(0), static_cast<unsigned>(elements),
                             std::int64_t{count} * static_cast<std::int64_t>(sizeof(T)));
}

// Whether planes may be moved one after the other, where the objects are to be moved one after the other.
template <typename T>
ZELM_INLINE bool planesMayMove(const PackedTableArray<const T> &s, const PackedTableArray<T> &d,
                               Address elements, std::uint32_t count) {
    return planesAreWorthIt(elements, count) && planesAreApart(d, elements, count) &&
           areDisjoint(rangeOfPlanes(s, elements, count), rangeOfPlanes(d, elements, count));
}

} // namespace zelm::movement
