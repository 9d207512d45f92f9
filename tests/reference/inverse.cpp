// Invert: the checks that all methods share, and the method of run-time size.
#include "inverse.h"

#include "checks.h"
#include "elimination.h"
#include "family.h"

#include <bit>

namespace zelmref {

extern const Family inverse;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Invert";
}

Signature signature(const Cell &cell) {
    Signature s = {matrix("src", isArray(cell))};
    if (cell.order == 0) {
        s.push_back(dimension("n"));
        s.push_back(scratch());
    }
    s.push_back(matrix("dst", isArray(cell)));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

// All cofactors, each by an elimination of its own.
template <class T>
std::optional<std::vector<T>> inverseByCofactors(const std::vector<T> &a, std::uint32_t n) {
    const Eliminated<T> whole = eliminate(a, n, false);
    if (whole.stopped || !lastPasses(whole))
        return std::nullopt;
    const T r = 1 / signedProduct(whole);
    if (n == 1)
        return std::vector<T>{r};

    std::vector<T> result(n * n);
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j) {
            std::vector<T> minor;
            for (std::uint32_t row = 0; row < n; ++row)
                for (std::uint32_t column = 0; column < n; ++column)
                    if (row != i && column != j)
                        minor.push_back(a[row * n + column]);
            const Eliminated<T> e = eliminate(minor, n - 1, false);
            const T value = lastPasses(e) ? signedProduct(e) : 0;
            const T q = (i + j) % 2 == 0 ? 1 : -1;
            result[j * n + i] = (value * r) * q;
        }
    return result;
}

template <class T>
std::optional<std::vector<T>> inverseOf(const Cell &cell, const std::vector<T> &a, std::uint32_t n,
                                        const SetDst &setDst) {
    const Forms forms =
        cell.layout == Layout::Standard || cell.layout == Layout::L ? Forms::Standard : Forms::Strided;
    if (cell.order == 0)
        return inverseByCofactors(a, n);
    if (cell.order <= 4)
        return closedInverse(a, n, forms);
    if constexpr (sizeof(T) == 4)
        if (forms == Forms::Standard)
            return singlePivotInverse(a, n, setDst);
    return blockInverse(a, n, forms);
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    const bool byPosition = cell.order == 0 && !isArray(cell) && cell.layout == Layout::P;
    if (const auto status =
            checkArguments(call, byPosition ? SingleTables::TestedByPosition : SingleTables::TestedFirst))
        return *status;

    const std::uint32_t n = call.dimension("n"), count = call.count();
    const Operand src(call, "src"), dst(call, "dst");
    for (std::uint32_t k = 0; k < count; ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        std::vector<T> a;
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j) {
                if (byPosition && positionIsNull(call, std::size_t{i} * n + j))
                    return ZELM_ERR_NULL_PTR;
                a.push_back(readNumber<T>(src.element(k, i, j)));
            }
        const auto setDst = [&](std::uint32_t i, std::uint32_t j, float value) {
            results.write<float>(dst.element(k, i, j), value);
        };
        const auto result = inverseOf(cell, a, n, setDst);
        if (!result)
            return ZELM_ERR_DIV_BY_ZERO;
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j)
                results.write<T>(dst.element(k, i, j), (*result)[i * n + j]);
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

std::size_t scratchBytes(const Call &call) {
    const std::size_t n = call.cell->order == 0 ? call.dimension("n") : 0;
    return n * n * elementSize(*call.cell) + 4 * n;
}

} // namespace

const Family inverse = {.serves = serves,
                        .signature = signature,
                        .run = run,
                        .overlap = Overlap::Apart,
                        .content = Content::Inverting,
                        .writesInAnyOrder = [](const Cell &) { return true; },
                        .scratchBytes = scratchBytes};

} // namespace zelmref
