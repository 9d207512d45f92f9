// Loops of the families that can refuse an object. The library stops a stack at the first object that it
// refuses and doesn't say which one that is: the stretch is done again, object by object, and the refused
// ones go to NumPy.
#pragma once

#include "calls.h"
#include "hand_over.h"
#include "scratch.h"
#include "state.h"
#include "stretches.h"

#include <cmath>
#include <new>

namespace zelmpy {

constexpr npy_intp retriedStretch = 256; // objects that are computed again if one of them is refused

// call(objects...) for `count` objects from number `first` on; returns the numbers of those that are refused.
template <class Call>
std::vector<npy_intp> refusedOf(npy_intp count, Call call) {
    std::vector<npy_intp> refused;
    if (call(0, count) != ZELM_OK) {
        for (npy_intp k = 0; k < count; ++k) {
            if (call(k, 1) != ZELM_OK) {
                refused.push_back(k);
            }
        }
    }
    return refused;
}

template <class T>
void invLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], n = dims[1];
    Arguments next(data, steps, 2);
    const Operand a = next.matrix<T>(n, n);
    const Operand inverse = next.matrix<T>(n, n);
    if (!fixedSize(n)) { // the run-time form takes small cofactors for zero
        return handOver("inv", {a, inverse}, count);
    }
    inStretches(std::array{a, inverse}, 1, count, retriedStretch, InPlace::unsafe,
                [n](const auto &o, npy_intp objects) {
                    const auto refused = refusedOf(objects, [&](npy_intp k, npy_intp number) {
                        return Calls<T>::Invert_ma(o[0].from(k), n, o[1].from(k), number);
                    });
                    if (!refused.empty()) {
                        handOver("inv", {o[0], o[1]}, objects, &refused);
                    }
                });
}

// ---- LU

// Writes the objects' factors and row numbers, `pivots` side by side.
template <class T>
std::vector<npy_intp> decompose(const Operand &a, std::uint32_t *pivots, const Operand &factors, npy_intp n,
                                npy_intp count) {
    return refusedOf(count, [&](npy_intp k, npy_intp number) {
        return Calls<T>::LUDecomp_ma(a.from(k), pivots + k * n, factors.from(k), n, number);
    });
}

// A right-hand side is a vector, or a matrix whose columns are solved one after the other.
template <class T>
void substitute(const Operand &factors, const std::uint32_t *pivots, const Operand &b, const Operand &x,
                npy_intp n, npy_intp count) {
    if (b.rank == 1) {
        Calls<T>::LUBackSubst_mava(factors, pivots, b, x, n, count);
        return;
    }
    for (npy_intp j = 0; j < b.columns; ++j) {
        Calls<T>::LUBackSubst_mava(factors, pivots, b.column(j), x.column(j), n, count);
    }
}

template <class T>
void solveStretch(const std::array<Operand, 3> &o, npy_intp n, npy_intp count, Scratch &scratch) {
    const auto &[a, b, x] = o;
    const bool shared = a.object == 0 && count > 1; // one matrix for the whole stretch
    const npy_intp systems = shared ? 1 : count;
    T *const elements = scratch.elements<T>(systems * n * n);
    std::uint32_t *const pivots = scratch.pivots(systems * n);
    const Operand factors = denseMatrices(elements, n, n);
    std::vector<npy_intp> refused = decompose<T>(a, pivots, factors, n, systems);
    if (shared && refused.empty()) {
        for (npy_intp j = 0; j < (b.rank == 1 ? 1 : b.columns); ++j) {
            Calls<T>::LUBackSubst_mva(factors, pivots, b.rank == 1 ? b : b.column(j),
                                      x.rank == 1 ? x : x.column(j), n, count);
        }
        return;
    }
    if (shared) {
        return handOver("solve", {a, b, x}, count);
    }
    npy_intp first = 0;
    for (const npy_intp k : refused) { // those between the refused ones
        if (k > first) {
            substitute<T>(factors.from(first), pivots + first * n, b.from(first), x.from(first), n,
                          k - first);
        }
        first = k + 1;
    }
    if (count > first) {
        substitute<T>(factors.from(first), pivots + first * n, b.from(first), x.from(first), n,
                      count - first);
    }
    if (!refused.empty()) {
        handOver("solve", {a, b, x}, count, &refused);
    }
}

template <class T>
void solveAll(const std::array<Operand, 3> &operands, npy_intp n, npy_intp count) {
    if (count == 0 || n == 0 || operands[1].columns == 0) {
        return;
    }
    if (tooLong(n, operands[1].columns)) {
        return handOver("solve", {operands[0], operands[1], operands[2]}, count);
    }
    Scratch scratch;
    const npy_intp longest =
        operands[0].object == 0 ? longestStretch : Scratch::objects(n * n * static_cast<npy_intp>(sizeof(T)));
    inStretches(operands, 2, count, longest, InPlace::unsafe,
                [&](const auto &o, npy_intp objects) { solveStretch<T>(o, n, objects, scratch); });
}

