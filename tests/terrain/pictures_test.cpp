// What the pictures show.
#include "sandbox.h"

#include <algorithm>
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

TEST(Pictures, RealGridHasAPixelPerCellAndALegend) {
    const Sandbox sandbox;
    const auto outcome = sandbox.run({TERRAIN_GRID});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    for (const char *name : {"relief.png", "curvature.png"}) {
        const Picture picture = decode(sandbox.path(name));
        EXPECT_EQ(picture.width, 403u) << name;
        EXPECT_EQ(picture.height, 344u + 40) << name;
        EXPECT_GT(std::set<png_byte>(picture.pixels.begin(), picture.pixels.end()).size(), 100u) << name;
    }
    ASSERT_EQ(sandbox.run({"--no-legend", "--relief", "bare.png", TERRAIN_GRID}).status, 0);
    const Picture whole = decode(sandbox.path("relief.png"));
    const Picture bare = decode(sandbox.path("bare.png"));
    EXPECT_EQ(bare.height, 344u);
    ASSERT_EQ(bare.pixels.size(), 3u * 403 * 344);
    EXPECT_TRUE(std::equal(bare.pixels.begin(), bare.pixels.end(), whole.pixels.begin()));
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
    ASSERT_EQ(relief.height, 11u + 40);
    ASSERT_EQ(curvature.height, 11u + 40);
    EXPECT_GT(brightness(relief, 15, 5), brightness(relief, 25, 5) + 100);
    EXPECT_GT(redMinusBlue(curvature, 20, 5), 50);
    EXPECT_LT(redMinusBlue(curvature, 10, 5), -30);
    EXPECT_LT(redMinusBlue(curvature, 30, 5), -30);
}

// The ground rises to the east and passes 0 between the columns 19 and 20: blue sea, a dark coast, land.
TEST(Pictures, DepthsHaveACoast) {
    const Sandbox sandbox;
    sandbox.write("shore.asc",
                  terraintest::gridText(9, 40, 10, [](double x, double) { return (x - 200) / 2; }));
    ASSERT_EQ(sandbox.run({"shore.asc"}).status, 0);
    const Picture relief = decode(sandbox.path("relief.png"));
    for (unsigned x = 0; x < 40; ++x) {
        EXPECT_EQ(redMinusBlue(relief, x, 4) < 0, x < 20) << x;
    }
    EXPECT_GT(brightness(relief, 19, 4), brightness(relief, 20, 4) + 150);
    EXPECT_GT(brightness(relief, 21, 4), brightness(relief, 20, 4) + 150);

    ASSERT_EQ(sandbox.run({"--sea-level", "-50", "shore.asc"}).status, 0);
    const Picture lower = decode(sandbox.path("relief.png"));
    ASSERT_EQ(sandbox.run({"--sea-level", "none", "shore.asc"}).status, 0);
    const Picture land = decode(sandbox.path("relief.png"));
    for (unsigned x = 0; x < 40; ++x) {
        EXPECT_EQ(redMinusBlue(lower, x, 4) < 0, x < 10) << x;
        EXPECT_GT(redMinusBlue(land, x, 4), -5) << x;
    }
}

// The longest dark line of the legend is the scale bar.
unsigned scaleLength(const Picture &picture, unsigned mapRows) {
    unsigned longest = 0;
    for (unsigned y = mapRows; y < picture.height; ++y) {
        unsigned run = 0;
        for (unsigned x = picture.width / 2; x < picture.width; ++x) {
            run = brightness(picture, x, y) < 200 ? run + 1 : 0;
            longest = std::max(longest, run);
        }
    }
    return longest;
}

TEST(Pictures, ScaleBarIsARoundDistance) {
    const Sandbox sandbox;
    const auto length = [&](double cellSize) {
        sandbox.write("plane.asc",
                      terraintest::gridText(8, 8, cellSize, [](double x, double y) { return x + y; }));
        EXPECT_EQ(sandbox.run({"--projected", "plane.asc"}).status, 0);
        return scaleLength(decode(sandbox.path("relief.png")), 8);
    };
    EXPECT_EQ(length(1), 100u);    // 100 m
    EXPECT_EQ(length(25), 80u);    // 2 km
    EXPECT_EQ(length(30), 67u);    // 2 km
    EXPECT_EQ(length(0.05), 100u); // 5 m
    EXPECT_EQ(length(9000), 56u);  // 500 km
}

} // namespace
