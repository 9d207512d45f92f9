#include "call.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace zelmref {
namespace {

Address tableEntry(Address table, std::size_t entry) {
    Address value;
    std::memcpy(&value, reinterpret_cast<const void *>(table + entry * sizeof(Address)), sizeof value);
    return value;
}

} // namespace

std::size_t Call::index(std::string_view parameter) const {
    for (std::size_t i = 0; i < signature->size(); ++i)
        if ((*signature)[i].name == parameter)
            return i;
    throw std::out_of_range("no parameter " + std::string(parameter));
}

std::uint32_t Call::dimension(std::string_view name) const {
    if (name.empty())
        return 1;
    return cell->order ? cell->order : passed[index(name)].size;
}

std::uint32_t Call::count() const {
    return isArray(*cell) ? passed[index("count")].size : 1;
}

Operand::Operand(const Call &call, std::string_view name) {
    const std::size_t index = call.index(name);
    const Parameter &parameter = (*call.signature)[index];
    const Passed &passed = call.passed[index];
    const auto size = static_cast<std::int32_t>(elementSize(*call.cell));
    const Layout layout = layoutOf(*call.cell, parameter);

    base_ = passed.base;
    table_ = zelmref::hasTable(*call.cell, parameter);
    form_ = !table_                                        ? Form::Plain
            : layout == Layout::P || layout == Layout::PS2 ? Form::PerPosition
                                                           : Form::PerObject;
    shift_ = table_ ? passed.shift : 0;
    objStride_ = !parameter.array ? 0 : layout == Layout::P ? size : passed.objStride;
    rowStride_ = parameter.kind == Kind::Matrix ? passed.rowStride : 0;
    elemStride_ = layout == Layout::S2 || layout == Layout::LS2 ? passed.elemStride : size;
    if (parameter.kind == Kind::Result) { // packed in every layout
        objStride_ = size;
        elemStride_ = size;
    }
    rows_ = call.dimension(parameter.rows);
    columns_ = call.dimension(parameter.columns);
    if (parameter.kind == Kind::Packed) { // likewise
        elemStride_ = size;
        rowStride_ = size * static_cast<std::int32_t>(columns_);
        objStride_ = rowStride_ * static_cast<std::int32_t>(rows_);
    }
}

Address Operand::element(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
    const auto shift = static_cast<Address>(static_cast<std::intptr_t>(shift_));
    switch (form_) {
    case Form::Plain:
        return base_ + times(k, objStride_) + times(i, rowStride_) + times(j, elemStride_);
    case Form::PerPosition:
        return tableEntry(base_, static_cast<std::size_t>(i) * columns_ + j) + shift + times(k, objStride_);
    case Form::PerObject:
        return tableEntry(base_, k) + shift + times(i, rowStride_) + times(j, elemStride_);
    }
    return 0;
}

bool Operand::entryIsNull(std::size_t entry) const {
    return tableEntry(base_, entry) == 0;
}

} // namespace zelmref
