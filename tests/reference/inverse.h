// The methods of Invert. A matrix is a list of its elements, row by row.
#pragma once

#include "call.h"

#include <functional>
#include <optional>
#include <vector>

namespace zelmref {

// The forms differ by layout: S2, P, PS2 and LS2 judge by bands, the standard and L layouts have ways of
// their own.
enum class Forms { Strided, Standard };

// Not outside: a NaN is not inside the band, and neither are its bounds.
template <class T>
bool isInBand(T x) {
    const double bound = sizeof(T) == 4 ? 1e-7 : 1e-15;
    const double widened = static_cast<double>(x);
    return widened > -bound && !(widened >= bound);
}

// Orders 3 and 4.
template <class T>
struct Cofactors {
    std::vector<T> c; // c[i*n + j] belongs to element (i, j)
    T determinant;
};

template <class T>
Cofactors<T> cofactorsOf(const std::vector<T> &a, std::uint32_t n, Forms forms);

template <class T>
std::vector<T> transposedTimes(const Cofactors<T> &cofactors, std::uint32_t n, T r);

// The processor's approximation of 1 / x after a Newton step, bracketed as in the forms of order 4 to 6.
float refinedReciprocal(float x);

// The inverse, or nothing where the method judges the matrix singular.
template <class T>
std::optional<std::vector<T>> closedInverse(const std::vector<T> &a, std::uint32_t n, Forms forms);

// Orders 5 and 6, all but the 32f standard forms.
template <class T>
std::optional<std::vector<T>> blockInverse(const std::vector<T> &a, std::uint32_t n, Forms forms);

// Orders 5 and 6, 32f standard forms, which keep their pivot rows in dst.
using SetDst = std::function<void(std::uint32_t i, std::uint32_t j, float value)>;
std::optional<std::vector<float>> singlePivotInverse(const std::vector<float> &a, std::uint32_t n,
                                                     const SetDst &setDst);

} // namespace zelmref
