// Traces: the sum of the diagonal, row by row. Nothing beside the diagonal is read.
#pragma once

#include "frame/apart.h"
#include "vector/results.h"

namespace zelm::vector {

// dst serves as the running sum, from 0: each partial sum is stored. False at a null entry of a table.
template <typename S, typename Result, typename Size>
ZELM_INLINE bool traceThroughResult(const S &s, const Result &result, Size size, bool testEntries) {
    using T = typename S::Element;
    const std::uint32_t n = size.value();
    result.set(0, T{0});
    for (std::uint32_t i = 0; i < n; ++i) {
        if (testEntries && s.elementIsNull(Address{i} * n + i))
            return false;
        result.set(0, result.get(0) + s.get(i, i, n));
    }
    return true;
}

// The fixed-size standard forms store the final sum only.
template <unsigned N, typename T>
ZELM_INLINE T traceOf(const Dense<const T> &s) {
    T sum = s.get(0, 0, N) + s.get(1, 1, N);
    ZELM_UNROLL
    for (unsigned i = 2; i < N; ++i)
        sum = sum + s.get(i, i, N);
    return sum;
}

template <typename S, typename T, typename Size>
ZELM_INLINE ZelmStatus traceSingle(const S &s, T *dst, Size size) {
    if (ZelmStatus status = checkSingle(size.isZero(), s, Pointer(dst)); status != kProceed)
        return status;
    if constexpr (S::isDense && Size::fixed != 0) {
        *dst = traceOf<Size::fixed>(s);
        return ZELM_OK;
    } else {
        return traceThroughResult(s, resultsAt(dst).object(0), size, S::isTable) ? ZELM_OK
                                                                                 : ZELM_ERR_NULL_PTR;
    }
}

// The running sums of a group, from 0, each position of the diagonal being a plane.
template <unsigned N, typename V, typename S>
ZELM_INLINE V tracesOfGroup(const S &s, std::uint32_t k) {
    V sum = {};
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        const Address at = s.object(k).address(i, i, N);
        if constexpr (kIsAlternate<S> && kLanesOf<V> != 1)
            sum = sum + loadAlternate<V>(at);
        else
            sum = sum + loadAs<V>(at);
    }
    return sum;
}

template <typename S, typename T, typename Size>
ZELM_NOINLINE ZelmStatus tracesOf(S s, T *dst, Size size, std::uint32_t count) {
    const DenseArray<T> results = resultsAt(dst);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        traceThroughResult(s.object(k), results.object(k), size, false);
        return ZELM_OK;
    };
    // A loop over dense objects gains nothing by the test where registers are few.
    constexpr bool isDense = kHasDenseObjects<S>;
    if constexpr (S::isList && Size::fixed != 0 && !(isDense && kHasFewRegisters)) {
        constexpr unsigned N = Size::fixed;
        const ObjectsApart isApart(s, N, N, results, 1, 1);
        const auto summed = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            if (!isApart(s.object(k).start, results.object(k).start))
                return one(k);
            results.object(k).set(0, tracesOfGroup<N, T>(s, k));
            return ZELM_OK;
        };
        return forEachObject(count, summed, s);
    } else if constexpr (!isDense && Size::fixed != 0) {
        constexpr unsigned N = Size::fixed;
        const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
            using V = typename decltype(pack)::Pack;
            storePack(results.object(k).start, tracesOfGroup<N, V>(s, k));
            return true;
        };
        return forEachInGroups<kVectorGrouping<S>>(count, NoBuffer(), group, one, writes(results, 1, 1),
                                                   reads(s, N, N));
    } else if constexpr (kHasPlanesOfRunTime<S, Size::fixed != 0>) {
        const std::uint32_t n = size.value();
        const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
            using V = typename decltype(pack)::Pack;
            V sum = {};
            for (std::uint32_t i = 0; i < n; ++i)
                sum = sum + elementsAt<V>(s, k, Address{i} * n + i);
            storePack(results.object(k).start, sum);
            return true;
        };
        if (n * n > kMostPositions || n > kMostPositions)
            return forEachObject(count, one, s);
        return forEachInGroups<kShortKernels>(count, NoBuffer(), group, one, writes(results, 1, 1),
                                              reads(s, n, n));
    } else {
        return forEachObject(count, one, s);
    }
}

// The tables of arrays are tested on their first n entries, not on those of the diagonal.
template <typename S, typename T, typename Size>
ZELM_INLINE ZelmStatus traceArray(const S &s, T *dst, Size size, std::uint32_t count) {
    if (ZelmStatus status =
            checkArray(size.isZero(), count, tested(s, size.value()), tested(Pointer(dst), 0));
        status != kProceed)
        return status;
    // Only planes gain by being plain: the dense forms begin their sums in another way.
    if constexpr (kIsDenseArray<S> && Size::fixed != 0) {
        // Two a round: one alone takes longer where its loop begins at a place that the processor fetches
        // badly.
#pragma GCC unroll 2
        for (std::uint32_t k = 0; k < count; ++k)
            store(addressOf(dst + k), traceOf<Size::fixed>(s.object(k)));
        return ZELM_OK;
    } else if constexpr (S::isTable)
        return withPlainestVectors<Size::fixed != 0>(
            [&](const auto &plain) ZELM_INLINE_LAMBDA { return tracesOf(plain, dst, size, count); }, s);
    else
        return tracesOf(s, dst, size, count);
}

} // namespace zelm::vector
