// Solving A*x = b with the LU factors of A, by forward and back substitution.
#pragma once

#include "solvers/lu_decomposition.h"
#include "solvers/systems.h"

namespace zelm::solvers {

// One system, as the definition has it. d is the only work space: it holds the forward pass's results, so
// where it overlaps b, later rows of b are read after they were overwritten.
template <typename A, typename B, typename D>
ZELM_NOINLINE void luBackSubstThroughDst(const A &a, Address pivots, const B &b, const D &d,
                                         std::uint32_t n) {
    using T = typename D::Element;
    const auto row = [&](std::uint32_t i) { return load<std::uint32_t>(pivots + Address{i} * 4); };

    copyElement<T>(d.address(0, 0, 0), b.address(0, row(0), 0));
    for (std::uint32_t i = 1; i < n; ++i) {
        const std::uint32_t r = row(i);
        T sum = 0;
        for (std::uint32_t j = 0; j < i; ++j)
            sum = sum + a.get(r, j, n) * d.get(j);
        d.set(i, b.get(r) - sum);
    }
    d.set(n - 1, d.get(n - 1) / a.get(row(n - 1), n - 1, n));
    for (std::uint32_t i = n - 1; i-- > 0;) {
        const std::uint32_t r = row(i);
        T sum = 0;
        for (std::uint32_t j = i + 1; j < n; ++j)
            sum = sum + a.get(r, j, n) * d.get(j);
        d.set(i, (d.get(i) - sum) / a.get(r, i, n));
    }
}

// The same for a fixed size, where the elements of d are distinct: what was stored in d is read from
// registers.
template <unsigned N, typename A, typename B, typename D>
ZELM_INLINE void luBackSubstInRegisters(const A &a, Address pivots, const B &b, const D &d) {
    using T = typename D::Element;
    T x[N];
    const auto row = [&](unsigned i) { return load<std::uint32_t>(pivots + i * 4); };
    x[0] = b.get(row(0));
    d.set(0, x[0]);
    ZELM_UNROLL
    for (unsigned i = 1; i < N; ++i) {
        const std::uint32_t r = row(i);
        T sum = 0;
        ZELM_UNROLL
        for (unsigned j = 0; j < i; ++j)
            sum = sum + a.get(r, j, N) * x[j];
        x[i] = b.get(r) - sum;
        d.set(i, x[i]);
    }
    ZELM_UNROLL
    for (unsigned back = 0; back < N; ++back) {
        const unsigned i = N - 1 - back;
        const std::uint32_t r = row(i);
        T sum = 0;
        ZELM_UNROLL
        for (unsigned j = i + 1; j < N; ++j)
            sum = sum + a.get(r, j, N) * x[j];
        x[i] = (back == 0 ? x[i] : x[i] - sum) / a.get(r, i, N);
        d.set(i, x[i]);
    }
}

// Row numbers are used as given, whatever they are; groups keep to those that lie inside the matrix, since
// only for them is it known which bytes are read. Four at a time where they last.
template <unsigned N, unsigned entries>
ZELM_INLINE bool rowsAreInside(Address pivots) {
    const __m128i lowest = _mm_set1_epi32(static_cast<int>(0x80000000u));
    const __m128i limit = _mm_set1_epi32(static_cast<int>(0x80000000u + N - 1));
    __m128i outside = _mm_setzero_si128();
    constexpr unsigned whole = entries / 4 * 4;
    ZELM_UNROLL
    for (unsigned e = 0; e < whole; e += 4) {
        const __m128i rows = _mm_loadu_si128(reinterpret_cast<const __m128i *>(pivots + e * 4));
        outside = _mm_or_si128(outside, _mm_cmpgt_epi32(_mm_xor_si128(rows, lowest), limit));
    }
    bool inside = _mm_movemask_epi8(outside) == 0;
    for (unsigned e = whole; e < entries; ++e)
        inside &= load<std::uint32_t>(pivots + e * 4) < N;
    return inside;
}

// Systems by their LU factors, whose rows are taken in pivot order: see systems.h.
template <unsigned N>
struct LuSystems {
    static constexpr unsigned order = N;
    static constexpr bool heldInStages = kShortChainsInStages<N>, ownInStages = false;
    const std::uint32_t *pivotIndex;
    template <typename F>
    struct Factors {
        F a[N][N];
    };
    ZELM_INLINE std::uint32_t row(unsigned i) const {
        return load<std::uint32_t>(pivotAddress(pivotIndex, i));
    }

    template <typename A, typename B, typename V>
    ZELM_INLINE bool loadGroup(const A &a, const B &b, std::uint32_t k, Factors<V> &factors,
                               V (&x)[N]) const {
        const Address pivots = pivotAddress(pivotIndex, Address{k} * N);
        if (!rowsAreInside<N, kLanesOf<V> * N>(pivots))
            return false;
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i) {
            const auto physical = [&](unsigned lane) ZELM_INLINE_LAMBDA {
                return load<std::uint32_t>(pivots + (lane * N + i) * 4);
            };
            loadRowOfEach<N>(a, k, physical, factors.a[i]);
            LaneAddresses<V> at;
            ZELM_UNROLL
            for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
                at[lane] = b.object(k + lane).address(0, physical(lane), 0);
            x[i] = gather<V>(at);
        }
        return true;
    }

