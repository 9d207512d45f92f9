// What the format allows.
#include "sandbox.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using terrain::Grid;

Grid read(const std::string &text) {
    const terraintest::Sandbox sandbox;
    sandbox.write("grid.asc", text);
    return terraintest::readGrid(sandbox.path("grid.asc"));
}

void expectTwoByThree(const Grid &grid) {
    ASSERT_EQ(grid.rows, 2u);
    ASSERT_EQ(grid.columns, 3u);
    EXPECT_EQ(grid.elevation, (std::vector<double>{1, 2, 3, 4, 5, 6}));
}

TEST(GridReader, ReadsKeysInAnyOrderAndCase) {
    const Grid grid = read(
        "CELLSIZE 10\nNODATA_VALUE -9\n\nyllcorner 200\nnRows 2\nXllCorner 100\nncols 3\n1 2 3\n4 5 6\n");
    expectTwoByThree(grid);
    EXPECT_EQ(grid.cellSize, 10);
    EXPECT_EQ(grid.west, 100);
    EXPECT_EQ(grid.south, 200);
    EXPECT_EQ(grid.centre(0), 215);
    EXPECT_EQ(grid.centre(1), 205);
}

TEST(GridReader, TakesTheCentreOfTheCornerCell) {
    const Grid grid = read("ncols 3\nnrows 2\nxllcenter 105\nyllcenter 205\ncellsize 10\n1 2 3\n4 5 6\n");
    EXPECT_EQ(grid.west, 100);
    EXPECT_EQ(grid.south, 200);
}

TEST(GridReader, TakesAnyWhiteSpaceAndNumberForm) {
    expectTwoByThree(read("ncols\t3\r\nnrows   2\r\n xllcorner 0\r\nyllcorner 0\r\ncellsize 10\r\n"
                          "\t1.0  +2 \t 30e-1 \r\n4. 5E0 0.6e+1\r\n\r\n \n"));
}

TEST(GridReader, NeedsNoEndOfTheLastLine) {
    expectTwoByThree(read("ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 10\n1 2 3\n4 5 6"));
}

TEST(GridReader, MarksCellsWithoutData) {
    const std::string sizes = "ncols 2\nnrows 1\nxllcorner 0\nyllcorner 0\ncellsize 10\n";
    for (const std::string &text : {sizes + "NODATA_value -32768\n-32768.0 7\n", sizes + "-9999 7\n",
                                    sizes + "NODATA_value nan\nnan 7\n"}) {
        const Grid grid = read(text);
        EXPECT_TRUE(std::isnan(grid.at(0, 0))) << text;
        EXPECT_FALSE(grid.hasData(0, 0)) << text;
        EXPECT_EQ(grid.at(0, 1), 7) << text;
    }
}

TEST(GridReader, ReadsTheBundledGrid) {
    const Grid grid = terraintest::readGrid(TERRAIN_GRID);
    EXPECT_EQ(grid.rows, 344u);
    EXPECT_EQ(grid.columns, 403u);
    EXPECT_EQ(grid.at(0, 0), 483);
    EXPECT_EQ(grid.at(343, 402), 272);
}

} // namespace
