// The legend below a map: what its colours mean, and how long a distance on the ground is.
#pragma once

#include "ground.h"
#include "image.h"

#include <functional>
#include <string>
#include <vector>

namespace terrain {

struct Mark {
    double position = 0; // on the bar of colours: 0 its left end, 1 its right one
    std::string text;
};

struct Legend {
    std::string title;
    std::vector<Mark> marks; // the two ends first
    std::function<Colour(double position)> colour;
    CellSize cell; // of the middle row
};

struct SheetSize {
    std::size_t width = 0; // pixels
    std::size_t height = 0;
};

// Room for a map at the top left and a legend below it.
SheetSize sheetWithLegend(std::size_t columns, std::size_t rows);
// Its pixels, also where no integer type holds them.
double pixelsWithLegend(double columns, double rows);

// Draws it below the map of a sheet that has room for it.
void drawLegend(const Legend &legend, std::size_t columns, std::size_t rows, Image &sheet);

} // namespace terrain
