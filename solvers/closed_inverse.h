// Inverses of orders 2 to 4 in closed form, of one matrix or of one matrix per lane of V.
#pragma once

#include "frame/masks.h"
#include "frame/shuffles.h"

#include <bit>

namespace zelm::solvers {

using namespace zelm::frame;

template <typename V>
constexpr bool kIs32 = sizeof(ElementOf<V>) == 4;

// ---- what counts as a zero determinant

// The band -b < x < b of the forms that have a tolerance; a NaN and the bounds themselves lie outside.
constexpr double kBand32 = 1e-7, kBand64 = 1e-15;
static_assert(std::bit_cast<std::uint64_t>(kBand32) == 0x3E7AD7F29ABCAF48);
static_assert(std::bit_cast<std::uint64_t>(kBand64) == 0x3CD203AF9EE75616);
// For numbers of 32 bits the bound may be the next such number from b on.
constexpr float kBandOfFloats = 1e-7f;
static_assert(kBandOfFloats > kBand32 &&
              std::bit_cast<float>(std::bit_cast<std::uint32_t>(kBandOfFloats) - 1) < kBand32);

template <typename V>
ZELM_INLINE Mask<V> inBand(V x) {
    if constexpr (kIs32<V>)
        return greater(spread<V>(kBandOfFloats), magnitude(x));
    else
        return greater(spread<V>(kBand64), magnitude(x));
}

enum class Singular { InBand, Zero, ReciprocalZero };

// ---- reciprocals

template <typename V>
ZELM_INLINE V reciprocal(V x) {
    return spread<V>(1) / x;
}

ZELM_INLINE float approximateReciprocal(float x) {
    return firstLane(Floats4(_mm_rcp_ss(spread<Floats4>(x))));
}
ZELM_INLINE Floats4 approximateReciprocal(Floats4 x) {
    return _mm_rcp_ps(x);
}
#if defined(__AVX2__)
ZELM_INLINE Floats8 approximateReciprocal(Floats8 x) {
    return _mm256_rcp_ps(x);
}
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
// 512 bits have an approximation of their own only, with other bits.
ZELM_INLINE Floats16 approximateReciprocal(Floats16 x) {
    return joined(Floats8(_mm256_rcp_ps(lowHalf(x))), Floats8(_mm256_rcp_ps(highHalf(x))));
}
#endif

// The processor's approximation with one Newton step, bracketed as orders 3 and 4 have it.
template <typename V>
ZELM_INLINE V reciprocalOfOrder3(V x) {
    const V r = approximateReciprocal(x);
    return (r + r) - (x * r) * r;
}
template <typename V>
ZELM_INLINE V reciprocalOfOrder4(V x) {
    const V r = approximateReciprocal(x);
    return (r + r) - x * (r * r);
}

// ---- cofactors; c[i][j] is that of element (i, j), with its sign

template <typename V>
ZELM_INLINE void cofactors(const V (&a)[3][3], V (&c)[3][3]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < 3; ++i) {
        const unsigned p = (i + 1) % 3, q = (i + 2) % 3;
        c[i][0] = a[p][1] * a[q][2] - a[p][2] * a[q][1];
        c[i][1] = a[p][2] * a[q][0] - a[p][0] * a[q][2];
        c[i][2] = a[p][0] * a[q][1] - a[p][1] * a[q][0];
    }
}

// The cofactors of rows i and i^1 from that row and the order 2 minors of the other two: m[0] to m[5] are
// those of the columns 01, 02, 03, 12, 13, 23. Each is (x - y) + z or, where its sign is minus, (y - x) - z.
template <typename V>
ZELM_INLINE void cofactorsOfRow(const V (&row)[4], const V (&m)[6], bool negative, V (&c)[4]) {
    const auto sum = [negative](V x, V y, V z, bool minus)
                         ZELM_INLINE_LAMBDA { return negative != minus ? (y - x) - z : (x - y) + z; };
    c[0] = sum(row[1] * m[5], row[2] * m[4], row[3] * m[3], false);
    c[1] = sum(row[0] * m[5], row[2] * m[2], row[3] * m[1], true);
    c[2] = sum(row[0] * m[4], row[1] * m[2], row[3] * m[0], false);
    c[3] = sum(row[0] * m[3], row[1] * m[1], row[2] * m[0], true);
}

