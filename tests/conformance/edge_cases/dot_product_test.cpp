#include "copies.h"
#include "low_memory.h"
#include "sum_orders.h"
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <functional>
#include <limits>

namespace {

using edge::Copies;
using edge::LowMemory;
using edge::Numbers;
using edge::Order;

constexpr std::int32_t f = sizeof(float), d = sizeof(double);

// The fixed-size members by form, 3x1 to 6x1.
template <class T>
struct Members;

template <>
struct Members<float> {
    static constexpr std::array vv = {zelmDotProduct_vv_32f_3x1, zelmDotProduct_vv_32f_4x1,
                                      zelmDotProduct_vv_32f_5x1, zelmDotProduct_vv_32f_6x1};
    static constexpr std::array vvS2 = {zelmDotProduct_vv_32f_3x1_S2, zelmDotProduct_vv_32f_4x1_S2,
                                        zelmDotProduct_vv_32f_5x1_S2, zelmDotProduct_vv_32f_6x1_S2};
    static constexpr std::array vvP = {zelmDotProduct_vv_32f_3x1_P, zelmDotProduct_vv_32f_4x1_P,
                                       zelmDotProduct_vv_32f_5x1_P, zelmDotProduct_vv_32f_6x1_P};
    static constexpr std::array vav = {zelmDotProduct_vav_32f_3x1, zelmDotProduct_vav_32f_4x1,
                                       zelmDotProduct_vav_32f_5x1, zelmDotProduct_vav_32f_6x1};
    static constexpr std::array vavS2 = {zelmDotProduct_vav_32f_3x1_S2, zelmDotProduct_vav_32f_4x1_S2,
                                         zelmDotProduct_vav_32f_5x1_S2, zelmDotProduct_vav_32f_6x1_S2};
    static constexpr std::array vavP = {zelmDotProduct_vav_32f_3x1_P, zelmDotProduct_vav_32f_4x1_P,
                                        zelmDotProduct_vav_32f_5x1_P, zelmDotProduct_vav_32f_6x1_P};
    static constexpr std::array vavL = {zelmDotProduct_vav_32f_3x1_L, zelmDotProduct_vav_32f_4x1_L,
                                        zelmDotProduct_vav_32f_5x1_L, zelmDotProduct_vav_32f_6x1_L};
    static constexpr std::array vavPS2 = {zelmDotProduct_vav_32f_3x1_PS2, zelmDotProduct_vav_32f_4x1_PS2,
                                          zelmDotProduct_vav_32f_5x1_PS2, zelmDotProduct_vav_32f_6x1_PS2};
    static constexpr std::array vavLS2 = {zelmDotProduct_vav_32f_3x1_LS2, zelmDotProduct_vav_32f_4x1_LS2,
                                          zelmDotProduct_vav_32f_5x1_LS2, zelmDotProduct_vav_32f_6x1_LS2};
    static constexpr std::array vava = {zelmDotProduct_vava_32f_3x1, zelmDotProduct_vava_32f_4x1,
                                        zelmDotProduct_vava_32f_5x1, zelmDotProduct_vava_32f_6x1};
    static constexpr std::array vavaS2 = {zelmDotProduct_vava_32f_3x1_S2, zelmDotProduct_vava_32f_4x1_S2,
                                          zelmDotProduct_vava_32f_5x1_S2, zelmDotProduct_vava_32f_6x1_S2};
    static constexpr std::array vavaP = {zelmDotProduct_vava_32f_3x1_P, zelmDotProduct_vava_32f_4x1_P,
                                         zelmDotProduct_vava_32f_5x1_P, zelmDotProduct_vava_32f_6x1_P};
    static constexpr std::array vavaL = {zelmDotProduct_vava_32f_3x1_L, zelmDotProduct_vava_32f_4x1_L,
                                         zelmDotProduct_vava_32f_5x1_L, zelmDotProduct_vava_32f_6x1_L};
    static constexpr std::array vavaPS2 = {zelmDotProduct_vava_32f_3x1_PS2, zelmDotProduct_vava_32f_4x1_PS2,
                                           zelmDotProduct_vava_32f_5x1_PS2, zelmDotProduct_vava_32f_6x1_PS2};
    static constexpr std::array vavaLS2 = {zelmDotProduct_vava_32f_3x1_LS2, zelmDotProduct_vava_32f_4x1_LS2,
                                           zelmDotProduct_vava_32f_5x1_LS2, zelmDotProduct_vava_32f_6x1_LS2};
};

template <>
struct Members<double> {
    static constexpr std::array vv = {zelmDotProduct_vv_64f_3x1, zelmDotProduct_vv_64f_4x1,
                                      zelmDotProduct_vv_64f_5x1, zelmDotProduct_vv_64f_6x1};
    static constexpr std::array vvS2 = {zelmDotProduct_vv_64f_3x1_S2, zelmDotProduct_vv_64f_4x1_S2,
                                        zelmDotProduct_vv_64f_5x1_S2, zelmDotProduct_vv_64f_6x1_S2};
    static constexpr std::array vvP = {zelmDotProduct_vv_64f_3x1_P, zelmDotProduct_vv_64f_4x1_P,
                                       zelmDotProduct_vv_64f_5x1_P, zelmDotProduct_vv_64f_6x1_P};
    static constexpr std::array vav = {zelmDotProduct_vav_64f_3x1, zelmDotProduct_vav_64f_4x1,
                                       zelmDotProduct_vav_64f_5x1, zelmDotProduct_vav_64f_6x1};
    static constexpr std::array vavS2 = {zelmDotProduct_vav_64f_3x1_S2, zelmDotProduct_vav_64f_4x1_S2,
                                         zelmDotProduct_vav_64f_5x1_S2, zelmDotProduct_vav_64f_6x1_S2};
    static constexpr std::array vavP = {zelmDotProduct_vav_64f_3x1_P, zelmDotProduct_vav_64f_4x1_P,
                                        zelmDotProduct_vav_64f_5x1_P, zelmDotProduct_vav_64f_6x1_P};
    static constexpr std::array vavL = {zelmDotProduct_vav_64f_3x1_L, zelmDotProduct_vav_64f_4x1_L,
                                        zelmDotProduct_vav_64f_5x1_L, zelmDotProduct_vav_64f_6x1_L};
    static constexpr std::array vavPS2 = {zelmDotProduct_vav_64f_3x1_PS2, zelmDotProduct_vav_64f_4x1_PS2,
                                          zelmDotProduct_vav_64f_5x1_PS2, zelmDotProduct_vav_64f_6x1_PS2};
    static constexpr std::array vavLS2 = {zelmDotProduct_vav_64f_3x1_LS2, zelmDotProduct_vav_64f_4x1_LS2,
                                          zelmDotProduct_vav_64f_5x1_LS2, zelmDotProduct_vav_64f_6x1_LS2};
    static constexpr std::array vava = {zelmDotProduct_vava_64f_3x1, zelmDotProduct_vava_64f_4x1,
                                        zelmDotProduct_vava_64f_5x1, zelmDotProduct_vava_64f_6x1};
    static constexpr std::array vavaS2 = {zelmDotProduct_vava_64f_3x1_S2, zelmDotProduct_vava_64f_4x1_S2,
                                          zelmDotProduct_vava_64f_5x1_S2, zelmDotProduct_vava_64f_6x1_S2};
    static constexpr std::array vavaP = {zelmDotProduct_vava_64f_3x1_P, zelmDotProduct_vava_64f_4x1_P,
                                         zelmDotProduct_vava_64f_5x1_P, zelmDotProduct_vava_64f_6x1_P};
    static constexpr std::array vavaL = {zelmDotProduct_vava_64f_3x1_L, zelmDotProduct_vava_64f_4x1_L,
                                         zelmDotProduct_vava_64f_5x1_L, zelmDotProduct_vava_64f_6x1_L};
    static constexpr std::array vavaPS2 = {zelmDotProduct_vava_64f_3x1_PS2, zelmDotProduct_vava_64f_4x1_PS2,
                                           zelmDotProduct_vava_64f_5x1_PS2, zelmDotProduct_vava_64f_6x1_PS2};
    static constexpr std::array vavaLS2 = {zelmDotProduct_vava_64f_3x1_LS2, zelmDotProduct_vava_64f_4x1_LS2,
                                           zelmDotProduct_vava_64f_5x1_LS2, zelmDotProduct_vava_64f_6x1_LS2};
};

constexpr std::uint32_t copies = 7;

// A form of all four fixed sizes: calls the member of a size on one pair, several times for an array.
template <class T>
struct Form {
    std::string_view name;
    bool adjacent; // standard or L
    std::function<ZelmStatus(std::size_t member, const Copies<T> &a, const Copies<T> &b, T *dst)> call;
};

template <class T>
std::vector<Form<T>> forms() {
    using M = Members<T>;
    using C = Copies<T>;
    constexpr std::int32_t e = sizeof(T);
    constexpr std::uint32_t n = copies;
    return {
        {"vv", true,
         [](auto m, const C &a, const C &b, T *dst) { return M::vv[m](a.data(), b.data(), dst); }},
        {"vv_S2", false,
         [](auto m, const C &a, const C &b, T *dst) { return M::vvS2[m](a.data(), e, b.data(), e, dst); }},
        {"vv_P", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vvP[m](a.byPosition(), 0, b.byPosition(), 0, dst);
         }},
        {"vav", true,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vav[m](a.data(), a.objStride(), b.data(), dst, n);
         }},
        {"vav_S2", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavS2[m](a.data(), a.objStride(), e, b.data(), e, dst, n);
         }},
        {"vav_P", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavP[m](a.byPosition(), 0, b.byPosition(), 0, dst, n);
         }},
        {"vav_L", true,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavL[m](a.byObject(), 0, b.data(), dst, n);
         }},
        {"vav_PS2", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavPS2[m](a.byElement(), 0, a.objStride(), b.byElement(), 0, dst, n);
         }},
        {"vav_LS2", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavLS2[m](a.byObject(), 0, e, b.data(), e, dst, n);
         }},
        {"vava", true,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vava[m](a.data(), a.objStride(), b.data(), b.objStride(), dst, n);
         }},
        {"vava_S2", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavaS2[m](a.data(), a.objStride(), e, b.data(), b.objStride(), e, dst, n);
         }},
        {"vava_P", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavaP[m](a.byPosition(), 0, b.byPosition(), 0, dst, n);
         }},
        {"vava_L", true,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavaL[m](a.byObject(), 0, b.byObject(), 0, dst, n);
         }},
        {"vava_PS2", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavaPS2[m](a.byElement(), 0, a.objStride(), b.byElement(), 0, b.objStride(), dst, n);
         }},
        {"vava_LS2", false,
         [](auto m, const C &a, const C &b, T *dst) {
             return M::vavaLS2[m](a.byObject(), 0, e, b.byObject(), 0, e, dst, n);
         }},
    };
}

