// How the kernels of the peers reach the elements of an object: everything that is known when a row is
// compiled (layout, size, strides) is constant.
#pragma once

#include "problem.h"

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace zelmbench {

enum class Layout { Standard, S2, P, PS2, L, LS2 };

constexpr bool isPlanes(Layout layout) {
    return layout == Layout::P || layout == Layout::PS2;
}
constexpr bool isList(Layout layout) {
    return layout == Layout::L || layout == Layout::LS2;
}
constexpr std::size_t spreadOf(Layout layout) {
    return layout == Layout::S2 || layout == Layout::PS2 || layout == Layout::LS2 ? gap : 1;
}

// Orders and lengths: known, known and small enough to unroll all loops (so that objects go side by side), or
// given.
template <std::size_t n>
struct Fixed {
    static constexpr std::size_t value = n;
    constexpr operator std::size_t() const { return n; }
};
template <std::size_t n>
struct Unrolled : Fixed<n> {};

template <class N>
constexpr bool isUnrolled = false;
template <std::size_t n>
constexpr bool isUnrolled<Unrolled<n>> = true;
template <class N>
constexpr bool isRunTime = std::is_integral_v<N>;

// 0 where it is given at run time.
template <class N>
constexpr std::size_t sizeOf = 0;
template <std::size_t n>
constexpr std::size_t sizeOf<Fixed<n>> = n;
template <std::size_t n>
constexpr std::size_t sizeOf<Unrolled<n>> = n;

// Of local rows and columns: the run-time forms are measured with orders of up to 16.
template <class N>
constexpr std::size_t room = isRunTime<N> ? 16 : sizeOf<N>;

// Calls f(first), ..., f(n - 1).
template <class N, class F>
[[gnu::always_inline]] inline void each(N n, F f, std::size_t first = 0) {
    if constexpr (isUnrolled<N>) {
        [&]<std::size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) {
            ((i >= first ? f(i) : void()), ...);
        }
        (std::make_index_sequence<N::value>{});
    } else {
        for (std::size_t i = first; i < n; ++i) {
            f(i);
        }
    }
}

// The same from n - 1 down to 0.
template <class N, class F>
[[gnu::always_inline]] inline void eachDown(N n, F f) {
    each(
        n, [&](std::size_t i) __attribute__((always_inline)) { f(n - 1 - i); });
}

// An object whose elements lie in line.
template <class T, std::size_t spread, class N>
struct InLine {
    T *first;
    [[no_unique_address]] N columns;
    T &operator()(std::size_t i, std::size_t j) const { return first[(i * columns + j) * spread]; }
    T &operator()(std::size_t j) const { return first[j * spread]; }
};

// An object with each element in a plane of its own.
template <class T, class N>
struct InPlanes {
    T *const *planes;
    std::size_t at;
    [[no_unique_address]] N columns;
    T &operator()(std::size_t i, std::size_t j) const { return planes[i * columns + j][at]; }
    T &operator()(std::size_t j) const { return planes[j][at]; }
};

// An object that was read ahead of the loop over objects, matrices in the order of columns.
template <class T, std::size_t size, std::size_t rows>
struct Held {
    std::array<T, size> values;
    const T &operator()(std::size_t i, std::size_t j) const { return values[j * rows + i]; }
    const T &operator()(std::size_t j) const { return values[j]; }
};

template <class Object>
struct Turned {
    Object object;
    decltype(auto) operator()(std::size_t i, std::size_t j) const { return object(j, i); }
};

// What an operand is: 'v', 'm' or 's' (one number); absent if 0.
template <char shape_, bool isArray_ = false, bool isTransposed_ = false>
struct OperandForm {
    static constexpr char shape = shape_;
    static constexpr bool isArray = isArray_, isTransposed = isTransposed_;
};

// Object k of an operand; dense operands have no gaps in any layout.
template <class T, class OperandForm, Layout layout, bool isDense, class N>
[[gnu::always_inline]] inline auto objectOf(const Operand &operand, std::size_t k, N n) {
    constexpr std::size_t spread = isDense ? 1 : spreadOf(layout);
    if constexpr (OperandForm::shape == 's') {
        return InLine<T, 1, N>{static_cast<T *>(operand.data) + k, n};
    } else if constexpr (isPlanes(layout)) {
        return InPlanes<T, N>{reinterpret_cast<T *const *>(operand.table), k * spread, n};
    } else if constexpr (isList(layout) && OperandForm::isArray) {
        return InLine<T, spread, N>{static_cast<T *>(operand.table[k]), n};
    } else {
        const std::size_t elements = OperandForm::shape == 'm' ? n * n : static_cast<std::size_t>(n);
        return InLine<T, spread, N>{static_cast<T *>(operand.data) + k * elements * spread, n};
    }
}

} // namespace zelmbench
