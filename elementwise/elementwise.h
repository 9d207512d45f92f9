// The rows of this subsystem: d = a op b, element by element, for vectors, matrices, arrays of them and
// constants. The operands stand in the order of the formula.
#pragma once

#include "elementwise/dense.h"
#include "elementwise/per_position.h"
#include "frame/plainest.h"

namespace zelm::elementwise {

struct Addition {
    template <typename V>
    static ZELM_INLINE V apply(V a, V b) {
        return a + b;
    }
};

struct Subtraction {
    template <typename V>
    static ZELM_INLINE V apply(V a, V b) {
        return a - b;
    }
};

struct Multiplication {
    template <typename V>
    static ZELM_INLINE V apply(V a, V b) {
        return a * b;
    }
};

// ---- one object

template <typename Op, typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus object(const A &a, const B &b, const Dense<T> &d, Shape shape) {
    if constexpr (kIsCombinedTransposed<A, B, Shape>)
        if (combinedTransposed<Op>(a, b, d))
            return ZELM_OK;
    return denseObject<Op>(a, b, d, shape);
}

template <typename Op, typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus object(const A &a, const B &b, const Strided<T> &d, Shape shape) {
    objectInOrder<Op>(a, b, d, shape);
    return ZELM_OK;
}

template <typename Op, typename A, typename B, typename T, typename Shape>
ZELM_INLINE ZelmStatus object(const A &a, const B &b, const Table<T> &d, Shape shape) {
    const bool complete = whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
        if (d.elementIsNull(entryNumber(d, i, j, shape)) || a.elementIsNull(entryNumber(a, i, j, shape)) ||
            b.elementIsNull(entryNumber(b, i, j, shape)))
            return false;
        d.set(i, j, shape.columns(), Op::template apply<T>(value(a, i, j, shape), value(b, i, j, shape)));
        return true;
    });
    return complete ? ZELM_OK : ZELM_ERR_NULL_PTR;
}

template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus single(const A &a, const B &b, const D &d, Shape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), a, b, d); status != kProceed)
        return status;
    return object<Op>(a, b, d, shape);
}

// ---- arrays

// One reading for all calls in which it makes no difference, so that one instance serves them.
template <typename A, typename B, typename Shape>
constexpr Invariant readingOf(Invariant reading) {
    return Shape::isFixed && (kIsInvariant<A> || kIsInvariant<B>) ? reading : Invariant::Held;
}

// One instance serves the standard form and the forms with strides that turn out to be dense. Operands by
// value: nothing that is stored can lie in them.
template <typename Op, Invariant reading, typename A, typename B, typename D, typename Shape>
ZELM_NOINLINE ZelmStatus denseObjects(A a, B b, D d, Shape shape, std::uint32_t count) {
    return denseArrayWithInvariant<Op, reading>(a, b, d, shape, count);
}

// The layouts with strides whose operands turn out to be plainer ones read an invariant anew: it may be held
// where nothing is written in it. Transposed operands come as they are used.
template <typename Op, Invariant reading, typename A, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus stridedObjects(const A &a, const B &b, const D &d, Shape shape, std::uint32_t count) {
    if (isPlainer(a) && isPlainer(b) && isPlainer(d)) {
        const auto first = plainest(a);
        const auto second = plainest(b);
        const auto result = plainest(d);
        constexpr Invariant anew = readingOf<A, B, Shape>(Invariant::ReadAnew);
        if constexpr (anew == Invariant::Held || D::isList || reading == Invariant::ReadAnew)
            return denseObjects<Op, anew>(first, second, result, shape, count);
        else if (isOutOfReach(first, result, shape, count) && isOutOfReach(second, result, shape, count))
            return denseObjects<Op, reading>(first, second, result, shape, count);
    }
    if constexpr (Shape::isFixed && (kIsInvariant<A> || kIsInvariant<B>)) {
        const auto use = [&](const auto &first, const auto &second, const auto &result, auto &&watch)
                             ZELM_INLINE_LAMBDA {
                                 if constexpr (kHasFewRegisters)
                                     return sharedWhileHeld<Op>(first, second, result, shape, count, watch);
                                 else
                                     return objectsInOrder<Op>(first, second, result, shape, count, watch);
                             };
        const auto held = [](const auto &invariant)
                              ZELM_INLINE_LAMBDA { return holdElements<Shape>(invariant); };
        return holdingWhilePossible<Op>(a, b, d, shape, count, held, use);
    } else {
        // Where there are registers, little gains by a loop of its own.
        constexpr bool isOfTwo = !kIsConstant<A> && !kIsConstant<B>;
        if (!D::isList && (kHasFewRegisters || (isOfTwo && shape.rows() > 1)) && isOneRun(a, shape) &&
            isOneRun(b, shape) && isOneRun(d, shape))
            if (const Address length = elementsOfAll(shape, count); length != 0)
                return stridedRun<Op>(rowsOf(a.object(0)), rowsOf(b.object(0)), rowsOf(d.object(0)), length);
        if constexpr (kHasFewRegisters && !Shape::isFixed)
            if (shape.rows() == 1)
                return sharedObjects<Op>(a, b, d, RunTimeRow{shape.columns()}, count);
        if constexpr (kHasFewRegisters || (isOfTwo && Shape::isFixed))
            return sharedObjects<Op>(a, b, d, shape, count);
        else
            return objectsInOrder<Op>(a, b, d, shape, count);
    }
}

template <typename Op, Invariant reading, typename A, typename B, typename D, typename Shape>
ZELM_INLINE ZelmStatus objects(const A &a, const B &b, const D &d, Shape shape, std::uint32_t count) {
    if constexpr (D::isTable) {
        if (isPlainer(a) && isPlainer(b) && isPlainer(d) &&
            runPerPosition<Op>(plainest(a), plainest(b), plainest(d), shape, count))
            return ZELM_OK;
        const auto first = withObjectStride(a);
        const auto second = withObjectStride(b);
        const auto result = withObjectStride(d);
        // Between planes a stride apart one instance serves all sizes. Where there are registers, a few
        // planes of one source are better taken side by side.
        if ((kHasFewRegisters || shape.elements() > 4 || (!kIsConstant<A> && !kIsConstant<B>)) &&
            !isPlainer(d) &&
            runPerPosition<Op>(first, second, result, RunTimeShape{shape.rows(), shape.columns()}, count))
            return ZELM_OK;
        return sharedObjects<Op>(first, second, result, shape, count);
    } else if constexpr (kHasDenseObjects<D>) {
        return denseObjects<Op, readingOf<A, B, Shape>(reading)>(a, b, d, shape, count);
    } else {
        return stridedObjects<Op, reading>(asUsed(a), asUsed(b), d, shape, count);
    }
}

// Add and Sub: an invariant operand is held in the fixed-size standard and L forms, read anew in all others.
// Saxpy and LComb read it anew for every object in all forms.
template <typename Op, Invariant reading = Invariant::Held, typename A, typename B, typename D,
          typename Shape>
ZELM_INLINE ZelmStatus array(const A &a, const B &b, const D &d, Shape shape, std::uint32_t count) {
    const Address n = shape.elements();
    if (ZelmStatus status = checkArray(shape.isZero(), count, tested(a, n), tested(b, n), tested(d, n));
        status != kProceed)
        return status;
    return objects<Op, reading>(a, b, d, shape, count);
}

} // namespace zelm::elementwise
