// The size of a cell on the ground.
#pragma once

#include "grid.h"

#include <cstddef>

namespace terrain {

struct CellSize {
    double eastWest = 0; // metres
    double northSouth = 0;
};

enum class CellUnit { Metres, Degrees };

// Degrees if the cells are at most a tenth of a unit wide and the whole grid lies within the range of
// longitudes
// (-180 to 360) and latitudes (-90 to 90); metres otherwise.
CellUnit guessUnit(const Grid &grid);

// The cells of one row: in degrees they get narrower towards the poles.
CellSize cellSizeAt(const Grid &grid, std::size_t row, CellUnit unit);

} // namespace terrain
