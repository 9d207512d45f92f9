#include "png_writer.h"

#include <png.h>

namespace terrain {

const bool canWritePng = true;

void writePng(const Image &image, OutputFile &file) {
    png_image header{};
    header.version = PNG_IMAGE_VERSION;
    header.width = static_cast<png_uint_32>(image.width);
    header.height = static_cast<png_uint_32>(image.height);
    header.format = PNG_FORMAT_RGB;
    if (png_image_write_to_stdio(&header, file.stream(), 0, image.pixels.data(), 0, nullptr) == 0) {
        throw OutputError(file.name(), std::string("expected to write a PNG: ") + header.message);
    }
}

} // namespace terrain
