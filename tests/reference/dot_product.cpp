// DotProduct: vv, vav, vava. The order of the sum depends on the form, and in one form on an address.
#include "checks.h"
#include "family.h"
#include "sums.h"

namespace zelmref {

extern const Family dotProduct;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "DotProduct";
}

bool splitsLongVectors(const Cell &cell) {
    return cell.descriptor == "vv" && cell.order == 0 && cell.layout == Layout::Standard;
}

Signature signature(const Cell &cell) {
    Signature s = {vector("src1", isArray(cell)), vector("src2", cell.descriptor == "vava"),
                   result(isArray(cell))};
    s[1].anyByte = splitsLongVectors(cell);
    if (cell.order == 0)
        s.push_back(dimension("len"));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool testsNoEntry(const Cell &cell) {
    return cell.descriptor == "vav" && cell.type == Type::Float32 && cell.layout == Layout::L &&
           (cell.order == 3 || cell.order == 4);
}

bool testsAllEntriesFirst(const Cell &cell) {
    return cell.descriptor == "vav" && cell.type == Type::Float64 && cell.layout == Layout::L &&
           cell.order == 3;
}

template <class T>
T fixedSizeSum(const Cell &cell, const std::vector<T> &p) {
    const bool adjacent = cell.layout == Layout::Standard || cell.layout == Layout::L;
    if (cell.type == Type::Float32 && cell.descriptor == "vav" && adjacent && cell.order == 4)
        return (p[0] + p[1]) + (p[2] + p[3]);
    if (cell.type == Type::Float64 && adjacent) {
        switch (cell.order) {
        case 3:
            return (p[0] + p[1]) + p[2];
        case 4:
            return (p[0] + p[2]) + (p[1] + p[3]);
        case 5:
            return ((p[0] + p[2]) + (p[1] + p[3])) + p[4];
        case 6:
            return (p[0] + (p[2] + p[4])) + (p[1] + (p[3] + p[5]));
        default:
            break;
        }
    }
    return sumFromFirst(p);
}

template <class T>
T sum(const Call &call, const std::vector<T> &products) {
    const Cell &cell = *call.cell;
    if (cell.order != 0)
        return fixedSizeSum(cell, products);
    if (splitsLongVectors(cell))
        return sumOfLongVector(products, call.passed[call.index("src2")].base);
    return sumFromZero(products);
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition))
        return *status;

    const std::uint32_t len = call.dimension("len"), count = call.count();
    const Operand src1(call, "src1"), src2(call, "src2"), dst(call, "dst");
    if (testsAllEntriesFirst(cell))
        for (std::uint32_t k = 0; k < count; ++k)
            if (objectIsNull(call, k))
                return ZELM_ERR_NULL_PTR;

    const bool byPosition = !isArray(cell) && cell.layout == Layout::P;
    for (std::uint32_t k = 0; k < count; ++k) {
        if (!testsNoEntry(cell) && objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        std::vector<T> products;
        for (std::uint32_t t = 0; t < len; ++t) {
            if (byPosition && positionIsNull(call, t))
                return ZELM_ERR_NULL_PTR;
            products.push_back(readNumber<T>(src1.element(k, t)) * readNumber<T>(src2.element(k, t)));
        }
        results.write<T>(dst.element(k, 0), sum(call, products));
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

// Whether the invariant vector is held or read anew is open.
Overlap overlapWith(const Cell &cell, const Parameter &source) {
    return isArray(cell) && !source.array ? Overlap::Apart : Overlap::Any;
}

bool followsNull(const Call &call, std::size_t) {
    return testsNoEntry(*call.cell);
}

} // namespace

const Family dotProduct = {.serves = serves,
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
