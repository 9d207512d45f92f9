#!/usr/bin/env python3
"""How many wrong kernels the tests notice: changes one line of a kernel at a time and runs the tests on the result.

    mutate.py [--build build/t7] [--count 250] [--seed 1] [--only FILE[:LINE]] [--thorough] [--list]

Needs a finished build. The work lies in BUILD/mutation: a copy of the kernels, and the library compiled without
optimisation. A mutation is compiled in the units that hold code of its line, so that the answer takes seconds; what
the conformance test (with a fifth of its usual cases) or the edge cases report, a crash and a timeout count as caught. Mutations
that don't compile, or that leave every object file as it was, don't count.
"""

import argparse
import json
import os
import random
import re
import shlex
import shutil
import subprocess
import sys
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
FOLDERS = ("frame", "elementwise", "vector", "products", "solvers", "movement")
COPIED = FOLDERS + ("include",)
TIMEOUT = 300  # seconds
CASES = 60
NAME = r"[A-Za-z_]\w*"

# (kind, pattern, what may stand there instead); the formatting tells an operator from a template's bracket.
CHANGES = (
    ("operator", r" \+ ", (" - ",)),
    ("operator", r" - ", (" + ",)),
    ("operator", r" \* ", (" + ", " / ")),
    ("operator", r" / ", (" * ",)),
    ("operator", r" % ", (" / ",)),
    ("operator", r" \+= ", (" -= ",)),
    ("operator", r" -= ", (" += ",)),
    ("operator", r" \*= ", (" += ",)),
    ("operator", r"(?<=[(= ])-(?=[A-Za-z(])", ("",)),
    ("comparison", r" < ", (" <= ", " > ")),
    ("comparison", r" <= ", (" < ",)),
    ("comparison", r" > ", (" >= ", " < ")),
    ("comparison", r" >= ", (" > ",)),
    ("comparison", r" == ", (" != ",)),
    ("comparison", r" != ", (" == ",)),
    ("comparison", r"!(?=[A-Za-z(])", ("",)),
    ("condition", r" && ", (" || ",)),
    ("condition", r" \|\| ", (" && ",)),
    ("constant", r"(?<![\w.<])\d+(?![\w.>])", ("+1", "-1")),
    ("dropped check", r"return (?:ZELM_ERR_\w+|status);", (";",)),
    ("dropped statement", rf"^\s+(?:store|storePack|copyElement|{NAME}(?:\.\w+)*\()[^;{{}}]*\);$", (";",)),
    ("exchange", rf"\(({NAME}), ({NAME})([,)])", (r"(\2, \1\3",)),
    ("exchange", r"\browStride\b", ("elemStride",)),
    ("exchange", r"\belemStride\b", ("rowStride",)),
    ("exchange", r"\bobjStride\b", ("rowStride",)),
    ("exchange", r"\bwidth\b", ("height",)),
    ("exchange", r"\bheight\b", ("width",)),
    ("exchange", r"\brow\b", ("column",)),
    ("exchange", r"\bcolumn\b", ("row",)),
    (
        "order of a sum",
        rf"\(({NAME}(?:\[[^][]*\])?) \+ ({NAME}(?:\[[^][]*\])?)\) \+ ({NAME}(?:\[[^][]*\])?)",
        (r"\1 + (\2 + \3)", r"(\1 + \3) + \2"),
    ),
)


@dataclass(frozen=True)
class Mutation:
    file: str
    line: int
    kind: str
    before: str
    after: str


def code_lines(path):
    """(number, text) of the lines that compute something."""
    for number, text in enumerate(path.read_text().splitlines(), 1):
        code = text.split("//")[0].rstrip()
        # Parameter lists of templates and unrolling are no arithmetic.
        if (
            code.strip()
            and not re.match(r"\s*(#|template|static_assert|using |namespace |struct |ZELM_INLINE [^=]*\)( const)? \{$)", code)
            and "__builtin_expect" not in code
        ):
            yield number, code


