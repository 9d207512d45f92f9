#include "extended.h"
#include "guarded_page.h"

#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

using Vector = std::array<double, 3>;

// L = {2; 1 4; 3 -2 1}, and what lies above its diagonal is of no use.
const double factor[] = {0.5, 99, 99, 1, 0.25, 99, 3, -2, 1};

TEST(CholeskyBackSubst, Solves) {
    const double b[] = {26, 21, 38}; // A*(1, 2, 3)
    Vector x{};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f_3x3(factor, 3 * d, b, x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));
    x = {};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(factor, 3 * d, b, x.data(), 3), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));
    x = {26, 21, 38};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f_3x3(factor, 3 * d, x.data(), x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));
}

TEST(CholeskyBackSubst, OneUnknownIsMultipliedTwice) {
    const double reciprocal = 1e200, b = 1e-200;
    double x = 0;
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(&reciprocal, d, &b, &x, 1), ZELM_OK);
    EXPECT_EQ(x, 1e-200 * 1e200 * 1e200); // 1e200 * 1e200 would be infinite
}

TEST(CholeskyBackSubst, TheIdentityLeavesB) {
    const float identity[] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const std::array<float, 3> b = {3, -4, 0.1f};
    std::array<float, 3> x{};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_32f_3x3(identity, 3 * f, b.data(), x.data()), ZELM_OK);
    EXPECT_EQ(x, b);
}

TEST(CholeskyBackSubst, AZeroDiagonalIsNoFailure) {
    const double zeros[] = {1, 0, 1, 0};
    const double b[] = {5, std::numeric_limits<double>::infinity()};
    double x[2] = {};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(zeros, 2 * d, b, x, 2), ZELM_OK);
    EXPECT_TRUE(std::isnan(x[1])); // infinity * 0
    EXPECT_TRUE(std::isnan(x[0]));
    const double finite[] = {5, 6};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(zeros, 2 * d, finite, x, 2), ZELM_OK);
    EXPECT_EQ(x[1], 0);
    EXPECT_EQ(x[0], 5);
}

TEST(CholeskyBackSubst, TheSecondPassSubtractsFromTheLastOn) {
    // y = (1e16, 1e16, 2), so x[0] is 1e16 less 0.5 * 2, which is 1e16 again, less 1e16. Taken from the first
    // on it would be -1.
    const double lower[] = {1, 0, 0, 1, 1, 0, 0.5, 0, 1};
    const double b[] = {1e16, 2e16, 5e15 + 2};
    Vector x{};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f_3x3(lower, 3 * d, b, x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{0, 1e16, 2}));
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(lower, 3 * d, b, x.data(), 3), ZELM_OK);
    EXPECT_EQ(x, (Vector{0, 1e16, 2}));
}

TEST(CholeskyBackSubst, ReadsNothingAboveTheDiagonal) {
    // Element (i, j) lies i - j elements before the end of a page: L has 1 everywhere.
    const GuardedPage page;
    double *const diagonal = page.last<double>(1);
    for (int i = 0; i < 8; ++i)
        *(diagonal - i) = 1;
    for (std::int32_t n = 1; n <= 8; ++n) {
        // y = (1, 0, 0, ...), so x = (1, 0, 0, ...), in each of several objects
        std::vector<double> b(64, 1), x(64, 7);
        EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(diagonal, -d, b.data(), x.data(), n), ZELM_OK);
        for (std::int32_t i = 0; i < n; ++i)
            EXPECT_EQ(x[static_cast<std::size_t>(i)], i == 0);
        EXPECT_EQ(zelmCholeskyBackSubst_mva_64f(diagonal, -d, b.data(), 8 * d, x.data(), 8 * d, n, 8),
                  ZELM_OK);
        for (std::int32_t e = 0; e < 64; ++e)
            EXPECT_EQ(x[static_cast<std::size_t>(e)], e % 8 >= n ? 7 : e % 8 == 0);
        EXPECT_EQ(zelmCholeskyBackSubst_mava_64f(diagonal, 0, -d, b.data(), 8 * d, x.data(), 8 * d, n, 8),
                  ZELM_OK);
        for (std::int32_t e = 0; e < 64; ++e)
            EXPECT_EQ(x[static_cast<std::size_t>(e)], e % 8 >= n ? 7 : e % 8 == 0);
    }
}

