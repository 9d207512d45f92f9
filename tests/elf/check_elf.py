#!/usr/bin/env python3
"""Proves on the built file that the library can be loaded anywhere and loads nothing.

    check_elf.py --file FILE --target t7|x64 --grid zelm-grid.json [--objdump PROGRAM] RULE...

Each rule prints what breaks it; without a rule, all are checked. Exit status 1 if one is broken.
"""

import argparse
import functools
import json
import os
import re
import subprocess
import sys
from pathlib import Path

import elf

MACHINES = {"t7": 3, "x64": 62}

# The determinant kernels evaluate in the extended format on purpose; everything else computes in SSE registers.
X87_FUNCTIONS = re.compile(r"^a6_Det_")


def expected_exports(grid):
    entries = grid["functions"] + grid.get("kernels", [])
    return {entry["name"] for entry in entries} | {"zelmGetLibVersion"}


def exports(library, options):
    """The exported names are those of the grid and its kernels, and the version query."""
    expected = expected_exports(json.loads(Path(options.grid).read_text()))
    found = {s.name for s in library.dynamic_symbols() if s.section != elf.SHN_UNDEF}
    return [f"missing: {name}" for name in sorted(expected - found)] + [
        f"exported but not in the grid: {name}" for name in sorted(found - expected)
    ]


def visibility(library, _):
    """Every exported name can be found by a caller."""
    return [f"{s.name} has visibility {s.visibility}" for s in library.dynamic_symbols() if s.visibility != elf.STV_DEFAULT]


def imports(library, _):
    """No symbol is undefined and no other library is needed."""
    return [f"undefined symbol {s.name}" for s in library.dynamic_symbols() if s.section == elf.SHN_UNDEF] + [
        f"NEEDED {name}" for name in library.dynamic_texts("NEEDED")
    ]


def startup(library, _):
    """No code runs when the library is loaded or unloaded."""
    tags = ("INIT", "FINI", "INIT_ARRAY", "FINI_ARRAY", "PREINIT_ARRAY")
    return [f"dynamic entry {tag}" for tag in tags if library.dynamic_values(tag)]


def soname(library, options):
    """The SONAME is the file's own name."""
    name = Path(options.file).name
    found = library.dynamic_texts("SONAME")
    return [] if found == [name] else [f"SONAME {found} instead of {name}"]


def position(library, options):
    """A shared object of the target's machine, without relocations in its code, that looks in no fixed folder."""
    broken = [] if library.type == elf.ET_DYN else [f"ELF type {library.type}"]
    if library.machine != MACHINES[options.target]:
        broken.append(f"machine {library.machine}")
    if library.dynamic_values("TEXTREL") or any(f & elf.DF_TEXTREL for f in library.dynamic_values("FLAGS")):
        broken.append("TEXTREL")
    return broken + [tag for tag in ("RPATH", "RUNPATH") if library.dynamic_values(tag)]


def protection(library, _):
    """No executable stack, no memory that is both written and executed, read-only relocations, no writable data."""
    broken = []
    stack = [s for s in library.segments if s.type == elf.PT_GNU_STACK]
    if not stack or stack[0].flags & elf.PF_X:
        broken.append("executable stack")
    broken += [
        f"segment at {s.address:#x} is writable and executable"
        for s in library.segments
        if s.type == elf.PT_LOAD and s.flags & elf.PF_W and s.flags & elf.PF_X
    ]
    relro = [s for s in library.segments if s.type == elf.PT_GNU_RELRO]
    if not relro:
        return broken + ["no PT_GNU_RELRO"]
    start, stop = relro[0].address, relro[0].address + relro[0].size
    return broken + [
        f"{s.name} stays writable"
        for s in library.sections
        if s.flags & elf.SHF_ALLOC
        and s.flags & elf.SHF_WRITE
        and s.size
        and not (start <= s.address and s.address + s.size <= stop)
    ]


