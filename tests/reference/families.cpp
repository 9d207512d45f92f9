#include "family.h"

namespace zelmref {

// One line for each family: declared here, defined in the file of its name.
extern const Family vectorAddSub;
extern const Family luDecomp;
extern const Family luBackSubst;

const Family *familyOf(const Cell &cell) {
    for (const Family *family : {&vectorAddSub, &luDecomp, &luBackSubst})
        if (family->serves(cell))
            return family;
    return nullptr;
}

} // namespace zelmref
