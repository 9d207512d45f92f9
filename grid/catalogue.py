"""The catalogue: the single source of every exported name and of its argument list.

A row is an (operation, descriptor) pair. Rows, classes and argument orders stand here as data; nothing is said
per exported name. The single members that depart from their rows are in `departures.py`. `generate.py` turns both
into the headers, the exported functions, the list of exports, the machine-readable dump and the list that the tests
enumerate.

The argument order of a row is one string of words:

    NAME:KIND         an operand; KIND is v, va (vector, array of vectors), m, ma (matrix, array of matrices), a T
                      behind it for transposed use, `scalar` (one result per object) or `packed` (a plain packed
                      buffer). An operand without `a` in an array row is invariant: the same for every object.
                      `m+obj` is an invariant matrix whose list keeps an object stride that is never read.
    scratch@runtime   an argument of the run-time form only
    any other word    a by-value constant, a dimension, `count`, `pivotIndex` or `scratch`
"""

from dataclasses import dataclass, field

TYPES = ("32f", "64f")
LAYOUTS = ("", "S2", "P", "L", "PS2", "LS2")
SINGLE_LAYOUTS = ("", "S2", "P")
VECTOR_SIZES = ("", "3x1", "4x1", "5x1", "6x1")
MATRIX_SIZES = ("", "3x3", "4x4", "5x5", "6x6")

# class: (sizes, layouts)
CLASSES = {
    "SV": (VECTOR_SIZES, SINGLE_LAYOUTS),
    "AV": (VECTOR_SIZES, LAYOUTS),
    "SM": (MATRIX_SIZES, SINGLE_LAYOUTS),
    "AM": (MATRIX_SIZES, LAYOUTS),
    "cross, single": (("3x1",), SINGLE_LAYOUTS),
    "cross, array": (("3x1",), LAYOUTS),
    "copy": (("",), tuple(source + target for source in "SPL" for target in "SPL")),
    "extract, single": (("",), ("S2", "P")),
    "extract, array": (("",), ("S2", "PS2", "LS2")),
    "identity": (("",), ("S", "P", "L")),
}

# The letters of Copy and LoadIdentity stand for the layouts in which every stride is given.
LETTER_LAYOUT = {"S": "S2", "P": "PS2", "L": "LS2"}

CONSTANTS = ("val", "scale", "scale1", "scale2")
DIMENSIONS = ("len", "width", "height", "n", "src1Width", "src1Height", "src2Width", "src2Height", "src2Len")


@dataclass(frozen=True)
class Family:
    """What all members of a family share: where it lives and what its header comment says."""

    name: str
    subsystem: str
    title: str
    kernels: str  # the header that serves its exported functions
    statuses: tuple
    overlap: str
    notes: str = ""
    # What a status means here, where it is not what it means in most families.
    meanings: dict = field(default_factory=dict)
    # Whether a count of zero is ZELM_ERR_SIZE, in fixed-size forms too.
    refuses_empty: bool = False


@dataclass(frozen=True)
class Row:
    family: str
    operation: str
    descriptor: str
    cls: str
    arguments: str
    formula: str
    # The function template that serves the row and what it is given, in the order of the formula: {NAME} stands for
    # an operand or an argument, {size} for the dimensions.
    call: tuple = ()
    # Words that are signed in this row, each with the layouts in which they are.
    signed: dict = field(default_factory=dict)
    # Statuses of the family that this row never returns.
    never: tuple = ()

    @property
    def is_array(self):
        return "count" in self.arguments.split()


OK, SIZE, NULL, DIV, POS = ("ZELM_OK", "ZELM_ERR_SIZE", "ZELM_ERR_NULL_PTR", "ZELM_ERR_DIV_BY_ZERO", "ZELM_ERR_NOT_POS_DEF")
PLAIN = (OK, NULL, SIZE)
UNTESTED_ENTRIES = "a pointer or a table is null (entries of tables are not tested)"
DISAGREEING = {SIZE: "a dimension is zero, or two that must be equal differ (run-time forms)"}

ROOT_NOTES = (
    "The 32f forms with a size in the name, in the standard and L layouts, take the root from the processor's approximate "
    "reciprocal root and one Newton step, without a test: a zero {0} gives NaN, and so does a sum of squares that is "
    "infinite. All other forms take the correctly rounded root, 0 of a zero {0}: the form with an element stride (S2, LS2) "
    "serves where zeros can occur. Squares are not scaled against overflow. Orders of sums: docs/vector.md."
)

