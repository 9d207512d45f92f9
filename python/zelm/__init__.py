"""Universal functions over stacks of small vectors and matrices, 32-bit and 64-bit float.

The last one or two axes of an array are a vector or a matrix, the leading ones a stack of them, as in numpy.linalg.
Arrays may lie as they do: any strides, any broadcasting, nothing is copied.
"""

from numpy.linalg import LinAlgError

from zelm._core import libzelm_version
from zelm._functions import (
    add,
    axpy,
    cho_factor,
    cho_solve,
    cholesky,
    cross,
    det,
    dot,
    frobenius,
    gaxpy,
    inv,
    lcomb,
    lstsq,
    lu_factor,
    lu_solve,
    matmul,
    matvec,
    norm,
    qr,
    scale,
    solve,
    subtract,
    trace,
    transpose,
)

__version__ = "4.2.0"

__all__ = [
    "LinAlgError",
    "add",
    "axpy",
    "cho_factor",
    "cho_solve",
    "cholesky",
    "cross",
    "det",
    "dot",
    "frobenius",
    "gaxpy",
    "inv",
    "lcomb",
    "libzelm_version",
    "lstsq",
    "lu_factor",
    "lu_solve",
    "matmul",
    "matvec",
    "norm",
    "qr",
    "scale",
    "solve",
    "subtract",
    "trace",
    "transpose",
]
