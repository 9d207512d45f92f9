// A caller may have set any rounding, denormals that count as zero, and any x87 precision: a call keeps them,
// and computes in them what the model computes in them.
#include "faults.h"
#include "processor_mode.h"
#include "random.h"
#include "watched_model.h"

#include <gtest/gtest.h>

#include <cstring>

namespace zelmtest {
namespace {

constexpr std::uint64_t seed = 11;

ControlState drawState(Random &random) {
    const std::uint32_t sse = sseDefault | random.below(4) << 13 | (random.chance(50) ? flushToZero : 0) |
                              (random.chance(50) ? denormalsAreZero : 0);
    constexpr std::uint16_t precisions[] = {0x0000, 0x0200, 0x0300};
    const auto x87 = static_cast<std::uint16_t>((x87Default & ~(x87Precision | x87Rounding)) |
                                                precisions[random.below(3)] | random.below(4) << 10);
    return {sse, x87};
}

// Bits are promised for rounding to nearest. They hold in all modes but for the rows that negate or swap
// signs before they round, where rounding up and rounding down aren't mirror images: those are bound neither
// to the bits nor to which side of the threshold a pivot falls.
bool isBoundInDirectedRounding(const Target &target) {
    const std::string operation = target.function->operation, type = target.function->type;
    return !(operation == "LUDecomp" && type == "32f") && !(operation == "Invert" && type == "64f");
}

bool isDirected(const ControlState &state) {
    const std::uint32_t rounding = state.mxcsr & sseRounding;
    return rounding == 0x2000 || rounding == 0x4000;
}

// The direction of string instructions, which the calling convention wants forward.
bool isForward() {
#ifdef __x86_64__
    return (__builtin_ia32_readeflags_u64() & 0x400) == 0;
#else
    return (__builtin_ia32_readeflags_u32() & 0x400) == 0;
#endif
}

TEST(Modes, AreKeptAndComputedIn) {
    std::uint64_t calls = 0, directed = 0;
    forEachFunction([&](const Target &target, AnyFunction function) {
        Random random(caseSeed(seed, target.function->name, 0));
        for (std::uint64_t n = 0; n < casesPerFunction(24); ++n) {
            const ControlState state = drawState(random);
            const WatchedModel model(target, state);
            Runner runner(arena());
            bool isKept = true;
            const std::uint64_t number = n * 5;
            const auto mismatch =
                runner.run(model.target(), seed, number, [&](const Case &, const std::vector<Value> &values) {
                    const ControlStateScope scope(state);
                    const ZelmStatus status = callAsOldCallersDo(target, function, values, number);
                    isKept = controlState() == state && isForward();
                    return status;
                });
            ++calls;
            directed += isDirected(state);
            char modes[64];
            std::snprintf(modes, sizeof modes, "MXCSR 0x%04x, x87 0x%04x: ", state.mxcsr, state.x87);
            if (!isKept)
                tellFailure(runner.last(), std::string(modes) + "not kept");
            const bool isBound = !isDirected(state) || isBoundInDirectedRounding(target);
            const bool isPivot = mismatch && (mismatch->what == "status: expected -10, actual 0" ||
                                              mismatch->what == "status: expected 0, actual -10");
            if (mismatch && (isBound || (mismatch->element == 0 && !isPivot)))
                tellFailure(runner.last(), modes + mismatch->what);
        }
    });
    EXPECT_GT(directed, calls / 3);
    std::printf("%llu calls, %llu of them rounding up or down\n", static_cast<unsigned long long>(calls),
                static_cast<unsigned long long>(directed));
}

} // namespace
} // namespace zelmtest
