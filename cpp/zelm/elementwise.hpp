/** @file
 * Sums, differences and scaled sums, element by element.
 */
#pragma once

#include "zelm/operands.hpp"

namespace zelm {
namespace detail {

/** Where operand i is used as it stands, dst may be it: bit i. */
template <class A, class B>
inline constexpr unsigned plain_operands = (A::is_transposed ? 0u : 1u) | (B::is_transposed ? 0u : 2u);

template <class A, class D>
consteval void same_kind() {
    static_assert(A::is_vector == D::is_vector,
                  "zelm: vectors and matrices are mixed: operands have the shape of the result");
    static_assert(may_equal(rows_of<A>, D::stored_rows) && may_equal(columns_of<A>, D::stored_columns),
                  "zelm: the shapes differ: every operand, as used, has the rows and columns of the result");
}

template <class A, class D>
ZELM_INLINE constexpr bool same_size(const A &a, const D &d) {
    return used_rows(a) == d.rows() && used_columns(a) == d.columns();
}

template <class D>
ZELM_INLINE constexpr Sizes result_size(const D &d) {
    Sizes size;
    size.len = size.width = static_cast<std::uint32_t>(d.columns());
    size.height = static_cast<std::uint32_t>(d.rows());
    return size;
}

template <Op op, class A, class B, class D>
ZELM_INLINE Result combine(const char *operation, const A &a, const B &b, const D &d) {
    same_elements<A, B, D>();
    valid_destination<D, A::is_array || B::is_array>();
    plain_destination<D>();
    same_kind<A, D>();
    same_kind<B, D>();
    if constexpr (op == Op::Add && !Row<op, kind_of<A>, kind_of<B>>::exists) {
        return combine<op>(operation, b, a, d); // the grid has the array first
    } else {
        using R = Row<op, kind_of<A>, kind_of<B>>;
        using T = Scalar<A>;
        constexpr int rows = known(rows_of<A>, rows_of<B>, rows_of<D>),
                      columns = known(columns_of<A>, columns_of<B>, columns_of<D>);
        constexpr int N = D::is_vector ? named_size(columns) : named_size(rows, columns);
        if (!same_size(a, d) || !same_size(b, d)) {
            return Result(operation, ZELM_ERR_SIZE, sizes_differ);
        }
        const Sizes size = result_size(d);
        if constexpr (R::template choose<T, N>(common_layout<A, B, D>()).guard == Guard::tested_by_rows) {
            if (size.width < size.height) {
                const auto array = as_array(a);
                using Array = Row<op, kind_of<std::remove_cv_t<decltype(array)>>, kind_of<B>>;
                return run<Array, T, N>(operation, size, array, b, as_array(d));
            }
        }
        return run<R, T, N, plain_operands<A, B>>(operation, size, a, b, d);
    }
}

template <class R, class A, class D, class X>
ZELM_INLINE Result with_constant(const char *operation, const A &a, X value, const D &d) {
    static_assert(
        R::exists,
        "zelm: constants are added to vectors and subtracted from them, not from matrices: view the matrix "
        "as a vector, as in as_vector<16>(&A[0][0])");
    same_elements<A, D>();
    valid_destination<D, A::is_array>();
    plain_destination<D>();
    same_kind<A, D>();
    using T = Scalar<A>;
    constexpr int columns = known(columns_of<A>, columns_of<D>);
    constexpr int N = D::is_vector ? named_size(columns) : named_size(known(rows_of<A>, rows_of<D>), columns);
    if (!same_size(a, d)) {
        return Result(operation, ZELM_ERR_SIZE, sizes_differ);
    }
    return run < R, T, N, A::is_transposed ? 0u : 1u > (operation, result_size(d), a, constant<T>(value), d);
}

} // namespace detail

/** d = a + b, of vectors or of matrices, also transposed; one of a and b may be a constant beside a vector.
 */
template <class A, class B, class D>
ZELM_INLINE Result add(const A &a, const B &b, D &&d) {
    detail::not_only_constants<A, B>();
    if constexpr (detail::is_constant<A>) {
        return add(b, a, static_cast<D &&>(d));
    } else if constexpr (detail::is_constant<B>) {
        const auto x = detail::view_of(a);
        using R =
            detail::Row<detail::Op::Add, detail::kind_of<std::remove_cv_t<decltype(x)>>, detail::Kind::c>;
        return detail::with_constant<R>("add", x, b, detail::target<D>(d));
    } else {
        return detail::combine<detail::Op::Add>("add", detail::view_of(a), detail::view_of(b),
                                                detail::target<D>(d));
    }
}

/** d = a - b. */
template <class A, class B, class D>
ZELM_INLINE Result sub(const A &a, const B &b, D &&d) {
    detail::not_only_constants<A, B>();
    if constexpr (detail::is_constant<A>) {
        const auto x = detail::view_of(b);
        using R =
            detail::Row<detail::Op::Sub, detail::Kind::c, detail::kind_of<std::remove_cv_t<decltype(x)>>>;
        return detail::with_constant<R>("sub", x, a, detail::target<D>(d));
    } else if constexpr (detail::is_constant<B>) {
        const auto x = detail::view_of(a);
        using R =
            detail::Row<detail::Op::Sub, detail::kind_of<std::remove_cv_t<decltype(x)>>, detail::Kind::c>;
        return detail::with_constant<R>("sub", x, b, detail::target<D>(d));
    } else {
        return detail::combine<detail::Op::Sub>("sub", detail::view_of(a), detail::view_of(b),
                                                detail::target<D>(d));
    }
}

namespace detail {

template <class A, class B, class D>
consteval void vectors_of_a_length() {
    static_assert(A::is_vector && B::is_vector && D::is_vector,
                  "zelm: axpy and lincomb take vectors: view a matrix as one, as in "
                  "as_vector<16>(&A[0][0])");
    same_elements<A, B, D>();
    valid_destination<D, A::is_array || B::is_array>();
    same_kind<A, D>();
    same_kind<B, D>();
}

} // namespace detail

/** d = scale * a + b, of vectors. */
template <class X, class A, class B, class D>
ZELM_INLINE Result axpy(X scale, const A &a, const B &b, D &&d) {
    const auto x = detail::view_of(a);
    const auto y = detail::view_of(b);
    const auto z = detail::target<D>(d);
    using VA = std::remove_cv_t<decltype(x)>;
    using VB = std::remove_cv_t<decltype(y)>;
    using VD = std::remove_cv_t<decltype(z)>;
    detail::vectors_of_a_length<VA, VB, VD>();
    constexpr int N =
        detail::named_size(detail::known(VA::stored_columns, VB::stored_columns, VD::stored_columns));
    if (!detail::same_size(x, z) || !detail::same_size(y, z)) {
        return Result("axpy", ZELM_ERR_SIZE, detail::sizes_differ);
    }
    using T = detail::Scalar<VA>;
    return detail::run<detail::Row<detail::Op::Saxpy, detail::kind_of<VA>, detail::kind_of<VB>>, T, N,
                       0b101u>("axpy", detail::result_size(z), x, detail::constant<T>(scale), y, z);
}

/** d = scale1 * a + scale2 * b, of vectors. */
template <class X, class A, class Y, class B, class D>
ZELM_INLINE Result lincomb(X scale1, const A &a, Y scale2, const B &b, D &&d) {
    const auto x = detail::view_of(a);
    const auto y = detail::view_of(b);
    const auto z = detail::target<D>(d);
    using VA = std::remove_cv_t<decltype(x)>;
    using VB = std::remove_cv_t<decltype(y)>;
    using VD = std::remove_cv_t<decltype(z)>;
    detail::vectors_of_a_length<VA, VB, VD>();
    if constexpr (VB::is_array && !VA::is_array) {
        return lincomb(scale2, y, scale1, x, z); // the grid has the array first
    } else {
        constexpr int N =
            detail::named_size(detail::known(VA::stored_columns, VB::stored_columns, VD::stored_columns));
        if (!detail::same_size(x, z) || !detail::same_size(y, z)) {
            return Result("lincomb", ZELM_ERR_SIZE, detail::sizes_differ);
        }
        using T = detail::Scalar<VA>;
        return detail::run<detail::Row<detail::Op::LComb, detail::kind_of<VA>, detail::kind_of<VB>>, T, N,
                           0b101u>("lincomb", detail::result_size(z), x, detail::constant<T>(scale1), y,
                                   detail::constant<T>(scale2), z);
    }
}

} // namespace zelm
