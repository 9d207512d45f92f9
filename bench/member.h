// The functions that are measured, as bench/members.py writes them from the catalogue.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zelmbench {

// Where the objects of one operand lie.
enum class Arrangement { Adjacent, Planes, List };

struct OperandKind {
    const char *name; // "src", "src1", "src2", "src3" or "dst"
    char shape;       // 'v' vector, 'm' matrix, 's' one number
    bool isArray;     // one object for each of the call's, not the same for all
    Arrangement arrangement;
    bool isStrided;
};

enum class ArgumentKind {
    Pointer,
    Table,
    Shift,
    ObjStride,
    RowStride,
    ElemStride,
    Constant,
    Dimension,
    Count,
    PivotIndex,
    Scratch
};

struct Argument {
    ArgumentKind kind;
    std::size_t number; // of the operand, or of the constant
};

union Value {
    const void *pointer;
    std::int32_t word;
    float f32;
    double f64;
};

using AnyFunction = void (*)();

struct Member {
    const char *name, *family, *descriptor;
    std::size_t elementBytes;
    std::size_t n; // length or order in the name; 0 in run-time forms
    bool isArray;  // one call serves all objects
    bool departs;  // writes other values than its row
    const OperandKind *operands;
    std::size_t operandCount;
    const Argument *arguments;
    std::size_t argumentCount;
    // Calls `function` so many times, with the values in the order of the arguments, call after call.
    void (*callEach)(AnyFunction function, const Value *values, std::size_t times);
};

extern const Member members[];
extern const std::size_t memberCount;

} // namespace zelmbench
