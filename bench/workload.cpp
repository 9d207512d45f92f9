#include "workload.h"

#include "inputs.h"

#include <algorithm>
#include <string_view>

namespace zelmbench {
namespace {

constexpr double constants[] = {1.25, -0.75};

bool branchesOnValues(std::string_view family) {
    return family == "lu-decomposition" || family == "inverse" || family == "determinant";
}

// All sources of a turn lie behind those of the turn before, but results share one place.
bool isResult(const OperandKind &kind) {
    return std::string_view(kind.name) == "dst";
}

std::size_t rowsOf(const OperandKind &kind, std::size_t n) {
    return kind.shape == 'm' ? n : 1;
}

std::size_t columnsOf(const OperandKind &kind, std::size_t n) {
    return kind.shape == 's' ? 1 : n;
}

} // namespace

Workload::Workload(const Member &member, std::size_t count)
    : member_(member), count_(count), n_(member.n != 0 ? member.n : runTimeSize),
      turnCount_(branchesOnValues(member.family) ? std::max<std::size_t>(1, distinctObjects / count) : 1),
      pivotIndex_(std::max(count, distinctObjects) * n_), scratch_(n_ * n_ + 2 * n_) {
    makeOperands();
    makeInputs();
    makeCalls();
}

void Workload::makeOperands() {
    const std::string_view family = member_.family;
    for (std::size_t i = 0; i < member_.operandCount; ++i) {
        const OperandKind &kind = member_.operands[i];
        // Of an operand that is the same for all objects there is one; single-object functions take many in
        // turn.
        const std::size_t objects = member_.isArray && !kind.isArray ? 1 : count_;
        // Where all is aligned to 16 bytes, 64-bit products of two arrays use the first matrix of src1 only.
        const std::size_t shift =
            isResult(kind) && family == "matrix-product" && member_.elementBytes == 8 ? 8 : 0;
        operands_.push_back(std::make_unique<Objects>(
            kind, member_.elementBytes, rowsOf(kind, n_), columnsOf(kind, n_),
            objects == 1 || isResult(kind) ? objects : objects * turnCount_, shift));
    }
}

void Workload::makeInputs() {
    const std::string_view family = member_.family;
    for (std::size_t i = 0; i < member_.operandCount; ++i) {
        if (!isResult(member_.operands[i])) {
            operands_[i]->fill(randomValues(operands_[i]->elements(), static_cast<unsigned>(i + 1)));
        }
    }
    Objects &matrices = *operands_[0];
    if (branchesOnValues(family) || family == "qr-decomposition") {
        matrices.fill(generalMatrices(n_));
    } else if (family == "cholesky-decomposition") {
        matrices.fill(positiveDefiniteMatrices(n_));
    } else if (family == "cholesky-back-substitution") {
        matrices.fill(choleskyFactors(n_).values);
    } else if (family == "qr-back-substitution") {
        matrices.fill(qrFactors(n_).values);
    } else if (family == "lu-back-substitution") {
        const Factors &factors = luFactors(n_);
        matrices.fill(factors.values);
        for (std::size_t e = 0; e < pivotIndex_.size(); ++e) {
            pivotIndex_[e] = factors.pivots[e % factors.pivots.size()];
        }
    }
}

Value Workload::argument(const Argument &argument, std::size_t first, std::size_t call) const {
    Value value{};
    switch (argument.kind) {
    case ArgumentKind::Constant:
        if (member_.elementBytes == 4) {
            value.f32 = static_cast<float>(constants[argument.number]);
        } else {
            value.f64 = constants[argument.number];
        }
        return value;
    case ArgumentKind::Dimension:
        value.word = static_cast<std::int32_t>(n_);
        return value;
    case ArgumentKind::Count:
        value.word = static_cast<std::int32_t>(member_.isArray ? count_ : 1);
        return value;
    case ArgumentKind::PivotIndex:
        value.pointer = pivotIndex_.data() + call * n_;
        return value;
    case ArgumentKind::Scratch:
        value.pointer = scratch_.data();
        return value;
    default:
        const OperandKind &kind = member_.operands[argument.number];
        const bool turns = !isResult(kind) && (kind.isArray || !member_.isArray);
        return operands_[argument.number]->argument(argument.kind, (turns ? first : 0) + call);
    }
}

void Workload::makeCalls() {
    for (std::size_t turn = 0; turn < turnCount_; ++turn) {
        const std::size_t first = turn * count_;
        std::vector<Value> &values = calls_.emplace_back();
        for (std::size_t call = 0; call < (member_.isArray ? 1 : count_); ++call) {
            for (std::size_t i = 0; i < member_.argumentCount; ++i) {
                values.push_back(argument(member_.arguments[i], first, call));
            }
        }
        Problem &problem = problems_.emplace_back();
        Operand *const operands[] = {&problem.src1, &problem.src2, &problem.src3};
        for (std::size_t i = 0; i < member_.operandCount; ++i) {
            const OperandKind &kind = member_.operands[i];
            const bool turns = !isResult(kind) && (kind.isArray || !member_.isArray);
            (isResult(kind) ? problem.dst : *operands[i]) = operands_[i]->from(turns ? first : 0);
        }
        problem.scale1 = constants[0];
        problem.scale2 = constants[1];
        problem.pivotIndex = pivotIndex_.data();
        problem.scratch = scratch_.data();
        problem.count = count_;
        problem.n = n_;
    }
}

void Workload::call(AnyFunction function, std::size_t turn) const {
    member_.callEach(function, calls_[turn % calls_.size()].data(), member_.isArray ? 1 : count_);
}

void Workload::clearResults() {
    operands_.back()->fill(std::vector<double>(operands_.back()->elements()));
}

std::vector<double> Workload::results() const {
    std::vector<double> values;
    for (std::size_t k = 0; k < std::min<std::size_t>(count_, 1000); ++k) {
        for (std::size_t e = 0; e < operands_.back()->elements(); ++e) {
            values.push_back(operands_.back()->value(k, e));
        }
    }
    return values;
}

} // namespace zelmbench
