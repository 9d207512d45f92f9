// Solving A*x = b with the LU factors of A, by forward and back substitution.
#pragma once

#include "solvers/lu_decomposition.h"

namespace zelm::solvers {

// One system, as the definition has it. d is the only work space: it holds the forward pass's results, so
// where it overlaps b, later rows of b are read after they were overwritten.
template <typename A, typename B, typename D, typename Size>
__attribute__((noinline)) void luBackSubstInPlace(const A &a, Address pivots, const B &b, const D &d,
                                                  Size size) {
    using T = typename D::Element;
    const std::uint32_t n = size.value();
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
#pragma GCC unroll 6
    for (unsigned i = 1; i < N; ++i) {
        const std::uint32_t r = row(i);
        T sum = 0;
#pragma GCC unroll 6
        for (unsigned j = 0; j < i; ++j)
            sum = sum + a.get(r, j, N) * x[j];
        x[i] = b.get(r) - sum;
        d.set(i, x[i]);
    }
#pragma GCC unroll 6
    for (unsigned back = 0; back < N; ++back) {
        const unsigned i = N - 1 - back;
        const std::uint32_t r = row(i);
        T sum = 0;
#pragma GCC unroll 6
        for (unsigned j = i + 1; j < N; ++j)
            sum = sum + a.get(r, j, N) * x[j];
        x[i] = (back == 0 ? x[i] : x[i] - sum) / a.get(r, i, N);
        d.set(i, x[i]);
    }
}

// Row numbers are used as given, whatever they are; registers and groups keep to those that lie inside the
// matrix, since only for them is it known which bytes are read.
template <unsigned N>
ZELM_INLINE bool rowsAreInside(Address pivots) {
    bool inside = true;
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        inside &= load<std::uint32_t>(pivots + i * 4) < N;
    return inside;
}

// The same for the blocks of `entries` row numbers of a group, four at a time where they last.
template <unsigned N, unsigned entries>
ZELM_INLINE bool rowsOfGroupAreInside(Address pivots) {
    const __m128i lowest = _mm_set1_epi32(static_cast<int>(0x80000000u));
    const __m128i limit = _mm_set1_epi32(static_cast<int>(0x80000000u + N - 1));
    __m128i outside = _mm_setzero_si128();
    constexpr unsigned whole = entries / 4 * 4;
#pragma GCC unroll 6
    for (unsigned e = 0; e < whole; e += 4) {
        const __m128i rows = _mm_loadu_si128(reinterpret_cast<const __m128i *>(pivots + e * 4));
        outside = _mm_or_si128(outside, _mm_cmpgt_epi32(_mm_xor_si128(rows, lowest), limit));
    }
    bool inside = _mm_movemask_epi8(outside) == 0;
    for (unsigned e = whole; e < entries; ++e)
        inside &= load<std::uint32_t>(pivots + e * 4) < N;
    return inside;
}

// As many systems as a pack has lanes, each with a matrix of its own.
template <unsigned N, typename A, typename B, typename D>
__attribute__((noinline)) void luBackSubstGroup(const Group<A> &a, Address pivots, const Group<B> &b,
                                                const Group<D> &d) {
    using T = typename D::Element;
    const auto physical = [pivots](unsigned lane, unsigned i) {
        return load<std::uint32_t>(pivots + (lane * N + i) * 4);
    };
    Pack<T> factors[N][N], x[N];
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        loadRowOfEach<N>(
            a, [&](unsigned lane) { return physical(lane, i); }, factors[i]);
        LaneAddresses<T> at;
#pragma GCC unroll 4
        for (unsigned lane = 0; lane < kLanes<T>; ++lane)
            at[lane] = b.objects[lane].address(0, physical(lane, i), 0);
        x[i] = gather(at);
    }
    luSolve<T, N>(factors, x);
    storeRow<N>(d, 0, x);
}

// The same with one matrix for all systems, which lies in `factors`, each element in all lanes.
template <unsigned N, typename T, typename B, typename D>
__attribute__((noinline)) void luBackSubstGroupShared(const Pack<T> (&factors)[N][N], Address pivots,
                                                      const Group<B> &b, const Group<D> &d) {
    Pack<T> right[N], x[N];
    loadRow<N>(b, 0, right);
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i)
        x[i] = right[load<std::uint32_t>(pivots + i * 4)];
    luSolve<T, N>(factors, x);
    storeRow<N>(d, 0, x);
}

// Whether groups of systems may be solved, asked once for a whole array.
template <unsigned N, typename A, typename B, typename D>
ZELM_INLINE bool luBackSubstInGroups(const A &a, const Range &pivots, const B &b, const D &d,
                                     std::uint32_t count) {
    return mayWriteGroups<N>(d, 1, count) && isUntouched(a, N, N, d, 1, N, count) &&
           isUntouched(b, 1, N, d, 1, N, count) && areDisjoint(pivots, rangeOf(d, 1, N, count));
}

// The same for one group of a list, from the extents of its objects.
template <unsigned N, typename A, typename B, typename D>
struct LuBackSubstExtents {
    static constexpr unsigned lanes = kLanes<typename D::Element>;
    Extent matrix, right, result;
    bool distinct;
    ZELM_INLINE LuBackSubstExtents(const A &a, const B &b, const D &d)
        : matrix(extentOf(a, N, N)), right(extentOf(b, 1, N)), result(extentOf(d, 1, N)),
          distinct(objectElementsAreApart(d, 1, N)) {}
    ZELM_INLINE bool fit(const A &a, const B &b, const D &d, Address pivots, Address pivotBytes,
                         std::uint32_t k) const {
        const Lowest<lanes> target = lowestOf<lanes>(d, result, k);
        bool apart = distinct && areApartFromEachOther(target, result.bytes) &&
                     areApartFrom(target, result.bytes, lowestOf<lanes>(a, matrix, k), matrix.bytes) &&
                     areApartFrom(target, result.bytes, lowestOf<lanes>(b, right, k), right.bytes);
        for (unsigned lane = 0; lane < lanes; ++lane)
            apart &= areDisjoint(target.at[lane], result.bytes, pivots, pivotBytes);
        return apart;
    }
};

