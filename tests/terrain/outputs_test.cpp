// The files and the report.
#include "png_writer.h"
#include "sandbox.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <zelm.h>

namespace {

using terraintest::Sandbox;
using Names = std::vector<std::string>;
using terrain::canWritePng;

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

TEST(Outputs, RealGridGivesReport) {
    const Sandbox sandbox;
    const auto outcome = sandbox.run({TERRAIN_GRID});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.errors, "");
    const Report report(outcome.output);
    Names labels = {"grid", "cell",  "systems",   "singular", "residual",
                    "rate", "slope", "curvature", "memory"};
    if (canWritePng) {
        labels.push_back("written");
    }
    EXPECT_EQ(report.labels, labels);
    EXPECT_EQ(report.line("grid"), "344 rows of 403 cells, 0 without data");
    EXPECT_EQ(report.line("cell").find("0.000833333333 degrees, 74.6 m west-east by 92.5 m north-south"), 0u)
        << outcome.output;
    EXPECT_EQ(report.line("systems"), "138632 of 6x6 solved by LU in 64-bit float");
    EXPECT_EQ(report.line("singular"), "0 left out");
    EXPECT_GT(report.number("residual"), 0);
    EXPECT_EQ(report.line("curvature").find("mean, full colour at "), 0u) << outcome.output;
    EXPECT_EQ(report.line("written"), canWritePng ? "relief.png, curvature.png: 403 x 384 pixels" : "");
    EXPECT_EQ(sandbox.files(), canWritePng ? (Names{"curvature.png", "relief.png"}) : Names{});

    // The rate is the systems by the seconds, which are given to four places.
    const std::string behind = " systems per second (";
    const std::string rate = report.line("rate");
    const auto place = rate.find(behind);
    ASSERT_NE(place, std::string::npos) << outcome.output;
    const double seconds = std::strtod(rate.c_str() + place + behind.size(), nullptr);
    EXPECT_GT(seconds, 0);
    EXPECT_NEAR(138632 / report.number("rate"), seconds, 1e-4);
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

TEST(Outputs, SurfacesAreTheFittedOnes) {
    const Sandbox sandbox;
    // A quadratic surface, which the fit gives back: in cells and from each cell's height.
    sandbox.write("bowl.asc", terraintest::gridText(7, 6, 2, [](double x, double y) {
                      return x == 1 && y == 1 ? std::nan("") : x * x + y * y - x * y;
                  }));
    const auto outcome = sandbox.run({"--surfaces", "bowl.csv", "bowl.asc"});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    std::istringstream lines(sandbox.read("bowl.csv"));
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "row,column,a,b,c,d,e,f");
    int count = 0;
    while (std::getline(lines, line)) {
        std::replace(line.begin(), line.end(), ',', ' ');
        std::istringstream words(line);
        double row, column, a, b, c, d, e, f;
        ASSERT_TRUE(words >> row >> column >> a >> b >> c >> d >> e >> f) << line;
        const double x = 2 * column - 1;
        const double y = 2 * (7 - row) + 1;
        EXPECT_NEAR(a, 4, 1e-9) << line;
        EXPECT_NEAR(b, -4, 1e-9) << line;
        EXPECT_NEAR(c, 4, 1e-9) << line;
        EXPECT_NEAR(d, 2 * (2 * x - y), 1e-9) << line;
        EXPECT_NEAR(e, 2 * (2 * y - x), 1e-9) << line;
        EXPECT_NEAR(f, 0, 1e-9) << line;
        ++count;
    }
    EXPECT_EQ(count, 7 * 6 - 1);
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
    EXPECT_EQ(outcome.errors.find("drawing the relief 100 %\n") != std::string::npos, canWritePng);
    const int jobs = canWritePng ? 4 : 2;
    EXPECT_LE(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 10 * jobs);
}

// A job that takes a moment tells how far it is, and wipes the line when it is done.
TEST(Outputs, ProgressIsShownOnATerminal) {
    const Sandbox sandbox;
    sandbox.write("waves.asc", terraintest::gridText(1000, 1000, 10, [](double x, double y) {
                      return std::floor(100 * std::sin(x / 300) + 80 * std::cos(y / 500));
                  }));
    const auto outcome = sandbox.runOnTerminal({"--method", "qr", "waves.asc"});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_NE(outcome.errors.find("\r\033[Kfitting 90 %"), std::string::npos) << outcome.errors;
    const std::string wiped = "\r\033[K";
    ASSERT_GE(outcome.errors.size(), wiped.size());
    EXPECT_EQ(outcome.errors.substr(outcome.errors.size() - wiped.size()), wiped);
    EXPECT_NE(outcome.output.find("systems    1000000 of"), std::string::npos) << outcome.output;
}

