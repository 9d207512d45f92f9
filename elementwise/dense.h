// Element-wise operations in the standard and L layouts, where the elements of a row are adjacent.
#pragma once

#include "elementwise/invariant.h"
#include "elementwise/transposed.h"

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
ZELM_INLINE auto inputOf(const Transposed<Dense<const T>> &object) {
    if constexpr (Shape::rows() == 4 && Shape::columns() == 4)
        return TransposedFour<T>(object);
    else
        return TransposedStream<T, Shape::columns()>{object};
}

// The same for 3x3 where no operand has gaps between its rows.
template <typename Object>
ZELM_INLINE decltype(auto) inputOfNine(const Object &object) {
    if constexpr (kIsTransposed<Object>)
        return TransposedNine<typename Object::Element>(object);
    else
        return inputRow(object, 0);
}

template <typename A, typename B, typename T, typename Shape>
constexpr bool kMayBeNine = std::is_same_v<Shape, FixedShape<3, 3>> &&kHasPackOfEight<T> &&
                            (kIsTransposed<A> || kIsTransposed<B>);

template <typename Object>
ZELM_INLINE bool isNineWhereTransposed(const Object &object) {
    if constexpr (kIsTransposed<Object>)
        return object.rowStride == 3 * sizeof(typename Object::Element);
    else
        return true;
}

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

template <typename Op, bool asTwo = true, typename A, typename B, typename T, typename Shape>
ZELM_INLINE void gaplessObject(const A &a, const B &b, const Dense<T> &d, Shape shape) {
    if constexpr (kMayBeNine<A, B, T, Shape>)
        if (isNineWhereTransposed(a) && isNineWhereTransposed(b))
            return shortRun<Op, T, 9>(inputOfNine(a), inputOfNine(b), d.start);
    if constexpr (Shape::isFixed)
        shortRun<Op, T, shape.elements()>(inputOf<Shape>(a), inputOf<Shape>(b), d.start);
    else
        run<Op, T, asTwo>(inputRow(a, 0), inputRow(b, 0), d.start, shape.elements());
}

template <typename Op, typename A, typename B, typename T, typename Shape>
ZELM_INLINE void objectByRows(const A &a, const B &b, const Dense<T> &d, Shape shape) {
    if constexpr (kIsTransposed<A> || kIsTransposed<B>) {
        objectInOrder<Op>(a, b, d, shape);
    } else {
        for (std::uint32_t i = 0; i < shape.rows(); ++i) {
            if constexpr (Shape::isFixed)
                shortRun<Op, T, shape.columns()>(inputRow(a, i), inputRow(b, i), d.rowStart(i));
            else
                run<Op, T>(inputRow(a, i), inputRow(b, i), d.rowStart(i), shape.columns());
        }
    }
}

// Sums of fixed size may read ahead of what they write; scaling reads each element just before it writes one.
template <typename A, typename B, typename Shape>
constexpr bool kRunsGapless = (!kIsTransposed<A> && !kIsTransposed<B>) || (Shape::isFixed && !kIsConstant<B>);

template <typename A, typename B, typename D, typename Shape>
ZELM_INLINE bool areGapless(const A &a, const B &b, const D &d, Shape shape) {
    return kRunsGapless<A, B, Shape> && rowsAreGapless(a, shape) && rowsAreGapless(b, shape) &&
           rowsAreGapless(d, shape);
}

// A single object of fixed shape whose rows don't follow each other: it stands apart, and callers end with
// it.
template <typename Op, typename Shape, typename A, typename B, typename T>
ZELM_NOINLINE ZelmStatus singleByRows(A a, B b, Dense<T> d) {
    objectByRows<Op>(a, b, d, Shape{});
    return ZELM_OK;
}

template <typename Op, typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus denseObject(const A &a, const B &b, const Dense<T> &d, Shape shape) {
    if constexpr (!Shape::isFixed) {
        if (areGapless(a, b, d, shape))
            gaplessObject<Op>(a, b, d, shape);
        else
            objectByRows<Op>(a, b, d, shape);
        return ZELM_OK;
    } else if constexpr (!kRunsGapless<A, B, Shape>) {
        objectByRows<Op>(a, b, d, shape);
        return ZELM_OK;
    } else {
        // Where two transposed operands are read one by one on 32-bit x86, the other order is faster.
        constexpr double surely = kEndsWithCalls || !kIsTransposed<A> || !kIsTransposed<B> ? 1 : 0.5;
        const auto hasGap = [&](const auto &operand) ZELM_INLINE_LAMBDA {
            return __builtin_expect_with_probability(!rowsAreGapless(operand, shape), 0, surely);
        };
        if (hasGap(a) || hasGap(b) || hasGap(d)) {
            if constexpr (kEndsWithCalls)
                return singleByRows<Op, Shape>(a, b, d);
            objectByRows<Op>(a, b, d, shape);
            return ZELM_OK;
        }
        if constexpr (kMayBeNine<A, B, T, Shape>)
            if (isNineWhereTransposed(a) && isNineWhereTransposed(b))
                return singleRun<Op, T, 9>(inputOfNine(a), inputOfNine(b), d.start);
        return singleRun<Op, T, shape.elements()>(inputOf<Shape>(a), inputOf<Shape>(b), d.start);
    }
}

