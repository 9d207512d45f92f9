// The rows of each family of functions, one file per family.
#pragma once

namespace zelmbench {

void addMovementRows();
void addVectorSumRows();
void addElementwiseRows();
void addVectorAlgebraRows();
void addInverseRows();
void addProductRows();
void addLuRows();
void addCholeskyAndQrRows();

} // namespace zelmbench
