#!/usr/bin/env python3
"""Compiles and runs the programs that the documents show, against the installed tree.

    documents.py --prefix PREFIX --libdir LIBDIR --target t7|x64 --compiler CC [--flags=FLAGS] --folder DIR FILE...

A program is a block marked `c` with a main function; the block marked `text` behind it is what it must print.
"""

import argparse
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

BLOCK = re.compile(r"^```(\w+)\n(.*?)^```$", re.M | re.S)


def programs(text):
    """(source, expected output or None)"""
    blocks = BLOCK.findall(text)
    for i, (language, source) in enumerate(blocks):
        if language == "c" and "int main(" in source:
            follows = blocks[i + 1] if i + 1 < len(blocks) else ("", "")
            yield source, follows[1] if follows[0] == "text" else None


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for option in ("prefix", "libdir", "target", "compiler", "folder"):
        parser.add_argument(f"--{option}", required=True)
    parser.add_argument("--flags", default="")
    parser.add_argument("documents", nargs="+", type=Path)
    options = parser.parse_args()
    folder = Path(options.folder)
    folder.mkdir(parents=True, exist_ok=True)
    libraries = Path(options.prefix) / options.libdir

    failures = 0
    for document in options.documents:
        found = list(programs(document.read_text()))
        failures += not found
        print(f"{document.name}: {len(found)} programs")
        for number, (source, expected) in enumerate(found):
            program = folder / f"{document.stem}_{number}"
            program.with_suffix(".c").write_text(source)
            subprocess.run(
                [
                    options.compiler,
                    *shlex.split(options.flags),
                    "-std=c99",
                    "-Wall",
                    "-Wextra",
                    "-Wpedantic",
                    "-Wconversion",
                    "-Werror",
                    "-I",
                    f"{options.prefix}/include",
                    "-o",
                    program,
                    program.with_suffix(".c"),
                    "-L",
                    libraries,
                    f"-lzelm{options.target}",
                ],
                check=True,
            )
            output = subprocess.run(
                [program], stdout=subprocess.PIPE, text=True, check=True, env=os.environ | {"LD_LIBRARY_PATH": str(libraries)}
            ).stdout
            if expected is None or output != expected:
                failures += 1
                print(f"prints {output!r}, the document says {expected!r}")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
