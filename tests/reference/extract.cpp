// Extract: v, m, mT, va, ma, maT to a packed buffer, bit for bit. No entry of a table is tested.
#include "checks.h"
#include "family.h"

namespace zelmref {

extern const Family extract;

namespace {

bool serves(const Cell &cell) {
    return cell.operation == "Extract";
}

bool isVector(const Cell &cell) {
    return cell.descriptor[0] == 'v';
}

bool isTransposed(const Cell &cell) {
    return cell.descriptor.find('T') != std::string_view::npos;
}

Signature signature(const Cell &cell) {
    const bool array = isArray(cell);
    Signature s;
    if (isVector(cell))
        s = {vector("src", array), packed(array, "", "len"), dimension("len")};
    else if (isTransposed(cell))
        s = {matrix("src", array, "width", "height"), packed(array, "height", "width"), dimension("width"),
             dimension("height")};
    else
        s = {matrix("src", array, "height", "width"), packed(array, "height", "width"), dimension("width"),
             dimension("height")};
    if (array)
        s.push_back(objectCount());
    return s;
}

// The single P forms of matrices, and of 64-bit vectors, have no tests at all.
bool testsNothing(const Cell &cell) {
    return cell.layout == Layout::P && !isArray(cell) && (!isVector(cell) || cell.type == Type::Float64);
}

// The single mT in P: the pointer of position i*width + j as it stands, to dst[j*height + i].
bool readsRowsUnshifted(const Cell &cell) {
    return cell.descriptor == "mT" && cell.layout == Layout::P;
}

// maT in PS2 takes the table's positions in their order.
bool doesNotTranspose(const Cell &cell) {
    return cell.descriptor == "maT" && cell.layout == Layout::PS2;
}

struct Bounds {
    explicit Bounds(const Call &call)
        : height(isVector(*call.cell) ? 1 : call.dimension("height")),
          width(call.dimension(isVector(*call.cell) ? "len" : "width")) {}
    std::uint32_t height, width;
};

// The place that table entry `e` of object k leads to; `columns` is the length of a stored row.
Address position(const Operand &src, std::uint32_t k, std::uint32_t e, std::uint32_t columns) {
    return src.element(k, e / columns, e % columns);
}

Address source(const Call &call, std::uint32_t k, std::uint32_t i, std::uint32_t j) {
    const Cell &cell = *call.cell;
    const Bounds bounds(call);
    const Operand src(call, "src");
    const std::uint32_t e = i * bounds.width + j;
    if (readsRowsUnshifted(cell))
        return position(src, k, e, bounds.height) - times(1, call.passed[call.index("src")].shift);
    if (doesNotTranspose(cell))
        return position(src, k, e, bounds.height);
    return isTransposed(cell) ? src.element(k, j, i) : src.element(k, i, j);
}

template <class T>
ZelmStatus compute(const Call &call, ComputedElements &results) {
    const Cell &cell = *call.cell;
    if (!testsNothing(cell)) {
        if (pointerIsNull(call))
            return ZELM_ERR_NULL_PTR;
        if (dimensionIsZero(call) || call.count() == 0)
            return ZELM_ERR_SIZE;
    }
    const Bounds bounds(call);
    const Address dst = call.passed[call.index("dst")].base;
    for (std::uint32_t k = 0; k < call.count(); ++k)
        for (std::uint32_t i = 0; i < bounds.height; ++i)
            for (std::uint32_t j = 0; j < bounds.width; ++j) {
                const Address object = Address{k} * bounds.height * bounds.width;
                const Address place =
                    readsRowsUnshifted(cell) ? j * bounds.height + i : object + i * bounds.width + j;
                results.copy<T>(dst + place * sizeof(T), source(call, k, i, j));
            }
    return ZELM_OK;
}

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? compute<float>(call, results) : compute<double>(call, results);
}

bool followsNull(const Call &, std::size_t) {
    return true;
}

bool raisesFault(const Call &call, const IsMapped &isMapped) {
    if (!testsNothing(*call.cell) || dimensionIsZero(call))
        return false;
    if (pointerIsNull(call))
        return true;
    if (!readsRowsUnshifted(*call.cell))
        return false;
    const Bounds bounds(call);
    const std::uint32_t size = elementSize(*call.cell);
    for (std::uint32_t i = 0; i < bounds.height; ++i)
        for (std::uint32_t j = 0; j < bounds.width; ++j) {
            const Address from = source(call, 0, i, j);
            if (!isMapped(from) || !isMapped(from + size - 1))
                return true;
        }
    return false;
}

} // namespace

const Family extract = {.serves = serves,
                        .signature = signature,
                        .run = run,
                        .overlap = Overlap::Any,
                        .content = Content::Numbers,
                        .followsNull = followsNull,
                        .raisesFault = raisesFault,
                        .looksAtAddresses = [](const Cell &cell) {
                            return cell.type == Type::Float64 && readsRowsUnshifted(cell);
                        }};

} // namespace zelmref
