#!/usr/bin/env python3
"""What the documents say of statuses, alignment and NaN, against every function of the library.

    sentences_test.py SOURCE_DIR GENERATED_DIR LIBRARY FOLDER COMPILER [FLAGS]
"""

import json
import re
import sys
import unittest
from pathlib import Path

from program import Builder

SOURCE, GENERATED, LIBRARY, FOLDER = (Path(argument) for argument in sys.argv[1:5])
COMPILER, FLAGS = sys.argv[5], " ".join(sys.argv[6:])
del sys.argv[1:]

OK, SIZE, NULL_PTR, DIV, POS = 0, -6, -8, -10, -179
CODES = {
    "ZELM_OK": OK,
    "ZELM_ERR_SIZE": SIZE,
    "ZELM_ERR_NULL_PTR": NULL_PTR,
    "ZELM_ERR_DIV_BY_ZERO": DIV,
    "ZELM_ERR_NOT_POS_DEF": POS,
}

# docs/movement.md: these test nothing.
TEST_NOTHING = {
    "zelmExtract_v_64f_P",
    "zelmExtract_m_32f_P",
    "zelmExtract_m_64f_P",
    "zelmExtract_mT_32f_P",
    "zelmExtract_mT_64f_P",
}

# docs/elementwise.md: these raise an alignment fault where object 0 is aligned to 16 and a later object of dst is not.
FAULT_ON_A_MIXTURE = {
    "zelmAdd_maTm_64f_6x6",
    "zelmAdd_maTmT_64f_6x6",
    "zelmAdd_mamT_64f_6x6",
    "zelmSub_maTmT_64f_6x6",
    "zelmSub_mamT_64f_6x6",
    "zelmSub_mamT_64f_3x3",
    "zelmSub_maTma_64f_5x5_L",
    "zelmSub_mamaT_64f_4x4_L",
    "zelmSub_mama_64f_4x4_L",
}

# docs/layouts.md: a count of zero is an error in these, and nothing to do in all others.
REFUSE_EMPTY = ("Extract", "LoadIdentity", "CholeskyDecomp", "CholeskyBackSubst")


class Function:
    def __init__(self, number, entry):
        self.number, self.entry, self.name = number, entry, entry["name"]
        self.size = 4 if entry["type"] == "32f" else 8
        operands = []
        for argument in entry["arguments"]:
            if argument["operand"] and argument["operand"] not in operands:
                operands.append(argument["operand"])
        self.operands = operands
        self.dimensions = [a["name"] for a in entry["arguments"] if a["kind"] == "dimension"]
        self.has_count = entry["arguments"][-1]["name"] == "count"

    def expression(self, argument):
        kind, operand = argument["kind"], argument["operand"]
        number = self.operands.index(operand) if operand else 0
        order = int(self.entry["size"][0]) if self.entry["size"] else 3
        per_element = argument["type"].startswith(
            ("const float *const", "const double *const", "float *const", "double *const")
        ) and self.per_element(operand)
        return {
            "pointer": f"operand({number})",
            "table": f"table({number}, {int(per_element)}, {self.size}, {order})",
            "shift": "0",
            "objStride": f"objStride({self.size})",
            "rowStride": f"rowStride({self.size})",
            "elemStride": str(self.size),
            "constant": "1",
            "count": f"({argument['type']})count",
            "dimension": f"({argument['type']})dimension({self.dimensions.index(argument['name'])})"
            if argument["name"] in self.dimensions
            else "",
            "pivotIndex": "pivots",
            "scratch": "(void *)scratch",
        }[kind]

    def per_element(self, operand):
        """Whether the table of an operand has an entry per element: P and PS2, Copy's and LoadIdentity's letter P."""
        layout = self.entry["layout"]
        if self.entry["operation"] == "Copy":
            layout = layout[operand == "dst"]
        return layout.startswith("P")

    def wrapper(self):
        call = ", ".join(self.expression(a) for a in self.entry["arguments"])
        return f"static ZelmStatus f{self.number}(void) {{ return {self.name}({call}); }}\n"


