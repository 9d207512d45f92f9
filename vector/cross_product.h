// Cross products of 3-vectors.
#pragma once

#include "frame/apart.h"
#include "vector/results.h"

namespace zelm::vector {

// The definition, on elements or packs.
template <typename V>
ZELM_INLINE void crossOf(const V (&a)[3], const V (&b)[3], V (&result)[3]) {
    result[0] = a[1] * b[2] - a[2] * b[1];
    result[1] = a[2] * b[0] - a[0] * b[2];
    result[2] = a[0] * b[1] - a[1] * b[0];
}

// Both vectors are read before the result is stored, so that dst may be a source.
template <typename A, typename B, typename D>
ZELM_INLINE void crossReadingFirst(const A &a, const B &b, const D &d) {
    using T = typename D::Element;
    const T first[3] = {a.get(0), a.get(1), a.get(2)}, second[3] = {b.get(0), b.get(1), b.get(2)};
    T result[3];
    crossOf(first, second, result);
    for (unsigned j = 0; j < 3; ++j)
        d.set(j, result[j]);
}

// Each line reads what it needs when the lines before it are stored.
template <typename A, typename B, typename D>
ZELM_INLINE void crossLineByLine(const A &a, const B &b, const D &d) {
    d.set(0, a.get(1) * b.get(2) - a.get(2) * b.get(1));
    d.set(1, a.get(2) * b.get(0) - a.get(0) * b.get(2));
    d.set(2, a.get(0) * b.get(1) - a.get(1) * b.get(0));
}

// An invariant vector beside its negative, each element formed once as 0 - x ahead of the objects. A line is
// then the sum of two products, which differs from the definition in the sign of zeros only.
template <typename T>
struct WithNegative {
    T element[3], negative[3];
    template <typename S>
    ZELM_INLINE explicit WithNegative(const S &s) {
        for (unsigned j = 0; j < 3; ++j) {
            element[j] = s.get(j);
            negative[j] = T{0} - element[j];
        }
    }
};

template <typename A, typename T, typename D>
ZELM_INLINE void crossLineByLine(const A &a, const WithNegative<T> &b, const D &d) {
    d.set(0, a.get(1) * b.element[2] + b.negative[1] * a.get(2));
    d.set(1, a.get(2) * b.element[0] + b.negative[2] * a.get(0));
    d.set(2, a.get(0) * b.element[1] + b.negative[0] * a.get(1));
}

template <typename T, typename B, typename D>
ZELM_INLINE void crossLineByLine(const WithNegative<T> &a, const B &b, const D &d) {
    d.set(0, a.element[1] * b.get(2) + a.negative[2] * b.get(1));
    d.set(1, a.element[2] * b.get(0) + a.negative[0] * b.get(2));
    d.set(2, a.element[0] * b.get(1) + a.negative[1] * b.get(0));
}

template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus crossSingle(const A &a, const B &b, const D &d, FixedShape<1, 3>) {
    if (ZelmStatus status = checkSingleWhole(false, tested(a, 3), tested(b, 3), tested(d, 3));
        status != kProceed)
        return status;
    if constexpr (D::isDense)
        crossReadingFirst(a, b, d);
    else
        crossLineByLine(a, b, d);
    return ZELM_OK;
}

// An array or an invariant as the lines read it.
template <typename S>
ZELM_INLINE auto asLinesRead(const S &s) {
    if constexpr (kIsArray<S>)
        return s;
    else
        return WithNegative<typename S::Element>(s);
}
template <typename S>
ZELM_INLINE auto objectOf(const S &s, std::uint32_t k) {
    return s.object(k);
}
template <typename T>
ZELM_INLINE const WithNegative<T> &objectOf(const WithNegative<T> &s, std::uint32_t) {
    return s;
}

// The vectors of a group beside their negatives, where the formula has them.
template <typename V>
struct CrossFactors {
    V element[3], negative[3];
};
template <typename V, typename S>
ZELM_INLINE CrossFactors<V> factorsOf(const S &s, std::uint32_t k) {
    CrossFactors<V> f;
    loadRow<3>(s, k, 0, f.element);
    return f;
}
template <typename V, typename T>
ZELM_INLINE CrossFactors<V> factorsOf(const WithNegative<T> &s, std::uint32_t) {
    CrossFactors<V> f;
    ZELM_UNROLL
    for (unsigned j = 0; j < 3; ++j) {
        f.element[j] = spread<V>(s.element[j]);
        f.negative[j] = spread<V>(s.negative[j]);
    }
    return f;
}

template <typename S>
constexpr bool kHasNegative = false;
template <typename T>
constexpr bool kHasNegative<const WithNegative<T>> = true;

// The lines on the packs of a group.
template <bool negativeA, bool negativeB, typename V>
ZELM_INLINE void crossLinesOf(const CrossFactors<V> &a, const CrossFactors<V> &b, V (&result)[3]) {
    ZELM_UNROLL
    for (unsigned j = 0; j < 3; ++j) {
        const unsigned p = (j + 1) % 3, q = (j + 2) % 3;
        if constexpr (negativeB)
            result[j] = a.element[p] * b.element[q] + b.negative[p] * a.element[q];
        else if constexpr (negativeA)
            result[j] = a.element[p] * b.element[q] + a.negative[q] * b.element[p];
        else
            result[j] = a.element[p] * b.element[q] - a.element[q] * b.element[p];
    }
}

// The standard and L forms.
template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus crossDense(const A &a, const B &b, const D &d, std::uint32_t count) {
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        crossReadingFirst(a.object(k), b.object(k), d.object(k));
        return ZELM_OK;
    };
    // Of a list's vectors the null tests take most of the time.
    if constexpr (D::isList) {
        return forEachObject(count, one, a, b, d);
    } else {
        const auto run = [&](const auto &first, const auto &second, const auto &result) ZELM_INLINE_LAMBDA {
            const Vectors<3, std::remove_cvref_t<decltype(first)>> firsts(first);
            const Vectors<3, std::remove_cvref_t<decltype(second)>> seconds(second);
            const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
                typename decltype(pack)::Pack x[3], y[3], lines[3];
                firsts.load(k, x);
                seconds.load(k, y);
                crossOf(x, y, lines);
                storeRow<3>(result, k, 0, lines);
                return true;
            };
            return forEachInGroups<kShortKernels>(count, NoBuffer(), group, one, writes(d, 1, 3),
                                                  reads(a, 1, 3, InPlace::Yes), reads(b, 1, 3, InPlace::Yes));
        };
        return withThrees<3>(run, a, b, d);
    }
}

