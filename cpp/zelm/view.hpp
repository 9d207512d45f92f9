/** @file
 * The view: what one operand of an operation looks like in memory. Views hold addresses and byte counts,
 * never data.
 */
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

// Optimised code has nothing of this layer in it but the call of the C function.
#if defined(__OPTIMIZE__) && (defined(__GNUC__) || defined(__clang__))
#define ZELM_INLINE [[gnu::always_inline]] inline
#define ZELM_INLINE_LAMBDA __attribute__((always_inline))
#else
#define ZELM_INLINE inline
#define ZELM_INLINE_LAMBDA
#endif

namespace zelm {

/** A size that is known at run time. */
inline constexpr int dynamic = -1;

/** The number of rows of a vector: it has none. */
inline constexpr int no_rows = 0;

/** How elements and objects lie in memory (docs/layouts.md). */
enum class Layout { standard, S2, P, L, PS2, LS2 };

// Byte counts, each with a type of its own, so that none takes another's place.
struct object_bytes {
    std::ptrdiff_t value;
    constexpr explicit object_bytes(std::ptrdiff_t bytes) : value(bytes) {}
};
struct row_bytes {
    std::ptrdiff_t value;
    constexpr explicit row_bytes(std::ptrdiff_t bytes) : value(bytes) {}
};
struct element_bytes {
    std::ptrdiff_t value;
    constexpr explicit element_bytes(std::ptrdiff_t bytes) : value(bytes) {}
};

// Sizes that are known at run time, in elements.
struct length {
    std::size_t value;
    constexpr explicit length(std::size_t elements) : value(elements) {}
};
struct shape {
    std::size_t rows, columns;
};

namespace detail {

template <class>
inline constexpr bool never = false;

// Addresses are computed as numbers: an empty container's null pointer may be moved too, and strides may lead
// anywhere.
template <class T>
ZELM_INLINE T *moved(T *pointer, std::ptrdiff_t bytes) {
    return reinterpret_cast<T *>(reinterpret_cast<std::uintptr_t>(pointer) +
                                 static_cast<std::uintptr_t>(bytes));
}

ZELM_INLINE constexpr bool is_strided(Layout layout) {
    return layout == Layout::S2 || layout == Layout::PS2 || layout == Layout::LS2;
}

/** The objects are reached through a table of pointers to objects. */
ZELM_INLINE constexpr bool is_list(Layout layout) {
    return layout == Layout::L || layout == Layout::LS2;
}

/** The elements are reached through a table of pointers to elements. */
ZELM_INLINE constexpr bool is_by_element(Layout layout) {
    return layout == Layout::P || layout == Layout::PS2;
}

} // namespace detail

/**
 * One operand. T is float or double, const for what is only read. Rows and Columns are those of the matrix as
 * stored; a vector has no_rows and its length in Columns. Make views by the functions of views.hpp.
 */
template <class T, int Rows, int Columns, Layout L, bool Array, bool Transposed = false>
struct View {
    using Element = T;
    static constexpr int stored_rows = Rows;
    static constexpr int stored_columns = Columns;
    static constexpr Layout layout = L;
    static constexpr bool is_array = Array;
    static constexpr bool is_transposed = Transposed;
    static constexpr bool is_vector = Rows == no_rows;
    static constexpr bool has_fixed_shape = Rows != dynamic && Columns != dynamic;
    // Through a table of pointers; a single object beside a list is a plain pointer.
    static constexpr bool has_table = detail::is_by_element(L) || (detail::is_list(L) && Array);

    T *first = nullptr;        // standard, S2
    T *const *table = nullptr; // P, PS2: one entry per element; L, LS2: one per object
    std::ptrdiff_t shift = 0;  // bytes added to every entry
    std::ptrdiff_t object = 0; // bytes from one object to the next
    std::ptrdiff_t row = 0;    // bytes from one row to the next
    std::ptrdiff_t element = static_cast<std::ptrdiff_t>(sizeof(T));
    std::size_t count = 1; // objects
    std::size_t rows_at_run_time = 0;
    std::size_t columns_at_run_time = 0;
    const char *fault = nullptr; // why no operation can take this view

    ZELM_INLINE constexpr std::size_t rows() const {
        return Rows == dynamic ? rows_at_run_time : static_cast<std::size_t>(Rows);
    }
    ZELM_INLINE constexpr std::size_t columns() const {
        return Columns == dynamic ? columns_at_run_time : static_cast<std::size_t>(Columns);
    }
    constexpr std::size_t size() const { return count; }

    /** The objects from number k on, `objects` of them. */
    ZELM_INLINE View part(std::size_t k, std::size_t objects) const {
        View view = *this;
        if constexpr (Array) {
            view.count = objects;
            if constexpr (detail::is_list(L)) {
                view.table = table + k;
            } else {
                // Addresses are counted modulo the word size, as the functions do.
                const auto bytes = static_cast<std::ptrdiff_t>(k * static_cast<std::size_t>(object));
                if constexpr (detail::is_by_element(L)) {
                    view.shift = static_cast<std::ptrdiff_t>(static_cast<std::size_t>(shift) +
                                                             static_cast<std::size_t>(bytes));
                } else {
                    view.first = detail::moved(first, bytes);
                }
            }
        }
        return view;
    }
};

namespace detail {

template <class>
inline constexpr bool is_view = false;
template <class T, int R, int C, Layout L, bool A, bool X>
inline constexpr bool is_view<View<T, R, C, L, A, X>> = true;

/** The same addresses under another type: other sizes, layout or use. */
template <class To, class From>
ZELM_INLINE constexpr To recast(const From &view) {
    To to;
    to.first = view.first;
    to.table = view.table;
    to.shift = view.shift;
    to.object = view.object;
    to.row = view.row;
    to.element = view.element;
    to.count = view.count;
    to.rows_at_run_time = view.rows();
    to.columns_at_run_time = view.columns();
    to.fault = view.fault;
    return to;
}

/** A view that owns its table of elements, of an operand that has none: rows and columns exchanged where
 * asked for. */
template <class T, int Rows, int Columns, Layout L, bool Array, bool Transposed>
struct Tabled : View<T, Rows, Columns, L, Array, Transposed> {
    static constexpr int entries = (Rows == no_rows ? 1 : Rows) * Columns;
    T *own[static_cast<std::size_t>(entries)];

    template <class From>
    ZELM_INLINE explicit Tabled(const From &view, bool exchanged = false)
        : View<T, Rows, Columns, L, Array, Transposed>(
              recast<View<T, Rows, Columns, L, Array, Transposed>>(view)) {
        for (int e = 0; e < entries; ++e) {
            const int i = e / Columns, j = e % Columns; // in the table that is made
            const int r = exchanged ? j : i, c = exchanged ? i : j;
            if constexpr (From::has_table) {
                own[e] = view.table[r * From::stored_columns + c];
            } else {
                own[e] = moved(view.first, r * view.row + c * view.element);
            }
        }
        this->table = own;
    }
    Tabled(const Tabled &) = delete;
    Tabled &operator=(const Tabled &) = delete;
};

} // namespace detail
} // namespace zelm