def mutations_of(path):
    file = str(path.relative_to(SOURCE))
    for number, code in code_lines(path):
        for kind, pattern, substitutes in CHANGES:
            for found in re.finditer(pattern, code):
                for substitute in substitutes:
                    if kind == "constant":
                        value = int(found[0]) + int(substitute)
                        new = str(value)
                        if value < 0:
                            continue
                    else:
                        new = found.expand(substitute)
                    after = code[: found.start()] + new + code[found.end() :]
                    if after != code:
                        yield Mutation(file, number, kind, code, after)


def choose(options):
    """Mutations of all kernels: each file has its share by its length, at least three, each line at most two."""
    draw = random.Random(options.seed)
    file, _, line = (options.only or "").partition(":")
    pools = {}
    for folder in FOLDERS:
        for path in sorted((SOURCE / folder).rglob("*.h")) + sorted((SOURCE / folder).rglob("*.cpp")):
            pool = [m for m in mutations_of(path) if m.file.startswith(file) and (not line or m.line == int(line))]
            draw.shuffle(pool)
            per_line = Counter()
            kept = []
            for mutation in pool:
                per_line[mutation.line] += 1
                if line or per_line[mutation.line] <= 2:
                    kept.append(mutation)
            if kept:
                pools[path] = kept
    lengths = {path: sum(1 for _ in code_lines(path)) for path in pools}
    total = sum(lengths.values())
    return {path: (pools[path], max(3, round(options.count * lengths[path] / total))) for path in pools}


def same_tree(a, b):
    files = [path.relative_to(a) for path in a.rglob("*") if path.is_file()]
    return all((b / file).exists() and (a / file).read_bytes() == (b / file).read_bytes() for file in files)


