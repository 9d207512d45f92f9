#include "curvature_map.h"

#include "palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

namespace terrain {

namespace {

// The diverging scheme RdBu of Brewer and Harrower, from concave to convex.
constexpr std::array<Colour, 11> concaveToConvex = {
    rgb(0x053061), rgb(0x2166ac), rgb(0x4393c3), rgb(0x92c5de), rgb(0xd1e5f0), rgb(0xf7f7f7),
    rgb(0xfddbc7), rgb(0xf4a582), rgb(0xd6604d), rgb(0xb2182b), rgb(0x67001f)};

} // namespace

double curvatureScale(const Layers &layers) {
    std::vector<float> sizes;
    sizes.reserve(layers.curvature.size());
    for (const float curvature : layers.curvature) {
        if (std::isfinite(curvature)) {
            sizes.push_back(std::fabs(curvature));
        }
    }
    if (sizes.empty()) {
        return 0;
    }
    const auto place =
        sizes.begin() + static_cast<std::ptrdiff_t>(static_cast<double>(sizes.size() - 1) * 0.98);
    std::nth_element(sizes.begin(), place, sizes.end());
    return *place;
}

Legend curvatureLegend(Curvature kind, double scale, const CellSize &cell) {
    char full[32];
    std::snprintf(full, sizeof full, "%.2g", scale);
    return {std::string(nameOf(kind)) + " curvature in 1/m",
            {{0, std::string("-") + full}, {1, full}, {0.38, "concave"}, {0.65, "convex"}},
            [](double position) { return colourAt(concaveToConvex, position); },
            cell};
}

void drawCurvature(const Grid &grid, const Layers &layers, double scale, Progress &progress, Image &sheet) {
    for (std::size_t row = 0; row < grid.rows; ++row) {
        for (std::size_t column = 0; column < grid.columns; ++column) {
            const double curvature = layers.curvature[row * grid.columns + column];
            const double position = scale > 0 ? 0.5 + 0.5 * curvature / scale : 0.5;
            sheet.set(column, row,
                      std::isfinite(curvature) ? colourAt(concaveToConvex, position) : blankColour);
        }
        progress.show("drawing the curvature", row + 1, grid.rows);
    }
}

} // namespace terrain
