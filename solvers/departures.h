// What departs from the rule in single members of the solvers, and what a caller sees of it.
#pragma once

#include "frame/operands.h"

namespace zelm::solvers::departures {

using namespace zelm::frame;

// CholeskyDecomp of orders 3 to 6, S2 and LS2: element strides are rounded down to whole elements. All other
// orders use the bytes as given.
template <typename Operand>
ZELM_INLINE Operand wholeSteps(Operand operand) {
    if constexpr (!Operand::isTable && requires { operand.elemStride = 0; })
        operand.elemStride &= ~Address{sizeof(typename Operand::Element) - 1};
    return operand;
}

} // namespace zelm::solvers::departures
