#include "case.h"

#include "numbers.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace zelmtest {
namespace {

using zelmref::Content;
using zelmref::Kind;
using zelmref::Layout;
using zelmref::Overlap;
using zelmref::Parameter;
using zelmref::Passed;

constexpr std::size_t firstTableSlab = 4, pivotSlab = 8, scratchSlab = 8;
constexpr std::int64_t roomForOperand = 60000, margin = 96;

// How the operands of a case lie to each other.
enum class Relation {
    Apart,
    Same,        // dst is a source
    Displaced,   // dst shares some bytes with a source
    Interleaved, // one record per object holds all operands
    OneSource,   // two sources are the same memory
    Touching,    // side by side without a gap
};

bool isOperand(Kind kind) {
    return kind == Kind::Vector || kind == Kind::Matrix || kind == Kind::Result || kind == Kind::Packed;
}

bool fitsShape(const Placement &a, const Placement &b) {
    return a.array == b.array && a.rows == b.rows && a.columns == b.columns && a.table == b.table &&
           a.layout == b.layout && a.packed == b.packed;
}

class Maker {
public:
    Maker(const Target &target, std::uint64_t seed, std::uint64_t number, Arena &arena, Case &result)
        : target_(target), arena_(arena), case_(result),
          random_(caseSeed(seed, target.function->name, number)), size_(zelmref::elementSize(target.cell)),
          overlap_(target.family->overlap) {
        case_.target = &target;
        case_.seed = seed;
        case_.number = number;
        case_.call.cell = &target.cell;
        case_.call.signature = &target.signature;
        case_.call.passed.assign(target.signature.size(), Passed{});
        case_.operands.clear();
        case_.windows.clear();
        case_.anything.clear();
    }

    void make() {
        drawSizes();
        drawRelation();
        for (std::size_t p = 0; p < target_.signature.size(); ++p)
            if (isOperand(target_.signature[p].kind))
                addOperand(p);
        relate();
        placeSlabs();
        passOperands();
        placePivots();
        placeScratch();
        drawConstants();
        fillWindows();
        writeTables();
        writeElements();
        writePivots();
        drawNulls();
        drawNegatives();
        for (const Window &w : case_.windows)
            std::memcpy(arena_.before(w.slab) + w.begin, arena_.slab(w.slab) + w.begin, w.end - w.begin);
    }

private:
    Placement &dst() { return case_.operands.back(); }
    Passed &passed(const Placement &operand) { return case_.call.passed[operand.parameter]; }

    void drawSizes() {
        const auto fit = target_.family->dimensionsFit;
        const bool fitting = fit && random_.chance(90), square = fit && random_.chance(25);
        do
            drawDimensions(square);
        while (fitting && !fit(case_.call));
        drawCount();
    }

    void drawDimensions(bool square) {
        std::uint32_t side = 0;
        for (std::size_t p = 0; p < target_.signature.size(); ++p) {
            const Parameter &parameter = target_.signature[p];
            std::uint32_t &size = case_.call.passed[p].size;
            if (parameter.kind != Kind::Dimension)
                continue;
            const std::uint32_t vectorLength =
                random_.chance(85) ? 1 + random_.below(20) : 21 + random_.below(50);
            size = parameter.name == "len" ? vectorLength : 1 + random_.below(8);
            if (square)
                size = side = side ? side : size;
        }
    }

    void drawCount() {
        for (std::size_t p = 0; p < target_.signature.size(); ++p) {
            std::uint32_t &size = case_.call.passed[p].size;
            if (target_.signature[p].kind == Kind::Count) {
                // all of 0 to 9 and 16 to 70 in turn, the small ones more often
                const auto turn = static_cast<std::uint32_t>(case_.number % 85);
                size = turn < 30 ? turn % 10 : turn - 14;
                if (size == 0 && readsEntryBefore())
                    size = 1;
                if (target_.family->columnsReached) // the memory grows with the square of their rows
                    size %= 1 + 60 / case_.call.dimension("height");
            }
        }
        drawShape();
    }

    void drawShape() {
        const zelmref::Shapes shapes = target_.family->shapes;
        if (shapes == zelmref::Shapes::Any || target_.cell.order != 0)
            return;
        std::uint32_t &width = case_.call.passed[case_.call.index("width")].size;
        std::uint32_t &height = case_.call.passed[case_.call.index("height")].size;
        const bool square = random_.chance(40), mayBeWide = random_.chance(15);
        if (square)
            width = height;
        if (width > height && !(mayBeWide && shapes == zelmref::Shapes::MostlyTall))
            std::swap(width, height);
    }

    // A list whose last object is used where there is none: what lies before a table is for tests by name.
    bool readsEntryBefore() const { return countsZeroAsOne() && target_.cell.layout == Layout::L; }

