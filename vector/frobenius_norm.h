// Frobenius norms. The order of the sum of squares depends on form, size, type, layout, alignment and the
// object's place in the array; all of it is here.
#pragma once

#include "vector/results.h"
#include "vector/roots.h"

namespace zelm::vector {

// ---- chains, from 0

// Row by row: one matrix.
template <typename S, typename Shape>
ZELM_INLINE auto squaresByRows(const S &s, Shape shape) {
    typename S::Element sum = 0;
    for (std::uint32_t i = 0; i < shape.rows(); ++i)
        for (std::uint32_t j = 0; j < shape.columns(); ++j)
            sum = sum + s.get(i, j, shape.columns()) * s.get(i, j, shape.columns());
    return sum;
}

// Column by column: arrays.
template <typename S, typename Shape>
ZELM_INLINE auto squaresByColumns(const S &s, Shape shape) {
    typename S::Element sum = 0;
    for (std::uint32_t j = 0; j < shape.columns(); ++j)
        for (std::uint32_t i = 0; i < shape.rows(); ++i)
            sum = sum + s.get(i, j, shape.columns()) * s.get(i, j, shape.columns());
    return sum;
}

// ---- trees of the dense fixed-size forms, over squares[i][j], of elements or of packs

// The sum of column j.
template <unsigned N, typename V>
ZELM_INLINE V columnSum(const V (&s)[N][N], unsigned j) {
    if constexpr (N == 3)
        return (s[0][j] + s[1][j]) + s[2][j];
    const V four = (s[0][j] + s[1][j]) + (s[2][j] + s[3][j]);
    if constexpr (N == 4)
        return four;
    else if constexpr (N == 5)
        return four + s[4][j];
    else
        return four + (s[4][j] + s[5][j]);
}

template <typename V>
ZELM_INLINE V tree32(const V (&s)[3][3]) {
    return (columnSum(s, 0) + columnSum(s, 1)) + columnSum(s, 2);
}

template <typename V>
ZELM_INLINE V tree32(const V (&s)[4][4]) {
    return (columnSum(s, 0) + columnSum(s, 2)) + (columnSum(s, 1) + columnSum(s, 3));
}

template <typename V>
ZELM_INLINE V tree32(const V (&s)[5][5]) {
    return ((columnSum(s, 0) + columnSum(s, 2)) + (columnSum(s, 1) + columnSum(s, 3))) + columnSum(s, 4);
}

// Order 6 in 32-bit float, where the object and its row stride are multiples of 16 ...
template <typename V>
ZELM_INLINE V tree32Aligned(const V (&s)[6][6]) {
    const auto last = [&](unsigned j) __attribute__((always_inline)) {
        return ((s[0][j] + s[2][j]) + s[4][j]) + ((s[1][j] + s[3][j]) + s[5][j]);
    };
    return ((columnSum(s, 0) + columnSum(s, 2)) + (columnSum(s, 1) + columnSum(s, 3))) + (last(4) + last(5));
}

// ... and where they are not.
template <typename V>
ZELM_INLINE V tree32Unaligned(const V (&s)[6][6]) {
    const auto column = [&](unsigned j) __attribute__((always_inline)) {
        return ((s[0][j] + s[1][j]) + s[5][j]) + ((s[2][j] + s[3][j]) + s[4][j]);
    };
    const V a = (s[0][4] + s[2][4]) + s[4][4], b = (s[1][4] + s[3][4]) + s[5][4];
    const V c = (s[0][5] + s[2][5]) + s[4][5], d = (s[1][5] + s[3][5]) + s[5][5];
    return ((column(0) + a) + (column(2) + b)) + ((column(1) + c) + (column(3) + d));
}

// The objects of an array of 32-bit matrices that are taken four at a time, in the sizes in which it matters.
template <typename V>
ZELM_INLINE V tree32OfFour(const V (&s)[3][3]) {
    return (((s[0][0] + s[0][1]) + s[2][2]) + (s[0][2] + s[1][0])) +
           ((s[1][1] + s[1][2]) + (s[2][0] + s[2][1]));
}

template <typename V>
ZELM_INLINE V tree32OfFour(const V (&s)[4][4]) {
    return (columnSum(s, 0) + columnSum(s, 1)) + (columnSum(s, 2) + columnSum(s, 3));
}

template <typename V>
ZELM_INLINE V tree64(const V (&s)[3][3]) {
    return (columnSum(s, 2) + columnSum(s, 0)) + columnSum(s, 1);
}

template <typename V>
ZELM_INLINE V tree64(const V (&s)[4][4]) {
    const auto even = [&](unsigned i) __attribute__((always_inline)) {
        return s[i][0] + s[i][2];
    };
    const auto odd = [&](unsigned i) __attribute__((always_inline)) {
        return s[i][1] + s[i][3];
    };
    return ((even(0) + even(1)) + (even(2) + even(3))) + ((odd(0) + odd(1)) + (odd(2) + odd(3)));
}

template <typename V>
ZELM_INLINE V tree64(const V (&s)[5][5]) {
    return ((columnSum(s, 0) + columnSum(s, 1)) + (columnSum(s, 2) + columnSum(s, 3))) + columnSum(s, 4);
}

// Order 6 in 64-bit float: the squares in row-major order are dealt to two lanes.
template <typename V>
ZELM_INLINE V tree64(const V (&s)[6][6]) {
    const auto lane = [&](unsigned parity) __attribute__((always_inline)) {
        const auto t = [&](unsigned m) __attribute__((always_inline)) {
            return s[(2 * m + parity) / 6][(2 * m + parity) % 6];
        };
        return ((((t(0) + t(1)) + (t(2) + t(3))) + (t(16) + t(17))) + ((t(4) + t(5)) + (t(6) + t(7)))) +
               (((t(8) + t(9)) + (t(10) + t(11))) + ((t(12) + t(13)) + (t(14) + t(15))));
    };
    return lane(0) + lane(1);
}

// ---- one matrix of adjacent rows

template <unsigned N, typename T>
ZELM_INLINE bool isAligned(const Dense<const T> &s) {
    return s.start % 16 == 0 && s.rowStride % 16 == 0;
}

template <unsigned N, typename T>
ZELM_INLINE void squaresOf(const Dense<const T> &s, T (&squares)[N][N]) {
#pragma GCC unroll 36
    for (unsigned e = 0; e < N * N; ++e) {
        const T element = s.get(e / N, e % N, N);
        squares[e / N][e % N] = element * element;
    }
}

template <unsigned N>
ZELM_INLINE float treeOf(const Dense<const float> &s) {
    float squares[N][N];
    squaresOf<N>(s, squares);
    if constexpr (N == 6)
        return isAligned<N>(s) ? tree32Aligned(squares) : tree32Unaligned(squares);
    else
        return tree32(squares);
}

template <unsigned N>
ZELM_INLINE double treeOf(const Dense<const double> &s) {
    double squares[N][N];
    squaresOf<N>(s, squares);
    return tree64(squares);
}

// ---- the exported rows

template <typename S, typename T, typename Shape>
ZELM_INLINE ZelmStatus frobeniusSingle(const S &s, T *dst, Shape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), s, Pointer(dst)); status != kProceed)
        return status;
    if constexpr (S::isTable) {
        // The result is stored at the end, so that where a null entry stops the sum can't be seen.
        if (s.hasNullEntry(shape.elements()))
            return ZELM_ERR_NULL_PTR;
    }
    if constexpr (S::isDense && Shape::isFixed) {
        const T sum = treeOf<Shape::columns()>(s);
        if constexpr (sizeof(T) == 4)
            *dst = rootByRefinedReciprocal(sum);
        else
            *dst = squareRoot(sum);
    } else {
        *dst = squareRoot(squaresByRows(s, shape));
    }
    return ZELM_OK;
}

