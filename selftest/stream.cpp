#include "stream.h"

#include "numbers.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace zelmtest {
namespace {

constexpr std::size_t variations = 32;
constexpr std::size_t regionSize = 512 * 1024, regionCount = 6, outside = 1024 * 1024; // bytes
constexpr std::size_t arenaSize = regionCount * regionSize + 2 * outside, alignment = 4096;
constexpr std::size_t pivotRegion = 4, scratchRegion = 5;
constexpr std::size_t around = 64;      // bytes in front of and behind an operand that must not change
constexpr std::size_t aroundTable = 16; // entries likewise, which lead to objects of the operand
constexpr std::uint32_t identityReach = 48, identityPositions = 112;

constexpr std::uint32_t counts[16] = {3, 1, 2, 5, 4, 17, 8, 1, 9, 3, 33, 2, 6, 16, 40, 7};
constexpr std::uint32_t lengths[16] = {3, 4, 5, 6, 1, 2, 7, 8, 9, 12, 16, 17, 24, 31, 33, 40};
constexpr std::uint32_t orders[8] = {3, 4, 2, 5, 6, 1, 7, 8};
constexpr std::uint32_t shapes[8][3] = {{3, 3, 3}, {2, 5, 3}, {4, 4, 4}, {5, 2, 4},
                                        {6, 6, 6}, {1, 4, 7}, {5, 5, 5}, {7, 3, 1}};
// Which of a shape's three numbers each dimension takes, so that the rules of all products are met in turn.
constexpr std::uint32_t uses[4][4] = {{0, 1, 2, 0}, {0, 1, 0, 2}, {0, 1, 2, 1}, {0, 1, 1, 2}};

bool is(const char *text, std::string_view other) {
    return text == other;
}

bool startsWith(const char *text, std::string_view start) {
    return std::string_view(text).substr(0, start.size()) == start;
}

std::uint32_t orderOf(const Function &function) {
    return function.size[0] ? static_cast<std::uint32_t>(function.size[0] - '0') : 0;
}

std::vector<std::string_view> dimensionsOf(const Function &function) {
    std::vector<std::string_view> names;
    for (std::size_t a = 0; a < function.argumentCount; ++a)
        if (function.arguments[a].kind == ArgumentKind::Dimension)
            names.push_back(function.arguments[a].name);
    return names;
}

// Are all operands vectors?
bool hasVectorsOnly(const Function &function) {
    const std::vector<std::string_view> names = dimensionsOf(function);
    return std::string_view(function.size).ends_with("x1") || (names.size() == 1 && names[0] == "len");
}

std::vector<std::string_view> operandsOf(const Function &function) {
    std::vector<std::string_view> names;
    for (std::size_t a = 0; a < function.argumentCount; ++a) {
        const std::string_view name = function.arguments[a].operand;
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    return names;
}

std::vector<ArgumentKind> kindsOf(const Function &function, std::string_view operand) {
    std::vector<ArgumentKind> kinds;
    for (std::size_t a = 0; a < function.argumentCount; ++a)
        if (function.arguments[a].operand == operand)
            kinds.push_back(function.arguments[a].kind);
    return kinds;
}

bool has(const std::vector<ArgumentKind> &kinds, ArgumentKind kind) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

// The calls behind those that only compute: dst in place of a source, then each argument null or zero in
// turn.
struct Special {
    Aim aim;
    std::size_t argument;
    std::size_t variation;
};

std::vector<Special> specialsOf(const Function &function) {
    std::vector<Special> specials;
    const std::vector<std::string_view> names = operandsOf(function);
    for (std::size_t n = 0; n + 1 < names.size() && n < 2; ++n)
        if (kindsOf(function, names[n]) == kindsOf(function, names.back()))
            for (const std::size_t variation : {std::size_t{2}, std::size_t{7}}) // 2 and 17 objects
                specials.push_back({Aim::InPlace, n, variation});
    for (std::size_t a = 0; a < function.argumentCount; ++a)
        switch (function.arguments[a].kind) {
        case ArgumentKind::Table:
            specials.push_back({Aim::NullEntry, a, 0});
            [[fallthrough]];
        case ArgumentKind::Pointer:
        case ArgumentKind::PivotIndex:
        case ArgumentKind::Scratch:
            specials.push_back({Aim::NullPointer, a, 0});
            break;
        case ArgumentKind::Dimension:
        case ArgumentKind::Count:
            specials.push_back({Aim::Zero, a, 0});
            break;
        default:
            break;
        }
    return specials;
}

bool isNan(std::uint64_t bits, std::size_t size) {
    return size == 4 ? (bits & 0x7fffffffu) > 0x7f800000u
                     : (bits & 0x7fffffffffffffffu) > 0x7ff0000000000000u;
}

void mix(std::uint64_t &hash, std::uint64_t word) {
    hash = (hash ^ word) * 0x9e3779b97f4a7c15u;
    hash ^= hash >> 32;
}

std::int64_t upTo(std::int64_t bytes, std::int64_t multiple) {
    return (bytes + multiple - 1) / multiple * multiple;
}

} // namespace

// The sizes, strides, offsets and numbers of one call.
struct Stream::Plan {
    Plan(const Function &function, std::size_t number, std::size_t its)
        : variation(its), order(orderOf(function)), vectors(hasVectorsOnly(function)),
          identity(is(function.operation, "LoadIdentity")), random(caseSeed(0, function.name, number)) {
        for (std::size_t a = 0; a < function.argumentCount; ++a)
            array = array || function.arguments[a].kind == ArgumentKind::Count;
        if (array)
            count = identity ? 1 + static_cast<std::uint32_t>(its % 5) : counts[(its * 3 + its / 16) % 16];
        if (its < 3 && !identity)
            count = array ? (its == 0 ? 3 : its == 1 ? 1 : 2) : 1;
        drawDimensions(function);
    }

