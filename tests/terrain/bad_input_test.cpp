// Every wrong input gets one line that names the file, the line in it and what was expected, exit status 2,
// and leaves no file behind.
#include "sandbox.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using terraintest::Sandbox;
using Names = std::vector<std::string>;

struct Case {
    const char *name;
    std::string text;
    std::string message; // behind "terrain: bad.asc:"
};

const std::string header = "ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 10\nNODATA_value -9\n";

std::string withSizes(const std::string &columns, const std::string &rows) {
    return "ncols " + columns + "\nnrows " + rows + "\nxllcorner 0\nyllcorner 0\ncellsize 10\n1 2 3\n4 5 6\n";
}

const std::string twoRows = "1 2 3\n4 5 6\n";
const std::string keys = "expected ncols, nrows, xllcorner or xllcenter, yllcorner or yllcenter, cellsize or "
                         "dx and dy, NODATA_value or a row of numbers, found ";

// A message that ends in "..." is compared up to there.
const Case cases[] = {
    {"Empty", "", "1: expected the header of an Esri ASCII grid, the file is empty"},
    {"HeaderOnly", header, "7: expected 2 rows of values, the file ends behind 0"},
    {"TruncatedBetweenRows", header + "1 2 3\n", "8: expected 2 rows of values, the file ends behind 1"},
    {"TruncatedInRow", header + "1 2 3\n4 5", "8: expected 3 values in row 2, found 2"},
    {"RowTooShort", header + "1 2\n4 5 6\n", "7: expected 3 values in row 1, found 2"},
    {"RowTooLong", header + "1 2 3\n4 5 6 7\n", "8: expected 3 values in row 2, found 4"},
    {"ValuesNotInRows", header + "1 2 3 4 5 6\n", "7: expected 3 values in row 1, found 6"},
    {"BlankRow", header + "1 2 3\n\n4 5 6\n", "8: expected 3 values in row 2, found 0"},
    {"OneRowMore", header + twoRows + "7 8 9\n", "9: expected the end of the file behind 2 rows of values"},
    {"Word", header + "1 2 3\n4 x 6\n",
     "8: expected a number from -1e9 to 1e9 or NODATA_value as value 2 of row 2, found 'x'"},
    {"NumberWithUnit", header + "1 2m 3\n4 5 6\n",
     "7: expected a number from -1e9 to 1e9 or NODATA_value as value 2 of row 1, found '2m'"},
    {"DecimalComma", header + "1 2 3\n4,5 5 6\n",
     "8: expected a number from -1e9 to 1e9 or NODATA_value as value 1 of row 2, found '4,5'"},
    {"Nan", header + "1 nan 3\n4 5 6\n",
     "7: expected a number from -1e9 to 1e9 or NODATA_value as value 2 of row 1, found 'nan'"},
    {"Infinity", header + "1 2 3\n4 5 inf\n",
     "8: expected a number from -1e9 to 1e9 or NODATA_value as value 3 of row 2, found 'inf'"},
    {"OutOfRange", header + "1 2 1e999\n4 5 6\n",
     "7: expected a number from -1e9 to 1e9 or NODATA_value as value 3 of row 1, found '1e999'"},
    {"ControlLetters", header + "1 \033[2J 3\n4 5 6\n",
     "7: expected a number from -1e9 to 1e9 or NODATA_value as value 2 of row 1, found '?[2J'"},
    {"OtherFile", "\x89PNG\r\n\x1a\n", "1: " + keys + "'?PNG'"},
    {"UnknownKey", "ncols 3\nnrows 2\nwidth 10\n", "3: " + keys + "'width'"},
    {"NoColumns", "nrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n" + twoRows,
     "5: expected ncols in the header before this line"},
    {"NoRows", "ncols 3\nxllcorner 0\nyllcorner 0\ncellsize 1\n" + twoRows,
     "5: expected nrows in the header before this line"},
    {"NoWest", "ncols 3\nnrows 2\nyllcorner 0\ncellsize 1\n" + twoRows,
     "5: expected xllcorner or xllcenter in the header before this line"},
    {"NoSouth", "ncols 3\nnrows 2\nxllcorner 0\ncellsize 1\n" + twoRows,
     "5: expected yllcorner or yllcenter in the header before this line"},
    {"NoCellSize", "ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\n" + twoRows,
     "5: expected cellsize in the header before this line"},
    {"KeyTwice", "ncols 3\nnrows 2\nNCOLS 3\n", "3: expected ncols once, it stands in line 1 already"},
    {"CornerAndCentre", "xllcorner 0\nxllcenter 5\n",
     "2: expected xllcenter once, it stands in line 1 already"},
    {"KeyWithoutValue", "ncols 3\nnrows\n", "2: expected a positive whole number behind nrows, found ''"},
    {"KeyWithTwoValues", "ncols 3 2\n", "1: expected a key behind ncols and its value, found '2'"},
    {"CellSizeWithThreeValues", "cellsize 1 2 3\n",
     "1: expected a key behind cellsize and its value, found '3'"},
    {"SecondKeyWithoutValue", "ncols 3 nrows\n",
     "1: expected a positive whole number behind nrows, found ''"},
    {"SecondKeyUnknown", "ncols 3 width 3\n", "1: " + keys + "'width'"},
    {"HeightWithoutWidth", "ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ndy 1\n" + twoRows,
     "6: expected dx in the header before this line"},
    {"WidthWithoutHeight", "ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ndx 1\n" + twoRows,
     "6: expected dy in the header before this line"},
    {"WidthBesideCellSize", "cellsize 1\ndx 1\n", "2: expected dx once, it stands in line 1 already"},
    {"CellSizeBesideHeight", "dy 1\ncellsize 1\n", "2: expected cellsize once, it stands in line 1 already"},
    {"NegativeWidth", "dx -1\n", "1: expected a positive number from 1e-9 to 1e9 behind dx, found '-1'"},
    {"NegativeHeight", "cellsize 1 -1\n",
     "1: expected a positive number from 1e-9 to 1e9 behind cellsize, found '-1'"},
    {"Utf16", std::string("\xff\xfen\0c\0", 6), "1: expected a text in ASCII or UTF-8, found UTF-16"},
    {"ByteOrderMarkOnly", "\xef\xbb\xbf", "2: expected ncols in the header before this line"},
    {"ForgottenNoData", header + "1 2 -3.4e38\n4 5 6\n",
     "7: expected a number from -1e9 to 1e9 or NODATA_value as value 3 of row 1, found '-3.4e38'"},
    {"NearlyNoData", header + "1 2 -9e9\n4 5 6\n",
     "7: expected a number from -1e9 to 1e9 or NODATA_value as value 3 of row 1, found '-9e9'"},
    {"NothingSolvable", header + twoRows,
     " expected a cell with enough neighbours to fit a surface; none of the 6 cells with data has six within "
     "two "
     "cells that do not lie on one line or conic section"},
    {"OneCell", "ncols 1\nnrows 1\nxllcorner 0\nyllcorner 0\ncellsize 1\n7\n",
     " expected a cell with enough neighbours ..."},
    {"NegativeColumns", withSizes("-3", "2"), "1: expected a positive whole number behind ncols, found '-3'"},
    {"NegativeRows", withSizes("3", "-2"), "2: expected a positive whole number behind nrows, found '-2'"},
    {"ZeroRows", withSizes("3", "0"), "2: expected a positive whole number behind nrows, found '0'"},
    {"HalfAColumn", withSizes("2.5", "2"), "1: expected a positive whole number behind ncols, found '2.5'"},
    {"BeyondMemory", withSizes("3000000", "2000000"), "2: expected a grid that fits into ..."},
    {"RowBeyondMemory", withSizes("4000000000", "1"), "2: expected a grid that fits into ..."},
    {"SizesOverflow", withSizes("4294967296", "4294967296"), "2: expected a grid that fits into ..."},
    {"BeyondAnyType", withSizes(std::string(400, '9'), "2"), "2: expected a grid that fits into ..."},
    {"NegativeCellSize", "cellsize -10\n",
     "1: expected a positive number from 1e-9 to 1e9 behind cellsize, found '-10'"},
    {"CellSizeNotANumber", "cellsize ten\n",
     "1: expected a positive number from 1e-9 to 1e9 behind cellsize, found 'ten'"},
    {"CellSizeTooSmall", "cellsize 1.9e-300\n",
     "1: expected a positive number from 1e-9 to 1e9 behind cellsize, found '1.9e-300'"},
    {"CornerNotANumber", "xllcorner nan\n", "1: expected a number behind xllcorner, found 'nan'"},
    {"NothingButNoData", header + "-9 -9 -9\n-9 -9.0 -9\n",
     "6: expected at least one cell with data, every value is NODATA_value"},
    {"NothingButDefaultNoData",
     "ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n-9999 -9999 -9999\n-9999 -9999 -9999\n",
     "6: expected at least one cell with data, every value is NODATA_value"},
};

