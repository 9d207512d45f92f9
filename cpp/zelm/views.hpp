/** @file
 * Views of the caller's memory: what each C++ type looks like, and the functions that make views.
 */
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>
#include <vector>

#include "zelm/view.hpp"

namespace zelm {
namespace detail {

template <class T>
inline constexpr bool is_element = std::is_same_v<T, float> || std::is_same_v<T, double>;

/** Rows of `Columns` elements, a row every RowBytes, an element every ElementBytes. */
template <class T, int Rows, int Columns, std::size_t RowBytes, std::size_t ElementBytes>
struct Fixed {
    static constexpr bool is_object = true, is_scalar = false;
    using Element = T;
    static constexpr int rows = Rows, columns = Columns;
    static constexpr std::ptrdiff_t row = static_cast<std::ptrdiff_t>(RowBytes);
    static constexpr std::ptrdiff_t element = static_cast<std::ptrdiff_t>(ElementBytes);
    static constexpr Layout layout = ElementBytes == sizeof(T) ? Layout::standard : Layout::S2;
};

struct NoObject {
    static constexpr bool is_object = false, is_scalar = false;
};

} // namespace detail

/**
 * How an object of type X lies: one vector or matrix whose size is part of its type. Specialised for arrays,
 * std::array and, in headers of their own, the types of other libraries: derive from detail::Fixed.
 */
template <class X>
struct Object : detail::NoObject {};

/** How a type that holds one vector or matrix of a size known at run time is viewed: a static function view(X
 * &). */
template <class X>
struct Adapter {
    static constexpr bool exists = false;
};

template <>
struct Object<float> : detail::NoObject {
    static constexpr bool is_scalar = true;
    using Element = float;
};
template <>
struct Object<double> : detail::NoObject {
    static constexpr bool is_scalar = true;
    using Element = double;
};

namespace detail {

/** N objects of type Inner side by side: elements make a vector, vectors make a matrix. */
template <class Inner, std::size_t N>
consteval auto side_by_side() {
    if constexpr (Object<Inner>::is_scalar) {
        return Fixed<Inner, no_rows, static_cast<int>(N), 0, sizeof(Inner)>{};
    } else if constexpr (Object<Inner>::is_object) {
        using O = Object<Inner>;
        if constexpr (O::rows == no_rows) {
            return Fixed<typename O::Element, static_cast<int>(N), O::columns, sizeof(Inner), O::element>{};
        } else {
            return NoObject{};
        }
    } else {
        return NoObject{};
    }
}

} // namespace detail

template <class X, std::size_t N>
struct Object<X[N]> : decltype(detail::side_by_side<X, N>()) {};
template <class X, std::size_t N>
struct Object<std::array<X, N>> : decltype(detail::side_by_side<X, N>()) {};

namespace detail {

/** What begins at data(c), data(c) + 1, ...: arrays, spans and whatever has data() and size(). */
template <class C>
concept Contiguous = std::is_array_v<C> || requires(C &c) {
    {c.data() + c.size()};
    requires std::is_pointer_v<decltype(c.data())>;
};

template <class C>
ZELM_INLINE constexpr auto *data(C &c) {
    if constexpr (std::is_array_v<C>) {
        return &c[0];
    } else {
        return c.data();
    }
}

template <class C>
ZELM_INLINE constexpr std::size_t size(C &c) {
    if constexpr (std::is_array_v<C>) {
        return std::extent_v<C>;
    } else {
        return static_cast<std::size_t>(c.size());
    }
}

template <class C>
using Member = std::remove_pointer_t<decltype(detail::data(std::declval<C &>()))>;

template <class From, class T>
using ConstAs = std::conditional_t<std::is_const_v<From>, const T, T>;

/** What may be viewed through a temporary, as it holds no data itself. */
template <class X>
inline constexpr bool is_borrowed = is_view<X> || requires {
    requires X::zelm_is_borrowed;
};
template <class T, std::size_t N>
inline constexpr bool is_borrowed<std::span<T, N>> = true;

template <class X>
consteval void refuse_temporary() {
    static_assert(
        std::is_lvalue_reference_v<X> || is_borrowed<std::remove_cvref_t<X>>,
        "zelm: a view of a temporary container would outlive its data: give the container a name first");
}

/** X is the type of one object, possibly const; `first` its address. */
template <class X>
ZELM_INLINE constexpr auto one_object(X *first) {
    using O = Object<std::remove_cv_t<X>>;
    View<ConstAs<X, typename O::Element>, O::rows, O::columns, O::layout, false> view;
    view.first = reinterpret_cast<decltype(view.first)>(first);
    view.row = O::row;
    view.element = O::element;
    return view;
}

template <class X>
ZELM_INLINE constexpr auto many_objects(X *first, std::size_t count, std::ptrdiff_t bytes) {
    using O = Object<std::remove_cv_t<X>>;
    static_assert(O::is_object,
                  "zelm: the members of this container are no vectors or matrices of float or double: view "
                  "one member of each by field(container, &Struct::member)");
    View<ConstAs<X, typename O::Element>, O::rows, O::columns, O::layout, true> view;
    view.first = reinterpret_cast<decltype(view.first)>(first);
    view.row = O::row;
    view.element = O::element;
    view.object = bytes;
    view.count = count;
    return view;
}

/** Elements at a fixed distance: a vector of a length known at run time. */
template <Layout L = Layout::standard, class T>
ZELM_INLINE constexpr auto elements_in_line(T *first, std::size_t count, std::ptrdiff_t bytes) {
    View<T, no_rows, dynamic, L, false> view;
    view.first = first;
    view.element = bytes;
    view.columns_at_run_time = count;
    return view;
}

template <class C>
inline constexpr int span_extent = dynamic;
template <class T, std::size_t N>
inline constexpr int span_extent<std::span<T, N>> = N == std::dynamic_extent ? dynamic : static_cast<int>(N);

template <class X>
ZELM_INLINE constexpr auto view_of(X &x) {
    using U = std::remove_cv_t<X>;
    if constexpr (is_view<U>) {
        return x;
    } else if constexpr (requires { x.zelm_view(); }) {
        return x.zelm_view();
    } else if constexpr (Adapter<U>::exists) {
        return Adapter<U>::view(x);
    } else if constexpr (Object<U>::is_object) {
        return one_object(&x);
    } else if constexpr (Contiguous<X>) {
        using M = Member<X>;
        if constexpr (is_element<std::remove_cv_t<M>>) {
            if constexpr (span_extent<U> != dynamic) {
                View<M, no_rows, span_extent<U>, Layout::standard, false> view;
                view.first = detail::data(x);
                return view;
            } else {
                return elements_in_line(detail::data(x), detail::size(x), sizeof(M));
            }
        } else {
            return many_objects(detail::data(x), detail::size(x), sizeof(M));
        }
    } else {
        static_assert(
            never<X>,
            "zelm: this type is no vector or matrix of float or double and no container of them: view "
            "it by as_matrices(pointer, ...), field(container, &Struct::member) or components(x, y, z)");
    }
}

template <class S, class M>
ZELM_INLINE constexpr auto &reach(S &object, M member) {
    return object.*member;
}
template <class S, class M, class... More>
ZELM_INLINE constexpr auto &reach(S &object, M member, More... more) {
    return reach(object.*member, more...);
}

/** Room for an object that is never made, to measure where its members are. */
template <class S>
union Room {
    char none;
    S object;
    Room() : none() {}
    Room(const Room &) = delete;
    Room &operator=(const Room &) = delete;
    ~Room() {}
};

template <class S, class... Members>
ZELM_INLINE std::ptrdiff_t offset_of(Members... members) {
    if constexpr (sizeof...(members) == 0) {
        return 0;
    } else {
        Room<S> room;
        return reinterpret_cast<const char *>(std::addressof(reach(room.object, members...))) -
               reinterpret_cast<const char *>(&room);
    }
}

template <class S, class... Members>
using Reached = std::remove_reference_t<decltype(reach(std::declval<S &>(), std::declval<Members>()...))>;

template <class... Strides>
struct Given {
    template <class S>
    static constexpr bool has = (std::is_same_v<S, Strides> || ...);
    static constexpr bool valid =
        ((std::is_same_v<Strides, object_bytes> || std::is_same_v<Strides, row_bytes> ||
          std::is_same_v<Strides, element_bytes>)&&...);
    template <class S>
    static constexpr std::ptrdiff_t get([[maybe_unused]] std::ptrdiff_t otherwise,
                                        [[maybe_unused]] Strides... strides) {
        if constexpr (has<S>) {
            std::ptrdiff_t found = otherwise;
            ((std::is_same_v<S, Strides> ? void(found = strides.value) : void()), ...);
            return found;
        } else {
            return otherwise;
        }
    }
};

/** A view by address and strides; what isn't given is dense. */
template <int Rows, int Columns, bool Array, class T, class... Strides>
ZELM_INLINE constexpr auto strided(T *first, std::size_t rows, std::size_t columns, std::size_t count,
                                   Strides... strides) {
    using G = Given<Strides...>;
    static_assert(is_element<std::remove_cv_t<T>>, "zelm: elements are float or double");
    static_assert(G::valid,
                  "zelm: strides are given as object_bytes(n), row_bytes(n) and element_bytes(n): numbers of "
                  "bytes, each under its name");
    static_assert(Array || !G::template has<object_bytes>, "zelm: one object has no object_bytes");
    static_assert(Rows != no_rows || !G::template has<row_bytes>, "zelm: a vector has no row_bytes");
    View<T, Rows, Columns, G::template has<element_bytes> ? Layout::S2 : Layout::standard, Array> view;
    view.first = first;
    view.rows_at_run_time = rows;
    view.columns_at_run_time = columns;
    view.element = G::template get<element_bytes>(sizeof(T), strides...);
    view.row = G::template get<row_bytes>(static_cast<std::ptrdiff_t>(columns) * view.element, strides...);
    view.object =
        G::template get<object_bytes>(Rows == no_rows ? static_cast<std::ptrdiff_t>(columns) * view.element
                                                      : static_cast<std::ptrdiff_t>(rows) * view.row,
                                      strides...);
    view.count = count;
    return view;
}

template <int Rows, int Columns, bool Array, class T, class... Strides>
ZELM_INLINE constexpr auto by_element(T *const *table, std::size_t rows, std::size_t columns,
                                      std::size_t count, Strides... strides) {
    using G = Given<Strides...>;
    static_assert(is_element<std::remove_cv_t<T>>,
                  "zelm: a table by elements holds pointers to float or to double");
    static_assert(
        G::valid && !G::template has<row_bytes> && !G::template has<element_bytes>,
        "zelm: a table by elements has a pointer for each element, so only object_bytes(n) can be given");
    View<T, Rows, Columns, G::template has<object_bytes> ? Layout::PS2 : Layout::P, Array> view;
    view.table = table;
    view.rows_at_run_time = rows;
    view.columns_at_run_time = columns;
    view.object = G::template get<object_bytes>(sizeof(T), strides...);
    view.count = count;
    return view;
}

template <int Rows, int Columns, class T, class... Strides>
ZELM_INLINE constexpr auto by_object(T *const *table, std::size_t rows, std::size_t columns,
                                     std::size_t count, Strides... strides) {
    using G = Given<Strides...>;
    static_assert(is_element<std::remove_cv_t<T>>,
                  "zelm: a table by objects holds pointers to their first elements; lists of "
                  "structures are viewed by list(pointers, &Struct::member)");
    static_assert(G::valid && !G::template has<object_bytes>,
                  "zelm: a table by objects has a pointer for each object, so there are no object_bytes");
    View<T, Rows, Columns, G::template has<element_bytes> ? Layout::LS2 : Layout::L, true> view;
    view.table = table;
    view.rows_at_run_time = rows;
    view.columns_at_run_time = columns;
    view.element = G::template get<element_bytes>(sizeof(T), strides...);
    view.row = G::template get<row_bytes>(static_cast<std::ptrdiff_t>(columns) * view.element, strides...);
    view.count = count;
    return view;
}

} // namespace detail

// ---- objects whose type says how they lie

/** One object, or the array of objects that a container holds: what operations see when they are given x
 * itself. */
template <class X>
ZELM_INLINE constexpr auto view(X &&x) {
    detail::refuse_temporary<X &&>();
    return detail::view_of(x);
}

/** Each of the objects that x holds: each(float[100][3]) is 100 vectors, where float[100][3] alone is one
 * matrix. */
template <class C>
ZELM_INLINE constexpr auto each(C &&container) {
    detail::refuse_temporary<C &&>();
    using M = detail::Member<std::remove_reference_t<C>>;
    return detail::many_objects(detail::data(container), detail::size(container), sizeof(M));
}

/**
 * One member of each structure of a container, also a member of a member: field(particles, &Particle::state,
 * &State::x). A member that is a number gives a vector as long as the container; components() makes vectors
 * of such members.
 */
template <class C, class... Members>
ZELM_INLINE auto field(C &&container, Members... members) {
    detail::refuse_temporary<C &&>();
    static_assert(sizeof...(members) > 0 && (std::is_member_object_pointer_v<Members> && ...),
                  "zelm: field takes pointers to members: field(container, &Struct::member)");
    using S = detail::Member<std::remove_reference_t<C>>;
    using M = detail::Reached<S, Members...>;
    M *first = reinterpret_cast<M *>(reinterpret_cast<std::uintptr_t>(detail::data(container)) +
                                     static_cast<std::uintptr_t>(detail::offset_of<S>(members...)));
    if constexpr (detail::is_element<std::remove_cv_t<M>>) {
        return detail::elements_in_line<Layout::S2>(first, detail::size(container), sizeof(S));
    } else {
        return detail::many_objects(first, detail::size(container), sizeof(S));
    }
}

/** The same objects used transposed. */
template <class X>
ZELM_INLINE constexpr auto transposed(X &&x) {
    detail::refuse_temporary<X &&>();
    const auto view = detail::view_of(x);
    using V = std::remove_cv_t<decltype(view)>;
    static_assert(!V::is_vector,
                  "zelm: vectors are not transposed: mul(transposed(A), x, y) takes x as it is");
    return detail::recast<View<typename V::Element, V::stored_rows, V::stored_columns, V::layout, V::is_array,
                               !V::is_transposed>>(view);
}

/** Matrices that lie column by column: x[j][i] is the element of row i and column j. */
template <class X>
ZELM_INLINE constexpr auto column_major(X &&x) {
    detail::refuse_temporary<X &&>();
    const auto stored = detail::view_of(x);
    using V = std::remove_cv_t<decltype(stored)>;
    static_assert(!V::is_vector && !detail::is_by_element(V::layout),
                  "zelm: column_major takes matrices that lie in columns; vectors have no columns, and a "
                  "table by elements is "
                  "in the order that its maker chose");
    constexpr Layout layout = detail::is_list(V::layout) ? Layout::LS2 : Layout::S2;
    auto view = detail::recast<
        View<typename V::Element, V::stored_columns, V::stored_rows, layout, V::is_array, V::is_transposed>>(
        stored);
    view.rows_at_run_time = stored.columns();
    view.columns_at_run_time = stored.rows();
    view.row = stored.element;
    view.element = stored.row;
    return view;
}

// ---- one array per component

namespace detail {

template <class T, int Rows, int Columns, Layout L, bool Array>
struct Components {
    static constexpr bool zelm_is_borrowed = true;
    static constexpr std::size_t entries = static_cast<std::size_t>((Rows == no_rows ? 1 : Rows) * Columns);
    T *table[entries];
    std::ptrdiff_t object;
    std::size_t count;
    const char *fault;

