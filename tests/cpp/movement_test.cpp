// Copies, packed buffers, transposes and identities in every layout.
#include <gtest/gtest.h>

#include "zelm.hpp"

namespace {

using namespace zelm;

using Wide = std::array<std::array<float, 4>, 2>;
using Tall = std::array<std::array<float, 2>, 4>;

std::vector<Wide> numbered() {
    std::vector<Wide> made(3);
    float value = 0;
    for (Wide &m : made) {
        for (auto &row : m) {
            for (float &x : row) {
                x = value++;
            }
        }
    }
    return made;
}

TEST(Movement, TransposesInStridesAndInTables) {
    auto a = numbered();
    std::vector<Tall> d(3);
    ASSERT_TRUE(transpose(a, d));
    for (std::size_t k = 0; k < 3; ++k) {
        for (std::size_t i = 0; i < 2; ++i) {
            for (std::size_t j = 0; j < 4; ++j) {
                EXPECT_EQ(d[k][j][i], a[k][i][j]);
            }
        }
    }
    std::vector<float> from[6], to[6];
    for (int e = 0; e < 6; ++e) {
        from[e] = {static_cast<float>(e), static_cast<float>(10 + e)};
        to[e] = {-1, -1};
    }
    ASSERT_TRUE((transpose(components<2, 3>(from[0], from[1], from[2], from[3], from[4], from[5]),
                           components<3, 2>(to[0], to[1], to[2], to[3], to[4], to[5]))));
    for (std::size_t i = 0; i < 2; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            EXPECT_EQ(to[j * 2 + i], from[i * 3 + j]);
        }
    }
}

TEST(Movement, CopiesFromAnyLayoutToAnyOther) {
    auto a = numbered();
    std::vector<Wide *> pointers{&a[2], &a[0], &a[1]};
    std::vector<float> c[8];
    for (auto &line : c) {
        line.resize(3);
    }
    const auto by_components = components<2, 4>(c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7]);
    ASSERT_TRUE(copy(list(pointers), by_components));
    EXPECT_EQ(c[5], (std::vector<float>{a[2][1][1], a[0][1][1], a[1][1][1]}));
    std::vector<Wide> back(3);
    ASSERT_TRUE(copy(by_components, back));
    EXPECT_EQ(back, (std::vector<Wide>{a[2], a[0], a[1]}));
    // Vectors from one table to another.
    std::vector<double> x{1, 2}, y{3, 4}, u(2), v(2);
    ASSERT_TRUE(copy(components(x, y), components(u, v)));
    EXPECT_EQ(u, x);
    EXPECT_EQ(v, y);
    // Transposed on the way, one object.
    Tall t;
    ASSERT_TRUE(copy(transposed(a[1]), t));
    EXPECT_EQ(t[3][1], a[1][1][3]);
}

TEST(Movement, PacksAndUsesTransposed) {
    auto a = numbered();
    std::vector<float> packed(24, -1);
    ASSERT_TRUE(extract(a, packed));
    for (std::size_t e = 0; e < 24; ++e) {
        EXPECT_EQ(packed[e], static_cast<float>(e));
    }
    ASSERT_TRUE(extract(transposed(a), packed));
    EXPECT_EQ(packed[8 + 3 * 2 + 1], a[1][1][3]);
    std::vector<float> c[6];
    for (std::size_t e = 0; e < 6; ++e) {
        c[e] = {static_cast<float>(e), static_cast<float>(10 + e)};
    }
    std::vector<float> turned(12);
    ASSERT_TRUE(extract(transposed(components<2, 3>(c[0], c[1], c[2], c[3], c[4], c[5])), turned));
    EXPECT_EQ(turned, (std::vector<float>{0, 3, 1, 4, 2, 5, 10, 13, 11, 14, 12, 15}));
    packed.resize(23);
    EXPECT_STREQ(extract(a, packed).message(), "the packed buffer is too short");
}

TEST(Movement, EveryMatrixBecomesAnIdentity) {
    double rows[3][5][5];
    ASSERT_TRUE(identity(rows));
    float columns[2][3][3];
    ASSERT_TRUE(identity(column_major(columns)));
    std::vector<double> c[4];
    for (auto &line : c) {
        line.resize(3, 9);
    }
    ASSERT_TRUE(identity(components<2, 2>(c[0], c[1], c[2], c[3])));
    EXPECT_EQ(c[3], (std::vector<double>{1, 1, 1}));
    EXPECT_EQ(c[1], (std::vector<double>{0, 0, 0}));
    for (int i = 0; i < 5; ++i) {
        for (int j = 0; j < 5; ++j) {
            EXPECT_EQ(rows[2][i][j], i == j);
            if (i < 3 && j < 3) {
                EXPECT_EQ(columns[1][i][j], static_cast<float>(i == j));
            }
        }
    }
    std::vector<double> line(6);
    EXPECT_FALSE(identity(as_matrix(line.data(), shape{2, 3})));
    EXPECT_FALSE(identity(as_matrix<2, 2>(line.data(), row_bytes(8), element_bytes(8))));
}

} // namespace
