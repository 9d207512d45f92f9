#!/usr/bin/env python3
"""Writes what follows from the catalogue.

    generate.py headers DIR    the public headers DIR/zelm/<subsystem>.h
    generate.py page FILE      docs/before-you-choose.md
    generate.py build DIR      into DIR: the exported functions (one unit per family and layout), sources.cmake,
                               exports.txt, zelm-grid.json, grid_table.h and grid_table.cpp (for the tests)

A file that would not change is left alone, so that nothing is rebuilt for it.
"""

import json
import re
import sys
import textwrap
from dataclasses import dataclass
from itertools import groupby
from pathlib import Path

import page
from catalogue import (
    CLASSES,
    CONSTANTS,
    DIMENSIONS,
    FAMILIES,
    KERNEL_LAYOUTS,
    KERNEL_NOTES,
    KERNEL_ROWS,
    LETTER_LAYOUT,
    ROWS,
    TYPES,
    operand_kinds,
)
from departures import BOUNDS, CAUTIONS, DEPARTURES, PRODUCT_BOUNDS, RANKS, TESTS_NOTHING

C_TYPE = {"32f": "float", "64f": "double"}
WIDTH = 116


@dataclass(frozen=True)
class Argument:
    name: str
    kind: str  # pointer, table, shift, objStride, rowStride, elemStride, constant, dimension, count, pivotIndex, scratch
    ctype: str
    operand: str = ""
    unread: bool = False


@dataclass(frozen=True)
class Operand:
    """One operand of one member: its C arguments and the addressing type that they make."""

    name: str
    arguments: tuple
    addressing: str  # a C++ expression over the arguments


@dataclass(frozen=True)
class Member:
    row: object
    type: str
    size: str
    layout: str

    @property
    def name(self):
        parts = [f"zelm{self.row.operation}", self.row.descriptor, self.type, self.size, self.layout]
        return "_".join(part for part in parts if part)


class Kernel(Member):
    """A function beside the grid that serves the members of one row, type, size and layout."""

    @property
    def name(self):
        parts = [f"a6_{self.row.operation}", self.row.descriptor, self.type, self.size, self.layout]
        return "_".join(part for part in parts if part)

    @property
    def result(self):
        return "void" if self.row.is_array and not self.layout else "int32_t"

    @property
    def unit(self):
        return f"solvers/asm/{self.row.operation.lower()}_{self.row.descriptor}_{self.size}.cpp"


def kernels():
    for row in KERNEL_ROWS:
        sizes, _ = CLASSES[row.cls]
        for element_type in TYPES:
            for layout in KERNEL_LAYOUTS if row.is_array else ("",):
                for size in sizes[1:]:
                    yield Kernel(row, element_type, size, layout)


KERNELS = {(k.row.operation, k.row.descriptor, k.type, k.size, k.layout): k for k in kernels()}


def members():
    for row in ROWS:
        sizes, layouts = CLASSES[row.cls]
        for element_type in TYPES:
            for layout in layouts:
                for size in sizes:
                    yield Member(row, element_type, size, layout)


MEMBERS = {member.name: member for member in members()}


def operand_layout(member, name):
    """The layout of one operand: Copy's token holds two letters, all other tokens hold for the whole call."""
    letters = member.layout
    if member.row.operation == "Copy":
        letters = letters[1] if name == "dst" else letters[0]
    return LETTER_LAYOUT.get(letters, member.layout) if member.row.operation in ("Copy", "LoadIdentity") else member.layout


