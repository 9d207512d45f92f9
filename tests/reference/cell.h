// One cell of the grid: what a function's name says about it.
#pragma once

#include <cstdint>
#include <string_view>

namespace zelmref {

enum class Type { Float32, Float64 };
enum class Layout { Standard, S2, P, L, PS2, LS2 };

struct Cell {
    std::string_view operation, descriptor;
    Type type;
    Layout layout;
    std::uint32_t order; // the N of the size token; 0 for a run-time form
    Layout dstLayout;    // another one in Copy only
};

constexpr bool isArray(const Cell &cell) {
    return cell.descriptor.find('a') != std::string_view::npos;
}

constexpr std::uint32_t elementSize(const Cell &cell) {
    return cell.type == Type::Float32 ? 4 : 8;
}

// The tokens of a name; an unknown token throws std::invalid_argument.
Cell parseCell(std::string_view operation, std::string_view descriptor, std::string_view type,
               std::string_view size, std::string_view layout);

} // namespace zelmref
