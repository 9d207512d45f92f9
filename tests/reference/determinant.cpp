// Det: elimination in the forms of run-time size, expansion by minors in those of fixed size.
#include "checks.h"
#include "elimination.h"
#include "extended_determinant.h"
#include "family.h"
#include "minors.h"

namespace zelmref {

extern const Family determinant;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Det";
}

Signature signature(const Cell &cell) {
    Signature s = {matrix("src", isArray(cell))};
    if (cell.order == 0) {
        s.push_back(dimension("n"));
        s.push_back(scratch());
    }
    s.push_back(result(isArray(cell)));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool isExtended(const Cell &cell) {
    return cell.layout == Layout::Standard || cell.layout == Layout::L;
}

template <class T>
T byElimination(const Cell &cell, std::vector<T> a, std::uint32_t n) {
    const Eliminated<T> e = eliminate(std::move(a), n, true);
    if (e.stopped && !isArray(cell))
        return 0;
    return lastPasses(e) ? signedProduct(e) : 0; // of a stopped one 0 times the last
}

template <class T>
T byMinors(const Cell &cell, const std::vector<T> &a) {
    if (isExtended(cell))
        return extendedDeterminant(cell, a);
    const auto keep = [](Columns, std::uint32_t, T value) { return value; };
    if (cell.order > 3)
        return expandByMinors<T>(a, cell.order, keep);
    const auto difference = [&](T p, T q, T r, T s) {
        const T positive = p * q, negative = r * s;
        return positive - negative;
    };
    const T t0 = difference(a[4], a[8], a[7], a[5]) * a[0];
    const T t1 = difference(a[5], a[6], a[8], a[3]) * a[1];
    const T t2 = difference(a[3], a[7], a[6], a[4]) * a[2];
    return (t0 + t1) + t2;
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
        if (cell.order == 0)
            results.write<T>(dst.element(k, 0), 1);
        std::vector<T> a;
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j) {
                if (byPosition && positionIsNull(call, std::size_t{i} * n + j))
                    return ZELM_ERR_NULL_PTR;
                a.push_back(readNumber<T>(src.element(k, i, j)));
            }
        results.write<T>(dst.element(k, 0),
                         cell.order == 0 ? byElimination(cell, std::move(a), n) : byMinors(cell, a));
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

Overlap overlapWith(const Cell &cell, const Parameter &) {
    return cell.order == 0 ? Overlap::Apart : Overlap::Any;
}

std::size_t scratchBytes(const Call &call) {
    const std::size_t n = call.cell->order == 0 ? call.dimension("n") : 0;
    return n * n * elementSize(*call.cell) + 4 * n;
}

} // namespace

const Family determinant = {.serves = serves,
                            .signature = signature,
                            .run = run,
                            .overlap = Overlap::Any,
                            .content = Content::Inverting,
                            .overlapWith = overlapWith,
                            .scratchBytes = scratchBytes};

} // namespace zelmref
