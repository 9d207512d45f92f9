// What varies from descriptor to descriptor and from form to form: size tests, bounds, tested entries, orders
// of sums, and which forms work in place.
#pragma once

#include "frame/checks.h"
#include "frame/shapes.h"
#include "frame/sums.h"

namespace zelm::products {

using namespace zelm::frame;

// ---- dimensions

template <unsigned N>
struct FixedSizes {
    static constexpr bool isFixed = true;
    static constexpr unsigned order = N;
};

// As the arguments have them: those of the operands as stored.
struct MatrixSizes {
    static constexpr bool isFixed = false;
    std::uint32_t width1, height1, width2, height2;
};

struct VectorSizes {
    static constexpr bool isFixed = false;
    std::uint32_t width, height, length;
};

// The pair of dimensions that must be equal, and whose product is the number of tested entries of dstTable:
// [src1 is used transposed][src2 is used transposed].
using Dimension = std::uint32_t MatrixSizes::*;
struct DimensionPair {
    Dimension first, second;
};
constexpr DimensionPair kPairs[2][2] = {
    {{&MatrixSizes::width1, &MatrixSizes::height2}, {&MatrixSizes::width1, &MatrixSizes::width2}},
    {{&MatrixSizes::height1, &MatrixSizes::height2}, {&MatrixSizes::height1, &MatrixSizes::width2}},
};
// mma and mama ask for another pair to be equal.
constexpr DimensionPair kEqualPairOfStoredArrays = {&MatrixSizes::height1, &MatrixSizes::width2};

// What the descriptor says.
template <typename A, typename B>
struct Descriptor {
    static constexpr bool firstTransposed = kIsTransposed<A>, secondTransposed = kIsTransposed<B>;
    static constexpr bool firstArray = kIsArray<A>, secondArray = kIsArray<B>;
    static constexpr bool bothStored = !firstTransposed && !secondTransposed;
    static constexpr DimensionPair entries = kPairs[firstTransposed][secondTransposed];
    static constexpr DimensionPair equal = bothStored && secondArray ? kEqualPairOfStoredArrays : entries;
    // mam leaves src2Width out of its tests: where it is zero there is nothing to write.
    static constexpr bool testsSecondWidth = !(bothStored && firstArray && !secondArray);
};

// The bounds of i, j and t, and the number of table entries to a row of each operand.
struct Bounds {
    std::uint32_t rows, columns, terms;
};
struct Pitches {
    std::uint32_t first, second, result;
};

ZELM_INLINE Bounds boundsOf(const MatrixSizes &sizes) {
    return {sizes.height1, sizes.width2, sizes.height2};
}

template <typename A, typename B>
ZELM_INLINE Pitches pitchesOf(const MatrixSizes &sizes) {
    return {kIsTransposed<A> ? sizes.height1 : sizes.width1, kIsTransposed<B> ? sizes.height2 : sizes.width2,
            sizes.width2};
}

template <typename A>
ZELM_INLINE bool isWrongSize(const VectorSizes &sizes) {
    return sizes.width == 0 || sizes.height == 0 || sizes.length == 0 ||
           (kIsTransposed<A> ? sizes.height : sizes.width) != sizes.length;
}

template <typename A, typename B>
ZELM_INLINE bool isWrongSize(const MatrixSizes &sizes) {
    using D = Descriptor<A, B>;
    return sizes.width1 == 0 || sizes.height1 == 0 || (D::testsSecondWidth && sizes.width2 == 0) ||
           sizes.height2 == 0 || sizes.*D::equal.first != sizes.*D::equal.second;
}

// ---- elements of the operands as used

template <typename Object>
ZELM_INLINE auto used(const Object &object, std::uint32_t i, std::uint32_t j, std::uint32_t pitch) {
    return object.get(i, j, pitch);
}

template <typename Stored>
ZELM_INLINE auto used(const Transposed<Stored> &object, std::uint32_t i, std::uint32_t j,
                      std::uint32_t pitch) {
    return object.get(j, i, pitch);
}

template <typename Object>
ZELM_INLINE Address usedEntry(const Object &, std::uint32_t i, std::uint32_t j, std::uint32_t pitch) {
    return Address{i} * pitch + j;
}

template <typename Stored>
ZELM_INLINE Address usedEntry(const Transposed<Stored> &, std::uint32_t i, std::uint32_t j,
                              std::uint32_t pitch) {
    return Address{j} * pitch + i;
}

// ---- orders of sums

// Fixed-size products of matrices are chains from the first product, but for the 32f 6x6 of mm, mmT and mTmT
// in S2. mTm and 64f are chains there too.
template <typename A, typename B, typename T, unsigned N>
constexpr Sum kMatrixSum = Sum::Chain;
template <typename S>
constexpr Sum kMatrixSum<Strided<const S>, Strided<const S>, float, 6> = Sum::Pairs;
template <typename S>
constexpr Sum kMatrixSum<Strided<const S>, Transposed<Strided<const S>>, float, 6> = Sum::Pairs;
template <typename S>
constexpr Sum kMatrixSum<Transposed<Strided<const S>>, Transposed<Strided<const S>>, float, 6> = Sum::Pairs;

// Row i of a fixed-size product of a matrix and a vector, and of Gaxpy. Only the standard and L layouts
// differ from the chain; row 4 of the 32f 5x5 is summed on its own.
template <typename T, bool isDense, bool isTransposed, unsigned N>
constexpr Sum vectorSumOfRow(unsigned i) {
    if (!isDense || N == 3)
        return Sum::Chain;
    if (sizeof(T) == 8)
        return Sum::Pairs;
    if (isTransposed)
        return Sum::PairsAroundLast;
    return N == 5 && i < 4 ? Sum::PairsAroundLast : Sum::EvenOdd;
}

// ---- in place

// Whether dst may be a source, exactly: the same start, the same strides, the same table. Where it may not,
// the elements of the source are read again for every element of dst, as they are by then.
struct InPlaceOf {
    bool first, second;
};

enum class Form { Standard, S2, P, List, ListOfStrided, PS2 };

// Of one or of an array of 3x3 to 6x6 products.
constexpr InPlaceOf inPlaceOf(Form form, bool isArray, bool firstArray, bool secondArray,
                              bool firstTransposed, bool secondTransposed, bool is32f, unsigned n) {
    const bool small = n <= 4, upTo5 = n <= 5;
    const bool dense = form == Form::Standard || form == Form::List;
    if (!isArray) {
        if (form == Form::S2) {
            const bool six = is32f && n == 6 && !(firstTransposed && !secondTransposed);
            return {six && !firstTransposed, six};
        }
        if (form == Form::P)
            return {false, false};
        return {!firstTransposed && (!is32f || upTo5), !is32f || (secondTransposed ? upTo5 : n != 5)};
    }
    InPlaceOf safe = {false, secondArray && dense};
    if (firstArray && !firstTransposed) {
        if (dense)
            safe.first = !is32f || upTo5;
        else if (!secondArray)
            safe.first = is32f && (form == Form::S2 && !secondTransposed ? small : n == 3);
        else if (form == Form::S2 && !secondTransposed)
            safe.first = safe.second = is32f && small;
    }
    return safe;
}

} // namespace zelm::products
