#!/usr/bin/env python3
"""What CMake makes of the project without a preset, alone and as a part of another project, by configuring it.

    plain_cmake.py --source DIR --folder DIR --target t7|x64 --generator NAME --c-compiler CC --cxx-compiler CXX
                   [--flags=FLAGS]
"""

import argparse
import json
import os
import shlex
import shutil
import subprocess
import sys
from pathlib import Path

PARENT = """\
cmake_minimum_required(VERSION 3.25)
project(parent LANGUAGES C CXX)
add_subdirectory({source} zelm)
add_executable(consumer {source}/tests/consumer/consumer.c)
target_link_libraries(consumer PRIVATE zelm::zelm)
"""


class Tree:
    def __init__(self, options, name, source, flags="", definitions=()):
        self.folder = options.folder / name
        shutil.rmtree(self.folder, ignore_errors=True)
        environment = {key: value for key, value in os.environ.items() if key not in ("CFLAGS", "CXXFLAGS")}
        environment |= {
            "CC": options.c_compiler,
            "CXX": options.cxx_compiler,
            "CFLAGS": f"{options.flags} {flags}",
            "CXXFLAGS": f"{options.flags} {flags}",
        }
        self.done = subprocess.run(
            ["cmake", "-S", source, "-B", self.folder, "-G", options.generator, *(f"-D{d}" for d in definitions)],
            env=environment,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
        )

    def cache(self, name):
        for line in (self.folder / "CMakeCache.txt").read_text().splitlines():
            if line.startswith(f"{name}:"):
                return line.partition("=")[2]
        return None

    def flags_of(self, name):
        """The flags that a source file is compiled with."""
        for entry in json.loads((self.folder / "compile_commands.json").read_text()):
            if entry["file"].endswith(name):
                return shlex.split(entry["command"])
        return []

    def level(self, name):
        """The optimisation level: the last one given counts."""
        return [flag for flag in self.flags_of(name) if flag.startswith("-O")][-1:]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--source", required=True, type=Path)
    parser.add_argument("--folder", required=True, type=Path)
    for option in ("target", "generator", "c-compiler", "cxx-compiler"):
        parser.add_argument(f"--{option}", required=True)
    parser.add_argument("--flags", default="")
    options = parser.parse_args()
    failures = 0

    def expect(what, found, wanted):
        nonlocal failures
        failures += found != wanted
        print(
            f"{'ok' if found == wanted else 'FAILED'}: {what}: {found!r}" + ("" if found == wanted else f", not {wanted!r}"),
            flush=True,
        )

    plain = Tree(options, "plain", options.source)
    expect("no arguments: status", plain.done.returncode, 0)
    expect("no arguments: target", plain.cache("ZELM_TARGET"), options.target)
    expect("no arguments: build type", plain.cache("CMAKE_BUILD_TYPE"), "Release")
    expect("no arguments: optimisation", plain.level("frame/version.cpp"), ["-O2"])
    expect("no arguments: warnings are no errors", "-Werror" in plain.flags_of("frame/version.cpp"), False)
    expect("no arguments: warnings", "-Wconversion" in plain.flags_of("frame/version.cpp"), True)
    expect("no arguments: archive", plain.cache("ZELM_BUILD_STATIC"), "OFF")

    bare = Tree(
        options,
        "without_googletest",
        options.source,
        "-fstack-protector-all -D_FORTIFY_SOURCE=2",
        ["ZELM_GOOGLETEST_DIR=/nonexistent"],
    )
    expect("without GoogleTest: status", bare.done.returncode, 0)
    expect("without GoogleTest: tests", bare.cache("ZELM_BUILD_TESTS"), "OFF")
    flags = bare.flags_of("frame/version.cpp")
    expect(
        "flags that would import something: taken back",
        (
            flags.index("-fno-stack-protector") > flags.index("-fstack-protector-all"),
            flags.index("-U_FORTIFY_SOURCE") > flags.index("-D_FORTIFY_SOURCE=2"),
        ),
        (True, True),
    )

    asked = Tree(
        options, "asked_for_tests", options.source, definitions=["ZELM_GOOGLETEST_DIR=/nonexistent", "ZELM_BUILD_TESTS=ON"]
    )
    expect(
        "tests asked for without GoogleTest: refused",
        (asked.done.returncode != 0, "need GoogleTest's sources" in asked.done.stdout),
        (True, True),
    )

    other = "t7" if options.target == "x64" else "x64"
    wrong = Tree(options, "other_target", options.source, definitions=[f"ZELM_TARGET={other}"])
    expect("the other target: refused", (wrong.done.returncode != 0, "use the preset" in wrong.done.stdout), (True, True))

    for flag in ("-O2", "-ffast-math", "-funsafe-math-optimizations", "-ffinite-math-only"):
        made = subprocess.run(
            [
                options.cxx_compiler,
                *shlex.split(options.flags),
                "-msse3",
                "-mfpmath=sse",
                flag,
                "-fsyntax-only",
                options.source / "frame" / "compiler_flags.cpp",
            ],
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
        )
        said = "zelm gives the same bits everywhere" in made.stdout
        # clang++ has no macro for the third one.
        if flag != "-funsafe-math-optimizations" or "clang" not in options.cxx_compiler:
            expect(f"{flag}: refused", (made.returncode != 0, said), (flag != "-O2",) * 2)

    parent = options.folder / "parent.source"
    parent.mkdir(parents=True, exist_ok=True)
    (parent / "CMakeLists.txt").write_text(PARENT.format(source=options.source))
    part = Tree(options, "parent", parent, definitions=["CMAKE_EXPORT_COMPILE_COMMANDS=ON"])
    expect("part of a project: status", part.done.returncode, 0)
    expect("part of a project: its build type stays", part.cache("CMAKE_BUILD_TYPE") or "", "")
    expect("part of a project: the library is optimised", part.level("frame/version.cpp"), ["-O2"])
    expect("part of a project: what it compiles itself isn't", part.level("tests/consumer/consumer.c"), [])
    expect("part of a project: tests", part.cache("ZELM_BUILD_TESTS"), "OFF")
    expect("part of a project: it isn't installed", part.cache("ZELM_INSTALL"), "OFF")
    if failures:
        for tree in (plain, bare, part):
            print(tree.done.stdout[-2000:])
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
