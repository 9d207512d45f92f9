#include "solvers/elimination.h"

#include "frame/pack.h"

namespace zelm::solvers {

namespace {

template <typename T, MultiplierIn multiplier>
ZELM_INLINE T negatedMultiplier(T element, T pivot) {
    if constexpr (multiplier == MultiplierIn::Double)
        return static_cast<T>(0.0 - static_cast<double>(element) / static_cast<double>(pivot));
    else
        return T{0} - element / pivot;
}

template <typename T>
ZELM_INLINE std::uint32_t rowAt(const WorkSpace<T> &space, std::uint32_t i) {
    return load<std::uint32_t>(space.row(i));
}

template <typename T>
ZELM_INLINE T elementAt(const WorkSpace<T> &space, std::uint32_t row, std::uint32_t column) {
    return load<T>(space.element(row, column));
}

// The row of largest magnitude in column k takes place k. Whether it came from another place.
template <typename T>
ZELM_INLINE bool choosePivotRow(const WorkSpace<T> &space, std::uint32_t k, std::uint32_t order) {
    // Of either type in 32-bit float: there it is the magnitude itself.
    float best = static_cast<float>(magnitude(elementAt(space, rowAt(space, k), k)));
    std::uint32_t bestPos = k;
    for (std::uint32_t j = k + 1; j < order; ++j) {
        const T value = magnitude(elementAt(space, rowAt(space, j), k));
        if (value > static_cast<T>(best)) {
            best = static_cast<float>(value);
            bestPos = j;
        }
    }
    if (bestPos == k)
        return false;
    const std::uint32_t pivotRow = rowAt(space, bestPos);
    store(space.row(bestPos), rowAt(space, k));
    store(space.row(k), pivotRow);
    return true;
}

// Takes column k out of the rows behind the pivot's.
template <typename T, MultiplierIn multiplier>
ZELM_INLINE void reduceRows(const WorkSpace<T> &space, std::uint32_t k, T pivot, std::uint32_t order) {
    const std::uint32_t pivotRow = rowAt(space, k);
    for (std::uint32_t j = k + 1; j < order; ++j) {
        const std::uint32_t r = rowAt(space, j);
        const T m = negatedMultiplier<T, multiplier>(elementAt(space, r, k), pivot);
        for (std::uint32_t c = k + 1; c < order; ++c)
            store(space.element(r, c), elementAt(space, pivotRow, c) * m + elementAt(space, r, c));
    }
}

} // namespace

template <typename T, MultiplierIn multiplier>
void eliminate(const WorkSpace<T> &space, std::uint32_t order, Elimination<T> &result) {
    for (std::uint32_t i = 0; i < order; ++i)
        store(space.row(i), i);
    T sign = 1;
    result = {T{1}, false, false};
    for (std::uint32_t k = 0; k + 1 < order; ++k) {
        if (choosePivotRow(space, k, order))
            sign = -sign;
        const T pivot = elementAt(space, rowAt(space, k), k);
        if (!(magnitude(pivot) >= kSmallestPivot<T>)) {
            result.value = 0;
            result.pivotFailed = true;
            break;
        }
        reduceRows<T, multiplier>(space, k, pivot, order);
        result.value = result.value * pivot;
    }
    const T last = elementAt(space, rowAt(space, order - 1), order - 1);
    result.lastFailed = !(magnitude(last) > kSmallestPivot<T>);
    result.value = result.lastFailed ? T{0} : result.value * (last * sign);
}

template void eliminate<float, MultiplierIn::Double>(const WorkSpace<float> &, std::uint32_t,
                                                     Elimination<float> &);
template void eliminate<float, MultiplierIn::Element>(const WorkSpace<float> &, std::uint32_t,
                                                      Elimination<float> &);
template void eliminate<double, MultiplierIn::Double>(const WorkSpace<double> &, std::uint32_t,
                                                      Elimination<double> &);

} // namespace zelm::solvers
