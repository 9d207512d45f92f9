// Extracts whose buffer lies across src, and copies into lists whose objects lie across each other, in shapes
// that aren't square: they give what moving object after object gives.
#include "zelm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace {

struct Shape {
    std::uint32_t width, height;
    std::int64_t elements() const { return std::int64_t{width} * height; }
};
constexpr Shape shapes[] = {{5, 2}, {2, 5}, {9, 2}, {2, 9}, {3, 4}, {7, 1}, {1, 7}};
constexpr std::uint32_t counts[] = {1, 3, 4, 8, 9, 16};

template <class T>
constexpr std::int32_t bytes(std::int64_t elements) {
    return static_cast<std::int32_t>(elements * static_cast<std::int64_t>(sizeof(T)));
}

template <class T>
std::vector<T> numbered(std::int64_t count) {
    std::vector<T> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), T{1});
    return numbers;
}

// Where an operand's elements lie, counted in elements from its first.
struct Strides {
    std::int64_t object, row, element;
    std::int64_t at(std::int64_t k, std::int64_t i, std::int64_t j) const {
        return k * object + i * row + j * element;
    }
    // The lowest of all places.
    std::int64_t lowest(Shape shape, std::int64_t count) const {
        return std::min<std::int64_t>(0, at(count - 1, 0, 0)) +
               std::min<std::int64_t>(0, at(0, shape.height - 1, 0)) +
               std::min<std::int64_t>(0, at(0, 0, shape.width - 1));
    }
    std::int64_t length(Shape shape, std::int64_t count) const {
        return std::abs(at(count - 1, 0, 0)) + std::abs(at(0, shape.height - 1, 0)) +
               std::abs(at(0, 0, shape.width - 1)) + 1;
    }
};

// Moves the objects one by one: the buffer's elements follow each other.
template <class T>
void moveInOrder(std::vector<T> &memory, std::int64_t src, const Strides &s, std::int64_t dst,
                 const Strides &d, Shape shape, std::uint32_t count) {
    for (std::uint32_t k = 0; k < count; ++k)
        for (std::uint32_t i = 0; i < shape.height; ++i)
            for (std::uint32_t j = 0; j < shape.width; ++j)
                memory[static_cast<std::size_t>(dst + d.at(k, i, j))] =
                    memory[static_cast<std::size_t>(src + s.at(k, i, j))];
}

// `extract(first, dst)` of src at these strides, for a buffer at every distance where the two meet.
template <class T>
void expectExtractInOrder(Shape shape, std::uint32_t count, const Strides &s, auto extract) {
    const std::int64_t buffer = shape.elements() * count, read = s.length(shape, count);
    const std::int64_t src = buffer + 1 - s.lowest(shape, count);
    const Strides d{shape.elements(), shape.width, 1};
    const auto before = numbered<T>(2 * buffer + read + 2);
    for (std::int64_t dst = 0; dst <= buffer + read + 1; ++dst) {
        auto memory = before, expected = before;
        moveInOrder(expected, src, s, dst, d, shape, count);
        EXPECT_EQ(extract(memory.data() + src, memory.data() + dst), ZELM_OK);
        ASSERT_EQ(memory, expected) << shape.width << " columns, " << shape.height << " rows, " << count
                                    << " objects at " << s.object << ", " << s.row << ", " << s.element
                                    << ", dst " << dst - src << " behind src";
    }
}

template <class T>
using ExtractStrided = ZelmStatus(const T *, std::int32_t, std::int32_t, std::int32_t, T *, std::uint32_t,
                                  std::uint32_t, std::uint32_t);