FAMILIES = {
    family.name: family
    for family in (
        Family(
            "vector-add-sub",
            "elementwise",
            "Addition and subtraction of vectors",
            "elementwise/elementwise.h",
            PLAIN,
            "dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and "
            "inside it over elements, gives in ascending order.",
            "Each element is one addition or subtraction, rounded to the element type. An invariant vector is read "
            "once, before the first object, in the fixed-size standard and L forms (the departures named at their "
            "prototypes aside), and anew for every object in all other forms.",
        ),
        Family(
            "matrix-add-sub",
            "elementwise",
            "Addition and subtraction of matrices",
            "elementwise/elementwise.h",
            PLAIN,
            "dst may be a source of the same addressing, for rows without T.",
        ),
        Family(
            "scaling",
            "elementwise",
            "Scaling by a constant",
            "elementwise/elementwise.h",
            PLAIN,
            "dst may be src of the same addressing, for rows without T.",
        ),
        Family(
            "saxpy-lcomb",
            "elementwise",
            "Scaled sums of vectors",
            "elementwise/elementwise.h",
            PLAIN,
            "dst may be a source; partial overlap gives what the ascending loop gives.",
        ),
        Family("dot-product", "vector", "Dot product", "vector/dot_product.h", PLAIN, "dst is written once per object."),
        Family(
            "cross-product",
            "vector",
            "Cross product",
            "vector/cross_product.h",
            (OK, NULL),
            "dst may be a source in the standard and L layouts.",
        ),
        Family(
            "l2-norm",
            "vector",
            "Euclidean length",
            "vector/l2_norm.h",
            PLAIN,
            "dst is written once per object.",
            ROOT_NOTES.format("vector"),
        ),
        Family(
            "frobenius-norm",
            "vector",
            "Frobenius norm",
            "vector/frobenius_norm.h",
            PLAIN,
            "dst is written once per object.",
            ROOT_NOTES.format("matrix"),
        ),
        Family(
            "trace",
            "vector",
            "Trace",
            "vector/trace.h",
            PLAIN,
            "dst must not lie on the diagonal of src.",
            "Sums run down the diagonal. All forms but the fixed-size standard ones set dst to 0 and add in place. Arrays in P "
            "and PS2 test entries 0 to n-1 of srcTable, and read those of the diagonal, i*n + i, without a test.",
        ),
        Family(
            "matrix-vector-product",
            "products",
            "Product of a matrix and a vector",
            "products/matrix_vector.h",
            PLAIN,
            "dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single or "
            "both arrays. Otherwise dst must overlap no source.",
            "For square matrices the product. In the run-time forms src1Width and src1Height are those of src1 as stored, "
            "and src2Len must equal src1Width, or src1Height where src1 is used transposed: ZELM_ERR_SIZE otherwise. The "
            "loops take them as those of the matrix as used: dst[i] for i below src1Height is the sum over t below "
            "src1Width of src1[i][t] * src2[t], of src1[t][i] * src2[t] where src1 is used transposed. The stored element "
            "(r, c) is at entry r*src1Width + c of a table, r*src1Height + c where it is used transposed. Sums run from "
            "+0 in ascending t, each partial sum stored in dst. In the fixed-size forms they begin with the first product "
            "and have an order of their own in the standard and L layouts (docs/products.md).",
            DISAGREEING,
        ),
        Family(
            "matrix-product",
            "products",
            "Product of two matrices",
            "products/matrix_matrix.h",
            PLAIN,
            "dst must overlap no source in the run-time forms; some fixed-size forms work in place (docs/products.md).",
            "For square matrices the product. In the run-time forms the widths and heights are those of the operands as "
            "stored. Two of them must be equal, ZELM_ERR_SIZE otherwise: src1Height if src1 is used transposed, else "
            "src1Width; and src2Width if src2 is used transposed, else src2Height. mma and mama ask for src1Height = "
            "src2Width instead. In mam a src2Width of 0 is ZELM_OK, and nothing is computed. The loops take them as those of the operands as used: dst[i][j] for i below src1Height "
            "and j below src2Width is the sum over t below src2Height. So mm and mam give the product of any two matrices "
            "that fit, and the other descriptors that of square ones. The stored element (r, c) of a source is at entry "
            "r*Width + c of its table, r*Height + c where it is used transposed, that of dst at r*src2Width + c; of "
            "dstTable as many entries are tested as the product of the two dimensions named first. Sums run from +0 in "
            "ascending t, each partial sum stored in dst. In the fixed-size forms they begin with the first product.",
            DISAGREEING,
        ),
        Family(
            "gaxpy",
            "products",
            "Product of a matrix and a vector, plus a vector",
            "products/matrix_vector.h",
            PLAIN,
            "dst must overlap no source.",
            "src2 has width elements, src3 and dst have height. In the va forms src3 is an array: one vector for all objects "
            "has an object stride of 0 (standard, S2, PS2; not P), or its address count times in a table (L, LS2). src3 is "
            "added to the finished sum. Sums run from +0 in "
            "ascending order, each partial sum stored in dst, but in the fixed-size standard and L forms, which begin with "
            "the first product and have an order of their own (docs/products.md).",
        ),
        Family(
            "determinant",
            "solvers",
            "Determinant",
            "solvers/determinant.h",
            PLAIN,
            "dst must overlap neither src nor scratch.",
            "Run-time forms: Gaussian elimination with partial pivoting in scratch, n*n elements and n numbers of 32 bits "
            "(one such space for all objects), not a byte more. A pivot p with not (|p| >= e) or a last element with not "
            "(|last| > e), e = 2^-23 (32f) or 2^-52 (64f), gives 0 with ZELM_OK. In an array, where a pivot fails before "
            "the last element passes, that 0 has the sign of the last element times that of the row exchanges (NaN if it "
            "is infinite). Fixed forms: expansion by minors along the rows, without a pivot or a test: in the element type "
            "(S2, P, PS2, LS2), or in x87 extended precision (standard, L) by the kernels a6_Det_*.",
        ),
        Family(
            "inverse",
            "solvers",
            "Inverse",
            "solvers/inverse.h",
            PLAIN + (DIV,),
            "dst must not overlap src.",
            "Run-time forms: the determinant and every cofactor by Gaussian elimination in scratch, n*n elements and n "
            "numbers of 32 bits (one such space for all objects), not a byte more. With e = 2^-23 (32f) or 2^-52 (64f), a "
            "pivot p of the whole matrix with not (|p| >= e) or a last element with not (|last| > e) is "
            "ZELM_ERR_DIV_BY_ZERO; in a cofactor it makes the element of the inverse zero. 3x3 and 4x4: the adjugate times "
            "the reciprocal of the determinant. 5x5 and 6x6: pivots searched in the first rows and a Schur complement. S2, "
            "P, PS2, LS2: ZELM_ERR_DIV_BY_ZERO if a determinant lies in -b < det < b, b = 1e-7 (32f) or 1e-15 (64f); "
            "column 5 is never searched. Standard, L: 3x3 and 4x4 test det = 0 exactly, but 64f 3x3, which tests 1 / det = 0: "
            "there a det of 0 gives infinities and NaN with ZELM_OK. 5x5 and 6x6 test their pivots against the band, and "
            "what remains exactly (docs/inverse.md). Reciprocals of 32f are the processor's approximation "
            "with one Newton step. A NaN is never singular in the fixed forms. A singular matrix ends the call: earlier "
            "objects are complete, its own dst and later ones are untouched (but for the standard and L forms of 32f 5x5 "
            "and 6x6, which leave working rows in row 0, in 6x6 rows 0 and 1).",
            {DIV: "a matrix is singular by the test of its form"},
        ),
        Family(
            "lu-decomposition",
            "solvers",
            "LU decomposition",
            "solvers/lu_decomposition.h",
            PLAIN + (DIV,),
            "dst may be src (same start, same strides, same table). Partial overlap of src and dst is not provided " "for.",
            "Gaussian elimination with partial pivoting (Golub and Van Loan, Matrix Computations, section 3.4): "
            "P*A = L*U. Rows of dst stay in the order of A's rows; pivotIndex[i] is the row of dst that plays row i "
            "of P*A. With r = pivotIndex[i], dst[r][j] holds L[i][j] for j < i (its unit diagonal is not stored) and "
            "U[i][j] for j >= i. pivotIndex has n entries per object, dense in every layout, those of object k at "
            "pivotIndex + k*n. A pivot p with not (|p| >= 2^-23), in both element types, ends the call with "
            "ZELM_ERR_DIV_BY_ZERO: earlier objects are complete, the failing one stands as the elimination left it, "
            "later ones are untouched.",
        ),
        Family(
            "lu-back-substitution",
            "solvers",
            "LU back substitution",
            "solvers/lu_back_substitution.h",
            PLAIN,
            "dst may be src2 only where pivotIndex is the identity.",
            "Solves A*x = b by forward and back substitution (Golub and Van Loan, Matrix Computations, section 3.1): "
            "src1 and pivotIndex are as zelmLUDecomp_* left them, src2 is b and dst is x. All arithmetic is in the "
            "element type. The diagonal is not tested: a zero on it gives infinities or NaN with ZELM_OK.",
        ),
        Family(
            "cholesky-decomposition",
            "solvers",
            "Cholesky decomposition",
            "solvers/cholesky_decomposition.h",
            PLAIN + (POS,),
            "dst may be src (same start, same strides, same table). Any other overlap is not provided for.",
            "A = L*L^T for a symmetric positive definite A (Golub and Van Loan, Matrix Computations, section 4.2). "
            "dst[i][j] holds L[i][j] for j < i and dst[i][i] holds 1 / L[i][i]. Only lower triangles, diagonals "
            "included, are read and written. A pivot d with not (d > 0) ends the call with ZELM_ERR_NOT_POS_DEF: earlier "
            "objects are complete, of the failing one everything ahead of its pivot is written, later ones are "
            "untouched. The 32f forms compute 1 / sqrt(d) in 64-bit float and round it once, but in P and PS2 in 32-bit "
            "float. In S2 and LS2 element strides are rounded down to whole elements where n is 3 to 6. Table entries "
            "are not tested. A count of zero is ZELM_ERR_SIZE; where count is signed, one below zero does nothing. An "
            "object of an array whose start comes to null ends the call there with ZELM_ERR_NULL_PTR.",
            {
                NULL: "a pointer or a table is null, or an object of an array starts at null (entries of tables are not "
                "tested)",
                SIZE: "n or count is zero",
            },
            refuses_empty=True,
        ),
        Family(
            "cholesky-back-substitution",
            "solvers",
            "Cholesky back substitution",
            "solvers/cholesky_back_substitution.h",
            PLAIN,
            "dst may be src2 (same start, same strides, same table). It must not overlap src1.",
            "Solves A*x = b by forward and back substitution: src1 is as zelmCholeskyDecomp_* left it, src2 is b and "
            "dst is x. All arithmetic is in the element type, and nothing is divided: the diagonal of src1 holds "
            "reciprocals. It is not tested. Table entries are not tested. A count of zero is ZELM_ERR_SIZE; an n or a "
            "count below zero does nothing. An object of an array whose start comes to null is passed over.",
            {NULL: UNTESTED_ENTRIES, SIZE: "n or count is zero"},
            refuses_empty=True,
        ),
        Family(
            "qr-decomposition",
            "solvers",
            "QR decomposition",
            "solvers/qr_decomposition.h",
            PLAIN + (DIV,),
            "dst may be src (same start, same strides, same table). Any other overlap is not provided for.",
            "A = Q*R by Householder reflections (Golub and Van Loan, Matrix Computations, section 5.2), A of height rows "
            "and width columns. dst[i][j] holds R[i][j] for j >= i, and below the diagonal of column k the reflector "
            "vector v of H = I - (2 / v.v) * v * v^T whose element k is 1 and not stored. A square matrix has no reflector "
            "for its last column. scratch takes height elements, also in array forms; its contents don't matter. A "
            "column whose sum of squares q, from the diagonal down, has not (q >= 2^-23), in both element types, ends the "
            "call with ZELM_ERR_DIV_BY_ZERO: earlier objects are complete, the failing one stands as the earlier "
            "reflectors left it, later ones are untouched. A width above height always ends so.",
            {DIV: "a column fails the threshold, or width is above height"},
        ),
        Family(
            "qr-back-substitution",
            "solvers",
            "QR back substitution",
            "solvers/qr_back_substitution.h",
            PLAIN,
            "dst may be src2 (same start, same strides, same table). It must not overlap src1, nor scratch any operand.",
            "Solves A*x = b, for a height above width in the sense of least squares: src1 is as zelmQRDecomp_* left it, "
            "src2 is b with height elements and dst is x with width elements. scratch takes height elements, also in "
            "array forms; its contents don't matter. All arithmetic is in the element type. The diagonal of R is not "
            "tested: a zero on it gives infinities or NaN with ZELM_OK. Of src2Table in P and PS2, and of dstTable, the "
            "first width entries are tested. A width above height is not refused, and reads scratch behind its height "
            "elements.",
        ),
        Family(
            "transpose",
            "movement",
            "Transpose",
            "movement/transpose.h",
            PLAIN,
            "dst must not overlap src.",
            "Elements are moved bit for bit. width and height are those of src as stored. In the run-time P and PS2 forms "
            "the tables are numbered with the row length of the other operand: element (i, j) of src is at "
            "srcTable[i*height + j] and its place in dst at dstTable[j*width + i]. For square matrices that is the "
            "ordinary table; for others the numbers reach behind the width*height entries that are tested.",
        ),
        Family(
            "copy",
            "movement",
            "Copy between layouts",
            "movement/copy.h",
            PLAIN,
            "src and dst must not overlap partly.",
            "Elements are moved bit for bit. The two letters of the name are the layouts of src and dst: S for S2, P for "
            "PS2, L for LS2. Table entries are not tested, and neither are the width and height of matrices: zero "
            "copies nothing.",
            {NULL: UNTESTED_ENTRIES, SIZE: "len is zero"},
        ),
        Family(
            "extract",
            "movement",
            "Extraction to a packed buffer",
            "movement/extract.h",
            PLAIN,
            "src and dst must not overlap.",
            "Elements are moved bit for bit. The packed position of element (i, j) of object k is "
            "k*width*height + i*width + j, in elements; width and height are those of the packed matrices. Table entries "
            "are not tested. A count of zero is ZELM_ERR_SIZE.",
            {NULL: UNTESTED_ENTRIES, SIZE: "a dimension or count is zero"},
            refuses_empty=True,
        ),
        Family(
            "identity",
            "movement",
            "Identity matrices",
            "movement/identity.h",
            PLAIN,
            "There is no source.",
            "The letter of the name is the layout of dst: S for S2, P for PS2, L for LS2. The column of the one runs on "
            "from row to row and from object to object: in object k the one of row i stands at column k*height + i, "
            "behind the row where that is not below width. So only object 0 is an identity: call once per object, or "
            "set height to fit. An element stride below the size of an element counts as that size, a row stride below "
            "width elements as that, and so does in P an object stride below the size of an element; the strides are "
            "compared as unsigned numbers. width and height are signed, and not tested: below 1 there is no row or "
            "column, but each row still gets its one. Table entries are not tested. A count of zero is ZELM_ERR_SIZE.",
            {NULL: UNTESTED_ENTRIES, SIZE: "count is zero"},
            refuses_empty=True,
        ),
    )
}


