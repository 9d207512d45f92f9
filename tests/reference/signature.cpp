#include "signature.h"

#include <utility>

namespace zelmref {

Parameter vector(std::string name, bool array, std::string length) {
    return {std::move(name), Kind::Vector, array, "", std::move(length)};
}

Parameter matrix(std::string name, bool array, std::string height, std::string width) {
    return {std::move(name), Kind::Matrix, array, std::move(height), std::move(width)};
}

Parameter constant(std::string name) {
    return {std::move(name), Kind::Constant, false, "", ""};
}

Parameter pivotIndex(bool array) {
    return {"pivotIndex", Kind::PivotIndex, array, "", "n"};
}

Parameter scratch() {
    return {"scratch", Kind::Scratch, false, "", ""};
}

Parameter result(bool array) {
    return {"dst", Kind::Result, array, "", ""};
}

Parameter packed(bool array, std::string height, std::string width) {
    return {"dst", Kind::Packed, array, std::move(height), std::move(width)};
}

Parameter dimension(std::string name) {
    return {std::move(name), Kind::Dimension, false, "", ""};
}

Parameter objectCount() {
    return {"count", Kind::Count, false, "", ""};
}

Layout layoutOf(const Cell &cell, const Parameter &parameter) {
    return parameter.name == "dst" ? cell.dstLayout : cell.layout;
}

bool hasTable(const Cell &cell, const Parameter &parameter) {
    if (parameter.kind != Kind::Vector && parameter.kind != Kind::Matrix)
        return false;
    switch (layoutOf(cell, parameter)) {
    case Layout::P:
    case Layout::PS2:
        return true;
    case Layout::L:
    case Layout::LS2:
        return parameter.array;
    default:
        return false;
    }
}

std::vector<CArgument> argumentList(const Cell &cell, const Signature &signature) {
    std::vector<CArgument> list;
    for (std::size_t index = 0; index < signature.size(); ++index) {
        const Parameter &parameter = signature[index];
        const auto add = [&](Part part, const char *suffix) {
            list.push_back({index, part, parameter.name + suffix});
        };
        const Layout layout = layoutOf(cell, parameter);
        const bool strided = layout == Layout::S2 || layout == Layout::LS2;

        if (parameter.kind != Kind::Vector && parameter.kind != Kind::Matrix) {
            add(Part::Value, "");
        } else if (!hasTable(cell, parameter)) {
            add(Part::Base, "");
            if (parameter.array || parameter.unreadObjStride)
                add(Part::ObjStride, "ObjStride");
            if (parameter.kind == Kind::Matrix)
                add(Part::RowStride, "RowStride");
            if (strided)
                add(Part::ElemStride, "ElemStride");
        } else {
            add(Part::Table, "Table");
            add(Part::Shift, "Shift");
            if (layout == Layout::PS2 && parameter.array)
                add(Part::ObjStride, "ObjStride");
            if ((layout == Layout::L || layout == Layout::LS2) && parameter.kind == Kind::Matrix)
                add(Part::RowStride, "RowStride");
            if (layout == Layout::LS2)
                add(Part::ElemStride, "ElemStride");
        }
    }
    return list;
}

} // namespace zelmref
