// A run of elements: dst[i] = op(a[i], b[i]) for i ascending, in whole packs wherever that can't be told from
// the plain loop.
#pragma once

#include "elementwise/operands.h"
#include "frame/pack.h"

#include <numeric>

namespace zelm::elementwise {

// The inputs of a run. `i` is the number of the element; `p` numbers the pack within a round of the loop.

// Adjacent elements, read where they lie.
template <typename T>
struct Stream {
    static constexpr unsigned period = 1;
    Address start;
    ZELM_INLINE T element(Address i) const { return load<T>(start + i * sizeof(T)); }
    ZELM_INLINE Pack<T> pack(Address i, unsigned) const { return loadPack<T>(start + i * sizeof(T)); }
    // Storing a pack of `to` would change elements of the same pack that the plain loop reads after storing
    // others. At any greater distance, and behind the stream, packs in ascending order give what the plain
    // loop gives.
    ZELM_INLINE bool isCloselyBehind(Address to) const { return to - start - 1 < kPackBytes - 1; }
};

// One value for all elements.
template <typename T>
struct Same {
    static constexpr unsigned period = 1;
    T value;
    ZELM_INLINE T element(Address) const { return value; }
    ZELM_INLINE Pack<T> pack(Address, unsigned) const { return broadcast(value); }
    static constexpr bool isCloselyBehind(Address) { return false; }
};

// Adjacent elements times a factor.
template <typename T>
struct ScaledStream {
    static constexpr unsigned period = 1;
    Stream<T> stream;
    T factor;
    ZELM_INLINE T element(Address i) const { return stream.element(i) * factor; }
    ZELM_INLINE Pack<T> pack(Address i, unsigned p) const { return stream.pack(i, p) * broadcast(factor); }
    ZELM_INLINE bool isCloselyBehind(Address to) const { return stream.isCloselyBehind(to); }
};

// Adjacent elements that nothing writes.
template <typename T>
struct HeldStream : Stream<T> {
    static constexpr bool isCloselyBehind(Address) { return false; }
};

// An invariant vector of N elements, read once and held, over and over.
template <typename T, unsigned N>
struct HeldVector : WithoutTable {
    // In packs, after which the pattern meets itself again.
    static constexpr unsigned period = N / std::gcd(N, kLanes<T>);
    T pattern[period * kLanes<T>];
    template <typename Object>
    ZELM_INLINE explicit HeldVector(const Object &object) {
#pragma GCC unroll 6
        for (unsigned j = 0; j < N; ++j)
            store(addressOf(&pattern[j]), value(object, 0, j, FixedShape<1, N>{}));
        repeat();
    }
    ZELM_INLINE explicit HeldVector(const HeldStream<T> &elements) {
        for (unsigned j = 0; j < N; ++j)
            store(addressOf(&pattern[j]), elements.element(j));
        repeat();
    }
    ZELM_INLINE void repeat() {
#pragma GCC unroll 20
        for (unsigned i = N; i < period * kLanes<T>; ++i)
            copyElement<T>(addressOf(&pattern[i]), addressOf(&pattern[i - N]));
    }
    ZELM_INLINE const HeldVector &object(std::uint32_t) const {
        return *this;
    }
    ZELM_INLINE T element(Address i) const {
        return pattern[i % N];
    }
    ZELM_INLINE Pack<T> pack(Address, unsigned p) const {
        return loadPack<T>(addressOf(&pattern[p % period * kLanes<T>]));
    }
    static constexpr bool isCloselyBehind(Address) {
        return false;
    }
};

// An invariant matrix, read once and held as it is used.
template <typename T, unsigned R, unsigned C>
struct HeldMatrix : WithoutTable {
    using Element = T;
    T elements[R * C];
    template <typename Object>
    ZELM_INLINE explicit HeldMatrix(const Object &object) {
#pragma GCC unroll 36
        for (unsigned e = 0; e < R * C; ++e)
            store(addressOf(&elements[e]), value(object, e / C, e % C, FixedShape<R, C>{}));
    }
    ZELM_INLINE const HeldMatrix &object(std::uint32_t) const {
        return *this;
    }
    ZELM_INLINE T get(std::uint32_t i, std::uint32_t j, std::uint32_t) const {
        return elements[i * C + j];
    }
    ZELM_INLINE HeldStream<T> row(std::uint32_t i) const {
        return {{addressOf(&elements[i * C])}};
    }
};

// The elements of a matrix used transposed, row after row of R rows of C elements.
template <typename T, unsigned C>
struct TransposedStream {
    Dense<const T> stored;
    ZELM_INLINE T element(Address e) const {
        return stored.get(static_cast<std::uint32_t>(e % C), static_cast<std::uint32_t>(e / C), 0);
    }
    ZELM_INLINE Pack<T> pack(Address e, unsigned) const {
        if constexpr (sizeof(T) == 4)
            return _mm_setr_ps(element(e), element(e + 1), element(e + 2), element(e + 3));
        else
            return _mm_setr_pd(element(e), element(e + 1));
    }
    static constexpr bool isCloselyBehind(Address) { return false; }
};

template <typename Op, typename T, typename A, typename B>
ZELM_INLINE Address runPacks(const A &a, const B &b, Address dst, Address i, Address length) {
    constexpr unsigned period = std::lcm(A::period, B::period);
    constexpr unsigned round = period < 3 ? 4 : period;
    constexpr unsigned lanes = kLanes<T>;
    for (; length - i >= round * lanes; i += round * lanes) {
#pragma GCC unroll 25
        for (unsigned p = 0; p < round; ++p) {
            const Address at = i + p * lanes;
            storePack(dst + at * sizeof(T), Op::apply(a.pack(at, p), b.pack(at, p)));
        }
    }
    if constexpr (period == 1)
        for (; length - i >= lanes; i += lanes)
            storePack(dst + i * sizeof(T), Op::apply(a.pack(i, 0), b.pack(i, 0)));
    return i;
}

template <typename Op, typename T, typename A, typename B>
ZELM_INLINE void run(const A &a, const B &b, Address dst, Address length) {
    Address i = 0;
    if (length >= 2 * kLanes<T> && !a.isCloselyBehind(dst) && !b.isCloselyBehind(dst))
        i = runPacks<Op, T>(a, b, dst, i, length);
    for (; i < length; ++i)
        store(dst + i * sizeof(T), Op::template apply<T>(a.element(i), b.element(i)));
}

// The same for N elements, without a loop.
template <typename Op, typename T, unsigned N, typename A, typename B>
ZELM_INLINE void shortRun(const A &a, const B &b, Address dst) {
    constexpr unsigned lanes = kLanes<T>;
    unsigned packed = 0;
    if constexpr (N >= lanes) {
        if (!a.isCloselyBehind(dst) && !b.isCloselyBehind(dst)) {
            packed = N / lanes * lanes;
#pragma GCC unroll 18
            for (unsigned p = 0; p < N / lanes; ++p)
                storePack(dst + p * kPackBytes, Op::apply(a.pack(p * lanes, p), b.pack(p * lanes, p)));
        }
    }
    if (packed == 0) {
#pragma GCC unroll 36
        for (unsigned j = 0; j < N; ++j)
            store(dst + j * sizeof(T), Op::template apply<T>(a.element(j), b.element(j)));
    } else {
#pragma GCC unroll 3
        for (unsigned j = N / lanes * lanes; j < N; ++j)
            store(dst + j * sizeof(T), Op::template apply<T>(a.element(j), b.element(j)));
    }
}

} // namespace zelm::elementwise
