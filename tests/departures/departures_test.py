#!/usr/bin/env python3
"""The ranks of the departures against the library: what departs, what the form to use instead gives, and what warns.

    departures_test.py SOURCE_DIR GENERATED_DIR LIBRARY FOLDER COMPILER [FLAGS]
"""

import json
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from program import Builder, kinds_of

SOURCE, GENERATED, LIBRARY, FOLDER = (Path(argument) for argument in sys.argv[1:5])
COMPILER, FLAGS = sys.argv[5], " ".join(sys.argv[6:])
del sys.argv[1:]

PAGE = SOURCE / "docs" / "before-you-choose.md"
BLOCK = re.compile(r"^```(\w+)\n(.*?)^```$", re.M | re.S)

# Of the fixed-size standard forms of Add, Sub and Mul of two matrices, those that give another value than their formula on
# packed arrays that are aligned to 16.
OTHER_VALUES_WHEN_PACKED = {
    f"zelmMul_{row}_64f_{size}" for row in ("mama", "maTma", "mamaT", "maTmaT") for size in ("4x4", "6x6")
} | {"zelmSub_mTmT_32f_6x6", "zelmSub_maTmaT_32f_6x6"}

COUNT = 3


class Call:
    """A call of one function on operands of small whole numbers, and the comparison with its formula."""

    def __init__(self, function, text, loose):
        self.function, self.text, self.loose = function, text, loose
        self.kinds = kinds_of(function["descriptor"])
        self.is_array = "a" in function["descriptor"]
        n = int(function["size"][0]) if function["size"] else 0
        # A result of three rows and four columns; products sum two terms.
        self.height, self.width, self.terms = (n, n, n) if n else (3, 4, 2)

    @staticmethod
    def stored(kind, rows, columns):
        return (columns, rows) if kind.endswith("T") else (rows, columns)

    def shapes(self):
        """The sign of the formula and the stored shape of each operand, (rows, columns)."""
        op, h, w, terms, kinds = self.function["operation"], self.height, self.width, self.terms, self.kinds
        if op in ("Add", "Sub"):
            return "+-"[op == "Sub"], {"src1": self.stored(kinds[0], h, w), "src2": self.stored(kinds[1], h, w), "dst": (h, w)}
        if op == "Mul" and kinds[1].startswith("v"):
            return "v", {"src1": self.stored(kinds[0], h, terms), "src2": (1, terms), "dst": (1, h)}
        if op == "Mul":
            return "*", {"src1": self.stored(kinds[0], h, terms), "src2": self.stored(kinds[1], terms, w), "dst": (h, w)}
        if op == "Transpose":
            return "=", {"src1": (h, w), "dst": (w, h)}
        if op == "Copy":
            return "=", {"src1": (1, w), "dst": (1, w)}
        return "=", {"src1": self.stored(kinds[0], h, w), "dst": (h, w)}

    def value(self, word, shapes):
        """An argument's name in a call, as an expression over the operands."""
        only = "src1" not in self.function["arguments"][0]["operand"]
        fixed = {
            "count": COUNT if self.is_array else 1,
            "width": self.width,
            "height": self.height,
            "len": self.width,
            "src2Len": self.terms,
            "sizeof": "sizeof",
        }
        if word in fixed:
            return str(fixed[word])
        operand, what = re.fullmatch(r"(src1|src2|src|dst)(\w*)", word).groups()
        place = "src1" if only and operand == "src" else operand
        if what in ("Width", "Height"):
            return str(shapes[place][what == "Width"])
        const = "" if operand == "dst" else "const "
        element = "float" if self.function["type"] == "32f" else "double"
        return {
            "": f"({const}{element} *)(void *){place}.memory",
            "Table": f"({const}{element} *const *)(void *){place}.entries",
            "Transposed": f"({const}{element} *const *)(void *){place}.exchanged",
            "Shift": "0",
            "ObjStride": f"{place}.objStride",
            "RowStride": f"{place}.rowStride",
            "ElemStride": f"{place}.elemStride",
        }[what]

    def lines(self, label):
        sign, shapes = self.shapes()
        layout = {"PP": "PS2"}.get(self.function["layout"], self.function["layout"])
        kinds = dict(zip(("src1", "src2"), self.kinds)) | {"dst": "a" * self.is_array}
        if self.function["operation"] == "Transpose":
            kinds["dst"] += "T"
        size = 4 if self.function["type"] == "32f" else 8
        out = []
        for operand, (rows, columns) in shapes.items():
            packed = operand == "dst" and self.function["operation"] == "Extract"
            out.append(
                f'place(&{operand}, "{"" if packed else layout}", {size}, {COUNT}, {int("a" in kinds[operand])}, {rows},'
                f' {columns}, {int(kinds[operand].endswith("T"))}, {int(self.loose and not packed)});'
            )
        name, _, arguments = self.text.partition("(")
        given = re.sub(r"[a-zA-Z]\w*", lambda word: self.value(word.group(), shapes), arguments)
        rows, columns = shapes["dst"][::-1] if self.function["operation"] == "Transpose" else shapes["dst"]
        out.append(
            f"report(\"{label}\", {name}({given}, '{sign}', {self.terms}, {COUNT if self.is_array else 1}, {rows},"
            f" {columns});"
        )
        return out


