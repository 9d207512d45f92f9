// The file of fingerprints: a line for each exported function, and a table for each kind of processor.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace zelmtest {

struct Fingerprint {
    std::string function;
    std::uint64_t leftOut = 0; // bit n: call n of the stream is not made, as it would mean nothing or fault
    bool approximate = false;  // rests on the processor's approximations: the hash stands in its table
    std::uint64_t hash = 0;
};

struct ProcessorTable {
    std::uint64_t approximations = 0;
    std::string processor;
    std::map<std::string, std::uint64_t> hashes;
};

struct Fingerprints {
    std::vector<Fingerprint> functions;
    std::vector<ProcessorTable> tables;

    const ProcessorTable *tableOf(std::uint64_t approximations) const; // or null
};

// Throws std::runtime_error with the number of a line that can't be read.
Fingerprints parseFingerprints(const std::string &text);

std::string textOf(const Fingerprints &fingerprints);

std::string hexOf(std::uint64_t hash);

} // namespace zelmtest
