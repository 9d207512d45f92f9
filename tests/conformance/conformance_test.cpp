// Every exported function against the reference model: one test per function, thousands of cases each.
#include "library.h"
#include "options.h"
#include "replay.h"
#include "runner.h"
#include "summary.h"

#include <gtest/gtest.h>

namespace zelmtest {
namespace {

Arena &arena() {
    static Arena instance;
    return instance;
}

class Conformance : public testing::TestWithParam<std::size_t> {};

TEST_P(Conformance, EqualsTheModel) {
    const Function &function = functions[GetParam()];
    if (!options().function.empty() && options().function != function.name)
        return;
    const Target target = targetOf(function);
    ASSERT_NE(target.family, nullptr) << "the reference model has no family for " << function.name;
    const AnyFunction exportedFunction = exported(function.name);
    ASSERT_NE(exportedFunction, nullptr) << libraryPath() << " does not export " << function.name;

    const Callee callee = [&](const Case &, const std::vector<Value> &values) {
        return function.call(exportedFunction, values.data());
    };
    Runner runner(arena());
    const Options &o = options();
    const std::uint64_t first = o.onlyCase.value_or(0), end = o.onlyCase ? first + 1 : o.cases;
    std::uint64_t failures = 0, smallest = 0;
    std::size_t smallestElements = ~std::size_t{0};
    for (std::uint64_t number = first; number < end; ++number) {
        if (!runner.run(target, o.seed, number, callee))
            continue;
        ++failures;
        if (runner.last().elementCount() < smallestElements) {
            smallestElements = runner.last().elementCount();
            smallest = number;
        }
    }
    summary().add(function.name, end - first, runner.takeDigest());

    if (failures > 0) { // the smallest failing case says most
        const auto mismatch = runner.run(target, o.seed, smallest, callee);
        ADD_FAILURE() << function.name << ": " << failures << " of " << end - first
                      << " cases fail; the smallest is"
                      << " --function=" << function.name << " --seed=" << o.seed << " --case=" << smallest
                      << "\n"
                      << (mismatch ? mismatch->what
                                   : "(not when it is run again: the function keeps something)")
                      << "\n"
                      << replayProgram(runner.last(), arena(), mismatch ? mismatch->element : 0);
    }
    EXPECT_TRUE(arena().intact()) << function.name << " wrote far outside of its operands";
}

INSTANTIATE_TEST_SUITE_P(Grid, Conformance, testing::Range(std::size_t{0}, functionCount),
                         [](const auto &test) { return std::string(functions[test.param].name); });

// The catalogue's argument list and the model's are two readings of the same requirement.
class ArgumentList : public testing::TestWithParam<std::size_t> {};

TEST_P(ArgumentList, EqualsTheModel) {
    const Function &function = functions[GetParam()];
    const Target target = targetOf(function);
    ASSERT_NE(target.family, nullptr);
    std::string expected, actual;
    for (const zelmref::CArgument &argument : zelmref::argumentList(target.cell, target.signature))
        expected += argument.name + " ";
    for (std::size_t i = 0; i < function.argumentCount; ++i)
        actual += std::string(function.arguments[i].name) + " ";
    EXPECT_EQ(actual, expected);
}

INSTANTIATE_TEST_SUITE_P(Grid, ArgumentList, testing::Range(std::size_t{0}, functionCount),
                         [](const auto &test) { return std::string(functions[test.param].name); });

} // namespace
} // namespace zelmtest
