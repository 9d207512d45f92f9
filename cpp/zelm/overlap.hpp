/** @file
 * Debug builds: finds a destination that overlaps a source in a way that the operation does not allow.
 */
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "zelm/view.hpp"

namespace zelm::detail {

inline constexpr const char *overlaps =
    "the destination overlaps a source, which this operation does not allow: give the result "
    "memory of its own";

/** The element addresses of an operand: those of one object, repeated `count` times every `step` bytes. */
struct Places {
    std::intptr_t step;
    std::size_t count, rows, columns;
    std::size_t element_bytes;
};

template <class V>
Places places_of(const V &v) {
    if constexpr (requires { v.rows(); }) {
        constexpr bool repeats = V::is_array && !(V::layout == Layout::L || V::layout == Layout::LS2);
        const std::ptrdiff_t step =
            V::layout == Layout::P ? static_cast<std::ptrdiff_t>(sizeof(typename V::Element)) : v.object;
        return {repeats ? step : 0, repeats ? v.count : 1, V::is_vector ? 1 : v.rows(), v.columns(),
                sizeof(typename V::Element)};
    } else {
        return {static_cast<std::intptr_t>(sizeof(typename V::Element)), v.count, 1, 1,
                sizeof(typename V::Element)};
    }
}

/** The address of element e of the object that a list has at k, or of the first object of an array. */
template <class V>
std::intptr_t place(const V &v, [[maybe_unused]] std::size_t k, [[maybe_unused]] std::size_t e) {
    if constexpr (requires { v.rows(); }) {
        const auto i = static_cast<std::ptrdiff_t>(e / v.columns()),
                   j = static_cast<std::ptrdiff_t>(e % v.columns());
        if constexpr (V::layout == Layout::P || V::layout == Layout::PS2) {
            if constexpr (V::has_table) {
                return reinterpret_cast<std::intptr_t>(v.table[e]) + v.shift;
            }
        }
        if constexpr (V::has_table) {
            return reinterpret_cast<std::intptr_t>(v.table[k]) + v.shift + i * v.row + j * v.element;
        } else {
            return reinterpret_cast<std::intptr_t>(v.first) + i * v.row + j * v.element;
        }
    } else {
        return reinterpret_cast<std::intptr_t>(v.first);
    }
}

/** True where one of the repeated elements at a and one of those at b share a byte. */
inline bool meet(std::intptr_t a, const Places &pa, std::intptr_t b, const Places &pb) {
    const auto sz = static_cast<std::intptr_t>(pa.element_bytes);
    const std::intptr_t step = pa.count > 1 ? pa.step : pb.step;
    if (pa.count > 1 && pb.count > 1 && pa.step != pb.step) {
        return false; // not known
    }
    const std::intptr_t difference = b - a;
    const auto near = [&](std::intptr_t m) {
        const std::intptr_t apart = difference + m * step;
        return m > -static_cast<std::intptr_t>(pa.count) && m < static_cast<std::intptr_t>(pb.count) &&
               apart > -sz && apart < sz;
    };
    if (step == 0) {
        return near(0);
    }
    const std::intptr_t m = -difference / step;
    return near(m) || near(m - 1) || near(m + 1);
}

template <class V>
inline constexpr bool has_list = false;
template <class T, int R, int C, bool X>
inline constexpr bool has_list<View<T, R, C, Layout::L, true, X>> = true;
template <class T, int R, int C, bool X>
inline constexpr bool has_list<View<T, R, C, Layout::LS2, true, X>> = true;

/** True where the two overlap, but for a destination that is the source element by element, if that is
 * allowed. */
template <class S, class D>
bool wrongly_overlap(const S &source, const D &dst, bool may_coincide, std::size_t objects) {
    constexpr std::size_t most = 64; // elements of an object; of larger ones nothing is said
    const Places ps = places_of(source), pd = places_of(dst);
    const std::size_t es = ps.rows * ps.columns, ed = pd.rows * pd.columns;
    if (es > most || ed > most) {
        return false;
    }
    for (std::size_t k = 0; k < objects; ++k) {
        if constexpr (has_list<S>) {
            if (source.table[k] == nullptr) {
                return false;
            }
        }
        if constexpr (has_list<D>) {
            if (dst.table[k] == nullptr) {
                return false;
            }
        }
        for (std::size_t d = 0; d < ed; ++d) {
            const std::intptr_t to = place(dst, k, d);
            for (std::size_t s = 0; s < es; ++s) {
                const std::intptr_t from = place(source, k, s);
                const bool same = may_coincide && s == d && from == to && ps.columns == pd.columns &&
                                  (ps.count == pd.count || objects > 1);
                if (!same && meet(from, ps, to, pd)) {
                    return true;
                }
            }
        }
    }
    return false;
}

template <class V>
constexpr bool takes_part = requires(const V &v) {
    v.first;
    v.count;
};

/** MayCoincide: bit i is set where the destination, which is the last operand, may be operand i. */
template <unsigned MayCoincide, class... As>
const char *find_overlap(const As &...as) {
    const char *found = nullptr;
    const auto against = [&]<class D>(const D &dst) {
        unsigned i = 0;
        const auto test = [&]<class S>(const S &source) {
            if constexpr (takes_part<S> && takes_part<D>) {
                if (i + 1 < sizeof...(As)) {
                    std::size_t objects = 1;
                    if constexpr (has_list<S>) {
                        objects = source.count;
                    }
                    if constexpr (has_list<D>) {
                        objects = dst.count;
                    }
                    if (wrongly_overlap(source, dst, (MayCoincide >> i & 1u) != 0, objects)) {
                        found = overlaps;
                    }
                }
            }
            ++i;
        };
        (test(as), ...);
    };
    const auto last = [&]<class A>(const A &a, bool is_last) {
        if (is_last) {
            against(a);
        }
    };
    unsigned n = 0;
    (last(as, ++n == sizeof...(As)), ...);
    return found;
}

} // namespace zelm::detail
