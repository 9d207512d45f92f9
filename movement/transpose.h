// Transposes. The element (i, j) of src goes to (j, i) of dst, rows of src in ascending order.
#pragma once

#include "frame/apart.h"
#include "frame/checks.h"
#include "frame/groups.h"
#include "frame/objects.h"
#include "frame/plainest.h"
#include "frame/shapes.h"
#include "movement/planes.h"

namespace zelm::movement {

// The tables of the run-time P and PS2 forms depart from the rule: each index is made with the row length of
// the other operand. For square matrices that is the ordinary table; for others it reaches behind the entries
// that are tested. Operands without a table have no use for the number.
template <typename Shape>
ZELM_INLINE std::uint32_t sourcePitch(Shape shape) {
    return shape.rows();
}

template <typename Shape>
ZELM_INLINE std::uint32_t targetPitch(Shape shape) {
    return shape.columns();
}

// Element by element in the order of src. `shape` is that of src as stored.
template <typename S, typename D, typename Shape>
ZELM_INLINE void transposeInOrder(const S &s, const D &d, Shape shape) {
    using T = typename D::Element;
    whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
        copyElement<T>(d.address(j, i, targetPitch(shape)), s.address(i, j, sourcePitch(shape)));
        return true;
    });
}

// Where registers are few: an address and a step in each of two objects with gaps between their elements,
// which go on from row to row and from object to object. The compiler takes them as they are; it would form
// the addresses of all elements ahead of the loop over objects.
struct Walk {
    Address from, to, fromStep, toStep;
    ZELM_INLINE void go(Address inSource, Address inTarget) {
        from += inSource, to += inTarget;
        asm("" : "+r"(from), "+r"(to));
    }
    // An instruction reaches two steps on.
    template <typename T, unsigned N>
    ZELM_INLINE void row() {
        Walk at = *this;
        ZELM_UNROLL
        for (unsigned j = 0, past = 0; j < N; ++j) {
            if (j == past + 2 && j + 1 < N) {
                at.go(2 * fromStep, 2 * toStep);
                past = j;
            } else if (j == past + 2) {
                asm("" : "+r"(fromStep), "+r"(toStep));
            }
            copyElement<T>(at.to + (j - past) * toStep, at.from + (j - past) * fromStep);
        }
    }
};

ZELM_INLINE void transposeBlock(const Dense<const float> &s, const Dense<float> &d, std::uint32_t i,
                                std::uint32_t j) {
    Floats4 rows[4];
    ZELM_UNROLL
    for (std::uint32_t r = 0; r < 4; ++r)
        rows[r] = loadPack<float>(s.address(i + r, j, 0));
    transposeFour(rows[0], rows[1], rows[2], rows[3]);
    ZELM_UNROLL
    for (std::uint32_t r = 0; r < 4; ++r)
        storePack(d.address(j + r, i, 0), rows[r]);
}

ZELM_INLINE void transposeBlock(const Dense<const double> &s, const Dense<double> &d, std::uint32_t i,
                                std::uint32_t j) {
    const Doubles2 a = loadPack<double>(s.address(i, j, 0)), b = loadPack<double>(s.address(i + 1, j, 0));
    storePack(d.address(j, i, 0), _mm_unpacklo_pd(a, b));
    storePack(d.address(j + 1, i, 0), _mm_unpackhi_pd(a, b));
}

// Nine elements behind each other, by packs.
ZELM_INLINE void transposeThree(const Dense<const float> &s, const Dense<float> &d) {
    constexpr Address last = 2 * kBlockBytes;
    const Floats4 a = loadPack<float>(s.start), b = loadPack<float>(s.start + kBlockBytes);
    const float corner = load<float>(s.start + last);
    storePack(d.start, shuffle<0, 3, 0, 2>(a, shuffle<2, 2, 1, 1>(b, a)));
    storePack(d.start + kBlockBytes, shuffle<0, 3, 0, 2>(b, shuffle<2, 2, 1, 1>(a, b)));
    store(d.start + last, corner);
}

ZELM_INLINE void transposeThree(const Dense<const double> &s, const Dense<double> &d) {
    constexpr Address last = 4 * kBlockBytes;
    Doubles2 packs[4];
    ZELM_UNROLL
    for (unsigned p = 0; p < 4; ++p)
        packs[p] = loadPack<double>(s.start + p * kBlockBytes);
    const double corner = load<double>(s.start + last);
    storePack(d.start, shuffle<0, 1>(packs[0], packs[1]));
    storePack(d.start + kBlockBytes, shuffle<0, 1>(packs[3], packs[0]));
    storePack(d.start + 2 * kBlockBytes, shuffle<0, 1>(packs[2], packs[3]));
    storePack(d.start + 3 * kBlockBytes, shuffle<0, 1>(packs[1], packs[2]));
    store(d.start + last, corner);
}

