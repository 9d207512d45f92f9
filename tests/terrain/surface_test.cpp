// Slope, aspect and curvature of surfaces whose derivatives are known exactly: a quadratic surface is what
// the fit looks for, so every cell must give it back, whatever its weights and missing neighbours are.
#include "sandbox.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>

namespace {

using terrain::Grid;
using terraintest::gridText;
using terraintest::Sandbox;

constexpr double degrees = 180 / std::numbers::pi;
const double absent = std::numeric_limits<double>::quiet_NaN();

// A surface with slopes of up to 45 degrees in all directions over 600 m by 400 m.
struct Quadratic {
    double a = 1.1e-3, b = -0.7e-3, c = -0.9e-3, d = -0.45, e = 0.5, f = 300;

    double height(double x, double y) const { return a * x * x + b * x * y + c * y * y + d * x + e * y + f; }
    double p(double x, double y) const { return 2 * a * x + b * y + d; }
    double q(double x, double y) const { return b * x + 2 * c * y + e; }
};

double expectedSlope(double p, double q) {
    return std::atan(std::sqrt(p * p + q * q)) * degrees;
}

double expectedAspect(double p, double q) {
    // The compass direction of the vector (-p, -q), by the quadrant of its angle from the east.
    const double compass = 90 - std::atan2(-q, -p) * degrees;
    return compass < 0 ? compass + 360 : compass;
}

double angleBetween(double first, double second) {
    const double difference = std::fabs(first - second);
    return std::min(difference, 360 - difference);
}

void forEachCell(const Grid &grid, const std::function<void(double x, double y, double value)> &check) {
    for (std::size_t row = 0; row < grid.rows; ++row) {
        for (std::size_t column = 0; column < grid.columns; ++column) {
            check((static_cast<double>(column) + 0.5) * grid.cellWidth,
                  (static_cast<double>(grid.rows - row) - 0.5) * grid.cellHeight, grid.at(row, column));
        }
    }
}

struct Case {
    const char *bits;
    const char *exponent;
    double angleBound;     // degrees
    double curvatureBound; // 1/m
};

class QuadraticSurface : public testing::TestWithParam<Case> {};

TEST_P(QuadraticSurface, GivesItsOwnDerivatives) {
    const Quadratic surface;
    const Sandbox sandbox;
    sandbox.write("hill.asc", gridText(40, 60, 10, [&](double x, double y) { return surface.height(x, y); }));
    const auto outcome = sandbox.run({"--float", GetParam().bits, "--weight-exponent", GetParam().exponent,
                                      "--slope-grid", "slope.asc", "--aspect-grid", "aspect.asc",
                                      "--curvature-grid", "curvature.asc", "hill.asc"});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;

    forEachCell(terraintest::readGrid(sandbox.path("slope.asc")), [&](double x, double y, double slope) {
        EXPECT_NEAR(slope, expectedSlope(surface.p(x, y), surface.q(x, y)), GetParam().angleBound)
            << "at " << x << ", " << y;
    });
    forEachCell(terraintest::readGrid(sandbox.path("aspect.asc")), [&](double x, double y, double aspect) {
        const double p = surface.p(x, y);
        const double q = surface.q(x, y);
        // The direction of a gentle slope is as uncertain as the slope is small, and 32-bit floats below 360
        // are 3e-5 apart.
        const double bound = 3e-5 + GetParam().angleBound / std::hypot(p, q);
        EXPECT_LE(angleBetween(aspect, expectedAspect(p, q)), bound) << "at " << x << ", " << y;
    });
    forEachCell(terraintest::readGrid(sandbox.path("curvature.asc")),
                [&](double x, double y, double curvature) {
                    const double p = surface.p(x, y);
                    const double q = surface.q(x, y);
                    const double r = 2 * surface.a;
                    const double s = surface.b;
                    const double t = 2 * surface.c;
                    const double mean = -((1 + q * q) * r - 2 * p * q * s + (1 + p * p) * t) /
                                        (2 * std::pow(1 + p * p + q * q, 1.5));
                    EXPECT_NEAR(curvature, mean, GetParam().curvatureBound) << "at " << x << ", " << y;
                });
}

// In 64-bit floats only the output's own 32-bit values round. In 32-bit floats the solver loses about 1e-5 of
// heights of up to 20 m: 2e-4 m over cells of 10 m, and twice that over their square.
INSTANTIATE_TEST_SUITE_P(Weights, QuadraticSurface,
                         testing::Values(Case{"64", "0", 1e-5, 1e-9}, Case{"64", "1", 1e-5, 1e-9},
                                         Case{"64", "2", 1e-5, 1e-9}, Case{"32", "0", 2e-3, 5e-6},
                                         Case{"32", "1", 2e-3, 5e-6}, Case{"32", "2", 2e-3, 5e-6}),
                         [](const auto &test) {
                             return "Float" + std::string(test.param.bits) + "Exponent" + test.param.exponent;
                         });

TEST(Surface, TiltedPlaneKeepsItsSlopeAroundHoles) {
    // Rises 0.3 to the east and falls 0.4 to the north: slope atan(0.5), facing west-north-west.
    const auto isHole = [](double x, double y) {
        return std::fmod(x, 70) < 20 && std::fmod(y, 50) < 30; // up to 2 by 3 cells
    };
    const Sandbox sandbox;
    sandbox.write("plane.asc", gridText(30, 42, 10, [&](double x, double y) {
                      return isHole(x, y) ? absent : 1000 + 0.3 * x - 0.4 * y;
                  }));
    const auto outcome = sandbox.run({"--slope-grid", "slope.asc", "--aspect-grid", "aspect.asc",
                                      "--curvature-grid", "curvature.asc", "plane.asc"});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    const double slope = std::atan(0.5) * degrees;
    const double aspect = 360 - std::atan2(0.3, 0.4) * degrees;
    std::size_t holes = 0;
    forEachCell(terraintest::readGrid(sandbox.path("slope.asc")), [&](double x, double y, double value) {
        ASSERT_EQ(std::isnan(value), isHole(x, y)) << "at " << x << ", " << y;
        holes += isHole(x, y);
        if (!isHole(x, y)) {
            EXPECT_NEAR(value, slope, 1e-5) << "at " << x << ", " << y;
        }
    });
    EXPECT_GT(holes, 200u);
    EXPECT_NE(outcome.output.find(std::to_string(holes) + " without data"), std::string::npos)
        << outcome.output;
    forEachCell(terraintest::readGrid(sandbox.path("aspect.asc")), [&](double x, double y, double value) {
        if (!isHole(x, y)) {
            EXPECT_NEAR(value, aspect, 1e-4) << "at " << x << ", " << y;
        }
    });
    forEachCell(terraintest::readGrid(sandbox.path("curvature.asc")), [&](double x, double y, double value) {
        if (!isHole(x, y)) {
            EXPECT_NEAR(value, 0, 1e-9) << "at " << x << ", " << y;
        }
    });
}

TEST(Surface, AspectTellsTheFourDirectionsAndFlatGround) {
    struct Plane {
        double p, q, aspect;
    };
    for (const Plane &plane : {Plane{0, -0.5, 0}, {-0.5, 0, 90}, {0, 0.5, 180}, {0.5, 0, 270}, {0, 0, -1}}) {
        const Sandbox sandbox;
        sandbox.write("plane.asc",
                      gridText(8, 8, 16, [&](double x, double y) { return plane.p * x + plane.q * y; }));
        ASSERT_EQ(sandbox.run({"--aspect-grid", "aspect.asc", "plane.asc"}).status, 0);
        forEachCell(terraintest::readGrid(sandbox.path("aspect.asc")), [&](double, double, double aspect) {
            EXPECT_LE(angleBetween(aspect, plane.aspect), 1e-5);
        });
    }
}

// Along the slope of a cylinder-like valley side the curvature is all profile, across a straight valley's
// axis all tangential; together they are twice the mean everywhere.
TEST(Surface, CurvatureKindsFitTogether) {
    const Quadratic surface;
    const Sandbox sandbox;
    sandbox.write("hill.asc", gridText(12, 12, 10, [&](double x, double y) { return surface.height(x, y); }));
    sandbox.write("steepening.asc",
                  gridText(12, 12, 10, [&](double x, double) { return -0.002 * x * x - 0.1 * x; }));
    const auto values = [&](const char *kind, const char *grid) {
        const auto outcome =
            sandbox.run({"--curvature-kind", kind, "--curvature-grid", "curvature-out.asc", grid});
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        return terraintest::readGrid(sandbox.path("curvature-out.asc")).elevation;
    };
    const auto mean = values("mean", "hill.asc");
    const auto profile = values("profile", "hill.asc");
    const auto tangential = values("tangential", "hill.asc");
    for (std::size_t cell = 0; cell < mean.size(); ++cell) {
        EXPECT_NEAR(profile[cell] + tangential[cell], 2 * mean[cell], 1e-9);
    }
    for (const double curvature : values("tangential", "steepening.asc")) {
        EXPECT_NEAR(curvature, 0, 1e-9);
    }
    for (const double curvature : values("profile", "steepening.asc")) {
        EXPECT_GT(curvature, 1e-3); // steeper downhill: convex
    }
}

} // namespace
