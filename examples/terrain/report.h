// What the program says about its work.
#pragma once

#include "grid.h"
#include "legend.h"
#include "options.h"
#include "survey.h"

namespace terrain {

void printReport(const Options &options, const Grid &grid, CellUnit unit, const Survey &survey, double scale,
                 const SheetSize &pictures);
void printVersion();

} // namespace terrain
