// Products of a matrix and a vector, and with a vector added: Gaxpy.
#pragma once

#include "frame/overlap.h"
#include "products/matrix_matrix.h"

namespace zelm::products {

// Gaxpy's third operand, where there is one.
struct Nothing : WithoutTable {
    static constexpr bool isNull() { return false; }
    ZELM_INLINE Nothing object(std::uint32_t) const { return {}; }
};

template <typename Z>
constexpr bool kAdds = !std::is_same_v<Z, Nothing>;

template <typename T, typename Z>
ZELM_INLINE T plus(T sum, const Z &z, std::uint32_t i) {
    if constexpr (kAdds<Z>)
        return sum + z.get(i);
    else
        return sum;
}

// ---- sums that live in dst: run-time forms, and in P single objects

template <bool livesInDst, typename A, typename X, typename Z, typename D>
ZELM_INLINE void accumulateVector(const A &a, const X &x, const Z &z, const D &d, std::uint32_t rows,
                                  std::uint32_t terms, std::uint32_t pitch) {
    using T = typename D::Element;
    for (std::uint32_t i = 0; i < rows; ++i) {
        T sum = 0;
        d.set(i, sum);
        for (std::uint32_t t = 0; t < terms; ++t) {
            const T product = used(a, i, t, pitch) * x.get(t);
            if constexpr (livesInDst)
                sum = d.get(i);
            sum = sum + product;
            d.set(i, sum);
        }
        if constexpr (kAdds<Z>)
            d.set(i, d.get(i) + z.get(i));
    }
}

// Mul tests src1's entry ahead of src2's, Gaxpy the other way round: a null one of either ends the call
// alike.
template <typename A, typename X, typename Z, typename T>
ZELM_INLINE ZelmStatus accumulateVectorTested(const A &a, const X &x, const Z &z, const Table<T> &d,
                                              std::uint32_t rows, std::uint32_t terms, std::uint32_t pitch) {
    for (std::uint32_t i = 0; i < rows; ++i) {
        if (z.elementIsNull(i) || d.elementIsNull(i))
            return ZELM_ERR_NULL_PTR;
        d.set(i, T{0});
        for (std::uint32_t t = 0; t < terms; ++t) {
            if (a.elementIsNull(usedEntry(a, i, t, pitch)) || x.elementIsNull(t))
                return ZELM_ERR_NULL_PTR;
            const T product = used(a, i, t, pitch) * x.get(t);
            d.set(i, d.get(i) + product);
        }
        if constexpr (kAdds<Z>)
            d.set(i, d.get(i) + z.get(i));
    }
    return ZELM_OK;
}

// ---- one object of a fixed size, element by element

// src2 may be overwritten while it is read.
template <unsigned N, typename A, typename X, typename D>
__attribute__((noinline)) void multiplyVectorAnew(const A &a, const X &x, const D &d) {
    using T = typename D::Element;
    for (unsigned i = 0; i < N; ++i) {
        T products[N];
        for (unsigned t = 0; t < N; ++t)
            products[t] = used(a, i, t, N) * x.get(t);
        d.set(i, sumOf<Sum::Chain>(products));
    }
}

template <unsigned N, typename A, typename T, typename D>
ZELM_INLINE void multiplyVectorHeld(const A &a, const T (&x)[N], const D &d) {
#pragma GCC unroll 6
    for (unsigned i = 0; i < N; ++i) {
        T products[N];
#pragma GCC unroll 6
        for (unsigned t = 0; t < N; ++t)
            products[t] = used(a, i, t, N) * x[t];
        d.set(i, sumOf<Sum::Chain>(products));
    }
}

// ---- dense objects of a fixed size: as many rows at once as a pack has lanes

ZELM_INLINE __m128 loadSome(Address from, unsigned number, float) {
    return number >= 4 ? loadPack<float>(from) : number == 3 ? loadThree(from) : loadTwo(from);
}

ZELM_INLINE __m128d loadSome(Address from, unsigned, double) {
    return loadPack<double>(from);
}

ZELM_INLINE void storeSome(Address to, __m128 rows, unsigned number) {
    if (number >= 4)
        storePack(to, rows);
    else if (number == 3)
        storeThree(to, rows);
    else
        _mm_storel_pi(reinterpret_cast<__m64 *>(to), rows);
}

ZELM_INLINE void storeSome(Address to, __m128d rows, unsigned) {
    storePack(to, rows);
}

// The elements (row, 0) to (row + lanes - 1, N - 1) of the matrix as used, one pack per column. Rows behind
// the last are the last again.
template <unsigned N, typename T>
ZELM_INLINE void loadRows(const Dense<const T> &a, unsigned row, Pack<T> (&columns)[N]) {
    LaneAddresses<T> at;
#pragma GCC unroll 4
    for (unsigned lane = 0; lane < kLanes<T>; ++lane)
        at[lane] = a.rowStart(row + lane < N ? row + lane : N - 1);
    loadAdjacent<T, N>(at, columns);
}

template <unsigned N, typename T>
ZELM_INLINE void loadRows(const Transposed<Dense<const T>> &a, unsigned row, Pack<T> (&columns)[N]) {
#pragma GCC unroll 6
    for (unsigned t = 0; t < N; ++t)
        columns[t] = loadSome(a.rowStart(t) + row * sizeof(T), N - row, T{});
}

// A matrix that is read row by row when it is needed ...
template <unsigned N, typename A>
struct ReadRows {
    using T = typename A::Element;
    const A &matrix;
    template <unsigned row>
    ZELM_INLINE void load(Pack<T> (&columns)[N]) const {
        loadRows<N>(matrix, row, columns);
    }
    ZELM_INLINE T last(unsigned t) const { return used(matrix, N - 1, t, 0); }
};

// ... and one that serves many vectors.
template <unsigned N, typename A>
struct HeldColumns {
    using T = typename A::Element;
    static constexpr unsigned packs = (N % kLanes<T> == 1 ? N - 1 : N + kLanes<T> - 1) / kLanes<T>;
    Pack<T> column[packs][N];
    T lastRow[N];
    ZELM_INLINE explicit HeldColumns(const A &a) {
#pragma GCC unroll 3
        for (unsigned p = 0; p < packs; ++p)
            loadRows<N>(a, p * kLanes<T>, column[p]);
#pragma GCC unroll 6
        for (unsigned t = 0; t < N; ++t)
            lastRow[t] = used(a, N - 1, t, 0);
    }
    template <unsigned row>
    ZELM_INLINE void load(Pack<T> (&columns)[N]) const {
#pragma GCC unroll 6
        for (unsigned t = 0; t < N; ++t)
            columns[t] = column[row / kLanes<T>][t];
    }
    ZELM_INLINE T last(unsigned t) const {
        return lastRow[t];
    }
};

// A vector read ahead of the writes: each element alone and in all lanes.
template <typename T, unsigned N>
struct HeldVectorOf {
    T element[N];
    Pack<T> spread[N];
    template <typename X>
    ZELM_INLINE explicit HeldVectorOf(const X &x) {
#pragma GCC unroll 6
        for (unsigned t = 0; t < N; ++t) {
            element[t] = x.get(t);
            spread[t] = broadcast(element[t]);
        }
    }
};

template <unsigned N, unsigned row, bool isTransposed, typename Rows, typename T, typename Z>
ZELM_INLINE void multiplyRowsOf(const Rows &a, const HeldVectorOf<T, N> &x, const Z &z, const Dense<T> &d) {
    constexpr Sum order = vectorSumOfRow<T, true, isTransposed, N>(row);
    if constexpr (N - row == 1) {
        T products[N];
#pragma GCC unroll 6
        for (unsigned t = 0; t < N; ++t)
            products[t] = a.last(t) * x.element[t];
        d.set(row, plus(sumOf<order>(products), z, row));
    } else {
        Pack<T> products[N];
        a.template load<row>(products);
#pragma GCC unroll 6
        for (unsigned t = 0; t < N; ++t)
            products[t] = products[t] * x.spread[t];
        Pack<T> sum = sumOf<order>(products);
        if constexpr (kAdds<Z>)
            sum = sum + loadSome(z.start + row * sizeof(T), N - row, T{});
        storeSome(d.start + row * sizeof(T), sum, N - row);
        if constexpr (row + kLanes<T> < N)
            multiplyRowsOf<N, row + kLanes<T>, isTransposed>(a, x, z, d);
    }
}

// ---- dense objects of 4x4 and 6x6: whole rows times the vector. The sums of these sizes are what adding the
// products of two rows lane by lane gives, so that half of a transposition is saved.

template <typename T, unsigned N>
struct VectorAlongRows {
    Pack<T> pack[N * sizeof(T) / kPackBytes];
    __m128 lastTwo; // of six 32-bit elements, twice
    ZELM_INLINE explicit VectorAlongRows(const Dense<const T> &x) {
#pragma GCC unroll 3
        for (unsigned p = 0; p < N * sizeof(T) / kPackBytes; ++p)
            pack[p] = loadPack<T>(x.start + p * kPackBytes);
        lastTwo = _mm_setzero_ps();
        if constexpr (sizeof(T) == 4 && N == 6) {
            lastTwo = loadTwo(x.start + kPackBytes);
            lastTwo = _mm_movelh_ps(lastTwo, lastTwo);
        }
    }
};

// The even columns' sums of two rows, and the odd ones'.
template <unsigned N>
ZELM_INLINE __m128 evenAndOdd(const Dense<const float> &a, unsigned row, const VectorAlongRows<float, N> &x) {
    const Address upper = a.rowStart(row), lower = a.rowStart(row + 1);
    const __m128 p = loadPack<float>(upper) * x.pack[0], q = loadPack<float>(lower) * x.pack[0];
    const __m128 sums = _mm_unpacklo_ps(p, q) + _mm_unpackhi_ps(p, q);
    if constexpr (N == 4)
        return sums;
    const __m128 rest = loadTwoAndTwo(upper + 16, lower + 16) * x.lastTwo;
    return sums + _mm_shuffle_ps(rest, rest, _MM_SHUFFLE(3, 1, 2, 0));
}

template <unsigned N>
ZELM_INLINE __m128 sumsOfRows(const Dense<const float> &a, unsigned row, const VectorAlongRows<float, N> &x) {
    const __m128 upper = evenAndOdd<N>(a, row, x);
    const __m128 lower = row + 2 < N ? evenAndOdd<N>(a, row + 2, x) : upper;
    return _mm_movelh_ps(upper, lower) + _mm_movehl_ps(lower, upper);
}

template <unsigned N>
ZELM_INLINE __m128d sumsOfRows(const Dense<const double> &a, unsigned row,
                               const VectorAlongRows<double, N> &x) {
    __m128d sum = _mm_setzero_pd();
#pragma GCC unroll 3
    for (unsigned p = 0; p < N / 2; ++p) {
        const __m128d upper = loadPack<double>(a.rowStart(row) + p * kPackBytes) * x.pack[p];
        const __m128d lower = loadPack<double>(a.rowStart(row + 1) + p * kPackBytes) * x.pack[p];
        const __m128d pairs = _mm_unpacklo_pd(upper, lower) + _mm_unpackhi_pd(upper, lower);
        sum = p == 0 ? pairs : sum + pairs;
    }
    return sum;
}

template <unsigned N, typename T, typename Z>
ZELM_INLINE void multiplyWholeRows(const Dense<const T> &a, const VectorAlongRows<T, N> &x, const Z &z,
                                   const Dense<T> &d) {
#pragma GCC unroll 3
    for (unsigned row = 0; row < N; row += kLanes<T>) {
        Pack<T> sums = sumsOfRows<N>(a, row, x);
        if constexpr (kAdds<Z>)
            sums = sums + loadSome(z.start + row * sizeof(T), N - row, T{});
        storeSome(d.start + row * sizeof(T), sums, N - row);
    }
}

template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE void multiplyVectorOnce(const A &a, const X &x, const Z &z, const D &d) {
    using T = typename D::Element;
    if constexpr (D::isDense && !kIsTransposed<A> && N % 2 == 0)
        multiplyWholeRows<N>(a, VectorAlongRows<T, N>(x), z, d);
    else if constexpr (D::isDense)
        multiplyRowsOf<N, 0, kIsTransposed<A>>(ReadRows<N, A>{a}, HeldVectorOf<T, N>(x), z, d);
    else
        multiplyVectorHeld<N>(a, HeldVectorOf<T, N>(x).element, d);
}

// In the standard and L layouts dst may be src2, in the others it may not.
template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE void multiplyVectorObject(const A &a, const X &x, const Z &z, const D &d) {
    if constexpr (kAdds<Z> && !D::isDense) {
        accumulateVector<false>(a, x, z, d, N, N, N);
    } else {
        if (!D::isDense && beginsAt(x, d))
            multiplyVectorAnew<N>(a, x, d);
        else
            multiplyVectorOnce<N>(a, x, z, d);
    }
}

// ---- across objects: one pack per element, of as many objects as it has lanes

// An invariant matrix, each element in all lanes.
template <unsigned N, typename A>
struct SpreadMatrix {
    using T = typename A::Element;
    Pack<T> element[N][N];
    ZELM_INLINE explicit SpreadMatrix(const A &a) {
        for (unsigned i = 0; i < N; ++i)
            for (unsigned t = 0; t < N; ++t)
                element[i][t] = broadcast(used(a, i, t, N));
    }
    ZELM_INLINE Pack<T> get(std::uint32_t, std::uint32_t i, std::uint32_t t) const { return element[i][t]; }
};

template <typename Array>
constexpr bool kIsGroupable =
    Array::isSideBySide || decltype(std::declval<const Array &>().object(0))::isDense;

template <unsigned N, typename X>
ZELM_INLINE void loadVectors(const X &x, std::uint32_t k, Pack<typename X::Element> (&out)[N]) {
    if constexpr (kIsArray<X>) {
        loadRow<N>(groupAt(x, k), 0, out);
    } else {
#pragma GCC unroll 6
        for (unsigned t = 0; t < N; ++t)
            out[t] = broadcast(x.get(t));
    }
}

template <unsigned N, unsigned row, bool isDense, bool isTransposed, typename M, typename V, typename T>
ZELM_INLINE void multiplyAcross(const M &m, std::uint32_t k, const V (&x)[N], const V (&z)[N], bool adds,
                                V (&result)[N], T) {
    V products[N];
#pragma GCC unroll 6
    for (unsigned t = 0; t < N; ++t)
        products[t] = m.get(k, row, t) * x[t];
    if (adds && !isDense) // the sum begins at +0, which shows where all products are -0
        products[0] = products[0] + V{};
    const V sum = sumOf<vectorSumOfRow<T, isDense, isTransposed, N>(row)>(products);
    result[row] = adds ? sum + z[row] : sum;
    if constexpr (row + 1 < N)
        multiplyAcross<N, row + 1, isDense, isTransposed>(m, k, x, z, adds, result, T{});
}

template <unsigned N, typename S, typename D>
ZELM_INLINE bool vectorsMayRun(const S &s, const D &d, std::uint32_t count) {
    if constexpr (std::is_same_v<S, Nothing>)
        return true;
    else
        return isUntouched(s, 1, N, d, 1, N, count) || coincide(s, d);
}

template <unsigned N, typename A, typename D>
ZELM_INLINE bool missesInvariant(const A &a, const D &d, std::uint32_t count) {
    if constexpr (D::isList)
        return true; // what a list's objects do to the matrix is open
    else
        return count <= kMostObjectsInRange && isUntouched(a, N, N, d, 1, N, count);
}

// An invariant matrix by many vectors, whose elements are distinct and miss the matrix.
template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE bool acrossMayRun(const A &a, const X &x, const Z &z, const D &d, std::uint32_t count) {
    constexpr std::uint32_t least = 8;
    if (count < least || !missesInvariant<N>(a, d, count))
        return false;
    return elementsAreApart(d, 1, N, count) && vectorsMayRun<N>(x, d, count) && vectorsMayRun<N>(z, d, count);
}

template <unsigned N, typename M, typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus multiplyGroups(const M &m, const A &a, const X &x, const Z &z, const D &d,
                                      std::uint32_t count) {
    using T = typename D::Element;
    constexpr bool isDense = decltype(d.object(0))::isDense;
    const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
        multiplyVectorObject<N>(a.object(k), x.object(k), z.object(k), d.object(k));
        return ZELM_OK;
    };
    const auto group = [&](std::uint32_t k) __attribute__((always_inline)) {
        Pack<T> vectors[N], added[N], result[N];
        loadVectors<N>(x, k, vectors);
        if constexpr (kAdds<Z>) {
            loadVectors<N>(z, k, added);
            multiplyAcross<N, 0, isDense, kIsTransposed<A>>(m, k, vectors, added, true, result, T{});
        } else {
            multiplyAcross<N, 0, isDense, kIsTransposed<A>>(m, k, vectors, vectors, false, result, T{});
        }
        storeRow<N>(groupAt(d, k), 0, result);
        return true;
    };
    return forEachGroup<kLanes<T>>(count, group, one, a, x, z, d);
}

