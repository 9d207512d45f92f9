#include "legend.h"

#include "lettering.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace terrain {

namespace {

constexpr Colour ink = {0.2, 0.2, 0.2};

// All in dots, which are as many pixels wide as the map is large.
constexpr std::size_t edge = 6;
constexpr std::size_t barWidth = 200;
constexpr std::size_t barHeight = 6;
constexpr std::size_t gap = 3;
constexpr std::size_t longestScale = 110;
constexpr std::size_t legendWidth = edge + barWidth + 2 * edge + longestScale + edge;
constexpr std::size_t titleTop = edge;
constexpr std::size_t barTop = titleTop + letterDepth + gap;
constexpr std::size_t marksTop = barTop + barHeight + gap;
constexpr std::size_t legendHeight = marksTop + letterHeight + edge;

constexpr std::size_t columnsPerDot = 600;

std::size_t dotFor(std::size_t columns) {
    return 1 + columns / columnsPerDot;
}

// The longest of 1, 2 and 5 times a power of ten that isn't above `most`.
double roundBelow(double most) {
    const double decade = std::pow(10, std::floor(std::log10(most)));
    return most >= 5 * decade ? 5 * decade : most >= 2 * decade ? 2 * decade : decade;
}

std::string distanceText(double metres, const CellSize &cell) {
    char text[64];
    const bool inKilometres = metres >= 1000;
    std::snprintf(text, sizeof text, "%.15g %s", inKilometres ? metres / 1000 : metres,
                  inKilometres ? "km" : "m");
    // Where cells aren't square, a pixel to the north is another distance than one to the east.
    const bool isSquare = std::fabs(cell.northSouth / cell.eastWest - 1) <= 0.01;
    return std::string(text) + (isSquare ? "" : " west-east");
}

void drawScale(const CellSize &cell, std::size_t left, std::size_t top, std::size_t dot, Image &sheet) {
    const double metres = roundBelow(cell.eastWest * static_cast<double>(longestScale * dot));
    const auto length = static_cast<std::size_t>(std::lround(metres / cell.eastWest));
    drawText(distanceText(metres, cell), left, top + titleTop * dot, dot, ink, sheet);
    const std::size_t line = top + (barTop + barHeight / 2) * dot;
    sheet.fill(left, line, length, dot, ink);
    for (const std::size_t end : {left, left + std::max(length, dot) - dot}) {
        sheet.fill(end, top + barTop * dot, dot, barHeight * dot, ink);
    }
}

// The marks of the ends lie within the bar; one between them is left out where it would touch them.
void drawMarks(const std::vector<Mark> &marks, std::size_t left, std::size_t top, std::size_t dot,
               Image &sheet) {
    double freeFrom = 0;
    double freeTo = static_cast<double>(barWidth);
    for (const Mark &mark : marks) {
        const auto width = static_cast<double>(textWidth(mark.text));
        double start = mark.position * static_cast<double>(barWidth) - width / 2;
        if (mark.position == 0) {
            start = 0;
            freeFrom = width + static_cast<double>(letterPitch);
        } else if (mark.position == 1) {
            start = std::max(0.0, static_cast<double>(barWidth) - width);
            freeTo = start - static_cast<double>(letterPitch);
        } else if (!(start >= freeFrom && start + width <= freeTo)) {
            continue;
        }
        drawText(mark.text, left + static_cast<std::size_t>(start) * dot, top, dot, ink, sheet);
    }
}

} // namespace

SheetSize sheetWithLegend(std::size_t columns, std::size_t rows) {
    const std::size_t dot = dotFor(columns);
    return {std::max(columns, legendWidth * dot), rows + legendHeight * dot};
}

double pixelsWithLegend(double columns, double rows) {
    const double dot = 1 + std::floor(columns / static_cast<double>(columnsPerDot));
    return std::max(columns, legendWidth * dot) * (rows + legendHeight * dot);
}

void drawLegend(const Legend &legend, std::size_t columns, std::size_t rows, Image &sheet) {
    const std::size_t dot = dotFor(columns);
    const std::size_t left = edge * dot;
    const std::size_t width = barWidth * dot;
    drawText(legend.title, left, rows + titleTop * dot, dot, ink, sheet);
    for (std::size_t x = 0; x < width; ++x) {
        const double position = (static_cast<double>(x) + 0.5) / static_cast<double>(width);
        sheet.fill(left + x, rows + barTop * dot, 1, barHeight * dot, legend.colour(position));
    }
    drawMarks(legend.marks, left, rows + marksTop * dot, dot, sheet);
    drawScale(legend.cell, left + width + 2 * edge * dot, rows, dot, sheet);
}

} // namespace terrain
