// A call leaves the processor as it found it, and works on any stack that a caller may have.
#include "crash.h"
#include "library.h"
#include "runner.h"
#include "stack_call.h"

#include <gtest/gtest.h>

namespace zelmtest {
namespace {

constexpr std::uint64_t seed = 1, cases = 24;

Arena &arena() {
    static Arena instance;
    return instance;
}

// The x87 tag word: all ones when no register of its stack is in use. The environment is put back, as storing
// it masks the exceptions.
std::uint16_t x87Tags() {
    struct {
        std::uint32_t words[7];
    } environment;
    asm volatile("fnstenv %0\n\tfldenv %0" : "+m"(environment));
    return static_cast<std::uint16_t>(environment.words[2]);
}

class CallState : public testing::TestWithParam<std::size_t> {
protected:
    void SetUp() override {
        installCrashHandler();
        target_ = targetOf(functions[GetParam()]);
        ASSERT_NE(target_.family, nullptr);
        function_ = exported(target_.function->name);
        ASSERT_NE(function_, nullptr);
    }

    // Runs one case, on t7 with every stack.
    std::optional<Mismatch> run(Runner &runner, std::uint64_t number) {
        auto mismatch =
            runner.run(target_, seed, number, [&](const Case &, const std::vector<Value> &values) {
                return target_.function->call(function_, values.data());
            });
#ifdef __i386__
        for (unsigned misalignment = 0; !mismatch && misalignment < 16; misalignment += 4) {
            mismatch = runner.again([&](const Case &, const std::vector<Value> &values) {
                return callWithStack(function_, target_, values, misalignment);
            });
            if (mismatch)
                mismatch->what +=
                    ", with a stack " + std::to_string(misalignment) + " below a multiple of 16";
        }
#endif
        return mismatch;
    }

    Target target_{};
    AnyFunction function_ = nullptr;
};

TEST_P(CallState, IsKeptOnAnyStack) {
    Runner runner(arena()); // which also compares MXCSR and the x87 control word
    for (std::uint64_t number = 0; number < cases; ++number)
        if (const auto mismatch = run(runner, number * 7))
            FAIL() << target_.function->name << ", seed " << seed << ", case " << number * 7 << ": "
                   << mismatch->what;
    EXPECT_EQ(x87Tags(), 0xffff) << target_.function->name << " leaves something on the x87 stack";
}

INSTANTIATE_TEST_SUITE_P(Grid, CallState, testing::Range(std::size_t{0}, functionCount),
                         [](const auto &test) { return std::string(functions[test.param].name); });

#ifdef __i386__

// Returns its stack pointer, less the return address, modulo 16.
extern "C" void zelmtestProbeStack();
asm(R"(
    .text
    .globl zelmtestProbeStack
    .hidden zelmtestProbeStack
    .type zelmtestProbeStack, @function
zelmtestProbeStack:
    leal 4(%esp), %eax
    andl $15, %eax
    ret
    .size zelmtestProbeStack, .-zelmtestProbeStack
)");

TEST(StackCall, DeliversEveryAlignment) {
    const Target target = targetOf(functions[0]);
    const std::vector<Value> values(target.function->argumentCount);
    for (int misalignment = 0; misalignment < 16; misalignment += 4)
        EXPECT_EQ(callWithStack(zelmtestProbeStack, target, values, static_cast<unsigned>(misalignment)),
                  (16 - misalignment) % 16);
}

#endif

} // namespace
} // namespace zelmtest
