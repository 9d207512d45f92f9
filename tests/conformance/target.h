// A function of the grid as the tests see it: its entry in the table, its cell, and the model of its family.
#pragma once

#include "family.h"
#include "grid_table.h"

namespace zelmtest {

struct Target {
    const Function *function;
    zelmref::Cell cell;
    const zelmref::Family *family; // null if there is no model
    zelmref::Signature signature;
    std::vector<zelmref::CArgument> arguments; // of the C function
};

Target targetOf(const Function &function);

// The values of a call in the order of the function's C arguments.
std::vector<Value> valuesOf(const Target &target, const zelmref::Call &call);

} // namespace zelmtest
