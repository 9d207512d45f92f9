// Statuses in words, null entries of lists, norms of zeros, overlap in debug builds.
#include <gtest/gtest.h>

#include "zelm.hpp"

namespace {

using namespace zelm;

TEST(Results, SayWhatHappened) {
    std::vector<std::array<float, 3>> a(4), b(3), d(4);
    const Result fine = add(a, a, d);
    EXPECT_TRUE(fine);
    EXPECT_EQ(fine.status(), ZELM_OK);
    EXPECT_EQ(fine.index(), Result::no_index);
    EXPECT_NO_THROW(fine.or_throw());
    const Result refused = add(a, b, d);
    EXPECT_FALSE(refused);
    EXPECT_EQ(refused.status(), ZELM_ERR_SIZE);
    EXPECT_STREQ(refused.message(), "the operands have different numbers of objects");
    EXPECT_STREQ(refused.operation(), "add");
    try {
        refused.or_throw();
        ADD_FAILURE();
    } catch (const std::exception &error) {
        EXPECT_STREQ(error.what(), "zelm: add: the operands have different numbers of objects (status -6)");
    }
}

TEST(Results, NameTheMissingEntryOfAList) {
    std::vector<std::array<double, 5>> v(8, {1, 2, 3, 4, 5});
    std::vector<std::array<double, 5> *> from, to;
    for (auto &x : v) {
        from.push_back(&x);
        to.push_back(&x);
    }
    to[3] = nullptr;
    const Result result = mul(list(from), 2.0, list(to));
    EXPECT_EQ(result.status(), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result.index(), 3u);
    EXPECT_EQ(v[2][0], 2);
    EXPECT_EQ(v[4][0], 1);
}

TEST(Results, NormsOfZerosAreZero) {
    std::vector<std::array<float, 4>> zeros(9, {0, 0, 0, 0});
    std::vector<float> lengths(9, 7);
    ASSERT_TRUE(norm(zeros, lengths));
    EXPECT_EQ(lengths, std::vector<float>(9, 0));
    float zero[3][3] = {}, length = 7;
    ASSERT_TRUE(frobenius_norm(zero, length));
    EXPECT_EQ(length, 0);
    ASSERT_TRUE(norm_nonzero(zeros, lengths));
    EXPECT_NE(lengths[0], lengths[0]) << "the form by a reciprocal root gives NaN";
}

#ifndef NDEBUG
struct Filter {
    double K[4][4], HP[4][4], KHP[4][4];
};

TEST(Results, DebugBuildsReportOverlap) {
    std::vector<Filter> f(5);
    const auto k = field(f, &Filter::K), hp = field(f, &Filter::HP), khp = field(f, &Filter::KHP);
    EXPECT_TRUE(mul(k, hp, khp)); // members of the same structures lie apart
    EXPECT_TRUE(add(k, hp, k));
    const std::string overlap = "the destination overlaps";
    EXPECT_EQ(std::string(mul(k, hp, k).message()).substr(0, overlap.size()),
              overlap); // written while still read
    EXPECT_EQ(std::string(add(transposed(k), hp, k).message()).substr(0, overlap.size()), overlap);
    EXPECT_EQ(std::string(inverse(k, k).message()).substr(0, overlap.size()), overlap);
    EXPECT_TRUE(cholesky(khp, cholesky_factor(khp)).status() == ZELM_ERR_NOT_POS_DEF); // in place is allowed
    float line[30] = {};
    const auto first = as_vectors<3>(line, 9), second = as_vectors<3>(line + 3, 9);
    EXPECT_FALSE(add(first, first, second));
    EXPECT_TRUE(add(first, first, first));
    float a[3][3] = {}, b[3][3] = {};
    EXPECT_TRUE(mul(a, b, a)); // 3x3 floats read a row ahead of writing it
    float c[6][6] = {}, d[6][6] = {};
    EXPECT_FALSE(mul(c, d, c));
    EXPECT_TRUE(mul(c, d, d));
}
#endif

TEST(Results, MixedLayoutsMeetInOneThatHoldsAll) {
    // One vector by adjacent elements, an array by strides: the form with element strides serves both.
    float memory[24], d[4][3];
    for (int i = 0; i < 24; ++i) {
        memory[i] = static_cast<float>(i);
    }
    const float by[3] = {1, 2, 3};
    ASSERT_TRUE(add(as_vectors<3>(memory, 4, object_bytes(24), element_bytes(8)), by, each(d)));
    EXPECT_EQ(d[3][2], 18 + 4 + 3);
    // Beside components, arrays by strides.
    std::vector<float> x(4, 1), y(4, 2), z(4, 3);
    ASSERT_TRUE(add(each(d), components(x, y, z), components(x, y, z)));
    EXPECT_EQ(z[3], 18 + 4 + 3 + 3);
    EXPECT_EQ(x[0], 0 + 1 + 1);
}

TEST(Results, AddedTheOtherWayRound) {
    std::vector<std::array<double, 3>> v(2, {1, 2, 3}), d(2);
    const double by[3] = {10, 20, 30};
    ASSERT_TRUE(add(by, v, d));
    EXPECT_EQ(d[1][2], 33);
    ASSERT_TRUE(add(5, v, d));
    EXPECT_EQ(d[1][2], 8);
    ASSERT_TRUE(sub(by, v, d));
    EXPECT_EQ(d[1][2], 27);
    ASSERT_TRUE(sub(1.0, v, d));
    EXPECT_EQ(d[0][0], 0);
    EXPECT_EQ(d[1][2], -2);
    ASSERT_TRUE(lincomb(2, by, 3, v, d));
    EXPECT_EQ(d[0][1], 46);
    ASSERT_TRUE(axpy(2, by, v, d));
    EXPECT_EQ(d[0][1], 42);
    double dots[2];
    ASSERT_TRUE(dot(by, v, dots));
    EXPECT_EQ(dots[1], 140);
    ASSERT_TRUE(cross(by, v, d));
    EXPECT_EQ(d[0], (std::array<double, 3>{0, 0, 0}));
    ASSERT_TRUE(mul(2, v, d));
    EXPECT_EQ(d[0], (std::array<double, 3>{2, 4, 6}));
}

} // namespace
