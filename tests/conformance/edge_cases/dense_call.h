// A call of any member of the products by its place in the grid, with dense operands of order n.
#pragma once

#include "library.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zelmtest {

template <class T>
class DenseCall {
public:
    DenseCall(const Function &function, std::uint32_t n, std::uint32_t count)
        : function_(function), n_(n), count_(count), size_(sizeof(T)) {
        for (std::size_t a = 0; a < function.argumentCount; ++a)
            if (const std::string operand = function.arguments[a].operand; !operand.empty())
                operands_[operand];
        for (auto &[name, operand] : operands_) {
            operand.memory.resize(std::size_t{n} * n * count + 2);
            operand.start = operand.memory.data();
            // No multiple of 16: some members take a path of their own on such data.
            if (reinterpret_cast<std::uintptr_t>(operand.start) % 16 == 0)
                ++operand.start;
        }
    }

    bool has(const char *operand) const { return operands_.count(operand) != 0; }

    // Element i*n + j of object k of a matrix, element j of a vector.
    T &element(const std::string &operand, std::uint32_t k, std::uint32_t e) {
        return operands_.at(operand).start[isByPosition() ? e * count_ + k : k * n_ * n_ + e];
    }

    // Another size than n for a dimension; strides and tables stay those of n.
    void setDimension(const std::string &name, std::uint32_t size) { dimensions_[name] = size; }

    void placeDstAt(const std::string &source) { operands_["dst"].start = operands_.at(source).start; }

    ZelmStatus run() {
        std::vector<Value> values(function_.argumentCount);
        for (std::size_t a = 0; a < values.size(); ++a) {
            const Argument &argument = function_.arguments[a];
            const auto n = static_cast<std::int32_t>(n_);
            switch (argument.kind) {
            case ArgumentKind::Pointer:
                values[a].pointer = operands_.at(argument.operand).start;
                break;
            case ArgumentKind::Table:
                values[a].pointer = table(operands_.at(argument.operand));
                break;
            case ArgumentKind::ObjStride:
                values[a].word = isByPosition() ? size_ : n * n * size_;
                break;
            case ArgumentKind::RowStride:
                values[a].word = n * size_;
                break;
            case ArgumentKind::ElemStride:
                values[a].word = size_;
                break;
            case ArgumentKind::Dimension:
                values[a].size = dimensions_.count(argument.name) ? dimensions_[argument.name] : n_;
                break;
            case ArgumentKind::Count:
                values[a].size = count_;
                break;
            default:
                values[a].word = 0;
            }
        }
        return function_.call(exported(function_.name), values.data());
    }

private:
    struct Operand {
        std::vector<T> memory;
        T *start = nullptr;
        std::vector<T *> table;
    };

    bool isByPosition() const {
        const std::string_view layout = function_.layout;
        return layout == "P" || layout == "PS2";
    }

    T **table(Operand &operand) const {
        operand.table.clear();
        for (std::uint32_t e = 0; e < (isByPosition() ? n_ * n_ : count_); ++e)
            operand.table.push_back(operand.start + e * (isByPosition() ? count_ : n_ * n_));
        return operand.table.data();
    }

    const Function &function_;
    const std::uint32_t n_, count_;
    const std::int32_t size_;
    std::map<std::string, Operand> operands_;
    std::map<std::string, std::uint32_t> dimensions_;
};

} // namespace zelmtest
