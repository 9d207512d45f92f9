// The 5x5 neighbourhood of a cell and the equations of the surface that is fitted to it.
//
// The surface is z = a x^2 + b xy + c y^2 + d x + e y + f. Here x and y count cells, east and north of the
// centre, and z is the height above the centre cell: the systems are then of one size whatever the grid's
// units, and 32-bit floats don't lose the shape of the ground in its height above the sea.
#pragma once

#include "grid.h"
#include "ground.h"
#include "systems.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace terrain {

constexpr int reach = 2; // cells from the centre to each side
constexpr std::size_t across = 2 * reach + 1;
constexpr std::size_t neighbours = across * across;

// Where neighbour n lies: row by row from the north-west.
constexpr int eastOf(std::size_t n) {
    return static_cast<int>(n % across) - reach;
}
constexpr int northOf(std::size_t n) {
    return reach - static_cast<int>(n / across);
}

// The weights of the neighbours if all are there: 1 / (1 + distance)^exponent, with the distance on the
// ground in (mean) cells, scaled so that they sum up to 2^-7. The scale changes no solution. It sets what
// counts as singular: the decomposition refuses pivots below 2^-23, which is 2^-16 of the sum of the weights.
// Neighbours that leave the surface undetermined give pivots of at most 2e-6 of the sum in 32-bit floats by
// rounding, all others 2e-5 and more, so both float types leave out the same cells.
using Weights = std::array<double, neighbours>;
Weights distanceWeights(const CellSize &size, double exponent);

// The heights of the neighbours above the centre cell, and each one's weight: 0 for one without data or
// outside the grid.
struct Neighbourhood {
    std::array<double, neighbours> height;
    std::array<double, neighbours> weight;
};
Neighbourhood neighbourhoodOf(const Grid &grid, std::size_t row, std::size_t column, const Weights &weights);

// Coefficients a to f, in the units of the normal equations: cells and metres.
using Coefficients = std::array<double, order>;

// The height of the surface at a neighbour.
double heightAt(const Coefficients &surface, std::size_t neighbour);

// Sets `systems` to the equations of all cells with data of a row, and `columns` to the cells' columns. Where
// the systems have one row per neighbour, these are its own equation, times the root of its weight; otherwise
// they are the normal equations.
template <class T>
void assembleRow(const Grid &grid, std::size_t row, const Weights &weights, Systems<T> &systems,
                 std::vector<std::uint32_t> &columns);

extern template void assembleRow(const Grid &, std::size_t, const Weights &, Systems<float> &,
                                 std::vector<std::uint32_t> &);
extern template void assembleRow(const Grid &, std::size_t, const Weights &, Systems<double> &,
                                 std::vector<std::uint32_t> &);

} // namespace terrain
