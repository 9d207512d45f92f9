// Operands whose last byte lies before a page that can't be read, and whose first byte lies behind one: every
// operand and table of every function, so in every layout.
#include "crash.h"
#include "faults.h"
#include "watched_model.h"

#include <gtest/gtest.h>

#include <set>

namespace zelmtest {
namespace {

constexpr std::uint64_t seed = 15, mostCases = 600;

// "src1 at the end", "dst's table at the start", ...
using Places = std::set<std::string>;

void addPlace(const std::string &name, std::int64_t begin, std::int64_t end, Places &places) {
    if (begin == 0)
        places.insert(name + " at the start");
    if (end == std::int64_t{Arena::slabSize})
        places.insert(name + " at the end");
}

Places placesOf(const Case &made) {
    Places places;
    for (const Placement &o : made.operands) {
        const std::string &name = made.target->signature[o.parameter].name;
        if (o.objects == 0)
            continue;
        addPlace(name, o.origin + o.low, o.origin + o.high, places);
        std::size_t slab = 0, offset = 0;
        const std::uintptr_t table = made.call.passed[o.parameter].base;
        if (o.table && arena().locate(table, slab, offset))
            addPlace(name + "'s table", static_cast<std::int64_t>(offset),
                     static_cast<std::int64_t>(offset + o.entries.size() * sizeof(void *)), places);
    }
    return places;
}

Places wantedPlaces(const Case &made) {
    Places places;
    for (const Placement &o : made.operands) {
        const std::string &name = made.target->signature[o.parameter].name;
        addPlace(name, 0, Arena::slabSize, places);
        if (o.table)
            addPlace(name + "'s table", 0, Arena::slabSize, places);
    }
    return places;
}

TEST(Edges, OfMemoryAreReachedByEveryOperand) {
    installCrashHandler(); // names the case that read or wrote too far
    std::uint64_t calls = 0;
    forEachFunction([&](const Target &target, AnyFunction function) {
        const WatchedModel model(target, {sseDefault, x87Default});
        Runner runner(arena());
        Places missing;
        for (std::uint64_t n = 0; n < mostCases && (n == 0 || !missing.empty()); ++n) {
            const std::uint64_t number = 1 + n;
            const auto mismatch = runner.run(
                model.target(), seed, number, [&](const Case &made, const std::vector<Value> &values) {
                    return callAsOldCallersDo(target, function, values, made.number);
                });
            ++calls;
            if (mismatch)
                tellFailure(runner.last(), mismatch->what);
            if (n == 0)
                missing = wantedPlaces(runner.last());
            if (model.status() == ZELM_OK)
                for (const std::string &place : placesOf(runner.last()))
                    missing.erase(place);
        }
        for (const std::string &place : missing)
            tellFailure(runner.last(), "no case had " + place);
    });
    std::printf("%llu calls\n", static_cast<unsigned long long>(calls));
}

} // namespace
} // namespace zelmtest
