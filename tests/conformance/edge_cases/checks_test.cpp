// The order in which arguments are examined.
#include "zelm.h"

#include <gtest/gtest.h>

namespace {

constexpr std::int32_t f = sizeof(float);

TEST(Checks, ANullPointerComesBeforeAZeroDimension) {
    const float source[] = {1, 2, 3};
    float result[] = {7, 7, 7};
    EXPECT_EQ(zelmAdd_vv_32f(nullptr, source, result, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmAdd_vv_32f(source, nullptr, result, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmAdd_vv_32f(source, source, nullptr, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmAdd_vv_32f(source, source, result, 0), ZELM_ERR_SIZE);

    std::uint32_t pivots[3];
    EXPECT_EQ(zelmLUDecomp_m_32f(source, 12, nullptr, result, 12, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLUDecomp_m_32f(source, 12, pivots, result, 12, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmLUBackSubst_mv_32f(source, 12, pivots, nullptr, result, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmLUBackSubst_mv_32f(source, 12, pivots, source, result, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(result[0], 7);
}

TEST(Checks, AZeroDimensionComesBeforeAZeroCount) {
    const float source[] = {1, 2, 3};
    float result[] = {7, 7, 7};
    EXPECT_EQ(zelmAdd_vac_32f(source, 3 * f, 1, result, 3 * f, 0, 0), ZELM_ERR_SIZE);
    std::uint32_t pivots[3];
    EXPECT_EQ(zelmLUDecomp_ma_32f(source, 36, 12, pivots, result, 36, 12, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmLUDecomp_ma_32f(source, 36, 12, pivots, result, 36, 12, 1, 0), ZELM_OK);
    EXPECT_EQ(result[0], 7);
}

TEST(Checks, ANullEntryOfAPFormComesBeforeAZeroCount) {
    const float source[] = {1, 2, 3};
    float result[] = {7, 7, 7};
    const float *const sources[] = {&source[0], &source[1], nullptr};
    float *const results[] = {&result[0], &result[1], &result[2]};
    EXPECT_EQ(zelmAdd_vac_32f_3x1_P(sources, 0, 1, results, 0, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmAdd_vac_32f_PS2(sources, 0, f, 1, results, 0, f, 3, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmAdd_vac_32f_PS2(sources, 0, f, 1, results, 0, f, 2, 0), ZELM_OK);
}

TEST(Checks, ANullEntryOfAnLFormIsNotReachedByAZeroCount) {
    float result[] = {7, 7, 7};
    const float *const sources[] = {nullptr};
    float *const results[] = {result};
    EXPECT_EQ(zelmAdd_vac_32f_3x1_L(sources, 0, 1, results, 0, 0), ZELM_OK);
    EXPECT_EQ(zelmAdd_vac_32f_3x1_L(sources, 0, 1, results, 0, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result[0], 7);
}

} // namespace
