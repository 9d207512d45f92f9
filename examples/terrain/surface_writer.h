// Writes the coefficients of the fitted surfaces as CSV: a line per cell that has one.
#pragma once

#include "neighbourhood.h"
#include "output_file.h"

#include <cstddef>
#include <string>

namespace terrain {

class SurfaceWriter {
public:
    // Without a file, nothing is written.
    explicit SurfaceWriter(OutputFile *file);

    // Rows and columns count from 0 here and from 1 in the file, like the report's.
    void add(std::size_t row, std::size_t column, const Coefficients &surface);

private:
    OutputFile *file_;
    std::string line_;
};

} // namespace terrain
