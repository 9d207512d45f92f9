// fingerprints FILE: compares the file with what the reference model computes.
// fingerprints --write FILE: writes it, and keeps the tables of other processors that it has.
#include "approximations.h"
#include "checks.h"
#include "model.h"
#include "processor.h"
#include "version.h"

#include <bit>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace zelmtest {
namespace {

Fingerprint ofModel(Stream &stream, const Function &function) {
    const Target target = targetOf(function);
    if (!target.family)
        throw std::runtime_error(std::string("the reference model has no family for ") + function.name);
    const StreamModel model(target, stream);
    Fingerprint result{.function = function.name};
    for (std::size_t number = 0; number < Stream::callCount(function); ++number) {
        if (model.leavesOut(stream.make(function, number)))
            result.leftOut |= std::uint64_t{1} << number;
        stream.restore();
    }
    const std::uint64_t before = zelmref::approximationsTaken;
    result.hash = fingerprintOf(stream, function, result.leftOut,
                                [&](const StreamCall &call) { return model.run(call); });
    result.approximate = zelmref::approximationsTaken != before;
    return result;
}

Fingerprint ofVersion() {
    const ZelmLibVersion record = {4, 1, 11, 30, {'t', '7', 0, 0}, "libzelmt7.so", "v4.1", "Jul 17 2004"};
    return {.function = "zelmGetLibVersion", .hash = fingerprintOf(record, true)};
}

Fingerprints ofAll() {
    Stream stream;
    Fingerprints result;
    ProcessorTable table{approximations(), processorName(), {}};
    for (std::size_t f = 0; f < functionCount; ++f) {
        Fingerprint fingerprint = ofModel(stream, functions[f]);
        if (fingerprint.approximate) {
            table.hashes[fingerprint.function] = fingerprint.hash;
            fingerprint.hash = 0;
        }
        result.functions.push_back(fingerprint);
    }
    result.functions.push_back(ofVersion());
    result.tables.push_back(table);
    return result;
}

Fingerprints read(const char *path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return parseFingerprints(text.str());
}

// With what this processor can't compute: the other processors' tables.
Fingerprints withTablesOf(Fingerprints computed, const Fingerprints &others) {
    for (const ProcessorTable &table : others.tables)
        if (!computed.tableOf(table.approximations))
            computed.tables.push_back(table);
    return computed;
}

int write(const char *path) {
    const std::string text = textOf(withTablesOf(ofAll(), read(path)));
    std::ofstream file(path);
    file << text;
    file.close();
    return file.fail() ? 1 : 0;
}

// The lines of a file, each under the name of its function, with its table where it stands in one.
std::map<std::string, std::string> linesOf(const Fingerprints &fingerprints) {
    std::map<std::string, std::string> lines;
    for (const Fingerprint &f : fingerprints.functions)
        lines[f.function] = hexOf(f.leftOut) + (f.approximate ? " approximate" : " " + hexOf(f.hash));
    for (const ProcessorTable &table : fingerprints.tables)
        for (const auto &[function, hash] : table.hashes)
            lines[function + " in table " + hexOf(table.approximations)] = hexOf(hash);
    return lines;
}

std::size_t callsOf(const Fingerprints &fingerprints) {
    std::size_t calls = 0;
    for (std::size_t f = 0; f < functionCount; ++f)
        calls += Stream::callCount(functions[f]) -
                 static_cast<std::size_t>(std::popcount(fingerprints.functions[f].leftOut));
    return calls;
}

int compare(const char *path) {
    const Fingerprints committed = read(path);
    Fingerprints computed = ofAll();
    if (!committed.tableOf(computed.tables[0].approximations)) {
        std::printf("no table of this processor, %s: what rests on its approximations isn't compared\n",
                    computed.tables[0].processor.c_str());
        computed.tables.clear();
    }
    std::map<std::string, std::string> found = linesOf(committed),
                                       wanted = linesOf(withTablesOf(computed, committed));
    int differences = 0;
    for (const auto &[name, line] : wanted)
        if (found[name] != line && ++differences)
            std::printf("%s: the model gives %s, the file has %s\n", name.c_str(), line.c_str(),
                        found[name].empty() ? "nothing" : found[name].c_str());
    for (const auto &[name, line] : found)
        if (!wanted.contains(name) && ++differences)
            std::printf("%s: in the file, but no function has it\n", name.c_str());
    std::printf("%zu functions, %zu calls, %d lines differ\n", computed.functions.size(), callsOf(computed),
                differences);
    return differences ? 1 : 0;
}

} // namespace
} // namespace zelmtest

int main(int argc, char **argv) {
    const bool writes = argc == 3 && std::strcmp(argv[1], "--write") == 0;
    if (argc != 2 && !writes) {
        std::fprintf(stderr, "usage: fingerprints [--write] FILE\n");
        return 2;
    }
    try {
        return writes ? zelmtest::write(argv[2]) : zelmtest::compare(argv[1]);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
