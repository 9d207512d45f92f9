#include "batch_case.h"

#include "library.h"
#include "numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace zelmtest {
namespace {

using zelmref::Content;
using zelmref::Kind;
using zelmref::Layout;
using zelmref::Overlap;
using zelmref::Parameter;
using zelmref::Passed;

constexpr std::size_t firstTableSlab = 4, pivotSlab = 8;
constexpr std::int64_t margin = 96, pivotsInMiddle = 1 << 14;

bool isOperand(Kind kind) {
    return kind == Kind::Vector || kind == Kind::Matrix || kind == Kind::Result || kind == Kind::Packed;
}

} // namespace

Batch::Batch(const Target &target, Random &random, Arena &arena, Case &result, std::uint32_t count)
    : target_(target), random_(random), arena_(arena), case_(result), count_(count),
      size_(zelmref::elementSize(target.cell)) {
    case_.target = &target;
    case_.call.cell = &target.cell;
    case_.call.signature = &target.signature;
    case_.call.passed.assign(target.signature.size(), Passed{});
    case_.operands.clear();
    case_.windows.clear();
    case_.anything.clear();
}

Placement *Batch::anySource() {
    std::vector<Placement *> arrays;
    for (std::size_t n = 0; n < sourceCount(); ++n)
        if (source(n).array == dst().array)
            arrays.push_back(&source(n));
    return arrays.empty() ? nullptr : arrays[random_.below(static_cast<std::uint32_t>(arrays.size()))];
}

Placement *Batch::invariantSource() {
    for (std::size_t n = 0; n < sourceCount(); ++n)
        if (source(n).array != dst().array)
            return &source(n);
    return nullptr;
}

Placement *Batch::sourceThatDstMayMeet() {
    Placement *o = anySource();
    return o && mayMove(*o) ? o : nullptr;
}

Overlap Batch::overlapWith(const Placement &source) const {
    const zelmref::Family &family = *target_.family;
    return family.overlapWith ? family.overlapWith(target_.cell, target_.signature[source.parameter])
                              : family.overlap;
}

bool Batch::mayCoincide(const Placement &source) const {
    const Overlap overlap = overlapWith(source);
    const Placement &d = case_.operands.back();
    return overlap != Overlap::Apart && overlap != Overlap::OtherObjects && source.array == d.array &&
           source.rows == d.rows && source.columns == d.columns && source.table == d.table &&
           source.layout == d.layout && source.packed == d.packed;
}

bool Batch::mayMove(const Placement &source) const {
    const Overlap overlap = overlapWith(source);
    return source.array == case_.operands.back().array && overlap != Overlap::Apart &&
           overlap != Overlap::Identical;
}

bool Batch::coincidingElementsAreDefined() const {
    const auto anyOrder = target_.family->writesInAnyOrder;
    if ((anyOrder && anyOrder(target_.cell)) || case_.operands.back().packed)
        return false;
    for (std::size_t n = 0; n + 1 < case_.operands.size(); ++n)
        if (mayLieAnywhere(case_.operands[n]))
            return true;
    return false;
}

std::int64_t Batch::objectBytes(const Placement &o) const {
    return std::abs(o.row) * (o.rows - 1) + std::abs(o.elem) * (o.columns - 1) + size_;
}

void Batch::lieLike(Placement &o, const Placement &model) const {
    const std::size_t parameter = o.parameter;
    o = model;
    o.parameter = parameter;
}

void Batch::packTightly(Placement &o) const {
    o.elem = size_;
    o.row = o.rows == 1 ? 0 : size_ * o.columns;
    const bool perPosition = o.table && !o.perObject;
    o.obj = perPosition ? size_ : objectBytes(o);
    const std::int64_t slot = o.perObject ? objectBytes(o) : size_ * o.objects;
    for (std::size_t e = 0; e < o.entries.size(); ++e)
        o.entries[e] = static_cast<std::int64_t>(e) * slot;
}

std::size_t Batch::tableSlab(const Placement &o) const {
    std::size_t n = 0;
    while (case_.operands[n].parameter != o.parameter)
        ++n;
    return firstTableSlab + n;
}