    bool countsZeroAsOne() const {
        return target_.family->countsZeroAsOne && target_.family->countsZeroAsOne(target_.cell);
    }

    void drawRelation() {
        const std::uint32_t r = random_.below(100);
        relation_ = r < 52   ? Relation::Apart
                    : r < 66 ? Relation::Same
                    : r < 79 ? Relation::Displaced
                    : r < 89 ? Relation::Interleaved
                    : r < 94 ? Relation::OneSource
                             : Relation::Touching;
        // Steps of half an element only where no elements coincide: none must cover half of another, and the
        // two targets' cases must mean the same although their strides differ.
        halfSteps_ = random_.chance(25) && relation_ == Relation::Apart && size_ == 8 &&
                     !target_.family->columnsReached;
        sixteens_ = random_.chance(12) && !halfSteps_;
    }

    // The distance of rows and objects, in some cases a multiple of 16 like all others.
    std::int64_t drawDistance(std::int64_t packed, bool mayOverlap) {
        const std::int64_t stride = drawStride(packed, mayOverlap);
        return sixteens_ ? (stride + (stride < 0 ? -15 : 15)) / 16 * 16 : stride;
    }

    std::int64_t drawStride(std::int64_t packed, bool mayOverlap) {
        const std::int64_t gap = size_ * random_.between(1, 5);
        const std::int64_t inner = size_ * random_.between(1, std::max<std::int64_t>(1, packed / size_));
        // 64-bit floats need an alignment of 4 bytes only where pointers have 4 bytes.
        const std::int64_t half = halfSteps_ && sizeof(void *) == 4 ? 4 : 0;
        const std::uint32_t r = random_.below(100);
        if (r < 40)
            return packed;
        if (r < 60)
            return packed + gap + half;
        if (r < 65)
            return (packed + 15) / 16 * 16 + half;
        if (r < 75)
            return -packed;
        if (r < 83 || halfSteps_ || !mayOverlap)
            return -(packed + gap + half);
        return r < 91 ? 0 : r < 96 ? inner : 2 * packed;
    }

    void addOperand(std::size_t p) {
        const Parameter &parameter = target_.signature[p];
        Placement o;
        o.parameter = p;
        o.array = parameter.array;
        o.table = zelmref::hasTable(target_.cell, parameter);
        o.layout = zelmref::layoutOf(target_.cell, parameter);
        o.packed = parameter.kind == Kind::Result || parameter.kind == Kind::Packed;
        o.perObject = o.table && (o.layout == Layout::L || o.layout == Layout::LS2);
        o.objects = o.array ? case_.call.count() : 1;
        if (o.objects == 0 && countsZeroAsOne())
            o.objects = 1;
        o.rows = case_.call.dimension(parameter.rows);
        o.columns = case_.call.dimension(parameter.columns);
        if (const auto reached = target_.family->columnsReached)
            o.columns = reached(case_.call);
        o.slab = case_.operands.size();
        if (const auto reached = target_.family->entriesReached; reached && o.table && !o.perObject) {
            const auto entries = static_cast<std::uint32_t>(reached(case_.call, parameter));
            o.columns = std::max(o.rows * o.columns, entries);
            o.rows = 1;
        }

        // A destination whose elements coincide within one object: not in every case of a solver.
        const bool isDst = parameter.name == "dst";
        const auto anyOrder = target_.family->writesInAnyOrder;
        const bool mayOverlap = !isDst || (!(anyOrder && anyOrder(target_.cell)) &&
                                           (overlap_ == Overlap::Any || random_.chance(10)));
        drawStrides(o, mayOverlap);
        if (extent(o) > roomForOperand)
            packTightly(o);
        case_.operands.push_back(std::move(o));
    }

    void drawStrides(Placement &o, bool mayOverlap) {
        const bool strided = (o.layout == Layout::S2 || o.layout == Layout::LS2) && !o.packed;
        const bool perPosition = o.table && !o.perObject;
        const std::uint32_t special = random_.below(100);

        o.elem = strided ? drawStride(size_, mayOverlap) : size_;
        if (target_.family->roundsElemStride && target_.family->roundsElemStride(case_.call))
            o.elem -= o.elem % size_;
        o.row = drawDistance(std::max<std::int64_t>(size_, std::abs(o.elem) * o.columns), mayOverlap);
        if (strided && special < 8) { // columns first
            o.elem = size_ * o.rows;
            o.row = size_;
        }
        if (o.rows == 1)
            o.row = 0;
        const std::int64_t object = objectBytes(o);
        o.obj = perPosition ? drawStride(size_, true) : drawDistance(object, true);
        if (strided && o.rows == 1 && special >= 92 &&
            o.objects > 0) { // the same element of all objects together
            o.elem = size_ * o.objects;
            o.obj = size_;
        }
        if (o.packed || o.layout == Layout::P)
            o.obj = size_;
        if (target_.signature[o.parameter].kind == Kind::Packed) {
            o.elem = size_;
            o.row = o.rows == 1 ? 0 : size_ * o.columns;
            o.obj = size_ * o.rows * o.columns;
        }
        if (target_.family->columnsReached)
            keepAtLeastPacked(o);
        if (o.table)
            drawEntries(o, mayOverlap);
        measure(o);
    }

