"""Many mutations in one source, each behind a switch: one compilation serves them all.

The expression around a mutation becomes `(zelmMutated(7) ? (changed) : (unchanged))`. Lines keep their numbers, so that
the compiler's errors tell which mutations can't be switched: those of what it must know itself, such as sizes of arrays.
"""

import re
from dataclasses import dataclass, field

OPENERS, CLOSERS = "([{", ")]}"
STATEMENT_HEAD = re.compile(r"\s*(?:\} )?(?:for|if|else|while|do|#pragma)\b")


@dataclass
class Region:
    start: int
    end: int
    is_statement: bool
    mutations: list = field(default_factory=list)
    inner: list = field(default_factory=list)


def masked(text):
    """The text with comments and strings as blanks, so that only code has brackets."""
    return re.sub(r"//[^\n]*|\"(?:[^\"\\\n]|\\.)*\"", lambda found: " " * len(found[0]), text)


def left_bound(code, at):
    depth, i = 0, at
    while i > 0:
        c = code[i - 1]
        if c in CLOSERS:
            if c == "}" and depth == 0:
                return i
            depth += 1
        elif c in OPENERS:
            if depth == 0:
                return i
            depth -= 1
        elif depth == 0:
            if c in ";,?":
                return i
            if code[i - 2 : i] in ("= ", ": ") and re.search(r"(?:[-+*/|&^]|<<|>>| )= $|[^:]: $", code[max(0, i - 4) : i]):
                return i
            if code[:i].endswith("return "):
                return i
            if c == "\n":
                before = code[code.rfind("\n", 0, i - 1) + 1 : i - 1]
                if STATEMENT_HEAD.match(before) or before.lstrip().startswith("#"):
                    return i
        i -= 1
    return 0


def right_bound(code, at):
    depth, i = 0, at
    while i < len(code):
        c = code[i]
        if c in OPENERS:
            if c == "{" and depth == 0 and code[i - 1] == " ":
                return i
            depth += 1
        elif c in CLOSERS:
            if depth == 0:
                return i
            depth -= 1
        elif depth == 0:
            if c in ";,?" or code[i : i + 3] == " : " or re.match(r"\n\s*: ", code[i : i + 40]):
                return i
        i += 1
    return i


def region_of(code, mutation):
    if mutation.kind.startswith("dropped"):
        start = mutation.start
        while code[start].isspace():
            start += 1
        return start, mutation.end, True
    start, end = left_bound(code, mutation.start), right_bound(code, mutation.end)
    while start < end and code[start].isspace():
        start += 1
    while end > start and code[end - 1].isspace():
        end -= 1
    return start, end, False


def can_be_tried(line):
    """What the compiler computes is left out ahead, as its errors are many."""
    return not re.search(r"\bconstexpr (?!bool zelm)|static_assert|__attribute__|\benum\b|\bunroll\b", line)


def switched(text, mutations):
    """The text with a switch for each (number, mutation) that has a place for one, and {line: numbers} of them."""
    code = masked(text)
    regions = {}
    for number, mutation in mutations:
        start, end, is_statement = region_of(code, mutation)
        if start > mutation.start and not is_statement or end < mutation.end:
            continue
        region = regions.setdefault((start, end, is_statement), Region(start, end, is_statement))
        region.mutations.append((number, mutation))
    nested = nest(sorted(regions.values(), key=lambda r: (r.start, -r.end, not r.is_statement)))
    lines = {}

    def render(start, end, inner):
        parts, at = [], start
        for region in inner:
            parts += [text[at : region.start], render_region(region)]
            at = region.end
        return "".join(parts) + text[at:end]

    def render_region(region):
        body = render(region.start, region.end, region.inner)
        first, last = (text.count("\n", 0, offset) + 1 for offset in (region.start, region.end))
        for number, _ in region.mutations:
            for line in range(first, last + 1):
                lines.setdefault(line, set()).add(number)
        if region.is_statement:
            condition = " && ".join(f"!zelmMutated({number})" for number, _ in region.mutations)
            return f"{{ if ({condition}) {body} }}"
        choices = ""
        for number, mutation in region.mutations:
            changed = code[region.start : mutation.start] + mutation.text + code[mutation.end : region.end]
            choices += f"zelmMutated({number}) ? ({' '.join(changed.split())}) : "
        return f"({choices}({body}))"

    return render(0, len(text), nested), lines


def nest(regions):
    """Regions by what they lie in; one that cuts another is left out."""
    top, stack = [], []
    for region in regions:
        while stack and stack[-1].end <= region.start:
            stack.pop()
        if stack and region.end > stack[-1].end:
            continue
        (stack[-1].inner if stack else top).append(region)
        stack.append(region)
    return top
