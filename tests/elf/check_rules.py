#!/usr/bin/env python3
"""Proves that every rule of check_elf.py can fail: links small libraries that break one rule each.

    check_rules.py --compiler CC [--flags=FLAGS] --target t7|x64 --folder DIR
"""

import argparse
import json
import shlex
import subprocess
import sys
from pathlib import Path

GOOD = """
    __attribute__((visibility("default"))) int zelmGetLibVersion(void) { return 1; }
    __attribute__((visibility("default"))) void zelmSum(float *a, float b) { *a += b; }
"""
LINK = ["-nostdlib", "-Wl,-z,noexecstack", "-Wl,-z,relro", "-Wl,-z,now"]
TABLE = "static const int a = 1; const int *const table[1] __attribute__((used)) = {&a};"

# rule: (what breaks it, further source, further compiler and linker flags)
BREAKS = [
    ("exports", "an export too many", '__attribute__((visibility("default"))) int zelmOther(void) { return 1; }', []),
    ("visibility", "a protected export", '__attribute__((visibility("protected"))) int zelmOther(void) { return 1; }', []),
    ("imports", "an undefined symbol", "int absent(void); __attribute__((used)) static int f(void) { return absent(); }", []),
    ("imports", "a needed library", "", ["-Wl,--no-as-needed", "-lm"]),
    ("startup", "a constructor", '__attribute__((constructor)) static void f(void) { __asm__ volatile(""); }', []),
    ("startup", "an init function", "void f(void) {}", ["-Wl,-init=f"]),
    ("soname", "another SONAME", "", ["-Wl,-soname,libother.so"]),
    ("position", "relocations in the code", '__asm__(".text\\n.globl g\\n.hidden g\\ng: .{word} g\\n");', ["-Wl,-z,notext"]),
    ("position", "a run path", "", ["-Wl,-rpath,/opt"]),
    ("protection", "an executable stack", "", ["-Wl,-z,execstack"]),
    ("protection", "no read-only relocations", TABLE, ["-Wl,-z,norelro"]),
    ("protection", "a writable variable", "__attribute__((used)) static int counter = 1;", []),
    ("instructions", "an SSSE3 shuffle", '__asm__(".text\\npshufb %xmm1, %xmm0\\n");', []),
    ("instructions", "an SSE4.1 rounding", '__asm__(".text\\nroundps $1, %xmm1, %xmm0\\n");', []),
    ("instructions", "an AVX sum", '__asm__(".text\\nvaddps %ymm1, %ymm1, %ymm0\\n");', []),
    ("instructions", "a bit count", '__asm__(".text\\npopcntl %eax, %eax\\n");', []),
    ("rounding", "a fused sum", '__asm__(".text\\nvfmadd231ps %xmm1, %xmm1, %xmm0\\n");', []),
    ("rounding", "a newer reciprocal", '__asm__(".text\\nvrcp14ps %ymm1, %ymm0\\n");', []),
    ("x87", "an x87 load", '__asm__(".text\\nflds (%{ax})\\n");', []),
    ("x87", "an MMX sum", '__asm__(".text\\npaddd %mm1, %mm0\\n");', []),
]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--flags", default="")
    parser.add_argument("--target", required=True)
    parser.add_argument("--folder", required=True)
    options = parser.parse_args()

    folder = Path(options.folder)
    folder.mkdir(parents=True, exist_ok=True)
    grid = folder / "grid.json"
    grid.write_text(json.dumps({"functions": [{"name": "zelmSum"}]}))
    library, source = folder / f"libzelm{options.target}.so", folder / "library.c"
    words = {"t7": {"{word}": "long", "{ax}": "eax"}, "x64": {"{word}": "quad", "{ax}": "rax"}}[options.target]
    failures = 0

    def expect(status, rule, what, text, flags):
        nonlocal failures
        for word, value in words.items():
            text = text.replace(word, value)
        source.write_text(GOOD + text + "\n")
        subprocess.run(
            [
                options.compiler,
                *shlex.split(options.flags),
                "-O1",
                "-msse3",
                "-mfpmath=sse",
                "-shared",
                "-fPIC",
                "-fvisibility=hidden",
                "-Wl,-soname," + library.name,
                "-o",
                library,
                source,
                *LINK,
                *flags,
            ],
            check=True,
        )
        checker = [
            sys.executable,
            Path(__file__).with_name("check_elf.py"),
            "--file",
            library,
            "--target",
            options.target,
            "--grid",
            grid,
            *([rule] if rule else []),
        ]
        result = subprocess.run(checker, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        good = result.returncode == status and "Traceback" not in result.stdout
        failures += not good
        print(f"{'ok' if good else 'FAILED'}: {rule or 'all rules'}, {what}: {result.stdout.strip()}")

    expect(0, "", "a good library", TABLE, [])
    for rule, what, text, flags in BREAKS:
        expect(1, rule, what, text, flags)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
