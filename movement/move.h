// Objects moved from one layout to another, in the order of objects, rows and columns.
#pragma once

#include "frame/groups.h"
#include "frame/shapes.h"
#include "movement/planes.h"

namespace zelm::movement {

template <typename Object, typename Shape>
ZELM_INLINE Address addressIn(const Object &s, std::uint32_t i, std::uint32_t j, Shape shape) {
    return s.address(i, j, shape.columns());
}

template <typename Stored, typename Shape>
ZELM_INLINE Address addressIn(const Transposed<Stored> &s, std::uint32_t i, std::uint32_t j, Shape shape) {
    return s.address(j, i, shape.rows());
}

// One object, element by element.
template <typename S, typename D, typename Shape>
ZELM_INLINE void moveObject(const S &s, const D &d, Shape shape) {
    using T = typename D::Element;
    whileTrue(
        shape, [&](std::uint32_t i, std::uint32_t j) __attribute__((always_inline)) {
            copyElement<T>(addressIn(d, i, j, shape), addressIn(s, i, j, shape));
            return true;
        });
}

template <typename S, typename D>
ZELM_INLINE void moveInOrder(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    for (std::uint32_t k = 0; k < count; ++k)
        moveObject(s.object(k), d.object(k), shape);
}

// ---- strides that make a layout a plainer one

template <typename T, typename Use>
ZELM_INLINE void withPlainestLayout(const StridedArray<T> &array, Use use) {
    if (array.elemStride != sizeof(T))
        return use(array);
    DenseArray<T> dense(reinterpret_cast<T *>(array.start), 0, 0);
    dense.objStride = array.objStride;
    dense.rowStride = array.rowStride;
    use(dense);
}

template <typename T, typename Use>
ZELM_INLINE void withPlainestLayout(const TableArray<T> &array, Use use) {
    if (array.objStride != sizeof(T))
        return use(array);
    PackedTableArray<T> packed(array.table, 0);
    packed.shift = array.shift;
    use(packed);
}

template <typename T, typename Use>
ZELM_INLINE void withPlainestLayout(const StridedList<T> &list, Use use) {
    if (list.elemStride != sizeof(T))
        return use(list);
    DenseList<T> dense(list.table, 0, 0);
    dense.shift = list.shift;
    dense.rowStride = list.rowStride;
    use(dense);
}

template <typename Array, typename Use>
ZELM_INLINE void withPlainestLayout(const Array &array, Use use) {
    use(array);
}

// ---- rows of adjacent elements

template <typename T>
ZELM_INLINE bool isOneRun(const DenseArray<T> &array, RunTimeShape shape) {
    const Address row = Address{shape.width} * sizeof(T);
    return (shape.height == 1 || array.rowStride == row) && array.objStride == row * shape.height;
}

template <typename S, typename D>
ZELM_INLINE void moveRows(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    using T = typename D::Element;
    if constexpr (kIsDenseArray<S> && kIsDenseArray<D>)
        if (isOneRun(s, shape) && isOneRun(d, shape))
            return moveRun<T>(d.start, s.start, shape.elements() * count);
    for (std::uint32_t k = 0; k < count; ++k) {
        const auto from = s.object(k);
        const auto to = d.object(k);
        for (std::uint32_t i = 0; i < shape.height; ++i)
            moveRun<T>(to.rowStart(i), from.rowStart(i), shape.width);
    }
}

// ---- planes

template <typename T>
ZELM_INLINE void movePlanes(const PackedTableArray<const T> &s, const PackedTableArray<T> &d,
                            RunTimeShape shape, std::uint32_t count) {
    for (Address e = 0; e < shape.elements(); ++e)
        moveRun<T>(d.object(0).position(e), s.object(0).position(e), count);
}

// ---- between rows and planes: blocks of as many objects as a pack has lanes, transposed in registers

// N elements from column j on of row i, of each object of a group.
template <unsigned N, typename S, typename T>
ZELM_INLINE void moveColumns(const Group<S> &from, const Table<T> &to, std::uint32_t i, std::uint32_t j,
                             std::uint32_t width) {
    LaneAddresses<T> at;
    Pack<T> columns[N];
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < kLanes<T>; ++lane)
        at[lane] = from.objects[lane].address(i, j, width);
    loadAdjacent<T, N>(at, columns);
#pragma GCC unroll 4
    for (unsigned c = 0; c < N; ++c)
        storePack(to.address(i, j + c, width), columns[c]);
}

template <unsigned N, typename T, typename D>
ZELM_INLINE void moveColumns(const Table<const T> &from, const Group<D> &to, std::uint32_t i, std::uint32_t j,
                             std::uint32_t width) {
    LaneAddresses<T> at;
    Pack<T> columns[N];
#pragma GCC unroll 4
    for (unsigned c = 0; c < N; ++c)
        columns[c] = loadPack<T>(from.address(i, j + c, width));
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < kLanes<T>; ++lane)
        at[lane] = to.objects[lane].address(i, j, width);
    storeAdjacent<T, N>(at, columns);
}

