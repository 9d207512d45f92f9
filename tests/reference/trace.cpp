// Trace: m, ma. All forms but the fixed-size standard ones keep their sum in dst.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family trace;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Trace";
}

Signature signature(const Cell &cell) {
    Signature s = {matrix("src", isArray(cell))};
    if (cell.order == 0)
        s.push_back(dimension("n"));
    s.push_back(result(isArray(cell)));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    const std::uint32_t n = call.dimension("n");
    // The table test takes the first n entries, whatever lies on the diagonal.
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition, n))
        return *status;

    const Operand src(call, "src"), dst(call, "dst");
    const bool onlyFinal = cell.order != 0 && cell.layout == Layout::Standard;
    const bool byPosition = !isArray(cell) && cell.layout == Layout::P;
    for (std::uint32_t k = 0; k < call.count(); ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        const Address to = dst.element(k, 0);
        if (onlyFinal) {
            T sum = readNumber<T>(src.element(k, 0, 0));
            for (std::uint32_t i = 1; i < n; ++i)
                sum = sum + readNumber<T>(src.element(k, i, i));
            results.write<T>(to, sum);
            continue;
        }
        results.write<T>(to, 0);
        for (std::uint32_t i = 0; i < n; ++i) {
            if (byPosition && positionIsNull(call, std::size_t{i} * n + i))
                return ZELM_ERR_NULL_PTR;
            const T sum = readNumber<T>(to) + readNumber<T>(src.element(k, i, i));
            results.write<T>(to, sum);
        }
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

// In the array forms a diagonal entry behind the first n is read untested.
bool followsNull(const Call &call, std::size_t entry) {
    const bool perPosition = call.cell->layout == Layout::P || call.cell->layout == Layout::PS2;
    const std::uint32_t n = call.dimension("n");
    return isArray(*call.cell) && perPosition && entry >= n && entry / n == entry % n;
}

bool neverReads(const Call &, std::uint32_t i, std::uint32_t j) {
    return i != j;
}

} // namespace

const Family trace = {serves, signature, run, Overlap::Any, Content::Sums, nullptr, followsNull, neverReads};

} // namespace zelmref
