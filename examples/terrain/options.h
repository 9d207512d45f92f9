// The command line.
#pragma once

#include "derivatives.h"
#include "ground.h"
#include "method.h"
#include "progress.h"

#include <optional>
#include <stdexcept>
#include <string>

namespace terrain {

struct Options {
    enum class Action { Survey, Help, Version };
    Action action = Action::Survey;

    std::string input;
    std::optional<std::string> relief; // set by parseOptions() wherever pictures can be written
    std::optional<std::string> curvature;
    std::optional<std::string> slopeGrid;
    std::optional<std::string> aspectGrid;
    std::optional<std::string> curvatureGrid;
    std::optional<std::string> surfaces;

    Curvature curvatureKind = Curvature::Mean;
    Method method = Method::Lu;
    bool use32bit = false;
    double weightExponent = 1;
    double exaggeration = 2;
    std::optional<double> seaLevel = 0;
    bool legend = true;
    std::optional<CellUnit> unit;
    std::optional<double> cellSize; // metres
    Progress::Show progress = Progress::Show::OnTerminal;
};

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Throws UsageError.
Options parseOptions(int argc, char **argv);

std::string helpText();

} // namespace terrain
