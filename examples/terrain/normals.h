// Normals of the ground along a row of cells, and the angles that they make with the light.
#pragma once

#include "layers.h"

#include <array>
#include <cstddef>
#include <vector>

namespace terrain {

using Vector3 = std::array<float, 3>; // east, north, up

// Each component is a plane of its own, as in the layers that they come from: the library's layout P.
class Normals {
public:
    explicit Normals(std::size_t cells);

    // Takes the cells from `first` on, with heights multiplied by `exaggeration`.
    void setFrom(const Layers &layers, std::size_t first, float exaggeration);

    // Sets `cosines` to those of the angles between the normals and a direction of length 1; NaN for a cell
    // without a surface.
    void cosinesTo(const Vector3 &direction, std::vector<float> &cosines) const;

private:
    using Plane = std::vector<float>;
    Plane zeros_, ones_;
    Plane eastRise_, northRise_; // of the tangents (1, 0, eastRise) and (0, 1, northRise)
    Plane east_, north_, up_;    // of the normals, whose lengths are `length_`
    Plane length_;
};

} // namespace terrain
