// The trees of the fixed-size products with a vector whose rows are read as whole vectors.
#pragma once

#include "cell.h"

#include <cstddef>
#include <vector>

namespace zelmref {

constexpr bool isAdjacent(const Cell &cell) {
    return cell.layout == Layout::Standard || cell.layout == Layout::L;
}

inline double treeOfProducts(const std::vector<double> &p, std::size_t, bool) {
    switch (p.size()) {
    case 3:
        return (p[0] + p[1]) + p[2];
    case 4:
        return (p[0] + p[1]) + (p[2] + p[3]);
    case 5:
        return ((p[0] + p[1]) + (p[2] + p[3])) + p[4];
    default:
        return ((p[0] + p[1]) + (p[2] + p[3])) + (p[4] + p[5]);
    }
}

inline float treeOfProducts(const std::vector<float> &p, std::size_t row, bool transposed) {
    switch (p.size()) {
    case 3:
        return (p[0] + p[1]) + p[2];
    case 4:
        return transposed ? (p[0] + p[1]) + (p[2] + p[3]) : (p[0] + p[2]) + (p[1] + p[3]);
    case 5:
        return transposed || row < 4 ? ((p[0] + p[1]) + p[4]) + (p[2] + p[3])
                                     : ((p[0] + p[2]) + p[4]) + (p[1] + p[3]);
    default:
        return transposed ? ((p[0] + p[1]) + (p[2] + p[3])) + (p[4] + p[5])
                          : ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
    }
}

} // namespace zelmref
