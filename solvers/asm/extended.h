// What the extended-precision kernels share. `long double` is the x87 format on both targets and with both
// compilers: elements are loaded exact, every operation stays on the floating-point stack or in a place of
// full width, and a value is rounded to the element type only where a cast says so. The control word is the
// caller's.
//
// All of it must vanish in the kernels: no other function of the library may use x87.
#pragma once

#include "frame/operands.h"
#include "solvers/expansion.h"
#include "zelm/solvers.h"

namespace zelm::solvers {

using Extended = long double;

// The private result of a kernel at a null entry.
constexpr std::int32_t kNullEntry = -2;

template <typename T>
struct ExtendedElements {
    Dense<const T> object;
    ZELM_INLINE Extended operator()(unsigned i, unsigned j) const { return object.get(i, j, 0); }
};

// How many minors of an order are rounded to T, as the stack's eight places can't hold them all: the first
// ones in lexicographic order of their columns.
template <typename T, unsigned N>
constexpr unsigned roundedMinors(unsigned order) {
    if (N == 4)
        return order == 2 ? 1 : 0;
    if (N == 5)
        return order == 2 ? 7 : order == 3 ? 8 : 0;
    return order == 2 ? 15 : order == 3 ? 20 : order == 4 ? (sizeof(T) == 4 ? 9 : 10) : 0;
}

template <typename T, unsigned N>
struct RoundSomeMinors {
    ZELM_INLINE Extended operator()(unsigned order, unsigned number, Extended minor) const {
        return number < roundedMinors<T, N>(order) ? static_cast<Extended>(static_cast<T>(minor)) : minor;
    }
};

// Orders 4 to 6: one tree for all kernels of a type and size.
template <unsigned N>
struct ByMinors {
    template <typename T>
    ZELM_INLINE Extended operator()(const ExtendedElements<T> &a) const {
        return expandByMinors<N, Extended>(a, RoundSomeMinors<T, N>{});
    }
};

template <typename T, typename Value>
ZELM_INLINE void storeDeterminant(const Dense<const T> &object, Address dst, Value value) {
    store(dst, static_cast<T>(value(ExtendedElements<T>{object})));
}

template <typename T, typename Value>
ZELM_INLINE std::int32_t determinantOfOne(const T *src, std::int32_t rowStride, T *dst, Value value) {
    storeDeterminant(Dense<const T>(src, rowStride), addressOf(dst), value);
    return 0;
}

template <typename T, typename Value>
ZELM_INLINE void determinantsOfArray(const T *src, std::int32_t objStride, std::int32_t rowStride, T *dst,
                                     std::uint32_t count, Value value) {
    const DenseArray<const T> objects(src, objStride, rowStride);
    for (std::uint32_t k = 0; k < count; ++k)
        storeDeterminant(objects.object(k), addressOf(dst) + Address{k} * sizeof(T), value);
}

template <typename T, typename Value>
ZELM_INLINE std::int32_t determinantsOfList(const T *const *table, std::int32_t shift, std::int32_t rowStride,
                                            T *dst, std::uint32_t count, Value value) {
    const DenseList<const T> objects(table, shift, rowStride);
    for (std::uint32_t k = 0; k < count; ++k) {
        if (objects.entryIsNull(k))
            return kNullEntry;
        storeDeterminant(objects.object(k), addressOf(dst) + Address{k} * sizeof(T), value);
    }
    return 0;
}

} // namespace zelm::solvers
