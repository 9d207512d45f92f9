// Objects moved from one layout to another, in the order of objects, rows and columns.
#pragma once

#include "frame/groups.h"
#include "frame/overlap.h"
#include "frame/plainest.h"
#include "frame/widths.h"
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
    whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
        copyElement<T>(addressIn(d, i, j, shape), addressIn(s, i, j, shape));
        return true;
    });
}

template <typename S, typename D>
ZELM_INLINE void moveInOrder(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    for (std::uint32_t k = 0; k < count; ++k)
        moveObject(s.object(k), d.object(k), shape);
}

// ---- rows of adjacent elements

template <typename T>
ZELM_INLINE bool isOneRun(const DenseArray<T> &array, RunTimeShape shape) {
    const Address row = Address{shape.width} * sizeof(T);
    return (shape.height == 1 || array.rowStride == row) && array.objStride == row * shape.height;
}

// One object; `joined` where its rows, here and there, follow each other without a gap.
template <typename S, typename D>
ZELM_INLINE void moveRowsOf(const S &from, const D &to, RunTimeShape shape, bool joined) {
    using T = typename D::Element;
    if (joined)
        return moveRun<T>(to.start, from.start, shape.elements());
    for (std::uint32_t i = 0; i < shape.height; ++i)
        moveRun<T>(to.rowStart(i), from.rowStart(i), shape.width);
}

template <typename S, typename D>
ZELM_INLINE bool rowsAreJoined(const S &s, const D &d, RunTimeShape shape) {
    const Address row = Address{shape.width} * sizeof(typename D::Element);
    return shape.height == 1 || (s.rowStride == row && d.rowStride == row);
}

template <typename S, typename D>
ZELM_INLINE void moveRows(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    using T = typename D::Element;
    if constexpr (kIsDenseArray<S> && kIsDenseArray<D>)
        if (isOneRun(s, shape) && isOneRun(d, shape))
            return moveRun<T>(d.start, s.start, shape.elements() * count);
    const bool joined = rowsAreJoined(s, d, shape);
    for (std::uint32_t k = 0; k < count; ++k)
        moveRowsOf(s.object(k), d.object(k), shape, joined);
}

// ---- planes

template <typename T>
ZELM_INLINE void movePlanes(const PackedTableArray<const T> &s, const PackedTableArray<T> &d,
                            RunTimeShape shape, std::uint32_t count) {
    for (Address e = 0; e < shape.elements(); ++e)
        moveRun<T>(d.object(0).position(e), s.object(0).position(e), count);
}

// ---- between rows and planes: blocks of as many objects as a pack has lanes, transposed in registers

// N adjacent elements of a row, in the objects from `first` to before `last`, a multiple of the lanes apart.
struct Columns {
    std::uint32_t row, column, first, last;
};

template <typename V, typename Rows>
ZELM_INLINE void addressLanes(const Rows &rows, const Columns &at, std::uint32_t k, LaneAddresses<V> &lanes) {
    const Address within = at.row * rows.rowStride + at.column * sizeof(ElementOf<V>);
    ZELM_UNROLL
    for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
        lanes[lane] = rows.object(k + lane).start + within;
}

// Objects of three elements that follow each other without a gap.
template <unsigned N, typename Rows>
ZELM_INLINE bool areThrees(const Rows &rows) {
    if constexpr (N == 3 && kIsDenseArray<Rows>)
        return rows.objStride == 3 * sizeof(typename Rows::Element);
    else
        return false;
}

template <unsigned N, typename V, typename Rows>
ZELM_INLINE void loadColumns(const Rows &rows, const Columns &at, std::uint32_t k, bool threes, V (&out)[N]) {
    LaneAddresses<V> lanes;
    addressLanes<V>(rows, at, k, lanes);
    if constexpr (N == 3)
        if (threes)
            return loadThrees(lanes[0], out);
    loadAdjacent<N>(lanes, out);
}

template <unsigned N, typename V, typename Rows>
ZELM_INLINE void storeColumns(const Rows &rows, const Columns &at, std::uint32_t k, bool threes,
                              const V (&in)[N]) {
    LaneAddresses<V> lanes;
    addressLanes<V>(rows, at, k, lanes);
    if constexpr (N == 3)
        if (threes)
            return storeThrees(lanes[0], in);
    storeAdjacent<N>(lanes, in);
}

template <unsigned N, typename V, typename S, typename T>
ZELM_INLINE void moveColumns(const S &s, const PackedTableArray<T> &d, std::uint32_t width,
                             const Columns &at) {
    Address plane[N];
    ZELM_UNROLL
    for (unsigned c = 0; c < N; ++c)
        plane[c] = d.object(0).address(at.row, at.column + c, width);
    const bool threes = areThrees<N>(s);
    for (std::uint32_t k = at.first; k < at.last; k += kLanesOf<V>) {
        V columns[N];
        loadColumns(s, at, k, threes, columns);
        ZELM_UNROLL
        for (unsigned c = 0; c < N; ++c)
            storePack(plane[c] + k * sizeof(T), columns[c]);
    }
}

