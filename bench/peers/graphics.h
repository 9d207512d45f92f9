// What cglm and GLM have of the operations: 3x3 and 4x4 in the standard layout.
//
// Their matrices lie in columns, so that they take a matrix in rows for its transpose: a product of two has
// its factors exchanged, and a product by a vector serves the transposed rows and what is held in columns.
#pragma once

#include "register.h"

namespace zelmbench {

template <class T, std::size_t spread, class N>
T *firstOf(const InLine<T, spread, N> &object) {
    return object.first;
}
template <class Object>
auto firstOf(const Turned<Object> &object) {
    return firstOf(object.object);
}
template <class T, std::size_t size, std::size_t rows>
T *firstOf(const Held<T, size, rows> &object) {
    return const_cast<T *>(object.values.data()); // cglm's arguments are never const
}

enum class What { Product, VectorProduct, Inverse, Transposition, Determinant, Dot, Cross, Norm };

template <class Library, What what>
struct Graphics : KernelTraits {
    static constexpr const char *operation = what == What::Inverse         ? "Invert"
                                             : what == What::Transposition ? "Transpose"
                                             : what == What::Determinant   ? "Det"
                                             : what == What::Dot           ? "DotProduct"
                                             : what == What::Cross         ? "CrossProduct"
                                             : what == What::Norm          ? "L2Norm"
                                                                           : "Mul";
    static constexpr bool isNumber = what == What::Determinant || what == What::Dot || what == What::Norm;
    static constexpr bool isVector = what == What::VectorProduct || what == What::Cross;
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, isNumber   ? 's'
                                                     : isVector ? 'v'
                                                                : 'm'>;

    template <class N, class T>
    static void object(N, const auto &a, const auto &b, int, auto d, const Extras<T> &) {
        using Calls = typename Library::template Calls<T, N>;
        if constexpr (what == What::Product) {
            Calls::multiply(a, b, d);
        } else if constexpr (what == What::VectorProduct) {
            Calls::multiplyVector(a, b, d);
        } else if constexpr (what == What::Inverse) {
            Calls::invert(a, d);
        } else if constexpr (what == What::Transposition) {
            Calls::transpose(a, d);
        } else if constexpr (what == What::Determinant) {
            d(0) = Calls::determinant(a);
        } else if constexpr (what == What::Dot) {
            d(0) = Calls::dot(a, b);
        } else if constexpr (what == What::Cross) {
            Calls::cross(a, b, d);
        } else {
            d(0) = Calls::norm(a);
        }
    }
};

template <class Library, What what, class T, std::size_t size, Text... descriptors>
void add(std::vector<Peer> &peers, const char *name) {
    (addLoopsOf<Graphics<Library, what>, descriptors, T, Layout::Standard, Fixed<size>>(peers, name), ...);
}

template <class Library, class T, std::size_t size>
void addOrder(std::vector<Peer> &peers, const char *name) {
    add<Library, What::Product, T, size, "mm", "mama">(peers, name);
    add<Library, What::VectorProduct, T, size, "mTv", "mva", "mTva", "maTva">(peers, name);
    add<Library, What::Inverse, T, size, "m", "ma">(peers, name);
    add<Library, What::Transposition, T, size, "m", "ma">(peers, name);
    add<Library, What::Determinant, T, size, "m", "ma">(peers, name);
    add<Library, What::Dot, T, size, "vv", "vav", "vava">(peers, name);
    add<Library, What::Norm, T, size, "v", "va">(peers, name);
}

template <class Library, class T>
void addLibrary(std::vector<Peer> &peers, const char *name) {
    addOrder<Library, T, 3>(peers, name);
    addOrder<Library, T, 4>(peers, name);
    add<Library, What::Cross, T, 3, "vv", "vav", "vava", "vva">(peers, name);
}

} // namespace zelmbench
