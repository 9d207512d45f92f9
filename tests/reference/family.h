// A family of the reference model: which cells it serves, what they take, and what a call of one does.
#pragma once

#include "call.h"
#include "memory.h"

#include "zelm.h"

namespace zelmref {

// Which overlaps of dst with a source have a defined result.
enum class Overlap {
    Any,     // the traversal defines all of them
    InPlace, // only dst and source object by object the same, or apart
};

// What sort of numbers brings a family's branches to light.
enum class Content {
    Numbers,  // element by element: any number anywhere
    Pivoting, // matrices to eliminate: ties, thresholds, singular ones
    Solving,  // factors and right-hand sides
};

struct Family {
    bool (*serves)(const Cell &cell);
    Signature (*signature)(const Cell &cell);
    ZelmStatus (*run)(const Call &call, ComputedElements &results);
    Overlap overlap;
    Content content;
};

// The family that serves a cell, or null.
const Family *familyOf(const Cell &cell);

} // namespace zelmref