    template <typename A, typename F>
    ZELM_INLINE bool hold(const A &a, Factors<F> &factors) const {
        if (!rowsAreInside<N, N>(addressOf(pivotIndex)))
            return false;
        for (unsigned i = 0; i < N; ++i)
            for (unsigned j = 0; j < N; ++j)
                factors.a[i][j] = spread<F>(a.get(row(i), j, N));
        return true;
    }

    template <typename B, typename V>
    ZELM_INLINE void loadRight(const B &b, std::uint32_t k, V (&x)[N]) const {
        V right[N];
        readRow<N>(b, k, 0, right);
        ZELM_UNROLL
        for (unsigned i = 0; i < N; ++i)
            x[i] = right[row(i)];
    }

    template <typename F, typename V>
    ZELM_INLINE void forward(const Factors<F> &factors, V (&x)[N]) const {
        luForward(factors.a, x);
    }
    template <typename F, typename V>
    ZELM_INLINE void backward(const Factors<F> &factors, V (&x)[N]) const {
        luBackward(factors.a, x);
    }
};

// How systems with a matrix each are taken in groups, and from which order on that is faster than one after
// the other: gathering the rows in pivot order costs as much as small systems take, and the more so the more
// has to be gathered. (By measurement at 1,000 objects: lists gain nothing from 64 bytes, gathered elements
// nothing from 32.)
template <typename A>
constexpr bool kIsWideArray = kWidestBytes > kBlockBytes &&kHasDenseObjects<A> && !A::isList;
template <typename A>
constexpr unsigned kLeastOrderOfOwnGroups = sizeof(typename A::Element) == 4 ? (kIsWideArray<A> ? 4 : 5)
                                                                             : (kIsWideArray<A> ? 6 : 7);
template <typename A>
constexpr Grouping kOwnGrouping = {kIsWideArray<A>       ? kLongKernels.bytes
                                   : kHasDenseObjects<A> ? widestUpTo(32)
                                                         : kBlockBytes,
                                   kLongKernels.least, kLongKernels.leastInTables};

template <unsigned N, typename A, typename D>
constexpr Grouping kGroupingOfLu = kShortSystems<N, D>;
template <unsigned N, typename A, typename D>
requires kIsArray<A>
constexpr Grouping kGroupingOfLu<N, A, D> = kOwnGrouping<A>;

// The systems of an array, of a fixed size; the elements of each result are distinct.
template <unsigned N, typename A, typename B, typename D>
ZELM_NOINLINE ZelmStatus luBackSubstObjects(const A &a, const std::uint32_t *pivotIndex, const B &b,
                                            const D &d, std::uint32_t count) {
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        luBackSubstInRegisters<N>(a.object(k), pivotAddress(pivotIndex, kIsArray<A> ? Address{k} * N : 0),
                                  b.object(k), d.object(k));
        return ZELM_OK;
    };
    if constexpr (kIsArray<A> ? N < kLeastOrderOfOwnGroups<A> : kSolvesAlone<N, A, D>) {
        return forEachObject(count, one, a, b, d);
    } else {
        const Buffer pivots =
            kIsArray<A> ? readsPerObject(pivotIndex, N * 4) : readsForAll(pivotIndex, N * 4);
        return solveSystems<kGroupingOfLu<N, A, D>>(LuSystems<N>{pivotIndex}, pivots, one, a, b, InPlace::No,
                                                    d, count);
    }
}

// ---- the exported rows

template <typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus luBackSubstSingle(const A &a, const std::uint32_t *pivotIndex, const B &b, const D &d,
                                         Size size) {
    constexpr unsigned N = Size::fixed;
    const Address n = size.value();
    if (ZelmStatus status = checkAlone(size.isZero(), testedAlone<N * N>(a, n * n), testedAlone<N>(b, n),
                                       testedAlone<N>(d, n), tested(Pointer(pivotIndex), 0));
        status != kProceed)
        return status;
    if constexpr (N != 0) {
        if (resultIsDistinct<N>(d)) {
            luBackSubstInRegisters<N>(a, addressOf(pivotIndex), b, d);
            return ZELM_OK;
        }
    }
    luBackSubstThroughDst(aside(a), addressOf(pivotIndex), aside(b), aside(d), size.value());
    return ZELM_OK;
}

// A matrix of each object's own has its own block of pivotIndex; a matrix that serves all objects has one.
template <typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus luBackSubstArray(const A &a, const std::uint32_t *pivotIndex, const B &b, const D &d,
                                        Size size, std::uint32_t count) {
    const Address n = size.value();
    if (ZelmStatus status = checkArray(size.isZero(), count, tested(a, n * n), tested(b, n), tested(d, n),
                                       tested(Pointer(pivotIndex), 0));
        status != kProceed)
        return status;
    if constexpr (Size::fixed != 0)
        if (resultIsDistinct<Size::fixed>(d))
            return withPlainest(
                [&](const auto &matrix, const auto &right, const auto &target) ZELM_INLINE_LAMBDA {
                    return luBackSubstObjects<Size::fixed>(matrix, pivotIndex, right, target, count);
                },
                a, b, d);
    const auto throughDst = [&](std::uint32_t k) {
        luBackSubstThroughDst(a.object(k), pivotAddress(pivotIndex, kIsArray<A> ? k * n : 0), b.object(k),
                              d.object(k), size.value());
        return ZELM_OK;
    };
    return forEachObject(count, throughDst, a, b, d);
}

} // namespace zelm::solvers
