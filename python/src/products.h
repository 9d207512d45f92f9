// Loops of the products and of the functions that give one number per object.
#pragma once

#include "calls.h"
#include "hand_over.h"
#include "stretches.h"

namespace zelmpy {

template <class T>
void fillZeros(const Operand &operand, npy_intp count) {
    for (npy_intp k = 0; k < count; ++k) {
        for (npy_intp i = 0; i < operand.rows; ++i) {
            for (npy_intp j = 0; j < operand.columns; ++j) {
                operand.at<T>(k, i, j) = 0;
            }
        }
    }
}

// One product of the shape (height, inner) x (inner, width).
template <class T>
void multiply(const std::array<Operand, 3> &o, npy_intp count) {
    const auto &[a, b, c] = o;
    const npy_intp height = a.rows, inner = a.columns, width = b.columns;
    if (fixedSize(height, inner, width)) {
        Calls<T>::Mul_mama(a, inner, height, b, width, inner, c, count);
    } else if (width == 1) {
        Calls<T>::Mul_mava(a, inner, height, b.column(0), inner, c.column(0), count);
    } else if (height == 1) { // a row times a matrix: the transposed matrix times a column
        const Operand turned = b.transposed();
        Calls<T>::Mul_mava(turned, inner, width, a.transposed().column(0), inner, c.transposed().column(0),
                           count);
    } else { // the one form whose bounds are the true product's: src2 transposed, with exchanged strides
        Calls<T>::Mul_mamaT(a, width, height, b.transposed(), width, inner, c, count);
    }
}

template <class T>
void matmulLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], height = dims[1], inner = dims[2], width = dims[3];
    Arguments next(data, steps, 3);
    const Operand a = next.matrix<T>(height, inner);
    const Operand b = next.matrix<T>(inner, width);
    const Operand c = next.matrix<T>(height, width);
    if (count == 0 || height == 0 || width == 0) {
        return;
    }
    if (inner == 0) {
        return fillZeros<T>(c, count);
    }
    if (tooLong(height, inner, width)) {
        return handOver("matmul", {a, b, c}, count);
    }
    inStretches(std::array{a, b, c}, 2, count, longestStretch, InPlace::unsafe, multiply<T>);
}

template <class T>
void matvecLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], height = dims[1], width = dims[2];
    Arguments next(data, steps, 3);
    const Operand a = next.matrix<T>(height, width);
    const Operand x = next.vector<T>(width);
    const Operand y = next.vector<T>(height);
    if (count == 0 || height == 0) {
        return;
    }
    if (width == 0) {
        return fillZeros<T>(y, count);
    }
    if (tooLong(height, width)) {
        return handOver("matvec", {a, x, y}, count);
    }
    inStretches(std::array{a, x, y}, 2, count, longestStretch, InPlace::unsafe,
                [=](const auto &o, npy_intp objects) {
                    Calls<T>::Mul_mava(o[0], width, height, o[1], width, o[2], objects);
                });
}

template <class T>
void gaxpyLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], height = dims[1], width = dims[2];
    Arguments next(data, steps, 4);
    const Operand a = next.matrix<T>(height, width);
    const Operand x = next.vector<T>(width);
    const Operand z = next.vector<T>(height);
    const Operand y = next.vector<T>(height);
    if (count == 0 || height == 0) {
        return;
    }
    if (width == 0) {
        return copyStretch(z, y, count);
    }
    if (tooLong(height, width)) {
        return handOver("gaxpy", {a, x, z, y}, count);
    }
    inStretches(
        std::array{a, x, z, y}, 3, count, longestStretch, InPlace::unsafe,
        [=](const auto &o, npy_intp objects) {
            if (o[0].object == 0) {
                Calls<T>::Gaxpy_va(o[0], o[1], o[2], o[3], width, height, objects);
                return;
            }
            for (npy_intp k = 0; k < objects; ++k) { // the library has one matrix for all vectors only
                Calls<T>::Gaxpy_v(o[0].from(k), o[1].from(k), o[2].from(k), o[3].from(k), width, height);
            }
        });
}

