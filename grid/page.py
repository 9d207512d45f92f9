"""Makes docs/before-you-choose.md from the departures: what each member does, an example, and the form to use instead."""

import re
import textwrap

from departures import BOUNDS, CAUTIONS, DEPARTURES, PRODUCT_BOUNDS, RANKS

WIDTH = 116

INTRODUCTION = """\
# Before you choose

<!-- Written by grid/generate.py from grid/departures.py. -->

Nearly all functions give what their formula says, whatever the data. The ones on this page do not: on ordinary data they
give another value, with `ZELM_OK`. They are kept as they are for callers who rely on them. For each there is another
form that gives the formula's value: use that one.

- **Arrays of `64f` matrices multiplied pair by pair** (`mama` and its transposes, fixed size, standard layout): use `_S2`
  with element strides of 8. The standard form takes object 0 of `src1` for all objects where everything is aligned to 16.
- **Products whose matrices are not square**, in forms without a size in the name: `mm`, `mam`, `mv`, `mva`, `mav` and `mava`
  take every shape. For the others the [table below](#products-of-run-time-size) names the form and its arguments.
- **The length of a vector that can be zero**, in `32f` with a size in the name: use `_S2` or `_LS2`. The standard and `L`
  forms give NaN.

A call of a function of the first two sections warns where it is compiled, with gcc and clang:

    warning: call to 'zelmMul_mama_64f_4x4' declared with attribute warning: where src2, src2RowStride, dst, ...

Taking its address does not (gcc warns where it sees through the pointer). `#define ZELM_NO_DEPARTURE_WARNINGS` ahead of the
include silences all of these warnings; `#define ZELM_SQUARE_PRODUCTS` those of run-time products, for programs that call them
for square matrices only; `#pragma GCC diagnostic ignored "-Wattribute-warning"` those of the calls behind it.
`zelm-grid.json` holds all of this as data: of a member its `rank`, `when` it departs, and `instead` the name of the form to
use with its `arguments`, each an expression over the member's own.

The examples are bodies of a function in a program that includes `<stdio.h>` and `<zelm.h>`; the tests run all of them.
"""

TITLES = {
    "advancingByAlignment": "Pairs of 64f matrices, aligned to 16",
    "pipelinedAtFirstRowStride": "32f 3x3 with one transposed matrix for all",
    "lastColumnAtSecondRowStride": "64f 5x5 with unlike row strides",
    "heldByAlignment": "64f 3x3 lists with a matrix for all, partly aligned",
    "secondAtFirstElemStride": "Difference of a transposed matrix and a matrix, 64f 6x6 S2",
    "rowTwoInRowThree": "Difference of two transposed matrices, 32f 6x6",
    "byTableOfElements": "Difference of two arrays of transposed matrices, 32f 6x6",
    "copyByTargetTable": "Copying vectors from tables to tables",
    "extractColumnsUntested": "Extracting a transposed matrix from a table",
    "extractUntransposed": "Extracting an array of transposed matrices from a table",
    "": "Transposes of other than square matrices in tables, run-time size",
}


def call(name, arguments):
    return f"{name}({', '.join(arguments)})"


def wrapped(line):
    """A line of C, broken behind a comma where it is too long."""
    kept = re.sub(r"(?<![,;]) ", "\0", line)
    return "\n".join(
        textwrap.wrap(kept, WIDTH, subsequent_indent="    ", break_long_words=False, break_on_hyphens=False)
    ).replace("\0", " ")


def sentence(departure):
    text = f"{departure.when}: {departure.note}." if departure.when else f"{departure.note}."
    return textwrap.fill(text[0].upper() + text[1:], 124, break_long_words=False, break_on_hyphens=False)


