#include "derivatives.h"

#include <cmath>
#include <numbers>

namespace terrain {

namespace {

constexpr double degrees = 180 / std::numbers::pi;

double profileCurvature(const Derivatives &d) {
    const double gradient2 = d.p * d.p + d.q * d.q;
    if (gradient2 == 0) {
        return 0;
    }
    const double g = 1 + gradient2;
    return -(d.p * d.p * d.r + 2 * d.p * d.q * d.s + d.q * d.q * d.t) / (gradient2 * g * std::sqrt(g));
}

double tangentialCurvature(const Derivatives &d) {
    const double gradient2 = d.p * d.p + d.q * d.q;
    if (gradient2 == 0) {
        return 0;
    }
    return -(d.q * d.q * d.r - 2 * d.p * d.q * d.s + d.p * d.p * d.t) /
           (gradient2 * std::sqrt(1 + gradient2));
}

double meanCurvature(const Derivatives &d) {
    const double g = 1 + d.p * d.p + d.q * d.q;
    return -((1 + d.q * d.q) * d.r - 2 * d.p * d.q * d.s + (1 + d.p * d.p) * d.t) / (2 * g * std::sqrt(g));
}

} // namespace

Derivatives derivativesOf(const Coefficients &surface, const CellSize &size) {
    const auto [a, b, c, d, e, f] = surface;
    const double dx = size.eastWest;
    const double dy = size.northSouth;
    return {d / dx, e / dy, 2 * a / (dx * dx), b / (dx * dy), 2 * c / (dy * dy)};
}

double slopeDegrees(double p, double q) {
    return std::atan(std::hypot(p, q)) * degrees;
}

double aspectDegrees(double p, double q) {
    if (p == 0 && q == 0) {
        return -1;
    }
    const double angle = std::atan2(-p, -q) * degrees;
    return angle < 0 ? angle + 360 : angle;
}

const char *nameOf(Curvature kind) {
    switch (kind) {
    case Curvature::Profile:
        return "profile";
    case Curvature::Tangential:
        return "tangential";
    case Curvature::Mean:
        break;
    }
    return "mean";
}

double curvatureOf(const Derivatives &d, Curvature kind) {
    switch (kind) {
    case Curvature::Profile:
        return profileCurvature(d);
    case Curvature::Tangential:
        return tangentialCurvature(d);
    case Curvature::Mean:
        break;
    }
    return meanCurvature(d);
}

} // namespace terrain
