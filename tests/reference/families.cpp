#include "family.h"

namespace zelmref {

// One line for each family: declared here, defined in the file of its name.
extern const Family vectorAddSub;
extern const Family matrixAddSub;
extern const Family scaling;
extern const Family saxpyLcomb;
extern const Family transpose;
extern const Family copy;
extern const Family extract;
extern const Family loadIdentity;
extern const Family luDecomp;
extern const Family luBackSubst;
extern const Family dotProduct;
extern const Family crossProduct;
extern const Family l2Norm;
extern const Family frobeniusNorm;
extern const Family trace;
extern const Family matrixVectorProduct;
extern const Family matrixProduct;
extern const Family gaxpy;

const Family *familyOf(const Cell &cell) {
    for (const Family *family :
         {&vectorAddSub, &matrixAddSub, &scaling, &saxpyLcomb, &transpose, &copy, &extract, &loadIdentity,
          &luDecomp, &luBackSubst, &dotProduct, &crossProduct, &l2Norm, &frobeniusNorm, &trace,
          &matrixVectorProduct, &matrixProduct, &gaxpy})
        if (family->serves(cell))
            return family;
    return nullptr;
}

} // namespace zelmref
