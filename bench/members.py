#!/usr/bin/env python3
"""members.py FILE: writes the table of the functions that are measured, from the catalogue.

Every row of the catalogue, in each of its layouts and in both element types: the sizes 3 and 4, in the standard layout and
in the solvers also 6, and the run-time form.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "grid"))
from catalogue import FAMILIES  # noqa: E402
from departures import DEPARTURES  # noqa: E402
from generate import members, operand_layout, plan  # noqa: E402

ARRANGEMENT = {"": "Adjacent", "S2": "Adjacent", "P": "Planes", "PS2": "Planes", "L": "List", "LS2": "List"}
DENSE = ("copy", "extract", "identity")
SHAPE = {"v": "v", "m": "m", "s": "s"}


def is_array(member):
    """Whether one call serves many objects: only object 0 of LoadIdentity becomes an identity, so it is called for each."""
    return member.row.is_array and member.row.family != "identity"


def departs(member):
    """Whether it writes other values than its row does, whatever its operands are: no peer does."""
    departure = DEPARTURES.get(member.name)
    return departure is not None and departure.rank == "values" and not departure.when


def is_measured(member):
    order = member.size[:1]
    return order in ("", "3", "4") or order == "6" and (not member.layout or FAMILIES[member.row.family].subsystem == "solvers")


def operand(member, name, kind):
    """The fields of an OperandKind."""
    if kind in ("scalar", "packed"):
        shape = "s" if kind == "scalar" else member.row.descriptor[0]
        return f"{{\"{name}\", '{shape}', {str(member.row.is_array).lower()}, Arrangement::Adjacent, false}}"
    layout = operand_layout(member, name)
    is_array = "a" in kind.split("+")[0]
    arrangement = ARRANGEMENT[layout]
    if arrangement == "List" and not is_array:
        arrangement = "Adjacent"
    strided = layout in ("S2", "PS2", "LS2") and member.row.family not in DENSE
    return f"{{\"{name}\", '{kind[0]}', {str(is_array).lower()}, Arrangement::{arrangement}, " f"{str(strided).lower()}}}"


def argument(arg, operands, constants):
    number = operands.index(arg.operand) if arg.operand else constants.index(arg.name) if arg.kind == "constant" else 0
    return f"{{ArgumentKind::{arg.kind[0].upper()}{arg.kind[1:]}, {number}}}"


def passed_type(arg):
    if arg.kind in ("pointer", "table", "pivotIndex", "scratch"):
        return "const void *"
    return arg.ctype.strip() if arg.kind == "constant" else "std::int32_t"


def main(path):
    tables, entries = {}, []

    def table(of, elements):
        text = ", ".join(elements) or "{}"
        return tables.setdefault((of, text), f"{of[0].lower()}{len(tables)}")

    for member in filter(is_measured, members()):
        words = [word.split(":") for word in member.row.arguments.split() if ":" in word]
        arguments, _ = plan(member)
        constants = [a.name for a in arguments if a.kind == "constant"]
        operands = table("OperandKind", [operand(member, *word) for word in words])
        given = table("Argument", [argument(a, [name for name, _ in words], constants) for a in arguments])
        types = ", ".join(map(passed_type, arguments))
        entries.append(
            f'    {{"{member.name}", "{member.row.family}", "{member.row.descriptor}", '
            f'{4 if member.type == "32f" else 8}, {member.size[:1] or 0}, {str(is_array(member)).lower()}, {str(departs(member)).lower()}, '
            f"{operands}, {len(words)}, {given}, {len(arguments)}, callEach<{types}>}},\n"
        )
    lines = [
        '// Written by bench/members.py from grid/catalogue.py.\n#include "call_each.h"\n#include "member.h"\n\n'
        "namespace zelmbench {\nnamespace {\n"
    ]
    lines += [f"const {of} {name}[] = {{{text}}};\n" for (of, text), name in tables.items()]
    lines += [
        "} // namespace\n\nconst Member members[] = {\n",
        *entries,
        "};\n",
        f"const std::size_t memberCount = {len(entries)};\n\n}} // namespace zelmbench\n",
    ]
    Path(path).write_text("".join(lines))


if __name__ == "__main__":
    main(sys.argv[1])
