// A picture with one pixel per cell.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace terrain {

struct Colour {
    double red = 0; // 0 to 1, as on the screen (sRGB)
    double green = 0;
    double blue = 0;
};

// For cells without data or without a surface.
constexpr Colour blankColour = {0.88, 0.88, 0.88};

struct Image {
    std::size_t width;
    std::size_t height;
    std::vector<std::uint8_t> pixels; // red, green, blue

    Image(std::size_t columns, std::size_t rows) : width(columns), height(rows), pixels(columns * rows * 3) {}

    void set(std::size_t cell, const Colour &colour) {
        pixels[cell * 3] = byte(colour.red);
        pixels[cell * 3 + 1] = byte(colour.green);
        pixels[cell * 3 + 2] = byte(colour.blue);
    }

private:
    static std::uint8_t byte(double part) {
        return static_cast<std::uint8_t>(part <= 0 ? 0 : part >= 1 ? 255 : part * 255 + 0.5);
    }
};

} // namespace terrain
