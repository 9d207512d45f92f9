// Invert 5x5 and 6x6 by a pivot block and its Schur complement; steps are numbered as they run.
#include "inverse.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace zelmref {
namespace {

template <class T>
T difference(T p, T q, T r, T s) {
    const T positive = p * q, negative = r * s;
    return positive - negative;
}

// The product of two blocks; sums begin with the first product and run left to right.
template <class T>
std::vector<T> product(const std::vector<T> &x, const std::vector<T> &y, std::uint32_t inner) {
    const std::size_t rows = x.size() / inner, columns = y.size() / inner;
    std::vector<T> result;
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            T sum = x[i * inner] * y[j];
            for (std::size_t t = 1; t < inner; ++t) {
                const T term = x[i * inner + t] * y[t * columns + j];
                sum = sum + term;
            }
            result.push_back(sum);
        }
    return result;
}

template <class T>
class Blocks {
public:
    Blocks(const std::vector<T> &a, std::uint32_t n, Forms forms)
        : a_(a), n_(n), b_(forms == Forms::Standard || n == 5 ? 2 : 3), forms_(forms), perm_(n) {
        std::iota(perm_.begin(), perm_.end(), 0u);
    }

    std::optional<std::vector<T>> inverse() {
        // 1 to 5: the columns of the pivot block
        if (forms_ == Forms::Strided ? !chooseLargest() : !chooseFirst())
            return std::nullopt;

        const std::uint32_t z = n_ - b_;
        const std::vector<T> p = block(0, 0, b_, b_), q = block(0, b_, b_, z), r = block(b_, 0, z, b_),
                             t = block(b_, b_, z, z);
        // 6
        const std::vector<T> pInverse = inverseOfPivotBlock(p);
        // 7
        const std::vector<T> y = product(r, pInverse, b_), yq = product(y, q, b_);
        std::vector<T> schur;
        for (std::size_t e = 0; e < t.size(); ++e)
            schur.push_back(t[e] - yq[e]);
        // 8, 9
        const Cofactors<T> cofactors = cofactorsOf(schur, z, forms_);
        const T reciprocal = 1 / cofactors.determinant;
        if (forms_ == Forms::Strided ? isInBand(cofactors.determinant) : reciprocal == 0)
            return std::nullopt;
        const std::vector<T> w = transposedTimes(cofactors, z, reciprocal);
        // 10
        const std::vector<T> x = product(pInverse, q, b_), e = product(x, w, z), wy = product(w, y, z),
                             ey = product(e, y, z);
        std::vector<T> result(n_ * n_);
        for (std::uint32_t i = 0; i < n_; ++i)
            for (std::uint32_t j = 0; j < n_; ++j) {
                const std::uint32_t bi = i - b_, bj = j - b_;
                result[perm_[i] * n_ + j] = i < b_ && j < b_ ? pInverse[i * b_ + j] + ey[i * b_ + j]
                                            : i < b_         ? -e[i * z + bj]
                                            : j < b_         ? -wy[bi * b_ + j]
                                                             : w[bi * z + bj];
            }
        return result;
    }

private:
    T at(std::uint32_t i, std::uint32_t position) const { return a_[i * n_ + perm_[position]]; }

    std::vector<T> block(std::uint32_t row, std::uint32_t column, std::uint32_t rows,
                         std::uint32_t columns) const {
        std::vector<T> result;
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < columns; ++j)
                result.push_back(at(row + i, column + j));
        return result;
    }

    // Column 5 never competes.
    template <class Magnitude>
    void choose(std::uint32_t position, Magnitude magnitude) {
        std::uint32_t best = position;
        T largest = magnitude(position);
        for (std::uint32_t q = position + 1; q <= 4; ++q) {
            const T v = magnitude(q);
            if (v > largest) {
                largest = v;
                best = q;
            }
        }
        std::swap(perm_[position], perm_[best]);
    }

    T determinantOfThree(std::uint32_t q) const {
        std::vector<T> three;
        for (std::uint32_t i = 0; i < 3; ++i)
            for (const std::uint32_t position : {0u, 1u, q})
                three.push_back(at(i, position));
        return cofactorsOf(three, 3, Forms::Strided).determinant;
    }

    // Steps 1 to 5 of the forms that take the largest.
    bool chooseLargest() {
        choose(0, [&](std::uint32_t q) { return std::fabs(at(0, q)); });
        choose(1, [&](std::uint32_t q) {
            return std::fabs(difference(at(1, q), at(0, 0), at(0, q), at(1, 0)));
        });
        if (b_ == 3)
            choose(2, [&](std::uint32_t q) { return std::fabs(determinantOfThree(q)); });
        return !isInBand(b_ == 2 ? determinantOfPair(perm_[0], perm_[1]) : determinantOfThree(2));
    }

    T determinantOfPair(std::uint32_t j, std::uint32_t q) const {
        return difference(a_[j], a_[n_ + q], a_[n_ + j], a_[q]);
    }

    // The same of the forms that take the first pair outside the band.
    bool chooseFirst() {
        if (!isInBand(determinantOfPair(0, 1)))
            return true;
        for (std::uint32_t j = n_ - 1; j >= 1; --j)
            for (std::uint32_t q = j; q-- > 0;)
                if (!isInBand(determinantOfPair(j, q))) {
                    bring(0, j);
                    bring(1, q);
                    return true;
                }
        return false;
    }

    void bring(std::uint32_t position, std::uint32_t column) {
        std::uint32_t from = 0;
        while (perm_[from] != column)
            ++from;
        std::swap(perm_[position], perm_[from]);
    }

    std::vector<T> inverseOfPivotBlock(const std::vector<T> &p) const {
        if (b_ == 3) {
            const Cofactors<T> cofactors = cofactorsOf(p, 3, Forms::Strided);
            return transposedTimes(cofactors, 3, 1 / cofactors.determinant);
        }
        const T r = 1 / determinantOfPair(perm_[0], perm_[1]);
        return {p[3] * r, -p[1] * r, -p[2] * r, p[0] * r};
    }

    const std::vector<T> &a_;
    std::uint32_t n_, b_;
    Forms forms_;
    std::vector<std::uint32_t> perm_;
};

} // namespace

template <class T>
std::optional<std::vector<T>> blockInverse(const std::vector<T> &a, std::uint32_t n, Forms forms) {
    return Blocks<T>(a, n, forms).inverse();
}

template std::optional<std::vector<float>> blockInverse(const std::vector<float> &, std::uint32_t, Forms);
template std::optional<std::vector<double>> blockInverse(const std::vector<double> &, std::uint32_t, Forms);

} // namespace zelmref
