// Many systems A*x = b: with a matrix for each of them, or with one for all, whose factors are held.
//
// A method of solving says of systems of order N
// - Factors<F>: what it keeps of the matrices. F is a pack, one matrix per lane, or a block whose lanes are
//   all alike, one matrix for all.
// - loadGroup(a, b, k, factors, x): reads matrices and right sides of a group; false where it can't be solved
//   so.
// - hold(a, factors): reads the one matrix; false likewise.
// - loadRight(b, k, x): reads the right sides of a group beside held factors.
// - forward(factors, x), then backward(factors, x): make solutions of right sides.
// - heldInStages, ownInStages: whether planes are taken through one after the other by a few groups, which
//   keeps fewer operations waiting. With matrices of their own each of the two calls loadGroup for what it
//   needs. (By measurement at 1,000 objects.)
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

// Of a list's smallest systems one after the other takes fewer instructions: narrow packs don't save what
// gathering and its tests take. (Four lanes do, where few registers hold one matrix and all strides.)
template <typename A, typename D>
constexpr unsigned kMostAlone = sizeof(typename D::Element) == 8                           ? 4
                                : kHasFewRegisters && !kIsArray<A> && !kHasDenseObjects<D> ? 2
                                                                                           : 3;
template <unsigned N, typename A, typename D>
constexpr bool kSolvesAlone = D::isList &&kWidestBytes == kBlockBytes && (N <= kMostAlone<A, D>);

// For methods whose two stages are no longer than sums and a division or none.
template <unsigned N>
constexpr bool kShortChainsInStages = !kHasFewRegisters && N > (kWidestBytes == 64 ? 4 : 3);

// A group's part in the second stage of several.
template <typename V, typename Method, typename F, typename D>
ZELM_INLINE void finishGroup(const Method &method, const F &factors, const V (&x)[Method::order], const D &d,
                             std::uint32_t k) {
    V own[Method::order];
    ZELM_UNROLL
    for (unsigned i = 0; i < Method::order; ++i)
        own[i] = x[i];
    method.backward(factors, own);
    writeRow<Method::order>(d, k, 0, own);
}

// The groups from k on, as far as they go.
template <typename V, typename Method, typename A, typename B, typename D>
ZELM_NOINLINE std::uint32_t solveOwnGroups(const Method &method, const A &a, const B &b, const D &d,
                                           std::uint32_t k, std::uint32_t end) {
    if constexpr (Method::ownInStages && A::isSideBySide && B::isSideBySide && D::isSideBySide) {
        V x[8][Method::order];
        return groupsInStages<V, 8>(k, end, [&](std::uint32_t first, unsigned groups) ZELM_INLINE_LAMBDA {
            for (unsigned g = 0; g < groups; ++g) {
                typename Method::template Factors<V> factors;
                method.loadGroup(a, b, first + g * kLanesOf<V>, factors, x[g]);
                method.forward(factors, x[g]);
            }
            for (unsigned g = 0; g < groups; ++g) {
                typename Method::template Factors<V> factors;
                V unused[Method::order];
                method.loadGroup(a, b, first + g * kLanesOf<V>, factors, unused);
                finishGroup(method, factors, x[g], d, first + g * kLanesOf<V>);
            }
            return groups;
        });
    } else {
        return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
            typename Method::template Factors<V> factors;
            V x[Method::order];
            if (!method.loadGroup(a, b, group, factors, x))
                return false;
            method.forward(factors, x);
            method.backward(factors, x);
            writeRow<Method::order>(d, group, 0, x);
            return true;
        });
    }
}

template <typename V, typename Method, typename F, typename B, typename D>
ZELM_NOINLINE std::uint32_t solveHeldGroups(const Method &method, const F &factors, const B &b, const D &d,
                                            std::uint32_t k, std::uint32_t end) {
    if constexpr (Method::heldInStages && B::isSideBySide && D::isSideBySide) {
        V x[8][Method::order];
        return groupsInStages<V, 8>(k, end, [&](std::uint32_t first, unsigned groups) ZELM_INLINE_LAMBDA {
            for (unsigned g = 0; g < groups; ++g) {
                method.loadRight(b, first + g * kLanesOf<V>, x[g]);
                method.forward(factors, x[g]);
            }
            for (unsigned g = 0; g < groups; ++g)
                finishGroup(method, factors, x[g], d, first + g * kLanesOf<V>);
            return groups;
        });
    } else {
        return groupsFrom<V>(k, end, [&](std::uint32_t group) ZELM_INLINE_LAMBDA {
            V x[Method::order];
            method.loadRight(b, group, x);
            method.forward(factors, x);
            method.backward(factors, x);
            writeRow<Method::order>(d, group, 0, x);
            return true;
        });
    }
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
