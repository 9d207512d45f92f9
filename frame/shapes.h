// Shapes of results, operands used transposed, and the elements and table entries that follow from both.
#pragma once

#include "frame/operands.h"

namespace zelm::frame {

// The shape of the result; a vector is one row.
template <unsigned Rows, unsigned Columns>
struct FixedShape {
    static constexpr bool isFixed = true;
    static constexpr std::uint32_t columnsIfFixed = Columns;
    static constexpr std::uint32_t rows() { return Rows; }
    static constexpr std::uint32_t columns() { return Columns; }
    static constexpr Address elements() { return Rows * Columns; }
    static constexpr bool isZero() { return false; }
};

struct RunTimeShape {
    static constexpr bool isFixed = false;
    static constexpr std::uint32_t columnsIfFixed = 0;
    std::uint32_t height, width;
    ZELM_INLINE std::uint32_t rows() const { return height; }
    ZELM_INLINE std::uint32_t columns() const { return width; }
    ZELM_INLINE Address elements() const { return Address{height} * width; }
    ZELM_INLINE bool isZero() const { return height == 0 || width == 0; }
};

// An operand whose element (i, j) is the stored element (j, i).
template <typename Operand>
struct Transposed : Operand {
    ZELM_INLINE explicit Transposed(const Operand &stored) : Operand(stored) {}
    ZELM_INLINE auto object(std::uint32_t k) const {
        return Transposed<decltype(Operand::object(k))>(Operand::object(k));
    }
};

// A list whose entries are taken as they are.
template <typename List>
struct Untested : List {
    ZELM_INLINE explicit Untested(const List &list) : List(list) {}
    static constexpr bool entryIsNull(std::uint32_t) { return false; }
};

// ---- the element (i, j) of one object

template <typename Object, typename Shape>
ZELM_INLINE auto value(const Object &object, std::uint32_t i, std::uint32_t j, Shape shape) {
    return object.get(i, j, shape.columns());
}

template <typename T, typename Shape>
ZELM_INLINE T value(const Constant<T> &constant, std::uint32_t, std::uint32_t, Shape) {
    return constant.value;
}

template <typename Stored, typename Shape>
ZELM_INLINE auto value(const Transposed<Stored> &object, std::uint32_t i, std::uint32_t j, Shape shape) {
    return object.get(j, i, shape.rows());
}

// ---- the number of its table entry

template <typename Operand, typename Shape>
ZELM_INLINE Address entryNumber(const Operand &, std::uint32_t i, std::uint32_t j, Shape shape) {
    return Address{i} * shape.columns() + j;
}

template <typename Stored, typename Shape>
ZELM_INLINE Address entryNumber(const Transposed<Stored> &, std::uint32_t i, std::uint32_t j, Shape shape) {
    return Address{j} * shape.rows() + i;
}

template <typename Operand>
constexpr bool kIsTransposed = false;
template <typename Stored>
constexpr bool kIsTransposed<Transposed<Stored>> = true;

// Runs step(i, j) in row-major order up to the first that is false, without a loop where the shape is fixed.
template <typename Shape, typename Step>
ZELM_INLINE bool whileTrue(Shape shape, Step step) {
    if constexpr (Shape::isFixed) {
        constexpr std::uint32_t columns = Shape::columns(), elements = Shape::rows() * columns;
        ZELM_UNROLL
        for (std::uint32_t e = 0; e < elements; ++e)
            if (!step(e / columns, e % columns))
                return false;
    } else {
        for (std::uint32_t i = 0; i < shape.rows(); ++i)
            for (std::uint32_t j = 0; j < shape.columns(); ++j)
                if (!step(i, j))
                    return false;
    }
    return true;
}

} // namespace zelm::frame