template <class T>
void expectStridedInOrder(ExtractStrided<T> *function) {
    for (const Shape shape : shapes)
        for (const std::uint32_t count : counts) {
            const std::int64_t width = shape.width, object = shape.elements();
            for (const Strides s :
                 {Strides{object, width, 1}, Strides{-object, width, 1}, Strides{object, -width, 1},
                  Strides{-object, -width, -1}, Strides{1, width * count, count}}) {
                expectExtractInOrder<T>(shape, count, s, [&](const T *src, T *dst) {
                    return function(src, bytes<T>(s.object), bytes<T>(s.row), bytes<T>(s.element), dst,
                                    shape.width, shape.height, count);
                });
                if (testing::Test::HasFatalFailure())
                    return;
            }
        }
}

TEST(ExtractOverlap, StridedObjectsAreMovedInTheirOrder) {
    expectStridedInOrder<float>(zelmExtract_ma_32f_S2);
    expectStridedInOrder<double>(zelmExtract_ma_64f_S2);
}

template <class T>
using ExtractPositions = ZelmStatus(const T *const *, std::int32_t, std::int32_t, T *, std::uint32_t,
                                    std::uint32_t, std::uint32_t);

// Position after position, upwards and downwards.
template <class T>
void expectPositionsInOrder(ExtractPositions<T> *function) {
    for (const Shape shape : shapes)
        for (const std::uint32_t count : counts)
            for (const std::int64_t plane : {std::int64_t{count}, -std::int64_t{count}}) {
                const Strides s{1, plane * shape.width, plane};
                expectExtractInOrder<T>(shape, count, s, [&](const T *src, T *dst) {
                    std::vector<const T *> table;
                    for (std::int64_t e = 0; e < shape.elements(); ++e)
                        table.push_back(src + e * plane);
                    return function(table.data(), 0, sizeof(T), dst, shape.width, shape.height, count);
                });
                if (testing::Test::HasFatalFailure())
                    return;
            }
}

TEST(ExtractOverlap, PositionsAreMovedObjectByObject) {
    expectPositionsInOrder<float>(zelmExtract_ma_32f_PS2);
    expectPositionsInOrder<double>(zelmExtract_ma_64f_PS2);
}

template <class T>
using CopyToList = ZelmStatus(const T *const *, std::int32_t, std::int32_t, T *const *, std::int32_t,
                              std::int32_t, std::int32_t, std::uint32_t, std::uint32_t, std::uint32_t);

template <class T>
void expectListInOrder(CopyToList<T> *function, Shape shape, std::uint32_t count, const Strides &d) {
    const std::int64_t elements = shape.elements(), src = 0, dst = elements * count - d.lowest(shape, count);
    const Strides s{1, std::int64_t{count} * shape.width, count};
    auto memory = numbered<T>(elements * count + d.length(shape, count)), expected = memory;
    moveInOrder(expected, src, s, dst, d, shape, count);
    std::vector<const T *> from;
    std::vector<T *> to;
    for (std::int64_t e = 0; e < elements; ++e)
        from.push_back(memory.data() + src + e * count);
    for (std::uint32_t k = 0; k < count; ++k)
        to.push_back(memory.data() + dst + d.at(k, 0, 0));
    EXPECT_EQ(function(from.data(), 0, sizeof(T), to.data(), 0, bytes<T>(d.row), sizeof(T), shape.width,
                       shape.height, count),
              ZELM_OK);
    ASSERT_EQ(memory, expected) << shape.width << " columns, " << shape.height << " rows, " << count
                                << " objects at " << d.object << ", rows at " << d.row;
}

template <class T>
void expectListsInOrder(CopyToList<T> *function) {
    for (const Shape shape : shapes)
        for (const std::uint32_t count : counts)
            for (std::int64_t row = -10; row <= 10; ++row)
                for (std::int64_t object = -20; object <= 20; ++object) {
                    expectListInOrder(function, shape, count, {object, row, 1});
                    if (testing::Test::HasFatalFailure())
                        return;
                }
}

TEST(CopyOverlap, PositionsGoToListsAsObjects) {
    expectListsInOrder<float>(zelmCopy_ma_32f_PL);
    expectListsInOrder<double>(zelmCopy_ma_64f_PL);
}

} // namespace
