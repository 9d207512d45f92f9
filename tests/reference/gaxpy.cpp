// Gaxpy: v, va. The sum of a row's products in the order of the form, and src3 added last.
#include "checks.h"
#include "family.h"
#include "product_sums.h"

namespace zelmref {

extern const Family gaxpy;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Gaxpy";
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell);
    Signature s = {matrix("src1", false, "height", "width"), vector("src2", array, "width"),
                   vector("src3", array, "height"), vector("dst", array, "height")};
    if (cell.order == 0) {
        s.push_back(dimension("width"));
        s.push_back(dimension("height"));
    }
    if (array)
        s.push_back(objectCount());
    return s;
}

bool sumsInTrees(const Cell &cell) {
    return cell.order != 0 && isAdjacent(cell);
}

template <class T>
class Computation {
public:
    Computation(const Call &call, ComputedElements &results)
        : call_(call), cell_(*call.cell), src1_(call, "src1"), src2_(call, "src2"), src3_(call, "src3"),
          dst_(call, "dst"), width_(call.dimension("width")), height_(call.dimension("height")),
          results_(results) {}

    ZelmStatus run() {
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (objectIsNull(call_, k))
                return ZELM_ERR_NULL_PTR;
            if (sumsInTrees(cell_))
                fixedSize(k);
            else if (const ZelmStatus status = accumulate(k); status != ZELM_OK)
                return status;
        }
        return ZELM_OK;
    }

private:
    T product(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        return readNumber<T>(src1_.element(k, i, j)) * readNumber<T>(src2_.element(k, j));
    }

    // A chain from +0 that is kept in dst.
    ZelmStatus accumulate(std::uint32_t k) {
        const bool byPosition = cell_.layout == Layout::P && !isArray(cell_);
        for (std::uint32_t i = 0; i < height_; ++i) {
            if (byPosition && (src3_.entryIsNull(i) || dst_.entryIsNull(i)))
                return ZELM_ERR_NULL_PTR;
            const Address sum = dst_.element(k, i);
            results_.write<T>(sum, 0);
            for (std::uint32_t j = 0; j < width_; ++j) {
                if (byPosition && (src2_.entryIsNull(j) || src1_.entryIsNull(std::size_t{i} * width_ + j)))
                    return ZELM_ERR_NULL_PTR;
                const T p = product(k, i, j);
                results_.write<T>(sum, readNumber<T>(sum) + p);
            }
            results_.write<T>(sum, readNumber<T>(sum) + readNumber<T>(src3_.element(k, i)));
        }
        return ZELM_OK;
    }

    void fixedSize(std::uint32_t k) {
        std::vector<T> sums;
        for (std::uint32_t i = 0; i < height_; ++i) {
            std::vector<T> products;
            for (std::uint32_t j = 0; j < width_; ++j)
                products.push_back(product(k, i, j));
            sums.push_back(treeOfProducts(products, i, false) + readNumber<T>(src3_.element(k, i)));
        }
        for (std::uint32_t i = 0; i < height_; ++i)
            results_.write<T>(dst_.element(k, i), sums[i]);
    }

    const Call &call_;
    const Cell &cell_;
    const Operand src1_, src2_, src3_, dst_;
    const std::uint32_t width_, height_;
    ComputedElements &results_;
};

ZelmStatus run(const Call &call, ComputedElements &results) {
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition))
        return *status;
    return call.cell->type == Type::Float32 ? Computation<float>(call, results).run()
                                            : Computation<double>(call, results).run();
}

// Where the sum lives in dst the steps define every overlap; the rest makes no promise.
Overlap overlapWith(const Cell &cell, const Parameter &source) {
    const bool inDst = cell.order == 0 || cell.layout == Layout::S2 || cell.layout == Layout::P;
    if (inDst)
        return Overlap::Any;
    return source.array ? Overlap::OtherObjects : Overlap::Apart;
}

} // namespace

const Family gaxpy = {serves, signature, run, Overlap::Apart, Content::Sums, overlapWith};

} // namespace zelmref
