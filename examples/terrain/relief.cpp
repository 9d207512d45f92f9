#include "relief.h"

#include "normals.h"
#include "palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace terrain {

namespace {

// From valleys to tops.
constexpr std::array<Colour, 6> heightTints = {rgb(0x7fa382), rgb(0xa9bf8f), rgb(0xd9d3a4),
                                               rgb(0xd0b188), rgb(0xb99378), rgb(0xe9e2da)};

// Halfway up the sky in the north-west, where readers of maps expect the light to come from.
constexpr Vector3 sun = {-0.5f, 0.5f, std::numbers::sqrt2_v<float> / 2};
constexpr Vector3 zenith = {0, 0, 1};

// The sky lights what the sun doesn't reach, and level ground keeps about its own colour.
double brightness(double towardsSun, double towardsZenith) {
    constexpr double sky = 0.2;
    constexpr double direct = 1.05;
    return sky * towardsZenith + direct * std::max(towardsSun, 0.0);
}

struct Range {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();
};

Range heightRange(const Grid &grid) {
    Range range;
    for (const double z : grid.elevation) {
        if (!std::isnan(z)) {
            range.low = std::min(range.low, z);
            range.high = std::max(range.high, z);
        }
    }
    return range;
}

} // namespace

Image shadedRelief(const Grid &grid, const Layers &layers, double exaggeration) {
    const Range range = heightRange(grid);
    const double span = range.high > range.low ? range.high - range.low : 1;
    Image image(grid.columns, grid.rows);
    Normals normals(grid.columns);
    std::vector<float> towardsSun, towardsZenith;
    for (std::size_t row = 0; row < grid.rows; ++row) {
        const std::size_t first = row * grid.columns;
        normals.setFrom(layers, first, static_cast<float>(exaggeration));
        normals.cosinesTo(sun, towardsSun);
        normals.cosinesTo(zenith, towardsZenith);
        for (std::size_t column = 0; column < grid.columns; ++column) {
            const double light = brightness(towardsSun[column], towardsZenith[column]);
            if (!std::isfinite(light)) {
                image.set(first + column, blankColour);
                continue;
            }
            const Colour tint = colourAt(heightTints, (grid.at(row, column) - range.low) / span);
            image.set(first + column, {tint.red * light, tint.green * light, tint.blue * light});
        }
    }
    return image;
}

} // namespace terrain
