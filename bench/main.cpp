// Runs the rows of every family; takes the options of Google Benchmark.
#include "families.h"
#include "library.h"

#include "zelm.h"

#include <Eigen/Core>
#include <benchmark/benchmark.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <string>

namespace {

std::string processorName() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("model name")) {
            return line.substr(line.find(": ") + 2);
        }
    }
    return "unknown";
}

// What a reader of the results must know of how they came about.
void describeRun() {
    const auto *version = zelmbench::find<decltype(zelmGetLibVersion)>("zelmGetLibVersion")();
    benchmark::AddCustomContext("target", version->targetCode);
    benchmark::AddCustomContext("library", version->fileName + std::string(" ") + version->versionText);
    benchmark::AddCustomContext("compiler", ZELM_BENCH_COMPILER);
    benchmark::AddCustomContext("library_flags", ZELM_BENCH_LIBRARY_FLAGS);
    benchmark::AddCustomContext("peer_flags", ZELM_BENCH_PEER_FLAGS);
    benchmark::AddCustomContext("eigen", std::to_string(EIGEN_WORLD_VERSION) + "." +
                                             std::to_string(EIGEN_MAJOR_VERSION) + "." +
                                             std::to_string(EIGEN_MINOR_VERSION));
    benchmark::AddCustomContext("processor", processorName());
}

} // namespace

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    try {
        describeRun();
    } catch (const std::exception &error) {
        std::cerr << "zelm_bench: " << error.what() << '\n';
        return 2;
    }
    zelmbench::addMovementRows();
    zelmbench::addVectorSumRows();
    zelmbench::addElementwiseRows();
    zelmbench::addVectorAlgebraRows();
    zelmbench::addInverseRows();
    zelmbench::addProductRows();
    zelmbench::addLuRows();
    zelmbench::addCholeskyAndQrRows();
    const std::size_t rows = benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return rows > 0 ? 0 : 1;
}
