// zelm-selftest: does the installed library compute on this machine what zelm computes?
#include "checks.h"
#include "loaded_library.h"
#include "processor.h"
#include "version.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

extern "C" const char zelmFingerprints[]; // the text of fingerprints.txt, ended by a zero byte

namespace zelmtest {
namespace {

constexpr const char *usage =
    "usage: " ZELM_PROGRAM " [--library FILE] [--fingerprints FILE] [--record FILE]\n"
    "\n"
    "Calls every function of the installed " ZELM_SONAME
    " with a fixed stream of operands and compares what comes of\n"
    "it with the fingerprints that the reference model has left.\n"
    "\n"
    "--library FILE       this library, not the one that the dynamic loader finds\n"
    "--fingerprints FILE  these fingerprints, not the ones of the release\n"
    "--record FILE        writes the fingerprints with a table for this processor, if none has been "
    "recorded\n"
    "\n"
    "Exit status: 0 if all functions agree, 1 if one doesn't, 2 if the check could not be made.\n";

struct Options {
    std::string path, fingerprints, record;
};

Options parse(int argc, char **argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i], name = argument.substr(0, argument.find('='));
        std::string *const value = name == "--library"        ? &options.path
                                   : name == "--fingerprints" ? &options.fingerprints
                                   : name == "--record"       ? &options.record
                                                              : nullptr;
        if (!value)
            throw std::invalid_argument("unknown argument " + argument);
        if (name != argument)
            *value = argument.substr(name.size() + 1);
        else if (++i < argc)
            *value = argv[i];
        if (value->empty())
            throw std::invalid_argument(name + " wants a file");
    }
    return options;
}

std::string contentOf(const std::string &path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    if (!file)
        throw std::runtime_error("cannot read " + path);
    return text.str();
}

const char *runningFunction = "";

// A function that crashes ends the check: what it left behind can't be trusted.
void tellCrash(int) {
    const auto put = [](const char *text) {
        [[maybe_unused]] const auto written = write(STDOUT_FILENO, text, std::strlen(text));
    };
    put(runningFunction);
    put(": crashes\nFAILED: the check ended at a function that crashes. Do not use this library.\n");
    _exit(1);
}

void catchCrashes() {
    struct sigaction action {};
    action.sa_handler = tellCrash;
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        sigaction(signal, &action, nullptr);
}

struct Outcome {
    std::size_t agreeing = 0, failing = 0, unknown = 0;
    ProcessorTable table; // what this processor makes of the functions that rest on its approximations
};

std::uint64_t fingerprintOfVersion(const Library &library) {
    const auto get = reinterpret_cast<decltype(&zelmGetLibVersion)>(library.function("zelmGetLibVersion"));
    const ZelmLibVersion *const version = get();
    return fingerprintOf(*version, get() == version);
}

class Check {
public:
    Check(const Library &library, const Fingerprints &fingerprints)
        : library_(library), fingerprints_(fingerprints) {
        outcome_.table.approximations = approximations();
        outcome_.table.processor = processorName();
        known_ = fingerprints.tableOf(outcome_.table.approximations);
    }

    const Outcome &run() {
        std::map<std::string, const Function *> byName;
        for (std::size_t f = 0; f < functionCount; ++f)
            byName[functions[f].name] = &functions[f];
        if (fingerprints_.functions.size() != functionCount + 1)
            throw std::runtime_error("the fingerprints are of " +
                                     std::to_string(fingerprints_.functions.size()) +
                                     " functions, this program knows " + std::to_string(functionCount + 1));
        for (const Fingerprint &f : fingerprints_.functions) {
            runningFunction = f.function.c_str();
            const auto known = byName.find(f.function);
            if (f.function != "zelmGetLibVersion" && known == byName.end())
                throw std::runtime_error("the fingerprints name a function that zelm doesn't have: " +
                                         f.function);
            const auto exported = library_.function(f.function);
            if (!exported)
                tell(f, "the library doesn't export it");
            else if (f.function == "zelmGetLibVersion")
                compare(f, fingerprintOfVersion(library_));
            else
                compare(f, fingerprintOf(stream_, *known->second, f.leftOut, [&](const StreamCall &call) {
                            return call.function->call(exported, call.values.data());
                        }));
        }
        return outcome_;
    }

