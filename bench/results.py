"""Files of results: their rows, and the groups of rows of which means are given."""

import json
import math
import re
from itertools import groupby
from pathlib import Path

OWN, BESIDE = "zelm", "beside"
SLOWER = 1.05
NAME = re.compile(r"zelm([A-Za-z0-9]+)_([a-zA-Z]+)_(?:32f|64f)(?:_\dx\d)?(?:_(\w+))?(?:/(\d+x\d+))?/(single|\d+)$")
SOLVERS = {
    "Det": "determinant",
    "Invert": "inverse",
    "LU": "LU, with solver",
    "Ch": "Cholesky, with solver",
    "QR": "QR, with solver",
}


class Row:
    def __init__(self, name, nanoseconds):
        self.name, self.own, self.beside = name, nanoseconds[OWN], nanoseconds.get(BESIDE)
        peers = {peer: ns for peer, ns in nanoseconds.items() if peer not in (OWN, BESIDE)}
        self.peer = min(peers, key=peers.get) if peers else None
        self.peer_ns = peers.get(self.peer)
        self.ratio = self.own / self.peer_ns if self.peer else None
        self.operation, self.descriptor, layout, size, objects = NAME.match(name).groups()
        self.is_single, self.is_run_time = objects == "single", size is not None
        self.is_large = not self.is_single and int(objects) > 10000
        # Copy and LoadIdentity name the layout of each operand; all their strides are given.
        lettered = self.operation in ("Copy", "LoadIdentity")
        self.layout = {"S": "S2", "P": "PS2", "L": "LS2"}[layout[0]] if lettered else layout or "standard"

    @property
    def subject(self):
        op, descriptor = self.operation, self.descriptor
        if op in ("Copy", "Extract", "LoadIdentity", "Transpose"):
            return "movement"
        if op in ("Add", "Sub", "Saxpy", "LComb") or op == "Mul" and "c" in descriptor:
            return "element-wise"
        if op in ("Mul", "Gaxpy"):
            return "products by vectors" if "v" in descriptor else "matrix products"
        if op in ("DotProduct", "CrossProduct", "L2Norm", "FrobNorm", "Trace"):
            return "dot, cross, norms, traces"
        return SOLVERS.get(op) or SOLVERS[op[:2]]


def peer_ratio(row):
    return row.ratio


def beside_ratio(row):
    return row.own / row.beside if row.beside else 0


def mean(ratios):
    return math.exp(sum(map(math.log, ratios)) / len(ratios))


def above(ratios):
    return sum(ratio > SLOWER for ratio in ratios)


def groups(rows):
    """Name and rows of each group of which a summary gives the mean."""
    large = [row for row in rows if row.is_large]
    rows = [row for row in rows if not row.is_large]
    arrays = [row for row in rows if not row.is_single]
    named = [
        ("all", rows),
        ("arrays: P, PS2, L, LS2, S2", [row for row in arrays if row.layout != "standard"]),
        *(
            (f"arrays: {layout}", [row for row in arrays if row.layout == layout])
            for layout in ("standard", "S2", "P", "PS2", "L", "LS2")
        ),
        ("single calls", [row for row in rows if row.is_single]),
        ("run-time sizes", [row for row in rows if row.is_run_time]),
        *((subject, [row for row in rows if row.subject == subject]) for subject in dict.fromkeys(row.subject for row in rows)),
        ("1,000,000 objects", large),
    ]
    return [(name, members) for name, members in named if members]


def read(path):
    results = json.loads(Path(path).read_text())
    results["rows"] = [Row(name, ns) for name, ns in results["rows"].items()]
    return results


def write(results, path):
    """The library's time and that of its fastest peer, one line for each row of the catalogue."""

    def text(row):
        return json.dumps(row.name) + ": " + json.dumps({OWN: round(row.own, 3), row.peer: round(row.peer_ns, 3)})

    lines = [
        ", ".join(map(text, members))
        for _, members in groupby((row for row in results["rows"] if row.peer), key=lambda row: (row.operation, row.descriptor))
    ]
    kept = {key: results[key] for key in ("target", "processor", "compiler", "flags")}
    path.write_text(json.dumps(kept, indent=1)[:-2] + ',\n "rows": {\n' + ",\n".join(lines) + "\n}}\n")