// ---- single objects

template <typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorSingle(const A &a, const X &x, const Z &z, const D &d, std::uint32_t rows,
                                    std::uint32_t terms, std::uint32_t pitch) {
    if constexpr (D::isTable)
        return accumulateVectorTested(a, x, z, d, rows, terms, pitch);
    accumulateVector<false>(a, x, z, d, rows, terms, pitch);
    return ZELM_OK;
}

template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorSingleFixed(const A &a, const X &x, const Z &z, const D &d) {
    if constexpr (D::isTable)
        return accumulateVectorTested(a, x, z, d, N, N, N);
    else
        multiplyVectorObject<N>(a, x, z, d);
    return ZELM_OK;
}

// ---- arrays

template <typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorArray(const A &a, const X &x, const Z &z, const D &d, std::uint32_t rows,
                                   std::uint32_t terms, std::uint32_t pitch, std::uint32_t count) {
    const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
        accumulateVector<kSumLivesInDst<D>>(a.object(k), x.object(k), z.object(k), d.object(k), rows, terms,
                                            pitch);
        return ZELM_OK;
    };
    return forEachObject(count, one, a, x, z, d);
}

template <unsigned N, typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus vectorArrayFixed(const A &a, const X &x, const Z &z, const D &d, std::uint32_t count) {
    if constexpr (decltype(d.object(0))::isDense && !kIsArray<A> && (N == 4 || D::isList)) {
        if (missesInvariant<N>(a, d, count)) {
            const HeldColumns<N, A> columns(a);
            using T = typename D::Element;
            const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
                multiplyRowsOf<N, 0, kIsTransposed<A>>(columns, HeldVectorOf<T, N>(x.object(k)), z.object(k),
                                                       d.object(k));
                return ZELM_OK;
            };
            return forEachObject(count, one, a, x, z, d);
        }
    } else if constexpr (kIsGroupable<D> && !kIsArray<A>) {
        if (acrossMayRun<N>(a, x, z, d, count))
            return multiplyGroups<N>(SpreadMatrix<N, A>(a), a, x, z, d, count);
    } else if constexpr (D::isSideBySide) {
        if (acrossMayRun<N>(a, x, z, d, count))
            return multiplyGroups<N>(Planes<N, A>{a}, a, x, z, d, count);
    }
    const auto one = [&](std::uint32_t k) __attribute__((always_inline)) {
        multiplyVectorObject<N>(a.object(k), x.object(k), z.object(k), d.object(k));
        return ZELM_OK;
    };
    return forEachObject(count, one, a, x, z, d);
}

