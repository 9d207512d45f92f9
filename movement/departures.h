// The members of this subsystem that depart from their rows, each written out here. The catalogue names them
// and points their exported functions here. (What departs in whole rows stands with the rows: the table
// indices of transposes, and the running diagonal of identities.)
#pragma once

#include "movement/copy.h"
#include "movement/extract.h"
#include "movement/transpose.h"

namespace zelm::movement::departures {

// zelmCopy_va_*_PP: both sides take their pointers from dstTable; srcTable is tested and otherwise not read.
template <typename T>
ZELM_INLINE ZelmStatus copyByTargetTable(const TableArray<const T> &s, const TableArray<T> &d,
                                         RunTimeShape shape, std::uint32_t count) {
    if (s.isNull())
        return ZELM_ERR_NULL_PTR;
    TableArray<const T> source(d.table, 0, 0);
    source.shift = s.shift;
    source.objStride = s.objStride;
    return copyVectors(source, d, shape, count);
}

// zelmExtract_v_64f_P, zelmExtract_m_*_P: nothing is tested. Of a matrix the number of its elements counts,
// so that either dimension may be zero.
template <typename T>
ZELM_INLINE ZelmStatus extractUntested(const Table<const T> &s, T *dst, RunTimeShape shape) {
    const std::uint32_t elements = shape.height * shape.width;
    for (std::uint32_t e = 0; e < elements; ++e)
        copyElement<T>(addressOf(dst) + e * sizeof(T), s.position(e));
    return ZELM_OK;
}

// zelmExtract_mT_*_P: nothing is tested, srcShift is not read, and the table is the one that is read row by
// row: `height` rows of `width` entries, which become the columns of the packed matrix.
template <typename T>
ZELM_INLINE ZelmStatus extractColumnsUntested(const Table<const T> &s, T *dst, RunTimeShape shape) {
    for (std::uint32_t i = 0; i < shape.height; ++i)
        for (std::uint32_t j = 0; j < shape.width; ++j)
            copyElement<T>(addressOf(dst) + (Address{j} * shape.height + i) * sizeof(T),
                           addressOf(s.table[Address{i} * shape.width + j]));
    return ZELM_OK;
}

// zelmExtract_maT_*_PS2: not transposed.
template <typename T>
ZELM_INLINE ZelmStatus extractUntransposed(const TableArray<const T> &s, T *dst, RunTimeShape shape,
                                           std::uint32_t count) {
    return extractArray(s, dst, shape, count);
}

// zelmTranspose_m_32f_4x4, zelmTranspose_m_64f_4x4, zelmTranspose_ma_32f_4x4: a whole matrix is read before
// it is written, so that dst may be src.
ZELM_INLINE void loadTransposed(const Dense<const float> &s, Floats4 (&rows)[4]) {
    ZELM_UNROLL
    for (std::uint32_t i = 0; i < 4; ++i)
        rows[i] = loadPack<float>(s.rowStart(i));
    transposeFour(rows[0], rows[1], rows[2], rows[3]);
}

ZELM_INLINE void loadTransposed(const Dense<const double> &s, Doubles2 (&rows)[8]) {
    ZELM_UNROLL
    for (std::uint32_t i = 0; i < 4; ++i) {
        const Address from = s.start + i % 2 * kBlockBytes, pair = i / 2 * 2;
        const Doubles2 a = loadPack<double>(from + pair * s.rowStride);
        const Doubles2 b = loadPack<double>(from + (pair + 1) * s.rowStride);
        rows[i % 2 * 4 + i / 2] = _mm_unpacklo_pd(a, b);
        rows[i % 2 * 4 + 2 + i / 2] = _mm_unpackhi_pd(a, b);
    }
}

// Where the rows of dst lie over each other: in the order of elements.
template <typename T>
ZELM_NOINLINE ZelmStatus transposeThroughCopy(Dense<const T> s, Dense<T> d) {
    T whole[16];
    for (std::uint32_t e = 0; e < 16; ++e)
        copyElement<T>(addressOf(whole + e), s.address(e / 4, e % 4, 4));
    for (std::uint32_t e = 0; e < 16; ++e)
        copyElement<T>(d.address(e % 4, e / 4, 4), addressOf(whole + e));
    return ZELM_OK;
}

template <typename T>
ZELM_INLINE ZelmStatus transposeWhole(const Dense<const T> &s, const Dense<T> &d, bool apart) {
    if (!apart)
        return transposeThroughCopy(s, d);
    constexpr unsigned packs = sizeof(T);
    Pack<T> rows[packs];
    loadTransposed(s, rows);
    ZELM_UNROLL
    for (unsigned p = 0; p < packs; ++p)
        storePack(d.rowStart(p * 4 / packs) + p % (packs / 4) * kBlockBytes, rows[p]);
    return ZELM_OK;
}

template <typename T>
ZELM_INLINE ZelmStatus transposeSingleWhole(const Dense<const T> &s, const Dense<T> &d, FixedShape<4, 4>) {
    if (ZelmStatus status = checkSingle(false, s, d); status != kProceed)
        return status;
    // Rows behind each other, and far from where an address would wrap. Others take the longer way, to the
    // same.
    constexpr Address row = 4 * sizeof(T), most = Address{1} << (8 * sizeof(Address) - 4);
    return transposeWhole(s, d, d.rowStride - row < most);
}

template <typename T>
ZELM_INLINE ZelmStatus transposeArrayWhole(const DenseArray<const T> &s, const DenseArray<T> &d,
                                           FixedShape<4, 4>, std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(s, 0), tested(d, 0)); status != kProceed)
        return status;
    if (!objectElementsAreApart(d, 4, 4)) {
        for (std::uint32_t k = 0; k < count; ++k)
            transposeThroughCopy(s.object(k), d.object(k));
        return ZELM_OK;
    }
    Dense<const T> from = s.object(0);
    Dense<T> to = d.object(0);
    for (; count != 0; --count, from.start += s.objStride, to.start += d.objStride)
        transposeWhole(from, to, true);
    return ZELM_OK;
}

} // namespace zelm::movement::departures
