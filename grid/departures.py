"""What a caller of a single member must know beyond its row: the members that depart from their rows, and the
run-time products whose bounds are those of the true product only for some shapes.

Each departure has a rank. Of the members of rank "values" a call warns at compile time, docs/before-you-choose.md
shows what they do, and each names the form to use instead, as data: a layer on top of the library calls that one.
"""

from dataclasses import dataclass, field

from catalogue import LAYOUTS, MATRIX_SIZES, ROWS, SINGLE_LAYOUTS, TYPES, VECTOR_SIZES, operand_kinds

# What the departure means for a caller who has not read of it, the worst first.
RANKS = {
    "values": "gives other values than its formula on ordinary data",
    "faults": "accesses memory that its arguments do not name, or raises an alignment fault",
    "tests": "tests less than its row, or at another time",
    "rounds": "adds in another order than its row, so that last bits differ",
    "permits": "differs only where operands overlap, lie at odd addresses or have shapes that its row leaves out",
}

# The functions of departures that test no argument at all.
TESTS_NOTHING = ("extractUntested", "extractColumnsUntested")

ELEMENT_BYTES = {"32f": "4", "64f": "8"}


@dataclass(frozen=True)
class Instead:
    """The form to use instead of a departing member. Its arguments are those of the member of the same name but
    where `arguments` gives another expression, in the names of the departing member's arguments."""

    name: str
    arguments: dict = field(default_factory=dict)
    note: str = ""  # what the expressions need that no argument holds


@dataclass(frozen=True)
class Departure:
    """A member that departs: the function of its subsystem's departures that serves it (none where the row's own
    kernel knows the departure), what a caller sees, and its rank."""

    function: str
    note: str
    rank: str
    when: str = ""  # the arguments on which it is seen, as "where" or "unless" with a clause; always, where empty
    instead: Instead = None


def both(name):
    return (name, name + "_L")


def strided(name, **arguments):
    """The member of the same row, type and size with an element stride, called with that of adjacent elements."""
    base, listed = (name[:-2], True) if name.endswith("_L") else (name, False)
    sz = ELEMENT_BYTES["32f" if "_32f" in name else "64f"]
    steps = {f"{operand}ElemStride": sz for operand in ("src1", "src2", "dst")}
    return Instead(base + ("_LS2" if listed else "_S2"), steps | arguments)


