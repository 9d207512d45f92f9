// The loops over the objects of an array form.
#pragma once

#include "frame/checks.h"

namespace zelm::frame {

// Runs one(k) for k from 0 to count-1, after the entry test that lists need, up to the first that isn't
// ZELM_OK.
template <typename One, typename... Operands>
ZELM_INLINE ZelmStatus forEachObject(std::uint32_t count, One one, const Operands &...operands) {
    for (std::uint32_t k = 0; k < count; ++k) {
        if ((operands.entryIsNull(k) || ...))
            return ZELM_ERR_NULL_PTR;
        if (ZelmStatus status = one(k); status != ZELM_OK)
            return status;
    }
    return ZELM_OK;
}

// The same where group(k), which handles `lanes` objects from k on at once, may be tried first. A group that
// says no has written nothing: its objects are then done one by one, so that what stands afterwards is what
// the plain loop leaves.
template <std::uint32_t lanes, typename Group, typename One, typename... Operands>
ZELM_INLINE ZelmStatus forEachGroup(std::uint32_t count, Group group, One one, const Operands &...operands) {
    std::uint32_t k = 0;
    while (k < count) {
        const bool whole = count - k >= lanes;
        if (whole && group(k)) {
            k += lanes;
            continue;
        }
        for (const std::uint32_t stop = whole ? k + lanes : count; k < stop; ++k) {
            if ((operands.entryIsNull(k) || ...))
                return ZELM_ERR_NULL_PTR;
            if (ZelmStatus status = one(k); status != ZELM_OK)
                return status;
        }
    }
    return ZELM_OK;
}

} // namespace zelm::frame
