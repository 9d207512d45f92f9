// Solvers of fixed sizes at objects that start at null and rows behind a matrix, and where a quotient
// vanishes or an unknown is moved: what groups and copies in registers might do in another way.
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <sys/mman.h>
#include <vector>
#include <xmmintrin.h>

namespace {

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

// ---- arrays of whole groups whose last object starts at null: it isn't touched

constexpr std::int32_t objects = 8, step = 0x01000000;

// Memory at each multiple of the step but null.
class LowPages {
public:
    LowPages() {
        for (std::int32_t k = 1; k < objects; ++k) {
            void *const place = reinterpret_cast<void *>(static_cast<std::uintptr_t>(k * step));
            void *const got = mmap(place, 4096, PROT_READ | PROT_WRITE,
                                   MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
            if (got == place)
                ++mapped_;
        }
    }
    ~LowPages() {
        for (std::int32_t k = 1; k < objects && isComplete(); ++k)
            munmap(reinterpret_cast<void *>(static_cast<std::uintptr_t>(k * step)), 4096);
    }
    LowPages(const LowPages &) = delete;
    LowPages &operator=(const LowPages &) = delete;

    bool isComplete() const { return mapped_ == objects - 1; }
    // Object k of an array that goes down to null.
    double *object(std::int32_t k) const {
        return reinterpret_cast<double *>(static_cast<std::uintptr_t>((objects - 1 - k) * step));
    }

private:
    std::int32_t mapped_ = 0;
};

// An array of small objects, behind each other or down to null.
struct Array {
    std::vector<double> memory;
    double *start;
    std::int32_t stride;

