// Cells whose neighbours leave the surface undetermined are left out, and nothing else is.
#include "sandbox.h"

#include "cholesky_solver.h"
#include "lu_solver.h"
#include "neighbourhood.h"
#include "qr_solver.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using namespace terrain;

const double absent = std::numeric_limits<double>::quiet_NaN();

// The rank of the terms of the surface over the cells that are there, in whole numbers and so exact.
std::size_t rankAt(const Grid &grid, std::size_t row, std::size_t column) {
    std::vector<std::array<std::int64_t, order>> terms;
    for (int north = -2; north <= 2; ++north) {
        for (int east = -2; east <= 2; ++east) {
            const auto r = static_cast<std::size_t>(static_cast<long>(row) - north);
            const auto c = static_cast<std::size_t>(static_cast<long>(column) + east);
            if (r < grid.rows && c < grid.columns && grid.hasData(r, c)) {
                terms.push_back({east * east, east * north, north * north, east, north, 1});
            }
        }
    }
    // Elimination without fractions (Bareiss): each division leaves no remainder.
    std::size_t rank = 0;
    std::int64_t previous = 1;
    for (std::size_t k = 0; k < order && rank < terms.size(); ++k) {
        const auto start = terms.begin() + static_cast<std::ptrdiff_t>(rank);
        const auto pivot = std::find_if(start, terms.end(), [&](const auto &term) { return term[k] != 0; });
        if (pivot == terms.end()) {
            continue;
        }
        std::iter_swap(start, pivot);
        for (std::size_t i = rank + 1; i < terms.size(); ++i) {
            for (std::size_t j = k + 1; j < order; ++j) {
                terms[i][j] = (terms[rank][k] * terms[i][j] - terms[i][k] * terms[rank][j]) / previous;
            }
            terms[i][k] = 0;
        }
        previous = terms[rank][k];
        ++rank;
    }
    return rank;
}

std::string count(const char *label, std::size_t number, const char *unit) {
    return std::string(label) + std::to_string(number) + unit;
}

// Thinned out at random from nearly nothing in the west to nearly everything in the east, so that rows hold
// singular cells alone, in runs, first and last.
std::string thinnedPlane() {
    std::mt19937 random(20);
    return terraintest::gridText(60, 90, 10, [&](double x, double y) {
        const bool isThere = random() % 900 < static_cast<unsigned>(x);
        return isThere ? 500 + 0.3 * x - 0.4 * y : absent;
    });
}

struct Way {
    const char *method;
    const char *bits;
};

class SingularCells : public testing::TestWithParam<Way> {};

TEST_P(SingularCells, AreThoseThatLackNeighbours) {
    const terraintest::Sandbox sandbox;
    sandbox.write("plane.asc", thinnedPlane());
    const auto outcome = sandbox.run({"--method", GetParam().method, "--float", GetParam().bits,
                                      "--slope-grid", "slope.asc", "plane.asc"});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    const Grid plane = terraintest::readGrid(sandbox.path("plane.asc"));
    const Grid slope = terraintest::readGrid(sandbox.path("slope.asc"));
    std::size_t solved = 0;
    std::size_t singular = 0;
    double error = 0;
    for (std::size_t row = 0; row < plane.rows; ++row) {
        for (std::size_t column = 0; column < plane.columns; ++column) {
            if (!plane.hasData(row, column)) {
                ASSERT_FALSE(slope.hasData(row, column));
                continue;
            }
            const bool isSolvable = rankAt(plane, row, column) == order;
            ASSERT_EQ(slope.hasData(row, column), isSolvable) << "row " << row << ", column " << column;
            solved += isSolvable;
            singular += !isSolvable;
            if (isSolvable) {
                error = std::max(error, std::fabs(slope.at(row, column) - 26.565051177));
            }
        }
    }
    // A few neighbours make a worse system than all 25.
    EXPECT_LE(error, std::string(GetParam().bits) == "64" ? 1e-5 : 5e-3);
    std::printf("largest difference: %.3g degrees of slope\n", error);
    EXPECT_GT(solved, 1000u);
    EXPECT_GT(singular, 100u);
    const char *const shape = std::string(GetParam().method) == "qr" ? " of 25x6" : " of 6x6";
    EXPECT_NE(outcome.output.find(count("systems    ", solved, shape)), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find(count("singular   ", singular, " left out")), std::string::npos)
        << outcome.output;
}