def _sse_mnemonics():
    """Every instruction on XMM registers up to SSE3."""
    scalar_and_packed = (
        "add",
        "sub",
        "mul",
        "div",
        "sqrt",
        "min",
        "max",
        *(f"cmp{test}" for test in ("eq", "lt", "le", "unord", "neq", "nlt", "nle", "ord")),
    )
    names = {stem + form for stem in scalar_and_packed for form in ("ps", "ss", "pd", "sd")}
    names |= {stem + form for stem in ("rcp", "rsqrt") for form in ("ps", "ss")}
    names |= {
        stem + form
        for form in ("ps", "pd")
        for stem in (
            "and",
            "andn",
            "or",
            "xor",
            "shuf",
            "unpckl",
            "unpckh",
            "mova",
            "movu",
            "movl",
            "movh",
            "movmsk",
            "movnt",
            "addsub",
            "hadd",
            "hsub",
        )
    }
    names |= {"movss", "movsd", "movlhps", "movhlps", "comiss", "ucomiss", "comisd", "ucomisd"}
    names |= {
        f"cvt{a}2{b}"
        for a, b in (
            ("ps", "pd"),
            ("pd", "ps"),
            ("ss", "sd"),
            ("sd", "ss"),
            ("dq", "ps"),
            ("ps", "dq"),
            ("tps", "dq"),
            ("dq", "pd"),
            ("pd", "dq"),
            ("tpd", "dq"),
            ("si", "ss"),
            ("si", "sd"),
            ("ss", "si"),
            ("sd", "si"),
            ("tss", "si"),
            ("tsd", "si"),
        )
    }
    names |= {"movd", "movq", "movdqa", "movdqu", "movntdq", "maskmovdqu", "lddqu", "movddup", "movshdup", "movsldup"}
    names |= {stem + width for stem in ("padd", "psub") for width in ("b", "w", "d", "q", "sb", "sw", "usb", "usw")}
    names |= {stem + width for stem in ("pcmpeq", "pcmpgt") for width in "bwd"}
    names |= {stem + width for stem in ("psll", "psrl") for width in ("w", "d", "q", "dq")} | {"psraw", "psrad"}
    names |= {f"punpck{half}{width}" for half in "lh" for width in ("bw", "wd", "dq", "qdq")}
    names |= {
        "pand",
        "pandn",
        "por",
        "pxor",
        "pshufd",
        "pshuflw",
        "pshufhw",
        "packsswb",
        "packssdw",
        "packuswb",
        "pmullw",
        "pmulhw",
        "pmulhuw",
        "pmuludq",
        "pmaddwd",
        "psadbw",
        "pavgb",
        "pavgw",
        "pmaxsw",
        "pmaxub",
        "pminsw",
        "pminub",
        "pinsrw",
        "pextrw",
        "pmovmskb",
    }
    return names


SSE = _sse_mnemonics()
# Newer instructions on general registers. `tzcnt` isn't among them: compilers write it for `rep bsf`, which an old
# processor runs as bsf with the same result for every operand but 0, whose result they don't use.
NEWER = re.compile(
    r"^(popcnt|lzcnt|andn|bextr|bls(i|r|msk)|bzhi|pdep|pext|mulx|rorx|sarx|shlx|shrx|ad[co]x|movbe"
    r"|crc32|rdrand|rdseed|xgetbv|xsave|xrstor|v[a-z].*|k[a-z]+[bwdq]|sha.*|aes.*|gf2.*)[lqwb]?$"
)
PREFIXES = {
    "rep",
    "repz",
    "repe",
    "repnz",
    "repne",
    "lock",
    "data16",
    "addr32",
    "addr16",
    "cs",
    "ds",
    "es",
    "ss",
    "fs",
    "gs",
    "notrack",
    "bnd",
    "rex",
    "rex.W",
    "rex.WX",
}
FUNCTION = re.compile(r"^[0-9a-f]+ <(.+)>:$")


