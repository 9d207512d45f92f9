/** @file
 * GLM's vectors and matrices as operands: matrices are column-major, and the functions see them by their
 * strides.
 */
#pragma once

#include <glm/glm.hpp>

#include "zelm.hpp"

namespace zelm {

template <glm::length_t N, class T, glm::qualifier Q>
requires(detail::is_element<T>) struct Object<glm::vec<N, T, Q>>
    : detail::Fixed<T, no_rows, N, 0, sizeof(T)> {
};

template <glm::length_t Columns, glm::length_t Rows, class T, glm::qualifier Q>
requires(detail::is_element<T>) struct Object<glm::mat<Columns, Rows, T, Q>>
    : detail::Fixed<T, Rows, Columns, sizeof(T), sizeof(glm::vec<Rows, T, Q>)> {
};

} // namespace zelm