def operand_kinds(descriptor):
    """The kinds of a descriptor's operands: "maTm" is "maT", "m"."""
    kinds = []
    for letter in descriptor:
        if letter in "aT":
            kinds[-1] += letter
        else:
            kinds.append(letter)
    return kinds


def _element(kind, name):
    """The element of an operand in a formula."""
    index = "[j]" if kind[0] == "v" else "[j][i]" if kind.endswith("T") else "[i][j]"
    return name + "[k]" * ("a" in kind) + index


FUNCTORS = {"Add": "Addition", "Sub": "Subtraction", "Mul": "Multiplication"}
SIGNS = {"Add": "+", "Sub": "-", "Mul": "*"}


def _elementwise(family, op, descriptor, cls, first, second, dimensions, reverse=False):
    """A row d = a op b. `first` and `second` are NAME:KIND or the constant; `reverse` lists the second first."""
    names = [word.split(":")[0] for word in (first, second)]
    kinds = [word.split(":")[1] if ":" in word else "" for word in (first, second)]
    array = any("a" in kind for kind in kinds)
    target = (kinds[0] or kinds[1])[0] + "a" * array
    terms = [_element(kind, name) if kind else name for kind, name in zip(kinds, names)]
    listed = (second, first) if reverse else (first, second)
    return Row(
        family,
        op,
        descriptor,
        cls,
        f"{listed[0]} {listed[1]} dst:{target} {dimensions}" + " count" * array,
        f"{_element(target, 'dst')} = {terms[0]} {SIGNS[op]} {terms[1]}",
        (f"{'array' if array else 'single'}<{FUNCTORS[op]}>", f"{{{names[0]}}}", f"{{{names[1]}}}", "{dst}", "{size}")
        + ("{count}",) * array,
    )


