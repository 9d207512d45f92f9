#include "rows.h"

#include "workload.h"

#include <algorithm>
#include <string_view>

namespace zelmbench {
namespace {

constexpr std::size_t manyObjects = 1000;

// Few enough for the nearest cache, arguments included.
constexpr std::size_t singleObjects = 64;

// Arrays of matrices of run-time order; 1,000 would not fit a second-level cache.
constexpr std::size_t largerObjects = 250;

bool hasMatrix(const Member &member) {
    return std::any_of(member.operands, member.operands + member.operandCount,
                       [](const OperandKind &kind) { return kind.shape == 'm'; });
}

Row rowOf(const Member &member) {
    std::string name = member.name;
    if (member.n == 0) {
        name += "/" + std::to_string(runTimeSize) + "x" + std::to_string(hasMatrix(member) ? runTimeSize : 1);
    }
    if (!member.isArray) {
        return {name + "/single", &member, singleObjects};
    }
    const std::size_t count = member.n == 0 && hasMatrix(member) ? largerObjects : manyObjects;
    return {name + "/" + std::to_string(count), &member, count};
}

} // namespace

std::vector<Row> allRows() {
    std::vector<Row> rows;
    for (std::size_t i = 0; i < memberCount; ++i) {
        rows.push_back(rowOf(members[i]));
    }
    return rows;
}

} // namespace zelmbench
