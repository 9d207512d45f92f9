// Cholesky decomposition and its solver on a group of matrices that lies in registers, one matrix per lane of
// V. Only lower triangles are read and written; the diagonal of a factor holds reciprocals.
#pragma once

#include "frame/masks.h"
#include "solvers/reciprocal_roots.h"

namespace zelm::solvers {

using namespace zelm::frame;

// Where the reciprocal root of a 32-bit pivot is computed: in 64-bit float, or in the element type.
enum class Root { Widened, InType };

// Factors a in place. False where a pivot of any lane is not positive: the contents are then of no use.
template <Root root, typename V, unsigned N>
ZELM_INLINE bool choleskyFactor(V (&a)[N][N]) {
    const V zero = {};
    Mask<V> fails = noLane<V>();
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        ZELM_UNROLL
        for (unsigned j = 0; j < i; ++j) {
            V s = a[i][j];
            ZELM_UNROLL
            for (unsigned k = 0; k < j; ++k)
                s = s - a[i][k] * a[j][k];
            a[i][j] = s * a[j][j];
        }
        V d = a[i][i];
        ZELM_UNROLL
        for (unsigned k = 0; k < i; ++k)
            d = d - a[i][k] * a[i][k];
        fails = fails | notGreater(d, zero);
        a[i][i] = root == Root::Widened ? reciprocalRootWidened(d) : reciprocalRoot(d);
    }
    return !anyLane(fails);
}

// Solves with L and then with its transpose; x comes as b and goes as the solution. F is V, or a block whose
// lanes are all alike where one matrix serves all lanes.
template <typename V, typename F, unsigned N>
ZELM_INLINE void choleskyForward(const F (&a)[N][N], V (&x)[N]) {
    ZELM_UNROLL
    for (unsigned i = 0; i < N; ++i) {
        V sum = x[i];
        ZELM_UNROLL
        for (unsigned k = 0; k < i; ++k)
            sum = sum - inLanes<V>(a[i][k]) * x[k];
        x[i] = sum * inLanes<V>(a[i][i]);
    }
}
template <typename V, typename F, unsigned N>
ZELM_INLINE void choleskyBackward(const F (&a)[N][N], V (&x)[N]) {
    ZELM_UNROLL
    for (unsigned back = 1; back <= N; ++back) {
        const unsigned i = N - back;
        V sum = x[i];
        ZELM_UNROLL
        for (unsigned k = N - 1; k > i; --k)
            sum = sum - inLanes<V>(a[k][i]) * x[k];
        x[i] = sum * inLanes<V>(a[i][i]);
    }
}

} // namespace zelm::solvers