TEST(CholeskyBackSubst, PointersThenSizesThenSigns) {
    const double one = 1;
    double x = 7;
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(nullptr, d, &one, &x, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmCholeskyBackSubst_mva_64f(&one, d, &one, d, nullptr, d, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(&one, d, &one, &x, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmCholeskyBackSubst_mva_64f(&one, d, &one, d, &x, d, 1, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmCholeskyBackSubst_mva_64f(&one, d, &one, d, &x, d, 0, -1), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmCholeskyBackSubst_mva_64f(&one, d, &one, d, &x, d, -1, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_3x3(&one, d, d, &one, d, &x, d, 0), ZELM_ERR_SIZE);

    const double *const sources[] = {&one};
    double *const results[] = {&x};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f(&one, d, &one, &x, -1), ZELM_OK);
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f_S2(&one, d, d, &one, d, &x, d, INT32_MIN), ZELM_OK);
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f_P(sources, 0, sources, 0, results, 0, -3), ZELM_OK);
    EXPECT_EQ(zelmCholeskyBackSubst_mava_64f(&one, d, d, &one, d, &x, d, -1, 1), ZELM_OK);
    EXPECT_EQ(zelmCholeskyBackSubst_mava_64f(&one, d, d, &one, d, &x, d, 1, -1), ZELM_OK);
    EXPECT_EQ(zelmCholeskyBackSubst_mva_64f_P(sources, 0, sources, 0, results, 0, 1, -1), ZELM_OK);
    EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_PS2(sources, 0, d, sources, 0, d, results, 0, d, 1, INT32_MIN),
              ZELM_OK);
    EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_6x6_L(sources, 0, d, sources, 0, results, 0, -1), ZELM_OK);
    EXPECT_EQ(x, 7);
}

TEST(CholeskyBackSubst, AnEntryAndItsShiftThatComeToNullArePassedOver) {
    const double reciprocal = 0.5, b = 8;
    for (const std::int32_t shift : {0, d, -d}) {
        const auto entry = [&](const void *address) {
            return reinterpret_cast<std::uintptr_t>(address) -
                   static_cast<std::uintptr_t>(std::intptr_t{shift});
        };
        std::array<double, 4> x{};
        x.fill(7);
        const std::uintptr_t factors[] = {entry(&reciprocal), entry(nullptr), entry(&reciprocal),
                                          entry(&reciprocal)};
        const std::uintptr_t sources[] = {entry(&b), entry(&b), entry(nullptr), entry(&b)};
        const std::uintptr_t results[] = {entry(&x[0]), entry(&x[1]), entry(&x[2]), entry(&x[3])};
        const auto *src1 = reinterpret_cast<const double *const *>(factors);
        const auto *src2 = reinterpret_cast<const double *const *>(sources);
        auto *dst = reinterpret_cast<double *const *>(results);
        EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_L(src1, shift, d, src2, shift, dst, shift, 1, 4), ZELM_OK);
        EXPECT_EQ(x, (std::array<double, 4>{2, 7, 7, 2}));
        x.fill(7);
        EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_LS2(src1, shift, d, d, src2, shift, d, dst, shift, d, 1, 4),
                  ZELM_OK);
        EXPECT_EQ(x, (std::array<double, 4>{2, 7, 7, 2}));
        x.fill(7);
        EXPECT_EQ(zelmCholeskyBackSubst_mva_64f_L(&reciprocal, d, src2, shift, dst, shift, 1, 4), ZELM_OK);
        EXPECT_EQ(x, (std::array<double, 4>{2, 2, 7, 2}));
    }
}

