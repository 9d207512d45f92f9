// The fit on the real grid against a solution by another way in extended precision: Householder QR of each
// cell's own weighted equations, one per neighbour, without forming the normal equations.
#include "sandbox.h"

#include "cholesky_solver.h"
#include "lu_solver.h"
#include "neighbourhood.h"
#include "qr_solver.h"
#include "survey.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace terrain;
using Real = long double;
using Solution = std::array<Real, order>;

const Grid &realGrid() {
    static const Grid grid = terraintest::readGrid(TERRAIN_GRID);
    return grid;
}

struct Equations {
    std::array<std::array<Real, order + 1>, neighbours> rows{}; // the terms, then the height
    std::size_t count = 0;
    Real completeWeight = 0; // of all 25 neighbours, whether they are there or not
};

// The weights are computed anew here, as 1 / (1 + distance in mean cells); their scale changes no solution.
Equations equationsOf(const Grid &grid, std::size_t row, std::size_t column, const CellSize &size) {
    Equations equations;
    const Real meanCell = std::sqrt(Real{size.eastWest} * size.northSouth);
    for (int north = -2; north <= 2; ++north) {
        for (int east = -2; east <= 2; ++east) {
            const Real x = east;
            const Real y = north;
            const Real distance = std::hypot(x * size.eastWest, y * size.northSouth) / meanCell;
            const Real weight = 1 / (1 + distance);
            equations.completeWeight += weight;
            const auto r = static_cast<long>(row) - north;
            const auto c = static_cast<long>(column) + east;
            if (r < 0 || c < 0 || r >= static_cast<long>(grid.rows) || c >= static_cast<long>(grid.columns) ||
                !grid.hasData(static_cast<std::size_t>(r), static_cast<std::size_t>(c))) {
                continue;
            }
            const Real root = std::sqrt(weight);
            const Real height = Real{grid.at(static_cast<std::size_t>(r), static_cast<std::size_t>(c))} -
                                grid.at(row, column);
            equations.rows[equations.count++] = {root * x * x, root * x * y, root * y * y, root * x,
                                                 root * y,     root,         root * height};
        }
    }
    return equations;
}

Solution leastSquares(Equations equations) {
    auto &a = equations.rows;
    const std::size_t count = equations.count;
    for (std::size_t k = 0; k < order; ++k) {
        Real norm2 = 0;
        for (std::size_t i = k; i < count; ++i) {
            norm2 += a[i][k] * a[i][k];
        }
        const Real alpha = a[k][k] > 0 ? -std::sqrt(norm2) : std::sqrt(norm2);
        std::array<Real, neighbours> v{};
        for (std::size_t i = k; i < count; ++i) {
            v[i] = a[i][k];
        }
        v[k] -= alpha;
        Real length2 = 0;
        for (std::size_t i = k; i < count; ++i) {
            length2 += v[i] * v[i];
        }
        for (std::size_t j = k; j <= order; ++j) {
            Real product = 0;
            for (std::size_t i = k; i < count; ++i) {
                product += v[i] * a[i][j];
            }
            for (std::size_t i = k; i < count; ++i) {
                a[i][j] -= 2 * product / length2 * v[i];
            }
        }
    }
    Solution x{};
    for (std::size_t k = order; k-- > 0;) {
        Real sum = a[k][order];
        for (std::size_t j = k + 1; j < order; ++j) {
            sum -= a[k][j] * x[j];
        }
        x[k] = sum / a[k][k];
    }
    return x;
}

// Of every cell of the real grid, row by row: all tests compare with them.
const std::vector<Solution> &expectedSolutions() {
    static const std::vector<Solution> solutions = [] {
        const Grid &grid = realGrid();
        std::vector<Solution> all;
        for (std::size_t row = 0; row < grid.rows; ++row) {
            const CellSize size = cellSizeAt(grid, row, CellUnit::Degrees);
            for (std::size_t column = 0; column < grid.columns; ++column) {
                all.push_back(leastSquares(equationsOf(grid, row, column, size)));
            }
        }
        return all;
    }();
    return solutions;
}

// Adds up the residual of a fit. Rows of cells differ in their distances; each complete neighbourhood counts
// the same.
struct Residual {
    Real squares = 0;
    Real weights = 0;

    void add(const Equations &equations, const Solution &x) {
        for (std::size_t n = 0; n < equations.count; ++n) {
            const auto &row = equations.rows[n];
            Real difference = row[order];
            for (std::size_t i = 0; i < order; ++i) {
                difference -= row[i] * x[i];
            }
            squares += difference * difference / equations.completeWeight;
            weights += row[order - 1] * row[order - 1] / equations.completeWeight; // the root of the weight
        }
    }
    Real rootMeanSquare() const { return std::sqrt(squares / weights); }
};

struct Difference {
    std::size_t systems = 0;
    std::size_t singular = 0;
    Real largest = 0; // metres, of any coefficient in cell units
};

