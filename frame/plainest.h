// Layouts whose arguments make them a plainer one: strides that leave no gap between the elements of a row,
// or between the objects of a position. The plainer operand has the same addresses. What may follow from it
// is another way through memory and never another formula: the caller's order of sums and its tests stand.
#pragma once

#include "frame/shapes.h"

namespace zelm::frame {

template <typename Operand>
ZELM_INLINE bool isPlainer(const Operand &) {
    return true;
}
template <typename Operand>
ZELM_INLINE const Operand &plainest(const Operand &operand) {
    return operand;
}

template <typename T>
ZELM_INLINE bool isPlainer(const Strided<T> &s) {
    return s.elemStride == sizeof(T);
}
template <typename T>
ZELM_INLINE Dense<T> plainest(const Strided<T> &s) {
    return {s.start, s.rowStride};
}

template <typename T>
ZELM_INLINE bool isPlainer(const StridedArray<T> &s) {
    return s.elemStride == sizeof(T);
}
template <typename T>
ZELM_INLINE DenseArray<T> plainest(const StridedArray<T> &s) {
    return {s.start, s.objStride, s.rowStride};
}

template <typename T>
ZELM_INLINE bool isPlainer(const StridedList<T> &s) {
    return s.elemStride == sizeof(T);
}
template <typename T>
ZELM_INLINE DenseList<T> plainest(const StridedList<T> &s) {
    return {s.table, s.shift, s.rowStride};
}

template <typename T>
ZELM_INLINE bool isPlainer(const TableArray<T> &s) {
    return s.objStride == sizeof(T);
}
template <typename T>
ZELM_INLINE PackedTableArray<T> plainest(const TableArray<T> &s) {
    return {s.table, s.shift};
}

template <typename Stored>
ZELM_INLINE bool isPlainer(const Transposed<Stored> &s) {
    return isPlainer(static_cast<const Stored &>(s));
}
template <typename Stored>
ZELM_INLINE auto plainest(const Transposed<Stored> &s) {
    return Transposed(std::remove_cvref_t<decltype(plainest(static_cast<const Stored &>(s)))>(
        plainest(static_cast<const Stored &>(s))));
}

// The other way round, for what serves both layouts of tables: P as PS2 with the element size for a stride.
template <typename Operand>
ZELM_INLINE const Operand &withObjectStride(const Operand &operand) {
    return operand;
}
template <typename T>
ZELM_INLINE TableArray<T> withObjectStride(const PackedTableArray<T> &s) {
    return {s.table, s.shift, s.objStride};
}
template <typename T>
ZELM_INLINE auto withObjectStride(const Transposed<PackedTableArray<T>> &s) {
    return Transposed(withObjectStride(static_cast<const PackedTableArray<T> &>(s)));
}

// Whether any of the types has a plainer one.
template <typename... Operands>
constexpr bool kHavePlainer =
    (!std::is_same_v<std::remove_cvref_t<decltype(plainest(std::declval<const Operands &>()))>, Operands> ||
     ...);

// Calls use(operands...) with the plainest operands, where all of them have one, else with what is given.
template <typename Use, typename... Operands>
ZELM_INLINE auto withPlainest(Use use, const Operands &...operands) {
    if constexpr (kHavePlainer<Operands...>)
        if ((isPlainer(operands) && ...))
            return use(plainest(operands)...);
    return use(operands...);
}

} // namespace zelm::frame
