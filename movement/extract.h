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

// Single objects: the buffer is filled in its order.
template <typename S, typename T>
ZELM_INLINE ZelmStatus extractSingle(const S &s, T *dst, RunTimeShape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), s, Pointer(dst)); status != kProceed)
        return status;
    moveObject(s, packedAt(dst, shape).object(0), shape);
    return ZELM_OK;
}

// Whether the buffer is apart from the source, so that the order in which it is filled can't be seen.
template <typename S, typename T>
ZELM_INLINE bool isApart(const S &s, const DenseArray<T> &packed, RunTimeShape shape, std::uint32_t count) {
    if constexpr (S::isList || kIsTransposed<S>) {
        return false;
    } else {
        return shape.height <= kMostInGroups && shape.width <= kMostInGroups &&
               count <= kMostObjectsInRange &&
               isUntouched(s, shape.height, shape.width, packed, shape.height, shape.width, count);
    }
}

template <typename S, typename T>
ZELM_INLINE ZelmStatus extractArray(const S &s, T *dst, RunTimeShape shape, std::uint32_t count) {
    if (ZelmStatus status = checkSingle(shape.isZero() || count == 0, s, Pointer(dst)); status != kProceed)
        return status;
    const DenseArray<T> packed = packedAt(dst, shape);
    if (isApart(s, packed, shape, count))
        moveObjects(s, packed, shape, count);
    else
        moveInOrder(s, packed, shape, count);
    return ZELM_OK;
}

} // namespace zelm::movement

#include "movement/departures.h"
