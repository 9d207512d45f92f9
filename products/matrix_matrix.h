// Products of two matrices.
#pragma once

#include "frame/plainest.h"
#include "products/across.h"
#include "products/matrix_rows.h"
#include "products/run_time.h"
#include "products/whole_matrix.h"

namespace zelm::products {

// ---- one object of a fixed size, element by element

// Both sources may be overwritten while they are read: every element of dst reads them anew. Operands by
// value: by reference they would be stored for each object of a loop, whether this is called or not.
template <Sum order, unsigned N, typename A, typename B, typename D>
ZELM_NOINLINE void multiplyAnew(A a, B b, D d) {
    using T = typename D::Element;
    for (unsigned i = 0; i < N; ++i) {
        for (unsigned j = 0; j < N; ++j) {
            T products[N];
            for (unsigned t = 0; t < N; ++t)
                products[t] = used(a, i, t, N) * used(b, t, j, N);
            d.set(i, j, N, sumOf<order>(products));
        }
    }
}

// A matrix in locals, as it is used.
template <typename T, unsigned N>
struct HeldElements {
    T element[N][N];
    template <typename B>
    ZELM_INLINE explicit HeldElements(const B &b) {
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t) {
            ZELM_UNROLL
            for (unsigned j = 0; j < N; ++j)
                element[t][j] = used(b, t, j, N);
        }
    }
    ZELM_INLINE T get(std::uint32_t i, std::uint32_t j, std::uint32_t) const { return element[i][j]; }
};

// src2 is read ahead of the writes, and each row of src1 ahead of dst's.
template <Sum order, unsigned N, typename A, typename T, typename D>
ZELM_INLINE void multiplyHeld(const A &a, const HeldElements<T, N> &b, const D &d) {
    for (unsigned i = 0; i < N; ++i) {
        T row[N];
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t)
            row[t] = used(a, i, t, N);
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j) {
            T products[N];
            ZELM_UNROLL
            for (unsigned t = 0; t < N; ++t)
                products[t] = row[t] * b.element[t][j];
            d.set(i, j, N, sumOf<order>(products));
        }
    }
}

// ---- what a form holds of src2, and one product with it

template <typename T, unsigned N, bool dense>
struct RowsFor {
    using type = HeldRows<T, N>;
};
#if defined(__AVX2__)
template <typename T>
struct RowsFor<T, 4, true> {
    using type = HeldFours<T>;
};
#endif

template <unsigned N, typename D, typename B>
ZELM_INLINE auto holdSecond(const B &b) {
    using T = typename B::Element;
    // Elements with gaps make packs too where a row fills them.
    if constexpr (D::isDense || (!D::isTable && N == 4))
        return typename RowsFor<T, N, D::isDense>::type(b);
    else
        return HeldElements<T, N>(b);
}

template <Sum, unsigned N, typename A, typename Rows, typename D>
ZELM_INLINE void multiplyWith(const A &a, const Rows &held, const D &d) {
    multiplyRows(a, held, d);
}

template <Sum order, unsigned N, typename A, typename T, typename D>
ZELM_INLINE void multiplyWith(const A &a, const HeldElements<T, N> &held, const D &d) {
    multiplyHeld<order, N>(a, held, d);
}

// dst begins where a source begins: no other overlap has a defined result.
template <typename S, typename D>
ZELM_INLINE bool beginsAt(const S &s, const D &d) {
    return s.address(0, 0, 0) == d.address(0, 0, 0);
}

template <InPlaceOf inPlace, Sum order, unsigned N, typename A, typename B, typename D>
ZELM_INLINE void multiplyObject(const A &a, const B &b, const D &d) {
    if ((!inPlace.first && beginsAt(a, d)) || (!inPlace.second && beginsAt(b, d)))
        return multiplyAnew<order, N>(a, b, d);
    multiplyWith<order, N>(a, holdSecond<N, D>(b), d);
}

