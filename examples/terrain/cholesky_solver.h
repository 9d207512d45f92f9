// Solves many normal equations by Cholesky decomposition with the library's array functions.
#pragma once

#include "systems.h"

namespace terrain {

// Fills `solution` and `isSingular`, and returns the seconds that were spent inside the library.
template <class T>
double solveByCholesky(Systems<T> &systems);

extern template double solveByCholesky(Systems<float> &systems);
extern template double solveByCholesky(Systems<double> &systems);

} // namespace terrain
