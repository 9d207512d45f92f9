// Writes a layer as an Esri ASCII grid.
#pragma once

#include "grid.h"
#include "output_file.h"
#include "progress.h"

#include <functional>

namespace terrain {

// `value` gives the number for a cell; NaN is written as NODATA_value.
void writeGrid(const Grid &grid, const std::function<double(std::size_t cell)> &value, Progress &progress,
               OutputFile &file);

} // namespace terrain
