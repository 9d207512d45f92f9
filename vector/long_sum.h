// The sum of a long vector of adjacent elements, in several running sums. Which element goes to which of them
// depends on the length and on the address of one operand.
#pragma once

#include "frame/pack.h"

namespace zelm::vector {

using namespace zelm::frame;

// The terms of a dot product.
template <typename T>
struct Products {
    Address first, second;
    ZELM_INLINE T term(Address t) const {
        return load<T>(first + t * sizeof(T)) * load<T>(second + t * sizeof(T));
    }
    ZELM_INLINE Pack<T> terms(Address t) const {
        return loadPack<T>(first + t * sizeof(T)) * loadPack<T>(second + t * sizeof(T));
    }
};

// The terms of a sum of squares.
template <typename T>
struct Squares {
    Address start;
    ZELM_INLINE T term(Address t) const {
        const T element = load<T>(start + t * sizeof(T));
        return element * element;
    }
    ZELM_INLINE Pack<T> terms(Address t) const {
        const Pack<T> elements = loadPack<T>(start + t * sizeof(T));
        return elements * elements;
    }
};

// The running sums, lane by lane: ((s0 + s4) + (s1 + s5)) + ((s2 + s6) + (s3 + s7)), and (s0 + s2) + (s1 +
// s3). The last sum is one of elements: a lane added to itself could overflow.
ZELM_INLINE float combined(Floats4 s0to3, Floats4 s4to7) {
    const Floats4 four = s0to3 + s4to7;
    const Floats4 pairs = four + _mm_shuffle_ps(four, four, _MM_SHUFFLE(2, 3, 0, 1));
    return pairs[0] + pairs[2];
}

ZELM_INLINE double combined(Doubles2 s0to1, Doubles2 s2to3) {
    const Doubles2 two = s0to1 + s2to3;
    return two[0] + two[1];
}

// The terms from t on, one after the other: multiplied by packs, added one by one.
template <typename T, typename Terms>
ZELM_INLINE T chainedSum(const Terms &terms, T sum, std::uint32_t t, std::uint32_t length) {
    constexpr unsigned lanes = kLanes<T>;
    for (; length - t >= lanes; t += lanes) {
        const Pack<T> several = terms.terms(t);
        ZELM_UNROLL
        for (unsigned lane = 0; lane < lanes; ++lane)
            sum = sum + several[lane];
    }
    for (; t < length; ++t)
        sum = sum + terms.term(t);
    return sum;
}

// `aligned` is the address that is brought to a multiple of 16 by summing a head of terms one by one. The
// head's sum is where the first running sum begins.
template <typename T, typename Terms>
ZELM_INLINE T longSum(const Terms &terms, Address aligned, std::uint32_t length) {
    constexpr unsigned lanes = kLanes<T>, round = 8;
    constexpr std::uint32_t least = sizeof(T) == 4 ? 11 : 9;
    T sum = 0;
    std::uint32_t t = 0;
    if (length >= least && aligned % sizeof(T) == 0) {
        const auto head = static_cast<std::uint32_t>((0 - aligned) % 16 / sizeof(T));
        for (; t < head; ++t)
            sum = sum + terms.term(t);
        Pack<T> low = inFirstLane(sum), high = {};
        for (; length - t >= round; t += round) {
            ZELM_UNROLL
            for (unsigned term = 0; term < round; term += 2 * lanes) {
                low = low + terms.terms(t + term);
                high = high + terms.terms(t + term + lanes);
            }
        }
        sum = combined(low, high);
    }
    return chainedSum(terms, sum, t, length);
}

} // namespace zelm::vector
