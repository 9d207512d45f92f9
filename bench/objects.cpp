#include "objects.h"

#include <Eigen/LU>

#include <cmath>
#include <map>

namespace zelmbench {
namespace {
constexpr std::size_t distinctObjects = 16000;

// Inverses by blocks take a leading block as it is unless it is singular.
bool hasGoodLeadingMinors(const Eigen::MatrixXd &matrix) {
    for (Eigen::Index order = 1; order <= 3; ++order) {
        if (std::abs(matrix.topLeftCorner(order, order).determinant()) < 0.05) {
            return false;
        }
    }
    return true;
}

std::vector<double> drawMatrices(std::size_t n) {
    std::mt19937 generator(static_cast<unsigned>(n));
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    std::vector<double> values;
    const auto order = static_cast<Eigen::Index>(n);
    while (values.size() < distinctObjects * n * n) {
        const Eigen::MatrixXd matrix =
            Eigen::MatrixXd::NullaryExpr(order, order, [&] { return uniform(generator); });
        if (matrix.partialPivLu().rcond() > 0.02 && hasGoodLeadingMinors(matrix)) {
            values.insert(values.end(), matrix.data(), matrix.data() + matrix.size());
        }
    }
    return values;
}
} // namespace

std::vector<double> randomValues(std::size_t elements, unsigned seed) {
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    std::vector<double> values(distinctObjects * elements);
    for (double &value : values) {
        value = uniform(generator);
    }
    return values;
}

const std::vector<double> &wellConditionedMatrices(std::size_t n) {
    static std::map<std::size_t, std::vector<double>> drawn;
    const auto found = drawn.find(n);
    return found != drawn.end() ? found->second : drawn.emplace(n, drawMatrices(n)).first->second;
}

} // namespace zelmbench
