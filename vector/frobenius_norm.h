// Frobenius norms. The order of the sum of squares depends on form, size, type, layout, alignment and the
// object's place in the array; all of it is here.
#pragma once

#include "vector/results.h"
#include "vector/roots.h"
#include "vector/tested_squares.h"

namespace zelm::vector {

// ---- chains, from 0

// Row by row: one matrix.
template <typename S, typename Shape>
ZELM_INLINE auto squaresByRows(const S &s, Shape shape) {
    typename S::Element sum = 0;
    whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
        sum = sum + s.get(i, j, shape.columns()) * s.get(i, j, shape.columns());
        return true;
    });
    return sum;
}

// Column by column: arrays. `isOnlyWay`: written out where the size is fixed.
template <bool isOnlyWay, typename S, typename Shape>
ZELM_INLINE auto squaresByColumns(const S &s, Shape shape) {
    typename S::Element sum = 0;
    if constexpr (isOnlyWay && Shape::isFixed) {
        constexpr std::uint32_t N = Shape::columns();
        ZELM_UNROLL
        for (std::uint32_t e = 0; e < N * N; ++e)
            sum = sum + s.get(e % N, e / N, N) * s.get(e % N, e / N, N);
        return sum;
    }
    for (std::uint32_t j = 0; j < shape.columns(); ++j)
        for (std::uint32_t i = 0; i < shape.rows(); ++i)
            sum = sum + s.get(i, j, shape.columns()) * s.get(i, j, shape.columns());
    return sum;
}

// ---- trees of the dense fixed-size forms, in packs of one object's squares

template <typename T>
ZELM_INLINE Pack<T> squaresAt(const Dense<const T> &s, unsigned i, unsigned j) {
    const Pack<T> elements = loadPack<T>(s.rowStart(i) + j * sizeof(T));
    return elements * elements;
}

// Two 32-bit squares in the first lanes.
ZELM_INLINE Floats4 twoSquaresAt(const Dense<const float> &s, unsigned i, unsigned j) {
    const Floats4 elements = loadTwo(s.rowStart(i) + j * sizeof(float));
    return elements * elements;
}

template <typename T>
ZELM_INLINE T squareAt(const Dense<const T> &s, unsigned i, unsigned j) {
    const T element = s.get(i, j, 0);
    return element * element;
}

// The sum of a column, or of several in a pack, over its squares from above.
template <unsigned N, typename V>
ZELM_INLINE V columnSum(const V (&s)[N]) {
    if constexpr (N == 3)
        return (s[0] + s[1]) + s[2];
    const V four = (s[0] + s[1]) + (s[2] + s[3]);
    if constexpr (N == 4)
        return four;
    else if constexpr (N == 5)
        return four + s[4];
    else
        return four + (s[4] + s[5]);
}

template <unsigned N, typename T>
ZELM_INLINE Pack<T> columnSumsFrom(const Dense<const T> &s, unsigned j) {
    Pack<T> squares[N];
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        squares[i] = squaresAt(s, i, j);
    return columnSum(squares);
}

template <unsigned N, typename T>
ZELM_INLINE T columnSumAt(const Dense<const T> &s, unsigned j) {
    T squares[N];
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        squares[i] = squareAt(s, i, j);
    return columnSum(squares);
}

// (lane 0 + lane 2) + (lane 1 + lane 3). No lane is added to itself, which could overflow.
ZELM_INLINE float evenThenOdd(Floats4 four) {
    const Floats4 two = four + _mm_movehl_ps(_mm_setzero_ps(), four);
    return firstLane(two) + two[1];
}

ZELM_INLINE float treeOf(const Dense<const float> &s, FixedShape<3, 3>) {
    Floats4 squares[3];
    ZELM_UNROLL
    for (unsigned i = 0; i < 3; ++i)
        squares[i] = twoSquaresAt(s, i, 0);
    const Floats4 two = columnSum(squares);
    return (firstLane(two) + two[1]) + columnSumAt<3>(s, 2);
}

ZELM_INLINE float treeOf(const Dense<const float> &s, FixedShape<4, 4>) {
    return evenThenOdd(columnSumsFrom<4>(s, 0));
}

ZELM_INLINE float treeOf(const Dense<const float> &s, FixedShape<5, 5>) {
    return evenThenOdd(columnSumsFrom<5>(s, 0)) + columnSumAt<5>(s, 4);
}

// The last two columns, of which the even rows and the odd rows are summed apart.
ZELM_INLINE Floats4 lastTwoColumns(const Dense<const float> &s, unsigned parity) {
    return (twoSquaresAt(s, parity, 4) + twoSquaresAt(s, parity + 2, 4)) + twoSquaresAt(s, parity + 4, 4);
}

