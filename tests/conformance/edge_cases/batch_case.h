// Cases that lay the objects of array forms over each other in one named way, at counts around the sizes of
// groups, for every array form of the grid. The model says what must come of it.
#pragma once

#include "runner.h"

#include <ostream>
#include <vector>

namespace zelmtest {

// One case while it is being laid out.
class Batch {
public:
    Batch(const Target &target, Random &random, Arena &arena, Case &result, std::uint32_t count);

    Placement &dst() { return case_.operands.back(); }
    std::size_t sourceCount() const { return case_.operands.size() - 1; }
    Placement &source(std::size_t n) { return case_.operands[n]; }
    Placement *anySource();            // any that has an object for each of dst
    Placement *invariantSource();      // the one that is none
    Placement *sourceThatDstMayMeet(); // an array whose objects dst may coincide with, one by one or moved

    const Target &target() const { return target_; }
    Random &random() { return random_; }
    std::uint32_t count() const { return count_; }
    std::int64_t size() const { return size_; }
    zelmref::Overlap overlapWith(const Placement &source) const;
    bool mayLieAnywhere(const Placement &source) const {
        return overlapWith(source) == zelmref::Overlap::Any;
    }
    bool mayCoincide(const Placement &source) const;
    bool mayMove(const Placement &source) const; // dst's objects over others of the source's
    bool coincidingElementsAreDefined() const;   // of one object of dst

    std::int64_t objectBytes(const Placement &o) const;
    void lieLike(Placement &o, const Placement &model) const;
    // Dense objects behind each other.
    void packTightly(Placement &o) const;

    // Before the operands get their places: their table lies at the start, before other memory.
    void keepRoomAtTable(const Placement &o);
    std::int64_t tableOffset(const Placement &o) const;
    std::size_t tableSlab(const Placement &o) const;

    // All numbers +0, constants too.
    void zeroEverything() { zeros_ = true; }
    // No number below +0.
    void clearSigns() { positive_ = true; }
    // Object k of a source, all its elements +0.
    void zeroObject(const Placement &o, std::uint32_t k) { zeroObjects_.push_back({o.parameter, k}); }
    void nullEntry(const Placement &o, std::uint32_t entry) { nulls_.push_back({o.parameter, entry}); }
    // An entry that only its shift brings to null.
    void nullByShift(const Placement &o, std::uint32_t entry) {
        nullsByShift_.push_back({o.parameter, entry});
    }
    // A null entry that the shift brings to the place where its object lies.
    void shiftFromNull(const Placement &o, std::uint32_t entry) {
        shiftsFromNull_.push_back({o.parameter, entry});
    }
    bool followsNull(const Placement &o, std::uint32_t entry) const;

    // pivotIndex, its start so many bytes behind an operand's.
    void pivotsOver(const Placement &o, std::int64_t offset);
    // The operand beside pivotIndex, so many bytes behind its start.
    void besidePivots(Placement &o, std::int64_t offset);

    void drawSizes(bool disagree);
    void drawOperands();
    void finish();
    bool fits() const { return fits_; }

private:
    struct Entry {
        std::size_t parameter;
        std::uint32_t entry;
    };
    void drawShape(Placement &o);
    void drawTable(Placement &o);
    void measure(Placement &o) const;
    void place();
    void pass();
    void fill();
    void writeTables();
    void writeNumbers(Placement &o);
    void writePivots();
    void writeNulls();
    void addWindow(std::size_t slab, std::int64_t low, std::int64_t high);
    std::uintptr_t address(const Placement &o, std::int64_t offset) const;
    const Placement *placementOf(std::size_t parameter) const;

    const Target &target_;
    Random &random_;
    Arena &arena_;
    Case &case_;
    std::uint32_t count_;
    std::int64_t size_;
    bool zeros_ = false, positive_ = false, fits_ = true;
    bool pivotsPlaced_ = false;
    std::size_t pivotOperand_ = 0;
    std::int64_t pivotOffset_ = 0;
    std::vector<Entry> zeroObjects_, nulls_, nullsByShift_, shiftsFromNull_;
    std::vector<bool> tableHasRoom_;
};

// How a case is laid out: it changes what was drawn, or says that it has no such thing here.
using Arrange = bool (*)(Batch &batch);

// Of all array forms in these layouts.
struct Arrangement {
    const char *name;
    std::vector<zelmref::Layout> layouts;
    Arrange arrange;
    std::uint32_t leastCount = 1;
    bool sizesDisagree = false;  // only of rows whose dimensions can
    bool singleProducts = false; // not of array forms, but of run-time products of single objects
};
inline void PrintTo(const Arrangement &arrangement, std::ostream *out) {
    *out << arrangement.name;
}

void expectTheModel(const Arrangement &arrangement);

} // namespace zelmtest
