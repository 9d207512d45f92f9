// Runs functions of a library that holds many mutations, each behind a switch, against the reference model.
//
//   judge reach CASES    stdin: a function's name per line. For each function, the numbers of the mutations
//                        that its unchanged run comes by.
//   judge try CASES      stdin: a mutation's number and the functions that reach it, per line. For each
//                        mutation what noticed it, or "survived".
//
// A mutation runs in a process of its own, so that a crash and an endless loop are told too.
#include "library.h"
#include "mutant.h"
#include "runner.h"

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace zelmtest;

constexpr std::uint64_t kSeed = 20040717, kFirstCases = 8;

Arena &arena() {
    static Arena instance;
    return instance;
}

const Function &functionOf(const std::string &name) {
    static const std::map<std::string, const Function *> byName = [] {
        std::map<std::string, const Function *> all;
        for (std::size_t i = 0; i < functionCount; ++i)
            all[functions[i].name] = &functions[i];
        return all;
    }();
    return *byName.at(name);
}

// Whether the cases from first to before last equal the model.
bool equalsTheModel(const Function &function, std::uint64_t first, std::uint64_t last) {
    static Runner runner(arena());
    const Target target = targetOf(function);
    const AnyFunction exportedFunction = exported(function.name);
    const Callee callee = [&](const Case &, const std::vector<Value> &values) {
        return function.call(exportedFunction, values.data());
    };
    for (std::uint64_t number = first; number < last; ++number)
        if (runner.run(target, kSeed, number, callee))
            return false;
    return arena().intact();
}

int reach(ZelmMutant &mutant, std::uint64_t cases) {
    for (std::string name; std::getline(std::cin, name);) {
        std::memset(mutant.reached, 0, sizeof mutant.reached);
        if (!equalsTheModel(functionOf(name), 0, cases)) {
            std::cerr << name << " fails without a mutation\n";
            return 1;
        }
        std::cout << name;
        for (std::size_t id = 1; id < sizeof mutant.reached; ++id)
            if (mutant.reached[id])
                std::cout << ' ' << id;
        std::cout << '\n';
    }
    return 0;
}

// An endless loop ends by a signal after many times what the calls take.
void limitTime(std::uint64_t calls) {
    const std::uint64_t microseconds = 200'000 + 200 * calls;
    itimerval limit{};
    limit.it_value.tv_sec = static_cast<time_t>(microseconds / 1'000'000);
    limit.it_value.tv_usec = static_cast<suseconds_t>(microseconds % 1'000'000);
    setitimer(ITIMER_PROF, &limit, nullptr);
    const rlimit noFile{0, 0};
    setrlimit(RLIMIT_CORE, &noFile);
}

const char *resultOf(int status) {
    if (WIFSIGNALED(status))
        return WTERMSIG(status) == SIGPROF ? "hangs" : "crashes";
    return WEXITSTATUS(status) == 0 ? "survived" : "model";
}

// The function that notices the mutation; its number in the list, or -1.
int firstToNotice(const std::vector<std::string> &names, std::uint64_t cases) {
    for (const auto &[first, last] :
         {std::pair{std::uint64_t{0}, kFirstCases}, std::pair{kFirstCases, cases}})
        for (std::size_t n = 0; n < names.size(); ++n)
            if (!equalsTheModel(functionOf(names[n]), first, last))
                return static_cast<int>(n);
    return -1;
}

int tryAll(ZelmMutant &mutant, std::uint64_t cases) {
    arena();
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        int id = 0;
        words >> id;
        std::vector<std::string> names;
        for (std::string name; words >> name;)
            names.push_back(name);
        std::cout << std::flush;
        const pid_t child = fork();
        if (child == 0) {
            limitTime(cases * names.size());
            mutant.active = id;
            const int noticed = firstToNotice(names, cases);
            _exit(noticed < 0 ? 0 : 1);
        }
        int status = 0;
        waitpid(child, &status, 0);
        std::cout << id << ' ' << resultOf(status) << std::endl;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fputs("usage: judge reach|try CASES\n", stderr);
        return 2;
    }
    ZelmMutant &mutant = *reinterpret_cast<ZelmMutant *>(exported("zelmMutant"));
    const std::uint64_t cases = std::strtoull(argv[2], nullptr, 10);
    return std::string(argv[1]) == "reach" ? reach(mutant, cases) : tryAll(mutant, cases);
}
