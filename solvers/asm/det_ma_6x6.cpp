// Determinants of arrays of matrices of order 6 in extended precision.
#include "solvers/asm/extended.h"

using namespace zelm::solvers;

void a6_Det_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
                       uint32_t count) {
    determinantsOfArray(src, srcObjStride, srcRowStride, dst, count, ByMinors<6>{});
}

void a6_Det_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
                       uint32_t count) {
    determinantsOfArray(src, srcObjStride, srcRowStride, dst, count, ByMinors<6>{});
}

int32_t a6_Det_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride, float *dst,
                            uint32_t count) {
    return determinantsOfList(srcTable, srcShift, srcRowStride, dst, count, ByMinors<6>{});
}

int32_t a6_Det_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
                            double *dst, uint32_t count) {
    return determinantsOfList(srcTable, srcShift, srcRowStride, dst, count, ByMinors<6>{});
}
