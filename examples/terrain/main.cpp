// Terrain analysis: reads an elevation grid, fits a surface around every cell and draws what it finds.

#include "job.h"
#include "options.h"
#include "output_file.h"
#include "report.h"

#include <cstdio>
#include <exception>

namespace terrain {

namespace {

constexpr int outputFailed = 1;
constexpr int inputWrong = 2;

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
            doJob(options);
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
