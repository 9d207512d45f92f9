// Add and Sub of matrices: each operand alone, invariant or an array, and used transposed or not.
#include "checks.h"
#include "family.h"
#include "matrix_add_sub_departures.h"
#include "uses.h"

namespace zelmref {

extern const Family matrixAddSub;

namespace {

bool serves(const Cell &cell) {
    return (cell.operation == "Add" || cell.operation == "Sub") && cell.descriptor[0] == 'm';
}

Parameter operand(const char *name, Use use) {
    return use.transposed ? matrix(name, use.array, "width", "height")
                          : matrix(name, use.array, "height", "width");
}

Signature signature(const Cell &cell) {
    const Uses uses(cell.descriptor);
    Signature s = {operand("src1", uses.first), operand("src2", uses.second),
                   matrix("dst", isArray(cell), "height", "width")};
    if (cell.order == 0) {
        s.push_back(dimension("width"));
        s.push_back(dimension("height"));
    }
    if (isArray(cell))
        s.push_back(objectCount());
    return s;
}

bool holdsInvariant(const Cell &cell) {
    return cell.order != 0 && departs::isStandardOrL(cell) && !departs::readsInvariantAnew(cell);
}

bool isMultipleOf16(Address address) {
    return address % 16 == 0;
}

template <class T>
class Computation {
public:
    Computation(const Call &call, ComputedElements &results)
        : call_(call), cell_(*call.cell), uses_(cell_.descriptor), src1_(call, "src1"), src2_(call, "src2"),
          dst_(call, "dst"), height_(call.dimension("height")), width_(call.dimension("width")),
          results_(results) {}

    ZelmStatus run() {
        if (departs::pipelined(cell_))
            return runPipelined();
        if (const auto status = checkArguments(call_, SingleTables::TestedByPosition))
            return *status;
        hold();
        for (std::uint32_t k = 0; k < call_.count(); ++k) {
            if (objectIsNull(call_, k))
                return ZELM_ERR_NULL_PTR;
            if (const ZelmStatus status = object(k); status != ZELM_OK)
                return status;
        }
        return ZELM_OK;
    }

private:
    const Passed &passed(const char *name) const { return call_.passed[call_.index(name)]; }

    // The place of element (i, j) of the matrix as used.
    Address first(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        if (departs::takesLastColumnAtSecondRowStride(cell_) && j == 4)
            return src1_.element(k, 0, 0) + times(i, passed("src2").rowStride) + 4 * sizeof(T);
        return uses_.first.transposed ? src1_.element(k, j, i) : src1_.element(k, i, j);
    }

    Address second(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        const std::uint32_t row = uses_.second.transposed ? j : i, column = uses_.second.transposed ? i : j;
        if (departs::takesFirstRowStride(cell_))
            return passed("src2").base + times(row, passed("src1").rowStride) + column * sizeof(T);
        if (departs::takesFirstElemStride(cell_))
            return passed("src2").base + times(row, passed("src2").rowStride) +
                   times(column, passed("src1").elemStride);
        return src2_.element(k, row, column);
    }

    // The invariant's elements, as they were before the first object.
    void hold() {
        if (!isArray(cell_) || uses_.first.array == uses_.second.array || !holdsInvariant(cell_))
            return;
        for (std::uint32_t i = 0; i < height_; ++i)
            for (std::uint32_t j = 0; j < width_; ++j)
                held_.push_back(readNumber<T>(uses_.first.array ? second(0, i, j) : first(0, i, j)));
    }

    T firstValue(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        const bool held = !held_.empty() && !uses_.first.array;
        return held ? heldValue(k, i, j) : readNumber<T>(first(k, i, j));
    }

    T secondValue(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        const bool held = !held_.empty() && !uses_.second.array;
        return held ? heldValue(k, i, j) : readNumber<T>(second(k, i, j));
    }

