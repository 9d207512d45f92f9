// Colours for a range of values.
#pragma once

#include "image.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace terrain {

constexpr Colour rgb(unsigned hex) {
    return {static_cast<double>(hex >> 16 & 255) / 255, static_cast<double>(hex >> 8 & 255) / 255,
            static_cast<double>(hex & 255) / 255};
}

constexpr Colour blend(const Colour &from, const Colour &to, double part) {
    return {from.red + (to.red - from.red) * part, from.green + (to.green - from.green) * part,
            from.blue + (to.blue - from.blue) * part};
}

// The colour at `position` (0 to 1, values outside are moved to the nearer end) of evenly spaced colours.
inline Colour colourAt(std::span<const Colour> colours, double position) {
    const double place = std::clamp(position, 0.0, 1.0) * static_cast<double>(colours.size() - 1);
    const std::size_t lower = std::min(static_cast<std::size_t>(place), colours.size() - 2);
    return blend(colours[lower], colours[lower + 1], place - static_cast<double>(lower));
}

} // namespace terrain