def _added_and_subtracted():
    names = [f"zelm{row}_64f_6x1" for row in ("Add_vav", "Sub_vav", "Sub_vva")]
    names += [f"zelmSub_{row}_6x6" for row in ("mma_32f", "mmaT_32f", "mma_64f", "mTma_64f", "mmaT_64f", "mTmaT_64f")]
    for name in [member for name in names for member in both(name)] + ["zelmAdd_maTmT_64f_3x3"]:
        yield name, Departure(
            "invariantReadAnew",
            "reads the invariant operand anew for every object",
            "permits",
            "where dst overlaps the invariant operand",
        )

    for op in ("Add", "Sub"):
        for name in both(f"zelm{op}_mam_32f_3x3"):
            yield name, Departure(
                "pipelined",
                "reads object k+1 before it stores object k; a count of 0 counts as 1",
                "faults",
                "where count is 0, or dst overlaps a later object of src1",
                strided(name),
            )
        for name in both(f"zelm{op}_mamT_32f_3x3"):
            yield name, Departure(
                "pipelinedAtFirstRowStride",
                "src2RowStride is not read, rows of src2 lie at src1RowStride; reads object"
                " k+1 before it stores object k; a count of 0 counts as 1",
                "values",
                "where src2RowStride differs from src1RowStride",
                strided(name),
            )
        for row in ("mam", "mama"):
            for name in both(f"zelm{op}_{row}_64f_5x5"):
                yield name, Departure(
                    "lastColumnAtSecondRowStride",
                    "reads column 4 of src1 at src2RowStride",
                    "values",
                    "where src1RowStride differs from src2RowStride",
                    strided(name),
                )
        for row in ("mam", "mamT"):
            yield held_by_alignment(f"zelm{op}_{row}_64f_3x3_L", "src2", "src1")
        for row in ("mmT", "mTm", "mTmT"):
            for element_type in TYPES:
                name = f"zelm{op}_{row}_{element_type}_P"
                array = row.replace("mT", "maT", 1) if row.startswith("mT") else row.replace("m", "ma", 1)
                yield name, Departure(
                    "singleTestingByRows",
                    "tests entry i*height + j of a transposed operand and reads j*height + i",
                    "faults",
                    "where width is less than height: entries behind the table are tested",
                    Instead(f"zelm{op}_{array}_{element_type}_P", {"count": "1"}),
                )
    for row in ("mma", "mTma"):
        yield held_by_alignment(f"zelmSub_{row}_64f_3x3_L", "src1", "src2")

    name = "zelmSub_mTm_64f_6x6_S2"
    yield name, Departure(
        "secondAtFirstElemStride",
        "src2ElemStride is not read, elements of src2 lie at src1ElemStride",
        "values",
        "where src2ElemStride differs from src1ElemStride",
        Instead("zelmSub_mTm_64f_S2", {"width": "6", "height": "6"}),
    )
    name = "zelmSub_mTmT_32f_6x6"
    yield name, Departure("rowTwoInRowThree", "row 3 of dst receives the values of row 2", "values", "", strided(name))
    for name in both("zelmSub_maTmaT_32f_6x6"):
        yield name, Departure(
            "byTableOfElements", "takes its elements from the stored places that a table names", "values", "", strided(name)
        )
    for row in (
        "Add_maTm_64f_6x6",
        "Add_maTmT_64f_6x6",
        "Add_mamT_64f_6x6",
        "Sub_maTmT_64f_6x6",
        "Sub_mamT_64f_6x6",
        "Sub_mamT_64f_3x3",
        "Sub_maTma_64f_5x5_L",
        "Sub_mamaT_64f_4x4_L",
        "Sub_mama_64f_4x4_L",
    ):
        name = f"zelm{row}"
        yield name, Departure(
            "alignedStores",
            "an alignment fault is raised",
            "faults",
            "where object 0 of every operand is at a multiple of 16 and a later object of dst is not",
            strided(name),
        )


def held_by_alignment(name, invariant, array):
    return name, Departure(
        "heldByAlignment",
        "pairs the elements of the invariant with others",
        "values",
        f"where {invariant} and {invariant}RowStride are multiples of 16, and an object of {array} or dst or their row"
        " strides are not, or the other way round",
        strided(name),
    )


def _scaled():
    for row in ("mTc_32f_4x4", "mTc_64f_4x4", "maTc_32f_4x4", "maTc_64f_4x4", "maTc_32f_4x4_L"):
        yield f"zelmMul_{row}", Departure(
            "wholeMatrixFirst", "reads the whole matrix first: dst may be src", "permits", "where dst is src"
        )


def _vector_algebra():
    yield "zelmDotProduct_vav_32f_4x1", Departure("dotInPairs", "sums the products in pairs", "rounds")
    yield "zelmDotProduct_vav_32f_4x1_L", Departure(
        "dotUntestedInPairs", "sums the products in pairs; no entry of" " src1Table is tested", "tests"
    )
    yield "zelmDotProduct_vav_32f_3x1_L", Departure("dotUntested", "no entry of src1Table is tested", "tests")
    yield "zelmDotProduct_vav_64f_3x1_L", Departure(
        "dotTestingAllFirst", "tests all entries of src1Table before it" " writes anything", "tests"
    )
    yield "zelmL2Norm_va_32f_4x1_L", Departure("l2NormUntested", "no entry of srcTable is tested", "tests")


