// GLM's types as operands, against GLM's own results.
#include <gtest/gtest.h>

#include <glm/gtc/matrix_transform.hpp>

#include "zelm/glm.hpp"

namespace {

using namespace zelm;

TEST(Glm, PointsAndMatrices) {
    const glm::mat4 turn =
        glm::rotate(glm::translate(glm::mat4(1), glm::vec3(1, 2, 3)), 0.5f, glm::vec3(0, 0, 1));
    std::vector<glm::vec4> points{{1, 2, 3, 1}, {-4, 5, 6, 1}, {0, 0, 0, 1}}, moved(3);
    ASSERT_TRUE(mul(turn, points, moved));
    for (std::size_t k = 0; k < 3; ++k) {
        const glm::vec4 expected = turn * points[k];
        for (int i = 0; i < 4; ++i) {
            EXPECT_NEAR(moved[k][i], expected[i], 1e-6f);
        }
    }
    std::vector<glm::dmat3> a{glm::dmat3(2, 1, 0, 0, 3, 1, 1, 0, 4), glm::dmat3(1)}, b(2);
    ASSERT_TRUE(inverse(a, b));
    const glm::dmat3 expected = glm::inverse(a[0]);
    for (int j = 0; j < 3; ++j) {
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(b[0][j][i], expected[j][i], 1e-15);
        }
    }
    double determinant = 0;
    ASSERT_TRUE(det(a[0], determinant));
    EXPECT_NEAR(determinant, glm::determinant(a[0]), 1e-14);
}

TEST(Glm, MatricesThatAreNotSquare) {
    const glm::mat2x3 a(1, 2, 3, 4, 5, 6); // 2 columns of 3 rows
    const glm::mat4x2 b(1, 2, 3, 4, 5, 6, 7, 8);
    glm::mat4x3 c;
    ASSERT_TRUE(mul(a, b, c));
    EXPECT_EQ(c, a * b);
    glm::vec3 v(1, 2, 3), w(3, 1, -1), u;
    ASSERT_TRUE(cross(v, w, u));
    EXPECT_EQ(u, glm::cross(v, w));
    float product = 0;
    ASSERT_TRUE(dot(v, w, product));
    EXPECT_EQ(product, glm::dot(v, w));
}

} // namespace