// Vectors of lists that aren't apart: out of the way of the loop over objects.
template <typename T>
ZELM_NOINLINE void crossOverlapping(Address a, Address aStep, Address b, Address bStep, Address d,
                                    Address dStep) {
    crossLineByLine(Strided<const T>(a, 0, aStep), Strided<const T>(b, 0, bStep), Strided<T>(d, 0, dStep));
}

// All other forms: a line reads what it needs when the lines before it are stored.
template <typename A, typename B, typename D>
ZELM_NOINLINE ZelmStatus crossByLines(A a, B b, D d, std::uint32_t count) {
    const auto first = asLinesRead(a);
    const auto second = asLinesRead(b);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        crossLineByLine(objectOf(first, k), objectOf(second, k), d.object(k));
        return ZELM_OK;
    };
    const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
        using V = typename decltype(pack)::Pack;
        V result[3];
        crossLinesOf<kHasNegative<decltype(first)>, kHasNegative<decltype(second)>>(
            factorsOf<V>(first, k), factorsOf<V>(second, k), result);
        storeRow<3>(d, k, 0, result);
        return true;
    };
    if constexpr (D::isList && kIsArray<A> && kIsArray<B>) {
        // Where both vectors may be read ahead, six loads are saved.
        using T = typename D::Element;
        const ObjectsApart firstIsApart(a, 1, 3, d, 1, 3), secondIsApart(b, 1, 3, d, 1, 3);
        const auto oneOrGroup = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            const Address result = d.object(k).start;
            const Address from = a.object(k).start, other = b.object(k).start;
            if (firstIsApart(from, result) && secondIsApart(other, result))
                group(As<T>{}, k);
            else
                crossOverlapping<T>(from, a.elemStride, other, b.elemStride, result, d.elemStride);
            return ZELM_OK;
        };
        return forEachObject(count, oneOrGroup, a, b, d);
    } else if constexpr (D::isList) {
        return forEachObject(count, one, a, b, d);
    } else {
        return forEachInGroups<kVectorGrouping<D>>(count, NoBuffer(), group, one, writes(asGiven(d), 1, 3),
                                                   reads(asGiven(a), 1, 3), reads(asGiven(b), 1, 3));
    }
}

template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus crossArray(const A &a, const B &b, const D &d, FixedShape<1, 3>, std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, 3), tested(b, 3), tested(d, 3));
        status != kProceed)
        return status;
    if constexpr (kHasDenseObjects<D>)
        return crossDense(a, b, d, count);
    else
        return withPlainestVectors<true>(
            [&](const auto &...plain) ZELM_INLINE_LAMBDA { return crossByLines(plain..., count); }, a, b, d);
}

} // namespace zelm::vector
