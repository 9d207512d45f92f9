"""What the contract asks of a row that its peers don't do: the classes of rows that are behind their fastest peer."""

FIXED_METHOD = "a fixed method (run-time Det and Invert)"
EXTENDED = "determinants in extended precision, or with a proof"
ORDERED = "sums in a fixed order"
PIVOTS = "pivots and thresholds (LU, Cholesky), a reflector's second product (QR)"
UNFUSED = "multiplication and addition never fused (v3, v4)"
LISTS = "lists: null tests, shifts, questions of overlap"
STRIDES = "strides as arguments"
TESTS = "tests of pointers and strides, of tables in P"
NOTHING = "nothing: left to make faster"

SUMS = ("DotProduct", "L2Norm", "FrobNorm")
MULTIPLYING = ("Gaxpy", "CrossProduct", "Saxpy", "LComb", *SUMS)


def reason(row, target):
    """The first of the reasons that fits: from those of one operation to those of a layout."""
    op = row.operation
    if op in ("Det", "Invert") and row.is_run_time:
        return FIXED_METHOD
    if op == "Det" and row.layout in ("standard", "L"):
        return EXTENDED
    if op in SUMS and (row.is_run_time or row.peer == "Eigen"):
        return ORDERED
    if op.endswith("Decomp"):
        return PIVOTS
    if row.is_single:
        return TESTS
    if row.layout in ("L", "LS2"):
        return LISTS
    if row.layout in ("S2", "PS2"):
        return STRIDES
    is_product = op == "Mul" and "c" not in row.descriptor
    if target in ("x64-v3", "x64-v4") and (is_product or op in MULTIPLYING or op.endswith("BackSubst") or op == "Invert"):
        return UNFUSED
    return NOTHING