constexpr std::array leftToRight = {"(0+1)+2", "((0+1)+2)+3", "(((0+1)+2)+3)+4", "((((0+1)+2)+3)+4)+5"};
constexpr std::array adjacent64 = {"(0+1)+2", "(0+2)+(1+3)", "((0+2)+(1+3))+4", "(0+(2+4))+(1+(3+5))"};

std::string_view orderOf(const Form<float> &form, std::size_t size) {
    if (size == 4 && (form.name == "vav" || form.name == "vav_L"))
        return "(0+1)+(2+3)";
    return leftToRight[size - 3];
}

std::string_view orderOf(const Form<double> &form, std::size_t size) {
    return (form.adjacent ? adjacent64 : leftToRight)[size - 3];
}

template <class T>
std::vector<T> products(const std::vector<T> &a, const std::vector<T> &b) {
    std::vector<T> result;
    for (std::size_t t = 0; t < a.size(); ++t)
        result.push_back(a[t] * b[t]);
    return result;
}

// Draws two vectors whose dot product in the given order is different from that in all the others.
template <class T>
T drawTelling(Numbers &numbers, std::size_t size, std::string_view formula, std::vector<T> &a,
              std::vector<T> &b) {
    const std::vector<Order<T>> orders = edge::ordersOf<T>(size);
    for (int attempt = 0; attempt < edge::mostAttempts; ++attempt) {
        a = numbers.next<T>(size, true);
        b = numbers.next<T>(size, true);
        const std::vector<T> p = products(a, b);
        const T right = orderCalled(orders, formula).sum(p.data());
        bool tells = true;
        for (const Order<T> &order : orders)
            tells = tells && (order.formula == formula || order.sum(p.data()) != right);
        if (tells)
            return right;
    }
    throw std::runtime_error("no numbers tell the orders apart");
}