    Array(std::size_t elements, bool goesToNull, const LowPages &low)
        : memory(elements * objects), start(goesToNull ? low.object(0) : memory.data()),
          stride(goesToNull ? -step : static_cast<std::int32_t>(elements) * d) {}
    double *object(std::int32_t k) const {
        return reinterpret_cast<double *>(
            reinterpret_cast<std::uintptr_t>(start) +
            static_cast<std::uintptr_t>(static_cast<std::intptr_t>(k) * stride));
    }
};

TEST(CholeskyEdges, SystemsWithAnObjectAtNullArePassedOver) {
    const LowPages low;
    if (!low.isComplete())
        GTEST_SKIP() << "no memory at these places";
    for (const int atNull : {0, 1, 2}) {
        const Array a(9, atNull == 0, low), b(3, atNull == 1, low), x(3, atNull == 2, low);
        const auto hasObject = [&](int operand, std::int32_t k) {
            return operand != atNull || k + 1 < objects;
        };
        for (std::int32_t k = 0; k < objects; ++k)
            for (int i = 0; i < 3; ++i) {
                if (hasObject(0, k))
                    a.object(k)[4 * i] = 0.5;
                if (hasObject(1, k))
                    b.object(k)[i] = 4 * k + i;
                if (hasObject(2, k))
                    x.object(k)[i] = 99;
            }
        EXPECT_EQ(zelmCholeskyBackSubst_mava_64f_3x3(a.start, a.stride, 3 * d, b.start, b.stride, x.start,
                                                     x.stride, objects),
                  ZELM_OK);
        for (std::int32_t k = 0; k + 1 < objects; ++k)
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(x.object(k)[i], (4 * k + i) / 4.0) << "operand " << atNull << ", object " << k;
        if (atNull != 2) {
            EXPECT_EQ(x.object(objects - 1)[0], 99);
        }
    }
}

TEST(CholeskyEdges, AMatrixAtNullEndsTheArray) {
    const LowPages low;
    if (!low.isComplete())
        GTEST_SKIP() << "no memory at these places";
    for (const int atNull : {0, 1}) {
        const Array a(9, atNull == 0, low), l(9, atNull == 1, low);
        for (std::int32_t k = 0; k < objects; ++k)
            for (int i = 0; i < 3; ++i) {
                if (atNull != 0 || k + 1 < objects)
                    a.object(k)[4 * i] = 4;
                if (atNull != 1 || k + 1 < objects)
                    l.object(k)[4 * i] = 99;
            }
        EXPECT_EQ(zelmCholeskyDecomp_ma_64f_3x3(a.start, a.stride, 3 * d, l.start, l.stride, 3 * d, objects),
                  ZELM_ERR_NULL_PTR);
        for (std::int32_t k = 0; k + 1 < objects; ++k)
            EXPECT_EQ(l.object(k)[0], 0.5) << "operand " << atNull << ", object " << k;
        if (atNull != 1) {
            EXPECT_EQ(l.object(objects - 1)[0], 99);
        }
    }
}

// ---- a row number behind the matrix leads into the next one

TEST(LUEdges, RowNumbersMayLeadIntoTheNextMatrix) {
    constexpr std::uint32_t n = 6, count = 9;
    std::vector<float> a(n * n * count), b(n * (count + 1)), x(n * count), expected = x;
    std::vector<std::uint32_t> rows(n * count);
    for (std::uint32_t e = 0; e < a.size(); ++e)
        a[e] = static_cast<float>(1 + e * e % 5);
    for (std::uint32_t e = 0; e < b.size(); ++e)
        b[e] = static_cast<float>(e % 9);
    for (std::uint32_t e = 0; e < rows.size(); ++e)
        rows[e] = e % n;
    rows[4 * n + 5] = n; // the first row of matrix 5, and of its right side
    for (std::uint32_t k = 0; k < count; ++k) {
        const float *const matrix = &a[k * n * n], *const right = &b[k * n];
        float *const unknown = &expected[k * n];
        const std::uint32_t *const r = &rows[k * n];
        unknown[0] = right[r[0]];
        for (std::uint32_t i = 1; i < n; ++i) {
            float sum = 0;
            for (std::uint32_t j = 0; j < i; ++j)
                sum = sum + matrix[r[i] * n + j] * unknown[j];
            unknown[i] = right[r[i]] - sum;
        }
        for (std::uint32_t i = n; i-- > 0;) {
            float sum = 0;
            for (std::uint32_t j = i + 1; j < n; ++j)
                sum = sum + matrix[r[i] * n + j] * unknown[j];
            unknown[i] = (unknown[i] - sum) / matrix[r[i] * n + i];
        }
    }
    EXPECT_EQ(zelmLUBackSubst_mava_32f_6x6(a.data(), n * n * f, n * f, rows.data(), b.data(), n * f, x.data(),
                                           n * f, count),
              ZELM_OK);
    EXPECT_EQ(x, expected);
}

// ---- zeros with signs, and numbers that a mode flushes

class Mode {
public:
    explicit Mode(unsigned bits) : before_(_mm_getcsr()) { _mm_setcsr((before_ & ~0xe040u) | bits); }
    ~Mode() { _mm_setcsr(before_); }
    Mode(const Mode &) = delete;
    Mode &operator=(const Mode &) = delete;

private:
    unsigned before_;
};
constexpr unsigned flushToZero = 0x8000, downward = 0x2000;

// The multiplier is too small for 32 bits, and its negative is -0.
TEST(LUEdges, AMultiplierThatVanishesHasANegativeOfItsOwn) {
    const std::array<float, 9> matrix{0x1p100f, 1, 1, 0x1p-100f, 1, -0.0f, 0, 0, 1};
    std::array<float, 9 * objects> a, lu{};
    std::array<std::uint32_t, 3 * objects> rows;
    for (std::size_t e = 0; e < a.size(); ++e)
        a[e] = matrix[e % 9];
    EXPECT_EQ(zelmLUDecomp_ma_32f_3x3(a.data(), 9 * f, 3 * f, rows.data(), lu.data(), 9 * f, 3 * f, objects),
              ZELM_OK);
    for (std::size_t k = 0; k < objects; ++k) {
        EXPECT_EQ(lu[9 * k + 3], 0);
        EXPECT_TRUE(std::signbit(lu[9 * k + 5])) << "object " << k;
    }
}

TEST(LUEdges, AMultiplierThatIsFlushedHasANegativeOfItsOwn) {
    const float matrix[] = {0x1p127f, 1, 1, 1, 5, -0.0f, 0, 0, 1};
    float lu[9];
    std::uint32_t rows[3];
    ZelmStatus status;
    {
        const Mode mode(flushToZero);
        status = zelmLUDecomp_m_32f_3x3(matrix, 3 * f, rows, lu, 3 * f);
    }
    EXPECT_EQ(status, ZELM_OK);
    EXPECT_EQ(lu[3], 0);
    EXPECT_TRUE(std::signbit(lu[5]));
}

TEST(LUEdges, TheFirstUnknownIsMovedAheadOfTheOthers) {
    const float lu[] = {1, 0, 0, 0x1p100f, 1, 0, 0, 0, 1}, b[] = {0x1p-140f, 0, 0};
    const std::uint32_t rows[] = {0, 1, 2};
    float fixed[3], runTime[3];
    {
        const Mode mode(flushToZero);
        zelmLUBackSubst_mv_32f_3x3(lu, 3 * f, rows, b, fixed);
        zelmLUBackSubst_mv_32f(lu, 3 * f, rows, b, runTime, 3);
    }
    EXPECT_EQ(fixed[1], -0x1p-40f);
    EXPECT_EQ(runTime[1], -0x1p-40f);
}

// Nothing is subtracted from it: +0 - 0 is -0 when rounding down.
TEST(QREdges, TheLastUnknownIsDividedOnly) {
    std::array<float, 3 * objects> b, x{};
    for (std::size_t k = 0; k < objects; ++k)
        b[3 * k] = b[3 * k + 1] = 1, b[3 * k + 2] = 0;
    const float qr[] = {1, 0, 0, -0.0f, 1, 0, -0.0f, -0.0f, 1};
    float scratch[3];
    {
        const Mode mode(downward);
        zelmQRBackSubst_mva_32f_3x3(qr, 0, 3 * f, scratch, b.data(), 3 * f, x.data(), 3 * f, objects);
    }
    for (std::size_t k = 0; k < objects; ++k) {
        EXPECT_EQ(x[3 * k + 2], 0);
        EXPECT_FALSE(std::signbit(x[3 * k + 2])) << "object " << k;
    }
}

} // namespace
