// QR decomposition and its solver on matrices that lie in local arrays: V is an element, for one matrix, or a
// pack, for a group of matrices, one per lane.
#pragma once

#include "frame/pack.h"

namespace zelm::solvers {

using namespace zelm::frame;

// The least sum of squares of a column that is reflected, in both element types.
constexpr double kQrThreshold = 0x1p-23;

// Factors a in place; v is the last reflector's vector. The number of reflectors made: N - 1, or fewer where
// a column fails the threshold.
template <typename T, unsigned N>
unsigned qrFactor(T (&a)[N][N], T (&v)[N]);

// The same for a group. False where a column of any lane fails: the contents are then of no use.
template <typename V, unsigned N>
bool qrFactorGroup(V (&a)[N][N], V (&v)[N]);

// -2 / v.v of each reflector of the factors a.
template <typename V, unsigned N>
void qrScales(const V (&a)[N][N], V (&scale)[N]);

// Solves with the factors a and their scales: w comes as b and goes as what the reflectors make of it. F is
// V, or a block whose lanes are all alike where one matrix serves all lanes.
template <typename V, typename F, unsigned N>
void qrSolve(const F (&a)[N][N], const F (&scale)[N], V (&w)[N], V (&x)[N]);

} // namespace zelm::solvers