def _vector_add_sub():
    for op in ("Add", "Sub"):
        for descriptor in (
            ("vv", "vc") + (("cv",) if op == "Sub" else ()) + ("vav", "vac", "vava") + (("vva", "cva") if op == "Sub" else ())
        ):
            first, second = operand_kinds(descriptor)
            cls = "AV" if "a" in descriptor else "SV"
            if "c" in descriptor:
                operands = ("val", f"src:{second}") if first == "c" else (f"src:{first}", "val")
            else:
                operands = (f"src1:{first}", f"src2:{second}")
            # The list has the vector before the constant also where the formula has it behind.
            yield _elementwise("vector-add-sub", op, descriptor, cls, *operands, "len", reverse=first == "c")


def _matrix_add_sub():
    single = ("mm", "mmT", "mTm", "mTmT")
    array_first = ("mam", "mamT", "mama", "mamaT", "maTm", "maTmT", "maTma", "maTmaT")
    invariant_first = ("mma", "mmaT", "mTma", "mTmaT")
    for op in ("Add", "Sub"):
        for descriptor in single + array_first + (invariant_first if op == "Sub" else ()):
            first, second = operand_kinds(descriptor)
            yield _elementwise(
                "matrix-add-sub",
                op,
                descriptor,
                "AM" if "a" in descriptor else "SM",
                f"src1:{first}",
                f"src2:{second}",
                "width height",
            )


