// Addition and subtraction of vectors, of arrays of vectors, and of vectors and constants.
#pragma once

#include "elementwise/run.h"
#include "frame/objects.h"

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

// ---- adjacent elements: the standard and L layouts

template <typename T>
ZELM_INLINE Stream<T> input(const Dense<const T> &vector) {
    return {vector.start};
}

template <typename T>
ZELM_INLINE Same<T> input(const Constant<T> &constant) {
    return {constant.value};
}

template <typename T, unsigned N>
ZELM_INLINE const Held<T, N> &input(const Held<T, N> &held) {
    return held;
}

template <typename Op, typename A, typename B, typename T, typename Size>
ZELM_INLINE void denseObject(const A &a, const B &b, const Dense<T> &d, Size size) {
    if constexpr (Size::fixed != 0)
        shortRun<Op, T, Size::fixed>(a, b, d.start);
    else
        run<Op, T>(a, b, d.start, size.value());
}

// Whether an operand can be part of one run over all objects: they lie without a gap, or it is the same for
// all. An invariant vector that is read anew for every object can't.
template <typename T>
ZELM_INLINE bool isGapless(const DenseArray<T> &array, Address objectBytes) {
    return array.objStride == objectBytes;
}

template <typename T>
constexpr bool isGapless(const Constant<T> &, Address) {
    return true;
}

template <typename T, unsigned N>
constexpr bool isGapless(const Held<T, N> &, Address) {
    return true;
}

template <typename T>
constexpr bool isGapless(const Dense<T> &, Address) {
    return false;
}

template <typename Op, typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus denseArray(const A &a, const B &b, const D &d, Size size, std::uint32_t count) {
    if constexpr (!D::isList) {
        using T = typename D::Element;
        const Address objectBytes = Address{size.value()} * sizeof(T);
        if (isGapless(a, objectBytes) && isGapless(b, objectBytes) && isGapless(d, objectBytes)) {
            run<Op, T>(input(a.object(0)), input(b.object(0)), d.start, Address{count} * size.value());
            return ZELM_OK;
        }
    }
    const auto one = [&](std::uint32_t k) {
        denseObject<Op>(input(a.object(k)), input(b.object(k)), d.object(k), size);
        return ZELM_OK;
    };
    return forEachObject(count, one, a, b, d);
}

// ---- one pointer per position: the P layout

template <typename T>
ZELM_INLINE Stream<T> inputAtPosition(const PackedTableArray<const T> &array, std::uint32_t j) {
    return {array.object(0).position(j)};
}

template <typename T>
ZELM_INLINE Same<T> inputAtPosition(const Table<const T> &vector, std::uint32_t j) {
    return {vector.get(j)};
}

template <typename T>
ZELM_INLINE Same<T> inputAtPosition(const Constant<T> &constant, std::uint32_t) {
    return {constant.value};
}

ZELM_INLINE bool areDisjoint(Address a, Address b, Address bytes) {
    return a - b >= bytes && b - a >= bytes;
}

// Whether storing the `bytes` bytes at `to`, the results of position j, changes what other positions read. In
// the same position a run gives what the loop over objects gives, however the two overlap.
template <typename T>
ZELM_INLINE bool touches(const PackedTableArray<T> &array, Address to, std::uint32_t j, std::uint32_t length,
                         Address bytes) {
    for (std::uint32_t other = 0; other < length; ++other)
        if (other != j && !areDisjoint(array.object(0).position(other), to, bytes))
            return true;
    return false;
}

template <typename T>
ZELM_INLINE bool touches(const Table<T> &vector, Address to, std::uint32_t, std::uint32_t length,
                         Address bytes) {
    for (std::uint32_t other = 0; other < length; ++other)
        if (!areDisjoint(vector.position(other), to, bytes))
            return true;
    return false;
}

template <typename T>
constexpr bool touches(const Constant<T> &, Address, std::uint32_t, std::uint32_t, Address) {
    return false;
}

// From how many objects on a run per position is worth its overlap test, which grows with the square of the
// length.
constexpr std::uint32_t kRunPerPositionCount = 16;
constexpr std::uint32_t kRunPerPositionLength = 16;

template <typename A, typename B, typename T>
bool runsPerPosition(const A &a, const B &b, const PackedTableArray<T> &d, std::uint32_t length,
                     std::uint32_t count) {
    if (count < kRunPerPositionCount || length > kRunPerPositionLength)
        return false;
    const Address bytes = Address{count} * sizeof(T);
    for (std::uint32_t j = 0; j < length; ++j) {
        const Address to = d.object(0).position(j);
        if (touches(a, to, j, length, bytes) || touches(b, to, j, length, bytes) ||
            touches(d, to, j, length, bytes))
            return false;
    }
    return true;
}

