// One product of a matrix and a vector of a fixed size, and with a vector added.
#pragma once

#include "products/matrix_matrix.h"

namespace zelm::products {

// ---- one object of a fixed size, element by element

// src2 may be overwritten while it is read.
template <unsigned N, typename A, typename X, typename D>
ZELM_NOINLINE void multiplyVectorAnew(const A &a, const X &x, const D &d) {
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
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        T products[N];
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t)
            products[t] = used(a, i, t, N) * x[t];
        d.set(i, sumOf<Sum::Chain>(products));
    }
}

// ---- dense objects of a fixed size: as many rows at once as a pack has lanes

ZELM_INLINE Floats4 loadTwoTwice(Address from) {
    return _mm_castpd_ps(spread<Doubles2>(load<double>(from)));
}

// Of less than a pack elements stand in more than one lane: lanes that nothing stores raise no exception
// then.
ZELM_INLINE Floats4 loadSome(Address from, unsigned number, float) {
    return number >= 4 ? loadPack<float>(from) : number == 3 ? loadThree(from) : loadTwoTwice(from);
}

ZELM_INLINE Doubles2 loadSome(Address from, unsigned, double) {
    return loadPack<double>(from);
}

ZELM_INLINE void storeSome(Address to, Floats4 rows, unsigned number) {
    if (number >= 4)
        storePack(to, rows);
    else if (number == 3)
        storeThree(to, rows);
    else
        _mm_storel_pi(reinterpret_cast<__m64 *>(to), inAllLanes(rows));
}

ZELM_INLINE void storeSome(Address to, Doubles2 rows, unsigned) {
    storePack(to, rows);
}

// The elements (row, 0) to (row + lanes - 1, N - 1) of the matrix as used, one pack per column. Rows behind
// the last are the last again.
template <unsigned N, typename T>
ZELM_INLINE void loadRows(const Dense<const T> &a, unsigned row, Pack<T> (&columns)[N]) {
    LaneAddresses<Pack<T>> at;
    ZELM_UNROLL
    for (unsigned lane = 0; lane < kLanes<T>; ++lane)
        at[lane] = a.rowStart(row + lane < N ? row + lane : N - 1);
    loadAdjacent<N>(at, columns);
}

template <unsigned N, typename T>
ZELM_INLINE void loadRows(const Transposed<Dense<const T>> &a, unsigned row, Pack<T> (&columns)[N]) {
    ZELM_UNROLL
    for (unsigned t = 0; t < N; ++t)
        columns[t] = loadSome(a.rowStart(t) + row * sizeof(T), N - row, T{});
}

template <unsigned N, typename T>
ZELM_INLINE void loadRows(const Strided<const T> &a, unsigned row, Pack<T> (&columns)[N]) {
    ZELM_UNROLL
    for (unsigned t = 0; t < N; ++t)
        columns[t] = packOf<T>([&](unsigned lane) ZELM_INLINE_LAMBDA {
            return a.get(row + lane < N ? row + lane : N - 1, t, N);
        });
}

// As many elements of a vector, from `first` on, as a pack has lanes or as there are up to N.
template <unsigned N, typename T>
ZELM_INLINE Pack<T> elementsFrom(const Dense<const T> &vector, unsigned first) {
    return loadSome(vector.start + first * sizeof(T), N - first, T{});
}
template <unsigned N, typename T>
ZELM_INLINE Pack<T> elementsFrom(const Strided<const T> &vector, unsigned first) {
    return packOf<T>([&](unsigned lane)
                         ZELM_INLINE_LAMBDA { return vector.get(first + lane < N ? first + lane : N - 1); });
}
template <unsigned N, typename T>
ZELM_INLINE void setElements(const Dense<T> &vector, unsigned first, Pack<T> elements) {
    storeSome(vector.start + first * sizeof(T), elements, N - first);
}
template <unsigned N, typename T>
ZELM_INLINE void setElements(const Strided<T> &vector, unsigned first, Pack<T> elements) {
    ZELM_UNROLL
    for (unsigned lane = 0; lane < kLanes<T>; ++lane)
        if (first + lane < N)
            vector.set(first + lane, inAllLanes(elements)[lane]);
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
        ZELM_UNROLL
        for (unsigned p = 0; p < packs; ++p)
            loadRows<N>(a, p * kLanes<T>, column[p]);
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t)
            lastRow[t] = used(a, N - 1, t, 0);
    }
    template <unsigned row>
    ZELM_INLINE void load(Pack<T> (&columns)[N]) const {
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t)
            columns[t] = column[row / kLanes<T>][t];
    }
    ZELM_INLINE T last(unsigned t) const { return lastRow[t]; }
};

