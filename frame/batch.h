// Array forms: the one place that decides whether objects are taken one by one or in groups, and the one
// driver that runs them.
//
// A group reads all its objects before it writes any, where the loop that it stands for reads object k+1
// after writing object k. So a group runs only where that can't be seen. In doubt the objects are done one by
// one.
//
// A family says what it reads and writes, and hands over two steps: one(k) computes object k as the
// definition has it, group<V>(k) as many objects from k on as V has lanes. A group that says no has written
// nothing; its objects are then done one by one, so that what stands afterwards is what the plain loop
// leaves.
#pragma once

#include "frame/checks.h"
#include "frame/masks.h"
#include "frame/overlap.h"
#include "frame/widths.h"

namespace zelm::frame {

// ---- what a row touches

// Whether a source may lie exactly where the result lies, object by object.
enum class InPlace { No, Yes };

template <typename S>
struct Source {
    using Operand = S;
    S operand; // a copy, so that what a real function is handed is not what loops read
    unsigned rows, columns;
    InPlace inPlace;
};
template <typename S>
ZELM_INLINE Source<S> reads(const S &operand, unsigned rows, unsigned columns,
                            InPlace inPlace = InPlace::No) {
    return {operand, rows, columns, inPlace};
}

template <typename D>
struct Result {
    using Operand = D;
    D operand;
    unsigned rows, columns;
};
template <typename D>
ZELM_INLINE Result<D> writes(const D &operand, unsigned rows, unsigned columns) {
    return {operand, rows, columns};
}

// Plain memory beside the operands: a part of `bytes` for each object, or one part for all.
struct NoBuffer {
    static constexpr bool isNone = true;
};
struct Buffer {
    static constexpr bool isNone = false;
    Address start;
    std::int64_t bytes;
    bool isShared, isWritten;
    ZELM_INLINE Range range(std::uint32_t first, std::uint32_t last) const {
        if (isShared)
            return rangeFrom(start, bytes);
        Range range = rangeFrom(start, bytes * (last - first));
        range.low += bytes * first;
        range.high += bytes * first;
        return range;
    }
};
ZELM_INLINE Buffer readsPerObject(const void *start, unsigned bytes) {
    return {addressOf(start), bytes, false, false};
}
ZELM_INLINE Buffer readsForAll(const void *start, unsigned bytes) {
    return {addressOf(start), bytes, true, false};
}
ZELM_INLINE Buffer writesPerObject(const void *start, unsigned bytes) {
    return {addressOf(start), bytes, false, true};
}
ZELM_INLINE Buffer writesForAll(const void *start, unsigned bytes) {
    return {addressOf(start), bytes, true, true};
}

// ---- arrays that are no lists: decided once

template <typename S, typename D>
ZELM_INLINE bool mayRead(const Source<S> &s, const Result<D> &d, std::uint32_t count) {
    if (s.inPlace == InPlace::Yes && s.rows == d.rows && coincide(s.operand, d.operand))
        return true;
    return isUntouched(s.operand, s.rows, s.columns, d.operand, d.rows, d.columns, count);
}

template <typename Memory, typename Touched>
ZELM_INLINE bool isApartFrom(const Memory &buffer, const Touched &touched, std::uint32_t count) {
    const Range range = rangeOf(touched.operand, touched.rows, touched.columns, count);
    return isKnown(range) && areDisjoint(range, buffer.range(0, count));
}

// One instance serves all sizes and families.
template <typename Memory, typename D, typename... S>
ZELM_NOINLINE bool mayGroupAll(std::uint32_t count, const Memory &buffer, const Result<D> &d,
                               const Source<S> &...s) {
    if (count > kMostObjectsInRange || !elementsAreApart(d.operand, d.rows, d.columns, count) ||
        !(mayRead(s, d, count) && ...))
        return false;
    if constexpr (!Memory::isNone)
        return isApartFrom(buffer, d, count) && (!buffer.isWritten || (isApartFrom(buffer, s, count) && ...));
    return true;
}

// ---- lists: decided ahead of the groups, a stretch of the tables at a time

constexpr std::uint32_t kStretch = 64;

struct Extremes {
    Address lowest, highest;
};

// Of the entries from first to before last.
template <typename List>
ZELM_INLINE Extremes extremesOf(const List &list, std::uint32_t first, std::uint32_t last) {
    std::uint32_t k = first;
    Extremes of = {addressOf(list.table[k]), addressOf(list.table[k])};
    if constexpr (kWidestBytes > kBlockBytes) {
        // As signed numbers, which these processors compare in packs: no object lies in the upper half.
        typedef std::int64_t Entries __attribute__((vector_size(kWidestBytes), aligned(8), may_alias));
        constexpr unsigned lanes = kWidestBytes / 8;
        if (last - first >= lanes) {
            const auto entriesAt = [&](std::uint32_t at) ZELM_INLINE_LAMBDA {
                return *reinterpret_cast<const Entries *>(list.table + at);
            };
            Entries lowest = entriesAt(k), highest = lowest;
            for (k += lanes; last - k >= lanes; k += lanes) {
                const Entries entries = entriesAt(k);
                lowest = entries < lowest ? entries : lowest;
                highest = entries > highest ? entries : highest;
            }
            std::int64_t low = lowest[0], high = highest[0];
            for (unsigned lane = 1; lane < lanes; ++lane) {
                low = lowest[lane] < low ? lowest[lane] : low;
                high = highest[lane] > high ? highest[lane] : high;
            }
            if (low < 0)
                return {0, 0};
            of = {static_cast<Address>(low), static_cast<Address>(high)};
        }
    }
    for (; k < last; ++k) {
        const Address entry = addressOf(list.table[k]);
        of.lowest = entry < of.lowest ? entry : of.lowest;
        of.highest = entry > of.highest ? entry : of.highest;
    }
    return of;
}

// The starts of the objects from first to before last of a list, the lowest and the highest. Unknown where an
// entry among them is null, or comes to null by its shift.
template <typename List>
ZELM_INLINE Range startsOfStretch(const List &list, std::uint32_t first, std::uint32_t last) {
    const Extremes of = extremesOf(list, first, last);
    const std::int64_t shift = signedDistance(list.shift);
    const std::int64_t low = rangeFrom(of.lowest, 0).low + shift, high = rangeFrom(of.highest, 0).low + shift;
    // An entry that a positive shift brings to null is the highest of all numbers, and negative as a
    // distance.
    if (of.lowest == 0 || low <= 0 || high < low)
        return {-1, -1};
    return {low, high};
}

// The bytes of the objects from first to before last.
template <typename Touched>
ZELM_INLINE Range rangeOfStretch(const Touched &touched, std::uint32_t first, std::uint32_t last) {
    using Operand = typename Touched::Operand;
    const Operand &operand = touched.operand;
    if constexpr (Operand::isList) {
        const Range starts = startsOfStretch(operand, first, last);
        const Extent extent = extentOf(operand, touched.rows, touched.columns);
        const std::int64_t lowest = signedDistance(extent.lowest);
        if (starts.low < 0)
            return starts;
        return {starts.low + lowest, starts.high + lowest + static_cast<std::int64_t>(extent.bytes)};
    } else if constexpr (kIsArray<Operand>) {
        // Results packed behind each other.
        return rangeFrom(operand.object(first).start,
                         std::int64_t{last - first} * static_cast<std::int64_t>(operand.objStride));
    } else {
        return rangeOfObject(operand, touched.rows, touched.columns);
    }
}

// Whether the objects of a list miss a range of bytes: whether all entries lie in a window, the first one
// deciding whether that is the one above the range or the one below it. No null entry lies in either. Entry
// by entry that is one comparison, where their extremes take two.
template <typename S>
ZELM_INLINE bool listMisses(const Source<S> &s, const Range &target, std::uint32_t first,
                            std::uint32_t last) {
    constexpr std::int64_t end = sizeof(Address) == 4 ? std::int64_t{1} << 32 : std::int64_t{1} << 62;
    const Extent extent = extentOf(s.operand, s.rows, s.columns);
    const std::int64_t offset = signedDistance(s.operand.shift) + signedDistance(extent.lowest);
    const std::int64_t bytes = static_cast<std::int64_t>(extent.bytes);
    const bool above = rangeFrom(addressOf(s.operand.table[first]), 0).low + offset >= target.high;
    std::int64_t low = (above ? target.high : 1) - offset;
    const std::int64_t high = (above ? end : target.low) - bytes - offset;
    low = low < 1 ? 1 : low;
    if (high < low || high >= end)
        return false;
    const Address from = static_cast<Address>(low), to = static_cast<Address>(high);
    typedef Address Entries __attribute__((vector_size(kBlockBytes), aligned(alignof(Address)), may_alias));
    constexpr unsigned lanes = kBlockBytes / sizeof(Address);
    Entries outsides = {}; // signs say which
    std::uint32_t k = first;
    for (; last - k >= lanes; k += lanes) {
        const Entries entries = *reinterpret_cast<const Entries *>(s.operand.table + k);
        // These processors don't compare 64-bit numbers in packs: as distances from both ends of the window,
        // which is less than half of all addresses, one is below zero.
        if constexpr (sizeof(Address) == 8)
            outsides |= (entries - from) | (to - entries);
        else
            outsides |= reinterpret_cast<Entries>(entries - from > to - from);
    }
    bool outside = false;
    for (unsigned lane = 0; lane < lanes; ++lane)
        outside |= static_cast<std::intptr_t>(outsides[lane]) < 0;
    for (; k < last; ++k)
        outside |= addressOf(s.operand.table[k]) - from > to - from;
    return !outside;
}

template <typename S>
ZELM_INLINE bool stretchMisses(const Source<S> &s, const Range &target, std::uint32_t first,
                               std::uint32_t last) {
    if constexpr (S::isList && kWidestBytes == kBlockBytes) {
        return listMisses(s, target, first, last);
    } else {
        const Range source = rangeOfStretch(s, first, last);
        return isKnown(source) && areDisjoint(source, target);
    }
}

// Whether nothing of the stretch lies in anything that it writes.
template <typename Memory, typename... S>
ZELM_INLINE bool stretchIsApart(std::uint32_t first, std::uint32_t last, const Range &target,
                                const Memory &buffer, const Source<S> &...s) {
    if (!isKnown(target) || !(stretchMisses(s, target, first, last) && ...))
        return false;
    if constexpr (!Memory::isNone) {
        const Range range = buffer.range(first, last);
        return areDisjoint(range, target) &&
               (!buffer.isWritten || (areDisjoint(range, rangeOfStretch(s, first, last)) && ...));
    }
    return true;
}

// Whether the results miss what is the same for all objects: invariant sources, and plain memory that is read
// for all. Kernels hold it from before the first object on.
template <typename Memory, typename... S>
ZELM_INLINE bool missesInvariants(const Range &target, const Memory &buffer, const Source<S> &...s) {
    const auto misses = [&](const auto &source) {
        if constexpr (kIsArray<typename std::remove_cvref_t<decltype(source)>::Operand>) {
            return true;
        } else {
            const Range held = rangeOfObject(source.operand, source.rows, source.columns);
            return isKnown(target) && isKnown(held) && areDisjoint(held, target);
        }
    };
    if constexpr (!Memory::isNone)
        if (buffer.isShared && !buffer.isWritten &&
            !(isKnown(target) && areDisjoint(buffer.range(0, 1), target)))
            return false;
    return (misses(s) && ...);
}

// The entries of a list are read when their objects' turn comes, so nothing that is written may lie over
// them.
template <typename Operand>
ZELM_INLINE bool entriesMiss(const Operand &operand, const Range &written, std::uint32_t first,
                             std::uint32_t last) {
    if constexpr (Operand::isList) {
        const std::int64_t bytes = std::int64_t{last - first} * std::int64_t{sizeof(Address)};
        return areDisjoint(rangeFrom(addressOf(operand.table + first), bytes), written);
    } else {
        return true;
    }
}

template <typename Memory, typename... Operands>
ZELM_INLINE bool tablesAreApart(std::uint32_t first, std::uint32_t last, const Range &target,
                                const Memory &buffer, const Operands &...operands) {
    if (!isKnown(target) || !(entriesMiss(operands, target, first, last) && ...))
        return false;
    if constexpr (!Memory::isNone)
        return !buffer.isWritten || (entriesMiss(operands, buffer.range(first, last), first, last) && ...);
    return true;
}

// Whether the results of a stretch lie behind each other, as most lists have them: then no group compares its
// own.
template <typename D>
ZELM_INLINE bool resultsAscend(const Result<D> &d, std::uint32_t first, std::uint32_t last) {
    if constexpr (D::isList) {
        const Address bytes = extentOf(d.operand, d.rows, d.columns).bytes;
        for (std::uint32_t k = first + 1; k < last; ++k) {
            const Address before = addressOf(d.operand.table[k - 1]), here = addressOf(d.operand.table[k]);
            if (here < before || here - before < bytes)
                return false;
        }
    }
    return true;
}

// What holds for a stretch as a whole. What doesn't, its groups ask for themselves.
struct StretchFacts {
    bool missesInvariants, isApart, ascends;
    bool isNear; // its results, each other
};

// One instance serves all sizes and families.
template <typename Memory, typename D, typename... S>
ZELM_NOINLINE StretchFacts factsOfStretch(std::uint32_t first, std::uint32_t last, const Memory &buffer,
                                          const Result<D> &d, const Source<S> &...s) {
    const Range target = rangeOfStretch(d, first, last);
    if (!missesInvariants(target, buffer, s...))
        return {false, false, false, false};
    if (!tablesAreApart(first, last, target, buffer, d.operand, s.operand...))
        return {true, false, false, false};
    return {true, stretchIsApart(first, last, target, buffer, s...), resultsAscend(d, first, last),
            target.high - target.low < kNear};
}

// Whether a group's results lie apart from each other.
template <unsigned lanes, typename D>
ZELM_INLINE bool resultsAreApart(const Result<D> &d, std::uint32_t k) {
    const Extent written = extentOf(d.operand, d.rows, d.columns);
    return areApartFromEachOther(lowestOf<lanes>(d.operand, written, k), written.bytes);
}

template <unsigned lanes, typename D>
ZELM_NOINLINE bool farResultsAreApart(const Result<D> &d, std::uint32_t k) {
    return resultsAreApart<lanes>(d, k);
}

// The same; `near`: whether all of the stretch lie near each other.
template <unsigned lanes, typename D>
ZELM_INLINE bool resultsAreApart(const Result<D> &d, std::uint32_t k, bool near) {
    if constexpr (!D::isList)
        return true;
    else if constexpr (lanes < 4)
        return resultsAreApart<lanes>(d, k);
    else if (near)
        return nearOnesAreApart<lanes>(
            lowerHalvesOf<lanes>(d.operand.table + k),
            static_cast<std::uint32_t>(extentOf(d.operand, d.rows, d.columns).bytes));
    else
        return farResultsAreApart<lanes>(d, k);
}

template <typename Operand>
ZELM_INLINE bool anyObjectIsNull(const Operand &operand, std::uint32_t k, unsigned lanes) {
    bool null = false;
    if constexpr (Operand::isList)
        for (unsigned lane = 0; lane < lanes; ++lane)
            null |= operand.table[k + lane] == nullptr || operand.object(k + lane).start == 0;
    return null;
}

// The same questions for one group whose stretch gives no answer.
template <unsigned lanes, typename S, typename D>
ZELM_INLINE bool groupMayRead(const Source<S> &s, const Result<D> &d, std::uint32_t k) {
    if (anyObjectIsNull(s.operand, k, lanes))
        return false;
    const Extent read = extentOf(s.operand, s.rows, s.columns);
    const Extent written = extentOf(d.operand, d.rows, d.columns);
    const Lowest<lanes> source = lowestOf<lanes>(s.operand, read, k);
    const Lowest<lanes> target = lowestOf<lanes>(d.operand, written, k);
    bool same = s.inPlace == InPlace::Yes && s.rows == d.rows && s.operand.rowStride == d.operand.rowStride &&
                s.operand.elemStride == d.operand.elemStride;
    for (unsigned lane = 0; lane < lanes; ++lane)
        same &= source.at[lane] == target.at[lane];
    return same || areApartFrom(target, written.bytes, source, read.bytes);
}

template <unsigned lanes, typename Touched>
ZELM_INLINE bool groupMissesBuffer(const Buffer &buffer, const Touched &touched, std::uint32_t k) {
    const Extent extent = extentOf(touched.operand, touched.rows, touched.columns);
    const Lowest<lanes> objects = lowestOf<lanes>(touched.operand, extent, k);
    const Address bytes = static_cast<Address>(buffer.bytes) * (buffer.isShared ? 1 : lanes);
    const Address start = buffer.start + (buffer.isShared ? 0 : k * static_cast<Address>(buffer.bytes));
    bool apart = true;
    for (unsigned lane = 0; lane < lanes; ++lane)
        apart &= areDisjoint(objects.at[lane], extent.bytes, start, bytes);
    return apart;
}

// Whether a group writes over none of its own entries in an operand's table.
template <unsigned lanes, typename Memory, typename Operand, typename D>
ZELM_INLINE bool groupMissesEntries(const Operand &operand, const Memory &buffer, const Result<D> &d,
                                    std::uint32_t k) {
    bool apart = true;
    if constexpr (Operand::isList) {
        const Extent written = extentOf(d.operand, d.rows, d.columns);
        const Lowest<lanes> target = lowestOf<lanes>(d.operand, written, k);
        const Address entries = addressOf(operand.table + k);
        for (unsigned lane = 0; lane < lanes; ++lane)
            apart &= areDisjoint(target.at[lane], written.bytes, entries, lanes * sizeof(Address));
        if constexpr (!Memory::isNone)
            apart &= !buffer.isWritten || entriesMiss(operand, buffer.range(k, k + lanes), k, k + lanes);
    }
    return apart;
}

template <unsigned lanes, typename Memory, typename D, typename... S>
ZELM_NOINLINE bool groupIsApart(std::uint32_t k, const Memory &buffer, const Result<D> &d,
                                const Source<S> &...s) {
    if (anyObjectIsNull(d.operand, k, lanes) || !(groupMayRead<lanes>(s, d, k) && ...) ||
        !groupMissesEntries<lanes>(d.operand, buffer, d, k) ||
        !(groupMissesEntries<lanes>(s.operand, buffer, d, k) && ...))
        return false;
    if constexpr (!Memory::isNone)
        return groupMissesBuffer<lanes>(buffer, d, k) &&
               (!buffer.isWritten || (groupMissesBuffer<lanes>(buffer, s, k) && ...));
    return true;
}

// ---- the driver

// Names a pack for a step that is called with it.
template <typename V>
struct As {
    using Pack = V;
};

// Groups from k on, of the widest packs first, as far as they go.
template <typename V, typename Group>
ZELM_INLINE std::uint32_t runGroups(std::uint32_t k, std::uint32_t end, Group group) {
    while (end - k >= kLanesOf<V> && group(As<V>{}, k))
        k += kLanesOf<V>;
    if constexpr (sizeof(V) > kBlockBytes)
        return runGroups<Pack<ElementOf<V>, sizeof(V) / 2>>(k, end, group);
    else
        return k;
}

// Whether groups of planes are counted in the width of an address: what is added to the start of each plane
// is the count itself then, which no round widens. Dot products of planes take down to half of their time so;
// packs of 64 bytes have too few rounds to gain.
template <typename V, typename... Operands>
constexpr bool kCountsInAddresses = !kHasFewRegisters && sizeof(V) <= 32 && (Operands::isSideBySide || ...);

template <typename V, typename Group>
ZELM_INLINE Address runPlanes(Address k, Address end, Group group) {
    if (end - k >= kLanesOf<V>) {
        const Address last = end - kLanesOf<V>;
        do {
            if (k > ~std::uint32_t{}) // no count is; narrowing it for the group then costs nothing
                __builtin_unreachable();
            if (!group(As<V>{}, static_cast<std::uint32_t>(k)))
                break;
            k += kLanesOf<V>;
        } while (k <= last);
    }
    if constexpr (sizeof(V) > kBlockBytes)
        return runPlanes<Pack<ElementOf<V>, sizeof(V) / 2>>(k, end, group);
    else
        return k;
}

// The objects from k to before end; `operands` are those whose entries are tested.
template <typename V, bool countsInAddresses, typename Group, typename One, typename... Operands>
ZELM_INLINE ZelmStatus runObjects(std::uint32_t k, std::uint32_t end, bool grouped, Group group, One one,
                                  const Operands &...operands) {
    constexpr std::uint32_t least = sizeof(V) < kBlockBytes ? 1 : kLanesOf<Pack<ElementOf<V>>>;
    while (k < end) {
        if constexpr (countsInAddresses) {
            if (grouped)
                k = static_cast<std::uint32_t>(runPlanes<V>(k, end, group));
        } else if (grouped) {
            k = runGroups<V>(k, end, group);
        }
        const std::uint32_t stop = grouped && end - k > least ? k + least : end;
        for (; k < stop; ++k) {
            if ((operands.entryIsNull(k) || ...))
                return ZELM_ERR_NULL_PTR;
            if (ZelmStatus status = one(k); status != ZELM_OK)
                return status;
        }
    }
    return ZELM_OK;
}

// Lists. An invariant source that a kernel holds, plain memory included, is held for all groups: once
// something was written in it, there are no more groups.
template <typename V, typename Memory, typename GroupStep, typename One, typename D, typename... S>
ZELM_INLINE ZelmStatus runStretches(std::uint32_t count, const Memory &buffer, GroupStep group, One one,
                                    const Result<D> &d, const Source<S> &...s) {
    bool grouped = objectElementsAreApart(d.operand, d.rows, d.columns);
    for (std::uint32_t first = 0; first < count;) {
        const std::uint32_t last = count - first > kStretch ? first + kStretch : count;
        StretchFacts stretch = {};
        if (grouped)
            stretch = factsOfStretch(first, last, buffer, d, s...);
        grouped = stretch.missesInvariants;
        const auto guarded = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
            constexpr unsigned lanes = kLanesOf<typename decltype(pack)::Pack>;
            return (stretch.ascends || resultsAreApart<lanes>(d, k, stretch.isNear)) &&
                   (stretch.isApart || groupIsApart<lanes>(k, buffer, d, s...)) && group(pack, k);
        };
        if (ZelmStatus status =
                runObjects<V, false>(first, last, grouped, guarded, one, s.operand..., d.operand);
            status != ZELM_OK)
            return status;
        first = last;
    }
    return ZELM_OK;
}

// All objects of an array form.
template <Grouping grouping, typename Memory, typename GroupStep, typename One, typename D, typename... S>
ZELM_INLINE ZelmStatus forEachInGroups(std::uint32_t count, const Memory &buffer, GroupStep group, One one,
                                       const Result<D> &d, const Source<S> &...s) {
    using T = typename D::Element;
    using V = Pack<T, grouping.bytes == 0 ? sizeof(T) : grouping.bytes>;
    if constexpr ((D::isList || ... || S::isList)) {
        return runStretches<V>(count, buffer, group, one, d, s...);
    } else {
        constexpr std::uint32_t least = D::isTable ? grouping.leastInTables : grouping.least;
        const bool grouped = count >= least && mayGroupAll(count, buffer, d, s...);
        return runObjects<V, kCountsInAddresses<V, D, S...>>(0, count, grouped, group, one);
    }
}

} // namespace zelm::frame
