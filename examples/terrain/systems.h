// Many linear systems of six unknowns side by side, in the arrays that the library takes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace terrain {

constexpr std::size_t order = 6; // the coefficients of a quadratic surface

template <class T>
struct Systems {
    std::size_t rows = order;             // equations per system; more than unknowns for least squares
    std::vector<T> matrix;                // rows * order per system, row by row; a solver may overwrite it
    std::vector<T> rightSide;             // rows per system
    std::vector<T> solution;              // order per system; not set where isSingular
    std::vector<std::uint8_t> isSingular; // one per system

    // With a solver's factors, of which LU has none of its own but a row number per equation.
    static constexpr double bytesPerSystem(std::size_t rows) {
        return static_cast<double>(sizeof(T) * (2 * rows * order + rows + order) + sizeof(std::uint8_t) +
                                   sizeof(std::uint32_t) * (order + 1));
    }

    std::size_t count() const { return isSingular.size(); }
    void resize(std::size_t count) {
        matrix.resize(count * rows * order);
        rightSide.resize(count * rows);
        solution.resize(count * order);
        isSingular.assign(count, 0);
    }
};

} // namespace terrain