    T heldValue(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        const T regular = held_[std::size_t{i} * width_ + j];
        if (!departs::decidesByAlignment(cell_))
            return regular;
        const char *invariant = uses_.first.array ? "src2" : "src1",
                   *array = uses_.first.array ? "src1" : "src2";
        const bool invariantPacked =
            isMultipleOf16(passed(invariant).base) && isMultipleOf16(times(1, passed(invariant).rowStride));
        const bool objectPacked = isMultipleOf16((uses_.first.array ? src1_ : src2_).element(k, 0, 0)) &&
                                  isMultipleOf16(dst_.element(k, 0, 0)) &&
                                  isMultipleOf16(times(1, passed(array).rowStride)) &&
                                  isMultipleOf16(times(1, passed("dst").rowStride));
        if (invariantPacked == objectPacked)
            return regular;
        const auto m = [&](int row, int column) { return held_[static_cast<std::size_t>(row * 3 + column)]; };
        const T packedMeetsSingle[3][3] = {
            {m(0, 0), m(0, 2), m(1, 0)}, {m(1, 2), m(2, 0), m(2, 2)}, {0, 0, 0}};
        const T singleMeetsPacked[3][3] = {
            {m(0, 0), 0, m(0, 1)}, {m(0, 2), 0, m(1, 0)}, {m(1, 1), 0, m(1, 2)}};
        return invariantPacked ? packedMeetsSingle[i][j] : singleMeetsPacked[i][j];
    }

    T combine(T a, T b) const { return cell_.operation == "Add" ? a + b : a - b; }

    bool positionIsNull(std::uint32_t i, std::uint32_t j) const {
        const std::size_t plain = std::size_t{i} * width_ + j;
        const std::size_t transposed =
            departs::testsByRows(cell_) ? std::size_t{i} * height_ + j : std::size_t{j} * height_ + i;
        return dst_.entryIsNull(plain) || src1_.entryIsNull(uses_.first.transposed ? transposed : plain) ||
               src2_.entryIsNull(uses_.second.transposed ? transposed : plain);
    }

    ZelmStatus object(std::uint32_t k) {
        const bool byPosition = !isArray(cell_) && cell_.layout == Layout::P;
        for (std::uint32_t i = 0; i < height_; ++i)
            for (std::uint32_t j = 0; j < width_; ++j) {
                if (byPosition && positionIsNull(i, j))
                    return ZELM_ERR_NULL_PTR;
                results_.write<T>(dst_.element(k, i, j), result(k, i, j));
            }
        return ZELM_OK;
    }

    T result(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        if (departs::followsTable(cell_)) {
            const auto row = static_cast<std::uint32_t>(departs::tableOfElements[i][j] / 10);
            const auto column = static_cast<std::uint32_t>(departs::tableOfElements[i][j] % 10);
            return combine(readNumber<T>(src1_.element(k, row, column)),
                           readNumber<T>(src2_.element(k, row, column)));
        }
        const std::uint32_t from = departs::repeatsRowTwo(cell_) && i == 3 ? 2 : i;
        return combine(firstValue(k, from, j), secondValue(k, from, j));
    }

    ZelmStatus runPipelined() {
        for (const char *name : {"src1", "src2", "dst"})
            if (passed(name).base == 0)
                return ZELM_ERR_NULL_PTR;
        const std::uint32_t count = call_.count(), last = count == 0 ? 0 : count - 1;
        const bool list = cell_.layout == Layout::L;
        if (list && (src1_.entryIsNull(0) || dst_.entryIsNull(std::size_t{count} - 1)))
            return ZELM_ERR_NULL_PTR;
        hold();
        std::vector<T> read = wholeFirst(0);
        for (std::uint32_t k = 1; k < count; ++k) {
            if (list && (src1_.entryIsNull(k) || dst_.entryIsNull(k - 1)))
                return ZELM_ERR_NULL_PTR;
            const std::vector<T> next = wholeFirst(k);
            writeWhole(k - 1, read);
            read = next;
        }
        writeWhole(last, read);
        return ZELM_OK;
    }

    std::vector<T> wholeFirst(std::uint32_t k) const {
        std::vector<T> elements;
        for (std::uint32_t e = 0; e < 9; ++e)
            elements.push_back(readNumber<T>(first(k, e / 3, e % 3)));
        return elements;
    }

    void writeWhole(std::uint32_t k, const std::vector<T> &elements) {
        for (std::uint32_t e = 0; e < 9; ++e)
            results_.write<T>(dst_.element(k, e / 3, e % 3), combine(elements[e], held_[e]));
    }