template <class T>
void expectFixedSizeOrders() {
    Numbers numbers;
    for (const Form<T> &form : forms<T>())
        for (std::size_t size = 3; size <= 6; ++size)
            for (int repetition = 0; repetition < 20; ++repetition) {
                std::vector<T> a, b;
                const T expected = drawTelling(numbers, size, orderOf(form, size), a, b);
                const bool array = form.name.substr(0, 3) != "vv_" && form.name != "vv";
                std::vector<T> dst(copies + 1, T(99));
                EXPECT_EQ(form.call(size - 3, Copies(a, copies), Copies(b, copies), dst.data()), ZELM_OK);
                for (std::size_t k = 0; k < dst.size(); ++k)
                    ASSERT_EQ(dst[k], k < (array ? copies : 1) ? expected : T(99))
                        << form.name << ", size " << size << ", object " << k;
            }
}

TEST(DotProduct, FixedSizeSumsHaveTheirShapes32f) {
    expectFixedSizeOrders<float>();
}

TEST(DotProduct, FixedSizeSumsHaveTheirShapes64f) {
    expectFixedSizeOrders<double>();
}

TEST(DotProduct, FixedSizesSumByTheirOwnOrderInPlainNumbers) {
    // 1 is lost beside 2^24 in 32 bits and beside 2^53 in 64.
    const float one32[] = {1, 1, 1, 1, 1, 1}, big32 = 0x1p24f;
    const float a32[] = {big32, 1, 1, -big32};
    float r32 = 99;
    EXPECT_EQ(zelmDotProduct_vv_32f_4x1(a32, one32, &r32), ZELM_OK);
    EXPECT_EQ(r32, 0); // ((big + 1) + 1) - big
    EXPECT_EQ(zelmDotProduct_vav_32f_4x1(a32, 4 * f, one32, &r32, 1), ZELM_OK);
    EXPECT_EQ(r32, 1); // (big + 1 is not exact) + (1 - big is)
    const float b32[] = {big32, -big32, 1, 0x1p-24f};
    EXPECT_EQ(zelmDotProduct_vav_32f_4x1(b32, 4 * f, one32, &r32, 1), ZELM_OK);
    EXPECT_EQ(r32, 1);
    const float c32[] = {1, -big32, big32, 1};
    EXPECT_EQ(zelmDotProduct_vav_32f_4x1(c32, 4 * f, one32, &r32, 1), ZELM_OK);
    EXPECT_EQ(r32, 1); // (1 - big is exact) + (big + 1 is not)
    EXPECT_EQ(zelmDotProduct_vava_32f_4x1(c32, 4 * f, one32, 4 * f, &r32, 1), ZELM_OK);
    EXPECT_EQ(r32, 2); // ((1 - big) + big) + 1

    const double one64[] = {1, 1, 1, 1, 1, 1}, big64 = 0x1p53;
    double r64 = 99;
    const double four[] = {big64, 1, -big64, 1};
    EXPECT_EQ(zelmDotProduct_vv_64f_4x1(four, one64, &r64), ZELM_OK);
    EXPECT_EQ(r64, 2); // (big - big) + (1 + 1)
    EXPECT_EQ(zelmDotProduct_vv_64f_4x1_S2(four, d, one64, d, &r64), ZELM_OK);
    EXPECT_EQ(r64, 1); // ((big + 1) - big) + 1
    const double five[] = {big64, 1, 1, 1, -big64};
    EXPECT_EQ(zelmDotProduct_vv_64f_5x1(five, one64, &r64), ZELM_OK);
    EXPECT_EQ(r64, 2); // ((big + 1) + (1 + 1)) - big
    EXPECT_EQ(zelmDotProduct_vv_64f_5x1_S2(five, d, one64, d, &r64), ZELM_OK);
    EXPECT_EQ(r64, 0);
    const double six[] = {1, 1, big64, 1, -big64, 1};
    EXPECT_EQ(zelmDotProduct_vv_64f_6x1(six, one64, &r64), ZELM_OK);
    EXPECT_EQ(r64, 4); // (1 + (big - big)) + (1 + (1 + 1))
    EXPECT_EQ(zelmDotProduct_vv_64f_6x1_S2(six, d, one64, d, &r64), ZELM_OK);
    EXPECT_EQ(r64, 5); // 2 + big, + 1 is rounded up to an even neighbour, - big, + 1
}