// Rows of three, which may follow each other without a gap.
template <typename S, typename T>
ZELM_INLINE void moveThrees(const Group<S> &from, const Table<T> &to, std::uint32_t i) {
    Pack<T> columns[3];
    loadRow<3>(from, i, columns);
#pragma GCC unroll 3
    for (unsigned c = 0; c < 3; ++c)
        storePack(to.address(i, c, 3), columns[c]);
}

template <typename T, typename D>
ZELM_INLINE void moveThrees(const Table<const T> &from, const Group<D> &to, std::uint32_t i) {
    Pack<T> columns[3];
#pragma GCC unroll 3
    for (unsigned c = 0; c < 3; ++c)
        columns[c] = loadPack<T>(from.address(i, c, 3));
    storeRow<3>(to, i, columns);
}

template <unsigned lanes, typename S, typename D>
ZELM_INLINE void moveGroup(const S &from, const D &to, RunTimeShape shape) {
    for (std::uint32_t i = 0; i < shape.height; ++i) {
        std::uint32_t j = 0;
        for (; shape.width - j >= lanes; j += lanes)
            moveColumns<lanes>(from, to, i, j, shape.width);
        if constexpr (lanes == 4) {
            if (shape.width == 3)
                moveThrees(from, to, i);
            else if (shape.width - j == 3)
                moveColumns<3>(from, to, i, j, shape.width);
            else if (shape.width - j == 2)
                moveColumns<2>(from, to, i, j, shape.width);
        }
        if (shape.width - j == 1)
            moveColumns<1>(from, to, i, j, shape.width);
    }
}

template <typename S, typename T>
ZELM_INLINE void moveRowsToPlanes(const S &s, const PackedTableArray<T> &d, RunTimeShape shape,
                                  std::uint32_t count) {
    constexpr unsigned lanes = kLanes<T>;
    std::uint32_t k = 0;
    for (; count - k >= lanes; k += lanes)
        moveGroup<lanes>(groupAt(s, k), d.object(k), shape);
    for (; k < count; ++k)
        moveObject(s.object(k), d.object(k), shape);
}

// Of a list's objects a group may be moved at once only where they are apart from each other.
template <typename T, typename D>
ZELM_INLINE void movePlanesToRows(const PackedTableArray<const T> &s, const D &d, RunTimeShape shape,
                                  std::uint32_t count) {
    constexpr unsigned lanes = kLanes<T>;
    const Extent extent = extentOf(d, shape.height, shape.width);
    std::uint32_t k = 0;
    for (; count - k >= lanes; k += lanes) {
        if (areApartFromEachOther(lowestOf<lanes>(d, extent, k), extent.bytes)) {
            moveGroup<lanes>(s.object(k), groupAt(d, k), shape);
        } else {
            for (std::uint32_t object = k; object < k + lanes; ++object)
                moveObject(s.object(object), d.object(object), shape);
        }
    }
    for (; k < count; ++k)
        moveObject(s.object(k), d.object(k), shape);
}

// src and dst must be apart, or the same element by element. Elements of dst may lie on each other.
template <typename S, typename D>
ZELM_INLINE void moveBetween(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    constexpr bool fromRows = decltype(s.object(0))::isDense, toRows = decltype(d.object(0))::isDense;
    if constexpr (fromRows && toRows) {
        return moveRows(s, d, shape, count);
    } else if constexpr (S::isSideBySide && D::isSideBySide) {
        if (planesAreWorthIt(shape.elements(), count) && planesAreApart(d, shape.elements(), count))
            return movePlanes(s, d, shape, count);
    } else if constexpr (fromRows && D::isSideBySide) {
        if (planesAreWorthIt(shape.elements(), count) && planesAreApart(d, shape.elements(), count))
            return moveRowsToPlanes(s, d, shape, count);
    } else if constexpr (S::isSideBySide && toRows) {
        if (shape.width <= kMostInGroups && shape.height <= kMostInGroups &&
            objectElementsAreApart(d, shape.height, shape.width))
            return movePlanesToRows(s, d, shape, count);
    }
    moveInOrder(s, d, shape, count);
}

template <typename S, typename D>
ZELM_INLINE void moveObjects(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    withPlainestLayout(
        s, [&](const auto &from) __attribute__((always_inline)) {
            withPlainestLayout(
                d, [&](const auto &to)
                       __attribute__((always_inline)) { moveBetween(from, to, shape, count); });
        });
}

} // namespace zelm::movement