def forms(context, names):
    """What to use instead of each of the members: a table, with the arguments once where they are the same."""
    calls = {name: (DEPARTURES[name].instead.name, context.instead_arguments(name)) for name in names}
    groups = {}
    for name, (_, arguments) in calls.items():
        groups.setdefault(tuple(arguments), []).append(name)
    out = []
    for arguments, members in groups.items():
        out.append("| Member | Instead |\n|---|---|\n")
        out += [f"| `{name}` | `{calls[name][0]}` |\n" for name in members]
        out.append(f"\n{'Its' if len(members) == 1 else 'Their'} arguments: `{', '.join(arguments)}`.\n\n")
    return "".join(out)


def example(context, name, declarations, given, got, formula, value, true_value):
    """Five lines: the data, both calls, and what they give. `{d}` in an expression is the result of each call in turn."""
    own, instead = context.arguments(name), context.departure(name).instead
    first = {key: text.format(d="d") for key, text in given.items()}
    second = {key: text.format(d="e") for key, text in given.items()}
    expressions = [
        re.sub(r"[a-zA-Z]\w*", lambda word: second[word.group()], expression) for expression in context.instead_arguments(name)
    ]
    lines = [
        *declarations,
        call(name, [first[a] for a in own]) + ";",
        call(instead.name, expressions) + ";",
        f'printf("%g where the formula gives %g; instead: %g\\n", {got.format(d="d")}, {formula}, ' f'{got.format(d="e")});',
    ]
    code = "\n".join(wrapped(line) for line in lines)
    return f"```c\n{code}\n```\n\n```text\n{value} where the formula gives {true_value}; instead: {true_value}\n```\n"


def dense(letter, operand):
    """The arguments of a matrix, `letter`[row][column], or of an array of one."""
    return {operand: f"{letter}[0]", f"{operand}ObjStride": f"sizeof {letter}", f"{operand}RowStride": f"sizeof {letter}[0]"}


def listed(letter, operand):
    return {f"{operand}Table": f"{letter}s", f"{operand}Shift": "0", f"{operand}RowStride": f"sizeof {letter}[0]"}


def lists(type_):
    return f"const {type_} *as[1] = {{a[0]}}; {type_} *ds[1] = {{d[0]}}, *es[1] = {{e[0]}};"


def numbered(letter, rows, columns, value="10 * r + c", cast=""):
    return (
        f"for (int r = 0; r < {rows}; ++r) for (int c = 0; c < {columns}; ++c)"
        f" {letter}[r][c] = {f'({cast})({value})' if cast else value};"
    )


def advancing(context, name):
    n = int(name.split("_")[3][0])
    m = n + n % 2
    shape = f"[2][{n}][{m}]"
    arrays = {
        f"{operand}{suffix}": text.format(letter)
        for operand, letter in (("src1", "a"), ("src2", "b"), ("dst", "{d}"))
        for suffix, text in (("", "{}[0][0]"), ("ObjStride", "sizeof {}[0]"), ("RowStride", "sizeof {}[0][0]"))
    }
    return example(
        context,
        name,
        [
            f"__attribute__((aligned(16))) double a{shape} = {{{{{{0}}}}}}, b{shape} = {{{{{{0}}}}}}, d{shape}, e{shape};",
            f"for (int i = 0; i < {n}; ++i) a[0][i][i] = 1, a[1][i][i] = 2, b[0][i][i] = b[1][i][i] = 3;",
        ],
        arrays | {"count": "2"},
        "{d}[1][0][0]",
        "a[1][0][0] * b[1][0][0]",
        "3",
        "6",
    )


def signed(name, value):
    return f"-{value}" if name.startswith("zelmSub") else f"{value}"


def sign(name):
    return "-" if name.startswith("zelmSub") else "+"


def at_first_row_stride(context, name):
    is_list = name.endswith("_L")
    given = listed("a", "src1") | listed("{d}", "dst") if is_list else dense("a", "src1") | dense("{d}", "dst")
    return example(
        context,
        name,
        [
            "float a[3][4] = {{0}}, b[4][3], d[3][3], e[3][3];",
            numbered("b", 4, 3, cast="float"),
            *([lists("float")] if is_list else []),
        ],
        given | {"src2": "b[0]", "src2RowStride": "sizeof b[0]", "count": "1"},
        "{d}[0][1]",
        f"a[0][1] {sign(name)} b[1][0]",
        signed(name, 11),
        signed(name, 10),
    )


