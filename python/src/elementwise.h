// Loops of the functions that work element by element. An object is a matrix, a vector or a number.
#pragma once

#include "calls.h"
#include "stretches.h"

namespace zelmpy {

// The library's run-time lengths are 32-bit. Element-wise work can be cut anywhere.
constexpr npy_intp longestVector = npy_intp{1} << 30;

// Vectors, in pieces that the library's lengths can say: work(operands, length, count).
template <std::size_t N, class Work>
void inPieces(std::array<Operand, N> operands, std::size_t inputs, npy_intp count, Work work) {
    npy_intp length = operands[N - 1].columns;
    if (length == 1 && count > 1) { // numbers: one vector of them
        length = count;
        count = 1;
        for (Operand &operand : operands) {
            if (operand.rank > 0) {
                operand.element = operand.object;
            }
        }
    }
    for (npy_intp first = 0; first < length; first += longestVector) {
        const npy_intp part = std::min(length - first, longestVector);
        std::array<Operand, N> local = operands;
        for (Operand &operand : local) {
            if (operand.rank > 0) {
                operand.data += first * operand.element;
                operand.columns = part;
            }
        }
        inStretches(local, inputs, count, longestStretch, InPlace::safe,
                    [&](const auto &stretch, npy_intp objects) { work(stretch, part, objects); });
    }
}

// A matrix of one row is a vector, and so is a matrix that is longer than the library's dimensions, row by
// row.
template <std::size_t N, class Vectors, class Matrices>
void elementwise(const std::array<Operand, N> &operands, std::size_t inputs, npy_intp count, Vectors vectors,
                 Matrices matrices) {
    const Operand &result = operands[N - 1];
    if (count == 0 || result.rows == 0 || result.columns == 0) {
        return;
    }
    if (result.rows == 1) {
        return inPieces(operands, inputs, count, vectors);
    }
    if (tooLong(result.rows, result.columns)) {
        for (npy_intp i = 0; i < result.rows; ++i) {
            std::array<Operand, N> row = operands;
            for (Operand &operand : row) {
                operand.data += i * operand.row;
            }
            inPieces(row, inputs, count, vectors);
        }
        return;
    }
    inStretches(operands, inputs, count, longestStretch, InPlace::safe, matrices);
}

template <class T>
void addLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    Arguments next(data, steps, 3);
    const std::array operands{next.matrix<T>(dims[1], dims[2]), next.matrix<T>(dims[1], dims[2]),
                              next.matrix<T>(dims[1], dims[2])};
    elementwise(
        operands, 2, dims[0],
        [](const auto &o, npy_intp length, npy_intp count) {
            Calls<T>::Add_vava(o[0], o[1], o[2], length, count);
        },
        [](const auto &o, npy_intp count) {
            Calls<T>::Add_mama(o[0], o[1], o[2], o[2].columns, o[2].rows, count);
        });
}

template <class T>
void subtractLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    Arguments next(data, steps, 3);
    const std::array operands{next.matrix<T>(dims[1], dims[2]), next.matrix<T>(dims[1], dims[2]),
                              next.matrix<T>(dims[1], dims[2])};
    elementwise(
        operands, 2, dims[0],
        [](const auto &o, npy_intp length, npy_intp count) {
            Calls<T>::Sub_vava(o[0], o[1], o[2], length, count);
        },
        [](const auto &o, npy_intp count) {
            Calls<T>::Sub_mama(o[0], o[1], o[2], o[2].columns, o[2].rows, count);
        });
}

// The library takes factors by value: where one varies over the stack, every object is a call.
template <std::size_t N, class OneCall>
void withFactors(const std::array<Operand, N> &operands, std::initializer_list<std::size_t> factors,
                 npy_intp count, OneCall oneCall) {
    const bool constant = std::all_of(factors.begin(), factors.end(),
                                      [&](std::size_t factor) { return operands[factor].object == 0; });
    if (constant || count <= 1) {
        return oneCall(operands, count);
    }
    for (npy_intp k = 0; k < count; ++k) {
        std::array<Operand, N> local = operands;
        for (Operand &operand : local) {
            operand.data += k * operand.object;
        }
        oneCall(local, 1);
    }
}

template <class T>
void scaleLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    Arguments next(data, steps, 3);
    const Operand source = next.matrix<T>(dims[1], dims[2]);
    const Operand factor = next.scalar<T>();
    const std::array all{source, factor, next.matrix<T>(dims[1], dims[2])};
    withFactors(all, {1}, dims[0], [](const auto &operands, npy_intp stack) {
        const T value = operands[1].template at<T>(0);
        elementwise(
            std::array{operands[0], operands[2]}, 1, stack,
            [value](const auto &o, npy_intp length, npy_intp count) {
                Calls<T>::Mul_vac(o[0], value, o[1], length, count);
            },
            [value](const auto &o, npy_intp count) {
                Calls<T>::Mul_mac(o[0], value, o[1], o[1].columns, o[1].rows, count);
            });
    });
}

template <class T>
void axpyLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    Arguments next(data, steps, 4);
    const Operand factor = next.scalar<T>();
    const Operand x = next.vector<T>(dims[1]);
    const Operand y = next.vector<T>(dims[1]);
    const std::array all{factor, x, y, next.vector<T>(dims[1])};
    withFactors(all, {0}, dims[0], [](const auto &operands, npy_intp stack) {
        const T value = operands[0].template at<T>(0);
        inPieces(std::array{operands[1], operands[2], operands[3]}, 2, stack,
                 [value](const auto &o, npy_intp length, npy_intp count) {
                     Calls<T>::Saxpy_vava(o[0], value, o[1], o[2], length, count);
                 });
    });
}

template <class T>
void lcombLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    Arguments next(data, steps, 5);
    const Operand first = next.scalar<T>();
    const Operand x = next.vector<T>(dims[1]);
    const Operand second = next.scalar<T>();
    const Operand y = next.vector<T>(dims[1]);
    const std::array all{first, x, second, y, next.vector<T>(dims[1])};
    withFactors(all, {0, 2}, dims[0], [](const auto &operands, npy_intp stack) {
        const T a = operands[0].template at<T>(0);
        const T b = operands[2].template at<T>(0);
        inPieces(std::array{operands[1], operands[3], operands[4]}, 2, stack,
                 [a, b](const auto &o, npy_intp length, npy_intp count) {
                     Calls<T>::LComb_vava(o[0], a, o[1], b, o[2], length, count);
                 });
    });
}

template <class T>
void transposeLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    Arguments next(data, steps, 2);
    const Operand source = next.matrix<T>(dims[1], dims[2]);
    const std::array operands{source, next.matrix<T>(dims[2], dims[1])};
    const npy_intp height = dims[1], width = dims[2];
    if (height == 0 || width == 0) {
        return;
    }
    if (tooLong(height, width)) { // a copy, element by element
        return copyStretch(source, operands[1].transposed(), dims[0]);
    }
    inStretches(operands, 1, dims[0], longestStretch, InPlace::unsafe, [=](const auto &o, npy_intp count) {
        Calls<T>::Transpose_ma(o[0], width, height, o[1], count);
    });
}

} // namespace zelmpy
