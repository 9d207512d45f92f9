#!/usr/bin/env python3
"""The finder's calls, run: each call that the page fills in, with the data that it shows, gives what the formula says.

    calls_test.py LIBRARY    needs build/site/html, as site/build makes it; LIBRARY is the built libzelmx64.so

A member that gives other values than its formula, or may fault, is left out; the call that the page offers instead of it is
run in its place. Values are small whole numbers, so that no order of a sum shows; factors for the solvers are well conditioned.
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

from browser import Browser

ROOT = Path(__file__).resolve().parents[2]
PAGE = ROOT / "build/site/html/finder.html"
SOLVERS = (
    "LUDecomp",
    "LUBackSubst",
    "CholeskyDecomp",
    "CholeskyBackSubst",
    "QRDecomp",
    "QRBackSubst",
    "Invert",
    "Det",
    "a6_Det",
)

ASK = """
return [...FUNCTIONS.values()].filter((member) => member.operands).map((member) => {
    const made = sample(member);
    return { name: member.name, operation: member.operation, descriptor: member.descriptor, rank: member.note.rank ?? "",
        declarations: made.declarations, call: made.call, instead: insteadCall(member), many: isArray(member),
        isVoid: member.result === "void", operands: sampleData(member).operands };
});
"""

HEAD = """
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <zelm.h>

static int wrong;

static double value(int seed, int dominant, int k, int i, int j)
{
    if (dominant)
        return i == j ? 20 + k : (i + j) % 3;
    return (3 * i + 5 * j + 7 * k + 11 * seed) % 9 - 4;
}

static void check(const char *name, double got, double wanted)
{
    if (!(fabs(got - wanted) <= 1e-4 * (1 + fabs(wanted))) && wrong++ < 20) {
        printf("%s: %g, not %g\\n", name, got, wanted);
        fflush(stdout);
    }
}
"""


def is_matrix(told, operand):
    return operand["kind"][0] == "m" or (operand["kind"] == "packed" and told["descriptor"][0] == "m")


def loops(told, operand, body):
    """The body for every element of an operand."""
    many = "COUNT" if told["many"] else "1"
    rows = operand["rows"] if is_matrix(told, operand) else "1"
    last = operand["columns"] if is_matrix(told, operand) else operand["rows"]
    last = "1" if operand["kind"] == "scalar" else last
    heads = [f"for (int {index} = 0; {index} < {end}; {index}++)" for index, end in (("k", many), ("i", rows), ("j", last))]
    return " ".join(heads) + f" {{ {body} }}\n"


def memory(operand):
    """What the pointers of a declaration are to point to."""
    name, declared = operand["sample"], operand["declaration"]
    if re.search(r"\} \*\w+\[COUNT\]", declared):
        return f"for (int k = 0; k < COUNT; k++) {name}[k] = calloc(1, sizeof *{name}[k]);\n"
    pointers = re.fullmatch(r"(?:float|double) \*\w+((?:\[\w+\])+)", declared)
    if pointers:
        flat = f"(({declared.split()[0]} **){name})[n]"
        return f"for (size_t n = 0; n < sizeof {name} / sizeof(void *); n++) {flat} = calloc(1, 8);\n"
    return ""


def element(operand, transposed, k="k", i="i", j="j"):
    if "T" in operand["kind"] and transposed:
        i, j = j, i
    return f"{operand['name'].upper()}({k}, {i}, {j})"


def inner(operand):
    """How many terms a sum over the second index of a source as used has."""
    return operand["rows"] if "T" in operand["kind"] else operand["columns"]


def sum_of(terms, count):
    return f"double sum = 0; for (int t = 0; t < {count}; t++) sum += {terms};"


def expected(told):
    """The statements that check one element of dst, (i, j) of object k; a vector's element is j."""
    sources = {operand["name"]: operand for operand in told["operands"] if operand["name"] != "dst"}
    listed, operation, plain = list(sources.values()), told["operation"], re.sub("[aT]", "", told["descriptor"])
    used = [element(operand, True) for operand in listed]
    if operation in ("Add", "Sub"):
        sign = {"Add": "+", "Sub": "-"}[operation]
        first, second = ("val", used[0]) if plain[0] == "c" else (used[0], (used + ["val"])[1])
        return f"double wanted = {first} {sign} {second};"
    if operation == "Mul" and plain.endswith("c"):
        return f"double wanted = {used[0]} * val;"
    if operation == "Mul":
        second = element(listed[1], True, i="t", j="j") if plain == "mm" else element(listed[1], True, i="0", j="t")
        first = element(listed[0], True, i="i" if plain == "mm" else "j", j="t")
        return sum_of(f"{first} * {second}", inner(listed[0])) + " double wanted = sum;"
    if operation == "Gaxpy":
        return sum_of("SRC1(k, j, t) * SRC2(k, 0, t)", inner(listed[0])) + " double wanted = sum + SRC3(k, 0, j);"
    if operation == "Saxpy":
        return f"double wanted = {used[0]} * scale + {used[1]};"
    if operation == "LComb":
        return f"double wanted = {used[0]} * scale1 + {used[1]} * scale2;"
    if operation == "DotProduct":
        return sum_of("SRC1(k, 0, t) * SRC2(k, 0, t)", listed[0]["rows"]) + " double wanted = sum;"
    if operation == "CrossProduct":
        terms = [f"SRC1(k, 0, (j + {a}) % 3) * SRC2(k, 0, (j + {b}) % 3)" for a, b in ((1, 2), (2, 1))]
        return f"double wanted = {terms[0]} - {terms[1]};"
    if operation == "L2Norm":
        return sum_of("SRC(k, 0, t) * SRC(k, 0, t)", listed[0]["rows"]) + " double wanted = sqrt(sum);"
    if operation == "FrobNorm":
        whole = (
            f"double sum = 0; for (int r = 0; r < {listed[0]['rows']}; r++) for (int t = 0; t < {listed[0]['columns']}; t++)"
        )
        return f"{whole} sum += SRC(k, r, t) * SRC(k, r, t); double wanted = sqrt(sum);"
    if operation == "Trace":
        return sum_of("SRC(k, t, t)", listed[0]["rows"]) + " double wanted = sum;"
    if operation == "Invert":
        return (
            sum_of("SRC(k, i, t) * DST(k, t, j)", listed[0]["rows"]) + " check(name, sum, i == j); continue; double wanted = 0;"
        )
    if operation == "Transpose":
        return "double wanted = SRC(k, j, i);"
    if operation in ("Copy", "Extract"):
        return f"double wanted = {used[0]};"
    if operation == "LoadIdentity":
        return "if (k > 0) continue; double wanted = i == j;"
    return "continue; double wanted = 0;"  # factors and their solutions: the status has to do