def make_operand(member, name, kind):
    element = C_TYPE[member.type]
    const = "" if name == "dst" else "const "
    pointer = Argument(name, "pointer", f"{const}{element} *", name)
    if kind in ("scalar", "packed"):
        return Operand(name, (pointer,), name)

    layout = operand_layout(member, name)
    table = Argument(f"{name}Table", "table", f"{element} *const *" if name == "dst" else f"const {element} *const *", name)
    shift = Argument(f"{name}Shift", "shift", "int32_t ", name)
    obj, row, elem = (
        Argument(f"{name}{suffix}Stride", f"{suffix[0].lower()}{suffix[1:]}Stride", "int32_t ", name)
        for suffix in ("Obj", "Row", "Elem")
    )
    rows = (row,) if kind[0] == "m" else ()
    row_value = row.name if rows else "0"
    unread = (Argument(obj.name, obj.kind, obj.ctype, name, unread=True),) if kind.endswith("+obj") else ()
    T = f"{const}{element}"

    def used(expression):
        return f"Transposed({expression})" if "T" in kind else expression

    if "a" in kind.split("+")[0]:
        arguments, expression = {
            "": ((pointer, obj, *rows), f"DenseArray<{T}>{{{name}, {obj.name}, {row_value}}}"),
            "S2": ((pointer, obj, *rows, elem), f"StridedArray<{T}>{{{name}, {obj.name}, {row_value}, {elem.name}}}"),
            "P": ((table, shift), f"PackedTableArray<{T}>{{{table.name}, {shift.name}}}"),
            "PS2": ((table, shift, obj), f"TableArray<{T}>{{{table.name}, {shift.name}, {obj.name}}}"),
            "L": ((table, shift, *rows), f"DenseList<{T}>{{{table.name}, {shift.name}, {row_value}}}"),
            "LS2": ((table, shift, *rows, elem), f"StridedList<{T}>{{{table.name}, {shift.name}, {row_value}, {elem.name}}}"),
        }[layout]
    else:
        dense = ((pointer, *unread, *rows), f"Dense<{T}>{{{name}, {row_value}}}")
        strided = ((pointer, *unread, *rows, elem), f"Strided<{T}>{{{name}, {row_value}, {elem.name}}}")
        scattered = ((table, shift), f"Table<{T}>{{{table.name}, {shift.name}}}")
        arguments, expression = {"": dense, "L": dense, "S2": strided, "LS2": strided, "P": scattered, "PS2": scattered}[layout]
    return Operand(name, arguments, used(expression))


def size_expression(member):
    """The dimensions as one C++ value: the shape of a result, or the order of a square matrix."""
    words = member.row.arguments.split()
    n = member.size[:1]
    if member.row.operation == "CrossProduct":
        return "FixedShape<1, 3>{}"
    if FAMILIES[member.row.family].subsystem == "products" and "src1Width" in words:
        if n:
            return f"FixedSizes<{n}>{{}}"
        names = [word for word in words if word in DIMENSIONS]
        return f"{'Matrix' if len(names) == 4 else 'Vector'}Sizes{{{', '.join(names)}}}"
    if "len" in words:
        return f"FixedShape<1, {n}>{{}}" if n else "RunTimeShape{1, len}"
    if "width" in words:
        return f"FixedShape<{n}, {n}>{{}}" if n else "RunTimeShape{height, width}"
    if n:
        return f"FixedSize<{n}>{{}}"
    return "RunTimeSize{static_cast<std::uint32_t>(n)}" if "n" in member.row.signed else "RunTimeSize{n}"


def plan(member):
    """The member's arguments in order, and what its wrapper passes on, each under the word of the row's list."""
    kernel = KERNELS.get((member.row.operation, member.row.descriptor, member.type, member.size, member.layout))
    arguments, passed = [], {
        "size": size_expression(member),
        "kernel": kernel.name if kernel else "nullptr",
        "scratch": "nullptr",
    }
    element = C_TYPE[member.type]
    for word in member.row.arguments.split():
        base, _, runtime = word.partition("@")
        if ":" in word:
            name, kind = word.split(":")
            operand = make_operand(member, name, kind)
            arguments += operand.arguments
            passed[name] = operand.addressing
        elif runtime and member.size:
            continue
        elif base in DIMENSIONS:
            if not member.size:
                signed = member.layout in member.row.signed.get(base, ())
                arguments.append(Argument(base, "dimension", "int32_t " if signed else "uint32_t "))
        elif base == "count":
            signed = member.layout in member.row.signed.get(base, ())
            arguments.append(Argument(base, "count", "int32_t " if signed else "uint32_t "))
            passed[base] = base
        elif base in CONSTANTS:
            arguments.append(Argument(base, "constant", f"{element} "))
            passed[base] = f"Constant<{element}>{{{base}}}" if base == "val" else base
        elif base == "pivotIndex":
            const = "" if member.row.operation == "LUDecomp" else "const "
            arguments.append(Argument(base, "pivotIndex", f"{const}uint32_t *"))
            passed[base] = base
        elif base == "scratch":
            arguments.append(Argument(base, "scratch", "void *" if runtime else f"{element} *"))
            passed[base] = base
        else:
            raise ValueError(f"{member.name}: unknown word {word}")
    return arguments, passed