void Batch::keepRoomAtTable(const Placement &o) {
    tableHasRoom_[o.parameter] = true;
}

std::int64_t Batch::tableOffset(const Placement &o) const {
    return tableHasRoom_[o.parameter] ? 1024
                                      : static_cast<std::int64_t>(Arena::slabSize) -
                                            static_cast<std::int64_t>(o.entries.size() * sizeof(void *));
}

void Batch::pivotsOver(const Placement &o, std::int64_t offset) {
    pivotsPlaced_ = true;
    pivotOperand_ = o.parameter;
    pivotOffset_ = offset;
}

void Batch::besidePivots(Placement &o, std::int64_t offset) {
    o.slab = pivotSlab;
    o.origin = pivotsInMiddle + offset;
}

bool Batch::followsNull(const Placement &o, std::uint32_t entry) const {
    const zelmref::Family &family = *target_.family;
    if (family.followsNull && family.followsNull(case_.call, entry))
        return true;
    return family.entriesTested && !o.perObject &&
           entry >= family.entriesTested(case_.call, target_.signature[o.parameter]);
}

void Batch::drawSizes(bool disagree) {
    const auto fit = target_.family->dimensionsFit;
    const bool square = fit && !disagree && random_.chance(40);
    for (int attempt = 0; attempt < 200; ++attempt) {
        std::uint32_t side = 0;
        for (std::size_t p = 0; p < target_.signature.size(); ++p) {
            if (target_.signature[p].kind != Kind::Dimension)
                continue;
            std::uint32_t size =
                1 +
                random_.below(target_.signature[p].name == "len" || !zelmref::isArray(target_.cell) ? 18 : 9);
            if (square)
                size = side = side ? side : size;
            case_.call.passed[p].size = size;
        }
        if (target_.family->shapes != zelmref::Shapes::Any && target_.cell.order == 0) {
            std::uint32_t &width = case_.call.passed[case_.call.index("width")].size;
            std::uint32_t &height = case_.call.passed[case_.call.index("height")].size;
            if (width > height)
                std::swap(width, height);
        }
        if (!fit || fit(case_.call) != disagree)
            break;
    }
    if (zelmref::isArray(target_.cell))
        case_.call.passed[case_.call.index("count")].size = count_;
    for (const Parameter &parameter : target_.signature)
        if (isOperand(parameter.kind) && std::int64_t{case_.call.dimension(parameter.rows)} *
                                                 case_.call.dimension(parameter.columns) * count_ >
                                             129 * 36)
            fits_ = false;
}

void Batch::drawOperands() {
    tableHasRoom_.assign(target_.signature.size(), false);
    for (std::size_t p = 0; p < target_.signature.size(); ++p) {
        const Parameter &parameter = target_.signature[p];
        if (!isOperand(parameter.kind))
            continue;
        Placement o;
        o.parameter = p;
        o.array = parameter.array;
        o.table = zelmref::hasTable(target_.cell, parameter);
        o.layout = zelmref::layoutOf(target_.cell, parameter);
        o.packed = parameter.kind == Kind::Result || parameter.kind == Kind::Packed;
        o.perObject = o.table && (o.layout == Layout::L || o.layout == Layout::LS2);
        o.objects = o.array ? count_ : 1;
        o.rows = case_.call.dimension(parameter.rows);
        o.columns = case_.call.dimension(parameter.columns);
        o.slab = case_.operands.size();
        if (const auto reached = target_.family->entriesReached; reached && o.table && !o.perObject) {
            const auto entries = static_cast<std::uint32_t>(reached(case_.call, parameter));
            o.columns = std::max(o.rows * o.columns, entries);
            o.rows = 1;
        }
        drawShape(o);
        case_.operands.push_back(std::move(o));
    }
}

