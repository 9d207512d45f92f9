// Transpose: m, ma, bit for bit.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family transpose;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Transpose";
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell);
    Signature s = {matrix("src", array, "height", "width")};
    if (cell.order == 0) {
        s.push_back(dimension("width"));
        s.push_back(dimension("height"));
    }
    s.push_back(matrix("dst", array, "width", "height"));
    if (array)
        s.push_back(objectCount());
    return s;
}

// The tables of the run-time forms are numbered with the row length of the other operand.
bool numbersTablesCrosswise(const Cell &cell) {
    return cell.order == 0 && (cell.layout == Layout::P || cell.layout == Layout::PS2);
}

// Three members read a whole matrix before they write it.
bool readsWholeMatrix(const Cell &cell) {
    return cell.order == 4 && cell.layout == Layout::Standard &&
           (!isArray(cell) || cell.type == Type::Float32);
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition))
        return *status;

    const std::uint32_t height = call.dimension("height"), width = call.dimension("width");
    const Operand src(call, "src"), dst(call, "dst");
    const bool crosswise = numbersTablesCrosswise(cell),
               byPosition = !isArray(cell) && cell.layout == Layout::P;
    for (std::uint32_t k = 0; k < call.count(); ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        std::vector<Bits<T>> whole;
        if (readsWholeMatrix(cell))
            for (std::uint32_t e = 0; e < 16; ++e)
                whole.push_back(readWord<Bits<T>>(src.element(k, e / 4, e % 4)));
        for (std::uint32_t i = 0; i < height; ++i)
            for (std::uint32_t j = 0; j < width; ++j) {
                const std::uint32_t from = crosswise ? i * height + j : i * width + j;
                const std::uint32_t to = crosswise ? j * width + i : j * height + i;
                if (byPosition && (dst.entryIsNull(to) || src.entryIsNull(from)))
                    return ZELM_ERR_NULL_PTR;
                // Rows of an operand with a table are no more than a way to number its entries.
                const Address source = src.element(k, from / width, from % width);
                const Address target = dst.element(k, to / height, to % height);
                if (whole.empty())
                    results.copy<T>(target, source);
                else
                    results.place<T>(target, whole[i * 4 + j]);
            }
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

std::size_t entriesReached(const Call &call, const Parameter &parameter) {
    if (!numbersTablesCrosswise(*call.cell))
        return 0;
    const std::size_t height = call.dimension("height"), width = call.dimension("width");
    return parameter.name == "dst" ? (width - 1) * width + height : (height - 1) * height + width;
}

// Array forms test no more entries than there are positions.
bool followsNull(const Call &call, std::size_t entry) {
    return isArray(*call.cell) && numbersTablesCrosswise(*call.cell) &&
           entry >= std::size_t{call.dimension("height")} * call.dimension("width");
}

} // namespace

const Family transpose = {serves,  signature,   run,     Overlap::Any,  Content::Numbers,
                          nullptr, followsNull, nullptr, entriesReached};

} // namespace zelmref
