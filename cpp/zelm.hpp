/** @file
 * zelm for C++20: one name per operation, over views of your memory. Every call is a call of one function of
 * <zelm.h>, chosen at compile time by the shapes, element types and layouts of the operands.
 */
#pragma once

// IWYU pragma: begin_exports
#include "zelm/elementwise.hpp"
#include "zelm/movement.hpp"
#include "zelm/products.hpp"
#include "zelm/result.hpp"
#include "zelm/solvers.hpp"
#include "zelm/sums.hpp"
#include "zelm/views.hpp"
// IWYU pragma: end_exports
