// Determinants of single matrices of order 6 in extended precision.
#include "solvers/asm/extended.h"

using namespace zelm::solvers;

int32_t a6_Det_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst) {
    return determinantOfOne(src, srcRowStride, dst, ByMinors<6>{});
}

int32_t a6_Det_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst) {
    return determinantOfOne(src, srcRowStride, dst, ByMinors<6>{});
}
