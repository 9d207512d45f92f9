// Copies at every small stride: objects behind each other, with gaps, inside each other's gaps and over each
// other. What decides that several elements are moved at once must see all of these apart.
#include "zelm.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr std::uint32_t most = 20; // objects: more than what planes or blocks begin at

// An arrangement of objects in memory, in elements.
struct Strided {
    std::uint32_t obj, row, width, height, count;

    // The place of element (i, j) of object k.
    std::size_t place(std::uint32_t k, std::uint32_t i, std::uint32_t j) const {
        return k * obj + i * row + j;
    }
    std::string text() const {
        return "objects at " + std::to_string(obj) + ", rows at " + std::to_string(row) + ", width " +
               std::to_string(width) + ", height " + std::to_string(height) + ", count " +
               std::to_string(count);
    }
    std::int32_t objBytes(std::size_t size) const { return static_cast<std::int32_t>(obj * size); }
    std::int32_t rowBytes(std::size_t size) const { return static_cast<std::int32_t>(row * size); }
};

template <class Check>
void forEveryArrangement(Check check) {
    for (std::uint32_t width = 1; width <= 4; ++width)
        for (std::uint32_t height = 1; height <= 3; ++height)
            for (std::uint32_t obj = 0; obj <= 12; ++obj)
                for (std::uint32_t row = 0; row <= 9; ++row)
                    for (const std::uint32_t count : {1u, 5u, most}) {
                        check(Strided{obj, row, width, height, count});
                        if (testing::Test::HasFatalFailure())
                            return;
                    }
}

// Every element's number is its place, so that the order of moves can't be seen.
template <class T>
struct Memory {
    std::vector<T> numbers, untouched, expected;
    std::vector<T> planes, planesExpected;
    std::vector<T *> positions, objects;
    std::vector<const T *> constPositions;

    explicit Memory(const Strided &s)
        : untouched(most * 12 + 3 * 9 + 4 + 16, T{-1}), expected(untouched),
          planes(std::size_t{s.width} * s.height * s.count + 16, T{-1}), planesExpected(planes) {
        for (std::size_t e = 0; e < untouched.size(); ++e)
            numbers.push_back(static_cast<T>(e));
        for (std::uint32_t k = 0; k < s.count; ++k)
            for (std::uint32_t i = 0; i < s.height; ++i)
                for (std::uint32_t j = 0; j < s.width; ++j) {
                    const std::size_t e = s.place(k, i, j), p = std::size_t{i} * s.width + j;
                    expected[e] = planesExpected[p * s.count + k] = numbers[e];
                }
        for (std::size_t p = 0; p < std::size_t{s.width} * s.height; ++p) {
            positions.push_back(&planes[p * s.count]);
            constPositions.push_back(&planesExpected[p * s.count]);
        }
        for (std::uint32_t k = 0; k < s.count; ++k)
            objects.push_back(&untouched[s.place(k, 0, 0)]);
    }
};

template <class T, class Copy>
void expectRowsToRows(Copy *copy) {
    constexpr std::int32_t size = sizeof(T);
    forEveryArrangement([&](const Strided &s) {
        Memory<T> m(s);
        ASSERT_EQ(copy(m.numbers.data(), s.objBytes(size), s.rowBytes(size), size, m.untouched.data(),
                       s.objBytes(size), s.rowBytes(size), size, s.width, s.height, s.count),
                  ZELM_OK);
        ASSERT_EQ(m.untouched, m.expected) << s.text();
    });
}

template <class T, class Copy>
void expectRowsToPlanes(Copy *copy) {
    constexpr std::int32_t size = sizeof(T);
    forEveryArrangement([&](const Strided &s) {
        Memory<T> m(s);
        ASSERT_EQ(copy(m.numbers.data(), s.objBytes(size), s.rowBytes(size), size, m.positions.data(), 0,
                       size, s.width, s.height, s.count),
                  ZELM_OK);
        ASSERT_EQ(m.planes, m.planesExpected) << s.text();
    });
}

template <class T, class Copy>
void expectPlanesToRows(Copy *copy) {
    constexpr std::int32_t size = sizeof(T);
    forEveryArrangement([&](const Strided &s) {
        Memory<T> m(s);
        ASSERT_EQ(copy(m.constPositions.data(), 0, size, m.untouched.data(), s.objBytes(size),
                       s.rowBytes(size), size, s.width, s.height, s.count),
                  ZELM_OK);
        ASSERT_EQ(m.untouched, m.expected) << s.text();
    });
}

template <class T, class Copy>
void expectPlanesToList(Copy *copy) {
    constexpr std::int32_t size = sizeof(T);
    forEveryArrangement([&](const Strided &s) {
        Memory<T> m(s);
        ASSERT_EQ(copy(m.constPositions.data(), 0, size, m.objects.data(), 0, s.rowBytes(size), size, s.width,
                       s.height, s.count),
                  ZELM_OK);
        ASSERT_EQ(m.untouched, m.expected) << s.text();
    });
}

TEST(CopyStrides, RowsToRows) {
    expectRowsToRows<float>(zelmCopy_ma_32f_SS);
    expectRowsToRows<double>(zelmCopy_ma_64f_SS);
}

TEST(CopyStrides, RowsToPlanes) {
    expectRowsToPlanes<float>(zelmCopy_ma_32f_SP);
    expectRowsToPlanes<double>(zelmCopy_ma_64f_SP);
}

TEST(CopyStrides, PlanesToRows) {
    expectPlanesToRows<float>(zelmCopy_ma_32f_PS);
    expectPlanesToRows<double>(zelmCopy_ma_64f_PS);
}

TEST(CopyStrides, PlanesToListedObjects) {
    expectPlanesToList<float>(zelmCopy_ma_32f_PL);
    expectPlanesToList<double>(zelmCopy_ma_64f_PL);
}

} // namespace
