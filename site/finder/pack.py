#!/usr/bin/env python3
"""Makes the finder: one page with its style, its scripts and the grid inside, which needs no server.

    pack.py GRID PAGE    GRID is zelm-grid.json as the generator writes it
"""

import json
import re
import sys
from pathlib import Path

HERE = Path(__file__).parent
sys.path += [str(HERE.parent), str(HERE.parent.parent / "grid")]

from catalogue import FAMILIES, ROWS  # noqa: E402
from wants import GROUPS  # noqa: E402

SCRIPTS = ("grid.js", "words.js", "pictures.js", "sample.js", "page.js")
ROW = ("operation", "family", "subsystem", "descriptor", "formula", "operands")
MEMBER = ("type", "size", "layout")
NOTES = ("departure", "bounds", "rank", "when", "instead")
# The version query as a member of a row of its own.
VERSION = {key: "" for key in ROW + MEMBER} | {
    "name": "zelmGetLibVersion",
    "operation": "GetLibVersion",
    "subsystem": "types",
    "formula": "the version record of the loaded library",
    "arguments": [],
    "statuses": [],
}
OPERANDS = {(row.operation, row.descriptor): " ".join(w for w in row.arguments.split() if ":" in w) for row in ROWS}


def index_in(table, value):
    """The number of a value in a list that holds each value once."""
    key = json.dumps(value)
    return table.setdefault(key, len(table))


def packed_grid(grid):
    """The functions with what they share said once: rows, argument lists, lists of statuses."""
    rows, lists, statuses, functions, notes = {}, {}, {}, [], {}
    members = [f | {"operands": OPERANDS[f["operation"], f["descriptor"]]} for f in grid["functions"]]
    for f in [*members, *(kernel_entry(kernel) for kernel in grid["kernels"]), VERSION]:
        arguments = [packed_argument(argument) for argument in f["arguments"]]
        functions.append(
            [
                f["name"],
                index_in(rows, [f[key] for key in ROW]),
                *(f[key] for key in MEMBER),
                index_in(lists, arguments),
                index_in(statuses, f["statuses"]),
            ]
        )
        note = {key: f[key] for key in NOTES if key in f}
        if note:
            notes[f["name"]] = note
    tables = {"rows": rows, "lists": lists, "statuses": statuses}
    return {key: [json.loads(text) for text in table] for key, table in tables.items()} | {
        "version": grid["version"],
        "functions": functions,
        "notes": notes,
        "results": {k["name"]: k["result"] for k in grid["kernels"]} | {"zelmGetLibVersion": "const ZelmLibVersion *"},
    }


def packed_argument(argument):
    """T stands for the element type, so that both types share their lists."""
    ctype = re.sub(r"\b(float|double)\b", "T", argument["type"])
    return [argument["name"], argument["operand"], argument["kind"], ctype, *([1] if argument.get("unread") else [])]


def kernel_entry(kernel):
    """A kernel as a member of a row of its own."""
    descriptor = kernel["name"].split("_")[2]
    index = "[k]" if descriptor == "ma" else ""
    row = {"operation": "a6_Det", "subsystem": "solvers", "descriptor": descriptor, "statuses": []}
    return kernel | row | {"formula": f"dst{index} = determinant of src{index}", "operands": f"src:{descriptor} dst:scalar"}


def families():
    return {
        name: {"title": family.title, "notes": family.notes, "overlap": family.overlap} for name, family in FAMILIES.items()
    }


def wants():
    keys = ("operation", "operands", "formula", "title", "words", "hint")
    return {group: [{key: getattr(want, key) for key in keys} for want in listed] for group, listed in GROUPS.items()}


def page(grid):
    data = packed_grid(grid) | {"families": families(), "wants": wants()}
    scripts = "\n".join((HERE / name).read_text() for name in SCRIPTS)
    text = (HERE / "finder.html").read_text()
    text = text.replace("/*STYLE*/", (HERE / "finder.css").read_text())
    text = text.replace("/*DATA*/", "const DATA = " + json.dumps(data, ensure_ascii=False, separators=(",", ":")) + ";")
    return text.replace("/*SCRIPTS*/", scripts)


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    grid = json.loads(Path(arguments[0]).read_text())
    Path(arguments[1]).write_text(page(grid))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
