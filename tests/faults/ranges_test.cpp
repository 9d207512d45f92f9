// Strides and counts at the ends of their ranges.
#include "crash.h"
#include "faults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <sys/mman.h>

namespace zelmtest {
namespace {

using zelmref::Kind;
using zelmref::Layout;
using zelmref::Passed;

constexpr std::uint64_t seed = 16;
constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min(),
                       most = std::numeric_limits<std::int32_t>::max();

bool isStrided(const Placement &o) {
    return !o.packed && (o.layout == Layout::Standard || o.layout == Layout::S2);
}

std::uintptr_t elementAddress(const Placement &o, const Passed &passed, std::uint32_t k, std::uint32_t i,
                              std::uint32_t j) {
    return passed.base + zelmref::times(k, passed.objStride) +
           static_cast<std::uintptr_t>(i * o.row + j * o.elem);
}

// One call by the model and by the function on memory outside of the runner's windows.
class BareCall {
public:
    explicit BareCall(Case &made) : made_(made), size_(zelmref::elementSize(made.target->cell)) {}

    // What differs, or nothing.
    std::string compare(AnyFunction function) {
        nameRunningCase(made_.target->function->name, made_.seed, made_.number);
        const std::vector<std::uint64_t> before = destination();
        zelmref::ComputedElements results;
        const ZelmStatus expected = made_.target->family->run(made_.call, results);
        const std::vector<std::uint64_t> wanted = destination();
        setDestination(before);
        const ZelmStatus status =
            callAsOldCallersDo(*made_.target, function, valuesOf(*made_.target, made_.call), made_.number);
        nameNoCase();
        if (status != expected)
            return "status: expected " + std::to_string(expected) + ", actual " + std::to_string(status);
        return std::ranges::equal(destination(), wanted,
                                  [this](auto a, auto b) { return a == b || (isNan(a) && isNan(b)); })
                   ? ""
                   : "an element of dst";
    }

    // How many objects of dst are looked at: no more have memory.
    std::uint32_t objects = 1;

private:
    template <class Use>
    void forEachElement(Use use) const {
        const Placement &o = made_.operands.back();
        for (std::uint32_t k = 0; k < objects; ++k)
            for (std::uint32_t i = 0; i < o.rows; ++i)
                for (std::uint32_t j = 0; j < o.columns; ++j)
                    use(reinterpret_cast<void *>(elementAddress(o, made_.call.passed[o.parameter], k, i, j)));
    }
    std::vector<std::uint64_t> destination() const {
        std::vector<std::uint64_t> elements;
        forEachElement([&](const void *element) {
            elements.push_back(0);
            std::memcpy(&elements.back(), element, size_);
        });
        return elements;
    }
    void setDestination(const std::vector<std::uint64_t> &elements) const {
        auto next = elements.begin();
        forEachElement([&](void *element) { std::memcpy(element, &*next++, size_); });
    }
    bool isNan(std::uint64_t bits) const {
        return size_ == 4 ? (bits & 0x7fffffffu) > 0x7f800000u
                          : (bits & 0x7fffffffffffffffu) > 0x7ff0000000000000u;
    }

    Case &made_;
    std::size_t size_;
};

// Objects of one operand that lie as far from each other as a stride can say, with no memory between them.
class FarObjects {
public:
    // Pages at base, base + stride, ... for the bytes low to high of each object; none if they aren't free.
    FarObjects(std::int32_t stride, std::uint32_t count, std::int64_t low, std::int64_t high) {
        const std::uintptr_t below = pagesOf(-low), above = pagesOf(high);
        length_ = below + above;
        for (std::uintptr_t tried = 0; tried < tries && base_ == 0; ++tried) {
            const std::uintptr_t base = firstBase + tried * baseStep;
            for (std::uint32_t k = 0; k < count; ++k)
                if (!map(base + zelmref::times(k, stride) - below)) {
                    unmap();
                    break;
                }
            if (mapped_.size() == count)
                base_ = base;
        }
    }
    ~FarObjects() { unmap(); }
    FarObjects(const FarObjects &) = delete;
    FarObjects &operator=(const FarObjects &) = delete;

    bool holds(std::uintptr_t address) const {
        return std::ranges::any_of(mapped_, [&](const void *memory) {
            return address - reinterpret_cast<std::uintptr_t>(memory) < length_ + page;
        });
    }
    std::uintptr_t base() const {
        return base_; // 0 if there is none
    }

private:
    static constexpr std::uintptr_t page = 4096, tries = 24;
    static constexpr std::uintptr_t firstBase =
        sizeof(void *) == 8 ? std::uintptr_t{1} << (sizeof(void *) == 8 ? 44 : 0) : 0x10000000u;
    static constexpr std::uintptr_t baseStep = 0x04010000u;

    // The bytes of whole pages that hold these, and one more.
    static std::uintptr_t pagesOf(std::int64_t bytes) {
        return (static_cast<std::uintptr_t>(bytes) / page + 1) * page;
    }

