// Many threads over the same sources: a function that keeps anything between calls would show it here.
#include "zelm.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstring>
#include <thread>
#include <vector>

namespace {

constexpr std::uint32_t count = 203;
constexpr std::size_t threadCount = 8;
constexpr int rounds = 200;

struct Sources {
    std::vector<float> matrices = std::vector<float>(count * 16),
                       rightHandSides = std::vector<float>(count * 4);
    std::vector<double> vectors = std::vector<double>(count * 6), invariant = std::vector<double>(6);
    std::vector<const double *> list;
    std::vector<const float *> positions;

    Sources() {
        for (std::size_t i = 0; i < matrices.size(); ++i)
            matrices[i] =
                static_cast<float>((i * 37 + 11) % 101) - 50.25f + (i % 16 % 5 == 0 ? 300.0f : 0.0f);
        for (std::size_t i = 0; i < rightHandSides.size(); ++i)
            rightHandSides[i] = static_cast<float>((i * 17 + 5) % 23) / 3;
        for (std::size_t i = 0; i < vectors.size(); ++i)
            vectors[i] = static_cast<double>(i) / 7;
        for (std::size_t i = 0; i < invariant.size(); ++i)
            invariant[i] = static_cast<double>(i) / 3;
        for (std::uint32_t k = count; k-- > 0;)
            list.push_back(&vectors[std::size_t{k} * 6]);
        for (std::size_t e = 0; e < 4; ++e)
            positions.push_back(&rightHandSides[e * count]);
    }
};

struct Results {
    std::vector<float> factors = std::vector<float>(count * 16), unknowns = std::vector<float>(count * 4),
                       differences = std::vector<float>(count * 4);
    std::vector<std::uint32_t> pivots = std::vector<std::uint32_t>(count * 4);
    std::vector<double> sums = std::vector<double>(count * 6);
    std::array<ZelmStatus, 4> statuses{};

    bool operator==(const Results &) const = default;
};

Results compute(const Sources &s) {
    Results r;
    std::vector<double *> list;
    for (std::uint32_t k = 0; k < count; ++k)
        list.push_back(&r.sums[std::size_t{k} * 6]);
    std::vector<float *> positions;
    for (std::size_t e = 0; e < 4; ++e)
        positions.push_back(&r.differences[e * count]);
    r.statuses = {
        zelmLUDecomp_ma_32f_4x4(s.matrices.data(), 64, 16, r.pivots.data(), r.factors.data(), 64, 16, count),
        zelmLUBackSubst_mava_32f_4x4(r.factors.data(), 64, 16, r.pivots.data(), s.rightHandSides.data(), 16,
                                     r.unknowns.data(), 16, count),
        zelmAdd_vav_64f_6x1_L(s.list.data(), 0, s.invariant.data(), list.data(), 0, count),
        zelmSub_cva_32f_4x1_P(s.positions.data(), 0, 2.5f, positions.data(), 0, count),
    };
    return r;
}

TEST(Threads, ShareSources) {
    const Sources sources;
    const Results alone = compute(sources);
    EXPECT_EQ(alone.statuses, (std::array<ZelmStatus, 4>{ZELM_OK, ZELM_OK, ZELM_OK, ZELM_OK}));

    std::atomic<int> different = 0;
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < threadCount; ++t)
        threads.emplace_back([&] {
            for (int round = 0; round < rounds; ++round)
                different += !(compute(sources) == alone);
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(different, 0);
}

} // namespace
