// Text in a picture, in a typeface of 5 by 9 dots: lower-case letters, digits and - + . /
#pragma once

#include "image.h"

#include <cstddef>
#include <string_view>

namespace terrain {

// The height of a letter without and with what hangs below the line, and the room of a letter, in dots.
constexpr std::size_t letterHeight = 7;
constexpr std::size_t letterDepth = 9;
constexpr std::size_t letterPitch = 6;

// In dots, without the gap behind the last letter.
std::size_t textWidth(std::string_view text);

// `dot` is the size of a dot in pixels. A letter that the typeface lacks is left blank.
void drawText(std::string_view text, std::size_t left, std::size_t top, std::size_t dot, const Colour &colour,
              Image &image);

} // namespace terrain
