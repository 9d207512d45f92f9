#include "relief.h"

#include "normals.h"
#include "palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <numbers>

namespace terrain {

namespace {

// From valleys to tops.
constexpr std::array<Colour, 6> heightTints = {rgb(0x7fa382), rgb(0xa9bf8f), rgb(0xd9d3a4),
                                               rgb(0xd0b188), rgb(0xb99378), rgb(0xe9e2da)};

// From the deep to the shore.
constexpr std::array<Colour, 4> depthTints = {rgb(0x3a6a94), rgb(0x5f92b8), rgb(0x8fb9d3), rgb(0xc3dde8)};

// Halfway up the sky in the north-west, where readers of maps expect the light to come from.
constexpr Vector3 sun = {-0.5f, 0.5f, std::numbers::sqrt2_v<float> / 2};
constexpr Vector3 zenith = {0, 0, 1};

// The sky lights what the sun doesn't reach, and level ground keeps about its own colour.
double brightness(double towardsSun, double towardsZenith) {
    constexpr double sky = 0.2;
    constexpr double direct = 1.05;
    return sky * towardsZenith + direct * std::max(towardsSun, 0.0);
}

constexpr double dark = 0.45;

bool isSea(double height, const ReliefSettings &settings) {
    return settings.seaLevel && height < *settings.seaLevel;
}

Colour tintAt(double height, const ReliefSettings &settings) {
    const auto within = [&](double low, double high) {
        return high > low ? (height - low) / (high - low) : 0.0;
    };
    const auto [low, high] = settings.range;
    if (isSea(height, settings)) {
        return colourAt(depthTints, within(low, std::min(high, *settings.seaLevel)));
    }
    return colourAt(heightTints, within(settings.seaLevel ? std::max(low, *settings.seaLevel) : low, high));
}

// Land with sea beside it.
bool isCoast(const Grid &grid, std::size_t row, std::size_t column, const ReliefSettings &settings) {
    // Unsigned arithmetic: a place before the first row or column is as far out of range as one behind the
    // last.
    const auto isSeaAt = [&](std::size_t r, std::size_t c) {
        return r < grid.rows && c < grid.columns && isSea(grid.at(r, c), settings);
    };
    return !isSea(grid.at(row, column), settings) && (isSeaAt(row - 1, column) || isSeaAt(row + 1, column) ||
                                                      isSeaAt(row, column - 1) || isSeaAt(row, column + 1));
}

std::string heightText(double height) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4g", height);
    return text;
}

} // namespace

HeightRange heightRange(const Grid &grid) {
    HeightRange range = {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const double z : grid.elevation) {
        if (!std::isnan(z)) {
            range.low = std::min(range.low, z);
            range.high = std::max(range.high, z);
        }
    }
    return range;
}

Legend reliefLegend(const ReliefSettings &settings, const CellSize &cell) {
    const double low = settings.range.low;
    const double high = settings.range.high;
    const double span = high - low;
    Legend legend = {"height in m",
                     {{0, heightText(low)}, {1, heightText(high)}},
                     [=](double position) { return tintAt(low + position * span, settings); },
                     cell};
    if (settings.seaLevel && low < *settings.seaLevel && *settings.seaLevel < high) {
        legend.marks.push_back({(*settings.seaLevel - low) / span, heightText(*settings.seaLevel)});
    }
    return legend;
}

void drawRelief(const Grid &grid, const Layers &layers, const ReliefSettings &settings, Progress &progress,
                Image &sheet) {
    Normals normals(grid.columns);
    std::vector<float> towardsSun, towardsZenith;
    for (std::size_t row = 0; row < grid.rows; ++row) {
        normals.setFrom(layers, row * grid.columns, static_cast<float>(settings.exaggeration));
        normals.cosinesTo(sun, towardsSun);
        normals.cosinesTo(zenith, towardsZenith);
        for (std::size_t column = 0; column < grid.columns; ++column) {
            double light = brightness(towardsSun[column], towardsZenith[column]);
            if (!std::isfinite(light)) {
                sheet.set(column, row, blankColour);
                continue;
            }
            if (isCoast(grid, row, column, settings)) {
                light *= dark;
            }
            const Colour tint = tintAt(grid.at(row, column), settings);
            sheet.set(column, row, {tint.red * light, tint.green * light, tint.blue * light});
        }
        progress.show("drawing the relief", row + 1, grid.rows);
    }
}

} // namespace terrain
