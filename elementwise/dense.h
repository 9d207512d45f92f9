// Element-wise operations in the standard and L layouts, where the elements of a row are adjacent.
#pragma once

#include "elementwise/run.h"
#include "frame/objects.h"
#include "frame/overlap.h"

namespace zelm::elementwise {

// ---- one row as the input of a run

template <typename T>
ZELM_INLINE Stream<T> inputRow(const Dense<const T> &object, std::uint32_t i) {
    return {object.rowStart(i)};
}

template <typename T>
ZELM_INLINE ScaledStream<T> inputRow(const Scaled<Dense<const T>> &object, std::uint32_t i) {
    return {{object.rowStart(i)}, object.factor};
}

template <typename T>
ZELM_INLINE Same<T> inputRow(const Constant<T> &constant, std::uint32_t) {
    return {constant.value};
}

template <typename T, unsigned N>
ZELM_INLINE const HeldVector<T, N> &inputRow(const HeldVector<T, N> &held, std::uint32_t) {
    return held;
}

template <typename T, unsigned R, unsigned C>
ZELM_INLINE HeldStream<T> inputRow(const HeldMatrix<T, R, C> &held, std::uint32_t i) {
    return held.row(i);
}

// ---- a whole object of fixed shape as the input of one run

template <typename Shape, typename Object>
ZELM_INLINE decltype(auto) inputOf(const Object &object) {
    return inputRow(object, 0);
}

template <typename Shape, typename T>
ZELM_INLINE TransposedStream<T, Shape::columns()> inputOf(const Transposed<Dense<const T>> &object) {
    return {object};
}

template <typename Shape>
requires(Shape::isFixed &&Shape::rows() == 4 && Shape::columns() == 4) ZELM_INLINE TransposedFour
    inputOf(const Transposed<Dense<const float>> &object) {
    return TransposedFour(object);
}

template <typename Operand>
constexpr bool kIsConstant = false;
template <typename T>
constexpr bool kIsConstant<Constant<T>> = true;

// ---- all objects of an array, one behind the other, as the input of one run

template <typename Array>
ZELM_INLINE decltype(auto) inputOfAll(const Array &array) {
    return inputRow(array.object(0), 0);
}

template <typename T, unsigned R, unsigned C>
ZELM_INLINE HeldVector<T, R * C> inputOfAll(const HeldMatrix<T, R, C> &held) {
    return HeldVector<T, R * C>(held.row(0));
}

template <typename Operand>
constexpr bool kIsHeldMatrix = false;
template <typename T, unsigned R, unsigned C>
constexpr bool kIsHeldMatrix<HeldMatrix<T, R, C>> = true;

// From how many objects on one run over all of them is worth repeating a held matrix for it.
constexpr std::uint32_t kHeldMatrixCount = 16;

// ---- whether the rows of an object, and the objects of an array, follow each other without a gap

template <typename Object, typename Shape>
ZELM_INLINE bool rowsAreGapless(const Object &object, Shape shape) {
    if constexpr (requires { object.rowStride; } && !kIsTransposed<Object>)
        return shape.rows() == 1 || object.rowStride == shape.columns() * sizeof(typename Object::Element);
    else
        return true;
}

// An invariant that is read anew for every object can't be part of one run over all objects; a held one can.
template <typename Operand, typename Shape>
ZELM_INLINE bool isGapless(const Operand &operand, Shape shape) {
    if constexpr (requires { operand.objStride; })
        return operand.objStride == shape.elements() * sizeof(typename Operand::Element) &&
               rowsAreGapless(operand, shape);
    else
        return !requires {
            operand.rowStride;
        };
}

// ---- one object

template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_INLINE void plainObject(const A &a, const B &b, const D &d, Shape shape) {
    using T = typename D::Element;
    whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
        d.set(i, j, shape.columns(), Op::template apply<T>(value(a, i, j, shape), value(b, i, j, shape)));
        return true;
    });
}

