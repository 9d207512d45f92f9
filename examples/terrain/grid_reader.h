// Reads an elevation grid from an Esri ASCII grid file.
#pragma once

#include "grid.h"
#include "progress.h"

#include <string>

namespace terrain {

// Throws InputError if the file isn't a complete grid with at least one cell with data.
Grid readGrid(const std::string &file, Progress &progress);

} // namespace terrain
