"""The mutations of a source file: what may stand in place of what."""

import re
from dataclasses import dataclass

NAME = r"[A-Za-z_]\w*"

# (kind, pattern, what may stand there instead); the formatting tells an operator from a template's bracket.
CXX = (
    ("operator", r" \+ ", (" - ",)),
    ("operator", r" - ", (" + ",)),
    ("operator", r" \* ", (" + ", " / ")),
    ("operator", r" / ", (" * ",)),
    ("operator", r" % ", (" / ",)),
    ("operator", r" \+= ", (" -= ",)),
    ("operator", r" -= ", (" += ",)),
    ("operator", r" \*= ", (" += ",)),
    ("operator", r"(?<=[(= ])-(?=[A-Za-z(])", ("",)),
    ("operator", r" \| ", (" & ",)),
    ("operator", r" & ", (" | ",)),
    ("comparison", r" < ", (" <= ", " > ")),
    ("comparison", r" <= ", (" < ",)),
    ("comparison", r" > ", (" >= ", " < ")),
    ("comparison", r" >= ", (" > ",)),
    ("comparison", r" == ", (" != ",)),
    ("comparison", r" != ", (" == ",)),
    ("comparison", r"!(?=[A-Za-z(])", ("",)),
    ("condition", r" && ", (" || ",)),
    ("condition", r" \|\| ", (" && ",)),
    ("constant", r"(?<![\w.<])\d+(?![\w.>])", ("+1", "-1")),
    ("constant", r"\b(?:true|false)\b", ("other",)),
    ("dropped check", r"return (?:ZELM_ERR_\w+|status);", (";",)),
    ("dropped statement", rf"^\s+(?:store|storePack|copyElement|{NAME}(?:\.\w+)*\()[^;{{}}]*\);$", (";",)),
    ("exchange", rf"\(({NAME}), ({NAME})([,)])", (r"(\2, \1\3",)),
    ("exchange", r"\browStride\b", ("elemStride",)),
    ("exchange", r"\belemStride\b", ("rowStride",)),
    ("exchange", r"\bobjStride\b", ("rowStride",)),
    ("exchange", r"\bwidth\b", ("height",)),
    ("exchange", r"\bheight\b", ("width",)),
    ("exchange", r"\brow\b", ("column",)),
    ("exchange", r"\bcolumn\b", ("row",)),
    (
        "order of a sum",
        rf"\(({NAME}(?:\[[^][]*\])?) \+ ({NAME}(?:\[[^][]*\])?)\) \+ ({NAME}(?:\[[^][]*\])?)",
        (r"\1 + (\2 + \3)", r"(\1 + \3) + \2"),
    ),
)

PYTHON = (
    ("operator", r" \+ ", (" - ",)),
    ("operator", r" - ", (" + ",)),
    ("operator", r" \* ", (" // ",)),
    ("comparison", r" == ", (" != ",)),
    ("comparison", r" != ", (" == ",)),
    ("comparison", r" not in ", (" in ",)),
    ("comparison", r"(?<!for \w) in (?=[a-zA-Z(\"])", (" not in ",)),
    ("condition", r" and ", (" or ",)),
    ("condition", r" or ", (" and ",)),
    ("condition", r"\bnot ", ("",)),
    ("condition", r" if ", (" if not ",)),
    ("constant", r"(?<![\w.\"])\d+(?![\w.\"])", ("+1", "-1")),
    ("constant", r"\b(?:True|False)\b", ("other",)),
    ("text", r"\"[a-zA-Z][\w+:@ ]*\"", ("shortened",)),
    ("exchange", rf"\(({NAME}), ({NAME})([,)])", (r"(\2, \1\3",)),
    ("dropped statement", r"^\s+\w[\w.]* \+= .*$", ("pass",)),
)

OTHER = {"true": "false", "false": "true", "True": "False", "False": "True"}


@dataclass(frozen=True)
class Mutation:
    """The text between two offsets of a file becomes another one. `place` is what the line belongs to, and
    `number` tells equal mutations of equal lines in one place apart."""

    file: str
    line: int
    place: str
    kind: str
    before: str
    after: str
    start: int
    end: int
    text: str
    number: int = 1

    @property
    def name(self):
        """What it is called in lists: moved lines keep their names."""
        return "\t".join((self.file, self.place, self.before.strip(), self.after.strip()))

    @property
    def key(self):
        return f"{self.name}\t{self.number}"


def is_code(text, python):
    if python:
        return text.strip() and not re.match(r'\s*(#|@|"""|import |from |def |class |r?")', text)
    # Parameter lists of templates and unrolling are no arithmetic, and hints change no result.
    return (
        text.strip()
        and "__builtin_expect" not in text
        and not re.match(r"\s*(#|template|static_assert|using |namespace |struct |ZELM_INLINE [^=]*\)( const)? \{$)", text)
    )


def places(lines, python):
    """For each line the function or type whose definition began last at the margin."""
    place, result = "file", []
    for text in lines:
        if python:
            found = re.match(r"(?:\s*def|class) (\w+)|([A-Z_]+)\b", text)
        else:
            found = re.match(r"(?:struct|class) (\w+)", text) or re.match(
                r"(?!template|namespace|using|#|//|[}) ]|__attribute__\(\(noinline\)\) *$).*?(\w+)\(",
                text.replace("__attribute__((noinline))", "").lstrip() if text[:1] == "_" else text,
            )
        if found:
            place = next(group for group in found.groups() if group)
        result.append(place)
    return result


def replacement(kind, found, substitute):
    if kind == "constant" and found[0] in OTHER:
        return OTHER[found[0]]
    if kind == "constant":
        value = int(found[0]) + int(substitute)
        return str(value) if value >= 0 else None
    if kind == "text":
        return found[0][:-2] + '"'
    if kind == "dropped statement":
        indent = re.match(r"\s*", found[0])[0]
        return indent + substitute
    return found.expand(substitute)


def mutations_of(file, text):
    python = file.endswith(".py")
    lines = text.splitlines(keepends=True)
    where = places(lines, python)
    offset, seen, result = 0, {}, []
    in_text = False  # a Python string over several lines
    for number, line in enumerate(lines, 1):
        code = line.split("#" if python else "//")[0].rstrip()
        quotes = python and line.count('"""') % 2 == 1
        if is_code(code, python) and not in_text and not quotes:
            for kind, pattern, substitutes in PYTHON if python else CXX:
                for found in re.finditer(pattern, code):
                    for substitute in substitutes:
                        new = replacement(kind, found, substitute)
                        if new is None or new == found[0]:
                            continue
                        after = code[: found.start()] + new + code[found.end() :]
                        m = Mutation(
                            file,
                            number,
                            where[number - 1],
                            kind,
                            code,
                            after,
                            offset + found.start(),
                            offset + found.end(),
                            new,
                        )
                        seen[m.name] = seen.get(m.name, 0) + 1
                        result.append(Mutation(*list(vars(m).values())[:-1], seen[m.name]))
        in_text ^= quotes
        offset += len(line)
    return result
