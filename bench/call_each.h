// Calls with argument lists that are known only as a list of kinds: one function per distinct list.
#pragma once

#include "member.h"

#include <type_traits>
#include <utility>

namespace zelmbench {

template <class Type>
Type valueAs(const Value &value) {
    if constexpr (std::is_same_v<Type, float>) {
        return value.f32;
    } else if constexpr (std::is_same_v<Type, double>) {
        // On t7 it would be pushed in two halves, and its reader, in one piece, would wait for both.
        double constant = value.f64;
        asm("" : "+x"(constant));
        return constant;
    } else if constexpr (std::is_pointer_v<Type>) {
        return value.pointer;
    } else {
        return value.word;
    }
}

template <class... Types, std::size_t... i>
void callWith(AnyFunction function, const Value *values, std::index_sequence<i...>) {
    // All pointers, and all words, are passed alike whatever their types are.
    reinterpret_cast<std::int32_t (*)(Types...)>(function)(valueAs<Types>(values[i])...);
}

template <class... Types>
void callEach(AnyFunction function, const Value *values, std::size_t times) {
    for (std::size_t call = 0; call < times; ++call) {
        callWith<Types...>(function, values, std::index_sequence_for<Types...>{});
        values += sizeof...(Types);
    }
}

} // namespace zelmbench
