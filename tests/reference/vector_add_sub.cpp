// Add and Sub of vectors: vv, vc, cv, vav, vac, vava, vva, cva.
#include "checks.h"
#include "family.h"

#include <optional>

namespace zelmref {

extern const Family vectorAddSub;

namespace {

bool serves(const Cell &cell) {
    return (cell.operation == "Add" || cell.operation == "Sub") &&
           cell.descriptor.find('m') == std::string_view::npos;
}

bool hasConstant(const Cell &cell) {
    return cell.descriptor.find('c') != std::string_view::npos;
}

bool isArrayLetter(std::string_view descriptor, std::size_t letter) {
    return letter + 1 < descriptor.size() && descriptor[letter + 1] == 'a';
}

Signature signature(const Cell &cell) {
    const std::string_view d = cell.descriptor;
    const bool array = isArray(cell);
    Signature s;
    if (hasConstant(cell)) { // the vector comes first in the list, whatever the descriptor says
        s = {vector("src", array), constant("val")};
    } else {
        const bool firstArray = isArrayLetter(d, 0);
        s = {vector("src1", firstArray), vector("src2", isArrayLetter(d, firstArray ? 2 : 1))};
    }
    s.push_back(vector("dst", array));
    if (cell.order == 0)
        s.push_back(dimension("len"));
    if (array)
        s.push_back(objectCount());
    return s;
}

// An invariant vector is read once in the fixed-size standard and L forms, but for three 64f_6x1 rows and
// their L.
bool holdsInvariant(const Cell &cell) {
    const bool invariant = cell.descriptor == "vav" || cell.descriptor == "vva";
    const bool departs = cell.type == Type::Float64 && cell.order == 6;
    return invariant && cell.order != 0 && (cell.layout == Layout::Standard || cell.layout == Layout::L) &&
           !departs;
}

// One side of the operation: a constant, or the elements of an operand, possibly as they were before the
// first object.
template <class T>
class Term {
public:
    explicit Term(T value) : value_(value) {}
    explicit Term(const Operand &operand) : operand_(operand) {}

    void hold(std::uint32_t len) {
        for (std::uint32_t j = 0; j < len; ++j)
            held_.push_back(readNumber<T>(operand_->element(0, j)));
    }

    T at(std::uint32_t k, std::uint32_t j) const {
        if (!operand_)
            return value_;
        return held_.empty() ? readNumber<T>(operand_->element(k, j)) : held_[j];
    }

private:
    T value_ = 0;
    std::optional<Operand> operand_;
    std::vector<T> held_;
};

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition))
        return *status;

    const std::uint32_t len = call.dimension("len"), count = call.count();
    const Operand dst(call, "dst");
    const auto constantTerm = [&] {
        return Term<T>(std::bit_cast<T>(static_cast<Bits<T>>(call.passed[call.index("val")].bits)));
    };
    Term<T> left = cell.descriptor[0] == 'c' ? constantTerm()
                                             : Term<T>(Operand(call, hasConstant(cell) ? "src" : "src1"));
    Term<T> right = cell.descriptor[0] == 'c' ? Term<T>(Operand(call, "src"))
                    : hasConstant(cell)       ? constantTerm()
                                              : Term<T>(Operand(call, "src2"));
    if (holdsInvariant(cell))
        (cell.descriptor == "vav" ? right : left).hold(len);

    const bool add = cell.operation == "Add";
    const bool byPosition = !isArray(cell) && cell.layout == Layout::P;
    for (std::uint32_t k = 0; k < count; ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        for (std::uint32_t j = 0; j < len; ++j) {
            if (byPosition && positionIsNull(call, j))
                return ZELM_ERR_NULL_PTR;
            const T a = left.at(k, j), b = right.at(k, j);
            results.write<T>(dst.element(k, j), add ? a + b : a - b);
        }
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

} // namespace

const Family vectorAddSub = {serves, signature, run, Overlap::Any, Content::Numbers};

} // namespace zelmref