// Dense, with gaps, column by column, spread out, backwards.
void Batch::drawShape(Placement &o) {
    const bool strided = (o.layout == Layout::S2 || o.layout == Layout::LS2) && !o.packed;
    const bool isPlane = o.packed && o.rows * o.columns == 1;
    o.elem = size_;
    o.row = size_ * o.columns;
    const std::uint32_t kind = random_.below(6);
    const std::int64_t gap = size_ * random_.between(1, 3);
    if (!o.packed && kind == 1)
        o.row += gap;
    if (strided && kind == 2) {
        o.elem = size_ * o.rows;
        o.row = size_;
    }
    if (strided && kind == 3) {
        o.elem = size_ * random_.between(2, 3);
        o.row = o.elem * o.columns + (random_.chance(50) ? gap : 0);
    }
    if (!o.packed && kind == 4) {
        o.elem = strided && random_.chance(70) ? -size_ : size_;
        o.row = -(size_ * o.columns + (random_.chance(50) ? gap : 0));
    }
    if (o.rows == 1)
        o.row = 0;
    o.obj = objectBytes(o) + (!o.packed && random_.chance(40) ? gap : 0);
    if (!o.packed && !o.table && random_.chance(15))
        o.obj = -o.obj;
    if (isPlane)
        o.obj = size_;
    if (strided && o.rows == 1 && random_.chance(15)) { // the same element of all objects together
        o.elem = size_ * o.objects;
        o.obj = size_;
    }
    if (o.table)
        drawTable(o);
}

void Batch::drawTable(Placement &o) {
    const std::size_t entries = o.perObject ? o.objects : std::size_t{o.rows} * o.columns;
    o.entries.resize(entries);
    const std::int64_t gap = random_.chance(40) ? size_ * random_.between(1, 3) : 0;
    std::int64_t slot = 0;
    if (o.perObject) {
        slot = objectBytes(o) + gap;
    } else {
        const std::uint32_t kind = o.layout == Layout::PS2 ? random_.below(4) : 0;
        const auto objects = static_cast<std::int64_t>(o.objects);
        o.obj = kind == 0   ? size_
                : kind == 1 ? 2 * size_
                : kind == 2 ? -size_
                            : size_ * static_cast<std::int64_t>(entries) + gap;
        slot = kind == 3 ? size_ : std::abs(o.obj) * objects + gap;
    }
    const std::uint32_t order = random_.below(3);
    for (std::size_t e = 0; e < entries; ++e)
        o.entries[e] = static_cast<std::int64_t>(order == 1 ? entries - 1 - e : e) * slot;
    if (order == 2)
        for (std::size_t e = entries; e-- > 1;)
            std::swap(o.entries[e], o.entries[random_.below(static_cast<std::uint32_t>(e + 1))]);
}

void Batch::measure(Placement &o) const {
    std::int64_t low = 0, high = size_;
    const auto stretch = [&](std::int64_t stride, std::int64_t steps) {
        (stride < 0 ? low : high) += stride * steps;
    };
    if (!o.table || o.perObject) {
        stretch(o.row, o.rows - 1);
        stretch(o.elem, o.columns - 1);
    }
    if (o.array && !o.perObject)
        stretch(o.obj, std::int64_t{o.objects} - 1);
    if (o.table) {
        const auto [least, greatest] = std::minmax_element(o.entries.begin(), o.entries.end());
        low += *least;
        high += *greatest;
    }
    o.low = low;
    o.high = high;
}

void Batch::addWindow(std::size_t slab, std::int64_t low, std::int64_t high) {
    const auto end = static_cast<std::int64_t>(Arena::slabSize);
    std::int64_t begin = std::max<std::int64_t>(0, low - margin) / 8 * 8;
    std::int64_t stop = std::min(end, (high + margin + 7) / 8 * 8);
    if (low < 0 || high > end) {
        fits_ = false;
        return;
    }
    for (std::size_t w = 0; w < case_.windows.size(); ++w)
        if (case_.windows[w].slab == slab) { // one for each slab
            case_.windows[w].begin = std::min(case_.windows[w].begin, static_cast<std::size_t>(begin));
            case_.windows[w].end = std::max(case_.windows[w].end, static_cast<std::size_t>(stop));
            return;
        }
    case_.windows.push_back({slab, static_cast<std::size_t>(begin), static_cast<std::size_t>(stop)});
}

