#!/usr/bin/env python3
"""The recipes: each program compiles without a warning, gives NumPy's numbers, and is the one that its page shows.

    recipes_test.py SOURCE_DIR GENERATED_DIR LIBRARY FOLDER C_COMPILER CXX_COMPILER [FLAGS]
"""

import json
import os
import re
import shlex
import subprocess
import sys
import unittest
from pathlib import Path

SOURCE, GENERATED, LIBRARY, FOLDER = (Path(argument) for argument in sys.argv[1:5])
COMPILER, CXX_COMPILER, FLAGS = sys.argv[5], sys.argv[6], shlex.split(" ".join(sys.argv[7:]))
del sys.argv[1:]

RECIPES, PAGES = SOURCE / "examples" / "recipes", SOURCE / "docs" / "recipes"
BLOCK = re.compile(r"^```(\w+)\n(.*?)^```$", re.M | re.S)
LABEL = re.compile(r"^(\w+ \d+,? ?)+:")
NUMBER = re.compile(r"-?\d+(?:\.\d+)?(?:e[-+]\d+)?")


def names():
    return sorted(folder.name for folder in RECIPES.iterdir() if folder.is_dir())


def rows(text):
    """The numbers of each line of results: not those of statuses and of labels such as `face 0:`."""
    found = [[float(n) for n in NUMBER.findall(LABEL.sub("", line))] for line in text.splitlines() if "status" not in line]
    return [row for row in found if row]


class Recipes(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        FOLDER.mkdir(parents=True, exist_ok=True)
        cls.outputs = {name: cls.run_program(name, "c", [COMPILER, "-std=c99"]) for name in names()}
        cls.outputs_of_cpp = {
            name: cls.run_program(name, "cpp", [CXX_COMPILER, "-std=c++20", "-I", SOURCE / "cpp"]) for name in names()
        }

    @staticmethod
    def run_program(name, suffix, compiler):
        program = FOLDER / f"{name}-{suffix}"
        subprocess.run(
            [
                *compiler,
                *FLAGS,
                "-O1",
                "-Wall",
                "-Wextra",
                "-Wpedantic",
                "-Wconversion",
                "-Werror",
                "-I",
                SOURCE / "include",
                RECIPES / name / f"{name}.{suffix}",
                "-o",
                program,
                LIBRARY,
                "-lm",
            ],
            check=True,
        )
        return subprocess.run(
            [program], stdout=subprocess.PIPE, text=True, check=True, env=os.environ | {"LD_LIBRARY_PATH": str(LIBRARY.parent)}
        ).stdout

    def test_ten_and_more(self):
        self.assertGreaterEqual(len(names()), 10)

    def test_all_calls_give_their_formula_on_any_data(self):
        grid = json.loads((GENERATED / "zelm-grid.json").read_text())
        unsafe = {f["name"] for f in grid["functions"] if f.get("rank") in ("values", "faults") or "caution" in f}
        for name in names():
            source = re.sub(r"/\*.*?\*/", "", (RECIPES / name / f"{name}.c").read_text(), flags=re.S)
            self.assertEqual(set(re.findall(r"\bzelm\w+(?=\()", source)) & unsafe, set(), name)

    def test_numbers_are_numpys(self):
        for name, output in self.outputs.items():
            with self.subTest(recipe=name):
                stored = (RECIPES / name / "numbers.txt").read_text()
                expected = [[float(word) for word in line.split()] for line in stored.splitlines() if not line.startswith("#")]
                got = rows(output)
                self.assertEqual([len(row) for row in got], [len(row) for row in expected])
                digits = 1e-8 if "_64f_" in (RECIPES / name / f"{name}.c").read_text() else 1e-5
                for row, wanted in zip(got, expected):
                    for value, true in zip(row, wanted):
                        self.assertLessEqual(abs(value - true), digits * max(abs(true), 1e-3), f"{value} and not {true}")

    def test_cpp_prints_the_same_numbers(self):
        for name, output in self.outputs.items():
            with self.subTest(recipe=name):
                self.assertEqual(rows(self.outputs_of_cpp[name]), rows(output))

    def test_pages_show_these_programs_and_what_they_print(self):
        for name, output in self.outputs.items():
            with self.subTest(recipe=name):
                blocks = BLOCK.findall((PAGES / f"{name}.md").read_text())
                self.assertIn(("c", (RECIPES / name / f"{name}.c").read_text()), blocks)
                self.assertIn(("cpp", (RECIPES / name / f"{name}.cpp").read_text()), blocks)
                self.assertIn(("text", output), blocks)

    def test_every_recipe_is_in_the_index(self):
        index = (PAGES / "index.md").read_text()
        self.assertEqual(sorted(re.findall(r"\]\(([\w-]+)\.md\)", index)), names())
        self.assertEqual(sorted(page.stem for page in PAGES.glob("*.md") if page.stem != "index"), names())


if __name__ == "__main__":
    unittest.main()