// ---- array forms of a fixed size

// From which order on a group of systems with a matrix each is faster than one after the other: gathering the
// rows in pivot order costs as much as small systems take.
template <typename T>
constexpr unsigned kLeastOrderOfOwnGroups = sizeof(T) == 4 ? 5 : 7;

// A matrix for each system.
template <unsigned N, typename A, typename B, typename D, typename One>
ZELM_INLINE ZelmStatus luBackSubstOwn(const A &a, const std::uint32_t *pivotIndex, const B &b, const D &d,
                                      One one, std::uint32_t count) {
    constexpr unsigned lanes = kLanes<typename D::Element>;
    if constexpr (!D::isList) {
        const Range pivots = rangeFrom(addressOf(pivotIndex), std::int64_t{count} * N * 4);
        if (!luBackSubstInGroups<N>(a, pivots, b, d, count))
            return forEachObject(count, one, a, b, d);
    }
    const auto fits = [&] {
        if constexpr (D::isList)
            return LuBackSubstExtents<N, A, B, D>(a, b, d);
        else
            return 0;
    }();
    const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
        if (anyEntryNull(a, k) || anyEntryNull(b, k) || anyEntryNull(d, k))
            return false;
        const Address pivots = pivotAddress(pivotIndex, Address{k} * N);
        if constexpr (D::isList)
            if (!fits.fit(a, b, d, pivots, lanes * N * 4, k))
                return false;
        if (!rowsOfGroupAreInside<N, lanes * N>(pivots))
            return false;
        luBackSubstGroup<N>(groupAt(a, k), pivots, groupAt(b, k), groupAt(d, k));
        return true;
    };
    return forEachGroup<lanes>(count, group, one, a, b, d);
}

// One matrix for all systems: its elements are spread over all lanes once.
template <unsigned N, typename A, typename B, typename D, typename One>
ZELM_INLINE ZelmStatus luBackSubstShared(const A &a, Address pivots, const B &b, const D &d, One one,
                                         std::uint32_t count) {
    using T = typename D::Element;
    constexpr unsigned lanes = kLanes<T>;
    const Range pivotRange = rangeFrom(pivots, N * 4);
    bool grouped = count >= lanes && rowsAreInside<N>(pivots);
    if constexpr (!D::isList)
        grouped = grouped && luBackSubstInGroups<N>(a, pivotRange, b, d, count);
    if (!grouped)
        return forEachObject(count, one, a, b, d);

    Pack<T> factors[N][N];
    for (unsigned i = 0; i < N; ++i)
        for (unsigned j = 0; j < N; ++j)
            factors[i][j] = broadcast(a.get(load<std::uint32_t>(pivots + i * 4), j, N));

    const auto fits = [&] {
        if constexpr (D::isList)
            return LuBackSubstExtents<N, A, B, D>(a, b, d);
        else
            return 0;
    }();
    const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
        if (!grouped || anyEntryNull(b, k) || anyEntryNull(d, k))
            return false;
        if constexpr (D::isList) {
            // Once an object is done by itself for its overlap, the matrix may be another one than was
            // spread.
            grouped = fits.fit(a, b, d, pivots, N * 4, k);
            if (!grouped)
                return false;
        }
        luBackSubstGroupShared<N, T>(factors, pivots, groupAt(b, k), groupAt(d, k));
        return true;
    };
    return forEachGroup<lanes>(count, group, one, a, b, d);
}

// ---- the exported rows

template <typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus luBackSubstSingle(const A &a, const std::uint32_t *pivotIndex, const B &b, const D &d,
                                         Size size) {
    const Address n = size.value();
    if (ZelmStatus status = checkSingleWhole(size.isZero(), tested(a, n * n), tested(b, n), tested(d, n),
                                             tested(Pointer(pivotIndex), 0));
        status != kProceed)
        return status;
    if constexpr (Size::fixed != 0) {
        if (resultIsDistinct<Size::fixed>(d)) {
            luBackSubstInRegisters<Size::fixed>(a, addressOf(pivotIndex), b, d);
            return ZELM_OK;
        }
    }
    luBackSubstInPlace(a, addressOf(pivotIndex), b, d, size);
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
    const auto pivotsOf = [&](std::uint32_t k) { return pivotAddress(pivotIndex, kIsShared<A> ? 0 : k * n); };
    const auto inPlace = [&](std::uint32_t k) {
        luBackSubstInPlace(a.object(k), pivotsOf(k), b.object(k), d.object(k), size);
        return ZELM_OK;
    };
    if constexpr (Size::fixed == 0) {
        return forEachObject(count, inPlace, a, b, d);
    } else {
        constexpr unsigned N = Size::fixed;
        if (!resultIsDistinct<N>(d))
            return forEachObject(count, inPlace, a, b, d);
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            luBackSubstInRegisters<N>(a.object(k), pivotsOf(k), b.object(k), d.object(k));
            return ZELM_OK;
        };
        if constexpr (kIsShared<A>)
            return luBackSubstShared<N>(a, addressOf(pivotIndex), b, d, one, count);
        else if constexpr (N >= kLeastOrderOfOwnGroups<typename D::Element>)
            return luBackSubstOwn<N>(a, pivotIndex, b, d, one, count);
        else
            return forEachObject(count, one, a, b, d);
    }
}

} // namespace zelm::solvers