// Each slab's operands against one of its guard pages, or at any alignment.
void Batch::place() {
    for (Placement &o : case_.operands)
        measure(o);
    for (std::size_t slab = 0; slab < firstTableSlab; ++slab) {
        bool used = false;
        std::int64_t low = 0, high = 0;
        for (const Placement &o : case_.operands)
            if (o.slab == slab) {
                low = used ? std::min(low, o.origin + o.low) : o.origin + o.low;
                high = used ? std::max(high, o.origin + o.high) : o.origin + o.high;
                used = true;
            }
        if (!used)
            continue;
        const std::uint32_t r = random_.below(3);
        const std::int64_t step = sizeof(void *) == 8 ? size_ : 4;
        const std::int64_t base = r == 0   ? 0
                                  : r == 1 ? static_cast<std::int64_t>(Arena::slabSize) - (high - low)
                                           : 1024 + step * random_.between(0, 8);
        for (Placement &o : case_.operands)
            if (o.slab == slab)
                o.origin += base - low;
        addWindow(slab, base, base + high - low);
    }
    for (const Placement &o : case_.operands)
        if (o.slab >= firstTableSlab)
            addWindow(o.slab, o.origin + o.low, o.origin + o.high);
}

std::uintptr_t Batch::address(const Placement &o, std::int64_t offset) const {
    return reinterpret_cast<std::uintptr_t>(arena_.slab(o.slab)) +
           static_cast<std::uintptr_t>(static_cast<std::intptr_t>(o.origin + offset));
}

const Placement *Batch::placementOf(std::size_t parameter) const {
    for (const Placement &o : case_.operands)
        if (o.parameter == parameter)
            return &o;
    return nullptr;
}

void Batch::pass() {
    for (Placement &o : case_.operands) {
        Passed &p = case_.call.passed[o.parameter];
        p.elemStride = static_cast<std::int32_t>(o.elem);
        p.rowStride = static_cast<std::int32_t>(o.row);
        p.objStride = static_cast<std::int32_t>(o.obj);
        if (!o.table) {
            p.base = address(o, 0);
            continue;
        }
        const std::uint32_t kind = random_.below(3);
        p.shift = kind == 0 ? 0 : static_cast<std::int32_t>(random_.between(-40, 40));
        for (const Entry &entry : shiftsFromNull_)
            if (entry.parameter == o.parameter)
                p.shift = static_cast<std::int32_t>(address(o, o.entries[entry.entry]));
        const std::int64_t at = tableOffset(o);
        addWindow(tableSlab(o), at, at + static_cast<std::int64_t>(o.entries.size() * sizeof(void *)));
        p.base =
            reinterpret_cast<std::uintptr_t>(arena_.slab(tableSlab(o))) + static_cast<std::uintptr_t>(at);
    }
    for (std::size_t p = 0; p < target_.signature.size(); ++p) {
        const Parameter &parameter = target_.signature[p];
        Passed &passed = case_.call.passed[p];
        if (parameter.kind == Kind::PivotIndex) {
            const std::int64_t bytes =
                4 * std::int64_t{case_.call.dimension("n")} * (parameter.array ? count_ : 1);
            const bool dstIsHere = dst().slab == pivotSlab;
            std::size_t slab = pivotSlab;
            std::int64_t at = dstIsHere ? pivotsInMiddle : static_cast<std::int64_t>(Arena::slabSize) - bytes;
            if (pivotsPlaced_) {
                const Placement *over = placementOf(pivotOperand_);
                slab = over->slab;
                at = over->origin + pivotOffset_;
            }
            if (at < 0 || at + bytes > static_cast<std::int64_t>(Arena::slabSize)) {
                fits_ = false;
                return;
            }
            addWindow(slab, at, at + bytes);
            passed.base =
                reinterpret_cast<std::uintptr_t>(arena_.slab(slab)) + static_cast<std::uintptr_t>(at);
        }
        if (parameter.kind == Kind::Constant)
            passed.bits = zeros_ ? 0 : drawNumber(random_, Style::Plain, size_ == 8);
    }
    if (target_.family->scratchBytes) {
        const auto bytes = static_cast<std::int64_t>(target_.family->scratchBytes(case_.call));
        if (bytes > 0) {
            const std::int64_t at = static_cast<std::int64_t>(Arena::slabSize) - (bytes + 7) / 8 * 8;
            addWindow(pivotSlab, at, at + bytes);
            case_.anything.push_back(
                {pivotSlab, static_cast<std::size_t>(at), static_cast<std::size_t>(at + bytes)});
            case_.call.passed[case_.call.index("scratch")].base =
                reinterpret_cast<std::uintptr_t>(arena_.slab(pivotSlab)) + static_cast<std::uintptr_t>(at);
        }
    }
}

