#include "inputs.h"

#include <cmath>
#include <map>
#include <numeric>
#include <random>
#include <utility>

namespace zelmbench {
namespace {

// Gaussian elimination with partial pivoting of one matrix in place; the rows stay where they are. Returns
// the smallest pivot.
double eliminate(double *a, std::uint32_t *pivot, std::size_t n) {
    std::iota(pivot, pivot + n, 0U);
    double smallest = 1e300;
    for (std::size_t c = 0; c < n; ++c) {
        for (std::size_t i = c + 1; i < n; ++i) {
            if (std::abs(a[pivot[i] * n + c]) > std::abs(a[pivot[c] * n + c])) {
                std::swap(pivot[c], pivot[i]);
            }
        }
        const double *top = a + pivot[c] * n;
        smallest = std::min(smallest, std::abs(top[c]));
        for (std::size_t i = c + 1; i < n; ++i) {
            double *row = a + pivot[i] * n;
            row[c] /= top[c];
            for (std::size_t j = c + 1; j < n; ++j) {
                row[j] -= row[c] * top[j];
            }
        }
    }
    return smallest;
}

// Inverses by blocks take a leading block as it is unless it is singular.
bool hasGoodLeadingBlocks(const double *a, std::size_t n) {
    const double second = a[0] * a[n + 1] - a[1] * a[n];
    const double third = second * a[2 * n + 2] - (a[0] * a[n + 2] - a[2] * a[n]) * a[2 * n + 1] +
                         (a[1] * a[n + 2] - a[2] * a[n + 1]) * a[2 * n];
    return std::abs(a[0]) > 0.05 && std::abs(second) > 0.05 && std::abs(third) > 0.05;
}

std::vector<double> drawGeneral(std::size_t n) {
    std::minstd_rand generator(static_cast<unsigned>(n));
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    std::vector<double> values, matrix(n * n), copy;
    std::vector<std::uint32_t> pivot(n);
    while (values.size() < distinctObjects * n * n) {
        for (double &element : matrix) {
            element = uniform(generator);
        }
        copy = matrix;
        if (hasGoodLeadingBlocks(matrix.data(), n) && eliminate(copy.data(), pivot.data(), n) > 0.05) {
            values.insert(values.end(), matrix.begin(), matrix.end());
        }
    }
    return values;
}

// A * A^T plus the identity.
std::vector<double> drawPositiveDefinite(std::size_t n) {
    const std::vector<double> general = generalMatrices(n);
    std::vector<double> values(general.size());
    for (std::size_t e = 0; e < values.size(); ++e) {
        const std::size_t first = e / (n * n) * n * n, i = e / n % n, j = e % n;
        values[e] = i == j ? 1.0 : 0.0;
        for (std::size_t t = 0; t < n; ++t) {
            values[e] += general[first + i * n + t] * general[first + j * n + t];
        }
    }
    return values;
}

// L, with reciprocals on its diagonal.
void factorByCholesky(double *a, std::uint32_t *, std::size_t n) {
    for (std::size_t j = 0; j < n; ++j) {
        for (std::size_t i = j; i < n; ++i) {
            for (std::size_t t = 0; t < j; ++t) {
                a[i * n + j] -= a[i * n + t] * a[j * n + t];
            }
            a[i * n + j] = i == j ? 1 / std::sqrt(a[i * n + j]) : a[i * n + j] * a[j * n + j];
        }
    }
}

// R, and below its diagonal the reflectors whose first element is 1.
void factorByReflections(double *a, std::uint32_t *, std::size_t n) {
    for (std::size_t c = 0; c + 1 < n; ++c) {
        double squares = 0;
        for (std::size_t i = c; i < n; ++i) {
            squares += a[i * n + c] * a[i * n + c];
        }
        const double first = a[c * n + c] + std::copysign(std::sqrt(squares), a[c * n + c]);
        double norm = 1;
        for (std::size_t i = c + 1; i < n; ++i) {
            const double v = a[i * n + c] / first;
            norm += v * v;
        }
        for (std::size_t j = n; j-- > c;) {
            double sum = a[c * n + j];
            for (std::size_t i = c + 1; i < n; ++i) {
                sum += a[i * n + c] / first * a[i * n + j];
            }
            sum *= 2 / norm;
            a[c * n + j] -= sum;
            for (std::size_t i = c + 1; j != c && i < n; ++i) {
                a[i * n + j] -= sum * (a[i * n + c] / first);
            }
        }
        for (std::size_t i = c + 1; i < n; ++i) {
            a[i * n + c] /= first;
        }
    }
}

template <class Factor>
Factors factorAll(std::vector<double> matrices, std::size_t n, Factor factor) {
    Factors factors{std::move(matrices), std::vector<std::uint32_t>(distinctObjects * n)};
    for (std::size_t k = 0; k < distinctObjects; ++k) {
        factor(factors.values.data() + k * n * n, factors.pivots.data() + k * n, n);
    }
    return factors;
}

// The value for n, made when it is first asked for.
template <class Value, class Make>
const Value &kept(std::map<std::size_t, Value> &made, std::size_t n, Make make) {
    const auto found = made.find(n);
    return found != made.end() ? found->second : made.emplace(n, make()).first->second;
}

} // namespace

std::vector<double> randomValues(std::size_t elements, unsigned seed) {
    std::minstd_rand generator(seed);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    std::vector<double> values(distinctObjects / 4 * elements);
    for (double &value : values) {
        value = uniform(generator);
    }
    return values;
}

const std::vector<double> &generalMatrices(std::size_t n) {
    static std::map<std::size_t, std::vector<double>> made;
    return kept(made, n, [n] { return drawGeneral(n); });
}

const std::vector<double> &positiveDefiniteMatrices(std::size_t n) {
    static std::map<std::size_t, std::vector<double>> made;
    return kept(made, n, [n] { return drawPositiveDefinite(n); });
}

const Factors &luFactors(std::size_t n) {
    static std::map<std::size_t, Factors> made;
    return kept(made, n, [n] { return factorAll(generalMatrices(n), n, eliminate); });
}

const Factors &choleskyFactors(std::size_t n) {
    static std::map<std::size_t, Factors> made;
    return kept(made, n, [n] { return factorAll(positiveDefiniteMatrices(n), n, factorByCholesky); });
}

const Factors &qrFactors(std::size_t n) {
    static std::map<std::size_t, Factors> made;
    return kept(made, n, [n] { return factorAll(generalMatrices(n), n, factorByReflections); });
}

} // namespace zelmbench