    void drawDimensions(const Function &function) {
        const std::vector<std::string_view> names = dimensionsOf(function);
        const std::uint32_t *shape = shapes[variation % 8];
        for (std::size_t d = 0; d < names.size(); ++d) {
            if (names.size() > 1)
                dimensions.push_back(shape[uses[variation / 8 % 4][d]]);
            else
                dimensions.push_back(vectors ? lengths[variation % 16] : orders[variation % 8]);
        }
        if (startsWith(function.operation, "QR") && names.size() == 2 && dimensions[0] > dimensions[1])
            std::swap(dimensions[0], dimensions[1]); // the height is the second
        side = order;
        for (const std::uint32_t dimension : dimensions)
            side = std::max(side, dimension);
    }

    // How wide the gaps of an operand are: 0 none, 1 narrow, 2 to multiples of 16 and 64 bytes, 3 between
    // elements, 4 backwards, 5 columns first.
    std::size_t spacing(std::size_t operand) const {
        const std::size_t s =
            variation % 4 < 2 ? variation % 6 : (variation + 2 * operand + variation / 4) % 6;
        return identity ? s % 2 * 3 : s;
    }

    // The offset of an operand from a multiple of 64.
    std::size_t offset(std::size_t operand, std::size_t size) const {
        const std::size_t offsets[7] = {0, size, 16, 2 * size, 32, 3 * size, 64 - size};
        return offsets[(variation / 2 + variation / 3 % 2 * operand) % 7];
    }

