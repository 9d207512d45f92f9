// What a loop has to say beyond its results. A loop has no way to raise an exception, so it leaves word here
// and the function that called it looks (module.cpp). One state per thread.
#pragma once

#include "numpy.h"

namespace zelmpy {

struct State {
    npy_intp refused = 0;          // objects that neither zelm nor NumPy has a result for
    PyObject *exception = nullptr; // raised by NumPy's functions while they served a loop; owned
    bool outOfMemory = false;
};

State &state();

// Keeps the current exception for the caller. The interpreter's lock must be held.
void keepException();

} // namespace zelmpy
