// Eigen's view of the objects of a kernel.
#pragma once

#include "register.h"

#include <Eigen/Core>

#include <type_traits>

namespace zelmbench {

// Where the elements of an object lie side by side: of others Eigen makes no packs either.
struct EigenTraits : KernelTraits {
    static constexpr bool isInLine = true;
};

template <class N>
constexpr int eigenSize = sizeOf<N> == 0 ? Eigen::Dynamic : static_cast<int>(sizeOf<N>);

template <class T, class N>
using EigenMatrix = Eigen::Matrix<T, eigenSize<N>, eigenSize<N>, Eigen::RowMajor>;
template <class T, class N>
using EigenVector = Eigen::Matrix<T, eigenSize<N>, 1>;

template <class T, class N>
auto matrixOf(const InLine<T, 1, N> &object) {
    const auto n = static_cast<Eigen::Index>(object.columns);
    return Eigen::Map<EigenMatrix<T, N>>(object.first, n, n);
}
// What serves all objects is held in columns, which is quicker.
template <class T, std::size_t size, std::size_t rows>
auto matrixOf(const Held<T, size, rows> &object) {
    constexpr int order = static_cast<int>(rows);
    return Eigen::Map<const Eigen::Matrix<T, order, order>>(object.values.data());
}
template <class Object>
auto matrixOf(const Turned<Object> &object) {
    return matrixOf(object.object).transpose();
}

template <class T, class N>
auto vectorOf(const InLine<T, 1, N> &object) {
    return Eigen::Map<EigenVector<T, N>>(object.first, static_cast<Eigen::Index>(object.columns));
}
template <class T, std::size_t size, std::size_t rows>
auto vectorOf(const Held<T, size, rows> &object) {
    return Eigen::Map<const EigenVector<T, Fixed<size>>>(object.values.data());
}

} // namespace zelmbench
