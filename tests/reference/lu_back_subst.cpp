// LUBackSubst: mv, mva, mava. The forward pass keeps its intermediate values in dst.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family luBackSubst;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "LUBackSubst";
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell);
    const bool matrices = cell.descriptor == "mava";
    Parameter factors = matrix("src1", matrices);
    factors.unreadObjStride = array && !matrices;
    Signature s = {factors, pivotIndex(matrices), vector("src2", array, "n"), vector("dst", array, "n")};
    if (cell.order == 0)
        s.push_back(dimension("n"));
    if (array)
        s.push_back(objectCount());
    return s;
}

template <class T>
void solve(const Operand &src1, const Operand &src2, const Operand &dst, Address pivots, std::uint32_t object,
           std::uint32_t n, ComputedElements &results) {
    const auto row = [&](std::uint32_t i) { return readWord<std::uint32_t>(pivots + 4 * Address{i}); };
    const auto a = [&](std::uint32_t i, std::uint32_t j) {
        return readNumber<T>(src1.element(object, row(i), j));
    };
    const auto b = [&](std::uint32_t i) { return readNumber<T>(src2.element(object, row(i))); };
    const auto x = [&](std::uint32_t j) { return readNumber<T>(dst.element(object, j)); };
    const auto setX = [&](std::uint32_t j, T value) { results.write<T>(dst.element(object, j), value); };

    results.copy<T>(dst.element(object, 0), src2.element(object, row(0)));
    for (std::uint32_t i = 1; i < n; ++i) {
        T s = 0;
        for (std::uint32_t j = 0; j < i; ++j) {
            const T product = a(i, j) * x(j);
            s = s + product;
        }
        setX(i, b(i) - s);
    }
    setX(n - 1, x(n - 1) / a(n - 1, n - 1));
    for (std::uint32_t i = n - 1; i-- > 0;) {
        T s = 0;
        for (std::uint32_t j = i + 1; j < n; ++j) {
            const T product = a(i, j) * x(j);
            s = s + product;
        }
        setX(i, (x(i) - s) / a(i, i));
    }
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    if (const auto status = checkArguments(call, SingleTables::TestedFirst))
        return *status;

    const std::uint32_t n = call.dimension("n"), count = call.count();
    const Operand src1(call, "src1"), src2(call, "src2"), dst(call, "dst");
    const std::size_t table = call.index("pivotIndex");
    const bool perObject = (*call.signature)[table].array;
    for (std::uint32_t k = 0; k < count; ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        const Address pivots = call.passed[table].base + (perObject ? Address{k} * n * 4 : 0);
        solve<T>(src1, src2, dst, pivots, k, n, results);
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

} // namespace

const Family luBackSubst = {serves, signature, run, Overlap::Any, Content::Solving};

} // namespace zelmref
