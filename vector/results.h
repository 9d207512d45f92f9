// Array forms that yield one number per object, packed in dst.
#pragma once

#include "frame/batch.h"
#include "frame/groups.h"
#include "frame/objects.h"
#include "frame/plainest.h"
#include "frame/shapes.h"
#include "frame/sums.h"
#include "frame/threes.h"
#include "vector/alternate.h"

namespace zelm::vector {

using namespace zelm::frame;

// The results as an array of objects of one element: formed where they are looped over, as a function that is
// handed it doesn't know its stride.
template <typename T>
ZELM_INLINE DenseArray<T> resultsAt(T *dst) {
    return DenseArray<T>(dst, std::int32_t{sizeof(T)}, 0);
}

// The vectors of an array, N packs for a group: one per element.
template <unsigned N, typename S>
struct Vectors {
    const S &operand;
    ZELM_INLINE explicit Vectors(const S &s) : operand(s) {}
    template <typename V>
    ZELM_INLINE void load(std::uint32_t k, V (&out)[N]) const {
        loadRow<N>(operand, k, 0, out);
    }
};

// An invariant vector, read once: it is asked for only where no result is stored in it.
template <unsigned N, typename S>
requires(!kIsArray<S>) struct Vectors<N, S> {
    typename S::Element element[N];
    ZELM_INLINE explicit Vectors(const S &s) {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            element[j] = s.get(j);
    }
    ZELM_INLINE const Vectors &object(std::uint32_t) const { return *this; }
    ZELM_INLINE auto get(unsigned j) const { return element[j]; }
    template <typename V>
    ZELM_INLINE void load(std::uint32_t, V (&out)[N]) const {
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j)
            out[j] = spread<V>(element[j]);
    }
};

// ---- run-time sizes in planes

// More element positions than this are done object by object: each is tested ahead of the groups.
constexpr std::uint32_t kMostPositions = 64;

// Whether groups are formed of objects whose size is an argument.
template <typename S, bool isFixed>
constexpr bool kHasPlanesOfRunTime = !isFixed && S::isSideBySide;

// The element of an entry, of the objects from k on.
template <typename V, typename S>
ZELM_INLINE V elementsAt(const S &s, std::uint32_t k, Address entry) {
    if constexpr (kIsArray<S>)
        return loadAs<V>(s.object(k).position(entry));
    else
        return spread<V>(load<ElementOf<V>>(s.position(entry)));
}

// The sums of the products of vectors, of the objects from k on.
template <typename V, typename A, typename B>
ZELM_INLINE V sumOverPlanes(const A &a, const B &b, std::uint32_t k, std::uint32_t length) {
    V sum = {};
    for (std::uint32_t j = 0; j < length; ++j)
        sum = sum + elementsAt<V>(a, k, j) * elementsAt<V>(b, k, j);
    return sum;
}

} // namespace zelm::vector
