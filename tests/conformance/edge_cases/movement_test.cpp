// What holds for the members of data movement alike: bits, memory, statuses.
#include "grid_table.h"
#include "placed.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <span>
#include <string>

namespace {

using namespace zelmtest;
using std::string_view;

std::span<const Function> all() {
    return {functions, functionCount};
}

// Members with a reading of their own, which have tests of their own.
const std::set<string_view> departures = {
    "zelmCopy_va_32f_PP",   "zelmCopy_va_64f_PP",      "zelmExtract_mT_32f_P",
    "zelmExtract_mT_64f_P", "zelmExtract_maT_32f_PS2", "zelmExtract_maT_64f_PS2",
};

const std::set<string_view> withoutTests = {"zelmExtract_m_32f_P", "zelmExtract_m_64f_P",
                                            "zelmExtract_mT_32f_P", "zelmExtract_mT_64f_P",
                                            "zelmExtract_v_64f_P"};

bool isArray(const Function &function) {
    return string_view(function.descriptor).find('a') != string_view::npos;
}

bool isTransposed(const Function &function) {
    return string_view(function.descriptor).find('T') != string_view::npos;
}

string_view layoutOf(const Function &function, string_view operand) {
    static const std::map<char, string_view> letters = {{'S', "S2"}, {'P', "PS2"}, {'L', "LS2"}};
    if (string_view(function.operation) == "Copy")
        return letters.at(function.layout[operand == "dst" ? 1 : 0]);
    return string_view(function.operation) == "Extract" && operand == "dst" ? "" : function.layout;
}

// Numbers that don't survive a load and a store as numbers, and some that do, all different.
template <class Word>
Word bits(std::uint32_t n) {
    constexpr std::uint32_t infinity = sizeof(Word) == 4 ? 0x7f800000 : 0x7ff00000,
                            quiet = infinity | (sizeof(Word) == 4 ? 0x00400000 : 0x00080000);
    constexpr std::uint32_t first[] = {infinity, infinity | 1u << 31, quiet, quiet | 1u << 31, 0,
                                       1u << 31, 0x3f800000};
    return static_cast<Word>(first[n % 7]) << (8 * sizeof(Word) - 32) | (n + 1);
}

struct Memories {
    OperandMemory src, dst;
};

// One call of a member: every element in its place bit for bit, and nothing else changed.
template <class T>
void expectMoved(const Function &function, const Memories &memories, Shape shape, Spacing spacing, Side side,
                 bool withNullEntry) {
    const bool transposes = string_view(function.operation) == "Transpose",
               transposed = isTransposed(function);
    const Shape turned = {shape.width, shape.height, shape.count};
    const Placed<T> src(memories.src, layoutOf(function, "src"), transposed ? turned : shape, spacing, side,
                        withNullEntry);
    const Placed<T> dst(memories.dst, layoutOf(function, "dst"), transposes ? turned : shape,
                        string_view(function.operation) == "Extract" ? Spacing{} : spacing, side,
                        withNullEntry);
    auto expected = dst.words();
    std::uint32_t n = 0;
    for (std::uint32_t k = 0; k < shape.count; ++k)
        for (std::uint32_t i = 0; i < shape.height; ++i)
            for (std::uint32_t j = 0; j < shape.width; ++j, ++n) {
                const auto word = bits<typename Placed<T>::Word>(n);
                (transposed ? src.at(k, j, i) : src.at(k, i, j)) = word;
                expected[transposes ? dst.indexOf(k, j, i) : dst.indexOf(k, i, j)] = word;
            }
    const auto unchanged = src.words();
    const auto status = callWith(function, [&](const Argument &argument) {
        const string_view name = argument.name;
        if (*argument.operand)
            return (string_view(argument.operand) == "dst" ? dst : src).value(argument.kind);
        Value value{};
        value.size = name == "count" ? shape.count : name == "height" ? shape.height : shape.width;
        return value;
    });
    EXPECT_EQ(status, ZELM_OK);
    EXPECT_EQ(dst.words(), expected);
    EXPECT_EQ(src.words(), unchanged);
}

// Small shapes with every remainder of a group of objects or elements, and some that are long in one
// direction.
const std::vector<Shape> &allShapes() {
    static const std::vector<Shape> shapes = [] {
        std::vector<Shape> all = {{1, 700, 2}, {2, 300, 3}, {1, 1, 700}, {3, 3, 300}, {8, 8, 16}, {9, 8, 16}};
        for (std::uint32_t height : {1u, 2u, 3u, 4u, 5u, 6u, 9u})
            for (std::uint32_t width : {1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u, 17u})
                for (std::uint32_t count : {1u, 2u, 3u, 4u, 7u, 9u, 16u, 33u})
                    if (count <= 9 || width * height <= 36)
                        all.push_back({height, width, count});
        return all;
    }();
    return shapes;
}

bool hasShape(const Function &function, Shape shape) {
    const string_view operation = function.operation, layout = function.layout;
    if (*function.size && shape.height != static_cast<std::uint32_t>(*function.size - '0'))
        return false;
    if (*function.size || (operation == "Transpose" && (layout == "P" || layout == "PS2")))
        return shape.height == shape.width && (isArray(function) || shape.count == 1);
    return (function.descriptor[0] != 'v' || shape.height == 1) && (isArray(function) || shape.count == 1);
}

template <class T>
void expectAllMoved(string_view type) {
    const Memories memories;
    int members = 0;
    for (const Function &function : all()) {
        const string_view operation = function.operation;
        if (function.type != type || departures.count(function.name) != 0 ||
            (operation != "Copy" && operation != "Extract" && operation != "Transpose"))
            continue;
        ++members;
        for (const Shape shape : allShapes()) {
            if (!hasShape(function, shape))
                continue;
            for (const Spacing spacing : {Spacing{1, 0}, Spacing{1, 2}, Spacing{3, 0}})
                for (const Side side : {Side::Start, Side::End}) {
                    // Transpose alone tests the entries.
                    expectMoved<T>(function, memories, shape, spacing, side, operation != "Transpose");
                    if (!testing::Test::HasFailure())
                        expectMoved<T>(function, memories, shape, spacing, side, false);
                    ASSERT_FALSE(testing::Test::HasFailure())
                        << function.name << ", " << shape.height << " rows of " << shape.width << ", "
                        << shape.count << " objects, distance " << spacing.distance << ", "
                        << spacing.behindRow << " behind a row";
                }
        }
    }
    EXPECT_EQ(members, (36 + 30 + 90 - 6) / 2);
}

TEST(Movement, KeepsAllBitsAndItsMemory32f) {
    expectAllMoved<float>("32f");
}

TEST(Movement, KeepsAllBitsAndItsMemory64f) {
    expectAllMoved<double>("64f");
}

// Pointers that lead nowhere but the one of `null`, and the given sizes.
ZelmStatus statusOf(const Function &function, string_view null,
                    const std::map<string_view, std::uint32_t> &sizes) {
    return callWith(function, [&](const Argument &argument) {
        Value value{};
        if (argument.kind == ArgumentKind::Pointer || argument.kind == ArgumentKind::Table)
            value.pointer = argument.name == null ? nullptr : reinterpret_cast<void *>(std::uintptr_t{16});
        else if (argument.kind == ArgumentKind::Dimension || argument.kind == ArgumentKind::Count)
            value.size = sizes.count(argument.name) ? sizes.at(argument.name) : 3;
        return value;
    });
}

TEST(Movement, TestsItsPointersFirst) {
    int members = 0;
    for (const Function &function : all()) {
        const string_view operation = function.operation;
        if ((operation != "Copy" && operation != "Extract" && operation != "LoadIdentity" &&
             operation != "Transpose") ||
            withoutTests.count(function.name) != 0)
            continue;
        ++members;
        for (std::size_t a = 0; a < function.argumentCount; ++a) {
            const Argument &argument = function.arguments[a];
            if (argument.kind != ArgumentKind::Pointer && argument.kind != ArgumentKind::Table)
                continue;
            SCOPED_TRACE(function.name);
            EXPECT_EQ(statusOf(function, argument.name, {}), ZELM_ERR_NULL_PTR);
            EXPECT_EQ(
                statusOf(function, argument.name, {{"len", 0}, {"width", 0}, {"height", 0}, {"count", 0}}),
                ZELM_ERR_NULL_PTR);
        }
    }
    EXPECT_EQ(members, 162 - 5);
}

TEST(Movement, AZeroSize) {
    for (const Function &function : all()) {
        const string_view operation = function.operation, name = function.name;
        SCOPED_TRACE(name);
        if (operation == "Copy" && name.find("_va_") != string_view::npos) {
            EXPECT_EQ(statusOf(function, "", {{"len", 0}}), ZELM_ERR_SIZE);
            EXPECT_EQ(statusOf(function, "", {{"len", 0}, {"count", 0}}), ZELM_ERR_SIZE);
            EXPECT_EQ(statusOf(function, "", {{"count", 0}}), ZELM_OK);
        } else if (operation == "Copy") {
            EXPECT_EQ(statusOf(function, "", {{"count", 0}}), ZELM_OK);
            EXPECT_EQ(statusOf(function, "", {{"width", 0}, {"height", 0}, {"count", 0}}), ZELM_OK);
        } else if (operation == "Extract" && withoutTests.count(name) != 0) {
            EXPECT_EQ(statusOf(function, "", {{"len", 0}, {"width", 0}}), ZELM_OK);
            EXPECT_EQ(statusOf(function, "", {{"len", 0}, {"height", 0}}), ZELM_OK);
            EXPECT_EQ(statusOf(function, "srcTable", {{"len", 0}, {"height", 0}}), ZELM_OK);
            EXPECT_EQ(statusOf(function, "dst", {{"len", 0}, {"width", 0}}), ZELM_OK);
        } else if (operation == "Extract") {
            EXPECT_EQ(statusOf(function, "", {{"len", 0}, {"width", 0}}), ZELM_ERR_SIZE);
            EXPECT_EQ(statusOf(function, "", {{"len", 0}, {"height", 0}}), ZELM_ERR_SIZE);
            if (isArray(function)) {
                EXPECT_EQ(statusOf(function, "", {{"count", 0}}), ZELM_ERR_SIZE);
            }
        } else if (operation == "LoadIdentity") {
            EXPECT_EQ(statusOf(function, "", {{"count", 0}}), ZELM_ERR_SIZE);
            EXPECT_EQ(statusOf(function, "", {{"width", 0}, {"height", 0}, {"count", 0}}), ZELM_ERR_SIZE);
            // A list may look at its entries, if not at what they lead to.
            if (string_view(function.layout) != "L") {
                EXPECT_EQ(statusOf(function, "", {{"height", 0}}), ZELM_OK);
                EXPECT_EQ(statusOf(function, "", {{"height", ~0u}}), ZELM_OK);
            }
        } else if (operation == "Transpose" && !*function.size) {
            EXPECT_EQ(statusOf(function, "", {{"width", 0}}), ZELM_ERR_SIZE);
            EXPECT_EQ(statusOf(function, "", {{"height", 0}, {"count", 0}}), ZELM_ERR_SIZE);
        }
        if (operation == "Transpose" && isArray(function) && string_view(function.layout)[0] != 'P') {
            EXPECT_EQ(statusOf(function, "", {{"count", 0}}), ZELM_OK);
        }
    }
}

} // namespace
