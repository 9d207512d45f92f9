#include "crash.h"

#include <csignal>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <unistd.h>

namespace zelmtest {
namespace {

const char *runningFunction;
std::uint64_t runningSeed, runningNumber;

constexpr int signals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL};
struct sigaction previous[std::size(signals)];

// Only what is allowed in a signal handler.
void put(const char *text) {
    [[maybe_unused]] const auto written = write(STDERR_FILENO, text, std::strlen(text));
}

void put(std::uint64_t number) {
    char digits[24];
    char *p = digits + sizeof digits;
    *--p = 0;
    do
        *--p = static_cast<char>('0' + number % 10);
    while (number /= 10);
    put(p);
}

void handle(int signal) {
    if (runningFunction) {
        put("\ncrash (signal ");
        put(static_cast<std::uint64_t>(signal));
        put(") in ");
        put(runningFunction);
        put(", seed ");
        put(runningSeed);
        put(", case ");
        put(runningNumber);
        put("; run again with --function=");
        put(runningFunction);
        put(" --seed=");
        put(runningSeed);
        put(" --case=");
        put(runningNumber);
        put("\n");
    }
    // The instruction runs again and meets whoever was here before us: a sanitizer's report, or the end.
    for (std::size_t i = 0; i < std::size(signals); ++i)
        sigaction(signals[i], &previous[i], nullptr);
}

} // namespace

void installCrashHandler() {
    static bool installed = false;
    if (installed) // a second time the handler would follow itself
        return;
    installed = true;
    static unsigned char stack[1 << 16];
    stack_t alternate{};
    alternate.ss_sp = stack;
    alternate.ss_size = sizeof stack;
    sigaltstack(&alternate, nullptr);

    struct sigaction action {};
    action.sa_handler = handle;
    action.sa_flags = SA_ONSTACK;
    for (std::size_t i = 0; i < std::size(signals); ++i)
        sigaction(signals[i], &action, &previous[i]);
}

void nameRunningCase(const char *function, std::uint64_t seed, std::uint64_t number) {
    runningFunction = function;
    runningSeed = seed;
    runningNumber = number;
}

void nameNoCase() {
    runningFunction = nullptr;
}

} // namespace zelmtest
