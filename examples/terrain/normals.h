// Unit normals of the ground.
#pragma once

#include "layers.h"

#include <array>
#include <cstddef>
#include <vector>

namespace terrain {

using Vector3 = std::array<float, 3>; // east, north, up

// Sets `normals` to those of `count` cells from `first` on, with heights multiplied by `exaggeration`.
void surfaceNormals(const Layers &layers, std::size_t first, std::size_t count, float exaggeration,
                    std::vector<Vector3> &normals);

} // namespace terrain
