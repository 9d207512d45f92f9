/** @file
 * Determinants, inverses, and the factors of LU, Cholesky and QR with what solves systems by them.
 */
#pragma once

#include "zelm/sums.hpp"

namespace zelm {
namespace detail {

template <class A, class D>
consteval void same_matrices() {
    square<A>();
    same_elements<A, D>();
    valid_destination<D, A::is_array>();
    plain_destination<D>();
    static_assert(!D::is_vector && may_equal(A::stored_rows, D::stored_rows) &&
                      may_equal(A::stored_columns, D::stored_columns),
                  "zelm: the result is a matrix of the shape of its source");
}

template <class A>
ZELM_INLINE constexpr Sizes order_of(const A &a) {
    Sizes size;
    size.n = size.width = static_cast<std::uint32_t>(a.columns());
    size.height = static_cast<std::uint32_t>(a.rows());
    return size;
}

template <class V>
consteval int order() {
    return named_size(V::stored_rows, V::stored_columns);
}

template <class V>
consteval void has_closed_form() {
    static_assert(
        order<V>() != 0,
        "zelm: det and inverse are for sizes 3x3 to 6x6 that the type tells, as in as_matrices<4, "
        "4>(pointer, count); for "
        "others write det_with_threshold or inverse_with_threshold, which treat small pivots as zero");
}

/** Work space of run-time forms: n * n elements and n row numbers. */
template <class T>
struct Scratch {
    T *first;
    std::size_t elements;

