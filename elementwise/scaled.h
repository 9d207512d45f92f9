// What element-wise operations add to the operands of the frame: scaling.
#pragma once

#include "frame/plainest.h"

namespace zelm::elementwise {

using namespace zelm::frame;

// An operand whose elements are multiplied by a factor, each product rounded.
template <typename Operand>
struct Scaled : Operand {
    using T = typename Operand::Element;
    T factor;
    ZELM_INLINE Scaled(const Operand &operand, T by) : Operand(operand), factor(by) {}
    ZELM_INLINE auto object(std::uint32_t k) const {
        return Scaled<decltype(Operand::object(k))>(Operand::object(k), factor);
    }
};

template <typename Operand>
ZELM_INLINE bool isPlainer(const Scaled<Operand> &s) {
    return isPlainer(static_cast<const Operand &>(s));
}
template <typename Operand>
ZELM_INLINE auto plainest(const Scaled<Operand> &s) {
    const auto plain = frame::plainest(static_cast<const Operand &>(s));
    return Scaled<std::remove_cvref_t<decltype(plain)>>(plain, s.factor);
}

template <typename T>
ZELM_INLINE auto withObjectStride(const Scaled<PackedTableArray<T>> &s) {
    return Scaled(frame::withObjectStride(static_cast<const PackedTableArray<T> &>(s)), s.factor);
}

template <typename Plain, typename Shape>
ZELM_INLINE auto value(const Scaled<Plain> &object, std::uint32_t i, std::uint32_t j, Shape shape) {
    return object.get(i, j, shape.columns()) * object.factor;
}

} // namespace zelm::elementwise