#ifdef __i386__

// Here a shift reaches every address.
std::int32_t reaching(const void *address) {
    return static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(address));
}

TEST(CholeskyBackSubst, ANullEntryIsFollowed) {
    const double reciprocal = 0.5, b = 8;
    double x = 0;
    const double *const sources[] = {nullptr};
    double *const results[] = {nullptr};
    EXPECT_EQ(zelmCholeskyBackSubst_mv_64f_P(sources, reaching(&reciprocal), sources, reaching(&b), results,
                                             reaching(&x), 1),
              ZELM_OK);
    EXPECT_EQ(x, 2);
    x = 0;
    EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_P(sources, reaching(&reciprocal), sources, reaching(&b), results,
                                               reaching(&x), 1, 1),
              ZELM_OK);
    EXPECT_EQ(x, 2);
    x = 0;
    EXPECT_EQ(
        zelmCholeskyBackSubst_mva_64f_L(&reciprocal, d, sources, reaching(&b), results, reaching(&x), 1, 1),
        ZELM_OK);
    EXPECT_EQ(x, 2);
}

TEST(CholeskyBackSubst, AStrideThatComesToNullIsPassedOver) {
    const double reciprocal = 0.5, b[] = {8, 8, 8};
    double x[] = {7, 7};
    EXPECT_EQ(zelmCholeskyBackSubst_mva_64f(&reciprocal, d, b, -reaching(b), x, d, 1, 2), ZELM_OK);
    EXPECT_EQ(x[0], 2);
    EXPECT_EQ(x[1], 7);
}

#endif

// |x - exact x| <= 8*n*u*cond(A)*|exact x|, through both calls and as an array.
template <class T, class Decompose, class Solve>
void expectSmallError(Decompose decompose, Solve solve) {
    extended::Numbers numbers;
    for (std::uint32_t n = 1; n <= 8; ++n) {
        constexpr std::uint32_t count = 50;
        std::vector<T> matrices, factors(count * n * n), x(count * n);
        for (std::uint32_t k = 0; k < count; ++k) {
            const extended::Matrix g(numbers.draw<T>(n * (n + 2)), n + 2);
            const extended::Matrix product = g * extended::transposed(g);
            for (const long double element : product.elements)
                matrices.push_back(static_cast<T>(element));
        }
        const std::vector<T> b = numbers.draw<T>(count * n);
        const auto row = static_cast<std::int32_t>(n * sizeof(T));
        const auto object = static_cast<std::int32_t>(n) * row, order = static_cast<std::int32_t>(n);
        ASSERT_EQ(decompose(matrices.data(), object, row, factors.data(), object, row, n, count), ZELM_OK);
        ASSERT_EQ(solve(factors.data(), object, row, b.data(), row, x.data(), row, order, count), ZELM_OK);
        for (std::uint32_t k = 0; k < count; ++k) {
            const auto part = [&](const std::vector<T> &whole, std::size_t size) {
                return std::vector<T>(whole.begin() + static_cast<std::ptrdiff_t>(k * size),
                                      whole.begin() + static_cast<std::ptrdiff_t>((k + 1) * size));
            };
            const extended::Matrix a(part(matrices, n * n), n), right(part(b, n), 1), computed(part(x, n), 1);
            const extended::Matrix exact = extended::solution(a, right);
            EXPECT_LE(extended::norm(computed - exact),
                      8 * n * extended::unitRoundoff<T> * extended::condition(a) * extended::norm(exact))
                << n;
        }
    }
}

TEST(CholeskyBackSubst, ErrorsAreOfTheConditionTimesTheUnitRoundoff) {
    expectSmallError<float>(zelmCholeskyDecomp_ma_32f, zelmCholeskyBackSubst_mava_32f);
    expectSmallError<double>(zelmCholeskyDecomp_ma_64f, zelmCholeskyBackSubst_mava_64f);
}

} // namespace