// Order 6 in 32-bit float has a tree for an object and a row stride that are multiples of 16, and one for all
// others.
ZELM_INLINE float treeOf(const Dense<const float> &s, FixedShape<6, 6>) {
    const Floats4 even = lastTwoColumns(s, 0), odd = lastTwoColumns(s, 1);
    if (isMultipleOf16(s.start) && isMultipleOf16(s.rowStride)) {
        const Floats4 last = even + odd;
        return evenThenOdd(columnSumsFrom<6>(s, 0)) + (firstLane(last) + last[1]);
    }
    const Floats4 upper = (squaresAt(s, 0, 0) + squaresAt(s, 1, 0)) + squaresAt(s, 5, 0);
    const Floats4 lower = (squaresAt(s, 2, 0) + squaresAt(s, 3, 0)) + squaresAt(s, 4, 0);
    return evenThenOdd((upper + lower) + _mm_movelh_ps(even, odd));
}

ZELM_INLINE double treeOf(const Dense<const double> &s, FixedShape<3, 3>) {
    const Doubles2 two = columnSumsFrom<3>(s, 0);
    return (columnSumAt<3>(s, 2) + firstLane(two)) + two[1];
}

ZELM_INLINE double treeOf(const Dense<const double> &s, FixedShape<4, 4>) {
    Doubles2 rows[4];
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i)
        rows[i] = squaresAt(s, i, 0) + squaresAt(s, i, 2);
    const Doubles2 lanes = columnSum(rows);
    return firstLane(lanes) + lanes[1];
}

ZELM_INLINE double treeOf(const Dense<const double> &s, FixedShape<5, 5>) {
    const Doubles2 left = columnSumsFrom<5>(s, 0), right = columnSumsFrom<5>(s, 2);
    return ((firstLane(left) + left[1]) + (firstLane(right) + right[1])) + columnSumAt<5>(s, 4);
}

// Order 6 in 64-bit float: the squares in row-major order are dealt to two lanes.
ZELM_INLINE double treeOf(const Dense<const double> &s, FixedShape<6, 6>) {
    const auto t = [&](unsigned m) ZELM_INLINE_LAMBDA { return squaresAt(s, m / 3, m % 3 * 2); };
    const Doubles2 lanes =
        ((((t(0) + t(1)) + (t(2) + t(3))) + (t(16) + t(17))) + ((t(4) + t(5)) + (t(6) + t(7)))) +
        (((t(8) + t(9)) + (t(10) + t(11))) + ((t(12) + t(13)) + (t(14) + t(15))));
    return firstLane(lanes) + lanes[1];
}

// ---- objects of an array of 32-bit matrices that are taken four at a time, in the sizes in which it matters

template <typename V>
ZELM_INLINE V treeOfFour(const V (&s)[3][3]) {
    return (((s[0][0] + s[0][1]) + s[2][2]) + (s[0][2] + s[1][0])) +
           ((s[1][1] + s[1][2]) + (s[2][0] + s[2][1]));
}

ZELM_INLINE float treeOfFour(const Dense<const float> &s, FixedShape<3, 3>) {
    float squares[3][3];
    ZELM_UNROLL
    for (unsigned e = 0; e < 9; ++e)
        squares[e / 3][e % 3] = squareAt(s, e / 3, e % 3);
    return treeOfFour(squares);
}

ZELM_INLINE float treeOfFour(const Dense<const float> &s, FixedShape<4, 4>) {
    const Floats4 sums = columnSumsFrom<4>(s, 0);
    return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

template <typename V, typename S>
ZELM_INLINE V treesOfFour(const S &s, std::uint32_t k, FixedShape<3, 3>) {
    V squares[3][3];
    ZELM_UNROLL
    for (unsigned i = 0; i < 3; ++i) {
        loadRow<3>(s, k, i, squares[i]);
        ZELM_UNROLL
        for (unsigned j = 0; j < 3; ++j)
            squares[i][j] = squares[i][j] * squares[i][j];
    }
    return treeOfFour(squares);
}

template <typename V, typename S>
ZELM_INLINE V treesOfFour(const S &s, std::uint32_t k, FixedShape<4, 4>) {
    return fromBlocks<V>([&](unsigned b) ZELM_INLINE_LAMBDA {
        Floats4 sums[4];
        ZELM_UNROLL
        for (unsigned object = 0; object < 4; ++object)
            sums[object] = columnSumsFrom<4>(s.object(k + 4 * b + object), 0);
        return _mm_hadd_ps(_mm_hadd_ps(sums[0], sums[1]), _mm_hadd_ps(sums[2], sums[3]));
    });
}

// ---- the exported rows

template <typename S, typename T, typename Shape>
ZELM_INLINE ZelmStatus frobeniusSingle(const S &s, T *dst, Shape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), s, Pointer(dst)); status != kProceed)
        return status;
    if constexpr (S::isTable) {
        T squares = 0;
        if (!sumSquaresTested(s, shape, squares))
            return ZELM_ERR_NULL_PTR;
        *dst = squareRoot(squares);
    } else if constexpr (S::isDense && Shape::isFixed) {
        const T sum = treeOf(s, shape);
        if constexpr (sizeof(T) == 4)
            *dst = rootByRefinedReciprocal(sum);
        else
            *dst = squareRoot(sum);
    } else {
        *dst = squareRoot(squaresByRows(s, shape));
    }
    return ZELM_OK;
}