template <class T>
void solveLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp n = dims[1], columns = dims[2];
    Arguments next(data, steps, 3);
    const Operand a = next.matrix<T>(n, n);
    const Operand b = next.matrix<T>(n, columns);
    solveAll<T>({a, b, next.matrix<T>(n, columns)}, n, dims[0]);
}

template <class T>
void solveVectorLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp n = dims[1];
    Arguments next(data, steps, 3);
    const Operand a = next.matrix<T>(n, n);
    const Operand b = next.vector<T>(n);
    solveAll<T>({a, b, next.vector<T>(n)}, n, dims[0]);
}

// An object whose pivots are under the library's absolute threshold, but not zero, is decomposed at another
// scale. By a power of two, which changes no digit: the multipliers stay, and U is scaled back.
template <class T>
bool decomposeScaled(const Operand &a, std::uint32_t *pivots, const Operand &factors, npy_intp n) {
    T largest = 0;
    for (npy_intp i = 0; i < n; ++i) {
        for (npy_intp j = 0; j < n; ++j) {
            largest = std::max(largest, std::fabs(a.at<T>(0, i, j)));
        }
    }
    if (!(largest > 0) || !std::isfinite(largest)) {
        return false;
    }
    // Elimination with pivots at most doubles the largest element with every step: leave room for 64 steps.
    const int exponent = std::numeric_limits<T>::max_exponent - 64 - std::ilogb(largest);
    Scratch scratch;
    const Operand scaled = denseMatrices(scratch.elements<T>(n * n), n, n);
    for (npy_intp i = 0; i < n; ++i) {
        for (npy_intp j = 0; j < n; ++j) {
            scaled.at<T>(0, i, j) = std::ldexp(a.at<T>(0, i, j), exponent);
        }
    }
    if (Calls<T>::LUDecomp_ma(scaled, pivots, factors, n, 1) != ZELM_OK) {
        return false;
    }
    for (npy_intp i = 0; i < n; ++i) {
        for (npy_intp j = i; j < n; ++j) {
            T &element = factors.at<T>(0, pivots[i], j);
            element = std::ldexp(element, -exponent);
        }
    }
    return true;
}

template <class T>
void fillNaN(const Operand &matrix) {
    for (npy_intp i = 0; i < matrix.rows; ++i) {
        for (npy_intp j = 0; j < matrix.columns; ++j) {
            matrix.at<T>(0, i, j) = std::numeric_limits<T>::quiet_NaN();
        }
    }
}

template <class T>
void luFactorLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], n = dims[1];
    Arguments next(data, steps, 3);
    const Operand a = next.matrix<T>(n, n);
    const Operand factors = next.matrix<T>(n, n);
    const Operand rows = next.vector<std::uint32_t>(n);
    if (count == 0 || n == 0) {
        return;
    }
    Scratch scratch;
    inStretches(std::array{a, factors, rows}, 1, count, retriedStretch, InPlace::unsafe,
                [&](const auto &o, npy_intp objects) {
                    std::uint32_t *const pivots = scratch.pivots(objects * n);
                    for (const npy_intp k : decompose<T>(o[0], pivots, o[1], n, objects)) {
                        if (!decomposeScaled<T>(o[0].from(k), pivots + k * n, o[1].from(k), n)) {
                            fillNaN<T>(o[1].from(k));
                            ++state().refused;
                        }
                    }
                    for (npy_intp k = 0; k < objects; ++k) {
                        for (npy_intp i = 0; i < n; ++i) {
                            o[2].template at<std::uint32_t>(k, 0, i) = pivots[k * n + i];
                        }
                    }
                });
}

template <class T>
void luSolveAll(const std::array<Operand, 4> &operands, npy_intp n, npy_intp count) {
    if (count == 0 || n == 0 || operands[2].columns == 0) {
        return;
    }
    Scratch scratch;
    inStretches(operands, 3, count, retriedStretch, InPlace::unsafe, [&](const auto &o, npy_intp objects) {
        std::uint32_t *const pivots = scratch.pivots(objects * n);
        for (npy_intp k = 0; k < objects; ++k) {
            bool inside = true;
            for (npy_intp i = 0; i < n; ++i) {
                pivots[k * n + i] = o[1].template at<std::uint32_t>(k, 0, i);
                inside &= pivots[k * n + i] < static_cast<std::uint32_t>(n);
            }
            if (!inside) { // the library follows row numbers as they are
                std::fill_n(pivots + k * n, n, 0u);
                ++state().refused;
            }
        }
        substitute<T>(o[0], pivots, o[2], o[3], n, objects);
    });
}