    // Strides below those of a packed matrix are not what the function works with.
    void keepAtLeastPacked(Placement &o) const {
        const auto atLeast = [](std::int64_t &stride, std::int64_t least) {
            if (stride >= 0 && stride < least)
                stride = least;
        };
        if (o.table && !o.perObject) {
            atLeast(o.obj, size_);
            return;
        }
        atLeast(o.elem, size_);
        atLeast(o.row, size_ * case_.call.dimension("width"));
    }

    // Bytes from the first to the last byte of one object of a strided operand.
    std::int64_t objectBytes(const Placement &o) const {
        return std::abs(o.row) * (o.rows - 1) + std::abs(o.elem) * (o.columns - 1) + size_;
    }

    // The distance from an object's lowest byte to its element (0, 0).
    static std::int64_t belowFirst(const Placement &o) {
        return std::max<std::int64_t>(0, -o.row) * (o.rows - 1) +
               std::max<std::int64_t>(0, -o.elem) * (o.columns - 1);
    }

    void drawEntries(Placement &o, bool mayRepeat) {
        const std::size_t positions = static_cast<std::size_t>(o.rows) * o.columns;
        const std::size_t count = o.perObject ? o.objects : positions;
        std::int64_t slot = 0, first = 0;
        const bool records = !o.perObject && o.layout == Layout::PS2 && random_.chance(30);
        const std::int64_t gap = size_ * (random_.chance(50) ? random_.between(0, 5) : 0);
        if (o.perObject) {
            slot = objectBytes(o) + gap;
            first = belowFirst(o);
        } else if (records) { // the positions of an object side by side
            if (o.array)
                o.obj = size_ * static_cast<std::int64_t>(positions) + gap;
            slot = size_;
        } else {
            const std::int64_t others = o.array ? std::max<std::int64_t>(0, std::int64_t{o.objects} - 1) : 0;
            slot = std::abs(o.obj) * others + size_ + gap;
            first = std::max<std::int64_t>(0, -o.obj) * others;
        }
        o.entries.resize(count);
        for (std::size_t e = 0; e < count; ++e)
            o.entries[e] = static_cast<std::int64_t>(e) * slot + first;
        if (random_.chance(60))
            for (std::size_t e = count; e-- > 1;)
                std::swap(o.entries[e], o.entries[random_.below(static_cast<std::uint32_t>(e + 1))]);
        const bool repeat = random_.chance(8) && mayRepeat && !halfSteps_;
        const auto from = random_.below(static_cast<std::uint32_t>(count + 1));
        const auto to = random_.below(static_cast<std::uint32_t>(count + 1));
        if (repeat && from < count && to < count)
            o.entries[to] = o.entries[from];
    }

    void packTightly(Placement &o) {
        o.elem = size_;
        o.row = o.rows == 1 ? 0 : size_ * o.columns;
        o.obj = o.table && !o.perObject ? size_ : objectBytes(o);
        if (o.table) {
            const std::int64_t slot =
                o.perObject ? objectBytes(o) : size_ * std::max<std::int64_t>(1, o.objects);
            for (std::size_t e = 0; e < o.entries.size(); ++e)
                o.entries[e] = static_cast<std::int64_t>(e) * slot;
        }
        measure(o);
    }

    static std::int64_t extent(const Placement &o) { return o.high - o.low; }