class Library:
    """The library without optimisation, and the units of it that a mutation changes."""

    def __init__(self, build):
        self.build, self.folder = build, build / "mutation"
        self.copy = self.folder / "source"
        self.is_current = self.copy.exists() and all(same_tree(SOURCE / name, self.copy / name) for name in COPIED)
        if not self.is_current:
            shutil.rmtree(self.folder, ignore_errors=True)
            for name in COPIED:
                shutil.copytree(SOURCE / name, self.copy / name)
        self.commands = {}
        for entry in json.loads((build / "compile_commands.json").read_text()):
            if not re.search(r"CMakeFiles/zelm(_objects)?\.dir/", entry["command"]):
                continue
            words = [w for w in shlex.split(entry["command"]) if w not in ("-O2", "-Werror") and not w.startswith("-W")]
            words = words[next(i for i, w in enumerate(words) if "g++" in Path(w).name) : words.index("-o")]
            words = [w.replace(str(SOURCE / "include"), str(self.copy / "include")) for w in words]
            words = [f"-I{self.copy}" if w == f"-I{SOURCE}" else w for w in words]
            source = Path(entry["file"])
            if build not in source.parents:
                source = self.copy / source.relative_to(SOURCE)
            name = re.sub(r"\W", "_", str(source.relative_to(build)))
            self.commands[name] = [*words, "-O0", "-g1", "-w", "-c", str(source), "-o"]

    def compile(self, names, folder, jobs=1):
        """True if all compile."""
        folder.mkdir(parents=True, exist_ok=True)

        def one(name):
            return (
                subprocess.run(
                    [*self.commands[name], str(folder / f"{name}.o"), "-MD"],
                    stdout=subprocess.DEVNULL,
                    stderr=subprocess.DEVNULL,
                ).returncode
                == 0
            )

        with ThreadPoolExecutor(jobs) as pool:
            return all(pool.map(one, names))

    def prepare(self, jobs):
        base, finished = self.folder / "base", self.folder / "finished"
        current = self.is_current and finished.exists()
        if not current and not self.compile(list(self.commands), base, jobs):
            sys.exit("the library does not compile")
        self.symbols = {name: self.symbols_of(base / f"{name}.o") for name in self.commands}
        if not current:
            if by := noticed(self, ["mutation_source_frame_version_cpp"], base):
                sys.exit(f"the unchanged library fails: {by}")
            lines = {name: sorted(self.lines_in(base / f"{name}.o")) for name in self.commands}
            finished.write_text(json.dumps(lines))
        self.lines = {name: set(map(tuple, lines)) for name, lines in json.loads(finished.read_text()).items()}
        self.includes = {name: (base / f"{name}.d").read_text() for name in self.commands}

    def lines_in(self, unit):
        """The (file, line) pairs that the unit holds code of."""
        dump = subprocess.run(["objdump", "--dwarf=decodedline", unit], stdout=subprocess.PIPE, text=True).stdout
        rows = (text.split() for text in dump.splitlines())
        return {(row[0], int(row[1])) for row in rows if len(row) > 2 and row[1].isdigit()}

    def units_of(self, mutation):
        """The units to compile, the cheapest first: those with code of the line or, if none has any, those that
        include the file."""
        base = Path(mutation.file).name
        with_code = [
            n
            for n in self.commands
            if (base, mutation.line) in self.lines[n] and str(self.copy / mutation.file) in self.includes[n]
        ]
        units = with_code or [n for n in self.commands if str(self.copy / mutation.file) in self.includes[n]]
        return sorted(units, key=lambda n: (self.folder / "base" / f"{n}.o").stat().st_size)

    def link(self, changed, folder, target, whole):
        """The changed units with what all units need, or with all others. False if that fails."""
        others = [n for n in self.commands if n not in changed and (whole or not n.startswith("generated_"))]
        objects = [folder / f"{n}.o" for n in changed]  # first: of an inline function the first definition is taken
        objects += [self.folder / "base" / f"{n}.o" for n in others]
        flags = [f for f in self.commands[changed[0]] if f in ("-m32", "-m64")] + ["-shared", "-nostdlib", "-Wl,-Bsymbolic"]
        target.parent.mkdir(parents=True, exist_ok=True)
        return (
            subprocess.run(
                ["g++", *flags, "-o", target, *objects], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
            ).returncode
            == 0
        )

    def names_in(self, units):
        """A filter for the conformance test: the functions that the units export, or that call them."""
        callers, before = set(units), set()
        while callers != before:
            before = set(callers)
            defined = set().union(*(self.symbols[unit][0] for unit in callers if not unit.startswith("generated_")))
            callers |= {unit for unit, (_, used) in self.symbols.items() if not defined.isdisjoint(used)}
        names = [
            name
            for unit in sorted(callers)
            for name in self.symbols[unit][0]
            if re.match("zelm[A-Z]|a6_", name) and name != "zelmGetLibVersion"
        ]
        return ":".join(f"Grid/Conformance.EqualsTheModel/{name}" for name in names)

    def symbols_of(self, unit):
        """(defined, used) names."""
        dump = subprocess.run(["nm", unit], stdout=subprocess.PIPE, text=True).stdout
        return set(re.findall(r" [TW] (\w+)", dump)), set(re.findall(r" U (\w+)", dump))


def fails(command, environment):
    try:
        done = subprocess.run(
            command, env=os.environ | environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=TIMEOUT
        )
        return done.returncode != 0
    except subprocess.TimeoutExpired:
        return True


