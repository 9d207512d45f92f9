#include "ground.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace terrain {

CellUnit guessUnit(const Grid &grid) {
    constexpr double widestCell = 0.1;
    // Global grids often stick out of the range by a rounding error or half a cell.
    const double slack = std::max(grid.cellWidth, grid.cellHeight);
    const double east = grid.west + static_cast<double>(grid.columns) * grid.cellWidth;
    const double north = grid.south + static_cast<double>(grid.rows) * grid.cellHeight;
    const bool inRange =
        grid.west >= -180 - slack && east <= 360 + slack && grid.south >= -90 - slack && north <= 90 + slack;
    return slack <= widestCell && inRange ? CellUnit::Degrees : CellUnit::Metres;
}

CellSize cellSizeAt(const Grid &grid, std::size_t row, CellUnit unit) {
    if (unit == CellUnit::Metres) {
        return {grid.cellWidth, grid.cellHeight};
    }
    // The radii of curvature of the WGS 84 ellipsoid: in the meridian, and across it.
    constexpr double equatorialRadius = 6378137.0;
    constexpr double flattening = 1 / 298.257223563;
    constexpr double eccentricity2 = flattening * (2 - flattening);
    constexpr double radian = std::numbers::pi / 180;
    // A row at the pole has no width; a quarter of a cell before it, slopes stay finite.
    const double highest = 90 - grid.cellHeight / 4;
    const double latitude = std::clamp(grid.centre(row), -highest, highest) * radian;
    const double sine = std::sin(latitude);
    const double w2 = 1 - eccentricity2 * sine * sine;
    const double across = equatorialRadius / std::sqrt(w2);
    const double meridian = across * (1 - eccentricity2) / w2;
    return {grid.cellWidth * radian * across * std::cos(latitude), grid.cellHeight * radian * meridian};
}

} // namespace terrain