INSTANTIATE_TEST_SUITE_P(Methods, SingularCells,
                         testing::Values(Way{"lu", "64"}, Way{"lu", "32"}, Way{"cholesky", "64"},
                                         Way{"cholesky", "32"}, Way{"qr", "64"}, Way{"qr", "32"}),
                         [](const auto &test) { return std::string(test.param.method) + test.param.bits; });

TEST(Singular, IsolatedCellsAreAnError) {
    const terraintest::Sandbox sandbox;
    sandbox.write("dots.asc", terraintest::gridText(9, 9, 10, [](double x, double y) {
                      return std::fmod(x, 30) == 15 && std::fmod(y, 30) == 15 ? 100.0 : absent;
                  }));
    for (const char *method : {"lu", "cholesky", "qr"}) {
        const auto outcome = sandbox.run({"--method", method, "dots.asc"});
        EXPECT_EQ(outcome.status, 2) << method;
        EXPECT_NE(outcome.errors.find("none of the 9 cells with data"), std::string::npos) << outcome.errors;
        EXPECT_EQ(sandbox.files(), std::vector<std::string>{"dots.asc"});
    }
}

template <class T>
struct Solver {
    double (*solve)(Systems<T> &);
    std::size_t rows; // of a system; those behind the sixth are zero
    bool permutes;    // takes matrices that are not symmetric
};

// System k is (k + 1) times a permutation matrix, so that x[i] = b[permuted i] / (k + 1); a singular one has
// a row of zeros in the place that only the last pivot meets, or in the first.
template <class T>
void expectSolvedAround(const std::vector<bool> &isSingular, const Solver<T> &solver) {
    Systems<T> systems;
    systems.rows = solver.rows;
    systems.resize(isSingular.size());
    const auto shiftOf = [&](std::size_t k) { return solver.permutes ? k % order : 0; };
    for (std::size_t k = 0; k < isSingular.size(); ++k) {
        for (std::size_t i = 0; i < order; ++i) {
            const bool isZeroRow = isSingular[k] && i == (k % 2 == 0 ? order - 1 : 0);
            systems.matrix[(k * solver.rows + i) * order + (i + shiftOf(k)) % order] =
                isZeroRow ? T{0} : static_cast<T>(k + 1);
            systems.rightSide[k * solver.rows + i] = static_cast<T>((i + 1) * (k + 1));
        }
    }
    const double seconds = solver.solve(systems);
    EXPECT_GE(seconds, 0);
    for (std::size_t k = 0; k < isSingular.size(); ++k) {
        ASSERT_EQ(systems.isSingular[k] != 0, isSingular[k]) << "system " << k << " of " << isSingular.size();
        for (std::size_t i = 0; i < order && !isSingular[k]; ++i) {
            // Roots and norms round: a few units of a solution of at most 6.
            ASSERT_NEAR(systems.solution[k * order + (i + shiftOf(k)) % order], static_cast<T>(i + 1),
                        64 * std::numeric_limits<T>::epsilon())
                << "system " << k << " of " << isSingular.size();
        }
    }
}

// All patterns of singular systems among up to seven, then long runs: every place where a stop can fall into
// the groups that the library works in.
template <class T>
void expectResuming(const Solver<T> &solver) {
    for (std::size_t size = 0; size <= 7; ++size) {
        for (unsigned pattern = 0; pattern < 1u << size; ++pattern) {
            std::vector<bool> isSingular;
            for (std::size_t k = 0; k < size; ++k) {
                isSingular.push_back((pattern >> k & 1) != 0);
            }
            expectSolvedAround(isSingular, solver);
        }
    }
    for (const std::size_t place : {0u, 1u, 63u, 64u, 100u}) {
        std::vector<bool> isSingular(101);
        isSingular[place] = true;
        expectSolvedAround(isSingular, solver);
    }
    expectSolvedAround(std::vector<bool>(40, true), solver);
}

TEST(Singular, LuResumesBehindEachOfThem) {
    expectResuming(Solver<double>{solveByLu, order, true});
    expectResuming(Solver<float>{solveByLu, order, true});
}

TEST(Singular, CholeskyResumesBehindEachOfThem) {
    expectResuming(Solver<double>{solveByCholesky, order, false});
    expectResuming(Solver<float>{solveByCholesky, order, false});
}

TEST(Singular, QrResumesBehindEachOfThem) {
    expectResuming(Solver<double>{solveByQr, order + 1, true});
    expectResuming(Solver<float>{solveByQr, order + 1, true});
}

} // namespace