// The program's own account of its memory is what the system sees, but for the program itself.
TEST(Outputs, MemoryIsWhatIsStated) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer's own memory is seen with the program's";
#endif
    const Sandbox sandbox;
    const auto peak = [&](std::size_t rows, std::size_t columns, double &stated) {
        sandbox.write("waves.asc", terraintest::gridText(rows, columns, 10, [](double x, double y) {
                          return std::floor(100 * std::sin(x / 300) + 80 * std::cos(y / 500));
                      }));
        const auto outcome = sandbox.run({"--method", "qr", "--slope-grid", "slope.asc", "waves.asc"});
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        stated = Report(outcome.output).number("memory");
        return outcome.peakMebibytes;
    };
    double none = 0;
    double stated = 0;
    const double program = peak(6, 6, none);
    EXPECT_LT(none, 1);
    constexpr double slack = 1; // lines, buffers of files, what the allocator keeps
    for (const std::size_t columns : {2000u, 500u}) {
        const double measured = peak(400000 / columns, columns, stated) - program;
        EXPECT_LE(measured, stated + slack) << columns;
        EXPECT_GE(measured, 0.7 * stated) << columns;
    }
    EXPECT_NEAR(stated, 24 * 4e5 / (1 << 20), 0.4); // 24 bytes per cell where rows are short
}

TEST(Outputs, PlaceThatCannotBeWrittenLeavesNothing) {
    const Sandbox sandbox;
    const auto outcome = sandbox.run({"--slope-grid", "none/slope.asc", TERRAIN_GRID});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "terrain: none/slope.asc: expected a place where a file can be written: "
                              "No such file or directory\n");
    EXPECT_EQ(sandbox.files(), Names{});
}

// A table, a grid and a picture, which are written in different ways.
TEST(Outputs, FullDiskIsNoticedAndEarlierOutputsStay) {
    std::vector<const char *> options = {"--surfaces", "--slope-grid"};
    if (canWritePng) {
        options.push_back("--curvature");
    }
    for (const char *option : options) {
        const Sandbox sandbox;
        sandbox.write("aspect.asc", "of an earlier run");
        const auto outcome = sandbox.run({"--aspect-grid", "aspect.asc", option, "/dev/full", TERRAIN_GRID});
        EXPECT_EQ(outcome.status, 1) << option;
        EXPECT_EQ(outcome.output, "") << option;
        EXPECT_EQ(outcome.errors.find("terrain: /dev/full: expected "), 0u) << outcome.errors;
        EXPECT_TRUE(sandbox.read("aspect.asc") == "of an earlier run") << option;
        EXPECT_EQ(sandbox.files(), Names{"aspect.asc"}) << option;
    }
}

TEST(Outputs, DevicesAreNotReplaced) {
    const Sandbox sandbox;
    const auto outcome =
        sandbox.run({"--slope-grid", "/dev/null", "--aspect-grid", "/dev/null", TERRAIN_GRID});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    EXPECT_EQ(sandbox.files(), canWritePng ? (Names{"curvature.png", "relief.png"}) : Names{});
}

TEST(Outputs, PicturesNeedLibpng) {
    if (canWritePng) {
        GTEST_SKIP() << "this program can write them";
    }
    const Sandbox sandbox;
    for (const char *option : {"--relief", "--curvature"}) {
        const auto outcome = sandbox.run({option, "picture.png", TERRAIN_GRID});
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors,
                  "terrain: " + std::string(option) +
                      ": expected a program with pictures, this one was built without libpng\n");
        EXPECT_EQ(sandbox.files(), Names{});
    }
}

TEST(Outputs, HelpAndVersion) {
    const Sandbox sandbox;
    const auto help = sandbox.run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.output.find("usage: terrain"), 0u);
    EXPECT_EQ(help.output.find("built without libpng") == std::string::npos, canWritePng);
    const auto version = sandbox.run({"--version"});
    EXPECT_EQ(version.status, 0);
    const ZelmLibVersion &library = *zelmGetLibVersion();
    EXPECT_NE(version.output.find(std::string(library.fileName) + " " + library.versionText),
              std::string::npos)
        << version.output;
    EXPECT_EQ(sandbox.files(), Names{});
}

} // namespace
