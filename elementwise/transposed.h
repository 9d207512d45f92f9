// Two matrices of order 4 used transposed: their elements are combined as they are stored, and the result is
// transposed.
#pragma once

#include "frame/overlap.h"
#include "frame/shapes.h"
#include "frame/shuffles.h"

namespace zelm::elementwise {

using namespace zelm::frame;

template <typename Op>
ZELM_INLINE void combineTransposed(const Dense<const float> &a, const Dense<const float> &b, Address dst) {
    Floats4 rows[4];
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i)
        rows[i] = Op::apply(loadPack<float>(a.rowStart(i)), loadPack<float>(b.rowStart(i)));
    transposeFour(rows[0], rows[1], rows[2], rows[3]);
    ZELM_UNROLL
    for (unsigned i = 0; i < 4; ++i)
        storePack(dst + i * kBlockBytes, rows[i]);
}

// All packs of 64-bit float fill the registers that 32-bit x86 has.
constexpr bool kHoldsFourDoubleRows = sizeof(Address) == 8;

template <typename Op>
ZELM_INLINE void combineTransposed(const Dense<const double> &a, const Dense<const double> &b, Address dst) {
    const auto pairAt = [&](unsigned i, unsigned half) ZELM_INLINE_LAMBDA {
        return Op::apply(loadPack<double>(a.rowStart(i) + half * kBlockBytes),
                         loadPack<double>(b.rowStart(i) + half * kBlockBytes));
    };
    Doubles2 held[8];
    if constexpr (kHoldsFourDoubleRows) {
        ZELM_UNROLL
        for (unsigned p = 0; p < 8; ++p)
            held[p] = pairAt(p / 2, p % 2);
    }
    ZELM_UNROLL
    for (unsigned block = 0; block < 4; ++block) {
        const unsigned i = block / 2 * 2, half = block % 2; // the rows of src and the columns in pairs
        const Doubles2 upper = kHoldsFourDoubleRows ? held[2 * i + half] : pairAt(i, half);
        const Doubles2 lower = kHoldsFourDoubleRows ? held[2 * i + 2 + half] : pairAt(i + 1, half);
        const Address to = dst + (4 * half + i / 2) * kBlockBytes;
        storePack(to, interleaveLow(upper, lower));
        storePack(to + 2 * kBlockBytes, interleaveHigh(upper, lower));
    }
}

template <typename A, typename B, typename Shape>
constexpr bool kIsCombinedTransposed =
    std::is_same_v<Shape, FixedShape<4, 4>> &&kIsTransposed<A> &&kIsTransposed<B>;

// Where the rows of dst have no gaps: both matrices are read before any of it is written, as two of
// TransposedFour are, or it lies apart from them. False elsewhere.
template <typename Op, typename S, typename T>
ZELM_INLINE bool combinedTransposed(const S &a, const S &b, const Dense<T> &d) {
    constexpr Address row = 4 * sizeof(T), all = 4 * row;
    if (d.rowStride != row)
        return false;
    if constexpr (sizeof(Address) == 4) // other strides take registers that aren't there
        if (a.rowStride != row || b.rowStride != row)
            return false;
    if constexpr (sizeof(T) == 8 && !kHoldsFourDoubleRows)
        if (!areDisjoint(a.start, all, d.start, all) || !areDisjoint(b.start, all, d.start, all))
            return false;
    combineTransposed<Op>(a, b, d.start);
    return true;
}

} // namespace zelm::elementwise
