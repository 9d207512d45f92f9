// The curvature map: convex ground red, concave ground blue, straight ground white.
#pragma once

#include "derivatives.h"
#include "grid.h"
#include "image.h"
#include "layers.h"
#include "legend.h"
#include "progress.h"

namespace terrain {

// The curvature (1/m) that gets the full colour: 98 of 100 cells have less. 0 if no cell has any.
double curvatureScale(const Layers &layers);

Legend curvatureLegend(Curvature kind, double scale, const CellSize &cell);

// Draws the map of a sheet.
void drawCurvature(const Grid &grid, const Layers &layers, double scale, Progress &progress, Image &sheet);

} // namespace terrain
