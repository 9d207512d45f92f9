#!/usr/bin/env python3
"""The finder in a browser: every exported name is reached by what a person presses, and explains itself.

    finder_test.py [unittest options]    needs build/site/html, as site/build makes it

What is expected is read from the public headers and from the grammar of the names, as it is written here once more.
"""

import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

from browser import Browser

ROOT = Path(__file__).resolve().parents[2]
PAGE = ROOT / "build/site/html/finder.html"
CHUNK = 400

FORMULAS = {
    ("Add", "vv"): "x + y", ("Add", "vc"): "x + c", ("Sub", "vv"): "x − y", ("Sub", "vc"): "x − c", ("Sub", "cv"): "c − x",
    ("Mul", "vc"): "x · c", ("Saxpy", "vv"): "x · α + y", ("LComb", "vv"): "x · α + y · β", ("DotProduct", "vv"): "x · y",
    ("CrossProduct", "vv"): "x × y", ("L2Norm", "v"): "‖x‖", ("Add", "mm"): "A + B", ("Sub", "mm"): "A − B",
    ("Mul", "mc"): "A · c", ("FrobNorm", "m"): "‖A‖", ("Trace", "m"): "tr A", ("Mul", "mv"): "A · x", ("Gaxpy", "v"): "A · x + y",
    ("Mul", "mm"): "A · B", ("LUDecomp", "m"): "P·A = L·U", ("LUBackSubst", "mv"): "A·x = b (LU)",
    ("CholeskyDecomp", "m"): "A = L·Lᵀ", ("CholeskyBackSubst", "mv"): "A·x = b (LLᵀ)", ("QRDecomp", "m"): "A = Q·R",
    ("QRBackSubst", "mv"): "min ‖A·x − b‖", ("Invert", "m"): "A⁻¹", ("Det", "m"): "det A", ("Transpose", "m"): "Aᵀ",
    ("Copy", "v"): "x → y", ("Copy", "m"): "A → B", ("Extract", "v"): "x → packed", ("Extract", "m"): "A → packed",
    ("LoadIdentity", "m"): "A = I", ("a6_Det", "m"): "det A (kernel)",
}  # fmt: skip
NAME = re.compile(r"(?:zelm([A-Z][A-Za-z0-9]*?)|(a6_Det))_([vmcaT]+)_(32f|64f)(?:_([3-6]x[13-6]))?(?:_(\w+))?")
LETTERS = {"S": "S2", "P": "PS2", "L": "LS2"}

# What words must lead to: the words of several people's libraries, and of people who know none.
WORDS = {
    "normalize": "x · c", "vector length": "‖x‖", "solve": "A·x = b (LU)", "dgetrf": "P·A = L·U", "DGETRS": "A·x = b (LU)",
    "dpotrf": "A = L·Lᵀ", "point cloud": "A · x + y", "rotate a point cloud": "A · x", "translate points": "x + y",
    "rigid motion": "A · x + y", "matmul": "A · B", "batched gemm": "A · B", "chain of poses": "A · B",
    "inverse": "A⁻¹", "inv": "A⁻¹", "lstsq": "min ‖A·x − b‖", "least squares fit": "min ‖A·x − b‖", "lerp": "x · α + y · β",
    "dot product": "x · y", "inner product": "x · y", "triangle normal": "x × y", "torque": "x × y", "axpy": "x · α + y",
    "eye": "A = I", "swapaxes": "Aᵀ", "gather": "x → y", "AoS to SoA": "x → y", "kalman gain": "A·x = b (LLᵀ)",
    "covariance": "A = L·Lᵀ", "whitening": "A = L·Lᵀ", "A*B": "A · B", "A x + y": "A · x + y", "handedness": "det A",
    "distance": "‖x‖", "negate": "c − x", "cholesky": "A = L·Lᵀ", "backslash": "A·x = b (LU)", "pack": "x → packed",
    "np.linalg.solve": "A·x = b (LU)", "cblas_daxpy": "x · α + y", "glm::inverse": "A⁻¹", "colPivHouseholderQr": "A = Q·R",
    "many right-hand sides": "A·x = b (LU)", "kinetic energy": "x · y", "signed volume": "det A",
    "scale a matrix": "A · c", "trace": "tr A", "frobenius": "‖A‖", "subtract the mean": "x − y",
}  # fmt: skip


