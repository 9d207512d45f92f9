// Two matrices of order 4 used transposed: their elements are combined as they are stored, and the result is
// transposed.
#pragma once

#include "frame/overlap.h"
#include "frame/shapes.h"
#include "frame/shuffles.h"

namespace zelm::elementwise {

using namespace zelm::frame;

template <typename Op>
ZELM_INLINE void combineTransposed(Address a, Address b, Address dst, float) {
    Floats4 rows[4];
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i)
        rows[i] = Op::apply(loadPack<float>(a + i * kBlockBytes), loadPack<float>(b + i * kBlockBytes));
    transposeFour(rows[0], rows[1], rows[2], rows[3]);
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i)
        storePack(dst + i * kBlockBytes, rows[i]);
}

template <typename Op>
ZELM_INLINE void combineTransposed(Address a, Address b, Address dst, double) {
    const auto pairAt = [&](unsigned i, unsigned half) ZELM_INLINE_LAMBDA {
        const Address offset = (2 * i + half) * kBlockBytes;
        return Op::apply(loadPack<double>(a + offset), loadPack<double>(b + offset));
    };
    ZELM_UNROLL
    for (unsigned block = 0; block < 4; ++block) {
        const unsigned i = block / 2 * 2, half = block % 2; // the rows of src and the columns in pairs
        const Doubles2 upper = pairAt(i, half), lower = pairAt(i + 1, half);
        const Address to = dst + (4 * half + i / 2) * kBlockBytes;
        storePack(to, interleaveLow(upper, lower));
        storePack(to + 2 * kBlockBytes, interleaveHigh(upper, lower));
    }
}

// Where there are no gaps and dst lies apart from both; false elsewhere.
template <typename Op, typename S, typename T>
ZELM_INLINE bool combinedTransposed(const S &a, const S &b, const Dense<T> &d) {
    constexpr Address row = 4 * sizeof(T), all = 4 * row;
    if (a.rowStride != row || b.rowStride != row || d.rowStride != row ||
        !areDisjoint(a.start, all, d.start, all) || !areDisjoint(b.start, all, d.start, all))
        return false;
    combineTransposed<Op>(a.start, b.start, d.start, T{});
    return true;
}

} // namespace zelm::elementwise
