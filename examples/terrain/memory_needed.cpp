#include "memory_needed.h"

#include "layers.h"
#include "neighbourhood.h"
#include "systems.h"

#include <algorithm>
#include <cstdint>
#include <unistd.h>

namespace terrain {

double memoryNeeded(double rows, double columns) {
    // Elevation, the layers and a picture are there together, and the systems of one row of cells.
    constexpr double bytesPerPixel = 3;
    constexpr double perCell = sizeof(double) + Layers::bytesPerCell + bytesPerPixel;
    constexpr double perSystem = Systems<double>::bytesPerSystem(neighbours); // the method that needs most
    return rows * columns * perCell + columns * perSystem;
}

double memoryAvailable() {
    const double installed =
        static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGE_SIZE));
    // A 32-bit process has less than its 4 GiB of addresses for itself, and needs some in one piece.
    constexpr double addressable = static_cast<double>(SIZE_MAX) / 2;
    return std::min(installed, addressable);
}

} // namespace terrain