// The dense 32-bit arrays of a fixed size: objects by fours as far as they last, the rest one by one. The
// place of an object decides its tree, also where a group can't be loaded at once.
template <unsigned N, bool ofFour>
ZELM_INLINE float arrayTreeOf(const Dense<const float> &s) {
    if constexpr (ofFour && N <= 4) {
        float squares[N][N];
        squaresOf<N>(s, squares);
        return tree32OfFour(squares);
    } else {
        return treeOf<N>(s);
    }
}

template <unsigned N, typename S>
ZELM_INLINE bool frobeniusGroup(const S &s, const DenseArray<float> &results, std::uint32_t k) {
    const Group<S> group = groupAt(s, k);
    if constexpr (N == 6) {
        bool aligned = true, unaligned = true;
#pragma GCC unroll 4
        for (unsigned lane = 0; lane < 4; ++lane) {
            aligned &= isAligned<N>(group.objects[lane]);
            unaligned &= !isAligned<N>(group.objects[lane]);
        }
        if (!aligned && !unaligned)
            return false;
    }
    __m128 squares[N][N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        loadRow<N>(group, i, squares[i]);
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            squares[i][j] = squares[i][j] * squares[i][j];
    }
    __m128 sum;
    if constexpr (N == 6)
        sum = isAligned<N>(group.objects[0]) ? tree32Aligned(squares) : tree32Unaligned(squares);
    else if constexpr (N == 5)
        sum = tree32(squares);
    else
        sum = tree32OfFour(squares);
    storePack(results.object(k).start, rootByRefinedReciprocal(sum));
    return true;
}

