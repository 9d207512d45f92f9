// Expansion by minors along the rows, from the top down.
#pragma once

#include <bit>
#include <cstdint>
#include <vector>

namespace zelmref {

// A set of columns, one bit each.
using Columns = std::uint32_t;

// The determinant of a matrix of order n from 3 to 6. A set of m columns names the minor of these columns in
// the last m rows. Each product, difference and sum is rounded to Number; `keep` is given each minor but the
// whole determinant, and returns what is left of it where it is kept.
template <class Number, class Element, class Keep>
Number expandByMinors(const std::vector<Element> &a, std::uint32_t n, const Keep &keep) {
    const auto at = [&](std::uint32_t i, std::uint32_t j) { return static_cast<Number>(a[i * n + j]); };
    const Columns all = (Columns{1} << n) - 1;
    Number minors[64];
    for (Columns set = 3; set <= all; ++set) { // a part of a set comes before the set
        const auto m = static_cast<std::uint32_t>(std::popcount(set));
        if (m < 2)
            continue;
        std::uint32_t c[6], found = 0;
        for (std::uint32_t j = 0; j < n; ++j)
            if (set >> j & 1)
                c[found++] = j;
        const std::uint32_t r = n - m;
        Number sum = 0;
        if (m == 2) {
            const Number positive = at(r, c[0]) * at(r + 1, c[1]);
            const Number negative = at(r + 1, c[0]) * at(r, c[1]);
            sum = positive - negative;
        } else {
            for (std::uint32_t t = 0; t < m; ++t) {
                const Number x = at(r, c[t]) * minors[set & ~(Columns{1} << c[t])];
                sum = t == 0 ? x : t % 2 == 1 ? sum - x : sum + x;
            }
        }
        minors[set] = m < n ? keep(set, m, sum) : sum;
    }
    return minors[all];
}

} // namespace zelmref
