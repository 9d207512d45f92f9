/** @file
 * What the operations ask about their operands: kinds, shapes, element types, and other views of the same
 * data.
 */
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "zelm/call.hpp"
#include "zelm/views.hpp"

namespace zelm::detail {

template <class V>
using Scalar = std::remove_const_t<typename V::Element>;

template <class V>
inline constexpr Kind kind_of = V::is_vector       ? (V::is_array ? Kind::va : Kind::v)
                                : V::is_transposed ? (V::is_array ? Kind::maT : Kind::mT)
                                                   : (V::is_array ? Kind::ma : Kind::m);

/** The view itself, without the table that it may own. */
template <class V>
ZELM_INLINE constexpr auto &bare(const V &v) {
    return static_cast<const View<typename V::Element, V::stored_rows, V::stored_columns, V::layout,
                                  V::is_array, V::is_transposed> &>(v);
}

// Rows and columns as used.
template <class V>
inline constexpr int rows_of = V::is_transposed ? V::stored_columns : V::stored_rows;
template <class V>
inline constexpr int columns_of = V::is_transposed ? V::stored_rows : V::stored_columns;

template <class V>
ZELM_INLINE constexpr std::size_t used_rows(const V &v) {
    return V::is_transposed ? v.columns() : v.rows();
}
template <class V>
ZELM_INLINE constexpr std::size_t used_columns(const V &v) {
    return V::is_transposed ? v.rows() : v.columns();
}

/** Both may be equal: one is known at run time only, or they are. */
ZELM_INLINE constexpr bool may_equal(int a, int b) {
    return a == dynamic || b == dynamic || a == b;
}

/** The one that is known at compile time, if any is. */
ZELM_INLINE constexpr int known(int a, int b) {
    return a != dynamic ? a : b;
}
ZELM_INLINE constexpr int known(int a, int b, int c) {
    return known(known(a, b), c);
}

ZELM_INLINE constexpr std::uint32_t extent(int at_compile_time, std::size_t at_run_time) {
    return at_compile_time != dynamic ? static_cast<std::uint32_t>(at_compile_time)
                                      : static_cast<std::uint32_t>(at_run_time);
}

/** The size in the name of a function of vectors or of square matrices; 0 where the run-time form serves. */
ZELM_INLINE constexpr int named_size(int n) {
    return n >= 3 && n <= 6 ? n : 0;
}
ZELM_INLINE constexpr int named_size(int rows, int columns) {
    return rows == columns ? named_size(rows) : 0;
}

inline constexpr const char *sizes_differ = "the shapes of the operands do not fit together";

template <class A, class... Vs>
consteval void same_elements() {
    static_assert(
        (std::is_same_v<Scalar<A>, Scalar<Vs>> && ...),
        "zelm: the operands mix float and double: every operand of a call has the same element type");
}

template <class D, bool Expected>
consteval void valid_destination() {
    static_assert(!std::is_const_v<typename D::Element>, "zelm: the destination is const");
    static_assert(D::is_array || !Expected, "zelm: a source is an array of objects, so the destination is an "
                                            "array of as many: this one is a single object");
    static_assert(!D::is_array || Expected, "zelm: the destination is an array, but every source is a single "
                                            "object: pass one object of the array");
}

template <class D>
consteval void plain_destination() {
    static_assert(
        !D::is_transposed,
        "zelm: a destination is not used transposed: transpose the sources, as (AB)^T = B^T A^T, or "
        "view the destination by column_major");
}

/** What is written through a temporary of this type outlives it. */
template <class X>
inline constexpr bool leads_elsewhere = is_borrowed<X> || requires(const X &x) {
    x.zelm_view();
};

/** What an operation writes, given as a D: an lvalue, or a view of one. */
template <class D>
ZELM_INLINE constexpr auto target(std::remove_reference_t<D> &d) {
    static_assert(std::is_lvalue_reference_v<D &&> || leads_elsewhere<std::remove_cvref_t<D>>,
                  "zelm: the destination is a temporary: its contents would be lost");
    return view_of(d);
}

/** The destination of one number per object. */
template <class D>
ZELM_INLINE constexpr auto numbers(std::remove_reference_t<D> &d) {
    using X = std::remove_reference_t<D>;
    static_assert(std::is_lvalue_reference_v<D &&> || leads_elsewhere<std::remove_cvref_t<D>>,
                  "zelm: the destination is a temporary: its contents would be lost");
    if constexpr (is_element<std::remove_cv_t<X>>) {
        return Numbers<X>{&d, 1};
    } else {
        const auto line = view_of(d);
        using V = std::remove_cv_t<decltype(line)>;
        static_assert(V::is_vector && !V::is_array,
                      "zelm: this operation gives one number per object: pass a number, or a "
                      "container of as many numbers as there are objects");
        static_assert(V::layout == Layout::standard,
                      "zelm: the numbers are written side by side: pass a container of float or "
                      "double, not a member of each structure");
        return Numbers<typename V::Element>{line.first, line.columns(), line.fault};
    }
}

template <class X>
inline constexpr bool is_constant = std::is_arithmetic_v<std::remove_cvref_t<X>>;

template <class A, class B>
consteval void not_only_constants() {
    static_assert(!is_constant<A> || !is_constant<B>, "zelm: both operands are constants");
}

/** A constant, by value in the element type. */
template <class T, class X>
ZELM_INLINE constexpr T constant(X x) {
    static_assert(std::is_same_v<T, X> || std::is_integral_v<X> ||
                      (std::is_same_v<T, double> && std::is_same_v<X, float>),
                  "zelm: the constant is double and the operands are float: write it as a float, as in 0.5f");
    return static_cast<T>(x);
}

// ---- the same data seen in another way

/** Not transposed: with rows and columns exchanged, in a layout that can say so. */
template <class V>
ZELM_INLINE constexpr decltype(auto) straight(const V &v) {
    if constexpr (!V::is_transposed) {
        return (v);
    } else if constexpr (is_by_element(V::layout)) {
        static_assert(V::has_fixed_shape,
                      "zelm: a table by elements of a size known at run time can't be used transposed here: "
                      "give a table in the order of the transpose");
        return Tabled<typename V::Element, V::stored_columns, V::stored_rows, V::layout, V::is_array, false>(
            v, true);
    } else {
        constexpr Layout layout = is_list(V::layout) ? Layout::LS2 : Layout::S2;
        auto w =
            recast<View<typename V::Element, V::stored_columns, V::stored_rows, layout, V::is_array, false>>(
                v);
        w.rows_at_run_time = v.columns();
        w.columns_at_run_time = v.rows();
        w.row = v.element;
        w.element = v.row;
        return w;
    }
}

/** The same matrix used transposed. */
template <class V>
ZELM_INLINE constexpr auto flipped(const V &v) {
    return recast<View<typename V::Element, V::stored_rows, V::stored_columns, V::layout, V::is_array,
                       !V::is_transposed>>(v);
}

/** With an element stride, though its elements are adjacent. */
template <class V>
ZELM_INLINE constexpr auto stepped(const V &v) {
    constexpr Layout layout = V::layout == Layout::standard ? Layout::S2
                              : V::layout == Layout::L      ? Layout::LS2
                                                            : V::layout;
    return recast<
        View<typename V::Element, V::stored_rows, V::stored_columns, layout, V::is_array, V::is_transposed>>(
        v);
}

/** An array of this one object. */
template <class V>
ZELM_INLINE constexpr auto as_array(const V &v) {
    auto w = recast<
        View<typename V::Element, V::stored_rows, V::stored_columns, V::layout, true, V::is_transposed>>(v);
    if constexpr (!V::is_array) {
        w.object = static_cast<std::ptrdiff_t>(sizeof(typename V::Element));
    }
    return w;
}

} // namespace zelm::detail
