// An operand that is the same for all objects of an array form: held where it may be, read anew elsewhere.
#pragma once

#include "elementwise/strided.h"
#include "frame/objects.h"
#include "frame/overlap.h"

namespace zelm::elementwise {

// One object among arrays: its start is its own, not that of an array.
template <typename Operand>
constexpr bool kIsInvariant = requires(const Operand &o) {
    o.rowStart(0u);
};

// Held: the invariant is read once, before the first object. Anew: it is read for every object.
enum class Invariant { Held, ReadAnew };

template <typename Shape, typename Object>
ZELM_INLINE auto holdElements(const Object &invariant) {
    return HeldMatrix<typename Object::Element, Shape::rows(), Shape::columns()>(invariant);
}

// For runs of adjacent elements, over several objects too.
template <typename Shape, typename Object>
ZELM_INLINE auto hold(const Object &invariant) {
    if constexpr (Shape::rows() == 1)
        return HeldVector<typename Object::Element, Shape::columns()>(invariant);
    else
        return holdElements<Shape>(invariant);
}

template <typename Object, typename Shape>
ZELM_INLINE Range rangeOfInvariant(const Object &invariant, Shape shape) {
    return kIsTransposed<Object> ? rangeOfObject(invariant, shape.columns(), shape.rows())
                                 : rangeOfObject(invariant, shape.rows(), shape.columns());
}

// Whether nothing that the call writes lies in an invariant, so that held or read anew makes no difference.
template <typename Operand, typename D, typename Shape>
ZELM_INLINE bool isOutOfReach(const Operand &operand, const D &d, Shape shape, std::uint32_t count) {
    if constexpr (!kIsInvariant<Operand>) {
        return true;
    } else if constexpr (D::isList) {
        return false;
    } else {
        const Range source = rangeOfInvariant(operand, shape);
        const Range target = rangeOf(d, shape.rows(), shape.columns(), count);
        return count <= kMostObjectsInRange && isKnown(source) && isKnown(target) &&
               areDisjoint(source, target);
    }
}

// An invariant that is held where it should be read anew, while a list is written: up to the first object
// that overlaps it.
class Watch {
public:
    template <typename Operand, typename List, typename Shape>
    ZELM_INLINE Watch(const Operand &invariant, const List &d, Shape shape) {
        const Range held = rangeOfInvariant(invariant, shape);
        Range written = {0, sizeof(typename List::Element)};
        extend(written, signedDistance(d.rowStride) * (shape.rows() - 1));
        extend(written, signedDistance(d.elemStride) * (shape.columns() - 1));
        const std::int64_t range = held.high - held.low + (written.high - written.low) - 1;
        from_ = static_cast<Address>(held.low - written.high + 1);
        bytes_ = static_cast<Address>(range);
        isPossible_ = range < std::int64_t{1} << (8 * sizeof(Address) - 2);
    }
    ZELM_INLINE bool isPossible() const { return isPossible_; }
    ZELM_INLINE bool isReached(std::uint32_t k, Address start) {
        if (__builtin_expect(start - from_ >= bytes_, 1))
            return false;
        reachedAt_ = k;
        return true;
    }
    ZELM_INLINE std::uint32_t reachedAt() const { return reachedAt_; }

private:
    Address from_, bytes_; // where an object starts that overlaps it
    bool isPossible_;
    std::uint32_t reachedAt_ = 0;
};

struct Unwatched {
    static constexpr bool isReached(std::uint32_t, Address) { return false; }
};

// What a loop over objects ends with that reached the invariant.
constexpr ZelmStatus kReached = kProceed;

// forEachObject, with vectors of fixed size two a round: a loop of few instructions takes up to twice as long
// where it begins at a place that the processor fetches badly. Those of lists have more, but where one
// operand serves all vectors, the elements are adjacent and registers hold it all.
template <typename Shape, typename One, typename A, typename B, typename D>
ZELM_INLINE ZelmStatus forEach(std::uint32_t count, One one, const A &a, const B &b, const D &d) {
    constexpr bool isShort =
        !D::isList || (!kHasFewRegisters && kHasDenseObjects<D> && !(A::isList && B::isList));
    if constexpr (Shape::isFixed && isShort) {
        if constexpr (Shape::rows() == 1) {
            ZELM_UNROLL_TWICE
            for (std::uint32_t k = 0; k < count; ++k) {
                if (__builtin_expect(a.entryIsNull(k) || b.entryIsNull(k) || d.entryIsNull(k), 0))
                    return ZELM_ERR_NULL_PTR;
                if (ZelmStatus status = one(k); status != ZELM_OK)
                    return status;
            }
            return ZELM_OK;
        }
    }
    return forEachObject(count, one, a, b, d);
}

// Whether each address follows from the one before it. Two lists of vectors are better begun anew for each
// object.
template <typename A, typename B, typename D, typename Shape>
constexpr bool kIsInPlace = [] {
    if constexpr (kHasFewRegisters && Shape::isFixed && !D::isTable && !kHasDenseObjects<D>)
        return Shape::rows() > 1 || !A::isList || !B::isList;
    else
        return false;
}();

// The objects of an array one after the other.
template <typename Op, typename A, typename B, typename D, typename Shape, typename Watching = Unwatched>
ZELM_INLINE ZelmStatus objectsInOrder(const A &a, const B &b, const D &d, Shape shape, std::uint32_t count,
                                      Watching &&watch = {}) {
    if constexpr (kIsInPlace<A, B, D, Shape>) {
        RowsOfAll<A, Shape> first(a);
        RowsOfAll<B, Shape> second(b);
        RowsOfAll<D, Shape> result(d);
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            result.enter(k);
            if (watch.isReached(k, result.rows.at))
                return kReached;
            first.enter(k), second.enter(k);
            fixedRows<Op, Shape::rows(), Shape::columns(), true>(first.rows, second.rows, result.rows);
            first.leave(), second.leave(), result.leave();
            return ZELM_OK;
        };
        return forEach<Shape>(count, one, a, b, d);
    } else {
        const auto one = [&](std::uint32_t k) ZELM_INLINE_LAMBDA {
            const auto result = d.object(k);
            if constexpr (D::isList)
                if (watch.isReached(k, result.start))
                    return kReached;
            objectInOrder<Op>(a.object(k), b.object(k), result, shape);
            return ZELM_OK;
        };
        return forEach<Shape>(count, one, a, b, d);
    }
}

