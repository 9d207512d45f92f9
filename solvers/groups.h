// What the solvers ask before they take objects in groups or in registers.
#pragma once

#include "frame/groups.h"
#include "frame/objects.h"
#include "frame/overlap.h"

namespace zelm::solvers {

using namespace zelm::frame;

// From how many objects on a test that looks at every table entry is worth its time.
constexpr std::uint32_t kGroupsInTablesCount = 16;

// Whether the elements of one result vector are distinct; those of an array's objects all are if those of the
// first are.
template <unsigned N, typename D>
ZELM_INLINE bool resultIsDistinct(const D &d) {
    if constexpr (D::isTable)
        return positionsAreApart(d.object(0), N, sizeof(typename D::Element));
    else
        return span(d.elemStride) >= std::int64_t{sizeof(typename D::Element)};
}

// Whether the elements of one result matrix are surely distinct: rows behind each other, and far from where
// an address would wrap.
template <unsigned N, typename D>
ZELM_INLINE bool matrixIsDistinct(const D &d) {
    using T = typename D::Element;
    if constexpr (D::isTable) {
        return positionsAreApart(d.object(0), N * N, sizeof(T));
    } else {
        constexpr Address most = Address{1} << 24;
        const Address row = (N - 1) * d.elemStride + sizeof(T);
        return d.elemStride - sizeof(T) < most && d.rowStride - row < most;
    }
}

// Whether the objects of a matrix or vector source may be read in groups while `d` is written: asked once for
// a whole array that is no list.
template <typename S, typename D>
ZELM_INLINE bool mayReadAhead(const S &s, unsigned sRows, unsigned columns, const D &d, unsigned rows,
                              std::uint32_t count) {
    return (sRows == rows && coincide(s, d)) || isUntouched(s, sRows, columns, d, rows, columns, count);
}

template <unsigned N, typename D>
ZELM_INLINE bool mayWriteGroups(const D &d, unsigned rows, std::uint32_t count) {
    if (count < (D::isTable ? kGroupsInTablesCount : kLanes<typename D::Element>) ||
        count > kMostObjectsInRange)
        return false;
    return elementsAreApart(d, rows, N, count);
}

// Whether an operand's bytes miss those of a plain buffer.
template <typename Operand>
ZELM_INLINE bool missesBuffer(const Operand &operand, unsigned rows, unsigned columns, std::uint32_t count,
                              const void *buffer, std::int64_t bytes) {
    const Range range = rangeOf(operand, rows, columns, count);
    return isKnown(range) && areDisjoint(range, rangeFrom(addressOf(buffer), bytes));
}

// No object starts at null.
template <typename Operand>
ZELM_INLINE bool hasNoNullObject(const Operand &operand, unsigned rows, unsigned columns,
                                 std::uint32_t count) {
    if constexpr (Operand::isTable) {
        return true;
    } else {
        const Range range = rangeOf(operand, rows, columns, count);
        return isKnown(range) && range.low > 0;
    }
}

// The same questions for one group of a list: its own objects of `d` apart from each other, and each source
// apart from all of them or, if it has the shape of d, the same objects.
template <typename D>
struct ListGroups {
    static constexpr unsigned lanes = kLanes<typename D::Element>;
    const D &d;
    unsigned rows, columns;
    Extent written;
    bool distinct;

    ZELM_INLINE ListGroups(const D &result, unsigned resultRows, unsigned resultColumns)
        : d(result), rows(resultRows), columns(resultColumns), written(extentOf(d, rows, columns)),
          distinct(objectElementsAreApart(d, rows, columns)) {}

    ZELM_INLINE bool mayWrite(std::uint32_t k) const {
        return distinct && !anyEntryNull(d, k) &&
               areApartFromEachOther(lowestOf<lanes>(d, written, k), written.bytes);
    }

    template <typename S>
    ZELM_INLINE bool mayRead(const S &s, unsigned sRows, std::uint32_t k) const {
        if constexpr (S::isList)
            if (anyEntryNull(s, k))
                return false;
        const Extent read = extentOf(s, sRows, columns);
        const Lowest<lanes> source = lowestOf<lanes>(s, read, k), target = lowestOf<lanes>(d, written, k);
        bool same = sRows == rows && s.rowStride == d.rowStride && s.elemStride == d.elemStride;
        for (unsigned lane = 0; lane < lanes; ++lane)
            same &= source.at[lane] == target.at[lane];
        return same || areApartFrom(target, written.bytes, source, read.bytes);
    }

