// A caller may have unmasked the exceptions of the processor. What the lanes of a vector hold beside the
// operands, and what a faster path computes that the formula doesn't ask for, must not trap.
#include "crash.h"
#include "faults.h"
#include "processor_mode.h"
#include "watched_model.h"

#include <gtest/gtest.h>

namespace zelmtest {
namespace {

constexpr std::uint64_t seed = 12;
// Not underflow: unmasked, it traps for exact results too, of which the model's flags tell nothing.
constexpr std::uint32_t all = invalid | denormal | divideByZero | overflow | inexact;

// The modes with these exceptions unmasked.
ControlState unmasked(std::uint32_t exceptions) {
    return {sseDefault & ~(exceptions << 7), static_cast<std::uint16_t>(x87Default & ~exceptions)};
}

// LUDecomp and Invert may meet a denormal number in a lane whose result they don't use, Det of a run-time
// size in the last element although an earlier pivot was too small. Where a result overflows, infinities meet
// the zeros of lanes that aren't used, and terms of a whole formula that aren't either.
std::uint32_t boundExceptions(const Target &target, std::uint32_t ofModel) {
    const std::string operation = target.function->operation;
    std::uint32_t bound = all;
    const bool eliminates = operation == "Det" && std::string_view(target.function->size).empty();
    if (operation == "LUDecomp" || operation == "Invert" || eliminates)
        bound &= ~denormal;
    if (ofModel & overflow)
        bound &= ~invalid;
    return bound;
}

// With finite sources a call that succeeds raises no exception that the model, element by element, doesn't.
// One that fails may have: a group of objects is computed together before it is known that one of them is
// singular.
TEST(Exceptions, UnmaskedOnesDoNotTrap) {
    installCrashHandler(); // names the case that trapped
    std::uint64_t calls = 0, quiet = 0;
    forEachFunction([&](const Target &target, AnyFunction function) {
        const WatchedModel model(target, {sseDefault, x87Default});
        Runner runner(arena());
        for (std::uint64_t n = 0; n < casesPerFunction(30); ++n) {
            const std::uint64_t number = n * 3;
            std::uint32_t checked = 0, raised = 0;
            const auto mismatch = runner.run(
                model.target(), seed, number, [&](const Case &made, const std::vector<Value> &values) {
                    if (model.status() == ZELM_OK && hasFiniteSources(made))
                        checked = boundExceptions(target, model.exceptions()) & ~model.exceptions();
                    const ControlStateScope scope(unmasked(checked));

                    const ZelmStatus status = callAsOldCallersDo(target, function, values, number);
                    raised = raisedExceptions(); // x87 traps only at its next instruction
                    return status;
                });
            ++calls;
            quiet += (checked & invalid) != 0;
            if (raised & checked)
                tellFailure(runner.last(),
                            std::string(model.status() ? "F " : "") +
                                "raises exceptions of its own: " + std::to_string(raised & checked));
            if (mismatch)
                tellFailure(runner.last(), mismatch->what);
        }
    });
    EXPECT_GT(quiet, calls / 4);
    std::printf("%llu calls, %llu of them with exceptions unmasked\n", static_cast<unsigned long long>(calls),
                static_cast<unsigned long long>(quiet));
}

} // namespace
} // namespace zelmtest