TEST(DotProduct, RunTimeSumsBeginWithPositiveZero) {
    const float minus[] = {-0.0f, -0.0f, -0.0f}, one[] = {1, 1, 1};
    float result = 99;
    EXPECT_EQ(zelmDotProduct_vv_32f(minus, one, &result, 3), ZELM_OK);
    EXPECT_EQ(result, 0);
    EXPECT_FALSE(std::signbit(result));
    EXPECT_EQ(zelmDotProduct_vav_32f(minus, 3 * f, one, &result, 3, 1), ZELM_OK);
    EXPECT_FALSE(std::signbit(result));
    EXPECT_EQ(zelmDotProduct_vv_32f_S2(minus, f, one, f, &result, 1), ZELM_OK);
    EXPECT_FALSE(std::signbit(result));
}

template <class T>
void expectNegativeZeroOfFixedSizes() {
    for (const Form<T> &form : forms<T>())
        for (std::size_t size = 3; size <= 6; ++size) {
            std::vector<T> dst(copies, T(99));
            const Copies<T> minus(std::vector<T>(size, T(-0.0)), copies),
                one(std::vector<T>(size, 1), copies);
            EXPECT_EQ(form.call(size - 3, minus, one, dst.data()), ZELM_OK);
            EXPECT_TRUE(dst[0] == 0 && std::signbit(dst[0])) << form.name << ", size " << size;
        }
}

