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
    EXPECT_EQ(grid.cellWidth, 10);
    EXPECT_EQ(grid.cellHeight, 10);
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

TEST(GridReader, TakesWidthAndHeightOfCells) {
    for (const char *size : {"dx 10\ndy 20\n", "dy 20\nDX 10\n", "dx 10 dy 20\n", "cellsize 10 20\n"}) {
        const Grid grid =
            read("ncols 3\nnrows 2\nxllcenter 105\nyllcenter 205\n" + std::string(size) + "1 2 3\n4 5 6\n");
        expectTwoByThree(grid);
        EXPECT_EQ(grid.cellWidth, 10) << size;
        EXPECT_EQ(grid.cellHeight, 20) << size;
        EXPECT_EQ(grid.west, 100) << size;
        EXPECT_EQ(grid.south, 195) << size;
        EXPECT_EQ(grid.centre(0), 225) << size;
    }
}

TEST(GridReader, TakesSeveralKeysOnALine) {
    const Grid grid =
        read("ncols 3 nrows 2\nxllcorner 100 yllcorner 200 cellsize 10 NODATA_value 6\n1 2 3\n4 5 6\n");
    EXPECT_EQ(grid.columns, 3u);
    EXPECT_EQ(grid.south, 200);
    EXPECT_EQ(grid.at(1, 1), 5);
    EXPECT_FALSE(grid.hasData(1, 2));
    EXPECT_EQ(read("cellsize 10 ncols 1 nrows 1 xllcorner 0 yllcorner 0\n7").cellHeight, 10);
}

TEST(GridReader, PassesOverAByteOrderMark) {
    expectTwoByThree(
        read("\xef\xbb\xbfncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 10\n1 2 3\n4 5 6\n"));
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
                                    sizes + "NODATA_value nan\nnan 7\n",
                                    sizes + "NODATA_value -3.4028234663852886e+38\n-3.402823e+38 7\n",
                                    sizes + "NODATA_value 1.7e308\n1.7e308 7\n"}) {
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
