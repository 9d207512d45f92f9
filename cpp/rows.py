#!/usr/bin/env python3
"""Writes what the C++ layer takes from the catalogue.

    rows.py FILE    the rows of the grid as templates that choose an exported function at compile time

A row's `call` passes the operands on in the order of the C functions. A member whose departure gives other values on
ordinary data, or that may fault, is never called as it stands: the row's `choose` names the form to use instead, as the
catalogue's departures give it, or a test to make first.
"""

import sys
from itertools import groupby
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "grid"))
from catalogue import CLASSES, DIMENSIONS, FAMILIES, LETTER_LAYOUT, ROWS, TYPES  # noqa: E402
from departures import DEPARTURES  # noqa: E402
from generate import C_TYPE, Member, plan  # noqa: E402

NAMED_LAYOUT = {"": "standard"}
KINDS = ("none", "v", "va", "m", "ma", "mT", "maT", "c")
WIDTH = 116

# Departures that the operations themselves avoid, as another row or another order of tables takes the member's place.
# The key is how a member's name begins; the value says where.
SERVED_BY_OPERATIONS = {
    "zelmCopy_va_": "copy() passes vectors as matrices of one row",
    "zelmExtract_mT_": "extract() copies transposed matrices",
    "zelmExtract_maT_": "extract() copies transposed matrices",
    "zelmTranspose_": "transpose() copies by a table in the other order",
}
# Faulting departures that a test of the arguments tells, or that never show: counts are never 0 here.
GUARDS = {"alignedStores": "aligned_stores", "singleTestingByRows": "tested_by_rows", "pipelined": None}


def kinds_of(row):
    """The kinds of a row's sources, as the template's arguments; a constant stands where it stands in the formula."""
    descriptor = {"Gaxpy": {"v": "m v", "va": "m va"}}.get(row.operation, {}).get(row.descriptor)
    if descriptor:
        return descriptor.split()
    kinds = []
    for letter in row.descriptor:
        if letter in "aT":
            kinds[-1] += letter
        else:
            kinds.append(letter)
    return kinds


def words_of(row):
    """The row's operands and values in their order: what `call` takes ahead of the dimensions and the count."""
    names = []
    for word in row.arguments.split():
        base = word.split(":")[0].split("@")[0]
        if ":" in word or base in ("val", "scale", "scale1", "scale2", "pivotIndex", "scratch"):
            names.append(base)
    return names


def expression(argument):
    name, operand = argument.name, argument.operand
    if argument.unread:
        return "0"
    text = {
        "pointer": f"{operand}.first",
        "table": f"{operand}.table",
        "shift": f"word({operand}.shift)",
        "objStride": f"word({operand}.object)",
        "rowStride": f"word({operand}.row)",
        "elemStride": f"word({operand}.element)",
        "pivotIndex": "pivotIndex.first",
        "dimension": f"size.{name}",
    }.get(argument.kind, name)
    if argument.kind in ("dimension", "count") and argument.ctype.startswith("int32_t"):
        return f"word({text})"
    return text


def wrapped(head, texts, indent):
    """`head(text, ...)` broken into lines."""
    lines, line = [], head + "("
    for i, text in enumerate(texts):
        piece = text + (", " if i + 1 < len(texts) else "")
        if len(indent) + len(line) + len(piece.rstrip()) > WIDTH:
            lines.append(line.rstrip())
            line = "    "
        line += piece
    return "\n".join(indent + text for text in [*lines, line + ")"])


def layout_name(layout):
    return f"Layout::{NAMED_LAYOUT.get(layout, layout)}"


def condition(row, layout):
    if row.operation == "Copy":
        return f"From == {layout_name(LETTER_LAYOUT[layout[0]])} && To == {layout_name(LETTER_LAYOUT[layout[1]])}"
    if row.operation == "LoadIdentity":
        return f"L == {layout_name(LETTER_LAYOUT[layout])}"
    return f"L == {layout_name(layout)}"


def call_of(row, layout, sizes, indent):
    """The call of the members of one row and layout whose size is among `sizes`."""
    names = [Member(row, t, size, layout).name for t in TYPES for size in sizes]
    arguments, _ = plan(Member(row, TYPES[0], sizes[0], layout))
    head = wrapped(f"return pick<T, {'N' if sizes[0] else 0}>", names, indent)
    return head + "\n" + wrapped("", [expression(a) for a in arguments], indent + "    ") + ";\n"


def instead(row, name, departure, element_type, size, layout):
    """The choice in place of a departing member: a line of `choose`, or nothing where the operations see to it."""
    if departure.rank == "faults":
        guard = GUARDS[departure.function]
        return guard and f"return {{wanted, N, Guard::{guard}}};"
    if any(name.startswith(start) for start in SERVED_BY_OPERATIONS):
        return None
    for other_layout in CLASSES[row.cls][1]:
        for other_size in (size, ""):
            if Member(row, element_type, other_size, other_layout).name == departure.instead.name:
                n = other_size[:1] or "0"
                return f"return {{{layout_name(other_layout)}, {n}, Guard::none}};"
    raise ValueError(f"{name}: the C++ layer does not know how to call {departure.instead.name} in its place")


