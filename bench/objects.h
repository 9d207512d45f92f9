// The memory of one operand: objects in one of the arrangements, filled with given values.
#pragma once

#include "member.h"
#include "problem.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace zelmbench {

class Objects {
public:
    // `kind.isArray` or not, there are `count` objects: those of a single-object function are called in turn.
    // The first one begins `shift` bytes behind a multiple of 16.
    Objects(const OperandKind &kind, std::size_t elementBytes, std::size_t rows, std::size_t columns,
            std::size_t count, std::size_t shift);

    std::size_t elements() const { return rows_ * columns_; }

    // Gives object k the values of object k modulo their number in `values`, which holds whole objects.
    void fill(const std::vector<double> &values);
    double value(std::size_t k, std::size_t element) const;

    // What a call that begins with object k is given.
    Value argument(ArgumentKind kind, std::size_t k) const;
    // Where a peer finds the objects from k on.
    Operand from(std::size_t k);

private:
    std::byte *address(std::size_t k, std::size_t element) const;

    OperandKind kind_;
    std::size_t elementBytes_, rows_, columns_, count_, step_; // step_: bytes between adjacent elements
    std::unique_ptr<std::byte[]> memory_;
    std::byte *data_;
    std::vector<void *> table_;
    std::vector<std::vector<void *>> tablesOfPeers_;
};

} // namespace zelmbench
