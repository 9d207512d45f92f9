// The numbers that a case is made of, as bits of the element type.
#pragma once

#include "random.h"

#include <cstdint>
#include <vector>

namespace zelmtest {

enum class Style {
    Plain,     // about 1 in magnitude, both signs
    Small,     // integers from -3 to 3: ties and exact zeros
    Special,   // zeros, infinities, NaNs, denormals, limits
    Mixed,     // plain with a few special ones
    AnyBits,   // every bit pattern is as likely
    Wide,      // magnitudes so far apart that quotients underflow and overflow
    Threshold, // about 2^-23: at, below and above it
    Signs,     // zeros and ones of both signs
};

constexpr std::uint32_t styleCount = 8;

// One number of 32 or 64 bits.
std::uint64_t drawNumber(Random &random, Style style, bool wide64);

// A square matrix, row by row, made to try pivoting: in `style`, or, for Threshold, a permuted triangular
// matrix with one pivot at the threshold.
void drawMatrix(Random &random, Style style, bool wide64, std::uint32_t n,
                std::vector<std::uint64_t> &elements);

// A square matrix to invert: as drawMatrix makes them, some of them with a first row to search in, with a
// leading pair of columns to pass over, singular, or, for Threshold, with a determinant or pivot where a test
// turns over.
void drawSquare(Random &random, Style style, bool wide64, std::uint32_t n,
                std::vector<std::uint64_t> &elements);

// A symmetric matrix, row by row: for Plain a positive definite one, for Threshold one with exact pivots of
// which one is 0, negative or tiny, else one whose numbers are partly in `style`. Above the diagonal there
// may be anything.
void drawSymmetricMatrix(Random &random, Style style, bool wide64, std::uint32_t n,
                         std::vector<std::uint64_t> &elements);

// A matrix of any shape, row by row, in `style`, or, for Threshold, with a column whose squares sum to about
// 2^-23 when its turn comes.
void drawColumns(Random &random, Style style, bool wide64, std::uint32_t rows, std::uint32_t columns,
                 std::vector<std::uint64_t> &elements);

} // namespace zelmtest
