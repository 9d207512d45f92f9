#!/usr/bin/env python3
"""The grid against counts made by hand, and what is generated from it against what is committed.

    grid_test.py SOURCE_DIR GENERATED_DIR
"""

import json
import re
import subprocess
import sys
import tempfile
import unittest
from collections import Counter
from pathlib import Path

SOURCE, GENERATED = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))

# Names per operation, and per operation and kind of operand where an operation serves several families.
NAMES = {
    "Add": 840,
    "Sub": 1230,
    "Mul": 1530,
    "Saxpy": 210,
    "LComb": 150,
    "DotProduct": 150,
    "CrossProduct": 42,
    "L2Norm": 90,
    "FrobNorm": 90,
    "Trace": 90,
    "Gaxpy": 90,
    "Det": 90,
    "Invert": 90,
    "LUDecomp": 90,
    "LUBackSubst": 150,
    "CholeskyDecomp": 90,
    "CholeskyBackSubst": 150,
    "QRDecomp": 90,
    "QRBackSubst": 150,
    "Transpose": 90,
    "Copy": 36,
    "Extract": 30,
    "LoadIdentity": 6,
}
NAMES_PER_FAMILY = {
    "vector-add-sub": 630,
    "matrix-add-sub": 1440,
    "scaling": 270,
    "saxpy-lcomb": 360,
    "dot-product": 150,
    "cross-product": 42,
    "l2-norm": 90,
    "frobenius-norm": 90,
    "trace": 90,
    "matrix-vector-product": 420,
    "matrix-product": 840,
    "gaxpy": 90,
    "determinant": 90,
    "inverse": 90,
    "lu-decomposition": 90,
    "lu-back-substitution": 150,
    "cholesky-decomposition": 90,
    "cholesky-back-substitution": 150,
    "qr-decomposition": 90,
    "qr-back-substitution": 150,
    "transpose": 90,
    "copy": 36,
    "extract": 30,
    "identity": 6,
}

