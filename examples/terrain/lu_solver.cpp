#include "lu_solver.h"

#include "library_call.h"

#include <algorithm>

namespace terrain {

namespace {

// Systems first to first + count - 1. The factors take the place of the matrices.
ZelmStatus decompose(Systems<double> &systems, std::uint32_t *pivotIndex, std::size_t first,
                     std::size_t count) {
    constexpr std::int32_t row = order * sizeof(double);
    double *matrix = &systems.matrix[first * order * order];
    return zelmLUDecomp_ma_64f_6x6(matrix, order * row, row, &pivotIndex[first * order], matrix, order * row,
                                   row, static_cast<std::uint32_t>(count));
}

ZelmStatus decompose(Systems<float> &systems, std::uint32_t *pivotIndex, std::size_t first,
                     std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    float *matrix = &systems.matrix[first * order * order];
    return zelmLUDecomp_ma_32f_6x6(matrix, order * row, row, &pivotIndex[first * order], matrix, order * row,
                                   row, static_cast<std::uint32_t>(count));
}

ZelmStatus substitute(Systems<double> &systems, const std::uint32_t *pivotIndex, std::size_t first,
                      std::size_t count) {
    constexpr std::int32_t row = order * sizeof(double);
    return zelmLUBackSubst_mava_64f_6x6(&systems.matrix[first * order * order], order * row, row,
                                        &pivotIndex[first * order], &systems.rightSide[first * order], row,
                                        &systems.solution[first * order], row,
                                        static_cast<std::uint32_t>(count));
}

ZelmStatus substitute(Systems<float> &systems, const std::uint32_t *pivotIndex, std::size_t first,
                      std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    return zelmLUBackSubst_mava_32f_6x6(&systems.matrix[first * order * order], order * row, row,
                                        &pivotIndex[first * order], &systems.rightSide[first * order], row,
                                        &systems.solution[first * order], row,
                                        static_cast<std::uint32_t>(count));
}

constexpr std::uint32_t unset = UINT32_MAX; // no row number

// The decomposition stops at the first singular system, and its status doesn't tell which one that is. But it
// sets the row numbers of each system that it reaches and none behind, so the failing one is the last that is
// set.
std::size_t lastReached(const std::vector<std::uint32_t> &pivotIndex, std::size_t first) {
    std::size_t low = first;
    std::size_t high = pivotIndex.size() / order;
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (pivotIndex[middle * order] == unset) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    if (low == first) {
        throw std::logic_error("the decomposition failed and set no row numbers");
    }
    return low - 1;
}

} // namespace

template <class T>
double solveByLu(Systems<T> &systems) {
    Stopwatch stopwatch;
    std::vector<std::uint32_t> pivotIndex(systems.count() * order, unset);
    for (std::size_t first = 0; first < systems.count();) {
        const std::size_t remaining = systems.count() - first;
        const ZelmStatus status =
            stopwatch.time([&] { return decompose(systems, pivotIndex.data(), first, remaining); });
        std::size_t factored = remaining;
        if (status == ZELM_ERR_DIV_BY_ZERO) {
            const std::size_t failing = lastReached(pivotIndex, first);
            systems.isSingular[failing] = 1;
            factored = failing - first;
        } else {
            requireOk(status, "zelmLUDecomp_ma");
        }
        if (factored > 0) {
            requireOk(stopwatch.time([&] { return substitute(systems, pivotIndex.data(), first, factored); }),
                      "zelmLUBackSubst_mava");
        }
        first += factored + (status == ZELM_ERR_DIV_BY_ZERO ? 1 : 0);
    }
    return stopwatch.seconds();
}

template double solveByLu(Systems<float> &systems);
template double solveByLu(Systems<double> &systems);

} // namespace terrain
