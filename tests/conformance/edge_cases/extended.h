// Matrices in 80-bit arithmetic, to measure what is computed in less.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace extended {

struct Matrix {
    Matrix(std::size_t rowCount, std::size_t columnCount)
        : rows(rowCount), columns(columnCount), elements(rowCount * columnCount) {}
    template <class T>
    Matrix(const std::vector<T> &values, std::size_t columnCount)
        : rows(values.size() / columnCount), columns(columnCount), elements(values.begin(), values.end()) {}

    long double &operator()(std::size_t i, std::size_t j) { return elements[i * columns + j]; }
    long double operator()(std::size_t i, std::size_t j) const { return elements[i * columns + j]; }

    std::size_t rows, columns;
    std::vector<long double> elements;
};

inline Matrix transposed(const Matrix &a) {
    Matrix result(a.columns, a.rows);
    for (std::size_t i = 0; i < a.rows; ++i)
        for (std::size_t j = 0; j < a.columns; ++j)
            result(j, i) = a(i, j);
    return result;
}

inline Matrix operator*(const Matrix &a, const Matrix &b) {
    Matrix result(a.rows, b.columns);
    for (std::size_t i = 0; i < a.rows; ++i)
        for (std::size_t j = 0; j < b.columns; ++j)
            for (std::size_t k = 0; k < a.columns; ++k)
                result(i, j) += a(i, k) * b(k, j);
    return result;
}

inline Matrix operator-(Matrix a, const Matrix &b) {
    for (std::size_t e = 0; e < a.elements.size(); ++e)
        a.elements[e] -= b.elements[e];
    return a;
}

// The square root of the sum of squares.
inline long double norm(const Matrix &a) {
    long double sum = 0;
    for (const long double element : a.elements)
        sum += element * element;
    return std::sqrt(sum);
}

// x with a*x = b, by elimination with exchanges.
inline Matrix solution(Matrix a, Matrix b) {
    for (std::size_t k = 0; k < a.rows; ++k) {
        std::size_t pivot = k;
        for (std::size_t i = k + 1; i < a.rows; ++i)
            if (std::fabs(a(i, k)) > std::fabs(a(pivot, k)))
                pivot = i;
        for (std::size_t j = 0; j < a.columns; ++j)
            std::swap(a(k, j), a(pivot, j));
        for (std::size_t j = 0; j < b.columns; ++j)
            std::swap(b(k, j), b(pivot, j));
        for (std::size_t i = 0; i < a.rows; ++i) {
            if (i == k)
                continue;
            const long double factor = a(i, k) / a(k, k);
            for (std::size_t j = 0; j < a.columns; ++j)
                a(i, j) -= factor * a(k, j);
            for (std::size_t j = 0; j < b.columns; ++j)
                b(i, j) -= factor * b(k, j);
        }
    }
    for (std::size_t i = 0; i < a.rows; ++i)
        for (std::size_t j = 0; j < b.columns; ++j)
            b(i, j) /= a(i, i);
    return b;
}

inline Matrix identity(std::size_t n) {
    Matrix result(n, n);
    for (std::size_t i = 0; i < n; ++i)
        result(i, i) = 1;
    return result;
}

inline long double condition(const Matrix &a) {
    return norm(a) * norm(solution(a, identity(a.rows)));
}

template <class T>
constexpr long double unitRoundoff = std::numeric_limits<T>::epsilon() / 2.0L;

// Numbers from -1 to 1, the same ones in every run.
class Numbers {
public:
    template <class T>
    std::vector<T> draw(std::size_t count) {
        std::vector<T> numbers(count);
        for (T &number : numbers)
            number = static_cast<T>(next());
        return numbers;
    }

private:
    double next() {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<double>(state_ >> 40) * 0x1p-23 - 1;
    }

    std::uint64_t state_ = 1;
};

} // namespace extended
