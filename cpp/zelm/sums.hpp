/** @file
 * One number or one 3-vector per object: dot and cross products, norms, traces.
 */
#pragma once

#include "zelm/operands.hpp"

namespace zelm {
namespace detail {

template <class A, class Out>
consteval void numbers_of() {
    static_assert(std::is_same_v<Scalar<A>, typename Out::Element>,
                  "zelm: the results are numbers of the operands' element type, and not const");
}

/** An operation on one matrix or vector per object that gives a number; K is its kind in the grid. */
template <Op op, class A, class Out>
ZELM_INLINE Result number_of_each(const char *operation, const A &a, const Out &out) {
    numbers_of<A, Out>();
    const auto &x = straight(a);
    using V = std::remove_cvref_t<decltype(x)>;
    constexpr int N =
        A::is_vector ? named_size(A::stored_columns) : named_size(A::stored_rows, A::stored_columns);
    Sizes size;
    size.len = size.width = size.n = static_cast<std::uint32_t>(x.columns());
    size.height = static_cast<std::uint32_t>(x.rows());
    if constexpr (!A::is_array) {
        if (out.count != 1) {
            return Result(operation, ZELM_ERR_SIZE, "one object gives one number");
        }
    }
    using Viewed =
        View<typename V::Element, V::stored_rows, V::stored_columns, V::layout, V::is_array, false>;
    return run<Row<op, kind_of<Viewed>>, Scalar<A>, N>(operation, size, static_cast<const Viewed &>(x), out);
}

} // namespace detail

/** out = the sum over j of a[j] * b[j], one number per object. */
template <class A, class B, class Out>
ZELM_INLINE Result dot(const A &a, const B &b, Out &&out) {
    const auto x = detail::view_of(a);
    const auto y = detail::view_of(b);
    const auto z = detail::numbers<Out>(out);
    using VA = std::remove_cv_t<decltype(x)>;
    using VB = std::remove_cv_t<decltype(y)>;
    static_assert(VA::is_vector && VB::is_vector,
                  "zelm: dot takes two vectors; the product of a matrix is mul");
    detail::same_elements<VA, VB>();
    detail::numbers_of<VA, std::remove_cv_t<decltype(z)>>();
    static_assert(detail::may_equal(VA::stored_columns, VB::stored_columns),
                  "zelm: dot of vectors of different lengths");
    if constexpr (VB::is_array && !VA::is_array) {
        return dot(y, x, static_cast<Out &&>(out)); // the grid has the array first
    } else {
        constexpr int N = detail::named_size(detail::known(VA::stored_columns, VB::stored_columns));
        if (x.columns() != y.columns()) {
            return Result("dot", ZELM_ERR_SIZE, detail::sizes_differ);
        }
        detail::Sizes size;
        size.len = static_cast<std::uint32_t>(x.columns());
        return detail::run<detail::Row<detail::Op::DotProduct, detail::kind_of<VA>, detail::kind_of<VB>>,
                           detail::Scalar<VA>, N>("dot", size, x, y, z);
    }
}

/** d = a x b, of 3-vectors. */
template <class A, class B, class D>
ZELM_INLINE Result cross(const A &a, const B &b, D &&d) {
    const auto x = detail::view_of(a);
    const auto y = detail::view_of(b);
    const auto z = detail::target<D>(d);
    using VA = std::remove_cv_t<decltype(x)>;
    using VB = std::remove_cv_t<decltype(y)>;
    using VD = std::remove_cv_t<decltype(z)>;
    static_assert(VA::is_vector && VB::is_vector && VD::is_vector && VA::stored_columns == 3 &&
                      VB::stored_columns == 3 && VD::stored_columns == 3,
                  "zelm: cross takes vectors whose type says that they have three elements: "
                  "as_vectors<3>(pointer, count)");
    detail::same_elements<VA, VB, VD>();
    detail::valid_destination<VD, VA::is_array || VB::is_array>();
    return detail::run<detail::Row<detail::Op::CrossProduct, detail::kind_of<VA>, detail::kind_of<VB>>,
                       detail::Scalar<VA>, 3, 0b11u>("cross", detail::Sizes(), x, y, z);
}

/** out = the Euclidean length of each vector. */
template <class A, class Out>
ZELM_INLINE Result norm(const A &a, Out &&out) {
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    static_assert(V::is_vector, "zelm: norm takes vectors; of matrices, write frobenius_norm");
    if constexpr (std::is_same_v<detail::Scalar<V>, float> && detail::named_size(V::stored_columns) != 0) {
        // The forms of adjacent floats multiply by an approximate reciprocal root: NaN for a vector of zeros.
        return detail::number_of_each<detail::Op::L2Norm>("norm", detail::stepped(x),
                                                          detail::numbers<Out>(out));
    } else {
        return detail::number_of_each<detail::Op::L2Norm>("norm", x, detail::numbers<Out>(out));
    }
}

/** As norm, of vectors that are not zero: in float faster, within a few units in the last place. A zero gives
 * NaN. */
template <class A, class Out>
ZELM_INLINE Result norm_nonzero(const A &a, Out &&out) {
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    static_assert(V::is_vector,
                  "zelm: norm_nonzero takes vectors; of matrices, write frobenius_norm_nonzero");
    return detail::number_of_each<detail::Op::L2Norm>("norm_nonzero", x, detail::numbers<Out>(out));
}

/** out = the root of the sum of the squares of each matrix's elements. */
template <class A, class Out>
ZELM_INLINE Result frobenius_norm(const A &a, Out &&out) {
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    static_assert(!V::is_vector, "zelm: frobenius_norm takes matrices; of vectors, write norm");
    if constexpr (std::is_same_v<detail::Scalar<V>, float> &&
                  detail::named_size(V::stored_rows, V::stored_columns) != 0) {
        return detail::number_of_each<detail::Op::FrobNorm>("frobenius_norm", detail::stepped(x),
                                                            detail::numbers<Out>(out));
    } else {
        return detail::number_of_each<detail::Op::FrobNorm>("frobenius_norm", x, detail::numbers<Out>(out));
    }
}

/** As frobenius_norm, of matrices that are not zero: in float faster, within a few units in the last place.
 */
template <class A, class Out>
ZELM_INLINE Result frobenius_norm_nonzero(const A &a, Out &&out) {
    const auto x = detail::view_of(a);
    using V = std::remove_cv_t<decltype(x)>;
    static_assert(!V::is_vector,
                  "zelm: frobenius_norm_nonzero takes matrices; of vectors, write norm_nonzero");
    return detail::number_of_each<detail::Op::FrobNorm>("frobenius_norm_nonzero", x,
                                                        detail::numbers<Out>(out));
}

namespace detail {

template <class V>
consteval void square() {
    static_assert(!V::is_vector && may_equal(V::stored_rows, V::stored_columns),
                  "zelm: this operation takes square matrices");
}

} // namespace detail

/** out = the sum of each square matrix's diagonal. */
template <class A, class Out>
ZELM_INLINE Result trace(const A &a, Out &&out) {
    const auto x = detail::view_of(a);
    detail::square<std::remove_cv_t<decltype(x)>>();
    if (x.rows() != x.columns()) {
        return Result("trace", ZELM_ERR_SIZE, "the matrix is not square");
    }
    return detail::number_of_each<detail::Op::Trace>("trace", x, detail::numbers<Out>(out));
}

} // namespace zelm