def instead_arguments(member, instead):
    """The arguments to give to the form that is used instead, as expressions over the member's own."""
    if instead.arguments is None:
        return None
    own = {a.name for a in plan(member)[0]}
    wanted = [a.name for a in plan(MEMBERS[instead.name])[0]]
    expressions = [instead.arguments.get(name, name) for name in wanted]
    made = set(re.findall(r"(\w+Transposed):", instead.note))
    for expression in expressions:
        unknown = set(re.findall(r"[a-zA-Z]\w*", expression)) - own - made
        if unknown:
            raise ValueError(f"{member.name} has no argument {unknown} to give to {instead.name}")
    return expressions


def call_text(head, texts, indent=""):
    """`head(text, text, ...)`, broken between the texts where a line would be too long."""
    unbroken = ", ".join(text.replace(" ", "\0") for text in texts)
    lines = textwrap.wrap(
        f"{indent}{head}(".replace(" ", "\0") + unbroken + ")",
        WIDTH,
        subsequent_indent=indent + "        ",
        break_long_words=False,
        break_on_hyphens=False,
    )
    return "\n".join(lines).replace("\0", " ")


def declaration(member, definition=False):
    arguments, _ = plan(member)
    texts = [f"{a.ctype}/* {a.name}, never read */" if definition and a.unread else f"{a.ctype}{a.name}" for a in arguments]
    result = getattr(member, "result", "ZelmStatus")
    if definition:
        return call_text(f"{result} {member.name}", texts)
    return warning(member) + call_text(f"ZELM_API {result} {member.name}", texts)


def warning(member):
    """What the compiler says of a call of a member whose values are not those of its formula."""
    macro, departure = (
        ("ZELM_DEPARTS", DEPARTURES[member.name])
        if member.name in DEPARTURES
        else ("ZELM_DEPARTS_UNLESS_SQUARE", PRODUCT_BOUNDS.get(member.name))
    )
    if not departure or departure.rank != "values":
        return ""
    note = departure.note.partition(";")[0]
    when = departure.when + ", " if departure.when.startswith("where") else ""
    form = f"use {departure.instead.name}" if departure.instead.name != member.name else "name other dimensions"
    sentence = f"{when}{note}: {form}, see docs/before-you-choose.md"
    lines = textwrap.wrap(sentence, WIDTH - 10, break_long_words=False, break_on_hyphens=False)
    return (
        f"{macro}("
        + "\n        ".join(f'"{line} "' for line in lines[:-1])
        + "\n        " * (len(lines) > 1)
        + f'"{lines[-1]}")\n'
    )


def definition(member):
    _, passed = plan(member)
    function, *given = member.row.call
    departure = DEPARTURES.get(member.name)
    if departure and departure.function:
        function = f"departures::{departure.function}" + "".join(re.findall("<.*>", function))
    body = call_text(f"return {function}", [text.format(**passed) for text in given], "    ") + ";"
    comment = ""
    if departure:
        sentence = f"A departure{departure.when and ' ' + departure.when}: {departure.note}."
        comment = "".join(f"    // {line}\n" for line in textwrap.wrap(sentence, WIDTH - 7))
    return f"{declaration(member, definition=True)}\n{{\n{comment}{body}\n}}\n"


