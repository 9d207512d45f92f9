// Mul of two matrices: each alone, invariant or an array, and used transposed or not.
#include "checks.h"
#include "family.h"
#include "matrix_product_departures.h"
#include "sums.h"
#include "uses.h"

#include <algorithm>

namespace zelmref {

extern const Family matrixProduct;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Mul" && cell.descriptor[0] == 'm' &&
           cell.descriptor.find('m', 1) != std::string_view::npos;
}

bool isPerPosition(const Cell &cell) {
    return cell.layout == Layout::P || cell.layout == Layout::PS2;
}

// The names of the arguments that bound the loops: dst has `rows` x `columns` elements of `terms` terms.
struct Bounds {
    const char *rows, *columns, *terms;
};

Bounds boundsOf(const Cell &cell) {
    if (departs::hasBoundsOfStored(cell))
        return {"src1Height", "src2Height", "src2Width"};
    return {"src1Height", "src2Width", "src2Height"};
}

Parameter operand(const char *name, Use use, const char *height, const char *width) {
    return use.transposed ? matrix(name, use.array, width, height) : matrix(name, use.array, height, width);
}

// A source has the rows and columns that the loops read. The columns of src1 are the pitch of its table,
// which is the argument of src1 and not the number of terms.
Signature signature(const Cell &cell) {
    const Uses uses(cell.descriptor);
    const Bounds bounds = boundsOf(cell);
    const bool table = isPerPosition(cell);
    Signature s = {operand("src1", uses.first, bounds.rows, table ? "src1Width" : bounds.terms)};
    if (cell.order == 0) {
        s.push_back(dimension("src1Width"));
        s.push_back(dimension("src1Height"));
    }
    s.push_back(operand("src2", uses.second, bounds.terms, bounds.columns));
    if (cell.order == 0) {
        s.push_back(dimension("src2Width"));
        s.push_back(dimension("src2Height"));
    }
    s.push_back(matrix("dst", isArray(cell), bounds.rows, bounds.columns));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool dimensionsFit(const Call &call) {
    const departs::Equal equal = departs::equalDimensions(*call.cell);
    return call.dimension(equal.first) == call.dimension(equal.second);
}

bool sizesAreWrong(const Call &call) {
    if (call.cell->order != 0)
        return false;
    for (const char *name : {"src1Width", "src1Height", "src2Width", "src2Height"}) {
        const bool mayBeZero = departs::mayHaveNoColumns(*call.cell) && std::string_view(name) == "src2Width";
        if (call.dimension(name) == 0 && !mayBeZero)
            return true;
    }
    return !dimensionsFit(call);
}

std::size_t entriesTested(const Call &call, std::string_view parameter) {
    const std::size_t width1 = call.dimension("src1Width"), height1 = call.dimension("src1Height"),
                      width2 = call.dimension("src2Width"), height2 = call.dimension("src2Height");
    if (parameter == "src1")
        return width1 * height1;
    if (parameter == "src2")
        return width2 * height2;
    const Uses uses(call.cell->descriptor);
    return (uses.first.transposed ? height1 : width1) * (uses.second.transposed ? width2 : height2);
}

bool anyTableIsNull(const Call &call) {
    for (const char *name : {"src1", "src2", "dst"})
        for (std::size_t e = 0; e < entriesTested(call, name); ++e)
            if (Operand(call, name).entryIsNull(e))
                return true;
    return false;
}

// The run-time forms and the single objects of P keep the sum in dst, from +0.
bool accumulatesInDst(const Cell &cell) {
    return cell.order == 0 || (cell.layout == Layout::P && !isArray(cell));
}

bool isMultipleOf16(Address address) {
    return address % 16 == 0;
}

bool staysAtFirstObject(const Call &call) {
    const Passed &src2 = call.passed[call.index("src2")], &dst = call.passed[call.index("dst")];
    return departs::mayStayAtFirstObject(*call.cell) && isMultipleOf16(src2.base) &&
           isMultipleOf16(times(1, src2.rowStride)) && isMultipleOf16(dst.base) &&
           isMultipleOf16(times(1, dst.objStride)) && isMultipleOf16(times(1, dst.rowStride));
}

template <class T>
T fixedSizeSum(const Cell &cell, const std::vector<T> &p) {
    return departs::sumsInTree(cell) ? ((p[0] + p[1]) + (p[2] + p[3])) + (p[4] + p[5]) : sumFromFirst(p);
}

template <class T>
class Computation {
public:
    Computation(const Call &call, ComputedElements &results)
        : call_(call), cell_(*call.cell), uses_(cell_.descriptor), src1_(call, "src1"), src2_(call, "src2"),
          dst_(call, "dst"), results_(results) {
        const Bounds bounds = boundsOf(cell_);
        rows_ = call.dimension(bounds.rows);
        columns_ = call.dimension(bounds.columns);
        terms_ = call.dimension(bounds.terms);
    }

    ZelmStatus run() {
        const bool stays = staysAtFirstObject(call_);
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (!departs::testsNoEntry(cell_) && objectIsNull(call_, k))
                return ZELM_ERR_NULL_PTR;
            if (!accumulatesInDst(cell_))
                fixedSize(k, stays ? 0 : k);
            else if (const ZelmStatus status = accumulate(k); status != ZELM_OK)
                return status;
        }
        return ZELM_OK;
    }

private:
    // Elements (i, t) and (t, j) of the sources as used.
    T first(std::uint32_t k, std::uint32_t i, std::uint32_t t) const {
        return readNumber<T>(uses_.first.transposed ? src1_.element(k, t, i) : src1_.element(k, i, t));
    }

    T second(std::uint32_t k, std::uint32_t t, std::uint32_t j) const {
        return readNumber<T>(uses_.second.transposed ? src2_.element(k, j, t) : src2_.element(k, t, j));
    }

    std::size_t firstEntry(std::uint32_t i, std::uint32_t t) const {
        return uses_.first.transposed ? std::size_t{t} * call_.dimension("src1Height") + i
                                      : std::size_t{i} * call_.dimension("src1Width") + t;
    }

    std::size_t secondEntry(std::uint32_t t, std::uint32_t j) const {
        return uses_.second.transposed ? std::size_t{j} * call_.dimension("src2Height") + t
                                       : std::size_t{t} * call_.dimension("src2Width") + j;
    }

    ZelmStatus accumulate(std::uint32_t k) {
        const bool byPosition = cell_.layout == Layout::P && !isArray(cell_);
        for (std::uint32_t i = 0; i < rows_; ++i)
            for (std::uint32_t j = 0; j < columns_; ++j) {
                if (byPosition && dst_.entryIsNull(std::size_t{i} * call_.dimension("src2Width") + j))
                    return ZELM_ERR_NULL_PTR;
                const Address sum = dst_.element(k, i, j);
                results_.write<T>(sum, 0);
                for (std::uint32_t t = 0; t < terms_; ++t) {
                    if (byPosition &&
                        (src1_.entryIsNull(firstEntry(i, t)) || src2_.entryIsNull(secondEntry(t, j))))
                        return ZELM_ERR_NULL_PTR;
                    const T p = first(k, i, t) * second(k, t, j);
                    results_.write<T>(sum, readNumber<T>(sum) + p);
                }
            }
        return ZELM_OK;
    }

    // `object` is that of src1.
    void fixedSize(std::uint32_t k, std::uint32_t object) {
        const std::uint32_t n = cell_.order;
        std::vector<T> sums;
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j) {
                std::vector<T> products;
                for (std::uint32_t t = 0; t < n; ++t)
                    products.push_back(first(object, i, t) * second(k, t, j));
                sums.push_back(fixedSizeSum(cell_, products));
            }
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j)
                results_.write<T>(dst_.element(k, i, j), sums[std::size_t{i} * n + j]);
    }

    const Call &call_;
    const Cell &cell_;
    const Uses uses_;
    const Operand src1_, src2_, dst_;
    std::uint32_t rows_, columns_, terms_;
    ComputedElements &results_;
};

