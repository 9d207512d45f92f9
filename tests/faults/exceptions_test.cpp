// A caller may have unmasked the exceptions of the processor. What the lanes of a vector hold beside the
// operands, and what a faster path computes that the formula doesn't ask for, must not trap.
#include "crash.h"
#include "faults.h"
#include "processor_mode.h"
#include "watched_model.h"

#include <gtest/gtest.h>

namespace zelmtest {
namespace {

// Not underflow: unmasked, it traps for exact results too, of which the model's flags tell nothing.
constexpr std::uint32_t all = invalid | denormal | divideByZero | overflow | inexact;

// The modes with these exceptions unmasked.
ControlState unmasked(std::uint32_t exceptions) {
    return {sseDefault & ~(exceptions << 7), static_cast<std::uint16_t>(x87Default & ~exceptions)};
}

// LUDecomp and Invert may meet a denormal number in a lane whose result they don't use. What overflows in an
// inverse may also be infinite in the formula of a whole group of which an object then goes another way.
// Where a result isn't a number, whether a denormal operand is told of hangs on which of two the processor
// meets first.
std::uint32_t boundExceptions(const Target &target, std::uint32_t ofModel) {
    const std::string operation = target.function->operation;
    std::uint32_t bound = all;
    if (operation == "LUDecomp" || operation == "Invert" || (ofModel & invalid))
        bound &= ~denormal;
    if (operation == "Invert" && (ofModel & overflow))
        bound &= ~invalid;
    return bound;
}

struct Counts {
    std::uint64_t calls = 0, withInvalidUnmasked = 0;
};

using MayUnmask = bool (*)(const Case &);

// Cases of a function, each with those exceptions unmasked that the model, element by element, doesn't raise.
void callUnmasked(const Target &target, AnyFunction function, std::uint64_t seed, MayUnmask mayUnmask,
                  Counts &counts) {
    const WatchedModel model(target, {sseDefault, x87Default});
    Runner runner(arena());
    for (std::uint64_t n = 0; n < casesPerFunction(30); ++n) {
        const std::uint64_t number = n * 3;
        std::uint32_t checked = 0, raised = 0;
        const auto mismatch =
            runner.run(model.target(), seed, number, [&](const Case &made, const std::vector<Value> &values) {
                if (model.status() == ZELM_OK && mayUnmask(made))
                    checked = boundExceptions(target, model.exceptions()) & ~model.exceptions();
                const ControlStateScope scope(unmasked(checked));

                const ZelmStatus status = callAsOldCallersDo(target, function, values, number);
                raised = raisedExceptions(); // x87 traps only at its next instruction
                return status;
            });
        ++counts.calls;
        counts.withInvalidUnmasked += (checked & invalid) != 0;
        if (raised & checked)
            tellFailure(runner.last(), "raises exceptions of its own: " + std::to_string(raised & checked));
        if (mismatch)
            tellFailure(runner.last(), mismatch->what);
    }
}

// With finite sources a call that succeeds raises no exception that the model, element by element, doesn't.
// One that fails may have: a group of objects is computed together before it is known that one of them is
// singular.
TEST(Exceptions, UnmaskedOnesDoNotTrap) {
    installCrashHandler(); // names the case that trapped
    Counts counts;
    forEachFunction([&](const Target &target, AnyFunction function) {
        callUnmasked(target, function, 12, hasFiniteSources, counts);
    });
    EXPECT_GT(counts.withInvalidUnmasked, counts.calls / 4);
    std::printf("%llu calls, %llu of them with exceptions unmasked\n",
                static_cast<unsigned long long>(counts.calls),
                static_cast<unsigned long long>(counts.withInvalidUnmasked));
}

// Three elements in a pack of four: what the fourth lane holds meets infinities and zeros as the third does.
TEST(Exceptions, LanesBesideThreeElementsDoNotTrap) {
    installCrashHandler();
    Counts counts;
    forEachFunction([&](const Target &target, AnyFunction function) {
        const std::string_view operation = target.function->operation;
        if (std::string_view(target.function->size) != "3x3" || (operation != "Mul" && operation != "Gaxpy"))
            return;
        for (std::uint64_t seed = 200; seed < 205; ++seed)
            callUnmasked(
                target, function, seed, [](const Case &) { return true; }, counts);
    });
    EXPECT_GT(counts.withInvalidUnmasked, counts.calls / 4);
}

// An operand that serves all objects is multiplied ahead of them. Where the first object overwrites it, or is
// missing, not all of these products are asked for.
TEST(Exceptions, ProductsAheadOfTheFirstObjectDoNotTrap) {
    installCrashHandler();
    Counts counts;
    forEachFunction([&](const Target &target, AnyFunction function) {
        const std::string_view operation = target.function->operation, layout = target.function->layout;
        if ((operation != "Saxpy" && operation != "LComb") || (layout != "L" && layout != "LS2"))
            return;
        for (std::uint64_t seed = 400; seed < 420; ++seed)
            callUnmasked(target, function, seed, hasFiniteSources, counts);
    });
    EXPECT_GT(counts.withInvalidUnmasked, counts.calls / 4);
}

} // namespace
} // namespace zelmtest