# ---- headers

KIND_TEXT = {"v": "vector", "va": "array of vectors", "m": "matrix", "ma": "array of matrices"}
STATUS_TEXT = {
    "ZELM_OK": "the call completed",
    "ZELM_ERR_NULL_PTR": "a pointer, a table or an entry of a table is null",
    "ZELM_ERR_SIZE": "a dimension is zero (run-time forms)",
    "ZELM_ERR_DIV_BY_ZERO": "a pivot fails the threshold",
    "ZELM_ERR_NOT_POS_DEF": "a pivot is not positive",
}


def row_formula(row):
    if row.operation != "Mul" or row.descriptor not in BOUNDS:
        return row.formula
    where, otherwise = BOUNDS[row.descriptor]
    forms = "run-time forms of S2 and P" if row.descriptor == "mmT" else "run-time forms"
    return f"{row.formula}, in the {forms} only where {where} (docs/before-you-choose.md); otherwise {otherwise}"


def row_paragraphs(row):
    """What documents the members of a row: formula, shapes and units, statuses, overlap."""
    family = FAMILIES[row.family]
    words = row.arguments.split()
    shapes = []
    for word in words:
        if ":" in word:
            name, kind = word.split(":")
            base = kind.split("+")[0].rstrip("T")
            text = {"scalar": "one number per object, packed", "packed": "a packed buffer"}.get(base) or KIND_TEXT[base]
            if row.is_array and base in ("v", "m"):
                text += ", the same for every object"
            shapes.append(f"{name}: {text}{' used transposed' if kind.endswith('T') else ''}")
    if any(w in CONSTANTS for w in words):
        shapes.append(", ".join(w for w in words if w in CONSTANTS) + ": by value")
    if "pivotIndex" in words:
        shared = row.is_array and not any(w.endswith(":ma") for w in words)
        shapes.append("pivotIndex: n row numbers" + (" per object" if row.is_array and not shared else ""))
    dimensions = [w for w in words if w in DIMENSIONS]
    units = []
    if dimensions:
        units.append(
            ", ".join(dimensions)
            + " in elements (a size in the name stands for "
            + ("it" if len(dimensions) == 1 else "them")
            + ")"
        )
    if row.is_array:
        units.append("count in objects")
    units.append("strides and shifts in bytes")
    return [
        row_formula(row) + ".",
        "Shapes: " + "; ".join(shapes) + ". Units: " + "; ".join(units) + ".",
        "Status: "
        + "; ".join(f"{s}: {(STATUS_TEXT | family.meanings)[s]}" for s in family.statuses if s not in row.never)
        + ".",
        "Overlap: " + family.overlap,
    ]


def block_comment(paragraphs):
    texts = [
        "\n".join(textwrap.wrap(paragraph, WIDTH - 3, break_long_words=False, break_on_hyphens=False))
        for paragraph in paragraphs
    ]
    lines = "\n\n".join(texts).split("\n")
    return "/**\n" + "\n".join(f" * {line}" for line in lines) + "\n */\n"


def member_group(name, declarations):
    """The declarations of a row under its name. The comment of the first one documents those without their own."""
    return [f"\n/** @name {name} */\n/** @{{ */\n", *declarations, "/** @} */\n"]


def kernel_declarations(family):
    declared = [kernel for kernel in KERNELS.values() if kernel.row.family == family]
    if not declared:
        return []
    operation = declared[0].row.operation
    return member_group(
        f"a6_{operation}", [block_comment([KERNEL_NOTES]), *(declaration(kernel) + ";\n" for kernel in declared)]
    )


def departure_text(member):
    departure = DEPARTURES[member.name]
    when = f" {departure.when}" if departure.when else ""
    text = f"Departs from its row ({RANKS[departure.rank]}){when}: {departure.note}."
    if departure.instead:
        given = instead_arguments(member, departure.instead)
        text += f" Instead: {departure.instead.name}({', '.join(given)})" + (
            f", {departure.instead.note}." if departure.instead.note else "."
        )
    return text


