// Calls of every family by views, each beside the C call with its constants filled in: no_cost.py compares
// their code.
#include <utility>

#include "zelm.hpp"

#define BOTH(name, parameters, by_views, by_c)                                                               \
    extern "C" ZelmStatus views_##name parameters {                                                          \
        return (by_views).status();                                                                          \
    }                                                                                                        \
    extern "C" ZelmStatus c_##name parameters {                                                              \
        return by_c;                                                                                         \
    }

namespace {

using namespace zelm;

struct Filter {
    float id;
    double K[4][4], HP[4][4], KHP[4][4], x[4], b[4];
    double u, v, w;
};
using Filters = std::array<Filter, 100>;
struct Point {
    float at[3], to[3];
    int colour;
};
using Points = std::array<Point, 50>;
using M3 = std::array<std::array<float, 3>, 3>;
constexpr std::int32_t kFilter = sizeof(Filter), kPoint = sizeof(Point);

} // namespace

BOTH(mul_mama, (Filters & f), mul(field(f, &Filter::K), field(f, &Filter::HP), field(f, &Filter::KHP)),
     zelmMul_mama_64f_4x4_S2(&f[0].K[0][0], kFilter, 32, 8, &f[0].HP[0][0], kFilter, 32, 8, &f[0].KHP[0][0],
                             kFilter, 32, 8, 100))
BOTH(mul_mva, (const float (&a)[3][3], Points &p),
     mul(a, field(std::as_const(p), &Point::at), field(p, &Point::to)),
     zelmMul_mva_32f_3x3(&a[0][0], 12, p[0].at, kPoint, p[0].to, kPoint, 50))
BOTH(mul_mTv, (const float (&a)[5][5], const float (&x)[5], float (&y)[5]), mul(transposed(a), x, y),
     zelmMul_mTv_32f_5x5(&a[0][0], 20, x, y))
BOTH(mul_of_any_shape, (const double (&a)[2][3], const double (&b)[3][5], double (&c)[2][5]), mul(a, b, c),
     zelmMul_mm_64f(&a[0][0], 24, 3, 2, &b[0][0], 40, 5, 3, &c[0][0], 40))
BOTH(mul_constant, (Points & p, float s), mul(s, field(p, &Point::at), field(p, &Point::to)),
     zelmMul_vac_32f_3x1(p[0].at, kPoint, s, p[0].to, kPoint, 50))
BOTH(add_vav, (Points & p, const float (&by)[3]), add(field(p, &Point::at), by, field(p, &Point::at)),
     zelmAdd_vav_32f_3x1(p[0].at, kPoint, by, p[0].at, kPoint, 50))
BOTH(add_commuted, (Points & p, const float (&by)[3]), add(by, field(p, &Point::at), field(p, &Point::at)),
     zelmAdd_vav_32f_3x1(p[0].at, kPoint, by, p[0].at, kPoint, 50))
BOTH(sub_mmT, (const M3 &a, const M3 &b, M3 &c), sub(a, transposed(b), c),
     zelmSub_mmT_32f_3x3(a[0].data(), 12, b[0].data(), 12, c[0].data(), 12))
BOTH(axpy, (double s, const double *x, const double *y, double *z, std::uint32_t n),
     axpy(s, as_vector<6>(x), as_vector<6>(y), as_vector<6>(z)), ((void)n, zelmSaxpy_vv_64f_6x1(x, s, y, z)))
BOTH(lincomb, (const double *x, const double *y, double *z),
     lincomb(2.0, as_vectors<4>(x, 9), 3.0, as_vectors<4>(y, 9), as_vectors<4>(z, 9)),
     zelmLComb_vava_64f_4x1(x, 32, 2.0, y, 32, 3.0, z, 32, 9))
BOTH(dot, (Points & p, float (&out)[50]), dot(field(p, &Point::at), field(p, &Point::to), out),
     zelmDotProduct_vava_32f_3x1(p[0].at, kPoint, p[0].to, kPoint, out, 50))
