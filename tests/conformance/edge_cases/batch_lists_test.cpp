// Lists whose entries lie over each other: inside one group, one group apart, over the border of a stretch,
// in any order; each object is finished before the next is read.
#include "batch_case.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zelmtest {
namespace {

using zelmref::Layout;

const std::vector<Layout> lists = {Layout::L, Layout::LS2};

// Distances of objects that lie in one group, in the next, or over the border of a stretch of entries.
std::uint32_t distance(Batch &b) {
    constexpr std::uint32_t distances[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 63, 64, 65};
    return distances[b.random().below(std::size(distances))];
}

// Objects at the ends of groups and stretches.
std::uint32_t place(Batch &b) {
    constexpr std::uint32_t places[] = {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 62, 63, 64, 65, 128};
    const std::uint32_t at = places[b.random().below(std::size(places))];
    return at < b.count() ? at : b.random().below(b.count());
}

void ascend(Batch &b, Placement &o) {
    for (std::uint32_t k = 0; k < o.objects; ++k)
        o.entries[k] = k * b.objectBytes(o);
}

bool writesList(Batch &b) {
    return b.dst().perObject;
}

// ---- results over each other

bool resultsAscend(Batch &b) {
    if (!writesList(b))
        return false;
    ascend(b, b.dst());
    return true;
}

bool resultsDescend(Batch &b) {
    if (!resultsAscend(b))
        return false;
    std::reverse(b.dst().entries.begin(), b.dst().entries.end());
    return true;
}

bool resultsAllCoincide(Batch &b) {
    if (!writesList(b))
        return false;
    std::fill(b.dst().entries.begin(), b.dst().entries.end(), 0);
    return true;
}

bool resultsOverlapTheNext(Batch &b) {
    if (!writesList(b) || b.objectBytes(b.dst()) <= b.size())
        return false;
    const std::int64_t elements = b.objectBytes(b.dst()) / b.size();
    const std::int64_t slot = b.size() * b.random().between(1, elements - 1);
    for (std::uint32_t k = 0; k < b.count(); ++k)
        b.dst().entries[k] = k * slot;
    if (b.random().chance(40))
        std::reverse(b.dst().entries.begin(), b.dst().entries.end());
    return true;
}

bool twoResultsCoincide(Batch &b) {
    const std::uint32_t to = place(b), apart = distance(b);
    if (!writesList(b) || to < apart)
        return false;
    b.dst().entries[to] = b.dst().entries[to - apart];
    return true;
}

bool twoResultsOverlap(Batch &b) {
    const std::uint32_t to = place(b), apart = distance(b);
    if (!writesList(b) || to < apart)
        return false;
    b.dst().entries[to] = b.dst().entries[to - apart] + b.size() * (b.random().chance(50) ? 1 : -1);
    return true;
}

bool resultsCoincideOverTheBorder(Batch &b) {
    if (!writesList(b))
        return false;
    auto &entries = b.dst().entries;
    const std::uint32_t from = 60 + b.random().below(4), to = 64 + b.random().below(b.count() - 64);
    entries[to] = entries[from];
    if (b.random().chance(50)) {
        entries[64] = entries[63];
        entries[65] = entries[62];
    }
    return true;
}

bool neighboursExchangePlaces(Batch &b) {
    if (!resultsAscend(b))
        return false;
    const std::uint32_t k = b.random().below(b.count());
    if (k + 1 < b.count())
        std::swap(b.dst().entries[k], b.dst().entries[k + 1]);
    return true;
}

// ---- results over sources

bool inPlace(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !writesList(b) || !b.mayCoincide(*s))
        return false;
    b.lieLike(b.dst(), *s);
    return true;
}

bool inPlaceButOne(Batch &b) {
    Placement *s = b.anySource();
    const std::uint32_t a = place(b), c = place(b);
    if (!s || !writesList(b) || !b.mayCoincide(*s) || !b.mayMove(*s))
        return false;
    b.lieLike(b.dst(), *s);
    std::swap(b.dst().entries[a], b.dst().entries[c]);
    return true;
}

bool sourcesObjectsFurtherOn(Batch &b) {
    Placement *s = b.sourceThatDstMayMeet();
    const std::uint32_t move = distance(b);
    if (!s || !s->perObject || !writesList(b) || s->rows != b.dst().rows || s->columns != b.dst().columns ||
        move % b.count() == 0)
        return false;
    b.lieLike(b.dst(), *s);
    const std::uint32_t by = b.random().chance(50) ? move % b.count() : b.count() - move % b.count();
    std::rotate(b.dst().entries.begin(), b.dst().entries.begin() + by, b.dst().entries.end());
    return true;
}

