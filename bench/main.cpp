// Measures the rows whose names match, prints a line for each and writes all figures as JSON.
#include "library.h"
#include "measure.h"
#include "member.h"
#include "problem.h"
#include "results.h"
#include "rows.h"

#include <getopt.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <regex>
#include <set>
#include <string>

namespace {

using namespace zelmbench;

constexpr const char *usage =
    R"(zelm_bench [--library FILE] [--beside FILE] [--peers FILE] [--target NAME] [--filter REGEX]
           [--rows FILE] [--quick | --check | --instructions] [--json FILE] [--list]

  --library FILE  the library that is measured, instead of the one built beside this program
  --beside FILE   another build of it, measured in the same samples: own time over its time
  --peers FILE    other peers ("none" measures none)
  --target NAME   what the results call this build of library and peers
  --filter REGEX  rows that it is found in, like 'zelmMul_.*_P/'
  --rows FILE     of them those whose names stand in the file, one a line
  --quick         few short samples, and no rows of 1,000,000 objects
  --check         runs every contender once: does it compute what the library computes?
  --instructions  counts what an object takes of them, in place of its time
  --json FILE     writes the figures
  --list          prints the names of the rows only
)";

struct Options {
    std::string measured = ZELM_BENCH_LIBRARY, beside, peers = ZELM_BENCH_PEERS;
    std::string target = ZELM_BENCH_TARGET, filter = ".", rows, json;
    Effort effort = thorough;
    bool isList = false, isCount = false;
};

Options parse(int argc, char **argv) {
    static const option known[] = {
        {"library", required_argument, nullptr, 'l'}, {"beside", required_argument, nullptr, 'b'},
        {"peers", required_argument, nullptr, 'p'},   {"target", required_argument, nullptr, 't'},
        {"filter", required_argument, nullptr, 'f'},  {"rows", required_argument, nullptr, 'r'},
        {"json", required_argument, nullptr, 'j'},    {"quick", no_argument, nullptr, 'q'},
        {"check", no_argument, nullptr, 'c'},         {"list", no_argument, nullptr, 'n'},
        {"instructions", no_argument, nullptr, 'i'},  {}};
    Options options;
    for (int letter = 0; (letter = getopt_long(argc, argv, "", known, nullptr)) != -1;) {
        switch (letter) {
        case 'l':
            options.measured = optarg;
            break;
        case 'b':
            options.beside = optarg;
            break;
        case 'p':
            options.peers = optarg;
            break;
        case 't':
            options.target = optarg;
            break;
        case 'f':
            options.filter = optarg;
            break;
        case 'r':
            options.rows = optarg;
            break;
        case 'j':
            options.json = optarg;
            break;
        case 'q':
            options.effort = quick;
            break;
        case 'c':
            options.effort = single;
            break;
        case 'n':
            options.isList = true;
            break;
        case 'i':
            options.isCount = true;
            options.effort = quick;
            break;
        default:
            throw std::runtime_error(usage);
        }
    }
    if (optind != argc) {
        throw std::runtime_error(usage);
    }
    return options;
}

std::set<std::string> linesOf(const std::string &path) {
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("can't read " + path);
    }
    std::set<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        lines.insert(line);
    }
    return lines;
}

std::vector<Row> chosenRows(const Options &options) {
    const std::regex filter(options.filter);
    std::vector<Row> rows = allRows(options.effort.mostRounds == thorough.mostRounds);
    std::erase_if(rows, [&](const Row &row) { return !std::regex_search(row.name, filter); });
    if (!options.rows.empty()) {
        const std::set<std::string> names = linesOf(options.rows);
        std::erase_if(rows, [&](const Row &row) { return !names.contains(row.name); });
    }
    return rows;
}

int run(const Options &options) {
    const std::vector<Row> rows = chosenRows(options);
    if (options.isList) {
        for (const Row &row : rows) {
            std::cout << row.name << '\n';
        }
        return 0;
    }
    const Library library(options.measured);
    const auto beside = options.beside.empty() ? nullptr : std::make_unique<Library>(options.beside);
    Results results(options.json, options.isCount ? "instr" : "ns", options.target, options.measured,
                    options.beside, options.peers);
    const auto peers = options.peers == "none" ? nullptr : std::make_unique<Library>(options.peers);
    const PeerTable table(peers.get());
    const Field field{library, beside.get(), table};
    for (const Row &row : rows) {
        results.add(row, options.isCount ? countRow(row, field) : measureRow(row, field, options.effort));
    }
    return results.finish() && !rows.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    try {
        return run(parse(argc, argv));
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