// Order 6: a block of 4, and pairs.
ZELM_INLINE void transposeSix(const Dense<const float> &s, const Dense<float> &d) {
    const auto pairs = [&](std::uint32_t i) ZELM_INLINE_LAMBDA {
        return loadTwoAndTwo(s.address(i, 4, 0), s.address(i + 1, 4, 0));
    };
    const auto storeTwoAndTwo = [&](std::uint32_t i, Floats4 pairs) ZELM_INLINE_LAMBDA {
        _mm_storel_pi(reinterpret_cast<__m64 *>(d.address(i, 4, 0)), pairs);
        _mm_storeh_pi(reinterpret_cast<__m64 *>(d.address(i + 1, 4, 0)), pairs);
    };
    transposeBlock(s, d, 0, 0);
    const Floats4 upper = pairs(0), lower = pairs(2), corner = pairs(4);
    storePack(d.rowStart(4), shuffle<0, 2, 0, 2>(upper, lower));
    storePack(d.rowStart(5), shuffle<1, 3, 1, 3>(upper, lower));
    const Floats4 fifth = loadPack<float>(s.rowStart(4)), sixth = loadPack<float>(s.rowStart(5));
    storeTwoAndTwo(0, interleaveLow(fifth, sixth));
    storeTwoAndTwo(2, interleaveHigh(fifth, sixth));
    storeTwoAndTwo(4, shuffle<0, 2, 1, 3>(corner, corner));
}

// Square blocks in registers, and the edge element by element: for a dst that is apart from src.
template <typename T, typename Shape>
ZELM_INLINE void transposeBlocks(const Dense<const T> &s, const Dense<T> &d, Shape shape) {
    constexpr std::uint32_t side = kLanes<T>;
    const std::uint32_t rows = shape.rows() / side * side, columns = shape.columns() / side * side;
    const auto edge = [&](std::uint32_t i, std::uint32_t j)
                          ZELM_INLINE_LAMBDA { copyElement<T>(d.address(j, i, 0), s.address(i, j, 0)); };
    if constexpr (sizeof(T) == 4 && Shape::isFixed && Shape::columnsIfFixed == 6) {
        transposeSix(s, d);
    } else if constexpr (Shape::isFixed) {
        whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
            if (i >= rows || j >= columns)
                edge(i, j);
            else if (i % side == 0 && j % side == 0)
                transposeBlock(s, d, i, j);
            return true;
        });
    } else {
        for (std::uint32_t i = 0; i < rows; i += side) {
            for (std::uint32_t j = 0; j < columns; j += side)
                transposeBlock(s, d, i, j);
            for (std::uint32_t j = columns; j < shape.columns(); ++j)
                for (std::uint32_t r = i; r < i + side; ++r)
                    edge(r, j);
        }
        for (std::uint32_t i = rows; i < shape.rows(); ++i)
            for (std::uint32_t j = 0; j < shape.columns(); ++j)
                edge(i, j);
    }
}

// Where an object of dst isn't apart from src, or has elements on each other.
template <typename T, typename Shape>
ZELM_NOINLINE void transposeDenseInOrder(Address from, Address fromRow, Address to, Address toRow,
                                         Shape shape) {
    transposeInOrder(Dense<const T>(from, fromRow), Dense<T>(to, toRow), shape);
}

// Calls with(transpose), transpose(from, to) being what suits the strides of the dense objects.
template <typename S, typename D, typename Shape, typename With>
ZELM_INLINE auto withDenseTranspose(S s, D d, Shape shape, With with) {
    using T = typename D::Element;
    const auto through = [&](auto blocks) ZELM_INLINE_LAMBDA {
        const bool possible = shape.rows() <= kMostInGroups && shape.columns() <= kMostInGroups;
        const std::uint32_t rows = possible ? shape.rows() : 1, columns = possible ? shape.columns() : 1;
        ObjectsApart areApart(s, rows, columns, d, columns, rows);
        if (!possible || !objectElementsAreApart(d, columns, rows))
            areApart.neverAgain();
        return with([=](const Dense<const T> &from, const Dense<T> &to) ZELM_INLINE_LAMBDA {
            if (areApart(from.start, to.start))
                blocks(from, to);
            else
                transposeDenseInOrder<T>(from.start, s.rowStride, to.start, d.rowStride, shape);
        });
    };
    if constexpr (Shape::isFixed && Shape::columnsIfFixed == 3) {
        constexpr Address row = 3 * sizeof(T);
        if (s.rowStride == row && d.rowStride == row) {
            s.rowStride = d.rowStride = row; // constants, from here on
            return through([](const auto &from, const auto &to)
                               ZELM_INLINE_LAMBDA { transposeThree(from, to); });
        }
    }
    return through([=](const auto &from, const auto &to)
                       ZELM_INLINE_LAMBDA { transposeBlocks(from, to, shape); });
}

