// Cholesky decomposition and its solver on a group of matrices that lies in registers, one matrix per lane.
// Only lower triangles are read and written; the diagonal of a factor holds reciprocals.
#pragma once

#include "frame/pack.h"

namespace zelm::solvers {

using namespace zelm::frame;

// Where the reciprocal root of a 32-bit pivot is computed: in 64-bit float, or in the element type.
enum class Root { Widened, InType };

// Factors a in place. False where a pivot of any lane is not positive: the contents are then of no use.
template <typename T, unsigned N, Root root>
bool choleskyFactor(Pack<T> (&a)[N][N]);

// x comes as b and goes as the solution.
template <typename T, unsigned N>
void choleskySolve(const Pack<T> (&a)[N][N], Pack<T> (&x)[N]);

} // namespace zelm::solvers
