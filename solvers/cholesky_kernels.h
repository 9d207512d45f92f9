// Cholesky decomposition and its solver on a group of matrices that lies in registers, one matrix per lane of
// V. Only lower triangles are read and written; the diagonal of a factor holds reciprocals.
#pragma once

#include "frame/pack.h"

namespace zelm::solvers {

using namespace zelm::frame;

// Where the reciprocal root of a 32-bit pivot is computed: in 64-bit float, or in the element type.
enum class Root { Widened, InType };

// Factors a in place. False where a pivot of any lane is not positive: the contents are then of no use.
template <Root root, typename V, unsigned N>
bool choleskyFactor(V (&a)[N][N]);

// x comes as b and goes as the solution. F is V, or a block whose lanes are all alike where one matrix serves
// all lanes.
template <typename V, typename F, unsigned N>
void choleskySolve(const F (&a)[N][N], V (&x)[N]);

} // namespace zelm::solvers
