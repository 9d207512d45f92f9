// Determinants of single matrices of order 3 in extended precision. Each type sums in an order of its own.
#include "solvers/asm/extended.h"

using namespace zelm::solvers;

namespace {

struct AlongRow {
    ZELM_INLINE Extended operator()(const ExtendedElements<float> &a) const {
        Extended t[3];
        termsOfOrder3(a, t);
        return (t[1] + t[2]) + t[0];
    }
};

struct DownColumn {
    ZELM_INLINE Extended operator()(const ExtendedElements<double> &a) const {
        const Extended u0 = (a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1)) * a(0, 0);
        const Extended u1 = (a(2, 1) * a(0, 2) - a(0, 1) * a(2, 2)) * a(1, 0);
        const Extended u2 = (a(1, 2) * a(0, 1) - a(1, 1) * a(0, 2)) * a(2, 0);
        return (u2 + u0) + u1;
    }
};

} // namespace

int32_t a6_Det_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst) {
    return determinantOfOne(src, srcRowStride, dst, AlongRow{});
}

int32_t a6_Det_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst) {
    return determinantOfOne(src, srcRowStride, dst, DownColumn{});
}
