// Whether an object of the result lies apart from one of a source, for rows that go one by one: what is read
// ahead of the stores is then what the definition reads between them.
#pragma once

#include "frame/overlap.h"

namespace zelm::frame {

// One subtraction and one comparison, as the number of bytes of both is known ahead of the objects.
class ObjectsApart {
public:
    template <typename S, typename D>
    ZELM_INLINE ObjectsApart(const S &s, unsigned sRows, unsigned sColumns, const D &d, unsigned rows,
                             unsigned columns) {
        const Range source = bytesOf(s, sRows, sColumns), target = bytesOf(d, rows, columns);
        const std::int64_t both = source.high - source.low + target.high - target.low;
        offset_ = static_cast<Address>(target.low - source.high);
        if (both <= INTPTR_MAX)
            limit_ = 1 - static_cast<Address>(both);
    }
    ZELM_INLINE bool operator()(Address source, Address result) const {
        return __builtin_expect(result - source + offset_ < limit_, 1);
    }
    ZELM_INLINE void neverAgain() { limit_ = 0; }

private:
    // From an object's start on.
    template <typename Operand>
    static ZELM_INLINE Range bytesOf(const Operand &operand, unsigned rows, unsigned columns) {
        Range range = {0, sizeof(typename Operand::Element)};
        extend(range, signedDistance(operand.rowStride) * (rows - 1));
        extend(range, signedDistance(operand.elemStride) * (columns - 1));
        return range;
    }
    Address offset_, limit_ = 0;
};

// The same for the vectors of an array; one that serves all objects is held ahead of them.
template <typename S>
class VectorsApart {
public:
    template <typename D>
    ZELM_INLINE VectorsApart(const S &s, const D &d, unsigned length)
        : source_(s), apart_(s, 1, length, d, 1, length) {}
    ZELM_INLINE bool operator()(std::uint32_t k, Address result) const {
        return apart_(source_.object(k).start, result);
    }

private:
    const S &source_;
    ObjectsApart apart_;
};
template <typename S>
requires(!kIsArray<S>) class VectorsApart<S> {
public:
    template <typename D>
    ZELM_INLINE VectorsApart(const S &, const D &, unsigned) {}
    ZELM_INLINE bool operator()(std::uint32_t, Address) const { return true; }
};

} // namespace zelm::frame
