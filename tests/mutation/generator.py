"""Mutations of the generator: what it writes is compared, then read by the tests of the grid.

A mutation that changes a committed file (the headers, the page of departures) is noticed by the tests that compare those.
One that changes the generated sources alone is compiled, the units it changed, and run against the model.
"""

import random
import re
import shutil
import subprocess
import sys
from pathlib import Path

from build import DEFINITION, SOURCE, Switched, call, write
from changes import mutations_of

FILES = ("catalogue.py", "departures.py", "generate.py", "page.py")
SECONDS = 300  # of a machine that has other work too

# Headers, page and sources in turn, in one process.
STAGES = """
import sys
from pathlib import Path
sys.path.insert(0, sys.argv[1])
import generate
made, right = Path(sys.argv[2]), Path(sys.argv[3])
def contents(folder):
    return {p.relative_to(folder): p.read_bytes() for p in folder.rglob('*') if p.is_file()}
for part, target in (('headers', 'headers'), ('page', 'page/page.md'), ('build', 'build')):
    (made / part).mkdir(parents=True)
    if generate.main([part, str(made / target)]):
        sys.exit(1)
    if made != right and contents(made / part) != contents(right / part):
        print(part)
        break
"""


def all_mutations():
    return [m for name in FILES for m in mutations_of(f"grid/{name}", (SOURCE / "grid" / name).read_text())]


class Generator:
    def __init__(self, build):
        self.build, self.folder = build, build / "mutation" / "grid"
        self.grid = self.folder / "grid"
        shutil.rmtree(self.folder, ignore_errors=True)
        shutil.copytree(SOURCE / "grid", self.grid, ignore=shutil.ignore_patterns("__pycache__"))
        (self.folder / "include" / "zelm").mkdir(parents=True)
        shutil.copy(SOURCE / "include" / "zelm" / "version.h", self.folder / "include" / "zelm")
        self.one = Switched(build, "grid", 1, 1)  # for its commands
        if self.generate("right") == "generator":
            raise RuntimeError("the unchanged generator fails")

    def generate(self, name):
        """What follows from the catalogue, into a folder, up to the first part that isn't right; that part's name, or
        "generator" if the generator fails, or nothing."""
        shutil.rmtree(self.folder / name, ignore_errors=True)
        try:
            done = call(
                [sys.executable, "-B", "-c", STAGES, self.grid, self.folder / name, self.folder / "right"],
                stdout=subprocess.PIPE,
                stderr=subprocess.DEVNULL,
                timeout=SECONDS,
            )
        except subprocess.TimeoutExpired:
            return "generator"
        return "generator" if done.returncode else done.stdout.strip()

    def judge(self, mutation):
        path = self.grid / Path(mutation.file).name
        text = path.read_text()
        path.write_text(text[: mutation.start] + mutation.text + text[mutation.end :])
        try:
            part = self.generate("wrong")
            return self.noticed() if part == "build" else part or "same output"
        finally:
            path.write_text(text)

    def noticed(self):
        """Of changed sources; tests/grid and tests/departures compare headers and page with the committed ones."""
        right, wrong = (
            {path.name: path.read_bytes() for path in (self.folder / made / "build").iterdir()} for made in ("right", "wrong")
        )
        changed = {name for name in right.keys() | wrong.keys() if right.get(name) != wrong.get(name)}
        test = call(
            [sys.executable, "-B", SOURCE / "tests" / "grid" / "grid_test.py", SOURCE, self.folder / "wrong" / "build"],
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        if test.returncode:
            return "grid"
        if any(re.search(r"grid_table\.|exports|sources", name) for name in changed):
            return "build"  # the table doesn't compile, or the names aren't those of the headers
        units = sorted(name for name in changed if name.endswith(".cpp"))
        return self.run_units(units) if units else "survived"

    def run_units(self, units):
        """The functions whose definitions changed, up to two of each unit, against the model."""
        names, objects = [], []
        for unit in units[:6]:
            right, wrong = (
                {found[1]: found[0] for found in DEFINITION.finditer((self.folder / made / "build" / unit).read_text())}
                for made in ("right", "wrong")
            )
            if wrong.keys() != right.keys():
                return "build"
            different = [name for name in wrong if code_of(wrong[name]) != code_of(right[name])]
            if not different:
                continue
            chosen = random.Random(unit).sample(different, min(3, len(different)))
            head = (self.folder / "wrong" / "build" / unit).read_text().split("\nZelmStatus")[0]
            source = self.folder / "units" / unit
            source.parent.mkdir(exist_ok=True)
            write(source, head + "\n" + "\n".join(wrong[name] for name in chosen))
            target = source.with_suffix(".o")
            command = self.one.commands[self.build / "generated" / unit]
            if call([*command, "-c", source, "-o", target], stderr=subprocess.DEVNULL).returncode:
                return "build"
            names += chosen
            objects.append(target)
        if not names:
            return "same code"
        self.one.folder, self.one.target = self.folder, self.folder / "lib" / "libwrong.so"
        self.one.link(objects)
        results = []
        self.one.judge("try", 300, f"0 {' '.join(names)}\n", results.append)
        return results[0][1]


def code_of(text):
    return re.sub(r"//[^\n]*\n|\s+", "", text)