// ---- Mul

template <typename A, typename X, typename D>
ZELM_INLINE ZelmStatus multiplyVector(const A &a, const X &x, const D &d, VectorSizes sizes) {
    if (ZelmStatus status = checkSingle(isWrongSize<A>(sizes), a, x, d); status != kProceed)
        return status;
    return vectorSingle(a, x, Nothing(), d, sizes.height, sizes.width,
                        kIsTransposed<A> ? sizes.height : sizes.width);
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
    return vectorArray(a, x, Nothing(), d, sizes.height, sizes.width,
                       kIsTransposed<A> ? sizes.height : sizes.width, count);
}

template <typename A, typename X, typename D, unsigned N>
ZELM_INLINE ZelmStatus multiplyVectors(const A &a, const X &x, const D &d, FixedSizes<N>,
                                       std::uint32_t count) {
    if (ZelmStatus status = checkArray(false, count, tested(a, N * N), tested(x, N), tested(d, N));
        status != kProceed)
        return status;
    return vectorArrayFixed<N>(a, x, Nothing(), d, count);
}

// ---- Gaxpy

template <typename A, typename X, typename Z, typename D>
ZELM_INLINE ZelmStatus gaxpy(const A &a, const X &x, const Z &z, const D &d, RunTimeShape shape) {
    if (ZelmStatus status = checkSingle(shape.isZero(), a, x, z, d); status != kProceed)
        return status;
    return vectorSingle(a, x, z, d, shape.height, shape.width, shape.width);
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
        return vectorArrayFixed<Shape::columns()>(a, x, z, d, count);
    else
        return vectorArray(a, x, z, d, shape.height, shape.width, shape.width, count);
}

} // namespace zelm::products
