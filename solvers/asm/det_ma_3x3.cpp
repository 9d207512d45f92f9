// Determinants of arrays of matrices of order 3 in extended precision. Arrays and lists sum in different
// orders.
#include "solvers/asm/extended.h"

using namespace zelm::solvers;

namespace {

struct OfArray {
    template <typename T>
    ZELM_INLINE Extended operator()(const ExtendedElements<T> &a) const {
        Extended t[3];
        termsOfOrder3(a, t);
        return (t[2] + t[0]) + t[1];
    }
};

struct OfList {
    template <typename T>
    ZELM_INLINE Extended operator()(const ExtendedElements<T> &a) const {
        Extended t[3];
        termsOfOrder3(a, t);
        return (t[2] + t[1]) + t[0];
    }
};

} // namespace

void a6_Det_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
                       uint32_t count) {
    determinantsOfArray(src, srcObjStride, srcRowStride, dst, count, OfArray{});
}

void a6_Det_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
                       uint32_t count) {
    determinantsOfArray(src, srcObjStride, srcRowStride, dst, count, OfArray{});
}

int32_t a6_Det_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride, float *dst,
                            uint32_t count) {
    return determinantsOfList(srcTable, srcShift, srcRowStride, dst, count, OfList{});
}

int32_t a6_Det_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
                            double *dst, uint32_t count) {
    return determinantsOfList(srcTable, srcShift, srcRowStride, dst, count, OfList{});
}
