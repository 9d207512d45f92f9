// The angles between the ground and a light against the formula for one cell, in extended precision.
#include "normals.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using terrain::Layers;
using terrain::Normals;
using terrain::Vector3;

// Slopes of all directions, level ground and a cell without a surface.
Layers someSlopes(std::size_t cells) {
    Layers layers(cells);
    for (std::size_t k = 0; k < cells; ++k) {
        const auto angle = static_cast<float>(k) * 0.7f, rise = static_cast<float>(k % 11) * 0.15f;
        layers.east[k] = rise * std::cos(angle);
        layers.north[k] = rise * std::sin(angle);
    }
    layers.east[cells / 2] = layers.north[cells / 2] = std::nanf("");
    return layers;
}

TEST(Normals, GiveTheCosinesOfTheFormula) {
    const Vector3 light = {-0.48f, 0.6f, 0.64f};
    for (const std::size_t cells : {1u, 3u, 4u, 7u, 403u}) {
        const std::size_t before = 5;
        const Layers layers = someSlopes(before + cells);
        for (const float exaggeration : {1.0f, 2.0f, 0.3f}) {
            Normals normals(cells);
            std::vector<float> cosines;
            normals.setFrom(layers, before, exaggeration);
            normals.cosinesTo(light, cosines);
            ASSERT_EQ(cosines.size(), cells);
            for (std::size_t k = 0; k < cells; ++k) {
                using Real = long double;
                const Real p = Real{exaggeration} * layers.east[before + k];
                const Real q = Real{exaggeration} * layers.north[before + k];
                const Real expected =
                    (-p * light[0] - q * light[1] + Real{light[2]}) / std::sqrt(p * p + q * q + 1);
                ASSERT_EQ(std::isnan(cosines[k]), std::isnan(layers.east[before + k])) << k;
                if (!std::isnan(cosines[k])) {
                    EXPECT_NEAR(cosines[k], static_cast<double>(expected), 2.5e-7) << k;
                }
            }
        }
    }
}

TEST(Normals, LevelGroundLooksAtTheZenith) {
    Layers layers(9);
    layers.east.assign(9, 0.0f);
    layers.north.assign(9, 0.0f);
    Normals normals(9);
    std::vector<float> cosines;
    normals.setFrom(layers, 0, 2);
    normals.cosinesTo({0, 0, 1}, cosines);
    EXPECT_EQ(cosines, std::vector<float>(9, 1.0f));
}

} // namespace
