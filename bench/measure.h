// Measuring the library beside its peers, in one process and over the same arrays.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zelmbench {

// One way of doing the work of a row. `run` does all of it once; `results` reads what it left, so that a peer
// that does other work than the library is found out before anything is measured.
struct Contender {
    std::string name;
    std::function<void(std::size_t turn)> run;
    std::function<std::vector<double>()> results;
};

// The contenders of one row over the same operands; the first is the library's function that the row is named
// after.
struct Comparison {
    std::uint64_t objects;
    double tolerance; // of the results, relative to the larger of 1 and their magnitude
    std::vector<Contender> contenders;
};

// Names of the contenders, which are the names of the counters in the output.
inline constexpr const char *own = "own";     // the library's function
inline constexpr const char *eigen = "eigen"; // Eigen's best fixed-size code
inline constexpr const char *eigenRows =
    "eigen_rows";                                  // Eigen with its matrices in rows, where that is slower
inline constexpr const char *loop = "loop";        // plain loops, for the layouts that Eigen cannot address
inline constexpr const char *plainCopy = "memcpy"; // of as many bytes, in the order they lie
inline constexpr const char *one = "one";          // the library, one object per call

// Registers a row. Its iterations sample the contenders in turn, so that whatever slows the machine slows
// them alike; the counters are the fastest sample of each name, in nanoseconds per object. The operands are
// made when the row runs and freed when it ends.
void addRow(const std::string &name, std::function<Comparison()> prepare);

} // namespace zelmbench
