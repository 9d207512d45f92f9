#include "options.h"

#include "png_writer.h"
#include "text.h"

#include <cmath>
#include <filesystem>
#include <getopt.h>
#include <system_error>
#include <vector>

namespace terrain {

namespace {

constexpr const char *helpForAll =
    R"(usage: terrain [OPTION...] GRID

Fits z = a x^2 + b xy + c y^2 + d x + e y + f by weighted least squares to the 5x5 neighbourhood of every cell of
GRID, an elevation grid (Esri ASCII grid), and derives slope, aspect and curvature.

Output:
  --relief FILE            shaded relief as PNG (relief.png)
  --curvature FILE         map of the curvature as PNG (curvature.png)
  --slope-grid FILE        slope in degrees as Esri ASCII grid
  --aspect-grid FILE       aspect in degrees clockwise from north, -1 where flat
  --curvature-grid FILE    curvature in 1/m, positive where convex
  --surfaces FILE          a to f of every fitted surface as CSV, with all digits
  --exaggeration X         heights are multiplied by X for the shading (2)
  --sea-level Z|none       what lies below Z metres is sea in the relief (0)
  --no-legend              pictures of the map alone, one pixel per cell
  --progress               show progress also where there is no terminal

Fit:
  --curvature-kind KIND    mean, profile or tangential (mean)
  --method METHOD          lu or cholesky for the normal equations, qr for the weighted ones themselves (lu)
  --float 32|64            bits of the floats that the systems are solved in (64)
  --weight-exponent N      weight 1/(1 + distance in cells)^N of a neighbour, N from 0 to 2 (1)

Ground:
  --geographic             the cell size is in degrees
  --projected              the cell size is in metres
  --cellsize METRES        take this cell size instead of the file's
  Without these the cell size is in degrees if it is at most 0.1 and the grid lies within the range of longitudes
  and latitudes.

