// The determinant by minors along the rows, from the top down, of elements, packs or extended numbers.
#pragma once

#include "frame/memory.h"

namespace zelm::solvers {

using namespace zelm::frame;

// How many columns a set of up to six holds. Without hardware for it the compiler's own count is a call.
constexpr unsigned numberOf(unsigned columns) {
    return (columns & 1) + (columns >> 1 & 1) + (columns >> 2 & 1) + (columns >> 3 & 1) + (columns >> 4 & 1) +
           (columns >> 5 & 1);
}

// What is done to a minor before it is used again: nothing, unless a family says otherwise.
struct MinorsAsTheyAre {
    template <typename V>
    ZELM_INLINE V operator()(unsigned, unsigned, V minor) const {
        return minor;
    }
};

// a(i, j) is the element, keep(order, number, minor) the minor as it goes into the next order; minors of one
// order are numbered in the lexicographic order of their columns. Each minor is formed once. Sums run from
// the left: ((x0 - x1) + x2) - x3 ...
template <unsigned N, typename V, typename Elements, typename Keep>
ZELM_INLINE V expandByMinors(const Elements &a, Keep keep) {
    // Indexed by the set of columns, column 0 being the highest bit: lexicographic order is descending.
    constexpr unsigned all = 1u << N;
    V minors[all];
    const auto bit = [](unsigned column) ZELM_INLINE_LAMBDA { return 1u << (N - 1 - column); };
    unsigned number = 0;
    ZELM_UNROLL
    for (unsigned c = 0; c < N; ++c) {
        ZELM_UNROLL
        for (unsigned d = c + 1; d < N; ++d)
            minors[bit(c) | bit(d)] =
                keep(2, number++, a(N - 2, c) * a(N - 1, d) - a(N - 1, c) * a(N - 2, d));
    }
    ZELM_UNROLL
    for (unsigned order = 3; order <= N; ++order) {
        number = 0;
        ZELM_UNROLL
        for (unsigned columns = all - 1; columns != 0; --columns) {
            if (numberOf(columns) != order)
                continue;
            V sum{};
            unsigned term = 0;
            ZELM_UNROLL
            for (unsigned c = 0; c < N; ++c) {
                if ((columns & bit(c)) == 0)
                    continue;
                const V x = a(N - order, c) * minors[columns & ~bit(c)];
                sum = term == 0 ? x : term % 2 != 0 ? sum - x : sum + x;
                ++term;
            }
            minors[columns] = order == N ? sum : keep(order, number++, sum);
        }
    }
    return minors[all - 1];
}

// The three terms of a determinant of order 3 along its first row.
template <typename V, typename Elements>
ZELM_INLINE void termsOfOrder3(const Elements &a, V (&t)[3]) {
    t[0] = (a(1, 1) * a(2, 2) - a(2, 1) * a(1, 2)) * a(0, 0);
    t[1] = (a(1, 2) * a(2, 0) - a(2, 2) * a(1, 0)) * a(0, 1);
    t[2] = (a(1, 0) * a(2, 1) - a(2, 0) * a(1, 1)) * a(0, 2);
}

template <typename V>
ZELM_INLINE V determinantOfOrder3(const V (&a)[3][3]) {
    const auto element = [&a](unsigned i, unsigned j) ZELM_INLINE_LAMBDA { return a[i][j]; };
    V t[3];
    termsOfOrder3(element, t);
    return (t[0] + t[1]) + t[2];
}

} // namespace zelm::solvers
