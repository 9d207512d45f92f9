// Array forms that take one square matrix per object, in groups where that can't be seen.
#pragma once

#include "frame/groups.h"
#include "frame/objects.h"
#include "frame/overlap.h"

namespace zelm::solvers {

using namespace zelm::frame;

// From how many objects on a test that looks at every table entry is worth its time.
constexpr std::uint32_t kTablesInGroupsCount = 16;

// Runs group(k) for whole groups of sources of order N whose results of order M lie apart, one(k) otherwise.
// A group that says no has written nothing.
template <unsigned N, unsigned M, typename S, typename D, typename GroupStep, typename One>
ZELM_INLINE ZelmStatus forEachMatrix(std::uint32_t count, GroupStep group, One one, const S &s, const D &d) {
    constexpr unsigned lanes = kLanes<typename D::Element>;
    if constexpr (S::isList) {
        const Extent read = extentOf(s, N, N), written = extentOf(d, M, M);
        const bool distinct = objectElementsAreApart(d, M, M);
        const auto apartGroup = [&](std::uint32_t k) {
            if (!distinct || anyEntryNull(s, k) || anyEntryNull(d, k))
                return false;
            const Lowest<lanes> target = lowestOf<lanes>(d, written, k);
            return areApartFromEachOther(target, written.bytes) &&
                   areApartFrom(target, written.bytes, lowestOf<lanes>(s, read, k), read.bytes) && group(k);
        };
        return forEachGroup<lanes>(count, apartGroup, one, s, d);
    } else {
        if (count < (S::isTable ? kTablesInGroupsCount : lanes) || count > kMostObjectsInRange ||
            !elementsAreApart(d, M, M, count) || !isUntouched(s, N, N, d, M, M, count))
            return forEachObject(count, one, s, d);
        return forEachGroup<lanes>(count, group, one, s, d);
    }
}

} // namespace zelm::solvers
