#include "zelm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// Rows of one page each: the diagonal of a 3x3 whose other elements lie on pages that can't be read would
// need elements as large as pages, so a table says where they are.
TEST(Trace, NeverReadsBesideTheDiagonal) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    auto *const forbidden =
        static_cast<double *>(mmap(nullptr, page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(forbidden, MAP_FAILED);
    const double diagonal[3] = {1, 10, 100};
    const double *table[9];
    for (int e = 0; e < 9; ++e)
        table[e] = e % 4 == 0 ? &diagonal[e / 4] : forbidden;
    double dst[2] = {};
    ASSERT_EQ(zelmTrace_m_64f_3x3_P(table, 0, dst), ZELM_OK);
    EXPECT_EQ(dst[0], 111);
    ASSERT_EQ(zelmTrace_m_64f_P(table, 0, 3, dst), ZELM_OK);
    EXPECT_EQ(dst[0], 111);
    ASSERT_EQ(zelmTrace_ma_64f_3x3_PS2(table, 0, 0, dst, 2), ZELM_OK);
    EXPECT_EQ(dst[1], 111);
    munmap(forbidden, page);
}

// A standard matrix that ends behind its last diagonal element, or begins with its first, against a page that
// can't be read: the elements before and behind are not touched.
TEST(Trace, ReadsNothingBehindTheLastDiagonalElement) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    auto *const memory = static_cast<char *>(
        mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(memory, MAP_FAILED);
    ASSERT_EQ(mprotect(memory + page, page, PROT_NONE), 0);
    // A negative row stride puts row 0 last: its element (0, 0) is the last that may be read.
    auto *const first = reinterpret_cast<float *>(memory + page) - 1;
    first[0] = 1, first[-3] = 10, first[-6] = 100; // (i, i) at i*(-16) + i*4 bytes
    float dst;
    ASSERT_EQ(zelmTrace_m_32f_3x3(first, -16, &dst), ZELM_OK);
    EXPECT_EQ(dst, 111);
    munmap(memory, 2 * page);
}

TEST(Trace, StoresPartialSumsButInTheFixedStandardForms) {
    const float one = 1, two = 2;
    const float *table[9] = {&one, &one, &one, &one, &two, &one, &one, &one, nullptr};
    float dst = 9;
    EXPECT_EQ(zelmTrace_m_32f_3x3_P(table, 0, &dst), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(dst, 3); // (0 + 1) + 2
    table[0] = nullptr;
    dst = 9;
    EXPECT_EQ(zelmTrace_m_32f_3x3_P(table, 0, &dst), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(dst, 0);
}

TEST(Trace, AResultOnTheDiagonalIsReadAsItIsByThen) {
    float matrix[3][3] = {{1, 0, 0}, {0, 2, 0}, {0, 0, 4}};
    ASSERT_EQ(zelmTrace_m_32f(matrix[0], 12, 3, &matrix[1][1]), ZELM_OK);
    EXPECT_EQ(matrix[1][1], 6); // 0 + 1, + 1, + 4
    matrix[1][1] = 2;
    ASSERT_EQ(zelmTrace_m_32f_3x3(matrix[0], 12, &matrix[1][1]), ZELM_OK);
    EXPECT_EQ(matrix[1][1], 7);
}

TEST(Trace, ArraysTestTheFirstEntriesOfTheTable) {
    const float x = 1;
    const float *table[9] = {&x, &x, &x, &x, &x, &x, &x, &x, &x};
    float dst = 9;
    table[1] = nullptr; // never read
    EXPECT_EQ(zelmTrace_ma_32f_3x3_P(table, 0, &dst, 1), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(dst, 9);
    table[1] = &x;
    table[4] = nullptr; // read, were there an object
    EXPECT_EQ(zelmTrace_ma_32f_3x3_P(table, 0, &dst, 0), ZELM_OK);
    table[4] = &x;
    table[3] = nullptr; // behind the first three, and off the diagonal
    EXPECT_EQ(zelmTrace_ma_32f_3x3_P(table, 0, &dst, 1), ZELM_OK);
    EXPECT_EQ(dst, 3);
}

TEST(Trace, NegativeZeros) {
    const double matrix[9] = {-0.0, 1, 1, 1, -0.0, 1, 1, 1, -0.0};
    double dst;
    ASSERT_EQ(zelmTrace_m_64f_3x3(matrix, 24, &dst), ZELM_OK);
    EXPECT_TRUE(std::signbit(dst)); // begins with the first element
    ASSERT_EQ(zelmTrace_m_64f_3x3_S2(matrix, 24, 8, &dst), ZELM_OK);
    EXPECT_FALSE(std::signbit(dst)); // begins with +0
}

} // namespace
