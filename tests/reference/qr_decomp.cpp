// QRDecomp: Householder reflections of a copy of the source in dst.
#include "checks.h"
#include "family.h"

#include <cmath>

namespace zelmref {

extern const Family qrDecomp;

namespace {

constexpr double threshold = 0x1p-23; // of a squared norm, for both element types

bool serves(const Cell &cell) {
    return cell.operation == "QRDecomp";
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell);
    Signature s = {matrix("src", array, "height", "width"), scratch(),
                   matrix("dst", array, "height", "width")};
    if (cell.order == 0) {
        s.push_back(dimension("width"));
        s.push_back(dimension("height"));
    }
    if (array)
        s.push_back(objectCount());
    return s;
}

template <class T>
ZelmStatus factor(const Operand &src, const Operand &dst, Address scratch, std::uint32_t object,
                  std::uint32_t width, std::uint32_t height, ComputedElements &results) {
    const auto at = [&](std::uint32_t i, std::uint32_t j) { return dst.element(object, i, j); };
    const auto d = [&](std::uint32_t i, std::uint32_t j) { return readNumber<T>(at(i, j)); };
    const auto v = [&](std::uint32_t i) { return readNumber<T>(scratch + i * sizeof(T)); };
    const auto setV = [&](std::uint32_t i, T value) { results.write<T>(scratch + i * sizeof(T), value); };

    for (std::uint32_t i = 0; i < height; ++i)
        for (std::uint32_t j = 0; j < width; ++j)
            results.copy<T>(at(i, j), src.element(object, i, j));
    if (width == 1 && height == 1)
        return ZELM_OK;

    const std::uint32_t reflectors = width == height ? width - 1 : width;
    for (std::uint32_t k = 0; k < reflectors; ++k) {
        T q = 0;
        for (std::uint32_t i = k; i < height; ++i) {
            const T square = d(i, k) * d(i, k);
            q = q + square;
        }
        if (!(std::fabs(static_cast<double>(q)) >= threshold))
            return ZELM_ERR_DIV_BY_ZERO;

        T s = static_cast<T>(std::sqrt(static_cast<double>(q)));
        const T a = d(k, k);
        if (!(a > 0))
            s = 0 - s;
        const T divisor = a + s;
        const T c = 1 / divisor;

        setV(k, 1);
        T u = 1;
        for (std::uint32_t i = k + 1; i < height; ++i) {
            setV(i, d(i, k) * c);
            const T square = v(i) * v(i);
            u = u + square;
        }
        const T b = -2 / u;

        for (std::uint32_t j = k; j < width; ++j) {
            T t = d(k, j);
            for (std::uint32_t i = k + 1; i < height; ++i) {
                const T product = d(i, j) * v(i);
                t = t + product;
            }
            t = t * b;
            for (std::uint32_t i = k; i < height; ++i) {
                const T product = v(i) * t;
                results.write<T>(at(i, j), d(i, j) + product);
            }
        }
        for (std::uint32_t i = k + 1; i < height; ++i)
            results.write<T>(at(i, k), v(i));
    }
    return ZELM_OK;
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    if (const auto status = checkArguments(call, SingleTables::TestedFirst))
        return *status;

    const Operand src(call, "src"), dst(call, "dst");
    const Address scratch = call.passed[call.index("scratch")].base;
    for (std::uint32_t k = 0; k < call.count(); ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        const ZelmStatus status =
            factor<T>(src, dst, scratch, k, call.dimension("width"), call.dimension("height"), results);
        if (status != ZELM_OK)
            return status;
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

std::size_t scratchBytes(const Call &call) {
    return std::size_t{call.dimension("height")} * elementSize(*call.cell);
}

} // namespace

const Family qrDecomp = {.serves = serves,
                         .signature = signature,
                         .run = run,
                         .overlap = Overlap::InPlace,
                         .content = Content::Reflecting,
                         .scratchBytes = scratchBytes,
                         .shapes = Shapes::MostlyTall};

} // namespace zelmref
