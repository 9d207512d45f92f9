// The orders in which short sums are formed. Each order rounds differently, and each is part of what a
// function returns: the families say which of their members sums how.
#pragma once

#include "frame/memory.h"

namespace zelm::frame {

enum class Sum {
    Chain,           // ((p0 + p1) + p2) + ...
    Pairs,           // of 4: (p0 + p1) + (p2 + p3); of 5: that + p4; of 6: that + (p4 + p5)
    EvenOdd,         // of 3: (p0 + p2) + p1; of 4: (p0 + p2) + (p1 + p3); of 5: ((p0 + p2) + p4) + (p1 + p3);
                     // of 6: ((p0 + p2) + p4) + ((p1 + p3) + p5)
    PairsAroundLast, // of 5: ((p0 + p1) + p4) + (p2 + p3); else as Pairs
    EvenOddThenRest, // of 4: (p0 + p2) + (p1 + p3); of 5: that + p4; of 6: (p0 + (p2 + p4)) + (p1 + (p3 +
                     // p5))
};

// Of elements or of packs. Sums of three are chains but in EvenOdd.
template <Sum order, unsigned N, typename V>
ZELM_INLINE V sumOf(const V (&p)[N]) {
    static_assert(N >= 3 && N <= 6);
    if constexpr (order == Sum::EvenOdd) {
        if constexpr (N == 3)
            return (p[0] + p[2]) + p[1];
        else if constexpr (N == 4)
            return (p[0] + p[2]) + (p[1] + p[3]);
        else if constexpr (N == 5)
            return ((p[0] + p[2]) + p[4]) + (p[1] + p[3]);
        else
            return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
    } else if constexpr (order == Sum::PairsAroundLast && N == 5) {
        return ((p[0] + p[1]) + p[4]) + (p[2] + p[3]);
    } else if constexpr ((order == Sum::Pairs || order == Sum::PairsAroundLast) && N > 3) {
        const V four = (p[0] + p[1]) + (p[2] + p[3]);
        if constexpr (N == 4)
            return four;
        else if constexpr (N == 5)
            return four + p[4];
        else
            return four + (p[4] + p[5]);
    } else if constexpr (order == Sum::EvenOddThenRest && N > 3) {
        if constexpr (N == 4)
            return (p[0] + p[2]) + (p[1] + p[3]);
        else if constexpr (N == 5)
            return ((p[0] + p[2]) + (p[1] + p[3])) + p[4];
        else
            return (p[0] + (p[2] + p[4])) + (p[1] + (p[3] + p[5]));
    } else {
        V sum = p[0] + p[1];
        ZELM_UNROLL
        for (unsigned j = 2; j < N; ++j)
            sum = sum + p[j];
        return sum;
    }
}

} // namespace zelm::frame
