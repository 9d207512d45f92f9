#!/usr/bin/env python3
"""How many wrong kernels and wrong catalogues the tests notice: changes one place of a source at a time.

    mutate.py run [SUBSYSTEM...] [--build build/x64] [--count N] [--minutes M] [--per-unit 2] [--seed 1]
    mutate.py run --again [SUBSYSTEM...]   only survivors that the list has as untested or doesn't have, in more functions
    mutate.py prepare [SUBSYSTEM...]   only compiles what a run needs
    mutate.py report              the counts so far, survivors that the list doesn't have, listed ones that are killed now
    mutate.py list SUBSYSTEM      what could be tried

Needs a finished build. A run may be stopped at any time, and goes on where it was stopped: its results lie in
BUILD/mutation/state/, until a source of the subsystem changes. README.md says how it works.
"""

import argparse
import hashlib
import json
import random
import re
import os
import sys
import time
from pathlib import Path

sys.dont_write_bytecode = True

import generator
import survivors
from build import CASES, SOURCE, SUBSYSTEMS, Switched, all_mutations, call, files_of

EVERYTHING = (*SUBSYSTEMS, "grid")
MORE_CASES = 600
AGAIN = "-again"  # the state of what was tried with more functions has a name of its own
# The suites of the edge cases that call a subsystem's functions, beside those of all array forms.
EDGE_CASES = {
    "frame": "*",
    "elementwise": "*AddSub*:*Scaling*:*Saxpy*:*LComb*:*Addressing*:*Checks*:*Vector*:*Matrix*",
    "movement": "*Copy*:*Extract*:*LoadIdentity*:*Movement*:*Transpose*:*Planes*",
    "vector": "*Dot*:*Cross*:*Norm*:*Trace*:*Vector*",
    "products": "*Product*:*Gaxpy*:*Matrix*",
    "solvers": "*LU*:*Lu*:*QR*:*Qr*:*Cholesky*:*Invers*:*Invert*:*Det*",
}


class State:
    """What was found, a file for each subsystem, so that several may run at once."""

    def __init__(self, build):
        self.folder = build / "mutation" / "state"
        self.all = {p.stem: json.loads(p.read_text()) for p in self.folder.glob("*.json")}

    def results(self, part):
        """{key: result}, empty if the sources are no longer those that were tried."""
        files = [SOURCE / "grid" / n for n in generator.FILES] if part == "grid" else files_of(part.removesuffix(AGAIN))
        digest = hashlib.sha256(b"".join(p.read_bytes() for p in files)).hexdigest()
        mine = self.all.setdefault(part, {"sources": digest, "results": {}, "seconds": 0, "left": {}})
        if mine["sources"] != digest:
            mine.update(sources=digest, results={}, seconds=0, left={})
        return mine["results"]

    def save(self, part):
        self.folder.mkdir(parents=True, exist_ok=True)
        new = self.folder / f"{part}.new"
        new.write_text(json.dumps(self.all[part], indent=0))
        new.replace(self.folder / f"{part}.json")


def untested(options, state, subsystem):
    """With --again, the names that the list has as untested, and what survived that it doesn't have."""
    if not options.again:
        return None
    listed = survivors.read()
    survived = {key.rpartition("\t")[0] for key, result in state.results(subsystem).items() if result.startswith("survived")}
    names = {name for name in listed if name.startswith(subsystem + "/")} | survived
    return {name for name in names if listed.get(name, ("untested",))[0] == "untested"}


def run_kernels(options, state, part, until):
    results, subsystem = state.results(part), part.removesuffix(AGAIN)
    library = Switched(options.build, subsystem, options.per_unit, options.seed, untested(options, state, subsystem))
    library.prepare()
    reached = library.reach()
    order = sorted(reached)
    random.Random(options.seed).shuffle(order)
    state.all[part]["left"] = {
        "mutations": len(library.mutations),
        "that the compiler must know": len(library.mutations) - len(library.switched),
        "switched, but reached by none of the sampled calls": len(library.switched - reached.keys()),
        "functions": len(library.names),
    }
    left = [n for n in order[: options.count] if library.mutations[n].key not in results]
    print(f"{subsystem}: {len(reached)} mutations in {len(library.names)} functions, {len(left)} to try", flush=True)

    def attempt(numbers, cases, functions):
        survived = []

        def note(words):
            number, result = int(words[0]), words[1]
            if result == "survived":
                survived.append(number)
            else:
                results[library.mutations[number].key] = result
            if len(results) % 50 == 0:
                state.save(part)

        for first in range(0, len(numbers), 50):
            if time.time() > until:
                raise TimeoutError
            lines = []
            for n in numbers[first : first + 50]:
                names = reached[n]
                random.Random(n).shuffle(names)
                lines.append(f"{n} {' '.join(names[:functions])}\n")
            library.judge("try", cases, "".join(lines), note)
            state.save(part)
        return survived

    for n in attempt(attempt(attempt(left, CASES, 6), CASES, 100), MORE_CASES, 24):
        results[library.mutations[n].key] = "survived the model"
    state.save(part)
    try_edge_cases(
        options,
        state,
        library,
        [n for n in order if results.get(library.mutations[n].key) == "survived the model"],
        part,
        until,
    )


