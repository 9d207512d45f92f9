// The determinant by Gaussian elimination with partial pivoting, in a work space of the caller.
#pragma once

#include "frame/memory.h"

namespace zelm::solvers {

using namespace zelm::frame;

// What the elimination counts as zero: the rounding unit of the element type.
template <typename T>
constexpr T kSmallestPivot = sizeof(T) == 4 ? static_cast<T>(0x1p-23) : static_cast<T>(0x1p-52);

// A caller's scratch: n*n elements in rows of n, then n row numbers.
template <typename T>
struct WorkSpace {
    Address start;
    std::uint32_t n;
    ZELM_INLINE WorkSpace(void *scratch, std::uint32_t order) : start(addressOf(scratch)), n(order) {}
    ZELM_INLINE Address element(std::uint32_t i, std::uint32_t j) const {
        return start + (Address{i} * n + j) * sizeof(T);
    }
    ZELM_INLINE Address row(std::uint32_t i) const {
        return start + Address{n} * n * sizeof(T) + Address{i} * 4;
    }
};

// How a row's multiplier is formed: in 64-bit float, or in the element type.
enum class MultiplierIn { Double, Element };

// `value` is the determinant: zero, or a zero with the sign of the last element times that of the row
// exchanges (or NaN) where a pivot before the last one failed.
template <typename T>
struct Elimination {
    T value;
    bool pivotFailed, lastFailed;
};

// Eliminates the leading square of the given order in the work space, which is left in ruins. Of rows of
// equal magnitude the first is the pivot. In 64-bit float the largest magnitude so far is held in 32-bit
// float, so that rows may lose to an earlier one that rounds up.
template <typename T, MultiplierIn multiplier>
void eliminate(const WorkSpace<T> &space, std::uint32_t order, Elimination<T> &result);

} // namespace zelm::solvers
