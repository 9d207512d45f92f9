// What varies by descriptor and by member in Mul of two matrices.
#pragma once

#include "cell.h"

#include <algorithm>
#include <initializer_list>

namespace zelmref::departs {

inline bool hasDescriptor(const Cell &cell, std::initializer_list<std::string_view> descriptors) {
    return std::find(descriptors.begin(), descriptors.end(), cell.descriptor) != descriptors.end();
}

inline bool hasOrder(const Cell &cell, std::initializer_list<std::uint32_t> orders) {
    return std::find(orders.begin(), orders.end(), cell.order) != orders.end();
}

// The two dimensions that must be equal.
struct Equal {
    const char *first, *second;
};

inline Equal equalDimensions(const Cell &c) {
    if (hasDescriptor(c, {"mm", "mam"}))
        return {"src1Width", "src2Height"};
    if (hasDescriptor(c, {"mmT", "mmaT", "mamT", "mamaT"}))
        return {"src1Width", "src2Width"};
    if (hasDescriptor(c, {"mTm", "mTma", "maTm", "maTma"}))
        return {"src1Height", "src2Height"};
    return {"src1Height", "src2Width"}; // the transposed of both, and also mma and mama
}

// src2Width may be zero: no columns.
inline bool mayHaveNoColumns(const Cell &c) {
    return hasDescriptor(c, {"mam"});
}

// The true product of src1 by the transpose of src2 as stored, where the row's other forms keep bounds that
// speak of src2 as used.
inline bool hasBoundsOfStored(const Cell &c) {
    return c.order == 0 && c.layout == Layout::Standard && hasDescriptor(c, {"mmT"});
}

// ((p0 + p1) + (p2 + p3)) + (p4 + p5)
inline bool sumsInTree(const Cell &c) {
    return c.type == Type::Float32 && c.order == 6 && c.layout == Layout::S2 &&
           hasDescriptor(c, {"mm", "mmT", "mTmT"});
}

// On data at multiples of 16 every object of dst is computed from object 0 of src1.
inline bool mayStayAtFirstObject(const Cell &c) {
    return c.type == Type::Float64 && c.order != 0 && c.layout == Layout::Standard &&
           hasDescriptor(c, {"mama", "maTma", "mamaT", "maTmaT"});
}

inline bool testsNoEntry(const Cell &c) {
    if (c.type != Type::Float32 || c.order != 3)
        return false;
    if (c.layout == Layout::P || c.layout == Layout::PS2)
        return hasDescriptor(c, {"mam", "maTm", "mamT"});
    return c.layout == Layout::LS2 && hasDescriptor(c, {"mam", "maTm", "mamT", "maTmT"});
}

// The fixed sizes that work in place, but for the forms of single objects in P, which never do.
inline bool worksInPlaceOfFirst(const Cell &c) {
    const bool wide = c.type == Type::Float64;
    switch (c.layout) {
    case Layout::Standard:
        return hasDescriptor(c, {"mm", "mmT", "mam", "mamT", "mama", "mamaT"}) &&
               (wide || hasOrder(c, {3, 4, 5}));
    case Layout::L:
        return hasDescriptor(c, {"mam", "mamT", "mama", "mamaT"}) && (wide || hasOrder(c, {3, 4, 5}));
    case Layout::S2:
        if (hasDescriptor(c, {"mm", "mmT"}))
            return !wide && c.order == 6;
        if (hasDescriptor(c, {"mam", "mama"}))
            return !wide && hasOrder(c, {3, 4});
        return hasDescriptor(c, {"mamT"}) && !wide && c.order == 3;
    default:
        return hasDescriptor(c, {"mam", "mamT"}) && !wide && c.order == 3;
    }
}

inline bool worksInPlaceOfSecond(const Cell &c) {
    const bool wide = c.type == Type::Float64;
    switch (c.layout) {
    case Layout::Standard:
        if (hasDescriptor(c, {"mm", "mTm"}))
            return wide || hasOrder(c, {3, 4, 6});
        if (hasDescriptor(c, {"mmT", "mTmT"}))
            return wide || hasOrder(c, {3, 4, 5});
        return true;
    case Layout::L:
        return true;
    case Layout::S2:
        if (hasDescriptor(c, {"mm", "mmT", "mTmT"}))
            return !wide && c.order == 6;
        return hasDescriptor(c, {"mama"}) && !wide && hasOrder(c, {3, 4});
    default:
        return false;
    }
}

} // namespace zelmref::departs
