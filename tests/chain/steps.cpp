#include "steps.h"

namespace chain {

const std::map<std::string_view, Dimensions> operands = {
    // random numbers
    {"M", {'h', 'w'}},
    {"N", {'h', 'w'}},
    {"x", {'1', 'w'}},
    {"y", {'1', 'h'}},
    {"p", {'1', '3'}},
    {"q", {'1', '3'}},
    // an array of identities, and object 0 of M
    {"I", {'h', 'h'}},
    {"M0", {'h', 'w'}},
    // results
    {"Mt", {'w', 'h'}},
    {"G", {'h', 'h'}},
    {"hI", {'h', 'h'}},
    {"S", {'h', 'h'}},
    {"sum", {'h', 'w'}},
    {"back", {'h', 'w'}},
    {"Mx", {'1', 'h'}},
    {"M0x+y", {'1', 'h'}},
    {"saxpy", {'1', 'h'}},
    {"lcomb", {'1', 'h'}},
    {"difference", {'1', 'h'}},
    {"restored", {'1', 'h'}},
    {"scaled", {'1', 'h'}},
    {"pxq", {'1', '3'}},
    {"dot", {'1', '1'}},
    {"pxq.p", {'1', '1'}},
    {"|Mx|", {'1', '1'}},
    {"Mx.Mx", {'1', '1'}},
    {"|M|", {'1', '1'}},
    {"trace", {'1', '1'}},
    {"det", {'1', '1'}},
    {"inverse", {'h', 'h'}},
    {"S*inverse", {'h', 'h'}},
    {"LU", {'h', 'h'}},
    {"Cholesky", {'h', 'h'}},
    {"QR", {'h', 'h'}},
    {"byLU", {'1', 'h'}},
    {"byCholesky", {'1', 'h'}},
    {"byQR", {'1', 'h'}},
    {"S*byLU", {'1', 'h'}},
};

namespace {

using enum Agreement;

// S = M M^T + h I is symmetric, its eigenvalues lie between h and h + h w.
const Step chainOfSteps[] = {
    {"Transpose", "ma", {"M"}, "Mt", Everywhere},
    {"Mul", "mama", {"M", "Mt"}, "G", Everywhere},
    {"Mul", "mac", {"I"}, "hI", Everywhere},
    {"Add", "mama", {"G", "hI"}, "S", Everywhere},
    {"Add", "mama", {"M", "N"}, "sum", Everywhere},
    {"Sub", "mama", {"sum", "N"}, "back", Everywhere},
    {"Mul", "mava", {"M", "x"}, "Mx", Trees, Bound::Sum},
    {"Gaxpy", "va", {"M0", "x", "y"}, "M0x+y", Trees, Bound::Sum},
    {"Saxpy", "vava", {"Mx", "y"}, "saxpy", Everywhere},
    {"LComb", "vava", {"Mx", "y"}, "lcomb", Everywhere},
    {"Sub", "vava", {"saxpy", "lcomb"}, "difference", Everywhere},
    {"Add", "vava", {"difference", "lcomb"}, "restored", Everywhere},
    {"Mul", "vac", {"difference"}, "scaled", Everywhere},
    {"CrossProduct", "vava", {"p", "q"}, "pxq", Everywhere},
    {"DotProduct", "vava", {"pxq", "p"}, "pxq.p", Trees64f, Bound::Sum},
    {"DotProduct", "vava", {"Mx", "y"}, "dot", Trees64f, Bound::Sum},
    {"DotProduct", "vava", {"Mx", "Mx"}, "Mx.Mx", Trees64f, Bound::Sum},
    {"L2Norm", "va", {"Mx"}, "|Mx|", Trees, Bound::Relative},
    {"FrobNorm", "ma", {"M"}, "|M|", EachTree, Bound::Relative},
    {"Trace", "ma", {"G"}, "trace", Everywhere},
    {"Det", "ma", {"S"}, "det", Elimination, Bound::Solution},
    {"Invert", "ma", {"S"}, "inverse", Closed, Bound::Solution},
    {"Mul", "mama", {"S", "inverse"}, "S*inverse", Everywhere},
    {"LUDecomp", "ma", {"S"}, "LU", Everywhere},
    {"LUBackSubst", "mava", {"LU", "y"}, "byLU", Everywhere},
    {"CholeskyDecomp", "ma", {"S"}, "Cholesky", Roots, Bound::Solution},
    {"CholeskyBackSubst", "mava", {"Cholesky", "y"}, "byCholesky", Everywhere},
    {"QRDecomp", "ma", {"S"}, "QR", Everywhere},
    {"QRBackSubst", "mava", {"QR", "y"}, "byQR", Everywhere},
    {"Mul", "mava", {"S", "byLU"}, "S*byLU", Trees, Bound::Sum},
};

const Relation relationsOfResults[] = {
    {"back", "M"},          {"restored", "saxpy"}, {"|Mx|", "Mx.Mx", true},
    {"|M|", "trace", true}, {"S*inverse", "I"},    {"byCholesky", "byLU"},
    {"byQR", "byLU"},       {"S*byLU", "y"},       {"pxq.p", ""},
};

} // namespace

const std::span<const Step> steps = chainOfSteps;
const std::span<const Relation> relations = relationsOfResults;

std::string keyOf(Agreement agreement, std::string_view type, bool isFixed, std::string_view layout) {
    const bool packed = layout.empty() || layout == "L", hasTree = isFixed && packed;
    const std::string own = "fixed, " + std::string(layout);
    switch (agreement) {
    case Everywhere:
        return "all";
    case Trees:
        return hasTree ? "trees" : "in order";
    case Trees64f:
        return hasTree && type == "64f" ? "trees" : "in order";
    case EachTree:
        return hasTree ? own : "in order";
    case Elimination:
        return !isFixed ? "run-time" : packed ? "fixed, packed" : "fixed, strided";
    case Closed:
        return isFixed ? own : "run-time";
    case Roots:
        return type == "32f" && layout.starts_with("P") ? "32f roots" : "64f roots";
    }
    return "";
}

} // namespace chain
