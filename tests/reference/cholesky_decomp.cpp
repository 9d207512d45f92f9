// CholeskyDecomp: the lower triangle row by row, with reciprocals on the diagonal.
#include "checks.h"
#include "cholesky.h"
#include "family.h"

#include <cmath>

namespace zelmref {

extern const Family choleskyDecomp;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "CholeskyDecomp";
}

Signature signature(const Cell &cell) {
    Signature s = {matrix("src", isArray(cell)), matrix("dst", isArray(cell))};
    if (cell.order == 0)
        s.push_back(dimension("n"));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool isPerPosition(const Cell &cell) {
    return cell.layout == Layout::P || cell.layout == Layout::PS2;
}

bool isSigned(const Cell &cell, const Parameter &parameter) {
    return parameter.kind == Kind::Count && !isPerPosition(cell);
}

// For these orders an element stride counts in whole elements, rounded down.
bool roundsElemStride(const Call &call) {
    const std::uint32_t n = call.dimension("n");
    return (call.cell->layout == Layout::S2 || call.cell->layout == Layout::LS2) && n >= 3 && n <= 6;
}

Call withWholeElements(Call call) {
    const std::int32_t shift = elementSize(*call.cell) == 4 ? 2 : 3;
    for (const char *name : {"src", "dst"}) {
        std::int32_t &stride = call.passed[call.index(name)].elemStride;
        stride = (stride >> shift) * (1 << shift);
    }
    return call;
}

double reciprocalRoot(const Cell &, double d) {
    return 1.0 / std::sqrt(d);
}

// The tables of positions are the forms that stay in 32 bits.
float reciprocalRoot(const Cell &cell, float d) {
    if (isPerPosition(cell)) {
        const float root = std::sqrt(d);
        return 1.0f / root;
    }
    return static_cast<float>(1.0 / std::sqrt(static_cast<double>(d)));
}

template <class T>
ZelmStatus factor(const Cell &cell, const Operand &src, const Operand &dst, std::uint32_t object,
                  std::uint32_t n, ComputedElements &results) {
    const auto a = [&](std::uint32_t i, std::uint32_t j) { return readNumber<T>(src.element(object, i, j)); };
    const auto l = [&](std::uint32_t i, std::uint32_t j) { return readNumber<T>(dst.element(object, i, j)); };
    for (std::uint32_t i = 0; i < n; ++i) {
        for (std::uint32_t j = 0; j < i; ++j) {
            T s = a(i, j);
            for (std::uint32_t k = 0; k < j; ++k) {
                const T product = l(i, k) * l(j, k);
                s = s - product;
            }
            s = s * l(j, j);
            results.write<T>(dst.element(object, i, j), s);
        }
        T d = a(i, i);
        for (std::uint32_t k = 0; k < i; ++k) {
            const T square = l(i, k) * l(i, k);
            d = d - square;
        }
        if (!(d > 0))
            return ZELM_ERR_NOT_POS_DEF;
        results.write<T>(dst.element(object, i, i), reciprocalRoot(cell, d));
    }
    return ZELM_OK;
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (pointerIsNull(call))
        return ZELM_ERR_NULL_PTR;
    if (dimensionIsZero(call) || call.count() == 0)
        return ZELM_ERR_SIZE;
    if (!isPerPosition(cell) && static_cast<std::int32_t>(call.count()) < 0)
        return ZELM_OK;

    const Call used = roundsElemStride(call) ? withWholeElements(call) : call;
    const Operand src(used, "src"), dst(used, "dst");
    for (std::uint32_t k = 0; k < call.count(); ++k) {
        if (comesToNull(call, {&src, &dst}, k))
            return ZELM_ERR_NULL_PTR;
        const ZelmStatus status = factor<T>(cell, src, dst, k, call.dimension("n"), results);
        if (status != ZELM_OK)
            return status;
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

} // namespace

const Family choleskyDecomp = {.serves = serves,
                               .signature = signature,
                               .run = run,
                               .overlap = Overlap::InPlace,
                               .content = Content::PositiveDefinite,
                               .followsNull = followsNullPosition,
                               .neverReads = hasUpperTriangle,
                               .isSigned = isSigned,
                               .roundsElemStride = roundsElemStride,
                               .addsShiftBeforeNullTest = true};

} // namespace zelmref
