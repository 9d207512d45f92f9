#include "qr_solver.h"

#include "library_call.h"

#include <cmath>
#include <limits>

namespace terrain {

namespace {

// The factors of all systems, and the library's work space for one of them.
template <class T>
struct Factors {
    explicit Factors(const Systems<T> &systems)
        : element(systems.matrix.size(), unset), scratch(systems.rows) {}
    static constexpr T unset = std::numeric_limits<T>::quiet_NaN();
    std::vector<T> element;
    std::vector<T> scratch;
};

// Systems first to first + count - 1.
ZelmStatus decompose(const Systems<double> &systems, Factors<double> &factors, std::size_t first,
                     std::size_t count) {
    constexpr std::int32_t row = order * sizeof(double);
    const std::size_t start = first * systems.rows * order;
    const auto height = static_cast<std::uint32_t>(systems.rows);
    const std::int32_t matrix = row * static_cast<std::int32_t>(height);
    return zelmQRDecomp_ma_64f(&systems.matrix[start], matrix, row, factors.scratch.data(),
                               &factors.element[start], matrix, row, order, height,
                               static_cast<std::uint32_t>(count));
}

ZelmStatus decompose(const Systems<float> &systems, Factors<float> &factors, std::size_t first,
                     std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    const std::size_t start = first * systems.rows * order;
    const auto height = static_cast<std::uint32_t>(systems.rows);
    const std::int32_t matrix = row * static_cast<std::int32_t>(height);
    return zelmQRDecomp_ma_32f(&systems.matrix[start], matrix, row, factors.scratch.data(),
                               &factors.element[start], matrix, row, order, height,
                               static_cast<std::uint32_t>(count));
}

ZelmStatus substitute(Systems<double> &systems, Factors<double> &factors, std::size_t first,
                      std::size_t count) {
    constexpr std::int32_t row = order * sizeof(double);
    const auto height = static_cast<std::uint32_t>(systems.rows);
    const auto rows = static_cast<std::int32_t>(height);
    return zelmQRBackSubst_mava_64f(&factors.element[first * systems.rows * order], row * rows, row,
                                    factors.scratch.data(), &systems.rightSide[first * systems.rows],
                                    rows * std::int32_t{sizeof(double)}, &systems.solution[first * order],
                                    row, order, height, static_cast<std::uint32_t>(count));
}

ZelmStatus substitute(Systems<float> &systems, Factors<float> &factors, std::size_t first,
                      std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    const auto height = static_cast<std::uint32_t>(systems.rows);
    const auto rows = static_cast<std::int32_t>(height);
    return zelmQRBackSubst_mava_32f(&factors.element[first * systems.rows * order], row * rows, row,
                                    factors.scratch.data(), &systems.rightSide[first * systems.rows],
                                    rows * std::int32_t{sizeof(float)}, &systems.solution[first * order], row,
                                    order, height, static_cast<std::uint32_t>(count));
}

} // namespace

template <class T>
double solveByQr(Systems<T> &systems) {
    Stopwatch stopwatch;
    Factors<T> factors(systems);
    const std::size_t elements = systems.rows * order;
    for (std::size_t first = 0; first < systems.count();) {
        std::size_t end = systems.count();
        const ZelmStatus status =
            stopwatch.time([&] { return decompose(systems, factors, first, end - first); });
        // The decomposition stops at the first system that fails, and its status doesn't tell which one that
        // is; but it copies that one and none behind it.
        if (status == ZELM_ERR_DIV_BY_ZERO) {
            std::size_t untouched = first;
            while (untouched < systems.count() && !std::isnan(factors.element[untouched * elements])) {
                ++untouched;
            }
            if (untouched == first) {
                throw std::logic_error("the decomposition failed and copied no system");
            }
            end = untouched - 1;
            systems.isSingular[end] = 1;
        } else {
            requireOk(status, "zelmQRDecomp_ma");
        }
        if (end > first) {
            requireOk(stopwatch.time([&] { return substitute(systems, factors, first, end - first); }),
                      "zelmQRBackSubst_mava");
        }
        first = status == ZELM_OK ? end : end + 1;
    }
    return stopwatch.seconds();
}

template double solveByQr(Systems<float> &systems);
template double solveByQr(Systems<double> &systems);

} // namespace terrain
