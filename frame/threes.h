// Arrays of three adjacent elements whose objects follow each other without a gap, as a layout of their own:
// with the distance a constant, a loop over groups needs one address for each of them and no test.
#pragma once

#include "frame/groups.h"

namespace zelm::frame {

template <typename T>
struct ThreesArray : DenseArray<T> {
    static constexpr Address objStride = 3 * sizeof(T);
    ZELM_INLINE explicit ThreesArray(const DenseArray<T> &array) : DenseArray<T>(array) {}
    ZELM_INLINE Dense<T> object(std::uint32_t k) const {
        return {this->start + k * objStride, this->rowStride};
    }
};
template <typename T>
constexpr bool kIsDenseArray<ThreesArray<T>> = true;
template <typename Operand>
constexpr bool kIsThrees = false;
template <typename T>
constexpr bool kIsThrees<ThreesArray<T>> = true;

// An operand that is no array of rows stays what it is.
template <typename Operand>
ZELM_INLINE bool mayBeThrees(const Operand &) {
    return true;
}
template <typename T>
ZELM_INLINE bool mayBeThrees(const DenseArray<T> &array) {
    return array.objStride == 3 * sizeof(T);
}

template <typename Operand>
ZELM_INLINE const Operand &asThrees(const Operand &operand) {
    return operand;
}
template <typename T>
ZELM_INLINE ThreesArray<T> asThrees(const DenseArray<T> &array) {
    return ThreesArray<T>(array);
}

// Calls use(operands...) with vectors of three without a gap where all arrays of rows among them are, else
// with what is given.
template <unsigned N, typename Use, typename... Operands>
ZELM_INLINE auto withThrees(Use use, const Operands &...operands) {
    if constexpr (N == 3 && (kIsDenseArray<Operands> || ...))
        if (__builtin_expect((mayBeThrees(operands) && ...), 1))
            return use(asThrees(operands)...);
    return use(operands...);
}

} // namespace zelm::frame
