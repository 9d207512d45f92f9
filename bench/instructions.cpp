#include "instructions.h"

#include <sched.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace zelmbench {
namespace {

// Handing over to a process on the same processor takes a fraction of the time.
void stayOnThisProcessor() {
    cpu_set_t here;
    CPU_ZERO(&here);
    CPU_SET(sched_getcpu(), &here);
    sched_setaffinity(0, sizeof here, &here);
}

// Stops before the work and behind it.
[[noreturn]] void workFollowed(const std::function<void()> &work) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    work();
    raise(SIGSTOP);
    _exit(0);
}

// The signal that the process has stopped with.
int stopOf(pid_t process) {
    int status = 0;
    if (waitpid(process, &status, 0) != process || !WIFSTOPPED(status)) {
        throw std::runtime_error("the process whose instructions are counted has ended");
    }
    return WSTOPSIG(status);
}

std::uint64_t stepsOf(const std::function<void()> &work) {
    const pid_t process = fork();
    if (process == 0) {
        workFollowed(work);
    }
    if (process < 0 || stopOf(process) != SIGSTOP) {
        throw std::runtime_error("instructions can't be counted: no process may be followed here");
    }
    std::uint64_t steps = 0;
    do {
        ++steps;
        ptrace(PTRACE_SINGLESTEP, process, nullptr, nullptr);
    } while (stopOf(process) == SIGTRAP);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    return steps;
}

} // namespace

std::uint64_t instructionsOf(const std::function<void()> &work) {
    static const std::uint64_t ofNothing = [] {
        stayOnThisProcessor();
        return stepsOf([] {});
    }();
    return stepsOf(work) - ofNothing;
}

} // namespace zelmbench
