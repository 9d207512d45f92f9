/** @file
 * Eigen's matrices and vectors as operands, with their storage order: Matrix, Array, Map, Ref and blocks.
 * Nothing is copied; the functions see column-major matrices by their strides.
 */
#pragma once

#include <Eigen/Core>

#include "zelm.hpp"

namespace zelm {

/** An Eigen matrix of fixed size is one object: in a container, a member or a list. */
template <class T, int Rows, int Columns, int Options, int MaxRows, int MaxColumns>
requires(Rows != Eigen::Dynamic && Columns != Eigen::Dynamic &&
         detail::is_element<T>) struct Object<Eigen::Matrix<T, Rows, Columns, Options, MaxRows, MaxColumns>>
    : detail::Fixed<
          T, Rows == 1 || Columns == 1 ? no_rows : Rows, Rows == 1 || Columns == 1 ? Rows * Columns : Columns,
          (Options & Eigen::RowMajor) != 0 ? Columns * sizeof(T) : sizeof(T),
          Rows == 1 || Columns == 1 || (Options & Eigen::RowMajor) != 0 ? sizeof(T) : Rows * sizeof(T)> {
    static_assert(sizeof(Eigen::Matrix<T, Rows, Columns, Options, MaxRows, MaxColumns>) >=
                  Rows * Columns * sizeof(T));
};

namespace detail {

template <class X>
concept EigenDirect = std::is_base_of_v<Eigen::DenseBase<X>, X> && is_element<typename X::Scalar> &&
                      (Eigen::internal::traits<X>::Flags &Eigen::DirectAccessBit) != 0;

} // namespace detail

/** Whatever Eigen can address directly: its inner and outer strides are those of the view. */
template <detail::EigenDirect X>
struct Adapter<X> {
    static constexpr bool exists = true;
    static constexpr bool is_line = X::IsVectorAtCompileTime;
    static constexpr int rows = is_line                                  ? no_rows
                                : X::RowsAtCompileTime == Eigen::Dynamic ? dynamic
                                                                         : X::RowsAtCompileTime;
    static constexpr int columns =
        is_line ? (X::SizeAtCompileTime == Eigen::Dynamic ? dynamic : X::SizeAtCompileTime)
        : X::ColsAtCompileTime == Eigen::Dynamic ? dynamic
                                                 : X::ColsAtCompileTime;
    // Adjacent elements in a row, known at compile time, are the standard layout.
    static constexpr bool adjacent = X::InnerStrideAtCompileTime == 1 && (is_line || X::IsRowMajor);
    static constexpr bool is_writable =
        (Eigen::internal::traits<std::remove_const_t<X>>::Flags & Eigen::LvalueBit) != 0;

    template <class Y>
    static auto view(Y &x) {
        using T = typename X::Scalar;
        using E =
            std::conditional_t<std::is_const_v<std::remove_pointer_t<decltype(x.data())>> || !is_writable,
                               const T, T>;
        View<E, rows, columns, adjacent ? Layout::standard : Layout::S2, false> view;
        const auto sz = static_cast<std::ptrdiff_t>(sizeof(T));
        const auto inner = static_cast<std::ptrdiff_t>(x.innerStride()) * sz;
        const auto outer = static_cast<std::ptrdiff_t>(x.outerStride()) * sz;
        view.first = x.data();
        view.element = is_line || X::IsRowMajor ? inner : outer;
        view.row = is_line || X::IsRowMajor ? outer : inner;
        view.rows_at_run_time = static_cast<std::size_t>(is_line ? 0 : x.rows());
        view.columns_at_run_time = static_cast<std::size_t>(is_line ? x.size() : x.cols());
        return view;
    }
};

namespace detail {

/** Maps, references and blocks hold no data themselves. */
template <class M, int O, class S>
inline constexpr bool is_borrowed<Eigen::Map<M, O, S>> = true;
template <class M, int R, int C, bool I>
inline constexpr bool is_borrowed<Eigen::Block<M, R, C, I>> = true;
template <class M, int O, class S>
requires(!std::is_const_v<M>) inline constexpr bool is_borrowed<Eigen::Ref<M, O, S>> = true;

} // namespace detail
} // namespace zelm
