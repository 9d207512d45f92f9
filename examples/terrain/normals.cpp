#include "normals.h"

#include <cmath>

namespace terrain {

void surfaceNormals(const Layers &layers, std::size_t first, std::size_t count, float exaggeration,
                    std::vector<Vector3> &normals) {
    normals.resize(count);
    for (std::size_t k = 0; k < count; ++k) {
        // The cross product of the tangents (1, 0, p) and (0, 1, q).
        const float p = exaggeration * layers.east[first + k];
        const float q = exaggeration * layers.north[first + k];
        const float length = std::sqrt(p * p + q * q + 1);
        normals[k] = {-p / length, -q / length, 1 / length};
    }
}

} // namespace terrain