TEST(DotProduct, FixedSizeSumsBeginWithTheFirstTerm) {
    expectNegativeZeroOfFixedSizes<float>();
    expectNegativeZeroOfFixedSizes<double>();
}

TEST(DotProduct, EachProductIsRounded) {
    // (1 + 2^-12)^2 is 1 + 2^-11 + 2^-24; the last term is lost. A fused sum would keep it.
    const float x = 1 + 0x1p-12f;
    const float a[] = {-1, x, 0}, b[] = {1 + 0x1p-11f, x, 0};
    float result = 99;
    EXPECT_EQ(zelmDotProduct_vv_32f_3x1(a, b, &result), ZELM_OK);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(zelmDotProduct_vv_32f(a, b, &result, 3), ZELM_OK);
    EXPECT_EQ(result, 0);
}

// ---- long vectors

// Memory in which a vector of 64 elements can begin at any byte behind a multiple of 16.
template <class T>
struct Bytes {
    alignas(16) unsigned char memory[64 * sizeof(T) + 16];

    const T *at(std::size_t offset, const std::vector<T> &vector) {
        std::memcpy(memory + offset, vector.data(), vector.size() * sizeof(T));
        return reinterpret_cast<const T *>(memory + offset);
    }
};

template <class T>
T sumFrom(T sum, const T *p, std::size_t count) {
    for (std::size_t t = 0; t < count; ++t)
        sum += p[t];
    return sum;
}

// Head, eight running sums in rounds of eight, tail.
float splitSum(const std::vector<float> &p, std::size_t head) {
    float s0 = sumFrom(0.0f, p.data(), head), s1 = 0, s2 = 0, s3 = 0, s4 = 0, s5 = 0, s6 = 0, s7 = 0;
    std::size_t t = head;
    for (; t + 8 <= p.size(); t += 8) {
        s0 += p[t];
        s1 += p[t + 1];
        s2 += p[t + 2];
        s3 += p[t + 3];
        s4 += p[t + 4];
        s5 += p[t + 5];
        s6 += p[t + 6];
        s7 += p[t + 7];
    }
    return sumFrom(((s0 + s4) + (s1 + s5)) + ((s2 + s6) + (s3 + s7)), p.data() + t, p.size() - t);
}

// Head, four running sums in rounds of eight, tail.
double splitSum(const std::vector<double> &p, std::size_t head) {
    double s0 = sumFrom(0.0, p.data(), head), s1 = 0, s2 = 0, s3 = 0;
    std::size_t t = head;
    for (; t + 8 <= p.size(); t += 8) {
        s0 += p[t];
        s1 += p[t + 1];
        s2 += p[t + 2];
        s3 += p[t + 3];
        s0 += p[t + 4];
        s1 += p[t + 5];
        s2 += p[t + 6];
        s3 += p[t + 7];
    }
    return sumFrom((s0 + s2) + (s1 + s3), p.data() + t, p.size() - t);
}