def _scaling():
    for descriptor, cls in (("vc", "SV"), ("vac", "AV"), ("mc", "SM"), ("mTc", "SM"), ("mac", "AM"), ("maTc", "AM")):
        source = operand_kinds(descriptor)[0]
        yield _elementwise(
            "scaling", "Mul", descriptor, cls, f"src:{source}", "val", "len" if source[0] == "v" else "width height"
        )


def _saxpy_lcomb():
    for op, descriptors in (("Saxpy", ("vv", "vav", "vava", "vva")), ("LComb", ("vv", "vav", "vava"))):
        for descriptor in descriptors:
            first, second = operand_kinds(descriptor)
            array = "a" in descriptor
            target = "va" if array else "v"
            scale1, scale2 = ("scale", "") if op == "Saxpy" else ("scale1", " scale2")
            second_scaled = "{src2}" if op == "Saxpy" else "Scaled({src2}, scale2)"
            yield Row(
                "saxpy-lcomb",
                op,
                descriptor,
                "AV" if array else "SV",
                f"src1:{first} {scale1} src2:{second}{scale2} dst:{target} len" + " count" * array,
                f"{_element(target, 'dst')} = {_element(first, 'src1')} * {scale1} + {_element(second, 'src2')}"
                + " * scale2" * (op == "LComb"),
                (
                    "array<Addition, Invariant::ReadAnew>" if array else "single<Addition>",
                    f"Scaled({{src1}}, {scale1})",
                    second_scaled,
                    "{dst}",
                    "{size}",
                )
                + ("{count}",) * array,
            )


