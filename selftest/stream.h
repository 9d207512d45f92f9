// The fixed stream of calls that a fingerprint is taken of: what each call gets, and where it lies. Nothing
// in it depends on the compiler, the pointer size or where the memory is, but for its offset from a multiple
// of 64.
#pragma once

#include "grid_table.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace zelmtest {

// One operand in memory: element e of row i of object k lies at `origin` plus offset().
struct StreamOperand {
    const char *name = "";
    bool table = false, perObject = false; // a table has an entry for each object, or for each position
    std::uint32_t objects = 1, rows = 1, columns = 1;
    std::int64_t obj = 0, row = 0, elem = 0;
    std::vector<std::int64_t> entries; // where a table's entries lead to, from the origin
    std::int32_t shift = 0;
    unsigned char *origin = nullptr;
    std::int64_t low = 0, high = 0; // the bytes of all elements, from the origin

    std::int64_t offset(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        if (table && !perObject)
            return entries[static_cast<std::size_t>(i) * columns + j] + k * obj;
        return (table ? entries[k] : k * obj) + i * row + j * elem;
    }
};

// What a call of the stream is about.
enum class Aim { Numbers, InPlace, NullPointer, NullEntry, Zero };

struct StreamCall {
    const Function *function = nullptr;
    std::size_t number = 0;
    Aim aim = Aim::Numbers;
    std::size_t argument = 0;  // InPlace: the source that dst is; else the argument that is null or zero
    std::size_t nullEntry = 0; // NullEntry: which one
    std::vector<Value> values; // the arguments
};

class Stream {
public:
    Stream();

    // At most 64.
    static std::size_t callCount(const Function &function);

    // Lays out a call. It is valid, and its memory untouched, until restore().
    const StreamCall &make(const Function &function, std::size_t number);

    // Adds what the call has returned and written to a hash: the status, the bytes of the destination and
    // around it, taken as elements, every NaN as the same, and pivotIndex.
    std::uint64_t digest(std::uint64_t hash, ZelmStatus status) const;

    // Puts all memory back as it was before make().
    void restore();

    // Is it a byte of the stream's memory?
    bool holds(std::uintptr_t address) const;

private:
    struct Plan;

    void addOperands(const Plan &plan);
    void layOut(StreamOperand &o, const Plan &plan, std::size_t index);
    void makeEntries(StreamOperand &o, const Plan &plan, std::size_t index, bool hasObjStride);
    void measure(StreamOperand &o) const;
    void fill(const StreamOperand &o, Plan &plan);
    void passArguments(Plan &plan);
    Value valueOf(std::size_t n, ArgumentKind kind);
    void *makePivots(Plan &plan);
    void spoilArgument();

    std::unique_ptr<unsigned char[]> memory_, pristine_;
    unsigned char *arena_ = nullptr;
    StreamCall call_;
    std::size_t elementSize_ = 4;
    std::vector<StreamOperand> operands_; // the destination is the last
    std::vector<std::vector<std::uintptr_t>> tables_;
    std::size_t pivotBytes_ = 0;
};

} // namespace zelmtest
