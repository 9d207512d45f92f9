// Element-wise operations on elements with gaps: element by element in the order of the definition.
#pragma once

#include "elementwise/element_run.h"

namespace zelm::elementwise {

// Two steps a round where the number of steps isn't known.
#define ZELM_UNROLL_TWICE _Pragma("GCC unroll 2")

// An address that the compiler takes as it is. It would form the addresses of all elements of an object ahead
// of the loop over objects, which are more than it has registers.
ZELM_INLINE Address asItIs(Address address) {
    asm("" : "+r"(address));
    return address;
}

template <typename Operand>
constexpr bool kIsConstant = false;
template <typename T>
constexpr bool kIsConstant<Constant<T>> = true;

// A transposed operand with strides is another one with its strides exchanged, so that one instance serves
// both.
template <typename Operand>
ZELM_INLINE const Operand &asUsed(const Operand &operand) {
    return operand;
}
template <typename Stored>
ZELM_INLINE Stored asUsed(const Transposed<Stored> &stored) {
    Stored used = stored;
    used.rowStride = stored.elemStride;
    used.elemStride = stored.rowStride;
    return used;
}

// ---- the rows of an object as the operation uses them, one after the other

// Elements a step apart.
template <typename T>
struct Rows {
    Address at, step, toNext;
    ZELM_INLINE T element(unsigned, unsigned j) const { return load<T>(at + j * step); }
    ZELM_INLINE void next() { at = asItIs(at + toNext); }
    ZELM_INLINE Rows from(unsigned j) const { return {asItIs(at + j * step), step, toNext}; }
};

template <typename T>
struct ScaledRows : Rows<T> {
    T factor;
    ZELM_INLINE T element(unsigned i, unsigned j) const { return Rows<T>::element(i, j) * factor; }
    ZELM_INLINE ScaledRows from(unsigned j) const { return {Rows<T>::from(j), factor}; }
};

template <typename T>
struct ConstantRows {
    T value;
    ZELM_INLINE T element(unsigned, unsigned) const { return value; }
    static constexpr void next() {}
    ZELM_INLINE ConstantRows from(unsigned) const { return *this; }
};

template <typename Held>
struct HeldRows {
    const Held &held;
    ZELM_INLINE auto element(unsigned i, unsigned j) const { return held.get(i, j, 0); }
    static constexpr void next() {}
};

template <typename Object>
ZELM_INLINE auto rowsOf(const Object &object) {
    using T = typename Object::Element;
    if constexpr (kIsConstant<Object>) {
        return ConstantRows<T>{object.value};
    } else if constexpr (!requires { object.elemStride; }) {
        return HeldRows<Object>{object};
    } else {
        Rows<T> rows = {object.start, object.elemStride, object.rowStride};
        if constexpr (kIsTransposed<Object>)
            rows = {object.start, object.rowStride, object.elemStride};
        if constexpr (requires { object.factor; })
            return ScaledRows<T>{rows, object.factor};
        else
            return rows;
    }
}

// ---- one row

template <typename Op, typename T, unsigned N, typename A, typename B>
ZELM_INLINE void elements(const A &a, const B &b, const Rows<T> &d, unsigned i) {
    ZELM_UNROLL
    for (unsigned j = 0; j < N; ++j)
        store(d.at + j * d.step, Op::template apply<T>(a.element(i, j), b.element(i, j)));
}

// Whether three addresses and their steps take all registers that there are.
constexpr bool kHasFewRegisters = sizeof(Address) == 4;

// Of any length. Where there are registers, no address follows from the one before it: that would be a cycle
// an element.
template <typename Op, typename T, typename A, typename B>
ZELM_INLINE void elementsOfRow(A a, B b, Rows<T> d, Address length) {
    constexpr unsigned together = kHasFewRegisters ? 1 : 4;
    const auto step = [&]<unsigned number>(std::integral_constant<unsigned, number>) ZELM_INLINE_LAMBDA {
        if constexpr (number == 1) {
            elements<Op, T, 1>(a, b, d, 0);
        } else {
            elements<Op, T, 2>(a, b, d, 0);
            elements<Op, T, 2>(a.from(2), b.from(2), d.from(2), 0);
        }
        a = a.from(number), b = b.from(number), d = d.from(number);
    };
    for (; length >= 4; length -= 4) {
        ZELM_UNROLL
        for (unsigned j = 0; j < 4; j += together)
            step(std::integral_constant<unsigned, together>());
    }
    for (; length != 0; --length)
        step(std::integral_constant<unsigned, 1>());
}

// The same as a real function, which has all registers for it. Its status, always the same, lets callers end
// with it.
template <typename Op, typename A, typename B, typename T>
ZELM_NOINLINE ZelmStatus stridedRun(A a, B b, Rows<T> d, Address length) {
    elementsOfRow<Op>(a, b, d, length);
    return ZELM_OK;
}

// Whether all elements of an array lie at one distance from each other.
template <typename Operand, typename Shape>
ZELM_INLINE bool isOneRun(const Operand &operand, Shape shape) {
    if constexpr (kIsConstant<Operand>)
        return true;
    else if constexpr (requires { operand.objStride; })
        return (shape.rows() == 1 || operand.rowStride == shape.columns() * operand.elemStride) &&
               operand.objStride == shape.elements() * operand.elemStride;
    else
        return false;
}

// The number of elements of an array, 0 if it isn't a number.
template <typename Shape>
ZELM_INLINE Address elementsOfAll(Shape shape, std::uint32_t count) {
    Address elements, all;
    return __builtin_mul_overflow(Address{shape.rows()}, Address{shape.columns()}, &elements) ||
                   __builtin_mul_overflow(elements, Address{count}, &all)
               ? 0
               : all;
}

// ---- one object

// A vector of any length, which needs no loop over rows.
struct RunTimeRow {
    static constexpr bool isFixed = false;
    std::uint32_t length;
    static constexpr std::uint32_t rows() { return 1; }
    ZELM_INLINE std::uint32_t columns() const { return length; }
};

// With rows one after the other where strides make that worth it, else place by place.
template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_INLINE void objectInOrder(const A &a, const B &b, const D &d, Shape shape) {
    using T = typename D::Element;
    if constexpr (D::isTable || D::isDense || (!Shape::isFixed && !kHasFewRegisters)) {
        whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
            d.set(i, j, shape.columns(), Op::template apply<T>(value(a, i, j, shape), value(b, i, j, shape)));
            return true;
        });
    } else {
        auto first = rowsOf(a);
        auto second = rowsOf(b);
        Rows<T> result = rowsOf(d);
        const auto next = [&]() ZELM_INLINE_LAMBDA { first.next(), second.next(), result.next(); };
        if constexpr (Shape::isFixed) {
            constexpr unsigned rows = Shape::rows(), columns = Shape::columns();
            elements<Op, T, columns>(first, second, result, 0);
            ZELM_UNROLL
            for (unsigned i = 1; i < rows; ++i) {
                next();
                elements<Op, T, columns>(first, second, result, i);
            }
        } else {
            for (std::uint32_t i = shape.rows(); i != 0; --i, next())
                elementsOfRow<Op>(first, second, result, shape.columns());
        }
    }
}

} // namespace zelm::elementwise
