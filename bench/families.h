// The rows of each family of functions, one file per family.
#pragma once

namespace zelmbench {

void addVectorSumRows();
void addElementwiseRows();
void addInverseRows();
void addLuRows();

} // namespace zelmbench
