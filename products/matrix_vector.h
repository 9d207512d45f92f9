// Products of matrices and vectors, and with vectors added: the exported rows of Mul and Gaxpy.
#pragma once

#include "frame/apart.h"
#include "frame/plainest.h"
#include "products/vector_groups.h"
#include "products/vector_run_time.h"

namespace zelm::products {

// ---- single objects

template <typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorSingle(const A &a, const X &x, const Z &z, const D &d, VectorBounds bounds) {
    if constexpr (D::isTable) {
        return accumulateVectorTested(a, x, z, d, bounds.rows, bounds.terms, bounds.pitch);
    } else {
        if (vectorProductIsApart(a, x, z, d, bounds))
            multiplyVectorApart(a, x, z, d, bounds);
        else
            accumulateVector(a, x, z, d, bounds.rows, bounds.terms, bounds.pitch);
        return ZELM_OK;
    }
}

template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorSingleFixed(const A &a, const X &x, const Z &z, const D &d) {
    if constexpr (D::isTable)
        return accumulateVectorTested<N>(a, x, z, d);
    else if constexpr (kAdds<Z> && !D::isDense && N <= 4)
        accumulateVectorUnrolled<N>(a, x, z, d);
    else
        multiplyVectorObject<N, D::isDense>(a, x, z, d);
    return ZELM_OK;
}

// ---- arrays

template <typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorArray(const A &a, const X &x, const Z &z, const D &d, VectorBounds bounds,
                                   std::uint32_t count) {
    return withPlainest([&](const auto &...plain)
                            ZELM_INLINE_LAMBDA { return multiplyVectorsRunTime(plain..., bounds, count); },
                        a, x, z, d);
}

// How an array of a fixed size is computed.
enum class Way {
    OneByOne,    // inside one object
    HeldColumns, // inside one object, the matrix held as columns
    HeldVector,  // inside one object, the vector held
    Fours,       // vectors of four, several in a pack
    Groups       // across objects
};

// In the standard and L layouts a row of 4 fills a pack, and 5 and 6 nearly do, so that one matrix for all
// objects is held by columns in order 4, and in lists, whose addresses are not known ahead, in all; a matrix
// to each object is faster inside the object. The sums of the other layouts are chains, which groups form
// without a shuffle where the data lies in planes or rows; other strided objects are gathered, or groups of
// one; strided lists hold a matrix by columns too. Left are transposed matrices of rows, which a group can't
// load, and strided lists of matrices.
template <unsigned N, bool isDense, typename A, typename X, typename D>
constexpr Way wayOf() {
    constexpr bool hasRows = kHasDenseObjects<D>;
    if (isDense && kIsArray<A>)
        return D::isList || kIsArray<X> ? Way::OneByOne : Way::HeldVector;
    if (isDense && N == 4 && !D::isList && kWidestBytes > kBlockBytes)
        return Way::Fours;
    if (isDense)
        return N == 4 || D::isList ? Way::HeldColumns : Way::Groups;
    if (kIsArray<A> && (hasRows ? kIsTransposed<A> : D::isList))
        return Way::OneByOne;
    if (!hasRows && D::isList)
        return Way::HeldColumns;
    return Way::Groups;
}

// Whether no result is stored in an invariant operand.
template <unsigned N, typename S, typename D>
ZELM_INLINE bool missesInvariant(const S &s, unsigned rows, const D &d, std::uint32_t count) {
    if constexpr (D::isList)
        return true; // what a list's objects do to the matrix is open
    else
        return count <= kMostObjectsInRange && isUntouched(s, rows, N, d, 1, N, count);
}

template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus multiplyByColumns(const A &a, const X &x, const Z &z, const D &d,
                                         std::uint32_t count) {
    using T = typename D::Element;
    const HeldColumns<N, A> columns(a);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        multiplyRowsOf<N, 0, true, kIsTransposed<A>>(columns, HeldVectorOf<T, N>(x.object(k)), z.object(k),
                                                     d.object(k));
        return ZELM_OK;
    };
    return forEachObject(count, one, a, x, z, d);
}

// Strided vectors of a list, whose definition stores what it may read again: each is asked for. The matrix is
// held until something is stored in it.
template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_NOINLINE ZelmStatus multiplyStrided(A a, X x, Z z, D d, std::uint32_t count) {
    using T = typename D::Element;
    const HeldColumns<N, A> columns(a);
    ObjectsApart fromMatrix(a, N, N, d, 1, N);
    const VectorsApart<X> fromVector(x, d, N);
    const VectorsApart<Z> fromAddend(z, d, N);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        const auto vector = x.object(k);
        const auto addend = z.object(k);
        const auto result = d.object(k);
        const bool missesMatrix = fromMatrix(a.start, result.start);
        if (missesMatrix && fromVector(k, result.start) && fromAddend(k, result.start)) {
            multiplyRowsOf<N, 0, false, false>(columns, HeldVectorOf<T, N>(vector), addend, result);
        } else {
            if (!missesMatrix)
                fromMatrix.neverAgain();
            multiplyVectorObject<N, false>(a, vector, addend, result);
        }
        return ZELM_OK;
    };
    return forEachObject(count, one, a, x, z, d);
}

