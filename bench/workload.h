// One function with operands for it: the calls that are measured, and the same work as peers see it.
#pragma once

#include "member.h"
#include "objects.h"
#include "problem.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zelmbench {

class Workload {
public:
    // `count` objects; a single-object function is called for each of them.
    Workload(const Member &member, std::size_t count);

    std::size_t count() const { return count_; }
    // Turns take different objects, where a function branches on values.
    std::size_t turns() const { return problems_.size(); }

    void call(AnyFunction function, std::size_t turn) const;
    const Problem &problem(std::size_t turn) const { return problems_[turn % problems_.size()]; }

    void clearResults();
    std::vector<double> results() const;

private:
    void makeOperands();
    void makeInputs();
    void makeCalls();
    Value argument(const Argument &argument, std::size_t first, std::size_t call) const;

    const Member &member_;
    std::size_t count_, n_, turnCount_;
    std::vector<std::unique_ptr<Objects>> operands_;
    std::vector<std::uint32_t> pivotIndex_;
    std::vector<double> scratch_;
    std::vector<std::vector<Value>> calls_; // one list per turn
    std::vector<Problem> problems_;
};

// Lengths and orders of the run-time forms.
inline constexpr std::size_t runTimeSize = 8;

} // namespace zelmbench
