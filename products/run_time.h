// Products whose dimensions are arguments, where dst lies apart from the sources: the partial sums that the
// definition stores can't be seen then, so that each is kept in a register, and several elements of dst are
// summed side by side. Sums begin at +0 and run over t in ascending order, as ever.
#pragma once

#include "frame/batch.h"
#include "products/accumulate.h"

namespace zelm::products {

// More rows or columns than this are done element by element: the arithmetic on ranges could overflow. Tables
// are tested entry by entry, which is worth it up to a number of entries.
constexpr std::uint32_t kMostInRange = std::uint32_t{1} << 24, kMostEntries = 64;

// A source of `rows` by `columns` as used, with so many table entries to a row.
template <typename S>
ZELM_INLINE Source<S> readsUsed(const S &s, std::uint32_t rows, std::uint32_t columns, std::uint32_t pitch) {
    const std::uint32_t storedRows = kIsTransposed<S> ? columns : rows;
    const std::uint32_t storedColumns = kIsTransposed<S> ? rows : columns;
    if constexpr (S::isTable)
        return reads(s, 1, (storedRows - 1) * pitch + storedColumns);
    else
        return reads(s, storedRows, storedColumns);
}

template <typename D>
ZELM_INLINE Result<D> writesUsed(const D &d, std::uint32_t rows, std::uint32_t columns, std::uint32_t pitch) {
    if constexpr (D::isTable)
        return writes(d, 1, (rows - 1) * pitch + columns);
    else
        return writes(d, rows, columns);
}

template <typename D>
ZELM_INLINE bool isInReach(const Bounds &bounds, const Pitches &pitches) {
    if (bounds.rows == 0 || bounds.columns == 0 || bounds.terms == 0)
        return false;
    if constexpr (D::isTable)
        return bounds.rows <= 8 && bounds.columns <= 8 && bounds.terms <= 8 && pitches.first <= 8 &&
               pitches.second <= 8 && pitches.result <= 8;
    return bounds.rows <= kMostInRange && bounds.columns <= kMostInRange && bounds.terms <= kMostInRange;
}

// Element (i, j) as used of the objects from k on.
template <typename V, typename S>
ZELM_INLINE V elementsOf(const S &s, std::uint32_t k, std::uint32_t i, std::uint32_t j, std::uint32_t pitch) {
    if constexpr (kIsArray<S>) {
        const auto object = s.object(k);
        return loadAs<V>(kIsTransposed<S> ? object.address(j, i, pitch) : object.address(i, j, pitch));
    } else {
        return spread<V>(used(s, i, j, pitch));
    }
}

template <typename V, typename D>
ZELM_INLINE void storeElements(const D &d, std::uint32_t k, std::uint32_t i, std::uint32_t j,
                               std::uint32_t pitch, V value) {
    storePack(d.object(k).address(i, j, pitch), value);
}

// The elements (i, j) to (i, j + width - 1) of dst.
template <unsigned width, typename V, typename A, typename B, typename D>
ZELM_INLINE void sumColumns(const A &a, const B &b, const D &d, std::uint32_t k, std::uint32_t i,
                            std::uint32_t j, std::uint32_t terms, const Pitches &pitches) {
    V sums[width] = {};
    for (std::uint32_t t = 0; t < terms; ++t) {
        const V factor = elementsOf<V>(a, k, i, t, pitches.first);
        ZELM_UNROLL
        for (unsigned c = 0; c < width; ++c)
            sums[c] = sums[c] + factor * elementsOf<V>(b, k, t, j + c, pitches.second);
    }
    ZELM_UNROLL
    for (unsigned c = 0; c < width; ++c)
        storeElements(d, k, i, j + c, pitches.result, sums[c]);
}

// Columns from `first` on, four at a time as far as they last.
template <typename V, typename A, typename B, typename D>
ZELM_INLINE void multiplyColumns(const A &a, const B &b, const D &d, std::uint32_t k, std::uint32_t first,
                                 const Bounds &bounds, const Pitches &pitches) {
    for (std::uint32_t i = 0; i < bounds.rows; ++i) {
        std::uint32_t j = first;
        for (; bounds.columns - j >= 4; j += 4)
            sumColumns<4, V>(a, b, d, k, i, j, bounds.terms, pitches);
        for (; j < bounds.columns; ++j)
            sumColumns<1, V>(a, b, d, k, i, j, bounds.terms, pitches);
    }
}

// ---- inside one object: whole packs of columns

template <typename V, typename D>
ZELM_INLINE void storeColumns(const D &d, std::uint32_t i, std::uint32_t j, std::uint32_t pitch, V values) {
    if constexpr (D::isDense) {
        storePack(d.address(i, j, pitch), values);
    } else {
        LaneAddresses<V> at;
        ZELM_UNROLL
        for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
            at[lane] = d.address(i, j + lane, pitch);
        scatter(at, values);
    }
}

template <unsigned rows, unsigned packs, typename V, typename A, typename T, typename D>
ZELM_INLINE void sumBlock(const A &a, const Dense<const T> &b, const D &d, std::uint32_t i, std::uint32_t j,
                          std::uint32_t terms, const Pitches &pitches) {
    V sums[rows][packs] = {};
    for (std::uint32_t t = 0; t < terms; ++t) {
        V columns[packs];
        ZELM_UNROLL
        for (unsigned p = 0; p < packs; ++p)
            columns[p] = loadAs<V>(b.address(t, j + p * kLanesOf<V>, 0));
        ZELM_UNROLL
        for (unsigned r = 0; r < rows; ++r) {
            const V factor = spread<V>(used(a, i + r, t, pitches.first));
            ZELM_UNROLL
            for (unsigned p = 0; p < packs; ++p)
                sums[r][p] = sums[r][p] + factor * columns[p];
        }
    }
    ZELM_UNROLL
    for (unsigned r = 0; r < rows; ++r) {
        ZELM_UNROLL
        for (unsigned p = 0; p < packs; ++p)
            storeColumns(d, i + r, j + p * kLanesOf<V>, pitches.result, sums[r][p]);
    }
}

template <unsigned packs, typename V, typename A, typename T, typename D>
ZELM_INLINE void sumBlocks(const A &a, const Dense<const T> &b, const D &d, std::uint32_t j,
                           const Bounds &bounds, const Pitches &pitches) {
    std::uint32_t i = 0;
    for (; bounds.rows - i >= 2; i += 2)
        sumBlock<2, packs, V>(a, b, d, i, j, bounds.terms, pitches);
    if (i < bounds.rows)
        sumBlock<1, packs, V>(a, b, d, i, j, bounds.terms, pitches);
}

// Columns of src2 whose elements aren't adjacent are brought into rows ahead, of so many terms, where enough
// rows of src1 are multiplied by them.
constexpr std::uint32_t kMostTurned = 64, kLeastTurned = 4;

template <unsigned packs, typename V, typename A, typename B, typename D>
ZELM_INLINE void sumBlocks(const A &a, const B &b, const D &d, std::uint32_t j, const Bounds &bounds,
                           const Pitches &pitches) {
    using T = typename D::Element;
    constexpr Address pitch = packs * sizeof(V);
    V rows[kMostTurned * packs];
    ZELM_UNROLL
    for (unsigned p = 0; p < packs; ++p) {
        const Address to = addressOf(rows) + p * sizeof(V);
        const std::uint32_t first = j + p * kLanesOf<V>;
        std::uint32_t t = 0;
        LaneAddresses<V> at;
        if constexpr (std::is_same_v<B, Transposed<Dense<const T>>>) {
            for (; bounds.terms - t >= kLanes<T>; t += kLanes<T>) {
                V turned[kLanes<T>];
                ZELM_UNROLL
                for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
                    at[lane] = b.address(first + lane, t, 0);
                loadAdjacent<kLanes<T>>(at, turned);
                ZELM_UNROLL
                for (unsigned r = 0; r < kLanes<T>; ++r)
                    storePack(to + (t + r) * pitch, turned[r]);
            }
        }
        for (; t < bounds.terms; ++t) {
            ZELM_UNROLL
            for (unsigned lane = 0; lane < kLanesOf<V>; ++lane)
                at[lane] = kIsTransposed<B> ? b.address(first + lane, t, 0)
                                            : b.address(t, first + lane, pitches.second);
            storePack(to + t * pitch, gather<V>(at));
        }
    }
    sumBlocks<packs, V>(a, Dense<const T>(addressOf(rows) - j * sizeof(T), pitch), d, j, bounds, pitches);
}

// The number of columns that are done.
template <typename V, typename A, typename B, typename D>
ZELM_INLINE std::uint32_t multiplyPacks(const A &a, const B &b, const D &d, std::uint32_t j,
                                        const Bounds &bounds, const Pitches &pitches) {
    constexpr unsigned lanes = kLanesOf<V>;
    for (; bounds.columns - j >= 2 * lanes; j += 2 * lanes)
        sumBlocks<2, V>(a, b, d, j, bounds, pitches);
    for (; bounds.columns - j >= lanes; j += lanes)
        sumBlocks<1, V>(a, b, d, j, bounds, pitches);
    if constexpr (sizeof(V) > kBlockBytes)
        return multiplyPacks<Pack<ElementOf<V>, sizeof(V) / 2>>(a, b, d, j, bounds, pitches);
    else
        return j;
}

// One instance for operands that are used as stored and transposed: steps from row to row and from column to
// column, in a table counted in entries.
template <typename T>
struct TableOfSteps : TableEntries<T>, Elements<TableOfSteps<T>, T> {
    Address shift;
    std::uint32_t rowStep, columnStep;
    ZELM_INLINE TableOfSteps(const Table<T> &s, std::uint32_t row, std::uint32_t column)
        : TableEntries<T>(s.table), shift(s.shift), rowStep(row), columnStep(column) {}
    ZELM_INLINE Address address(std::uint32_t row, std::uint32_t column, std::uint32_t) const {
        return addressOf(this->table[row * rowStep + column * columnStep]) + shift;
    }
};

template <typename S>
ZELM_INLINE auto withSteps(const S &s, std::uint32_t pitch) {
    using T = const typename S::Element;
    if constexpr (S::isTable)
        return TableOfSteps<T>(s, kIsTransposed<S> ? 1 : pitch, kIsTransposed<S> ? pitch : 1);
    else
        return Strided<T>(s.start, kIsTransposed<S> ? s.elemStride : s.rowStride,
                          kIsTransposed<S> ? s.rowStride : s.elemStride);
}

// One object. Its operands come by reference, as what a caller puts together on the stack field by field and
// reads back in packs waits; loops read copies.
template <typename A, typename B, typename D>
ZELM_NOINLINE void multiplyApart(const A &first, const B &second, const D &result, const Bounds &size,
                                 const Pitches &entries) {
    using T = typename D::Element;
    const A a = first;
    const B b = second;
    const D d = result;
    const Bounds bounds = size;
    const Pitches pitches = entries;
    std::uint32_t done = 0;
    if (kHasRows<B> || (bounds.rows >= kLeastTurned && bounds.terms <= kMostTurned))
        done = multiplyPacks<Pack<T, kInsideBytes>>(a, b, d, 0, bounds, pitches);
    multiplyColumns<T>(a, b, d, 0, done, bounds, pitches);
}

template <typename A, typename B, typename D>
ZELM_INLINE void multiplyAsUsed(const A &a, const B &b, const D &d, const Bounds &bounds,
                                const Pitches &pitches) {
    if constexpr (!D::isDense)
        multiplyApart(withSteps(a, pitches.first), withSteps(b, pitches.second), d, bounds, pitches);
    else if constexpr (kIsTransposed<B>)
        multiplyApart(withSteps(a, 0), b, d, bounds, pitches);
    else
        multiplyApart(a, b, d, bounds, pitches);
}

// Tables of a product of one object, as lists whose objects are elements: whether no entry is null, and
// whether dst's elements miss the sources' and ascend, as they aren't stored in the order of the definition.
template <typename T>
ZELM_INLINE DenseList<T> asList(const Table<T> &table) {
    return {table.table, table.shift, Address{0}};
}

template <typename A, typename B, typename T>
ZELM_INLINE bool tablesMiss(const A &a, const B &b, const Table<T> &d, const Bounds &bounds,
                            const Pitches &pitches) {
    if (!isInReach<Table<T>>(bounds, pitches) || d.elementIsNull(0))
        return false;
    const std::uint32_t entries = (bounds.rows - 1) * pitches.result + bounds.columns;
    const Range target = {rangeFrom(d.position(0), 0).low,
                          rangeFrom(d.position(entries - 1), sizeof(T)).high};
    const auto misses = [&](const auto &s) ZELM_INLINE_LAMBDA {
        return stretchMisses(reads(asList(s.operand), 1, 1), target, 0, s.columns);
    };
    return isKnown(target) && target.low < target.high &&
           resultsAscend(writes(asList(d), 1, 1), 0, entries) &&
           misses(readsUsed(a, bounds.rows, bounds.terms, pitches.first)) &&
           misses(readsUsed(b, bounds.terms, bounds.columns, pitches.second));
}

// Whether the elements of one result are apart from each other and from a source.
template <typename S, typename D>
ZELM_INLINE bool objectMisses(const Source<S> &s, const Result<D> &d) {
    const Range source = rangeOfObject(s.operand, s.rows, s.columns);
    const Range target = rangeOfObject(d.operand, d.rows, d.columns);
    return isKnown(source) && isKnown(target) && areDisjoint(source, target);
}

template <typename D>
ZELM_INLINE bool resultIsApart(const Result<D> &d) {
    if constexpr (D::isTable)
        return positionsAreApart(d.operand, d.rows * d.columns, sizeof(typename D::Element));
    else
        return objectElementsAreApart(d.operand, d.rows, d.columns);
}

template <typename A, typename B, typename D>
ZELM_INLINE bool productIsApart(const A &a, const B &b, const D &d, const Bounds &bounds,
                                const Pitches &pitches) {
    if (!isInReach<D>(bounds, pitches))
        return false;
    const Result<D> result = writesUsed(d, bounds.rows, bounds.columns, pitches.result);
    return resultIsApart(result) &&
           objectMisses(readsUsed(a, bounds.rows, bounds.terms, pitches.first), result) &&
           objectMisses(readsUsed(b, bounds.terms, bounds.columns, pitches.second), result);
}

// ---- arrays

// One instance serves all forms whose operands turn out to be the same.
template <typename A, typename B, typename D>
ZELM_NOINLINE ZelmStatus multiplyRunTime(A a, B b, D d, Bounds bounds, Pitches pitches, std::uint32_t count) {
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        accumulateMatrix(a.object(k), b.object(k), d.object(k), bounds, pitches);
        return ZELM_OK;
    };
    if (!isInReach<D>(bounds, pitches))
        return forEachObject(count, one, a, b, d);
    const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
        using V = typename decltype(pack)::Pack;
        if constexpr (kLanesOf<V> == 1)
            multiplyAsUsed(a.object(k), b.object(k), d.object(k), bounds, pitches);
        else
            multiplyColumns<V>(a, b, d, k, 0, bounds, pitches);
        return true;
    };
    constexpr Grouping grouping = D::isSideBySide ? kProductKernels : kOneAtATime;
    return forEachInGroups<Grouping{grouping.bytes, 1}>(
        count, NoBuffer(), group, one, writesUsed(d, bounds.rows, bounds.columns, pitches.result),
        readsUsed(a, bounds.rows, bounds.terms, pitches.first),
        readsUsed(b, bounds.terms, bounds.columns, pitches.second));
}

} // namespace zelm::products
