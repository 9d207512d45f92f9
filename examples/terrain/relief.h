// The shaded relief: the ground under a light from the north-west, tinted by its height, with the coast of
// the sea.
#pragma once

#include "grid.h"
#include "image.h"
#include "layers.h"
#include "legend.h"
#include "progress.h"

#include <optional>

namespace terrain {

struct HeightRange {
    double low = 0;
    double high = 0;
};

HeightRange heightRange(const Grid &grid);

struct ReliefSettings {
    HeightRange range;
    double exaggeration = 1;
    std::optional<double> seaLevel; // what lies below it is sea; none: all is land
};

Legend reliefLegend(const ReliefSettings &settings, const CellSize &cell);

// Draws the map of a sheet.
void drawRelief(const Grid &grid, const Layers &layers, const ReliefSettings &settings, Progress &progress,
                Image &sheet);

} // namespace terrain
