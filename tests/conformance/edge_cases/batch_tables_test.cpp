// Operands behind tables of positions: planes in place, shifted, in each other, records; regular tables and
// any others.
#include "batch_case.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zelmtest {
namespace {

using zelmref::Layout;

const std::vector<Layout> planes = {Layout::P, Layout::PS2}, spread = {Layout::PS2};

bool isPlanes(const Placement &o) {
    return o.table && !o.perObject;
}

// Positions at a constant distance, in elements.
void regular(Batch &b, Placement &o, std::int64_t distance, std::int64_t objects) {
    o.obj = o.layout == Layout::P ? b.size() : objects * b.size();
    for (std::size_t e = 0; e < o.entries.size(); ++e)
        o.entries[e] = static_cast<std::int64_t>(e) * distance * b.size();
}

void regularPlanes(Batch &b, Placement &o) {
    regular(b, o, b.count(), 1);
}

bool isLike(const Placement &s, const Placement &d) {
    return isPlanes(s) && isPlanes(d) && s.array && s.entries.size() == d.entries.size() && s.rows == d.rows;
}

bool inPlace(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isPlanes(b.dst()) || !b.mayCoincide(*s))
        return false;
    b.lieLike(b.dst(), *s);
    return true;
}

bool shiftedByElements(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isLike(*s, b.dst()) || !b.mayLieAnywhere(*s))
        return false;
    b.lieLike(b.dst(), *s);
    constexpr std::int64_t distances[] = {-17, -16, -8, -5, -4, -3, -2, -1, 1, 2, 3, 4, 5, 8, 16, 17};
    b.dst().origin = s->origin + b.size() * distances[b.random().below(std::size(distances))];
    return true;
}

bool shiftedByPlanes(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isLike(*s, b.dst()) || !b.mayLieAnywhere(*s))
        return false;
    regularPlanes(b, *s);
    b.lieLike(b.dst(), *s);
    b.dst().origin = s->origin + b.size() * b.count() * b.random().between(-3, 3);
    return true;
}

bool positionsExchanged(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isLike(*s, b.dst()) || !b.mayLieAnywhere(*s))
        return false;
    b.lieLike(b.dst(), *s);
    auto &entries = b.dst().entries;
    if (b.random().chance(50))
        std::reverse(entries.begin(), entries.end());
    else
        std::rotate(entries.begin(), entries.begin() + 1, entries.end());
    return true;
}

// Every operand's planes begin inside of one another: element e of an object is an element of a later one.
bool planesLieInEachOther(Batch &b) {
    if (!isPlanes(b.dst()) || !b.coincidingElementsAreDefined())
        return false;
    const std::int64_t distance = b.random().between(0, std::max<std::int64_t>(1, b.count() - 1));
    regular(b, b.dst(), distance, b.random().between(1, 3));
    return true;
}

bool sourcePlanesLieInEachOther(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isPlanes(*s))
        return false;
    regular(b, *s, b.random().between(0, b.count()), b.random().between(0, 2));
    return true;
}

bool dstInsideASource(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isPlanes(*s) || !isPlanes(b.dst()) || !b.mayLieAnywhere(*s))
        return false;
    b.dst().slab = s->slab;
    const auto e = b.random().below(static_cast<std::uint32_t>(s->entries.size()));
    b.dst().origin = s->origin + s->entries[e] - b.dst().entries[0] + b.size() * b.random().between(-2, 2);
    return true;
}

bool objStrideIsTheSize(Batch &b) {
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); isPlanes(o))
            regular(b, o, b.count() + b.random().below(3), 1);
    return true;
}

bool objStrideIsTheSizeOfAllButOne(Batch &b) {
    if (!objStrideIsTheSize(b))
        return false;
    Placement &o = b.source(b.random().below(static_cast<std::uint32_t>(b.sourceCount() + 1)));
    if (!isPlanes(o))
        return false;
    regular(b, o, 2 * std::int64_t{b.count()}, b.random().chance(50) ? 2 : -1);
    return true;
}

bool allSourceObjectsInOnePlace(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isPlanes(*s))
        return false;
    s->obj = 0;
    return true;
}

