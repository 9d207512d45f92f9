#include "measure.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace zelmbench {
namespace {

using Clock = std::chrono::steady_clock;

double secondsOf(const Contender &contender, std::size_t runs, std::size_t &turn) {
    const auto start = Clock::now();
    for (std::size_t run = 0; run < runs; ++run) {
        contender.run(turn++);
    }
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::size_t runsPerSample(const Contender &contender, double sampleSeconds) {
    std::size_t turn = 0;
    contender.run(turn++);
    for (std::size_t runs = 1;; runs *= 2) {
        const double seconds = secondsOf(contender, runs, turn);
        if (seconds * 4 >= sampleSeconds) {
            const double perRun = seconds / static_cast<double>(runs);
            return std::max<std::size_t>(1, static_cast<std::size_t>(sampleSeconds / perRun));
        }
    }
}

} // namespace

std::vector<double> fastest(const std::vector<Contender> &contenders, const Effort &effort) {
    constexpr double progress = 0.995;
    std::vector<std::size_t> runs, turns(contenders.size());
    for (const Contender &contender : contenders) {
        runs.push_back(runsPerSample(contender, effort.sampleSeconds));
    }
    std::vector<double> best(contenders.size(), std::numeric_limits<double>::max());
    for (int round = 0, sinceProgress = 0;
         round < effort.mostRounds && (round < effort.leastRounds || sinceProgress < effort.leastRounds / 2);
         ++round, ++sinceProgress) {
        for (std::size_t place = 0; place < contenders.size(); ++place) {
            // The first of a round finds colder caches than the others, so they take turns.
            const std::size_t c = (place + static_cast<std::size_t>(round)) % contenders.size();
            const double seconds = secondsOf(contenders[c], runs[c], turns[c]) / static_cast<double>(runs[c]);
            if (seconds < best[c] * progress) {
                sinceProgress = 0;
            }
            best[c] = std::min(best[c], seconds);
        }
    }
    return best;
}

} // namespace zelmbench