# Argument lists copied out by hand: the exceptions to the common order, and one of each layout.
LISTS = {
    "zelmAdd_vv_32f_P": "src1Table src1Shift src2Table src2Shift dstTable dstShift len",
    "zelmSub_cva_64f_4x1_S2": "src srcObjStride srcElemStride val dst dstObjStride dstElemStride count",
    "zelmAdd_vav_32f_LS2": "src1Table src1Shift src1ElemStride src2 src2ElemStride dstTable dstShift dstElemStride"
    " len count",
    "zelmAdd_vav_32f_PS2": "src1Table src1Shift src1ObjStride src2Table src2Shift dstTable dstShift dstObjStride len" " count",
    "zelmSub_vva_32f": "src1 src2 src2ObjStride dst dstObjStride len count",
    "zelmSub_mma_32f": "src1 src1RowStride src2 src2ObjStride src2RowStride dst dstObjStride dstRowStride width height"
    " count",
    "zelmMul_mac_32f_L": "srcTable srcShift srcRowStride val dstTable dstShift dstRowStride width height count",
    "zelmSaxpy_vva_32f_LS2": "src1 src1ElemStride scale src2Table src2Shift src2ElemStride dstTable dstShift"
    " dstElemStride len count",
    "zelmLComb_vv_64f_S2": "src1 src1ElemStride scale1 src2 src2ElemStride scale2 dst dstElemStride len",
    "zelmDotProduct_vava_32f_PS2": "src1Table src1Shift src1ObjStride src2Table src2Shift src2ObjStride dst len count",
    "zelmCrossProduct_vva_32f_3x1": "src1 src2 src2ObjStride dst dstObjStride count",
    "zelmFrobNorm_ma_32f_LS2": "srcTable srcShift srcRowStride srcElemStride width height dst count",
    "zelmTrace_m_64f_P": "srcTable srcShift n dst",
    "zelmMul_mava_32f_LS2": "src1Table src1Shift src1RowStride src1ElemStride src1Width src1Height src2Table src2Shift"
    " src2ElemStride src2Len dstTable dstShift dstElemStride count",
    "zelmMul_mma_32f_L": "src1 src1RowStride src1Width src1Height src2Table src2Shift src2RowStride src2Width"
    " src2Height dstTable dstShift dstRowStride count",
    "zelmMul_mm_32f_3x3": "src1 src1RowStride src2 src2RowStride dst dstRowStride",
    "zelmGaxpy_va_64f_PS2": "src1Table src1Shift src2Table src2Shift src2ObjStride src3Table src3Shift src3ObjStride"
    " dstTable dstShift dstObjStride width height count",
    "zelmLUDecomp_ma_32f_LS2": "srcTable srcShift srcRowStride srcElemStride pivotIndex dstTable dstShift dstRowStride"
    " dstElemStride n count",
    "zelmLUBackSubst_mva_32f_L": "src1 src1ObjStride src1RowStride pivotIndex src2Table src2Shift dstTable dstShift n" " count",
    "zelmLUBackSubst_mva_32f_6x6_PS2": "src1Table src1Shift pivotIndex src2Table src2Shift src2ObjStride dstTable"
    " dstShift dstObjStride count",
    "zelmCholeskyBackSubst_mva_32f": "src1 src1RowStride src2 src2ObjStride dst dstObjStride n count",
    "zelmQRBackSubst_mva_64f_S2": "src1 src1ObjStride src1RowStride src1ElemStride scratch src2 src2ObjStride"
    " src2ElemStride dst dstObjStride dstElemStride width height count",
    "zelmDet_ma_32f": "src srcObjStride srcRowStride n scratch dst count",
    "zelmDet_ma_32f_4x4": "src srcObjStride srcRowStride dst count",
    "a6_Det_m_32f_3x3": "src srcRowStride dst",
    "a6_Det_ma_64f_6x6": "src srcObjStride srcRowStride dst count",
    "a6_Det_ma_64f_5x5_L": "srcTable srcShift srcRowStride dst count",
    "zelmInvert_m_64f_P": "srcTable srcShift n scratch dstTable dstShift",
    "zelmTranspose_ma_32f_PS2": "srcTable srcShift srcObjStride width height dstTable dstShift dstObjStride count",
    "zelmCopy_ma_32f_PL": "srcTable srcShift srcObjStride dstTable dstShift dstRowStride dstElemStride width height" " count",
    "zelmExtract_ma_64f_LS2": "srcTable srcShift srcRowStride srcElemStride dst width height count",
    "zelmLoadIdentity_ma_32f_P": "dstTable dstShift dstObjStride width height count",
}

# Members that depart from their rows, by rank, as the sections on departures name them: 16 mama, 8 of rows and columns
# at another stride, 6 held by alignment, 4 mamT, 3 with elements of other places, 1 at another element stride, 2 copies,
# 4 extractions, 6 transposes in tables; 9 aligned stores, 4 with a count of 0, 12 that test other entries; 3 extractions,
# 10 products and 4 of vectors that test less; 1 in another order; 19 that read the
# invariant anew, 5 + 3 that read a matrix first, 2 products of every shape, 30 that round strides down.
RANKS = {"values": 50, "faults": 25, "tests": 17, "rounds": 1, "permits": 59}


