// Writes a picture as PNG.
#pragma once

#include "image.h"
#include "output_file.h"

namespace terrain {

void writePng(const Image &image, OutputFile &file);

} // namespace terrain