def noticed(library, units, folder):
    """What notices the library with these units changed; None if nothing does, 'invalid' if it doesn't link."""
    target = folder / "lib" / next(library.build.glob("libzelm*.so")).name
    tests = library.build / "tests" / "conformance"
    environment = {"ZELM_LIBRARY_PATH": str(target), "LD_LIBRARY_PATH": str(target.parent)}
    names = library.names_in(units)
    # A unit without exports, such as the eliminations, has its callers all over the library.
    small = all(unit.startswith("generated_") for unit in units)
    if not library.link(units, folder, target, not small):
        return "invalid"
    filtered = f"--gtest_filter={names if 0 < len(names) < 100_000 else 'Grid/Conformance.*'}"  # an argument has 128 KB
    if fails([tests / "conformance", "--gtest_brief=1", "--gtest_fail_fast", f"--cases={CASES}", filtered], environment):
        return "conformance"
    if small and not library.link(units, folder, target, True):
        return "invalid"
    if fails([tests / "edge_cases", "--gtest_brief=1", "--gtest_fail_fast"], environment):
        return "edge cases"
    return None


def changed_units(library, units, folder):
    """The units whose code differs from the unchanged one."""
    return [n for n in units if stripped(folder / f"{n}.o") != stripped(library.folder / "base" / f"{n}.o")]


def stripped(path):
    copy = path.with_suffix(".stripped")
    subprocess.run(["objcopy", "--strip-debug", path, copy], check=True)
    return copy.read_bytes()


def sample(units, mutation):
    """Of each family the standard layout and another one, so that a line of the frame isn't compiled in all units."""
    draw = random.Random(str(mutation))
    draw.shuffle(units)
    chosen = {}
    for unit in units:
        family, layout = re.fullmatch(r"(.*?)(_standard|_S2|_PS2|_P|_LS2|_L|_[SPL]{2}|_S|)_cpp", unit).groups()
        chosen[family, layout == "_standard"] = unit
    return list(chosen.values())


def judge(library, mutation, everything):
    """'invalid', 'survived' or what caught it."""
    path, folder = library.copy / mutation.file, library.folder / "changed"
    original = path.read_text()
    lines = original.splitlines(keepends=True)
    lines[mutation.line - 1] = mutation.after + "\n"
    path.write_text("".join(lines))
    try:
        units = library.units_of(mutation)
        tried = False
        rest = units[4:] if everything else sample(units[4:], mutation)
        for batch in filter(None, (units[:1], units[1:4], rest)):
            if not library.compile(batch, folder):
                return "invalid"
            batch = changed_units(library, batch, folder)
            if batch:
                tried = True
                if by := noticed(library, batch, folder):
                    return by
        return "survived" if tried else "invalid"
    finally:
        path.write_text(original)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=Path, default=SOURCE / "build" / "t7")
    parser.add_argument("--count", type=int, default=250)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--only", help="a file or the beginning of its path, and perhaps a line")
    parser.add_argument("--thorough", action="store_true", help="try each mutation in every unit with code of its line")
    parser.add_argument("--list", action="store_true", help="show what could be tried, and try nothing")
    parser.add_argument("--jobs", type=int, default=1, help="for the first build")
    options = parser.parse_args()
    pools = choose(options)
    if options.list:
        for pool, _ in pools.values():
            for m in pool:
                print(f"{m.file}:{m.line}: {m.kind}: {m.before.strip()}  ->  {m.after.strip()}")
        return 0

    library = Library(options.build.resolve())
    library.prepare(options.jobs)
    table = {}
    for path, (pool, share) in pools.items():
        results = Counter()
        for m in pool:
            if sum(results.values()) - results["invalid"] >= share and not (options.only and ":" in options.only):
                break
            result = judge(library, m, options.thorough)
            results[result] += 1
            if result != "invalid":
                print(f"{result}: {m.file}:{m.line}: {m.kind}: {m.before.strip()}  ->  {m.after.strip()}", flush=True)
        table[path.relative_to(SOURCE)] = results
    total = Counter()
    for path, results in table.items():
        total += results
        print(f"{path}: {sum(results.values()) - results['invalid']} mutations, {results['survived']} survived")
    print(
        f"{sum(total.values()) - total['invalid']} mutations, {total['survived']} survived; caught by the conformance test "
        f"{total['conformance']}, by the edge cases alone {total['edge cases']}"
    )
    return 0


if __name__ == "__main__":
    sys.exit(main())
