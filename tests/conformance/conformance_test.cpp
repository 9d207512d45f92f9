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

// One build of the function under test, and what it got wrong.
struct Build {
    std::string file;
    Callee callee;
    std::uint64_t failures = 0, smallest = 0;
    std::size_t smallestElements = ~std::size_t{0};

    void noteFailure(const Case &failed) {
        ++failures;
        if (failed.elementCount() < smallestElements) {
            smallestElements = failed.elementCount();
            smallest = failed.number;
        }
    }
};

Build buildOf(const Function &function, const std::string &library, AnyFunction exportedFunction) {
    EXPECT_NE(exportedFunction, nullptr) << library << " does not export " << function.name;
    return {library, [&function, exportedFunction](const Case &, const std::vector<Value> &values) {
                return function.call(exportedFunction, values.data());
            }};
}

// The library under test first, then those that are to be tested also.
std::vector<Build> buildsOf(const Function &function) {
    std::vector<Build> builds{buildOf(function, libraryPath(), exported(function.name))};
    for (const std::string &library : options().also)
        builds.push_back(buildOf(function, library, exportedBy(library, function.name)));
    return builds;
}

// The smallest failing case says most.
void tell(const Build &build, const Target &target, Runner &runner, std::uint64_t cases) {
    const char *name = target.function->name;
    const auto mismatch = runner.run(target, options().seed, build.smallest, build.callee);
    ADD_FAILURE() << name << " of " << build.file << ": " << build.failures << " of " << cases
                  << " cases fail; the smallest is --function=" << name << " --seed=" << options().seed
                  << " --case=" << build.smallest << "\n"
                  << (mismatch ? mismatch->what : "(not when it is run again: the function keeps something)")
                  << "\n"
                  << replayProgram(runner.last(), arena(), mismatch ? mismatch->element : 0);
}

class Conformance : public testing::TestWithParam<std::size_t> {};

TEST_P(Conformance, EqualsTheModel) {
    const Function &function = functions[GetParam()];
    if (!options().function.empty() && options().function != function.name)
        return;
    const Target target = targetOf(function);
    ASSERT_NE(target.family, nullptr) << "the reference model has no family for " << function.name;
    std::vector<Build> builds = buildsOf(function);
    if (HasFailure())
        return;

    Runner runner(arena());
    const Options &o = options();
    const std::uint64_t first = o.onlyCase.value_or(0), end = o.onlyCase ? first + 1 : o.cases;
    for (std::uint64_t number = first; number < end; ++number)
        for (Build &build : builds)
            if (&build == &builds.front() ? runner.run(target, o.seed, number, build.callee)
                                          : runner.again(build.callee))
                build.noteFailure(runner.last());
    summary().add(function.name, (end - first) * builds.size(), runner.takeDigest());

    for (const Build &build : builds)
        if (build.failures > 0)
            tell(build, target, runner, end - first);
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
