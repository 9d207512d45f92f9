"""The library with the mutations of one subsystem in it, and what its functions' runs come by."""

import hashlib
import json
import os
import random
import re
import shlex
import subprocess
import threading
from pathlib import Path

from changes import mutations_of
from switches import can_be_tried, switched

SOURCE = Path(__file__).resolve().parents[2]
HERE = Path(__file__).resolve().parent
SUBSYSTEMS = ("frame", "elementwise", "movement", "vector", "products", "solvers")
CASES = 60
DEFINITION = re.compile(r"^ZelmStatus (zelm\w+)\(.*?^}\n", re.M | re.S)


def call(command, **options):
    return subprocess.run([str(word) for word in command], text=True, **options)


def files_of(subsystem):
    return [p for p in sorted((SOURCE / subsystem).rglob("*")) if p.suffix in (".h", ".cpp")]


def all_mutations(subsystem):
    return [m for p in files_of(subsystem) for m in mutations_of(str(p.relative_to(SOURCE)), p.read_text())]


class Switched:
    """One subsystem's mutations, or only those with these names, switched, in a sample of the functions that it serves."""

    def __init__(self, build, subsystem, per_unit, seed, only=None):
        self.build, self.subsystem = build, subsystem
        self.folder = build / "mutation" / (subsystem if only is None else subsystem + "-again")
        self.is_again = only is not None
        self.copy = self.folder / "source"
        self.draw = random.Random(f"{seed} {subsystem}")
        self.per_unit = per_unit
        self.mutations = {number: m for number, m in enumerate(all_mutations(subsystem), 1) if only is None or m.name in only}
        self.commands, self.base = {}, {}
        for entry in json.loads((build / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            output = words[words.index("-o") + 1]
            if re.match(r"CMakeFiles/zelm(_objects)?\.dir/", output):
                self.commands[Path(entry["file"])] = self.without_optimisation(words, output)
                self.base[Path(entry["file"])] = build / output

    def without_optimisation(self, words, output):
        words = [w for w in words[: words.index("-o")] if w not in ("-O2", "-Werror") and not w.startswith("-W")]
        words = words[next(i for i, w in enumerate(words) if "g++" in Path(w).name) :]
        return [
            words[0],
            f"-I{self.copy}",
            *words[1:],
            "-O0",
            # A place outside of an array is a crash.
            "-fsanitize=bounds-strict",
            "-fsanitize-undefined-trap-on-error",
            "-w",
            "-fmax-errors=0",
            "-fdiagnostics-plain-output",
            "-include",
            str(HERE / "mutant.h"),
        ]

    def sample(self):
        """{family: chosen functions}: some of each layout, and departing members, which have code of their own. The
        frame, which serves all, is tried in two families of each subsystem. What is tried again comes in all families,
        and in all functions that the tests by name call."""
        by_name = self.called_by_name() if self.is_again else set()
        grid = json.loads((self.build / "generated" / "zelm-grid.json").read_text())["functions"]
        chosen = {}
        for subsystem in sorted({f["subsystem"] for f in grid}) if self.subsystem == "frame" else (self.subsystem,):
            families = sorted({f["family"] for f in grid if f["subsystem"] == subsystem})
            if self.subsystem == "frame" and not self.is_again:
                families = self.draw.sample(families, 2)
            share = max(1, self.per_unit // 3) if self.subsystem == "frame" else self.per_unit
            for family in families:
                members = [f for f in grid if f["family"] == family]
                picked = {f["name"] for f in members} & by_name
                for layout in sorted({f["layout"] for f in members}):
                    for departs, most in ((False, share), (True, share // 2)):
                        names = [f["name"] for f in members if f["layout"] == layout and ("departure" in f) == departs]
                        picked |= set(self.draw.sample(names, min(most, len(names))))
                chosen[family] = sorted(picked)
        return chosen

    def called_by_name(self):
        program = self.build / "tests" / "conformance" / "edge_cases"
        listed = call(["nm", "-D", "--undefined-only", program], check=True, stdout=subprocess.PIPE).stdout
        return set(re.findall(r"\bU (zelm\w+)", listed))

    def sources(self, chosen):
        """The sources to compile: of each family the chosen definitions, and the subsystem's own files."""
        (self.folder / "units").mkdir(parents=True, exist_ok=True)
        result = {}
        for family, names in chosen.items():
            head, bodies = [], []
            for path in sorted((self.build / "generated").glob(f"{family.replace('-', '_')}_*.cpp")):
                text = path.read_text()
                head += [line for line in text.splitlines() if re.match("#include|using", line) and line not in head]
                bodies += [found[0] for found in DEFINITION.finditer(text) if found[1] in names]
                command = self.commands[path]
            unit = self.folder / "units" / f"{family}.cpp"
            write(unit, "\n".join(sorted(head, key=lambda line: line[0] != "#")) + "\n\n" + "\n".join(bodies))
            result[unit] = command
        for path in files_of(self.subsystem):
            if path.suffix == ".cpp" and path in self.commands and path.name not in ("memory.cpp", "compiler_flags.cpp"):
                result[self.copy / path.relative_to(SOURCE)] = self.commands[path]
        return result

    def write_switched(self, numbers):
        """The subsystem's files with switches; the lines of each."""
        lines = {}
        for path in files_of(self.subsystem):
            file = str(path.relative_to(SOURCE))
            text = path.read_text()
            here = [(n, self.mutations[n]) for n in sorted(numbers) if self.mutations[n].file == file]
            target = self.copy / file
            target.parent.mkdir(parents=True, exist_ok=True)
            changed, lines[file] = switched(text, here)
            write(target, self.with_plain_functions(changed))
        memory = SOURCE / "frame" / "memory.h"
        if self.subsystem != "frame":
            (self.copy / "frame").mkdir(exist_ok=True)
            write(self.copy / "frame" / "memory.h", self.with_plain_functions(memory.read_text()))
        return lines

    def with_plain_functions(self, text):
        """Without forced inlining, which multiplies what there is to compile. 32-bit float needs it where functions
        return in an x87 register."""
        is_t7 = "-m32" in next(iter(self.commands.values()))
        return (
            text
            if is_t7
            else text.replace("#define ZELM_INLINE inline __attribute__((always_inline))", "#define ZELM_INLINE inline")
        )

    def prepare(self, log=print):
        """Compiles, if that wasn't done already. What the compiler refuses is taken out, until it refuses nothing."""
        self.target = self.folder / "lib" / next(self.build.glob("libzelm*.so")).name
        chosen = self.sample()
        self.names = sorted(name for names in chosen.values() for name in names)
        prepared = self.folder / "prepared.json"
        digest = self.digest()
        if prepared.exists() and (made := json.loads(prepared.read_text()))["digest"] == digest:
            self.switched = set(made["switched"])
            return
        sources = self.sources(chosen)
        numbers = {n for n, m in self.mutations.items() if can_be_tried(m.before)}
        lines = self.write_switched(numbers)
        for unit, command in sources.items():
            while errors := self.compile(unit, command):
                refused = self.blamed(errors, lines)
                if not refused:
                    raise RuntimeError(f"{unit}:\n{errors[:3000]}")
                log(f"{self.subsystem}: {unit.name}: {len(refused)} mutations can't be switched", flush=True)
                numbers -= refused
                lines = self.write_switched(numbers)
        self.switched = {n for by_line in lines.values() for s in by_line.values() for n in s}
        self.link([self.object_of(unit) for unit in sources])
        prepared.write_text(json.dumps({"digest": digest, "switched": sorted(self.switched)}))

    def digest(self):
        """Of all that the compiled library follows from."""
        parts = [p.read_bytes() for folder in SUBSYSTEMS for p in files_of(folder)]
        parts += [p.read_bytes() for p in sorted(HERE.glob("*.*")) if p.name in ("changes.py", "switches.py")]
        return hashlib.sha256(b"".join(parts) + repr((self.names, sorted(self.mutations))).encode()).hexdigest()

    def object_of(self, unit):
        return self.folder / "objects" / (re.sub(r"\W", "_", str(unit.relative_to(self.folder))) + ".o")

    def compile(self, unit, command):
        """None, or the errors."""
        target = self.object_of(unit)
        target.parent.mkdir(parents=True, exist_ok=True)
        done = call([*command, "-c", unit, "-o", target], stderr=subprocess.PIPE)
        return done.stderr if done.returncode else None

    def blamed(self, errors, lines):
        """The mutations that the compiler's messages point at: the arm of a switch, otherwise its whole line."""
        refused = set()
        for suffix in (r":(\d+):(\d+): error:", r":(\d+):(\d+):"):
            pattern = rf"^(?:In file included from )?{re.escape(str(self.copy))}/(\S+?){suffix}"
            for file, line, column in set(re.findall(pattern, errors, re.M)):
                text = (self.copy / file).read_text().splitlines()[int(line) - 1]
                refused |= arms_at(text, int(column) - 1) or lines.get(file, {}).get(int(line), set())
            if refused:
                break
        return refused

    def link(self, objects):
        self.target.parent.mkdir(parents=True, exist_ok=True)
        state = self.folder / "mutant.o"
        flags = [w for w in next(iter(self.commands.values())) if w in ("-m32", "-m64")]
        call(["g++", *flags, "-fPIC", "-c", HERE / "mutant.cpp", "-o", state], check=True)
        # The first of several definitions is taken.
        others = [path for path in self.base.values()]
        call(["g++", *flags, "-shared", "-Wl,-z,muldefs", "-o", self.target, *objects, state, *others], check=True)

    def judge(self, mode, cases, text, on_line):
        environment = os.environ | {"ZELM_LIBRARY_PATH": str(self.target)}
        command = [self.build / "tests" / "mutation" / "mutation_judge", mode, str(cases)]
        with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, env=environment) as process:
            feeder = threading.Thread(target=lambda: (process.stdin.write(text), process.stdin.close()), daemon=True)
            feeder.start()
            for line in process.stdout:
                on_line(line.split())
        if process.returncode:
            raise RuntimeError(f"judge {mode} ended with {process.returncode}")

    def reach(self):
        """{mutation: the functions that come by it}"""
        reached = {}

        def note(words):
            for number in words[1:]:
                reached.setdefault(int(number), []).append(words[0])

        self.judge("reach", 20, "".join(f"{name}\n" for name in self.names), note)
        return reached


def arms_at(text, column):
    """The mutations whose changed expression lies at a column of a switched line."""
    result = set()
    for found in re.finditer(r"zelmMutated\((\d+)\) \? \(", text):
        depth, end = 1, found.end()
        while depth and end < len(text):
            depth += (text[end] == "(") - (text[end] == ")")
            end += 1
        if found.end() - 1 <= column < end:
            result.add(int(found[1]))
    return result


def write(path, text):
    if not path.exists() or path.read_text() != text:
        path.write_text(text)
