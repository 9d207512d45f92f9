// Eigen's types as operands, against Eigen's own results.
#include <gtest/gtest.h>

#include <Eigen/Dense>

#include "zelm/eigen.hpp"

namespace {

using namespace zelm;

template <class M>
M random(unsigned seed) {
    std::srand(seed);
    return M::Random();
}

TEST(Eigen, ContainersOfFixedMatricesGoInAsTheyAre) {
    std::vector<Eigen::Matrix4d> a(5), b(5), c(5);
    for (unsigned k = 0; k < 5; ++k) {
        a[k] = random<Eigen::Matrix4d>(k);
        b[k] = random<Eigen::Matrix4d>(k + 10);
    }
    ASSERT_TRUE(mul(a, b, c));
    for (std::size_t k = 0; k < 5; ++k) {
        EXPECT_TRUE(c[k].isApprox(a[k] * b[k], 1e-15));
    }
    ASSERT_TRUE(mul(transposed(a), b[0], c));
    EXPECT_TRUE(c[3].isApprox(a[3].transpose() * b[0], 1e-15));
    ASSERT_TRUE(inverse(a, c));
    EXPECT_TRUE((c[4] * a[4]).isIdentity(1e-12));
    std::vector<double> dets(5);
    ASSERT_TRUE(det(a, dets));
    EXPECT_NEAR(dets[2], a[2].determinant(), 1e-14);
}

TEST(Eigen, StorageOrdersMeet) {
    Eigen::Matrix<float, 3, 3, Eigen::RowMajor> rows = random<Eigen::Matrix3f>(1);
    Eigen::Matrix3f columns = random<Eigen::Matrix3f>(2), sum, difference;
    static_assert(decltype(view(rows))::layout == Layout::standard &&
                  decltype(view(columns))::layout == Layout::S2);
    ASSERT_TRUE(add(rows, columns, sum));
    EXPECT_EQ(sum, rows + columns);
    ASSERT_TRUE(sub(rows, transposed(columns), difference));
    EXPECT_EQ(difference, rows - columns.transpose());
    Eigen::Vector3f v = random<Eigen::Vector3f>(3), w = random<Eigen::Vector3f>(4), u;
    ASSERT_TRUE(cross(v, w, u));
    EXPECT_TRUE(u.isApprox(v.cross(w), 1e-5f));
    ASSERT_TRUE(mul(columns, v, u));
    EXPECT_TRUE(u.isApprox(columns * v, 1e-5f));
    ASSERT_TRUE(identity(columns));
    EXPECT_TRUE(columns.isIdentity(0));
}

TEST(Eigen, MapsBlocksAndDynamicMatrices) {
    Eigen::MatrixXd a = Eigen::MatrixXd::Random(4, 7), b = Eigen::MatrixXd::Random(7, 3), c(4, 3);
    ASSERT_TRUE(mul(a, b, c));
    EXPECT_TRUE(c.isApprox(a * b, 1e-14));
    ASSERT_TRUE(mul(a.block<3, 3>(1, 2), b.topRows<3>(), c.topRows<3>()));
    EXPECT_TRUE(c.topRows<3>().isApprox(a.block<3, 3>(1, 2) * b.topRows<3>(), 1e-14));
    double memory[32] = {};
    Eigen::Map<Eigen::Matrix4d, 0, Eigen::Stride<8, 2>> spread(memory);
    const Eigen::Matrix4d m = random<Eigen::Matrix4d>(5);
    ASSERT_TRUE(copy(m, spread));
    EXPECT_EQ(Eigen::Matrix4d(spread), m);
    EXPECT_EQ(memory[1], 0);
    const Eigen::Map<const Eigen::VectorXd> line(memory, 32);
    static_assert(std::is_const_v<decltype(view(line))::Element>);
    double length = 0;
    ASSERT_TRUE(norm(line, length));
    EXPECT_NEAR(length, m.norm(), 1e-14);
}

struct Pose {
    Eigen::Matrix3d turn;
    Eigen::Vector3d shift;
};

TEST(Eigen, MembersOfStructuresAndFactors) {
    std::vector<Pose> poses(4);
    std::vector<Eigen::Vector3d> b(4), x(4);
    for (unsigned k = 0; k < 4; ++k) {
        const Eigen::Matrix3d m = random<Eigen::Matrix3d>(k);
        poses[k].turn = m * m.transpose() + Eigen::Matrix3d::Identity();
        b[k] = random<Eigen::Vector3d>(k + 20);
    }
    std::vector<Eigen::Matrix3d> memory(4);
    const auto factor = cholesky_factor(memory);
    ASSERT_TRUE(cholesky(field(poses, &Pose::turn), factor));
    ASSERT_TRUE(solve(factor, b, x));
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_TRUE(x[k].isApprox(poses[k].turn.llt().solve(b[k]), 1e-13));
    }
}

} // namespace
