/** @file
 * From views to one call of a C function: the common layout, the tests, and where an array ended.
 */
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "zelm/result.hpp"
#include "zelm/rows.hpp"
#include "zelm/view.hpp"

#ifndef NDEBUG
#include "zelm/overlap.hpp"
#endif

namespace zelm::detail {

/** What one call takes at most: counts are signed in some families. */
inline constexpr std::size_t largest_count = 0x7fffffff;

/** Where the numbers go of which there is one per object: dot products, norms, traces, determinants. */
template <class T>
struct Numbers {
    using Element = T;
    static constexpr bool is_numbers = true;
    T *first;
    std::size_t count;
    const char *fault = nullptr;

    Numbers part(std::size_t k, std::size_t objects) const { return {first + k, objects, nullptr}; }
};

/** The row numbers of LU factors; `step` of them per object, 0 where all objects share them. */
template <class T>
struct Pivots {
    T *first;
    std::size_t step;

    Pivots part(std::size_t k, std::size_t) const { return {first + k * step, step}; }
};

template <class>
inline constexpr bool is_numbers = false;
template <class T>
inline constexpr bool is_numbers<Numbers<T>> = true;
template <class>
inline constexpr bool is_pivots = false;
template <class T>
inline constexpr bool is_pivots<Pivots<T>> = true;

template <class A>
inline constexpr bool is_any_array = false;
template <class T, int R, int C, Layout L, bool X>
inline constexpr bool is_any_array<View<T, R, C, L, true, X>> = true;

// ---- the layout of a call

/** Three families of layouts. One object by strides fits into all of them. */
struct Mixture {
    bool strides = false;  // arrays by strides
    bool elements = false; // anything by a table of elements
    bool lists = false;    // arrays by a table of objects
    bool element_step = false;
    bool object_step = false; // of P: arrays whose objects don't lie side by side

    constexpr bool fits() const { return !(lists && (strides || elements)); }

