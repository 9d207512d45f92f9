// L2Norm: v, va. Sum shapes and roots by form; the run-time standard form of v splits long vectors.
#include "checks.h"
#include "family.h"
#include "roots.h"
#include "sums.h"

namespace zelmref {

extern const Family l2Norm;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "L2Norm";
}

bool splitsLongVectors(const Cell &cell) {
    return !isArray(cell) && cell.order == 0 && cell.layout == Layout::Standard;
}

bool isFixedAndAdjacent(const Cell &cell) {
    return cell.order != 0 && (cell.layout == Layout::Standard || cell.layout == Layout::L);
}

Signature signature(const Cell &cell) {
    Signature s = {vector("src", isArray(cell)), result(isArray(cell))};
    s[0].anyByte = splitsLongVectors(cell);
    if (cell.order == 0)
        s.push_back(dimension("len"));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool testsNoEntry(const Cell &cell) {
    return cell.type == Type::Float32 && cell.layout == Layout::L && cell.order == 4;
}

float adjacentSum(const Cell &cell, const std::vector<float> &q) {
    const bool array = isArray(cell);
    switch (cell.order) {
    case 3:
        return (q[0] + q[1]) + q[2];
    case 4:
        return array ? ((q[0] + q[1]) + q[2]) + q[3] : (q[0] + q[1]) + (q[2] + q[3]);
    case 5:
        return ((q[0] + q[1]) + (q[2] + q[3])) + q[4];
    default:
        return array ? ((q[0] + q[2]) + q[4]) + ((q[1] + q[3]) + q[5])
                     : ((q[0] + q[1]) + (q[2] + q[3])) + (q[4] + q[5]);
    }
}

double adjacentSum(const Cell &cell, const std::vector<double> &q) {
    switch (cell.order) {
    case 3:
        return (q[0] + q[2]) + q[1];
    case 4:
        return (q[0] + q[2]) + (q[1] + q[3]);
    case 5:
        return ((q[0] + q[2]) + q[4]) + (q[1] + q[3]);
    default:
        return ((q[0] + q[2]) + q[4]) + ((q[1] + q[3]) + q[5]);
    }
}

template <class T>
T sum(const Call &call, const std::vector<T> &squares) {
    const Cell &cell = *call.cell;
    if (isFixedAndAdjacent(cell))
        return adjacentSum(cell, squares);
    if (splitsLongVectors(cell))
        return sumOfLongVector(squares, call.passed[call.index("src")].base);
    return sumFromZero(squares); // squares have no negative zero, so the first may also begin the sum
}

float root(const Cell &cell, float s) {
    return isFixedAndAdjacent(cell) ? refinedRoot(s) : std::sqrt(s);
}

double root(const Cell &, double s) {
    return std::sqrt(s);
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition))
        return *status;

    const std::uint32_t len = call.dimension("len"), count = call.count();
    const Operand src(call, "src"), dst(call, "dst");
    const bool byPosition = !isArray(cell) && cell.layout == Layout::P;
    for (std::uint32_t k = 0; k < count; ++k) {
        if (!testsNoEntry(cell) && objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        std::vector<T> squares;
        for (std::uint32_t t = 0; t < len; ++t) {
            if (byPosition && positionIsNull(call, t))
                return ZELM_ERR_NULL_PTR;
            const T x = readNumber<T>(src.element(k, t));
            squares.push_back(x * x);
        }
        results.write<T>(dst.element(k, 0), root(cell, sum(call, squares)));
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

// Four objects are taken at a time in these forms; when they are read is open.
Overlap overlapWith(const Cell &cell, const Parameter &) {
    const bool groups = isArray(cell) && cell.type == Type::Float32 && isFixedAndAdjacent(cell);
    return groups ? Overlap::Apart : Overlap::Any;
}

bool followsNull(const Call &call, std::size_t) {
    return testsNoEntry(*call.cell);
}

} // namespace

const Family l2Norm = {.serves = serves,
                       .signature = signature,
                       .run = run,
                       .overlap = Overlap::Any,
                       .content = Content::Sums,
                       .overlapWith = overlapWith,
                       .followsNull = followsNull,
                       .looksAtAddresses = [](const Cell &cell) {
                           return cell.type == Type::Float64 && splitsLongVectors(cell);
                       }};

} // namespace zelmref
