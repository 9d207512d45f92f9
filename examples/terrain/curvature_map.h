// The curvature map: convex ground red, concave ground blue, straight ground white.
#pragma once

#include "grid.h"
#include "image.h"
#include "layers.h"

namespace terrain {

// The curvature (1/m) that gets the full colour: 98 of 100 cells have less. 0 if no cell has any.
double curvatureScale(const Layers &layers);

Image curvatureMap(const Grid &grid, const Layers &layers, double scale);

} // namespace terrain
