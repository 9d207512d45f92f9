// Writes a picture as PNG.
#pragma once

#include "image.h"
#include "output_file.h"

namespace terrain {

// False in a program that was built without libpng: writePng() must not be called there.
extern const bool canWritePng;

void writePng(const Image &image, OutputFile &file);

} // namespace terrain
