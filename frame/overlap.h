// When several objects may be computed at once.
//
// A group reads all its objects before it writes any, where the loop that it stands for reads object k+1
// after writing object k. So a group runs only where that can't be seen: the objects of the destination lie
// apart from each other and from every source. In doubt the answer is no, and the objects are done one by
// one.
#pragma once

#include "frame/operands.h"
#include "frame/shuffles.h"

#include <utility>

namespace zelm::frame {

// Bytes low to high-1. Wide enough that no sum of strides wraps where an address would.
struct Range {
    std::int64_t low, high;
};

ZELM_INLINE std::int64_t signedDistance(Address bytes) {
    return static_cast<std::intptr_t>(bytes);
}

ZELM_INLINE std::int64_t span(Address stride) {
    const std::int64_t bytes = signedDistance(stride);
    return bytes < 0 ? -bytes : bytes;
}

ZELM_INLINE bool areDisjoint(const Range &a, const Range &b) {
    return a.high <= b.low || b.high <= a.low;
}

// The same for two ranges whose ends may lie anywhere, over the end of the address space too.
ZELM_INLINE bool areDisjoint(Address a, Address bytesOfA, Address b, Address bytesOfB) {
    return a - b >= bytesOfB && b - a >= bytesOfA;
}

// More objects than this are done one by one: the arithmetic on ranges would overflow.
constexpr std::uint32_t kMostObjectsInRange = std::uint32_t{1} << 30;

// A range that reaches over an end of the address space is unknown.
ZELM_INLINE bool isKnown(const Range &range) {
    constexpr std::int64_t end = sizeof(Address) == 4 ? std::int64_t{1} << 32 : std::int64_t{1} << 62;
    return range.low >= 0 && range.high <= end;
}

ZELM_INLINE void extend(Range &range, std::int64_t by) {
    if (by < 0)
        range.low += by;
    else
        range.high += by;
}

ZELM_INLINE Range rangeFrom(Address start, std::int64_t bytes) {
    const std::int64_t low = sizeof(Address) == 4 ? static_cast<std::int64_t>(start) : signedDistance(start);
    return {low, low + bytes};
}

// ---- the bytes of an operand of `rows` rows of `columns` elements, over `count` objects

template <typename Object>
ZELM_INLINE Range rangeOfObject(const Object &object, unsigned rows, unsigned columns) {
    constexpr std::int64_t size = sizeof(typename Object::Element);
    if constexpr (Object::isTable) {
        Range all = rangeFrom(object.position(0), size);
        for (unsigned e = 1; e < rows * columns; ++e) {
            const Range one = rangeFrom(object.position(e), size);
            all.low = one.low < all.low ? one.low : all.low;
            all.high = one.high > all.high ? one.high : all.high;
        }
        return all;
    } else {
        Range range = rangeFrom(object.start, size);
        extend(range, signedDistance(object.rowStride) * (rows - 1));
        extend(range, signedDistance(object.elemStride) * (columns - 1));
        return range;
    }
}

template <typename Array>
ZELM_INLINE Range rangeOf(const Array &array, unsigned rows, unsigned columns, std::uint32_t count) {
    Range range = rangeOfObject(array.object(0), rows, columns);
    if constexpr (requires { array.objStride; })
        extend(range, signedDistance(array.objStride) * (count - 1));
    return range;
}

// ---- whether the elements of a destination are all distinct, inside an object and from object to object

ZELM_INLINE bool areApart(std::int64_t objStride, std::uint32_t count, std::int64_t rowStride, unsigned rows,
                          std::int64_t elemStride, unsigned columns, std::int64_t size) {
    // Whole objects behind each other, whether dense or with gaps ...
    const std::int64_t row = elemStride * (columns - 1) + size;
    const std::int64_t object = rowStride * (rows - 1) + row;
    if (elemStride >= size && (rows == 1 || rowStride >= row) && objStride >= object)
        return true;
    // ... or one plane per element position.
    const std::int64_t plane = objStride * (count - 1) + size;
    const std::int64_t rowOfPlanes = elemStride * (columns - 1) + plane;
    return objStride >= size && elemStride >= plane && (rows == 1 || rowStride >= rowOfPlanes);
}

template <typename Array>
ZELM_INLINE bool elementsAreApart(const Array &array, unsigned rows, unsigned columns, std::uint32_t count) {
    return areApart(span(array.objStride), count, span(array.rowStride), rows, span(array.elemStride),
                    columns, sizeof(typename Array::Element));
}

// A table's positions: no two closer than `bytes`.
template <typename T>
bool positionsAreApart(const Table<T> &object, unsigned entries, std::int64_t bytes) {
    // Positions in ascending order need no comparison of each with each.
    unsigned ascending = 1;
    while (ascending < entries &&
           rangeFrom(object.position(ascending), 0).low - rangeFrom(object.position(ascending - 1), 0).low >=
               bytes)
        ++ascending;
    if (ascending >= entries)
        return true;
    for (unsigned e = 1; e < entries; ++e) {
        const std::int64_t at = rangeFrom(object.position(e), 0).low;
        for (unsigned f = 0; f < e; ++f) {
            const std::int64_t gap = at - rangeFrom(object.position(f), 0).low;
            if (gap < bytes && -gap < bytes)
                return false;
        }
    }
    return true;
}

template <typename T>
ZELM_INLINE bool tableElementsAreApart(const Table<T> &first, std::int64_t objStride, unsigned entries,
                                       std::uint32_t count) {
    const Range object = rangeOfObject(first, 1, entries);
    const std::int64_t size = sizeof(T);
    if (objStride >= object.high - object.low)
        return positionsAreApart(first, entries, size);
    return objStride >= size && positionsAreApart(first, entries, objStride * (count - 1) + size);
}

template <typename T>
ZELM_INLINE bool elementsAreApart(const PackedTableArray<T> &array, unsigned rows, unsigned columns,
                                  std::uint32_t count) {
    return tableElementsAreApart(array.object(0), sizeof(T), rows * columns, count);
}

template <typename T>
ZELM_INLINE bool elementsAreApart(const TableArray<T> &array, unsigned rows, unsigned columns,
                                  std::uint32_t count) {
    return tableElementsAreApart(array.object(0), span(array.objStride), rows * columns, count);
}

// ---- whether a source and the destination are the same elements, position by position

template <typename S, typename D>
constexpr bool coincide(const S &, const D &) {
    return false;
}

template <typename T>
ZELM_INLINE bool coincide(const DenseArray<const T> &s, const DenseArray<T> &d) {
    return s.start == d.start && s.objStride == d.objStride && s.rowStride == d.rowStride;
}

template <typename T>
ZELM_INLINE bool coincide(const StridedArray<const T> &s, const StridedArray<T> &d) {
    return s.start == d.start && s.objStride == d.objStride && s.rowStride == d.rowStride &&
           s.elemStride == d.elemStride;
}

template <typename T>
ZELM_INLINE bool coincide(const PackedTableArray<const T> &s, const PackedTableArray<T> &d) {
    return s.table == d.table && s.shift == d.shift;
}

template <typename T>
ZELM_INLINE bool coincide(const TableArray<const T> &s, const TableArray<T> &d) {
    return s.table == d.table && s.shift == d.shift && s.objStride == d.objStride;
}

// Two operands in one structure: the same distance from object to object, apart inside it.
ZELM_INLINE bool areInterleaved(const Range &a, const Range &b, Address objStrideA, Address objStrideB) {
    if (objStrideA != objStrideB || signedDistance(objStrideA) <= 0)
        return false;
    // The first objects only: the ranges here are of one object each.
    const std::int64_t stride = signedDistance(objStrideA);
    const std::int64_t low = a.low < b.low ? a.low : b.low;
    const std::int64_t high = a.high > b.high ? a.high : b.high;
    return areDisjoint(a, b) && high - low <= stride;
}

// Whether groups of objects may write `d` where the one-by-one loop also reads `s`.
template <typename S, typename D>
ZELM_INLINE bool isUntouched(const S &s, unsigned sRows, unsigned sColumns, const D &d, unsigned rows,
                             unsigned columns, std::uint32_t count) {
    const Range source = rangeOf(s, sRows, sColumns, count), target = rangeOf(d, rows, columns, count);
    if (!isKnown(source) || !isKnown(target))
        return false;
    if (areDisjoint(source, target))
        return true;
    if constexpr (requires {
                      s.objStride;
                      d.objStride;
                  })
        return areInterleaved(rangeOfObject(s.object(0), sRows, sColumns),
                              rangeOfObject(d.object(0), rows, columns), s.objStride, d.objStride);
    else
        return false;
}

// ---- the objects of a list, a group at a time

// The bytes of one object, from its lowest address on.
struct Extent {
    Address lowest, bytes; // the lowest address less the object's start, and their number
};

template <typename Operand>
ZELM_INLINE Extent extentOf(const Operand &operand, unsigned rows, unsigned columns) {
    Range range = {0, sizeof(typename Operand::Element)};
    extend(range, signedDistance(operand.rowStride) * (rows - 1));
    extend(range, signedDistance(operand.elemStride) * (columns - 1));
    return {static_cast<Address>(range.low), static_cast<Address>(range.high - range.low)};
}

// Whether the elements of one object are all distinct.
template <typename Operand>
ZELM_INLINE bool objectElementsAreApart(const Operand &operand, unsigned rows, unsigned columns) {
    return areApart(std::int64_t{1} << 62, 1, span(operand.rowStride), rows, span(operand.elemStride),
                    columns, sizeof(typename Operand::Element));
}

// The lowest addresses of the objects k to k + lanes - 1; those of an invariant are all the same.
template <unsigned lanes>
struct Lowest {
    Address at[lanes];
};

template <unsigned lanes, typename Operand>
ZELM_INLINE Lowest<lanes> lowestOf(const Operand &operand, const Extent &extent, std::uint32_t k) {
    Lowest<lanes> lowest;
    ZELM_UNROLL
    for (unsigned lane = 0; lane < lanes; ++lane)
        lowest.at[lane] = operand.object(k + lane).start + extent.lowest;
    return lowest;
}

template <unsigned lanes>
ZELM_INLINE bool areApartFromEachOther(const Lowest<lanes> &a, Address bytes) {
    bool apart = true;
    ZELM_UNROLL
    for (unsigned lane = 1; lane < lanes; ++lane) {
        ZELM_UNROLL
        for (unsigned other = 0; other < lane; ++other)
            apart &= areDisjoint(a.at[lane], bytes, a.at[other], bytes);
    }
    return apart;
}

// The same for entries of a list that lie near each other: the lower halves of addresses tell their
// distances.

constexpr std::int64_t kNear = std::int64_t{1} << 30;

// Unsigned, as their differences are taken modulo the word size.
template <unsigned lanes>
struct LowerHalvesType {
    typedef std::uint32_t type __attribute__((vector_size(4 * lanes)));
    typedef std::int32_t signedType __attribute__((vector_size(4 * lanes)));
};
template <unsigned lanes>
using LowerHalves = typename LowerHalvesType<lanes>::type;
template <unsigned lanes>
using Distances = typename LowerHalvesType<lanes>::signedType;

// In the order of the entries or in another.
template <unsigned lanes, typename T>
ZELM_INLINE LowerHalves<lanes> lowerHalvesOf(T *const *entries) {
    using V = Pack<float, 4 * lanes>;
    const Address at = addressOf(entries);
    if constexpr (sizeof(Address) == 4)
        return (LowerHalves<lanes>)loadAs<V>(at);
    else
        return (LowerHalves<lanes>)shuffle<0, 2, 0, 2>(loadAs<V>(at), loadAs<V>(at + sizeof(V)));
}

template <unsigned by, unsigned lanes, std::size_t... lane>
ZELM_INLINE LowerHalves<lanes> rotated(LowerHalves<lanes> a, std::index_sequence<lane...>) {
    return __builtin_shufflevector(a, a, ((lane + by) % lanes)...);
}

template <unsigned lanes>
ZELM_INLINE bool allExceed(Distances<lanes> a, Distances<lanes> b) {
    const Distances<lanes> exceeds = a > b;
    if constexpr (lanes == 4)
        return _mm_movemask_epi8((__m128i)exceeds) == 0xffff;
#if defined(__AVX2__)
    else if constexpr (lanes == 8)
        return _mm256_movemask_epi8((__m256i)exceeds) == -1;
#endif
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
    else
        return _mm512_cmpgt_epi32_mask((__m512i)a, (__m512i)b) == 0xffff;
#endif
}

// Whether objects lie apart from each other whose bytes all lie within kNear. Each lane with as many behind
// it as make up all pairs: two objects overlap where -bytes < distance < bytes, which is one comparison once
// that range is moved to the lowest of all numbers.
template <unsigned lanes>
ZELM_INLINE bool nearOnesAreApart(LowerHalves<lanes> starts, std::uint32_t bytes) {
    constexpr std::uint32_t lowest = std::uint32_t{1} << 31;
    constexpr auto all = std::make_index_sequence<lanes>();
    const LowerHalves<lanes> moved = starts + (lowest + (bytes - 1));
    Distances<lanes> least = (Distances<lanes>)(moved - rotated<1, lanes>(starts, all));
    const auto take = [&](LowerHalves<lanes> others) ZELM_INLINE_LAMBDA {
        const auto distances = (Distances<lanes>)(moved - others);
        least = distances < least ? distances : least;
    };
    [&]<std::size_t... i>(std::index_sequence<i...>) ZELM_INLINE_LAMBDA {
        (take(rotated<i + 2, lanes>(starts, all)), ...);
    }
    (std::make_index_sequence<lanes / 2 - 1>());
    return allExceed<lanes>(least, (Distances<lanes>)(LowerHalves<lanes>{} + (lowest + 2 * (bytes - 1))));
}

template <unsigned lanes>
ZELM_INLINE bool areApartFrom(const Lowest<lanes> &a, Address bytesOfA, const Lowest<lanes> &b,
                              Address bytesOfB) {
    Address lowA = a.at[0], highA = a.at[0], lowB = b.at[0], highB = b.at[0];
    ZELM_UNROLL
    for (unsigned lane = 1; lane < lanes; ++lane) {
        lowA = a.at[lane] < lowA ? a.at[lane] : lowA;
        highA = a.at[lane] > highA ? a.at[lane] : highA;
        lowB = b.at[lane] < lowB ? b.at[lane] : lowB;
        highB = b.at[lane] > highB ? b.at[lane] : highB;
    }
    if (areDisjoint(lowA, highA - lowA + bytesOfA, lowB, highB - lowB + bytesOfB))
        return true;
    bool apart = true;
    for (unsigned lane = 0; lane < lanes; ++lane)
        for (unsigned other = 0; other < lanes; ++other)
            apart &= areDisjoint(a.at[lane], bytesOfA, b.at[other], bytesOfB);
    return apart;
}

} // namespace zelm::frame
