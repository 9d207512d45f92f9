// Runs a case by the model and by a callee on the same memory, and compares the status and every byte.
#pragma once

#include "case.h"

#include <functional>
#include <optional>
#include <string>

namespace zelmtest {

// What is under test: the exported function, or a double of it.
using Callee = std::function<ZelmStatus(const Case &, const std::vector<Value> &)>;

struct Mismatch {
    std::string what;
    zelmref::Address element = 0; // the element that differs, if it is one
};

class Runner {
public:
    explicit Runner(Arena &arena) : arena_(arena) {}

    // Makes, runs and compares one case.
    std::optional<Mismatch> run(const Target &target, std::uint64_t seed, std::uint64_t number,
                                const Callee &callee);

    // The same for a case that the caller makes: `make` fills in everything and keeps its memory as `before`,
    // or says that there is no such case.
    std::optional<Mismatch> run(const Target &target, std::uint64_t seed, std::uint64_t number,
                                const std::function<bool(Arena &, Case &)> &make, const Callee &callee);

    // Runs and compares the case that ran last once more, by another callee.
    // What it gives is not part of the digest.
    std::optional<Mismatch> again(const Callee &callee);

    // The case that ran last; its memory lies in the arena as it was before the call.
    const Case &last() const { return case_; }

    // A hash of what all calls since the last take returned and wrote: statuses, elements of dst, pivotIndex.
    // It does not depend on addresses (results that do are left out), and every NaN counts as the same
    // number.
    std::uint64_t takeDigest();

private:
    enum class Digest { Leave, Add };
    std::optional<Mismatch> callAndCompare(const Callee &callee, Digest digest);
    std::optional<Mismatch> compare(ZelmStatus actual);
    void acceptComputedNans();
    Mismatch describe(const Window &window, std::size_t offset) const;
    void digest(ZelmStatus status);

    Arena &arena_;
    Case case_;
    bool hasCase_ = false;
    zelmref::ComputedElements results_;
    ZelmStatus expected_ = ZELM_OK;
    std::uint64_t digest_ = 0;
};

} // namespace zelmtest
