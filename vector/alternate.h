// Arrays behind tables whose objects lie two elements apart, as one field of two does: groups are loaded
// whole and every second element is kept. Nothing before the first object or behind the last is touched.
#pragma once

#include "frame/groups.h"
#include "frame/plainest.h"
#include "frame/widths.h"

namespace zelm::vector {

using namespace zelm::frame;

template <typename T>
struct AlternateTableArray : TableArray<T> {
    static constexpr Address objStride = 2 * sizeof(T);
    ZELM_INLINE explicit AlternateTableArray(const TableArray<T> &array) : TableArray<T>(array) {}
    ZELM_INLINE Table<T> object(std::uint32_t k) const { return {this->table, this->shift + k * objStride}; }
};

} // namespace zelm::vector

namespace zelm::frame {

template <typename T>
constexpr bool kAlternatesInGroups<vector::AlternateTableArray<T>> = true;

} // namespace zelm::frame

namespace zelm::vector {

template <typename Operand>
constexpr bool kIsAlternate = false;
template <typename T>
constexpr bool kIsAlternate<AlternateTableArray<T>> = true;

template <typename Operand>
ZELM_INLINE bool alternates(const Operand &) {
    return true; // an invariant
}
template <typename T>
ZELM_INLINE bool alternates(const TableArray<T> &array) {
    return array.objStride == 2 * sizeof(T);
}

template <typename Operand>
ZELM_INLINE const Operand &asAlternate(const Operand &operand) {
    return operand;
}
template <typename T>
ZELM_INLINE AlternateTableArray<T> asAlternate(const TableArray<T> &array) {
    return AlternateTableArray<T>(array);
}

// The array as its layout has it, of which the frame knows what it touches.
template <typename Operand>
ZELM_INLINE const Operand &asGiven(const Operand &operand) {
    return operand;
}
template <typename T>
ZELM_INLINE const TableArray<T> &asGiven(const AlternateTableArray<T> &array) {
    return array;
}

template <typename Operand>
constexpr bool kMayAlternate = false;
template <typename T>
constexpr bool kMayAlternate<TableArray<T>> = true;

// withPlainest, with alternate objects for a layout of their own where the size is fixed.
template <bool isFixed, typename Use, typename First, typename... Rest>
ZELM_INLINE auto withPlainestVectors(Use use, const First &first, const Rest &...rest) {
    if constexpr (isFixed && (kMayAlternate<First> || ... || kMayAlternate<Rest>))
        if (alternates(first) && (alternates(rest) && ...))
            return use(asAlternate(first), asAlternate(rest)...);
    return withPlainest(use, first, rest...);
}

// The widths of short kernels over such an array too.
template <typename Array>
constexpr Grouping kVectorGrouping = kIsAlternate<Array> ? kShortKernels : groupingOf<Array>(kShortKernels);

} // namespace zelm::vector
