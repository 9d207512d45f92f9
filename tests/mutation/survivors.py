"""The committed list of mutations that no test notices, each with its reason.

A line has the fields class, file, place, line before, line after and reason, with tabs between them. Lines that moved keep
their entries. Classes:

    path         the choice of a faster path or of a width, or of how many objects at once: the results are the same
    careful      an overlap or alignment test that says no more often: the same results, more slowly
    same         the same values by another way
    unreachable  a value that no call can have, or no call whose result is defined
    untested     a test is missing, or was not among those that tried it; counts as not noticed
"""

from collections import Counter
from pathlib import Path

FILE = Path(__file__).with_name("survivors.txt")
CLASSES = ("path", "careful", "same", "unreachable", "untested")


def read():
    """{name of the mutation: (class, reason)}"""
    listed = {}
    for number, line in enumerate(FILE.read_text().splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        fields = line.split("\t")
        if len(fields) != 6 or fields[0] not in CLASSES:
            raise SystemExit(f"{FILE.name}:{number}: not class, file, place, before, after, reason")
        listed["\t".join(fields[1:5])] = (fields[0], fields[5])
    return listed


def line_of(mutation_name, kind, reason):
    return "\t".join((kind, mutation_name, reason))


def summary(results, listed):
    """Counts of one subsystem's results, {key: what noticed it}; and the survivors that the list doesn't have."""
    counts, unlisted = Counter(), []
    for key, result in results.items():
        name = key.rpartition("\t")[0]
        if not result.startswith("survived"):
            counts["killed"] += 1
        elif name in listed:
            counts[listed[name][0]] += 1
        else:
            counts["unlisted"] += 1
            unlisted.append(name)
    return counts, unlisted
