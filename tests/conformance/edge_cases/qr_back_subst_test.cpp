#include "extended.h"
#include "guarded_page.h"

#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

using Vector = std::array<double, 3>;

// No reflector but those of unit vectors, which turn the sign of their row.
const double upper[] = {2, 1, 1, 0, 4, 2, 0, 0, 8};

TEST(QrBackSubst, SolvesAndTurnsSigns) {
    // x = (1, 2, 3): R*x = (7, 14, 24), of which two rows were turned.
    const double b[] = {-7, -14, 24};
    Vector x{};
    double scratch[3];
    EXPECT_EQ(zelmQRBackSubst_mv_64f_3x3(upper, 3 * d, scratch, b, x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));
    x = {};
    EXPECT_EQ(zelmQRBackSubst_mv_64f(upper, 3 * d, scratch, b, x.data(), 3, 3), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));
    x = {-7, -14, 24};
    EXPECT_EQ(zelmQRBackSubst_mv_64f_3x3(upper, 3 * d, scratch, x.data(), x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{1, 2, 3}));
}

TEST(QrBackSubst, OneElementIsOneDivision) {
    const float a = 3, b = 1;
    float x = 0, scratch = 0;
    EXPECT_EQ(zelmQRBackSubst_mv_32f(&a, f, &scratch, &b, &x, 1, 1), ZELM_OK);
    EXPECT_EQ(x, 1.0f / 3.0f);
}

TEST(QrBackSubst, OneColumnIsOneReflectorAndOneDivision) {
    // v = (1, 0.5, 2), so u = 5.25; its squared norm is summed anew and need not be that of a decomposition.
    const double factor[] = {4, 0.5, 2};
    const double b[] = {1, 2, 3};
    double x[] = {7, 7}, scratch[3];
    EXPECT_EQ(zelmQRBackSubst_mv_64f(factor, d, scratch, b, x, 1, 3), ZELM_OK);
    const double t = (1 + 2 * 0.5 + 3 * 2) * (-2 / 5.25);
    EXPECT_EQ(x[0], (1 + t) / 4);
    EXPECT_EQ(x[1], 7);
}

TEST(QrBackSubst, TheFactorOfTheIdentityGivesBackB) {
    const float identity[] = {-1, 0, 0, 0, -1, 0, 0, 0, 1};
    const std::array<float, 3> b = {3, -4, 0.1f};
    std::array<float, 3> x{};
    float scratch[3];
    EXPECT_EQ(zelmQRBackSubst_mv_32f_3x3(identity, 3 * f, scratch, b.data(), x.data()), ZELM_OK);
    EXPECT_EQ(x, b);
}

TEST(QrBackSubst, TheProductsAreSummedBeforeTheyAreSubtracted) {
    // After the turned sign 1e16 - (1e16 + 1), where 1e16 + 1 is 1e16 again.
    const double factor[] = {1, 1e16, 1, 0, 1, 0, 0, 0, 1};
    const double b[] = {-1e16, -1, 1};
    Vector x{};
    double scratch[3];
    EXPECT_EQ(zelmQRBackSubst_mv_64f_3x3(factor, 3 * d, scratch, b, x.data()), ZELM_OK);
    EXPECT_EQ(x, (Vector{0, 1, 1})); // subtracted one by one it would be -1
    EXPECT_EQ(zelmQRBackSubst_mv_64f(factor, 3 * d, scratch, b, x.data(), 3, 3), ZELM_OK);
    EXPECT_EQ(x, (Vector{0, 1, 1}));
}

TEST(QrBackSubst, AZeroDiagonalIsNoFailure) {
    const double singular[] = {1, 1, 1, 0, 1, 0, 0, 0, 0};
    const double b[] = {1, -1, 2};
    Vector x{};
    double scratch[3];
    EXPECT_EQ(zelmQRBackSubst_mv_64f_3x3(singular, 3 * d, scratch, b, x.data()), ZELM_OK);
    EXPECT_EQ(x[2], std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(x[1])); // 0 * infinity
    EXPECT_TRUE(std::isnan(x[0]));
}

TEST(QrBackSubst, MvaNeverReadsTheObjectStrideOfItsMatrix) {
    const std::array<double, 15> expected = {1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3};
    const double b[] = {-7, -14, 24, -7, -14, 24, -7, -14, 24, -7, -14, 24, -7, -14, 24};
    const double *const sources[] = {b, b, b, b, b};
    double scratch[3];
    for (const std::int32_t stride : {0, 9 * d, -1, INT32_MAX, INT32_MIN}) {
        std::array<double, 15> x{};
        double *const results[] = {&x[0], &x[3], &x[6], &x[9], &x[12]};
        EXPECT_EQ(zelmQRBackSubst_mva_64f_3x3(upper, stride, 3 * d, scratch, b, 3 * d, x.data(), 3 * d, 5),
                  ZELM_OK);
        EXPECT_EQ(x, expected) << stride;
        x = {};
        EXPECT_EQ(zelmQRBackSubst_mva_64f_S2(upper, stride, 3 * d, d, scratch, b, 3 * d, d, x.data(), 3 * d,
                                             d, 3, 3, 5),
                  ZELM_OK);
        EXPECT_EQ(x, expected) << stride;
        x = {};
        EXPECT_EQ(zelmQRBackSubst_mva_64f_L(upper, stride, 3 * d, scratch, sources, 0, results, 0, 3, 3, 5),
                  ZELM_OK);
        EXPECT_EQ(x, expected) << stride;
        x = {};
        EXPECT_EQ(zelmQRBackSubst_mva_64f_3x3_LS2(upper, stride, 3 * d, d, scratch, sources, 0, d, results, 0,
                                                  d, 5),
                  ZELM_OK);
        EXPECT_EQ(x, expected) << stride;
    }
}

