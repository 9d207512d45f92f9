#!/usr/bin/env python3
"""Writes calls.h: the library's `S2` forms that the loops use, one inline function per operation and element type.

    calls.py ZELM_GRID_JSON CALLS_H

Each function takes its operands whole (pointer and strides as NumPy gives them) and picks the fixed-size form for the
sizes 3 to 6, the run-time form for all others.
"""

import json
import sys
from itertools import groupby
from pathlib import Path

# The rows that the loops call.
ROWS = {
    ("Add", "vava"), ("Add", "mama"), ("Sub", "vava"), ("Sub", "mama"), ("Mul", "vac"), ("Mul", "mac"),
    ("Saxpy", "vava"), ("LComb", "vava"), ("DotProduct", "vava"), ("CrossProduct", "vava"), ("L2Norm", "va"),
    ("FrobNorm", "ma"), ("Trace", "ma"), ("Transpose", "ma"), ("Det", "ma"), ("Invert", "ma"),
    ("Mul", "mama"), ("Mul", "mamaT"), ("Mul", "mava"), ("Gaxpy", "va"), ("Gaxpy", "v"),
    ("LUDecomp", "ma"), ("LUBackSubst", "mava"), ("LUBackSubst", "mva"),
    ("CholeskyDecomp", "ma"), ("CholeskyBackSubst", "mava"), ("CholeskyBackSubst", "mva"),
    ("QRDecomp", "ma"), ("QRBackSubst", "mava"), ("QRBackSubst", "mva"),
}  # fmt: skip
# The rows whose run-time forms are not used: those of Det and Invert set small pivots to zero, that of Mul is not the
# product of matrices that are not square.
FIXED_SIZES_ONLY = {("Det", "ma"), ("Invert", "ma"), ("Mul", "mama")}
# A member that departs from its row in one of these ways gives other results than its formula.
REFUSED_RANKS = ("values", "faults")
LAYOUT = "S2"
ELEMENT = {"32f": "float", "64f": "double"}

HEAD = """\
// Written by src/calls.py from zelm-grid.json.
#pragma once

#include "operand.h"

// calls.py refuses the members that the header warns of, but for a product whose shapes multiply() sees to.
#define ZELM_NO_DEPARTURE_WARNINGS
#include <zelm.h>

namespace zelmpy {

template <class T>
struct Calls;
"""


def row_of(member):
    return member["operation"], member["descriptor"]


def parameters(member):
    """The parameters of the inline function: an operand for each group of pointer and strides."""
    names = []
    for argument in member["arguments"]:
        kind, name, ctype = argument["kind"], argument["name"], argument["type"]
        if kind == "pointer":
            names.append(f"const Operand &{name}")
        elif kind in ("dimension", "count"):
            names.append(f"npy_intp {name}")
        elif kind in ("constant", "pivotIndex", "scratch"):
            if not (kind == "scratch" and row_of(member) in FIXED_SIZES_ONLY):
                names.append(f"{ctype} {name}")
    return names


def passed(argument):
    kind, name, ctype = argument["kind"], argument["name"], argument["type"]
    operand = argument["operand"]
    if kind == "pointer":
        return f"{name}.as<{ctype.removesuffix('*').strip()}>()"
    if kind in ("objStride", "rowStride", "elemStride"):
        field = {"objStride": "object", "rowStride": "row", "elemStride": "element"}[kind]
        return f"static_cast<std::int32_t>({operand}.{field})"
    if kind in ("dimension", "count"):
        return f"static_cast<std::{ctype}>({name})"
    return name


def call(member):
    return f"{member['name']}({', '.join(passed(a) for a in member['arguments'])})"


def function(members):
    """One operation and type: the members differ in their sizes only."""
    for member in members:
        if "departure" in member and member["rank"] in REFUSED_RANKS:
            raise SystemExit(f"{member['name']} departs from its row: {member['departure']}")
    sizes = {member["size"][:1]: member for member in members}
    widest = sizes.get("") or next(iter(sizes.values()))
    dimensions = [a["name"] for a in widest["arguments"] if a["kind"] == "dimension"]
    name = f"{widest['operation']}_{widest['descriptor']}"
    lines = [f"    static ZelmStatus {name}({', '.join(parameters(widest))}) {{"]
    if not dimensions:
        lines.append(f"        return {call(widest)};")
    else:
        lines.append(f"        switch (fixedSize({', '.join(dimensions)})) {{")
        for size, member in sizes.items():
            if size:
                lines += [f"        case {size}:", f"            return {call(member)};"]
        rest = "ZELM_ERR_SIZE" if row_of(widest) in FIXED_SIZES_ONLY else call(sizes[""])
        lines += ["        default:", f"            return {rest};", "        }"]
    return "\n".join(lines + ["    }\n"])


def header(grid):
    chosen = [f for f in grid["functions"] if f["layout"] == LAYOUT and row_of(f) in ROWS]
    missing = ROWS - {row_of(f) for f in chosen}
    if missing:
        raise SystemExit(f"not in the catalogue: {sorted(missing)}")
    out = [HEAD]
    for element in ELEMENT:
        of_type = sorted((f for f in chosen if f["type"] == element), key=row_of)
        out.append(f"\ntemplate <>\nstruct Calls<{ELEMENT[element]}> {{\n")
        out += [function(list(members)) for _, members in groupby(of_type, key=row_of)]
        out.append("};\n")
    return "".join(out) + "\n} // namespace zelmpy\n"


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    source, target = map(Path, arguments)
    text = header(json.loads(source.read_text()))
    if not target.exists() or target.read_text() != text:
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
