// The harness must be able to fail: doubles of functions that are wrong in one way each, and must be found
// out.
#include "checks.h"
#include "crash.h"
#include "runner.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace zelmtest {
namespace {

constexpr std::uint64_t seed = 1, cases = 1000;

class Harness : public testing::Test {
protected:
    static Target target(std::string_view name) {
        for (std::size_t i = 0; i < functionCount; ++i)
            if (name == functions[i].name)
                return targetOf(functions[i]);
        throw std::invalid_argument("no function " + std::string(name));
    }

    // In how many cases the harness finds the callee wrong.
    int found(const Target &target, const Callee &callee) {
        Runner runner(arena());
        int mismatches = 0;
        for (std::uint64_t number = 0; number < cases; ++number)
            mismatches += runner.run(target, seed, number, callee).has_value();
        return mismatches;
    }

    static Arena &arena() {
        static Arena instance;
        return instance;
    }

    static unsigned char *bytes(zelmref::Address address) {
        return reinterpret_cast<unsigned char *>(address);
    }

    // The start of an operand's elements.
    static unsigned char *start(const Placement &o) { return arena().slab(o.slab) + o.origin; }
};

// What a right function does, and the elements that it wrote.
ZelmStatus right(const Case &c, zelmref::ComputedElements &written) {
    return c.target->family->run(c.call, written);
}

ZelmStatus right(const Case &c) {
    zelmref::ComputedElements written;
    return right(c, written);
}

TEST_F(Harness, AcceptsRightFunctions) {
    for (const char *name :
         {"zelmAdd_vv_32f_3x1", "zelmSub_cva_64f_PS2", "zelmLUDecomp_ma_32f_4x4_L",
          "zelmLUBackSubst_mava_64f_LS2", "zelmCholeskyDecomp_ma_64f_S2", "zelmQRBackSubst_mv_32f"})
        EXPECT_EQ(found(target(name), [](const Case &c, const auto &) { return right(c); }), 0) << name;
    EXPECT_TRUE(arena().intact());
}

TEST_F(Harness, FindsAWrongBit) {
    const auto wrong = [](const Case &c, const auto &) {
        zelmref::ComputedElements written;
        const ZelmStatus status = right(c, written);
        if (!written.inOrderOfWriting().empty())
            *bytes(written.inOrderOfWriting().back().address) ^= 1;
        return status;
    };
    for (const char *name : {"zelmAdd_vv_32f_3x1", "zelmLUDecomp_ma_64f_L", "zelmLUBackSubst_mv_32f_5x5"})
        EXPECT_GT(found(target(name), wrong), 500) << name;
}

// Two callees get the same case in either order: each is judged by itself.
TEST_F(Harness, JudgesASecondCalleeByItself) {
    const Callee same = [](const Case &c, const auto &) { return right(c); };
    const Callee wrong = [](const Case &c, const auto &) {
        zelmref::ComputedElements written;
        const ZelmStatus status = right(c, written);
        if (!written.inOrderOfWriting().empty())
            *bytes(written.inOrderOfWriting().back().address) ^= 1;
        return status;
    };
    const Target add = target("zelmAdd_vv_64f_4x1");
    Runner runner(arena());
    int first = 0, second = 0;
    for (std::uint64_t number = 0; number < cases; ++number) {
        EXPECT_FALSE(runner.run(add, seed, number, same)) << number;
        second += runner.again(wrong).has_value();
        EXPECT_FALSE(runner.again(same)) << number;
        first += runner.run(add, seed, number, wrong).has_value();
        EXPECT_FALSE(runner.again(same)) << number;
    }
    EXPECT_GT(first, 500);
    EXPECT_EQ(first, second);
}

TEST_F(Harness, FindsAWrongStatus) {
    const auto wrong = [](const Case &c, const auto &) {
        const ZelmStatus status = right(c);
        return status == ZELM_ERR_SIZE ? ZELM_OK : status;
    };
    EXPECT_GT(found(target("zelmAdd_vav_32f"), wrong), 0);
    EXPECT_EQ(found(target("zelmAdd_vav_32f_3x1"), wrong), 0) << "a fixed size never gives this status";
}

TEST_F(Harness, FindsAByteWrittenOutside) {
    const auto after = [](const Case &c, const auto &) {
        const ZelmStatus status = right(c);
        const Placement &dst = c.operands.back();
        const auto end = static_cast<std::size_t>(dst.origin + dst.high);
        if (end < Arena::slabSize)
            arena().slab(dst.slab)[end] ^= 1;
        return status;
    };
    const auto before = [](const Case &c, const auto &) {
        const ZelmStatus status = right(c);
        const Placement &dst = c.operands.back();
        if (dst.origin + dst.low > 0)
            arena().slab(dst.slab)[dst.origin + dst.low - 1] ^= 1;
        return status;
    };
    EXPECT_GT(found(target("zelmSub_vv_64f_5x1_S2"), after), 300);
    EXPECT_GT(found(target("zelmSub_vv_64f_5x1_S2"), before), 300);
}

TEST_F(Harness, FindsAByteWrittenBehindScratch) {
    const auto behind = [](bool inside) {
        return [inside](const Case &c, const auto &) {
            const ZelmStatus status = right(c);
            const Window &scratch = c.anything[0];
            if (scratch.end < Arena::slabSize)
                arena().slab(scratch.slab)[inside ? scratch.end - 1 : scratch.end] ^= 1;
            return status;
        };
    };
    EXPECT_GT(found(target("zelmQRDecomp_m_64f"), behind(false)), 300);
    EXPECT_EQ(found(target("zelmQRDecomp_m_64f"), behind(true)), 0) << "what is in scratch is open";
}

TEST_F(Harness, FindsAByteFarOutside) {
    Runner runner(arena());
    const auto wrong = [](const Case &c, const auto &) {
        const ZelmStatus status = right(c);
        arena().slab(c.operands.back().slab)[Arena::slabSize / 2] ^= 1;
        return status;
    };
    runner.run(target("zelmAdd_vv_32f_3x1"), seed, 0, wrong);
    EXPECT_FALSE(arena().intact());
    EXPECT_TRUE(arena().intact()) << "asking has put it right";
}

TEST_F(Harness, FindsAWrittenSourceTableOrPivot) {
    const auto source = [](const Case &c, const auto &) {
        const ZelmStatus status = right(c);
        if (c.operands[0].objects > 0)
            start(c.operands[0])[c.operands[0].offset(0, 0, 0)] ^= 1;
        return status;
    };
    const auto table = [](const Case &c, const auto &) {
        const ZelmStatus status = right(c);
        if (c.call.count() > 0 && c.call.passed[0].base)
            *bytes(c.call.passed[0].base) ^= 1;
        return status;
    };
    const auto pivots = [](const Case &c, const auto &) {
        const ZelmStatus status = right(c);
        const zelmref::Address base = c.call.passed[c.call.index("pivotIndex")].base;
        if (base)
            *bytes(base) ^= 1;
        return status;
    };
    EXPECT_GT(found(target("zelmAdd_vava_32f_6x1_S2"), source), 500);
    EXPECT_GT(found(target("zelmAdd_vava_32f_6x1_L"), table), 500);
    EXPECT_GT(found(target("zelmLUDecomp_m_32f_3x3"), pivots), 500);
}

TEST_F(Harness, FindsAMissingPartialWrite) {
    // A list that tests all its entries before it writes anything.
    const auto allFirst = [](const Case &c, const auto &) -> ZelmStatus {
        if (!zelmref::checkArguments(c.call, zelmref::SingleTables::TestedFirst))
            for (std::uint32_t k = 0; k < c.call.count(); ++k)
                if (zelmref::objectIsNull(c.call, k))
                    return ZELM_ERR_NULL_PTR;
        return right(c);
    };
    EXPECT_GT(found(target("zelmAdd_vava_64f_3x1_L"), allFirst), 20);

    // A decomposition that leaves the singular object out.
    const auto undone = [](const Case &c, const auto &) {
        zelmref::ComputedElements written;
        const ZelmStatus status = right(c, written);
        if (status == ZELM_ERR_DIV_BY_ZERO) {
            const zelmref::Address last = written.inOrderOfWriting().back().address;
            std::size_t slab, offset;
            if (arena().locate(last, slab, offset))
                std::memcpy(bytes(last), arena().before(slab) + offset, 4);
        }
        return status;
    };
    EXPECT_GT(found(target("zelmLUDecomp_ma_32f_4x4"), undone), 50);
}

TEST_F(Harness, FindsAHeldInvariantThatIsReadAnew) {
    // The standard layout by the rules of S2, where the invariant is read for every object.
    const auto anew = [](const Case &c, const auto &) {
        zelmref::Cell cell = *c.call.cell;
        cell.layout = zelmref::Layout::S2;
        zelmref::Call call = c.call;
        call.cell = &cell;
        for (zelmref::Passed &passed : call.passed)
            passed.elemStride = static_cast<std::int32_t>(zelmref::elementSize(cell));
        zelmref::ComputedElements written;
        return c.target->family->run(call, written);
    };
    EXPECT_GT(found(target("zelmAdd_vav_64f_5x1"), anew), 10);
    EXPECT_GT(found(target("zelmSub_vva_32f_6x1"), anew), 10);
    EXPECT_EQ(found(target("zelmAdd_vav_64f_6x1"), anew), 0) << "this member does read anew";
}

TEST_F(Harness, FindsReadingAheadOfWriting) {
    const auto ahead = [](const Case &c, const auto &) -> ZelmStatus {
        if (const auto status = zelmref::checkArguments(c.call, zelmref::SingleTables::TestedByPosition))
            return *status;
        const zelmref::Operand a(c.call, "src1"), b(c.call, "src2"), dst(c.call, "dst");
        std::vector<float> sums;
        for (std::uint32_t k = 0; k < c.call.count(); ++k)
            for (std::uint32_t j = 0; j < 4; ++j)
                sums.push_back(zelmref::readNumber<float>(a.element(k, j)) +
                               zelmref::readNumber<float>(b.element(k, j)));
        for (std::uint32_t k = 0; k < c.call.count(); ++k)
            for (std::uint32_t j = 0; j < 4; ++j)
                zelmref::writeWord(dst.element(k, j), std::bit_cast<std::uint32_t>(sums[k * 4 + j]));
        return ZELM_OK;
    };
    EXPECT_GT(found(target("zelmAdd_vava_32f_4x1"), ahead), 20);
}

TEST_F(Harness, TellsCopiedNansFromComputedOnes) {
    // Changes the payload of every NaN that a call leaves behind.
    const auto changed = [](bool computed) {
        return [computed](const Case &c, const auto &) {
            zelmref::ComputedElements written;
            const ZelmStatus status = right(c, written);
            for (std::size_t n = written.inOrderOfWriting().size(); n-- > 0;) {
                const auto &element = written.inOrderOfWriting()[n];
                bool later = false;
                for (std::size_t m = n + 1; m < written.inOrderOfWriting().size() && !later; ++m)
                    later = written.inOrderOfWriting()[m].address == element.address;
                const auto bits = zelmref::readWord<std::uint32_t>(element.address);
                if (!later && element.computed == computed && (bits & 0x7fffffffu) > 0x7f800000u)
                    zelmref::writeWord(element.address, bits ^ 0x80000001u);
            }
            return status;
        };
    };
    EXPECT_EQ(found(target("zelmLUDecomp_m_32f_3x3"), changed(true)), 0);
    EXPECT_GT(found(target("zelmLUDecomp_m_32f_3x3"), changed(false)), 5);
}

TEST_F(Harness, FindsAChangedControlWord) {
    const auto wrong = [](const Case &c, const auto &) {
        const ZelmStatus status = right(c);
        const std::uint32_t flushToZero = 0x9f80;
        asm volatile("ldmxcsr %0" : : "m"(flushToZero));
        return status;
    };
    Runner runner(arena());
    const auto mismatch = runner.run(target("zelmAdd_vv_32f_3x1"), seed, 0, wrong);
    const std::uint32_t standard = 0x1f80;
    asm volatile("ldmxcsr %0" : : "m"(standard));
    ASSERT_TRUE(mismatch.has_value());
    EXPECT_NE(mismatch->what.find("MXCSR"), std::string::npos);
}

using HarnessDeathTest = Harness;

TEST_F(HarnessDeathTest, AByteReadOutsideNamesTheCase) {
    const auto readsAfter = [](const Case &c, const auto &) {
        volatile unsigned char *end = start(c.operands[0]) + c.operands[0].high;
        (void)*end;
        return right(c);
    };
    const auto readsBefore = [](const Case &c, const auto &) {
        volatile unsigned char *first = start(c.operands[0]) + c.operands[0].low;
        (void)*(first - 1);
        return right(c);
    };
    const auto runAll = [&](const Callee &callee) {
        installCrashHandler();
        found(target("zelmAdd_vv_32f_3x1"), callee);
    };
    EXPECT_DEATH(runAll(readsAfter), "crash .* in zelmAdd_vv_32f_3x1, seed 1, case [0-9]+");
    EXPECT_DEATH(runAll(readsBefore), "crash .* in zelmAdd_vv_32f_3x1, seed 1, case [0-9]+");
}

TEST_F(HarnessDeathTest, AnElementAboveTheDiagonalNamesTheCase) {
    const auto readsAbove = [](const Case &c, const auto &) {
        const Placement &src = c.operands[0];
        volatile unsigned char *last = start(src) + src.offset(0, 0, src.columns - 1);
        (void)*last;
        return right(c);
    };
    const auto runAll = [&] {
        installCrashHandler();
        found(target("zelmCholeskyDecomp_m_32f"), readsAbove);
    };
    EXPECT_DEATH(runAll(), "crash .* in zelmCholeskyDecomp_m_32f, seed 1, case [0-9]+");
}

} // namespace
} // namespace zelmtest