template <typename Op, typename A, typename B, typename T, typename Size>
ZELM_INLINE bool runPerPosition(const A &a, const B &b, const PackedTableArray<T> &d, Size size,
                                std::uint32_t count) {
    if (!runsPerPosition(a, b, d, size.value(), count))
        return false;
    for (std::uint32_t j = 0; j < size.value(); ++j)
        run<Op, T>(inputAtPosition(a, j), inputAtPosition(b, j), d.object(0).position(j), count);
    return true;
}

// ---- any layout, one object at a time

template <typename Op, typename A, typename B, typename D, typename Size>
ZELM_INLINE void plainObject(const A &a, const B &b, const D &d, Size size) {
    whileTrue(
        size, [&](std::uint32_t j) __attribute__((always_inline)) {
            d.set(j, Op::template apply<typename D::Element>(a.get(j), b.get(j)));
            return true;
        });
}

template <typename Op, typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus plainArray(const A &a, const B &b, const D &d, Size size, std::uint32_t count) {
    const auto one = [&](std::uint32_t k) {
        plainObject<Op>(a.object(k), b.object(k), d.object(k), size);
        return ZELM_OK;
    };
    return forEachObject(count, one, a, b, d);
}

// ---- which of these serves a layout

template <typename Op, typename A, typename B, typename T, typename Size>
ZELM_INLINE ZelmStatus objects(const A &a, const B &b, const DenseArray<T> &d, Size size,
                               std::uint32_t count) {
    return denseArray<Op>(a, b, d, size, count);
}

template <typename Op, typename A, typename B, typename T, typename Size>
ZELM_INLINE ZelmStatus objects(const A &a, const B &b, const DenseList<T> &d, Size size,
                               std::uint32_t count) {
    return denseArray<Op>(a, b, d, size, count);
}

template <typename Op, typename A, typename B, typename T, typename Size>
ZELM_INLINE ZelmStatus objects(const A &a, const B &b, const PackedTableArray<T> &d, Size size,
                               std::uint32_t count) {
    return runPerPosition<Op>(a, b, d, size, count) ? ZELM_OK : plainArray<Op>(a, b, d, size, count);
}

template <typename Op, typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus objects(const A &a, const B &b, const D &d, Size size, std::uint32_t count) {
    return plainArray<Op>(a, b, d, size, count);
}

template <typename Op, typename A, typename B, typename T, typename Size>
ZELM_INLINE ZelmStatus object(const A &a, const B &b, const Dense<T> &d, Size size) {
    denseObject<Op>(input(a), input(b), d, size);
    return ZELM_OK;
}

template <typename Op, typename A, typename B, typename T, typename Size>
ZELM_INLINE ZelmStatus object(const A &a, const B &b, const Strided<T> &d, Size size) {
    plainObject<Op>(a, b, d, size);
    return ZELM_OK;
}

template <typename Op, typename A, typename B, typename T, typename Size>
ZELM_INLINE ZelmStatus object(const A &a, const B &b, const Table<T> &d, Size size) {
    const bool complete = whileTrue(
        size, [&](std::uint32_t j) __attribute__((always_inline)) {
            if (a.elementIsNull(j) || b.elementIsNull(j) || d.elementIsNull(j))
                return false;
            d.set(j, Op::template apply<T>(a.get(j), b.get(j)));
            return true;
        });
    return complete ? ZELM_OK : ZELM_ERR_NULL_PTR;
}

// ---- the exported rows. The operands stand in the order of the formula: d = a op b.

template <typename Op, typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus vectorSingle(const A &a, const B &b, const D &d, Size size) {
    if (ZelmStatus status = checkSingle(size.isZero(), a, b, d); status != kProceed)
        return status;
    return object<Op>(a, b, d, size);
}

template <unsigned N, typename T>
ZELM_INLINE Held<T, N> hold(const Dense<const T> &invariant) {
    return Held<T, N>(invariant);
}

template <unsigned N, typename A>
ZELM_INLINE const A &hold(const A &operand) {
    return operand;
}

// An invariant vector is held in the fixed-size standard and L forms: only there is it a Dense operand of a
// fixed size. In all other forms it is read anew for every object.
template <typename Op, typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus vectorArray(const A &a, const B &b, const D &d, Size size, std::uint32_t count) {
    const std::uint32_t n = size.value();
    if (ZelmStatus status = checkArray(size.isZero(), count, tested(a, n), tested(b, n), tested(d, n));
        status != kProceed)
        return status;
    if constexpr (Size::fixed != 0)
        return objects<Op>(hold<Size::fixed>(a), hold<Size::fixed>(b), d, size, count);
    else
        return objects<Op>(a, b, d, size, count);
}

} // namespace zelm::elementwise

#include "elementwise/departures.h"
