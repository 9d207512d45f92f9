"""Files of results: their rows, and the groups of rows of which means are given."""

import json
import math
import re
from itertools import groupby
from pathlib import Path

OWN, BESIDE, COUNTS = "zelm", "beside", "instructions"
SLOWER, SLOWER_SINGLE = 1.05, 1.15
NAME = re.compile(r"zelm([A-Za-z0-9]+)_([a-zA-Z]+)_(?:32f|64f)(?:_\dx\d)?(?:_(\w+))?(?:/(\d+x\d+))?/(single|\d+)$")
SOLVERS = {
    "Det": "determinant",
    "Invert": "inverse",
    "LU": "LU, with solver",
    "Ch": "Cholesky, with solver",
    "QR": "QR, with solver",
}
LAYOUTS = ("standard", "S2", "P", "PS2", "L", "LS2")


class Row:
    def __init__(self, name, nanoseconds):
        self.name, self.own, self.beside = name, nanoseconds[OWN], nanoseconds.get(BESIDE)
        self.peers = {peer: ns for peer, ns in nanoseconds.items() if peer not in (OWN, BESIDE, COUNTS)}
        self.peer = min(self.peers, key=self.peers.get) if self.peers else None
        self.peer_ns = self.peers.get(self.peer)
        self.ratio = self.own / self.peer_ns if self.peer_ns else None
        # What one more object takes of them: the library, and the peer that is the fastest.
        self.instructions, self.peer_instructions = nanoseconds.get(COUNTS, (None, None))
        self.operation, self.descriptor, layout, size, objects = NAME.match(name).groups()
        self.is_single, self.is_run_time = objects == "single", size is not None
        self.is_large = not self.is_single and int(objects) > 10000
        # Copy and LoadIdentity name the layout of each operand; all their strides are given.
        lettered = self.operation in ("Copy", "LoadIdentity")
        self.layout = {"S": "S2", "P": "PS2", "L": "LS2"}[layout[0]] if lettered else layout or "standard"

    @property
    def limit(self):
        """The ratio that a row should not be above."""
        return SLOWER_SINGLE if self.is_single else SLOWER

    @property
    def is_behind(self):
        return self.ratio is not None and not self.is_large and self.ratio > self.limit

    @property
    def subject(self):
        op, descriptor = self.operation, self.descriptor
        if op in ("Copy", "Extract", "LoadIdentity", "Transpose"):
            return "movement"
        if op in ("Add", "Sub", "Saxpy", "LComb") or op == "Mul" and "c" in descriptor:
            return "element-wise"
        if op in ("Mul", "Gaxpy"):
            return "products by vectors" if "v" in descriptor or op == "Gaxpy" else "matrix products"
        if op in ("DotProduct", "CrossProduct", "L2Norm", "FrobNorm", "Trace"):
            return "dot, cross, norms, traces"
        return SOLVERS.get(op) or SOLVERS[op[:2]]


def peer_ratio(row):
    return row.ratio


def beside_ratio(row):
    return row.own / row.beside if row.beside else None


def mean(ratios):
    return math.exp(sum(map(math.log, ratios)) / len(ratios))


def above(rows, ratio=peer_ratio):
    return sum(ratio(row) > row.limit for row in rows)


def changes(rows, before):
    """How much longer each row takes than in an older run, and its row there.

    A peer that was measured in both runs is the measure: the machine may have been faster or slower. Where there is none,
    times are compared.
    """
    then = {row.name: row for row in before}
    for row in rows:
        if old := then.get(row.name):
            same = old.peer in row.peers
            yield row.own / old.own * (old.peer_ns / row.peers[old.peer] if same else 1), row, old


def columns(rows):
    """Rows by how they are called: arrays in each layout, single calls, run-time sizes, all."""
    arrays = [row for row in rows if not row.is_single]
    return {
        **{layout: [row for row in arrays if row.layout == layout] for layout in LAYOUTS},
        "single": [row for row in rows if row.is_single],
        "run-time": [row for row in rows if row.is_run_time],
        "all": rows,
    }


def subjects(rows):
    """The same rows by what they compute."""
    return {name: [row for row in rows if row.subject == name] for name in dict.fromkeys(row.subject for row in rows)}


def groups(rows):
    """Name and rows of each group that the plot shows."""
    small = [row for row in rows if not row.is_large]
    by_column = columns(small)
    named = [
        ("all", small),
        *((f"arrays: {layout}", by_column[layout]) for layout in LAYOUTS),
        ("single calls", by_column["single"]),
        ("run-time sizes", by_column["run-time"]),
        *subjects(small).items(),
        ("1,000,000 objects", [row for row in rows if row.is_large]),
    ]
    return [(name, members) for name, members in named if members]


def read(path):
    results = {"unit": "ns", **json.loads(Path(path).read_text())}
    results["rows"] = [Row(name, ns) for name, ns in results["rows"].items()]
    return results


def add_instructions(rows, counted):
    """Takes the instructions of rows from results whose figures are counts."""
    counts = {row.name: row for row in counted}
    for row in rows:
        if found := counts.get(row.name):
            row.instructions, row.peer_instructions = found.own, found.peers[row.peer]


def write(results, path):
    """The library's time and that of its fastest peer, with their instructions where these were counted; one line for
    each row of the catalogue."""

    def text(row):
        figures = {OWN: round(row.own, 3), row.peer: round(row.peer_ns, 3)}
        if row.instructions:
            figures[COUNTS] = [round(row.instructions, 1), round(row.peer_instructions, 1)]
        return json.dumps(row.name) + ": " + json.dumps(figures)

    lines = [
        ", ".join(map(text, members))
        for _, members in groupby((row for row in results["rows"] if row.peer), key=lambda row: (row.operation, row.descriptor))
    ]
    kept = {key: results[key] for key in ("target", "processor", "compiler", "flags")}
    path.write_text(json.dumps(kept, indent=1)[:-2] + ',\n "rows": {\n' + ",\n".join(lines) + "\n}}\n")
