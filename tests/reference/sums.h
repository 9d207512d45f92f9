// Orders of a sum that several families share. The terms are rounded already; each addition rounds again.
#pragma once

#include "call.h"

#include <cstddef>
#include <vector>

namespace zelmref {

// Left to right from +0: a sum of negative zeros is +0.
template <class T>
T sumFromZero(const std::vector<T> &terms) {
    T sum = 0;
    for (const T term : terms)
        sum = sum + term;
    return sum;
}

// Left to right from the first term: a sum of negative zeros is -0.
template <class T>
T sumFromFirst(const std::vector<T> &terms) {
    T sum = terms[0];
    for (std::size_t t = 1; t < terms.size(); ++t)
        sum = sum + terms[t];
    return sum;
}

// The sum of a long vector whose elements are adjacent: several running sums from the first address at or
// behind `address` that is a multiple of 16.
template <class T>
T sumOfLongVector(const std::vector<T> &terms, Address address) {
    constexpr bool wide = sizeof(T) == 8;
    constexpr std::size_t threshold = wide ? 9 : 11, runningSums = wide ? 4 : 8;
    if (terms.size() < threshold || address % sizeof(T) != 0)
        return sumFromZero(terms);

    T s[8] = {};
    std::size_t t = 0;
    for (const std::size_t head = address % 16 == 0 ? 0 : (16 - address % 16) / sizeof(T); t < head; ++t)
        s[0] = s[0] + terms[t];
    for (std::size_t body = (terms.size() - t) / 8 * 8, n = 0; n < body; ++n, ++t)
        s[n % runningSums] = s[n % runningSums] + terms[t];

    T sum = wide ? (s[0] + s[2]) + (s[1] + s[3])
                 : ((s[0] + s[4]) + (s[1] + s[5])) + ((s[2] + s[6]) + (s[3] + s[7]));
    for (; t < terms.size(); ++t)
        sum = sum + terms[t];
    return sum;
}

} // namespace zelmref
