#pragma once

#include "numpy.h"

namespace zelmpy {

// The type `universal`: a Python function with a short cut to the universal functions behind it.
PyTypeObject *makeUniversalType(PyObject *module);

// Calls a universal function with a clean state; raises what a loop has kept.
PyObject *callUniversal(PyObject *function, PyObject *const *arguments, std::size_t count, PyObject *names);

} // namespace zelmpy
