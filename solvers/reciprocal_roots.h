// Reciprocals of square roots, of elements and of packs.
#pragma once

#include "frame/widened.h"

namespace zelm::solvers {

using namespace zelm::frame;

// One over the square root, in the type of the argument ...
template <typename V>
ZELM_INLINE V reciprocalRoot(V a) {
    return spread<V>(1) / squareRoot(a);
}

// ... and in 64-bit float, rounded once to the type of the argument.
template <typename V>
ZELM_INLINE V reciprocalRootWidened(V a) {
    if constexpr (sizeof(ElementOf<V>) == 8) {
        return reciprocalRoot(a);
    } else {
        WidenedOf<V> roots[kWidenedHalves<V>];
        ZELM_UNROLL
        for (unsigned half = 0; half < kWidenedHalves<V>; ++half)
            roots[half] = reciprocalRoot(widened(a, half));
        return narrowed<V>(roots);
    }
}

} // namespace zelm::solvers
