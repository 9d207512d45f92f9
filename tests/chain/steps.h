// The chain: what is called one after the other, on which operands, and how far the results must agree.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace chain {

// Rows and columns of an operand: of h and w, or a number. A vector has one row, a result one element.
struct Dimensions {
    char rows, columns;
};
extern const std::map<std::string_view, Dimensions> operands;

// Which calls give the same bits.
enum class Agreement {
    Everywhere, // all layouts, run-time and fixed sizes
    Trees,    // the fixed sizes of the standard and L layouts sum in trees of their own, all others in order
    Trees64f, // the same, but in 64f only
    EachTree, // the same, and the trees depend on where an object lies
    Elimination, // run-time sizes eliminate, fixed sizes have closed forms: one for standard and L, one for
                 // the others
    Closed,      // the same, and the closed forms may sum as they like
    Roots,       // P and PS2 take their roots in 32f, the others in 64f
};

// How far calls may differ that need not give the same bits, relative to the unit roundoff.
enum class Bound {
    None,
    Sum,      // another order of K products and a term: K + 2 times the largest sum of their magnitudes
    Relative, // another order of K positive terms, and a root from an approximation: K + 16 times the result
    Solution, // another elimination of h unknowns: h^3 times the condition number, which is at most 1 + w,
              // times the largest element of the object
};

struct Step {
    const char *operation, *descriptor;
    std::string_view sources[3], result;
    Agreement agreement;
    Bound bound = Bound::None;
};
extern const std::span<const Step> steps;

// Calls with the same key must give the same bits.
std::string keyOf(Agreement agreement, std::string_view type, bool isFixed, std::string_view layout);

// What holds between results apart from rounding: the left one, or its square, is the right one, or zero if
// that has no name.
struct Relation {
    std::string_view left, right;
    bool squaresLeft = false;
};
extern const std::span<const Relation> relations;

} // namespace chain
