// A command line of any bytes for the terrain program.
#include "options.h"
#include "words.h"

#include <getopt.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count) {
    zelmfuzz::Words words(bytes, count);
    optind = 0; // glibc starts anew
    try {
        terrain::parseOptions(words.argc(), words.argv());
    } catch (const terrain::UsageError &) {
        // the one way to refuse a command line
    }
    return 0;
}
