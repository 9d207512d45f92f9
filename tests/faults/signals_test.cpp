// Signals that arrive in a call, at each of its instructions: the processor's trap flag raises one after
// every one.
#include "faults.h"
#include "processor_mode.h"

#include "zelm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <limits>
#include <link.h>
#include <ucontext.h>

namespace zelmtest {
namespace {

constexpr std::uint64_t seed = 13;

// Every so many functions a call is interrupted at all of its instructions, the others at so many. A signal
// takes a 32-bit program on a 64-bit system many times as long.
constexpr std::uint64_t wholeCalls = sizeof(void *) == 4 ? 1000 : 50;
constexpr int signalsOfCall = sizeof(void *) == 4 ? 3 : 60;

struct Range {
    std::uintptr_t begin = 0, end = 0;
};

Range library;
decltype(&zelmDet_m_64f_4x4) determinantOf = nullptr; // of the library under test
decltype(&zelmInvert_m_64f_4x4) invert = nullptr;
volatile std::sig_atomic_t signalsInLibrary = 0, wrongResults = 0, signalsLeft = 0;

#ifdef __x86_64__
constexpr int instructionPointer = REG_RIP;
#else
constexpr int instructionPointer = REG_EIP;
#endif
constexpr greg_t trapFlag = 0x100;

// What a handler may do: change the modes, use all registers of both units, and call the library, also the
// function that it interrupts.
void handle(int, siginfo_t *, void *context) {
    auto &registers = static_cast<ucontext_t *>(context)->uc_mcontext.gregs;
    const auto place = static_cast<std::uintptr_t>(registers[instructionPointer]);
    if (place < library.begin || place >= library.end)
        return;
    signalsInLibrary = signalsInLibrary + 1;
    signalsLeft = signalsLeft - 1;
    if (signalsLeft == 0)
        registers[REG_EFL] &= ~trapFlag;       // the rest of the call goes on undisturbed
    setControlState({sseDefault, x87Default}); // the interrupted ones come back with the context
    const double matrix[16] = {4, 1, 0, 2, 1, 5, 1, 0, 0, 1, 6, 1, 2, 0, 1, 7};
    double determinant = 0, inverse[16];
    const ZelmStatus first = determinantOf(matrix, 32, &determinant);
    const ZelmStatus second = invert(matrix, 32, inverse, 32);
    if (first != ZELM_OK || second != ZELM_OK || determinant != 631)
        wrongResults = wrongResults + 1;
}

void setTrapFlag(bool on) {
#ifdef __x86_64__
    const unsigned long long flags = __builtin_ia32_readeflags_u64();
    __builtin_ia32_writeeflags_u64(on ? flags | trapFlag
                                      : flags & ~static_cast<unsigned long long>(trapFlag));
#else
    const unsigned flags = __builtin_ia32_readeflags_u32();
    __builtin_ia32_writeeflags_u32(on ? flags | trapFlag : flags & ~static_cast<unsigned>(trapFlag));
#endif
}

// The code of the loaded library.
Range rangeOf(AnyFunction function) {
    Dl_info info{};
    link_map *map = nullptr;
    EXPECT_NE(
        dladdr1(reinterpret_cast<void *>(function), &info, reinterpret_cast<void **>(&map), RTLD_DL_LINKMAP),
        0);
    Range range;
    const auto take = [](dl_phdr_info *object, std::size_t, void *data) {
        auto &[address, found] = *static_cast<std::pair<std::uintptr_t, Range> *>(data);
        for (int i = 0; i < object->dlpi_phnum; ++i) {
            const auto &segment = object->dlpi_phdr[i];
            const std::uintptr_t begin = object->dlpi_addr + segment.p_vaddr;
            if (segment.p_type == PT_LOAD && address >= begin && address < begin + segment.p_memsz)
                found = {begin, begin + segment.p_memsz};
        }
        return 0;
    };
    std::pair<std::uintptr_t, Range> search{reinterpret_cast<std::uintptr_t>(function), range};
    dl_iterate_phdr(take, &search);
    return search.second;
}

TEST(Signals, MayArriveAtEachInstruction) {
    determinantOf = reinterpret_cast<decltype(determinantOf)>(exported("zelmDet_m_64f_4x4"));
    invert = reinterpret_cast<decltype(invert)>(exported("zelmInvert_m_64f_4x4"));
    library = rangeOf(exported("zelmDet_m_64f_4x4"));
    ASSERT_LT(library.begin, library.end);
    struct sigaction action {
    }, before{};
    action.sa_sigaction = handle;
    action.sa_flags = SA_SIGINFO | SA_RESTART;
    ASSERT_EQ(sigaction(SIGTRAP, &action, &before), 0);
    std::uint64_t calls = 0;
    forEachFunction([&](const Target &target, AnyFunction function) {
        Runner runner(arena());
        const std::uint64_t cases = casesPerFunction(1);
        for (std::uint64_t n = 0; n < cases; ++n) {
            const std::uint64_t number = 4 + 10 * n; // few objects, as each signal takes some microseconds
            const bool isWhole = cases > 1 || calls % wholeCalls == 0; // in long runs, all calls
            signalsLeft = isWhole ? std::numeric_limits<std::sig_atomic_t>::max() : signalsOfCall;
            const auto mismatch =
                runner.run(target, seed, number, [&](const Case &, const std::vector<Value> &values) {
                    setTrapFlag(true);
                    const ZelmStatus status = callAsOldCallersDo(target, function, values, number);
                    setTrapFlag(false);
                    return status;
                });
            ++calls;
            if (mismatch)
                tellFailure(runner.last(), mismatch->what);
        }
    });
    sigaction(SIGTRAP, &before, nullptr);
    EXPECT_EQ(wrongResults, 0);
    // The shortest calls have a few instructions only.
    EXPECT_GT(signalsInLibrary, std::min(signalsOfCall, 20) * static_cast<long>(functionCount));
    std::printf("%llu calls, %ld signals in them\n", static_cast<unsigned long long>(calls),
                static_cast<long>(signalsInLibrary));
}

} // namespace
} // namespace zelmtest
