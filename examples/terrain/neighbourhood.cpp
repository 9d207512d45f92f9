#include "neighbourhood.h"

#include <cmath>

namespace terrain {

namespace {

// The terms of the surface are x^p y^q with these powers; an element of the normal equations is the weighted
// sum of a product of two terms, so one of the 15 moments with p + q <= 4.
constexpr std::array<std::size_t, order> powersOfX = {2, 1, 0, 1, 0, 0};
constexpr std::array<std::size_t, order> powersOfY = {0, 1, 2, 0, 1, 0};
constexpr std::size_t highest = 4;
constexpr std::size_t moments = (highest + 1) * (highest + 2) / 2;

// Moments are numbered by p + q, and by q among those of one sum.
constexpr std::size_t momentOf(std::size_t p, std::size_t q) {
    return (p + q) * (p + q + 1) / 2 + q;
}

constexpr double power(int base, std::size_t exponent) {
    double result = 1;
    for (std::size_t i = 0; i < exponent; ++i) {
        result *= base;
    }
    return result;
}

using MomentRow = std::array<double, moments>;

constexpr std::array<MomentRow, neighbours> makeMonomials() {
    std::array<MomentRow, neighbours> table{};
    for (std::size_t n = 0; n < neighbours; ++n) {
        for (std::size_t sum = 0; sum <= highest; ++sum) {
            for (std::size_t q = 0; q <= sum; ++q) {
                table[n][momentOf(sum - q, q)] = power(eastOf(n), sum - q) * power(northOf(n), q);
            }
        }
    }
    return table;
}

constexpr std::array<MomentRow, neighbours> monomials = makeMonomials();

template <class T>
void assembleWeighted(const Neighbourhood &around, T *matrix, T *rightSide) {
    for (std::size_t n = 0; n < neighbours; ++n) {
        const double root = std::sqrt(around.weight[n]);
        for (std::size_t i = 0; i < order; ++i) {
            matrix[n * order + i] = static_cast<T>(root * monomials[n][momentOf(powersOfX[i], powersOfY[i])]);
        }
        rightSide[n] = static_cast<T>(root * around.height[n]);
    }
}

template <class T>
void assembleNormal(const Neighbourhood &around, T *matrix, T *rightSide) {
    MomentRow sums{};
    std::array<double, order> heightSums{};
    for (std::size_t n = 0; n < neighbours; ++n) {
        const double weight = around.weight[n];
        if (weight == 0) {
            continue;
        }
        const MomentRow &monomial = monomials[n];
        for (std::size_t m = 0; m < moments; ++m) {
            sums[m] += weight * monomial[m];
        }
        const double weightedHeight = weight * around.height[n];
        for (std::size_t i = 0; i < order; ++i) {
            heightSums[i] += weightedHeight * monomial[momentOf(powersOfX[i], powersOfY[i])];
        }
    }
    for (std::size_t i = 0; i < order; ++i) {
        for (std::size_t j = 0; j < order; ++j) {
            const std::size_t moment = momentOf(powersOfX[i] + powersOfX[j], powersOfY[i] + powersOfY[j]);
            matrix[i * order + j] = static_cast<T>(sums[moment]);
        }
        rightSide[i] = static_cast<T>(heightSums[i]);
    }
}

} // namespace

namespace {

// 1 / base^exponent. By operations that are rounded the same everywhere as far as they go, so that the
// systems of a grid are the same bits on every machine for whole exponents; the last bit of pow() is each C
// library's own.
double reciprocalPower(double base, double exponent) {
    if (exponent == 0) {
        return 1;
    }
    if (exponent == 1) {
        return 1 / base;
    }
    return exponent == 2 ? 1 / (base * base) : std::pow(base, -exponent);
}

} // namespace

Weights distanceWeights(const CellSize &size, double exponent) {
    constexpr double sumOfAll = 1.0 / 128;
    const double meanCell2 = size.eastWest * size.northSouth;
    Weights weights{};
    double sum = 0;
    for (std::size_t n = 0; n < neighbours; ++n) {
        const double east = eastOf(n) * size.eastWest;
        const double north = northOf(n) * size.northSouth;
        const double distance = std::sqrt((east * east + north * north) / meanCell2);
        weights[n] = reciprocalPower(1 + distance, exponent);
        sum += weights[n];
    }
    for (double &weight : weights) {
        weight *= sumOfAll / sum;
    }
    return weights;
}

Neighbourhood neighbourhoodOf(const Grid &grid, std::size_t row, std::size_t column, const Weights &weights) {
    const double centre = grid.at(row, column);
    Neighbourhood around{};
    for (std::size_t n = 0; n < neighbours; ++n) {
        // Unsigned arithmetic: a place before the first row or column is as far out of range as one behind
        // the last.
        const std::size_t r = row - static_cast<std::size_t>(northOf(n));
        const std::size_t c = column + static_cast<std::size_t>(eastOf(n));
        if (r < grid.rows && c < grid.columns && grid.hasData(r, c)) {
            around.height[n] = grid.at(r, c) - centre;
            around.weight[n] = weights[n];
        }
    }
    return around;
}

double heightAt(const Coefficients &surface, std::size_t neighbour) {
    double height = 0;
    for (std::size_t i = 0; i < order; ++i) {
        height += surface[i] * monomials[neighbour][momentOf(powersOfX[i], powersOfY[i])];
    }
    return height;
}

template <class T>
void assembleRow(const Grid &grid, std::size_t row, const Weights &weights, Systems<T> &systems,
                 std::vector<std::uint32_t> &columns) {
    columns.clear();
    for (std::size_t column = 0; column < grid.columns; ++column) {
        if (grid.hasData(row, column)) {
            columns.push_back(static_cast<std::uint32_t>(column));
        }
    }
    systems.resize(columns.size());
    for (std::size_t k = 0; k < columns.size(); ++k) {
        const Neighbourhood around = neighbourhoodOf(grid, row, columns[k], weights);
        T *const matrix = &systems.matrix[k * systems.rows * order];
        T *const rightSide = &systems.rightSide[k * systems.rows];
        if (systems.rows == neighbours) {
            assembleWeighted(around, matrix, rightSide);
        } else {
            assembleNormal(around, matrix, rightSide);
        }
    }
}

template void assembleRow(const Grid &, std::size_t, const Weights &, Systems<float> &,
                          std::vector<std::uint32_t> &);
template void assembleRow(const Grid &, std::size_t, const Weights &, Systems<double> &,
                          std::vector<std::uint32_t> &);

} // namespace terrain
