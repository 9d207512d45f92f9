// The loop over the objects of an array form.
#pragma once

#include "frame/checks.h"

namespace zelm::frame {

// Runs one(k) for k from 0 to count-1, after the entry test that lists need, up to the first that isn't
// ZELM_OK.
template <typename One, typename... Operands>
ZELM_INLINE ZelmStatus forEachObject(std::uint32_t count, One one, const Operands &...operands) {
    for (std::uint32_t k = 0; k < count; ++k) {
        if ((__builtin_expect(operands.entryIsNull(k), 0) || ...))
            return ZELM_ERR_NULL_PTR;
        if (ZelmStatus status = one(k); status != ZELM_OK)
            return status;
    }
    return ZELM_OK;
}

} // namespace zelm::frame
