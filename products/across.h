// The operands of products across objects: one pack per element, of as many objects as it has lanes.
#pragma once

#include "frame/batch.h"
#include "products/rules.h"

namespace zelm::products {

// ---- transposed operands as stored ones, so that one instance serves both

// The entries of a transposed table in the order in which they are used; of other operands nothing.
template <unsigned N, typename Operand>
struct UsedEntries {
    ZELM_INLINE explicit UsedEntries(const Operand &) {}
};

template <unsigned N, typename Operand>
requires(kIsTransposed<Operand> &&Operand::isTable) struct UsedEntries<N, Operand> {
    const typename Operand::Element *entry[N * N];
    ZELM_INLINE explicit UsedEntries(const Operand &stored) {
        for (unsigned i = 0; i < N; ++i)
            for (unsigned j = 0; j < N; ++j)
                entry[i * N + j] = stored.table[j * N + i];
    }
};

template <typename Operand, typename Entries>
ZELM_INLINE const Operand &asUsed(const Operand &operand, const Entries &) {
    return operand;
}
template <typename T, typename Entries>
ZELM_INLINE Table<T> asUsed(const Transposed<Table<T>> &stored, const Entries &entries) {
    return {entries.entry, stored.shift};
}
template <typename T, typename Entries>
ZELM_INLINE PackedTableArray<T> asUsed(const Transposed<PackedTableArray<T>> &stored,
                                       const Entries &entries) {
    return {entries.entry, stored.shift};
}
template <typename T, typename Entries>
ZELM_INLINE TableArray<T> asUsed(const Transposed<TableArray<T>> &stored, const Entries &entries) {
    return {entries.entry, stored.shift, stored.objStride};
}
template <typename T, typename Entries>
ZELM_INLINE Strided<T> asUsed(const Transposed<Strided<T>> &stored, const Entries &) {
    return {stored.start, stored.elemStride, stored.rowStride};
}
template <typename T, typename Entries>
ZELM_INLINE StridedArray<T> asUsed(const Transposed<StridedArray<T>> &stored, const Entries &) {
    StridedArray<T> used = stored;
    used.rowStride = stored.elemStride;
    used.elemStride = stored.rowStride;
    return used;
}

// ---- rows of elements for a group

// How products whose result is D are taken in groups; `gathers`: also where each element of a pack is loaded
// and stored by itself.
template <typename D>
constexpr Grouping productGroupingOf(bool gathers) {
    return kLoadsInGroups<D> ? kProductKernels : gathers ? kGatheredProducts : kOneAtATime;
}

// One object for all is read once: this is asked for only where no result is stored in it. Without AVX a
// value is spread to all lanes ahead; with it, loading and spreading are one instruction.
template <unsigned rows, unsigned N, typename S>
struct AcrossObjects {
    using T = typename S::Element;
    using Held = std::conditional_t<kWidestBytes == kBlockBytes, Pack<T>, T>;
    Held element[rows][N];
    ZELM_INLINE explicit AcrossObjects(const S &s) {
        for (unsigned i = 0; i < rows; ++i)
            for (unsigned t = 0; t < N; ++t)
                element[i][t] = spread<Held>(used(s, i, t, N));
    }
    ZELM_INLINE T get(std::uint32_t i, std::uint32_t t, std::uint32_t) const {
        if constexpr (std::is_same_v<Held, T>)
            return element[i][t];
        else
            return firstLane(element[i][t]);
    }
    template <typename V>
    ZELM_INLINE void loadRowOf(std::uint32_t, unsigned i, V (&row)[N]) const {
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t) {
            if constexpr (std::is_same_v<V, Held>)
                row[t] = element[i][t];
            else
                row[t] = spread<V>(get(i, t, N));
        }
    }
};

template <unsigned rows, unsigned N, typename S>
requires kIsArray<S>
struct AcrossObjects<rows, N, S> {
    const S &array;
    ZELM_INLINE explicit AcrossObjects(const S &s) : array(s) {}
    template <typename V>
    ZELM_INLINE void loadRowOf(std::uint32_t k, unsigned i, V (&row)[N]) const {
        static_assert(!kIsTransposed<S>);
        loadRow<N>(array, k, i, row);
    }
};

} // namespace zelm::products
