// Many 6x6 linear systems side by side, in the arrays that the library takes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace terrain {

constexpr std::size_t order = 6; // the coefficients of a quadratic surface

template <class T>
struct Systems {
    std::vector<T> matrix;                // order * order per system, row by row; a solver may overwrite it
    std::vector<T> rightSide;             // order per system
    std::vector<T> solution;              // order per system; not set where isSingular
    std::vector<std::uint8_t> isSingular; // one per system

    static constexpr double bytesPerSystem =
        sizeof(T) * (order * order + 2 * order) + sizeof(std::uint8_t) + sizeof(std::uint32_t) * (order + 1);

    std::size_t count() const { return isSingular.size(); }
    void resize(std::size_t count) {
        matrix.resize(count * order * order);
        rightSide.resize(count * order);
        solution.resize(count * order);
        isSingular.assign(count, 0);
    }
};

} // namespace terrain
