// Invert 3x3 and 4x4: the adjugate times the reciprocal of the determinant.
#include "approximations.h"
#include "inverse.h"

#include <algorithm>

namespace zelmref {
namespace {

template <class T>
T difference(T p, T q, T r, T s) {
    const T positive = p * q, negative = r * s;
    return positive - negative;
}

template <class T>
Cofactors<T> ofOrder3(const std::vector<T> &a, Forms forms) {
    const auto at = [&](std::uint32_t i, std::uint32_t j) { return a[i % 3 * 3 + j % 3]; };
    Cofactors<T> result{std::vector<T>(9), 0};
    for (std::uint32_t i = 0; i < 3; ++i)
        for (std::uint32_t j = 0; j < 3; ++j) // cyclic neighbours have the cofactor's sign in them
            result.c[i * 3 + j] =
                difference(at(i + 1, j + 1), at(i + 2, j + 2), at(i + 1, j + 2), at(i + 2, j + 1));
    const std::vector<T> &c = result.c;
    if (forms == Forms::Standard && sizeof(T) == 8) {
        const T first = a[0] * c[0], second = a[6] * c[6], third = a[3] * c[3];
        result.determinant = (first + second) + third;
    } else {
        const T first = a[0] * c[0], second = a[1] * c[1], third = a[2] * c[2];
        result.determinant = (first + second) + third;
    }
    return result;
}

template <class T>
Cofactors<T> ofOrder4(const std::vector<T> &a, Forms forms) {
    Cofactors<T> result{std::vector<T>(16), 0};
    std::vector<T> &c = result.c;
    for (std::uint32_t i = 0; i < 4; ++i) {
        const std::uint32_t row = i ^ 1;       // the other row of its half
        const std::uint32_t r = i < 2 ? 2 : 0; // the half whose minors are used
        const auto minor = [&](std::uint32_t p, std::uint32_t q) {
            return difference(a[r * 4 + p], a[r * 4 + 4 + q], a[r * 4 + 4 + p], a[r * 4 + q]);
        };
        for (std::uint32_t j = 0; j < 4; ++j) {
            std::uint32_t k[3], n = 0;
            for (std::uint32_t column = 0; column < 4; ++column)
                if (column != j)
                    k[n++] = column;
            const T first = a[row * 4 + k[0]] * minor(k[1], k[2]);
            const T second = a[row * 4 + k[1]] * minor(k[0], k[2]);
            const T third = a[row * 4 + k[2]] * minor(k[0], k[1]);
            c[i * 4 + j] = (i + j) % 2 == 0 ? (first - second) + third : (second - first) - third;
        }
    }
    if (forms == Forms::Strided) {
        result.determinant = a[0] * c[0];
        for (std::uint32_t j = 1; j < 4; ++j) {
            const T term = a[j] * c[j];
            result.determinant = result.determinant + term;
        }
    } else {
        const T t0 = a[0] * c[0], t1 = a[4] * c[4], t2 = a[8] * c[8], t3 = a[12] * c[12];
        result.determinant = (t1 + t3) + (t0 + t2);
    }
    return result;
}

} // namespace

float refinedReciprocal(float x) {
    const float r = approximateReciprocal(x);
    const float square = r * r, correction = x * square;
    return (r + r) - correction;
}

template <class T>
Cofactors<T> cofactorsOf(const std::vector<T> &a, std::uint32_t n, Forms forms) {
    return n == 3 ? ofOrder3(a, forms) : ofOrder4(a, forms);
}

template <class T>
std::vector<T> transposedTimes(const Cofactors<T> &cofactors, std::uint32_t n, T r) {
    std::vector<T> result(n * n);
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j)
            result[i * n + j] = cofactors.c[j * n + i] * r;
    return result;
}

template <class T>
std::optional<std::vector<T>> closedInverse(const std::vector<T> &a, std::uint32_t n, Forms forms) {
    const Cofactors<T> cofactors = cofactorsOf(a, n, forms);
    const T d = cofactors.determinant;
    T r = 1 / d;
    if (forms == Forms::Strided) {
        if (isInBand(d))
            return std::nullopt;
    } else if (sizeof(T) == 8 && n == 3) {
        if (r == 0)
            return std::nullopt;
    } else {
        if (d == 0)
            return std::nullopt;
        if (sizeof(T) == 4 && n == 3) {
            const float x = static_cast<float>(d), r0 = approximateReciprocal(x);
            const float product = x * r0, correction = product * r0;
            r = (r0 + r0) - correction;
        } else if (sizeof(T) == 4) {
            r = refinedReciprocal(static_cast<float>(d));
        }
    }
    return transposedTimes(cofactors, n, r);
}

template Cofactors<float> cofactorsOf(const std::vector<float> &, std::uint32_t, Forms);
template Cofactors<double> cofactorsOf(const std::vector<double> &, std::uint32_t, Forms);
template std::vector<float> transposedTimes(const Cofactors<float> &, std::uint32_t, float);
template std::vector<double> transposedTimes(const Cofactors<double> &, std::uint32_t, double);
template std::optional<std::vector<float>> closedInverse(const std::vector<float> &, std::uint32_t, Forms);
template std::optional<std::vector<double>> closedInverse(const std::vector<double> &, std::uint32_t, Forms);

} // namespace zelmref