TEST(QrBackSubst, PointersThenSizesThenTablesThenTheCount) {
    const float one = 1;
    float x = 7, scratch[3];
    EXPECT_EQ(zelmQRBackSubst_mv_32f(&one, f, nullptr, &one, &x, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmQRBackSubst_mva_32f(&one, f, f, scratch, &one, f, &x, f, 0, 1, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmQRBackSubst_mva_32f(&one, f, f, scratch, &one, f, &x, f, 1, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmQRBackSubst_mva_32f(&one, f, f, scratch, &one, f, &x, f, 1, 1, 0), ZELM_OK);

    std::array<const float *, 9> matrix{};
    matrix.fill(&one);
    std::array<const float *, 3> source = {&one, &one, &one};
    std::array<float *, 3> result = {&x, &x, &x};
    const auto expectNull = [&] {
        EXPECT_EQ(zelmQRBackSubst_mv_32f_3x3_P(matrix.data(), 0, scratch, source.data(), 0, result.data(), 0),
                  ZELM_ERR_NULL_PTR);
        EXPECT_EQ(
            zelmQRBackSubst_mva_32f_3x3_P(matrix.data(), 0, scratch, source.data(), 0, result.data(), 0, 0),
            ZELM_ERR_NULL_PTR);
        EXPECT_EQ(zelmQRBackSubst_mava_32f_PS2(matrix.data(), 0, f, scratch, source.data(), 0, f,
                                               result.data(), 0, f, 3, 3, 0),
                  ZELM_ERR_NULL_PTR);
    };
    matrix[8] = nullptr;
    expectNull();
    matrix[8] = &one;
    source[2] = nullptr;
    expectNull();
    source[2] = &one;
    result[1] = nullptr;
    expectNull();
    EXPECT_EQ(x, 7);
}

TEST(QrBackSubst, TheTailOfATallSystemsTableIsNotTested) {
    // Two columns, three rows: entry 2 of the table of b is null.
    const float one = 1;
    float x = 7, scratch[3];
    const float *const matrix[] = {&one, &one, &one, &one, &one, &one};
    const float *const source[] = {&one, &one, nullptr};
    float *const result[] = {&x, &x};
    EXPECT_EQ(zelmQRBackSubst_mva_32f_P(matrix, 0, scratch, source, 0, result, 0, 2, 3, 0), ZELM_OK);
    EXPECT_EQ(zelmQRBackSubst_mva_32f_PS2(matrix, 0, scratch, source, 0, f, result, 0, f, 2, 3, 0), ZELM_OK);
    EXPECT_EQ(zelmQRBackSubst_mava_32f_P(matrix, 0, scratch, source, 0, result, 0, 2, 3, 0), ZELM_OK);
    EXPECT_EQ(x, 7);
    const float *const short_[] = {&one, nullptr, &one};
    EXPECT_EQ(zelmQRBackSubst_mv_32f_P(matrix, 0, scratch, short_, 0, result, 0, 2, 3), ZELM_ERR_NULL_PTR);
}

#ifdef __i386__

TEST(QrBackSubst, ANullEntryInTheTailIsFollowed) {
    // Here a shift reaches every address: the null entry leads to `last`, the others before it.
    const double b[] = {1, 2, 3};
    const auto shift = static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(&b[2]));
    const std::uintptr_t before[] = {0u - 2 * d, 0u - d, 0};
    const auto *source = reinterpret_cast<const double *const *>(before);
    const double factor[] = {4, 1, 0.5, 2, 2, 0.25};
    const double *const matrix[] = {&factor[0], &factor[1], &factor[2], &factor[3], &factor[4], &factor[5]};
    double x[2] = {}, expected[2] = {}, scratch[3];
    double *const result[] = {&x[0], &x[1]};
    EXPECT_EQ(zelmQRBackSubst_mv_64f(factor, 2 * d, scratch, b, expected, 2, 3), ZELM_OK);
    EXPECT_EQ(zelmQRBackSubst_mv_64f_P(matrix, 0, scratch, source, shift, result, 0, 2, 3), ZELM_OK);
    EXPECT_EQ(std::to_array(x), std::to_array(expected));
    x[0] = x[1] = 0;
    EXPECT_EQ(zelmQRBackSubst_mva_64f_P(matrix, 0, scratch, source, shift, result, 0, 2, 3, 1), ZELM_OK);
    EXPECT_EQ(std::to_array(x), std::to_array(expected));
}

#endif

TEST(QrBackSubst, AListIsTestedEntryByEntryBeforeTheShift) {
    const double factor[] = {99, 4}, b[] = {99, 8};
    std::array<double, 4> x{};
    x.fill(7);
    double scratch[1];
    const double *const factors[] = {factor, nullptr};
    const double *const sources[] = {b, b};
    double *const results[] = {&x[0], &x[1]};
    EXPECT_EQ(zelmQRBackSubst_mava_64f_L(factors, d, d, scratch, sources, d, results, d, 1, 1, 2),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(x, (std::array<double, 4>{7, 2, 7, 7}));
    x.fill(7);
    const double *const nullSecond[] = {b, nullptr};
    EXPECT_EQ(
        zelmQRBackSubst_mva_64f_LS2(&factor[1], 0, d, d, scratch, nullSecond, d, d, results, d, d, 1, 1, 2),
        ZELM_ERR_NULL_PTR);
    EXPECT_EQ(x, (std::array<double, 4>{7, 2, 7, 7}));
}

TEST(QrBackSubst, ScratchIsAsLongAsB) {
    const GuardedPage page;
    extended::Numbers numbers;
    for (std::uint32_t height = 1; height <= 30; ++height)
        for (std::uint32_t width = 1; width <= std::min(height, 8u); ++width) {
            constexpr std::uint32_t count = 9;
            const std::vector<double> factor = numbers.draw<double>(width * height),
                                      b = numbers.draw<double>(count * height);
            std::vector<double> x(count * width), single(width);
            double *const scratch = page.last<double>(height);
            *(scratch - 1) = 7;
            const std::int32_t row = static_cast<std::int32_t>(width) * d,
                               column = static_cast<std::int32_t>(height) * d;
            EXPECT_EQ(zelmQRBackSubst_mva_64f(factor.data(), 0, row, scratch, b.data(), column, x.data(), row,
                                              width, height, count),
                      ZELM_OK);
            EXPECT_EQ(
                zelmQRBackSubst_mv_64f(factor.data(), row, scratch, b.data(), single.data(), width, height),
                ZELM_OK);
            EXPECT_TRUE(std::equal(single.begin(), single.end(), x.begin()));
            EXPECT_EQ(*(scratch - 1), 7);
        }
    const std::vector<float> factors = numbers.draw<float>(9 * 16), b = numbers.draw<float>(9 * 4);
    std::vector<float> x(9 * 4);
    EXPECT_EQ(zelmQRBackSubst_mava_32f_4x4(factors.data(), 16 * f, 4 * f, page.last<float>(4), b.data(),
                                           4 * f, x.data(), 4 * f, 9),
              ZELM_OK);
}

// |x - exact x| <= 8*height*u*cond(A)*(|exact x| + cond(A)*|b - A*x|/|A|), against normal equations in 80
// bits. The second term is the least squares problem's own sensitivity, and nothing where A is square.
template <class T, class Decompose, class Solve>
void expectSmallError(Decompose decompose, Solve solve) {
    extended::Numbers numbers;
    for (const auto &[width, height] : {std::pair{1u, 1u},
                                        {2u, 2u},
                                        {3u, 3u},
                                        {4u, 4u},
                                        {5u, 5u},
                                        {6u, 6u},
                                        {8u, 8u},
                                        {1u, 3u},
                                        {3u, 5u},
                                        {6u, 25u}})
        for (int repetition = 0; repetition < 50; ++repetition) {
            const std::vector<T> matrix = numbers.draw<T>(width * height), right = numbers.draw<T>(height);
            std::vector<T> factor(width * height), scratch(height), result(width);
            const auto row = static_cast<std::int32_t>(width * sizeof(T));
            ASSERT_EQ(decompose(matrix.data(), row, scratch.data(), factor.data(), row, width, height),
                      ZELM_OK);
            ASSERT_EQ(solve(factor.data(), row, scratch.data(), right.data(), result.data(), width, height),
                      ZELM_OK);

            const extended::Matrix a(matrix, width), b(right, 1), computed(result, 1);
            const extended::Matrix at = extended::transposed(a);
            const extended::Matrix exact = extended::solution(at * a, at * b);
            const long double condition = extended::norm(a) * extended::norm(extended::solution(at * a, at));
            const long double residual = width == height ? 0 : extended::norm(b - a * exact);
            EXPECT_LE(extended::norm(computed - exact),
                      8 * height * extended::unitRoundoff<T> * condition *
                          (extended::norm(exact) + condition * residual / extended::norm(a)))
                << width << " " << height;
        }
}

TEST(QrBackSubst, ErrorsAreOfTheConditionTimesTheUnitRoundoff) {
    expectSmallError<float>(zelmQRDecomp_m_32f, zelmQRBackSubst_mv_32f);
    expectSmallError<double>(zelmQRDecomp_m_64f, zelmQRBackSubst_mv_64f);
}

} // namespace
