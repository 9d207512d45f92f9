// Element-wise operations on elements with gaps: element by element in the order of the definition.
#pragma once

#include "elementwise/run.h"

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

// Of any length. No address follows from the one before it: that would be a cycle an element.
template <typename Op, typename T, typename A, typename B>
ZELM_INLINE void elementsOfRow(A a, B b, Rows<T> d, Address length) {
    for (; length >= 4; length -= 4) {
        elements<Op, T, 2>(a, b, d, 0);
        elements<Op, T, 2>(a.from(2), b.from(2), d.from(2), 0);
        a = a.from(4), b = b.from(4), d = d.from(4);
    }
    for (; length != 0; --length) {
        elements<Op, T, 1>(a, b, d, 0);
        a = a.from(1), b = b.from(1), d = d.from(1);
    }
}

// ---- one object

// Without a loop and with rows one after the other where strides make that worth it, else place by place.
template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_INLINE void objectInOrder(const A &a, const B &b, const D &d, Shape shape) {
    using T = typename D::Element;
    if constexpr (D::isTable || D::isDense || !Shape::isFixed) {
        whileTrue(shape, [&](std::uint32_t i, std::uint32_t j) ZELM_INLINE_LAMBDA {
            d.set(i, j, shape.columns(), Op::template apply<T>(value(a, i, j, shape), value(b, i, j, shape)));
            return true;
        });
    } else {
        auto first = rowsOf(a);
        auto second = rowsOf(b);
        Rows<T> result = rowsOf(d);
        constexpr unsigned rows = Shape::rows(), columns = Shape::columns();
        elements<Op, T, columns>(first, second, result, 0);
        if constexpr (rows > 1) {
            ZELM_UNROLL
            for (unsigned i = 1; i < rows; ++i) {
                first.next(), second.next(), result.next();
                elements<Op, T, columns>(first, second, result, i);
            }
        }
    }
}

} // namespace zelm::elementwise
