#!/usr/bin/env python3
"""documents.py COMPILER FLAGS SOURCE_DIR: what docs/cpp.md shows as C++ compiles without a warning."""

import re
import shlex
import subprocess
import sys
from pathlib import Path

compiler, flags, source = sys.argv[1:]
blocks = re.findall(r"^```cpp\n(.*?)^```$", (Path(source) / "docs" / "cpp.md").read_text(), re.M | re.S)
failures = 0
for block in blocks:
    includes = "".join(line for line in block.splitlines(True) if line.startswith("#include"))
    rest = block.replace(includes, "")
    if "eigen.hpp" in includes and not Path("/usr/include/eigen3").exists():
        continue
    program = (includes or "#include <zelm.hpp>\n") + (rest if "struct" in rest else f"void shown()\n{{\n{rest}}}\n")
    ran = subprocess.run(
        [
            *shlex.split(compiler),
            *shlex.split(flags),
            "-std=c++20",
            "-fsyntax-only",
            "-Wall",
            "-Wextra",
            "-Wpedantic",
            "-Wconversion",
            "-Werror",
            "-I",
            f"{source}/cpp",
            "-I",
            f"{source}/include",
            "-isystem",
            "/usr/include/eigen3",
            "-x",
            "c++",
            "-",
        ],
        input=program,
        text=True,
    )
    failures += ran.returncode != 0
print(f"{len(blocks)} blocks, {failures} failures")
sys.exit(failures > 0 or len(blocks) < 3)
