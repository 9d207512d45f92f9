// Solves many least squares problems by QR decomposition with the library's array functions.
#pragma once

#include "systems.h"

namespace terrain {

// Fills `solution` and `isSingular`, and returns the seconds that were spent inside the library. The systems
// may have more equations than unknowns.
template <class T>
double solveByQr(Systems<T> &systems);

extern template double solveByQr(Systems<float> &systems);
extern template double solveByQr(Systems<double> &systems);

} // namespace terrain