    std::size_t variation;
    std::uint32_t order, count = 1, side = 1;
    bool vectors, identity, array = false;
    std::vector<std::uint32_t> dimensions;
    Random random;
};

Stream::Stream()
    : memory_(new unsigned char[arenaSize + alignment]), pristine_(new unsigned char[arenaSize]) {
    const auto start = reinterpret_cast<std::uintptr_t>(memory_.get());
    arena_ = memory_.get() + (alignment - start % alignment);
    Random noise(0);
    for (std::size_t at = 0; at < arenaSize; at += 8) {
        const std::uint64_t word = noise.bits();
        std::memcpy(pristine_.get() + at, &word, 8);
    }
    std::memcpy(arena_, pristine_.get(), arenaSize);
}

std::size_t Stream::callCount(const Function &function) {
    return variations + specialsOf(function).size();
}

bool Stream::holds(std::uintptr_t address) const {
    return address - reinterpret_cast<std::uintptr_t>(arena_) < arenaSize;
}

const StreamCall &Stream::make(const Function &function, std::size_t number) {
    call_ = {};
    call_.function = &function;
    call_.number = number;
    elementSize_ = is(function.type, "64f") ? 8 : 4;
    std::size_t variation = number;
    if (number >= variations) {
        const Special special = specialsOf(function)[number - variations];
        call_.aim = special.aim;
        call_.argument = special.argument;
        variation = special.variation;
    }
    Plan plan(function, number, variation);
    addOperands(plan);
    for (std::size_t n = 0; n + 1 < operands_.size(); ++n)
        fill(operands_[n], plan);
    if (call_.aim == Aim::InPlace) {
        const char *name = operands_.back().name;
        operands_.back() = operands_[call_.argument];
        operands_.back().name = name;
    }
    passArguments(plan);
    spoilArgument();
    return call_;
}

void Stream::addOperands(const Plan &plan) {
    operands_.clear();
    for (const std::string_view name : operandsOf(*call_.function)) {
        StreamOperand operand;
        operand.name = name.data();
        layOut(operand, plan, operands_.size());
        operands_.push_back(std::move(operand));
    }
}

void Stream::layOut(StreamOperand &o, const Plan &plan, std::size_t index) {
    const std::vector<ArgumentKind> kinds = kindsOf(*call_.function, o.name);
    const auto size = static_cast<std::int64_t>(elementSize_);
    const std::size_t spacing = plan.spacing(index);
    const bool strided = has(kinds, ArgumentKind::ElemStride), matrix = has(kinds, ArgumentKind::RowStride);
    const std::string_view layout = call_.function->layout;
    o.table = has(kinds, ArgumentKind::Table);
    // Copy's layout token is a pair of letters, of which the second is the destination's.
    const char letter = layout.size() == 2 && is(call_.function->operation, "Copy")
                            ? layout[is(o.name, "dst") ? 1 : 0]
                            : (layout.empty() ? 'S' : layout[0]);
    o.perObject = o.table && letter == 'L';
    o.objects = plan.count;
    const bool packed = !o.table && kinds.size() == 1 && is(o.name, "dst");

    o.rows = matrix ? plan.side : 1;
    o.columns = plan.side;
    if (!plan.vectors && (packed || (o.table && !o.perObject)))
        o.columns = plan.side * plan.side;

    const std::int64_t elems[6] = {size, size, size, 2 * size, -size, matrix ? size * plan.side : 3 * size};
    o.elem = strided ? elems[spacing] : size;
    const std::int64_t row = std::abs(o.elem) * o.columns;
    const std::int64_t rows[6] = {row, row + size,    upTo(row, 16),
                                  row, -(row + size), strided ? size : row + 2 * size};
    o.row = matrix ? rows[spacing] : 0;
    const std::int64_t object = std::abs(o.row) * (o.rows - 1) + std::abs(o.elem) * (o.columns - 1) + size;
    const std::int64_t objects[6] = {object, object + 3 * size, upTo(object, 64),
                                     object, -(object + size),  object};
    o.obj = packed || (o.table && o.perObject) ? object : objects[spacing];
    if (has(kinds, ArgumentKind::ObjStride) && !o.table && strided && !matrix && spacing == 5) {
        o.elem = size * o.objects; // the same element of all objects together
        o.obj = size;
    }
    if (plan.identity)
        o.columns = o.table && !o.perObject ? identityPositions : identityReach;
    if (o.table)
        makeEntries(o, plan, index, has(kinds, ArgumentKind::ObjStride));
    measure(o);

    o.origin = arena_ + outside + index * regionSize + regionSize / 2 + plan.offset(index, elementSize_);
    // So far apart that no table means another operand's elements, whichever shift is added to it.
    o.shift = static_cast<std::int32_t>(index + 1) * (plan.variation % 2 ? -131072 : 131072);
}

// Where the entries of a table lead to.
void Stream::makeEntries(StreamOperand &o, const Plan &plan, std::size_t index, bool hasObjStride) {
    const auto size = static_cast<std::int64_t>(elementSize_);
    const std::size_t spacing = plan.spacing(index);
    std::int64_t slot = 0, first = 0;
    std::size_t count = 0;
    if (o.perObject) {
        count = o.objects;
        first = std::max<std::int64_t>(0, -o.row) * (o.rows - 1) +
                std::max<std::int64_t>(0, -o.elem) * (o.columns - 1);
        slot = std::abs(o.row) * (o.rows - 1) + std::abs(o.elem) * (o.columns - 1) + size;
        slot = spacing == 2 ? upTo(slot, 16) : slot + (spacing == 1 ? size : 0);
        o.obj = 0;
    } else {
        count = o.columns;
        const std::int64_t objects[6] = {size, 2 * size, 16,
                                         size, -size,    size * static_cast<std::int64_t>(count)};
        o.obj = hasObjStride ? objects[spacing] : size;
        const std::int64_t others = std::int64_t{o.objects} - 1;
        slot = std::abs(o.obj) * others + size + (spacing == 1 ? size : 0);
        first = std::max<std::int64_t>(0, -o.obj) * others;
        if (hasObjStride && spacing == 5) // the positions of an object side by side
            slot = size;
    }
    o.elem = o.perObject ? o.elem : 0;
    for (std::size_t e = 0; e < count; ++e) {
        const std::size_t place = spacing < 2 ? e : spacing == 2 ? count - 1 - e : (e + count / 2) % count;
        o.entries.push_back(static_cast<std::int64_t>(place) * slot + first);
    }
}

void Stream::measure(StreamOperand &o) const {
    std::int64_t low = 0, high = 0;
    const auto stretch = [&](std::int64_t stride, std::uint32_t steps) {
        (stride < 0 ? low : high) += stride * (std::int64_t{steps} - 1);
    };
    if (!o.table || o.perObject) {
        stretch(o.row, o.rows);
        stretch(o.elem, o.columns);
    }
    stretch(o.obj, o.objects);
    if (o.table) {
        const auto [least, greatest] = std::minmax_element(o.entries.begin(), o.entries.end());
        low += *least;
        high += *greatest;
    }
    o.low = low;
    o.high = high + static_cast<std::int64_t>(elementSize_);
}

// Sound numbers for the most part, and special ones in some calls, in the later objects for families that
// stop.
void Stream::fill(const StreamOperand &o, Plan &plan) {
    const bool wide = elementSize_ == 8;
    const char *operation = call_.function->operation;
    const auto other = static_cast<Style>(plan.variation / 3 % styleCount);
    std::vector<std::uint64_t> numbers;
    for (std::uint32_t k = 0; k < o.objects; ++k) {
        const bool late = k * 3 >= o.objects * 2 || o.objects == 1;
        const Style style = plan.variation % 3 != 0 || !late ? Style::Plain : other;
        if (is(operation, "CholeskyDecomp"))
            drawSymmetricMatrix(plan.random, style, wide, plan.side, numbers);
        else if (is(operation, "LUDecomp"))
            drawMatrix(plan.random, style, wide, plan.side, numbers);
        else if (is(operation, "QRDecomp"))
            drawColumns(plan.random, style, wide, plan.side, plan.side, numbers);
        else if (is(operation, "Invert") || is(operation, "Det"))
            drawSquare(plan.random, style, wide, plan.side, numbers);
        else
            numbers.clear();
        for (std::uint32_t i = 0; i < o.rows; ++i)
            for (std::uint32_t j = 0; j < o.columns; ++j) {
                const std::size_t e = static_cast<std::size_t>(i) * o.columns + j;
                const std::uint64_t bits =
                    e < numbers.size() ? numbers[e] : drawNumber(plan.random, style, wide);
                std::memcpy(o.origin + o.offset(k, i, j), &bits, elementSize_);
            }
    }
}

void Stream::passArguments(Plan &plan) {
    tables_.clear();
    for (const StreamOperand &o : operands_) {
        std::vector<std::uintptr_t> table;
        for (std::size_t e = 0; o.table && e < o.entries.size() + 2 * aroundTable; ++e) {
            const std::size_t count = o.entries.size();
            const std::int64_t entry = o.entries[(e + count * aroundTable - aroundTable) % count];
            table.push_back(reinterpret_cast<std::uintptr_t>(o.origin) +
                            static_cast<std::uintptr_t>(static_cast<std::intptr_t>(entry - o.shift)));
        }
        tables_.push_back(std::move(table));
    }
    std::size_t dimension = 0;
    for (std::size_t a = 0; a < call_.function->argumentCount; ++a) {
        const Argument &argument = call_.function->arguments[a];
        Value value{};
        if (argument.operand[0]) {
            std::size_t n = 0;
            while (!is(operands_[n].name, argument.operand))
                ++n;
            value = valueOf(n, argument.kind);
        } else if (argument.kind == ArgumentKind::Dimension)
            value.size = plan.dimensions[dimension++];
        else if (argument.kind == ArgumentKind::Count)
            value.size = plan.count;
        else if (argument.kind == ArgumentKind::Constant) {
            const std::uint64_t bits = drawNumber(
                plan.random, plan.variation % 5 == 4 ? Style::Special : Style::Plain, elementSize_ == 8);
            std::memcpy(&value, &bits, elementSize_);
        } else if (argument.kind == ArgumentKind::PivotIndex)
            value.pointer = makePivots(plan);
        else
            value.pointer = arena_ + outside + scratchRegion * regionSize;
        call_.values.push_back(value);
    }
}

Value Stream::valueOf(std::size_t n, ArgumentKind kind) {
    const StreamOperand &o = operands_[n];
    Value value{};
    switch (kind) {
    case ArgumentKind::Table:
        value.pointer = tables_[n].data() + aroundTable;
        break;
    case ArgumentKind::Shift:
        value.word = o.shift;
        break;
    case ArgumentKind::ObjStride:
        value.word = static_cast<std::int32_t>(o.obj);
        break;
    case ArgumentKind::RowStride:
        value.word = static_cast<std::int32_t>(o.row);
        break;
    case ArgumentKind::ElemStride:
        value.word = static_cast<std::int32_t>(o.elem);
        break;
    default:
        value.pointer = o.origin;
    }
    return value;
}

// Permutations, which a solver follows and a decomposition overwrites.
void *Stream::makePivots(Plan &plan) {
    unsigned char *const start = arena_ + outside + pivotRegion * regionSize + around;
    std::vector<std::uint32_t> rows(plan.side);
    for (std::uint32_t k = 0; k < plan.count; ++k) {
        for (std::uint32_t i = 0; i < plan.side; ++i)
            rows[i] = i;
        for (std::uint32_t i = plan.side; i-- > 1;)
            std::swap(rows[i], rows[plan.random.below(i + 1)]);
        std::memcpy(start + std::size_t{k} * plan.side * 4, rows.data(), std::size_t{plan.side} * 4);
    }
    pivotBytes_ = std::size_t{plan.count} * plan.side * 4;
    return start;
}

void Stream::spoilArgument() {
    if (call_.aim == Aim::Numbers || call_.aim == Aim::InPlace)
        return;
    Value &value = call_.values[call_.argument];
    if (call_.aim == Aim::NullPointer)
        value.pointer = nullptr;
    else if (call_.aim == Aim::Zero)
        value.size = 0;
    else {
        std::size_t n = 0;
        while (!is(operands_[n].name, call_.function->arguments[call_.argument].operand))
            ++n;
        call_.nullEntry = std::min<std::size_t>(1, operands_[n].entries.size() - 1);
        tables_[n][aroundTable + call_.nullEntry] = 0;
    }
}

std::uint64_t Stream::digest(std::uint64_t hash, ZelmStatus status) const {
    mix(hash, static_cast<std::uint32_t>(status));
    const StreamOperand &dst = operands_.back();
    const std::size_t bytes = static_cast<std::size_t>(dst.high - dst.low) + 2 * around;
    const unsigned char *const start = dst.origin + dst.low - around;
    for (std::size_t at = 0; at < bytes; at += elementSize_) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, start + at, elementSize_);
        mix(hash, isNan(bits, elementSize_) ? ~std::uint64_t{0} : bits);
    }
    const unsigned char *const pivots = arena_ + outside + pivotRegion * regionSize;
    for (std::size_t at = 0; pivotBytes_ && at < pivotBytes_ + 2 * around; at += 4) {
        std::uint32_t row = 0;
        std::memcpy(&row, pivots + at, 4);
        mix(hash, row);
    }
    return hash;
}

void Stream::restore() {
    const auto restoreBytes = [&](unsigned char *from, std::size_t bytes) {
        std::memcpy(from, pristine_.get() + (from - arena_), bytes);
    };
    for (const StreamOperand &o : operands_)
        restoreBytes(o.origin + o.low - around, static_cast<std::size_t>(o.high - o.low) + 2 * around);
    if (pivotBytes_)
        restoreBytes(arena_ + outside + pivotRegion * regionSize, pivotBytes_ + 2 * around);
    restoreBytes(arena_ + outside + scratchRegion * regionSize, 1024);
    pivotBytes_ = 0;
}

} // namespace zelmtest