def last_column(context, name):
    is_list, pairs = name.endswith("_L"), "_mama_" in name
    given = listed("a", "src1") | listed("{d}", "dst") if is_list else dense("a", "src1") | dense("{d}", "dst")
    given |= listed("b", "src2") if is_list and pairs else dense("b", "src2")
    tables = [lists("double").replace("{a[0]};", "{a[0]}, *bs[1] = {b[0]};") if pairs else lists("double")]
    return example(
        context,
        name,
        ["double a[5][6], b[5][5] = {{0}}, d[5][5], e[5][5];", numbered("a", 5, 6), *(tables if is_list else [])],
        given | {"count": "1"},
        "{d}[1][4]",
        f"a[1][4] {sign(name)} b[1][4]",
        "13",
        "14",
    )


def held(context, name):
    invariant_first, transposed = "_mma_" in name or "_mTma_" in name, "T_" in name or "_mTma" in name
    invariant, array = ("src1", "src2") if invariant_first else ("src2", "src1")
    m = "m[1][0]" if transposed else "m[0][1]"
    true, other = (10, 20) if transposed else (1, 2)
    formula = f"{m} - a[0][1]" if invariant_first else f"a[0][1] {sign(name)} {m}"
    shown = str if invariant_first else lambda value: signed(name, value)
    return example(
        context,
        name,
        [
            "__attribute__((aligned(16))) double m[3][4], a[3][3] = {{0}}, d[3][3], e[3][3];",
            numbered("m", 3, 4),
            lists("double"),
        ],
        listed("a", array) | dense("m", invariant) | listed("{d}", "dst") | {"count": "1"},
        "{d}[0][1]",
        formula,
        shown(other),
        shown(true),
    )


def at_first_elem_stride(context, name):
    given = (
        dense("a", "src1")
        | dense("b", "src2")
        | dense("{d}", "dst")
        | {"src1ElemStride": "sizeof(double)", "src2ElemStride": "2 * sizeof(double)", "dstElemStride": "sizeof(double)"}
    )
    return example(
        context,
        name,
        ["double a[6][6] = {{0}}, b[6][12], d[6][6], e[6][6];", numbered("b", 6, 12, "c")],
        given,
        "{d}[0][1]",
        "a[1][0] - b[0][2]",
        "-1",
        "-2",
    )


def row_two(context, name):
    return example(
        context,
        name,
        ["float a[6][6], b[6][6] = {{0}}, d[6][6], e[6][6];", numbered("a", 6, 6, "c", "float")],
        dense("a", "src1") | dense("b", "src2") | dense("{d}", "dst"),
        "{d}[3][0]",
        "a[0][3] - b[0][3]",
        "2",
        "3",
    )


def table_of_elements(context, name):
    is_list = name.endswith("_L")
    operands = (("a", "src1"), ("b", "src2"), ("{d}", "dst"))
    given = {key: text for letter, operand in operands for key, text in (listed if is_list else dense)(letter, operand).items()}
    return example(
        context,
        name,
        [
            "float a[6][6], b[6][6] = {{0}}, d[6][6], e[6][6];",
            numbered("a", 6, 6, cast="float"),
            *([lists("float").replace("{a[0]};", "{a[0]}, *bs[1] = {b[0]};")] if is_list else []),
        ],
        given | {"count": "1"},
        "{d}[0][1]",
        "a[1][0] - b[1][0]",
        "40",
        "10",
    )


def element_type(name):
    return "float" if "_32f" in name else "double"