def _vector_algebra():
    for descriptor in ("vv", "vav", "vava"):
        first, second = operand_kinds(descriptor)
        array = "a" in descriptor
        yield Row(
            "dot-product",
            "DotProduct",
            descriptor,
            "AV" if array else "SV",
            f"src1:{first} src2:{second} dst:scalar len" + " count" * array,
            f"dst{'[k]' * array} = sum over j of {_element(first, 'src1')} * {_element(second, 'src2')}",
            ("dotArray" if array else "dotSingle", "{src1}", "{src2}", "{dst}", "{size}") + ("{count}",) * array,
        )
    for descriptor in ("vv", "vav", "vava", "vva"):
        first, second = operand_kinds(descriptor)
        array = "a" in descriptor
        yield Row(
            "cross-product",
            "CrossProduct",
            descriptor,
            "cross, array" if array else "cross, single",
            f"src1:{first} src2:{second} dst:{'va' if array else 'v'}" + " count" * array,
            "dst = src1 x src2",
            ("crossArray" if array else "crossSingle", "{src1}", "{src2}", "{dst}", "{size}") + ("{count}",) * array,
        )
    for kind, cls in (("v", "SV"), ("va", "AV")):
        yield Row(
            "l2-norm",
            "L2Norm",
            kind,
            cls,
            f"src:{kind} dst:scalar len" + " count" * (kind == "va"),
            f"dst{'[k]' * (kind == 'va')} = sqrt(sum over j of {_element(kind, 'src')}^2)",
            ("l2NormArray" if kind == "va" else "l2NormSingle", "{src}", "{dst}", "{size}") + ("{count}",) * (kind == "va"),
        )
    for kind, cls in (("m", "SM"), ("ma", "AM")):
        k, count = ("[k]", " count") if kind == "ma" else ("", "")
        yield Row(
            "frobenius-norm",
            "FrobNorm",
            kind,
            cls,
            f"src:{kind} width height dst:scalar{count}",
            f"dst{k} = sqrt(sum over i, j of {_element(kind, 'src')}^2)",
            ("frobeniusArray" if count else "frobeniusSingle", "{src}", "{dst}", "{size}") + ("{count}",) * bool(count),
        )
        yield Row(
            "trace",
            "Trace",
            kind,
            cls,
            f"src:{kind} n dst:scalar{count}",
            f"dst{k} = sum over i of src{k}[i][i]",
            ("traceArray" if count else "traceSingle", "{src}", "{dst}", "{size}") + ("{count}",) * bool(count),
        )


