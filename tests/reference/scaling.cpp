// Mul by a constant: vc, vac, mc, mTc, mac, maTc.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family scaling;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Mul" && cell.descriptor.find('c') != std::string_view::npos;
}

bool isTransposed(const Cell &cell) {
    return cell.descriptor.find('T') != std::string_view::npos;
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell), isVector = cell.descriptor[0] == 'v';
    Signature s;
    if (isVector)
        s = {vector("src", array), constant("val"), vector("dst", array)};
    else if (isTransposed(cell))
        s = {matrix("src", array, "width", "height"), constant("val"),
             matrix("dst", array, "height", "width")};
    else
        s = {matrix("src", array, "height", "width"), constant("val"),
             matrix("dst", array, "height", "width")};
    if (cell.order == 0) {
        s.push_back(dimension(isVector ? "len" : "width"));
        if (!isVector)
            s.push_back(dimension("height"));
    }
    if (array)
        s.push_back(objectCount());
    return s;
}

// These five read a matrix before they write it.
bool readsWholeMatrix(const Cell &cell) {
    if (!isTransposed(cell) || cell.order != 4)
        return false;
    return cell.layout == Layout::Standard ||
           (isArray(cell) && cell.layout == Layout::L && cell.type == Type::Float32);
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (const auto status = checkArguments(call, SingleTables::TestedByPosition))
        return *status;

    const bool isVector = cell.descriptor[0] == 'v', transposed = isTransposed(cell);
    const std::uint32_t height = isVector ? 1 : call.dimension("height");
    const std::uint32_t width = call.dimension(isVector ? "len" : "width");
    const Operand src(call, "src"), dst(call, "dst");
    const T val = std::bit_cast<T>(static_cast<Bits<T>>(call.passed[call.index("val")].bits));
    const bool byPosition = !isArray(cell) && cell.layout == Layout::P;
    for (std::uint32_t k = 0; k < call.count(); ++k) {
        if (objectIsNull(call, k))
            return ZELM_ERR_NULL_PTR;
        const auto source = [&](std::uint32_t i, std::uint32_t j) {
            return readNumber<T>(transposed ? src.element(k, j, i) : src.element(k, i, j));
        };
        std::vector<T> whole;
        if (readsWholeMatrix(cell))
            for (std::uint32_t e = 0; e < 16; ++e)
                whole.push_back(source(e / 4, e % 4));
        for (std::uint32_t i = 0; i < height; ++i)
            for (std::uint32_t j = 0; j < width; ++j) {
                const std::size_t to = std::size_t{i} * width + j;
                const std::size_t from = transposed ? std::size_t{j} * height + i : to;
                if (byPosition && (src.entryIsNull(from) || dst.entryIsNull(to)))
                    return ZELM_ERR_NULL_PTR;
                const T element = whole.empty() ? source(i, j) : whole[to];
                results.write<T>(dst.element(k, i, j), element * val);
            }
    }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

} // namespace

const Family scaling = {serves, signature, run, Overlap::Any, Content::Numbers};

} // namespace zelmref