    void measure(Placement &o) const {
        o.low = o.high = 0;
        if (o.objects == 0)
            return;
        std::int64_t low = 0, high = size_;
        const auto stretch = [&](std::int64_t stride, std::int64_t steps) {
            (stride < 0 ? low : high) += stride * steps;
        };
        if (!o.table || o.perObject) {
            if (isPartlyRead(o))
                spanRead(o, low, high);
            else {
                stretch(o.row, o.rows - 1);
                stretch(o.elem, o.columns - 1);
            }
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

    bool isRead(const Placement &o, std::uint32_t i, std::uint32_t j) const {
        return !target_.family->neverReads || target_.signature[o.parameter].kind != Kind::Matrix ||
               !target_.family->neverReads(case_.call, i, j);
    }

    // A source of which only the elements that are read need memory: the others may lie behind the guard.
    bool isPartlyRead(const Placement &o) const {
        return target_.family->neverReads && relation_ == Relation::Apart &&
               target_.signature[o.parameter].name != "dst";
    }

    void spanRead(const Placement &o, std::int64_t &low, std::int64_t &high) const {
        for (std::uint32_t i = 0; i < o.rows; ++i)
            for (std::uint32_t j = 0; j < o.columns; ++j)
                if (isRead(o, i, j)) {
                    low = std::min(low, i * o.row + j * o.elem);
                    high = std::max(high, i * o.row + j * o.elem + size_);
                }
    }

    void relate() {
        const std::size_t sources = case_.operands.size() - 1;
        if (sources == 0)
            return;
        const std::size_t chosen = random_.below(static_cast<std::uint32_t>(sources));
        const Overlap overlap = overlapWith(case_.operands[chosen]);
        switch (relation_) {
        case Relation::Apart:
            break;
        case Relation::Same:
            if (!mayBeSame(case_.operands[chosen]))
                break;
            if (fitsShape(case_.operands[chosen], dst()))
                lieLike(dst(), case_.operands[chosen]);
            else if (overlap == Overlap::Any)
                displace(case_.operands[chosen]);
            break;
        case Relation::Displaced:
            if (overlap == Overlap::Apart || overlap == Overlap::Identical)
                break;
            if (overlap == Overlap::Any) {
                if (random_.chance(60) && fitsShape(case_.operands[chosen], dst()))
                    lieLike(dst(), case_.operands[chosen]);
                displace(case_.operands[chosen]);
            } else {
                displaceByObjects(case_.operands[chosen]);
            }
            break;
        case Relation::Interleaved:
            interleave();
            break;
        case Relation::OneSource: {
            const bool also = random_.chance(30);
            if (sources >= 2 && fitsShape(case_.operands[0], case_.operands[1])) {
                lieLike(case_.operands[1], case_.operands[0]);
                if (also && fitsShape(case_.operands[0], dst()) && mayBeSame(case_.operands[0]) &&
                    mayBeSame(case_.operands[1]))
                    lieLike(dst(), case_.operands[0]);
            }
            break;
        }
        case Relation::Touching:
            touch();
            break;
        }
    }

    Overlap overlapWith(const Placement &source) const {
        const zelmref::Family &family = *target_.family;
        return family.overlapWith ? family.overlapWith(target_.cell, target_.signature[source.parameter])
                                  : family.overlap;
    }

    bool mayBeSame(const Placement &source) const {
        const Overlap overlap = overlapWith(source);
        return overlap == Overlap::Any || overlap == Overlap::InPlace || overlap == Overlap::Identical ||
               (overlap == Overlap::InPlaceDistinct && !elementsCoincide(source));
    }

    // Do two elements of one object share a byte?
    bool elementsCoincide(const Placement &o) const {
        std::vector<std::int64_t> offsets;
        for (std::uint32_t i = 0; o.objects > 0 && i < o.rows; ++i)
            for (std::uint32_t j = 0; j < o.columns; ++j)
                offsets.push_back(o.offset(0, i, j));
        std::sort(offsets.begin(), offsets.end());
        for (std::size_t e = 1; e < offsets.size(); ++e)
            if (offsets[e] - offsets[e - 1] < size_)
                return true;
        return false;
    }

    static void lieLike(Placement &o, const Placement &model) {
        const std::size_t parameter = o.parameter;
        o = model;
        o.parameter = parameter;
    }

    // Moves dst so that one of its elements coincides with one of the source's, or comes next to it.
    void displace(const Placement &source) {
        Placement &o = dst();
        const auto element = [&](const Placement &of) {
            const std::uint32_t k = random_.below(std::max(1u, of.objects)), i = random_.below(of.rows),
                                j = random_.below(of.columns);
            return of.objects == 0 ? 0 : of.offset(k, i, j);
        };
        const std::int64_t there = element(source), here = element(o);
        o.slab = source.slab;
        o.origin = source.origin + there - here;
    }

    // dst's object k is the source's object k + m: each object is finished before the next is read.
    void displaceByObjects(Placement &source) {
        Placement &o = dst();
        const std::uint32_t move = 1 + random_.below(3);
        const bool back = random_.chance(50);
        if (!o.array || o.objects < 2 || (o.table && !o.perObject) || !fitsShape(source, o) ||
            (o.perObject && move % o.objects == 0))
            return;
        packTightly(source);
        lieLike(o, source);
        if (o.perObject)
            std::rotate(o.entries.begin(), o.entries.begin() + static_cast<std::ptrdiff_t>(move % o.objects),
                        o.entries.end());
        else
            o.origin = source.origin + (back ? -1 : 1) * std::int64_t{move} * o.obj;
    }

    void interleave() {
        if (target_.cell.layout == Layout::P || !zelmref::isArray(target_.cell)) {
            touch();
            return;
        }
        std::int64_t record = 0;
        for (const Placement &o : case_.operands)
            if (inRecord(o))
                record += perPosition(o) ? size_ * std::int64_t{o.rows} * o.columns : objectBytes(o);
        const std::int64_t pad = size_ * random_.between(0, 2);
        const std::int64_t distance = record + pad;
        if (distance * dst().objects > 2 * roomForOperand)
            return;
        const bool backwards = random_.chance(20);
        std::int64_t at = 0;
        for (Placement &o : case_.operands) {
            if (!inRecord(o))
                continue;
            o.slab = 0;
            o.obj = backwards ? -distance : distance;
            if (perPosition(o)) {
                for (std::size_t e = 0; e < o.entries.size(); ++e)
                    o.entries[e] = static_cast<std::int64_t>(e) * size_;
                o.origin = at;
                at += size_ * std::int64_t{o.rows} * o.columns;
            } else {
                for (std::size_t k = 0; k < o.entries.size(); ++k)
                    o.entries[k] = static_cast<std::int64_t>(k) * o.obj;
                o.origin = at + belowFirst(o);
                at += objectBytes(o);
            }
            measure(o);
        }
        std::size_t next = 1;
        for (Placement &o : case_.operands)
            if (!inRecord(o))
                o.slab = next++;
    }

    static bool inRecord(const Placement &o) { return o.array && !o.packed; }
    static bool perPosition(const Placement &o) { return o.table && !o.perObject; }

    void touch() {
        std::int64_t at = 0;
        const bool reversed = random_.chance(50);
        for (std::size_t n = 0; n < case_.operands.size(); ++n) {
            Placement &o = case_.operands[reversed ? case_.operands.size() - 1 - n : n];
            o.slab = 0;
            o.origin = at - o.low;
            at += extent(o);
        }
    }

    // Gives each group of operands its place in its slab: against a guard page, or anywhere at any alignment.
    void placeSlabs() {
        for (std::size_t slab = 0; slab < firstTableSlab; ++slab) {
            bool used = false, anyByte = true;
            std::int64_t low = 0, high = 0;
            for (const Placement &o : case_.operands) {
                if (o.slab != slab)
                    continue;
                anyByte = anyByte && target_.signature[o.parameter].anyByte;
                low = used ? std::min(low, o.origin + o.low) : o.origin + o.low;
                high = used ? std::max(high, o.origin + o.high) : o.origin + o.high;
                used = true;
            }
            if (!used)
                continue;
            const bool wide = size_ == 8 && (sizeof(void *) == 8 || anyByte);
            std::int64_t base = place(slab, high - low, wide ? 8 : 4);
            if (anyByte && random_.chance(50)) // still inside of what `place` has noted
                base = std::min(base + random_.between(0, 15),
                                static_cast<std::int64_t>(Arena::slabSize) - (high - low));
            for (Placement &o : case_.operands)
                if (o.slab == slab)
                    o.origin += base - low;
        }
    }

    // Where `bytes` bytes begin in a slab; the window that holds them is noted.
    std::int64_t place(std::size_t slab, std::int64_t bytes, std::int64_t alignment) {
        const std::uint32_t r = random_.below(100);
        const std::int64_t alignmentStep = 4 * random_.between(0, 3);
        const auto end = static_cast<std::int64_t>(Arena::slabSize);
        std::int64_t at;
        if (r < 45)
            at = end - bytes;
        else if (r < 65)
            at = 0;
        else
            at = 1024 + alignmentStep / alignment * alignment;
        if (sixteens_)
            at = at / 16 * 16;
        const std::int64_t begin = std::max<std::int64_t>(0, at - margin) / 8 * 8;
        const std::int64_t stop = std::min(end, (at + bytes + margin + 7) / 8 * 8);
        case_.windows.push_back({slab, static_cast<std::size_t>(begin), static_cast<std::size_t>(stop)});
        return at;
    }

    std::uintptr_t address(const Placement &o, std::int64_t offset) const {
        return reinterpret_cast<std::uintptr_t>(arena_.slab(o.slab)) +
               static_cast<std::uintptr_t>(static_cast<std::intptr_t>(o.origin + offset));
    }

    // `shift`, or one near it by which no entry of the table can come to null. Slabs begin at whole pages,
    // somewhere: whether an entry is null, and with it the digest, would depend on where.
    std::int32_t shiftWithoutNulls(const Placement &o, std::int32_t shift) const {
        constexpr std::uintptr_t page = 4096;
        const auto mayBeNull = [&](std::int64_t entry) {
            const auto distance = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(shift));
            return (address(o, entry) - distance) % page == 0;
        };
        while (std::any_of(o.entries.begin(), o.entries.end(), mayBeNull))
            shift = static_cast<std::int32_t>(static_cast<std::uint32_t>(shift) + 1);
        return shift;
    }

    void passOperands() {
        const bool oneTable = random_.chance(50);
        const auto common = static_cast<std::int32_t>(8 * random_.between(-64, 64));
        for (std::size_t n = 0; n < case_.operands.size(); ++n) {
            Placement &o = case_.operands[n];
            Passed &p = passed(o);
            const auto any = [&] {
                return static_cast<std::int32_t>(static_cast<std::uint32_t>(random_.bits()));
            };
            const std::int32_t anyObj = any(), anyRow = any(), anyElem = any(), anyShift = any();
            const auto small = static_cast<std::int32_t>(random_.between(-40, 40));
            const std::uint32_t shiftKind = random_.below(3);
            const bool garbage = random_.chance(50);
            const bool unread = target_.signature[o.parameter].unreadObjStride;

            // Strides that are multiplied with nothing but zero may be anything.
            p.elemStride = garbage && o.columns == 1 ? anyElem : static_cast<std::int32_t>(o.elem);
            p.rowStride = garbage && o.rows == 1 ? anyRow : static_cast<std::int32_t>(o.row);
            if (target_.family->columnsReached)
                passBelowPacked(o, p);
            if (target_.family->roundsElemStride && target_.family->roundsElemStride(case_.call))
                p.elemStride +=
                    static_cast<std::int32_t>(random_.chance(20) ? random_.between(1, size_ - 1) : 0);
            p.objStride = unread || (garbage && o.objects <= 1) ? anyObj : static_cast<std::int32_t>(o.obj);
            if (!o.table) {
                p.base = address(o, 0);
                continue;
            }
            p.shift = shiftKind == 0 ? 0 : shiftKind == 1 ? small : shiftWithoutNulls(o, anyShift);
            if (relation_ == Relation::Interleaved && o.perObject)
                p.shift = common + static_cast<std::int32_t>(o.origin - case_.operands[firstTable()].origin);
            if (n > 0 && oneTable && sharesTable(o)) {
                const Placement &first = case_.operands[firstTable()];
                p.base = passed(first).base;
                if (relation_ != Relation::Interleaved)
                    p.shift = passed(first).shift;
                continue;
            }
            const auto bytes = static_cast<std::int64_t>(o.entries.size() * sizeof(void *));
            const std::size_t slab = firstTableSlab + n;
            p.base = reinterpret_cast<std::uintptr_t>(arena_.slab(slab)) +
                     static_cast<std::uintptr_t>(place(slab, bytes, sizeof(void *)));
        }
    }

    // A stride that the function will raise to that of a packed matrix.
    void passBelowPacked(const Placement &o, Passed &p) {
        const auto below = [&](std::int64_t least) {
            return static_cast<std::int32_t>(random_.between(0, least));
        };
        const std::int64_t row = size_ * case_.call.dimension("width");
        const std::int32_t elem = below(size_), rowStride = below(row);
        if (o.elem == size_)
            p.elemStride = elem;
        if (o.row == row)
            p.rowStride = rowStride;
    }

    std::size_t firstTable() const {
        std::size_t n = 0;
        while (!case_.operands[n].table)
            ++n;
        return n;
    }

    // May this operand use the table of the first operand that has one?
    bool sharesTable(const Placement &o) const {
        const Placement &first = case_.operands[firstTable()];
        if (&first == &o || o.slab != first.slab || o.entries != first.entries)
            return false;
        if (relation_ == Relation::Interleaved &&
            o.perObject != first.perObject) // each has a shift of its own
            return false;
        return o.origin == first.origin || (relation_ == Relation::Interleaved && o.perObject);
    }

    void writeTables() {
        for (const Placement &o : case_.operands) {
            if (!o.table)
                continue;
            Passed &p = passed(o);
            const bool intoGuard = target_.family->neverReads && !o.perObject && random_.chance(50);
            for (std::size_t e = 0; e < o.entries.size(); ++e) {
                const auto i = static_cast<std::uint32_t>(e / o.columns),
                           j = static_cast<std::uint32_t>(e % o.columns);
                const bool astray = intoGuard && !isRead(o, i, j);
                const std::uintptr_t place =
                    astray ? reinterpret_cast<std::uintptr_t>(arena_.slab(o.slab)) + Arena::slabSize + 64
                           : address(o, o.entries[e]);
                const auto shift = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(p.shift));
                zelmref::writeWord(p.base + e * sizeof(void *), place - shift);
            }
        }
    }

