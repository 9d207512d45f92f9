#include "fingerprints.h"

#include <charconv>
#include <cinttypes>
#include <cstdio>
#include <sstream>
#include <stdexcept>

namespace zelmtest {
namespace {

constexpr const char *head =
    "# What the functions of zelm give for a fixed stream of calls, by the reference model:\n"
    "# name, calls of the stream that are left out, hash of the results. Where the results rest on the\n"
    "# processor's approximate reciprocals and roots, the hashes stand in a table for each kind of\n"
    "# processor, below. docs/selftest.md says more.\n";

std::uint64_t number(const std::string &text) {
    std::uint64_t value = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.empty() || error != std::errc{} || stop != text.data() + text.size())
        throw std::runtime_error("not a hexadecimal number: '" + text + "'");
    return value;
}

void parseLine(const std::string &line, Fingerprints &result) {
    std::istringstream words(line);
    std::string first, second, third;
    words >> first >> second;
    if (first == "table") {
        ProcessorTable table;
        table.approximations = number(second);
        std::getline(words >> std::ws, table.processor);
        result.tables.push_back(table);
    } else if (line[0] == ' ') {
        if (result.tables.empty())
            throw std::runtime_error("a line of a table without its table");
        result.tables.back().hashes[first] = number(second);
    } else {
        words >> third;
        const bool approximate = third == "approximate";
        result.functions.push_back({first, number(second), approximate, approximate ? 0 : number(third)});
    }
}

} // namespace

std::string hexOf(std::uint64_t hash) {
    char text[20];
    std::snprintf(text, sizeof text, "%016" PRIx64, hash);
    return text;
}

const ProcessorTable *Fingerprints::tableOf(std::uint64_t approximations) const {
    for (const ProcessorTable &table : tables)
        if (table.approximations == approximations)
            return &table;
    return nullptr;
}

Fingerprints parseFingerprints(const std::string &text) {
    Fingerprints result;
    std::istringstream lines(text);
    std::string line;
    for (int n = 1; std::getline(lines, line); ++n) {
        if (line.empty() || line[0] == '#')
            continue;
        try {
            parseLine(line, result);
        } catch (const std::runtime_error &error) {
            throw std::runtime_error("line " + std::to_string(n) + ": " + error.what());
        }
    }
    return result;
}

std::string textOf(const Fingerprints &fingerprints) {
    std::string text = head;
    char leftOut[20];
    for (const Fingerprint &f : fingerprints.functions) {
        std::snprintf(leftOut, sizeof leftOut, "%" PRIx64, f.leftOut);
        text += f.function + " " + leftOut + " " + (f.approximate ? "approximate" : hexOf(f.hash)) + "\n";
    }
    for (const ProcessorTable &table : fingerprints.tables) {
        text += "table " + hexOf(table.approximations) + " " + table.processor + "\n";
        for (const auto &[function, hash] : table.hashes)
            text += "  " + function + " " + hexOf(hash) + "\n";
    }
    return text;
}

} // namespace zelmtest