template <class T>
Difference compare(double (*solve)(Systems<T> &), std::size_t rows) {
    const Grid &grid = realGrid();
    Difference difference;
    Systems<T> systems;
    systems.rows = rows;
    std::vector<std::uint32_t> columns;
    for (std::size_t row = 0; row < grid.rows; ++row) {
        const CellSize size = cellSizeAt(grid, row, CellUnit::Degrees);
        assembleRow(grid, row, distanceWeights(size, 1), systems, columns);
        solve(systems);
        for (std::size_t k = 0; k < systems.count(); ++k) {
            ++difference.systems;
            difference.singular += systems.isSingular[k];
            const Solution &expected = expectedSolutions()[row * grid.columns + columns[k]];
            for (std::size_t i = 0; i < order; ++i) {
                const Real error = std::fabs(systems.solution[k * order + i] - expected[i]);
                // Written so that a NaN is kept.
                difference.largest = error <= difference.largest ? difference.largest : error;
            }
        }
    }
    return difference;
}

// The neighbours of a cell lie up to 145 m above or below it. The bound is 64 units of rounding of such a
// height: 2.1e-12 m in 64-bit floats and 1.1e-3 m in 32-bit ones.
template <class T>
void expectAgreement(double (*solve)(Systems<T> &), std::size_t rows) {
    const Difference difference = compare<T>(solve, rows);
    EXPECT_EQ(difference.systems, 344u * 403u);
    EXPECT_EQ(difference.singular, 0u);
    EXPECT_LE(difference.largest, 64 * 145 * Real{std::numeric_limits<T>::epsilon()});
    std::printf("largest difference of a coefficient: %.3Lg m\n", difference.largest);
}

TEST(Precision, LuIn64BitFloats) {
    expectAgreement(&solveByLu<double>, order);
}

TEST(Precision, LuIn32BitFloats) {
    expectAgreement(&solveByLu<float>, order);
}

TEST(Precision, CholeskyIn64BitFloats) {
    expectAgreement(&solveByCholesky<double>, order);
}

TEST(Precision, CholeskyIn32BitFloats) {
    expectAgreement(&solveByCholesky<float>, order);
}

TEST(Precision, QrIn64BitFloats) {
    expectAgreement(&solveByQr<double>, neighbours);
}

TEST(Precision, QrIn32BitFloats) {
    expectAgreement(&solveByQr<float>, neighbours);
}

TEST(Precision, ResidualOfTheRealGrid) {
    const Grid &grid = realGrid();
    Progress progress(Progress::Show::OnTerminal);
    SurfaceWriter noSurfaces(nullptr);
    const Survey survey = surveyGrid(grid, {.unit = CellUnit::Degrees}, noSurfaces, progress);
    Residual expected;
    for (std::size_t row = 0; row < grid.rows; ++row) {
        const CellSize size = cellSizeAt(grid, row, CellUnit::Degrees);
        for (std::size_t column = 0; column < grid.columns; ++column) {
            expected.add(equationsOf(grid, row, column, size),
                         expectedSolutions()[row * grid.columns + column]);
        }
    }
    EXPECT_NEAR(survey.residual, static_cast<double>(expected.rootMeanSquare()), 1e-10);
}

TEST(Precision, MethodsAgreeOnTheResidual) {
    const Grid &grid = realGrid();
    Progress progress(Progress::Show::OnTerminal);
    SurfaceWriter noSurfaces(nullptr);
    const auto surveyBy = [&](Method method) {
        return surveyGrid(grid, {.unit = CellUnit::Degrees, .method = method}, noSurfaces, progress);
    };
    const Survey lu = surveyBy(Method::Lu);
    for (const Method method : {Method::Cholesky, Method::Qr}) {
        const Survey other = surveyBy(method);
        EXPECT_EQ(other.solved, lu.solved);
        EXPECT_NEAR(other.residual, lu.residual, 1e-10);
        EXPECT_GT(other.seconds, 0);
    }
}

TEST(Precision, FloatTypesAgreeOnSlopeAndCurvature) {
    const Grid &grid = realGrid();
    Progress progress(Progress::Show::OnTerminal);
    SurfaceWriter noSurfaces(nullptr);
    const Survey wide = surveyGrid(grid, {.unit = CellUnit::Degrees}, noSurfaces, progress);
    const Survey narrow =
        surveyGrid(grid, {.unit = CellUnit::Degrees, .use32bit = true}, noSurfaces, progress);
    EXPECT_EQ(wide.solved, narrow.solved);
    EXPECT_NEAR(wide.residual, narrow.residual, 1e-6);
    double slope = 0;
    double curvature = 0;
    for (std::size_t cell = 0; cell < grid.elevation.size(); ++cell) {
        slope = std::max(slope, std::fabs(slopeDegrees(wide.layers.east[cell], wide.layers.north[cell]) -
                                          slopeDegrees(narrow.layers.east[cell], narrow.layers.north[cell])));
        curvature = std::max(curvature,
                             std::fabs(double{wide.layers.curvature[cell]} - narrow.layers.curvature[cell]));
    }
    // The coefficients' bound of 1.1e-3 m over cells of 74 m, and twice that over their square.
    EXPECT_LE(slope, 1e-3);
    EXPECT_LE(curvature, 4e-7);
    std::printf("largest differences: %.3g degrees of slope, %.3g per m of curvature\n", slope, curvature);
}

} // namespace
