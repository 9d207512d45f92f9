// The order of checks that all families share.
#pragma once

#include "call.h"

#include "zelm.h"

#include <optional>

namespace zelmref {

enum class SingleTables {
    TestedByPosition, // as a rule: each entry just before its position is computed
    TestedFirst       // the solver families: the whole table before anything is computed
};

// Top-level pointers, dimensions, whole tables, zero count: the status of the first that decides the call. Of
// a table of one entry per position at most `entries` are tested.
std::optional<ZelmStatus> checkArguments(const Call &call, SingleTables singleTables,
                                         std::size_t entries = SIZE_MAX);

// The first two of these steps by themselves, for families that go their own way.
bool pointerIsNull(const Call &call);
bool dimensionIsZero(const Call &call);

// Is an entry null in any table of one entry per object?
bool objectIsNull(const Call &call, std::uint32_t k);

// Is an entry null in any table of one entry per position of a single object?
bool positionIsNull(const Call &call, std::size_t position);

} // namespace zelmref