    // Whether the objects of d miss a plain buffer.
    ZELM_INLINE bool miss(const void *buffer, Address bytes, std::uint32_t k) const {
        const Lowest<lanes> target = lowestOf<lanes>(d, written, k);
        bool apart = true;
        for (unsigned lane = 0; lane < lanes; ++lane)
            apart &= areDisjoint(target.at[lane], written.bytes, addressOf(buffer), bytes);
        return apart;
    }
};

// Runs group(k) for whole groups of sources of order N whose results of order M lie apart, one(k) otherwise.
// A group that says no has written nothing.
template <unsigned N, unsigned M, typename S, typename D, typename GroupStep, typename One>
ZELM_INLINE ZelmStatus forEachMatrix(std::uint32_t count, GroupStep group, One one, const S &s, const D &d) {
    constexpr unsigned lanes = kLanes<typename D::Element>;
    if constexpr (S::isList) {
        const Extent read = extentOf(s, N, N), written = extentOf(d, M, M);
        const bool distinct = objectElementsAreApart(d, M, M);
        const auto apartGroup = [&](std::uint32_t k) {
            if (!distinct || anyEntryNull(s, k) || anyEntryNull(d, k))
                return false;
            const Lowest<lanes> target = lowestOf<lanes>(d, written, k);
            return areApartFromEachOther(target, written.bytes) &&
                   areApartFrom(target, written.bytes, lowestOf<lanes>(s, read, k), read.bytes) && group(k);
        };
        return forEachGroup<lanes>(count, apartGroup, one, s, d);
    } else {
        if (count < (S::isTable ? kGroupsInTablesCount : lanes) || count > kMostObjectsInRange ||
            !elementsAreApart(d, M, M, count) || !isUntouched(s, N, N, d, M, M, count))
            return forEachObject(count, one, s, d);
        return forEachGroup<lanes>(count, group, one, s, d);
    }
}

template <typename Array>
ZELM_INLINE bool anyObjectNull(const Array &array, std::uint32_t k) {
    bool null = false;
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < kLanes<typename Array::Element>; ++lane)
        null |= array.object(k + lane).isNull();
    return null;
}

// An operand that serves all objects of an array.
template <typename A>
constexpr bool kIsShared = requires(const A &a) {
    a.get(0u, 0u, 0u);
};

// The first I + 1 elements of row I of each object, for I from 0 to N - 1: what lies above the diagonal is
// not touched.
template <unsigned N, unsigned I = 0, typename Array>
ZELM_INLINE void loadLower(const Group<Array> &group, Pack<typename Array::Element> (*out)[N]) {
    using T = typename Array::Element;
    if constexpr (Array::isTable) {
#pragma GCC unroll 6
        for (unsigned j = 0; j <= I; ++j) {
            if constexpr (Array::isSideBySide) {
                out[I][j] = loadPack<T>(group.objects[0].address(I, j, N));
            } else {
                LaneAddresses<T> at;
#pragma GCC unroll 4
                for (unsigned lane = 0; lane < kLanes<T>; ++lane)
                    at[lane] = group.objects[lane].address(I, j, N);
                out[I][j] = gather(at);
            }
        }
    } else {
        loadRowOfEach<I + 1>(
            group, [](unsigned) { return I; }, out[I]);
    }
    if constexpr (I + 1 < N)
        loadLower<N, I + 1>(group, out);
}

template <unsigned N, unsigned I = 0, typename Array>
ZELM_INLINE void storeLower(const Group<Array> &group, const Pack<typename Array::Element> (*in)[N]) {
    using T = typename Array::Element;
    if constexpr (Array::isTable) {
#pragma GCC unroll 6
        for (unsigned j = 0; j <= I; ++j) {
            if constexpr (Array::isSideBySide) {
                storePack(group.objects[0].address(I, j, N), in[I][j]);
            } else {
                LaneAddresses<T> at;
#pragma GCC unroll 4
                for (unsigned lane = 0; lane < kLanes<T>; ++lane)
                    at[lane] = group.objects[lane].address(I, j, N);
                scatter(at, in[I][j]);
            }
        }
    } else {
        storeRowOfEach<I + 1>(
            group, [](unsigned) { return I; }, in[I]);
    }
    if constexpr (I + 1 < N)
        storeLower<N, I + 1>(group, in);
}

} // namespace zelm::solvers
