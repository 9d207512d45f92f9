#include "job.h"

#include "curvature_map.h"
#include "grid_reader.h"
#include "grid_writer.h"
#include "input_error.h"
#include "output_file.h"
#include "png_writer.h"
#include "relief.h"
#include "report.h"
#include "survey.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace terrain {

namespace {

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

Survey fit(const Options &options, const Grid &grid, CellUnit unit, OutputFile *surfaces,
           Progress &progress) {
    SurfaceWriter writer(surfaces);
    Survey survey = surveyGrid(grid,
                               {.unit = unit,
                                .weightExponent = options.weightExponent,
                                .curvature = options.curvatureKind,
                                .method = options.method,
                                .use32bit = options.use32bit},
                               writer, progress);
    if (survey.solved == 0) {
        throw InputError(options.input,
                         "expected a cell with enough neighbours to fit a surface; none of the " +
                             std::to_string(survey.singular) +
                             " cells with data has six within two cells that do not lie on one "
                             "line or conic section");
    }
    return survey;
}

SheetSize pictureSize(const Options &options, const Grid &grid) {
    return options.legend ? sheetWithLegend(grid.columns, grid.rows) : SheetSize{grid.columns, grid.rows};
}

// One picture after the other, so that there is memory for one at a time.
void writePictures(const Options &options, const Grid &grid, CellUnit unit, const Layers &layers,
                   double scale, OutputFile *relief, OutputFile *curvature, Progress &progress) {
    const SheetSize size = pictureSize(options, grid);
    const CellSize cell = cellSizeAt(grid, grid.rows / 2, unit);
    const auto finish = [&](const Legend &legend, Image &sheet, OutputFile &file) {
        if (options.legend) {
            drawLegend(legend, grid.columns, grid.rows, sheet);
        }
        writePng(sheet, file);
    };
    if (relief != nullptr) {
        const ReliefSettings settings = {heightRange(grid), options.exaggeration, options.seaLevel};
        Image sheet(size.width, size.height);
        drawRelief(grid, layers, settings, progress, sheet);
        finish(reliefLegend(settings, cell), sheet, *relief);
    }
    if (curvature != nullptr) {
        Image sheet(size.width, size.height);
        drawCurvature(grid, layers, scale, progress, sheet);
        finish(curvatureLegend(options.curvatureKind, scale, cell), sheet, *curvature);
    }
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
    OutputFile *surfaces = open(options.surfaces);

    const Survey survey = fit(options, grid, unit, surfaces, progress);
    const Layers &layers = survey.layers;
    const double scale = curvatureScale(layers);
    writePictures(options, grid, unit, layers, scale, relief, curvature, progress);
    const auto write = [&](OutputFile *file, const std::function<double(std::size_t cell)> &value) {
        if (file != nullptr) {
            writeGrid(grid, value, progress, *file);
        }
    };
    write(slopeGrid, [&](std::size_t cell) { return slopeDegrees(layers.east[cell], layers.north[cell]); });
    write(aspectGrid, [&](std::size_t cell) { return aspectDegrees(layers.east[cell], layers.north[cell]); });
    write(curvatureGrid, [&](std::size_t cell) { return layers.curvature[cell]; });
    outputs.publish();
    progress.clear();
    printReport(options, grid, unit, survey, scale, pictureSize(options, grid));
}

} // namespace

void doJob(const Options &options) {
    Progress progress(options.progress);
    try {
        run(options, progress);
    } catch (const std::bad_alloc &) {
        throw InputError(options.input, "expected a grid that fits into memory");
    }
}

} // namespace terrain
