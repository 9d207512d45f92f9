// Adds a kernel's loops for every member of a row that is measured.
#pragma once

#include "sweep.h"

#include <vector>

namespace zelmbench {

template <class Kernel, Text descriptor, class T, Layout layout, class N>
void addLoopsOf(std::vector<Peer> &peers, const char *name) {
    using OperandForms = typename Kernel::template OperandForms<descriptor>;
    using Loops = Sweep<Kernel, OperandForms, T, layout, N>;
    const bool isVector = OperandForms::Src1::shape == 'v' && OperandForms::Src2::shape != 'm';
    Peer peer{memberName(Kernel::operation, descriptor.characters, sizeof(T), isVector, sizeOf<N>, layout),
              name, nullptr, nullptr, Kernel::isComparable};
    if constexpr (OperandForms::Dst::isArray) {
        peer.run = &Loops::run;
    } else {
        peer.runOne = &Loops::runOne;
    }
    peers.push_back(peer);
}

template <class Kernel, Text descriptor, class T, Layout layout>
void addLoopsIn(std::vector<Peer> &peers, const char *name) {
    constexpr bool isArray = Kernel::template OperandForms<descriptor>::Dst::isArray;
    // Objects in planes go side by side where nothing depends on their values.
    constexpr bool isSideBySide = isPlanes(layout) && !Kernel::branches;
    constexpr bool isServed = !Kernel::isInLine || layout == Layout::Standard || layout == Layout::L;
    if constexpr (isServed &&
                  (isArray || layout == Layout::Standard || layout == Layout::S2 || layout == Layout::P)) {
        addLoopsOf<Kernel, descriptor, T, layout, std::conditional_t<isSideBySide, Unrolled<3>, Fixed<3>>>(
            peers, name);
        if constexpr (Kernel::hasSizes) {
            addLoopsOf<Kernel, descriptor, T, layout,
                       std::conditional_t<isSideBySide, Unrolled<4>, Fixed<4>>>(peers, name);
            if constexpr (layout == Layout::Standard || Kernel::isSolver) {
                addLoopsOf<Kernel, descriptor, T, layout,
                           std::conditional_t<isSideBySide, Unrolled<6>, Fixed<6>>>(peers, name);
            }
            addLoopsOf<Kernel, descriptor, T, layout, std::size_t>(peers, name);
        }
    }
}

template <class Kernel, Text descriptor>
void addLoops(std::vector<Peer> &peers, const char *name = "loops") {
    const auto in = [&]<class T>(T) {
        addLoopsIn<Kernel, descriptor, T, Layout::Standard>(peers, name);
        addLoopsIn<Kernel, descriptor, T, Layout::S2>(peers, name);
        addLoopsIn<Kernel, descriptor, T, Layout::P>(peers, name);
        addLoopsIn<Kernel, descriptor, T, Layout::PS2>(peers, name);
        addLoopsIn<Kernel, descriptor, T, Layout::L>(peers, name);
        addLoopsIn<Kernel, descriptor, T, Layout::LS2>(peers, name);
    };
    in(0.0F);
    in(0.0);
}

template <class Kernel, Text... descriptors>
void addAllLoops(std::vector<Peer> &peers, const char *name = "loops") {
    (addLoops<Kernel, descriptors>(peers, name), ...);
}

// What most kernels have in common.
struct KernelTraits {
    static constexpr bool isDense = false, branches = false, hasSizes = true, isSolver = false,
                          isInLine = false;
    static constexpr bool isComparable = true;
};

} // namespace zelmbench
