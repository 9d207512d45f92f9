#!/usr/bin/env python3
"""Writes the calls that reach every member of the grid through the C++ layer.

    cases.py DIR UNITS    DIR/cases_0.cpp ... and DIR/stubs.S

For each exported numeric function but those that the layer replaces by a safe form, a case: one call by views, written from
the member's row, size and layout, and one call of the C function with the same addresses spelled out. The stubs take the
place of the library's functions, so that a case knows which of them was called.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "grid"))
from catalogue import DIMENSIONS  # noqa: E402
from departures import DEPARTURES, PRODUCT_BOUNDS  # noqa: E402
from generate import C_TYPE, members, operand_layout, plan  # noqa: E402

COUNT = 3
# Rows and columns, as used, of the operands of run-time forms: not square where the row allows it.
PLAIN = {"src": (4, 5), "src1": (4, 5), "src2": (4, 5), "src3": (4, 5), "dst": (4, 5)}
PRODUCT = {"src1": (4, 3), "src2": (3, 5), "dst": (4, 5)}
TIMES_VECTOR = {"src1": (4, 3), "src2": (1, 3), "src3": (1, 4), "dst": (1, 4)}
SQUARE = {"src": (7, 7), "src1": (7, 7), "dst": (7, 7)}
TALL = {"src": (6, 3), "src1": (6, 3), "src2": (1, 6), "dst": (6, 3)}
VECTORS = 7


def shape_of(member, name, kind):
    """(rows, columns) as used; rows are 1 for a vector."""
    operation, n = member.row.operation, int(member.size[:1] or 0)
    if operation == "CrossProduct":
        n = 3
    vector = kind[0] == "v"
    if n:
        return (1, n) if vector else (n, n)
    if operation in ("Mul", "Gaxpy") and "src2" in member.row.arguments:
        if operation == "Gaxpy" or member.row.family == "matrix-vector-product":
            return TIMES_VECTOR[name]
        return PRODUCT[name]
    if operation in ("LUDecomp", "CholeskyDecomp", "Det", "Invert", "Trace", "LoadIdentity"):
        return SQUARE[name]
    if operation in ("LUBackSubst", "CholeskyBackSubst"):
        return (1, 7) if vector else (7, 7)
    if operation == "QRDecomp":
        return TALL[name]
    if operation == "QRBackSubst":
        return {"src1": (6, 3), "src2": (1, 6), "dst": (1, 3)}[name]
    if operation == "Transpose":
        return {"src": (4, 5), "dst": (5, 4)}[name]
    return (1, VECTORS) if vector else PLAIN[name]


def dimension(member, word, shapes):
    """The value of a dimension argument, by what the functions' documents say of it."""
    operands = {name: shape for name, (_, _, shape) in shapes.items()}
    transposed = {name: kind.endswith("T") for name, (kind, _, _) in shapes.items()}

    def stored(name):
        rows, columns = operands[name]
        return (columns, rows) if transposed[name] else (rows, columns)

    if word.startswith(("src1", "src2")):
        rows, columns = stored(word[:4])
        return {"Width": columns, "Height": rows, "Len": columns}[word[4:]]
    operation = member.row.operation
    if operation == "Gaxpy":
        return operands["src1"][1] if word == "width" else operands["src1"][0]
    if operation in ("QRDecomp", "QRBackSubst", "Transpose", "FrobNorm", "Trace", "Det", "Invert"):
        rows, columns = operands.get("src1", operands.get("src"))
        return rows if word == "height" else columns
    name = "dst" if "dst" in operands else "src" if "src" in operands else "src1"  # a scalar or packed dst has no shape
    rows, columns = operands[name]
    return rows if word == "height" else columns


