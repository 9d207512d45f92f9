// Element-wise operations in the P layout: the results of one position are one run over all objects.
#pragma once

#include "elementwise/run.h"
#include "frame/overlap.h"

namespace zelm::elementwise {

template <typename T>
ZELM_INLINE Stream<T> inputAtEntry(const PackedTableArray<const T> &array, Address entry) {
    return {array.object(0).position(entry)};
}

template <typename T>
ZELM_INLINE ScaledStream<T> inputAtEntry(const Scaled<PackedTableArray<const T>> &array, Address entry) {
    return {{array.object(0).position(entry)}, array.factor};
}

template <typename T>
ZELM_INLINE Same<T> inputAtEntry(const Table<const T> &invariant, Address entry) {
    return {load<T>(invariant.position(entry))};
}

template <typename T>
ZELM_INLINE Same<T> inputAtEntry(const Scaled<Table<const T>> &invariant, Address entry) {
    return {load<T>(invariant.position(entry)) * invariant.factor};
}

template <typename T>
ZELM_INLINE Same<T> inputAtEntry(const Constant<T> &constant, Address) {
    return {constant.value};
}

// Whether no result of the positions lies in another position of the source. In the same position a run gives
// what the loop over objects gives, however the two overlap; an invariant is out of reach or not.
template <typename S, typename T, typename Shape>
bool isOutOfReachOf(S s, PackedTableArray<T> d, Shape shape, std::uint32_t count) {
    if constexpr (!S::isTable) {
        return true;
    } else {
        const std::int64_t bytes = std::int64_t{count} * static_cast<std::int64_t>(sizeof(T));
        const std::int64_t sourceBytes = requires {
            s.objStride;
        }
        ? bytes : std::int64_t{sizeof(T)};
        const auto entries = static_cast<unsigned>(shape.elements());
        Range source = rangeOfObject(s.object(0), 1, entries),
              target = rangeOfObject(d.object(0), 1, entries);
        source.high += sourceBytes;
        target.high += bytes;
        if (areDisjoint(source, target))
            return true;
        for (std::uint32_t i = 0; i < shape.rows(); ++i) {
            for (std::uint32_t j = 0; j < shape.columns(); ++j) {
                const Range result = rangeFrom(d.object(0).position(Address{i} * shape.columns() + j), bytes);
                const Address own = requires {
                    s.objStride;
                }
                ? entryNumber(s, i, j, shape) : entries;
                for (Address e = 0; e < entries; ++e)
                    if (e != own && !areDisjoint(result, rangeFrom(s.object(0).position(e), sourceBytes)))
                        return false;
            }
        }
        return true;
    }
}

// From how many objects on a run per position is worth its overlap test, and up to which size: the test grows
// with the square of the number of positions.
constexpr std::uint32_t kPerPositionCount = 16;
constexpr Address kPerPositionElements = 36;

// False, with nothing written, where the objects are to be done one by one. One instance serves P, and PS2
// where its objects are adjacent.
template <typename Op, typename A, typename B, typename T, typename Shape>
ZELM_NOINLINE bool runPerPosition(A a, B b, PackedTableArray<T> d, Shape shape, std::uint32_t count) {
    if (count < kPerPositionCount || count > kMostObjectsInRange || shape.elements() > kPerPositionElements)
        return false;
    if (!positionsAreApart(d.object(0), static_cast<unsigned>(shape.elements()),
                           std::int64_t{count} * static_cast<std::int64_t>(sizeof(T))) ||
        !isOutOfReachOf(a, d, shape, count) || !isOutOfReachOf(b, d, shape, count))
        return false;
    for (std::uint32_t i = 0; i < shape.rows(); ++i)
        for (std::uint32_t j = 0; j < shape.columns(); ++j)
            run<Op, T>(inputAtEntry(a, entryNumber(a, i, j, shape)),
                       inputAtEntry(b, entryNumber(b, i, j, shape)),
                       d.object(0).position(Address{i} * shape.columns() + j), count);
    return true;
}

} // namespace zelm::elementwise