bool allResultsInOnePlace(Batch &b) {
    if (!isPlanes(b.dst()))
        return false;
    b.dst().obj = 0;
    return true;
}

// All operands in one record an object; the positions side by side.
bool inOneRecord(Batch &b) {
    if (!isPlanes(b.dst()))
        return false;
    std::int64_t record = 0;
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); isPlanes(o) && o.array)
            record += static_cast<std::int64_t>(o.entries.size());
    record += b.random().between(0, 2);
    std::int64_t at = 0;
    const bool backwards = b.random().chance(30);
    for (std::size_t n = 0; n <= b.sourceCount(); ++n) {
        Placement &o = b.source(n);
        if (!isPlanes(o) || !o.array)
            continue;
        regular(b, o, 1, backwards ? -record : record);
        o.slab = b.dst().slab;
        o.origin = at * b.size();
        at += static_cast<std::int64_t>(o.entries.size());
    }
    return true;
}

// One position of dst lies far off in front of the others, or where another one is.
bool onePositionAstray(Batch &b) {
    Placement &d = b.dst();
    if (!isPlanes(d))
        return false;
    const auto e = b.random().below(static_cast<std::uint32_t>(d.entries.size()));
    const auto other = b.random().below(static_cast<std::uint32_t>(d.entries.size()));
    if (b.coincidingElementsAreDefined() && b.random().chance(60))
        d.entries[e] = d.entries[other] + b.size() * b.random().between(0, 1);
    else
        d.entries[e] = -b.size() * 3 * (std::int64_t{b.count()} + 3) -
                       5 * b.size() * static_cast<std::int64_t>(d.entries.size());
    return true;
}

bool numbersOverASource(Batch &b) {
    Placement *s = b.anySource();
    if (!s || b.dst().table || !isPlanes(*s) || !b.mayLieAnywhere(*s))
        return false;
    b.dst().slab = s->slab;
    const auto e = b.random().below(static_cast<std::uint32_t>(s->entries.size()));
    b.dst().origin = s->origin + s->entries[e] + b.size() * b.random().between(-9, 9);
    return true;
}

bool overTheInvariant(Batch &b) {
    Placement *s = b.invariantSource();
    if (!s || !isPlanes(*s) || !isPlanes(b.dst()) || !b.mayLieAnywhere(*s))
        return false;
    b.dst().slab = s->slab;
    const auto e = b.random().below(static_cast<std::uint32_t>(s->entries.size()));
    const auto f = b.random().below(static_cast<std::uint32_t>(b.dst().entries.size()));
    b.dst().origin =
        s->origin + s->entries[e] - b.dst().entries[f] - b.dst().obj * b.random().below(b.count());
    return true;
}

const Arrangement arrangements[] = {
    {"InPlace", planes, inPlace},
    {"ShiftedByElements", planes, shiftedByElements},
    {"ShiftedByPlanes", planes, shiftedByPlanes},
    {"PositionsExchanged", planes, positionsExchanged},
    {"PlanesLieInEachOther", planes, planesLieInEachOther},
    {"SourcePlanesLieInEachOther", planes, sourcePlanesLieInEachOther},
    {"DstInsideASource", planes, dstInsideASource},
    {"ObjStrideIsTheSize", spread, objStrideIsTheSize},
    {"ObjStrideIsTheSizeOfAllButOne", spread, objStrideIsTheSizeOfAllButOne},
    {"AllSourceObjectsInOnePlace", spread, allSourceObjectsInOnePlace},
    {"AllResultsInOnePlace", spread, allResultsInOnePlace},
    {"InOneRecord", spread, inOneRecord},
    {"OnePositionAstray", planes, onePositionAstray},
    {"NumbersOverASource", planes, numbersOverASource},
    {"OverTheInvariant", planes, overTheInvariant},
};

class BatchTables : public testing::TestWithParam<Arrangement> {};

TEST_P(BatchTables, EqualTheModel) {
    expectTheModel(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, BatchTables, testing::ValuesIn(arrangements),
                         [](const auto &test) { return std::string(test.param.name); });

} // namespace
} // namespace zelmtest