def _moved():
    for element_type in TYPES:
        sz = ELEMENT_BYTES[element_type]
        copy = f"zelmCopy_ma_{element_type}"
        yield f"zelmCopy_va_{element_type}_PP", Departure(
            "copyByTargetTable",
            "takes the pointers of both sides from dstTable; srcTable is tested and otherwise not read",
            "values",
            "",
            Instead(f"{copy}_PP", {"width": "len", "height": "1"}),
        )
        yield f"zelmExtract_m_{element_type}_P", Departure(
            "extractUntested", "tests nothing; a dimension of zero moves" " nothing", "tests"
        )
        # The source as stored has `width` rows of `height` elements; a copy to a strided matrix transposes by strides.
        transposing = {
            "dstObjStride": f"width * height * {sz}",
            "dstRowStride": sz,
            "dstElemStride": f"width * {sz}",
            "width": "height",
            "height": "width",
        }
        yield f"zelmExtract_mT_{element_type}_P", Departure(
            "extractColumnsUntested",
            "tests nothing; srcShift is not read; takes srcTable as height rows of width entries"
            " and packs width rows of height elements",
            "values",
            "where width differs from height, or srcShift is not 0",
            Instead(f"{copy}_PS", transposing | {"srcObjStride": "0", "count": "1"}),
        )
        yield f"zelmExtract_maT_{element_type}_PS2", Departure(
            "extractUntransposed", "does not transpose", "values", "", Instead(f"{copy}_PS", transposing)
        )
        for kind, layout in (("m", "P"), ("ma", "P"), ("ma", "PS2")):
            step = "0" if kind == "m" else sz if layout == "P" else "srcObjStride"
            yield f"zelmTranspose_{kind}_{element_type}_{layout}", Departure(
                "",
                "the tables are numbered with the row length of the other operand: element (i, j) of src is at"
                " srcTable[i*height + j]",
                "values",
                "where width differs from height",
                Instead(
                    f"{copy}_PP",
                    {"srcObjStride": step, "dstObjStride": step.replace("src", "dst"), "dstTable": "dstTransposed"}
                    | ({"count": "1"} if kind == "m" else {}),
                    "dstTransposed: a table with the entries of dstTable in the order of src's elements",
                ),
            )
    yield "zelmExtract_v_64f_P", Departure("extractUntested", "tests nothing; a dimension of zero moves nothing", "tests")
    for name, function in (
        ("m_32f", "transposeSingleWhole"),
        ("m_64f", "transposeSingleWhole"),
        ("ma_32f", "transposeArrayWhole"),
    ):
        yield f"zelmTranspose_{name}_4x4", Departure(
            function, "reads a whole matrix first: dst may be src", "permits", "where dst is src"
        )


def _multiplied():
    for element_type in TYPES:
        yield f"zelmMul_mmT_{element_type}", Departure(
            "multiplyByTranspose",
            "dst has src2Height columns, and the sums have src2Width terms: the true product by the" " transpose of src2",
            "permits",
            "where src2 is not square",
        )
    for row in ("mama", "maTma", "mamaT", "maTmaT"):
        for size in MATRIX_SIZES[1:]:
            name = f"zelmMul_{row}_64f_{size}"
            yield name, Departure(
                "advancingByAlignment",
                "every object is computed from object 0 of src1",
                "values",
                "where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16",
                strided(name),
            )
    for row in ("mam", "maTm", "mamT"):
        for layout in ("P", "PS2"):
            yield f"zelmMul_{row}_32f_3x3_{layout}", Departure(
                "multiplyUntested", "tests no table entry; src2 may be read also where count is 0", "tests"
            )
    for row in ("mam", "maTm", "mamT", "maTmT"):
        yield f"zelmMul_{row}_32f_3x3_LS2", Departure(
            "multiplyUntestedLists", "tests no entry of src1Table or dstTable", "tests"
        )


def _solved():
    for kind, layouts in (("m", ("S2",)), ("ma", ("S2", "LS2"))):
        for element_type in TYPES:
            for layout in layouts:
                for size in MATRIX_SIZES:
                    name = "_".join(part for part in (f"zelmCholeskyDecomp_{kind}", element_type, size, layout) if part)
                    order = "" if size else ", where n is 3 to 6"
                    yield name, Departure(
                        "",
                        f"element strides are rounded down to whole elements{order}",
                        "permits",
                        "where an element stride is not a multiple of the element's size",
                    )


# ---- products of run-time size

# The shapes of which a row's run-time forms give the product, where it isn't those of every product, and what they
# read and write otherwise.
BOUNDS = {}
for _row in ("mma", "mama"):
    BOUNDS[_row] = (
        "src1Width = src2Height",
        "src1Height = src2Width is asked for, so that only square results can be had, and each sum has"
        " src2Height terms, whatever src1Width is",
    )