    constexpr auto zelm_view() const {
        View<T, Rows, Columns, L, Array> view;
        view.table = table;
        view.object = object;
        view.count = count;
        view.fault = fault;
        return view;
    }
};

template <int Rows, int Columns, class First, class... Views>
ZELM_INLINE constexpr auto make_components(const First &first, const Views &...views) {
    using T = typename First::Element;
    static_assert(
        First::is_vector && !First::is_array && (!Views::is_array && ...) && (Views::is_vector && ...) &&
            !First::has_table && (!Views::has_table && ...),
        "zelm: a component is one array of numbers: a container of float or double, or field(container, "
        "&Struct::number)");
    static_assert(
        (std::is_same_v<T, typename Views::Element> && ...),
        "zelm: the components differ in type: all are float or all are double, all const or none is");
    static_assert(sizeof...(views) + 1 == static_cast<std::size_t>((Rows == no_rows ? 1 : Rows) * Columns),
                  "zelm: components<R, C> takes R * C arrays, row by row");
    constexpr bool dense = First::layout == Layout::standard && ((Views::layout == Layout::standard) && ...);
    const char *fault = nullptr;
    if (!((views.columns() == first.columns()) && ...)) {
        fault = "the components have different lengths";
    } else if (!((views.element == first.element) && ...)) {
        fault = "the components have different distances between their elements: those of one object must be "
                "equal";
    }
    return Components < T, Rows, Columns, dense ? Layout::P : Layout::PS2,
           true > {{first.first, views.first...}, first.element, first.columns(), fault};
}

} // namespace detail

/** Vectors whose components have an array each: components(xs, ys, zs). Nothing is copied. */
template <class... Arrays>
ZELM_INLINE constexpr auto components(Arrays &&...arrays) {
    (detail::refuse_temporary<Arrays &&>(), ...);
    return detail::make_components<no_rows, static_cast<int>(sizeof...(arrays))>(detail::view_of(arrays)...);
}

/** Matrices whose elements have an array each, row by row. */
template <int Rows, int Columns, class... Arrays>
ZELM_INLINE constexpr auto components(Arrays &&...arrays) {
    (detail::refuse_temporary<Arrays &&>(), ...);
    return detail::make_components<Rows, Columns>(detail::view_of(arrays)...);
}

/** One vector whose elements are these numbers, wherever each lies. */
template <class T, class... Ts>
ZELM_INLINE constexpr auto elements(T &first, Ts &...others) {
    static_assert(detail::is_element<std::remove_cv_t<T>> && (std::is_same_v<T, Ts> && ...),
                  "zelm: elements takes numbers, all float or all double, all const or none");
    return detail::Components<T, no_rows, static_cast<int>(sizeof...(others)) + 1, Layout::P, false>{
        {&first, &others...}, 0, 1, nullptr};
}

// ---- lists of objects

/**
 * The objects that a container of pointers leads to, or one member of each. The table of pointers is the
 * container itself: nothing is copied.
 */
template <class C, class... Members>
ZELM_INLINE auto list(C &&pointers, Members... members) {
    detail::refuse_temporary<C &&>();
    using P = std::remove_cv_t<detail::Member<std::remove_reference_t<C>>>;
    static_assert(std::is_pointer_v<P>,
                  "zelm: list takes a container of plain pointers; of indices, write indexed(container, "
                  "indices)");
    static_assert((std::is_member_object_pointer_v<Members> && ...), "zelm: list(pointers, &Struct::member)");
    using S = std::remove_pointer_t<P>;
    if constexpr (sizeof...(members) == 0) {
        static_assert(Object<std::remove_cv_t<S>>::is_object,
                      "zelm: the pointers of this list lead to no vectors or matrices of float or double: "
                      "name the member, as "
                      "in list(pointers, &Struct::member); of bare float pointers, write "
                      "as_vectors_by_object<N>(table, count)");
    }
    const auto make = [&]<class X>(X *) {
        using O = Object<std::remove_cv_t<X>>;
        static_assert(O::is_object, "zelm: this member is no vector or matrix of float or double");
        using T = detail::ConstAs<X, typename O::Element>;
        View<T, O::rows, O::columns, O::layout == Layout::S2 ? Layout::LS2 : Layout::L, true> view;
        view.table = reinterpret_cast<T *const *>(detail::data(pointers));
        view.shift = detail::offset_of<S>(members...);
        view.row = O::row;
        view.element = O::element;
        view.count = detail::size(pointers);
        return view;
    };
    if constexpr (sizeof...(members) == 0) {
        return make(static_cast<S *>(nullptr));
    } else {
        return make(static_cast<detail::Reached<S, Members...> *>(nullptr));
    }
}

namespace detail {

/** A list by indices owns its table of pointers. */
template <class T, int Rows, int Columns, Layout L>
struct Indexed {
    std::vector<T *> table;
    std::ptrdiff_t row, element;
    const char *fault;

