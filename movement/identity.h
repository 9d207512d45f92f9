// Identity matrices. Strides that are too small for the elements they span are taken as packed ones.
#pragma once

#include "frame/checks.h"
#include "frame/widths.h"

namespace zelm::movement {

using namespace zelm::frame;

// A negative stride is a large number, and stands.
ZELM_INLINE Address atLeast(Address least, Address stride) {
    return stride > least ? stride : least;
}

template <typename T>
ZELM_INLINE StridedArray<T> withEffectiveStrides(StridedArray<T> d, std::int32_t width) {
    d.elemStride = atLeast(sizeof(T), d.elemStride);
    d.rowStride = atLeast(distance(width) * sizeof(T), d.rowStride);
    return d;
}

template <typename T>
ZELM_INLINE StridedList<T> withEffectiveStrides(StridedList<T> d, std::int32_t width) {
    d.elemStride = atLeast(sizeof(T), d.elemStride);
    d.rowStride = atLeast(distance(width) * sizeof(T), d.rowStride);
    return d;
}

template <typename T>
ZELM_INLINE TableArray<T> withEffectiveStrides(TableArray<T> d, std::int32_t) {
    d.objStride = atLeast(sizeof(T), d.objStride);
    return d;
}

// Element (row, column), where the column may lie behind the row.
template <typename T>
ZELM_INLINE Address position(const Strided<T> &d, std::uint32_t row, std::uint32_t column, std::int32_t) {
    return d.address(row, column, 0);
}

template <typename T>
ZELM_INLINE Address position(const Table<T> &d, std::uint32_t row, std::uint32_t column, std::int32_t width) {
    const Address entry = row * distance(width) + column;
    return addressOf(load<T *>(addressOf(d.table) + entry * sizeof(T *))) + d.shift;
}

template <typename V>
ZELM_INLINE void zeroRun(Address at, Address elements) {
    for (; elements >= kLanesOf<V>; elements -= kLanesOf<V>, at += sizeof(V))
        storePack(at, V{});
    if constexpr (sizeof(V) > kBlockBytes)
        zeroRun<Pack<ElementOf<V>>>(at, elements);
    else
        for (; elements != 0; --elements, at += sizeof(ElementOf<V>))
            store(at, ElementOf<V>{0});
}

// A matrix without gaps whose ones all lie in their own rows. False where it isn't one.
template <typename D>
ZELM_INLINE bool fillGapless(const D &d, std::uint32_t rows, std::uint32_t columns, std::uint32_t diagonal) {
    using T = typename D::Element;
    if constexpr (D::isTable) {
        return false;
    } else {
        if (d.elemStride != sizeof(T) || d.rowStride != columns * sizeof(T) || rows > columns ||
            diagonal > columns - rows)
            return false;
        zeroRun<Pack<T, kRunBytes>>(d.start, Address{rows} * columns);
        for (std::uint32_t i = 0; i < rows; ++i)
            store(d.start + (Address{i} * (Address{columns} + 1) + diagonal) * sizeof(T), T{1});
        return true;
    }
}

template <typename D>
ZELM_INLINE void zeroRow(const D &d, std::uint32_t row, std::uint32_t columns, std::int32_t width) {
    using T = typename D::Element;
    if constexpr (!D::isTable)
        if (d.elemStride == sizeof(T))
            return zeroRun<Pack<T, kRunBytes>>(d.rowStart(row), columns);
    for (std::uint32_t c = 0; c < columns; ++c)
        store(position(d, row, c, width), T{0});
}

// The diagonal runs on from object to object: only the first object has its ones where an identity has them.
template <typename D>
ZELM_INLINE ZelmStatus identities(const D &dst, std::int32_t width, std::int32_t height,
                                  std::uint32_t count) {
    using T = typename D::Element;
    if (dst.isNull())
        return ZELM_ERR_NULL_PTR;
    if (count == 0)
        return ZELM_ERR_SIZE;
    const std::uint32_t rows = height < 0 ? 0 : static_cast<std::uint32_t>(height);
    const std::uint32_t columns = width < 0 ? 0 : static_cast<std::uint32_t>(width);
    const D d = withEffectiveStrides(dst, width);
    std::uint32_t diagonal = 0;
    if (rows == 0)
        return ZELM_OK;
    for (std::uint32_t k = 0; k < count; ++k) {
        const auto object = d.object(k);
        if (fillGapless(object, rows, columns, diagonal)) {
            diagonal += rows;
            continue;
        }
        for (std::uint32_t i = 0; i < rows; ++i, ++diagonal) {
            zeroRow(object, i, columns, width);
            store(position(object, i, diagonal, width), T{1});
        }
    }
    return ZELM_OK;
}

} // namespace zelm::movement