def declarations():
    """Every exported name with its declaration, as the public headers have it, in one line."""
    found = {"zelmGetLibVersion": "const ZelmLibVersion *zelmGetLibVersion(void);"}
    for header in sorted((ROOT / "include/zelm").glob("*.h")):
        for text in re.findall(r"^ZELM_API ([^;]*\b(?:zelm[A-Z]|a6_)\w+\([^;]*)\)", header.read_text(), re.M):
            text = re.sub(r"\s+", " ", text.split(")")[0]) + ");"
            name = re.search(r"\b((?:zelm[A-Z]|a6_)\w+)\(", text)[1]
            found.setdefault(name, text)
    return found


def pressed(name):
    """What a person presses for a name: question and visible label, in their order."""
    if name == "zelmGetLibVersion":
        return [["want", "version"]]
    operation, kernel, descriptor, element_type, size, layout = NAME.fullmatch(name).groups()
    operation = operation or kernel
    plain = re.sub("[aT]", "", descriptor)
    out = [["want", FORMULAS[operation, plain]], ["many", many_label(operation, descriptor)]]
    out += [["transposed", symbol] for symbol in transposed_symbols(descriptor)]
    if operation == "Copy":
        out += [["source", LETTERS[layout[0]]], ["target", LETTERS[layout[1]]]]
    else:
        out.append(["layout", LETTERS[layout] if operation == "LoadIdentity" else layout or "standard"])
    out.append(["type", {"32f": "float", "64f": "double"}[element_type]])
    out.append(["size", size.replace("x", "×") if size else "any"])
    return out


def operands(operation, descriptor):
    letters = {"v": ["b"] if operation.endswith("BackSubst") else ["x", "y"], "m": ["A", "B"], "c": ["c"]}
    return [(kind, letters[kind[0]].pop(0)) for kind in re.findall("[vmc]a?T?", descriptor)]


def many_label(operation, descriptor):
    if operation == "Gaxpy":
        return {"v": "one A, one x, one y", "va": "one A for all, many x and y"}[descriptor]
    array = "a" in descriptor
    parts = [
        f"many {symbol}" if "a" in kind else f"one {symbol}" + " for all" * array
        for kind, symbol in operands(operation, descriptor)
        if kind != "c"
    ]
    return ", ".join(parts)


def transposed_symbols(descriptor):
    return [f"{symbol}ᵀ" for kind, symbol in operands("", descriptor) if kind.endswith("T")]


# Presses what is asked for, by the labels that a person sees; false where there is no such label.
PRESS = """
function visible(field) {
    return [...document.querySelectorAll(`#${field} input`)].filter((input) => input.type !== "text");
}
function label(input) { return input.parentElement.querySelector("strong").textContent; }
function press(steps) {
    const transposed = steps.filter(([field]) => field === "transposed").map(([, text]) => text);
    for (const [field, text] of steps.filter(([field]) => field !== "transposed")) {
        const inputs = visible(field).filter((input) => input.type === "radio" && label(input) === text);
        if (inputs.length !== 1 || document.getElementById(field).hidden) { return `${field}: ${inputs.length} of ${text}`; }
        if (!inputs[0].checked) { inputs[0].click(); }
        if (field === "many") {
            for (const box of visible("many").filter((input) => input.type === "checkbox")) {
                if (box.checked !== transposed.includes(label(box))) { box.click(); }
            }
        }
    }
    return document.getElementById("name").textContent;
}
return arguments[0].map(press);
"""

# Pastes each name and reads what the page says of it.
EXPLAIN = """
const query = document.getElementById("query"), result = document.getElementById("result");
function code(label) { return result.querySelector(`pre[aria-label="${label}"]`)?.textContent ?? ""; }
return arguments[0].map((name) => {
    query.value = `status = ${name}(a, b);`;
    document.getElementById("ask").requestSubmit();
    return { name: document.getElementById("name").textContent, text: result.textContent, call: code("The call"),
        data: code("The data"), declaration: code("The declaration"), instead: code("The call to use instead"),
        warned: Boolean(document.getElementById("departure")), parts: [...result.querySelectorAll("dt")].map((dt) => dt.textContent) };
});
"""


