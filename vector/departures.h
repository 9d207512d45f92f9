// The members of this subsystem that depart from their rows, each written out here. The catalogue names them
// and points their exported functions here.
#pragma once

#include "vector/dot_product.h"
#include "vector/l2_norm.h"

namespace zelm::vector::departures {

// zelmDotProduct_vav_32f_4x1 and its _L: the four products are summed in pairs.
template <typename A, typename B, typename T>
ZELM_INLINE ZelmStatus dotInPairs(const A &a, const B &b, T *dst, FixedShape<1, 4> shape,
                                  std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, 0), tested(b, 0), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
    return dotObjects<Sum::Pairs>(a, b, dst, shape, count);
}

// zelmDotProduct_vav_32f_3x1_L, zelmL2Norm_va_32f_4x1_L: no entry of the table is tested ...
template <typename T>
ZELM_INLINE ZelmStatus dotUntested(const DenseList<const T> &a, const Dense<const T> &b, T *dst,
                                   FixedShape<1, 3> shape, std::uint32_t count) {
    return dotArray(Untested(a), b, dst, shape, count);
}

template <typename T>
ZELM_INLINE ZelmStatus l2NormUntested(const DenseList<const T> &s, T *dst, FixedShape<1, 4> shape,
                                      std::uint32_t count) {
    return l2NormArray(Untested(s), dst, shape, count);
}

// ... nor in zelmDotProduct_vav_32f_4x1_L, which sums in pairs as well.
template <typename T>
ZELM_INLINE ZelmStatus dotUntestedInPairs(const DenseList<const T> &a, const Dense<const T> &b, T *dst,
                                          FixedShape<1, 4> shape, std::uint32_t count) {
    return dotInPairs(Untested(a), b, dst, shape, count);
}

// zelmDotProduct_vav_64f_3x1_L: the entries of all objects are tested before anything is written.
template <typename T>
ZELM_INLINE ZelmStatus dotTestingAllFirst(const DenseList<const T> &a, const Dense<const T> &b, T *dst,
                                          FixedShape<1, 3> shape, std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, 0), tested(b, 0), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
#pragma GCC unroll 4
    for (std::uint32_t k = 0; k < count; ++k)
        if (a.entryIsNull(k))
            return ZELM_ERR_NULL_PTR;
    return dotObjects<Sum::EvenOddThenRest>(a, b, dst, shape, count);
}

} // namespace zelm::vector::departures
