// Inverses of fixed order of as many matrices as a pack has lanes, in place.
#pragma once

#include "solvers/pivot_inverse.h"

namespace zelm::solvers {

// Different matrices in the lanes. False where one of them must be inverted alone, because it is singular or
// because its pivots must be searched for: the contents are then of no use. `dense` is the rule of the
// standard and L forms.
template <bool dense, typename T, unsigned N>
bool invertGroup(Pack<T> (&a)[N][N]);

// The same matrix in all lanes; see invertByPivots for what a singular one leaves.
template <bool dense, typename T, unsigned N>
Outcome invertAlone(Pack<T> (&a)[N][N]);

} // namespace zelm::solvers