    bool map(std::uintptr_t address) {
        const std::uintptr_t start = address / page * page;
        void *const memory = mmap(reinterpret_cast<void *>(start), length_ + page, PROT_READ | PROT_WRITE,
                                  MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
        if (memory == MAP_FAILED)
            return false;
        mapped_.push_back(memory);
        return memory == reinterpret_cast<void *>(start);
    }
    void unmap() {
        for (void *memory : mapped_)
            munmap(memory, length_ + page);
        mapped_.clear();
    }

    std::size_t length_ = 0;
    std::uintptr_t base_ = 0;
    std::vector<void *> mapped_;
};

// Puts an operand's objects where a stride of about 2^31 leads. False if there is no such room.
bool moveFarApart(const Case &made, const Placement &o, std::int32_t stride, Passed &passed,
                  std::vector<std::unique_ptr<FarObjects>> &memory) {
    const std::size_t size = zelmref::elementSize(made.target->cell);
    const std::int64_t rows = (o.rows - 1) * o.row, columns = (o.columns - 1) * o.elem;
    const std::int64_t low = std::min<std::int64_t>(0, rows) + std::min<std::int64_t>(0, columns);
    const std::int64_t high = std::max<std::int64_t>(0, rows) + std::max<std::int64_t>(0, columns) +
                              static_cast<std::int64_t>(size);
    memory.push_back(std::make_unique<FarObjects>(stride, o.objects, low, high));
    if (memory.back()->base() == 0)
        return false;
    // An element that is never read may lie where there is no memory.
    const auto hasMemory = [&](std::int64_t offset) {
        return offset >= 0 && offset + static_cast<std::int64_t>(size) <= std::int64_t{Arena::slabSize};
    };
    Passed far = passed;
    far.base = memory.back()->base();
    far.objStride = stride;
    for (std::uint32_t k = 0; k < o.objects; ++k)
        for (std::uint32_t i = 0; i < o.rows; ++i)
            for (std::uint32_t j = 0; j < o.columns; ++j)
                if (hasMemory(o.origin + o.offset(k, i, j)))
                    std::memcpy(reinterpret_cast<void *>(elementAddress(o, far, k, i, j)),
                                reinterpret_cast<const void *>(elementAddress(o, passed, k, i, j)), size);
    passed = far;
    return true;
}

// An array form whose every operand is strided, by itself or held for all objects.
bool isStridedArrayForm(const Case &made) {
    return made.target->family->columnsReached == nullptr &&
           std::ranges::all_of(made.operands,
                               [](const Placement &o) { return o.packed || (isStrided(o) && !o.table); }) &&
           std::ranges::any_of(made.operands, [](const Placement &o) { return o.array && !o.packed; });
}

bool hasNullArgument(const Case &made) {
    return std::ranges::any_of(made.call.passed,
                               [](const Passed &p) { return p.base == 0 && p.size == 0 && p.bits == 0; });
}

TEST(Ranges, ObjectsMayLieFarApart) {
    installCrashHandler();
    // On t7, where addresses wrap, a third object would lie on the first.
    const std::uint32_t objects = sizeof(void *) == 8 ? 3 : 2;
    std::uint64_t calls = 0, functionsCalled = 0;
    forEachFunction([&](const Target &target, AnyFunction function) {
        bool isCalled = false;
        for (std::uint64_t n = 0; n < casesPerFunction(2); ++n) {
            Case made;
            makeCase(target, seed, objects + 10 * n, arena(), made);
            if (!isStridedArrayForm(made) || made.operands.back().objects != objects)
                continue;
            if (hasNullArgument(made))
                continue; // the call ends before any object
            std::vector<std::unique_ptr<FarObjects>> memory;
            bool isPlaced = true;
            std::int32_t stride = n % 2 == 0 ? least : most - 7; // a multiple of 8
            for (const Placement &o : made.operands)
                if (o.array && !o.packed && isPlaced) {
                    isPlaced = moveFarApart(made, o, stride, made.call.passed[o.parameter], memory);
                    stride = stride == least ? most - 7 : least;
                }
            if (!isPlaced)
                continue;
            const auto isMapped = [&](zelmref::Address address) {
                std::size_t slab = 0, offset = 0;
                return (arena().locate(address, slab, offset) && offset < Arena::slabSize) ||
                       std::ranges::any_of(memory, [&](const auto &far) { return far->holds(address); });
            };
            if (target.family->raisesFault && target.family->raisesFault(made.call, isMapped))
                continue; // a named departure, at an address that it doesn't take
            BareCall call(made);
            call.objects = objects;
            ++calls;
            isCalled = true;
            if (const std::string what = call.compare(function); !what.empty())
                tellFailure(made, what);
        }
        functionsCalled += isCalled;
    });
    EXPECT_GT(functionsCalled, 500u);
    std::printf("%llu calls of %llu functions\n", static_cast<unsigned long long>(calls),
                static_cast<unsigned long long>(functionsCalled));
}

// A stride that is multiplied by no index but 0 may be anything.
TEST(Ranges, StridesThatLeadNowhereMayBeAnything) {
    installCrashHandler();
    constexpr std::int32_t ends[] = {least, most, least + 1, -1, 1, most - 1};
    std::uint64_t calls = 0, changed = 0;
    forEachFunction([&](const Target &target, AnyFunction function) {
        Runner runner(arena());
        for (std::uint64_t n = 0; n < casesPerFunction(6); ++n) {
            const std::uint64_t number = 1 + 10 * (n % 3) + 85 * (n / 3); // one object
            Random random(caseSeed(seed, target.function->name, number));
            bool isChanged = false;
            const auto make = [&](Arena &memory, Case &made) {
                makeCase(target, seed, number, memory, made);
                for (const Placement &o : made.operands) {
                    Passed &passed = made.call.passed[o.parameter];
                    const auto change = [&](bool may, std::int32_t &stride) {
                        if (may && random.chance(80)) {
                            stride = ends[random.below(std::size(ends))];
                            isChanged = true;
                        }
                    };
                    change(!o.array || o.objects <= 1, passed.objStride);
                    change(o.rows == 1 && made.target->family->columnsReached == nullptr, passed.rowStride);
                    change(o.rows == 1 && o.columns == 1 && made.target->family->columnsReached == nullptr,
                           passed.elemStride);
                }
                return true;
            };
            const auto mismatch =
                runner.run(target, seed, number, make, [&](const Case &, const std::vector<Value> &values) {
                    return callAsOldCallersDo(target, function, values, number);
                });
            ++calls;
            changed += isChanged;
            if (mismatch)
                tellFailure(runner.last(), mismatch->what);
        }
    });
    EXPECT_GT(changed, calls / 2);
    std::printf("%llu calls, %llu with strides at an end of their range\n",
                static_cast<unsigned long long>(calls), static_cast<unsigned long long>(changed));
}

// Makes all elements of the sources zero, and all objects the same one.
void makeSingular(Case &made) {
    const std::size_t size = zelmref::elementSize(made.target->cell);
    for (const Placement &o : made.operands) {
        made.call.passed[o.parameter].objStride = 0;
        const bool isSource = &o != &made.operands.back();
        for (std::uint32_t i = 0; i < o.rows && isSource; ++i)
            for (std::uint32_t j = 0; j < o.columns; ++j)
                if (const std::int64_t at = o.origin + o.offset(0, i, j);
                    at >= 0 && at + static_cast<std::int64_t>(size) <= std::int64_t{Arena::slabSize})
                    std::memset(arena().slab(o.slab) + at, 0, size);
    }
}

// Decompositions stop at the first object that fails, whatever the count.
TEST(Ranges, CountsMayBeTheLargest) {
    installCrashHandler();
    std::uint64_t calls = 0;
    forEachFunction([&](const Target &target, AnyFunction function) {
        const std::string operation = target.function->operation;
        const bool isSigned = operation == "CholeskyDecomp";
        if (operation != "LUDecomp" && operation != "QRDecomp" && operation != "Invert" && !isSigned)
            return;
        Case made;
        makeCase(target, seed, 1, arena(), made); // one object
        if (!isStridedArrayForm(made) || made.call.count() != 1 || hasNullArgument(made))
            return;
        makeSingular(made);
        zelmref::ComputedElements results;
        if (target.family->run(made.call, results) == ZELM_OK)
            return; // a single row has no column to eliminate
        for (const std::uint32_t count : {0x7fffffffu, 0x80000000u, 0xffffffffu}) {
            if (isSigned && count > 0x7fffffffu)
                continue;       // below 0
            makeSingular(made); // in place, the first call may have written it
            made.call.passed[made.call.index("count")].size = count;
            BareCall call(made);
            ++calls;
            if (const std::string what = call.compare(function); !what.empty())
                tellFailure(made, what);
        }
    });
    EXPECT_GT(calls, 100u);
    std::printf("%llu calls\n", static_cast<unsigned long long>(calls));
}

// All of the largest count, in long runs: some seconds.
TEST(Ranges, AllObjectsOfTheLargestCount) {
    if (casesPerFunction(1) == 1)
        GTEST_SKIP() << "only in long runs";
    const auto add = reinterpret_cast<decltype(&zelmAdd_vac_32f_3x1)>(exported("zelmAdd_vac_32f_3x1"));
    const float source[3] = {1, 2, 3};
    float sum[3] = {};
    EXPECT_EQ(add(source, 0, 0.5f, sum, 0, 0xffffffffu), ZELM_OK);
    EXPECT_EQ(sum[0], 1.5f);
    EXPECT_EQ(sum[2], 3.5f);
}

} // namespace
} // namespace zelmtest
