#include "cholesky_solver.h"

#include "library_call.h"

namespace terrain {

namespace {

// Systems first to first + count - 1.
ZelmStatus decompose(const Systems<double> &systems, double *factors, std::size_t first, std::size_t count) {
    constexpr std::int32_t row = order * sizeof(double);
    return zelmCholeskyDecomp_ma_64f_6x6(&systems.matrix[first * order * order], order * row, row,
                                         &factors[first * order * order], order * row, row,
                                         static_cast<std::int32_t>(count));
}

ZelmStatus decompose(const Systems<float> &systems, float *factors, std::size_t first, std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    return zelmCholeskyDecomp_ma_32f_6x6(&systems.matrix[first * order * order], order * row, row,
                                         &factors[first * order * order], order * row, row,
                                         static_cast<std::int32_t>(count));
}

ZelmStatus substitute(Systems<double> &systems, const double *factors, std::size_t first, std::size_t count) {
    constexpr std::int32_t row = order * sizeof(double);
    return zelmCholeskyBackSubst_mava_64f_6x6(
        &factors[first * order * order], order * row, row, &systems.rightSide[first * order], row,
        &systems.solution[first * order], row, static_cast<std::int32_t>(count));
}

ZelmStatus substitute(Systems<float> &systems, const float *factors, std::size_t first, std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    return zelmCholeskyBackSubst_mava_32f_6x6(
        &factors[first * order * order], order * row, row, &systems.rightSide[first * order], row,
        &systems.solution[first * order], row, static_cast<std::int32_t>(count));
}

// The decomposition takes any pivot above zero, also one that only rounding keeps there. The other methods
// refuse pivots below 2^-23; so does this one, by the reciprocal roots that the factor holds.
template <class T>
bool isSingular(const T *factor) {
    constexpr double leastPivot = 1.0 / (1 << 23);
    for (std::size_t i = 0; i < order; ++i) {
        const double reciprocalRoot = factor[i * order + i];
        if (!(reciprocalRoot * reciprocalRoot * leastPivot <= 1)) {
            return true;
        }
    }
    return false;
}

} // namespace

template <class T>
double solveByCholesky(Systems<T> &systems) {
    Stopwatch stopwatch;
    constexpr T unset = 0; // no reciprocal
    std::vector<T> factors(systems.matrix.size(), unset);
    for (std::size_t first = 0; first < systems.count();) {
        std::size_t end = systems.count();
        const ZelmStatus status =
            stopwatch.time([&] { return decompose(systems, factors.data(), first, end - first); });
        // The decomposition stops at the first system that fails, and its status doesn't tell which one that
        // is; but it is the first whose last pivot isn't there.
        if (status == ZELM_ERR_NOT_POS_DEF) {
            end = first;
            while (end < systems.count() && factors[(end + 1) * order * order - 1] != unset) {
                ++end;
            }
            if (end == systems.count()) {
                throw std::logic_error("the decomposition failed and left no system undone");
            }
            systems.isSingular[end] = 1;
        } else {
            requireOk(status, "zelmCholeskyDecomp_ma");
        }
        if (end > first) {
            requireOk(stopwatch.time([&] { return substitute(systems, factors.data(), first, end - first); }),
                      "zelmCholeskyBackSubst_mava");
        }
        for (std::size_t k = first; k < end; ++k) {
            systems.isSingular[k] = isSingular(&factors[k * order * order]);
        }
        first = status == ZELM_OK ? end : end + 1;
    }
    return stopwatch.seconds();
}

template double solveByCholesky(Systems<float> &systems);
template double solveByCholesky(Systems<double> &systems);

} // namespace terrain
