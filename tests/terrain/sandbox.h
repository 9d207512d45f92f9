// A folder for one test, and the terrain program run in it.
#pragma once

#include "grid.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace terraintest {

struct Outcome {
    int status = -1; // exit status; 128 + the signal's number if one ended the program
    std::string output;
    std::string errors;
    double peakMebibytes = 0; // the most memory that was in use
};

class Sandbox {
public:
    Sandbox();
    ~Sandbox();
    Sandbox(const Sandbox &) = delete;
    Sandbox &operator=(const Sandbox &) = delete;

    std::filesystem::path path(const std::string &name) const { return folder_ / name; }
    void write(const std::string &name, const std::string &text) const;
    std::string read(const std::string &name) const;
    // The names of all files, in order.
    std::vector<std::string> files() const;

    // Runs the program in the folder; file names are relative to it.
    Outcome run(const std::vector<std::string> &arguments) const;
    // Likewise with a terminal as its standard error.
    Outcome runOnTerminal(const std::vector<std::string> &arguments) const;

private:
    Outcome start(const std::vector<std::string> &arguments, int errors) const;

    std::filesystem::path folder_;
    std::filesystem::path logs_; // beside the folder, so that files() shows only what the program left
};

// An Esri ASCII grid in metres with its south-west corner at (0, 0). `height` gets the coordinates of a
// cell's centre; NaN makes a cell without data.
std::string gridText(std::size_t rows, std::size_t columns, double cellSize,
                     const std::function<double(double x, double y)> &height);

terrain::Grid readGrid(const std::filesystem::path &file);

} // namespace terraintest
