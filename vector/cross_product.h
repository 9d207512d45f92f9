// Cross products of 3-vectors.
#pragma once

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

// Whether groups may store before later objects are read.
template <typename S, typename D>
ZELM_INLINE bool crossMisses(const S &s, const D &d, std::uint32_t count) {
    return (coincide(s, d) && D::isSideBySide == false) || isUntouched(s, 1, 3, d, 1, 3, count);
}

template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus crossArray(const A &a, const B &b, const D &d, FixedShape<1, 3>, std::uint32_t count) {
    using T = typename D::Element;
    if (ZelmStatus status = checkArray(false, count, tested(a, 3), tested(b, 3), tested(d, 3));
        status != kProceed)
        return status;
    const auto spreadNegative = [](const auto &s) {
        if constexpr (kIsOneVector<std::remove_cvref_t<decltype(s)>>)
            return WithNegative<T>(s);
        else
            return s;
    };
    constexpr bool isDense = decltype(d.object(0))::isDense;
    if constexpr (isDense) {
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            crossReadingFirst(a.object(k), b.object(k), d.object(k));
            return ZELM_OK;
        };
        if constexpr (!D::isList) {
            if (count >= kResultGroupsCount && count <= kMostObjectsInRange &&
                elementsAreApart(d, 1, 3, count) && crossMisses(a, d, count) && crossMisses(b, d, count)) {
                const VectorsOfGroup<3, A> firsts(a);
                const VectorsOfGroup<3, B> seconds(b);
                const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
                    Pack<T> first[3], second[3], result[3];
                    firsts.load(k, first);
                    seconds.load(k, second);
                    crossOf(first, second, result);
                    storeRow<3>(groupAt(d, k), 0, result);
                    return true;
                };
                return forEachGroup<kLanes<T>>(count, group, one, a, b, d);
            }
        }
        return forEachObject(count, one, a, b, d);
    } else {
        const auto first = spreadNegative(a);
        const auto second = spreadNegative(b);
        const auto objectOf = [](const auto &s, std::uint32_t k) {
            if constexpr (requires { s.negative; })
                return s;
            else
                return s.object(k);
        };
        const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
            crossLineByLine(objectOf(first, k), objectOf(second, k), d.object(k));
            return ZELM_OK;
        };
        return forEachObject(count, one, a, b, d);
    }
}

} // namespace zelm::vector