def _products():
    for descriptor in ("mv", "mTv", "mva", "mTva", "mav", "maTv", "mava", "maTva"):
        first, second = operand_kinds(descriptor)
        array = "a" in descriptor
        yield Row(
            "matrix-vector-product",
            "Mul",
            descriptor,
            "AM" if array else "SM",
            f"src1:{first} src1Width src1Height src2:{second} src2Len dst:{'va' if array else 'v'}" + " count" * array,
            "dst = src1 * src2",
            ("multiplyVectors" if array else "multiplyVector", "{src1}", "{src2}", "{dst}", "{size}") + ("{count}",) * array,
        )
    for descriptor in (
        "mm",
        "mmT",
        "mTm",
        "mTmT",
        "mam",
        "mamT",
        "mama",
        "mamaT",
        "maTm",
        "maTmT",
        "maTma",
        "maTmaT",
        "mma",
        "mmaT",
        "mTma",
        "mTmaT",
    ):
        first, second = operand_kinds(descriptor)
        array = "a" in descriptor
        yield Row(
            "matrix-product",
            "Mul",
            descriptor,
            "AM" if array else "SM",
            f"src1:{first} src1Width src1Height src2:{second} src2Width src2Height dst:{'ma' if array else 'm'}"
            + " count" * array,
            "dst = src1 * src2",
            ("multiplyArray" if array else "multiplySingle", "{src1}", "{src2}", "{dst}", "{size}") + ("{count}",) * array,
        )
    yield Row(
        "gaxpy",
        "Gaxpy",
        "v",
        "SM",
        "src1:m src2:v src3:v dst:v width height",
        "dst = src1 * src2 + src3",
        ("gaxpy", "{src1}", "{src2}", "{src3}", "{dst}", "{size}"),
    )
    yield Row(
        "gaxpy",
        "Gaxpy",
        "va",
        "AM",
        "src1:m src2:va src3:va dst:va width height count",
        "dst[k] = src1 * src2[k] + src3[k]",
        ("gaxpys", "{src1}", "{src2}", "{src3}", "{dst}", "{size}", "{count}"),
    )


def _solvers():
    for kind, cls in (("m", "SM"), ("ma", "AM")):
        k, count = ("[k]", " count") if kind == "ma" else ("", "")
        yield Row(
            "determinant",
            "Det",
            kind,
            cls,
            f"src:{kind} n scratch@runtime dst:scalar{count}",
            f"dst{k} = determinant of src{k}",
            ("determinantArray" if count else "determinantSingle", "{src}", "{scratch}", "{dst}", "{size}")
            + ("{count}",) * bool(count)
            + ("{kernel}",),
        )
        yield Row(
            "inverse",
            "Invert",
            kind,
            cls,
            f"src:{kind} n scratch@runtime dst:{kind}{count}",
            f"dst{k} = inverse of src{k}",
            ("invertArray" if count else "invertSingle", "{src}", "{scratch}", "{dst}", "{size}") + ("{count}",) * bool(count),
        )
        yield Row(
            "lu-decomposition",
            "LUDecomp",
            kind,
            cls,
            f"src:{kind} pivotIndex dst:{kind} n{count}",
            f"dst{k}, pivotIndex{k} = the factors L and U of src{k} and the order of their rows",
            ("luDecompArray" if count else "luDecompSingle", "{src}", "{pivotIndex}", "{dst}", "{size}")
            + ("{count}",) * bool(count),
        )
        yield Row(
            "cholesky-decomposition",
            "CholeskyDecomp",
            kind,
            cls,
            f"src:{kind} dst:{kind} n{count}",
            f"dst{k} = the factor L of src{k}",
            ("choleskyArray" if count else "choleskySingle", "{src}", "{dst}", "{size}") + ("{count}",) * bool(count),
            signed={"count": ("", "S2", "L", "LS2")} if count else {},
        )
        yield Row(
            "qr-decomposition",
            "QRDecomp",
            kind,
            cls,
            f"src:{kind} scratch dst:{kind} width height{count}",
            f"dst{k} = R and the reflectors of src{k}",
            ("qrArray" if count else "qrSingle", "{src}", "{scratch}", "{dst}", "{size}") + ("{count}",) * bool(count),
        )
    for descriptor, cls in (("mv", "SM"), ("mva", "AM"), ("mava", "AM")):
        matrix, vector = operand_kinds(descriptor)
        kept = "m+obj" if descriptor == "mva" else matrix
        k, count = ("[k]", " count") if "a" in descriptor else ("", "")
        km = "[k]" * (matrix == "ma")
        yield Row(
            "lu-back-substitution",
            "LUBackSubst",
            descriptor,
            cls,
            f"src1:{kept} pivotIndex src2:{vector} dst:{vector} n{count}",
            f"dst{k} = x with A*x = src2{k}; src1{km} and pivotIndex{km} hold the LU factors of A",
            ("luBackSubstArray" if count else "luBackSubstSingle", "{src1}", "{pivotIndex}", "{src2}", "{dst}", "{size}")
            + ("{count}",) * bool(count),
        )
        yield Row(
            "cholesky-back-substitution",
            "CholeskyBackSubst",
            descriptor,
            cls,
            f"src1:{matrix} src2:{vector} dst:{vector} n{count}",
            f"dst{k} = x with A*x = src2{k}; src1{km} holds the Cholesky factor of A",
            ("choleskySolveArray" if count else "choleskySolveSingle", "{src1}", "{src2}", "{dst}", "{size}")
            + ("{count}",) * bool(count),
            signed={"n": LAYOUTS, "count": LAYOUTS},
        )
        yield Row(
            "qr-back-substitution",
            "QRBackSubst",
            descriptor,
            cls,
            f"src1:{kept} scratch src2:{vector} dst:{vector} width height{count}",
            f"dst{k} = x that minimises |A*x - src2{k}|; src1{km} holds the QR factors of A",
            ("qrSolveArray" if count else "qrSolveSingle", "{src1}", "{scratch}", "{src2}", "{dst}", "{size}")
            + ("{count}",) * bool(count),
        )


