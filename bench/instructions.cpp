#include "instructions.h"

#include <x86intrin.h>

#include <csignal>
#include <stdexcept>

namespace zelmbench {
namespace {

// With this flag set the processor traps behind each instruction; a handler runs without it.
constexpr auto trapFlag = decltype(__readeflags()){0x100};

volatile std::uint64_t steps;

void countStep(int /*signal*/) {
    steps = steps + 1;
}

std::uint64_t stepsOf(const std::function<void()> &work) {
    steps = 0;
    __writeeflags(__readeflags() | trapFlag);
    work();
    __writeeflags(__readeflags() & ~trapFlag);
    return steps;
}

std::uint64_t stepsOfNothing() {
    struct sigaction action {};
    action.sa_handler = countStep;
    if (sigaction(SIGTRAP, &action, nullptr) != 0) {
        throw std::runtime_error("instructions can't be counted: no handler for SIGTRAP");
    }
    return stepsOf([] {});
}

} // namespace

std::uint64_t instructionsOf(const std::function<void()> &work) {
    static const std::uint64_t ofNothing = stepsOfNothing();
    return stepsOf(work) - ofNothing;
}

} // namespace zelmbench
