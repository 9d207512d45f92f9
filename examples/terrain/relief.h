// The shaded relief: the ground under a light from the north-west, tinted by its height.
#pragma once

#include "grid.h"
#include "image.h"
#include "layers.h"

namespace terrain {

Image shadedRelief(const Grid &grid, const Layers &layers, double exaggeration);

} // namespace terrain