def copied(context, name):
    t = element_type(name)
    return example(
        context,
        name,
        [
            f"{t} a[2] = {{1, 2}}, d[2] = {{0}}, e[2] = {{0}};",
            f"const {t} *as[2] = {{a, a + 1}}; {t} *ds[2] = {{d, d + 1}}, *es[2] = {{e, e + 1}};",
        ],
        {
            "srcTable": "as",
            "srcShift": "0",
            "srcObjStride": f"sizeof({t})",
            "dstTable": "{d}s",
            "dstShift": "0",
            "dstObjStride": f"sizeof({t})",
            "len": "2",
            "count": "1",
        },
        "{d}[1]",
        "a[1]",
        "0",
        "2",
    )


def extracted(context, name, value):
    t = element_type(name)
    return example(
        context,
        name,
        [
            f"{t} a[2][3], d[6], e[6]; const {t} *as[6];",
            numbered("a", 2, 3, cast="float" if t == "float" else ""),
            "for (int i = 0; i < 6; ++i) as[i] = &a[i / 3][i % 3];",
        ],
        {
            "srcTable": "as",
            "srcShift": "0",
            "srcObjStride": "sizeof a",
            "dst": "{d}",
            "width": "2",
            "height": "3",
            "count": "1",
        },
        "{d}[1]",
        "a[1][0]",
        value,
        "10",
    )


def transposed_in_tables(context, name):
    t = element_type(name)
    return example(
        context,
        name,
        [
            f"{t} a[2][3], d[8], e[6], *ds[8], *es[6]; const {t} *as[6];",
            numbered("a", 2, 3, cast="float" if t == "float" else ""),
            "for (int i = 0; i < 8; ++i) ds[i] = &d[i];",
            "for (int i = 0; i < 6; ++i) as[i] = &a[i / 3][i % 3], es[i] = &e[i % 3 * 2 + i / 3];",
        ],
        {
            "srcTable": "as",
            "srcShift": "0",
            "srcObjStride": "sizeof a",
            "width": "3",
            "height": "2",
            "dstTable": "{d}s",
            "dstTransposed": "es",
            "dstShift": "0",
            "dstObjStride": "sizeof a",
            "count": "1",
        },
        "{d}[1]",
        "a[1][0]",
        "2",
        "10",
    )


EXAMPLES = {
    "advancingByAlignment": advancing,
    "pipelinedAtFirstRowStride": at_first_row_stride,
    "lastColumnAtSecondRowStride": last_column,
    "heldByAlignment": held,
    "secondAtFirstElemStride": at_first_elem_stride,
    "rowTwoInRowThree": row_two,
    "byTableOfElements": table_of_elements,
    "copyByTargetTable": copied,
    "extractColumnsUntested": lambda context, name: extracted(context, name, "2"),
    "extractUntransposed": lambda context, name: extracted(context, name, "1"),
    "": transposed_in_tables,
}


def members_section(context):
    out = ["## Members with values of their own\n\n"]
    for function, title in TITLES.items():
        names = [name for name, d in DEPARTURES.items() if d.rank == "values" and d.function == function]
        out.append(f"### {title}\n\n")
        departure = DEPARTURES[names[0]]
        out.append(sentence(departure) + "\n\n" + forms(context, names))
        if departure.instead.note:
            out.append(f"Here {departure.instead.note}.\n\n")
        first, *others = sorted(names, key=lambda name: "_4x4" not in name)
        out.append(f"`{first}`:\n\n" + EXAMPLES[function](context, first))
        if others:
            out.append("\n<details>\n<summary>The same of the other members</summary>\n")
            out += ["\n" + EXAMPLES[function](context, name) for name in others]
            out.append("\n</details>\n")
        out.append("\n")
    return "".join(out)


PRODUCTS = """\
## Products of run-time size

The size test of a product speaks of the operands as stored, its loops of the operands as used. For square matrices every
form is the product; for other shapes only where the second column says so, and the call returns `ZELM_OK` otherwise too,
unless two dimensions that must be equal differ. W1, H1, W2, H2 are `src1Width`, `src1Height`, `src2Width`, `src2Height`.

| Operands | The product where | Otherwise |
|---|---|---|
| `mm` `mam`, `mmT` in the standard layout | always | |
| `mv` `mva` `mav` `mava` | always | |
"""

