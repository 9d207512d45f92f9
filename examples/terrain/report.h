// What the program says about its work.
#pragma once

#include "grid.h"
#include "options.h"
#include "survey.h"

namespace terrain {

void printReport(const Options &options, const Grid &grid, CellUnit unit, const Survey &survey, double scale);
void printVersion();

} // namespace terrain
