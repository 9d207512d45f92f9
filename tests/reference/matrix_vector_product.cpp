// Mul of a matrix and a vector: mv, mTv, mva, mTva, mav, maTv, mava, maTva.
#include "checks.h"
#include "family.h"
#include "product_sums.h"
#include "sums.h"
#include "uses.h"

#include <algorithm>

namespace zelmref {

extern const Family matrixVectorProduct;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Mul" && cell.descriptor[0] == 'm' &&
           cell.descriptor.find('v') != std::string_view::npos;
}

bool isTransposed(const Cell &cell) {
    return Uses(cell.descriptor).first.transposed;
}

bool isPerPosition(const Cell &cell) {
    return cell.layout == Layout::P || cell.layout == Layout::PS2;
}

// Every form has src1Height results of src1Width terms, whether src1 is transposed or not. The arguments are
// those of the stored matrix in the size test, and those of the matrix as used everywhere else.
Signature signature(const Cell &cell) {
    const Uses uses(cell.descriptor);
    Signature s = {uses.first.transposed ? matrix("src1", uses.first.array, "src1Width", "src1Height")
                                         : matrix("src1", uses.first.array, "src1Height", "src1Width")};
    if (cell.order == 0) {
        s.push_back(dimension("src1Width"));
        s.push_back(dimension("src1Height"));
    }
    s.push_back(vector("src2", uses.second.array, "src1Width"));
    if (cell.order == 0)
        s.push_back(dimension("src2Len"));
    s.push_back(vector("dst", isArray(cell), "src1Height"));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool dimensionsFit(const Call &call) {
    return call.dimension(isTransposed(*call.cell) ? "src1Height" : "src1Width") == call.dimension("src2Len");
}

std::size_t entriesTested(const Call &call, std::string_view parameter) {
    const std::size_t width = call.dimension("src1Width"), height = call.dimension("src1Height");
    if (parameter == "src1")
        return width * height;
    if (parameter == "src2")
        return call.dimension("src2Len");
    return isTransposed(*call.cell) ? width : height;
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

template <class T>
class Computation {
public:
    Computation(const Call &call, ComputedElements &results)
        : call_(call), cell_(*call.cell), transposed_(isTransposed(*call.cell)), src1_(call, "src1"),
          src2_(call, "src2"), dst_(call, "dst"), width_(call.dimension("src1Width")),
          height_(call.dimension("src1Height")), results_(results) {}

    ZelmStatus run() {
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (objectIsNull(call_, k))
                return ZELM_ERR_NULL_PTR;
            if (!accumulatesInDst(cell_))
                fixedSize(k);
            else if (const ZelmStatus status = accumulate(k); status != ZELM_OK)
                return status;
        }
        return ZELM_OK;
    }

private:
    T product(std::uint32_t k, std::uint32_t i, std::uint32_t t) const {
        const Address a = transposed_ ? src1_.element(k, t, i) : src1_.element(k, i, t);
        return readNumber<T>(a) * readNumber<T>(src2_.element(k, t));
    }

    ZelmStatus accumulate(std::uint32_t k) {
        const bool byPosition = cell_.layout == Layout::P && !isArray(cell_);
        for (std::uint32_t i = 0; i < height_; ++i) {
            if (byPosition && dst_.entryIsNull(i))
                return ZELM_ERR_NULL_PTR;
            const Address sum = dst_.element(k, i);
            results_.write<T>(sum, 0);
            for (std::uint32_t t = 0; t < width_; ++t) {
                const std::size_t e =
                    transposed_ ? std::size_t{t} * height_ + i : std::size_t{i} * width_ + t;
                if (byPosition && (src1_.entryIsNull(e) || src2_.entryIsNull(t)))
                    return ZELM_ERR_NULL_PTR;
                const T p = product(k, i, t);
                results_.write<T>(sum, readNumber<T>(sum) + p);
            }
        }
        return ZELM_OK;
    }

    void fixedSize(std::uint32_t k) {
        std::vector<T> sums;
        for (std::uint32_t i = 0; i < height_; ++i) {
            std::vector<T> products;
            for (std::uint32_t t = 0; t < width_; ++t)
                products.push_back(product(k, i, t));
            sums.push_back(isAdjacent(cell_) ? treeOfProducts(products, i, transposed_)
                                             : sumFromFirst(products));
        }
        for (std::uint32_t i = 0; i < height_; ++i)
            results_.write<T>(dst_.element(k, i), sums[i]);
    }

    const Call &call_;
    const Cell &cell_;
    const bool transposed_;
    const Operand src1_, src2_, dst_;
    const std::uint32_t width_, height_;
    ComputedElements &results_;
};

ZelmStatus run(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (pointerIsNull(call))
        return ZELM_ERR_NULL_PTR;
    if (cell.order == 0 && (dimensionIsZero(call) || !dimensionsFit(call)))
        return ZELM_ERR_SIZE;
    if (isArray(cell) && isPerPosition(cell) && anyTableIsNull(call))
        return ZELM_ERR_NULL_PTR;
    return cell.type == Type::Float32 ? Computation<float>(call, results).run()
                                      : Computation<double>(call, results).run();
}

// The steps of an accumulating form define every overlap. Of the others a form whose rows are whole vectors
// works in place.
Overlap overlapWith(const Cell &cell, const Parameter &source) {
    if (accumulatesInDst(cell))
        return Overlap::Any;
    if (source.kind != Kind::Vector || source.array != isArray(cell))
        return Overlap::Apart;
    return isAdjacent(cell) ? Overlap::InPlaceDistinct : Overlap::OtherObjects;
}

std::size_t entriesUsed(const Call &call, std::string_view parameter) {
    const std::size_t width = call.dimension("src1Width"), height = call.dimension("src1Height");
    return parameter == "src1" ? width * height : parameter == "src2" ? width : height;
}

std::size_t entriesReached(const Call &call, const Parameter &parameter) {
    return std::max(entriesTested(call, parameter.name), entriesUsed(call, parameter.name));
}

bool followsNull(const Call &call, std::size_t entry) {
    if (!isArray(*call.cell) || !isPerPosition(*call.cell))
        return false;
    const auto untested = [&](const char *name) {
        return entry >= entriesTested(call, name) && entry < entriesUsed(call, name);
    };
    return untested("src2") || untested("dst");
}

} // namespace

const Family matrixVectorProduct = {serves,      signature,   run,          Overlap::Apart, Content::Sums,
                                    overlapWith, followsNull, nullptr,      entriesReached, nullptr,
                                    nullptr,     nullptr,     dimensionsFit};

} // namespace zelmref
