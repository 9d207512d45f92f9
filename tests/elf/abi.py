#!/usr/bin/env python3
"""What programs that were compiled before rely on: names with their signatures, types, constants.

    abi.py --include DIR --record FILE [--shared-object FILE]    compares the headers, and the library's names, with the record
    abi.py --include DIR --record FILE --write             writes the record anew

The record lists signatures in lines of their own and below each its names. What may change in it is said in docs/abi.md.
"""

import argparse
import re
import sys
from pathlib import Path

import elf

HEADERS = ("types", "elementwise", "movement", "products", "solvers", "vector")


def declarations(include):
    """{name: signature} of everything that the headers export, the names of arguments left out."""
    found = {}
    for header in HEADERS:
        text = re.sub(r"/\*.*?\*/|//[^\n]*", " ", (include / "zelm" / f"{header}.h").read_text(), flags=re.S)
        for declared in re.findall(r"^ZELM_API\s+([^;]+);", text, re.M):
            result, name, arguments = re.fullmatch(r"(.*?)(\w+)\((.*)\)", " ".join(declared.split())).groups()
            types = [re.sub(r"\s*(\w+)$", "", a.strip()) if a.strip() != "void" else "void" for a in arguments.split(",")]
            found[name] = f"{result.strip()} ({', '.join(types)})"
    return found


def constants(include):
    text = (include / "zelm" / "types.h").read_text()
    return [f"{name} {value.strip('()')}" for name, value in re.findall(r"^#define (ZELM_(?:OK|ERR_\w+)) (\S+)", text, re.M)]


def types(include):
    """The typedefs, comments left out."""
    text = re.sub(r"/\*.*?\*/", " ", (include / "zelm" / "types.h").read_text(), flags=re.S)
    return [" ".join(match.split()) for match in re.findall(r"^typedef [^;{]*(?:\{[^}]*\}[^;]*)?;", text, re.M)]


def record(include):
    groups = {}
    for name, signature in declarations(include).items():
        groups.setdefault(signature, []).append(name)
    lines = ["# Written by tests/elf/abi.py --write. docs/abi.md says what may change here."]
    lines += types(include) + constants(include)
    for signature in sorted(groups):
        lines += ["", signature, *(f"    {name}" for name in sorted(groups[signature]))]
    return "\n".join(lines) + "\n"


def entries(text):
    """The record as a set: types and constants as they stand, each name with its signature."""
    found, signature = set(), ""
    for line in text.splitlines():
        if line.startswith("    "):
            found.add(f"{line.strip()}: {signature}")
        elif line and not line.startswith("#"):
            signature = line
            if not line.endswith(")"):
                found.add(line)
    return found


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--include", required=True, type=Path)
    parser.add_argument("--record", required=True, type=Path)
    parser.add_argument("--shared-object")
    parser.add_argument("--write", action="store_true")
    options = parser.parse_args()
    if options.write:
        options.record.write_text(record(options.include))
        return 0

    now, recorded = entries(record(options.include)), entries(options.record.read_text())
    broken = [f"gone or changed (only a major version may): {e}" for e in sorted(recorded - now)]
    broken += [f"new (a minor version; write the record anew): {e}" for e in sorted(now - recorded)]
    if options.shared_object:
        exported = {s.name for s in elf.Elf(options.shared_object).dynamic_symbols() if s.section != elf.SHN_UNDEF}
        names = {line.strip() for line in options.record.read_text().splitlines() if line.startswith("    ")}
        broken += [f"recorded but not in the library: {name}" for name in sorted(names - exported)]
        broken += [f"in the library but not recorded: {name}" for name in sorted(exported - names)]
    print("\n".join(broken[:30]) if broken else f"{len(recorded)} entries, all as recorded")
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
