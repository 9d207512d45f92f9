// A picture: a map with one pixel per cell at the top left, and room for a legend.
#pragma once

#include <algorithm>
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
    std::vector<std::uint8_t> pixels; // red, green, blue; white at first

    Image(std::size_t columns, std::size_t rows)
        : width(columns), height(rows), pixels(columns * rows * 3, 255) {}

    void set(std::size_t x, std::size_t y, const Colour &colour) {
        std::uint8_t *const pixel = &pixels[(y * width + x) * 3];
        pixel[0] = byte(colour.red);
        pixel[1] = byte(colour.green);
        pixel[2] = byte(colour.blue);
    }

    // What lies outside of the picture is left out.
    void fill(std::size_t left, std::size_t top, std::size_t columns, std::size_t rows,
              const Colour &colour) {
        for (std::size_t y = top; y < std::min(top + rows, height); ++y) {
            for (std::size_t x = left; x < std::min(left + columns, width); ++x) {
                set(x, y, colour);
            }
        }
    }

private:
    static std::uint8_t byte(double part) {
        return static_cast<std::uint8_t>(part <= 0 ? 0 : part >= 1 ? 255 : part * 255 + 0.5);
    }
};

} // namespace terrain