template <unsigned N, typename V, typename T, typename D>
ZELM_INLINE void moveColumns(const PackedTableArray<const T> &s, const D &d, std::uint32_t width,
                             const Columns &at) {
    Address plane[N];
    ZELM_UNROLL
    for (unsigned c = 0; c < N; ++c)
        plane[c] = s.object(0).address(at.row, at.column + c, width);
    const bool threes = areThrees<N>(d);
    for (std::uint32_t k = at.first; k < at.last; k += kLanesOf<V>) {
        V columns[N];
        ZELM_UNROLL
        for (unsigned c = 0; c < N; ++c)
            columns[c] = loadAs<V>(plane[c] + k * sizeof(T));
        storeColumns(d, at, k, threes, columns);
    }
}

// The objects from `first` to before `last`, a multiple of V's lanes apart.
template <typename V, typename S, typename D>
ZELM_INLINE void moveObjectsInBlocks(const S &s, const D &d, RunTimeShape shape, std::uint32_t first,
                                     std::uint32_t last) {
    constexpr unsigned columns = kLanes<ElementOf<V>>;
    for (std::uint32_t i = 0; i < shape.height; ++i) {
        std::uint32_t j = 0;
        for (; shape.width - j >= columns; j += columns)
            moveColumns<columns, V>(s, d, shape.width, {i, j, first, last});
        if constexpr (columns == 4) {
            if (shape.width - j == 3)
                moveColumns<3, V>(s, d, shape.width, {i, j, first, last});
            else if (shape.width - j == 2)
                moveColumns<2, V>(s, d, shape.width, {i, j, first, last});
        }
        if (shape.width - j == 1)
            moveColumns<1, V>(s, d, shape.width, {i, j, first, last});
    }
}

// So many objects stay in the nearest cache while their blocks are moved one after the other.
constexpr std::uint32_t kObjectsAtOnce = 64;

template <typename T, typename S, typename D>
ZELM_INLINE void moveInBlocks(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    using V = Pack<T, kMoveBytes>;
    const std::uint32_t whole = count - count % kLanesOf<V>;
    for (std::uint32_t k = 0; k < whole; k += kObjectsAtOnce)
        moveObjectsInBlocks<V>(s, d, shape, k, whole - k < kObjectsAtOnce ? whole : k + kObjectsAtOnce);
    for (std::uint32_t k = whole; k < count; ++k)
        moveObject(s.object(k), d.object(k), shape);
}

// Of a list's objects a group may be moved at once only where they are apart from each other.
template <typename T>
ZELM_INLINE void moveInBlocks(const PackedTableArray<const T> &s, const DenseList<T> &d, RunTimeShape shape,
                              std::uint32_t count) {
    using V = Pack<T>;
    constexpr unsigned lanes = kLanesOf<V>;
    const Extent extent = extentOf(d, shape.height, shape.width);
    std::uint32_t k = 0;
    for (; count - k >= lanes; k += lanes) {
        if (areApartFromEachOther(lowestOf<lanes>(d, extent, k), extent.bytes)) {
            moveObjectsInBlocks<V>(s, d, shape, k, k + lanes);
        } else {
            for (std::uint32_t object = k; object < k + lanes; ++object)
                moveObject(s.object(object), d.object(object), shape);
        }
    }
    for (; k < count; ++k)
        moveObject(s.object(k), d.object(k), shape);
}

template <typename T>
ZELM_INLINE bool rowsAreApart(const DenseArray<T> &d, RunTimeShape shape, std::uint32_t count) {
    return count <= kMostObjectsInRange && elementsAreApart(d, shape.height, shape.width, count);
}

template <typename T>
ZELM_INLINE bool rowsAreApart(const DenseList<T> &d, RunTimeShape shape, std::uint32_t) {
    return objectElementsAreApart(d, shape.height, shape.width);
}

// src and dst must be apart, or the same element by element. Elements of dst may lie on each other.
template <typename S, typename D>
ZELM_INLINE void moveBetween(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    constexpr bool fromRows = kHasDenseObjects<S>, toRows = kHasDenseObjects<D>;
    if constexpr (fromRows && toRows) {
        return moveRows(s, d, shape, count);
    } else if constexpr (S::isSideBySide && D::isSideBySide) {
        if (planesAreWorthIt(shape.elements(), count) && planesAreApart(d, shape.elements(), count))
            return movePlanes(s, d, shape, count);
    } else if constexpr (fromRows && D::isSideBySide) {
        if (planesAreWorthIt(shape.elements(), count) && planesAreApart(d, shape.elements(), count))
            return moveInBlocks<typename D::Element>(s, d, shape, count);
    } else if constexpr (S::isSideBySide && toRows) {
        if (shape.width <= kMostInGroups && shape.height <= kMostInGroups && rowsAreApart(d, shape, count))
            return moveInBlocks<typename D::Element>(s, d, shape, count);
    }
    moveInOrder(s, d, shape, count);
}

template <typename S, typename D>
ZELM_INLINE void moveObjects(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    withPlainest(
        [&](const auto &from) ZELM_INLINE_LAMBDA {
            withPlainest([&](const auto &to) ZELM_INLINE_LAMBDA { moveBetween(from, to, shape, count); }, d);
        },
        s);
}

} // namespace zelm::movement
