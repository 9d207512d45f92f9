// LUDecomp: elimination with partial pivoting; rows stay where they are and pivotIndex records the exchanges.
#include "checks.h"
#include "family.h"

#include <cmath>
#include <utility>

namespace zelmref {

extern const Family luDecomp;

namespace {

constexpr double threshold = 0x1p-23; // for both element types

bool serves(const Cell &cell) {
    return cell.operation == "LUDecomp";
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell);
    Signature s = {matrix("src", array), pivotIndex(array), matrix("dst", array)};
    if (cell.order == 0)
        s.push_back(dimension("n"));
    if (array)
        s.push_back(objectCount());
    return s;
}

template <class T>
ZelmStatus factor(const Operand &src, const Operand &dst, Address pivots, std::uint32_t object,
                  std::uint32_t n, ComputedElements &results) {
    const auto pivot = [&](std::uint32_t i) { return readWord<std::uint32_t>(pivots + 4 * Address{i}); };
    const auto setPivot = [&](std::uint32_t i, std::uint32_t row) {
        writeWord(pivots + 4 * Address{i}, row);
    };
    const auto at = [&](std::uint32_t row, std::uint32_t column) { return dst.element(object, row, column); };
    const auto widened = [&](std::uint32_t row, std::uint32_t column) {
        return static_cast<double>(readNumber<T>(at(row, column)));
    };

    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j)
            results.copy<T>(at(i, j), src.element(object, i, j));
    for (std::uint32_t i = 0; i < n; ++i)
        setPivot(i, i);

    for (std::uint32_t k = 0; k + 1 < n; ++k) {
        double best = std::fabs(widened(pivot(k), k));
        std::uint32_t bestPosition = k;
        for (std::uint32_t j = k + 1; j < n; ++j) {
            const double v = std::fabs(widened(pivot(j), k));
            if (v > best) {
                best = v;
                bestPosition = j;
            }
        }
        const std::uint32_t exchanged = pivot(k);
        setPivot(k, pivot(bestPosition));
        setPivot(bestPosition, exchanged);

        const std::uint32_t pivotRow = pivot(k);
        const double p = widened(pivotRow, k);
        if (!(std::fabs(p) >= threshold))
            return ZELM_ERR_DIV_BY_ZERO;

        for (std::uint32_t j = k + 1; j < n; ++j) {
            const std::uint32_t row = pivot(j);
            const double l = widened(row, k) / p;
            results.write<T>(at(row, k), static_cast<T>(l));
            const T m = static_cast<T>(0.0 - l);
            for (std::uint32_t c = k + 1; c < n; ++c) {
                const T product = readNumber<T>(at(pivotRow, c)) * m;
                results.write<T>(at(row, c), product + readNumber<T>(at(row, c)));
            }
        }
    }
    return std::fabs(widened(pivot(n - 1), n - 1)) >= threshold ? ZELM_OK : ZELM_ERR_DIV_BY_ZERO;
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    if (const auto status = checkArguments(call, SingleTables::TestedFirst))
        return *status;

    const std::uint32_t n = call.dimension("n"), count = call.count();
    const Operand src(call, "src"), dst(call, "dst");
    const Address pivots = call.passed[call.index("pivotIndex")].base;
    for (std::uint32_t k = 0; k < count; ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        const ZelmStatus status = factor<T>(src, dst, pivots + Address{k} * n * 4, k, n, results);
        if (status != ZELM_OK)
            return status;
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

} // namespace

const Family luDecomp = {serves, signature, run, Overlap::InPlace, Content::Pivoting};

} // namespace zelmref
