// One matrix behind a table, whose entries are tested without a loop of their own.
#pragma once

#include "frame/shapes.h"

namespace zelm::solvers {

using namespace zelm::frame;

// False at a null entry. Nothing is stored before the last one is tested, so that their order can't be seen.
template <unsigned N, typename T, typename S>
ZELM_INLINE bool readMatrixTested(const S &s, T (&out)[N][N]) {
    return whileTrue(FixedShape<N, N>{}, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
        if constexpr (S::isTable)
            if (s.elementIsNull(Address{i} * N + j))
                return false;
        out[i][j] = s.get(i, j, N);
        return true;
    });
}

template <unsigned entries, typename D>
ZELM_INLINE bool hasNullEntry(const D &d) {
    return !whileTrue(FixedShape<1, entries>{}, [&](std::uint32_t, std::uint32_t entry)
                                                    ZELM_INLINE_LAMBDA { return !d.elementIsNull(entry); });
}

} // namespace zelm::solvers
