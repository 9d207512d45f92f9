// A family of the reference model: which cells it serves, what they take, and what a call of one does.
#pragma once

#include "call.h"
#include "memory.h"

#include "zelm.h"

#include <functional>

namespace zelmref {

// Which overlaps of dst with a source have a defined result.
enum class Overlap {
    Any,             // the traversal defines all of them
    InPlace,         // only dst and source object by object the same, or apart
    InPlaceDistinct, // likewise, and no two elements of an object may be the same
    OtherObjects,    // only dst's object another one of the source's
    Identical,       // only dst element by element the source, or apart
    Apart,           // none
};

// What sort of numbers brings a family's branches to light.
enum class Content {
    Numbers,          // element by element: any number anywhere
    Pivoting,         // matrices to eliminate: ties, thresholds, singular ones
    Solving,          // factors and right-hand sides
    Sums,             // numbers whose sum depends on its order
    PositiveDefinite, // symmetric matrices, positive definite ones and others
    Inverting,        // as Pivoting, with thresholds, bands and searches of Det and Invert
    Reflecting,       // matrices to reflect: columns at the threshold, zero columns, both signs
};

// Which widths and heights.
enum class Shapes {
    Any,
    MostlyTall, // seldom more columns than rows
    Tall,       // never
};

// Can an element be read at an address?
using IsMapped = std::function<bool(Address)>;

struct Family {
    bool (*serves)(const Cell &cell);
    Signature (*signature)(const Cell &cell);
    ZelmStatus (*run)(const Call &call, ComputedElements &results);
    Overlap overlap;
    Content content;

    // The rest is for families that need it.
    // Where the overlap that has a result is not the same for all cells and sources.
    Overlap (*overlapWith)(const Cell &cell, const Parameter &source) = nullptr;
    // Is a table's entry used without a test? Then a null one is followed, and no case has it.
    bool (*followsNull)(const Call &call, std::size_t entry) = nullptr;
    // Is an element of the source never read? Then a table's entry for it may lead anywhere.
    bool (*neverReads)(const Call &call, std::uint32_t i, std::uint32_t j) = nullptr;
    // The number of table entries that a call may use or test, where that is more than the operand's
    // positions.
    std::size_t (*entriesReached)(const Call &call, const Parameter &parameter) = nullptr;
    // Is there an object even where `count` is 0?
    bool (*countsZeroAsOne)(const Cell &cell) = nullptr;
    // Does the call raise a fault, as it may? No case has one.
    bool (*raisesFault)(const Call &call, const IsMapped &isMapped) = nullptr;
    // The number of columns of dst that a call writes, where that is more than its width; its strides are
    // then at least those of a packed matrix.
    std::uint32_t (*columnsReached)(const Call &call) = nullptr;
    // Do the dimensions fit each other? Most cases have such.
    bool (*dimensionsFit)(const Call &call) = nullptr;
    // Is the order in which an object's elements are written left open? Then no two of dst coincide.
    bool (*writesInAnyOrder)(const Cell &cell) = nullptr;
    // Do results, or which cases there are, depend on addresses? Where the operands lie, and how 64-bit
    // floats are aligned, is not the same in all builds.
    bool (*looksAtAddresses)(const Cell &cell) = nullptr;
    // The bytes of scratch that a call may use. What they hold after it is open.
    std::size_t (*scratchBytes)(const Call &call) = nullptr;
    // The number of a table's first entries that are tested, where the others are followed untested.
    std::size_t (*entriesTested)(const Call &call, const Parameter &parameter) = nullptr;
    // Is the dimension or count signed, with a result below 0?
    bool (*isSigned)(const Cell &cell, const Parameter &parameter) = nullptr;
    // Is an element stride rounded down to a multiple of the element?
    bool (*roundsElemStride)(const Call &call) = nullptr;
    // Is it the sum of entry and shift that is tested?
    bool addsShiftBeforeNullTest = false;
    Shapes shapes = Shapes::Any;
    // Are pointers followed untested? Then none is null.
    bool testsNoPointer = false;
};

// The family that serves a cell, or null.
const Family *familyOf(const Cell &cell);

} // namespace zelmref