def program(calls):
    """A program that prints the labels of the calls whose result is not that of their formula."""
    functions = "".join(
        f"static void call{i}(void)\n{{\n    " + "\n    ".join(call.lines(label)) + "\n}\n\n"
        for i, (label, call) in enumerate(calls)
    )
    return (
        f'#include "operands.h"\n\n{functions}int main(void)\n{{\n'
        + "".join(f"    call{i}();\n" for i in range(len(calls)))
        + "    return 0;\n}\n"
    )


class Departures(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.builder = Builder(COMPILER, FLAGS, SOURCE / "include", LIBRARY, FOLDER)
        grid = json.loads((GENERATED / "zelm-grid.json").read_text())
        cls.functions = {f["name"]: f for f in grid["functions"]}
        cls.first_rank = {name for name, f in cls.functions.items() if f.get("rank") == "values"}

    def test_page_is_current(self):
        with tempfile.TemporaryDirectory() as directory:
            made = Path(directory) / "page.md"
            subprocess.run([sys.executable, "-B", SOURCE / "grid" / "generate.py", "page", made], check=True)
            self.assertEqual(made.read_text(), PAGE.read_text(), "run grid/generate.py page docs/before-you-choose.md")

    def test_every_example_gives_what_the_page_says(self):
        blocks = BLOCK.findall(PAGE.read_text())
        examples = [
            (source, expected)
            for (kind, source), (next_kind, expected) in zip(blocks, blocks[1:])
            if kind == "c" and next_kind == "text"
        ]
        bodies = "".join(f"static void example{i}(void)\n{{\n{source}}}\n\n" for i, (source, _) in enumerate(examples))
        calls = "".join(f"    example{i}();\n" for i in range(len(examples)))
        output = self.builder.output(
            "examples", f"#include <stdio.h>\n#include <zelm.h>\n\n{bodies}int main(void)\n{{\n{calls}" "    return 0;\n}\n"
        )
        self.assertEqual(output.splitlines(), [expected.strip() for _, expected in examples])
        shown = set(re.findall(r"\bzelm\w+(?=\()", "".join(source for source, _ in examples)))
        self.assertEqual({n for n in self.first_rank if "departure" in self.functions[n]} - shown, set())

    def test_two_matrices_of_fixed_size_packed_and_aligned(self):
        members = [
            f
            for f in self.functions.values()
            if f["operation"] in ("Add", "Sub", "Mul")
            and f["size"]
            and not f["layout"]
            and f["descriptor"].count("m") == 2
            and not set("vc") & set(f["descriptor"])
        ]
        self.assertEqual(len(members), 352)
        calls = [
            (f["name"], Call(f, f"{f['name']}({', '.join(a['name'] for a in f['arguments'])})", loose=False)) for f in members
        ]
        output = self.builder.output("packed", program(calls))
        self.assertEqual({line.split()[0] for line in output.splitlines()}, OTHER_VALUES_WHEN_PACKED)
        self.assertLessEqual(OTHER_VALUES_WHEN_PACKED, self.first_rank)

    def test_the_form_to_use_instead_gives_the_formula(self):
        calls = []
        for name, f in self.functions.items():
            if f.get("rank") in ("values", "faults") and f["instead"]["arguments"] is not None:
                text = f"{f['instead']['name']}({', '.join(f['instead']['arguments'])})"
                for loose in (False, True):
                    calls.append((f"{name} {'loose' if loose else 'packed'}", Call(f, text, loose)))
        self.assertGreater(len(calls), 2 * 240)
        self.assertEqual(self.builder.output("instead", program(calls)), "")

    def warned_calls(self, names, *options, compiler=None):
        """The functions of whose calls a compiler warns."""
        zeros = {name: ", ".join("0" for _ in self.functions[name]["arguments"]) for name in names}
        source = "#include <zelm.h>\n" + "".join(
            f"int call_{name}(void) {{ return {name}({zeros[name]}); }}\n" for name in sorted(names)
        )
        builder = self.builder if not compiler else Builder(compiler, FLAGS, SOURCE / "include", LIBRARY, FOLDER)
        run = builder.compiled("warned", "#include <zelm.h>\n" + source, *options)
        self.assertEqual(run.returncode, 0, run.stderr[:2000])
        sentences = [line for line in run.stderr.splitlines() if "warning:" in line]
        for line in sentences:
            self.assertIn("docs/before-you-choose.md", line)
        return {re.search(r"call to \W?(zelm\w+)", line).group(1) for line in sentences}

    def test_calls_of_the_first_rank_warn_and_no_other_calls(self):
        products = {name for name in self.first_rank if "bounds" in self.functions[name]}
        for compiler in ("gcc", "clang"):
            if shutil.which(compiler):
                self.assertEqual(self.warned_calls(self.functions, compiler=compiler), self.first_rank)
                self.assertEqual(self.warned_calls(self.first_rank, "-DZELM_NO_DEPARTURE_WARNINGS", compiler=compiler), set())
                self.assertEqual(
                    self.warned_calls(self.first_rank, "-DZELM_SQUARE_PRODUCTS", compiler=compiler), self.first_rank - products
                )

    def test_taking_an_address_does_not_warn(self):
        table = ", ".join(f"(void (*)(void)){name}" for name in sorted(self.first_rank))
        source = f"#include <zelm.h>\nextern void (*const table[])(void);\nvoid (*const table[])(void) = {{{table}}};\n"
        for compiler in ("gcc", "clang"):
            if shutil.which(compiler):
                builder = Builder(compiler, FLAGS, SOURCE / "include", LIBRARY, FOLDER)
                self.assertEqual(builder.compiled("addresses", source, "-O2", "-Wall", "-Werror").stderr, "")


if __name__ == "__main__":
    unittest.main()
