// Sums of a few 64-bit terms whose order adds those at even places and those at odd places apart: by pairs,
// with the bits of sumOf.
#pragma once

#include "frame/sums.h"
#include "vector/long_sum.h"

namespace zelm::vector {

template <Sum order, typename T, unsigned N>
constexpr bool kSumsByPairs = sizeof(T) == 8 &&
                              (order == Sum::EvenOdd || (order == Sum::EvenOddThenRest && N > 3));

template <Sum order, unsigned N, typename Terms>
ZELM_INLINE double sumByPairs(const Terms &terms) {
    Doubles2 pairs[N / 2];
    ZELM_UNROLL
    for (unsigned p = 0; p < N / 2; ++p)
        pairs[p] = terms.terms(2 * p);
    Doubles2 lanes = pairs[0];
    if constexpr (N == 6 && order == Sum::EvenOddThenRest)
        lanes = pairs[0] + (pairs[1] + pairs[2]);
    else if constexpr (N == 6)
        lanes = (pairs[0] + pairs[1]) + pairs[2];
    else if constexpr (N > 3)
        lanes = pairs[0] + pairs[1];
    if constexpr (N % 2 == 0)
        return lanes[0] + lanes[1];
    else if constexpr (order == Sum::EvenOdd)
        return (lanes[0] + terms.term(N - 1)) + lanes[1];
    else
        return (lanes[0] + lanes[1]) + terms.term(N - 1);
}

} // namespace zelm::vector