    void placePivots() {
        for (std::size_t p = 0; p < target_.signature.size(); ++p) {
            const Parameter &parameter = target_.signature[p];
            if (parameter.kind != Kind::PivotIndex)
                continue;
            const std::int64_t entries =
                std::int64_t{case_.call.dimension("n")} * (parameter.array ? case_.call.count() : 1);
            case_.call.passed[p].base = reinterpret_cast<std::uintptr_t>(arena_.slab(pivotSlab)) +
                                        static_cast<std::uintptr_t>(place(pivotSlab, 4 * entries, 4));
        }
    }

    void placeScratch() {
        if (!target_.family->scratchBytes)
            return;
        const std::size_t bytes = target_.family->scratchBytes(case_.call);
        if (bytes == 0)
            return;
        const auto begin = static_cast<std::size_t>(
            place(scratchSlab, static_cast<std::int64_t>(bytes), sizeof(void *) == 8 ? size_ : 4));
        case_.anything.push_back({scratchSlab, begin, begin + bytes});
        case_.call.passed[case_.call.index("scratch")].base =
            reinterpret_cast<std::uintptr_t>(arena_.slab(scratchSlab)) + begin;
    }

    void fillWindows() {
        Random noise(random_.bits());
        for (const Window &w : case_.windows) {
            for (std::size_t at = w.begin; at < w.end; at += 8) {
                const std::uint64_t word = noise.bits();
                std::memcpy(arena_.slab(w.slab) + at, &word, 8);
            }
        }
    }

