// The members of this subsystem that depart from their rows, each written out here and named in the
// catalogue.
#pragma once

#include "elementwise/vector_add_sub.h"

namespace zelm::elementwise::departures {

// zelmAdd_vav_64f_6x1, zelmSub_vav_64f_6x1, zelmSub_vva_64f_6x1 and their _L: the invariant vector isn't
// held, as in all other fixed-size standard and L forms, but read anew for every object. A caller sees it
// where dst overlaps the invariant: what one object stores there, the next one reads.
template <typename Op, typename A, typename B, typename D, typename Size>
ZELM_INLINE ZelmStatus vectorArrayReadAnew(const A &a, const B &b, const D &d, Size size,
                                           std::uint32_t count) {
    const std::uint32_t n = size.value();
    if (ZelmStatus status = checkArray(size.isZero(), count, tested(a, n), tested(b, n), tested(d, n));
        status != kProceed)
        return status;
    return objects<Op>(a, b, d, size, count);
}

} // namespace zelm::elementwise::departures
