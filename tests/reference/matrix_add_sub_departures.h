// The members of Add and Sub of matrices that depart from their rows, by name.
#pragma once

#include "cell.h"

#include <algorithm>
#include <initializer_list>
#include <string>

namespace zelmref::departs {

// Operation and descriptor, as in a name: "Sub_mamT".
inline bool isNamed(const Cell &cell, std::initializer_list<std::string_view> rows) {
    const std::string row = std::string(cell.operation) + "_" + std::string(cell.descriptor);
    return std::find(rows.begin(), rows.end(), row) != rows.end();
}

inline bool is(const Cell &cell, Type type, std::uint32_t order) {
    return cell.type == type && cell.order == order;
}

inline bool isStandardOrL(const Cell &cell) {
    return cell.layout == Layout::Standard || cell.layout == Layout::L;
}

// Object k+1 is read before object k is stored; a count of 0 counts as 1.
inline bool pipelined(const Cell &c) {
    return is(c, Type::Float32, 3) && isStandardOrL(c) &&
           isNamed(c, {"Add_mam", "Add_mamT", "Sub_mam", "Sub_mamT"});
}

// The rows of src2 are taken at src1RowStride.
inline bool takesFirstRowStride(const Cell &c) {
    return pipelined(c) && c.descriptor == "mamT";
}

// Column 4 of src1 is read at src2RowStride.
inline bool takesLastColumnAtSecondRowStride(const Cell &c) {
    return is(c, Type::Float64, 5) && isStandardOrL(c) &&
           isNamed(c, {"Add_mam", "Add_mama", "Sub_mam", "Sub_mama"});
}

// The elements of src2 are taken at src1ElemStride.
inline bool takesFirstElemStride(const Cell &c) {
    return is(c, Type::Float64, 6) && c.layout == Layout::S2 && isNamed(c, {"Sub_mTm"});
}

// Row 3 of dst receives the values of row 2.
inline bool repeatsRowTwo(const Cell &c) {
    return is(c, Type::Float32, 6) && c.layout == Layout::Standard && isNamed(c, {"Sub_mTmT"});
}

// Results are differences of the stored elements that a table names.
inline bool followsTable(const Cell &c) {
    return is(c, Type::Float32, 6) && isStandardOrL(c) && isNamed(c, {"Sub_maTmaT"});
}

// Row and column of the stored element, as two digits.
constexpr int tableOfElements[6][6] = {
    {00, 40, 2, 42, 4, 44},   {10, 50, 12, 52, 14, 54}, {20, 41, 22, 43, 24, 45},
    {20, 41, 22, 43, 24, 45}, {1, 21, 3, 23, 5, 25},    {11, 31, 13, 33, 15, 35},
};

// Two decisions on alignment, of the invariant and of each object.
inline bool decidesByAlignment(const Cell &c) {
    return is(c, Type::Float64, 3) && c.layout == Layout::L &&
           isNamed(c, {"Add_mam", "Add_mamT", "Sub_mam", "Sub_mamT", "Sub_mma", "Sub_mTma"});
}

// The invariant is read anew in spite of a fixed size in the standard or L layout.
inline bool readsInvariantAnew(const Cell &c) {
    if (is(c, Type::Float32, 6))
        return isNamed(c, {"Sub_mma", "Sub_mmaT"});
    if (is(c, Type::Float64, 6))
        return isNamed(c, {"Sub_mma", "Sub_mTma", "Sub_mmaT", "Sub_mTmaT"});
    return is(c, Type::Float64, 3) && c.layout == Layout::Standard && isNamed(c, {"Add_maTmT"});
}

// The entry tested for a transposed operand is i*height + j.
inline bool testsByRows(const Cell &c) {
    return c.order == 0 && c.layout == Layout::P &&
           (c.descriptor == "mmT" || c.descriptor == "mTm" || c.descriptor == "mTmT");
}

// Aligned access that rests on a test of less than what it depends on.
inline bool mayFault(const Cell &c) {
    if (c.type != Type::Float64)
        return false;
    if (c.layout == Layout::Standard)
        return (c.order == 6 && isNamed(c, {"Add_maTm", "Add_maTmT", "Add_mamT", "Sub_maTmT", "Sub_mamT"})) ||
               (c.order == 3 && isNamed(c, {"Sub_mamT"}));
    return c.layout == Layout::L && ((c.order == 5 && isNamed(c, {"Sub_maTma"})) ||
                                     (c.order == 4 && isNamed(c, {"Sub_mamaT", "Sub_mama"})));
}

} // namespace zelmref::departs