template <typename V>
ZELM_INLINE void minorsOfRows(const V (&upper)[4], const V (&lower)[4], V (&m)[6]) {
    unsigned number = 0;
    ZELM_UNROLL
    for (unsigned c = 0; c < 4; ++c) {
        ZELM_UNROLL
        for (unsigned d = c + 1; d < 4; ++d)
            m[number++] = upper[c] * lower[d] - lower[c] * upper[d];
    }
}

template <typename V>
ZELM_INLINE void cofactors(const V (&a)[4][4], V (&c)[4][4]) {
    V m[6];
    minorsOfRows(a[2], a[3], m);
    cofactorsOfRow(a[1], m, false, c[0]);
    cofactorsOfRow(a[0], m, true, c[1]);
    minorsOfRows(a[0], a[1], m);
    cofactorsOfRow(a[3], m, false, c[2]);
    cofactorsOfRow(a[2], m, true, c[3]);
}

// ---- the determinant from its cofactors

// Along row 0, but down column 0 in the dense forms of order 3 in 64-bit float and of order 4, which add in
// pairs.
template <bool dense, typename V, unsigned N>
ZELM_INLINE V determinantFrom(const V (&a)[N][N], const V (&c)[N][N]) {
    if constexpr (N == 3 && dense && !kIs32<V>)
        return (a[0][0] * c[0][0] + a[2][0] * c[2][0]) + a[1][0] * c[1][0];
    else if constexpr (N == 3)
        return (a[0][0] * c[0][0] + a[0][1] * c[0][1]) + a[0][2] * c[0][2];
    else if constexpr (dense)
        return (a[1][0] * c[1][0] + a[3][0] * c[3][0]) + (a[0][0] * c[0][0] + a[2][0] * c[2][0]);
    else
        return ((a[0][0] * c[0][0] + a[0][1] * c[0][1]) + a[0][2] * c[0][2]) + a[0][3] * c[0][3];
}

// ---- inverses; the result is the lanes whose matrix counts as singular

// `dense` is the rule of the standard and L forms, otherwise that of the other layouts.
template <bool dense, Singular singular, typename V, unsigned N>
ZELM_INLINE Mask<V> invertClosed(const V (&a)[N][N], V (&inverse)[N][N]) {
    V c[N][N];
    cofactors(a, c);
    const V det = determinantFrom<dense>(a, c);
    V r;
    if constexpr (dense && kIs32<V>)
        r = N == 3 ? reciprocalOfOrder3(det) : reciprocalOfOrder4(det);
    else
        r = reciprocal(det);
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            inverse[i][j] = c[j][i] * r;
    }
    if constexpr (singular == Singular::InBand)
        return inBand(det);
    else
        return equal(singular == Singular::Zero ? det : r, V{});
}

template <typename V>
ZELM_INLINE V determinantOfOrder2(V a00, V a01, V a10, V a11) {
    return a00 * a11 - a01 * a10;
}

// Order 2 is always judged by the band.
template <typename V>
ZELM_INLINE Mask<V> invertOrder2(const V (&a)[2][2], V (&inverse)[2][2]) {
    const V det = determinantOfOrder2(a[0][0], a[0][1], a[1][0], a[1][1]);
    const V r = reciprocal(det);
    inverse[0][0] = a[1][1] * r;
    inverse[0][1] = -a[0][1] * r;
    inverse[1][0] = -a[1][0] * r;
    inverse[1][1] = a[0][0] * r;
    return inBand(det);
}

} // namespace zelm::solvers