// ---- arrays

template <typename Op, typename A, typename B, typename D, typename Shape, typename Watching = Unwatched>
ZELM_INLINE ZelmStatus denseArray(const A &a, const B &b, const D &d, Shape shape, std::uint32_t count,
                                  Watching &&watch = {}) {
    using T = typename D::Element;
    if constexpr (!D::isList && !kIsTransposed<A> && !kIsTransposed<B>) {
        constexpr bool holdsMatrix = kIsHeldMatrix<A> || kIsHeldMatrix<B>;
        // Expected, so that the run stands where the function begins.
        if (__builtin_expect((!holdsMatrix || count >= kHeldMatrixCount) && isGapless(a, shape) &&
                                 isGapless(b, shape) && isGapless(d, shape),
                             1))
            return longRun<Op, T>(inputOfAll(a), inputOfAll(b), d.start, count * shape.elements());
    }
    const auto objects = [&](auto compute) ZELM_INLINE_LAMBDA {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            const Dense<T> result = d.object(k);
            if (watch.isReached(k, result.start))
                return kReached;
            compute(a.object(k), b.object(k), result);
            return ZELM_OK;
        };
        return forEach<Shape>(count, one, a, b, d);
    };
    // Where registers are few, two packs in place of a loop are worth their test in lists of one source.
    constexpr bool asTwo = !kHasFewRegisters || (D::isList && !(A::isList && B::isList));
    // Of 64-bit float that gains nothing in arrays on 32-bit x86, nor where one permutation takes two packs.
    constexpr bool isCombined = kIsCombinedTransposed<A, B, Shape> &&
                                (sizeof(T) == 4 || (kHasFewRegisters ? D::isList : kWidestBytes < 64));
    const auto gapless = [&](const auto &first, const auto &second, const Dense<T> &result)
                             ZELM_INLINE_LAMBDA {
                                 if constexpr (isCombined)
                                     if (combinedTransposed<Op>(first, second, result))
                                         return;
                                 gaplessObject<Op, asTwo>(first, second, result, shape);
                             };
    if constexpr (kRunsGapless<A, B, Shape>)
        if (areGapless(a, b, d, shape))
            return objects(gapless);
    return objects([&](const auto &first, const auto &second, const Dense<T> &result)
                       ZELM_INLINE_LAMBDA { objectByRows<Op>(first, second, result, shape); });
}

template <typename Op, Invariant reading, typename A, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus denseArrayWithInvariant(const A &a, const B &b, const D &d, Shape shape,
                                               std::uint32_t count) {
    const auto use =
        [&](const auto &first, const auto &second, const auto &result, auto &&watch)
            ZELM_INLINE_LAMBDA { return denseArray<Op>(first, second, result, shape, count, watch); };
    if constexpr (Shape::isFixed && (kIsInvariant<A> || kIsInvariant<B>)) {
        const auto held = [](const auto &invariant) ZELM_INLINE_LAMBDA { return hold<Shape>(invariant); };
        // With few registers a vector of whole packs is read as fast as it is held.
        constexpr bool isWholePacks =
            kHasFewRegisters && Shape::rows() == 1 && Shape::columns() % kLanes<typename D::Element> == 0;
        if constexpr (reading == Invariant::ReadAnew && D::isList && isWholePacks)
            return use(a, b, d, Unwatched{});
        else if constexpr (reading == Invariant::ReadAnew)
            return holdingWhilePossible<Op>(a, b, d, shape, count, held, use);
        else if constexpr (kIsInvariant<A>)
            return use(held(a), b, d, Unwatched{});
        else
            return use(a, held(b), d, Unwatched{});
    } else {
        return use(a, b, d, Unwatched{});
    }
}

} // namespace zelm::elementwise
