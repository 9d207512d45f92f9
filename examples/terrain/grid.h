// An elevation grid and what its header says about where it lies.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace terrain {

struct Grid {
    std::size_t rows = 0;
    std::size_t columns = 0;
    double west = 0;      // western edge, in the header's unit
    double south = 0;     // southern edge
    double cellWidth = 0; // west-east, in the header's unit: metres or degrees
    double cellHeight = 0;
    double noData = 0; // how the file writes a cell without data
    // Row after row from the north, each from the west. A cell without data is NaN.
    std::vector<double> elevation = {};

    double at(std::size_t row, std::size_t column) const { return elevation[row * columns + column]; }
    bool hasData(std::size_t row, std::size_t column) const { return !std::isnan(at(row, column)); }
    // The y coordinate of the centre of a row.
    double centre(std::size_t row) const {
        return south + (static_cast<double>(rows - 1 - row) + 0.5) * cellHeight;
    }
};

} // namespace terrain
