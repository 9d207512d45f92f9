/** @file
 * Products: of two matrices, of a matrix and a vector, by a constant, and a product plus a vector.
 */
#pragma once

#include "zelm/elementwise.hpp"

namespace zelm {
namespace detail {

/**
 * Which sources dst may be in a product of fixed size: bit 0 the first, bit 1 the second (docs/products.md).
 * Where src2 is read whole and dst is written row by row, dst may be either.
 */
template <class T, int N>
ZELM_INLINE constexpr unsigned product_in_place(Kind first, Kind second, Layout layout) {
    constexpr bool wide = std::is_same_v<T, double>;
    const bool dense = layout == Layout::standard || layout == Layout::L;
    const bool transposed = first == Kind::mT || first == Kind::maT;
    const bool arrays1 = first == Kind::ma || first == Kind::maT,
               arrays2 = second == Kind::ma || second == Kind::maT;
    const bool second_transposed = second == Kind::mT || second == Kind::maT;
    if (N == 0) {
        return 0;
    }
    if (!arrays1 && !arrays2) {
        if (layout == Layout::S2) {
            const bool tree = !wide && N == 6 && !(transposed && !second_transposed);
            return tree ? (transposed ? 2u : 3u) : 0u;
        }
        if (!dense) {
            return 0;
        }
        const unsigned first_bit = !transposed && (wide || N != 6) ? 1u : 0u;
        return first_bit | (wide || N == 3 || N == 4 || N == (second_transposed ? 5 : 6) ? 2u : 0u);
    }
    if (!arrays1) {
        return dense ? 2u : 0u;
    }
    if (transposed) {
        return arrays2 && dense ? 2u : 0u;
    }
    if (!arrays2) {
        if (dense) {
            return wide || N != 6 ? 1u : 0u;
        }
        return !wide && (N == 3 || (N == 4 && layout == Layout::S2 && !second_transposed)) ? 1u : 0u;
    }
    if (dense) {
        const bool advances = !(wide && layout == Layout::standard);
        return 2u | ((wide ? advances : N != 6) ? 1u : 0u);
    }
    return !wide && !second_transposed && layout == Layout::S2 && (N == 3 || N == 4) ? 3u : 0u;
}

template <class A, class B, class D>
ZELM_INLINE constexpr Sizes product_size(const A &a, const B &b, const D &) {
    Sizes size;
    size.src1Width = static_cast<std::uint32_t>(a.columns());
    size.src1Height = static_cast<std::uint32_t>(a.rows());
    size.src2Width = static_cast<std::uint32_t>(b.columns());
    size.src2Height = static_cast<std::uint32_t>(b.rows());
    return size;
}

/** A product by the form that gives it for every shape: mm or mam. Of the operands none is transposed. */
template <class A, class B, class D>
ZELM_INLINE Result product_by_one(const A &a, const B &b, const D &d) {
    using R = Row<Op::Mul, A::is_array ? Kind::ma : Kind::m, Kind::m>;
    constexpr Layout layout = common_layout<A, B, D>();
    if constexpr (A::is_array && is_by_element(layout)) {
        // The form tests src1Width * src2Height entries of dst's table, however many it has.
        static_assert(!(A::has_fixed_shape && D::has_fixed_shape) ||
                          A::stored_columns * A::stored_columns <= D::stored_rows * D::stored_columns,
                      "zelm: no function multiplies arrays of this shape by components: view them by "
                      "strides, or copy them first");
        if (a.columns() * a.columns() > d.rows() * d.columns()) {
            return Result("mul", ZELM_ERR_SIZE, "no function multiplies arrays of this shape by components");
        }
    }
    return run<R, Scalar<A>, 0>("mul", product_size(a, b, d), a, b, d);
}

/** A product of matrices that are not known to be square and of a size that functions are named after. */
template <class A, class B, class D>
ZELM_INLINE Result product_of_any_shape(const A &a, const B &b, const D &d) {
    if constexpr (!B::is_array && !A::is_array && !A::is_transposed && B::is_transposed &&
                  common_layout<A, B, D>() == Layout::standard) {
        return run<Row<Op::Mul, Kind::m, Kind::mT>, Scalar<A>, 0>("mul", product_size(a, b, d), a, b, d);
    } else if constexpr (!B::is_array) {
        const auto &x = straight(a);
        const auto &y = straight(b);
        return product_by_one(bare(x), bare(y), d);
    } else if constexpr (!A::is_array) {
        // D^T = B^T A^T has the array first.
        const auto f = flipped(d);
        const auto fb = flipped(b);
        const auto fa = flipped(a);
        const auto &z = straight(f);
        const auto &x = straight(fb);
        const auto &y = straight(fa);
        return product_by_one(bare(x), bare(y), bare(z));
    } else {
        constexpr Layout layout = common_layout<A, B, D>();
        static_assert(!is_by_element(layout),
                      "zelm: no function multiplies two arrays of this shape by components: view them by "
                      "strides, or copy them first");
        // Of the row mamaT the width of src1 is only compared with that of src2: with the strides of src2
        // exchanged it gives the product of every shape.
        const auto x = stepped(straight(a));
        const auto fb = flipped(b);
        const auto y = stepped(straight(fb));
        using Y = std::remove_cv_t<decltype(y)>;
        const auto used =
            recast<View<typename Y::Element, Y::stored_columns, Y::stored_rows, Y::layout, true, true>>(y);
        Sizes size;
        size.src1Width = size.src2Width = static_cast<std::uint32_t>(used_columns(b));
        size.src1Height = static_cast<std::uint32_t>(used_rows(a));
        size.src2Height = static_cast<std::uint32_t>(used_rows(b));
        return run<Row<Op::Mul, Kind::ma, Kind::maT>, Scalar<A>, 0>("mul", size, x, used, d);
    }
}

template <class A, class B, class D>
ZELM_INLINE Result product_of_matrices(const A &a, const B &b, const D &d) {
    static_assert(!D::is_vector,
                  "zelm: the product of two matrices is a matrix, the destination is a vector");
    static_assert(may_equal(columns_of<A>, rows_of<B>),
                  "zelm: these matrices can't be multiplied: the columns of the first, as used, are not as "
                  "many as the rows of the "
                  "second");
    static_assert(may_equal(rows_of<A>, D::stored_rows) && may_equal(columns_of<B>, D::stored_columns),
                  "zelm: the destination has not the shape of the product: the rows of the first by the "
                  "columns of the second");
    if (used_columns(a) != used_rows(b) || used_rows(a) != d.rows() || used_columns(b) != d.columns()) {
        return Result("mul", ZELM_ERR_SIZE, sizes_differ);
    }
    constexpr int rows = known(rows_of<A>, D::stored_rows), columns = known(columns_of<B>, D::stored_columns),
                  terms = known(columns_of<A>, rows_of<B>);
    constexpr int N = rows == columns && columns == terms ? named_size(rows) : 0;
    if constexpr (N != 0) {
        using R = Row<Op::Mul, kind_of<A>, kind_of<B>>;
        using T = Scalar<A>;
        constexpr Layout L = R::template choose<T, N>(common_layout<A, B, D>()).layout;
        return run<R, T, N, product_in_place<T, N>(kind_of<A>, kind_of<B>, L)>("mul", Sizes(), a, b, d);
    } else {
        return product_of_any_shape(a, b, d);
    }
}

template <class A, class B, class D>
ZELM_INLINE Result product_with_vector(const A &a, const B &b, const D &d) {
    static_assert(D::is_vector,
                  "zelm: the product of a matrix and a vector is a vector, the destination is a matrix");
    static_assert(may_equal(columns_of<A>, B::stored_columns),
                  "zelm: the vector is not as long as the matrix, as used, has columns");
    static_assert(may_equal(rows_of<A>, D::stored_columns),
                  "zelm: the destination is not as long as the matrix, as used, has rows");
    if (used_columns(a) != b.columns() || used_rows(a) != d.columns()) {
        return Result("mul", ZELM_ERR_SIZE, sizes_differ);
    }
    constexpr int N =
        named_size(known(rows_of<A>, D::stored_columns), known(columns_of<A>, B::stored_columns));
    using T = Scalar<A>;
    if constexpr (N != 0) {
        constexpr Layout L = common_layout<A, B, D>();
        constexpr bool alike = A::is_array ? B::is_array : true;
        constexpr unsigned in_place = alike && (L == Layout::standard || L == Layout::L) ? 2u : 0u;
        return run<Row<Op::Mul, kind_of<A>, kind_of<B>>, T, N, in_place>("mul", Sizes(), a, b, d);
    } else {
        const auto &x = straight(a);
        using X = std::remove_cvref_t<decltype(bare(x))>;
        Sizes size;
        size.src1Width = size.src2Len = static_cast<std::uint32_t>(b.columns());
        size.src1Height = static_cast<std::uint32_t>(d.columns());
        return run<Row<Op::Mul, kind_of<X>, kind_of<B>>, T, 0>("mul", size, bare(x), b, d);
    }
}

template <class A, class B, class D>
ZELM_INLINE Result product(const A &a, const B &b, const D &d) {
    static_assert(!A::is_vector, "zelm: a vector times something: write dot or cross for two vectors, and "
                                 "mul(transposed(A), x, y) for a row vector times a matrix");
    same_elements<A, B, D>();
    valid_destination<D, A::is_array || B::is_array>();
    plain_destination<D>();
    if constexpr (B::is_vector) {
        return product_with_vector(a, b, d);
    } else {
        return product_of_matrices(a, b, d);
    }
}

template <class A, class X, class D>
ZELM_INLINE Result scaled(const A &a, X value, const D &d) {
    return with_constant<Row<Op::Mul, kind_of<A>, Kind::c>>("mul", a, value, d);
}

} // namespace detail

/**
 * d = a * b: the product of two matrices, of a matrix and a vector, or of either and a constant. Matrices of
 * every shape that fit, also transposed.
 */
template <class A, class B, class D>
ZELM_INLINE Result mul(const A &a, const B &b, D &&d) {
    detail::not_only_constants<A, B>();
    if constexpr (detail::is_constant<A>) {
        return mul(b, a, static_cast<D &&>(d));
    } else if constexpr (detail::is_constant<B>) {
        return detail::scaled(detail::view_of(a), b, detail::target<D>(d));
    } else {
        return detail::product(detail::view_of(a), detail::view_of(b), detail::target<D>(d));
    }
}

/** d = a * x + z: the product of one matrix and each vector, plus a vector. */
template <class A, class X, class Z, class D>
ZELM_INLINE Result gaxpy(const A &a, const X &x, const Z &z, D &&d) {
    const auto m = detail::view_of(a);
    const auto v = detail::view_of(x);
    const auto w = detail::view_of(z);
    const auto y = detail::target<D>(d);
    using M = std::remove_cv_t<decltype(m)>;
    using V = std::remove_cv_t<decltype(v)>;
    using W = std::remove_cv_t<decltype(w)>;
    using D1 = std::remove_cv_t<decltype(y)>;
    static_assert(!M::is_vector && V::is_vector && W::is_vector && D1::is_vector,
                  "zelm: gaxpy(A, x, z, d) takes a matrix and three "
                  "vectors");
    static_assert(!M::is_array,
                  "zelm: gaxpy has one matrix for all vectors; for a matrix of each, write mul and add");
    static_assert(V::is_array == W::is_array,
                  "zelm: gaxpy takes x and z both single or both arrays: pass the one that is the same "
                  "for all as an array with object_bytes(0)");
    detail::same_elements<M, V, W, D1>();
    detail::valid_destination<D1, V::is_array>();
    static_assert(
        detail::may_equal(detail::columns_of<M>, V::stored_columns) &&
            detail::may_equal(detail::rows_of<M>, W::stored_columns) &&
            detail::may_equal(detail::rows_of<M>, D1::stored_columns),
        "zelm: the vectors do not fit the matrix: x is as long as it has columns, z and d as it has rows");
    if (detail::used_columns(m) != v.columns() || detail::used_rows(m) != w.columns() ||
        w.columns() != y.columns()) {
        return Result("gaxpy", ZELM_ERR_SIZE, detail::sizes_differ);
    }
    constexpr int N =
        detail::named_size(detail::known(detail::rows_of<M>, W::stored_columns, D1::stored_columns),
                           detail::known(detail::columns_of<M>, V::stored_columns));
    detail::Sizes size;
    size.width = static_cast<std::uint32_t>(v.columns());
    size.height = static_cast<std::uint32_t>(y.columns());
    const auto &s = detail::straight(m);
    using R =
        detail::Row<detail::Op::Gaxpy, detail::Kind::m, V::is_array ? detail::Kind::va : detail::Kind::v>;
    return detail::run<R, detail::Scalar<M>, N>("gaxpy", size, detail::bare(s), v, w, y);
}

} // namespace zelm
