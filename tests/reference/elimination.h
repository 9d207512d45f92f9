// Elimination with partial pivoting as Det and Invert of run-time size do it: rows stay where they are.
#pragma once

#include "call.h"

#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace zelmref {

// What the pivots of a matrix came to. The product is that of the pivots, in T: that of two 32-bit floats is
// the same number whether it is made in T or made in 64-bit float and rounded.
template <class T>
struct Eliminated {
    T product = 1, last = 0;
    int sign = 1;
    bool stopped = false; // at a pivot below the threshold; product is 0 then
};

template <class T>
constexpr double eliminationThreshold = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52;

// Strictly above, although the pivots before it may be equal to the threshold.
template <class T>
bool lastPasses(const Eliminated<T> &e) {
    return std::fabs(static_cast<double>(e.last)) > eliminationThreshold<T>;
}

// `s` holds a matrix of order `order`. A 32-bit multiplier is divided in 64-bit float where `widened` is set.
template <class T>
Eliminated<T> eliminate(std::vector<T> s, std::uint32_t order, bool widened) {
    const auto magnitude = [](T x) { return std::fabs(static_cast<double>(x)); };
    // The 64-bit forms round the best magnitude, but not the candidates.
    const auto asBest = [](double m) {
        return sizeof(T) == 8 ? static_cast<double>(static_cast<float>(m)) : m;
    };

    Eliminated<T> result;
    std::vector<std::uint32_t> row(order);
    for (std::uint32_t i = 0; i < order; ++i)
        row[i] = i;
    const auto at = [&](std::uint32_t i, std::uint32_t j) -> T & { return s[row[i] * order + j]; };

    for (std::uint32_t k = 0; k + 1 < order; ++k) {
        double best = asBest(magnitude(at(k, k)));
        std::uint32_t bestPosition = k;
        for (std::uint32_t j = k + 1; j < order; ++j)
            if (magnitude(at(j, k)) > best) {
                best = asBest(magnitude(at(j, k)));
                bestPosition = j;
            }
        if (bestPosition != k) {
            std::swap(row[k], row[bestPosition]);
            result.sign = -result.sign;
        }
        const T p = at(k, k);
        if (!(magnitude(p) >= eliminationThreshold<T>)) {
            result.product = 0;
            result.stopped = true;
            break;
        }
        for (std::uint32_t j = k + 1; j < order; ++j) {
            const T quotient = at(j, k) / p;
            const T m = widened ? static_cast<T>(0.0 - static_cast<double>(at(j, k)) / static_cast<double>(p))
                                : 0 - quotient;
            for (std::uint32_t c = k + 1; c < order; ++c) {
                const T product = at(k, c) * m;
                at(j, c) = product + at(j, c);
            }
        }
        result.product = result.product * p;
    }
    result.last = at(order - 1, order - 1);
    return result;
}

// The product of all pivots with the sign of the exchanges.
template <class T>
T signedProduct(const Eliminated<T> &e) {
    const T last = e.last * static_cast<T>(e.sign);
    return e.product * last;
}

} // namespace zelmref
