// Arrays at strides whose objects lie over each other, between each other, or at strides that make the layout
// a plainer one; each object is finished before the next is read.
#include "batch_case.h"

#include <gtest/gtest.h>

namespace zelmtest {
namespace {

using zelmref::Layout;

const std::vector<Layout> strided = {Layout::Standard, Layout::S2};
const std::vector<Layout> withElemStride = {Layout::S2};
const std::vector<Layout> all = {Layout::Standard, Layout::S2, Layout::P,
                                 Layout::PS2,      Layout::L,  Layout::LS2};

bool isStrided(const Placement &o) {
    return !o.table && !o.packed;
}

// One that has an object for each of dst.
bool isInArray(Batch &b, const Placement &o) {
    return isStrided(o) && o.array == b.dst().array;
}

std::int64_t moved(Batch &b) {
    constexpr std::int64_t distances[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 63, 64};
    const std::int64_t by = distances[b.random().below(std::size(distances))];
    return b.random().chance(50) ? by : -by;
}

// As drawn: no operand over another, each against a guard page or at any alignment.
bool apart(Batch &) {
    return true;
}

bool inPlace(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isStrided(b.dst()) || !b.mayCoincide(*s))
        return false;
    b.lieLike(b.dst(), *s);
    return true;
}

bool allSourcesInPlace(Batch &b) {
    if (!inPlace(b))
        return false;
    for (std::size_t n = 0; n < b.sourceCount(); ++n) {
        Placement &s = b.source(n);
        if (s.array && s.rows == b.dst().rows && s.columns == b.dst().columns && b.mayCoincide(s))
            b.lieLike(s, b.dst());
    }
    return true;
}

bool sourcesObjectsFurtherOn(Batch &b) {
    Placement *s = b.sourceThatDstMayMeet();
    if (!s || !isStrided(b.dst()) || !isStrided(*s) || s->rows != b.dst().rows ||
        s->columns != b.dst().columns)
        return false;
    b.packTightly(*s);
    b.lieLike(b.dst(), *s);
    b.dst().origin = s->origin + moved(b) * s->obj;
    return true;
}

bool shiftedByElements(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isStrided(b.dst()) || !b.mayLieAnywhere(*s))
        return false;
    if (b.random().chance(70) && s->rows == b.dst().rows && s->columns == b.dst().columns)
        b.lieLike(b.dst(), *s);
    b.dst().slab = s->slab;
    b.dst().origin = s->origin + b.size() * b.random().between(-12, 12);
    return true;
}

// The same memory, once by rows and once by columns.
bool rowsOverColumns(Batch &b) {
    Placement *s = b.anySource();
    Placement &d = b.dst();
    if (!s || !isStrided(d) || !b.mayLieAnywhere(*s) || d.rows == 1 || s->rows != d.rows ||
        s->columns != d.columns)
        return false;
    b.packTightly(*s);
    b.lieLike(d, *s);
    Placement &other = b.random().chance(50) ? d : *s;
    other.elem = b.size() * other.rows;
    other.row = b.size();
    return true;
}

bool record(Batch &b, bool backwards) {
    std::int64_t bytes = 0;
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); isInArray(b, o))
            bytes += b.objectBytes(o);
    if (!isStrided(b.dst()))
        return false;
    bytes += b.size() * b.random().between(0, 2);
    std::int64_t at = 0;
    for (std::size_t n = 0; n <= b.sourceCount(); ++n) {
        Placement &o = b.source(n);
        if (!isInArray(b, o))
            continue;
        o.slab = b.dst().slab;
        o.obj = backwards ? -bytes : bytes;
        o.origin = at + std::max<std::int64_t>(0, -o.row) * (o.rows - 1) +
                   std::max<std::int64_t>(0, -o.elem) * (o.columns - 1);
        at += b.objectBytes(o);
    }
    return true;
}

bool inOneRecord(Batch &b) {
    return record(b, false);
}
bool inOneRecordBackwards(Batch &b) {
    return record(b, true);
}

