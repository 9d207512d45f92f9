#include "rows.h"

#include "workload.h"

#include <algorithm>
#include <regex>

namespace zelmbench {
namespace {

constexpr std::size_t manyObjects = 1000;

// Few enough for the nearest cache, arguments included.
constexpr std::size_t singleObjects = 64;

// Arrays of matrices of run-time order; 1,000 would not fit a second-level cache.
constexpr std::size_t largerObjects = 250;

// Beyond every cache, but no operand above 200 MB.
constexpr std::size_t mostObjects = 1000000, mostBytes = 200000000;
const std::regex largeArrays(
    "zelm(Add_vava|Mul_vac|Saxpy_vava|DotProduct_vava|CrossProduct_vava|L2Norm_va)_..f_3x1(_P)?|"
    "zelm(Add_mama|Mul_mama|Mul_mva|Mul_mava|Transpose_ma|Det_ma|Invert_ma|LUDecomp_ma|LUBackSubst_mava|"
    "CholeskyDecomp_ma|QRDecomp_ma)_..f_4x4(_P)?|zelmCopy_va_..f_S[SP]|zelmExtract_ma_..f_S2");

bool hasMatrix(const Member &member) {
    return std::any_of(member.operands, member.operands + member.operandCount,
                       [](const OperandKind &kind) { return kind.shape == 'm'; });
}

std::string nameOf(const Member &member) {
    std::string name = member.name;
    if (member.n == 0) {
        name += "/" + std::to_string(runTimeSize) + "x" + std::to_string(hasMatrix(member) ? runTimeSize : 1);
    }
    return name;
}

Row rowOf(const Member &member) {
    const std::string name = nameOf(member);
    if (!member.isArray) {
        return {name + "/single", &member, singleObjects};
    }
    const std::size_t count = member.n == 0 && hasMatrix(member) ? largerObjects : manyObjects;
    return {name + "/" + std::to_string(count), &member, count};
}

Row largeRowOf(const Member &member) {
    const std::size_t n = member.n != 0 ? member.n : runTimeSize;
    const std::size_t bytes = (hasMatrix(member) ? n * n : n) * member.elementBytes;
    const std::size_t count = std::min(mostObjects, mostBytes / bytes);
    return {nameOf(member) + "/" + std::to_string(count), &member, count};
}

} // namespace

std::vector<Row> allRows(bool withLargeArrays) {
    std::vector<Row> rows;
    for (std::size_t i = 0; i < memberCount; ++i) {
        rows.push_back(rowOf(members[i]));
        if (withLargeArrays && std::regex_match(members[i].name, largeArrays)) {
            rows.push_back(largeRowOf(members[i]));
        }
    }
    return rows;
}

} // namespace zelmbench
