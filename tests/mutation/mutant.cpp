#include "mutant.h"

#include <cstdlib>

ZelmMutant zelmMutant;

// Programs that know nothing of mutations are told by their environment.
__attribute__((constructor)) static void readEnvironment() {
    if (const char *active = std::getenv("ZELM_MUTANT"))
        zelmMutant.active = std::atoi(active);
}
