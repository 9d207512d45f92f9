// Solves many systems by LU decomposition with the library's array functions.
#pragma once

#include "systems.h"

namespace terrain {

// Fills `solution` and `isSingular`, overwrites `matrix` with the factors, and returns the seconds that were
// spent inside the library.
template <class T>
double solveByLu(Systems<T> &systems);

extern template double solveByLu(Systems<float> &systems);
extern template double solveByLu(Systems<double> &systems);

} // namespace terrain