def row_declarations(row, row_members):
    out = [block_comment(row_paragraphs(row))]
    regular = next((m for m in row_members if m.name not in DEPARTURES), None)
    # The row's comment documents what follows it, so a regular member comes first.
    for member in sorted(row_members, key=lambda m: m is not regular):
        if member.name in DEPARTURES:
            out.append(block_comment([departure_text(member), f"@copydoc {regular.name}"]))
        out.append(declaration(member) + ";\n")
    return member_group(f"zelm{row.operation}_{row.descriptor}", out)


def header(subsystem, all_members):
    guard = f"ZELM_{subsystem.upper()}_H"
    out = [
        f"/** @file\n * Subsystem {subsystem} of zelm. Written by grid/generate.py from grid/catalogue.py.\n */\n",
        f'#ifndef {guard}\n#define {guard}\n\n#include "types.h"\n\n',
        '/* clang-format off */\n#ifdef __cplusplus\nextern "C" {\n#endif\n',
    ]
    for family, family_members in groupby(all_members, key=lambda m: m.row.family):
        about = FAMILIES[family]
        title = f"@defgroup {family.replace('-', '_')} {about.title}"
        out.append("\n" + block_comment([title, *([about.notes] if about.notes else [])]) + "/** @{ */\n")
        out += kernel_declarations(family)
        for row, row_members in groupby(family_members, key=lambda m: m.row):
            out += row_declarations(row, list(row_members))
        out.append("\n/** @} */\n")
    out.append("\n#ifdef __cplusplus\n}\n#endif\n/* clang-format on */\n\n#endif\n")
    return "".join(out)


def write_headers(directory):
    order = list(FAMILIES)
    everything = sorted(members(), key=lambda m: order.index(m.row.family))
    subsystems = sorted({FAMILIES[m.row.family].subsystem for m in everything})
    return {
        directory
        / "zelm"
        / f"{subsystem}.h": header(subsystem, [m for m in everything if FAMILIES[m.row.family].subsystem == subsystem])
        for subsystem in subsystems
    }


# ---- the build tree


def unit(family, unit_members):
    subsystem = FAMILIES[family].subsystem
    kernels = [FAMILIES[family].kernels]
    if any(m.name in DEPARTURES and DEPARTURES[m.name].function for m in unit_members):
        kernels.append(f"{subsystem}/departures.h")
    includes = "".join(f'#include "{header}"\n' for header in (f"zelm/{subsystem}.h", *kernels))
    out = [
        f"// Written by grid/generate.py from grid/catalogue.py.\n{includes}\n"
        f"using namespace zelm::frame;\nusing namespace zelm::{subsystem};\n"
    ]
    out += ["\n" + definition(m) for m in unit_members]
    return "".join(out)


def argument_list(member):
    return [
        {
            "name": a.name,
            "operand": a.operand,
            "kind": a.kind,
            "type": a.ctype.strip(),
            **({"unread": True} if a.unread else {}),
        }
        for a in plan(member)[0]
    ]


def statuses(member):
    """The statuses that a member can return."""
    if member.name in DEPARTURES and DEPARTURES[member.name].function in TESTS_NOTHING:
        return ["ZELM_OK"]
    family = FAMILIES[member.row.family]
    sized = not member.size or (family.refuses_empty and member.row.is_array)
    return [s for s in family.statuses if s not in member.row.never and (sized or s != "ZELM_ERR_SIZE")]


def departure_entry(member, key, departure):
    entry = {key: departure.note} | ({"rank": departure.rank} if departure.rank else {})
    if departure.when:
        entry["when"] = departure.when
    if departure.instead:
        instead = departure.instead
        entry["instead"] = {"name": instead.name, "arguments": instead_arguments(member, instead)}
        if instead.note:
            entry["instead"]["note"] = instead.note
    return entry


def version():
    text = (Path(__file__).resolve().parents[1] / "include" / "zelm" / "version.h").read_text()
    return ".".join(re.findall(r"#define ZELM_VERSION_(?:MAJOR|MINOR|PATCH) (\d+)", text))


