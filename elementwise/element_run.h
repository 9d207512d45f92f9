// A run of elements: dst[i] = op(a[i], b[i]) for i ascending, in whole packs wherever that can't be told from
// the plain loop.
#pragma once

#include "elementwise/scaled.h"
#include "frame/shuffles.h"
#include "frame/widths.h"

#include <algorithm>
#include <numeric>

namespace zelm::elementwise {

// The inputs of a run. `i` is the number of the element; `p` numbers the pack within a round of the loop.
// period<V> is the number of packs after which an input repeats itself.

// Adjacent elements, read where they lie.
template <typename T>
struct Stream {
    template <typename V>
    static constexpr unsigned period = 1;
    Address start;
    ZELM_INLINE T element(Address i) const { return load<T>(start + i * sizeof(T)); }
    template <typename V>
    ZELM_INLINE V pack(Address i, unsigned) const {
        return loadAs<V>(start + i * sizeof(T));
    }
    // Storing a pack of `to` would change elements of the same pack that the plain loop reads after storing
    // others. At any greater distance, and behind the stream, packs in ascending order give what the plain
    // loop gives.
    ZELM_INLINE bool isCloselyBehind(Address to, Address bytes) const { return to - start - 1 < bytes - 1; }
};

// One value for all elements.
template <typename T>
struct Same {
    template <typename V>
    static constexpr unsigned period = 1;
    T value;
    ZELM_INLINE T element(Address) const { return value; }
    template <typename V>
    ZELM_INLINE V pack(Address, unsigned) const {
        return spread<V>(value);
    }
    static constexpr bool isCloselyBehind(Address, Address) { return false; }
};

// Adjacent elements times a factor.
template <typename T>
struct ScaledStream {
    template <typename V>
    static constexpr unsigned period = 1;
    Stream<T> stream;
    T factor;
    ZELM_INLINE T element(Address i) const { return stream.element(i) * factor; }
    template <typename V>
    ZELM_INLINE V pack(Address i, unsigned p) const {
        return stream.template pack<V>(i, p) * spread<V>(factor);
    }
    ZELM_INLINE bool isCloselyBehind(Address to, Address bytes) const {
        return stream.isCloselyBehind(to, bytes);
    }
};

// Adjacent elements that nothing writes.
template <typename T>
struct HeldStream : Stream<T> {
    static constexpr bool isCloselyBehind(Address, Address) { return false; }
};

// An invariant vector of N elements, read once and held, over and over.
template <typename T, unsigned N>
struct HeldVector : WithoutTable {
    template <typename V>
    static constexpr unsigned period = N / std::gcd(N, kLanesOf<V>);
    static constexpr unsigned length = std::lcm(N, kLanesOf<Pack<T, kRunBytes>>);
    T pattern[length];
    template <typename Object>
    ZELM_INLINE explicit HeldVector(const Object &object) {
        ZELM_UNROLL
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
        ZELM_UNROLL
        for (unsigned i = N; i < length; ++i)
            copyElement<T>(addressOf(&pattern[i]), addressOf(&pattern[i - N]));
    }
    ZELM_INLINE const HeldVector &object(std::uint32_t) const { return *this; }
    ZELM_INLINE T element(Address i) const { return pattern[i % N]; }
    template <typename V>
    ZELM_INLINE V pack(Address, unsigned p) const {
        return loadAs<V>(addressOf(&pattern[p % period<V> * kLanesOf<V>]));
    }
    static constexpr bool isCloselyBehind(Address, Address) { return false; }
};

// An invariant matrix, read once and held as it is used.
template <typename T, unsigned R, unsigned C>
struct HeldMatrix : WithoutTable {
    using Element = T;
    T elements[R * C];
    template <typename Object>
    ZELM_INLINE explicit HeldMatrix(const Object &object) {
        ZELM_UNROLL
        for (unsigned e = 0; e < R * C; ++e)
            store(addressOf(&elements[e]), value(object, e / C, e % C, FixedShape<R, C>{}));
    }
    ZELM_INLINE const HeldMatrix &object(std::uint32_t) const { return *this; }
    ZELM_INLINE T get(std::uint32_t i, std::uint32_t j, std::uint32_t) const { return elements[i * C + j]; }
    ZELM_INLINE HeldStream<T> row(std::uint32_t i) const { return {{addressOf(&elements[i * C])}}; }
};

// The elements of a matrix used transposed, row after row of R rows of C elements.
template <typename T, unsigned C>
struct TransposedStream {
    Dense<const T> stored;
    ZELM_INLINE T element(Address e) const {
        return stored.get(static_cast<std::uint32_t>(e % C), static_cast<std::uint32_t>(e / C), 0);
    }
    template <typename V>
    ZELM_INLINE V pack(Address e, unsigned) const {
        return fromBlocks<V>([&](unsigned b) ZELM_INLINE_LAMBDA {
            return packOf<T>([&](unsigned lane)
                                 ZELM_INLINE_LAMBDA { return element(e + b * kLanes<T> + lane); });
        });
    }
    static constexpr bool isCloselyBehind(Address, Address) { return false; }
};

// Four rows of four elements used transposed: read as rows, and ahead of all that is written.
template <typename T>
struct TransposedFour {
    Pack<T> packs[16 / kLanes<T>];
    ZELM_INLINE explicit TransposedFour(const Dense<const T> &stored) {
        if constexpr (sizeof(T) == 4) {
            ZELM_UNROLL
            for (unsigned i = 0; i < 4; ++i)
                packs[i] = loadPack<T>(stored.rowStart(i));
            transposeFour(packs[0], packs[1], packs[2], packs[3]);
        } else {
            ZELM_UNROLL
            for (unsigned block = 0; block < 4; ++block) {
                const unsigned i = block / 2 * 2, half = block % 2;
                const Pack<T> upper = loadPack<T>(stored.rowStart(i) + half * kBlockBytes);
                const Pack<T> lower = loadPack<T>(stored.rowStart(i + 1) + half * kBlockBytes);
                packs[4 * half + i / 2] = interleaveLow(upper, lower);
                packs[4 * half + i / 2 + 2] = interleaveHigh(upper, lower);
            }
        }
    }
    ZELM_INLINE T element(Address e) const { return packs[e / kLanes<T>][e % kLanes<T>]; }
    template <typename V>
    ZELM_INLINE V pack(Address e, unsigned) const {
        return fromBlocks<V>([&](unsigned b) ZELM_INLINE_LAMBDA { return packs[e / kLanes<T> + b]; });
    }
    static constexpr bool isCloselyBehind(Address, Address) { return false; }
};

// Three rows of three elements used transposed, without a gap: eight of them in a pack, and the last.
template <typename T>
constexpr bool kHasPackOfEight = 8 * sizeof(T) <= kRunBytes;

template <typename T>
struct TransposedNine {
    Pack<T, 8 * sizeof(T)> eight;
    T last;
    ZELM_INLINE explicit TransposedNine(const Dense<const T> &stored)
        : eight(loadAs<decltype(eight)>(stored.start)), last(stored.get(2, 2, 0)) {
        eight = __builtin_shufflevector(eight, eight, 0, 3, 6, 1, 4, 7, 2, 5);
    }
    ZELM_INLINE T element(Address i) const { return i < 8 ? eight[i] : last; }
    template <typename V>
    ZELM_INLINE V pack(Address at, unsigned) const {
        return part<V>(eight, at);
    }
    static constexpr bool isCloselyBehind(Address, Address) { return false; }

private:
    template <typename V, typename W>
    static ZELM_INLINE V part(W all, Address at) {
        if constexpr (std::is_same_v<V, W>)
            return all;
        else
            return at < kLanesOf<W> / 2 ? part<V>(lowHalf(all), at)
                                        : part<V>(highHalf(all), at - kLanesOf<W> / 2);
    }
};

// Packs in registers stay there, and are no arguments of a call.
template <typename Input>
constexpr bool kIsInPacks = false;
template <typename T>
constexpr bool kIsInPacks<TransposedFour<T>> = true;
template <typename T>
constexpr bool kIsInPacks<TransposedNine<T>> = true;

// An input as a loop of packs reads it: a short pattern in registers, all others where they lie.
template <typename V, typename Input>
ZELM_INLINE const Input &inRegisters(const Input &input) {
    return input;
}

template <typename V, unsigned number>
struct HeldPacks {
    V held[number];
    template <typename>
    ZELM_INLINE V pack(Address, unsigned p) const {
        return held[p % number];
    }
};

template <typename V, typename T, unsigned N>
requires(HeldVector<T, N>::template period<V> <= 4) ZELM_INLINE
    auto inRegisters(const HeldVector<T, N> &input) {
    constexpr unsigned number = HeldVector<T, N>::template period<V>;
    HeldPacks<V, number> packs;
    ZELM_UNROLL
    for (unsigned p = 0; p < number; ++p)
        packs.held[p] = input.template pack<V>(0, p);
    return packs;
}

// Whole packs from element i on, about `packs` of them a round, the widest first; the number of the first
// element that is left.
template <typename Op, typename V, unsigned packs, typename A, typename B>
ZELM_INLINE Address runPacks(const A &a, const B &b, Address dst, Address i, Address length) {
    constexpr unsigned period = std::lcm(A::template period<V>, B::template period<V>);
    constexpr unsigned round = std::max(period, packs / period * period);
    constexpr unsigned lanes = kLanesOf<V>;
    const auto &first = inRegisters<V>(a);
    const auto &second = inRegisters<V>(b);
    const auto step = [&](Address at, unsigned p) ZELM_INLINE_LAMBDA {
        storePack(dst + at * sizeof(ElementOf<V>),
                  Op::apply(first.template pack<V>(at, p), second.template pack<V>(at, p)));
    };
    const auto rounds = [&]<unsigned... p>(std::integer_sequence<unsigned, p...> all) ZELM_INLINE_LAMBDA {
        for (; length - i >= all.size() * lanes; i += all.size() * lanes)
            (step(i + p * lanes, p), ...);
    };
    if (!a.isCloselyBehind(dst, sizeof(V)) && !b.isCloselyBehind(dst, sizeof(V))) {
        rounds(std::make_integer_sequence<unsigned, round>());
        if constexpr (period < round)
            rounds(std::make_integer_sequence<unsigned, period>());
    }
    if constexpr (sizeof(V) > kBlockBytes)
        return runPacks<Op, Pack<ElementOf<V>, sizeof(V) / 2>, packs>(a, b, dst, i, length);
    else
        return i;
}

template <typename Op, typename V, unsigned packs, typename A, typename B>
ZELM_INLINE void runFrom(const A &a, const B &b, Address dst, Address length) {
    using T = ElementOf<V>;
    Address i = 0;
    if (length >= 2 * kLanes<T>)
        i = runPacks<Op, V, packs>(a, b, dst, i, length);
    for (; i < length; ++i)
        store(dst + i * sizeof(T), Op::template apply<T>(a.element(i), b.element(i)));
}

// A loop of few packs takes up to twice as long where it begins at a place that the processor fetches badly.
constexpr unsigned kPacksOfRow = 4, kPacksOfArray = 8;

// A run over a whole array. One instance serves all shapes. Its status, always the same, lets callers end
// with it and need no frame.
template <typename Op, typename T, typename A, typename B>
ZELM_NOINLINE ZelmStatus longRun(A a, B b, Address dst, Address length) {
    runFrom<Op, Pack<T, kRunBytes>, kPacksOfArray>(a, b, dst, length);
    return ZELM_OK;
}

// Rows of one to two packs: the first pack and the last, which may lie over each other, so that there is no
// loop and nothing left. False where packs would be told from the plain loop.
template <typename Op, typename V, typename A, typename B>
ZELM_INLINE bool runAsTwo(const A &a, const B &b, Address dst, Address length) {
    using T = ElementOf<V>;
    if (length <= 2 * kLanesOf<V>) {
        if (a.isCloselyBehind(dst, length * sizeof(T)) || b.isCloselyBehind(dst, length * sizeof(T)))
            return false;
        const Address last = length - kLanesOf<V>;
        const V first = Op::apply(a.template pack<V>(0, 0), b.template pack<V>(0, 0));
        const V second = Op::apply(a.template pack<V>(last, 0), b.template pack<V>(last, 0));
        storePack(dst, first);
        storePack(dst + last * sizeof(T), second);
        return true;
    }
    if constexpr (sizeof(V) < kRunBytes)
        return runAsTwo<Op, Pack<T, 2 * sizeof(V)>>(a, b, dst, length);
    __builtin_unreachable();
}

// A run over one row. Short ones are done in two packs; where packs are wide, longer ones stand apart, so
// that a loop over short rows keeps its addresses in registers.
template <typename Op, typename T, bool asTwo = !kHasFewRegisters, typename A, typename B>
ZELM_INLINE void run(const A &a, const B &b, Address dst, Address length) {
    if constexpr (kRunBytes == kBlockBytes) {
        // Of 64-bit float two packs are but four elements: the loop would be the slower for the test.
        if constexpr (sizeof(T) == 4 && asTwo)
            if (length - kLanes<T> <= kLanes<T> && runAsTwo<Op, Pack<T>>(a, b, dst, length))
                return;
        runFrom<Op, Pack<T>, kPacksOfRow>(a, b, dst, length);
    } else if (length < kLanes<T>) {
        for (Address i = 0; i < length; ++i)
            store(dst + i * sizeof(T), Op::template apply<T>(a.element(i), b.element(i)));
    } else if (length > 2 * kRunBytes / sizeof(T) || !runAsTwo<Op, Pack<T>>(a, b, dst, length)) {
        longRun<Op, T>(a, b, dst, length);
    }
}

// Without a loop, element by element ...
template <typename Op, typename T, unsigned N, unsigned i = 0, typename A, typename B>
ZELM_INLINE void shortElements(const A &a, const B &b, Address dst) {
    ZELM_UNROLL
    for (unsigned j = i; j < N; ++j)
        store(dst + j * sizeof(T), Op::template apply<T>(a.element(j), b.element(j)));
}

// ... and the elements i to N - 1 in packs.
template <typename Op, typename V, unsigned N, unsigned i, typename A, typename B>
ZELM_INLINE void shortPacks(const A &a, const B &b, Address dst) {
    using T = ElementOf<V>;
    constexpr unsigned lanes = kLanesOf<V>, whole = i + (N - i) / lanes * lanes;
    ZELM_UNROLL
    for (unsigned at = i; at < whole; at += lanes)
        storePack(dst + at * sizeof(T),
                  Op::apply(a.template pack<V>(at, at / lanes), b.template pack<V>(at, at / lanes)));
    if constexpr (sizeof(V) > kBlockBytes) {
        shortPacks<Op, Pack<T, sizeof(V) / 2>, N, whole>(a, b, dst);
    } else {
        shortElements<Op, T, N, whole>(a, b, dst);
    }
}

// Where packs would be told from the plain loop. It stands apart and is cold, so that no addresses are
// computed ahead for it. Its status is that of longRun.
template <typename Op, typename T, unsigned N, typename A, typename B>
ZELM_NOINLINE __attribute__((cold)) ZelmStatus overlappingRun(A a, B b, Address dst) {
    for (Address i = 0; i < N; ++i)
        store(dst + i * sizeof(T), Op::template apply<T>(a.element(i), b.element(i)));
    return ZELM_OK;
}

// Vectors have too few elements for it, and would rather keep their constants in registers.
constexpr unsigned kMostInline = 6;

template <typename T, unsigned N>
constexpr unsigned kWidestOfShort = N * sizeof(T) >= kShortRunBytes ? kShortRunBytes
                                    : N * sizeof(T) >= 32           ? widestUpTo(32)
                                                                    : kBlockBytes;

// A run inside a loop over objects.
template <typename Op, typename T, unsigned N, typename A, typename B>
ZELM_INLINE void shortRun(const A &a, const B &b, Address dst) {
    if constexpr (N >= kLanes<T>) {
        constexpr unsigned widest = kWidestOfShort<T, N>;
        // Expected, so that a loop over objects goes on without a jump. Where registers are few that gains
        // nothing.
        constexpr double likely = kHasFewRegisters ? 0.5 : 0.9;
        if (__builtin_expect_with_probability(
                !a.isCloselyBehind(dst, widest) && !b.isCloselyBehind(dst, widest), 1, likely)) {
            shortPacks<Op, Pack<T, widest>, N, 0>(a, b, dst);
            return;
        }
        if constexpr (N > kMostInline) {
            overlappingRun<Op, T, N, A, B>(a, b, dst);
            return;
        }
    }
    if constexpr (N < kLanes<T> || N <= kMostInline)
        shortElements<Op, T, N>(a, b, dst);
}

// Whether a function may end with a call and have no frame for it. On 32-bit x86 it would align its stack.
constexpr bool kEndsWithCalls = sizeof(Address) == 8;

// A run of its own. Three elements take fewer instructions than the tests for a pack.
template <typename Op, typename T, unsigned N, typename A, typename B>
ZELM_INLINE ZelmStatus singleRun(const A &a, const B &b, Address dst) {
    constexpr unsigned widest = kWidestOfShort<T, N>;
    constexpr bool isInPacks = kIsInPacks<A> || kIsInPacks<B>;
    if constexpr (N <= 3) {
        shortElements<Op, T, N>(a, b, dst);
    } else if (__builtin_expect_with_probability(a.isCloselyBehind(dst, widest) ||
                                                     b.isCloselyBehind(dst, widest),
                                                 0, isInPacks ? 0.5 : 1)) {
        if constexpr (kEndsWithCalls && !isInPacks)
            return overlappingRun<Op, T, N, A, B>(a, b, dst);
        shortElements<Op, T, N>(a, b, dst);
    } else {
        shortPacks<Op, Pack<T, widest>, N, 0>(a, b, dst);
    }
    return ZELM_OK;
}

} // namespace zelm::elementwise
