// What the two Cholesky families share. Their array forms are loops over the single-object functions, which
// see one address per operand and no table of objects.
#pragma once

#include "call.h"

#include <initializer_list>

namespace zelmref {

// Does an operand of object k come to a null pointer, base or entry plus shift plus object stride?
inline bool comesToNull(const Call &call, std::initializer_list<const Operand *> operands, std::uint32_t k) {
    if (call.cell->layout == Layout::P || call.cell->layout == Layout::PS2)
        return false; // the tables are handed on, and their entries are followed
    for (const Operand *operand : operands)
        if (operand->element(k, 0, 0) == 0)
            return true;
    return false;
}

inline bool hasUpperTriangle(const Call &, std::uint32_t i, std::uint32_t j) {
    return j > i;
}

// A null entry is an address like another, and no case has one, unless one entry is one object: then entry
// and shift together may come to a null pointer.
inline bool followsNullPosition(const Call &call, std::size_t) {
    return call.cell->layout == Layout::P || call.cell->layout == Layout::PS2;
}

} // namespace zelmref