// The same where src2 serves many objects.
template <InPlaceOf inPlace, Sum order, unsigned N, typename A, typename B, typename Held, typename D>
ZELM_INLINE void multiplyByHeld(const A &a, const B &b, const Held &held, const D &d) {
    if (!inPlace.first && beginsAt(a, d))
        multiplyAnew<order, N>(a, b, d);
    else
        multiplyWith<order, N>(a, held, d);
}

// ---- single objects

template <typename D>
constexpr Form formOf() {
    if constexpr (D::isList)
        return requires(D d) {
            d.elemStride = 0;
        }
    ? Form::ListOfStrided : Form::List;
    else if constexpr (D::isTable) return kIsArray<D> && !D::isSideBySide ? Form::PS2 : Form::P;
    else return requires(D d) {
        d.elemStride = 0;
    }
    ? Form::S2 : Form::Standard;
}

template <typename A, typename B, typename D, unsigned N>
constexpr InPlaceOf kInPlace = inPlaceOf(formOf<D>(), kIsArray<D>, kIsArray<A>, kIsArray<B>, kIsTransposed<A>,
                                         kIsTransposed<B>, sizeof(typename D::Element) == 4, N);

template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus accumulateSingle(const A &a, const B &b, const D &d, Bounds bounds, Pitches pitches) {
    // Too small for packs, the tests take more than they gain.
    const bool isSmall = !kHasRows<B> && bounds.rows < kLeastTurned && bounds.columns < kLeastTurned;
    if constexpr (D::isTable) {
        if (isSmall || !tablesMiss(a, b, d, bounds, pitches))
            return accumulateTested(a, b, d, bounds, pitches);
        multiplyAsUsed(a, b, d, bounds, pitches);
        return ZELM_OK;
    } else {
        if (!isSmall && productIsApart(a, b, d, bounds, pitches))
            multiplyAsUsed(a, b, d, bounds, pitches);
        else
            accumulateMatrix(a, b, d, bounds, pitches);
        return ZELM_OK;
    }
}

template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus multiplySingle(const A &a, const B &b, const D &d, MatrixSizes sizes) {
    if (ZelmStatus status = checkSingle(isWrongSize<A, B>(sizes), a, b, d); status != kProceed)
        return status;
    return withPlainest(
        [&](const auto &...plain) ZELM_INLINE_LAMBDA {
            return accumulateSingle(plain..., boundsOf(sizes), pitchesOf<A, B>(sizes));
        },
        a, b, d);
}

template <typename A, typename B, typename D, unsigned N>
ZELM_INLINE ZelmStatus multiplySingle(const A &a, const B &b, const D &d, FixedSizes<N>) {
    if (ZelmStatus status = checkSingle(false, a, b, d); status != kProceed)
        return status;
    if constexpr (D::isTable)
        return accumulateTested<N>(a, b, d);
    else
        multiplyObject<kInPlace<A, B, D, N>, kMatrixSum<A, B, typename D::Element, N>, N>(a, b, d);
    return ZELM_OK;
}

// ---- arrays

template <typename A, typename B, typename D>
ZELM_INLINE ZelmStatus multiplyArray(const A &a, const B &b, const D &d, MatrixSizes sizes,
                                     std::uint32_t count) {
    const auto entries = Descriptor<A, B>::entries;
    if (ZelmStatus status =
            checkArray(isWrongSize<A, B>(sizes), count, tested(a, Address{sizes.width1} * sizes.height1),
                       tested(b, Address{sizes.width2} * sizes.height2),
                       tested(d, Address{sizes.*entries.first} * sizes.*entries.second));
        status != kProceed)
        return status;
    return withPlainest(
        [&](const auto &...plain) ZELM_INLINE_LAMBDA {
            return multiplyRunTime(plain..., boundsOf(sizes), pitchesOf<A, B>(sizes), count);
        },
        a, b, d);
}

