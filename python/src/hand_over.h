// Objects that the library refuses, or has no true form for, go to NumPy.
#pragma once

#include "operand.h"

#include <vector>

namespace zelmpy {

// Calls zelm._numpy.NAME(at, *arrays) with views of the operands, `count` objects each, the sources first.
// `at` holds the numbers of the objects to compute, or None for all of them. What the function returns, the
// number of objects that NumPy refuses too, is added to the thread's state. To be called without the
// interpreter's lock.
void handOver(const char *name, const std::vector<Operand> &operands, npy_intp count,
              const std::vector<npy_intp> *at = nullptr);

} // namespace zelmpy
