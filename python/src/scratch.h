// Work space of a loop: on the stack while it is small.
#pragma once

#include "numpy.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <xmmintrin.h>

namespace zelmpy {

class Scratch {
public:
    static constexpr npy_intp bytes = 16384; // half of a first-level cache

    // How many objects of this size the stack's share holds, at least one.
    static npy_intp objects(npy_intp size) { return std::max<npy_intp>(1, bytes / size); }

    template <class T>
    T *elements(npy_intp count) {
        return reinterpret_cast<T *>(space(local_, heap_, count * static_cast<npy_intp>(sizeof(T))));
    }
    std::uint32_t *pivots(npy_intp count) {
        return reinterpret_cast<std::uint32_t *>(space(localPivots_, heapPivots_, count * 4));
    }

private:
    template <std::size_t N>
    static char *space(char (&local)[N], std::vector<char> &heap, npy_intp size) {
        const auto wanted = static_cast<std::size_t>(size);
        if (wanted <= N) {
            return local;
        }
        if (heap.size() < wanted) {
            heap.resize(wanted);
        }
        return heap.data();
    }

    alignas(16) char local_[bytes];
    alignas(16) char localPivots_[bytes / 2];
    std::vector<char> heap_, heapPivots_;
};

// The library computes with SSE, and so do the loops.
inline void clearArithmeticFlags() {
    _mm_setcsr(_mm_getcsr() & ~static_cast<unsigned>(_MM_EXCEPT_MASK));
}

} // namespace zelmpy