// An operand of the objects from number `first` on.
template <typename Operand>
ZELM_INLINE Operand from(Operand operand, std::uint32_t first) {
    if constexpr (Operand::isList)
        operand.table += first;
    return operand;
}

// As a real function, which serves several layouts and has all registers for its loop.
template <typename Op, typename A, typename B, typename D, typename Shape>
ZELM_NOINLINE ZelmStatus sharedObjects(A a, B b, D d, Shape shape, std::uint32_t count) {
    return objectsInOrder<Op>(a, b, d, shape, count);
}

// The same with a held operand: one instance for transposed operands and others.
template <typename Op, typename A, typename B, typename D, typename Shape, typename Watching>
ZELM_NOINLINE ZelmStatus sharedWhileHeld(A a, B b, D d, Shape shape, std::uint32_t count, Watching &watch) {
    return objectsInOrder<Op>(a, b, d, shape, count, watch);
}

// Runs use(a, b, d, watch) with hold(invariant), and the definition's loop from where that may be seen.
template <typename Op, typename A, typename B, typename D, typename Shape, typename Hold, typename Use>
ZELM_INLINE ZelmStatus holdingWhilePossible(const A &a, const B &b, const D &d, Shape shape,
                                            std::uint32_t count, Hold hold, Use use) {
    const auto useHeld = [&](auto &&watch) ZELM_INLINE_LAMBDA {
        if constexpr (kIsInvariant<A>)
            return use(hold(a), b, d, watch);
        else
            return use(a, hold(b), d, watch);
    };
    const auto anew = [&](std::uint32_t first) ZELM_INLINE_LAMBDA {
        return sharedObjects<Op>(from(a, first), from(b, first), from(d, first),
                                 RunTimeShape{shape.rows(), shape.columns()}, count - first);
    };
    if constexpr (D::isList) {
        Watch watch = [&] {
            if constexpr (kIsInvariant<A>)
                return Watch(a, d, shape);
            else
                return Watch(b, d, shape);
        }();
        // What is held may be a product, which is not asked for where there is no first object or it is
        // reached.
        const bool isFirstNull = a.entryIsNull(0) || b.entryIsNull(0) || d.entryIsNull(0);
        if (isFirstNull || !watch.isPossible() || watch.isReached(0, d.object(0).start))
            return anew(0);
        const ZelmStatus status = useHeld(watch);
        return status == kReached ? anew(watch.reachedAt()) : status;
    } else {
        if (isOutOfReach(a, d, shape, count) && isOutOfReach(b, d, shape, count))
            return useHeld(Unwatched{});
        return anew(0);
    }
}

} // namespace zelm::elementwise
