// Run-time vector forms whose dst lies across a source, at every distance up to 16 elements and any length:
// they give what a loop in ascending order gives.
#include "zelm.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr std::size_t reach = 16, longest = 70;

// `call` gets a source, another that lies apart, dst and the length; `element` is one element of the loop.
template <class T>
void expectAscendingLoop(const char *name, auto call, auto element) {
    std::vector<T> start, other;
    for (int n = 0; n < static_cast<int>(longest + 2 * reach); ++n) {
        start.push_back(static_cast<T>(n * n % 23 - 9));
        other.push_back(static_cast<T>(n * n % 17 - 5));
    }
    for (std::size_t at = 0; at <= 2 * reach; ++at)
        for (std::uint32_t len = 1; len <= longest; ++len) {
            auto memory = start, expected = start;
            for (std::size_t j = 0; j < len; ++j)
                expected[at + j] = element(expected[reach + j], other[j]);
            EXPECT_EQ(call(&memory[reach], other.data(), &memory[at], len), ZELM_OK);
            ASSERT_EQ(memory, expected) << name << ", length " << len << ", distance "
                                        << static_cast<int>(at) - static_cast<int>(reach);
        }
}

template <class T>
using Vc = ZelmStatus(const T *, T, T *, std::uint32_t);
template <class T>
using Vv = ZelmStatus(const T *, const T *, T *, std::uint32_t);
template <class T>
using Saxpy = ZelmStatus(const T *, T, const T *, T *, std::uint32_t);
template <class T>
using LComb = ZelmStatus(const T *, T, const T *, T, T *, std::uint32_t);

template <class T>
void expectAscendingVc(const char *name, Vc<T> *function, auto element) {
    const T val = T{0.75};
    expectAscendingLoop<T>(
        name, [&](const T *s, const T *, T *dst, std::uint32_t len) { return function(s, val, dst, len); },
        [&](T s, T) { return element(s, val); });
}

template <class T>
void expectAscendingVv(const char *name, Vv<T> *function, auto element) {
    expectAscendingLoop<T>(
        name, [&](const T *s, const T *o, T *dst, std::uint32_t len) { return function(s, o, dst, len); },
        [&](T s, T o) { return element(s, o); });
    expectAscendingLoop<T>(
        name, [&](const T *s, const T *o, T *dst, std::uint32_t len) { return function(o, s, dst, len); },
        [&](T s, T o) { return element(o, s); });
}

template <class T>
void expectAscendingScaledSums(Saxpy<T> *saxpy, LComb<T> *lcomb) {
    // Over one third, so that elements stay small but never exact.
    const T scale1 = T{1} / 3, scale2 = -scale1;
    expectAscendingLoop<T>(
        "Saxpy, src1",
        [&](const T *s, const T *o, T *dst, std::uint32_t len) { return saxpy(s, scale1, o, dst, len); },
        [&](T s, T o) { return s * scale1 + o; });
    expectAscendingLoop<T>(
        "Saxpy, src2",
        [&](const T *s, const T *o, T *dst, std::uint32_t len) { return saxpy(o, scale1, s, dst, len); },
        [&](T s, T o) { return o * scale1 + s; });
    expectAscendingLoop<T>(
        "LComb, src1",
        [&](const T *s, const T *o, T *dst, std::uint32_t len) {
            return lcomb(s, scale1, o, scale2, dst, len);
        },
        [&](T s, T o) { return s * scale1 + o * scale2; });
    expectAscendingLoop<T>(
        "LComb, src2",
        [&](const T *s, const T *o, T *dst, std::uint32_t len) {
            return lcomb(o, scale1, s, scale2, dst, len);
        },
        [&](T s, T o) { return o * scale1 + s * scale2; });
}

constexpr auto sum = [](auto a, auto b) { return a + b; };
constexpr auto difference = [](auto a, auto b) { return a - b; };
constexpr auto reversedDifference = [](auto a, auto b) { return b - a; };
constexpr auto product = [](auto a, auto b) { return a * b; };

TEST(VectorOverlap, OfSumsAndDifferences) {
    expectAscendingVv<float>("Add_vv_32f", zelmAdd_vv_32f, sum);
    expectAscendingVv<float>("Sub_vv_32f", zelmSub_vv_32f, difference);
    expectAscendingVv<double>("Add_vv_64f", zelmAdd_vv_64f, sum);
    expectAscendingVv<double>("Sub_vv_64f", zelmSub_vv_64f, difference);
}

TEST(VectorOverlap, WithAConstant) {
    expectAscendingVc<float>("Add_vc_32f", zelmAdd_vc_32f, sum);
    expectAscendingVc<float>("Sub_vc_32f", zelmSub_vc_32f, difference);
    expectAscendingVc<float>("Sub_cv_32f", zelmSub_cv_32f, reversedDifference);
    expectAscendingVc<float>("Mul_vc_32f", zelmMul_vc_32f, product);
    expectAscendingVc<double>("Add_vc_64f", zelmAdd_vc_64f, sum);
    expectAscendingVc<double>("Sub_vc_64f", zelmSub_vc_64f, difference);
    expectAscendingVc<double>("Sub_cv_64f", zelmSub_cv_64f, reversedDifference);
    expectAscendingVc<double>("Mul_vc_64f", zelmMul_vc_64f, product);
}

TEST(VectorOverlap, OfScaledSums) {
    expectAscendingScaledSums<float>(zelmSaxpy_vv_32f, zelmLComb_vv_32f);
    expectAscendingScaledSums<double>(zelmSaxpy_vv_64f, zelmLComb_vv_64f);
}

} // namespace
