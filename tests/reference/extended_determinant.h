// Determinants as the kernels a6_Det_* evaluate them, on the x87 stack.
#pragma once

#include "cell.h"

#include <vector>

namespace zelmref {

// `a` holds the elements of one matrix; the cell names descriptor, layout and order of the kernel.
template <class T>
T extendedDeterminant(const Cell &cell, const std::vector<T> &a);

} // namespace zelmref