// A record that is too short by one element: the last field of one lies over the first of the next.
bool inRecordsThatOverlap(Batch &b) {
    for (std::size_t n = 0; n < b.sourceCount(); ++n)
        if (Placement &s = b.source(n); isInArray(b, s) && !b.mayLieAnywhere(s))
            return false;
    if (!record(b, false))
        return false;
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); isInArray(b, o))
            o.obj -= b.size() * 3;
    return true;
}

bool allResultsInOnePlace(Batch &b) {
    if (!isStrided(b.dst()))
        return false;
    b.dst().obj = 0;
    return true;
}

bool resultsOverlapTheNext(Batch &b) {
    if (!isStrided(b.dst()))
        return false;
    b.dst().obj = b.size() * b.random().between(1, b.objectBytes(b.dst()) / b.size());
    if (b.random().chance(30))
        b.dst().obj = -b.dst().obj;
    return true;
}

bool oneSourceForAll(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !isStrided(*s))
        return false;
    s->obj = 0;
    return true;
}

bool oneSourceForAllInPlace(Batch &b) {
    Placement *s = b.anySource();
    if (!s || !inPlace(b) || b.dst().slab != s->slab || !b.mayLieAnywhere(*s))
        return false;
    s->obj = 0;
    if (b.random().chance(50))
        b.dst().obj = 0;
    return true;
}

bool backwards(Batch &b) {
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); isInArray(b, o)) {
            if (b.random().chance(60))
                o.obj = -o.obj;
            if (b.random().chance(60))
                o.row = -o.row;
            if (o.layout == Layout::S2 && b.random().chance(60))
                o.elem = -o.elem;
        }
    return true;
}

// Rows of dst that overlap each other, or are all the same; likewise its elements.
bool resultsOwnRowsOverlap(Batch &b) {
    Placement &d = b.dst();
    if (!isStrided(d) || !b.coincidingElementsAreDefined())
        return false;
    if (d.rows > 1 && b.random().chance(70))
        d.row = b.size() * b.random().between(0, d.columns - 1);
    else if (d.layout == Layout::S2)
        d.elem = b.size() * b.random().between(0, 1);
    return true;
}

bool elemStrideIsTheSize(Batch &b) {
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); !o.packed) {
            o.elem = b.size();
            o.row = o.rows == 1 ? 0 : b.size() * (o.columns + b.random().below(3));
            if (!o.table)
                o.obj = b.objectBytes(o) + b.size() * b.random().below(2);
        }
    return true;
}

bool columnByColumn(Batch &b) {
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); !o.packed && o.rows > 1) {
            o.row = b.size();
            o.elem = b.size() * o.rows;
            o.obj = b.objectBytes(o);
        }
    return b.dst().rows > 1 || b.source(0).rows > 1;
}

// The same element of all objects together.
bool planes(Batch &b) {
    for (std::size_t n = 0; n <= b.sourceCount(); ++n)
        if (Placement &o = b.source(n); isInArray(b, o) && b.random().chance(80)) {
            o.obj = b.size();
            o.elem = b.size() * b.count();
            o.row = o.rows == 1 ? 0 : o.elem * o.columns;
        }
    return true;
}

bool oneOperandSpreadOut(Batch &b) {
    if (!elemStrideIsTheSize(b))
        return false;
    Placement &o = b.source(b.random().below(static_cast<std::uint32_t>(b.sourceCount() + 1)));
    if (o.packed)
        return false;
    o.elem *= 2;
    o.row *= 2;
    o.obj *= 2;
    return true;
}

bool numbersOverASource(Batch &b) {
    Placement *s = b.anySource();
    if (!s || isStrided(b.dst()) || b.dst().table || !isStrided(*s) || !b.mayLieAnywhere(*s))
        return false;
    b.dst().slab = s->slab;
    const std::int64_t object = b.random().below(b.count());
    b.dst().origin = s->origin + object * s->obj + b.size() * b.random().between(-9, 9);
    return true;
}

