// What the program is for: from a grid to its outputs.
#pragma once

#include "options.h"

namespace terrain {

// Reads, fits, writes and prints the report. Throws InputError and OutputError.
void doJob(const Options &options);

} // namespace terrain