  --help                   print this
  --version                print the version of the program's library

Exit status: 0 done, 1 the output can't be written, 2 wrong input or options.
)";

constexpr const char *helpWithoutPictures =
    "\nThis program was built without libpng: it writes no pictures and refuses --relief and --curvature.\n";

enum Code : int {
    relief = 1,
    curvature,
    slopeGrid,
    aspectGrid,
    curvatureGrid,
    surfaces,
    curvatureKind,
    method,
    floatBits,
    weightExponent,
    exaggeration,
    seaLevel,
    noLegend,
    geographic,
    projected,
    cellSize,
    progress,
    help,
    version
};

const option longOptions[] = {{"relief", required_argument, nullptr, relief},
                              {"curvature", required_argument, nullptr, curvature},
                              {"slope-grid", required_argument, nullptr, slopeGrid},
                              {"aspect-grid", required_argument, nullptr, aspectGrid},
                              {"curvature-grid", required_argument, nullptr, curvatureGrid},
                              {"surfaces", required_argument, nullptr, surfaces},
                              {"curvature-kind", required_argument, nullptr, curvatureKind},
                              {"method", required_argument, nullptr, method},
                              {"float", required_argument, nullptr, floatBits},
                              {"weight-exponent", required_argument, nullptr, weightExponent},
                              {"exaggeration", required_argument, nullptr, exaggeration},
                              {"sea-level", required_argument, nullptr, seaLevel},
                              {"no-legend", no_argument, nullptr, noLegend},
                              {"geographic", no_argument, nullptr, geographic},
                              {"projected", no_argument, nullptr, projected},
                              {"cellsize", required_argument, nullptr, cellSize},
                              {"progress", no_argument, nullptr, progress},
                              {"help", no_argument, nullptr, help},
                              {"version", no_argument, nullptr, version},
                              {nullptr, 0, nullptr, 0}};

[[noreturn]] void wrongValue(const std::string &name, const std::string &expected) {
    throw UsageError("--" + name + ": expected " + expected + ", found " + shown(optarg));
}

double numberWithin(const std::string &name, double low, double high, const std::string &expected) {
    const std::optional<double> value = number(optarg);
    if (!value || !(*value >= low && *value <= high)) {
        wrongValue(name, expected);
    }
    return *value;
}

std::string pictureName(const std::string &name) {
    if (!canWritePng) {
        throw UsageError("--" + name +
                         ": expected a program with pictures, this one was built without libpng");
    }
    return optarg;
}

Curvature kindNamed(const std::string &name) {
    if (name == "mean") {
        return Curvature::Mean;
    }
    if (name == "profile") {
        return Curvature::Profile;
    }
    if (name == "tangential") {
        return Curvature::Tangential;
    }
    wrongValue("curvature-kind", "mean, profile or tangential");
}

Method methodNamed(const std::string &name) {
    if (name == "lu") {
        return Method::Lu;
    }
    if (name == "cholesky") {
        return Method::Cholesky;
    }
    if (name == "qr") {
        return Method::Qr;
    }
    wrongValue("method", "lu, cholesky or qr");
}

void apply(int code, const std::string &name, Options &options) {
    // Any size that a cell of a map can have; outside it, slopes would leave the range of 32-bit floats.
    constexpr double smallest = 1e-6;
    constexpr double largest = 1e9;
    switch (code) {
    case relief:
        options.relief = pictureName(name);
        break;
    case curvature:
        options.curvature = pictureName(name);
        break;
    case slopeGrid:
        options.slopeGrid = optarg;
        break;
    case aspectGrid:
        options.aspectGrid = optarg;
        break;
    case curvatureGrid:
        options.curvatureGrid = optarg;
        break;
    case surfaces:
        options.surfaces = optarg;
        break;
    case curvatureKind:
        options.curvatureKind = kindNamed(optarg);
        break;
    case method:
        options.method = methodNamed(optarg);
        break;
    case floatBits:
        if (const std::string bits = optarg; bits != "32" && bits != "64") {
            wrongValue(name, "32 or 64");
        } else {
            options.use32bit = bits == "32";
        }
        break;
    case weightExponent:
        options.weightExponent = numberWithin(name, 0, 2, "a number from 0 to 2");
        break;
    case exaggeration:
        options.exaggeration = numberWithin(name, smallest, largest, "a positive number");
        break;
    case seaLevel:
        options.seaLevel =
            std::string(optarg) == "none"
                ? std::nullopt
                : std::optional(numberWithin(name, -largest, largest, "a number of metres or none"));
        break;
    case noLegend:
        options.legend = false;
        break;
    case geographic:
        options.unit = CellUnit::Degrees;
        break;
    case projected:
        options.unit = CellUnit::Metres;
        break;
    case cellSize:
        options.cellSize = numberWithin(name, smallest, largest, "a positive number of metres");
        break;
    case progress:
        options.progress = Progress::Show::Always;
        break;
    case help:
        options.action = Options::Action::Help;
        break;
    case version:
        options.action = Options::Action::Version;
        break;
    }
}

// Two outputs of one name, or an output in the place of the input, would destroy one of them.
void checkNames(const Options &options) {
    std::vector<std::string> names = {options.input};
    for (const auto &output : {options.relief, options.curvature, options.slopeGrid, options.aspectGrid,
                               options.curvatureGrid, options.surfaces}) {
        if (output) {
            names.push_back(*output);
        }
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].empty()) {
            throw UsageError("expected the name of a file, found ''");
        }
        std::error_code ignored;
        if (std::filesystem::is_character_file(names[i], ignored)) {
            continue; // /dev/null takes any number of files
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (names[i] == names[j] || std::filesystem::equivalent(names[i], names[j], ignored)) {
                throw UsageError("expected different files, found " + shown(names[i]) + " twice");
            }
        }
    }
}

} // namespace

std::string helpText() {
    return std::string(helpForAll) + (canWritePng ? "" : helpWithoutPictures);
}

Options parseOptions(int argc, char **argv) {
    Options options;
    opterr = 0; // one message, in our own words
    int index = 0;
    for (int code; (code = getopt_long(argc, argv, ":", longOptions, &index)) != -1;) {
        if (code == '?' || code == ':') {
            const std::string word = argv[optind - 1];
            throw UsageError(code == '?' ? "expected an option that --help lists, found " + shown(word)
                                         : word + ": expected a value behind it");
        }
        apply(code, longOptions[index].name, options);
        if (options.action != Options::Action::Survey) {
            return options;
        }
    }
    if (argc - optind != 1) {
        throw UsageError("expected one grid file, found " + std::to_string(argc - optind) + " (see --help)");
    }
    options.input = argv[optind];
    if (options.cellSize && options.unit == CellUnit::Degrees) {
        throw UsageError("expected one of --geographic and --cellsize, found both");
    }
    if (canWritePng) {
        options.relief = options.relief.value_or("relief.png");
        options.curvature = options.curvature.value_or("curvature.png");
    }
    checkNames(options);
    return options;
}

} // namespace terrain
