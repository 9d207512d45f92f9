// The sum of squares of one object behind a table.
#pragma once

#include "frame/shapes.h"

namespace zelm::vector {

using namespace zelm::frame;

// Row by row from +0, which is what the forms give that begin with the first square: no square is -0. False
// at a null entry; each is tested when it is reached.
template <typename S, typename Shape>
ZELM_INLINE bool sumSquaresTested(const S &s, Shape shape, typename S::Element &sum) {
    return whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
        if (s.elementIsNull(entryNumber(s, i, j, shape)))
            return false;
        const auto element = s.get(i, j, shape.columns());
        sum = sum + element * element;
        return true;
    });
}

} // namespace zelm::vector