// ---- one matrix

// Its arguments are those of the call that ends in it.
template <typename Shape, typename S, typename D>
ZELM_NOINLINE ZelmStatus transposeDense(S s, D d) {
    withDenseTranspose(s, d, Shape(), [&](auto transpose) ZELM_INLINE_LAMBDA { transpose(s, d); });
    return ZELM_OK;
}

template <typename S, typename D, typename Shape>
ZELM_INLINE ZelmStatus transposeSingle(const S &s, const D &d, Shape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), s, d); status != kProceed)
        return status;
    if constexpr (D::isTable) {
        using T = typename D::Element;
        const bool complete = whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
            const Address to = Address{j} * targetPitch(shape) + i;
            const Address from = Address{i} * sourcePitch(shape) + j;
            if (d.elementIsNull(to) || s.elementIsNull(from))
                return false;
            copyElement<T>(d.position(to), s.position(from));
            return true;
        });
        return complete ? ZELM_OK : ZELM_ERR_NULL_PTR;
    } else if constexpr (D::isDense) {
        if constexpr (Shape::isFixed && Shape::columnsIfFixed == 3) {
            // Most calls: no gaps, and the matrices apart. What asks for more memory stands elsewhere.
            constexpr Address row = 3 * sizeof(typename D::Element), bytes = 3 * row;
            if (s.rowStride != row || d.rowStride != row || !areDisjoint(s.start, bytes, d.start, bytes))
                return transposeDense<Shape>(s, d);
            transposeThree(s, d);
        } else {
            withDenseTranspose(s, d, shape, [&](auto transpose) ZELM_INLINE_LAMBDA { transpose(s, d); });
        }
    } else {
        transposeInOrder(s, d, shape);
    }
    return ZELM_OK;
}

// ---- arrays

// Square matrices. One instance serves all sizes.
template <typename S, typename D>
ZELM_NOINLINE bool transposePlanes(S s, D d, std::uint32_t n, std::uint32_t count) {
    if (n > kPlanesElements || !planesMayMove(s, d, Address{n} * n, count))
        return false;
    const auto from = s.object(0);
    const auto to = d.object(0);
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j)
            movePlane(s, d, from.address(i, j, n), to.address(j, i, n), count);
    return true;
}

// One instance serves the layouts that come to dense operands.
template <typename S, typename D, typename Shape>
ZELM_NOINLINE ZelmStatus transposeDenseObjects(S s, D d, Shape shape, std::uint32_t count) {
    return withDenseTranspose(s, d, shape, [&](auto transpose) ZELM_INLINE_LAMBDA {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            transpose(s.object(k), d.object(k));
            return ZELM_OK;
        };
        return forEachObject(count, one, s, d);
    });
}

template <typename S, typename D, unsigned N>
ZELM_INLINE ZelmStatus transposeByWalking(const S &s, const D &d, FixedShape<N, N>, std::uint32_t count) {
    Walk walk = {s.object(0).start, d.object(0).start, s.elemStride, d.rowStride};
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        if constexpr (D::isList)
            walk.from = s.object(k).start, walk.to = d.object(k).start;
        walk.row<typename D::Element, N>();
        ZELM_UNROLL
        for (unsigned i = 1; i < N; ++i) {
            walk.go(s.rowStride, d.elemStride);
            walk.row<typename D::Element, N>();
        }
        if constexpr (!D::isList)
            walk.go(s.objStride - (N - 1) * s.rowStride, d.objStride - (N - 1) * d.elemStride);
        return ZELM_OK;
    };
    return forEachObject(count, one, s, d);
}

template <typename S, typename D, typename Shape>
ZELM_INLINE ZelmStatus transposeObjects(const S &s, const D &d, Shape shape, std::uint32_t count) {
    if constexpr (D::isTable)
        if (shape.rows() == shape.columns() && transposePlanes(s, d, shape.rows(), count))
            return ZELM_OK;
    if constexpr (kHasDenseObjects<D>) {
        return transposeDenseObjects(s, d, shape, count);
    } else if constexpr (kHasFewRegisters && Shape::isFixed && !D::isTable) {
        return transposeByWalking(s, d, shape, count);
    } else {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            transposeInOrder(s.object(k), d.object(k), shape);
            return ZELM_OK;
        };
        return forEachObject(count, one, s, d);
    }
}

template <typename S, typename D, typename Shape>
ZELM_INLINE ZelmStatus transposeArray(const S &s, const D &d, Shape shape, std::uint32_t count) {
    const Address n = shape.elements();
    if (ZelmStatus status = checkArray(shape.isZero(), count, tested(s, n), tested(d, n)); status != kProceed)
        return status;
    return withPlainest([&](const auto &...plain)
                            ZELM_INLINE_LAMBDA { return transposeObjects(plain..., shape, count); },
                        s, d);
}

} // namespace zelm::movement