// One result where another object's source lies, or partly there; all others apart.
bool oneResultOver(Batch &b, bool partly) {
    Placement *s = b.sourceThatDstMayMeet();
    const std::uint32_t at = place(b);
    const std::int64_t apart = b.random().chance(60) ? distance(b) : -std::int64_t{distance(b)};
    const std::int64_t over = at + apart;
    if (!s || !s->perObject || !writesList(b) || over < 0 || over >= b.count())
        return false;
    Placement &d = b.dst();
    const std::int64_t bytes = b.objectBytes(*s) + b.objectBytes(d) + 4 * b.size();
    for (std::uint32_t k = 0; k < b.count(); ++k) {
        s->entries[k] = k * bytes;
        d.entries[k] = 1 << 17;
    }
    ascend(b, d);
    const std::int64_t behind = b.count() * bytes;
    for (std::int64_t &entry : d.entries)
        entry += behind;
    d.slab = s->slab;
    d.entries[at] = s->entries[static_cast<std::size_t>(over)] + (partly ? b.size() : 0);
    return true;
}

bool oneResultOverAnotherSource(Batch &b) {
    return oneResultOver(b, false);
}
bool oneResultPartlyOverAnotherSource(Batch &b) {
    return oneResultOver(b, true);
}

// Results that lie in the gaps between the sources, in one record with them.
bool inOneRecord(Batch &b) {
    if (!writesList(b))
        return false;
    std::int64_t record = 0;
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); o.perObject)
            record += b.objectBytes(o);
    std::int64_t at = 0;
    const bool backwards = b.random().chance(30);
    for (std::size_t n = 0; n <= b.sourceCount(); ++n) {
        Placement &o = b.source(n);
        if (!o.perObject)
            continue;
        o.slab = b.dst().slab;
        const std::int64_t below = std::max<std::int64_t>(0, -o.row) * (o.rows - 1) +
                                   std::max<std::int64_t>(0, -o.elem) * (o.columns - 1);
        for (std::uint32_t k = 0; k < o.objects; ++k)
            o.entries[k] = (backwards ? o.objects - 1 - k : k) * record + at + below;
        at += b.objectBytes(o);
    }
    return true;
}

bool anywhereOverASource(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !s->perObject || !writesList(b) || !b.mayLieAnywhere(*s))
        return false;
    b.dst().slab = s->slab;
    b.dst().origin = s->origin + b.size() * b.random().between(-20, 20);
    return true;
}

// ---- packed numbers over the list's objects

bool numbersOverAnObject(Batch &b) {
    Placement *s = b.anySource();
    if (!s || b.dst().table || !b.mayLieAnywhere(*s))
        return false;
    b.dst().slab = s->slab;
    b.dst().origin = s->origin + s->entries[place(b)] - b.size() * std::int64_t{place(b)} +
                     b.size() * b.random().between(-1, 1);
    return true;
}

// ---- what is the same for all objects

bool oneResultOverTheInvariant(Batch &b) {
    Placement *s = b.invariantSource();
    if (!s || !writesList(b) || !b.mayLieAnywhere(*s))
        return false;
    Placement &d = b.dst();
    d.slab = s->slab;
    ascend(b, d);
    const std::int64_t behind = 2 * b.objectBytes(*s) + 2 * b.objectBytes(d);
    for (std::int64_t &entry : d.entries)
        entry += behind;
    d.entries[place(b)] = b.size() * b.random().between(0, 1);
    return true;
}

const Arrangement arrangements[] = {
    {"ResultsAscend", lists, resultsAscend},
    {"ResultsDescend", lists, resultsDescend},
    {"ResultsAllCoincide", lists, resultsAllCoincide},
    {"ResultsOverlapTheNext", lists, resultsOverlapTheNext},
    {"TwoResultsCoincide", lists, twoResultsCoincide, 2},
    {"TwoResultsOverlap", lists, twoResultsOverlap, 2},
    {"ResultsCoincideOverTheBorder", lists, resultsCoincideOverTheBorder, 66},
    {"NeighboursExchangePlaces", lists, neighboursExchangePlaces, 2},
    {"InPlace", lists, inPlace},
    {"InPlaceButOne", lists, inPlaceButOne, 2},
    {"SourcesObjectsFurtherOn", lists, sourcesObjectsFurtherOn, 2},
    {"OneResultOverAnotherSource", lists, oneResultOverAnotherSource, 2},
    {"OneResultPartlyOverAnotherSource", lists, oneResultPartlyOverAnotherSource, 2},
    {"InOneRecord", lists, inOneRecord},
    {"AnywhereOverASource", lists, anywhereOverASource},
    {"NumbersOverAnObject", lists, numbersOverAnObject},
    {"OneResultOverTheInvariant", lists, oneResultOverTheInvariant},
};

class BatchLists : public testing::TestWithParam<Arrangement> {};

TEST_P(BatchLists, EqualTheModel) {
    expectTheModel(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, BatchLists, testing::ValuesIn(arrangements),
                         [](const auto &test) { return std::string(test.param.name); });

} // namespace
} // namespace zelmtest