    void drawConstants() {
        for (std::size_t p = 0; p < target_.signature.size(); ++p)
            if (target_.signature[p].kind == Kind::Constant)
                case_.call.passed[p].bits = drawNumber(random_, drawStyle(), size_ == 8);
    }

    Style drawStyle() { return static_cast<Style>(random_.below(styleCount)); }

    void writeElement(const Placement &o, std::uint32_t k, std::uint32_t i, std::uint32_t j,
                      std::uint64_t bits) {
        std::memcpy(reinterpret_cast<void *>(address(o, o.offset(k, i, j))), &bits,
                    static_cast<std::size_t>(size_));
    }

    // Has the element memory of its own?
    bool isMapped(const Placement &o, std::uint32_t i, std::uint32_t j) const {
        return !isPartlyRead(o) || isRead(o, i, j);
    }

    void writeElements() {
        writeNumbers(dst(), Style::AnyBits);
        // One number in each operand: sums of nothing but -0.
        const bool uniform = target_.family->content == Content::Sums && random_.chance(6);
        for (std::size_t n = 0; n + 1 < case_.operands.size(); ++n) {
            const Placement &o = case_.operands[n];
            switch (target_.family->content) {
            case Content::Numbers:
                writeNumbers(o, drawStyle());
                break;
            case Content::Pivoting:
            case Content::Inverting:
            case Content::PositiveDefinite:
            case Content::Reflecting:
                writeMatrices(o);
                break;
            case Content::Solving:
            case Content::Sums:
                if (uniform) {
                    writeNumber(o, drawNumber(random_, Style::Signs, size_ == 8));
                    break;
                }
                writeNumbers(o, random_.chance(60) ? Style::Plain : drawStyle());
                break;
            }
        }
    }