template <class T>
void luSolveLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp n = dims[1], columns = dims[2];
    Arguments next(data, steps, 4);
    const Operand factors = next.matrix<T>(n, n);
    const Operand rows = next.vector<std::uint32_t>(n);
    const Operand b = next.matrix<T>(n, columns);
    luSolveAll<T>({factors, rows, b, next.matrix<T>(n, columns)}, n, dims[0]);
}

template <class T>
void luSolveVectorLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp n = dims[1];
    Arguments next(data, steps, 4);
    const Operand factors = next.matrix<T>(n, n);
    const Operand rows = next.vector<std::uint32_t>(n);
    const Operand b = next.vector<T>(n);
    luSolveAll<T>({factors, rows, b, next.vector<T>(n)}, n, dims[0]);
}

// ---- Cholesky

// The library leaves what was above the diagonal.
template <class T>
void clearAbove(const Operand &factors, npy_intp n, npy_intp count) {
    for (npy_intp k = 0; k < count; ++k) {
        for (npy_intp i = 0; i < n; ++i) {
            for (npy_intp j = i + 1; j < n; ++j) {
                factors.at<T>(k, i, j) = 0;
            }
        }
    }
}

// The library stores reciprocals on the diagonal. The factor itself has the roots of the pivots, which are
// computed here as the library computes them.
template <class T>
void restoreDiagonal(const Operand &a, const Operand &factors, npy_intp n, npy_intp count) {
    for (npy_intp k = 0; k < count; ++k) {
        for (npy_intp i = 0; i < n; ++i) {
            T pivot = a.at<T>(k, i, i);
            for (npy_intp j = 0; j < i; ++j) {
                pivot -= factors.at<T>(k, i, j) * factors.at<T>(k, i, j);
            }
            factors.at<T>(k, i, i) = std::sqrt(pivot);
        }
    }
}

template <class T, bool stored>
void choleskyLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], n = dims[1];
    Arguments next(data, steps, 2);
    const Operand a = next.matrix<T>(n, n);
    const Operand factors = next.matrix<T>(n, n);
    if (count == 0 || n == 0) {
        return;
    }
    const npy_intp longest =
        std::min(retriedStretch, Scratch::objects(n * n * static_cast<npy_intp>(sizeof(T))));
    inStretches(std::array{a, factors}, 1, count, longest, InPlace::unsafe,
                [n](const auto &o, npy_intp objects) {
                    const auto refused = refusedOf(objects, [&](npy_intp k, npy_intp number) {
                        return Calls<T>::CholeskyDecomp_ma(o[0].from(k), o[1].from(k), n, number);
                    });
                    clearAbove<T>(o[1], n, objects);
                    if constexpr (!stored) {
                        restoreDiagonal<T>(o[0], o[1], n, objects);
                    }
                    if (!refused.empty()) {
                        handOver(stored ? "cho_factor" : "cholesky", {o[0], o[1]}, objects, &refused);
                    }
                });
}

template <class T>
void choSolveAll(const std::array<Operand, 3> &operands, npy_intp n, npy_intp count) {
    if (count == 0 || n == 0 || operands[1].columns == 0) {
        return;
    }
    inStretches(operands, 2, count, longestStretch, InPlace::unsafe, [n](const auto &o, npy_intp objects) {
        if (o[1].rank == 1) {
            Calls<T>::CholeskyBackSubst_mava(o[0], o[1], o[2], n, objects);
            return;
        }
        for (npy_intp j = 0; j < o[1].columns; ++j) {
            Calls<T>::CholeskyBackSubst_mava(o[0], o[1].column(j), o[2].column(j), n, objects);
        }
    });
}

template <class T>
void choSolveLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp n = dims[1], columns = dims[2];
    Arguments next(data, steps, 3);
    const Operand factors = next.matrix<T>(n, n);
    const Operand b = next.matrix<T>(n, columns);
    choSolveAll<T>({factors, b, next.matrix<T>(n, columns)}, n, dims[0]);
}

template <class T>
void choSolveVectorLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp n = dims[1];
    Arguments next(data, steps, 3);
    const Operand factors = next.matrix<T>(n, n);
    const Operand b = next.vector<T>(n);
    choSolveAll<T>({factors, b, next.vector<T>(n)}, n, dims[0]);
}

// Runs a loop and leaves no trace of its arithmetic: like numpy.linalg, these functions report what has no
// result and don't warn of what happened on the way. A loop must not throw.
template <void (*loop)(char **, const npy_intp *, const npy_intp *, void *)>
void quietly(char **data, const npy_intp *dims, const npy_intp *steps, void *extra) {
    try {
        loop(data, dims, steps, extra);
    } catch (const std::bad_alloc &) {
        state().outOfMemory = true;
    }
    clearArithmeticFlags();
}

} // namespace zelmpy