    constexpr bool serves(std::size_t n) const {
        return elements * sizeof(T) >= n * n * sizeof(T) + n * sizeof(std::uint32_t);
    }
};

template <class T, class S>
ZELM_INLINE constexpr Scratch<T> scratch_of(std::remove_reference_t<S> &scratch) {
    const auto line = numbers<S>(scratch);
    static_assert(std::is_same_v<typename std::remove_cv_t<decltype(line)>::Element, T>,
                  "zelm: scratch is a container of the operands' element type");
    return {line.first, line.count};
}

inline constexpr const char *scratch_too_short = "scratch is too short: n * n + n elements";

} // namespace detail

/** out = the determinant of each 3x3 to 6x6 matrix. */
template <class A, class Out>
ZELM_INLINE Result det(const A &a, Out &&out) {
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    detail::square<V>();
    detail::has_closed_form<V>();
    const auto z = detail::numbers<Out>(out);
    detail::numbers_of<V, std::remove_cv_t<decltype(z)>>();
    const auto &s = detail::straight(x);
    return detail::run<detail::Row<detail::Op::Det, V::is_array ? detail::Kind::ma : detail::Kind::m>,
                       detail::Scalar<V>, detail::order<V>()>("det", detail::Sizes(), detail::bare(s),
                                                              nullptr, z);
}

/** d = the inverse of each 3x3 to 6x6 matrix. A singular one ends the call. */
template <class A, class D>
ZELM_INLINE Result inverse(const A &a, D &&d) {
    const auto x = detail::view_of(a);
    const auto z = detail::target<D>(d);
    using V = std::remove_cv_t<decltype(x)>;
    detail::same_matrices<V, std::remove_cv_t<decltype(z)>>();
    detail::has_closed_form<V>();
    const auto &s = detail::straight(x);
    return detail::run<detail::Row<detail::Op::Invert, V::is_array ? detail::Kind::ma : detail::Kind::m>,
                       detail::Scalar<V>, detail::order<V>()>("inverse", detail::Sizes(), detail::bare(s),
                                                              nullptr, z);
}

/**
 * The determinant by elimination, of any order: where a pivot is below 2^-23 (float) or 2^-52 (double), 0.
 * `scratch` is a container of at least n * n + n elements.
 */
template <class A, class S, class Out>
ZELM_INLINE Result det_with_threshold(const A &a, S &&scratch, Out &&out) {
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    detail::square<V>();
    const auto z = detail::numbers<Out>(out);
    detail::numbers_of<V, std::remove_cv_t<decltype(z)>>();
    const auto work = detail::scratch_of<detail::Scalar<V>, S>(scratch);
    if (x.rows() != x.columns() || !work.serves(x.columns())) {
        return Result("det_with_threshold", ZELM_ERR_SIZE,
                      x.rows() != x.columns() ? "the matrix is not square" : detail::scratch_too_short);
    }
    const auto &s = detail::straight(x);
    return detail::run<detail::Row<detail::Op::Det, V::is_array ? detail::Kind::ma : detail::Kind::m>,
                       detail::Scalar<V>, 0>("det_with_threshold", detail::order_of(x), detail::bare(s),
                                             static_cast<void *>(work.first), z);
}

/** The inverse by elimination, of any order: cofactors with a pivot below 2^-23 (float) or 2^-52 (double)
 * count as 0. */
template <class A, class S, class D>
ZELM_INLINE Result inverse_with_threshold(const A &a, S &&scratch, D &&d) {
    const auto x = detail::view_of(a);
    const auto z = detail::target<D>(d);
    using V = std::remove_cv_t<decltype(x)>;
    detail::same_matrices<V, std::remove_cv_t<decltype(z)>>();
    const auto work = detail::scratch_of<detail::Scalar<V>, S>(scratch);
    if (x.rows() != x.columns() || x.rows() != z.rows() || z.rows() != z.columns() ||
        !work.serves(x.columns())) {
        return Result("inverse_with_threshold", ZELM_ERR_SIZE,
                      !work.serves(x.columns()) ? detail::scratch_too_short : detail::sizes_differ);
    }
    const auto &s = detail::straight(x);
    return detail::run<detail::Row<detail::Op::Invert, V::is_array ? detail::Kind::ma : detail::Kind::m>,
                       detail::Scalar<V>, 0>("inverse_with_threshold", detail::order_of(x), detail::bare(s),
                                             static_cast<void *>(work.first), z);
}

// ---- factors. A factor is a view of the caller's memory with a type that says what lies there.

/** L and U in one matrix with unexchanged rows, and the order of the rows: made by lu_factors, filled by lu.
 */
template <class V, class P>
struct LuFactors {
    static constexpr bool zelm_is_borrowed = true;
    V matrix;
    P *pivots;
    std::size_t pivots_size;
};

/** The lower factor with the reciprocals of its diagonal: made by cholesky_factor, filled by cholesky. */
template <class V>
struct CholeskyFactor {
    static constexpr bool zelm_is_borrowed = true;
    V matrix;
};

/** R and the reflectors: made by qr_factors, filled by qr. */
template <class V, class T>
struct QrFactors {
    static constexpr bool zelm_is_borrowed = true;
    V matrix;
    T *scratch;
    std::size_t scratch_size;
};

namespace detail {

template <class>
inline constexpr bool is_lu = false;
template <class V, class P>
inline constexpr bool is_lu<LuFactors<V, P>> = true;
template <class>
inline constexpr bool is_cholesky = false;
template <class V>
inline constexpr bool is_cholesky<CholeskyFactor<V>> = true;
template <class>
inline constexpr bool is_qr = false;
template <class V, class T>
inline constexpr bool is_qr<QrFactors<V, T>> = true;

template <class P>
struct RowNumbers {
    static constexpr bool valid = false;
};
template <>
struct RowNumbers<std::uint32_t> {
    static constexpr bool valid = true;
};
template <class P, std::size_t N>
struct RowNumbers<P[N]> : RowNumbers<P> {};
template <class P, std::size_t N>
struct RowNumbers<std::array<P, N>> : RowNumbers<P> {};

} // namespace detail

/**
 * LU factors in `matrix`, a matrix or an array of them, and in `pivots`: n row numbers of 32 bits per object,
 * side by side, as in uint32_t[4] or std::vector<std::array<uint32_t, 4>>.
 */
template <class M, class P>
ZELM_INLINE constexpr auto lu_factors(M &&matrix, P &&pivots) {
    detail::refuse_temporary<M &&>();
    detail::refuse_temporary<P &&>();
    const auto v = detail::view_of(matrix);
    using V = std::remove_cv_t<decltype(v)>;
    detail::square<V>();
    detail::plain_destination<V>();
    using Entry = detail::Member<std::remove_reference_t<P>>;
    static_assert(detail::RowNumbers<std::remove_cv_t<Entry>>::valid,
                  "zelm: pivots are row numbers of type std::uint32_t: n per object, as in "
                  "std::vector<std::array<std::uint32_t, n>>");
    using Number = std::conditional_t<std::is_const_v<Entry>, const std::uint32_t, std::uint32_t>;
    return LuFactors<V, Number>{v, reinterpret_cast<Number *>(detail::data(pivots)),
                                detail::size(pivots) * sizeof(Entry) / 4};
}

/** A Cholesky factor in `matrix`, a matrix or an array of them: the lower triangle is used. */
template <class M>
ZELM_INLINE constexpr auto cholesky_factor(M &&matrix) {
    detail::refuse_temporary<M &&>();
    const auto v = detail::view_of(matrix);
    using V = std::remove_cv_t<decltype(v)>;
    detail::square<V>();
    detail::plain_destination<V>();
    return CholeskyFactor<V>{v};
}

/** QR factors in `matrix`. A size known at run time needs `scratch`, as many elements as the matrix has rows.
 */
template <class M>
ZELM_INLINE constexpr auto qr_factors(M &&matrix) {
    detail::refuse_temporary<M &&>();
    const auto v = detail::view_of(matrix);
    using V = std::remove_cv_t<decltype(v)>;
    static_assert(!V::is_vector, "zelm: qr_factors takes matrices");
    detail::plain_destination<V>();
    static_assert(V::stored_rows != dynamic,
                  "zelm: a matrix whose height is known at run time needs work space: "
                  "qr_factors(matrix, scratch), a container of as many elements as it has rows");
    return QrFactors<V, detail::Scalar<V>>{v, nullptr, 0};
}
template <class M, class S>
ZELM_INLINE constexpr auto qr_factors(M &&matrix, S &&scratch) {
    detail::refuse_temporary<M &&>();
    const auto v = detail::view_of(matrix);
    using V = std::remove_cv_t<decltype(v)>;
    static_assert(!V::is_vector, "zelm: qr_factors takes matrices");
    detail::plain_destination<V>();
    const auto work = detail::scratch_of<detail::Scalar<V>, S>(scratch);
    return QrFactors<V, detail::Scalar<V>>{v, work.first, work.elements};
}

namespace detail {

inline constexpr const char *pivots_too_short = "the row numbers are too few: n for each object";

template <class F>
ZELM_INLINE constexpr bool has_pivots(const F &f) {
    return f.pivots_size >= f.matrix.count * f.matrix.columns();
}

template <class A, class M>
ZELM_INLINE constexpr bool same_order(const A &a, const M &m) {
    return a.rows() == m.rows() && a.columns() == m.columns() && m.rows() == m.columns();
}

/** Where no scratch is given, a local one. */
template <class V, class F, class Call>
ZELM_INLINE Result with_scratch(const char *operation, const F &f, Call call) {
    if constexpr (V::stored_rows != dynamic) {
        if (f.scratch == nullptr) {
            Scalar<V> scratch[static_cast<std::size_t>(V::stored_rows)];
            return call(static_cast<Scalar<V> *>(scratch));
        }
    }
    if (f.scratch_size < f.matrix.rows()) {
        return Result(operation, ZELM_ERR_SIZE,
                      "scratch is too short: as many elements as the matrix has rows");
    }
    return call(f.scratch);
}

} // namespace detail

/** The LU factors of a, with partial pivoting. A pivot below 2^-23 ends the call. */
template <class A, class F>
ZELM_INLINE Result lu(const A &a, const F &factors) {
    static_assert(detail::is_lu<F>, "zelm: lu writes LU factors: lu(A, lu_factors(matrix, pivots))");
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    const auto &z = factors.matrix;
    detail::same_matrices<V, std::remove_cvref_t<decltype(z)>>();
    static_assert(!std::is_const_v<std::remove_pointer_t<decltype(factors.pivots)>>,
                  "zelm: the destination is const");
    if (!detail::same_order(x, z)) {
        return Result("lu", ZELM_ERR_SIZE, detail::sizes_differ);
    }
    if (!detail::has_pivots(factors)) {
        return Result("lu", ZELM_ERR_SIZE, detail::pivots_too_short);
    }
    const auto &s = detail::straight(x);
    const detail::Pivots<std::uint32_t> pivots{factors.pivots, x.columns()};
    return detail::run<detail::Row<detail::Op::LUDecomp, V::is_array ? detail::Kind::ma : detail::Kind::m>,
                       detail::Scalar<V>, detail::order<V>(), 1u>("lu", detail::order_of(x), detail::bare(s),
                                                                  pivots, z);
}

namespace detail {

// The strided forms of order 3 to 6 round an element stride down to whole elements.
template <class V>
ZELM_INLINE constexpr bool has_whole_elements(const V &v) {
    return !is_strided(V::layout) || is_by_element(V::layout) ||
           v.element % static_cast<std::ptrdiff_t>(sizeof(typename V::Element)) == 0;
}

template <class A, class D>
ZELM_INLINE Result cholesky_views(const A &a, const D &d) {
    using R = Row<Op::CholeskyDecomp, A::is_array ? Kind::ma : Kind::m>;
    if (!has_whole_elements(a) || !has_whole_elements(d)) {
        if constexpr (A::has_fixed_shape && D::has_fixed_shape && !is_list(A::layout) &&
                      !is_list(D::layout)) {
            constexpr Layout L = A::is_array ? Layout::PS2 : Layout::P;
            const auto &x = in_layout<L>(a);
            const auto &z = in_layout<L>(d);
            using X = View<typename A::Element, A::stored_rows, A::stored_columns, L, A::is_array>;
            using Z = View<typename D::Element, D::stored_rows, D::stored_columns, L, D::is_array>;
            return run<R, Scalar<A>, order<A>(), 1u>("cholesky", order_of(a), recast<X>(x), recast<Z>(z));
        } else {
            return Result("cholesky", ZELM_ERR_SIZE,
                          "an element stride is not a multiple of the element's size: view the matrices by "
                          "a table of elements");
        }
    }
    return run<R, Scalar<A>, order<A>(), 1u>("cholesky", order_of(a), a, d);
}

} // namespace detail

/** The Cholesky factor of each symmetric positive definite matrix; only lower triangles are read and written.
 */
template <class A, class F>
ZELM_INLINE Result cholesky(const A &a, const F &factor) {
    static_assert(detail::is_cholesky<F>,
                  "zelm: cholesky writes a Cholesky factor: cholesky(A, cholesky_factor(matrix))");
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    const auto &z = factor.matrix;
    detail::same_matrices<V, std::remove_cvref_t<decltype(z)>>();
    if (!detail::same_order(x, z)) {
        return Result("cholesky", ZELM_ERR_SIZE, detail::sizes_differ);
    }
    const auto &s = detail::straight(x);
    return detail::cholesky_views(detail::bare(s), z);
}

/** The QR factors of each matrix of at least as many rows as columns, by Householder reflections. */
template <class A, class F>
ZELM_INLINE Result qr(const A &a, const F &factors) {
    static_assert(detail::is_qr<F>, "zelm: qr writes QR factors: qr(A, qr_factors(matrix))");
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    const auto &z = factors.matrix;
    using W = std::remove_cvref_t<decltype(z)>;
    static_assert(!V::is_vector, "zelm: qr takes matrices");
    detail::same_elements<V, W>();
    detail::valid_destination<W, V::is_array>();
    static_assert(detail::may_equal(detail::rows_of<V>, W::stored_rows) &&
                      detail::may_equal(detail::columns_of<V>, W::stored_columns),
                  "zelm: the factors have the shape of the matrix");
    static_assert(detail::rows_of<V> == dynamic || detail::columns_of<V> == dynamic ||
                      detail::rows_of<V> >= detail::columns_of<V>,
                  "zelm: qr takes matrices of at least as many rows as columns");
    if (detail::used_rows(x) != z.rows() || detail::used_columns(x) != z.columns()) {
        return Result("qr", ZELM_ERR_SIZE, detail::sizes_differ);
    }
    const auto &s = detail::straight(x);
    return detail::with_scratch<W>("qr", factors, [&](detail::Scalar<V> *scratch) ZELM_INLINE_LAMBDA {
        return detail::run<
            detail::Row<detail::Op::QRDecomp, V::is_array ? detail::Kind::ma : detail::Kind::m>,
            detail::Scalar<V>, detail::order<W>(), 1u>("qr", detail::order_of(z), detail::bare(s), scratch,
                                                       z);
    });
}

namespace detail {

template <class M, class B, class X>
consteval void system() {
    static_assert(B::is_vector && X::is_vector,
                  "zelm: solve takes vectors: solve(factors, b, x); for several right-hand sides pass "
                  "an array of vectors");
    same_elements<M, B, X>();
    valid_destination<X, M::is_array || B::is_array>();
    static_assert(B::is_array || !M::is_array, "zelm: an array of factors needs an array of right-hand "
                                               "sides; one for all is an array with object_bytes(0)");
    static_assert(may_equal(M::stored_rows, B::stored_columns) &&
                      may_equal(M::stored_columns, X::stored_columns),
                  "zelm: the vectors do not fit the factors: b has as many elements as the matrix has rows, "
                  "x as many as it has columns");
}

template <Op op, class M, class B>
using SystemRow = Row<op, M::is_array ? Kind::ma : Kind::m, B::is_array ? Kind::va : Kind::v>;

template <class F, class B, class X>
ZELM_INLINE Result solve_views(const F &f, const B &b, const X &x) {
    const auto &m = f.matrix;
    using M = std::remove_cvref_t<decltype(m)>;
    system<M, B, X>();
    using T = Scalar<M>;
    constexpr int N = order<M>();
    if (m.rows() != b.columns() || m.columns() != x.columns()) {
        return Result("solve", ZELM_ERR_SIZE, sizes_differ);
    }
    const Sizes size = order_of(m);
    if constexpr (is_lu<F>) {
        if (!has_pivots(f)) {
            return Result("solve", ZELM_ERR_SIZE, pivots_too_short);
        }
        const Pivots<const std::uint32_t> pivots{f.pivots, M::is_array ? m.columns() : 0};
        return run<SystemRow<Op::LUBackSubst, M, B>, T, N>("solve", size, m, pivots, b, x);
    } else if constexpr (is_cholesky<F>) {
        return run<SystemRow<Op::CholeskyBackSubst, M, B>, T, N, 2u>("solve", size, m, b, x);
    } else {
        return with_scratch<M>("solve", f, [&](T *scratch) ZELM_INLINE_LAMBDA {
            return run<SystemRow<Op::QRBackSubst, M, B>, T, N, 4u>("solve", size, m, scratch, b, x);
        });
    }
}

} // namespace detail

/** x with A * x = b, where `factors` are those of A; by QR factors of a tall A in the sense of least squares.
 */
template <class F, class B, class X>
ZELM_INLINE Result solve(const F &factors, const B &b, X &&x) {
    static_assert(detail::is_lu<F> || detail::is_cholesky<F> || detail::is_qr<F>,
                  "zelm: solve takes factors, whose type says by which decomposition they came: lu_factors, "
                  "cholesky_factor, qr_factors");
    return detail::solve_views(factors, detail::view_of(b), detail::target<X>(x));
}

} // namespace zelm