    void writeNumber(const Placement &o, std::uint64_t bits) {
        for (std::uint32_t k = 0; k < o.objects; ++k)
            for (std::uint32_t i = 0; i < o.rows; ++i)
                for (std::uint32_t j = 0; j < o.columns; ++j)
                    if (isMapped(o, i, j))
                        writeElement(o, k, i, j, bits);
    }

    void writeNumbers(const Placement &o, Style style) {
        for (std::uint32_t k = 0; k < o.objects; ++k)
            for (std::uint32_t i = 0; i < o.rows; ++i)
                for (std::uint32_t j = 0; j < o.columns; ++j) {
                    const std::uint64_t number = drawNumber(random_, style, size_ == 8);
                    if (isMapped(o, i, j))
                        writeElement(o, k, i, j, number);
                }
    }

    // Most cases have sound matrices up to some object, so that an array form comes far.
    void writeMatrices(const Placement &o) {
        const std::uint32_t kind = random_.below(100);
        const std::uint32_t spoiled = random_.below(std::max(1u, o.objects));
        const Style style = drawStyle();
        std::vector<std::uint64_t> elements;
        for (std::uint32_t k = 0; k < o.objects; ++k) {
            const Style its = kind < 40                         ? Style::Plain
                              : kind < 75 && k != spoiled       ? Style::Plain
                              : kind < 85 && random_.chance(90) ? Style::Plain
                              : kind < 85                       ? drawStyle()
                                                                : style;
            switch (target_.family->content) {
            case Content::PositiveDefinite:
                drawSymmetricMatrix(random_, its, size_ == 8, o.rows, elements);
                break;
            case Content::Inverting:
                drawSquare(random_, its, size_ == 8, o.rows, elements);
                break;
            case Content::Reflecting:
                drawColumns(random_, its, size_ == 8, o.rows, o.columns, elements);
                break;
            default:
                drawMatrix(random_, its, size_ == 8, o.rows, elements);
            }
            for (std::uint32_t i = 0; i < o.rows; ++i)
                for (std::uint32_t j = 0; j < o.columns; ++j)
                    if (isMapped(o, i, j))
                        writeElement(o, k, i, j, elements[static_cast<std::size_t>(i) * o.columns + j]);
        }
    }

