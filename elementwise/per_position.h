// Element-wise operations in the P and PS2 layouts: the results of one position are one run over all objects.
#pragma once

#include "elementwise/strided.h"
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

// The same with objects a stride apart.
template <typename T>
ZELM_INLINE Rows<T> inputAtEntry(const TableArray<const T> &array, Address entry) {
    return {array.object(0).position(entry), array.objStride, 0};
}

template <typename T>
ZELM_INLINE ScaledRows<T> inputAtEntry(const Scaled<TableArray<const T>> &array, Address entry) {
    return {{array.object(0).position(entry), array.objStride, 0}, array.factor};
}

template <typename T>
ZELM_INLINE ConstantRows<T> rowsOfInput(const Same<T> &input) {
    return ConstantRows<T>(input.value);
}
template <typename Input>
ZELM_INLINE const Input &rowsOfInput(const Input &input) {
    return input;
}

template <typename Op, typename A, typename B, typename T>
ZELM_INLINE void planeInOrder(const A &a, const B &b, const Rows<T> &d, std::uint32_t count) {
    if constexpr (kHasFewRegisters)
        stridedRun<Op>(a, b, d, count);
    else
        elementsOfArray<Op>(a, b, d, count);
}

// The bytes of one position of an array, an invariant's being one element. Strides that don't ascend have
// none.
template <typename S>
ZELM_INLINE std::int64_t bytesOfPosition(const S &s, std::uint32_t count) {
    constexpr std::int64_t size = sizeof(typename S::Element);
    if constexpr (kIsArray<S>) {
        const std::int64_t stride = signedDistance(s.objStride);
        return stride < size ? 0 : stride * (count - 1) + size;
    } else {
        return size;
    }
}

// Whether no result of the positions lies in another position of the source. In the same position a run gives
// what the loop over objects gives, however the two overlap; an invariant is out of reach or not.
template <typename S, typename D, typename Shape>
bool isOutOfReachOf(S s, D d, Shape shape, std::uint32_t count) {
    if constexpr (!S::isTable) {
        return true;
    } else {
        const std::int64_t bytes = bytesOfPosition(d, count), sourceBytes = bytesOfPosition(s, count);
        if (sourceBytes == 0)
            return false;
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
                Address own = entries;
                if constexpr (kIsArray<S>)
                    own = entryNumber(s, i, j, shape);
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
template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_NOINLINE bool runPerPosition(A a, B b, D d, Shape shape, std::uint32_t count) {
    using T = typename D::Element;
    if (count < kPerPositionCount || count > kMostObjectsInRange || shape.elements() > kPerPositionElements)
        return false;
    const std::int64_t bytes = bytesOfPosition(d, count);
    if (bytes == 0 || !positionsAreApart(d.object(0), static_cast<unsigned>(shape.elements()), bytes) ||
        !isOutOfReachOf(a, d, shape, count) || !isOutOfReachOf(b, d, shape, count))
        return false;
    for (std::uint32_t i = 0; i < shape.rows(); ++i) {
        for (std::uint32_t j = 0; j < shape.columns(); ++j) {
            const auto first = inputAtEntry(a, entryNumber(a, i, j, shape));
            const auto second = inputAtEntry(b, entryNumber(b, i, j, shape));
            const Address to = d.object(0).position(Address{i} * shape.columns() + j);
            if constexpr (D::isSideBySide)
                longRun<Op, T>(first, second, to, count);
            else
                planeInOrder<Op>(rowsOfInput(first), rowsOfInput(second), Rows<T>{to, d.objStride, 0}, count);
        }
    }
    return true;
}

} // namespace zelm::elementwise
