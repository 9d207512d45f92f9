// Calls of Invert by form and order, matrices of a given condition, and how good an inverse is.
#pragma once

#include "zelm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <type_traits>
#include <vector>
#include <xmmintrin.h>

namespace zelmtest {

inline float rawReciprocal(float x) {
    return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
}

// As the 32f standard forms of order 4 to 6 bracket the Newton step.
inline float refinedReciprocal(float x) {
    const float r = rawReciprocal(x), square = r * r, correction = x * square;
    return (r + r) - correction;
}

template <class T>
struct Inverted {
    ZelmStatus status;
    std::vector<T> elements; // 7 where nothing was written
};

enum class Form { RunTime, Standard, S2 };

template <class T>
Inverted<T> invert(Form form, std::uint32_t n, const std::vector<T> &a) {
    constexpr auto e = static_cast<std::int32_t>(sizeof(T));
    const std::int32_t row = static_cast<std::int32_t>(n) * e;
    std::vector<T> scratch(n * n + n), x(n * n, 7);
    using Standard = ZelmStatus (*)(const T *, std::int32_t, T *, std::int32_t);
    using S2 = ZelmStatus (*)(const T *, std::int32_t, std::int32_t, T *, std::int32_t, std::int32_t);
    const auto call = [&](auto runTime, Standard three, Standard four, Standard five, Standard six,
                          S2 threeS2, S2 fourS2, S2 fiveS2, S2 sixS2) {
        const Standard standard[] = {three, four, five, six};
        const S2 s2[] = {threeS2, fourS2, fiveS2, sixS2};
        if (form == Form::RunTime)
            return runTime(a.data(), row, n, scratch.data(), x.data(), row);
        return form == Form::Standard ? standard[n - 3](a.data(), row, x.data(), row)
                                      : s2[n - 3](a.data(), row, e, x.data(), row, e);
    };
    ZelmStatus status;
    if constexpr (sizeof(T) == 4)
        status = call(zelmInvert_m_32f, zelmInvert_m_32f_3x3, zelmInvert_m_32f_4x4, zelmInvert_m_32f_5x5,
                      zelmInvert_m_32f_6x6, zelmInvert_m_32f_3x3_S2, zelmInvert_m_32f_4x4_S2,
                      zelmInvert_m_32f_5x5_S2, zelmInvert_m_32f_6x6_S2);
    else
        status = call(zelmInvert_m_64f, zelmInvert_m_64f_3x3, zelmInvert_m_64f_4x4, zelmInvert_m_64f_5x5,
                      zelmInvert_m_64f_6x6, zelmInvert_m_64f_3x3_S2, zelmInvert_m_64f_4x4_S2,
                      zelmInvert_m_64f_5x5_S2, zelmInvert_m_64f_6x6_S2);
    return {status, x};
}

template <class T>
std::vector<T> unit(std::uint32_t n) {
    std::vector<T> a(n * n);
    for (std::uint32_t i = 0; i < n; ++i)
        a[i * n + i] = 1;
    return a;
}

// Singular values of 1 and a last one of 1 / condition, reflected at random on both sides.
template <class T>
std::vector<T> randomMatrix(std::mt19937 &random, std::uint32_t n, double condition) {
    std::vector<long double> a(n * n);
    for (std::uint32_t i = 0; i < n; ++i)
        a[i * n + i] = i + 1 == n ? 1 / static_cast<long double>(condition) : 1;
    for (int reflection = 0; reflection < 4; ++reflection) {
        std::vector<long double> v(n);
        long double square = 0;
        for (long double &x : v) {
            x = random() * 0x1p-31L - 1;
            square += x * x;
        }
        const bool rows = reflection % 2 == 0;
        for (std::uint32_t k = 0; k < n; ++k) {
            const auto at = [&](std::uint32_t t) -> long double & {
                return rows ? a[t * n + k] : a[k * n + t];
            };
            long double dot = 0;
            for (std::uint32_t t = 0; t < n; ++t)
                dot += v[t] * at(t);
            for (std::uint32_t t = 0; t < n; ++t)
                at(t) -= 2 * dot / square * v[t];
        }
    }
    return std::vector<T>(a.begin(), a.end());
}

// The greatest element of |A * X - I|.
template <class T>
double residual(const std::vector<T> &a, const std::vector<T> &x, std::uint32_t n) {
    long double greatest = 0;
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j) {
            long double sum = i == j ? -1 : 0;
            for (std::uint32_t k = 0; k < n; ++k)
                sum += static_cast<long double>(a[i * n + k]) * x[k * n + j];
            greatest = std::fabs(sum) <= greatest ? greatest : std::fabs(sum);
        }
    return static_cast<double>(greatest);
}

} // namespace zelmtest
