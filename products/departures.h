// The members of this subsystem that depart from their rows, each written out here. The catalogue names them
// and points their exported functions here.
#pragma once

#include "products/matrix_matrix.h"

namespace zelm::products::departures {

// zelmMul_mmT_32f, zelmMul_mmT_64f: the true product by the transpose of src2 as stored. All other forms of
// the row, and of all other rows with src2 transposed, run over src2Width columns and src2Height terms.
template <typename T>
ZELM_INLINE ZelmStatus multiplyByTranspose(const Dense<const T> &a, const Transposed<Dense<const T>> &b,
                                           const Dense<T> &d, MatrixSizes sizes) {
    using B = Transposed<Dense<const T>>;
    if (ZelmStatus status = checkSingle(isWrongSize<Dense<const T>, B>(sizes), a, b, d); status != kProceed)
        return status;
    return accumulateSingle(a, b, d, Bounds{sizes.height1, sizes.height2, sizes.width2}, Pitches{0, 0, 0});
}

// zelmMul_{mama,maTma,mamaT,maTmaT}_64f_{3x3,4x4,5x5,6x6}: where src2, its row stride, dst and its strides
// are multiples of 16, src1 doesn't advance, and every object is computed from object 0 of src1.
template <typename A, typename B, unsigned N>
ZELM_INLINE ZelmStatus advancingByAlignment(const A &a, const B &b, const DenseArray<double> &d,
                                            FixedSizes<N> sizes, std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, 0), tested(b, 0), tested(d, 0));
        status != kProceed)
        return status;
    if (isMultipleOf16(b.start | b.rowStride | d.start | d.objStride | d.rowStride)) {
        A first = a;
        first.objStride = 0;
        return multiplyFixed(first, b, d, sizes, count);
    }
    return multiplyFixed(a, b, d, sizes, count);
}

// zelmMul_{mam,maTm,mamT}_32f_3x3_P and _PS2: no table entry is tested. The table of src2 must be sound also
// where count is 0.
template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus multiplyUntested(const A &a, const B &b, const D &d, FixedSizes<3> sizes,
                                        std::uint32_t count) {
    if (ZelmStatus status = checkSingle(false, a, b, d); status != kProceed)
        return status;
    return count == 0 ? ZELM_OK : multiplyFixed(a, b, d, sizes, count);
}

// zelmMul_{mam,maTm,mamT,maTmT}_32f_3x3_LS2: no entry of src1Table or dstTable is tested.
template <typename List>
ZELM_INLINE auto untested(const List &list) {
    return Untested<List>(list);
}

template <typename List>
ZELM_INLINE auto untested(const Transposed<List> &list) {
    return Transposed<Untested<List>>(Untested<List>(list));
}

template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus multiplyUntestedLists(const A &a, const B &b, const D &d, FixedSizes<3> sizes,
                                             std::uint32_t count) {
    return multiplyArray(untested(a), b, untested(d), sizes, count);
}

} // namespace zelm::products::departures
