// One workload as a peer sees it: where the operands lie. Shared by the benchmark and by the object that
// holds the peers, which is built with flags of its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zelmbench {

// Strided layouts (S2, PS2, LS2) leave a gap of one element behind each element, but for Copy, Extract and
// LoadIdentity, whose strided operands are dense.
inline constexpr std::size_t gap = 2;

struct Operand {
    void *data = nullptr; // the first element, where objects lie one behind the other; a single object
    void *const *table = nullptr; // one pointer per element position (P, PS2) or per object (L, LS2)
};

struct Problem {
    Operand src1, src2, src3, dst; // src1 is also the only source
    double scale1 = 0, scale2 = 0; // scale1 is also the only constant
    std::uint32_t *pivotIndex = nullptr;
    void *scratch = nullptr;
    std::size_t count = 0; // objects, also where each is a call of its own
    std::size_t n = 0;     // length, or order of the square matrices
};

struct Peer {
    std::string member;           // the exported name of the function beside which it is measured
    std::string name;             // "Eigen", "loops", ...
    void (*run)(const Problem &); // all objects in one call; or, beside single-object functions,
    void (*runOne)(const Problem &,
                   std::size_t k); // object k, called for each of them as the library's function is
    bool comparable = true;        // writes the values that the library writes, up to rounding
};

// Exported by the object that holds the peers.
inline constexpr const char *peersFunction = "zelmBenchPeers";
using PeersFunction = const std::vector<Peer> &();

} // namespace zelmbench