bool overTheInvariant(Batch &b) {
    Placement *s = b.invariantSource();
    if (!s || !isStrided(b.dst()) || !b.mayLieAnywhere(*s))
        return false;
    b.dst().slab = s->slab;
    b.dst().origin =
        s->origin - b.dst().obj * b.random().below(b.count()) + b.size() * b.random().between(-2, 2);
    return true;
}

bool resultsAreTheInvariant(Batch &b) {
    if (!overTheInvariant(b))
        return false;
    b.dst().obj = 0;
    b.dst().origin = b.invariantSource()->origin;
    return true;
}

const Arrangement arrangements[] = {
    {"Apart", strided, apart},
    {"InPlace", strided, inPlace},
    {"AllSourcesInPlace", strided, allSourcesInPlace},
    {"SourcesObjectsFurtherOn", strided, sourcesObjectsFurtherOn, 2},
    {"ShiftedByElements", strided, shiftedByElements},
    {"RowsOverColumns", withElemStride, rowsOverColumns},
    {"InOneRecord", strided, inOneRecord},
    {"InOneRecordBackwards", strided, inOneRecordBackwards},
    {"InRecordsThatOverlap", strided, inRecordsThatOverlap},
    {"AllResultsInOnePlace", strided, allResultsInOnePlace},
    {"ResultsOverlapTheNext", strided, resultsOverlapTheNext},
    {"OneSourceForAll", strided, oneSourceForAll},
    {"OneSourceForAllInPlace", strided, oneSourceForAllInPlace},
    {"Backwards", strided, backwards},
    {"ResultsOwnRowsOverlap", strided, resultsOwnRowsOverlap},
    {"Planes", withElemStride, planes},
    {"NumbersOverASource", strided, numbersOverASource},
    {"OverTheInvariant", strided, overTheInvariant},
    {"ResultsAreTheInvariant", strided, resultsAreTheInvariant},
    {"DimensionsDisagree", all, apart, 1, true},
};

// Run-time products of one object: dst over a source, over its own rows.
const Arrangement products[] = {
    {"Apart", all, apart, 1, false, true},
    {"SizesDisagree", all, apart, 1, true, true},
    {"InPlace", strided, inPlace, 1, false, true},
    {"ShiftedByElements", strided, shiftedByElements, 1, false, true},
    {"RowsOverColumns", withElemStride, rowsOverColumns, 1, false, true},
    {"Backwards", strided, backwards, 1, false, true},
    {"ResultsOwnRowsOverlap", strided, resultsOwnRowsOverlap, 1, false, true},
    {"ElemStrideIsTheSize", withElemStride, elemStrideIsTheSize, 1, false, true},
    {"ColumnByColumn", withElemStride, columnByColumn, 1, false, true},
};

class BatchOfOneProduct : public testing::TestWithParam<Arrangement> {};

TEST_P(BatchOfOneProduct, EqualsTheModel) {
    expectTheModel(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, BatchOfOneProduct, testing::ValuesIn(products),
                         [](const auto &test) { return std::string(test.param.name); });

class BatchStrides : public testing::TestWithParam<Arrangement> {};

TEST_P(BatchStrides, EqualTheModel) {
    expectTheModel(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, BatchStrides, testing::ValuesIn(arrangements),
                         [](const auto &test) { return std::string(test.param.name); });

const std::vector<Layout> exchanged = {Layout::S2, Layout::LS2};

const Arrangement plainer[] = {
    {"ElemStrideIsTheSize", exchanged, elemStrideIsTheSize},
    {"ColumnByColumn", withElemStride, columnByColumn},
    {"OneOperandSpreadOut", exchanged, oneOperandSpreadOut},
    {"EveryLayoutAgainstItsGuardPages", all, apart},
};

class BatchPlainest : public testing::TestWithParam<Arrangement> {};

TEST_P(BatchPlainest, EqualTheModel) {
    expectTheModel(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, BatchPlainest, testing::ValuesIn(plainer),
                         [](const auto &test) { return std::string(test.param.name); });

} // namespace
} // namespace zelmtest
