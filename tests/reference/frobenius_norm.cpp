// FrobNorm: m, ma. Row by row, column by column, or by a tree of the size, the alignment and the object's
// place.
#include "checks.h"
#include "family.h"
#include "roots.h"
#include "sums.h"

namespace zelmref {

extern const Family frobeniusNorm;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "FrobNorm";
}

Signature signature(const Cell &cell) {
    Signature s = {matrix("src", isArray(cell), "height", "width")};
    if (cell.order == 0) {
        s.push_back(dimension("width"));
        s.push_back(dimension("height"));
    }
    s.push_back(result(isArray(cell)));
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool isFixedAndAdjacent(const Cell &cell) {
    return cell.order != 0 && (cell.layout == Layout::Standard || cell.layout == Layout::L);
}

// The squares of one object's elements.
template <class T>
class Squares {
public:
    Squares(std::uint32_t height, std::uint32_t width) : height_(height), width_(width) {}

    void push(T square) { rowMajor_.push_back(square); }
    T operator()(std::uint32_t i, std::uint32_t j) const { return rowMajor_[std::size_t{i} * width_ + j]; }
    const std::vector<T> &rowByRow() const { return rowMajor_; }
    std::vector<T> columnByColumn() const {
        std::vector<T> columns;
        for (std::uint32_t j = 0; j < width_; ++j)
            for (std::uint32_t i = 0; i < height_; ++i)
                columns.push_back((*this)(i, j));
        return columns;
    }

private:
    std::uint32_t height_, width_;
    std::vector<T> rowMajor_;
};

// What the tree of an object depends on beside its cell.
struct Place {
    bool aligned;     // its address and its row stride are multiples of 16
    bool inFullGroup; // of four objects
};

float tree3x3(const Squares<float> &s, bool four) {
    if (four)
        return (((s(0, 0) + s(0, 1)) + s(2, 2)) + (s(0, 2) + s(1, 0))) +
               ((s(1, 1) + s(1, 2)) + (s(2, 0) + s(2, 1)));
    const auto c = [&](std::uint32_t j) { return (s(0, j) + s(1, j)) + s(2, j); };
    return (c(0) + c(1)) + c(2);
}

float tree4x4(const Squares<float> &s, bool four) {
    const auto c = [&](std::uint32_t j) { return (s(0, j) + s(1, j)) + (s(2, j) + s(3, j)); };
    return four ? (c(0) + c(1)) + (c(2) + c(3)) : (c(0) + c(2)) + (c(1) + c(3));
}

float tree5x5(const Squares<float> &s) {
    const auto c = [&](std::uint32_t j) { return ((s(0, j) + s(1, j)) + (s(2, j) + s(3, j))) + s(4, j); };
    return ((c(0) + c(2)) + (c(1) + c(3))) + c(4);
}

float tree6x6(const Squares<float> &s, bool aligned) {
    if (aligned) {
        const auto c = [&](std::uint32_t j) {
            return j <= 3 ? ((s(0, j) + s(1, j)) + (s(2, j) + s(3, j))) + (s(4, j) + s(5, j))
                          : ((s(0, j) + s(2, j)) + s(4, j)) + ((s(1, j) + s(3, j)) + s(5, j));
        };
        return ((c(0) + c(2)) + (c(1) + c(3))) + (c(4) + c(5));
    }
    const auto c = [&](std::uint32_t j) {
        return ((s(0, j) + s(1, j)) + s(5, j)) + ((s(2, j) + s(3, j)) + s(4, j));
    };
    const float a = (s(0, 4) + s(2, 4)) + s(4, 4), b = (s(1, 4) + s(3, 4)) + s(5, 4);
    const float e = (s(0, 5) + s(2, 5)) + s(4, 5), d = (s(1, 5) + s(3, 5)) + s(5, 5);
    return ((c(0) + a) + (c(2) + b)) + ((c(1) + e) + (c(3) + d));
}

double tree3x3(const Squares<double> &s) {
    const auto c = [&](std::uint32_t j) { return (s(0, j) + s(1, j)) + s(2, j); };
    return (c(2) + c(0)) + c(1);
}

double tree4x4(const Squares<double> &s) {
    const auto p = [&](std::uint32_t i) { return s(i, 0) + s(i, 2); };
    const auto q = [&](std::uint32_t i) { return s(i, 1) + s(i, 3); };
    return ((p(0) + p(1)) + (p(2) + p(3))) + ((q(0) + q(1)) + (q(2) + q(3)));
}

double tree5x5(const Squares<double> &s) {
    const auto c = [&](std::uint32_t j) { return ((s(0, j) + s(1, j)) + (s(2, j) + s(3, j))) + s(4, j); };
    return ((c(0) + c(1)) + (c(2) + c(3))) + c(4);
}

double tree6x6(const Squares<double> &s) {
    const auto lane = [&](std::size_t first) {
        const auto t = [&](std::size_t n) { return s.rowByRow()[2 * n + first]; };
        return ((((t(0) + t(1)) + (t(2) + t(3))) + (t(16) + t(17))) + ((t(4) + t(5)) + (t(6) + t(7)))) +
               (((t(8) + t(9)) + (t(10) + t(11))) + ((t(12) + t(13)) + (t(14) + t(15))));
    };
    return lane(0) + lane(1);
}

float tree(const Cell &cell, const Squares<float> &s, Place place) {
    switch (cell.order) {
    case 3:
        return tree3x3(s, place.inFullGroup);
    case 4:
        return tree4x4(s, place.inFullGroup);
    case 5:
        return tree5x5(s);
    default:
        return tree6x6(s, place.aligned);
    }
}

double tree(const Cell &cell, const Squares<double> &s, Place) {
    if (isArray(cell)) // the order of two objects that share a pass is open; this is the safe one
        return sumFromZero(s.columnByColumn());
    switch (cell.order) {
    case 3:
        return tree3x3(s);
    case 4:
        return tree4x4(s);
    case 5:
        return tree5x5(s);
    default:
        return tree6x6(s);
    }
}

template <class T>
T sum(const Cell &cell, const Squares<T> &squares, Place place) {
    if (isFixedAndAdjacent(cell))
        return tree(cell, squares, place);
    return sumFromZero(isArray(cell) ? squares.columnByColumn() : squares.rowByRow());
}

float root(const Cell &cell, float q) {
    return isFixedAndAdjacent(cell) ? refinedRoot(q) : std::sqrt(q);
}

double root(const Cell &, double q) {
    return std::sqrt(q);
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition))
        return *status;

    const std::uint32_t height = call.dimension("height"), width = call.dimension("width");
    const std::uint32_t count = call.count();
    const Operand src(call, "src"), dst(call, "dst");
    const std::int32_t rowStride = call.passed[call.index("src")].rowStride;
    const bool byPosition = !isArray(cell) && cell.layout == Layout::P;
    for (std::uint32_t k = 0; k < count; ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        Squares<T> squares(height, width);
        for (std::uint32_t i = 0; i < height; ++i)
            for (std::uint32_t j = 0; j < width; ++j) {
                if (byPosition && positionIsNull(call, std::size_t{i} * width + j))
                    return ZELM_ERR_NULL_PTR;
                const T x = readNumber<T>(src.element(k, i, j));
                squares.push(x * x);
            }
        const Place place = {src.element(k, 0, 0) % 16 == 0 && rowStride % 16 == 0,
                             isArray(cell) && k < count / 4 * 4};
        results.write<T>(dst.element(k, 0), root(cell, sum(cell, squares, place)));
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

// Several objects are taken at a time in these forms; when they are read is open.
Overlap overlapWith(const Cell &cell, const Parameter &) {
    return isArray(cell) && isFixedAndAdjacent(cell) ? Overlap::Apart : Overlap::Any;
}

} // namespace

const Family frobeniusNorm = {serves, signature, run, Overlap::Any, Content::Sums, overlapWith};

} // namespace zelmref
