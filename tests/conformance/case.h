// One case: a call of one function, with all the memory that it touches laid out in an arena.
#pragma once

#include "arena.h"
#include "random.h"
#include "target.h"

#include <cstdint>
#include <vector>

namespace zelmtest {

// Where one operand lies. Offsets are relative to its origin, which is the address that the caller passes
// (or, with a table, the point that the table's entries are counted from).
struct Placement {
    std::size_t parameter = 0;
    bool array = false, table = false;
    zelmref::Layout layout = zelmref::Layout::Standard;
    bool packed = false;                              // without gaps, whatever the layout
    std::uint32_t objects = 0, rows = 1, columns = 1; // one row if a table's entries are more than positions
    std::int64_t elem = 0, row = 0, obj = 0;
    std::vector<std::int64_t> entries; // tables: where each entry points to, without the shift
    bool perObject = false;            // tables: one entry per object, else one per position
    std::int64_t low = 0, high = 0;    // the bytes of its elements, from the origin
    std::size_t slab = 0;
    std::int64_t origin = 0;

    std::int64_t offset(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        const std::int64_t inside = perObject || !table ? i * row + j * elem : 0;
        const std::int64_t entry = !table      ? 0
                                   : perObject ? entries[k]
                                               : entries[static_cast<std::size_t>(i) * columns + j];
        return entry + inside + (perObject || !array ? 0 : k * obj);
    }
};

struct Case {
    const Target *target = nullptr;
    std::uint64_t seed = 0, number = 0;
    zelmref::Call call{};
    std::vector<Placement> operands; // vectors and matrices; the destination is the last
    std::vector<Window> windows;

    std::size_t elementCount() const;
};

// Lays out case `number` of a function. The same arguments make the same case on every target, but for
// addresses and for what follows from the size of a pointer and the alignment of a 64-bit float.
void makeCase(const Target &target, std::uint64_t seed, std::uint64_t number, Arena &arena, Case &result);

} // namespace zelmtest
