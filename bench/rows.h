// The rows of the benchmark: a function, and how many objects it is given.
#pragma once

#include "member.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zelmbench {

struct Row {
    std::string name; // zelmMul_mama_32f_4x4_P/1000, zelmMul_mm_32f_4x4/single, zelmMul_mm_32f/8x8/single
    const Member *member;
    std::size_t count; // of objects; single-object functions are called for each of them
};

std::vector<Row> allRows(bool withLargeArrays);

} // namespace zelmbench