for _row in ("mTm", "mTma", "maTm", "maTma"):
    BOUNDS[_row] = ("src1 is square", "dst has src1Height rows, and src1 is read as a square of that order")
for _row in ("mmT", "mmaT", "mamT", "mamaT"):
    BOUNDS[_row] = (
        "src2 is square",
        "dst has src2Width columns, each sum src2Height terms, and src2 is read as src2Width" " rows of src2Height elements",
    )
for _row in ("mTmT", "mTmaT", "maTmT", "maTmaT"):
    BOUNDS[_row] = (
        "src1 and src2 are square",
        "dst is a square of order src1Height = src2Width, and each sum has" " src2Height terms",
    )
for _row in ("mTv", "mTva", "maTv", "maTva"):
    BOUNDS[_row] = (
        "src1 is square",
        "dst has src1Height elements, and each sum src1Width terms, so that as many elements" " of src2 are read",
    )


def _strides(operand, layout, sz, transposed):
    """The strides of a matrix for a form with element strides, as stored or with rows and columns exchanged."""
    elem = f"{operand}ElemStride" if layout.endswith("S2") else sz
    row, elem = (elem, f"{operand}RowStride") if transposed else (f"{operand}RowStride", elem)
    return {f"{operand}RowStride": row, f"{operand}ElemStride": elem}


def _dimensions(operand, transposed):
    width, height = f"{operand}Width", f"{operand}Height"
    return {width: height, height: width} if transposed else {}


def _table(operand, transposed):
    return {f"{operand}Table": f"{operand}Transposed"} if transposed else {}


def _vector_product_instead(kinds, element_type, layout):
    matrix, vector = kinds
    descriptor, sz = matrix.rstrip("T") + vector, ELEMENT_BYTES[element_type]
    arguments = _dimensions("src1", True)
    if layout.startswith("P"):
        return descriptor, layout, arguments | _table("src1", True)
    arguments |= _strides("src1", layout, sz, True)
    if not layout.endswith("S2"):
        arguments |= {"src2ElemStride": sz, "dstElemStride": sz}
    return descriptor, "LS2" if layout.startswith("L") else "S2", arguments


def _invariant_second(kinds, element_type, layout, first="src1", second="src2", exchanged=False):
    """The product by a form that takes every shape: mm, or mam. `exchanged`: of the transposes, in exchanged order."""
    sz = ELEMENT_BYTES[element_type]
    arguments = {}
    for operand, name in ((first, "src1"), (second, "src2")):
        transposed = kinds[operand].endswith("T") != exchanged
        given = {f"{operand}{suffix}": f"{operand}{suffix}" for suffix in ("Width", "Height")}
        given |= _dimensions(operand, transposed)
        if layout.startswith("P"):
            given |= {f"{operand}Table": f"{operand}Table", f"{operand}Shift": f"{operand}Shift"}
            given |= _table(operand, transposed)
            given |= {f"{operand}ObjStride": f"{operand}ObjStride"} if layout == "PS2" else {}
        else:
            given |= _strides(operand, layout, sz, transposed)
            given |= {f"{operand}{word}": f"{operand}{word}" for word in ("", "ObjStride", "Table", "Shift")}
        arguments |= {name + key[len(operand) :]: value for key, value in given.items()}
    if layout.startswith("P"):
        arguments |= _table("dst", exchanged)
    else:
        arguments |= _strides("dst", layout, sz, exchanged)
    target = layout if layout.startswith("P") else "LS2" if layout.startswith("L") else "S2"
    return "mam" if "a" in "".join(kinds.values()) else "mm", target, arguments


def _arrays(kinds, element_type, layout):
    """The product of two arrays: of mamaT the bounds are free, as the width of src1 is used in the size test only."""
    sz = ELEMENT_BYTES[element_type]
    t1, t2 = (kinds[operand].endswith("T") for operand in ("src1", "src2"))
    columns = "src2Height" if t2 else "src2Width"
    terms = "src2Width" if t2 else "src2Height"
    arguments = {
        "src1Width": columns,
        "src1Height": "src1Width" if t1 else "src1Height",
        "src2Width": columns,
        "src2Height": terms,
    }
    arguments |= _strides("src1", layout, sz, t1) | _strides("src2", layout, sz, not t2) | _strides("dst", layout, sz, False)
    return "mamaT", "LS2" if layout.startswith("L") else "S2", arguments