def grid_json(all_members):
    lines = []
    for m in all_members:
        family = FAMILIES[m.row.family]
        entry = {
            "name": m.name,
            "operation": m.row.operation,
            "family": m.row.family,
            "subsystem": family.subsystem,
            "descriptor": m.row.descriptor,
            "type": m.type,
            "size": m.size,
            "layout": m.layout,
            "formula": m.row.formula,
            "arguments": argument_list(m),
            "statuses": statuses(m),
        }
        for key, table in (("departure", DEPARTURES), ("bounds", PRODUCT_BOUNDS)):
            if m.name in table:
                entry |= departure_entry(m, key, table[m.name])
        if m.name in CAUTIONS:
            entry["caution"] = departure_entry(m, "note", CAUTIONS[m.name])
        lines.append(json.dumps(entry))
    beside = [
        json.dumps(
            {
                "name": k.name,
                "family": k.row.family,
                "type": k.type,
                "size": k.size,
                "layout": k.layout,
                "result": k.result,
                "arguments": argument_list(k),
            }
        )
        for k in kernels()
    ]
    return (
        f'{{"version": "{version()}", "functions": [\n'
        + ",\n".join(lines)
        + '\n],\n"kernels": [\n'
        + ",\n".join(beside)
        + "\n]}\n"
    )


TABLE_HEADER = """\
// Written by grid/generate.py from grid/catalogue.py: every exported numeric function, callable by its number.
#pragma once

#include "zelm.h"

#include <cstddef>
#include <cstdint>

namespace zelmtest {

enum class ArgumentKind {
    Pointer,
    Table,
    Shift,
    ObjStride,
    RowStride,
    ElemStride,
    Constant,
    Dimension,
    Count,
    PivotIndex,
    Scratch
};

struct Argument {
    const char *name;
    const char *operand; // "src1", "dst", ...; empty for dimensions, count, constants, pivotIndex and scratch
    ArgumentKind kind;
};

// pointer: Pointer, Table, PivotIndex, Scratch; word: Shift and strides; size: Dimension, Count; f32, f64: Constant.
union Value {
    void *pointer;
    std::int32_t word;
    std::uint32_t size;
    float f32;
    double f64;
};

struct Function {
    const char *name, *operation, *descriptor, *type, *size, *layout;
    const Argument *arguments;
    std::size_t argumentCount;
    // Calls `function`, which must have this member's prototype, with the values in the order of the arguments.
    ZelmStatus (*call)(void (*function)(), const Value *values);
    bool isVoid = false; // a kernel that leaves no result; `call` returns 0 for it
};

extern const Function functions[];
extern const std::size_t functionCount;

} // namespace zelmtest
"""


def value_expression(argument, index):
    slot = f"v[{index}]"
    return {
        "pointer": f"static_cast<{argument.ctype.strip()}>({slot}.pointer)",
        "table": f"static_cast<{argument.ctype.strip()}>({slot}.pointer)",
        "pivotIndex": f"static_cast<{argument.ctype.strip()}>({slot}.pointer)",
        "scratch": f"static_cast<{argument.ctype.strip()}>({slot}.pointer)",
        "constant": f"{slot}.f32" if argument.ctype.startswith("float") else f"{slot}.f64",
        "dimension": f"{slot}.word" if argument.ctype.startswith("int32") else f"{slot}.size",
        "count": f"{slot}.word" if argument.ctype.startswith("int32") else f"{slot}.size",
    }.get(argument.kind, f"{slot}.word")


