// The order of argument checks: null pointers, zero dimensions, whole tables, a zero count. Each family says
// which steps it runs by the function that it calls; nothing is written before the last step.
#pragma once

#include "frame/operands.h"
#include "zelm/types.h"

namespace zelm::frame {

// No check has decided the call: the computation goes on.
constexpr ZelmStatus kProceed = 1;

// An operand and the number of table entries that an array form tests of it.
template <typename Operand>
struct Tested {
    const Operand &operand;
    Address entries;
    ZELM_INLINE bool isNull() const { return operand.isNull(); }
    ZELM_INLINE bool hasNullEntry() const { return operand.hasNullEntry(entries); }
};

template <typename Operand>
ZELM_INLINE Tested<Operand> tested(const Operand &operand, Address entries) {
    return {operand, entries};
}

// A plain pointer among the operands, such as pivotIndex.
struct Pointer : WithoutTable {
    const void *pointer;
    ZELM_INLINE explicit Pointer(const void *p) : pointer(p) {}
    ZELM_INLINE bool isNull() const { return pointer == nullptr; }
};

// A single object whose entries, if it has a table, are tested as its elements are reached.
template <typename... Operands>
ZELM_INLINE ZelmStatus checkSingle(bool zeroSize, const Operands &...operands) {
    // One test and branch per pointer: without the hint they are gathered into a value, which costs a call
    // more.
    if ((__builtin_expect(operands.isNull(), 0) || ...))
        return ZELM_ERR_NULL_PTR;
    if (zeroSize)
        return ZELM_ERR_SIZE;
    return kProceed;
}

// A single object whose table is tested as a whole before anything is computed.
template <typename... Operands>
ZELM_INLINE ZelmStatus checkSingleWhole(bool zeroSize, const Tested<Operands> &...operands) {
    if (ZelmStatus status = checkSingle(zeroSize, operands...); status != kProceed)
        return status;
    if ((operands.hasNullEntry() || ...))
        return ZELM_ERR_NULL_PTR;
    return kProceed;
}

// An array form.
template <typename... Operands>
ZELM_INLINE ZelmStatus checkArray(bool zeroSize, std::uint32_t count, const Tested<Operands> &...operands) {
    if (ZelmStatus status = checkSingleWhole(zeroSize, operands...); status != kProceed)
        return status;
    return count == 0 ? ZELM_OK : kProceed;
}

} // namespace zelm::frame
