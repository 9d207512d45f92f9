// What views see: every way of holding vectors and matrices gives the elements that plain C++ finds there.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "zelm.hpp"

namespace {

using namespace zelm;

struct State {
    float position[3];
    float velocity[3];
    std::array<std::array<double, 4>, 4> turn;
};
struct Particle {
    int id;
    State state;
    float mass;
    double x, y, z;
};

std::vector<Particle> particles(int count) {
    std::vector<Particle> made(static_cast<std::size_t>(count));
    float value = 1;
    for (Particle &p : made) {
        for (int i = 0; i < 3; ++i) {
            p.state.position[i] = value++;
            p.state.velocity[i] = value++ / 8;
        }
        for (auto &row : p.state.turn) {
            for (double &x : row) {
                x = static_cast<double>(value++) / 4;
            }
        }
        p.mass = value;
        p.x = value++;
        p.y = value++;
        p.z = value++;
    }
    return made;
}

TEST(Views, MembersOfMembersInAContainerOfStructures) {
    auto ps = particles(7);
    const auto before = ps;
    const auto position = field(ps, &Particle::state, &State::position);
    ASSERT_TRUE(add(position, field(ps, &Particle::state, &State::velocity), position));
    for (std::size_t k = 0; k < ps.size(); ++k) {
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(ps[k].state.position[i], before[k].state.position[i] + before[k].state.velocity[i]);
        }
        EXPECT_EQ(ps[k].id, before[k].id);
        EXPECT_EQ(ps[k].state.turn, before[k].state.turn);
    }
}

TEST(Views, AnArrayOfStructuresOnTheStackAndASpanOfThem) {
    Particle ps[3] = {};
    for (int k = 0; k < 3; ++k) {
        ps[k].state.velocity[1] = static_cast<float>(k + 1);
    }
    std::array<float, 3> lengths;
    ASSERT_TRUE(norm(field(std::span(ps), &Particle::state, &State::velocity), lengths));
    EXPECT_EQ(lengths, (std::array<float, 3>{1, 2, 3}));
    ASSERT_TRUE(norm(field(ps, &Particle::state, &State::velocity), lengths));
    EXPECT_EQ(lengths, (std::array<float, 3>{1, 2, 3}));
}

TEST(Views, ObjectsBySize) {
    float m[2][3] = {{1, 2, 3}, {4, 5, 6}};
    static_assert(decltype(view(m))::stored_rows == 2 && decltype(view(m))::stored_columns == 3);
    static_assert(!decltype(view(m))::is_array && decltype(each(m))::is_array &&
                  decltype(each(m))::is_vector);
    float lengths[2];
    ASSERT_TRUE(norm(each(m), lengths));
    EXPECT_EQ(lengths[0], std::sqrt(1.f + 4.f + 9.f));
    EXPECT_EQ(lengths[1], std::sqrt(16.f + 25.f + 36.f));
    double stacks[5][4][4];
    static_assert(decltype(view(stacks))::is_array && decltype(view(stacks))::stored_rows == 4);
    std::vector<double[4]> none;
    static_assert(decltype(view(none))::is_array && decltype(view(none))::stored_columns == 4);
    std::array<std::array<float, 6>, 6> square;
    static_assert(!decltype(view(square))::is_array && decltype(view(square))::stored_rows == 6);
    std::vector<double> line(9);
    static_assert(decltype(view(line))::is_vector && decltype(view(line))::stored_columns == dynamic);
    static_assert(decltype(view(std::span<double, 5>(line.data(), 5)))::stored_columns == 5);
}

TEST(Views, ConstIsKept) {
    const std::vector<std::array<float, 3>> v(2);
    static_assert(std::is_same_v<decltype(view(v))::Element, const float>);
    const Particle p[2] = {};
    static_assert(std::is_same_v<decltype(field(p, &Particle::state, &State::turn))::Element, const double>);
    std::vector<const std::array<float, 3> *> pointers;
    static_assert(std::is_same_v<decltype(list(pointers))::Element, const float>);
    std::vector<const Particle *> more;
    static_assert(
        std::is_same_v<decltype(list(more, &Particle::state, &State::velocity))::Element, const float>);
}

