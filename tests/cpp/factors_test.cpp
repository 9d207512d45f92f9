// Decompositions by factors of their own types, thresholds, and the object that failed.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "zelm.hpp"

namespace {

using namespace zelm;

using M4 = std::array<std::array<double, 4>, 4>;
using V4 = std::array<double, 4>;

M4 positive(double seed) {
    M4 m;
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < 4; ++j) {
            m[i][j] = i == j ? 5 + seed : 1 / (1 + static_cast<double>(i + j) + seed);
        }
    }
    return m;
}

double residual(const M4 &a, const V4 &x, const V4 &b) {
    double most = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        double sum = -b[i];
        for (std::size_t j = 0; j < 4; ++j) {
            sum += a[i][j] * x[j];
        }
        most = std::max(most, std::abs(sum));
    }
    return most;
}

TEST(Factors, EachDecompositionHasItsSolver) {
    std::vector<M4> a, memory(5);
    std::vector<V4> b(5), x(5);
    for (std::size_t k = 0; k < 5; ++k) {
        a.push_back(positive(static_cast<double>(k)));
        b[k] = {1, 2, static_cast<double>(k), -1};
    }
    std::vector<std::array<std::uint32_t, 4>> pivots(5);
    const auto solved = [&](const auto &factors) {
        x.assign(5, {});
        EXPECT_TRUE(solve(factors, b, x));
        double most = 0;
        for (std::size_t k = 0; k < 5; ++k) {
            most = std::max(most, residual(a[k], x[k], b[k]));
        }
        return most;
    };
    const auto by_lu = lu_factors(memory, pivots);
    ASSERT_TRUE(lu(a, by_lu));
    EXPECT_LT(solved(by_lu), 1e-14);
    const auto by_cholesky = cholesky_factor(memory);
    ASSERT_TRUE(cholesky(a, by_cholesky));
    EXPECT_LT(solved(by_cholesky), 1e-14);
    const auto by_qr = qr_factors(memory);
    ASSERT_TRUE(qr(a, by_qr));
    EXPECT_LT(solved(by_qr), 1e-14);
}

TEST(Factors, OneMatrixForManyRightHandSides) {
    const M4 a = positive(0);
    M4 memory;
    std::vector<V4> b(6), x(6);
    for (std::size_t k = 0; k < 6; ++k) {
        b[k][k % 4] = 1;
    }
    std::uint32_t pivots[4];
    ASSERT_TRUE(lu(a, lu_factors(memory, pivots)));
    ASSERT_TRUE(solve(lu_factors(memory, pivots), b, x));
    for (std::size_t k = 0; k < 6; ++k) {
        EXPECT_LT(residual(a, x[k], b[k]), 1e-15);
    }
    ASSERT_TRUE(solve(lu_factors(memory, pivots), b[0], x[5]));
    EXPECT_EQ(x[5], x[0]);
}

TEST(Factors, LeastSquaresOfARunTimeShape) {
    // The line through four points: height 4, width 2.
    std::vector<double> a{1, 0, 1, 1, 1, 2, 1, 3}, memory(8), b{1, 3, 5, 7}, x(2), scratch(4);
    const shape tall{4, 2};
    const auto factors = qr_factors(as_matrix(memory.data(), tall), scratch);
    ASSERT_TRUE(qr(as_matrix(a.data(), tall), factors));
    ASSERT_TRUE(solve(factors, b, x));
    EXPECT_NEAR(x[0], 1, 1e-14);
    EXPECT_NEAR(x[1], 2, 1e-14);
    scratch.resize(3);
    EXPECT_EQ(qr(as_matrix(a.data(), tall), qr_factors(as_matrix(memory.data(), tall), scratch)).status(),
              ZELM_ERR_SIZE);
}

