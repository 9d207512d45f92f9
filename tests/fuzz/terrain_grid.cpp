// An elevation grid of any bytes, through the whole job of the terrain program: read, fitted, drawn, written.
#include "input_error.h"
#include "job.h"
#include "output_file.h"
#include "png_writer.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using namespace terrain;

// A file in memory, by a name that the program can open.
class MemoryFile {
public:
    MemoryFile() : descriptor_(memfd_create("grid", 0)) {
        if (descriptor_ < 0) {
            std::abort();
        }
    }
    std::string name() const { return "/proc/self/fd/" + std::to_string(descriptor_); }
    void fill(const std::uint8_t *bytes, std::size_t count) const {
        if (ftruncate(descriptor_, 0) != 0 ||
            pwrite(descriptor_, bytes, count, 0) != static_cast<ssize_t>(count)) {
            std::abort();
        }
    }

private:
    int descriptor_;
};

// Ways of the job, by the bits of one byte.
Options optionsFor(std::uint8_t way) {
    constexpr Method methods[] = {Method::Lu, Method::Cholesky, Method::Qr, Method::Lu};
    constexpr Curvature kinds[] = {Curvature::Mean, Curvature::Profile, Curvature::Tangential,
                                   Curvature::Mean};
    Options options;
    options.method = methods[way & 3];
    options.curvatureKind = kinds[way >> 2 & 3];
    options.use32bit = (way & 0x10) != 0;
    options.slopeGrid = options.surfaces = options.curvatureGrid = "/dev/null";
    if ((way & 0x20) != 0) {
        options.aspectGrid = "/dev/null";
        options.unit = (way & 0x40) != 0 ? CellUnit::Degrees : CellUnit::Metres;
    }
    if ((way & 0x80) != 0 && canWritePng) {
        options.relief = options.curvature = "/dev/null";
        options.legend = (way & 0x40) != 0;
    }
    return options;
}

} // namespace

// The last byte is the way, so that a grid's file is a seed as it stands.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count) {
    static const MemoryFile file;
    static const bool isQuiet = std::freopen("/dev/null", "w", stdout) != nullptr;
    if (!isQuiet) {
        std::abort();
    }
    file.fill(bytes, count);
    Options options = optionsFor(count > 0 ? bytes[count - 1] : 0);
    options.input = file.name();
    try {
        doJob(options);
    } catch (const InputError &) {
        // the one way to refuse an input; any other exception ends the run
    }
    return 0;
}