BOTH(cross, (const double (&a)[3], const double (&b)[3], double (&c)[3]), cross(a, b, c),
     zelmCrossProduct_vv_64f_3x1(a, b, c))
BOTH(norm, (Filters & f, double (&out)[100]), norm(field(f, &Filter::x), out),
     zelmL2Norm_va_64f_4x1(f[0].x, kFilter, out, 100))
BOTH(frobenius_norm, (const double (&a)[6][6], double &out), frobenius_norm(a, out),
     zelmFrobNorm_m_64f_6x6(&a[0][0], 48, &out))
BOTH(trace, (Filters & f, double (&out)[100]), trace(field(f, &Filter::K), out),
     zelmTrace_ma_64f_4x4(&f[0].K[0][0], kFilter, 32, out, 100))
BOTH(gaxpy, (const double (&a)[4][4], Filters &f),
     gaxpy(a, field(f, &Filter::x), field(f, &Filter::b), field(f, &Filter::b)),
     zelmGaxpy_va_64f_4x4(&a[0][0], 32, f[0].x, kFilter, f[0].b, kFilter, f[0].b, kFilter, 100))
BOTH(det, (Filters & f, double (&out)[100]), det(field(f, &Filter::K), out),
     zelmDet_ma_64f_4x4(&f[0].K[0][0], kFilter, 32, out, 100))
BOTH(solve_cholesky, (Filters & f),
     solve(cholesky_factor(field(f, &Filter::K)), field(f, &Filter::b), field(f, &Filter::x)),
     zelmCholeskyBackSubst_mava_64f_4x4(&f[0].K[0][0], kFilter, 32, f[0].b, kFilter, f[0].x, kFilter, 100))
BOTH(solve_lu, (const double (&a)[5][5], const std::uint32_t (&p)[5], const double (&b)[5], double (&x)[5]),
     solve(lu_factors(a, p), b, x), zelmLUBackSubst_mv_64f_5x5(&a[0][0], 40, p, b, x))
BOTH(inverse_one, (const float (&a)[4][4], float (&b)[4][4]), inverse(a, b),
     zelmInvert_m_32f_4x4(&a[0][0], 16, &b[0][0], 16))
BOTH(cholesky_one, (const double (&a)[3][3], double (&b)[3][3]), cholesky(a, cholesky_factor(b)),
     zelmCholeskyDecomp_m_64f_3x3(&a[0][0], 24, &b[0][0], 24))
BOTH(transpose, (const float (&a)[4][6], float (&b)[6][4]), transpose(a, b),
     zelmTranspose_m_32f(&a[0][0], 24, 6, 4, &b[0][0], 16))

// Where an array may end early, the object is looked for behind the call: the same up to it.
BOTH(until_list, (float *const *from, float *const *to),
     mul(as_vectors_by_object<3>(from, 7), 2, as_vectors_by_object<3>(to, 7)),
     zelmMul_vac_32f_3x1_L(from, 0, 2, to, 0, 7))
BOTH(until_lu, (Filters & f, std::array<std::uint32_t, 400> &p),
     lu(field(f, &Filter::K), lu_factors(field(f, &Filter::HP), p)),
     zelmLUDecomp_ma_64f_4x4(&f[0].K[0][0], kFilter, 32, p.data(), &f[0].HP[0][0], kFilter, 32, 100))
BOTH(until_qr, (Filters & f, std::array<double, 4> &s),
     qr(field(f, &Filter::K), qr_factors(field(f, &Filter::HP), s)),
     zelmQRDecomp_ma_64f_4x4(&f[0].K[0][0], kFilter, 32, s.data(), &f[0].HP[0][0], kFilter, 32, 100))
BOTH(until_inverse, (Filters & f), inverse(field(f, &Filter::K), field(f, &Filter::HP)),
     zelmInvert_ma_64f_4x4(&f[0].K[0][0], kFilter, 32, &f[0].HP[0][0], kFilter, 32, 100))
