// The times of several ways of doing the same work, side by side.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zelmbench {

struct Contender {
    std::string name;
    std::function<void(std::size_t turn)> run;
};

struct Effort {
    double sampleSeconds;
    int leastRounds, mostRounds;
};

// Long enough that reading the clock and a first, colder turn do not show.
inline constexpr Effort quick{50e-6, 16, 80}, thorough{150e-6, 24, 120};

// One run, for those who only compare results.
inline constexpr Effort single{0, 1, 1};

// The fastest sample of each contender, in seconds per run. Samples alternate, so that a slow moment of the
// machine meets all of them, until none has become faster for some rounds.
std::vector<double> fastest(const std::vector<Contender> &contenders, const Effort &effort);

} // namespace zelmbench
