// Determinants in the element type of as many matrices as a pack has lanes.
#pragma once

#include "frame/pack.h"

namespace zelm::solvers {

using namespace zelm::frame;

template <typename T, unsigned N>
Pack<T> determinants(const Pack<T> (&a)[N][N]);

} // namespace zelm::solvers
