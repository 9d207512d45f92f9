// What NumPy hands an inner loop, operand by operand.
#pragma once

#include "numpy.h"

#include <cstdint>

namespace zelmpy {

// One operand of a loop: `count` objects of rows x columns elements. All strides are in bytes.
struct Operand {
    char *data = nullptr;
    npy_intp object = 0, row = 0, element = 0;
    npy_intp rows = 1, columns = 1;
    int rank = 0; // of one object: 0 a number, 1 a vector (its elements are its columns), 2 a matrix
    int type = NPY_DOUBLE;

    template <class T>
    T *as() const {
        return reinterpret_cast<T *>(data);
    }
    template <class T>
    T &at(npy_intp k, npy_intp i = 0, npy_intp j = 0) const {
        return *reinterpret_cast<T *>(data + k * object + i * row + j * element);
    }
    Operand from(npy_intp k) const {
        Operand moved = *this;
        moved.data += k * object;
        return moved;
    }
    // Column j of every matrix, as a vector.
    Operand column(npy_intp j) const {
        Operand vector = *this;
        vector.data += j * element;
        vector.rank = 1;
        vector.columns = rows;
        vector.element = row;
        vector.rows = 1;
        vector.row = 0;
        return vector;
    }
    Operand transposed() const {
        Operand turned = *this;
        turned.rows = columns;
        turned.columns = rows;
        turned.row = element;
        turned.element = row;
        return turned;
    }
};

template <class T>
constexpr int numpyType();
template <>
constexpr int numpyType<float>() {
    return NPY_FLOAT;
}
template <>
constexpr int numpyType<double>() {
    return NPY_DOUBLE;
}
template <>
constexpr int numpyType<std::uint32_t>() {
    return NPY_UINT32;
}

// Objects that lie one behind the other without gaps.
template <class T>
Operand denseMatrices(T *data, npy_intp rows, npy_intp columns) {
    const auto size = static_cast<npy_intp>(sizeof(T));
    return {reinterpret_cast<char *>(data),
            rows * columns * size,
            columns * size,
            size,
            rows,
            columns,
            2,
            numpyType<T>()};
}

// Reads a loop's arguments in the order of its signature: for each operand its pointer, its stride from
// object to object and the strides of its core dimensions.
class Arguments {
public:
    Arguments(char **data, const npy_intp *steps, int operands)
        : data_(data), objects_(steps), core_(steps + operands) {}

    template <class T>
    Operand scalar() {
        return next<T>(1, 1, 0);
    }
    template <class T>
    Operand vector(npy_intp length) {
        Operand operand = next<T>(1, length, 1);
        operand.element = stride(length);
        return operand;
    }
    template <class T>
    Operand matrix(npy_intp rows, npy_intp columns) {
        Operand operand = next<T>(rows, columns, 2);
        operand.row = stride(rows);
        operand.element = stride(columns);
        return operand;
    }

private:
    template <class T>
    Operand next(npy_intp rows, npy_intp columns, int rank) {
        return {*data_++, *objects_++, 0, 0, rows, columns, rank, numpyType<T>()};
    }
    // NumPy lets the stride of a dimension of size 1 be anything.
    npy_intp stride(npy_intp size) {
        const npy_intp step = *core_++;
        return size > 1 ? step : 0;
    }

    char **data_;
    const npy_intp *objects_, *core_;
};

// The size that the fixed-size forms are written for, or 0.
inline int fixedSize(npy_intp a) {
    return a >= 3 && a <= 6 ? static_cast<int>(a) : 0;
}
template <class... Sizes>
int fixedSize(npy_intp a, npy_intp b, Sizes... more) {
    return a == b ? fixedSize(b, more...) : 0;
}

} // namespace zelmpy
