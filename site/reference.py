"""The pages of the reference, made from the catalogue: one per operation, with an anchor for every exported name."""

import json
import re
import sys
from itertools import groupby
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent.parent / "grid"))

import generate  # noqa: E402
from catalogue import FAMILIES, KERNEL_NOTES  # noqa: E402
from wants import PURPOSES, words_of  # noqa: E402

GRID = {entry["name"]: entry for entry in json.loads(generate.grid_json(list(generate.members())))["functions"]}
# What a departure of each rank means, the worst first.
RANKS = {
    "values": "gives other values than its formula",
    "faults": "touches memory that it should not, or faults",
    "tests": "tests less, or at another time",
    "rounds": "adds in another order",
    "permits": "differs only for operands that its row leaves out",
}

# The page of docs/ that tells more about a family.
GUIDES = {"determinant": "inverse", "inverse": "inverse"}


def escaped(text):
    """Plain text as Markdown, where names of documents become links to them."""
    text = re.sub(r"([\\`*_\[\]<>|#])", r"\\\1", text)
    return re.sub(r"docs/(\w+)\.md", r"[\1](../docs/\1.md)", text)


def size_text(member_size):
    return member_size.replace("x", "×") or "any"


def cell(member):
    """The names of one size and layout, both types, each the anchor of its function and a link to its explanation."""
    name, prefix = member.name, f"zelm{member.row.operation}_{member.row.descriptor}_"
    if isinstance(member, generate.Kernel):
        prefix = f"a6_{member.row.operation}_{member.row.descriptor}_"
    marked = ' class="departs" title="departs from its row: see below"' if departure_of(member) else ""
    shown = f'<span class="name-head">{prefix}</span>{name.removeprefix(prefix)}'
    return f'<a id="{name}" href="../finder.html#{name}"{marked}>{shown}</a>'


def member_table(members):
    """Rows are sizes, columns layouts. It is HTML, as Markdown's tables have no anchors."""
    layouts = list(dict.fromkeys(m.layout for m in members))
    sizes = list(dict.fromkeys(m.size for m in members))
    cells = {}
    for member in members:
        cells.setdefault((member.size, member.layout), []).append(cell(member))
    out = ['<div class="table-wrapper"><table class="members docutils">\n<thead><tr><th>Size</th>']
    out += [f"<th>{layout or 'standard'}</th>" for layout in layouts]
    out.append("</tr></thead>\n<tbody>\n")
    for size in sizes:
        columns = "".join(f"<td>{'<br>'.join(cells[size, layout])}</td>" for layout in layouts)
        out.append(f"<tr><th>{size_text(size)}</th>{columns}</tr>\n")
    return "".join(out) + "</tbody></table></div>\n"


def declarations(members):
    """One per layout: the run-time form in 32-bit float, which has every argument."""
    size, element_type = members[0].size, members[0].type
    chosen = [m for m in members if m.size == size and m.type == element_type]
    text = "\n".join(generate.declaration(m).removeprefix("ZELM_API ") + ";" for m in chosen)
    sizes = any(m.size for m in members) and not size
    note = "A size in the name takes the place of the dimensions. " if sizes else ""
    return (
        f"<details>\n<summary>Declarations</summary>\n\n```c\n{text}\n```\n\n{note}`64f` has `double` for `float`.\n\n"
        "</details>\n"
    )


def departure_of(member):
    """What a caller of this member must know beyond its row: its note, or nothing."""
    entry = GRID.get(member.name, {})
    return entry.get("departure") or entry.get("bounds") or ""


def departure_item(note, names):
    """One departure with the members that have it, when it is seen, and what to call instead."""
    entry = GRID[names[0]]
    rank = RANKS.get(entry.get("rank"), "")
    text = f"- {f'*{rank}*: ' if rank else ''}{escaped(note)}"
    if entry.get("when"):
        text += f" ({escaped(entry['when'])})"
    listed = []
    for name in names:
        instead = GRID[name].get("instead")
        listed.append(f"`{name}`" + (f" (instead: `{instead['name']}`)" if instead else ""))
    return f"{text}. {', '.join(listed)}\n"