    auto zelm_view() const {
        View<T, Rows, Columns, L, true> view;
        view.table = table.data();
        view.row = row;
        view.element = element;
        view.count = table.size();
        view.fault = fault;
        return view;
    }
};

} // namespace detail

/**
 * The objects of a container that `indices` names, or one member of each. Makes a table of pointers, good as
 * long as the container keeps its place: name it to use it again, `auto chosen = indexed(points, indices);`.
 */
template <class C, class Indices, class... Members>
ZELM_INLINE auto indexed(C &&container, const Indices &indices, Members... members) {
    detail::refuse_temporary<C &&>();
    const auto all = [&] {
        if constexpr (sizeof...(members) == 0) {
            return each(container);
        } else {
            return field(container, members...);
        }
    }();
    using V = std::remove_cv_t<decltype(all)>;
    static_assert(V::is_array, "zelm: the indices name vectors or matrices; this member is a number");
    detail::Indexed<typename V::Element, V::stored_rows, V::stored_columns,
                    V::layout == Layout::S2 ? Layout::LS2 : Layout::L>
        made{{}, all.row, all.element, nullptr};
    made.table.reserve(detail::size(indices));
    for (const auto index : indices) {
        const auto number = static_cast<std::size_t>(index);
        if (number >= all.count) {
            made.fault = "an index lies beyond its container";
        }
        made.table.push_back(detail::moved(all.first, static_cast<std::ptrdiff_t>(number) * all.object));
    }
    return made;
}

// ---- pointers and strides

/** as_vector<3>(p), as_vector<3>(p, element_bytes(16)). */
template <int N, class T, class... Strides>
ZELM_INLINE constexpr auto as_vector(T *first, Strides... strides) {
    return detail::strided<no_rows, N, false>(first, 0, N, 1, strides...);
}
/** as_vector(p, length(n)): a vector of n elements. */
template <class T, class... Strides>
ZELM_INLINE constexpr auto as_vector(T *first, length n, Strides... strides) {
    return detail::strided<no_rows, dynamic, false>(first, 0, n.value, 1, strides...);
}
/** as_vectors<3>(p, count), as_vectors<3>(p, count, object_bytes(32), element_bytes(8)). */
template <int N, class T, class... Strides>
ZELM_INLINE constexpr auto as_vectors(T *first, std::size_t count, Strides... strides) {
    return detail::strided<no_rows, N, true>(first, 0, N, count, strides...);
}
template <class T, class... Strides>
ZELM_INLINE constexpr auto as_vectors(T *first, length n, std::size_t count, Strides... strides) {
    return detail::strided<no_rows, dynamic, true>(first, 0, n.value, count, strides...);
}
/** as_matrix<3, 4>(p), as_matrix<3, 4>(p, row_bytes(64)). */
template <int Rows, int Columns, class T, class... Strides>
ZELM_INLINE constexpr auto as_matrix(T *first, Strides... strides) {
    return detail::strided<Rows, Columns, false>(first, Rows, Columns, 1, strides...);
}
/** as_matrix(p, shape{rows, columns}). */
template <class T, class... Strides>
ZELM_INLINE constexpr auto as_matrix(T *first, shape size, Strides... strides) {
    return detail::strided<dynamic, dynamic, false>(first, size.rows, size.columns, 1, strides...);
}
/** as_matrices<4, 4>(p, count), as_matrices<4, 4>(p, count, object_bytes(192), row_bytes(32)). */
template <int Rows, int Columns, class T, class... Strides>
ZELM_INLINE constexpr auto as_matrices(T *first, std::size_t count, Strides... strides) {
    return detail::strided<Rows, Columns, true>(first, Rows, Columns, count, strides...);
}
template <class T, class... Strides>
ZELM_INLINE constexpr auto as_matrices(T *first, shape size, std::size_t count, Strides... strides) {
    return detail::strided<dynamic, dynamic, true>(first, size.rows, size.columns, count, strides...);
}

// ---- tables of pointers: one entry per element, row by row, or one per object

template <int N, class T>
ZELM_INLINE constexpr auto as_vector_by_element(T *const *table) {
    return detail::by_element<no_rows, N, false>(table, 0, N, 1);
}
template <class T>
ZELM_INLINE constexpr auto as_vector_by_element(T *const *table, length n) {
    return detail::by_element<no_rows, dynamic, false>(table, 0, n.value, 1);
}
/** Objects lie side by side at each position, or object_bytes apart. */
template <int N, class T, class... Strides>
ZELM_INLINE constexpr auto as_vectors_by_element(T *const *table, std::size_t count, Strides... strides) {
    return detail::by_element<no_rows, N, true>(table, 0, N, count, strides...);
}
template <class T, class... Strides>
ZELM_INLINE constexpr auto as_vectors_by_element(T *const *table, length n, std::size_t count,
                                                 Strides... strides) {
    return detail::by_element<no_rows, dynamic, true>(table, 0, n.value, count, strides...);
}
template <int Rows, int Columns, class T>
ZELM_INLINE constexpr auto as_matrix_by_element(T *const *table) {
    return detail::by_element<Rows, Columns, false>(table, Rows, Columns, 1);
}
template <class T>
ZELM_INLINE constexpr auto as_matrix_by_element(T *const *table, shape size) {
    return detail::by_element<dynamic, dynamic, false>(table, size.rows, size.columns, 1);
}
template <int Rows, int Columns, class T, class... Strides>
ZELM_INLINE constexpr auto as_matrices_by_element(T *const *table, std::size_t count, Strides... strides) {
    return detail::by_element<Rows, Columns, true>(table, Rows, Columns, count, strides...);
}
template <class T, class... Strides>
ZELM_INLINE constexpr auto as_matrices_by_element(T *const *table, shape size, std::size_t count,
                                                  Strides... strides) {
    return detail::by_element<dynamic, dynamic, true>(table, size.rows, size.columns, count, strides...);
}
template <int N, class T, class... Strides>
ZELM_INLINE constexpr auto as_vectors_by_object(T *const *table, std::size_t count, Strides... strides) {
    return detail::by_object<no_rows, N>(table, 0, N, count, strides...);
}
template <class T, class... Strides>
ZELM_INLINE constexpr auto as_vectors_by_object(T *const *table, length n, std::size_t count,
                                                Strides... strides) {
    return detail::by_object<no_rows, dynamic>(table, 0, n.value, count, strides...);
}
template <int Rows, int Columns, class T, class... Strides>
ZELM_INLINE constexpr auto as_matrices_by_object(T *const *table, std::size_t count, Strides... strides) {
    return detail::by_object<Rows, Columns>(table, Rows, Columns, count, strides...);
}
template <class T, class... Strides>
ZELM_INLINE constexpr auto as_matrices_by_object(T *const *table, shape size, std::size_t count,
                                                 Strides... strides) {
    return detail::by_object<dynamic, dynamic>(table, size.rows, size.columns, count, strides...);
}

} // namespace zelm
