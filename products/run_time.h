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

// ---- inside one object whose rows are adjacent elements: whole packs of columns

template <unsigned rows, unsigned packs, typename V, typename A, typename T>
ZELM_INLINE void sumBlock(const A &a, const Dense<const T> &b, const Dense<T> &d, std::uint32_t i,
                          std::uint32_t j, std::uint32_t terms) {
    V sums[rows][packs] = {};
    for (std::uint32_t t = 0; t < terms; ++t) {
        V columns[packs];
        ZELM_UNROLL
        for (unsigned p = 0; p < packs; ++p)
            columns[p] = loadAs<V>(b.address(t, j + p * kLanesOf<V>, 0));
        ZELM_UNROLL
        for (unsigned r = 0; r < rows; ++r) {
            const V factor = spread<V>(used(a, i + r, t, 0));
            ZELM_UNROLL
            for (unsigned p = 0; p < packs; ++p)
                sums[r][p] = sums[r][p] + factor * columns[p];
        }
    }
    ZELM_UNROLL
    for (unsigned r = 0; r < rows; ++r) {
        ZELM_UNROLL
        for (unsigned p = 0; p < packs; ++p)
            storePack(d.address(i + r, j + p * kLanesOf<V>, 0), sums[r][p]);
    }
}

template <unsigned packs, typename V, typename A, typename T>
ZELM_INLINE void sumBlocks(const A &a, const Dense<const T> &b, const Dense<T> &d, std::uint32_t j,
                           const Bounds &bounds) {
    std::uint32_t i = 0;
    for (; bounds.rows - i >= 2; i += 2)
        sumBlock<2, packs, V>(a, b, d, i, j, bounds.terms);
    if (i < bounds.rows)
        sumBlock<1, packs, V>(a, b, d, i, j, bounds.terms);
}

// The number of columns that are done.
template <typename V, typename A, typename T>
ZELM_INLINE std::uint32_t multiplyPacks(const A &a, const Dense<const T> &b, const Dense<T> &d,
                                        std::uint32_t j, const Bounds &bounds) {
    constexpr unsigned lanes = kLanesOf<V>;
    for (; bounds.columns - j >= 2 * lanes; j += 2 * lanes)
        sumBlocks<2, V>(a, b, d, j, bounds);
    for (; bounds.columns - j >= lanes; j += lanes)
        sumBlocks<1, V>(a, b, d, j, bounds);
    if constexpr (sizeof(V) > kBlockBytes)
        return multiplyPacks<Pack<T, sizeof(V) / 2>>(a, b, d, j, bounds);
    else
        return j;
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
    if constexpr (std::is_same_v<B, Dense<const T>> && D::isDense)
        done = multiplyPacks<Pack<T, kInsideBytes>>(a, b, d, 0, bounds);
    multiplyColumns<T>(a, b, d, 0, done, bounds, pitches);
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
            multiplyApart(a.object(k), b.object(k), d.object(k), bounds, pitches);
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
