// One call of a function, and the addresses that its operands mean.
#pragma once

#include "signature.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace zelmref {

// Addresses are numbers: strides and shifts are signed 32-bit words that are widened with their sign and
// added modulo the size of a pointer.
using Address = std::uintptr_t;

constexpr Address times(Address index, std::int32_t stride) {
    return index * static_cast<Address>(static_cast<std::intptr_t>(stride));
}

// What the caller passes for one parameter; only the members that its kind and layout have are used.
struct Passed {
    Address base = 0; // operand, table, pivotIndex or scratch
    std::int32_t shift = 0, objStride = 0, rowStride = 0, elemStride = 0;
    std::uint64_t bits = 0; // a constant: the bits of the number
    std::uint32_t size = 0; // a dimension or the count
};

struct Call {
    const Cell *cell;
    const Signature *signature;
    std::vector<Passed> passed; // one for each parameter

    std::size_t index(std::string_view parameter) const; // throws std::out_of_range if there is none
    std::uint32_t dimension(std::string_view name) const;
    std::uint32_t count() const; // 1 for a single object
};

// The addressing of one operand of a call.
class Operand {
public:
    Operand(const Call &call, std::string_view name);

    // Element (i, j) of object k; i is 0 for a vector, k is ignored by an invariant operand.
    Address element(std::uint32_t k, std::uint32_t i, std::uint32_t j) const;
    Address element(std::uint32_t k, std::uint32_t j) const { return element(k, 0, j); }

    bool hasTable() const { return table_; }
    bool entryIsNull(std::size_t entry) const;
    std::size_t positions() const { return static_cast<std::size_t>(rows_) * columns_; }

private:
    enum class Form { Plain, PerPosition, PerObject };

    Address base_;
    Form form_;
    bool table_;
    std::int32_t shift_, objStride_, rowStride_, elemStride_;
    std::uint32_t rows_, columns_;
};

} // namespace zelmref