class BadInput : public testing::TestWithParam<Case> {};

TEST_P(BadInput, GetsOneLineAndLeavesNothing) {
    const Sandbox sandbox;
    sandbox.write("bad.asc", GetParam().text);
    const auto outcome = sandbox.run({"--slope-grid", "slope.asc", "bad.asc"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    std::string expected = "terrain: bad.asc:" + GetParam().message + "\n";
    std::string found = outcome.errors;
    if (const auto dots = expected.find("..."); dots != std::string::npos) {
        EXPECT_EQ(std::count(found.begin(), found.end(), '\n'), 1);
        expected.resize(dots);
        found.resize(std::min(found.size(), dots));
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(sandbox.files(), Names{"bad.asc"});
}

INSTANTIATE_TEST_SUITE_P(Files, BadInput, testing::ValuesIn(cases),
                         [](const auto &test) { return std::string(test.param.name); });

void expectRefused(const Sandbox &sandbox, const std::vector<std::string> &arguments,
                   const std::string &message) {
    const auto outcome = sandbox.run(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "terrain: " + message + "\n");
}

TEST(BadInput, NoFile) {
    const Sandbox sandbox;
    expectRefused(sandbox, {"none.asc"},
                  "none.asc: expected a file that can be read: No such file or directory");
    EXPECT_EQ(sandbox.files(), Names{});
}

TEST(BadInput, Directory) {
    const Sandbox sandbox;
    expectRefused(sandbox, {"."}, ".: expected an Esri ASCII grid, found a directory");
}

TEST(BadInput, FileWithoutLines) {
    const Sandbox sandbox;
    expectRefused(sandbox, {"/dev/zero"}, "/dev/zero:1: expected the line to end within 67108864 characters");
}

TEST(BadInput, LatitudesBeyondThePole) {
    const Sandbox sandbox;
    sandbox.write("metres.asc", "ncols 1\nnrows 1\nxllcorner 0\nyllcorner 5000000\ncellsize 1\n7\n");
    expectRefused(
        sandbox, {"--geographic", "metres.asc"},
        "metres.asc: expected latitudes from -90 to 90 for --geographic, a row lies at 5000000.500000");
}

TEST(BadInput, EarlierOutputsStay) {
    const Sandbox sandbox;
    sandbox.write("slope.asc", "of an earlier run");
    sandbox.write("bad.asc", header + "1 2 3\n");
    EXPECT_EQ(sandbox.run({"--slope-grid", "slope.asc", "bad.asc"}).status, 2);
    EXPECT_TRUE(sandbox.read("slope.asc") == "of an earlier run");
    EXPECT_EQ(sandbox.files(), (Names{"bad.asc", "slope.asc"}));
}

TEST(BadInput, Options) {
    const Sandbox sandbox;
    sandbox.write("good.asc", header + twoRows);
    expectRefused(sandbox, {}, "expected one grid file, found 0 (see --help)");
    expectRefused(sandbox, {"good.asc", "good.asc"}, "expected one grid file, found 2 (see --help)");
    expectRefused(sandbox, {"--colour", "good.asc"},
                  "expected an option that --help lists, found '--colour'");
    expectRefused(sandbox, {"good.asc", "--surfaces"}, "--surfaces: expected a value behind it");
    expectRefused(sandbox, {"--float", "16", "good.asc"}, "--float: expected 32 or 64, found '16'");
    expectRefused(sandbox, {"--weight-exponent", "3", "good.asc"},
                  "--weight-exponent: expected a number from 0 to 2, found '3'");
    expectRefused(sandbox, {"--exaggeration", "nan", "good.asc"},
                  "--exaggeration: expected a positive number, found 'nan'");
    expectRefused(sandbox, {"--cellsize", "-1", "good.asc"},
                  "--cellsize: expected a positive number of metres, found '-1'");
    expectRefused(sandbox, {"--curvature-kind", "gaussian", "good.asc"},
                  "--curvature-kind: expected mean, profile or tangential, found 'gaussian'");
    expectRefused(sandbox, {"--geographic", "--cellsize", "30", "good.asc"},
                  "expected one of --geographic and --cellsize, found both");
    expectRefused(sandbox, {"--slope-grid", "a.asc", "--surfaces", "a.asc", "good.asc"},
                  "expected different files, found 'a.asc' twice");
    expectRefused(sandbox, {"--slope-grid", "./good.asc", "good.asc"},
                  "expected different files, found './good.asc' twice");
    EXPECT_EQ(sandbox.files(), Names{"good.asc"});
    EXPECT_EQ(sandbox.read("good.asc"), header + twoRows);
}

} // namespace
