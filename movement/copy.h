// Copies between layouts. No entry of a table is tested.
#pragma once

#include "frame/checks.h"
#include "movement/move.h"

namespace zelm::movement {

template <typename S, typename D>
ZELM_INLINE ZelmStatus copyVectors(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    if (ZelmStatus status = checkSingle(shape.isZero(), s, d); status != kProceed)
        return status;
    moveObjects(s, d, shape, count);
    return ZELM_OK;
}

// Dimensions of zero are no error here: there is nothing to copy.
template <typename S, typename D>
ZELM_INLINE ZelmStatus copyMatrices(const S &s, const D &d, RunTimeShape shape, std::uint32_t count) {
    if (ZelmStatus status = checkSingle(false, s, d); status != kProceed)
        return status;
    if (!shape.isZero() && count != 0)
        moveObjects(s, d, shape, count);
    return ZELM_OK;
}

} // namespace zelm::movement