// The dense 32-bit arrays of a fixed size: in the orders 3 and 4 objects by fours as far as they last, the
// rest one by one. The place of an object decides its tree, also where a group can't be loaded at once.
template <typename S, unsigned N>
ZELM_INLINE ZelmStatus frobeniusByTrees(const S &s, const DenseArray<float> &results, FixedShape<N, N> shape,
                                        std::uint32_t count) {
    const auto store = [&](std::uint32_t k, float sum) ZELM_INLINE_LAMBDA {
        results.object(k).set(0, rootByRefinedReciprocal(sum));
        return ZELM_OK;
    };
    if constexpr (N > 4) {
        const auto one = [&](std::uint32_t k)
                             ZELM_INLINE_LAMBDA { return store(k, treeOf(s.object(k), shape)); };
        return forEachObject(count, one, s);
    } else {
        const std::uint32_t fours = count / 4 * 4;
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            return store(k, k < fours ? treeOfFour(s.object(k), shape) : treeOf(s.object(k), shape));
        };
        const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
            using V = typename decltype(pack)::Pack;
            storePack(results.object(k).start, rootByRefinedReciprocal(treesOfFour<V>(s, k, shape)));
            return true;
        };
        return forEachInGroups<kShortKernels>(count, NoBuffer(), group, one, writes(results, 1, 1),
                                              reads(s, N, N));
    }
}

// The squares of a group, column by column.
template <unsigned N, typename V, typename S>
ZELM_INLINE V squaresOfGroup(const S &s, std::uint32_t k) {
    V sum = {};
    if constexpr (N == 4 && kHasDenseObjects<S> && sizeof(ElementOf<V>) == 8) {
        // Two columns at a time, which few registers hold.
        ZELM_UNROLL
        for (unsigned j = 0; j < N; j += 2) {
            V columns[N][2];
            ZELM_UNROLL
            for (unsigned i = 0; i < N; ++i) {
                LaneAddresses<V> at;
                ZELM_UNROLL
                for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
                    at[lane] = s.object(k + lane).address(i, j, N);
                loadTwo(at, 0, columns[i]);
            }
            ZELM_UNROLL
            for (unsigned e = 0; e < 2 * N; ++e)
                sum = sum + columns[e % N][e / N] * columns[e % N][e / N];
        }
        return sum;
    }
    V elements[N][N];
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i)
        loadRow<N>(s, k, i, elements[i]);
    ZELM_UNROLL
    for (unsigned j = 0; j < N; ++j) {
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            sum = sum + elements[i][j] * elements[i][j];
    }
    return sum;
}

// All other arrays.
template <typename S, typename T, typename Shape>
ZELM_NOINLINE ZelmStatus frobeniusByColumns(S s, T *dst, Shape shape, std::uint32_t count) {
    // A group of one has all its elements ahead of the sum, which takes more registers than some have.
    constexpr bool inGroups =
        Shape::isFixed && kGainsByGroups<S> && (kVectorGrouping<S>.bytes != 0 || !kHasFewRegisters);
    const DenseArray<T> results = resultsAt(dst);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        results.object(k).set(0, squareRoot(squaresByColumns<!inGroups>(s.object(k), shape)));
        return ZELM_OK;
    };
    if constexpr (inGroups) {
        constexpr unsigned N = Shape::columns();
        const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
            using V = typename decltype(pack)::Pack;
            storePack(results.object(k).start, squareRoot(squaresOfGroup<N, V>(s, k)));
            return true;
        };
        return forEachInGroups<kVectorGrouping<S>>(count, NoBuffer(), group, one, writes(results, 1, 1),
                                                   reads(s, N, N));
    } else {
        return forEachObject(count, one, s);
    }
}

template <typename S, typename T, typename Shape>
ZELM_INLINE ZelmStatus frobeniusArray(const S &s, T *dst, Shape shape, std::uint32_t count) {
    if (ZelmStatus status =
            checkArray(shape.isZero(), count, tested(s, shape.elements()), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
    if constexpr (Shape::isFixed && kHasDenseObjects<S> && sizeof(T) == 4)
        return frobeniusByTrees(s, resultsAt(dst), shape, count);
    else
        return withPlainestVectors<Shape::isFixed>(
            [&](const auto &plain)
                ZELM_INLINE_LAMBDA { return frobeniusByColumns(plain, dst, shape, count); },
            s);
}

} // namespace zelm::vector
