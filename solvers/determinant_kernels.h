// Determinants in the element type, of one matrix or of one matrix per lane of V.
#pragma once

#include "frame/pack.h"

namespace zelm::solvers {

using namespace zelm::frame;

template <typename V, unsigned N>
void determinantOf(const V (&a)[N][N], V &determinant);

} // namespace zelm::solvers