    constexpr Layout layout() const {
        if (lists) {
            return element_step ? Layout::LS2 : Layout::L;
        }
        if (elements) {
            return object_step ? Layout::PS2 : Layout::P;
        }
        return element_step ? Layout::S2 : Layout::standard;
    }
};

template <class A>
ZELM_INLINE constexpr void add_to(Mixture &mixture) {
    if constexpr (is_view<A>) {
        if constexpr (is_by_element(A::layout)) {
            mixture.elements = true;
            mixture.object_step = mixture.object_step || A::layout == Layout::PS2;
        } else {
            mixture.element_step = mixture.element_step || is_strided(A::layout);
            if constexpr (A::is_array) {
                (is_list(A::layout) ? mixture.lists : mixture.strides) = true;
                mixture.object_step = mixture.object_step || !is_list(A::layout);
            }
        }
    }
}

template <class... As>
consteval Mixture mixture_of() {
    Mixture mixture;
    (add_to<As>(mixture), ...);
    return mixture;
}

template <class... As>
consteval Layout common_layout() {
    constexpr Mixture mixture = mixture_of<As...>();
    static_assert(
        mixture.fits(),
        "zelm: a list of pointers to objects does not go with an array by strides or by components in "
        "one call: bring one of them into the layout of the other by zelm::copy, or view the array's "
        "objects by a list of pointers too");
    return mixture.layout();
}

/** The operand as the layout of the call has it: itself, or with a table of its elements. */
template <Layout L, class A>
ZELM_INLINE constexpr decltype(auto) in_layout(const A &a) {
    if constexpr (!is_view<A>) {
        return (a);
    } else if constexpr (is_by_element(L) && !A::has_table) {
        static_assert(
            A::has_fixed_shape,
            "zelm: beside components, an operand of a size known at run time needs a table of its elements "
            "too: "
            "as_vector_by_element(table, length(n)), as_matrix_by_element(table, shape{rows, columns})");
        return Tabled<typename A::Element, A::stored_rows, A::stored_columns, L, A::is_array,
                      A::is_transposed>(a);
    } else {
        return (a);
    }
}

// ---- tests ahead of a call

template <class A>
ZELM_INLINE constexpr std::size_t count_of(std::size_t count, const A &a) {
    if constexpr (is_any_array<A>) {
        return a.count;
    } else {
        return count;
    }
}

template <class A>
ZELM_INLINE constexpr bool agrees(std::size_t count, [[maybe_unused]] const A &a) {
    if constexpr (is_any_array<A> || is_numbers<A>) {
        return a.count == count;
    } else {
        return true;
    }
}

ZELM_INLINE constexpr bool fits_word(std::ptrdiff_t bytes) {
    if constexpr (sizeof(bytes) > sizeof(std::int32_t)) {
        return bytes == static_cast<std::int32_t>(bytes);
    } else {
        return true;
    }
}

template <Layout L, class A>
ZELM_INLINE constexpr bool strides_fit([[maybe_unused]] const A &a) {
    if constexpr (!is_view<A>) {
        return true;
    } else {
        bool fit = true;
        if constexpr (A::has_table) {
            fit = fits_word(a.shift);
        }
        if constexpr (A::is_array && !is_list(L) && L != Layout::P) {
            fit = fit && fits_word(a.object);
        }
        if constexpr (!is_by_element(L) && !A::is_vector) {
            fit = fit && fits_word(a.row);
        }
        if constexpr (L == Layout::S2 || L == Layout::LS2) {
            fit = fit && fits_word(a.element);
        }
        return fit;
    }
}

template <class A>
ZELM_INLINE constexpr bool size_fits([[maybe_unused]] const A &a) {
    if constexpr (is_view<A>) {
        return a.columns() <= largest_count && a.rows() <= largest_count;
    } else {
        return true;
    }
}

template <class A>
ZELM_INLINE constexpr const char *fault_of([[maybe_unused]] const A &a) {
    if constexpr (is_view<A> || is_numbers<A>) {
        return a.fault;
    } else {
        return nullptr;
    }
}

/** Why the operands can't go into one call; null if they can. What is known at compile time costs nothing. */
template <Layout L, class... As>
ZELM_INLINE constexpr const char *refusal([[maybe_unused]] std::size_t count, const As &...as) {
    const char *fault = nullptr;
    ((fault = fault == nullptr ? fault_of(as) : fault), ...);
    if (fault != nullptr) {
        return fault;
    }
    if (!(agrees(count, as) && ...)) {
        return "the operands have different numbers of objects";
    }
    if (!(strides_fit<L>(as) && ...)) {
        return "a stride or shift of 2^31 bytes or more: the functions take 32-bit distances";
    }
    if (!(size_fits(as) && ...)) {
        return "a size of 2^31 or more elements";
    }
    return nullptr;
}

// ---- parts of arrays

template <class A>
ZELM_INLINE constexpr auto part_of(const A &a, [[maybe_unused]] std::size_t k,
                                   [[maybe_unused]] std::size_t objects) {
    if constexpr (is_any_array<std::remove_cv_t<A>> || is_numbers<A> || is_pivots<A>) {
        return a.part(k, objects);
    } else {
        return a;
    }
}

template <class R, class T, int N, Layout L, class... As>
ZELM_INLINE ZelmStatus call_once(const Sizes &size, std::size_t count, const As &...as) {
    return R::template call<T, N, L>(in_layout<L>(as)..., size, static_cast<std::uint32_t>(count));
}

template <class R, class T, int N, Layout L, class... As>
ZELM_INLINE ZelmStatus call_part(const Sizes &size, std::size_t k, std::size_t objects, const As &...as) {
    return call_once<R, T, N, L>(size, objects, part_of(as, k, objects)...);
}

/** True where a table has no entry for object k. */
template <class A>
ZELM_INLINE constexpr bool is_missing([[maybe_unused]] const A &a, [[maybe_unused]] std::size_t k) {
    if constexpr (is_any_array<A>) {
        if constexpr (is_list(A::layout)) {
            return a.table[k] == nullptr;
        }
    }
    return false;
}

template <class A>
ZELM_INLINE const void *address_of(const A &a) {
    if constexpr (!is_view<A>) {
        return nullptr;
    } else if constexpr (A::has_table) {
        return moved(a.table, a.shift);
    } else {
        return a.first;
    }
}

template <class First, class... As>
ZELM_INLINE bool is_in_place(const First &source, const As &...others) {
    return ((address_of(source) == address_of(others)) || ...);
}

/**
 * A copy, member by member, for what is rarely called: were its address or a copy as a whole taken, the
 * compilers would keep the original in memory.
 */
template <class A>
ZELM_INLINE constexpr auto apart(const A &a) {
    if constexpr (is_view<A>) {
        return recast<A>(a);
    } else if constexpr (is_numbers<A>) {
        return A{a.first, a.count, a.fault};
    } else if constexpr (is_pivots<A>) {
        return A{a.first, a.step};
    } else {
        return a;
    }
}

ZELM_INLINE constexpr Sizes apart(const Sizes &size) {
    Sizes copy;
    copy.len = size.len;
    copy.width = size.width;
    copy.height = size.height;
    copy.n = size.n;
    copy.src1Width = size.src1Width;
    copy.src1Height = size.src1Height;
    copy.src2Width = size.src2Width;
    copy.src2Height = size.src2Height;
    copy.src2Len = size.src2Len;
    return copy;
}

/**
 * The number of the object at which an array ended: the first that has no entry in a table, or the first that
 * fails when the objects are done one by one. In place that can't be done, as the objects before it are
 * replaced already.
 */
template <class R, class T, int N, Layout L, class... As>
[[gnu::cold, gnu::noinline]] std::size_t failed_index(ZelmStatus status, Sizes size, std::size_t count,
                                                      As... as) {
    if (status == ZELM_ERR_NULL_PTR) {
        if constexpr (is_list(L)) {
            for (std::size_t k = 0; k < count; ++k) {
                if ((is_missing(as, k) || ...)) {
                    return k;
                }
            }
        }
        return Result::no_index;
    }
    if constexpr (R::may_fail) {
        if (status == ZELM_ERR_SIZE || is_in_place(as...)) {
            return Result::no_index;
        }
        for (std::size_t k = 0; k < count; ++k) {
            if (call_part<R, T, N, L>(size, k, 1, as...) != ZELM_OK) {
                return k;
            }
        }
    }
    return Result::no_index;
}

/** More objects than one call takes, or none. */
template <class R, class T, int N, Layout L, class... As>
[[gnu::cold, gnu::noinline]] Result call_in_parts(const char *operation, Sizes size, std::size_t count,
                                                  As... as) {
    for (std::size_t k = 0; k < count; k += largest_count) {
        const std::size_t objects = count - k < largest_count ? count - k : largest_count;
        if (const char *refused = refusal<L>(objects, part_of(as, k, objects)...)) {
            return Result(operation, ZELM_ERR_SIZE, refused, k);
        }
        const ZelmStatus status = call_part<R, T, N, L>(size, k, objects, as...);
        if (status != ZELM_OK) {
            return Result(operation, status, nullptr, Result::no_index);
        }
    }
    return Result(operation, ZELM_OK);
}

// ---- one call

/** Calls the member for this size and layout over operands whose layout is settled. */
template <class R, class T, int N, Layout L, class... As>
ZELM_INLINE Result call_array(const char *operation, const Sizes &size, std::size_t count, const As &...as) {
    if (count - 1 >= largest_count) { // none, or more than one call takes
        return call_in_parts<R, T, N, L>(operation, apart(size), count, apart(as)...);
    }
    const ZelmStatus status = call_once<R, T, N, L>(size, count, as...);
    if constexpr (R::may_fail || is_list(L)) {
        if (status != ZELM_OK) {
            return Result(operation, status, nullptr,
                          failed_index<R, T, N, L>(status, apart(size), count, apart(as)...));
        }
    }
    return Result(operation, status);
}

template <class A>
ZELM_INLINE bool lies_alike_modulo_16(const A &a) {
    if constexpr (is_any_array<A>) {
        if constexpr (is_list(A::layout)) {
            std::uintptr_t differences = 0;
            for (std::size_t k = 1; k < a.count; ++k) {
                differences |= reinterpret_cast<std::uintptr_t>(a.table[k]) ^
                               reinterpret_cast<std::uintptr_t>(a.table[0]);
            }
            return differences % 16 == 0;
        } else {
            return a.object % 16 == 0;
        }
    } else {
        return true;
    }
}

template <class First>
ZELM_INLINE constexpr const auto &last_of(const First &only) {
    return only;
}
template <class First, class... More>
ZELM_INLINE constexpr const auto &last_of(const First &, const More &...more) {
    return last_of(more...);
}

/**
 * The whole way: `as` are the operands and values in the order of the row, the destination last. T is the
 * element type, N the size in the function's name or 0. MayCoincide: bit i is set where dst may be operand i.
 */
template <class R, class T, int N, unsigned MayCoincide = 0, class... As>
ZELM_INLINE Result run(const char *operation, const Sizes &size, const As &...as) {
    constexpr Layout wanted = common_layout<As...>();
    constexpr Choice choice = R::template choose<T, N>(wanted);
    constexpr Layout L = choice.layout;
    constexpr bool array = (is_any_array<As> || ...);
    std::size_t count = 1;
    ((count = count_of(count, as)), ...);
    if (const char *refused = refusal<L>(count, as...)) {
        return Result(operation, ZELM_ERR_SIZE, refused);
    }
#ifndef NDEBUG
    if (const char *overlap = find_overlap<MayCoincide>(as...)) {
        return Result(operation, ZELM_ERR_SIZE, overlap);
    }
#endif
    if constexpr (choice.guard == Guard::aligned_stores) {
        if (!lies_alike_modulo_16(last_of(as...))) {
            return call_array < R, T, N,
                   is_list(L) ? Layout::LS2 : Layout::S2 > (operation, size, count, as...);
        }
    }
    if constexpr (array) {
        return call_array<R, T, choice.size, L>(operation, size, count, as...);
    } else {
        return Result(operation, R::template call<T, choice.size, L>(in_layout<L>(as)..., size));
    }
}

} // namespace zelm::detail