// For every length and byte offset of src2: an own pair of vectors, for which the sum differs from those of
// the other ways that there are.
template <class T, class Function>
void expectLongSums(Function function) {
    constexpr std::size_t threshold = sizeof(T) == 4 ? 11 : 9;
    Numbers numbers;
    for (std::size_t len = 1; len <= 64; ++len)
        for (std::size_t offset = 0; offset < 16; ++offset) {
            const bool split = len >= threshold && offset % sizeof(T) == 0;
            const std::size_t head = (16 - offset) % 16 / sizeof(T);
            std::vector<T> a, b;
            T expected = 0;
            bool tells = false;
            for (int attempt = 0; !tells; ++attempt) {
                ASSERT_LT(attempt, edge::mostAttempts);
                a = numbers.next<T>(len, true);
                b = numbers.next<T>(len, true);
                const std::vector<T> p = products(a, b);
                const T plain = sumFrom(T(0), p.data(), len);
                expected = split ? splitSum(p, head) : plain;
                tells = !split || plain != expected;
                for (std::size_t other = 0; other < 16 / sizeof(T); ++other)
                    if (len >= 11 && !(split && other == head))
                        tells = tells && splitSum(p, other) != expected;
            }
            Bytes<T> second;
            T result = 99;
            EXPECT_EQ(function(a.data(), second.at(offset, b), &result, static_cast<std::uint32_t>(len)),
                      ZELM_OK);
            ASSERT_EQ(result, expected) << "length " << len << ", src2 at byte " << offset;
        }
}

TEST(DotProduct, EveryLengthAtEveryByte32f) {
    expectLongSums<float>(zelmDotProduct_vv_32f);
}

TEST(DotProduct, EveryLengthAtEveryByte64f) {
    expectLongSums<double>(zelmDotProduct_vv_64f);
}

TEST(DotProduct, ElevenTermsAreSplitAndTenAreNot32f) {
    alignas(16) const float one[16] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    const float big = 0x1p24f;
    const float ten[] = {big, 1, 1, 1, 1, 1, 1, 1, -big, 1},
                eleven[] = {big, 1, 1, 1, 1, 1, 1, 1, -big, 1, 1};
    float result = 99;
    EXPECT_EQ(zelmDotProduct_vv_32f(ten, one, &result, 10), ZELM_OK);
    EXPECT_EQ(result, 1); // every 1 before -big is lost
    EXPECT_EQ(zelmDotProduct_vv_32f(eleven, one, &result, 11), ZELM_OK);
    EXPECT_EQ(result, 8); // ((big + 1) + (1 + 1)) + ((1 + 1) + (1 + 1)) - big + 1 + 1
    // One term of head at byte 12, so that -big is all of the running sum s7.
    EXPECT_EQ(zelmDotProduct_vv_32f(eleven, one + 3, &result, 11), ZELM_OK);
    EXPECT_EQ(result, 7); // s0 = big + 1 is lost: ((big + 1) + (1 + 1)) + ((1 + 1) + (1 - big)) + 1 + 1
    EXPECT_EQ(zelmDotProduct_vv_32f_S2(eleven, f, one, f, &result, 11), ZELM_OK);
    EXPECT_EQ(result, 2);
    EXPECT_EQ(zelmDotProduct_vav_32f(eleven, 11 * f, one, &result, 11, 1), ZELM_OK);
    EXPECT_EQ(result, 2);
}

TEST(DotProduct, NineTermsAreSplitAndEightAreNot64f) {
    alignas(16) const double one[16] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    const double big = 0x1p53;
    const double eight[] = {big, 1, 1, 1, 1, 1, 1, -big}, nine[] = {big, 1, 1, 1, 1, 1, 1, 1, -big};
    double result = 99;
    EXPECT_EQ(zelmDotProduct_vv_64f(eight, one, &result, 8), ZELM_OK);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(zelmDotProduct_vv_64f(nine, one, &result, 9), ZELM_OK);
    EXPECT_EQ(result, 6); // ((big + 1) + 2) + (2 + 2) - big
    EXPECT_EQ(zelmDotProduct_vava_64f(nine, 9 * d, one, 9 * d, &result, 9, 1), ZELM_OK);
    EXPECT_EQ(result, 0);
}

TEST(DotProduct, NineteenTermsAtAMultipleOfSixteen) {
    Numbers numbers;
    const std::vector<float> a = numbers.next<float>(19, true), b = numbers.next<float>(19, true);
    const std::vector<float> p = products(a, b);
    Bytes<float> second;
    float result = 99, s[8];
    for (std::size_t j = 0; j < 8; ++j)
        s[j] = p[j] + p[j + 8];
    float expected = ((s[0] + s[4]) + (s[1] + s[5])) + ((s[2] + s[6]) + (s[3] + s[7]));
    expected = ((expected + p[16]) + p[17]) + p[18];
    EXPECT_EQ(zelmDotProduct_vv_32f(a.data(), second.at(0, b), &result, 19), ZELM_OK);
    EXPECT_EQ(result, expected);
}