// One product of a group. Rows of src1 and of dst one after the other: there are registers for no more.
template <unsigned N, typename V, typename A, typename B, typename D>
ZELM_INLINE void multiplyAcross(As<V>, const A &a, const B &b, const D &d, std::uint32_t k) {
    V second[N][N];
    ZELM_UNROLL
    for (unsigned t = 0; t < N; ++t)
        b.loadRowOf(k, t, second[t]);
    for (unsigned i = 0; i < N; ++i) {
        V row[N], result[N];
        a.loadRowOf(k, i, row);
        ZELM_UNROLL
        for (unsigned j = 0; j < N; ++j) {
            result[j] = row[0] * second[0][j];
            ZELM_UNROLL
            for (unsigned t = 1; t < N; ++t)
                result[j] = result[j] + row[t] * second[t][j];
        }
        storeRow<N>(d, k, i, result);
    }
}

// Tables: in P packs need no shuffle, and in PS2 gathering them takes less than the arithmetic that is saved.
// `inPlace` is that of the called form.
template <InPlaceOf inPlace, unsigned N, typename A, typename B, typename D>
ZELM_NOINLINE ZelmStatus multiplyTables(A a, B b, D d, std::uint32_t count) {
    const AcrossObjects<N, N, A> first(a);
    const AcrossObjects<N, N, B> second(b);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        if constexpr (kIsArray<B> || D::isSideBySide)
            multiplyObject<inPlace, Sum::Chain, N>(a.object(k), b.object(k), d.object(k));
        else
            multiplyByHeld<inPlace, Sum::Chain, N>(a.object(k), b,
                                                   HeldElements<typename D::Element, N>(second), d.object(k));
        return ZELM_OK;
    };
    const auto group = [&](auto pack, std::uint32_t k) ZELM_INLINE_LAMBDA {
        multiplyAcross<N>(pack, first, second, d, k);
        return true;
    };
    return forEachInGroups<productGroupingOf<D>(true)>(count, NoBuffer(), group, one, writes(d, N, N),
                                                       reads(a, N, N), reads(b, N, N));
}

// Inside one object after the other, which is as fast as across where a row fills a pack, and faster where
// objects would have to be transposed.
template <InPlaceOf inPlace, typename A, typename B, typename D, unsigned N>
ZELM_INLINE ZelmStatus multiplyOneByOne(const A &a, const B &b, const D &d, FixedSizes<N>,
                                        std::uint32_t count) {
    if constexpr (kIsArray<B>) {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            multiplyObject<inPlace, Sum::Chain, N>(a.object(k), b.object(k), d.object(k));
            return ZELM_OK;
        };
        return forEachObject(count, one, a, b, d);
    } else {
        // An invariant src2 is read once, ahead of the objects.
        const auto held = holdSecond<N, std::remove_cvref_t<decltype(d.object(0))>>(b);
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            multiplyByHeld<inPlace, Sum::Chain, N>(a.object(k), b, held, d.object(k));
            return ZELM_OK;
        };
        return forEachObject(count, one, a, b, d);
    }
}

template <typename A, typename B, typename D, unsigned N>
ZELM_INLINE ZelmStatus multiplyFixed(const A &a, const B &b, const D &d, FixedSizes<N> sizes,
                                     std::uint32_t count) {
    constexpr InPlaceOf inPlace = kInPlace<A, B, D, N>;
    const auto multiply = [&](const auto &first, const auto &second, const auto &result) ZELM_INLINE_LAMBDA {
        if constexpr (std::remove_cvref_t<decltype(result)>::isTable) {
            const UsedEntries<N, std::remove_cvref_t<decltype(first)>> ofFirst(first);
            const UsedEntries<N, std::remove_cvref_t<decltype(second)>> ofSecond(second);
            return multiplyTables<inPlace, N>(asUsed(first, ofFirst), asUsed(second, ofSecond), result,
                                              count);
        } else {
            return multiplyOneByOne<inPlace>(first, second, result, sizes, count);
        }
    };
    return withPlainest(multiply, a, b, d);
}

template <typename A, typename B, typename D, unsigned N>
ZELM_INLINE ZelmStatus multiplyArray(const A &a, const B &b, const D &d, FixedSizes<N> sizes,
                                     std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, N * N), tested(b, N * N), tested(d, N * N));
        status != kProceed)
        return status;
    return multiplyFixed(a, b, d, sizes, count);
}

} // namespace zelm::products
