// CrossProduct: vv, vav, vva, vava, all of 3-vectors.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family crossProduct;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "CrossProduct";
}

Signature signature(const Cell &cell) {
    const std::string_view d = cell.descriptor;
    Signature s = {vector("src1", d == "vav" || d == "vava"), vector("src2", d == "vva" || d == "vava"),
                   vector("dst", isArray(cell))};
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool isAdjacent(const Cell &cell) {
    return cell.layout == Layout::Standard || cell.layout == Layout::L;
}

template <class T>
T negative(T x) { // of a zero of either sign it is +0
    return T(0) - x;
}

// An object of the layouts with adjacent elements is read before it is written.
template <class T>
void wholeObject(const Operand &src1, const Operand &src2, const Operand &dst, std::uint32_t k,
                 ComputedElements &results) {
    T a[3], b[3];
    for (std::uint32_t j = 0; j < 3; ++j) {
        a[j] = readNumber<T>(src1.element(k, j));
        b[j] = readNumber<T>(src2.element(k, j));
    }
    for (std::uint32_t j = 0; j < 3; ++j) {
        const std::uint32_t next = (j + 1) % 3, last = (j + 2) % 3;
        const T first = a[next] * b[last], second = a[last] * b[next];
        results.write<T>(dst.element(k, j), first - second);
    }
}

// In the other layouts each line reads its four elements and writes its result before the next one.
template <class T>
void lineByLine(std::string_view descriptor, const Operand &src1, const Operand &src2, const Operand &dst,
                std::uint32_t k, ComputedElements &results) {
    const auto a = [&](std::uint32_t j) { return readNumber<T>(src1.element(k, j)); };
    const auto b = [&](std::uint32_t j) { return readNumber<T>(src2.element(k, j)); };
    for (std::uint32_t j = 0; j < 3; ++j) {
        const std::uint32_t next = (j + 1) % 3, last = (j + 2) % 3;
        const T first = a(next) * b(last);
        T value;
        if (descriptor == "vav") {
            const T second = negative(b(next)) * a(last);
            value = first + second;
        } else if (descriptor == "vva") {
            const T second = negative(a(last)) * b(next);
            value = first + second;
        } else {
            const T second = a(last) * b(next);
            value = first - second;
        }
        results.write<T>(dst.element(k, j), value);
    }
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    if (const auto status = checkArguments(call, SingleTables::TestedFirst))
        return *status;

    const Operand src1(call, "src1"), src2(call, "src2"), dst(call, "dst");
    for (std::uint32_t k = 0; k < call.count(); ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        if (isAdjacent(*call.cell))
            wholeObject<T>(src1, src2, dst, k, results);
        else
            lineByLine<T>(call.cell->descriptor, src1, src2, dst, k, results);
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

// When an invariant's elements are read is open but for the negated ones.
Overlap overlapWith(const Cell &cell, const Parameter &source) {
    if (isArray(cell) && !source.array)
        return Overlap::Apart;
    return isAdjacent(cell) ? Overlap::InPlace : Overlap::Any;
}

} // namespace

const Family crossProduct = {serves, signature, run, Overlap::Any, Content::Numbers, overlapWith};

} // namespace zelmref
