// LU decomposition and its solver on a group of matrices that lies in registers, one matrix per lane.
#pragma once

#include "frame/pack.h"

namespace zelm::solvers {

using namespace zelm::frame;

// A pivot below this counts as zero, in both element types.
constexpr double kLuThreshold = 0x1p-23;

// Factors a in place by the elimination of luDecompObject, with rows really exchanged: row i of the result is
// row order[i], a number in T, of the matrix. False where a lane needs the elimination one by one, because
// its pivot fails or because its multiplier is too small for T: the contents are then of no use.
template <typename T, unsigned N>
bool luFactor(Pack<T> (&a)[N][N], Pack<T> (&order)[N]);

// Solves with the factors a, rows in pivot order; x comes as b in pivot order and goes as the solution.
template <typename T, unsigned N>
void luSolve(const Pack<T> (&a)[N][N], Pack<T> (&x)[N]);

} // namespace zelm::solvers