@functools.cache
def disassemble(objdump, file):
    """The functions in which each instruction stands, by its mnemonic and its operands."""
    text = subprocess.run(
        [objdump, "-d", "--no-show-raw-insn", "-M", "att", file],
        check=True,
        stdout=subprocess.PIPE,
        text=True,
        env=os.environ | {"LC_ALL": "C"},
    ).stdout
    function = "?"
    functions = {}
    for line in text.splitlines():
        address, separator, instruction = line.partition(":\t")
        if separator:
            found = functions.setdefault(instruction, [])
            if not found or found[-1] != function:
                found.append(function)
        elif match := FUNCTION.match(line):
            function = match[1]
    code = {}
    for instruction, found in functions.items():
        words = instruction.split()
        while words and words[0] in PREFIXES:
            words.pop(0)
        if words:
            code.setdefault((words[0], " ".join(words[1:])), []).extend(found)
    return code


def is_newer(mnemonic, operands, level):
    """Whether the level's processors lack the instruction: SSE3 and what was before it if it is empty."""
    if level == "v4":
        return False
    if level == "v3":
        return bool(re.search(r"%zmm|%k[0-7]|%[xy]mm(1[6-9]|2\d|3[01])", operands))
    if re.search(r"%[yz]mm|%k[0-7]", operands) or NEWER.match(mnemonic):
        return True
    return "%xmm" in operands and mnemonic not in SSE and mnemonic.rstrip("lq") not in SSE


def _broken_by(options, is_wrong, may_have=re.compile("(?!)")):
    """One line per function, so that a wrong compiler flag doesn't print the whole library."""
    first = {}
    for (mnemonic, operands), functions in disassemble(options.objdump, options.file).items():
        if is_wrong(mnemonic, operands):
            for function in functions:
                if not may_have.match(function):
                    first.setdefault(function, f"{function}: {mnemonic} {operands}")
    lines = list(first.values())
    return lines[:20] + ([f"... and {len(lines) - 20} more functions"] if len(lines) > 20 else [])


def instructions(_, options):
    """Nothing newer than SSE3, in either target; in a wide build, than its level."""
    if not any(mnemonic.startswith("add") for mnemonic, _ in disassemble(options.objdump, options.file)):
        return [f"{options.objdump} shows no code"]
    return _broken_by(options, lambda mnemonic, operands: is_newer(mnemonic, operands, options.level))


# Fused operations round once where two roundings are promised; the newer approximations have other bits than rcpps
# and rsqrtps.
OTHER_ROUNDING = re.compile(r"^vf(n?m(add|sub)|maddsub|msubadd)\d*|^vr(cp|sqrt)(14|28)")


def rounding(_, options):
    """No instruction whose result has other bits than those it would stand for."""
    return _broken_by(options, lambda mnemonic, _: OTHER_ROUNDING.match(mnemonic))


def is_x87_or_mmx(mnemonic, operands):
    return (mnemonic.startswith("f") and mnemonic != "fnstcw") or re.search(r"%mm\d", operands) or mnemonic == "emms"


def x87(_, options):
    """No x87 or MMX instruction: x87 rounds twice, and already its moves quieten a signalling NaN. Reading the control
    word computes and moves nothing."""
    return _broken_by(options, is_x87_or_mmx, X87_FUNCTIONS)


RULES = {
    rule.__name__: rule
    for rule in (exports, visibility, imports, startup, soname, position, protection, instructions, rounding, x87)
}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--file", required=True)
    parser.add_argument("--target", required=True, choices=MACHINES)
    parser.add_argument("--level", default="", choices=("", "v3", "v4"))
    parser.add_argument("--grid", required=True)
    parser.add_argument("--objdump", default="objdump")
    parser.add_argument("rules", nargs="*", metavar="RULE", choices=[[], *RULES])
    options = parser.parse_args()
    library = elf.Elf(options.file)
    failed = False
    for name in options.rules or RULES:
        broken = RULES[name](library, options)
        print(f"{name}: {'; '.join(broken) if broken else 'ok'}")
        failed = failed or bool(broken)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
