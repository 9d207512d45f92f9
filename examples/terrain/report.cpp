#include "report.h"

#include "memory_needed.h"

#include <cstdio>
#include <zelm.h>

namespace terrain {

namespace {

const char *nameOf(Method method) {
    switch (method) {
    case Method::Cholesky:
        return "Cholesky";
    case Method::Qr:
        return "QR";
    case Method::Lu:
        break;
    }
    return "LU";
}

} // namespace

void printReport(const Options &options, const Grid &grid, CellUnit unit, const Survey &survey, double scale,
                 const SheetSize &pictures) {
    const CellSize size = cellSizeAt(grid, grid.rows / 2, unit);
    std::printf("grid       %zu rows of %zu cells, %zu without data\n", grid.rows, grid.columns,
                survey.withoutData);
    std::printf("cell       %.9g", grid.cellWidth);
    if (grid.cellHeight != grid.cellWidth) {
        std::printf(" by %.9g", grid.cellHeight);
    }
    std::printf(" %s, %.1f m west-east by %.1f m north-south in the middle row\n",
                unit == CellUnit::Degrees ? "degrees" : "metres", size.eastWest, size.northSouth);
    std::printf("systems    %zu of %s solved by %s in %d-bit float\n", survey.solved,
                options.method == Method::Qr ? "25x6" : "6x6", nameOf(options.method),
                options.use32bit ? 32 : 64);
    std::printf("singular   %zu left out\n", survey.singular);
    std::printf("residual   %.4f m, weighted root mean square\n", survey.residual);
    if (survey.solved > 0 && survey.seconds > 0) {
        std::printf("rate       %.0f systems per second (%.4f s in the library)\n",
                    static_cast<double>(survey.solved) / survey.seconds, survey.seconds);
    }
    if (survey.solved > 0) {
        std::printf("slope      mean %.2f degrees, steepest %.2f in row %zu, column %zu\n", survey.meanSlope,
                    survey.steepestSlope, survey.steepestRow + 1, survey.steepestColumn + 1);
    }
    std::printf("curvature  %s, full colour at %.3g per m\n", nameOf(options.curvatureKind), scale);
    constexpr double mebi = 1024.0 * 1024.0;
    std::printf("memory     %.1f MiB for a grid of this size\n",
                memoryNeeded(static_cast<double>(grid.rows), static_cast<double>(grid.columns)) / mebi);
    if (options.relief && options.curvature) {
        std::printf("written    %s, %s: %zu x %zu pixels\n", options.relief->c_str(),
                    options.curvature->c_str(), pictures.width, pictures.height);
    }
}

void printVersion() {
    const ZelmLibVersion &library = *zelmGetLibVersion();
    std::printf("terrain, an example of zelm\n%s %s, build %d.%d of %s, target %.4s\n", library.fileName,
                library.versionText, library.buildMajor, library.buildMinor, library.buildDate,
                library.targetCode);
}

} // namespace terrain