PRODUCTS_INSTEAD = """
Another form gives the product of every shape, with the same bits, as its sums have the same order:

- **`mTm`, `mTmT`, `mmT`, and with an array first `maTm`, `maTmT`, `mamT`; `mTv` and its arrays**: a matrix whose row and
  element strides are exchanged is its transpose. Use the form without `T` in `S2` (`LS2` beside a list) with the strides and
  the dimensions of each transposed operand exchanged.
- **One matrix by an array, `mma` and its transposes**: (A·B)ᵀ = Bᵀ·Aᵀ. Use `mam` in `S2` or `LS2` with the operands
  exchanged, and the strides and dimensions of all three.
- **Two arrays, `mama` and its transposes**: the bounds of `mamaT` are free in `S2` and `LS2`, as the width of its `src1` is
  used in the size test only. Pass the result's columns as `src1Width` and `src2Width`, its rows as `src1Height`, the number
  of terms as `src2Height`, and exchange the strides of `src2` where it is not transposed. This call warns as well, since
  the compiler cannot know; or multiply a column at a time by `mava`, as [the filter recipe](recipes/kalman.md) does.
- **In tables (`P`, `PS2`)**: `mm_P`, `mam_P`, `mam_PS2` and the forms with a vector, with a table of the transpose's
  entries, row by row. For two arrays there is none: copy both to `S2`.

"""


def ones(*arrays):
    return f"for (int i = 0; i < 36; ++i) {' = '.join(f'{a}[i / 6][i % 6]' for a in arrays)} = 1;"


def products_section(context):
    out = [PRODUCTS]
    rows = {}
    for descriptor, text in BOUNDS.items():
        rows.setdefault(text, []).append(descriptor)
    for (where, otherwise), descriptors in rows.items():
        named = " ".join(f"`{d}`" for d in descriptors).replace("`mmT`", "`mmT` (`S2`, `P`)")
        out.append(f"| {named} | {where} | {otherwise} |\n")
    out.append(PRODUCTS_INSTEAD)
    square = "double a[6][6], b[6][6], d[6][6], e[6][6];"
    strides = {
        f"{operand}{suffix}": text
        for operand, letter in (("src1", "a"), ("src2", "b"), ("dst", "{d}"))
        for suffix, text in (("", f"{letter}[0]"), ("ObjStride", f"sizeof {letter}"), ("RowStride", f"sizeof {letter}[0]"))
    } | {"count": "1"}

    def sizes(w1, h1, w2, h2):
        return strides | dict(zip(("src1Width", "src1Height", "src2Width", "src2Height"), map(str, (w1, h1, w2, h2))))

    out.append(
        "A 3x6 by the transpose of a 3x6, of ones: each element is a sum of six terms. `zelmMul_mamT_64f` sums three of"
        " them, and writes three rows of six:\n\n"
    )
    out.append(example(context, "zelmMul_mamT_64f", [square, ones("a", "b")], sizes(6, 3, 6, 3), "{d}[0][0]", "6.0", "3", "6"))
    out.append(
        "\nThe transpose of a 5x2 by a 5x2: a 2x2 of sums of five terms. `zelmMul_mTm_64f` computes five rows, from a square"
        " of five columns, the last three of which are not `src1`'s (-1: not written):\n\n"
    )
    out.append(
        example(
            context,
            "zelmMul_mTm_64f",
            [
                square,
                "for (int i = 0; i < 36; ++i) a[i / 6][i % 6] = b[i / 6][i % 6] = 1, d[i / 6][i % 6] = e[i / 6][i % 6] = -1;",
            ],
            sizes(2, 5, 2, 5),
            "{d}[2][0]",
            "-1.0",
            "5",
            "-1",
        )
    )
    out.append("\nA 3x6 by an array of 6x6: the call is refused, as `zelmMul_mma_64f` asks for src1Height = src2Width.\n\n")
    given = {k: v.format(d="d") for k, v in sizes(6, 3, 6, 6).items()}
    second = {k: v.format(d="e") for k, v in sizes(6, 3, 6, 6).items()}
    name = "zelmMul_mma_64f"
    expressions = [re.sub(r"[a-zA-Z]\w*", lambda w: second[w.group()], x) for x in context.instead_arguments(name)]
    lines = [
        square,
        ones("a", "b"),
        f"int refused = {call(name, [given[a] for a in context.arguments(name)])};",
        f"int done = {call(context.departure(name).instead.name, expressions)};",
        'printf("status %d; instead: status %d, %g\\n", refused, done, e[2][5]);',
    ]
    out.append(
        "```c\n" + "\n".join(wrapped(line) for line in lines) + "\n```\n\n```text\nstatus -6; instead: status 0, 6\n```\n"
    )
    out.append(
        "\nThe transpose of a 5x2 times a vector of 5: two elements of five terms each. `zelmMul_mTv_64f` gives five of"
        " two:\n\n"
    )
    vector = {
        "src1": "a[0]",
        "src1RowStride": "sizeof a[0]",
        "src1Width": "2",
        "src1Height": "5",
        "src2": "b[0]",
        "src2Len": "5",
        "dst": "{d}[0]",
    }
    out.append(example(context, "zelmMul_mTv_64f", [square, ones("a", "b")], vector, "{d}[0][0]", "5.0", "2", "5"))
    out.append(
        "\nThe arguments of the other form, for every run-time product:\n\n<details>\n<summary>All"
        f" {len(PRODUCT_BOUNDS)}</summary>\n\n| Member | Instead |\n|---|---|\n"
    )
    for name, departure in PRODUCT_BOUNDS.items():
        given = context.instead_arguments(name)
        text = f"`{call(departure.instead.name, given)}`" if given else f"`{departure.instead.name}`"
        out.append(f"| `{name}` | {text}{'; ' + departure.instead.note if departure.instead.note else ''} |\n")
    out.append("\n</details>\n\n")
    return "".join(out)


