// The files and the report.
#include "sandbox.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <png.h>
#include <set>
#include <sstream>
#include <zelm.h>

namespace {

using terraintest::Sandbox;
using Names = std::vector<std::string>;

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

// What the program prints: a label and its text per line.
struct Report {
    Names labels;
    std::vector<std::string> texts;

    explicit Report(const std::string &output) {
        std::istringstream lines(output);
        for (std::string line; std::getline(lines, line);) {
            const auto end = line.find(' ');
            const auto begin = std::min(line.find_first_not_of(' ', end), line.size());
            labels.push_back(line.substr(0, end));
            texts.push_back(line.substr(begin));
        }
    }
    std::string line(const std::string &label) const {
        const auto place = std::find(labels.begin(), labels.end(), label);
        return place == labels.end() ? "" : texts[static_cast<std::size_t>(place - labels.begin())];
    }
    double number(const std::string &label) const {
        const std::string text = line(label);
        char *end = nullptr;
        const double value = std::strtod(text.c_str(), &end);
        return end == text.c_str() ? std::nan("") : value;
    }
};

TEST(Outputs, RealGridGivesPicturesAndReport) {
    const Sandbox sandbox;
    const auto outcome = sandbox.run({TERRAIN_GRID});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(sandbox.files(), (Names{"curvature.png", "relief.png"}));
    for (const char *name : {"relief.png", "curvature.png"}) {
        const Picture picture = decode(sandbox.path(name));
        EXPECT_EQ(picture.width, 403u) << name;
        EXPECT_EQ(picture.height, 344u) << name;
        EXPECT_GT(std::set<png_byte>(picture.pixels.begin(), picture.pixels.end()).size(), 100u) << name;
    }
    const Report report(outcome.output);
    EXPECT_EQ(report.labels, (Names{"grid", "cell", "systems", "singular", "residual", "rate", "slope",
                                    "curvature", "written"}));
    EXPECT_EQ(report.line("grid"), "344 rows of 403 cells, 0 without data");
    EXPECT_EQ(report.line("cell").find("0.000833333333 degrees, 74.6 m west-east by 92.5 m north-south"), 0u)
        << outcome.output;
    EXPECT_EQ(report.line("systems"), "138632 of 6x6 solved by LU in 64-bit float");
    EXPECT_EQ(report.line("singular"), "0 left out");
    EXPECT_GT(report.number("residual"), 0);
    EXPECT_EQ(report.line("curvature").find("mean, full colour at "), 0u) << outcome.output;
    EXPECT_EQ(report.line("written"), "relief.png, curvature.png: 403 x 344 pixels");

    // The rate is the systems by the seconds, which are given to four places.
    const std::string behind = " systems per second (";
    const std::string rate = report.line("rate");
    const auto place = rate.find(behind);
    ASSERT_NE(place, std::string::npos) << outcome.output;
    const double seconds = std::strtod(rate.c_str() + place + behind.size(), nullptr);
    EXPECT_GT(seconds, 0);
    EXPECT_NEAR(138632 / report.number("rate"), seconds, 1e-4);
}

// A ridge from north to south: its western side lies in the light, its crest is convex, its foot concave.
TEST(Outputs, PicturesShowTheGround) {
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

TEST(Outputs, ResidualIsThatOfTheFit) {
    // Heights of +1 and -1 like a chessboard: no quadratic surface follows them. Equal weights, cells in the
    // middle and at the edges; the bound is the root mean square of the heights themselves.
    const Sandbox sandbox;
    sandbox.write("board.asc", terraintest::gridText(20, 20, 2, [](double x, double y) {
                      return (static_cast<int>(x / 2) + static_cast<int>(y / 2)) % 2 == 0 ? 1.0 : -1.0;
                  }));
    sandbox.write("bowl.asc",
                  terraintest::gridText(20, 20, 2, [](double x, double y) { return x * x + y * y - x * y; }));
    const auto residual = [&](const char *grid) {
        const auto outcome = sandbox.run({"--weight-exponent", "0", grid});
        return Report(outcome.output).number("residual");
    };
    EXPECT_GT(residual("board.asc"), 0.95);
    EXPECT_LE(residual("board.asc"), 1);
    EXPECT_EQ(residual("bowl.asc"), 0);
}

TEST(Outputs, CellSizeCanBeGiven) {
    const Sandbox sandbox;
    sandbox.write("plane.asc", terraintest::gridText(8, 8, 0.01, [](double x, double) { return 100 * x; }));
    const auto slope = [&](std::vector<std::string> options) {
        options.insert(options.end(), {"--slope-grid", "slope.asc", "plane.asc"});
        EXPECT_EQ(sandbox.run(options).status, 0);
        return terraintest::readGrid(sandbox.path("slope.asc")).at(4, 4);
    };
    EXPECT_NEAR(slope({"--cellsize", "1"}), 45, 1e-4);                         // 1 m over 1 m
    EXPECT_NEAR(slope({"--projected"}), std::atan(100.0) * 57.29577951, 1e-4); // 1 m over 0.01 m
    EXPECT_NEAR(slope({}), std::atan(1 / 1113.2) * 57.29577951, 1e-4);         // 1 m over 0.01 degrees
    EXPECT_NEAR(slope({"--geographic"}), slope({}), 0);
}

TEST(Outputs, ProgressIsShownWhenAsked) {
    const Sandbox sandbox;
    const auto outcome = sandbox.run({"--progress", TERRAIN_GRID});
    ASSERT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors.find("reading 10 %\nreading 20 %\n"), 0u) << outcome.errors;
    EXPECT_NE(outcome.errors.find("fitting 50 %\n"), std::string::npos) << outcome.errors;
    EXPECT_NE(outcome.errors.find("fitting 100 %\n"), std::string::npos) << outcome.errors;
    EXPECT_LE(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 20);
}

TEST(Outputs, PlaceThatCannotBeWrittenLeavesNothing) {
    const Sandbox sandbox;
    const auto outcome = sandbox.run({"--curvature", "none/curvature.png", TERRAIN_GRID});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "terrain: none/curvature.png: expected a place where a file can be written: "
                              "No such file or directory\n");
    EXPECT_EQ(sandbox.files(), Names{});
}