def try_edge_cases(options, state, library, numbers, part, until):
    """The tests by name take seconds: of what survived the model, only what the list doesn't explain."""
    results, listed = state.results(part), survivors.read()
    for n in numbers if options.edge_cases else ():
        mutation = library.mutations[n]
        if listed.get(mutation.name, ("untested",))[0] != "untested":
            continue
        if time.time() > until:
            raise TimeoutError
        results[mutation.key] = (
            "edge cases" if edge_cases_fail(options.build, library, part.removesuffix(AGAIN), n) else "survived"
        )
        state.save(part)


def edge_cases_fail(build, library, subsystem, number):
    environment = os.environ | {
        "LD_PRELOAD": str(library.target),
        "ZELM_LIBRARY_PATH": str(library.target),
        "ZELM_MUTANT": str(number),
        "ZELM_BATCH_CASES": "1",
    }
    command = [
        build / "tests" / "conformance" / "edge_cases",
        "--gtest_brief=1",
        "--gtest_fail_fast",
        f"--gtest_filter={EDGE_CASES[subsystem]}",
    ]
    try:
        return call(command, env=environment, capture_output=True, timeout=900).returncode != 0
    except Exception as error:  # a hang is noticed as well
        if "timed out" in str(error):
            return True
        raise


def run_generator(options, state, until):
    results = state.results("grid")
    mutations = generator.all_mutations()
    random.Random(options.seed).shuffle(mutations)
    maker = generator.Generator(options.build)
    state.all["grid"]["left"] = {"mutations": len(mutations)}
    for mutation in mutations[: options.count]:
        if mutation.key in results:
            continue
        if time.time() > until:
            raise TimeoutError
        results[mutation.key] = maker.judge(mutation)
        state.save("grid")


def run(options, state):
    until = time.time() + 60 * options.minutes
    for subsystem in options.subsystems or (SUBSYSTEMS if options.again else EVERYTHING):
        part = subsystem + AGAIN if options.again else subsystem
        start = time.time()
        try:
            if subsystem == "grid":
                run_generator(options, state, until)
            else:
                run_kernels(options, state, part, until)
        except TimeoutError:
            print("stopped; the same command goes on")
            break
        finally:
            if part in state.all:
                state.all[part]["seconds"] += time.time() - start
                state.save(part)
    return report(options, state)


def prepare(options, _):
    for subsystem in options.subsystems or SUBSYSTEMS:
        start = time.time()
        Switched(options.build, subsystem, options.per_unit, options.seed).prepare()
        print(f"{subsystem}: prepared in {time.time() - start:.0f} s", flush=True)
    return 0


def report(_, state):
    """1 if a survivor isn't listed or a subsystem has fewer than 95 % killed."""
    listed, failed = survivors.read(), False
    for subsystem in EVERYTHING:
        parts = [part for part in (subsystem, subsystem + AGAIN) if part in state.all]
        if not parts:
            continue
        results = {k: r for part in parts for k, r in state.results(part).items() if not r.startswith("same ")}
        counts, unlisted = survivors.summary(results, listed)
        wrong = counts["killed"] + counts["untested"] + counts["unlisted"]
        share = 100 * counts["killed"] / wrong if wrong else 0
        others = ", ".join(f"{counts[name]} {name}" for name in (*survivors.CLASSES, "unlisted") if counts[name])
        print(f"{subsystem}: {counts['killed']} of {wrong} killed, {share:.1f} %; survivors: {others or 'none'}")
        for name in unlisted:
            print("  unlisted\t" + name)
        survived = {key.rpartition("\t")[0] for key, result in results.items() if result.startswith("survived")}
        tried = {key.rpartition("\t")[0] for key in results}
        for name in sorted((tried - survived) & listed.keys()):
            print("  killed now, though listed\t" + name)
        failed |= bool(unlisted) or (wrong and share < 95)
    return 1 if failed else 0


def show(options, _):
    for subsystem in options.subsystems:
        mutations = generator.all_mutations() if subsystem == "grid" else all_mutations(subsystem)
        for m in mutations:
            print(f"{m.file}:{m.line}: {m.kind}: {m.before.strip()}  ->  {m.after.strip()}")
    return 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("what", choices=("run", "prepare", "report", "list"))
    parser.add_argument("subsystems", nargs="*", metavar="SUBSYSTEM", help=", ".join(EVERYTHING))
    parser.add_argument("--build", type=Path, default=SOURCE / "build" / "x64")
    parser.add_argument("--count", type=int, help="so many of each subsystem, drawn by the seed; otherwise all")
    parser.add_argument("--minutes", type=float, default=1e6)
    parser.add_argument("--per-unit", type=int, default=2, help="functions of each family and layout")
    parser.add_argument("--again", action="store_true", help="only survivors without a reason in the list, in more functions")
    parser.add_argument("--no-edge-cases", dest="edge_cases", action="store_false", help="the model only")
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    if wrong := set(options.subsystems) - set(EVERYTHING):
        parser.error(f"no subsystem {', '.join(wrong)}; there are {', '.join(EVERYTHING)}")
    options.build = options.build.resolve()
    return {"run": run, "prepare": prepare, "report": report, "list": show}[options.what](options, State(options.build))


if __name__ == "__main__":
    sys.exit(main())
