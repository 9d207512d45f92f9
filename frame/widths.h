// How wide the packs are that each class of kernels takes in this build, and from how many objects on.
#pragma once

#include "frame/operands.h"
#include "frame/pack.h"

namespace zelm::frame {

constexpr unsigned widestUpTo(unsigned bytes) {
    return kWidestBytes < bytes ? kWidestBytes : bytes;
}

// How a row is taken in groups.
struct Grouping {
    unsigned bytes;                      // of the widest pack of its kernels
    std::uint32_t least;                 // objects: from there on the overlap test is worth its time
    std::uint32_t leastInTables = least; // the same where it looks at a table entry per element
};

// Objects whose elements would have to be gathered one by one: each by itself, in registers.
constexpr Grouping kOneAtATime = {0, 8};

template <typename Array>
constexpr bool kLoadsInGroups = Array::isSideBySide || kHasDenseObjects<Array>;

// The widths of a class where a group is loaded by rows or planes, one object at a time elsewhere.
template <typename Array>
constexpr Grouping groupingOf(Grouping wide) {
    return kLoadsInGroups<Array> ? wide : kOneAtATime;
}

// Lists of strided objects: their null tests alone take as long as a group of one gains, if it does little.
template <typename Array>
constexpr bool kGainsByGroups = kLoadsInGroups<Array> || !Array::isList;

// A few operations per element: dot and cross products, norms.
constexpr Grouping kShortKernels = {kWidestBytes, 8};

// Decompositions, systems, inverses and determinants.
constexpr Grouping kLongKernels = {kWidestBytes, 2, 16};

// Those of 64-bit float whose matrices are small and dense: loading and storing is the most of them, and
// wider packs are put together of more parts.
constexpr Grouping kSmallDoubleKernels = {widestUpTo(32), kLongKernels.least, kLongKernels.leastInTables};

// Products of matrices and vectors, across objects.
constexpr Grouping kProductKernels = {kWidestBytes, 8};

// The same where an element is gathered by steps of a stride: wider packs are put together of more loads.
constexpr Grouping kGatheredProducts = {widestUpTo(32), 8};

// Runs of adjacent elements: whole arrays, and the elements of one object.
constexpr unsigned kRunBytes = kWidestBytes, kShortRunBytes = widestUpTo(32);

// Rows inside one object.
constexpr unsigned kInsideBytes = widestUpTo(32);

// Whole matrices of 4x4 inside one object, and whole vectors of four, one matrix for all: so many lanes of a
// group are so many vectors.
constexpr unsigned kWholeBytes = kWidestBytes;
constexpr Grouping kVectorsOfFour = {widestUpTo(32), 8};

// Between rows and planes. Nothing is computed, and the blocks of a pack of four lie in as many objects:
// joining them costs more than it saves.
constexpr unsigned kMoveBytes = widestUpTo(32);

} // namespace zelm::frame
