#include "results.h"

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace zelmbench {
namespace {

std::string processorName() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("model name")) {
            return line.substr(line.find(": ") + 2);
        }
    }
    return "unknown";
}

void writeField(std::ostream &out, const char *name, const std::string &value) {
    out << "  \"" << name << "\": \"" << value << "\",\n";
}

} // namespace

Results::Results(const std::string &json, const std::string &unit, const std::string &target,
                 const std::string &library, const std::string &beside, const std::string &peers) {
    if (!json.empty()) {
        file_.open(json);
        file_ << "{\n";
        writeField(file_, "unit", unit);
        writeField(file_, "target", target);
        writeField(file_, "processor", processorName());
        writeField(file_, "compiler", ZELM_BENCH_COMPILER);
        writeField(file_, "flags", ZELM_BENCH_FLAGS);
        writeField(file_, "library", library);
        writeField(file_, "beside", beside);
        writeField(file_, "peers", peers);
        file_ << "  \"rows\": {";
    }
    std::printf("%-48s %10s", "function/objects", (unit + "/object").c_str());
    std::printf(beside.empty() ? "" : " %10s %6s", "beside", "ratio");
    std::printf(" %10s %6s  %s\n", "peer", "ratio", "best peer");
}

void Results::add(const Row &row, const Figures &figures) {
    const auto &values = figures.perObject;
    const double own = values.front().second;
    std::printf("%-48s %10.3f", row.name.c_str(), own);
    auto peer = values.begin() + 1;
    if (peer != values.end() && peer->first == besideName) {
        std::printf(" %10.3f %6.3f", peer->second, own / peer->second);
        ++peer;
    }
    if (peer != values.end()) {
        const auto best = std::min_element(
            peer, values.end(), [](const auto &one, const auto &other) { return one.second < other.second; });
        std::printf(" %10.3f %6.3f  %s", best->second, own / best->second, best->first.c_str());
    }
    for (const std::string &name : figures.wrong) {
        std::printf("  (%s computes something else)", name.c_str());
    }
    std::printf("\n");
    std::fflush(stdout);
    file_ << (rows_++ == 0 ? "\n" : ",\n") << "    \"" << row.name << "\": {";
    for (std::size_t i = 0; i < values.size(); ++i) {
        file_ << (i == 0 ? "" : ", ") << '"' << values[i].first << "\": " << values[i].second;
    }
    file_ << '}';
    wrong_ += figures.wrong.size();
}

bool Results::finish() {
    file_ << "\n  }\n}\n";
    if (wrong_ > 0) {
        std::cerr << wrong_ << " contenders compute something else than the library\n";
    }
    return wrong_ == 0;
}

} // namespace zelmbench