def function(number, told, call):
    dominant = int(told["operation"] in SOLVERS)
    out = [f"static void f{number}(void)\n{{\nconst char *name = \"{told['name']}\";\n(void)name;\n"]
    out.append(told["declarations"].replace("COUNT = 1000", "COUNT = 5") + "\n")
    for seed, operand in enumerate(told["operands"]):
        out.append(f"#undef {operand['name'].upper()}\n#define {operand['name'].upper()}(k, i, j) ({operand['element']})\n")
        out.append(memory(operand))
        filled = f"{element(operand, False)} = value({seed}, {dominant}, k, i, j);"
        out.append(loops(told, operand, filled if operand["name"] != "dst" else f"{element(operand, False)} = 99;"))
    if "pivotIndex[" in told["declarations"]:
        order = told["operands"][0]["rows"]
        out.append(f"for (size_t n = 0; n < sizeof pivotIndex / 4; n++) pivotIndex[n] = n % {order};\n")
    out.append(call + "\n")
    if "status = " in call:
        out.append("check(name, status, 0);\n")
    target = told["operands"][-1]
    out.append(loops(told, target, f"{expected(told)} check(name, {element(target, False)}, wanted);"))
    return "".join(out) + "}\n"


def program(all_told):
    """The C program, and how many calls it makes."""
    functions = []
    for told in all_told:
        departs = told["rank"] in ("values", "faults")
        if not departs:
            functions.append(function(len(functions), told, told["call"]))
        if told["instead"]:
            functions.append(function(len(functions), told, told["instead"]))
    calls = "".join(f"    f{number}();\n" for number in range(len(functions)))
    return HEAD + "".join(functions) + f"int main(void)\n{{\n{calls}    return wrong != 0;\n}}\n", len(functions)


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    library = Path(arguments[0]).resolve()
    with Browser() as driver:
        driver.get(PAGE.as_uri())
        text, count = program(driver.execute_script(ASK))
    with tempfile.TemporaryDirectory() as folder:
        source, binary = Path(folder, "calls.c"), Path(folder, "calls")
        source.write_text(text)
        flags = ["-std=c11", "-w", "-O0", f"-I{ROOT}/include"]
        subprocess.run(["gcc", *flags, source, library, "-lm", f"-Wl,-rpath,{library.parent}", "-o", binary], check=True)
        run = subprocess.run([binary], capture_output=True, text=True)
    print(run.stdout, end="")
    print(f"{count} calls, exit status {run.returncode}")
    return 0 if run.returncode == 0 and count > 5500 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
