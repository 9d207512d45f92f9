#include "survey.h"

#include "cholesky_solver.h"
#include "lu_solver.h"
#include "neighbourhood.h"
#include "qr_solver.h"
#include "systems.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace terrain {

namespace {

struct Residual {
    double squares = 0;
    double weights = 0;

    void add(const Coefficients &surface, const Neighbourhood &around) {
        for (std::size_t n = 0; n < neighbours; ++n) {
            if (around.weight[n] > 0) {
                const double difference = around.height[n] - heightAt(surface, n);
                squares += around.weight[n] * difference * difference;
                weights += around.weight[n];
            }
        }
    }
    double rootMeanSquare() const { return weights > 0 ? std::sqrt(squares / weights) : 0; }
};

void record(Survey &survey, const Grid &grid, std::size_t row, std::size_t column, const Derivatives &d,
            Curvature kind) {
    const std::size_t cell = row * grid.columns + column;
    survey.layers.east[cell] = static_cast<float>(d.p);
    survey.layers.north[cell] = static_cast<float>(d.q);
    survey.layers.curvature[cell] = static_cast<float>(curvatureOf(d, kind));
    const double slope = slopeDegrees(d.p, d.q);
    survey.meanSlope += slope;
    if (slope > survey.steepestSlope) {
        survey.steepestSlope = slope;
        survey.steepestRow = row;
        survey.steepestColumn = column;
    }
}

template <class T>
double solve(Systems<T> &systems, Method method) {
    switch (method) {
    case Method::Cholesky:
        return solveByCholesky(systems);
    case Method::Qr:
        return solveByQr(systems);
    case Method::Lu:
        break;
    }
    return solveByLu(systems);
}

template <class T>
Survey surveyIn(const Grid &grid, const SurveySettings &settings, SurfaceWriter &surfaces,
                Progress &progress) {
    Survey survey{.layers = Layers(grid.rows * grid.columns)};
    Residual residual;
    Systems<T> systems;
    if (settings.method == Method::Qr) {
        systems.rows = neighbours;
    }
    std::vector<std::uint32_t> columns;
    for (std::size_t row = 0; row < grid.rows; ++row) {
        const CellSize size = cellSizeAt(grid, row, settings.unit);
        const Weights weights = distanceWeights(size, settings.weightExponent);
        assembleRow(grid, row, weights, systems, columns);
        survey.withoutData += grid.columns - systems.count();
        survey.seconds += solve(systems, settings.method);
        for (std::size_t k = 0; k < systems.count(); ++k) {
            if (systems.isSingular[k]) {
                ++survey.singular;
                continue;
            }
            ++survey.solved;
            Coefficients surface;
            for (std::size_t i = 0; i < order; ++i) {
                surface[i] = systems.solution[k * order + i];
            }
            surfaces.add(row, columns[k], surface);
            record(survey, grid, row, columns[k], derivativesOf(surface, size), settings.curvature);
            residual.add(surface, neighbourhoodOf(grid, row, columns[k], weights));
        }
        progress.show("fitting", row + 1, grid.rows);
    }
    survey.residual = residual.rootMeanSquare();
    survey.meanSlope /= survey.solved > 0 ? static_cast<double>(survey.solved) : 1;
    return survey;
}

} // namespace

Survey surveyGrid(const Grid &grid, const SurveySettings &settings, SurfaceWriter &surfaces,
                  Progress &progress) {
    return settings.use32bit ? surveyIn<float>(grid, settings, surfaces, progress)
                             : surveyIn<double>(grid, settings, surfaces, progress);
}

} // namespace terrain
