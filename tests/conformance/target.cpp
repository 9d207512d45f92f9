#include "target.h"

#include <cstring>

namespace zelmtest {

using zelmref::Part;

Target targetOf(const Function &function) {
    Target target{&function,
                  zelmref::parseCell(function.operation, function.descriptor, function.type, function.size,
                                     function.layout),
                  nullptr,
                  {},
                  {}};
    target.family = zelmref::familyOf(target.cell);
    if (target.family)
        target.signature = target.family->signature(target.cell);
    target.arguments = zelmref::argumentList(target.cell, target.signature);
    return target;
}

std::vector<Value> valuesOf(const Target &target, const zelmref::Call &call) {
    std::vector<Value> values;
    values.reserve(target.arguments.size());
    for (const zelmref::CArgument &argument : target.arguments) {
        const zelmref::Passed &passed = call.passed[argument.parameter];
        Value value{};
        switch (argument.part) {
        case Part::Base:
        case Part::Table:
            value.pointer = reinterpret_cast<void *>(passed.base);
            break;
        case Part::Shift:
            value.word = passed.shift;
            break;
        case Part::ObjStride:
            value.word = passed.objStride;
            break;
        case Part::RowStride:
            value.word = passed.rowStride;
            break;
        case Part::ElemStride:
            value.word = passed.elemStride;
            break;
        case Part::Value:
            switch (target.signature[argument.parameter].kind) {
            case zelmref::Kind::Constant:
                // As integers: a float that passes through an x87 register loses a signalling NaN.
                std::memcpy(&value, &passed.bits, zelmref::elementSize(target.cell));
                break;
            case zelmref::Kind::Dimension:
            case zelmref::Kind::Count:
                value.size = passed.size;
                break;
            default:
                value.pointer = reinterpret_cast<void *>(passed.base);
            }
        }
        values.push_back(value);
    }
    return values;
}

} // namespace zelmtest
