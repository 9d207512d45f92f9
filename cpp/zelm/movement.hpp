/** @file
 * Data movement: transposes, copies from layout to layout, packed buffers, identities.
 */
#pragma once

#include "zelm/products.hpp"
#include "zelm/sums.hpp"

namespace zelm {
namespace detail {

/** The layout by which Copy, Extract and LoadIdentity see an array: with every stride given. */
ZELM_INLINE constexpr Layout with_strides(Layout layout) {
    return is_by_element(layout) ? Layout::PS2 : is_list(layout) ? Layout::LS2 : Layout::S2;
}

/** What Copy asks of a member: any two layouts go together. */
template <class T, bool Matrices, Layout From, Layout To>
struct CopyRow : Regular {
    static ZelmStatus call_with(const auto &src, const auto &dst, const Sizes &size, std::uint32_t count) {
        return Row < Op::Copy,
               Matrices ? Kind::ma : Kind::va > ::template call<T, From, To>(src, dst, size, count);
    }
};

template <class A, class D>
ZELM_INLINE Result copy_arrays(const char *operation, const A &a, const D &d) {
    constexpr Layout from = with_strides(A::layout), to = with_strides(D::layout);
    // Between two tables the row of vectors reads both from dst's: vectors pass as matrices of one row.
    constexpr bool matrices = !A::is_vector || (from == Layout::PS2 && to == Layout::PS2);
    using R = CopyRow<Scalar<A>, matrices, from, to>;
    Sizes size = result_size(d);
    if (D::is_vector) {
        size.height = 1;
    }
    for (std::size_t k = 0; k < d.count; k += largest_count) {
        const std::size_t objects = d.count - k < largest_count ? d.count - k : largest_count;
        const auto source = a.part(k, objects);
        const auto part = d.part(k, objects);
        const char *refused = refusal<from>(objects, source);
        if (refused == nullptr) {
            refused = refusal<to>(objects, part);
        }
        if (refused != nullptr) {
            return Result(operation, ZELM_ERR_SIZE, refused);
        }
        const ZelmStatus status = R::call_with(source, part, size, static_cast<std::uint32_t>(objects));
        if (status != ZELM_OK) {
            return Result(operation, status);
        }
    }
    return Result(operation, ZELM_OK);
}

template <class A, class D>
ZELM_INLINE Result copy_views(const char *operation, const A &a, const D &d) {
    same_elements<A, D>();
    valid_destination<D, A::is_array>();
    static_assert(A::is_vector == D::is_vector && may_equal(rows_of<A>, rows_of<D>) &&
                      may_equal(columns_of<A>, columns_of<D>),
                  "zelm: a copy has the shape of its source");
    if (used_rows(a) != used_rows(d) || used_columns(a) != used_columns(d)) {
        return Result(operation, ZELM_ERR_SIZE, sizes_differ);
    }
    if (a.count != d.count) {
        return Result(operation, ZELM_ERR_SIZE, "the operands have different numbers of objects");
    }
    const auto &x = straight(a);
    const auto &z = straight(d);
    return copy_arrays(operation, as_array(bare(x)), as_array(bare(z)));
}

} // namespace detail

/** d = a, from any layout to any other. */
template <class A, class D>
ZELM_INLINE Result copy(const A &a, D &&d) {
    return detail::copy_views("copy", detail::view_of(a), detail::target<D>(d));
}

/** d = the transpose of a. */
template <class A, class D>
ZELM_INLINE Result transpose(const A &a, D &&d) {
    const auto x = detail::view_of(a);
    const auto z = detail::target<D>(d);
    using V = std::remove_cv_t<decltype(x)>;
    using W = std::remove_cv_t<decltype(z)>;
    static_assert(!V::is_vector && !W::is_vector, "zelm: transpose takes matrices");
    detail::same_elements<V, W>();
    detail::valid_destination<W, V::is_array>();
    static_assert(detail::may_equal(detail::rows_of<V>, detail::columns_of<W>) &&
                      detail::may_equal(detail::columns_of<V>, detail::rows_of<W>),
                  "zelm: the destination has not the shape of the transpose");
    if (detail::used_rows(x) != detail::used_columns(z) || detail::used_columns(x) != detail::used_rows(z)) {
        return Result("transpose", ZELM_ERR_SIZE, detail::sizes_differ);
    }
    constexpr int N = detail::named_size(detail::known(detail::rows_of<V>, detail::columns_of<W>),
                                         detail::known(detail::columns_of<V>, detail::rows_of<W>));
    if constexpr (V::is_transposed || W::is_transposed) {
        return detail::copy_views("transpose", detail::flipped(x), z);
    } else if constexpr (N == 0 && detail::is_by_element(detail::common_layout<V, W>())) {
        // The run-time form numbers a table by the other's row length.
        static_assert(
            V::has_fixed_shape,
            "zelm: no function transposes by tables of elements of a size known at run time: give a "
            "table in the order of the transpose to zelm::copy");
        return detail::copy_views("transpose", detail::flipped(x), z);
    } else {
        detail::Sizes size;
        size.width = static_cast<std::uint32_t>(x.columns());
        size.height = static_cast<std::uint32_t>(x.rows());
        return detail::run<detail::Row<detail::Op::Transpose, detail::kind_of<V>>, detail::Scalar<V>, N>(
            "transpose", size, x, z);
    }
}

namespace detail {

template <class A, class T>
ZELM_INLINE Result extract_views(const A &a, T *packed) {
    constexpr Layout layout = A::is_array                ? with_strides(A::layout)
                              : is_by_element(A::layout) ? Layout::P
                                                         : Layout::S2;
    if constexpr (A::is_transposed && is_by_element(A::layout)) {
        // Those two forms have readings of T of their own: a copy to packed columns transposes.
        View<T, A::stored_columns, A::stored_rows, Layout::standard, A::is_array> rows;
        rows.first = packed;
        rows.rows_at_run_time = a.columns();
        rows.columns_at_run_time = a.rows();
        rows.row = static_cast<std::ptrdiff_t>(a.rows() * sizeof(T));
        rows.object = static_cast<std::ptrdiff_t>(a.rows() * a.columns() * sizeof(T));
        rows.count = a.count;
        const auto stored = flipped(a);
        const auto turned = flipped(rows);
        const auto &columns = straight(turned);
        return copy_arrays("extract", as_array(stored), as_array(columns));
    } else {
        using R = Row<Op::Extract, kind_of<A>>;
        Sizes size;
        size.len = size.width = static_cast<std::uint32_t>(used_columns(a));
        size.height = static_cast<std::uint32_t>(used_rows(a));
        const std::size_t each = used_columns(a) * (A::is_vector ? 1 : used_rows(a));
        for (std::size_t k = 0; k < a.count; k += largest_count) {
            const std::size_t objects = a.count - k < largest_count ? a.count - k : largest_count;
            const auto part = part_of(a, k, objects);
            if (const char *refused = refusal<layout>(objects, part)) {
                return Result("extract", ZELM_ERR_SIZE, refused);
            }
            const Numbers<T> dst{packed + k * each, objects * each};
            ZelmStatus status;
            if constexpr (A::is_array) {
                status = R::template call<T, 0, layout>(part, dst, size, static_cast<std::uint32_t>(objects));
            } else {
                status = R::template call<T, 0, layout>(part, dst, size);
            }
            if (status != ZELM_OK) {
                return Result("extract", status);
            }
        }
        return Result("extract", ZELM_OK);
    }
}

} // namespace detail

/** Packs the elements of a, row by row and object by object, into a container of numbers that has room for
 * them. */
template <class A, class Packed>
ZELM_INLINE Result extract(const A &a, Packed &&packed) {
    const auto x = detail::view_of(a);
    const auto line = detail::numbers<Packed>(packed);
    using V = std::remove_cv_t<decltype(x)>;
    static_assert(std::is_same_v<detail::Scalar<V>, typename std::remove_cv_t<decltype(line)>::Element>,
                  "zelm: the packed buffer has the element type of the source, and is not const");
    if (line.count < x.count * x.columns() * (V::is_vector ? 1 : x.rows())) {
        return Result("extract", ZELM_ERR_SIZE, "the packed buffer is too short");
    }
    return detail::extract_views(x, line.first);
}

namespace detail {

template <class T, Layout L, class D>
ZELM_INLINE ZelmStatus identity_of_each(const D &d, std::uint32_t n) {
    Sizes size;
    size.width = size.height = n;
    for (std::size_t k = 0; k < d.count; ++k) { // in one call only the first is an identity
        const ZelmStatus status =
            Row<Op::LoadIdentity, Kind::ma>::template call<T, 0, L>(d.part(k, 1), size, 1);
        if (status != ZELM_OK) {
            return status;
        }
    }
    return ZELM_OK;
}

/** The strides are taken as they stand: the function widens a row step below a dense row. */
template <class D>
ZELM_INLINE constexpr bool has_rows_apart(const D &d) {
    const auto sz = static_cast<std::ptrdiff_t>(sizeof(typename D::Element));
    return d.element >= sz && (d.row < 0 || d.row >= static_cast<std::ptrdiff_t>(d.columns()) * sz);
}

} // namespace detail

/** Every matrix of d becomes the identity. */
template <class D>
ZELM_INLINE Result identity(D &&d) {
    const auto z = detail::target<D>(d);
    using V = std::remove_cv_t<decltype(z)>;
    detail::square<V>();
    using T = detail::Scalar<V>;
    static_assert(!std::is_const_v<typename V::Element>, "zelm: the destination is const");
    if (z.rows() != z.columns()) {
        return Result("identity", ZELM_ERR_SIZE, "the matrix is not square");
    }
    constexpr Layout layout = detail::with_strides(V::layout);
    auto array = detail::as_array(z);
    if (const char *refused = detail::refusal<layout>(array.count, array)) {
        return Result("identity", ZELM_ERR_SIZE, refused);
    }
    const auto n = static_cast<std::uint32_t>(z.columns());
    if constexpr (!V::has_table || detail::is_list(V::layout)) {
        if (!detail::has_rows_apart(array)) { // the identity is its own transpose
            const std::ptrdiff_t row = array.row;
            array.row = array.element;
            array.element = row;
        }
        if (!detail::has_rows_apart(array)) {
            return Result("identity", ZELM_ERR_SIZE,
                          "neither the rows nor the columns of the matrix lie apart");
        }
    }
    return Result("identity", detail::identity_of_each<T, layout>(array, n));
}

} // namespace zelm
