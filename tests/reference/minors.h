// Expansion by minors along the rows, from the top down.
#pragma once

#include <cstdint>
#include <vector>

namespace zelmref {

// A set of columns, one bit each.
using Columns = std::uint32_t;

// The minor of `columns` in the last rows of a matrix of order n, as many rows as columns. Each product,
// difference and sum is rounded to Number; `keep` is given each minor of order 2 and more but the whole
// determinant, and returns what is left of it where it is kept.
template <class Number, class Element, class Keep>
Number minor(const std::vector<Element> &a, std::uint32_t n, Columns columns, const Keep &keep) {
    std::uint32_t c[6], m = 0;
    for (std::uint32_t j = 0; j < n; ++j)
        if (columns >> j & 1)
            c[m++] = j;
    const std::uint32_t r = n - m;
    const auto at = [&](std::uint32_t i, std::uint32_t j) { return static_cast<Number>(a[i * n + j]); };

    Number sum = 0;
    if (m == 2) {
        const Number positive = at(r, c[0]) * at(r + 1, c[1]);
        const Number negative = at(r + 1, c[0]) * at(r, c[1]);
        sum = positive - negative;
    } else {
        for (std::uint32_t t = 0; t < m; ++t) {
            const Number rest = minor<Number>(a, n, columns & ~(Columns{1} << c[t]), keep);
            const Number x = at(r, c[t]) * rest;
            sum = t == 0 ? x : t % 2 == 1 ? sum - x : sum + x;
        }
    }
    return m < n ? keep(columns, m, sum) : sum;
}

} // namespace zelmref
