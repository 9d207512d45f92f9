// Saxpy: src1 * scale + src2. LComb: src1 * scale1 + src2 * scale2. An invariant operand is read for every
// object.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family saxpyLcomb;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Saxpy" || cell.operation == "LComb";
}

bool isLcomb(const Cell &cell) {
    return cell.operation == "LComb";
}

Signature signature(const Cell &cell) {
    const std::string_view d = cell.descriptor;
    Signature s = {vector("src1", d == "vav" || d == "vava"), constant(isLcomb(cell) ? "scale1" : "scale"),
                   vector("src2", d == "vva" || d == "vava")};
    if (isLcomb(cell))
        s.push_back(constant("scale2"));
    s.push_back(vector("dst", isArray(cell)));
    if (cell.order == 0)
        s.push_back(dimension("len"));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition))
        return *status;

    const auto factor = [&](std::string_view name) {
        return std::bit_cast<T>(static_cast<Bits<T>>(call.passed[call.index(name)].bits));
    };
    const Operand src1(call, "src1"), src2(call, "src2"), dst(call, "dst");
    const bool byPosition = !isArray(cell) && cell.layout == Layout::P;
    for (std::uint32_t k = 0; k < call.count(); ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        for (std::uint32_t j = 0; j < call.dimension("len"); ++j) {
            if (byPosition && positionIsNull(call, j))
                return ZELM_ERR_NULL_PTR;
            const T first = readNumber<T>(src1.element(k, j)) * factor(isLcomb(cell) ? "scale1" : "scale");
            T second = readNumber<T>(src2.element(k, j));
            if (isLcomb(cell))
                second = second * factor("scale2");
            results.write<T>(dst.element(k, j), first + second);
        }
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

} // namespace

const Family saxpyLcomb = {serves, signature, run, Overlap::Any, Content::Numbers};

} // namespace zelmref