class Grid(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        grid = json.loads((GENERATED / "zelm-grid.json").read_text())
        cls.functions, cls.kernels = grid["functions"], grid["kernels"]
        cls.by_name = {function["name"]: function for function in cls.functions + cls.kernels}

    def test_counts(self):
        self.assertEqual(len(self.functions), 5574)
        self.assertEqual(len(self.by_name), 5574 + 24, "a name stands twice")
        self.assertEqual(len({(f["operation"], f["descriptor"]) for f in self.functions}), 123)
        self.assertEqual(Counter(f["operation"] for f in self.functions), NAMES)
        self.assertEqual(Counter(f["family"] for f in self.functions), NAMES_PER_FAMILY)

    def test_version_is_that_of_the_header(self):
        header = (SOURCE / "include" / "zelm" / "version.h").read_text()
        parts = [re.search(rf"ZELM_VERSION_{part} (\d+)", header)[1] for part in ("MAJOR", "MINOR", "PATCH")]
        self.assertEqual(json.loads((GENERATED / "zelm-grid.json").read_text())["version"], ".".join(parts))

    def test_kernels(self):
        names = {
            f"a6_Det_{form}_{element_type}_{n}x{n}{layout}"
            for element_type in ("32f", "64f")
            for n in range(3, 7)
            for form, layout in (("m", ""), ("ma", ""), ("ma", "_L"))
        }
        self.assertEqual({kernel["name"] for kernel in self.kernels}, names)
        for kernel in self.kernels:
            returns = "a6_Det_m_" in kernel["name"] or kernel["name"].endswith("_L")
            self.assertEqual(kernel["result"], "int32_t" if returns else "void", kernel["name"])

    def test_argument_lists(self):
        for name, arguments in LISTS.items():
            self.assertEqual(" ".join(a["name"] for a in self.by_name[name]["arguments"]), arguments, name)

    def test_count_is_last(self):
        for function in self.functions:
            names = [a["name"] for a in function["arguments"]]
            is_array = "a" in function["descriptor"] or function["operation"] == "LoadIdentity"
            self.assertEqual("count" in names, is_array, function["name"])
            if is_array:
                self.assertEqual(names[-1], "count", function["name"])

    def test_a_size_removes_the_dimensions(self):
        for function in self.functions:
            dimensions = [a for a in function["arguments"] if a["kind"] == "dimension"]
            if function["size"]:
                self.assertEqual(dimensions, [], function["name"])
            elif function["operation"] != "CrossProduct":
                self.assertNotEqual(dimensions, [], function["name"])

    def test_every_departure_has_a_rank_and_the_first_ones_a_form_to_use_instead(self):
        ranks = Counter(f["rank"] for f in self.functions if "departure" in f)
        self.assertEqual(ranks, RANKS)
        for function in self.functions:
            self.assertEqual("rank" in function, "departure" in function or "bounds" in function, function["name"])
            rank, instead = function.get("rank"), function.get("instead")
            self.assertEqual(instead is not None, rank in ("values", "faults"), function["name"])
            if instead:
                self.check_instead(function, instead)

    def check_instead(self, function, instead):
        """The form to use is none that does the same, and takes expressions over the arguments of the member."""
        form = self.by_name[instead["name"]]
        self.assertNotIn("departure", form, function["name"])
        if instead["arguments"] is None:
            self.assertIn("copy", instead["note"])
            return
        self.assertEqual(len(instead["arguments"]), len(form["arguments"]), function["name"])
        own = {a["name"]: a["kind"] for a in function["arguments"]}
        own |= {f"{operand}Transposed": "table" for operand in ("src1", "src2", "dst")}
        for argument, expression in zip(form["arguments"], instead["arguments"]):
            if argument["kind"] in ("pointer", "table"):
                self.assertEqual(own[expression], argument["kind"], f"{function['name']}: {argument['name']}")

    def test_products_with_bounds_of_their_own(self):
        """All run-time forms with an operand transposed or src2 an array of matrices, but mmT's standard one."""
        bounds = {f["name"] for f in self.functions if "bounds" in f}
        expected = {
            f["name"]
            for f in self.functions
            if f["operation"] == "Mul"
            and "c" not in f["descriptor"]
            and not f["size"]
            and ("T" in f["descriptor"] or f["descriptor"].endswith("ma"))
        }
        self.assertEqual(bounds, expected - {"zelmMul_mmT_32f", "zelmMul_mmT_64f"})

    def test_exports_are_the_whole_grid(self):
        exports = (GENERATED / "exports.txt").read_text().split()
        self.assertEqual(len(exports), 5599)
        self.assertEqual(sorted(exports), sorted([*self.by_name, "zelmGetLibVersion"]))

    def test_headers_are_current(self):
        with tempfile.TemporaryDirectory() as directory:
            subprocess.run([sys.executable, SOURCE / "grid" / "generate.py", "headers", directory], check=True)
            for made in (Path(directory) / "zelm").iterdir():
                committed = SOURCE / "include" / "zelm" / made.name
                self.assertEqual(
                    made.read_text(),
                    committed.read_text(),
                    f"{committed.name} is out of date: run grid/generate.py headers include",
                )
                self.assertIn(f'#include "zelm/{made.name}"', (SOURCE / "include" / "zelm.h").read_text())


if __name__ == "__main__":
    unittest.main()