    const ProcessorTable *known() const { return known_; }

private:
    void compare(const Fingerprint &f, std::uint64_t hash) {
        std::uint64_t expected = f.hash;
        if (f.approximate) {
            outcome_.table.hashes[f.function] = hash;
            if (!known_) {
                ++outcome_.unknown;
                return;
            }
            const auto line = known_->hashes.find(f.function);
            if (line == known_->hashes.end())
                return tell(f, "has no line in its processor's table");
            expected = line->second;
        }
        if (hash != expected)
            return tell(f, "other results");
        ++outcome_.agreeing;
    }

    void tell(const Fingerprint &f, const char *what) {
        std::printf("%s: %s\n", f.function.c_str(), what);
        std::fflush(stdout);
        ++outcome_.failing;
    }

    const Library &library_;
    const Fingerprints &fingerprints_;
    const ProcessorTable *known_;
    Stream stream_;
    Outcome outcome_;
};

// The fingerprints with this processor's table. Only a library that agrees in everything else is believed.
void record(Fingerprints fingerprints, const Outcome &outcome, const std::string &path) {
    if (outcome.failing) {
        std::fputs(ZELM_PROGRAM ": nothing is recorded of a library that fails\n", stderr);
        return;
    }
    if (!fingerprints.tableOf(outcome.table.approximations))
        fingerprints.tables.push_back(outcome.table);
    std::ofstream file(path);
    file << textOf(fingerprints);
    file.close();
    if (file.fail())
        throw std::runtime_error("cannot write " + path);
    std::printf("recorded in %s\n", path.c_str());
}

// The last line, for people.
void conclude(const Outcome &outcome) {
    const std::size_t all = outcome.agreeing + outcome.failing + outcome.unknown;
    if (outcome.failing)
        std::printf(
            "FAILED: %zu of %zu functions do not give the results of zelm. Do not use this library.\n",
            outcome.failing, all);
    else if (outcome.unknown)
        std::printf("OK: %zu of %zu functions agree bit for bit. The other %zu rest on approximations of "
                    "this processor\n"
                    "that have not been recorded yet; --record FILE does so.\n",
                    outcome.agreeing, all, outcome.unknown);
    else
        std::printf("OK: all %zu functions agree bit for bit.\n", all);
}

int run(const Options &options) {
    const Fingerprints fingerprints =
        parseFingerprints(options.fingerprints.empty() ? zelmFingerprints : contentOf(options.fingerprints));
    const Library library(options.path);
    Check check(library, fingerprints);
    const ProcessorTable *const known = check.known();
    std::printf("library: %s\n", library.file().c_str());
    std::printf("processor: %s, approximations %s, %s\n", processorName().c_str(),
                hexOf(approximations()).c_str(),
                known ? ("recorded on " + known->processor).c_str() : "not recorded yet");
    std::fflush(stdout);
    catchCrashes();
    const Outcome &outcome = check.run();
    if (!options.record.empty())
        record(fingerprints, outcome, options.record);
    conclude(outcome);
    return outcome.failing ? 1 : 0;
}

} // namespace
} // namespace zelmtest

int main(int argc, char **argv) {
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        std::fputs(zelmtest::usage, stdout);
        return 0;
    }
    try {
        return zelmtest::run(zelmtest::parse(argc, argv));
    } catch (const std::invalid_argument &error) {
        std::fprintf(stderr, ZELM_PROGRAM ": %s\n\n%s", error.what(), zelmtest::usage);
    } catch (const std::exception &error) {
        std::fprintf(stderr, ZELM_PROGRAM ": %s\n", error.what());
    }
    return 2;
}
