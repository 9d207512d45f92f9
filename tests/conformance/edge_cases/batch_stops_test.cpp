// Where an array form ends before its last object: null entries at every place of a group or stretch, objects
// that fail before and after them; and results that overwrite what later objects are read by: tables,
// pivotIndex.
#include "batch_case.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace zelmtest {
namespace {

using zelmref::Layout;

const std::vector<Layout> lists = {Layout::L, Layout::LS2}, tables = {Layout::P, Layout::PS2};
const std::vector<Layout> all = {Layout::Standard, Layout::S2, Layout::P,
                                 Layout::PS2,      Layout::L,  Layout::LS2};

std::uint32_t place(Batch &b) {
    constexpr std::uint32_t places[] = {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 62, 63, 64, 65, 128};
    const std::uint32_t at = places[b.random().below(std::size(places))];
    return at < b.count() ? at : b.count() - 1;
}

Placement *anyTable(Batch &b) {
    Placement &o = b.source(b.random().below(static_cast<std::uint32_t>(b.sourceCount() + 1)));
    return o.table ? &o : nullptr;
}

// An entry that is null for the function, where it stops there.
bool addNull(Batch &b, const Placement &o, std::uint32_t entry) {
    const zelmref::Family &family = *b.target().family;
    if (o.perObject ? entry >= b.count() : entry >= o.entries.size())
        return false;
    if (b.followsNull(o, entry))
        return false;
    if (family.addsShiftBeforeNullTest)
        b.nullByShift(o, entry);
    else
        b.nullEntry(o, entry);
    return true;
}

bool nullEntry(Batch &b) {
    const Placement *o = anyTable(b);
    return o && o->perObject && addNull(b, *o, place(b));
}

bool nullEntryOfAPosition(Batch &b) {
    const Placement *o = anyTable(b);
    return o && !o->perObject &&
           addNull(b, *o, b.random().below(static_cast<std::uint32_t>(o->entries.size())));
}

bool twoNullEntries(Batch &b) {
    const Placement *o = anyTable(b), *other = anyTable(b);
    return o && other && o->perObject && other->perObject && addNull(b, *o, place(b)) &&
           addNull(b, *other, place(b));
}

// A null entry with a shift that leads to memory. Who tests entries stops there; who tests entry and shift
// together, or nothing, computes the object.
bool shiftFromNull(Batch &b) {
    const Placement *o = anyTable(b);
    if (!o || !o->perObject)
        return false;
    b.shiftFromNull(*o, place(b));
    return true;
}

bool canFail(Batch &b) {
    const std::string_view operation = b.target().cell.operation;
    return operation == "LUDecomp" || operation == "QRDecomp" || operation == "Invert" ||
           operation == "CholeskyDecomp" || operation == "Det";
}

bool oneObjectFails(Batch &b) {
    if (!canFail(b))
        return false;
    b.zeroObject(b.source(0), place(b));
    return true;
}

bool twoObjectsFail(Batch &b) {
    if (!oneObjectFails(b))
        return false;
    b.zeroObject(b.source(0), place(b));
    return true;
}

bool objectFailsByANullEntry(Batch &b) {
    const std::uint32_t null = place(b);
    const std::int64_t at = null + b.random().between(-4, 4);
    if (!canFail(b) || at < 0 || at >= b.count())
        return false;
    const Placement *o = anyTable(b);
    b.zeroObject(b.source(0), static_cast<std::uint32_t>(at));
    return o && o->perObject && addNull(b, *o, null);
}

bool objectFailsInPlace(Batch &b) {
    Placement *s = b.anySource();
    if (!canFail(b) || !s || !b.mayCoincide(*s))
        return false;
    b.lieLike(b.dst(), *s);
    b.zeroObject(b.source(0), place(b));
    return true;
}

// ---- results over tables

bool givesZeros(Batch &b) {
    const zelmref::Cell &cell = b.target().cell;
    constexpr std::string_view operations[] = {"Add",   "Sub",        "Mul",   "Saxpy",
                                               "LComb", "DotProduct", "Gaxpy", "Trace"};
    const auto &family = *b.target().family;
    return std::count(std::begin(operations), std::end(operations), cell.operation) &&
           !(family.looksAtAddresses && family.looksAtAddresses(cell)) &&
           !(family.countsZeroAsOne && family.countsZeroAsOne(cell));
}

// Results are +0, and one comes over the entries of objects further on: those are null then.
bool resultsOverAList(Batch &b) {
    Placement *s = anyTable(b);
    Placement &d = b.dst();
    const auto pointer = static_cast<std::int64_t>(sizeof(void *));
    if (!s || !s->perObject || !givesZeros(b) || b.followsNull(*s, 0))
        return false;
    b.packTightly(d);
    if (d.table && b.objectBytes(d) < pointer)
        return false;
    b.zeroEverything();
    b.keepRoomAtTable(*s);
    const std::uint32_t first = 3 + b.random().below(b.count() - 3);
    const std::int64_t over = b.tableOffset(*s) + pointer * first;
    d.slab = b.tableSlab(*s);
    if (!d.table) {
        d.obj = b.size();
        d.origin = over;
        return true;
    }
    for (std::int64_t &entry : d.entries)
        entry += 1 << 13;
    d.entries[b.random().below(first)] = over;
    return true;
}

// ---- pivotIndex

// A solution of zeros over the rows of later systems. Right sides of zeros and positive factors make +0.
bool solutionsOverPivots(Batch &b) {
    Placement &d = b.dst();
    if (b.target().cell.operation != "LUBackSubst" || b.sourceCount() < 2 || (d.table && !d.perObject))
        return false;
    const Placement &right = b.source(1);
    const std::uint32_t n = d.columns, ahead = 1 + b.random().below(std::min(5u, b.count() - 1));
    b.clearSigns();
    b.packTightly(d);
    if (d.perObject) { // one of them
        for (std::int64_t &entry : d.entries)
            entry += 1 << 13;
        const std::uint32_t k = b.random().below(b.count() - ahead);
        const bool shared = !b.source(0).array;
        d.entries[k] = shared ? 0 : 4 * std::int64_t{n} * (k + ahead);
        b.zeroObject(right, k);
        b.besidePivots(d, 0);
        return true;
    }
    if (!b.source(0).array)
        return false;
    for (std::uint32_t k = 0; k + ahead < b.count(); ++k)
        b.zeroObject(right, k);
    b.besidePivots(d, 4 * std::int64_t{n} * ahead);
    return true;
}

// The rows of earlier decompositions over the last matrix.
bool pivotsOverTheLastSource(Batch &b) {
    Placement &s = b.source(0);
    if (b.target().cell.operation != "LUDecomp" || (s.table && !s.perObject))
        return false;
    b.packTightly(s);
    if (s.perObject && b.random().chance(50))
        std::reverse(s.entries.begin(), s.entries.end() - 1);
    const std::uint32_t last = b.count() - 1, block = 4 * s.rows;
    const std::int64_t object = b.objectBytes(s);
    // Block number `last` lies behind the matrix.
    if (object > std::int64_t{block} * last)
        return false;
    b.pivotsOver(s, object * last);
    return true;
}

// The rows of later decompositions over an earlier result.
bool pivotsOverAnEarlierResult(Batch &b) {
    Placement &d = b.dst();
    if (b.target().cell.operation != "LUDecomp" || (d.table && !d.perObject))
        return false;
    b.packTightly(d);
    // Block k lies in front of result k from k = 1 on, and block 0 behind all of them but one.
    const std::int64_t block = 4 * std::int64_t{d.rows}, object = b.objectBytes(d);
    if (object < block)
        return false;
    b.pivotsOver(d, -block);
    return true;
}

const Arrangement arrangements[] = {
    {"NullEntry", lists, nullEntry},
    {"TwoNullEntries", lists, twoNullEntries},
    {"NullEntryOfAPosition", tables, nullEntryOfAPosition},
    {"OneObjectFails", all, oneObjectFails},
    {"TwoObjectsFail", all, twoObjectsFail, 2},
    {"ObjectFailsByANullEntry", lists, objectFailsByANullEntry},
    {"ObjectFailsInPlace", all, objectFailsInPlace},
    {"ShiftFromNull", lists, shiftFromNull},
    {"ResultsOverAList", lists, resultsOverAList, 4},
    {"SolutionsOverPivots", all, solutionsOverPivots, 2},
    {"PivotsOverTheLastSource", all, pivotsOverTheLastSource, 2},
    {"PivotsOverAnEarlierResult", all, pivotsOverAnEarlierResult, 2},
};

class BatchStops : public testing::TestWithParam<Arrangement> {};

TEST_P(BatchStops, EqualTheModel) {
    expectTheModel(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, BatchStops, testing::ValuesIn(arrangements),
                         [](const auto &test) { return std::string(test.param.name); });

} // namespace
} // namespace zelmtest