def _product_instead(descriptor, element_type, layout):
    first, second = operand_kinds(descriptor)
    kinds = {"src1": first, "src2": second}
    note = "{0}Transposed: a table with the entries of {0}Table in the order of its transpose's rows"
    if second.startswith("v"):
        form = _vector_product_instead((first, second), element_type, layout)
    elif "a" not in descriptor or "a" not in second:
        form = _invariant_second(kinds, element_type, layout)
    elif "a" not in first:
        form = _invariant_second(kinds, element_type, layout, "src2", "src1", exchanged=True)
    elif not layout.startswith("P"):
        form = _arrays(kinds, element_type, layout)
    else:
        copies = f"zelmCopy_ma_{element_type}_PS"
        return Instead(
            f"zelmMul_mamaT_{element_type}_S2",
            None,
            f"no form in tables gives the product of two arrays of any shape: copy both by {copies}",
        )
    target, to, arguments = form
    made = sorted(
        {value[: -len("Transposed")] for value in arguments.values() if value.endswith("Transposed")},
        key=("src1", "src2", "dst").index,
    )
    return Instead(
        "_".join(("zelmMul", target, element_type, to)), arguments, "; ".join(note.format(operand) for operand in made)
    )


def _products_of_any_shape():
    """The run-time forms of the rows of BOUNDS, but the two that give every product."""
    for row in ROWS:
        if row.operation != "Mul" or row.descriptor not in BOUNDS:
            continue
        true_where, otherwise = BOUNDS[row.descriptor]
        for element_type in TYPES:
            for layout in LAYOUTS if row.is_array else SINGLE_LAYOUTS:
                if row.descriptor == "mmT" and not layout:
                    continue
                name = "_".join(part for part in ("zelmMul", row.descriptor, element_type, layout) if part)
                yield name, Departure(
                    "",
                    f"the product only where {true_where}; otherwise {otherwise}",
                    "values",
                    f"unless {true_where}",
                    _product_instead(row.descriptor, element_type, layout),
                )


# ---- forms that follow their row, of which a caller must know one thing more than the formula


def _cautions():
    for operation, kinds, sizes in (("L2Norm", ("v", "va"), VECTOR_SIZES), ("FrobNorm", ("m", "ma"), MATRIX_SIZES)):
        thing = "vector" if operation == "L2Norm" else "matrix"
        for kind in kinds:
            for size in sizes[1:]:
                for name in both(f"zelm{operation}_{kind}_32f_{size}")[: len(kind)]:
                    yield name, f"the length of a zero {thing} is NaN, not 0, and that of an infinite one too", "where src is zero or the sum of its squares is infinite", Instead(
                        strided(name).name, {"srcElemStride": "4"}
                    )
    for kind in ("m", "ma"):
        for name in both(f"zelmInvert_{kind}_64f_3x3")[: len(kind)]:
            yield name, "a singular matrix gives infinities and NaN with ZELM_OK", "where the determinant is 0", Instead(
                strided(name).name, {"srcElemStride": "8", "dstElemStride": "8"}
            )
    for element_type in TYPES:
        for layout in ("S", "P", "L"):
            yield f"zelmLoadIdentity_ma_{element_type}_{layout}", "only object 0 is an identity: the column of the one" " runs on from object to object, behind the rows of the later ones", "where count is above 1", None


DEPARTURES = {
    name: departure
    for group in (_added_and_subtracted, _scaled, _vector_algebra, _moved, _multiplied, _solved)
    for name, departure in group()
}

# Kept apart from the departures of single members: what holds for the run-time forms of whole rows.
PRODUCT_BOUNDS = dict(_products_of_any_shape())

CAUTIONS = {name: Departure("", note, "", when, instead) for name, note, when, instead in _cautions()}
