// Dot products.
#pragma once

#include "vector/long_sum.h"
#include "vector/results.h"

namespace zelm::vector {

// The order of a fixed-size sum. In 64-bit float the standard and L forms sum the lanes of pairs.
template <typename T, typename Object>
constexpr Sum kDotOrder = sizeof(T) == 8 && Object::isDense ? Sum::EvenOddThenRest : Sum::Chain;

template <Sum order, unsigned N, typename A, typename B>
ZELM_INLINE auto dotOf(const A &a, const B &b) {
    typename A::Element products[N];
#pragma GCC unroll 6
    for (unsigned j = 0; j < N; ++j)
        products[j] = a.get(j) * b.get(j);
    return sumOf<order>(products);
}

template <typename A, typename B>
ZELM_INLINE auto dotOfLength(const A &a, const B &b, std::uint32_t length) {
    typename A::Element sum = 0;
    for (std::uint32_t j = 0; j < length; ++j)
        sum = sum + a.get(j) * b.get(j);
    return sum;
}

// ---- the products of a group of pairs, one pack per element: multiplied object by object and then
// transposed, instead of both operands

template <typename T>
ZELM_INLINE Pack<T> productsAt(const LaneAddresses<T> &a, const LaneAddresses<T> &b, Address offset) {
    LaneAddresses<T> first, second;
    shifted<T>(a, offset, first);
    shifted<T>(b, offset, second);
    return gather(first) * gather(second);
}

template <unsigned N>
ZELM_INLINE void productsAcross(const LaneAddresses<float> &a, const LaneAddresses<float> &b,
                                __m128 (&out)[N]) {
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < 4; ++lane)
        out[lane] = loadPack<float>(a[lane]) * loadPack<float>(b[lane]);
    _MM_TRANSPOSE4_PS(out[0], out[1], out[2], out[3]);
    if constexpr (N == 5) {
        out[4] = productsAt<float>(a, b, 4 * sizeof(float));
    } else if constexpr (N == 6) {
        const __m128 upper = loadTwoAndTwo(a[0] + 16, a[1] + 16) * loadTwoAndTwo(b[0] + 16, b[1] + 16);
        const __m128 lower = loadTwoAndTwo(a[2] + 16, a[3] + 16) * loadTwoAndTwo(b[2] + 16, b[3] + 16);
        out[4] = _mm_shuffle_ps(upper, lower, _MM_SHUFFLE(2, 0, 2, 0));
        out[5] = _mm_shuffle_ps(upper, lower, _MM_SHUFFLE(3, 1, 3, 1));
    }
}

template <unsigned N>
ZELM_INLINE void productsAcross(const LaneAddresses<double> &a, const LaneAddresses<double> &b,
                                __m128d (&out)[N]) {
#pragma GCC unroll 3
    for (unsigned j = 0; j + 1 < N; j += 2) {
        const Address offset = j * sizeof(double);
        const __m128d first = loadPack<double>(a[0] + offset) * loadPack<double>(b[0] + offset);
        const __m128d second = loadPack<double>(a[1] + offset) * loadPack<double>(b[1] + offset);
        out[j] = _mm_unpacklo_pd(first, second);
        out[j + 1] = _mm_unpackhi_pd(first, second);
    }
    if constexpr (N % 2 == 1)
        out[N - 1] = productsAt<double>(a, b, (N - 1) * sizeof(double));
}

template <typename S>
constexpr bool kIsArrayOfRows = decltype(std::declval<const S &>().object(0))::isDense && !kIsOneVector<S>;

// Three elements are transposed in fewer steps by the frame, where they follow each other without a gap.
template <unsigned N, typename A, typename B, typename T>
ZELM_INLINE void productsOfGroup(const VectorsOfGroup<N, A> &a, const VectorsOfGroup<N, B> &b,
                                 std::uint32_t k, Pack<T> (&products)[N]) {
    if constexpr (N > 3 && kIsArrayOfRows<A> && kIsArrayOfRows<B>) {
        LaneAddresses<T> first, second;
#pragma GCC unroll 4
        for (unsigned lane = 0; lane < kLanes<T>; ++lane) {
            first[lane] = a.operand.object(k + lane).start;
            second[lane] = b.operand.object(k + lane).start;
        }
        productsAcross<N>(first, second, products);
    } else {
        Pack<T> firsts[N], seconds[N];
        a.load(k, firsts);
        b.load(k, seconds);
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            products[j] = firsts[j] * seconds[j];
    }
}

// ---- one pair

template <typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotSingle(const A &a, const B &b, T *dst, Shape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), a, b, Pointer(dst)); status != kProceed)
        return status;
    if constexpr (A::isTable) {
        // The result is stored at the end, so that where a null entry stops the sum can't be seen.
        if (a.hasNullEntry(shape.columns()) || b.hasNullEntry(shape.columns()))
            return ZELM_ERR_NULL_PTR;
    }
    if constexpr (Shape::isFixed)
        *dst = dotOf<kDotOrder<T, A>, Shape::columns()>(a, b);
    else if constexpr (A::isDense)
        *dst = longSum<T>(Products<T>{a.start, b.start}, b.start, shape.columns());
    else
        *dst = dotOfLength(a, b, shape.columns());
    return ZELM_OK;
}

// ---- arrays

template <Sum order, typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotObjects(const A &a, const B &b, T *dst, Shape shape, std::uint32_t count) {
    const DenseArray<T> results = resultsAt(dst);
    if constexpr (!Shape::isFixed) {
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            results.object(k).set(0, dotOfLength(a.object(k), b.object(k), shape.columns()));
            return ZELM_OK;
        };
        return forEachObject(count, one, a, b);
    } else {
        constexpr unsigned N = Shape::columns();
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            results.object(k).set(0, dotOf<order, N>(a.object(k), b.object(k)));
            return ZELM_OK;
        };
        if constexpr (kLoadsInGroups<A>) {
            if (count >= kResultGroupsCount && resultsMissSource<1, N>(a, results, count) &&
                resultsMissSource<1, N>(b, results, count)) {
                const VectorsOfGroup<N, A> firsts(a);
                const VectorsOfGroup<N, B> seconds(b);
                const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                    if (!resultsMissGroup<1, N>(a, results, k) || !resultsMissGroup<1, N>(b, results, k))
                        return false;
                    Pack<T> products[N];
                    productsOfGroup<N, A, B, T>(firsts, seconds, k, products);
                    storePack(results.object(k).start, sumOf<order>(products));
                    return true;
                };
                return forEachGroup<kLanes<T>>(count, group, one, a, b);
            }
        }
        return forEachObject(count, one, a, b);
    }
}

template <typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus dotArray(const A &a, const B &b, T *dst, Shape shape, std::uint32_t count) {
    const Address n = shape.elements();
    if (ZelmStatus status =
            checkArray(shape.isZero(), count, tested(a, n), tested(b, n), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
    return dotObjects<kDotOrder<T, decltype(a.object(0))>>(a, b, dst, shape, count);
}

} // namespace zelm::vector

#include "vector/departures.h"