class Operand:
    """Where one operand lies, and how it is said in C++ and in C."""

    def __init__(self, member, name, kind, shape):
        self.name, self.kind = name, kind
        self.sz = 4 if member.type == "32f" else 8
        self.fixed = bool(member.size) or member.row.operation == "CrossProduct"
        self.array = "a" in kind
        self.vector = kind[0] == "v"
        self.transposed = kind.endswith("T")
        rows, columns = shape
        self.rows, self.columns = (columns, rows) if self.transposed else (rows, columns)  # as stored
        layout = operand_layout(member, name)
        if not self.array:
            layout = {"L": "", "LS2": "S2", "PS2": "P"}.get(layout, layout)
        self.layout = layout
        self.elem = 2 * self.sz if layout in ("S2", "LS2") else self.sz
        self.row = self.columns * self.elem + self.sz
        size = self.row * self.rows
        self.obj = -(-size // 16) * 16 + (0 if self.sz == 8 else 16)
        if layout in ("P", "PS2"):
            self.obj = self.sz if layout == "P" else 2 * self.sz
        self.memory = "got" if name == "dst" else name

    def value(self, kind, where):
        return {
            "pointer": f"c.{where}.first()",
            "table": f"c.{where}.table()",
            "shift": "0",
            "objStride": str(self.obj),
            "rowStride": str(self.row),
            "elemStride": str(self.elem),
        }[kind]

    def setup(self, where):
        if self.layout in ("P", "PS2"):
            spacing = self.obj * COUNT + self.sz
            return f"c.{where}.point({self.rows * self.columns}, {spacing});"
        if self.layout in ("L", "LS2"):
            return f"c.{where}.point({COUNT}, {self.obj});"
        return ""

    def view(self, pointer=None):
        const = "" if self.name == "dst" else "r"
        by = {"P": "_by_element", "PS2": "_by_element", "L": "_by_object", "LS2": "_by_object"}.get(self.layout, "")
        base = "vector" if self.vector else "matrix"
        if self.array:
            base = "vectors" if self.vector else "matrices"
        if self.fixed:
            sizes = f"<{self.columns}>" if self.vector else f"<{self.rows}, {self.columns}>"
            given = []
        else:
            sizes = ""
            given = [f"length({self.columns})" if self.vector else f"shape{{{self.rows}, {self.columns}}}"]
        arguments = [f"c.{self.memory}.{const}{'table' if by else 'first'}()", *given]
        if self.array:
            arguments.append(str(COUNT))
        if self.array and self.layout in ("", "S2", "PS2"):
            arguments.append(f"object_bytes({self.obj})")
        if not self.vector and self.layout in ("", "S2", "L", "LS2"):
            arguments.append(f"row_bytes({self.row})")
        if self.layout in ("S2", "LS2"):
            arguments.append(f"element_bytes({self.elem})")
        text = f"as_{base}{by}{sizes}({', '.join(arguments)})"
        return f"transposed({text})" if self.transposed else text


def call_by_views(member, operands):
    """The C++ call that must reach this member."""
    row, operation = member.row, member.row.operation
    view = {name: operand.view() for name, operand in operands.items()}
    array = row.is_array
    numbers = f"std::span(c.got.first(), {COUNT})" if array else "*c.got.first()"
    scratch = "c.scratch()"
    if operation in ("Add", "Sub", "Mul") and "val" in row.arguments.split():
        first, second = ("c.val", view["src"]) if row.descriptor.startswith("c") else (view["src"], "c.val")
        return f"{operation.lower()}({first}, {second}, {view['dst']})"
    if operation in ("Add", "Sub", "Mul"):
        return f"{operation.lower()}({view['src1']}, {view['src2']}, {view['dst']})"
    if operation == "Saxpy":
        return f"axpy(c.scale, {view['src1']}, {view['src2']}, {view['dst']})"
    if operation == "LComb":
        return f"lincomb(c.scale1, {view['src1']}, c.scale2, {view['src2']}, {view['dst']})"
    if operation == "DotProduct":
        return f"dot({view['src1']}, {view['src2']}, {numbers})"
    if operation == "CrossProduct":
        return f"cross({view['src1']}, {view['src2']}, {view['dst']})"
    if operation in ("L2Norm", "FrobNorm"):
        name = "norm" if operation == "L2Norm" else "frobenius_norm"
        approximate = member.type == "32f" and member.size and member.layout in ("", "L")
        return f"{name}{'_nonzero' if approximate else ''}({view['src']}, {numbers})"
    if operation == "Trace":
        return f"trace({view['src']}, {numbers})"
    if operation == "Gaxpy":
        return f"gaxpy({view['src1']}, {view['src2']}, {view['src3']}, {view['dst']})"
    if operation == "Det":
        return f"det({view['src']}, {numbers})" if member.size else f"det_with_threshold({view['src']}, {scratch}, {numbers})"
    if operation == "Invert":
        return (
            f"inverse({view['src']}, {view['dst']})"
            if member.size
            else f"inverse_with_threshold({view['src']}, {scratch}, {view['dst']})"
        )
    runtime = "" if member.size else f", {scratch}"
    if operation == "LUDecomp":
        return f"lu({view['src']}, lu_factors({view['dst']}, c.got_pivots()))"
    if operation == "CholeskyDecomp":
        return f"cholesky({view['src']}, cholesky_factor({view['dst']}))"
    if operation == "QRDecomp":
        return f"qr({view['src']}, qr_factors({view['dst']}{runtime}))"
    if operation.endswith("BackSubst"):
        factors = {
            "LUBackSubst": f"lu_factors({view['src1']}, c.pivots())",
            "CholeskyBackSubst": f"cholesky_factor({view['src1']})",
            "QRBackSubst": f"qr_factors({view['src1']}{runtime})",
        }[operation]
        return f"solve({factors}, {view['src2']}, {view['dst']})"
    if operation in ("Transpose", "Copy"):
        return f"{operation.lower()}({view['src']}, {view['dst']})"
    if operation == "Extract":
        return f"extract({view['src']}, std::span(c.got.first(), 512))"
    if operation == "LoadIdentity":
        return f"identity({view['dst']})"
    raise ValueError(operation)


def case(number, member):
    row = member.row
    shapes = {}
    for word in row.arguments.split():
        if ":" in word:
            name, kind = word.split(":")
            kind = kind.split("+")[0]
            if kind not in ("scalar", "packed"):
                shapes[name] = (kind, None, shape_of(member, name, kind))
    operands = {name: Operand(member, name, kind, shape) for name, (kind, _, shape) in shapes.items()}
    lines = []
    for name, operand in operands.items():
        for where in ("got", "want") if name == "dst" else (name,):
            lines.append(operand.setup(where))
    matrices = [o for o in operands.values() if not o.vector and o.name != "dst"]
    for o in matrices:
        lines.append(
            f"c.{o.name}.dominant({o.rows}, {o.columns}, {o.row}, {o.elem}, " f"Layout::{o.layout or 'standard'}, {o.obj});"
        )
    arguments = []
    for a in plan(member)[0]:
        if a.operand:
            where = "want" if a.operand == "dst" else a.operand
            operand = operands.get(a.operand)
            arguments.append(operand.value(a.kind, where) if operand else f"c.{where}.first()")
        elif a.kind == "dimension":
            assert a.name in DIMENSIONS
            arguments.append(str(dimension(member, a.name, shapes)))
        elif a.kind == "count":
            arguments.append(str(COUNT))
        elif a.kind == "pivotIndex":
            arguments.append("c.want_pivots().data()" if row.operation == "LUDecomp" else "c.pivots().data()")
        elif a.kind == "scratch":
            arguments.append("c.scratch().data()")
        else:
            arguments.append(f"c.{a.name}")
    body = "".join(f"    {line}\n" for line in lines if line)
    call = f"{member.name}({', '.join(arguments)})"
    if row.operation == "LoadIdentity":  # many identities are one call each
        call = f"identities([&](std::ptrdiff_t k) {{ return {one_identity(member, arguments)}; }})"
    return (
        f'void case{number}()\n{{\n    Case<{C_TYPE[member.type]}> c("{member.name}", {number});\n{body}'
        f"    c.reached({call_by_views(member, operands)});\n    c.expected({call});\n}}\n\n"
    )


def one_identity(member, arguments):
    arguments = list(arguments)
    arguments[-1] = "1"
    if member.layout == "S":
        arguments[0] = f"moved({arguments[0]}, k * {arguments[1]})"
    elif member.layout == "P":
        arguments[1] = f"static_cast<std::int32_t>(k * {arguments[2]})"
    else:
        arguments[0] = f"{arguments[0]} + k"
    return f"{member.name}({', '.join(arguments)})"


def is_replaced(name):
    departure = DEPARTURES.get(name) or PRODUCT_BOUNDS.get(name)
    return departure is not None and departure.rank == "values"


def stubs(names):
    """Each function of the library as a note of its number and a jump to the function itself."""
    out = ["    .text\n"]
    for number, name in enumerate(names):
        out.append(
            f"    .globl {name}\n    .type {name}, @function\n{name}:\n"
            "#ifdef __x86_64__\n"
            f"    movl ${number}, lastCalled(%rip)\n    jmp *functions+{8 * number}(%rip)\n"
            "#else\n"
            f"    movl ${number}, lastCalled\n    jmp *functions+{4 * number}\n"
            "#endif\n"
        )
    out.append('    .section .note.GNU-stack, "", @progbits\n')
    return "".join(out)


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    directory, units = Path(arguments[0]), int(arguments[1])
    everything = list(members())
    names = [member.name for member in everything]
    tested = [(number, member) for number, member in enumerate(everything) if not is_replaced(member.name)]
    files = {"stubs.S": stubs(names)}
    share = -(-len(tested) // units)
    for unit in range(units):
        part = tested[unit * share : (unit + 1) * share]
        text = [
            '// Written by tests/cpp/cases.py.\n#include "cases.h"\n\nnamespace zelmtest {\nnamespace {\n\nusing namespace zelm;\n\n'
        ]
        text += [case(number, member) for number, member in part]
        text.append(
            f"}} // namespace\n\nvoid cases{unit}()\n{{\n"
            + "".join(f"    case{number}();\n" for number, _ in part)
            + "}\n\n} // namespace zelmtest\n"
        )
        files[f"cases_{unit}.cpp"] = "".join(text)
    calls = "".join(f"void cases{unit}();\n" for unit in range(units))
    files["all_cases.cpp"] = (
        '// Written by tests/cpp/cases.py.\n#include "cases.h"\n\nnamespace zelmtest {\n\n'
        + calls
        + "\nextern const char *const names[] = {\n"
        + "".join(f'    "{name}",\n' for name in names)
        + "};\n"
        + f"extern const std::size_t nameCount = {len(names)};\nextern const std::size_t caseCount = {len(tested)};\n"
        + "\nvoid allCases()\n{\n"
        + "".join(f"    cases{unit}();\n" for unit in range(units))
        + "}\n\n} // namespace zelmtest\n"
    )
    for name, text in files.items():
        path = directory / name
        if not path.exists() or path.read_text() != text:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
