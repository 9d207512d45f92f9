// Extraction to a packed buffer. No entry of a table is tested; a count of zero is an error.
#pragma once

#include "frame/checks.h"
#include "movement/move.h"

namespace zelm::movement {

// The packed buffer as objects behind each other.
template <typename T>
ZELM_INLINE DenseArray<T> packedAt(T *dst, RunTimeShape shape) {
    DenseArray<T> packed(dst, 0, 0);
    packed.rowStride = Address{shape.width} * sizeof(T);
    packed.objStride = packed.rowStride * shape.height;
    return packed;
}

// Whether the buffer is apart from the source, so that the order in which it is filled can't be seen.
template <typename S, typename T>
ZELM_INLINE bool isApart(const S &s, const DenseArray<T> &packed, RunTimeShape shape, std::uint32_t count) {
    if constexpr (kIsTransposed<S>) {
        return false;
    } else {
        return shape.height <= kMostInGroups && shape.width <= kMostInGroups &&
               count <= kMostObjectsInRange &&
               isUntouched(s, shape.height, shape.width, packed, shape.height, shape.width, count);
    }
}

// Single objects: the buffer is filled in its order.
template <typename S, typename T>
ZELM_INLINE ZelmStatus extractSingle(const S &s, T *dst, RunTimeShape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), s, Pointer(dst)); status != kProceed)
        return status;
    const DenseArray<T> packed = packedAt(dst, shape);
    if constexpr (!S::isTable && !kIsTransposed<S>) {
        const Address bytes = shape.elements() * sizeof(T);
        if (isPlainer(s) && std::uint64_t{shape.height} * shape.width <= kMostInGroups &&
            rowsAreJoined(s, packed, shape) && areDisjoint(s.start, bytes, packed.start, bytes)) {
            moveRun<T>(packed.start, s.start, shape.elements());
            return ZELM_OK;
        }
    }
    moveObject(s, packed.object(0), shape);
    return ZELM_OK;
}

// A list's objects lie anywhere: each is moved as it may be.
template <typename T>
ZELM_INLINE void extractList(const DenseList<const T> &s, const DenseArray<T> &packed, RunTimeShape shape,
                             std::uint32_t count) {
    constexpr Address least = 8; // elements that are worth the test
    const bool possible =
        shape.height <= kMostInGroups && shape.width <= kMostInGroups && shape.elements() >= least;
    const bool joined = rowsAreJoined(s, packed, shape);
    const Extent read = possible ? extentOf(s, shape.height, shape.width) : Extent{};
    for (std::uint32_t k = 0; k < count; ++k) {
        const Dense<const T> from = s.object(k);
        const Dense<T> to = packed.object(k);
        if (possible &&
            areDisjoint(from.start + read.lowest, read.bytes, to.start, shape.elements() * sizeof(T)))
            moveRowsOf(from, to, shape, joined);
        else
            moveObject(from, to, shape);
    }
}

template <typename S, typename T>
ZELM_INLINE void extractList(const S &s, const DenseArray<T> &packed, RunTimeShape shape,
                             std::uint32_t count) {
    moveInOrder(s, packed, shape, count);
}

template <typename S, typename T>
ZELM_INLINE ZelmStatus extractArray(const S &s, T *dst, RunTimeShape shape, std::uint32_t count) {
    if (ZelmStatus status = checkSingle(shape.isZero() || count == 0, s, Pointer(dst)); status != kProceed)
        return status;
    const DenseArray<T> packed = packedAt(dst, shape);
    if constexpr (S::isList && !kIsTransposed<S>)
        withPlainest([&](const auto &list) ZELM_INLINE_LAMBDA { extractList(list, packed, shape, count); },
                     s);
    else if (isApart(s, packed, shape, count))
        moveObjects(s, packed, shape, count);
    else
        moveInOrder(s, packed, shape, count);
    return ZELM_OK;
}

} // namespace zelm::movement