def cautions_section(context):
    out = [
        "## Forms that follow their row, and surprise\n\nNo call of these warns.\n\n| Members | What to know | Instead |\n"
        "|---|---|---|\n"
    ]
    groups = {}
    for name, departure in CAUTIONS.items():
        groups.setdefault((departure.when, departure.note), []).append(name)
    for (when, note), names in groups.items():
        instead = context.cautioned_arguments(names[0])
        text = (
            f"`{call(CAUTIONS[names[0]].instead.name, instead)}`" + (", and so on" if len(names) > 1 else "")
            if instead
            else "one call per object, with a count of 1; or one identity, copied by `zelmCopy_ma` with a `srcObjStride` of 0"
        )
        out.append(f"| {' '.join(f'`{n}`' for n in names)} | {when}: {note} | {text} |\n")
    return "".join(out) + "\n"


def others_section(context):
    out = ["## Members that depart otherwise\n\nNo call of these warns either. The values are those of the formula.\n"]
    for rank, meaning in RANKS.items():
        if rank == "values":
            continue
        out.append(
            f"\n### Rank `{rank}`\n\nA member of this rank {meaning}.\n\n| Members | Departure | Instead |\n" "|---|---|---|\n"
        )
        groups = {}
        for name, departure in DEPARTURES.items():
            if departure.rank == rank:
                groups.setdefault((departure.when, departure.note), []).append(name)
        for (when, note), names in groups.items():
            forms = ""
            if DEPARTURES[names[0]].instead:
                forms = " ".join(f"`{call(DEPARTURES[n].instead.name, context.instead_arguments(n))}`" for n in names[:1])
                forms += ", and so on" if len(names) > 1 else ""
            out.append(f"| {' '.join(f'`{n}`' for n in names)} | {when + ': ' if when else ''}{note} | {forms} |\n")
    return "".join(out)


def text(context):
    return "\n".join(
        (
            INTRODUCTION,
            members_section(context) + products_section(context) + cautions_section(context) + others_section(context),
        )
    )