def in_chunks(driver, script, items):
    out = []
    for start in range(0, len(items), CHUNK):
        out += driver.execute_script(script, items[start : start + CHUNK])
    return out


def compiled_function(number, told, call):
    """A C function around a call and its data."""
    used = "" if told["name"].startswith("a6_Det_ma") and "status" not in call else "(void)status;"
    if told["name"] == "zelmGetLibVersion":
        used = "(void)version;"
    return f"void f{number}(void);\nvoid f{number}(void)\n{{\n{told['data']}\n{call}\n{used}\n}}\n"


class Finder(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.declared = declarations()
        cls.names = sorted(cls.declared)
        cls.browser = Browser()
        cls.driver = cls.browser.driver
        cls.driver.get(PAGE.as_uri())
        cls.told = in_chunks(cls.driver, EXPLAIN, cls.names)

    @classmethod
    def tearDownClass(cls):
        errors = [entry["message"] for entry in cls.driver.get_log("browser")]
        cls.browser.__exit__()
        assert not errors, errors

    def test_the_headers_have_all_names(self):
        self.assertEqual(len(self.names), 5599)

    def test_every_name_is_reached_by_choices(self):
        reached = in_chunks(self.driver, PRESS, [pressed(name) for name in self.names])
        wrong = [(name, got) for name, got in zip(self.names, reached) if name != got]
        self.assertEqual(wrong[:5], [])

    def test_every_name_explains_itself(self):
        for name, told in zip(self.names, self.told):
            self.assertEqual(told["name"], name)
            self.assertEqual(told["declaration"], self.declared[name])
            self.assertNotRegex(told["text"], r"undefined|\[object", name)
            self.assertNotIn("NaN", told["call"] + told["data"] + told["instead"], name)
            match = NAME.fullmatch(name)
            if match:
                _, _, descriptor, element_type, size, layout = match.groups()
                self.assertEqual(told["parts"][1:], [descriptor, element_type, size or "–", layout or "–"], name)

    def test_departures_are_told(self):
        """Those that the headers mark, and no other."""
        marked = set()
        for header in (ROOT / "include/zelm").glob("*.h"):
            marked |= set(
                re.findall(
                    r"Departs from its row(?:(?!\*/)[\s\S])*\*/\s*(?:ZELM_\w+(?:\([^;]*?\))?\s+)*ZelmStatus (\w+)\(",
                    header.read_text(),
                )
            )
        told = {told["name"] for told in self.told if told["warned"]}
        self.assertGreater(len(marked), 100)
        self.assertLessEqual(marked, told)
        for told in self.told:
            if told["name"] in marked:
                self.assertIn("⚠", told["text"], told["name"])

    def test_the_calls_compile(self):
        """Every call with the data that the page shows, without a warning; and so does every call to use instead."""
        out = ["#include <zelm.h>\n"]
        for told in self.told:
            for call in filter(None, (told["call"], told["instead"])):
                out.append(compiled_function(len(out), told, call))
        self.assertGreaterEqual(len(out), 5600)
        with tempfile.TemporaryDirectory() as folder:
            source = Path(folder, "calls.c")
            source.write_text("".join(out))
            flags = ["-std=c11", "-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Werror", "-Wno-attribute-warning"]
            run = subprocess.run(
                ["gcc", *flags, "-DZELM_NO_DEPARTURE_WARNINGS", "-fsyntax-only", f"-I{ROOT}/include", source],
                capture_output=True,
                text=True,
            )
        self.assertEqual(run.returncode, 0, run.stderr[:3000])

    def test_words_lead_to_wants(self):
        """What is wanted is among the first three answers."""
        for words, wanted in WORDS.items():
            self.type(words)
            answers = [e.text.split("\n")[0] for e in self.driver.find_elements(By.CSS_SELECTOR, "#answers button strong")]
            self.assertIn(wanted, answers[:3], words)

    def test_words_choose_type_and_size(self):
        self.type("zelmDet_m_32f_3x3")
        self.type("inverse of 4x4 double")
        self.assertEqual(self.name(), "zelmInvert_m_64f_4x4")
        self.type("cross product of float")
        self.assertRegex(self.name(), "zelmCrossProduct_.*_32f_3x1")

    def test_a_name_that_is_none(self):
        self.type("zelmMul_mama_64f_4x5")
        answers = [e.text for e in self.driver.find_elements(By.CSS_SELECTOR, "#answers button")]
        self.assertIn("zelmMul_mama_64f_4x4", answers)
        self.type("qwertz")
        self.assertIn("Nothing found", self.driver.find_element(By.ID, "answers").text)

    def test_own_data_fills_the_call(self):
        self.type("zelmMul_mav_64f_3x3")
        self.fill("src1", "bodies[k].pose[i][j]")
        self.fill("count", "n")
        call = self.call()
        self.assertIn("&bodies[0].pose[0][0], sizeof bodies[0], sizeof bodies[0].pose[0],", call)
        self.assertIn("n);", call)
        self.type("zelmAdd_vac_32f_3x1_P")
        self.fill("src", "px[k], py[k], pz[k]")
        self.assertIn("{&px[0], &py[0], &pz[0]}", self.call())

    def test_data_that_do_not_fit_are_named(self):
        self.type("zelmAdd_vava_32f_3x1")
        for text, complaint in (
            ("p[k].x[j].value", "adjacent"),
            ("list[k]->x[j]", "choose L"),
            ("p[j]", "One for all"),
            ("p[k][j]", ""),
        ):
            self.fill("src1", text)
            said = self.driver.find_element(By.ID, "complaint-src1").text
            self.assertTrue(complaint in said if complaint else said == "", (text, said))

    def test_keys_alone_are_enough(self):
        self.driver.get(PAGE.as_uri() + "#zelmAdd_vava_32f_3x1")
        self.driver.refresh()
        self.driver.execute_script("document.querySelector('#want input:checked').focus()")
        self.active().send_keys(Keys.ARROW_RIGHT)
        self.assertEqual(self.name(), "zelmAdd_vac_32f_3x1")
        for expected, key in (("many", Keys.ARROW_LEFT), ("layout", Keys.ARROW_RIGHT), ("type", Keys.ARROW_RIGHT)):
            self.active().send_keys(Keys.TAB)
            self.assertEqual(self.active().get_attribute("name"), expected)
            self.active().send_keys(key)
        self.assertEqual(self.name(), "zelmAdd_vc_64f_3x1_S2")

    def test_it_fits_a_narrow_screen(self):
        for width in (360, 768, 1400):
            with Browser(width=width) as driver:
                driver.get(PAGE.as_uri() + "#zelmMul_mama_64f_4x4")
                driver.execute_script("document.documentElement.style.width = arguments[0] + 'px'", width)
                self.assertLessEqual(driver.execute_script("return document.body.scrollWidth"), width)

    def test_dark_where_the_reader_wants_it(self):
        ground = "return getComputedStyle(document.body).backgroundColor"
        light = self.driver.execute_script(ground)
        self.driver.find_element(By.ID, "theme").click()
        self.assertNotEqual(self.driver.execute_script(ground), light)
        self.driver.find_element(By.ID, "theme").click()
        self.assertEqual(self.driver.execute_script(ground), light)

    def type(self, text):
        query = self.driver.find_element(By.ID, "query")
        query.clear()
        query.send_keys(text, Keys.ENTER)

    def fill(self, operand, text):
        field = self.driver.find_element(By.CSS_SELECTOR, f"#data input[name={operand}]")
        field.clear()
        field.send_keys(text)

    def name(self):
        return self.driver.find_element(By.ID, "name").text

    def call(self):
        return self.driver.find_element(By.CSS_SELECTOR, "pre[aria-label='The call']").text

    def active(self):
        return self.driver.switch_to.active_element


if __name__ == "__main__":
    unittest.main(argv=sys.argv)