def choose_of(row):
    lines = []
    for element_type in TYPES:
        for layout in CLASSES[row.cls][1]:
            for size in CLASSES[row.cls][0]:
                name = Member(row, element_type, size, layout).name
                departure = DEPARTURES.get(name)
                if departure is None or departure.rank not in ("values", "faults"):
                    continue
                choice = instead(row, name, departure, element_type, size, layout)
                if choice:
                    lines.append(
                        f"        // {name}: {departure.note}\n"
                        f"        if (std::is_same_v<T, {C_TYPE[element_type]}> && N == {size[:1] or 0} && "
                        f"wanted == {layout_name(layout)}) {{\n            {choice}\n        }}\n"
                    )
    if not lines:
        return ""
    return (
        "    template <class T, int N>\n    static consteval Choice choose(Layout wanted)\n    {\n"
        + "".join(lines)
        + "        return {wanted, N, Guard::none};\n    }\n"
    )


def row_text(row):
    kinds = kinds_of(row)
    sizes, layouts = CLASSES[row.cls]
    fixed = [size for size in sizes if size]
    names = words_of(row)
    statuses = FAMILIES[row.family].statuses
    parameters = [f"const auto &{name}" for name in names]
    parameters += ["[[maybe_unused]] const Sizes &size", *(["std::uint32_t count"] if row.is_array else [])]
    out = [
        f"// {row.formula}\ntemplate <>\nstruct Row<Op::{row.operation}, "
        + ", ".join(f"Kind::{kind}" for kind in kinds)
        + "> : Regular {\n"
    ]
    if any(s in statuses for s in ("ZELM_ERR_DIV_BY_ZERO", "ZELM_ERR_NOT_POS_DEF")):
        out.append("    static constexpr bool may_fail = true;\n")
    out.append(choose_of(row))
    which = "Layout From, Layout To" if row.operation == "Copy" else "int N, Layout L"
    out.append(
        f"    template <class T, {which}>\n" + wrapped("ZELM_INLINE static ZelmStatus call", parameters, "    ") + "\n    {\n"
    )
    for i, layout in enumerate(layouts):
        out.append(f"        {'} else ' if i else ''}if constexpr ({condition(row, layout)}) {{\n")
        if "" in sizes and fixed:
            out.append(
                "            if constexpr (N == 0) {\n"
                + call_of(row, layout, [""], " " * 16)
                + "            } else {\n"
                + call_of(row, layout, fixed, " " * 16)
                + "            }\n"
            )
        else:
            out.append(call_of(row, layout, list(sizes), " " * 12))
    out.append(
        '        } else {\n            static_assert(never<T>, "zelm: no function of this layout");\n        }\n    }\n};\n\n'
    )
    return "".join(out)


HEAD = """\
/** @file
 * The rows of the grid: which exported function serves which operands. Written by cpp/rows.py from the
 * catalogue.
 */
// clang-format off
#pragma once

#include <cstdint>
#include <type_traits>

#include "zelm.h"
#include "zelm/view.hpp"

// The operations call some run-time products whose bounds are those of square matrices, in ways that make them those of
// every product (products.hpp).
#if defined(__has_attribute)
#if __has_attribute(warning)
#define ZELM_CPP_QUIET
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wattribute-warning"
#endif
#endif

namespace zelm::detail {

"""

BASIS = """\
enum class Kind { %(kinds)s };

/** The dimensions under their names in the C functions. */
struct Sizes {
    std::uint32_t %(dimensions)s;
};

/** A test to make ahead of a call, with another form where it fails. */
enum class Guard {
    none,
    aligned_stores, // the objects of dst must lie alike modulo 16, else the form with element strides
    tested_by_rows  // the width must not be below the height, else the array form with one object
};

struct Choice {
    Layout layout;
    int size; // 0: the run-time form
    Guard guard;
};

template <Op, Kind, Kind = Kind::none>
struct Row {
    static constexpr bool exists = false;
};

struct Regular {
    static constexpr bool exists = true;
    static constexpr bool may_fail = false;

    template <class T, int N>
    static consteval Choice choose(Layout wanted)
    {
        return {wanted, N, Guard::none};
    }
};

ZELM_INLINE constexpr std::int32_t word(std::ptrdiff_t bytes)
{
    return static_cast<std::int32_t>(bytes);
}
ZELM_INLINE constexpr std::int32_t word(std::uint32_t size)
{
    return static_cast<std::int32_t>(size);
}

template <class T, int N, class F, class D>
ZELM_INLINE constexpr auto pick(F f, D d)
{
    if constexpr (std::is_same_v<T, float>) {
        return f;
    } else {
        return d;
    }
}

template <class T, int N, class F, class D>
ZELM_INLINE constexpr auto pick(F f3, F f4, F f5, F f6, D d3, D d4, D d5, D d6)
{
    constexpr int i = N - 3;
    if constexpr (std::is_same_v<T, float>) {
        return i == 0 ? f3 : i == 1 ? f4 : i == 2 ? f5 : f6;
    } else {
        return i == 0 ? d3 : i == 1 ? d4 : i == 2 ? d5 : d6;
    }
}

"""


def header():
    operations = [operation for operation, _ in groupby(sorted(row.operation for row in ROWS))]
    out = [
        HEAD,
        "enum class Op {\n    " + ",\n    ".join(operations) + "\n};\n\n",
        BASIS % {"kinds": ", ".join(KINDS), "dimensions": ", ".join(f"{name} = 0" for name in DIMENSIONS)},
    ]
    out += [row_text(row) for row in ROWS]
    out.append(
        "} // namespace zelm::detail\n\n#ifdef ZELM_CPP_QUIET\n#pragma GCC diagnostic pop\n"
        "#undef ZELM_CPP_QUIET\n#endif\n// clang-format on\n"
    )
    return "".join(out)


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    path, text = Path(arguments[0]), header()
    if not path.exists() or path.read_text() != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
