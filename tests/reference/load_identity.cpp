// LoadIdentity: zeros, and ones on a diagonal that runs on from object to object. No entry of a table is
// tested.
#include "checks.h"
#include "family.h"

#include <algorithm>

namespace zelmref {

extern const Family loadIdentity;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "LoadIdentity";
}

Signature signature(const Cell &) {
    return {matrix("dst", true, "height", "width"), dimension("width"), dimension("height"), objectCount()};
}

Address larger(std::int32_t stride, Address least) {
    return std::max(times(1, stride), least);
}

template <class T>
class Position {
public:
    explicit Position(const Call &call)
        : layout_(call.cell->layout), dst_(call.passed[call.index("dst")]),
          width_(static_cast<std::int32_t>(call.dimension("width"))) {}

    Address operator()(std::uint32_t k, std::uint32_t i, std::uint32_t c) const {
        const Address elemStep = larger(dst_.elemStride, sizeof(T));
        const Address rowStep = larger(dst_.rowStride, times(sizeof(T), width_));
        switch (layout_) {
        case Layout::S2:
            return dst_.base + times(k, dst_.objStride) + i * rowStep + c * elemStep;
        case Layout::PS2:
            return entry(times(i, width_) + c) + times(1, dst_.shift) + k * larger(dst_.objStride, sizeof(T));
        default:
            return entry(k) + times(1, dst_.shift) + i * rowStep + c * elemStep;
        }
    }

private:
    Address entry(Address number) const { return readWord<Address>(dst_.base + number * sizeof(Address)); }

    Layout layout_;
    Passed dst_;
    std::int32_t width_;
};

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    if (pointerIsNull(call))
        return ZELM_ERR_NULL_PTR;
    if (call.count() == 0)
        return ZELM_ERR_SIZE;
    const auto width = static_cast<std::int32_t>(call.dimension("width"));
    const auto height = static_cast<std::int32_t>(call.dimension("height"));
    const Position<T> position(call);
    std::uint32_t d = 0;
    for (std::uint32_t k = 0; k < call.count(); ++k)
        for (std::int32_t i = 0; i < height; ++i) {
            const auto row = static_cast<std::uint32_t>(i);
            for (std::int32_t c = 0; c < width; ++c)
                results.write<T>(position(k, row, static_cast<std::uint32_t>(c)), T(0));
            results.write<T>(position(k, row, d), T(1));
            ++d;
        }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

bool followsNull(const Call &, std::size_t) {
    return true;
}

// The last one's column, and the columns that are set to zero.
std::uint32_t columnsReached(const Call &call) {
    return std::max(call.count() * call.dimension("height"), call.dimension("width"));
}

// A width below 0 leads in front of the operand; it is for tests by name.
bool isSigned(const Cell &, const Parameter &parameter) {
    return parameter.name == "height";
}

} // namespace

const Family loadIdentity = {.serves = serves,
                             .signature = signature,
                             .run = run,
                             .overlap = Overlap::Any,
                             .content = Content::Numbers,
                             .followsNull = followsNull,
                             .columnsReached = columnsReached,
                             .isSigned = isSigned};

} // namespace zelmref
