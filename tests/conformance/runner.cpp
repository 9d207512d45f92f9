#include "runner.h"

#include "control_state.h"
#include "crash.h"

#include <bit>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <unordered_map>

namespace zelmtest {
namespace {

bool isNan(std::uint64_t bits, std::size_t size) {
    if (size == 4)
        return (bits & 0x7fffffffu) > 0x7f800000u;
    return (bits & 0x7fffffffffffffffu) > 0x7ff0000000000000u;
}

std::uint64_t readBits(const unsigned char *at, std::size_t size) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, at, size);
    return bits;
}

std::string show(std::uint64_t bits, std::size_t size) {
    char text[80];
    if (size == 4)
        std::snprintf(text, sizeof text, "%a (0x%08" PRIx32 ")",
                      static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits))),
                      static_cast<std::uint32_t>(bits));
    else
        std::snprintf(text, sizeof text, "%a (0x%016" PRIx64 ")", std::bit_cast<double>(bits), bits);
    return text;
}

} // namespace

std::optional<Mismatch> Runner::run(const Target &target, std::uint64_t seed, std::uint64_t number,
                                    const Callee &callee) {
    const auto make = [&](Arena &arena, Case &result) {
        makeCase(target, seed, number, arena, result);
        return true;
    };
    return run(target, seed, number, make, callee);
}

std::optional<Mismatch> Runner::run(const Target &target, std::uint64_t seed, std::uint64_t number,
                                    const std::function<bool(Arena &, Case &)> &make, const Callee &callee) {
    nameRunningCase(target.function->name, seed, number);
    hasCase_ = make(arena_, case_);
    if (!hasCase_) {
        nameNoCase();
        return std::nullopt;
    }

    const auto isMapped = [this](zelmref::Address address) {
        std::size_t slab, offset;
        return arena_.locate(address, slab, offset) && offset < Arena::slabSize;
    };
    hasCase_ = !(target.family->raisesFault && target.family->raisesFault(case_.call, isMapped));
    if (!hasCase_)
        return std::nullopt;

    results_.clear();
    expected_ = target.family->run(case_.call, results_);
    for (const Window &w : case_.windows) {
        const std::size_t bytes = w.end - w.begin;
        std::memcpy(arena_.expected(w.slab) + w.begin, arena_.slab(w.slab) + w.begin, bytes);
        std::memcpy(arena_.slab(w.slab) + w.begin, arena_.before(w.slab) + w.begin, bytes);
    }
    return callAndCompare(callee, Digest::Add);
}

std::optional<Mismatch> Runner::again(const Callee &callee) {
    if (!hasCase_)
        return std::nullopt;
    nameRunningCase(case_.target->function->name, case_.seed, case_.number);
    return callAndCompare(callee, Digest::Leave);
}

std::optional<Mismatch> Runner::callAndCompare(const Callee &callee, Digest digests) {
    const std::vector<Value> values = valuesOf(*case_.target, case_.call);
    const ControlState state = controlState();
    const ZelmStatus actual = callee(case_, values);
    const bool stateKept = controlState() == state;
    nameNoCase();

    for (const Window &w : case_.anything)
        std::memcpy(arena_.expected(w.slab) + w.begin, arena_.slab(w.slab) + w.begin, w.end - w.begin);
    std::optional<Mismatch> mismatch = compare(actual);
    if (!mismatch && !stateKept)
        mismatch = Mismatch{"MXCSR or the x87 control word has changed"};
    if (digests == Digest::Add)
        digest(actual);
    for (const Window &w : case_.windows)
        std::memcpy(arena_.slab(w.slab) + w.begin, arena_.before(w.slab) + w.begin, w.end - w.begin);
    return mismatch;
}

std::optional<Mismatch> Runner::compare(ZelmStatus actual) {
    if (expected_ != actual)
        return Mismatch{"status: expected " + std::to_string(expected_) + ", actual " +
                        std::to_string(actual)};
    const auto differs = [&](const Window &w) {
        return std::memcmp(arena_.slab(w.slab) + w.begin, arena_.expected(w.slab) + w.begin,
                           w.end - w.begin) != 0;
    };
    bool nansAccepted = false;
    for (const Window &w : case_.windows) {
        if (!differs(w))
            continue;
        if (!nansAccepted)
            acceptComputedNans();
        nansAccepted = true;
        if (!differs(w))
            continue;
        std::size_t offset = w.begin;
        while (arena_.slab(w.slab)[offset] == arena_.expected(w.slab)[offset])
            ++offset;
        return describe(w, offset);
    }
    return std::nullopt;
}

