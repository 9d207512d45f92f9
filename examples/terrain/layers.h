// What the survey finds for every cell.
#pragma once

#include <cstddef>
#include <limits>
#include <vector>

namespace terrain {

// Row after row like the grid; NaN for a cell without data or whose system is singular.
struct Layers {
    std::vector<float> east;      // dz/dx
    std::vector<float> north;     // dz/dy
    std::vector<float> curvature; // 1/m, convex positive

    static constexpr double bytesPerCell = 3 * sizeof(float);

    explicit Layers(std::size_t cells)
        : east(cells, std::numeric_limits<float>::quiet_NaN()), north(east), curvature(east) {}
};

} // namespace terrain