ZelmStatus run(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (pointerIsNull(call))
        return ZELM_ERR_NULL_PTR;
    if (sizesAreWrong(call))
        return ZELM_ERR_SIZE;
    if (isArray(cell) && isPerPosition(cell) && !departs::testsNoEntry(cell) && anyTableIsNull(call))
        return ZELM_ERR_NULL_PTR;
    return cell.type == Type::Float32 ? Computation<float>(call, results).run()
                                      : Computation<double>(call, results).run();
}

// The steps of an accumulating form define every overlap.
Overlap overlapWith(const Cell &cell, const Parameter &source) {
    if (accumulatesInDst(cell))
        return Overlap::Any;
    const bool isFirst = source.name == "src1";
    if (source.array != isArray(cell) || (isFirst && departs::mayStayAtFirstObject(cell)))
        return Overlap::Apart;
    return (isFirst ? departs::worksInPlaceOfFirst(cell) : departs::worksInPlaceOfSecond(cell))
               ? Overlap::InPlaceDistinct
               : Overlap::OtherObjects;
}

std::size_t entriesUsed(const Call &call, std::string_view parameter) {
    const std::size_t height1 = call.dimension("src1Height"), width2 = call.dimension("src2Width"),
                      height2 = call.dimension("src2Height");
    if (parameter == "src2")
        return height2 * width2;
    if (parameter == "dst")
        return height1 * width2;
    return Uses(call.cell->descriptor).first.transposed
               ? height2 * height1
               : (height1 - 1) * call.dimension("src1Width") + height2;
}

std::size_t entriesReached(const Call &call, const Parameter &parameter) {
    return std::max(entriesTested(call, parameter.name), entriesUsed(call, parameter.name));
}

bool followsNull(const Call &call, std::size_t entry) {
    if (departs::testsNoEntry(*call.cell))
        return true;
    if (!isArray(*call.cell) || !isPerPosition(*call.cell))
        return false;
    const auto untested = [&](const char *name) {
        return entry >= entriesTested(call, name) && entry < entriesUsed(call, name);
    };
    return untested("src1") || untested("dst");
}

bool looksAtAddresses(const Cell &cell) {
    return departs::mayStayAtFirstObject(cell);
}

} // namespace

const Family matrixProduct = {serves,      signature,   run,           Overlap::Apart,  Content::Sums,
                              overlapWith, followsNull, nullptr,       entriesReached,  nullptr,
                              nullptr,     nullptr,     dimensionsFit, looksAtAddresses};

} // namespace zelmref
