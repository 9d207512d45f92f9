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
    // The element j of row i, where `at` is that of number `past`.
    ZELM_INLINE T element(unsigned, unsigned j, unsigned past) const {
        return load<T>(at + (j - past) * step);
    }
    ZELM_INLINE T elementAt(Address distance) const { return load<T>(at + distance); }
    ZELM_INLINE void next() { at = asItIs(at + toNext); }
    ZELM_INLINE void skip(Address distance) { at = asItIs(at + distance); }
    ZELM_INLINE void forward(unsigned elements) { at = asItIs(at + elements * step); }
    // With few registers no address that an instruction can form, two steps on too, may stay in one.
    ZELM_INLINE void forgetAddresses() { at = asItIs(at), step = asItIs(step); }
};

template <typename T>
struct ScaledRows : Rows<T> {
    T factor;
    ZELM_INLINE T element(unsigned i, unsigned j, unsigned past) const {
        return Rows<T>::element(i, j, past) * factor;
    }
    ZELM_INLINE T elementAt(Address distance) const { return Rows<T>::elementAt(distance) * factor; }
};

struct Unmoved {
    static constexpr void next() {}
    static constexpr Address step = 0;
    static constexpr void skip(Address) {}
    static constexpr void forward(unsigned) {}
    static constexpr void forgetAddresses() {}
};

template <typename T>
struct ConstantRows : Unmoved {
    T value;
    ZELM_INLINE explicit ConstantRows(T v) : value(v) {}
    ZELM_INLINE T element(unsigned, unsigned, unsigned) const { return value; }
    ZELM_INLINE T elementAt(Address) const { return value; }
};

template <typename Held>
struct HeldRows : Unmoved {
    const Held &held;
    ZELM_INLINE explicit HeldRows(const Held &h) : held(h) {}
    ZELM_INLINE auto element(unsigned i, unsigned j, unsigned) const { return held.get(i, j, 0); }
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

// How many elements of a row of fixed length `at` passes: instructions form addresses up to two steps on.
template <unsigned columns>
constexpr unsigned kPassed = columns > 3 ? (columns - 2) / 2 * 2 : 0;

// ---- one row, or as many as are known

template <typename Op, unsigned rows, unsigned columns, bool inPlace = false, typename A, typename B,
          typename T>
ZELM_INLINE void fixedRows(A &a, B &b, Rows<T> &d) {
    const auto all = [&](auto change) ZELM_INLINE_LAMBDA { change(a), change(b), change(d); };
    ZELM_UNROLL
    for (unsigned i = 0; i < rows; ++i) {
        if (i != 0)
            all([](auto &operand) ZELM_INLINE_LAMBDA { operand.next(); });
        unsigned past = 0;
        ZELM_UNROLL
        for (unsigned j = 0; j < columns; ++j) {
            if (inPlace && past < kPassed<columns> && j - past == 2) {
                all([](auto &operand) ZELM_INLINE_LAMBDA { operand.forward(2); });
                past = j;
            }
            if constexpr (inPlace)
                all([](auto &operand) ZELM_INLINE_LAMBDA { operand.forgetAddresses(); });
            store(d.at + (j - past) * d.step,
                  Op::template apply<T>(a.element(i, j, past), b.element(i, j, past)));
        }
    }
}

// How far the elements of a group, and the group behind it, lie from its first. Taken as they are: the
// compiler would form each address from the one before it.
template <unsigned number>
struct Distances {
    Address of[number + 1];
    ZELM_INLINE explicit Distances(Address step) : of{0, step} {
        ZELM_UNROLL
        for (unsigned j = 2; j <= number; ++j)
            of[j] = asItIs(j * step);
    }
};

// Of any length, `perRound` elements a round of the loop and a group after the other.
template <typename Op, unsigned group = 1, unsigned perRound = 4, typename T, typename A, typename B>
ZELM_INLINE void elementsOfRow(A a, B b, Rows<T> d, Address length) {
    const Distances<group> first(a.step), second(b.step), result(d.step);
    const auto elements = [&](unsigned number) ZELM_INLINE_LAMBDA {
        ZELM_UNROLL
        for (unsigned j = 0; j < number; ++j)
            store(d.at + result.of[j],
                  Op::template apply<T>(a.elementAt(first.of[j]), b.elementAt(second.of[j])));
        a.skip(first.of[number]), b.skip(second.of[number]), d.skip(result.of[number]);
    };
    const auto round = [&](unsigned number) ZELM_INLINE_LAMBDA {
        ZELM_UNROLL
        for (unsigned j = 0; j < number; j += group)
            elements(group);
    };
    for (; length >= perRound; length -= perRound)
        round(perRound);
    if (perRound > 4 && (length & 4) != 0)
        round(4);
    for (length %= 4; length != 0; --length)
        elements(1);
}

// Of an array, in groups as there are registers for their distances. Where one source moves, a loop of fewer
// than eight elements a round takes up to twice as long where it begins at a place that suits the processor
// badly; two take as long as their loads.
template <typename Op, typename T, typename A, typename B>
ZELM_INLINE void elementsOfArray(const A &a, const B &b, const Rows<T> &d, Address length) {
    constexpr bool bothMove = !std::is_base_of_v<Unmoved, A> && !std::is_base_of_v<Unmoved, B>;
    constexpr unsigned least = kHasFewRegisters ? 1 : 2;
    elementsOfRow<Op, bothMove ? least : 2 * least, bothMove ? 4 : 8>(a, b, d, length);
}

// The same as a real function, which has all registers for it. Its status, always the same, lets callers end
// with it.
template <typename Op, typename A, typename B, typename T>
ZELM_NOINLINE ZelmStatus stridedRun(A a, B b, Rows<T> d, Address length) {
    elementsOfArray<Op>(a, b, d, length);
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
        if constexpr (Shape::isFixed)
            fixedRows<Op, Shape::rows(), Shape::columns()>(first, second, result);
        else
            for (std::uint32_t i = shape.rows(); i != 0; --i, first.next(), second.next(), result.next())
                elementsOfRow<Op>(first, second, result, shape.columns());
    }
}

// ---- the objects of an array, where registers are few

// The rows of an array's objects of fixed shape. Each address follows from the one before it: nothing else is
// held.
template <typename Operand, typename Shape>
struct RowsOfAll {
    static constexpr bool isArray = requires(const Operand &o) { o.elemStride; };
    const Operand &operand;
    decltype(rowsOf(std::declval<const Operand &>().object(0))) rows;
    Address toNext = 0; // from the last row that was used to the next object's first
    ZELM_INLINE explicit RowsOfAll(const Operand &o) : operand(o), rows(rowsOf(o.object(0))) {
        if constexpr (isArray) {
            const Address passed = kPassed<Shape::columns()> * rows.step;
            rows.toNext -= passed;
            if constexpr (!Operand::isList)
                toNext = o.objStride - (Shape::rows() - 1) * o.rowStride - passed;
        }
    }
    ZELM_INLINE void enter(std::uint32_t k) {
        if constexpr (Operand::isList)
            rows.at = operand.objectStart(k);
    }
    ZELM_INLINE void leave() {
        if constexpr (isArray && !Operand::isList)
            rows.at += toNext;
    }
};

} // namespace zelm::elementwise