class Sentences(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        builder = Builder(COMPILER, FLAGS, SOURCE / "include", LIBRARY, FOLDER)
        grid = json.loads((GENERATED / "zelm-grid.json").read_text())
        cls.functions = [Function(i, entry) for i, entry in enumerate(grid["functions"])]
        output = builder.output("sentences", cls.source())
        cls.results = {}
        for line in output.splitlines():
            situation, number, status, nan = line.split()
            cls.results.setdefault(situation, {})[cls.functions[int(number)].name] = int(status), nan == "1"

    @classmethod
    def source(cls):
        """Every function in every situation."""
        out = [
            '#include "any_call.h"\n\n',
            *(f.wrapper() for f in cls.functions),
            "\nstatic const struct { ZelmStatus (*call)(void); int size, operands, dimensions, hasCount; } all[] = {\n",
            *(
                f"    {{f{f.number}, {f.size}, {len(f.operands)}, {len(f.dimensions)}, {int(f.has_count)}}},\n"
                for f in cls.functions
            ),
            "};\n\nstatic void everyFunction(const char *situation, int of, int number)\n{\n"
            "    for (int i = 0; i < (int)(sizeof all / sizeof *all); ++i)\n"
            "        if (number < (of == 1 ? all[i].operands : of == 2 ? all[i].dimensions : of == 3 ? all[i].hasCount : 1))\n"
            "            report(situation, i, all[i].call, all[i].size, all[i].operands - 1);\n}\n\n"
            "static void reset(void)\n{\n    nullOperand = zeroDimension = unequalDimension = NOBODY, count = 2, offset = 0;\n"
            "    objectExtra = 0, diagonal = 4, elsewhere = 1;\n}\n\n"
            "int main(void)\n{\n    struct sigaction action = {.sa_handler = onFault};\n"
            '    sigaction(SIGSEGV, &action, NULL);\n    reset();\n    everyFunction("plain", 0, 0);\n',
        ]
        for i in range(4):
            out.append(
                f'    reset(), nullOperand = {i}, everyFunction("null{i}", 1, {i});\n'
                f'    reset(), zeroDimension = {i}, everyFunction("zero{i}", 2, {i});\n'
                f'    reset(), unequalDimension = {i}, everyFunction("unequal{i}", 2, {i});\n'
            )
        out += [
            '    reset(), count = 0, everyFunction("empty", 3, 0);\n',
            '    reset(), diagonal = elsewhere = 0, everyFunction("zeros", 0, 0);\n',
            '    reset();\n    for (offset = 4; offset < 16; offset += 4) objectExtra = offset, everyFunction(offset == 8 ? "aligned8" :'
            ' "aligned4", 0, 0);\n',
            '    reset(), objectExtra = 8, everyFunction("mixture", 0, 0);\n',
            "    return 0;\n}\n",
        ]
        return "".join(out).replace(
            "struct sigaction action = {.sa_handler = onFault};",
            "struct sigaction action;\n    memset(&action, 0, sizeof action);\n" "    action.sa_handler = onFault;",
        )

    def check(self, situation, expected):
        """`expected` gives the status of a function, or None where the documents leave it open."""
        wrong = [
            (f.name, self.results[situation][f.name][0], expected(f))
            for f in self.functions
            if f.name in self.results.get(situation, {}) and expected(f) not in (None, self.results[situation][f.name][0])
        ]
        self.assertEqual(wrong, [])

    def test_a_null_operand(self):
        for i in range(4):
            self.check(f"null{i}", lambda f: None if f.name in TEST_NOTHING else NULL_PTR)

    def test_a_zero_dimension(self):
        def expected(f, number):
            operation, dimension = f.entry["operation"], f.dimensions[number]
            if f.name in TEST_NOTHING or operation == "LoadIdentity" or (operation == "Copy" and "ma" in f.name):
                return OK
            if operation == "Mul" and f.entry["descriptor"] == "mam" and dimension == "src2Width":
                return OK
            return SIZE

        for i in range(4):
            self.check(f"zero{i}", lambda f, i=i: expected(f, i))

    def test_dimensions_that_disagree(self):
        """docs/products.md, the column of what must be equal; one of the dimensions is 2, the others are 3."""

        def expected(f, number):
            if f.entry["operation"] != "Mul" or "src1Width" not in f.dimensions:
                return None
            descriptor, dimension = f.entry["descriptor"], f.dimensions[number]
            first = descriptor[: 2 if descriptor[1] in "aT" else 1] + ("T" if descriptor.startswith("maT") else "")
            second = descriptor[len(first) :]
            if second.startswith("v"):
                equal = ("src1Height" if "T" in first else "src1Width", "src2Len")
            elif "T" not in descriptor and second == "ma":
                equal = ("src1Height", "src2Width")
            else:
                equal = ("src1Height" if "T" in first else "src1Width", "src2Width" if "T" in second else "src2Height")
            return SIZE if dimension in equal else OK

        for i in range(4):
            self.check(f"unequal{i}", lambda f, i=i: expected(f, i))

    def test_a_count_of_zero(self):
        self.check("empty", lambda f: SIZE if f.entry["operation"] in REFUSE_EMPTY else OK)

    def test_statuses_are_among_those_of_the_grid(self):
        for situation, results in self.results.items():
            if situation != "mixture":
                for f in self.functions:
                    status = results.get(f.name, (OK,))[0]
                    if f.name not in TEST_NOTHING:
                        self.assertIn(status, [CODES[s] for s in f.entry["statuses"]], f"{situation} {f.name}")

    def test_ordinary_matrices_have_no_failure(self):
        # Objects of P lie an element apart, so that the matrices of this test overlap there.
        self.check("plain", lambda f: None if f.name.startswith("zelmCholeskyDecomp_ma") and f.entry["layout"] == "P" else OK)

    def test_zero_matrices(self):
        expected = {"LUDecomp": DIV, "QRDecomp": DIV, "CholeskyDecomp": POS, "Invert": DIV}
        self.check(
            "zeros",
            lambda f: OK
            if f.entry["operation"] == "Invert"
            and f.entry["type"] == "64f"
            and f.entry["size"] == "3x3"
            and f.entry["layout"] in ("", "L")
            else expected.get(f.entry["operation"], OK),
        )

    def test_the_length_of_zero_is_nan_in_the_forms_with_the_refined_root(self):
        for f in self.functions:
            if f.entry["operation"] in ("L2Norm", "FrobNorm"):
                refined = f.entry["type"] == "32f" and f.entry["size"] and f.entry["layout"] in ("", "L")
                self.assertEqual(self.results["zeros"][f.name][1], bool(refined), f.name)
                self.assertEqual("caution" in f.entry, bool(refined), f.name)

    def test_operands_need_the_alignment_of_their_element(self):
        for situation, size in (("aligned4", 4), ("aligned8", 8)):
            for f in self.functions:
                if f.size <= size:
                    self.assertGreater(self.results[situation][f.name][0], -1000, f"{situation} {f.name}")

    def test_every_name_in_the_documents_is_one_or_begins_one(self):
        exported = (GENERATED / "exports.txt").read_text().split()
        for page in [SOURCE / "README.md", *(SOURCE / "docs").rglob("*.md")]:
            for name in set(re.findall(r"\b(?:zelm[A-Z]|a6_)\w+", page.read_text())):
                self.assertTrue(any(export.startswith(name.rstrip("_")) for export in exported), f"{page.name}: {name}")

    def test_nine_members_fault_where_a_later_object_is_not_aligned(self):
        faulting = {name for name, (status, _) in self.results["mixture"].items() if status < -1000}
        self.assertEqual(faulting, FAULT_ON_A_MIXTURE)


if __name__ == "__main__":
    unittest.main()
