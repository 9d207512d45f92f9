// Every member of the grid through the C++ layer: the call reaches that member and gives its bits.
#include "cases.h"

#include <dlfcn.h>

extern "C" {
int lastCalled = -1;
void *functions[6000];
}

namespace zelmtest {
std::size_t casesRun = 0, failures = 0;
} // namespace zelmtest

int main(int argc, char **argv) {
    using namespace zelmtest;
    void *library = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
    if (library == nullptr) {
        std::fprintf(stderr, "usage: %s LIBRARY\n", argv[0]);
        return 2;
    }
    for (std::size_t i = 0; i < nameCount; ++i) {
        functions[i] = dlsym(library, names[i]);
        if (functions[i] == nullptr) {
            std::fprintf(stderr, "%s is not in the library\n", names[i]);
            return 2;
        }
    }
    allCases();
    std::printf("%zu members reached, %zu of %zu in the grid; %zu failures\n", casesRun, caseCount, nameCount,
                failures);
    return failures == 0 && casesRun == caseCount ? 0 : 1;
}
