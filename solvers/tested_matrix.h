// One matrix behind a table, whose entries are tested without a loop of their own.
#pragma once

#include "frame/checks.h"
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

// As tested(), for the entries of one object: where their number is fixed, they are tested without a loop.
// The end of a loop is guessed wrong time and again where branches on values, such as those of a search for
// pivots, come between the calls.
template <unsigned entries, typename Operand>
struct TestedAlone {
    const Operand &operand;
    ZELM_INLINE bool isNull() const { return operand.isNull(); }
    ZELM_INLINE bool hasNullEntry() const { return solvers::hasNullEntry<entries>(operand); }
};

// `fixed` is their number where it is fixed, else 0.
template <unsigned fixed, typename Operand>
ZELM_INLINE auto testedAlone(const Operand &operand, Address entries) {
    if constexpr (fixed == 0)
        return tested(operand, entries);
    else
        return TestedAlone<fixed, Operand>{operand};
}

template <typename... AllTested>
ZELM_INLINE ZelmStatus checkAlone(bool zeroSize, const AllTested &...operands) {
    if (ZelmStatus status = checkSingle(zeroSize, operands...); status != kProceed)
        return status;
    return (operands.hasNullEntry() || ...) ? ZELM_ERR_NULL_PTR : kProceed;
}

} // namespace zelm::solvers
