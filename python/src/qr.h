// Loops of the QR family: tall and square matrices. Wide ones are NumPy's.
#pragma once

#include "solvers.h"

namespace zelmpy {

// As in LAPACK: reflector k is I - tau v v', and the last one of a square matrix does nothing.
template <class T>
void findTaus(const Operand &factors, const Operand &taus, npy_intp count) {
    const npy_intp height = factors.rows, width = factors.columns;
    for (npy_intp k = 0; k < count; ++k) {
        for (npy_intp j = 0; j < width; ++j) {
            T square = 1;
            for (npy_intp i = j + 1; i < height; ++i) {
                square += factors.at<T>(k, i, j) * factors.at<T>(k, i, j);
            }
            taus.at<T>(k, 0, j) = j + 1 < height ? 2 / square : 0;
        }
    }
}

// Gives the factors transposed, as numpy.linalg.qr(mode="raw") does.
template <class T>
void qrLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp count = dims[0], height = dims[1], width = dims[2];
    Arguments next(data, steps, 3);
    const Operand a = next.matrix<T>(height, width);
    const Operand factors = next.matrix<T>(width, height);
    const Operand taus = next.vector<T>(width);
    if (count == 0 || width == 0) {
        return;
    }
    if (tooLong(height, width) || height == 0) {
        return handOver("qr", {a, factors, taus}, count);
    }
    Scratch scratch;
    inStretches(std::array{a, factors, taus}, 1, count, retriedStretch, InPlace::unsafe,
                [&](const auto &o, npy_intp objects) {
                    const Operand h = o[1].transposed();
                    const auto refused = refusedOf(objects, [&](npy_intp k, npy_intp number) {
                        return Calls<T>::QRDecomp_ma(o[0].from(k), scratch.elements<T>(height), h.from(k),
                                                     width, height, number);
                    });
                    findTaus<T>(h, o[2], objects);
                    if (!refused.empty()) {
                        handOver("qr", {o[0], o[1], o[2]}, objects, &refused);
                    }
                });
}

// q = (I - tau[k] v v') q for the reflector that column k of h holds.
template <class T>
void reflect(const Operand &h, T tau, npy_intp k, const Operand &q) {
    for (npy_intp j = 0; j < q.columns; ++j) {
        T sum = q.at<T>(0, k, j);
        for (npy_intp i = k + 1; i < h.rows; ++i) {
            sum += h.at<T>(0, i, k) * q.at<T>(0, i, j);
        }
        sum *= tau;
        q.at<T>(0, k, j) -= sum;
        for (npy_intp i = k + 1; i < h.rows; ++i) {
            q.at<T>(0, i, j) -= sum * h.at<T>(0, i, k);
        }
    }
}

// The first columns of Q, `columns` of them: the reflectors applied to the identity, last one first.
template <class T>
void formQ(const Operand &factors, const Operand &taus, const Operand &q, npy_intp count) {
    for (npy_intp k = 0; k < count; ++k) {
        const Operand object = q.from(k);
        for (npy_intp i = 0; i < q.rows; ++i) {
            for (npy_intp j = 0; j < q.columns; ++j) {
                object.at<T>(0, i, j) = i == j;
            }
        }
        for (npy_intp reflector = taus.columns - 1; reflector >= 0; --reflector) {
            reflect<T>(factors.from(k), taus.at<T>(k, 0, reflector), reflector, object);
        }
    }
}

template <class T, bool complete>
void qrFormLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp width = dims[1], height = dims[2];
    Arguments next(data, steps, 3);
    const Operand factors = next.matrix<T>(width, height);
    const Operand taus = next.vector<T>(width);
    const Operand q = next.matrix<T>(height, complete ? height : width);
    if (dims[0] > 0 && height > 0) {
        formQ<T>(factors.transposed(), taus, q, dims[0]);
    }
}

// Whether the last diagonal element of R is too small to divide by. The library tests all columns but this
// one.
template <class T>
bool isLastPivotSmall(const Operand &factors, npy_intp k) {
    constexpr double threshold = 1.1920928955078125e-7; // as the library's test of the other columns
    const double last = factors.at<T>(k, factors.columns - 1, factors.columns - 1);
    return !(last * last >= threshold);
}

template <class T>
void lstsqStretch(const std::array<Operand, 3> &o, npy_intp count, Scratch &scratch, Scratch &work) {
    const auto &[a, b, x] = o;
    const npy_intp height = a.rows, width = a.columns;
    const Operand factors = denseMatrices(scratch.elements<T>(count * height * width), height, width);
    std::vector<npy_intp> refused = refusedOf(count, [&](npy_intp k, npy_intp number) {
        return Calls<T>::QRDecomp_ma(a.from(k), work.elements<T>(height), factors.from(k), width, height,
                                     number);
    });
    for (npy_intp k = 0; height == width && k < count; ++k) {
        if (isLastPivotSmall<T>(factors, k) && !std::binary_search(refused.begin(), refused.end(), k)) {
            refused.insert(std::upper_bound(refused.begin(), refused.end(), k), k);
        }
    }
    for (npy_intp j = 0; j < (b.rank == 1 ? 1 : b.columns); ++j) {
        Calls<T>::QRBackSubst_mava(factors, work.elements<T>(height), b.rank == 1 ? b : b.column(j),
                                   x.rank == 1 ? x : x.column(j), width, height, count);
    }
    if (!refused.empty()) {
        handOver("lstsq", {a, b, x}, count, &refused);
    }
}

template <class T>
void lstsqAll(const std::array<Operand, 3> &operands, npy_intp count) {
    const Operand &a = operands[0];
    if (count == 0 || a.columns == 0 || operands[1].columns == 0) {
        return;
    }
    if (a.rows < a.columns || tooLong(a.rows, a.columns, operands[1].columns)) {
        return handOver("lstsq", {operands[0], operands[1], operands[2]}, count);
    }
    Scratch scratch, work;
    const npy_intp longest = Scratch::objects(a.rows * a.columns * static_cast<npy_intp>(sizeof(T)));
    inStretches(operands, 2, count, longest, InPlace::unsafe,
                [&](const auto &o, npy_intp objects) { lstsqStretch<T>(o, objects, scratch, work); });
}

template <class T>
void lstsqLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp height = dims[1], width = dims[2], columns = dims[3];
    Arguments next(data, steps, 3);
    const Operand a = next.matrix<T>(height, width);
    const Operand b = next.matrix<T>(height, columns);
    lstsqAll<T>({a, b, next.matrix<T>(width, columns)}, dims[0]);
}

template <class T>
void lstsqVectorLoop(char **data, const npy_intp *dims, const npy_intp *steps, void *) {
    const npy_intp height = dims[1], width = dims[2];
    Arguments next(data, steps, 3);
    const Operand a = next.matrix<T>(height, width);
    const Operand b = next.vector<T>(height);
    lstsqAll<T>({a, b, next.vector<T>(width)}, dims[0]);
}

} // namespace zelmpy