template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus multiplyByVector(const A &a, const X &x, const Z &z, const D &d, std::uint32_t count) {
    const VectorFor<N, A> vector(x);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        multiplyDenseVector<N>(a.object(k), vector, z.object(k), d.object(k));
        return ZELM_OK;
    };
    return forEachObject(count, one, a, x, z, d);
}

// `isDense`: whether the called form is one of the standard and L layouts.
template <unsigned N, bool isDense, typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorArrayFixed(const A &a, const X &x, const Z &z, const D &d, std::uint32_t count) {
    constexpr Way way = wayOf<N, isDense, A, X, D>();
    if constexpr (way == Way::Groups) {
        const UsedEntries<N, A> entries(a);
        return multiplyInGroups<N, isDense>(asUsed(a, entries), x, z, d, count);
    }
#if defined(__AVX2__)
    if constexpr (way == Way::Fours)
        return multiplyFours(a, x, z, d, count);
#endif
    if constexpr (way == Way::HeldColumns && !isDense)
        return multiplyStrided<N>(asUsed(a, UsedEntries<N, A>(a)), x, z, d, count);
    else if constexpr (way == Way::HeldColumns)
        if (__builtin_expect(missesInvariant<N>(a, N, d, count), 1))
            return multiplyByColumns<N>(a, x, z, d, count);
    if constexpr (way == Way::HeldVector)
        if (__builtin_expect(missesInvariant<N>(x, 1, d, count), 1))
            return multiplyByVector<N>(a, x, z, d, count);
    const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
        multiplyVectorObject<N, isDense>(a.object(k), x.object(k), z.object(k), d.object(k));
        return ZELM_OK;
    };
    return forEachObject(count, one, a, x, z, d);
}

template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorsOf(const A &a, const X &x, const Z &z, const D &d, std::uint32_t count) {
    constexpr bool isDense = kHasDenseObjects<D>;
    return withPlainest([&](const auto &...plain)
                            ZELM_INLINE_LAMBDA { return vectorArrayFixed<N, isDense>(plain..., count); },
                        a, x, z, d);
}

// ---- Mul

template <typename A>
ZELM_INLINE VectorBounds boundsOf(const VectorSizes &sizes) {
    return {sizes.height, sizes.width, kIsTransposed<A> ? sizes.height : sizes.width};
}

template <typename A, typename X, typename D>
ZELM_INLINE ZelmStatus multiplyVector(const A &a, const X &x, const D &d, VectorSizes sizes) {
    if (ZelmStatus status = checkSingle(isWrongSize<A>(sizes), a, x, d); status != kProceed)
        return status;
    return vectorSingle(a, x, Nothing(), d, boundsOf<A>(sizes));
}

template <typename A, typename X, typename D, unsigned N>
ZELM_INLINE ZelmStatus multiplyVector(const A &a, const X &x, const D &d, FixedSizes<N>) {
    if (ZelmStatus status = checkSingle(false, a, x, d); status != kProceed)
        return status;
    return vectorSingleFixed<N>(a, x, Nothing(), d);
}

template <typename A, typename X, typename D>
ZELM_INLINE ZelmStatus multiplyVectors(const A &a, const X &x, const D &d, VectorSizes sizes,
                                       std::uint32_t count) {
    const Address entries = kIsTransposed<A> ? sizes.width : sizes.height;
    if (ZelmStatus status =
            checkArray(isWrongSize<A>(sizes), count, tested(a, Address{sizes.width} * sizes.height),
                       tested(x, sizes.length), tested(d, entries));
        status != kProceed)
        return status;
    return vectorArray(a, x, Nothing(), d, boundsOf<A>(sizes), count);
}

template <typename A, typename X, typename D, unsigned N>
ZELM_INLINE ZelmStatus multiplyVectors(const A &a, const X &x, const D &d, FixedSizes<N>,
                                       std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, N * N), tested(x, N), tested(d, N));
        status != kProceed)
        return status;
    return vectorsOf<N>(a, x, Nothing(), d, count);
}

// ---- Gaxpy

template <typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus gaxpy(const A &a, const X &x, const Z &z, const D &d, RunTimeShape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), a, x, z, d); status != kProceed)
        return status;
    return vectorSingle(a, x, z, d, VectorBounds{shape.height, shape.width, shape.width});
}

template <typename A, typename X, typename Z, typename D, unsigned N>
ZELM_INLINE ZelmStatus gaxpy(const A &a, const X &x, const Z &z, const D &d, FixedShape<N, N>) {
    if (ZelmStatus status = checkSingle(false, a, x, z, d); status != kProceed)
        return status;
    return vectorSingleFixed<N>(a, x, z, d);
}

template <typename A, typename X, typename Z, typename D, typename Shape>
ZELM_INLINE ZelmStatus gaxpys(const A &a, const X &x, const Z &z, const D &d, Shape shape,
                              std::uint32_t count) {
    if (ZelmStatus status =
            checkArray(shape.isZero(), count, tested(a, shape.elements()), tested(x, shape.columns()),
                       tested(z, shape.rows()), tested(d, shape.rows()));
        status != kProceed)
        return status;
    if constexpr (Shape::isFixed)
        return vectorsOf<Shape::columns()>(a, x, z, d, count);
    else
        return vectorArray(a, x, z, d, VectorBounds{shape.height, shape.width, shape.width}, count);
}

} // namespace zelm::products
