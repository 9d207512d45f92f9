// Invert 5x5 and 6x6, 32f standard forms: one or two single pivots, and the rest of order 4 in closed form.
#include "inverse.h"

#include <cmath>
#include <initializer_list>
#include <utility>

namespace zelmref {
namespace {

class Elimination {
public:
    Elimination(const std::vector<float> &a, std::uint32_t n, const SetDst &setDst)
        : a_(a), n_(n), pivots_(n - 4), setDst_(setDst), l_(n * n) {}

    std::optional<std::vector<float>> inverse() {
        const bool passes = passesGate();
        std::uint32_t columns[2] = {0, 1};
        if (!passes) {
            for (std::uint32_t i = 0; i < pivots_; ++i)
                keepRow(i, 0);
            columns[0] = n_ == 5 ? largest(0, {3, 2, 1, 0, 4}) : largest(0, {5, 4, 3, 2, 1, 0});
            if (isInBand(at(0, columns[0])))
                return std::nullopt;
            exchange(0, columns[0]);
            for (std::uint32_t i = 0; i < pivots_; ++i)
                keepRow(i, 0);
        }
        eliminate(0);
        if (pivots_ == 2) {
            keepRow(1, 1);
            setDst_(1, 0, l(1, 0));
            if (!passes) {
                columns[1] = largest(1, {5, 4, 3, 2, 1});
                if (isInBand(at(1, columns[1])))
                    return std::nullopt;
                exchange(1, columns[1]);
                keepRow(0, 1);
                keepRow(1, 1);
            }
            eliminate(1);
        }

        std::vector<float> z;
        for (std::uint32_t i = pivots_; i < n_; ++i)
            for (std::uint32_t j = pivots_; j < n_; ++j)
                z.push_back(at(i, j));
        const Cofactors<float> cofactors = cofactorsOf(z, 4, Forms::Standard);
        if (cofactors.determinant == 0)
            return std::nullopt;
        std::vector<float> w = transposedTimes(cofactors, 4, refinedReciprocal(cofactors.determinant));

        for (std::uint32_t pivot = pivots_; pivot-- > 0;)
            w = extended(w, pivot);
        for (std::uint32_t pivot = pivots_; pivot-- > 0;)
            for (std::uint32_t j = 0; j < n_; ++j)
                std::swap(w[pivot * n_ + j], w[columns[pivot] * n_ + j]);
        return w;
    }

private:
    float &at(std::uint32_t i, std::uint32_t j) { return a_[i * n_ + j]; }
    float &l(std::uint32_t i, std::uint32_t pivot) { return l_[i * n_ + pivot]; }

    bool passesGate() {
        if (isInBand(at(0, 0)))
            return false;
        const float positive = at(0, 0) * at(1, 1), negative = at(0, 1) * at(1, 0);
        return n_ == 5 || !isInBand(positive - negative);
    }

    void keepRow(std::uint32_t i, std::uint32_t firstColumn) {
        for (std::uint32_t j = firstColumn; j < n_; ++j)
            setDst_(i, j, at(i, j));
    }

    std::uint32_t largest(std::uint32_t i, std::initializer_list<std::uint32_t> candidates) {
        std::uint32_t best = *candidates.begin();
        for (const std::uint32_t c : candidates)
            if (std::fabs(at(i, c)) > std::fabs(at(i, best)))
                best = c;
        return best;
    }

    void exchange(std::uint32_t j, std::uint32_t k) {
        for (std::uint32_t i = 0; i < n_; ++i)
            std::swap(at(i, j), at(i, k));
    }

    void eliminate(std::uint32_t pivot) {
        const float r = refinedReciprocal(at(pivot, pivot));
        reciprocal_[pivot] = r;
        setDst_(pivot, pivot, r);
        for (std::uint32_t i = pivot + 1; i < n_; ++i)
            l(i, pivot) = at(i, pivot) * r;
        for (std::uint32_t i = pivot + 1; i < n_; ++i)
            for (std::uint32_t j = pivot + 1; j < n_; ++j) {
                const float product = at(pivot, j) * l(i, pivot);
                at(i, j) = at(i, j) - product;
            }
    }

    // From the inverse of the block behind a pivot to that of the block that begins with it.
    std::vector<float> extended(const std::vector<float> &w, std::uint32_t pivot) {
        const std::uint32_t inner = n_ - pivot - 1, order = inner + 1, first = pivot + 1;
        const float r = reciprocal_[pivot];
        const auto dot = [&](auto term) {
            float sum = term(0u);
            for (std::uint32_t t = 1; t < inner; ++t) {
                const float next = term(t);
                sum = sum + next;
            }
            return sum;
        };
        std::vector<float> result(order * order);
        for (std::uint32_t i = 0; i < inner; ++i)
            result[(i + 1) * order] = dot([&](std::uint32_t j) {
                const float m = 0.0f - l(first + j, pivot);
                return w[i * inner + j] * m;
            });
        for (std::uint32_t j = 0; j < inner; ++j)
            result[j + 1] =
                -dot([&](std::uint32_t i) { return at(pivot, first + i) * w[i * inner + j]; }) * r;
        const float correction =
            dot([&](std::uint32_t i) { return at(pivot, first + i) * result[(i + 1) * order]; }) * r;
        result[0] = r - correction;
        for (std::uint32_t i = 0; i < inner; ++i)
            for (std::uint32_t j = 0; j < inner; ++j)
                result[(i + 1) * order + j + 1] = w[i * inner + j];
        return result;
    }

    std::vector<float> a_;
    std::uint32_t n_, pivots_;
    const SetDst &setDst_;
    std::vector<float> l_;
    float reciprocal_[2] = {};
};

} // namespace

std::optional<std::vector<float>> singlePivotInverse(const std::vector<float> &a, std::uint32_t n,
                                                     const SetDst &setDst) {
    return Elimination(a, n, setDst).inverse();
}

} // namespace zelmref