def grid_table(functions):
    """One caller per distinct argument list; each member's prototype is checked against its caller's type."""
    callers, lists, entries, checks = {}, {}, [], []
    for m in functions:
        arguments, _ = plan(m)
        result = getattr(m, "result", "ZelmStatus")
        signature = result, ", ".join(a.ctype.strip() for a in arguments)
        values = ", ".join(value_expression(a, i) for i, a in enumerate(arguments))
        caller = callers.setdefault(signature, (f"call{len(callers)}", values))[0]
        kinds = ", ".join(f'{{"{a.name}", "{a.operand}", ArgumentKind::{a.kind[0].upper()}{a.kind[1:]}}}' for a in arguments)
        array = lists.setdefault(kinds, f"arguments{len(lists)}")
        void = ", true" if result == "void" else ""
        operation = m.name.removeprefix("zelm").partition(f"_{m.row.descriptor}_")[0]
        entries.append(
            f'    {{"{m.name}", "{operation}", "{m.row.descriptor}", "{m.type}", "{m.size}", '
            f'"{m.layout}", {array}, {len(arguments)}, {caller}{void}}},\n'
        )
        checks.append(f"static_assert(std::is_same_v<decltype({m.name}), {result}({signature[1]})>);\n")
    out = [
        '// Written by grid/generate.py from grid/catalogue.py.\n#include "grid_table.h"\n\n'
        "#include <type_traits>\n\nnamespace zelmtest {\nnamespace {\n\n"
    ]
    out += [f"const Argument {array}[] = {{{kinds}}};\n" for kinds, array in lists.items()]
    out += [
        f"ZelmStatus {caller}(void (*f)(), const Value *v)\n{{\n    "
        + ("" if result == "void" else "return ")
        + f"reinterpret_cast<{result} (*)({types})>(f)({values});\n"
        + ("    return 0;\n" if result == "void" else "")
        + "}\n"
        for (result, types), (caller, values) in callers.items()
    ]
    out += [
        "\n} // namespace\n\n",
        *checks,
        "\nconst Function functions[] = {\n",
        *entries,
        "};\n",
        f"const std::size_t functionCount = {len(entries)};\n\n}} // namespace zelmtest\n",
    ]
    return "".join(out)


def write_build(directory):
    everything = list(members())
    files = {}
    units = {}
    for m in everything:
        units.setdefault((m.row.family, m.layout or "standard"), []).append(m)
    for (family, layout), unit_members in units.items():
        files[directory / f"{family.replace('-', '_')}_{layout}.cpp"] = unit(family, unit_members)
    listed = "\n".join(
        [f"    ${{CMAKE_CURRENT_LIST_DIR}}/{path.name}" for path in sorted(files)]
        + [f"    {unit}" for unit in sorted({kernel.unit for kernel in kernels()})]
    )
    files[directory / "sources.cmake"] = f"set(ZELM_GENERATED_SOURCES\n{listed})\n"
    exports = sorted([m.name for m in everything + list(kernels())] + ["zelmGetLibVersion"])
    files[directory / "exports.txt"] = "\n".join(exports) + "\n"
    files[directory / "zelm-grid.json"] = grid_json(everything)
    files[directory / "grid_table.h"] = TABLE_HEADER
    files[directory / "grid_table.cpp"] = grid_table(everything + list(kernels()))
    return files


class PageContext:
    """What the page asks of a member by its name."""

    @staticmethod
    def departure(name):
        return DEPARTURES.get(name) or PRODUCT_BOUNDS[name]

    @staticmethod
    def arguments(name):
        return [a.name for a in plan(MEMBERS[name])[0]]

    def instead_arguments(self, name):
        return instead_arguments(MEMBERS[name], self.departure(name).instead)

    @staticmethod
    def cautioned_arguments(name):
        instead = CAUTIONS[name].instead
        return instead_arguments(MEMBERS[name], instead) if instead else None


def write_page(path):
    return {path: page.text(PageContext())}


def main(arguments):
    writers = {"headers": write_headers, "page": write_page, "build": write_build}
    if len(arguments) != 2 or arguments[0] not in writers:
        print(__doc__, file=sys.stderr)
        return 2
    files = writers[arguments[0]](Path(arguments[1]))
    for path, text in files.items():
        text = re.sub(r"[ \t]+$", "", text, flags=re.M)
        if not path.exists() or path.read_text() != text:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