TEST(Factors, ASizeBesideThoseOfTheNames) {
    double a[2][2] = {{4, 1}, {2, 3}}, f[2][2], b[2] = {1, 2}, x[2];
    std::uint32_t p[2];
    ASSERT_TRUE(lu(a, lu_factors(f, p)));
    ASSERT_TRUE(solve(lu_factors(f, p), b, x));
    EXPECT_NEAR(x[0], 0.1, 1e-15);
    EXPECT_NEAR(x[1], 0.6, 1e-15);
    double d = 0, scratch[6], inverted[2][2];
    ASSERT_TRUE(det_with_threshold(a, scratch, d));
    EXPECT_EQ(d, 10);
    ASSERT_TRUE(inverse_with_threshold(a, scratch, inverted));
    EXPECT_NEAR(inverted[0][0], 0.3, 1e-15);
    double too_short[4];
    EXPECT_EQ(det_with_threshold(a, too_short, d).status(), ZELM_ERR_SIZE);
}

TEST(Factors, PivotsAreAsManyAsTheObjectsNeed) {
    std::vector<M4> a(3, positive(1)), f(3);
    std::vector<std::uint32_t> few(11), enough(12);
    EXPECT_STREQ(lu(a, lu_factors(f, few)).message(), "the row numbers are too few: n for each object");
    EXPECT_TRUE(lu(a, lu_factors(f, enough)));
    std::vector<V4> b(3), x(3);
    EXPECT_EQ(solve(lu_factors(f, few), b, x).status(), ZELM_ERR_SIZE);
    EXPECT_TRUE(solve(lu_factors(f, enough), b, x));
}

TEST(Factors, TheFailingObjectIsNamed) {
    std::vector<M4> a(9, positive(1)), f(9);
    std::vector<std::array<std::uint32_t, 4>> p(9);
    a[6] = {};
    const auto at6 = [&](const Result &result, ZelmStatus status) {
        EXPECT_EQ(result.status(), status);
        EXPECT_EQ(result.index(), 6u);
        try {
            result.or_throw();
            ADD_FAILURE() << "no exception";
        } catch (const Error &error) {
            EXPECT_EQ(error.index(), 6u);
            EXPECT_EQ(error.status(), status);
            EXPECT_NE(std::string(error.what()).find("object 6"), std::string::npos) << error.what();
        }
    };
    at6(lu(a, lu_factors(f, p)), ZELM_ERR_DIV_BY_ZERO);
    at6(cholesky(a, cholesky_factor(f)), ZELM_ERR_NOT_POS_DEF);
    at6(qr(a, qr_factors(f)), ZELM_ERR_DIV_BY_ZERO);
    at6(inverse(a, f), ZELM_ERR_DIV_BY_ZERO);
    std::vector<M4 *> pa, pf;
    for (std::size_t k = 0; k < 9; ++k) {
        pa.push_back(&a[k]);
        pf.push_back(&f[k]);
    }
    at6(inverse(list(pa), list(pf)), ZELM_ERR_DIV_BY_ZERO);
    // In place the sources of the objects ahead of it are gone.
    const Result in_place = cholesky(a, cholesky_factor(a));
    EXPECT_EQ(in_place.status(), ZELM_ERR_NOT_POS_DEF);
    EXPECT_EQ(in_place.index(), Result::no_index);
}

TEST(Factors, OddElementStridesOfCholesky) {
    // On 32-bit x86 a double may lie at a multiple of 4: elements of 12 bytes.
    alignas(8) unsigned char stored[9 * 12], factor[9 * 12];
    const double a[3][3] = {{4, 1, 0}, {1, 5, 2}, {0, 2, 6}};
    for (int e = 0; e < 9; ++e) {
        std::memcpy(stored + 12 * e, &a[e / 3][e % 3], 8);
    }
    const auto odd = [](unsigned char *bytes) {
        return as_matrix<3, 3>(reinterpret_cast<double *>(bytes), row_bytes(36), element_bytes(12));
    };
    const Result result = cholesky(odd(stored), cholesky_factor(odd(factor)));
    ASSERT_TRUE(result) << result.message();
    double dense[3][3] = {};
    ASSERT_TRUE(cholesky(a, cholesky_factor(dense)));
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j <= i; ++j) {
            double x;
            std::memcpy(&x, factor + 12 * (3 * i + j), 8);
            EXPECT_EQ(x, dense[i][j]) << i << j;
        }
    }
}

} // namespace