TEST(DotProduct, TheAddressOfTheFirstVectorPlaysNoPart) {
    Numbers numbers;
    const std::vector<float> a = numbers.next<float>(40, true), b = numbers.next<float>(40, true);
    for (std::size_t second = 0; second < 16; second += 4) {
        Bytes<float> memoryOfB;
        const float *const src2 = memoryOfB.at(second, b);
        const float expected = splitSum(products(a, b), (16 - second) % 16 / 4);
        for (std::size_t first = 0; first < 16; first += 4) {
            Bytes<float> memoryOfA;
            float result = 99;
            EXPECT_EQ(zelmDotProduct_vv_32f(memoryOfA.at(first, a), src2, &result, 40), ZELM_OK);
            EXPECT_EQ(result, expected) << first << " " << second;
        }
    }
}

// ---- order of checks and table entries

TEST(DotProduct, AZeroLengthIsAnError) {
    const float x[] = {1, 2, 3};
    float result = 99;
    EXPECT_EQ(zelmDotProduct_vv_32f(x, x, &result, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmDotProduct_vav_32f(x, f, x, &result, 0, 0), ZELM_ERR_SIZE);
    EXPECT_EQ(zelmDotProduct_vv_32f(x, x, nullptr, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, 99);
}

TEST(DotProduct, AnEmptyArrayWritesNothing) {
    const double x[] = {1, 2, 3};
    double result = 99;
    const double *const table[] = {x, x + 1, nullptr};
    EXPECT_EQ(zelmDotProduct_vav_64f(x, 3 * d, x, &result, 3, 0), ZELM_OK);
    EXPECT_EQ(zelmDotProduct_vava_64f_3x1(x, 3 * d, x, 3 * d, &result, 0), ZELM_OK);
    EXPECT_EQ(zelmDotProduct_vava_64f_3x1_L(table, 0, table, 0, &result, 0), ZELM_OK);
    EXPECT_EQ(zelmDotProduct_vava_64f_3x1_P(table, 0, table, 0, &result, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmDotProduct_vav_64f_PS2(table, 0, d, table, 0, &result, 3, 0), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result, 99);
}

TEST(DotProduct, ANullPositionLeavesTheResultAlone) {
    const float x[] = {1, 2, 3};
    float result = 99;
    for (int e = 0; e < 3; ++e) {
        const float *whole[] = {x, x + 1, x + 2}, *broken[] = {x, x + 1, x + 2};
        broken[e] = nullptr;
        EXPECT_EQ(zelmDotProduct_vv_32f_3x1_P(whole, 0, broken, 0, &result), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(zelmDotProduct_vv_32f_3x1_P(broken, 0, whole, 0, &result), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(zelmDotProduct_vv_32f_P(whole, 0, broken, 0, &result, 3), ZELM_ERR_NULL_PTR);
        EXPECT_EQ(result, 99);
    }
    const float *beyond[] = {x, x + 1, nullptr};
    EXPECT_EQ(zelmDotProduct_vv_32f_P(beyond, 0, beyond, 0, &result, 2), ZELM_OK);
    EXPECT_EQ(result, 5);
}

TEST(DotProduct, ANullObjectStopsTheList) {
    const double x[] = {1, 2, 3, 4};
    const double *const table[] = {x, x, nullptr, x};
    double result[] = {99, 99, 99, 99};
    EXPECT_EQ(zelmDotProduct_vav_64f_4x1_L(table, 0, x, result, 4), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::to_array(result), (std::array<double, 4>{30, 30, 99, 99}));
    double second[] = {99, 99, 99, 99};
    EXPECT_EQ(zelmDotProduct_vava_64f_3x1_LS2(table, 0, d, table, 0, d, second, 4), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::to_array(second), (std::array<double, 4>{14, 14, 99, 99}));
}

TEST(DotProduct, Vav64f3x1LTestsAllEntriesFirst) {
    const double x[] = {1, 2, 3};
    const double *const table[] = {x, x, x, x, x, nullptr};
    double result[] = {99, 99, 99, 99, 99, 99};
    EXPECT_EQ(zelmDotProduct_vav_64f_3x1_L(table, 0, x, result, 6), ZELM_ERR_NULL_PTR);
    EXPECT_EQ(std::to_array(result), (std::array<double, 6>{99, 99, 99, 99, 99, 99}));
    EXPECT_EQ(zelmDotProduct_vav_64f_3x1_L(table, 0, x, result, 5), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<double, 6>{14, 14, 14, 14, 14, 99}));
}

// A null entry is followed: with the shift it is the address of the object.
TEST(DotProduct, Vav32f3x1LAnd4x1LTestNoEntry) {
    const LowMemory memory;
    auto *const object = memory.as<float>();
    for (int j = 0; j < 8; ++j)
        object[j] = static_cast<float>(j + 1);
    const float invariant[] = {1, 10, 100, 1000, 10000};
    const float *const table[] = {memory.entryFor(object + 4), nullptr, memory.entryFor(object + 1), nullptr,
                                  nullptr};
    ASSERT_EQ(table[1], memory.entryFor(object));

    std::array<float, 6> result{};
    EXPECT_EQ(zelmDotProduct_vav_32f_3x1_L(table, memory.shift(), invariant, result.data(), 5), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 6>{765, 321, 432, 321, 321, 0}));
    EXPECT_EQ(zelmDotProduct_vav_32f_4x1_L(table, memory.shift(), invariant, result.data(), 5), ZELM_OK);
    EXPECT_EQ(result, (std::array<float, 6>{8765, 4321, 5432, 4321, 4321, 0}));

    // All others do test them, before the shift is added.
    result.fill(99);
    EXPECT_EQ(zelmDotProduct_vav_32f_5x1_L(table + 1, memory.shift(), invariant, result.data(), 4),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmDotProduct_vav_32f_L(table + 1, memory.shift(), invariant, result.data(), 3, 4),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(zelmDotProduct_vav_32f_3x1_LS2(table + 1, memory.shift(), f, invariant, f, result.data(), 4),
              ZELM_ERR_NULL_PTR);
    EXPECT_EQ(
        zelmDotProduct_vava_32f_3x1_L(table + 1, memory.shift(), table + 1, memory.shift(), result.data(), 4),
        ZELM_ERR_NULL_PTR);
    EXPECT_EQ(result[0], 99);
}

TEST(DotProduct, NanAndInfinitiesPassThrough) {
    const float infinity = std::numeric_limits<float>::infinity(),
                nan = std::numeric_limits<float>::quiet_NaN();
    const float one[] = {1, 1, 1};
    float result = 99;
    const float positive[] = {infinity, 1, 2}, mixed[] = {infinity, 1, -infinity}, none[] = {1, nan, 2},
                zero[] = {0, 1, 1};
    EXPECT_EQ(zelmDotProduct_vv_32f_3x1(positive, one, &result), ZELM_OK);
    EXPECT_EQ(result, infinity);
    EXPECT_EQ(zelmDotProduct_vv_32f_3x1(mixed, one, &result), ZELM_OK);
    EXPECT_TRUE(std::isnan(result));
    result = 99;
    EXPECT_EQ(zelmDotProduct_vv_32f(none, one, &result, 3), ZELM_OK);
    EXPECT_TRUE(std::isnan(result));
    result = 99;
    EXPECT_EQ(zelmDotProduct_vv_32f_3x1(positive, zero, &result), ZELM_OK);
    EXPECT_TRUE(std::isnan(result));
}

TEST(DotProduct, ResultsArePackedInEveryLayout) {
    const float x[] = {1, 2, 3, 0, 0, 0, 4, 5, 6}, y[] = {1, 0, 0, 1};
    float result[] = {99, 99, 99};
    EXPECT_EQ(zelmDotProduct_vav_32f_3x1_S2(x, 6 * f, f, y, f, result, 2), ZELM_OK);
    EXPECT_EQ(std::to_array(result), (std::array<float, 3>{1, 4, 99}));
}

TEST(DotProduct, AResultMayFeedTheNextObject) {
    // dst[k] is the first element of object k+1: 1*1 + 1*1 = 2, then 2*1 + 1*1 = 3, ...
    float x[12] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    const float y[] = {1, 1};
    EXPECT_EQ(zelmDotProduct_vav_32f(x, f, y, x + 1, 2, 10), ZELM_OK);
    EXPECT_EQ(std::to_array(x), (std::array<float, 12>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 1}));
}

} // namespace
