// Calls through pointers, with argument lists put together from operands.
#pragma once

#include "library.h"

#include "zelm.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <tuple>

namespace zelmbench {

template <class Arguments>
struct SignatureOf;
template <class... Arguments>
struct SignatureOf<std::tuple<Arguments...>> {
    using Type = ZelmStatus(Arguments...);
};
template <class Arguments>
using Signature = typename SignatureOf<Arguments>::Type;

inline std::tuple<std::uint32_t> countArgument(std::size_t count) {
    return {static_cast<std::uint32_t>(count)};
}

// One call of a library function, with the arguments that argumentsOf(turn) gives.
template <class ArgumentsOf>
std::function<void(std::size_t)> callOf(const std::string &name, ArgumentsOf argumentsOf) {
    auto *function = find<Signature<decltype(argumentsOf(0))>>(name);
    return [function, argumentsOf](std::size_t turn) {
        benchmark::DoNotOptimize(std::apply(function, argumentsOf(turn)));
    };
}

// One call per object, with the arguments that argumentsOf(turn, k) gives.
template <class Function, class ArgumentsOf>
std::function<void(std::size_t)> callPerObject(Function *function, std::size_t count,
                                               ArgumentsOf argumentsOf) {
    // A compiler that knew a peer's function would inline it and measure no call.
    Function *volatile hidden = function;
    Function *const called = hidden;
    return [called, count, argumentsOf](std::size_t turn) {
        for (std::size_t k = 0; k < count; ++k) {
            benchmark::DoNotOptimize(std::apply(called, argumentsOf(turn, k)));
        }
    };
}

template <class ArgumentsOf>
std::function<void(std::size_t)> callPerObject(const std::string &name, std::size_t count,
                                               ArgumentsOf argumentsOf) {
    return callPerObject(find<Signature<decltype(argumentsOf(0, 0))>>(name), count, argumentsOf);
}

// Single-object functions are called for this many objects in turn: few enough to stay in the nearest cache.
inline constexpr std::size_t singles = 128;

// Beyond this many objects the memory decides, and calls one by one are not measured.
inline constexpr std::size_t mostOneByOne = 1000;

// The larger array size, or fewer objects where an operand would pass 200 MB.
template <class T>
constexpr std::size_t manyObjects(std::size_t elements) {
    return std::min<std::size_t>(1000000, 200000000 / (elements * sizeof(T)));
}

} // namespace zelmbench
