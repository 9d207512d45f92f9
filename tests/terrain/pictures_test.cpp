// What the pictures show.
#include "sandbox.h"

#include <cmath>
#include <gtest/gtest.h>
#include <png.h>
#include <set>

namespace {

using terraintest::Sandbox;

struct Picture {
    unsigned width = 0;
    unsigned height = 0;
    std::vector<png_byte> pixels; // red, green, blue
};

Picture decode(const std::filesystem::path &file) {
    png_image header{};
    header.version = PNG_IMAGE_VERSION;
    Picture picture;
    if (png_image_begin_read_from_file(&header, file.c_str()) == 0) {
        ADD_FAILURE() << header.message;
        return picture;
    }
    header.format = PNG_FORMAT_RGB;
    picture.pixels.resize(PNG_IMAGE_SIZE(header));
    if (png_image_finish_read(&header, nullptr, picture.pixels.data(), 0, nullptr) == 0) {
        ADD_FAILURE() << header.message;
        return picture;
    }
    picture.width = header.width;
    picture.height = header.height;
    return picture;
}

int redMinusBlue(const Picture &picture, unsigned column, unsigned row) {
    const std::size_t pixel = (std::size_t{row} * picture.width + column) * 3;
    return picture.pixels[pixel] - picture.pixels[pixel + 2];
}

int brightness(const Picture &picture, unsigned column, unsigned row) {
    const std::size_t pixel = (std::size_t{row} * picture.width + column) * 3;
    return picture.pixels[pixel] + picture.pixels[pixel + 1] + picture.pixels[pixel + 2];
}

TEST(Pictures, RealGridHasAPixelPerCell) {
    const Sandbox sandbox;
    const auto outcome = sandbox.run({TERRAIN_GRID});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    for (const char *name : {"relief.png", "curvature.png"}) {
        const Picture picture = decode(sandbox.path(name));
        EXPECT_EQ(picture.width, 403u) << name;
        EXPECT_EQ(picture.height, 344u) << name;
        EXPECT_GT(std::set<png_byte>(picture.pixels.begin(), picture.pixels.end()).size(), 100u) << name;
    }
}

// A ridge from north to south: its western side lies in the light, its crest is convex, its foot concave.
TEST(Pictures, ShowTheGround) {
    const Sandbox sandbox;
    sandbox.write("ridge.asc", terraintest::gridText(11, 41, 10, [](double x, double) {
                      return 60 * std::exp(-(x - 205) * (x - 205) / 5000);
                  }));
    ASSERT_EQ(sandbox.run({"ridge.asc"}).status, 0);
    const Picture relief = decode(sandbox.path("relief.png"));
    const Picture curvature = decode(sandbox.path("curvature.png"));
    ASSERT_EQ(relief.pixels.size(), 3u * 41 * 11);
    ASSERT_EQ(curvature.pixels.size(), 3u * 41 * 11);
    EXPECT_GT(brightness(relief, 15, 5), brightness(relief, 25, 5) + 100);
    EXPECT_GT(redMinusBlue(curvature, 20, 5), 50);
    EXPECT_LT(redMinusBlue(curvature, 10, 5), -30);
    EXPECT_LT(redMinusBlue(curvature, 30, 5), -30);
}

} // namespace