def _movement():
    for kind, cls in (("m", "SM"), ("ma", "AM")):
        k, count = ("[k]", " count") if kind == "ma" else ("", "")
        yield Row(
            "transpose",
            "Transpose",
            kind,
            cls,
            f"src:{kind} width height dst:{kind}{count}",
            f"dst{k}[j][i] = src{k}[i][j]",
            ("transposeArray" if count else "transposeSingle", "{src}", "{dst}", "{size}") + ("{count}",) * bool(count),
        )
    yield Row(
        "copy",
        "Copy",
        "va",
        "copy",
        "src:va dst:va len count",
        "dst[k][j] = src[k][j]",
        ("copyVectors", "{src}", "{dst}", "{size}", "{count}"),
    )
    yield Row(
        "copy",
        "Copy",
        "ma",
        "copy",
        "src:ma dst:ma width height count",
        "dst[k][i][j] = src[k][i][j]",
        ("copyMatrices", "{src}", "{dst}", "{size}", "{count}"),
        never=(SIZE,),
    )
    for kind in ("v", "m", "mT", "va", "ma", "maT"):
        array = "a" in kind
        dimensions = "len" if kind[0] == "v" else "width height"
        yield Row(
            "extract",
            "Extract",
            kind,
            "extract, array" if array else "extract, single",
            f"src:{kind} dst:packed {dimensions}" + " count" * array,
            "dst = the elements of src, packed",
            ("extractArray" if array else "extractSingle", "{src}", "{dst}", "{size}") + ("{count}",) * array,
        )
    yield Row(
        "identity",
        "LoadIdentity",
        "ma",
        "identity",
        "dst:ma width height count",
        "dst[k] = ones on a running diagonal, zeros elsewhere",
        ("identities", "{dst}", "width", "height", "{count}"),
        signed={"width": ("S", "P", "L"), "height": ("S", "P", "L")},
    )


ROWS = tuple(
    row
    for rows in (_vector_add_sub, _matrix_add_sub, _scaling, _saxpy_lcomb, _vector_algebra, _products, _solvers, _movement)
    for row in rows()
)


# The kernels: functions beside the grid, exported under names of their own, that serve members of fixed size.
KERNEL_LAYOUTS = ("", "L")
KERNEL_ROWS = (
    Row("determinant", "Det", "m", "SM", "src:m dst:scalar", "dst = determinant of src"),
    Row("determinant", "Det", "ma", "AM", "src:ma dst:scalar count", "dst[k] = determinant of src[k]"),
)
KERNEL_NOTES = (
    "Evaluate in x87 extended precision, or in what the caller's control word says, and round to the element type at the "
    "store and, in orders 4 to 6, some minors before: docs/inverse.md names them. The functions zelmDet_* of the standard "
    "and L layouts call them and are what callers use: a kernel tests nothing but the entries of srcTable. Result: 0, "
    "or -2 at a null entry, with the determinants before it written."
)