template <class T>
void crossLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    Arguments next(data, steps, 3);
    const Operand a = next.vector<T>(3);
    const Operand b = next.vector<T>(3);
    const Operand c = next.vector<T>(3);
    if (dims[0] > 0) {
        inStretches(
            std::array{a, b, c}, 2, dims[0], longestStretch, InPlace::unsafe,
            [](const auto &o, npy_intp count) { Calls<T>::CrossProduct_vava(o[0], o[1], o[2], count); });
    }
}

// One number per object: the library writes them side by side. work(operands, result, count).
template <class T, std::size_t N, class Work>
void inNumbers(const std::array<Operand, N> &operands, npy_intp count, Work work) {
    constexpr npy_intp atATime = 256;
    const auto size = static_cast<npy_intp>(sizeof(T));
    const bool dense = operands[N - 1].object == size;
    inStretches(operands, N - 1, count, dense ? longestStretch : atATime, InPlace::unsafe,
                [&](const auto &o, npy_intp objects) {
                    if (o[N - 1].object == size || objects == 1) {
                        return work(o, o[N - 1], objects);
                    }
                    std::array<T, atATime> numbers;
                    Operand packed = o[N - 1];
                    packed.data = reinterpret_cast<char *>(numbers.data());
                    packed.object = size;
                    work(o, packed, objects);
                    for (npy_intp k = 0; k < objects; ++k) {
                        o[N - 1].template at<T>(k) = numbers[static_cast<std::size_t>(k)];
                    }
                });
}

template <class T>
void dotLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], length = dims[1];
    Arguments next(data, steps, 3);
    const Operand x = next.vector<T>(length);
    const Operand y = next.vector<T>(length);
    const Operand result = next.scalar<T>();
    if (length == 0) {
        return fillZeros<T>(result, count);
    }
    if (tooLong(length)) {
        return handOver("dot", {x, y, result}, count);
    }
    inNumbers<T>(std::array{x, y, result}, count,
                 [=](const auto &o, const Operand &numbers, npy_intp objects) {
                     Calls<T>::DotProduct_vava(o[0], o[1], numbers, length, objects);
                 });
}

template <class T>
void normLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], length = dims[1];
    Arguments next(data, steps, 2);
    const Operand x = next.vector<T>(length);
    const Operand result = next.scalar<T>();
    if (length == 0) {
        return fillZeros<T>(result, count);
    }
    if (tooLong(length)) {
        return handOver("norm", {x, result}, count);
    }
    inNumbers<T>(std::array{x, result}, count, [=](const auto &o, const Operand &numbers, npy_intp objects) {
        Calls<T>::L2Norm_va(o[0], numbers, length, objects);
    });
}

template <class T>
void frobeniusLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], height = dims[1], width = dims[2];
    Arguments next(data, steps, 2);
    const Operand a = next.matrix<T>(height, width);
    const Operand result = next.scalar<T>();
    if (height == 0 || width == 0) {
        return fillZeros<T>(result, count);
    }
    if (tooLong(height, width)) {
        return handOver("frobenius", {a, result}, count);
    }
    inNumbers<T>(std::array{a, result}, count, [=](const auto &o, const Operand &numbers, npy_intp objects) {
        Calls<T>::FrobNorm_ma(o[0], width, height, numbers, objects);
    });
}

template <class T>
void traceLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], n = dims[1];
    Arguments next(data, steps, 2);
    const Operand a = next.matrix<T>(n, n);
    const Operand result = next.scalar<T>();
    if (n == 0) {
        return fillZeros<T>(result, count);
    }
    if (tooLong(n)) {
        return handOver("trace", {a, result}, count);
    }
    inNumbers<T>(std::array{a, result}, count, [=](const auto &o, const Operand &numbers, npy_intp objects) {
        Calls<T>::Trace_ma(o[0], n, numbers, objects);
    });
}

template <class T>
void detLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], n = dims[1];
    Arguments next(data, steps, 2);
    const Operand a = next.matrix<T>(n, n);
    const Operand result = next.scalar<T>();
    if (!fixedSize(n)) { // the run-time form takes small determinants for zero
        return handOver("det", {a, result}, count);
    }
    inNumbers<T>(std::array{a, result}, count, [=](const auto &o, const Operand &numbers, npy_intp objects) {
        Calls<T>::Det_ma(o[0], n, numbers, objects);
    });
}

} // namespace zelmpy
