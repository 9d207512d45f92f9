// Determinants of single matrices of order 4 in extended precision.
#include "solvers/asm/extended.h"

using namespace zelm::solvers;

int32_t a6_Det_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst) {
    return determinantOfOne(src, srcRowStride, dst, ByMinors<4>{});
}

int32_t a6_Det_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst) {
    return determinantOfOne(src, srcRowStride, dst, ByMinors<4>{});
}