    void writePivots() {
        for (std::size_t p = 0; p < target_.signature.size(); ++p) {
            const Parameter &parameter = target_.signature[p];
            if (parameter.kind != Kind::PivotIndex)
                continue;
            const std::uint32_t n = case_.call.dimension("n"),
                                blocks = parameter.array ? case_.call.count() : 1;
            const std::uint32_t kind = random_.below(100);
            std::vector<std::uint32_t> rows(n);
            for (std::uint32_t k = 0; k < blocks; ++k) {
                drawRows(kind, rows);
                std::memcpy(reinterpret_cast<void *>(case_.call.passed[p].base + std::size_t{k} * n * 4),
                            rows.data(), std::size_t{n} * 4);
            }
        }
    }

    // One object's row numbers, which a decomposition overwrites and a solver uses as they stand.
    void drawRows(std::uint32_t kind, std::vector<std::uint32_t> &rows) {
        const auto n = static_cast<std::uint32_t>(rows.size());
        for (std::uint32_t i = 0; i < n; ++i)
            rows[i] = target_.family->content == Content::Solving ? i : random_.below(1000);
        if (kind >= 25)
            for (std::uint32_t i = n; i-- > 1;)
                std::swap(rows[i], rows[random_.below(i + 1)]);
        if (kind >= 90 && target_.family->content == Content::Solving) { // not a permutation
            const std::uint32_t place = random_.below(n);
            rows[place] = random_.below(n);
        }
    }

    bool followsNull(std::size_t entry) const {
        return target_.family->followsNull && target_.family->followsNull(case_.call, entry);
    }

    // A size below 0 is followed by no other: the model's order of checks has them after the pointers.
    void drawNegatives() {
        if (!target_.family->isSigned)
            return;
        for (std::size_t p = 0; p < target_.signature.size(); ++p) {
            const Kind kind = target_.signature[p].kind;
            const bool here = random_.chance(4), least = random_.chance(30);
            const std::uint32_t negative = least ? 0x80000000u : 0u - 1 - random_.below(1000);
            if (here && (kind == Kind::Dimension || kind == Kind::Count) &&
                target_.family->isSigned(target_.cell, target_.signature[p]))
                case_.call.passed[p].size = negative;
        }
    }

    bool isTested(const Placement &o, std::size_t entry) const {
        const auto tested = target_.family->entriesTested;
        return !tested || o.perObject || entry < tested(case_.call, target_.signature[o.parameter]);
    }

    void drawNulls() {
        const bool arguments = random_.chance(12), entries = random_.chance(12);
        if (entries)
            for (const Placement &o : case_.operands) {
                const bool here = random_.chance(50);
                const std::uint32_t entry = random_.below(static_cast<std::uint32_t>(o.entries.size() + 1));
                if (here && entry < o.entries.size() && !followsNull(entry) && isTested(o, entry))
                    zelmref::writeWord(passed(o).base + entry * sizeof(void *), nullEntry(o));
            }
        if (!arguments)
            return;
        for (std::size_t p = 0; p < target_.signature.size(); ++p) {
            const Kind kind = target_.signature[p].kind;
            Passed &passed = case_.call.passed[p];
            if (!random_.chance(25))
                continue;
            if (kind == Kind::Dimension || (kind == Kind::Count && !readsEntryBefore()))
                passed.size = 0;
            else if (kind != Kind::Constant && kind != Kind::Count && !target_.family->testsNoPointer)
                passed.base = 0;
        }
    }

    std::uintptr_t nullEntry(const Placement &o) {
        const auto shift = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(passed(o).shift));
        return target_.family->addsShiftBeforeNullTest ? 0 - shift : 0;
    }

    const Target &target_;
    Arena &arena_;
    Case &case_;
    Random random_;
    std::int64_t size_;
    Overlap overlap_;
    Relation relation_ = Relation::Apart;
    bool halfSteps_ = false, sixteens_ = false;
};

} // namespace

std::size_t Case::elementCount() const {
    std::size_t count = 0;
    for (const Placement &o : operands)
        count += static_cast<std::size_t>(o.objects) * o.rows * o.columns;
    return count;
}

void makeCase(const Target &target, std::uint64_t seed, std::uint64_t number, Arena &arena, Case &result) {
    Maker(target, seed, number, arena, result).make();
}

} // namespace zelmtest
