// Terrain analysis: reads an elevation grid, fits a surface around every cell and draws what it finds.

#include "curvature_map.h"
#include "grid_reader.h"
#include "grid_writer.h"
#include "input_error.h"
#include "options.h"
#include "output_file.h"
#include "png_writer.h"
#include "relief.h"
#include "report.h"
#include "surface_writer.h"
#include "survey.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace terrain {

namespace {

constexpr int outputFailed = 1;
constexpr int inputWrong = 2;

// All files are opened before the work starts and get their names together when everything is written.
class Outputs {
public:
    OutputFile &open(const std::string &name) {
        files_.push_back(std::make_unique<OutputFile>(name));
        return *files_.back();
    }
    void publish() {
        for (const auto &file : files_) {
            file->close();
        }
        for (const auto &file : files_) {
            file->publish();
        }
    }

private:
    std::vector<std::unique_ptr<OutputFile>> files_;
};

CellUnit unitOf(const Options &options, Grid &grid) {
    if (options.cellSize) {
        grid.cellWidth = grid.cellHeight = *options.cellSize;
        return CellUnit::Metres;
    }
    const CellUnit unit = options.unit.value_or(guessUnit(grid));
    const double farthest = std::max(std::fabs(grid.centre(0)), std::fabs(grid.centre(grid.rows - 1)));
    if (unit == CellUnit::Degrees && farthest > 90 + grid.cellHeight) {
        throw InputError(options.input, "expected latitudes from -90 to 90 for --geographic, a row lies at " +
                                            std::to_string(farthest));
    }
    return unit;
}

void run(const Options &options, Progress &progress) {
    Grid grid = readGrid(options.input, progress);
    const CellUnit unit = unitOf(options, grid);

    Outputs outputs;
    const auto open = [&](const std::optional<std::string> &name) {
        return name ? &outputs.open(*name) : nullptr;
    };
    OutputFile *relief = open(options.relief);
    OutputFile *curvature = open(options.curvature);
    OutputFile *slopeGrid = open(options.slopeGrid);
    OutputFile *aspectGrid = open(options.aspectGrid);
    OutputFile *curvatureGrid = open(options.curvatureGrid);
    SurfaceWriter surfaces(open(options.surfaces));

    const Survey survey = surveyGrid(grid,
                                     {.unit = unit,
                                      .weightExponent = options.weightExponent,
                                      .curvature = options.curvatureKind,
                                      .method = options.method,
                                      .use32bit = options.use32bit},
                                     surfaces, progress);
    if (survey.solved == 0) {
        throw InputError(options.input,
                         "expected a cell with enough neighbours to fit a surface; none of the " +
                             std::to_string(survey.singular) +
                             " cells with data has six within two cells that do not lie on one "
                             "line or conic section");
    }
    const Layers &layers = survey.layers;
    const double scale = curvatureScale(layers);
    if (relief != nullptr) {
        writePng(shadedRelief(grid, layers, options.exaggeration), *relief);
    }
    if (curvature != nullptr) {
        writePng(curvatureMap(grid, layers, scale), *curvature);
    }
    if (slopeGrid != nullptr) {
        writeGrid(
            grid, [&](std::size_t cell) { return slopeDegrees(layers.east[cell], layers.north[cell]); },
            *slopeGrid);
    }
    if (aspectGrid != nullptr) {
        writeGrid(
            grid, [&](std::size_t cell) { return aspectDegrees(layers.east[cell], layers.north[cell]); },
            *aspectGrid);
    }
    if (curvatureGrid != nullptr) {
        writeGrid(
            grid, [&](std::size_t cell) { return layers.curvature[cell]; }, *curvatureGrid);
    }
    outputs.publish();
    progress.clear();
    printReport(options, grid, unit, survey, scale);
}

void survey(const Options &options) {
    Progress progress(options.progress);
    try {
        run(options, progress);
    } catch (const std::bad_alloc &) {
        throw InputError(options.input, "expected a grid that fits into memory");
    }
}

int complain(const char *text, int status) {
    std::fprintf(stderr, "terrain: %s\n", text);
    return status;
}

int main(int argc, char **argv) {
    try {
        const Options options = parseOptions(argc, argv);
        switch (options.action) {
        case Options::Action::Help:
            std::fputs(helpText().c_str(), stdout);
            break;
        case Options::Action::Version:
            printVersion();
            break;
        case Options::Action::Survey:
            survey(options);
            break;
        }
    } catch (const OutputError &error) {
        return complain(error.what(), outputFailed);
    } catch (const std::exception &error) {
        return complain(error.what(), inputWrong);
    }
    if (std::fflush(stdout) != 0) {
        return complain("standard output: expected a place where the report can be written", outputFailed);
    }
    return 0;
}

} // namespace

} // namespace terrain

int main(int argc, char **argv) {
    return terrain::main(argc, argv);
}