TEST(Views, ComponentsInArraysOfTheirOwn) {
    std::vector<float> x{1, 2, 3}, y{4, 5, 6}, z{7, 8, 9};
    std::vector<float> out(3);
    ASSERT_TRUE(norm(components(x, y, z), out));
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_EQ(out[k], std::sqrt((x[k] * x[k] + y[k] * y[k]) + z[k] * z[k]));
    }
    const float by[3] = {10, 20, 30};
    ASSERT_TRUE(add(components(x, y, z), by, components(x, y, z)));
    EXPECT_EQ(x, (std::vector<float>{11, 12, 13}));
    EXPECT_EQ(z, (std::vector<float>{37, 38, 39}));
}

TEST(Views, ComponentsAsMembersOfStructures) {
    auto ps = particles(4);
    const auto before = ps;
    const auto points = components(field(ps, &Particle::x), field(ps, &Particle::y), field(ps, &Particle::z));
    static_assert(decltype(points.zelm_view())::layout == Layout::PS2);
    ASSERT_TRUE(mul(points, 2.0, points));
    for (std::size_t k = 0; k < ps.size(); ++k) {
        EXPECT_EQ(ps[k].y, 2 * before[k].y);
        EXPECT_EQ(ps[k].mass, before[k].mass);
    }
    std::vector<double> other(4);
    const auto mixed = components(field(ps, &Particle::x), other, other);
    const auto result = mul(mixed, 2.0, points);
    EXPECT_EQ(result.status(), ZELM_ERR_SIZE);
    EXPECT_NE(std::string(result.message()).find("different distances"), std::string::npos);
}

TEST(Views, OneFieldOfEveryStructureAsAVector) {
    auto ps = particles(5);
    double sum = -1, expected = 0;
    ASSERT_TRUE(dot(field(ps, &Particle::x), field(ps, &Particle::y), sum));
    for (const Particle &p : ps) {
        expected = expected + p.x * p.y;
    }
    EXPECT_EQ(sum, expected);
}

TEST(Views, ElementsWhereverTheyLie) {
    float a = 3, unused = 99, b = 4;
    float c = 12;
    float length = 0;
    ASSERT_TRUE(norm(elements(a, b, c), length));
    EXPECT_EQ(length, 13);
    EXPECT_EQ(unused, 99);
}

TEST(Views, ListsOfPointersAndOfIndices) {
    auto ps = particles(6);
    const std::vector<Particle *> chosen{&ps[4], &ps[1]};
    std::vector<double> traces(2);
    ASSERT_TRUE(trace(list(chosen, &Particle::state, &State::turn), traces));
    for (std::size_t k = 0; k < 2; ++k) {
        double sum = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            sum += chosen[k]->state.turn[i][i];
        }
        EXPECT_EQ(traces[k], sum);
    }
    std::vector<double> by_indices(2);
    ASSERT_TRUE(trace(indexed(ps, std::vector<int>{4, 1}, &Particle::state, &State::turn), by_indices));
    EXPECT_EQ(by_indices, traces);

    std::vector<std::array<double, 3>> points(5);
    for (std::size_t k = 0; k < 5; ++k) {
        points[k] = {static_cast<double>(k), 1, 2};
    }
    const double step[3] = {0.5, 0, 0};
    const auto some = indexed(points, std::array<unsigned, 2>{0, 3});
    ASSERT_TRUE(add(some, step, some));
    EXPECT_EQ(points[0][0], 0.5);
    EXPECT_EQ(points[1][0], 1);
    EXPECT_EQ(points[3][0], 3.5);
    const auto wrong =
        add(indexed(points, std::array<int, 1>{-1}), step, indexed(points, std::array<int, 1>{2}));
    EXPECT_EQ(wrong.status(), ZELM_ERR_SIZE);
    EXPECT_STREQ(wrong.message(), "an index lies beyond its container");
}

