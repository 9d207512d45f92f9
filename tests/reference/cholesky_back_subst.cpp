// CholeskyBackSubst: mv, mva, mava. Both passes work in dst; no status of a single object is kept.
#include "checks.h"
#include "cholesky.h"
#include "family.h"

namespace zelmref {

extern const Family choleskyBackSubst;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "CholeskyBackSubst";
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell);
    Signature s = {matrix("src1", cell.descriptor == "mava"), vector("src2", array, "n"),
                   vector("dst", array, "n")};
    if (cell.order == 0)
        s.push_back(dimension("n"));
    if (array)
        s.push_back(objectCount());
    return s;
}

template <class T>
void solve(const Operand &src1, const Operand &src2, const Operand &dst, std::uint32_t object,
           std::uint32_t n, ComputedElements &results) {
    const auto l = [&](std::uint32_t i, std::uint32_t j) {
        return readNumber<T>(src1.element(object, i, j));
    };
    const auto stored = [&](std::uint32_t i) { return readNumber<T>(dst.element(object, i)); };
    for (std::uint32_t i = 0; i < n; ++i) {
        T x = readNumber<T>(src2.element(object, i));
        for (std::uint32_t k = 0; k < i; ++k) {
            const T product = l(i, k) * stored(k);
            x = x - product;
        }
        x = x * l(i, i);
        results.write<T>(dst.element(object, i), x);
    }
    for (std::uint32_t i = n; i-- > 0;) {
        T x = stored(i);
        for (std::uint32_t k = n - 1; k > i; --k) {
            const T product = l(k, i) * stored(k);
            x = x - product;
        }
        x = x * l(i, i);
        results.write<T>(dst.element(object, i), x);
    }
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    if (pointerIsNull(call))
        return ZELM_ERR_NULL_PTR;
    const std::uint32_t n = call.dimension("n"), count = call.count();
    if (n == 0 || count == 0)
        return ZELM_ERR_SIZE;
    if (static_cast<std::int32_t>(n) < 0 || static_cast<std::int32_t>(count) < 0)
        return ZELM_OK;

    const Operand src1(call, "src1"), src2(call, "src2"), dst(call, "dst");
    for (std::uint32_t k = 0; k < count; ++k)
        if (!comesToNull(call, {&src1, &src2, &dst}, k))
            solve<T>(src1, src2, dst, k, n, results);
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

Overlap overlapWith(const Cell &, const Parameter &source) {
    return source.name == "src1" ? Overlap::Apart : Overlap::Any;
}

bool isSigned(const Cell &, const Parameter &) {
    return true;
}

} // namespace

const Family choleskyBackSubst = {.serves = serves,
                                  .signature = signature,
                                  .run = run,
                                  .overlap = Overlap::Any,
                                  .content = Content::Solving,
                                  .overlapWith = overlapWith,
                                  .followsNull = followsNullPosition,
                                  .neverReads = hasUpperTriangle,
                                  .isSigned = isSigned,
                                  .addsShiftBeforeNullTest = true};

} // namespace zelmref
