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

} // namespace

template <typename T, MultiplierIn multiplier>
void eliminate(const WorkSpace<T> &space, std::uint32_t order, Elimination<T> &result) {
    const auto row = [&](std::uint32_t i) { return load<std::uint32_t>(space.row(i)); };
    const auto element = [&](std::uint32_t i, std::uint32_t j) __attribute__((always_inline)) {
        return load<T>(space.element(i, j));
    };
    for (std::uint32_t i = 0; i < order; ++i)
        store(space.row(i), i);

    T sign = 1;
    result = {T{1}, false, false};
    for (std::uint32_t k = 0; k + 1 < order; ++k) {
        // Of either type in 32-bit float: there it is the magnitude itself.
        float best = static_cast<float>(magnitude(element(row(k), k)));
        std::uint32_t bestPos = k;
        for (std::uint32_t j = k + 1; j < order; ++j) {
            const T value = magnitude(element(row(j), k));
            if (value > static_cast<T>(best)) {
                best = static_cast<float>(value);
                bestPos = j;
            }
        }
        const std::uint32_t pivotRow = row(bestPos);
        if (bestPos != k) {
            store(space.row(bestPos), row(k));
            store(space.row(k), pivotRow);
            sign = -sign;
        }
        const T pivot = element(pivotRow, k);
        if (!(magnitude(pivot) >= kSmallestPivot<T>)) {
            result.value = 0;
            result.pivotFailed = true;
            break;
        }
        for (std::uint32_t j = k + 1; j < order; ++j) {
            const std::uint32_t r = row(j);
            const T m = negatedMultiplier<T, multiplier>(element(r, k), pivot);
            for (std::uint32_t c = k + 1; c < order; ++c)
                store(space.element(r, c), element(pivotRow, c) * m + element(r, c));
        }
        result.value = result.value * pivot;
    }
    const T last = element(row(order - 1), order - 1);
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
