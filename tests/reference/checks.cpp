#include "checks.h"

namespace zelmref {
namespace {

bool isPointer(Kind kind) {
    return kind == Kind::Vector || kind == Kind::Matrix || kind == Kind::Result || kind == Kind::Packed ||
           kind == Kind::PivotIndex || kind == Kind::Scratch;
}

bool isPerPosition(const Cell &cell) {
    return cell.layout == Layout::P || cell.layout == Layout::PS2;
}

} // namespace

bool pointerIsNull(const Call &call) {
    for (std::size_t p = 0; p < call.signature->size(); ++p)
        if (isPointer((*call.signature)[p].kind) && call.passed[p].base == 0)
            return true;
    return false;
}

bool dimensionIsZero(const Call &call) {
    for (std::size_t p = 0; p < call.signature->size(); ++p)
        if ((*call.signature)[p].kind == Kind::Dimension && call.passed[p].size == 0)
            return true;
    return false;
}

std::optional<ZelmStatus> checkArguments(const Call &call, SingleTables singleTables, std::size_t entries) {
    const Signature &signature = *call.signature;
    const bool array = isArray(*call.cell);

    if (pointerIsNull(call))
        return ZELM_ERR_NULL_PTR;
    if (dimensionIsZero(call))
        return ZELM_ERR_SIZE;

    if (isPerPosition(*call.cell) && (array || singleTables == SingleTables::TestedFirst)) {
        for (const Parameter &parameter : signature) {
            if (!hasTable(*call.cell, parameter))
                continue;
            const Operand operand(call, parameter.name);
            for (std::size_t e = 0; e < operand.positions() && e < entries; ++e)
                if (operand.entryIsNull(e))
                    return ZELM_ERR_NULL_PTR;
        }
    }

    if (array && call.count() == 0)
        return ZELM_OK;
    return std::nullopt;
}

bool objectIsNull(const Call &call, std::uint32_t k) {
    if (isPerPosition(*call.cell))
        return false;
    for (const Parameter &parameter : *call.signature)
        if (hasTable(*call.cell, parameter) && Operand(call, parameter.name).entryIsNull(k))
            return true;
    return false;
}

bool positionIsNull(const Call &call, std::size_t position) {
    for (const Parameter &parameter : *call.signature)
        if (hasTable(*call.cell, parameter) && Operand(call, parameter.name).entryIsNull(position))
            return true;
    return false;
}

} // namespace zelmref
