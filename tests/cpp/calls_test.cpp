// What reaches the C functions where counts and strides go beyond 32 bits: this program has functions of its
// own in the place of the library's.
#include <gtest/gtest.h>

#include "zelm.hpp"

namespace {

struct Call {
    std::uintptr_t src, dst;
    std::int32_t step;
    std::uint32_t count;
};
std::vector<Call> calls;

std::uintptr_t number(const void *pointer) {
    return reinterpret_cast<std::uintptr_t>(pointer);
}

} // namespace

ZelmStatus zelmMul_vac_32f_3x1(const float *src, int32_t srcObjStride, float, float *dst, int32_t,
                               uint32_t count) {
    calls.push_back({number(src), number(dst), srcObjStride, count});
    return ZELM_OK;
}

namespace {

using namespace zelm;

TEST(Calls, NoObjectsNoCall) {
    calls.clear();
    float none[3];
    EXPECT_TRUE(mul(as_vectors<3>(none, 0), 2, as_vectors<3>(none, 0)));
    EXPECT_TRUE(calls.empty());
}

TEST(Calls, OneCallTakesAsManyAsItCan) {
    calls.clear();
    float v[3];
    EXPECT_TRUE(mul(as_vectors<3>(v, 0x7fffffff), 2, as_vectors<3>(v, 0x7fffffff)));
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].count, 0x7fffffffu);
}

// A 32-bit program has no room for more, but may say so: addresses are computed modulo 2^32.
TEST(Calls, MoreObjectsTakeSeveralCalls) {
    calls.clear();
    float v[3];
    const std::size_t count = 0x80000000u + 5u;
    EXPECT_TRUE(mul(as_vectors<3>(v, count, object_bytes(0)), 2, as_vectors<3>(v, count, object_bytes(16))));
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].count, 0x7fffffffu);
    EXPECT_EQ(calls[1].count, 6u);
    EXPECT_EQ(calls[1].src, number(v));
    EXPECT_EQ(calls[1].dst, number(v) + std::uintptr_t{0x7fffffff} * 16);
}

#if PTRDIFF_MAX > INT32_MAX
TEST(Calls, LongStridesAreRefused) {
    calls.clear();
    float v[3];
    const auto far = as_vectors<3>(v, 2, object_bytes(std::ptrdiff_t{1} << 31));
    const Result result = mul(far, 2, as_vectors<3>(v, 2));
    EXPECT_EQ(result.status(), ZELM_ERR_SIZE);
    EXPECT_STREQ(result.message(),
                 "a stride or shift of 2^31 bytes or more: the functions take 32-bit distances");
    EXPECT_TRUE(calls.empty());
    EXPECT_TRUE(mul(as_vectors<3>(v, 2, object_bytes(-(std::ptrdiff_t{1} << 31))), 2, as_vectors<3>(v, 2)));
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].step, INT32_MIN);
}
#endif

} // namespace
