// The size of cells in degrees against published lengths of a degree on WGS 84.
#include "ground.h"

#include <gtest/gtest.h>

namespace {

using namespace terrain;

// One narrow row whose centre lies at a latitude.
Grid rowAt(double latitude, double cellSize) {
    return {.rows = 1,
            .columns = 1,
            .west = 0,
            .south = latitude - cellSize / 2,
            .cellWidth = cellSize,
            .cellHeight = cellSize};
}

TEST(Ground, DegreesHaveTheirPublishedLengths) {
    struct Degree {
        double latitude, northSouth, eastWest; // metres
    };
    for (const Degree &degree : {Degree{0, 110574, 111320},
                                 {15, 110649, 107550},
                                 {30, 110852, 96486},
                                 {45, 111132, 78847},
                                 {60, 111412, 55800},
                                 {75, 111618, 28902}}) {
        for (const double sign : {1.0, -1.0}) {
            const CellSize size = cellSizeAt(rowAt(sign * degree.latitude, 0.001), 0, CellUnit::Degrees);
            EXPECT_NEAR(size.northSouth * 1000, degree.northSouth, 1) << degree.latitude;
            EXPECT_NEAR(size.eastWest * 1000, degree.eastWest, 1) << degree.latitude;
        }
    }
}

TEST(Ground, RowsGetNarrowerTowardsThePole) {
    const Grid grid = {.rows = 3, .columns = 1, .west = 0, .south = 60, .cellWidth = 0.1, .cellHeight = 0.1};
    EXPECT_LT(cellSizeAt(grid, 0, CellUnit::Degrees).eastWest,
              cellSizeAt(grid, 2, CellUnit::Degrees).eastWest);
}

TEST(Ground, PoleHasSomeWidth) {
    EXPECT_GT(cellSizeAt(rowAt(90, 0.1), 0, CellUnit::Degrees).eastWest, 1);
}

TEST(Ground, MetresStayMetres) {
    const CellSize size = cellSizeAt(rowAt(45, 25), 0, CellUnit::Metres);
    EXPECT_EQ(size.eastWest, 25);
    EXPECT_EQ(size.northSouth, 25);
}

TEST(Ground, GuessesTheUnit) {
    EXPECT_EQ(guessUnit(rowAt(36, 1.0 / 1200)), CellUnit::Degrees);
    EXPECT_EQ(guessUnit(rowAt(36, 30)), CellUnit::Metres);
    EXPECT_EQ(guessUnit(rowAt(5000000, 0.05)), CellUnit::Metres);
    // The whole world, its first row centred on the pole.
    const Grid world = {
        .rows = 1801, .columns = 3600, .west = -180.05, .south = -90.05, .cellWidth = 0.1, .cellHeight = 0.1};
    EXPECT_EQ(guessUnit(world), CellUnit::Degrees);
}

} // namespace
