// A command line of any bytes for the conformance test.
#include "options.h"
#include "words.h"

#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count) {
    zelmfuzz::Words words(bytes, count);
    try {
        zelmtest::parseOptions(words.argc(), words.argv());
    } catch (const std::invalid_argument &) {
        // the one way to refuse a command line
    }
    return 0;
}