template <typename Op, typename A, typename B, typename T, typename Shape>
ZELM_INLINE void denseObject(const A &a, const B &b, const Dense<T> &d, Shape shape) {
    const bool gapless = rowsAreGapless(a, shape) && rowsAreGapless(b, shape) && rowsAreGapless(d, shape);
    if constexpr (kIsTransposed<A> || kIsTransposed<B>) {
        // Sums of fixed size may read ahead of what they write; scaling reads each element just before it
        // writes one.
        if constexpr (Shape::isFixed && !kIsConstant<B>) {
            if (gapless)
                return shortRun<Op, T, shape.elements()>(inputOf<Shape>(a), inputOf<Shape>(b), d.start);
        }
        plainObject<Op>(a, b, d, shape);
    } else if (gapless) {
        if constexpr (Shape::isFixed)
            shortRun<Op, T, shape.elements()>(inputRow(a, 0), inputRow(b, 0), d.start);
        else
            run<Op, T>(inputRow(a, 0), inputRow(b, 0), d.start, shape.elements());
    } else {
        for (std::uint32_t i = 0; i < shape.rows(); ++i) {
            if constexpr (Shape::isFixed)
                shortRun<Op, T, shape.columns()>(inputRow(a, i), inputRow(b, i), d.rowStart(i));
            else
                run<Op, T>(inputRow(a, i), inputRow(b, i), d.rowStart(i), shape.columns());
        }
    }
}

// ---- arrays

template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus denseArray(const A &a, const B &b, const D &d, Shape shape, std::uint32_t count) {
    using T = typename D::Element;
    if constexpr (!D::isList && !kIsTransposed<A> && !kIsTransposed<B>) {
        constexpr bool holdsMatrix = kIsHeldMatrix<A> || kIsHeldMatrix<B>;
        if ((!holdsMatrix || count >= kHeldMatrixCount) && isGapless(a, shape) && isGapless(b, shape) &&
            isGapless(d, shape)) {
            run<Op, T>(inputOfAll(a), inputOfAll(b), d.start, count * shape.elements());
            return ZELM_OK;
        }
    }
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        denseObject<Op>(a.object(k), b.object(k), d.object(k), shape);
        return ZELM_OK;
    };
    return forEachObject(count, one, a, b, d);
}

// ---- invariant operands

// One object among arrays: its start is its own, not that of an array.
template <typename Operand>
constexpr bool kIsInvariant = requires(const Operand &o) {
    o.rowStart(0u);
};

// Whether nothing that the call writes lies in an invariant, so that held or read anew makes no difference.
template <typename Operand, typename D, typename Shape>
ZELM_INLINE bool isOutOfReach(const Operand &operand, const D &d, Shape shape, std::uint32_t count) {
    if constexpr (!kIsInvariant<Operand>) {
        return true;
    } else if constexpr (D::isList) {
        return false;
    } else {
        const std::uint32_t rows = kIsTransposed<Operand> ? shape.columns() : shape.rows();
        const std::uint32_t columns = kIsTransposed<Operand> ? shape.rows() : shape.columns();
        const Range source = rangeOfObject(operand, rows, columns);
        const Range target = rangeOf(d, shape.rows(), shape.columns(), count);
        return count <= kMostObjectsInRange && isKnown(source) && isKnown(target) &&
               areDisjoint(source, target);
    }
}

template <typename Shape, typename Object>
ZELM_INLINE auto hold(const Object &invariant) {
    using T = typename Object::Element;
    if constexpr (Shape::rows() == 1)
        return HeldVector<T, Shape::columns()>(invariant);
    else
        return HeldMatrix<T, Shape::rows(), Shape::columns()>(invariant);
}

// Held: the invariant is read once, before the first object. Anew: it is read for every object.
enum class Invariant { Held, ReadAnew };

} // namespace zelm::elementwise