// A vector read ahead of the writes: each element alone and in all lanes.
template <typename T, unsigned N>
struct HeldVectorOf {
    T element[N];
    Pack<T> inAllLanes[N];
    template <typename X>
    ZELM_INLINE explicit HeldVectorOf(const X &x) {
        ZELM_UNROLL
        for (unsigned t = 0; t < N; ++t) {
            element[t] = N % kLanes<T> == 1 ? loadedOnce(x.get(t)) : x.get(t);
            inAllLanes[t] = spread<Pack<T>>(element[t]);
        }
        if constexpr (X::isDense && sizeof(T) == 4 && N == 4) { // one load for all, and no copies
            const auto all = _mm_castps_si128(loadPack<T>(x.start));
            inAllLanes[0] = _mm_castsi128_ps(_mm_shuffle_epi32(all, 0x00));
            inAllLanes[1] = _mm_castsi128_ps(_mm_shuffle_epi32(all, 0x55));
            inAllLanes[2] = _mm_castsi128_ps(_mm_shuffle_epi32(all, 0xaa));
            inAllLanes[3] = _mm_castsi128_ps(_mm_shuffle_epi32(all, 0xff));
        }
    }
};

// `isDense`: whether the called form is one of the standard and L layouts; the sums of others begin at +0
// where a vector is added, which shows where all products are -0.
template <unsigned N, unsigned row, bool isDense, bool isTransposed, typename Rows, typename T, typename Z,
          typename D>
ZELM_INLINE void multiplyRowsOf(const Rows &a, const HeldVectorOf<T, N> &x, const Z &z, const D &d) {
    constexpr Sum order = vectorSumOfRow<T, isDense, isTransposed, N>(row);
    constexpr bool isLast = N - row == 1;
    std::conditional_t<isLast, T, Pack<T>> products[N];
    if constexpr (!isLast)
        a.template load<row>(products);
    ZELM_UNROLL
    for (unsigned t = 0; t < N; ++t) {
        if constexpr (isLast)
            products[t] = a.last(t) * x.element[t];
        else
            products[t] = products[t] * x.inAllLanes[t];
    }
    if constexpr (kAdds<Z> && !isDense)
        products[0] = products[0] + decltype(products[0] + products[0]){};
    auto sum = sumOf<order>(products);
    if constexpr (isLast) {
        d.set(row, plus(sum, z, row));
    } else {
        if constexpr (kAdds<Z>)
            sum = sum + elementsFrom<N>(z, row);
        setElements<N>(d, row, sum);
        if constexpr (row + kLanes<T> < N)
            multiplyRowsOf<N, row + kLanes<T>, isDense, isTransposed>(a, x, z, d);
    }
}

// ---- dense objects of 4x4 and 6x6: whole rows times the vector. The sums of these sizes are what adding the
// products of two rows lane by lane gives, so that half of a transposition is saved.

template <typename T, unsigned N>
struct VectorAlongRows {
    Pack<T> pack[N * sizeof(T) / kBlockBytes];
    Floats4 lastTwo; // of six 32-bit elements, twice
    ZELM_INLINE explicit VectorAlongRows(const Dense<const T> &x) {
        ZELM_UNROLL
        for (unsigned p = 0; p < N * sizeof(T) / kBlockBytes; ++p)
            pack[p] = loadPack<T>(x.start + p * kBlockBytes);
        lastTwo = _mm_setzero_ps();
        if constexpr (sizeof(T) == 4 && N == 6) {
            lastTwo = loadTwo(x.start + kBlockBytes);
            lastTwo = _mm_movelh_ps(lastTwo, lastTwo);
        }
    }
};

