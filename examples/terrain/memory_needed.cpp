#include "memory_needed.h"

#include "layers.h"
#include "legend.h"
#include "neighbourhood.h"
#include "systems.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <unistd.h>

namespace terrain {

double memoryNeeded(double rows, double columns) {
    // Elevation and the layers are there all the time. Beside them come, one after the other, the systems of
    // a row of cells, a copy of one layer that is sorted, and one picture.
    constexpr double perCell = sizeof(double) + Layers::bytesPerCell;
    constexpr double bytesPerPixel = 3;
    const double systems =
        columns * Systems<double>::bytesPerSystem(neighbours); // the method that needs most
    const double sorted = rows * columns * sizeof(float);
    return rows * columns * perCell +
           std::max({systems, sorted, bytesPerPixel * pixelsWithLegend(columns, rows)});
}

namespace {

// What Linux can give without moving anything to the disk, or else what is installed.
double systemMemory() {
    std::ifstream file("/proc/meminfo");
    for (std::string line; std::getline(file, line);) {
        double kibi = 0;
        if (std::sscanf(line.c_str(), "MemAvailable: %lf kB", &kibi) == 1) {
            return kibi * 1024;
        }
    }
    return static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGE_SIZE));
}

} // namespace

double memoryAvailable() {
    // A 32-bit process has less than its 4 GiB of addresses for itself, and needs some in one piece.
    constexpr double addressable = static_cast<double>(SIZE_MAX) / 2;
    return std::min(systemMemory(), addressable);
}

} // namespace terrain