def departure_list(members):
    """The members that depart from their row, those with the same departure together, the worst first."""
    order = list(RANKS)
    by_note = {}
    for member in members:
        if departure_of(member):
            by_note.setdefault((departure_of(member), GRID[member.name].get("when")), []).append(member.name)
    if not by_note:
        return ""
    worst_first = sorted(by_note.items(), key=lambda item: order.index(GRID[item[1][0]].get("rank", order[-1])))
    items = "".join(departure_item(note, names) for (note, _), names in worst_first)
    return "\nThese members depart from their row; the finder fills in the call to use instead:\n\n" + items


def row_section(row, members):
    formula, *paragraphs = generate.row_paragraphs(row)
    out = [f"### zelm{row.operation}_{row.descriptor}\n\n", f"```text\n{formula.removesuffix('.')}\n```\n\n"]
    out += [f"{escaped(paragraph)}\n\n" for paragraph in paragraphs]
    return "".join(out) + member_table(members) + "\n" + departure_list(members) + "\n" + declarations(members) + "\n"


def family_section(name, members):
    family = FAMILIES[name]
    guide = GUIDES.get(name, family.subsystem)
    out = [f"## {family.title}\n\n"]
    if family.notes:
        out.append(f"{escaped(family.notes)}\n\n")
    out.append(f"More, with examples: [{guide}](../docs/{guide}.md).\n\n")
    out += [row_section(row, list(group)) for row, group in groupby(members, key=lambda m: m.row)]
    return "".join(out)


def kernel_section(operation):
    kernels = [k for k in generate.kernels() if k.row.operation == operation]
    if not kernels:
        return ""
    out = [f"## The kernels a6\\_{operation}\n\n", escaped(" ".join(KERNEL_NOTES)), "\n\n"]
    for row, group in groupby(kernels, key=lambda m: m.row):
        members = list(group)
        out += [f"### a6\\_{operation}\\_{row.descriptor}\n\n```text\n{row.formula}\n```\n\n", member_table(members), "\n"]
        out += [declarations(members), "\n"]
    return "".join(out)


def operation_page(operation, members):
    headers = sorted({FAMILIES[m.row.family].subsystem for m in members})
    count = f"{len(members):,} functions"
    includes = " and ".join(f"`<zelm/{header}.h>`" for header in headers)
    out = [
        f"# {operation}: {PURPOSES[operation]}\n\n",
        f"{count}, in {includes}. Also looked for as: {words_of(operation)}.\n\n",
    ]
    out += [family_section(name, list(group)) for name, group in groupby(members, key=lambda m: m.row.family)]
    return "".join(out) + kernel_section(operation)


def version_page():
    return (
        "# GetLibVersion: the version of the library\n\n"
        '<p><a id="zelmGetLibVersion" href="../finder.html#zelmGetLibVersion">zelmGetLibVersion</a></p>\n\n'
        "```c\nconst ZelmLibVersion *zelmGetLibVersion(void);\n```\n\n"
        "The one record of the library: the same pointer on every call, never null, not to be freed or changed. Its type\n"
        "is in `<zelm/types.h>`. Also looked for as: version, target, build.\n"
    )


def index_page(operations):
    lines = [
        "# Reference\n\nEvery exported function, by operation. In the tables a name leads to its explanation in the ",
        '<a href="../finder.html">finder</a>, with declaration and call; ⚠ marks members that depart from their row.\n\n',
        "| Operation | Functions | For |\n|---|---|---|\n",
    ]
    for operation, members in operations.items():
        lines.append(f"| [{operation}]({operation}.md) | {len(members):,} | {PURPOSES[operation]} |\n")
    lines.append("| [GetLibVersion](GetLibVersion.md) | 1 | The version of the library |\n\n")
    lines.append("```{toctree}\n:hidden:\n\n" + "".join(f"{name}\n" for name in [*operations, "GetLibVersion"]) + "```\n")
    return "".join(lines)


def pages():
    """(name, text) of every page."""
    operations = {}
    for member in generate.members():
        operations.setdefault(member.row.operation, []).append(member)
    yield "index", index_page(operations)
    for operation, members in operations.items():
        yield operation, operation_page(operation, members)
    yield "GetLibVersion", version_page()