// A picture and a grid, which are written in different ways.
TEST(Outputs, FullDiskIsNoticedAndEarlierOutputsStay) {
    for (const char *option : {"--curvature", "--slope-grid"}) {
        const Sandbox sandbox;
        sandbox.write("relief.png", "of an earlier run");
        const auto outcome = sandbox.run({option, "/dev/full", TERRAIN_GRID});
        EXPECT_EQ(outcome.status, 1) << option;
        EXPECT_EQ(outcome.output, "") << option;
        EXPECT_EQ(outcome.errors.find("terrain: /dev/full: expected "), 0u) << outcome.errors;
        EXPECT_TRUE(sandbox.read("relief.png") == "of an earlier run") << option;
        EXPECT_EQ(sandbox.files(), Names{"relief.png"}) << option;
    }
}

TEST(Outputs, DevicesAreNotReplaced) {
    const Sandbox sandbox;
    EXPECT_EQ(sandbox.run({"--relief", "/dev/null", "--curvature", "/dev/null", TERRAIN_GRID}).status, 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    EXPECT_EQ(sandbox.files(), Names{});
}

TEST(Outputs, HelpAndVersion) {
    const Sandbox sandbox;
    const auto help = sandbox.run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.output.find("usage: terrain"), 0u);
    const auto version = sandbox.run({"--version"});
    EXPECT_EQ(version.status, 0);
    const ZelmLibVersion &library = *zelmGetLibVersion();
    EXPECT_NE(version.output.find(std::string(library.fileName) + " " + library.versionText),
              std::string::npos)
        << version.output;
    EXPECT_EQ(sandbox.files(), Names{});
}

} // namespace
