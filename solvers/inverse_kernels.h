// Inverses of fixed order in place, of one matrix or of one matrix per lane of V.
//
//                              order 3              order 4            orders 5 and 6
//   standard and L, 32f        closed, det 0        closed, det 0      pivots
//   standard and L, 64f        closed, 1/det 0      closed, det 0      blocks, a pair of columns searched
//   all other forms            closed, det in band  closed, in band    blocks, every pivot searched
#pragma once

#include "solvers/pivot_inverse.h"

namespace zelm::solvers {

enum class Way { Closed, Pivots, ColumnPair, Search };

// How a form inverts, and what its closed inverse takes for a singular matrix. `dense` is the rule of the
// standard and L forms.
struct InverseRule {
    Way way;
    Singular singular;
};
constexpr InverseRule inverseRule(bool dense, bool is32, unsigned order) {
    if (!dense)
        return {order <= 4 ? Way::Closed : Way::Search, Singular::InBand};
    if (order <= 4)
        return {Way::Closed, order == 3 && !is32 ? Singular::ReciprocalZero : Singular::Zero};
    return {is32 ? Way::Pivots : Way::ColumnPair, Singular::InBand};
}

// A matrix per lane. False where one of them must be inverted alone, because it is singular or because its
// pivots must be searched for: the contents are then of no use.
template <bool dense, typename V, unsigned N>
bool invertGroup(V (&a)[N][N]);

// One matrix; see invertByPivots for what a singular one leaves.
template <bool dense, typename T, unsigned N>
Outcome invertAlone(T (&a)[N][N]);

} // namespace zelm::solvers