template <unsigned N, typename S>
ZELM_INLINE ZelmStatus frobeniusByFours(const S &s, const DenseArray<float> &results, std::uint32_t count) {
    const std::uint32_t fours = count / 4 * 4;
    const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
        const Dense<const float> object = s.object(k);
        const float sum = k < fours ? arrayTreeOf<N, true>(object) : arrayTreeOf<N, false>(object);
        results.object(k).set(0, rootByRefinedReciprocal(sum));
        return ZELM_OK;
    };
    if (!resultsMissSource<N, N>(s, results, count))
        return forEachObject(count, one, s);
    const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
        return resultsMissGroup<N, N>(s, results, k) && frobeniusGroup<N>(s, results, k);
    };
    return forEachGroup<4>(count, group, one, s);
}

template <typename S, typename T, typename Shape>
ZELM_INLINE ZelmStatus frobeniusArray(const S &s, T *dst, Shape shape, std::uint32_t count) {
    if (ZelmStatus status =
            checkArray(shape.isZero(), count, tested(s, shape.elements()), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
    const DenseArray<T> results = resultsAt(dst);
    constexpr bool isDense = decltype(s.object(0))::isDense;
    if constexpr (Shape::isFixed && isDense && sizeof(T) == 4) {
        return frobeniusByFours<Shape::columns()>(s, results, count);
    } else {
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            results.object(k).set(0, squareRoot(squaresByColumns(s.object(k), shape)));
            return ZELM_OK;
        };
        if constexpr (Shape::isFixed && kLoadsInGroups<S>) {
            constexpr unsigned N = Shape::columns();
            if (count >= kResultGroupsCount && resultsMissSource<N, N>(s, results, count)) {
                const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                    if (!resultsMissGroup<N, N>(s, results, k))
                        return false;
                    const Group<S> objects = groupAt(s, k);
                    Pack<T> elements[N][N], sum = broadcast(T{0});
#pragma GCC unroll 6
                    for (unsigned i = 0; i < N; ++i)
                        loadRow<N>(objects, i, elements[i]);
#pragma GCC unroll 6
                    for (unsigned j = 0; j < N; ++j)
#pragma GCC unroll 6
                        for (unsigned i = 0; i < N; ++i)
                            sum = sum + elements[i][j] * elements[i][j];
                    storePack(results.object(k).start, squareRoot(sum));
                    return true;
                };
                return forEachGroup<kLanes<T>>(count, group, one, s);
            }
        }
        return forEachObject(count, one, s);
    }
}

} // namespace zelm::vector
