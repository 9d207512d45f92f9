#include "faults.h"

#include "stack_call.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace zelmtest {

Arena &arena() {
    static Arena instance;
    return instance;
}

std::uint64_t casesPerFunction(std::uint64_t few) {
    const char *factor = std::getenv("ZELM_FAULTS");
    return few * (factor ? std::strtoull(factor, nullptr, 10) : 1);
}

void forEachFunction(const std::function<void(const Target &target, AnyFunction function)> &body) {
    for (std::size_t f = 0; f < functionCount; ++f) {
        const Target target = targetOf(functions[f]);
        const AnyFunction function = exported(target.function->name);
        ASSERT_NE(target.family, nullptr) << target.function->name;
        ASSERT_NE(function, nullptr) << target.function->name;
        body(target, function);
    }
}

ZelmStatus callAsOldCallersDo(const Target &target, AnyFunction function, const std::vector<Value> &values,
                              [[maybe_unused]] std::uint64_t number) {
#ifdef __i386__
    return callWithStack(function, target, values, number % 4 * 4);
#else
    return target.function->call(function, values.data());
#endif
}

void tellFailure(const Case &failed, const std::string &what) {
    constexpr int most = 20;
    const auto *result = testing::UnitTest::GetInstance()->current_test_info()->result();
    if (result->total_part_count() < most)
        ADD_FAILURE() << failed.target->function->name << ", seed " << failed.seed << ", case "
                      << failed.number << ": " << what;
}

bool hasFiniteSources(const Case &made) {
    const std::size_t size = zelmref::elementSize(made.target->cell);
    for (std::size_t n = 0; n + 1 < made.operands.size(); ++n) {
        const Placement &o = made.operands[n];
        for (std::uint32_t k = 0; k < o.objects; ++k)
            for (std::uint32_t i = 0; i < o.rows; ++i)
                for (std::uint32_t j = 0; j < o.columns; ++j) {
                    const std::int64_t at = o.origin + o.offset(k, i, j);
                    if (at < 0 || at + static_cast<std::int64_t>(size) > std::int64_t{Arena::slabSize})
                        continue; // never read, so it has no memory
                    std::uint64_t bits = 0;
                    std::memcpy(&bits, arena().slab(o.slab) + at, size);
                    const bool isFinite =
                        size == 4 ? (~bits & 0x7f800000u) != 0 : (~bits & 0x7ff0000000000000u) != 0;
                    if (!isFinite)
                        return false;
                }
    }
    return true;
}

} // namespace zelmtest
