// LU decomposition and its solver on a group of matrices that lies in registers, one matrix per lane of V.
#pragma once

#include "frame/pack.h"

namespace zelm::solvers {

using namespace zelm::frame;

// A pivot below this counts as zero, in both element types.
constexpr double kLuThreshold = 0x1p-23;

// The multiplier of a row and its negation. Both are defined in 64-bit float and rounded to T; for 32-bit
// float the quotient in T has the same bits (see luFactor), and so has its negation unless it underflows to
// zero.
template <typename T>
struct Multiplier {
    T value, negated;
};

template <typename T>
ZELM_INLINE Multiplier<T> luMultiplier(T element, T pivot) {
    const T value = element / pivot;
    if (sizeof(T) == 4 && value == 0 && element != 0)
        return {value, static_cast<T>(0.0 - static_cast<double>(element) / static_cast<double>(pivot))};
    return {value, T{0} - value};
}

// Factors one matrix in place, its rows left where they are: row order[i] plays the part of row i. False
// where a pivot fails: the contents are then those of that moment.
template <typename T, unsigned N>
bool luFactorAlone(T (&a)[N][N], std::uint32_t (&order)[N]);

// Factors a group in place by the elimination of luDecompThroughDst, but with rows really exchanged: row i of
// the result is row order[i], a number in the element type, of the matrix. False where a lane needs the
// elimination one by one, because its pivot fails or because its multiplier is too small for the element
// type: the contents are then of no use.
template <typename V, unsigned N>
bool luFactor(V (&a)[N][N], V (&order)[N]);

// Solves with L and then with U of the factors a, rows in pivot order; x comes as b in pivot order and goes
// as the solution. F is V, or a block whose lanes are all alike where one matrix serves all lanes.
template <typename V, typename F, unsigned N>
ZELM_INLINE void luForward(const F (&a)[N][N], V (&x)[N]) {
    ZELM_UNROLL
    for (unsigned i = 1; i < N; ++i) {
        V sum = {};
        ZELM_UNROLL
        for (unsigned j = 0; j < i; ++j)
            sum = sum + inLanes<V>(a[i][j]) * x[j];
        x[i] = x[i] - sum;
    }
}
template <typename V, typename F, unsigned N>
ZELM_INLINE void luBackward(const F (&a)[N][N], V (&x)[N]) {
    x[N - 1] = x[N - 1] / inLanes<V>(a[N - 1][N - 1]);
    ZELM_UNROLL
    for (unsigned m = 0; m < N - 1; ++m) {
        const unsigned i = N - 2 - m;
        V sum = {};
        ZELM_UNROLL
        for (unsigned j = i + 1; j < N; ++j)
            sum = sum + inLanes<V>(a[i][j]) * x[j];
        x[i] = (x[i] - sum) / inLanes<V>(a[i][i]);
    }
}

} // namespace zelm::solvers
