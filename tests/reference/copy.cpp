// Copy: va and ma from one layout to another, bit for bit. No entry of a table is tested.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family copy;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Copy";
}

bool isVector(const Cell &cell) {
    return cell.descriptor == "va";
}

Signature signature(const Cell &cell) {
    if (isVector(cell))
        return {vector("src", true), vector("dst", true), dimension("len"), objectCount()};
    return {matrix("src", true, "height", "width"), matrix("dst", true, "height", "width"),
            dimension("width"), dimension("height"), objectCount()};
}

// The vector's PP takes the pointers of both sides from dstTable.
bool readsTargetTable(const Cell &cell) {
    return isVector(cell) && cell.layout == Layout::PS2 && cell.dstLayout == Layout::PS2;
}

Address source(const Call &call, std::uint32_t k, std::uint32_t i, std::uint32_t j) {
    if (!readsTargetTable(*call.cell))
        return Operand(call, "src").element(k, i, j);
    const Passed &src = call.passed[call.index("src")], &dst = call.passed[call.index("dst")];
    return Operand(call, "dst").element(0, i, j) - times(1, dst.shift) + times(1, src.shift) +
           times(k, src.objStride);
}

struct Bounds {
    explicit Bounds(const Call &call)
        : height(isVector(*call.cell) ? 1 : call.dimension("height")),
          width(call.dimension(isVector(*call.cell) ? "len" : "width")) {}
    std::uint32_t height, width;
};

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    if (pointerIsNull(call))
        return ZELM_ERR_NULL_PTR;
    if (isVector(*call.cell) && dimensionIsZero(call))
        return ZELM_ERR_SIZE;
    const Bounds bounds(call);
    const Operand dst(call, "dst");
    for (std::uint32_t k = 0; k < call.count(); ++k)
        for (std::uint32_t i = 0; i < bounds.height; ++i)
            for (std::uint32_t j = 0; j < bounds.width; ++j)
                results.copy<T>(dst.element(k, i, j), source(call, k, i, j));
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

bool followsNull(const Call &, std::size_t) {
    return true;
}

// Where the source is taken from dstTable it may lie anywhere, and must not overlap the destination partly.
bool raisesFault(const Call &call, const IsMapped &isMapped) {
    if (!readsTargetTable(*call.cell) || pointerIsNull(call))
        return false;
    const std::uint32_t len = call.dimension("len"), size = elementSize(*call.cell);
    std::vector<Address> from, to;
    for (std::uint32_t k = 0; k < call.count(); ++k)
        for (std::uint32_t j = 0; j < len; ++j) {
            from.push_back(source(call, k, 0, j));
            to.push_back(Operand(call, "dst").element(k, j));
            if (!isMapped(from.back()) || !isMapped(from.back() + size - 1))
                return true;
        }
    for (std::size_t r = 0; r < from.size(); ++r)
        for (std::size_t w = 0; w < to.size(); ++w)
            if (from[r] - to[w] + size - 1 < 2 * size - 1)
                return true;
    return false;
}

} // namespace

const Family copy = {.serves = serves,
                     .signature = signature,
                     .run = run,
                     .overlap = Overlap::Identical,
                     .content = Content::Numbers,
                     .followsNull = followsNull,
                     .raisesFault = raisesFault,
                     .looksAtAddresses = readsTargetTable};

} // namespace zelmref
