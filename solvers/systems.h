// Many systems A*x = b: with a matrix for each of them, or with one for all, whose factors are held.
//
// A method of solving says of systems of order N
// - Factors<F>: what it keeps of the matrices. F is a pack, one matrix per lane, or a block whose lanes are
//   all alike, one matrix for all.
// - loadGroup(a, b, k, factors, x): reads matrices and right sides of a group; false where it can't be solved
//   so.
// - hold(a, factors): reads the one matrix; false likewise.
// - loadRight(b, k, x): reads the right sides of a group beside held factors.
// - solve(factors, x): makes solutions of right sides.
#pragma once

#include "solvers/matrix_groups.h"

namespace zelm::solvers {

// Of small systems with little to compute, gathering is most of the work, and no faster from 64 bytes. (By
// measurement at 1,000 objects; where the same element of successive objects is near, from order 4 on it is.)
template <unsigned N, typename Array>
constexpr bool kGathersMost = kIsSpacedArray<Array> &&N <= (Array::isTable ? 3 : 4);
template <unsigned N, typename Array>
constexpr Grouping kShortSystems = {kGathersMost<N, Array> ? widestUpTo(32) : kLongKernels.bytes,
                                    kLongKernels.least, kLongKernels.leastInTables};

// The groups from k on, as far as they go.
template <typename V, typename Method, typename A, typename B, typename D>
ZELM_NOINLINE std::uint32_t solveOwnGroups(const Method &method, const A &a, const B &b, const D &d,
                                           std::uint32_t k, std::uint32_t end) {
    return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
        typename Method::template Factors<V> factors;
        V x[Method::order];
        if (!method.loadGroup(a, b, group, factors, x))
            return false;
        method.solve(factors, x);
        writeRow<Method::order>(d, group, 0, x);
        return true;
    });
}

template <typename V, typename Method, typename F, typename B, typename D>
ZELM_NOINLINE std::uint32_t solveHeldGroups(const Method &method, const F &factors, const B &b, const D &d,
                                            std::uint32_t k, std::uint32_t end) {
    return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
        V x[Method::order];
        method.loadRight(b, group, x);
        method.solve(factors, x);
        writeRow<Method::order>(d, group, 0, x);
        return true;
    });
}

// All systems: one(k) solves system k as the definition has it.
template <Grouping grouping, typename Method, typename Memory, typename One, typename A, typename B,
          typename D>
ZELM_INLINE ZelmStatus solveSystems(const Method &method, const Memory &buffer, One one, const A &a,
                                    const B &b, InPlace inPlace, const D &d, std::uint32_t count) {
    constexpr unsigned N = Method::order;
    const auto run = [&](auto group) ZELM_INLINE_LAMBDA {
        return forEachInGroups<grouping>(count, buffer, inRuns<A, B, D>(count, group), one, writes(d, 1, N),
                                         reads(a, N, N), reads(b, 1, N, inPlace));
    };
    if constexpr (kIsArray<A>) {
        return run([&](auto pack, std::uint32_t k, std::uint32_t end) ZELM_INLINE_LAMBDA {
            return solveOwnGroups<typename decltype(pack)::Pack>(method, a, b, d, k, end);
        });
    } else {
        typename Method::template Factors<Pack<typename D::Element>> held;
        bool isHeld = false;
        return run([&](auto pack, std::uint32_t k, std::uint32_t end) ZELM_INLINE_LAMBDA {
            if (!isHeld && !method.hold(a, held))
                return k;
            isHeld = true;
            return solveHeldGroups<typename decltype(pack)::Pack>(method, held, b, d, k, end);
        });
    }
}

} // namespace zelm::solvers
