// QRBackSubst: mv, mva, mava. The reflectors are applied to a copy of b in scratch, then R is solved.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family qrBackSubst;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "QRBackSubst";
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell), matrices = cell.descriptor == "mava";
    Parameter factors = matrix("src1", matrices, "height", "width");
    factors.unreadObjStride = array && !matrices;
    Signature s = {factors, scratch(), vector("src2", array, "height"), vector("dst", array, "width")};
    if (cell.order == 0) {
        s.push_back(dimension("width"));
        s.push_back(dimension("height"));
    }
    if (array)
        s.push_back(objectCount());
    return s;
}

template <class T>
void solve(const Operand &src1, const Operand &src2, const Operand &dst, Address scratch,
           std::uint32_t object, std::uint32_t width, std::uint32_t height, ComputedElements &results) {
    const auto r = [&](std::uint32_t i, std::uint32_t j) {
        return readNumber<T>(src1.element(object, i, j));
    };
    const auto y = [&](std::uint32_t i) { return readNumber<T>(scratch + i * sizeof(T)); };
    const auto setY = [&](std::uint32_t i, T value) { results.write<T>(scratch + i * sizeof(T), value); };
    const auto x = [&](std::uint32_t j) { return readNumber<T>(dst.element(object, j)); };
    const auto setX = [&](std::uint32_t j, T value) { results.write<T>(dst.element(object, j), value); };

    for (std::uint32_t i = 0; i < height; ++i)
        results.copy<T>(scratch + i * sizeof(T), src2.element(object, i));

    const std::uint32_t reflectors = width == height ? width - 1 : width;
    for (std::uint32_t k = 0; k < reflectors; ++k) {
        T u = 1, t = y(k);
        for (std::uint32_t i = k + 1; i < height; ++i) {
            const T e = r(i, k);
            const T product = y(i) * e;
            t = t + product;
            const T square = e * e;
            u = u + square;
        }
        const T b = -2 / u;
        t = t * b;
        setY(k, y(k) + t);
        for (std::uint32_t i = k + 1; i < height; ++i) {
            const T product = r(i, k) * t;
            setY(i, y(i) + product);
        }
    }

    setX(width - 1, y(width - 1) / r(width - 1, width - 1));
    for (std::uint32_t i = width - 1; i-- > 0;) {
        T w = 0;
        for (std::uint32_t j = i + 1; j < width; ++j) {
            const T product = r(i, j) * x(j);
            w = w + product;
        }
        const T rest = y(i) - w;
        setX(i, rest / r(i, i));
    }
}

bool isPerPosition(const Cell &cell) {
    return cell.layout == Layout::P || cell.layout == Layout::PS2;
}

// The tables of both vectors are tested as far as x is long.
std::size_t entriesTested(const Call &call, const Parameter &parameter) {
    const std::size_t width = call.dimension("width");
    return parameter.kind == Kind::Matrix ? width * call.dimension("height") : width;
}

bool entryIsNull(const Call &call) {
    for (const Parameter &parameter : *call.signature) {
        if (!hasTable(*call.cell, parameter))
            continue;
        const Operand operand(call, parameter.name);
        for (std::size_t e = 0; e < entriesTested(call, parameter); ++e)
            if (operand.entryIsNull(e))
                return true;
    }
    return false;
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    if (pointerIsNull(call))
        return ZELM_ERR_NULL_PTR;
    if (dimensionIsZero(call))
        return ZELM_ERR_SIZE;
    if (isPerPosition(*call.cell) && entryIsNull(call))
        return ZELM_ERR_NULL_PTR;

    const Operand src1(call, "src1"), src2(call, "src2"), dst(call, "dst");
    const Address scratch = call.passed[call.index("scratch")].base;
    for (std::uint32_t k = 0; k < call.count(); ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        solve<T>(src1, src2, dst, scratch, k, call.dimension("width"), call.dimension("height"), results);
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

Overlap overlapWith(const Cell &, const Parameter &source) {
    return source.name == "src1" ? Overlap::Apart : Overlap::Any;
}

std::size_t scratchBytes(const Call &call) {
    return std::size_t{call.dimension("height")} * elementSize(*call.cell);
}

} // namespace

const Family qrBackSubst = {.serves = serves,
                            .signature = signature,
                            .run = run,
                            .overlap = Overlap::Any,
                            .content = Content::Solving,
                            .overlapWith = overlapWith,
                            .scratchBytes = scratchBytes,
                            .entriesTested = entriesTested,
                            .shapes = Shapes::Tall};

} // namespace zelmref