    const Call &call_;
    const Cell &cell_;
    const Uses uses_;
    const Operand src1_, src2_, dst_;
    const std::uint32_t height_, width_;
    ComputedElements &results_;
    std::vector<T> held_;
};

ZelmStatus run(const Call &call, ComputedElements &results) {
    return call.cell->type == Type::Float32 ? Computation<float>(call, results).run()
                                            : Computation<double>(call, results).run();
}

// A fixed size used transposed reads ahead of what it writes, how far is open.
Overlap overlapWith(const Cell &cell, const Parameter &) {
    const bool transposed = cell.descriptor.find('T') != std::string_view::npos;
    return transposed && cell.order != 0 ? Overlap::Apart : Overlap::Any;
}

std::size_t entriesReached(const Call &call, const Parameter &parameter) {
    if (!departs::testsByRows(*call.cell) || parameter.rows != "width")
        return 0;
    const std::size_t height = call.dimension("height"), width = call.dimension("width");
    return (height - 1) * height + width;
}

// A transposed operand's entry may be read before the step that tests it.
bool followsNull(const Call &call, std::size_t entry) {
    if (!departs::testsByRows(*call.cell))
        return false;
    const std::size_t height = call.dimension("height"), width = call.dimension("width");
    if (entry >= height * width)
        return false;
    const std::size_t readAt = entry % height * width + entry / height;
    for (std::size_t i = 0; i < height && i * height <= entry; ++i)
        if (entry - i * height < width)
            return i * width + entry - i * height > readAt;
    return true;
}

bool countsZeroAsOne(const Cell &cell) {
    return departs::pipelined(cell);
}

// All that the test asks is a multiple of 16, and some object of dst is not.
bool isMisaligned(const Call &call) {
    for (const char *name : {"src1", "src2", "dst"}) {
        if (!isMultipleOf16(Operand(call, name).element(0, 0, 0)) ||
            !isMultipleOf16(times(1, call.passed[call.index(name)].rowStride)))
            return false;
    }
    const Operand dst(call, "dst");
    for (std::uint32_t k = 0; k < call.count(); ++k)
        if (!isMultipleOf16(dst.element(k, 0, 0)))
            return true;
    return false;
}

// A stride of the other operand leads out of the memory.
bool leavesMemory(const Call &call, const IsMapped &isMapped) {
    const std::uint32_t order = call.cell->order;
    const auto leaves = [&](Address start, std::int32_t rowStride, std::int32_t elemStride) {
        const auto last = static_cast<Address>(order - 1);
        for (const Address element : {start, start + times(last, rowStride), start + times(last, elemStride),
                                      start + times(last, rowStride) + times(last, elemStride)})
            if (!isMapped(element) || !isMapped(element + elementSize(*call.cell) - 1))
                return true;
        return false;
    };
    const auto size = static_cast<std::int32_t>(elementSize(*call.cell));
    const Passed &first = call.passed[call.index("src1")], &second = call.passed[call.index("src2")];
    if (departs::takesFirstRowStride(*call.cell))
        return leaves(second.base, first.rowStride, size);
    if (departs::takesFirstElemStride(*call.cell))
        return leaves(second.base, second.rowStride, first.elemStride);
    for (std::uint32_t k = 0; k < call.count(); ++k)
        if (leaves(Operand(call, "src1").element(k, 0, 0), second.rowStride, size))
            return true;
    return false;
}

bool raisesFault(const Call &call, const IsMapped &isMapped) {
    const Cell &cell = *call.cell;
    for (const char *name : {"src1", "src2", "dst"})
        if (call.passed[call.index(name)].base == 0)
            return false;
    if (call.count() == 0 && !departs::pipelined(cell))
        return false;
    const bool byOtherStride = departs::takesFirstRowStride(cell) || departs::takesFirstElemStride(cell) ||
                               departs::takesLastColumnAtSecondRowStride(cell);
    if (!byOtherStride && !departs::mayFault(cell))
        return false;
    // Null entries are left to tests by name here: the addresses of their objects mean nothing.
    for (std::uint32_t k = 0; k < call.count(); ++k)
        if (objectIsNull(call, k))
            return true;
    return byOtherStride ? leavesMemory(call, isMapped) : isMisaligned(call);
}

bool looksAtAddresses(const Cell &cell) {
    return cell.type == Type::Float64 &&
           (departs::decidesByAlignment(cell) || departs::mayFault(cell) ||
            departs::takesFirstElemStride(cell) || departs::takesLastColumnAtSecondRowStride(cell));
}

} // namespace

const Family matrixAddSub = {.serves = serves,
                             .signature = signature,
                             .run = run,
                             .overlap = Overlap::Any,
                             .content = Content::Numbers,
                             .overlapWith = overlapWith,
                             .followsNull = followsNull,
                             .entriesReached = entriesReached,
                             .countsZeroAsOne = countsZeroAsOne,
                             .raisesFault = raisesFault,
                             .looksAtAddresses = looksAtAddresses};

} // namespace zelmref