// Where an element's last value is the result of arithmetic and both sides hold a NaN, they are equal.
void Runner::acceptComputedNans() {
    const std::size_t size = zelmref::elementSize(case_.target->cell);
    std::unordered_map<zelmref::Address, bool> computed;
    for (const auto &element : results_.inOrderOfWriting())
        computed[element.address] = element.computed;
    for (const auto &[address, isComputed] : computed) {
        std::size_t slab, offset;
        if (!isComputed || !arena_.locate(address, slab, offset))
            continue;
        unsigned char *expected = arena_.expected(slab) + offset;
        const unsigned char *actual = arena_.slab(slab) + offset;
        if (isNan(readBits(expected, size), size) && isNan(readBits(actual, size), size))
            std::memcpy(expected, actual, size);
    }
}

Mismatch Runner::describe(const Window &window, std::size_t offset) const {
    const unsigned char *actual = arena_.slab(window.slab), *expected = arena_.expected(window.slab);
    const std::size_t size = zelmref::elementSize(case_.target->cell);
    const auto at = static_cast<std::int64_t>(offset);
    for (std::size_t n = case_.operands.size(); n-- > 0;) { // the destination first
        const Placement &o = case_.operands[n];
        if (o.slab != window.slab)
            continue;
        for (std::uint32_t k = 0; k < o.objects; ++k)
            for (std::uint32_t i = 0; i < o.rows; ++i)
                for (std::uint32_t j = 0; j < o.columns; ++j) {
                    const std::int64_t start = o.origin + o.offset(k, i, j);
                    if (at < start || at >= start + static_cast<std::int64_t>(size))
                        continue;
                    const auto element = static_cast<std::size_t>(start);
                    return {case_.target->signature[o.parameter].name + ", object " + std::to_string(k) +
                                ", row " + std::to_string(i) + ", column " + std::to_string(j) + ": before " +
                                show(readBits(arena_.before(window.slab) + element, size), size) +
                                ", expected " + show(readBits(expected + element, size), size) + ", actual " +
                                show(readBits(actual + element, size), size),
                            reinterpret_cast<zelmref::Address>(actual + element)};
                }
    }
    char text[160];
    std::snprintf(text, sizeof text,
                  "slab %u, offset 0x%zx: expected byte 0x%02x, actual 0x%02x, in no element",
                  static_cast<unsigned>(window.slab), offset, expected[offset], actual[offset]);
    return {text};
}

std::uint64_t Runner::takeDigest() {
    const std::uint64_t digest = digest_;
    digest_ = 0;
    return digest;
}

void Runner::digest(ZelmStatus status) {
    const auto looksAtAddresses = case_.target->family->looksAtAddresses;
    if (looksAtAddresses && looksAtAddresses(case_.target->cell))
        return;
    const auto add = [&](std::uint64_t word) {
        digest_ = (digest_ ^ word) * 0x9e3779b97f4a7c15u;
        digest_ ^= digest_ >> 32;
    };
    const std::size_t size = zelmref::elementSize(case_.target->cell);
    add(static_cast<std::uint32_t>(status));
    const Placement &dst = case_.operands.back();
    const unsigned char *slab = arena_.slab(dst.slab) + dst.origin;
    for (std::uint32_t k = 0; k < dst.objects; ++k)
        for (std::uint32_t i = 0; i < dst.rows; ++i)
            for (std::uint32_t j = 0; j < dst.columns; ++j) {
                const std::uint64_t bits = readBits(slab + dst.offset(k, i, j), size);
                add(isNan(bits, size) ? ~std::uint64_t{0} : bits);
            }
    for (std::size_t p = 0; p < case_.target->signature.size(); ++p) {
        const zelmref::Parameter &parameter = case_.target->signature[p];
        const zelmref::Passed &passed = case_.call.passed[p];
        if (parameter.kind != zelmref::Kind::PivotIndex || !passed.base)
            continue;
        const std::size_t entries =
            std::size_t{case_.call.dimension("n")} * (parameter.array ? case_.call.count() : 1);
        for (std::size_t e = 0; e < entries; ++e)
            add(zelmref::readWord<std::uint32_t>(passed.base + 4 * e));
    }
}

} // namespace zelmtest
