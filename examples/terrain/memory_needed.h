// How much memory a grid takes, asked before any of it is allocated: a header can claim any size.
#pragma once

namespace terrain {

// In bytes. The sizes are doubles because a header may hold numbers that no integer type does.
double memoryNeeded(double rows, double columns);
double memoryAvailable();

} // namespace terrain
