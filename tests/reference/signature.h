// What a function takes: its parameters in order, and the C arguments that each of them becomes in a layout.
#pragma once

#include "cell.h"

#include <string>
#include <vector>

namespace zelmref {

enum class Kind { Vector, Matrix, Constant, Result, Packed, PivotIndex, Scratch, Dimension, Count };

// A parameter of a function. An operand without `array` in a function with arrays is the invariant one.
// `rows` and `columns` name the dimensions of the operand as it is stored; a fixed size stands for all of
// them.
struct Parameter {
    std::string name;
    Kind kind;
    bool array = false;
    std::string rows, columns;
    bool unreadObjStride = false; // an ObjStride is passed although the operand is invariant
    bool anyByte = false;         // its address need not be a multiple of its element's alignment
};

using Signature = std::vector<Parameter>;

Parameter vector(std::string name, bool array, std::string length = "len");
Parameter matrix(std::string name, bool array, std::string height = "n", std::string width = "n");
Parameter constant(std::string name);
Parameter pivotIndex(bool array);
Parameter scratch();
Parameter result(bool array);                                        // dst, one number per object
Parameter packed(bool array, std::string height, std::string width); // dst, whole objects without a gap
Parameter dimension(std::string name);
Parameter objectCount();

enum class Part { Base, Table, Shift, ObjStride, RowStride, ElemStride, Value };

struct CArgument {
    std::size_t parameter; // index into the signature
    Part part;
    std::string name;
};

// The layout of one operand.
Layout layoutOf(const Cell &cell, const Parameter &parameter);

// Does the operand come as a table of pointers in this cell?
bool hasTable(const Cell &cell, const Parameter &parameter);

// The argument list of the C function. Dimensions of a fixed size and the count of a single object are not in
// a signature, so nothing is left out here.
std::vector<CArgument> argumentList(const Cell &cell, const Signature &signature);

} // namespace zelmref
