// The objects of one operand in any layout, in guarded memory, and the arguments that tell where they are.
#pragma once

#include "grid_table.h"
#include "guarded_memory.h"
#include "library.h"

#include <algorithm>
#include <bit>
#include <string_view>
#include <type_traits>
#include <vector>

namespace zelmtest {

struct Shape {
    std::uint32_t height, width, count; // a vector has one row
};

// In elements: their distance, and what is left free behind each row. Only a layout with an element stride,
// or with an object stride per position, can have a distance other than 1.
struct Spacing {
    std::uint32_t distance = 1, behindRow = 0;
};

struct OperandMemory {
    GuardedMemory elements, table;
};

template <class T>
class Placed {
public:
    using Word = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;

    Placed(const OperandMemory &memory, std::string_view layout, Shape shape, Spacing spacing = {},
           Side side = Side::End, bool withNullEntry = false)
        : form_(layout.empty() ? 'S' : layout[0]), shape_(shape), spacing_(spacing) {
        if (layout != "S2" && layout != "LS2" && layout != "PS2")
            spacing_.distance = 1;
        const std::size_t size = last() + 1 + margin;
        start_ = memory.elements.at<Word>(side, size - margin);
        all_ = start_ - (side == Side::End ? margin : 0);
        std::fill_n(all_, size, untouched);
        shift_ = withNullEntry ? static_cast<std::int32_t>(address(start_)) : 48;
        const std::size_t entries = form_ == 'P'   ? std::size_t{shape.height} * shape.width
                                    : form_ == 'L' ? shape.count
                                                   : 0;
        table_ = memory.table.at<std::uintptr_t>(side, entries);
        for (std::uint32_t e = 0; e < entries; ++e)
            table_[e] = address(form_ == 'P' ? &at(0, e / shape.width, e % shape.width) : &at(e, 0, 0)) -
                        static_cast<std::uintptr_t>(static_cast<std::intptr_t>(shift_));
    }

    Word &at(std::uint32_t k, std::uint32_t i, std::uint32_t j) const { return start_[offset(k, i, j)]; }
    T number(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        return std::bit_cast<T>(at(k, i, j));
    }
    void set(std::uint32_t k, std::uint32_t i, std::uint32_t j, T number) const {
        at(k, i, j) = std::bit_cast<Word>(number);
    }

    // All words of the operand, those between its elements and some beside it.
    std::vector<Word> words() const { return {all_, all_ + last() + 1 + margin}; }
    std::size_t indexOf(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        return static_cast<std::size_t>(start_ - all_) + offset(k, i, j);
    }

    Value value(ArgumentKind kind) const {
        Value value{};
        switch (kind) {
        case ArgumentKind::Pointer:
            value.pointer = start_;
            break;
        case ArgumentKind::Table:
            value.pointer = table_;
            break;
        case ArgumentKind::Shift:
            value.word = shift_;
            break;
        case ArgumentKind::ObjStride:
            value.word = bytes(form_ == 'P' ? 1 : shape_.height * rowLength());
            break;
        case ArgumentKind::RowStride:
            value.word = bytes(rowLength());
            break;
        default:
            value.word = bytes(1);
        }
        return value;
    }

    static constexpr Word untouched = static_cast<Word>(0xa5a5a5a5a5a5a5a5u);

private:
    static constexpr std::size_t margin = 16;

    static std::uintptr_t address(const Word *word) { return reinterpret_cast<std::uintptr_t>(word); }
    std::uint32_t rowLength() const { return shape_.width + spacing_.behindRow; }
    std::int32_t bytes(std::uint32_t elements) const {
        return static_cast<std::int32_t>(elements * spacing_.distance * sizeof(T));
    }
    std::size_t offset(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        if (form_ == 'P') // position after position, each with all objects
            return ((i * shape_.width + j) * shape_.count + k) * spacing_.distance;
        const std::uint32_t place = form_ == 'L' ? shape_.count - 1 - k : k; // a list from behind
        return ((place * shape_.height + i) * rowLength() + j) * spacing_.distance;
    }
    std::size_t last() const {
        return offset(form_ == 'L' ? 0 : shape_.count - 1, shape_.height - 1, shape_.width - 1);
    }

    char form_;
    Shape shape_;
    Spacing spacing_;
    std::int32_t shift_;
    Word *start_, *all_;
    std::uintptr_t *table_;
};

// Calls a function with what valueOf(argument) gives for each of its arguments.
template <class ValueOf>
ZelmStatus callWith(const Function &function, ValueOf valueOf) {
    std::vector<Value> values;
    for (std::size_t a = 0; a < function.argumentCount; ++a)
        values.push_back(valueOf(function.arguments[a]));
    return function.call(exported(function.name), values.data());
}

} // namespace zelmtest
