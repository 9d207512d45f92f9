#include "surface_writer.h"

#include "text.h"

namespace terrain {

SurfaceWriter::SurfaceWriter(OutputFile *file) : file_(file) {
    if (file_ != nullptr) {
        std::fputs("row,column,a,b,c,d,e,f\n", file_->stream());
    }
}

void SurfaceWriter::add(std::size_t row, std::size_t column, const Coefficients &surface) {
    if (file_ == nullptr) {
        return;
    }
    line_ = std::to_string(row + 1) + ',' + std::to_string(column + 1);
    for (const double coefficient : surface) {
        line_ += ',';
        appendNumber(line_, coefficient);
    }
    line_ += '\n';
    std::fwrite(line_.data(), 1, line_.size(), file_->stream()); // close() tells whether it failed
}

} // namespace terrain
