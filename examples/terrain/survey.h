// The whole job: fits a surface to the neighbourhood of every cell of a grid and derives its layers.
#pragma once

#include "derivatives.h"
#include "grid.h"
#include "ground.h"
#include "layers.h"
#include "method.h"
#include "progress.h"
#include "surface_writer.h"

#include <cstddef>

namespace terrain {

struct SurveySettings {
    CellUnit unit = CellUnit::Metres;
    double weightExponent = 1;
    Curvature curvature = Curvature::Mean;
    Method method = Method::Lu;
    bool use32bit = false; // systems in 32-bit floats instead of 64-bit ones
};

struct Survey {
    Layers layers;
    std::size_t solved = 0;
    std::size_t singular = 0;
    std::size_t withoutData = 0;
    double residual = 0;  // metres: the weighted root mean square over all neighbourhoods
    double seconds = 0;   // inside the library
    double meanSlope = 0; // degrees
    double steepestSlope = 0;
    std::size_t steepestRow = 0; // from 0 in the north
    std::size_t steepestColumn = 0;
};

Survey surveyGrid(const Grid &grid, const SurveySettings &settings, SurfaceWriter &surfaces,
                  Progress &progress);

} // namespace terrain
