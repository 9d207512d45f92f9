#include "curvature_map.h"

#include "palette.h"

#include <algorithm>
#include <array>
#include <cmath>
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

Image curvatureMap(const Grid &grid, const Layers &layers, double scale) {
    Image image(grid.columns, grid.rows);
    for (std::size_t cell = 0; cell < layers.curvature.size(); ++cell) {
        const double curvature = layers.curvature[cell];
        if (!std::isfinite(curvature)) {
            image.set(cell, blankColour);
            continue;
        }
        const double position = scale > 0 ? 0.5 + 0.5 * curvature / scale : 0.5;
        image.set(cell, colourAt(concaveToConvex, position));
    }
    return image;
}

} // namespace terrain
