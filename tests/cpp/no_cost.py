#!/usr/bin/env python3
"""no_cost.py COMPILER FLAGS SOURCE_DIR: a call by views is the object code of the C call with its constants filled in.

Compiles no_cost.cpp with optimisation and compares the instructions of each views_NAME with those of c_NAME. Of names that
begin with `until_`, the function that is called and the constants that go into it are compared, as there is more to do
behind the call.
"""

import re
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

compiler, flags, source = sys.argv[1:]


def functions(assembly):
    found, name = {}, None
    for line in assembly.splitlines():
        start = re.match(r"(\w+):", line)
        if start:
            name = start[1]
            found[name] = []
        elif name and (text := line.split("#")[0].strip()) and not text.startswith("."):
            found[name].append(re.sub(r"\s+", " ", text))
        if line.strip().startswith(".cfi_endproc"):
            name = None
    return found


def work(code):
    """The instructions but those that only make room on the stack; a jump to a function is a call and a return.

    clang++ gives up the jump where a path that it removes later would have had something on the stack.
    """
    kept = []
    for instruction in code:
        if re.match(r"(pushq %rax|popq %rcx|(sub|add)[lq] \$\d+, %[er]sp)$", instruction):
            continue
        jump = re.match(r"jmp (zelm\w+)", instruction)
        instruction = re.sub(r"\d+\(%([er])sp\)", r"(%\1sp)", re.sub(r"\.LCPI\d+", ".LCPI", instruction))
        kept += [f"call {jump[1]}", "ret"] if jump else [re.sub(r"^(call|ret)[lq]", r"\1", instruction)]
    return kept


def until_call(code):
    """The function that is called and the constants ahead of it, wherever the compiler puts them."""
    for i, instruction in enumerate(code):
        called = re.match(r"(?:call|jmp)[lq]? \*?(zelm\w+)", instruction)
        if called:
            given = [text for text in code[:i] if re.match(r"(push|mov)[lq]? \$", text)]
            return called[1], {int(n) for n in re.findall(r"\$(-?\d+)(?=,|$)", "\n".join(given), re.M)}
    return None


def main():
    with tempfile.TemporaryDirectory() as folder:
        target = Path(folder) / "no_cost.s"
        subprocess.run(
            [
                *shlex.split(compiler),
                *shlex.split(flags),
                "-std=c++20",
                "-O2",
                "-DNDEBUG",
                "-fno-pic",
                "-fcf-protection=none",
                "-fno-asynchronous-unwind-tables",
                "-S",
                "-I",
                f"{source}/cpp",
                "-I",
                f"{source}/include",
                f"{source}/tests/cpp/no_cost.cpp",
                "-o",
                target,
            ],
            check=True,
        )
        code = functions(target.read_text())
    names = sorted(name.removeprefix("c_") for name in code if name.startswith("c_"))
    failures = 0
    for name in names:
        views, plain = code[f"views_{name}"], code[f"c_{name}"]
        if name.startswith("until_"):
            same = until_call(plain) is not None and until_call(views) == until_call(plain)
        elif "clang" in compiler:
            same = work(views) == work(plain)
        else:
            same = views == plain
        if not same:
            failures += 1
            print(f"{name}:\n  by views\n    " + "\n    ".join(views) + "\n  in C\n    " + "\n    ".join(plain))
    print(f"{len(names)} calls, {failures} differ")
    sys.exit(failures > 0 or len(names) < 20)


main()
