#include "grid_writer.h"

#include "text.h"

#include <cmath>
#include <string>

namespace terrain {

namespace {

void field(std::string &text, const char *key, double value) {
    text += key;
    text += ' ';
    appendNumber(text, value);
    text += '\n';
}

} // namespace

void writeGrid(const Grid &grid, const std::function<double(std::size_t cell)> &value, Progress &progress,
               OutputFile &file) {
    constexpr float noData = -9999; // no slope, aspect or curvature in 1/m comes near it
    std::string text;
    field(text, "ncols", static_cast<double>(grid.columns));
    field(text, "nrows", static_cast<double>(grid.rows));
    field(text, "xllcorner", grid.west);
    field(text, "yllcorner", grid.south);
    if (grid.cellWidth == grid.cellHeight) {
        field(text, "cellsize", grid.cellWidth);
    } else {
        field(text, "dx", grid.cellWidth);
        field(text, "dy", grid.cellHeight);
    }
    field(text, "NODATA_value", noData);
    for (std::size_t row = 0; row < grid.rows; ++row) {
        for (std::size_t column = 0; column < grid.columns; ++column) {
            const auto number = static_cast<float>(value(row * grid.columns + column));
            appendNumber(text, std::isfinite(number) ? number : noData);
            text += column + 1 < grid.columns ? ' ' : '\n';
        }
        std::fwrite(text.data(), 1, text.size(), file.stream()); // close() tells whether it failed
        text.clear();
        progress.show("writing", row + 1, grid.rows);
    }
}

} // namespace terrain
