// Values for operands: some thousands of different objects, so that no processor learns what it branches on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zelmbench {

inline constexpr std::size_t distinctObjects = 4000;

// Uniform numbers between -1 and 1.
std::vector<double> randomValues(std::size_t elements, unsigned seed);

// Square matrices of order n that no solver has trouble with, and whose pivots are chosen in all orders.
const std::vector<double> &generalMatrices(std::size_t n);
const std::vector<double> &positiveDefiniteMatrices(std::size_t n);

// What the decompositions make of those matrices, in the form in which the library keeps them.
struct Factors {
    std::vector<double> values;
    std::vector<std::uint32_t> pivots;
};
const Factors &luFactors(std::size_t n);
const Factors &choleskyFactors(std::size_t n);
const Factors &qrFactors(std::size_t n);

} // namespace zelmbench