TEST(Views, PointersAndByteStrides) {
    float memory[64];
    for (int i = 0; i < 64; ++i) {
        memory[i] = static_cast<float>(i);
    }
    // The diagonals of four 4x4 matrices.
    float lengths[4];
    ASSERT_TRUE(norm(as_vectors<4>(memory, 4, object_bytes(64), element_bytes(20)), lengths));
    for (int k = 0; k < 4; ++k) {
        float sum = 0;
        for (int i = 0; i < 4; ++i) {
            const float x = memory[16 * k + 5 * i];
            sum += x * x;
        }
        EXPECT_EQ(lengths[k], std::sqrt(sum));
    }
    // Rows in reverse, and the same vector for all.
    float reversed[2][3];
    ASSERT_TRUE(
        add(as_matrix<2, 3>(memory + 3, row_bytes(-12)), as_matrix<2, 3>(memory, row_bytes(0)), reversed));
    EXPECT_EQ(reversed[0][0], 3);
    EXPECT_EQ(reversed[1][2], 2 + 2);
    std::vector<std::array<float, 3>> sums(4);
    ASSERT_TRUE(add(as_vectors<3>(memory, 4, object_bytes(0)), as_vectors<3>(memory, 4), sums));
    EXPECT_EQ(sums[3][2], 2.f + 11.f);
}

TEST(Views, SizesKnownAtRunTime) {
    const std::size_t n = 5;
    std::vector<double> a(n * n), b(n), c(n);
    for (std::size_t i = 0; i < n * n; ++i) {
        a[i] = static_cast<double>(i % 7);
    }
    for (std::size_t i = 0; i < n; ++i) {
        b[i] = static_cast<double>(i) - 2;
    }
    ASSERT_TRUE(mul(as_matrix(a.data(), shape{n, n}), b, c));
    for (std::size_t i = 0; i < n; ++i) {
        double sum = 0;
        for (std::size_t t = 0; t < n; ++t) {
            sum += a[i * n + t] * b[t];
        }
        EXPECT_EQ(c[i], sum);
    }
    std::vector<double> shorter(n - 1);
    EXPECT_EQ(mul(as_matrix(a.data(), shape{n, n}), b, shorter).status(), ZELM_ERR_SIZE);
    EXPECT_EQ(add(b, shorter, c).status(), ZELM_ERR_SIZE);
    EXPECT_EQ(as_vector(a.data(), length(3)).columns(), 3u);
}

TEST(Views, ColumnByColumn) {
    // Two matrices of 2 rows and 3 columns.
    float stored[2][3][2] = {{{1, 4}, {2, 5}, {3, 6}}, {{7, 10}, {8, 11}, {9, 12}}};
    float rows[2][2][3];
    ASSERT_TRUE(copy(column_major(stored), rows));
    EXPECT_EQ(rows[0][0][2], 3);
    EXPECT_EQ(rows[0][1][0], 4);
    EXPECT_EQ(rows[1][1][1], 11);
    float product[2][2][2];
    ASSERT_TRUE(mul(column_major(stored), transposed(column_major(stored)), product));
    EXPECT_EQ(product[0][0][1], 1 * 4 + 2 * 5 + 3 * 6);
}

TEST(Views, EmptyContainersDoNothing) {
    std::vector<Particle> none;
    std::vector<float> lengths;
    EXPECT_TRUE(norm(field(none, &Particle::state, &State::velocity), lengths));
    std::vector<std::array<std::array<double, 3>, 3>> a, b;
    EXPECT_TRUE(inverse(a, b));
    EXPECT_TRUE(cholesky(a, cholesky_factor(b))); // an error of the C function
    EXPECT_TRUE(identity(a));
}

} // namespace