void Batch::writeTables() {
    for (const Placement &o : case_.operands) {
        if (!o.table)
            continue;
        const Passed &p = case_.call.passed[o.parameter];
        const auto shift = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(p.shift));
        for (std::size_t e = 0; e < o.entries.size(); ++e)
            zelmref::writeWord(p.base + e * sizeof(void *), address(o, o.entries[e]) - shift);
    }
}

// Sound matrices, ordinary numbers: what is looked for lies between objects.
void Batch::writeNumbers(Placement &o) {
    const auto write = [&](std::uint32_t k, std::uint32_t i, std::uint32_t j, std::uint64_t bits) {
        if (positive_) // without its sign
            bits &= size_ == 8 ? ~(std::uint64_t{1} << 63) : 0x7fffffffu;
        if (zeros_)
            bits = 0;
        std::memcpy(reinterpret_cast<void *>(address(o, o.offset(k, i, j))), &bits,
                    static_cast<std::size_t>(size_));
    };
    const Content content = target_.family->content;
    const bool wide = size_ == 8;
    std::vector<std::uint64_t> elements;
    for (std::uint32_t k = 0; k < o.objects; ++k) {
        elements.clear();
        const std::uint32_t rows = o.rows, columns = o.columns;
        const bool square = rows == columns && rows > 1;
        if (content == Content::PositiveDefinite && square)
            drawSymmetricMatrix(random_, Style::Plain, wide, rows, elements);
        else if (content == Content::Inverting && square)
            drawSquare(random_, Style::Plain, wide, rows, elements);
        else if (content == Content::Pivoting && square)
            drawMatrix(random_, Style::Plain, wide, rows, elements);
        else
            for (std::uint32_t e = 0; e < rows * columns; ++e)
                elements.push_back(drawNumber(random_, Style::Plain, wide));
        const auto isThis = [&](const Entry &entry) {
            return entry.parameter == o.parameter && entry.entry == k;
        };
        if (std::any_of(zeroObjects_.begin(), zeroObjects_.end(), isThis))
            std::fill(elements.begin(), elements.end(), 0);
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < columns; ++j)
                write(k, i, j, elements[std::size_t{i} * columns + j]);
    }
}

void Batch::writePivots() {
    for (std::size_t p = 0; p < target_.signature.size(); ++p) {
        const Parameter &parameter = target_.signature[p];
        if (parameter.kind != Kind::PivotIndex || target_.family->content != Content::Solving)
            continue;
        const std::uint32_t n = case_.call.dimension("n"), blocks = parameter.array ? count_ : 1;
        std::vector<std::uint32_t> rows(n);
        for (std::uint32_t k = 0; k < blocks; ++k) {
            for (std::uint32_t i = 0; i < n; ++i)
                rows[i] = i;
            for (std::uint32_t i = n; i-- > 1;)
                std::swap(rows[i], rows[random_.below(i + 1)]);
            std::memcpy(reinterpret_cast<void *>(case_.call.passed[p].base + std::size_t{k} * n * 4),
                        rows.data(), std::size_t{n} * 4);
        }
    }
}

