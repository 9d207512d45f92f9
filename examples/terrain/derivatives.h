// Slope, aspect and curvature of a fitted surface.
//
// With p = dz/dx, q = dz/dy, r = d2z/dx2, s = d2z/dxdy, t = d2z/dy2 at the cell's centre; the quadratic
// surface is that of Evans (1972), the curvatures are those of Shary, Sharaya and Mitusov (2002). All
// curvatures are in 1/m and positive where the ground is convex.
#pragma once

#include "ground.h"
#include "neighbourhood.h"

namespace terrain {

struct Derivatives {
    double p = 0; // metres per metre, x to the east
    double q = 0; // y to the north
    double r = 0; // 1/m
    double s = 0;
    double t = 0;
};

Derivatives derivativesOf(const Coefficients &surface, const CellSize &size);

double slopeDegrees(double p, double q);

// The direction that the slope faces, clockwise from north; -1 on flat ground, which faces nowhere.
double aspectDegrees(double p, double q);

enum class Curvature {
    Mean,      // of all directions: ridges and tops positive, valleys and hollows negative
    Profile,   // along the steepest slope: where water speeds up; 0 on flat ground
    Tangential // across it: where water spreads; 0 on flat ground
};
const char *nameOf(Curvature kind);
double curvatureOf(const Derivatives &d, Curvature kind);

} // namespace terrain
