#include "model.h"

#include <cstring>

namespace zelmtest {

using zelmref::Overlap;
using zelmref::Part;
using zelmref::Passed;

zelmref::Call StreamModel::read(const StreamCall &made) const {
    zelmref::Call call{&target_.cell, &target_.signature, std::vector<Passed>(target_.signature.size())};
    for (std::size_t a = 0; a < target_.arguments.size(); ++a) {
        const Value &value = made.values[a];
        Passed &passed = call.passed[target_.arguments[a].parameter];
        switch (target_.arguments[a].part) {
        case Part::Base:
        case Part::Table:
            passed.base = reinterpret_cast<zelmref::Address>(value.pointer);
            break;
        case Part::Shift:
            passed.shift = value.word;
            break;
        case Part::ObjStride:
            passed.objStride = value.word;
            break;
        case Part::RowStride:
            passed.rowStride = value.word;
            break;
        case Part::ElemStride:
            passed.elemStride = value.word;
            break;
        case Part::Value:
            switch (target_.signature[target_.arguments[a].parameter].kind) {
            case zelmref::Kind::Constant:
                std::memcpy(&passed.bits, &value, zelmref::elementSize(target_.cell));
                break;
            case zelmref::Kind::Dimension:
            case zelmref::Kind::Count:
                passed.size = value.size;
                break;
            default:
                passed.base = reinterpret_cast<zelmref::Address>(value.pointer);
            }
        }
    }
    return call;
}

bool StreamModel::entryMayBeNull(const zelmref::Call &call, const StreamCall &made) const {
    const zelmref::Family &family = *target_.family;
    const zelmref::Parameter &parameter = target_.signature[target_.arguments[made.argument].parameter];
    if (family.addsShiftBeforeNullTest || (family.followsNull && family.followsNull(call, made.nullEntry)))
        return false;
    const zelmref::Layout layout = zelmref::layoutOf(target_.cell, parameter);
    const bool perObject = layout == zelmref::Layout::L || layout == zelmref::Layout::LS2;
    return perObject || !family.entriesTested || made.nullEntry < family.entriesTested(call, parameter);
}

bool StreamModel::leavesOut(const StreamCall &made) const {
    const zelmref::Family &family = *target_.family;
    const zelmref::Call call = read(made);
    switch (made.aim) {
    case Aim::NullPointer:
        if (family.testsNoPointer)
            return true;
        break;
    case Aim::NullEntry:
        if (!entryMayBeNull(call, made))
            return true;
        break;
    case Aim::Zero: // what lies in front of a list is read as its last object
        if (call.count() == 0 && family.countsZeroAsOne && family.countsZeroAsOne(target_.cell) &&
            target_.cell.layout == zelmref::Layout::L)
            return true;
        break;
    case Aim::InPlace: {
        std::size_t source = made.argument;
        std::size_t parameter = 0;
        for (;; ++parameter) {
            const zelmref::Kind kind = target_.signature[parameter].kind;
            if ((kind == zelmref::Kind::Vector || kind == zelmref::Kind::Matrix) && source-- == 0)
                break;
        }
        const Overlap overlap = family.overlapWith
                                    ? family.overlapWith(target_.cell, target_.signature[parameter])
                                    : family.overlap;
        if (overlap == Overlap::Apart || overlap == Overlap::OtherObjects)
            return true;
        break;
    }
    case Aim::Numbers:
        break;
    }
    return family.raisesFault &&
           family.raisesFault(call, [this](zelmref::Address address) { return stream_.holds(address); });
}

ZelmStatus StreamModel::run(const StreamCall &made) const {
    const zelmref::Call call = read(made);
    zelmref::ComputedElements results;
    return target_.family->run(call, results);
}

} // namespace zelmtest