void Batch::writeNulls() {
    const auto write = [&](const Entry &entry, bool byShift) {
        const Passed &p = case_.call.passed[entry.parameter];
        const auto shift = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(p.shift));
        zelmref::writeWord(p.base + entry.entry * sizeof(void *), byShift ? 0 - shift : std::uintptr_t{0});
    };
    for (const Entry &entry : nulls_)
        write(entry, false);
    for (const Entry &entry : nullsByShift_)
        write(entry, true);
}

void Batch::fill() {
    Random noise(random_.bits());
    for (const Window &w : case_.windows)
        for (std::size_t at = w.begin; at < w.end; at += 8) {
            const std::uint64_t word = noise.bits();
            std::memcpy(arena_.slab(w.slab) + at, &word, std::min<std::size_t>(8, w.end - at));
        }
}

void Batch::finish() {
    place();
    if (!fits_)
        return;
    pass();
    if (!fits_)
        return;
    fill();
    writeTables();
    for (std::size_t n = 0; n < sourceCount(); ++n)
        writeNumbers(case_.operands[n]);
    writePivots();
    writeNulls();
    for (const Window &w : case_.windows)
        std::memcpy(arena_.before(w.slab) + w.begin, arena_.slab(w.slab) + w.begin, w.end - w.begin);
}

// ---- all functions

namespace {

constexpr std::uint32_t counts[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,
                                    14, 15, 16, 17, 31, 32, 33, 63, 64, 65, 66, 129};

// Cases of each function: a few of those that there are, other ones for each function.
std::uint64_t casesOfEach() {
    const char *cases = std::getenv("ZELM_BATCH_CASES");
    return cases ? std::strtoull(cases, nullptr, 10) : 4;
}

bool takesPart(const Target &target, const Arrangement &arrangement) {
    const zelmref::Cell &cell = target.cell;
    if (!target.family || target.family->columnsReached ||
        !std::count(arrangement.layouts.begin(), arrangement.layouts.end(), cell.layout))
        return false;
    if (arrangement.sizesDisagree && (!target.family->dimensionsFit || cell.order != 0))
        return false;
    if (!arrangement.singleProducts)
        return zelmref::isArray(cell);
    return !zelmref::isArray(cell) && cell.order == 0 &&
           (target.family->dimensionsFit || cell.operation == "Gaxpy");
}

bool layOut(const Arrangement &arrangement, const Target &target, std::uint64_t number, Arena &arena,
            Case &result) {
    Random random(caseSeed(1, std::string(arrangement.name) + target.function->name, number));
    std::uint32_t count = 0;
    do
        count = counts[random.below(std::size(counts))];
    while (count < arrangement.leastCount);
    if (arrangement.singleProducts)
        count = 1;
    Batch batch(target, random, arena, result, count);
    batch.drawSizes(arrangement.sizesDisagree);
    if (!batch.fits())
        return false;
    batch.drawOperands();
    if (!arrangement.arrange(batch))
        return false;
    batch.finish();
    return batch.fits();
}

} // namespace

void expectTheModel(const Arrangement &arrangement) {
    static Arena arena;
    Runner runner(arena);
    std::size_t ran = 0;
    for (std::size_t f = 0; f < functionCount; ++f) {
        const Target target = targetOf(functions[f]);
        if (!takesPart(target, arrangement))
            continue;
        const AnyFunction function = exported(functions[f].name);
        const Callee callee = [&](const Case &, const std::vector<Value> &values) {
            ++ran;
            return functions[f].call(function, values.data());
        };
        const std::uint64_t cases = casesOfEach() * (arrangement.singleProducts ? 20 : 1);
        for (std::uint64_t number = 0; number < cases; ++number) {
            const auto make = [&](Arena &memory, Case &result) {
                return layOut(arrangement, target, number, memory, result);
            };
            if (const auto mismatch = runner.run(target, 1, number, make, callee)) {
                ADD_FAILURE() << functions[f].name << ", " << arrangement.name << ", case " << number << ", "
                              << runner.last().call.count() << " objects: " << mismatch->what;
                break; // one of each function says enough
            }
        }
    }
    EXPECT_GT(ran, 0u) << "no function has such a case";
    EXPECT_TRUE(arena.intact()) << "something wrote far outside of its operands";
}

} // namespace zelmtest
