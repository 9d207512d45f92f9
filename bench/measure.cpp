#include "measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <map>
#include <stdexcept>
#include <utility>

namespace zelmbench {
namespace {

using Clock = std::chrono::steady_clock;

// Long enough that reading the clock and the first, colder call do not show.
constexpr double shortestSample = 150e-6;

// Room for some samples of a large array, and for many of a small one.
constexpr double shortestIteration = 25e-3;
constexpr int iterations = 3;

double secondsOf(const Contender &contender, std::size_t runs) {
    const auto start = Clock::now();
    for (std::size_t run = 0; run < runs; ++run) {
        contender.run(run);
        benchmark::ClobberMemory();
    }
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::size_t runsPerSample(const Contender &contender) {
    std::size_t runs = 1;
    while (secondsOf(contender, runs) < shortestSample) {
        runs *= 2;
    }
    return runs;
}

void requireSameResults(const Comparison &comparison) {
    std::vector<double> expected;
    for (const Contender &contender : comparison.contenders) {
        contender.run(0);
        const std::vector<double> actual = contender.results();
        if (expected.empty()) {
            expected = actual;
        }
        if (actual.empty() || actual.size() != expected.size()) {
            throw std::runtime_error("'" + contender.name + "' has no comparable results");
        }
        for (std::size_t i = 0; i < actual.size(); ++i) {
            const double allowed = comparison.tolerance * std::max(1.0, std::abs(expected[i]));
            if (!(std::abs(actual[i] - expected[i]) <= allowed)) {
                throw std::runtime_error("'" + contender.name + "' differs at result " + std::to_string(i) +
                                         ": " + std::to_string(actual[i]) + " for " +
                                         std::to_string(expected[i]));
            }
        }
    }
}

void measure(benchmark::State &state, const Comparison &comparison) {
    requireSameResults(comparison);
    const std::vector<Contender> &contenders = comparison.contenders;
    std::vector<std::size_t> runs;
    for (const Contender &contender : contenders) {
        runs.push_back(runsPerSample(contender));
    }
    std::map<std::string, double> fastest;
    const auto sampleEach = [&] {
        for (std::size_t c = 0; c < contenders.size(); ++c) {
            const double seconds = secondsOf(contenders[c], runs[c]) / static_cast<double>(runs[c]);
            double &best = fastest.try_emplace(contenders[c].name, seconds).first->second;
            best = std::min(best, seconds);
        }
    };
    for ([[maybe_unused]] auto iteration : state) {
        const auto start = Clock::now();
        do {
            sampleEach();
        } while (std::chrono::duration<double>(Clock::now() - start).count() < shortestIteration);
        state.SetIterationTime(fastest[own]);
    }
    for (const auto &[name, seconds] : fastest) {
        state.counters[name] = seconds * 1e9 / static_cast<double>(comparison.objects);
        if (name != own) {
            state.counters["own/" + name] = fastest[own] / seconds;
        }
    }
}

} // namespace

void addRow(const std::string &name, std::function<Comparison()> prepare) {
    const auto run = [prepare = std::move(prepare)](benchmark::State &state) {
        try {
            measure(state, prepare());
        } catch (const std::exception &error) {
            state.SkipWithError(error.what());
        }
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->Iterations(iterations)->UseManualTime();
}

} // namespace zelmbench
