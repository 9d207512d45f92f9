// Array forms that yield one number per object, packed in dst.
#pragma once

#include "frame/groups.h"
#include "frame/objects.h"
#include "frame/overlap.h"
#include "frame/shapes.h"
#include "frame/sums.h"

namespace zelm::vector {

using namespace zelm::frame;

// The results as an array of objects of one element.
template <typename T>
ZELM_INLINE DenseArray<T> resultsAt(T *dst) {
    return DenseArray<T>(dst, std::int32_t{sizeof(T)}, 0);
}

// From how many objects on the overlap test of a whole array is worth its time.
constexpr std::uint32_t kResultGroupsCount = 8;

// Whether groups may store their results before the objects behind them are read. Lists ask it group by
// group.
template <unsigned R, unsigned C, typename S, typename T>
ZELM_INLINE bool resultsMissSource(const S &s, const DenseArray<T> &results, std::uint32_t count) {
    if constexpr (S::isList)
        return true;
    else
        return isUntouched(s, R, C, results, 1, 1, count);
}

template <unsigned R, unsigned C, typename S, typename T>
ZELM_INLINE bool resultsMissGroup(const S &s, const DenseArray<T> &results, std::uint32_t k) {
    constexpr unsigned lanes = kLanes<T>;
    if constexpr (S::isList) {
        if (anyEntryNull(s, k))
            return false;
        const Extent extent = extentOf(s, R, C);
        const Lowest<lanes> source = lowestOf<lanes>(s, extent, k);
        bool apart = true;
#pragma GCC unroll 4
        for (unsigned lane = 0; lane < lanes; ++lane)
            apart &= areDisjoint(results.object(k).start, kPackBytes, source.at[lane], extent.bytes);
        return apart;
    } else {
        return true;
    }
}

// Layouts in which loading a group costs less than it saves.
template <typename D>
constexpr bool kLoadsInGroups = D::isSideBySide || decltype(std::declval<const D &>().object(0))::isDense;

// An operand that is one vector for all objects.
template <typename S>
constexpr bool kIsOneVector = requires(const S &s) {
    s.get(0u);
};

// The vectors of a group, one pack per element. An invariant is spread over the lanes once: it is asked for
// only where no result is stored in it.
template <unsigned N, typename S>
struct VectorsOfGroup {
    using T = typename S::Element;
    const S &operand;
    ZELM_INLINE explicit VectorsOfGroup(const S &s) : operand(s) {}
    ZELM_INLINE void load(std::uint32_t k, Pack<T> (&out)[N]) const {
        loadRow<N>(groupAt(operand, k), 0, out);
    }
};

template <unsigned N, typename S>
requires kIsOneVector<S>
struct VectorsOfGroup<N, S> {
    using T = typename S::Element;
    Pack<T> spread[N];
    ZELM_INLINE explicit VectorsOfGroup(const S &s) {
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            spread[j] = broadcast(s.get(j));
    }
    ZELM_INLINE void load(std::uint32_t, Pack<T> (&out)[N]) const {
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            out[j] = spread[j];
    }
};

} // namespace zelm::vector