// The even columns' sums of two rows, and the odd ones'.
template <unsigned N>
ZELM_INLINE Floats4 evenAndOdd(const Dense<const float> &a, unsigned row,
                               const VectorAlongRows<float, N> &x) {
    const Address upper = a.rowStart(row), lower = a.rowStart(row + 1);
    const Floats4 p = loadPack<float>(upper) * x.pack[0], q = loadPack<float>(lower) * x.pack[0];
    const Floats4 sums = _mm_unpacklo_ps(p, q) + _mm_unpackhi_ps(p, q);
    if constexpr (N == 4)
        return sums;
    const Floats4 rest = loadTwoAndTwo(upper + 16, lower + 16) * x.lastTwo;
    return sums + _mm_shuffle_ps(rest, rest, _MM_SHUFFLE(3, 1, 2, 0));
}

template <unsigned N>
ZELM_INLINE Floats4 sumsOfRows(const Dense<const float> &a, unsigned row,
                               const VectorAlongRows<float, N> &x) {
    const Floats4 upper = evenAndOdd<N>(a, row, x);
    const Floats4 lower = row + 2 < N ? evenAndOdd<N>(a, row + 2, x) : upper;
    return _mm_movelh_ps(upper, lower) + _mm_movehl_ps(lower, upper);
}

template <unsigned N>
ZELM_INLINE Doubles2 sumsOfRows(const Dense<const double> &a, unsigned row,
                                const VectorAlongRows<double, N> &x) {
    Doubles2 sum = _mm_setzero_pd();
    ZELM_UNROLL
    for (unsigned p = 0; p < N / 2; ++p) {
        const Doubles2 upper = loadPack<double>(a.rowStart(row) + p * kBlockBytes) * x.pack[p];
        const Doubles2 lower = loadPack<double>(a.rowStart(row + 1) + p * kBlockBytes) * x.pack[p];
        const Doubles2 pairs = _mm_unpacklo_pd(upper, lower) + _mm_unpackhi_pd(upper, lower);
        sum = p == 0 ? pairs : sum + pairs;
    }
    return sum;
}

template <unsigned N, typename T, typename Z>
ZELM_INLINE void multiplyWholeRows(const Dense<const T> &a, const VectorAlongRows<T, N> &x, const Z &z,
                                   const Dense<T> &d) {
    ZELM_UNROLL
    for (unsigned row = 0; row < N; row += kLanes<T>) {
        Pack<T> sums = sumsOfRows<N>(a, row, x);
        if constexpr (kAdds<Z>)
            sums = sums + elementsFrom<N>(z, row);
        setElements<N>(d, row, sums);
    }
}

// The vector as a dense object of 4x4 or 6x6 takes it, or as another.
template <unsigned N, typename A>
using VectorFor = std::conditional_t<!kIsTransposed<A> && N % 2 == 0, VectorAlongRows<typename A::Element, N>,
                                     HeldVectorOf<typename A::Element, N>>;

template <unsigned N, typename A, typename T, typename Z, typename D>
ZELM_INLINE void multiplyDenseVector(const A &a, const VectorAlongRows<T, N> &x, const Z &z, const D &d) {
    multiplyWholeRows<N>(a, x, z, d);
}

template <unsigned N, typename A, typename T, typename Z, typename D>
ZELM_INLINE void multiplyDenseVector(const A &a, const HeldVectorOf<T, N> &x, const Z &z, const D &d) {
    multiplyRowsOf<N, 0, true, kIsTransposed<A>>(ReadRows<N, A>{a}, x, z, d);
}

// `isDense`: whether the called form is one of the standard and L layouts, whose sums have orders of their
// own.
template <unsigned N, bool isDense, typename A, typename X, typename Z, typename D>
ZELM_INLINE void multiplyVectorOnce(const A &a, const X &x, const Z &z, const D &d) {
    if constexpr (isDense)
        multiplyDenseVector<N>(a, VectorFor<N, A>(x), z, d);
    else
        multiplyVectorHeld<N>(a, HeldVectorOf<typename D::Element, N>(x).element, d);
}

// In the standard and L layouts dst may be src2, in the others it may not.
template <unsigned N, bool isDense, typename A, typename X, typename Z, typename D>
ZELM_INLINE void multiplyVectorObject(const A &a, const X &x, const Z &z, const D &d) {
    if constexpr (kAdds<Z> && !isDense) {
        accumulateVector(a, x, z, d, N, N, N);
    } else {
        if (!isDense && beginsAt(x, d))
            multiplyVectorAnew<N>(a, x, d);
        else
            multiplyVectorOnce<N, isDense>(a, x, z, d);
    }
}

} // namespace zelm::products
