#include "cell.h"

#include <stdexcept>
#include <string>

namespace zelmref {
namespace {

Layout parseLayout(std::string_view token) {
    if (token.empty())
        return Layout::Standard;
    if (token == "S2")
        return Layout::S2;
    if (token == "P")
        return Layout::P;
    if (token == "L")
        return Layout::L;
    if (token == "PS2")
        return Layout::PS2;
    if (token == "LS2")
        return Layout::LS2;
    throw std::invalid_argument("no layout: " + std::string(token));
}

// The letters of Copy and LoadIdentity stand for layouts with all strides.
Layout parseLetter(char letter) {
    switch (letter) {
    case 'S':
        return Layout::S2;
    case 'P':
        return Layout::PS2;
    case 'L':
        return Layout::LS2;
    default:
        throw std::invalid_argument(std::string("no layout: ") + letter);
    }
}

Type parseType(std::string_view token) {
    if (token == "32f")
        return Type::Float32;
    if (token == "64f")
        return Type::Float64;
    throw std::invalid_argument("no element type: " + std::string(token));
}

std::uint32_t parseOrder(std::string_view token) {
    if (token.empty())
        return 0;
    if (token.size() == 3 && token[1] == 'x' && token[0] >= '3' && token[0] <= '6')
        return static_cast<std::uint32_t>(token[0] - '0');
    throw std::invalid_argument("no size: " + std::string(token));
}

} // namespace

Cell parseCell(std::string_view operation, std::string_view descriptor, std::string_view type,
               std::string_view size, std::string_view layout) {
    if (operation == "Copy" && layout.size() == 2)
        return {operation,        descriptor,
                parseType(type),  parseLetter(layout[0]),
                parseOrder(size), parseLetter(layout[1])};
    const bool isLetter = operation == "LoadIdentity" && layout.size() == 1;
    const Layout its = isLetter ? parseLetter(layout[0]) : parseLayout(layout);
    return {operation, descriptor, parseType(type), its, parseOrder(size), its};
}

} // namespace zelmref
