"""What NumPy computes for the loops: objects that the library refuses, and sizes that it has no true form for.

A loop calls these functions with the numbers of the objects (None: all of them) and views of its operands, one
object per entry of the first axis, sources ahead of results. Each writes its results and returns how many of the objects
NumPy has no result for; these are filled with NaN.
"""

import numpy as np
from numpy import linalg


def _fill(at, result, value):
    result[slice(None) if at is None else at] = value


def _chosen(at, *sources):
    return sources if at is None else tuple(source[at] for source in sources)


def _where_regular(function, a, *others):
    """`function` of the matrices, and how many of them have a pivot that is exactly zero. These get NaN: NumPy stops a
    whole stack for one of them."""
    with np.errstate(all="ignore"):
        try:
            return function(a, *others), 0
        except linalg.LinAlgError:
            regular = linalg.slogdet(a)[0] != 0
        shape = others[0].shape if others else a.shape
        results = np.full(shape, np.nan, a.dtype)
        results[regular] = function(a[regular], *(other[regular] for other in others))
    return results, len(a) - np.count_nonzero(regular)


def inv(at, a, result):
    inverse, refused = _where_regular(linalg.inv, *_chosen(at, a))
    _fill(at, result, inverse)
    return refused


def solve(at, a, b, result):
    a, b = _chosen(at, a, b)
    columns = b if b.ndim == 3 else b[..., np.newaxis]
    x, refused = _where_regular(linalg.solve, a, columns)
    _fill(at, result, x.reshape(b.shape))
    return refused


def det(at, a, result):
    (a,) = _chosen(at, a)
    with np.errstate(all="ignore"):
        _fill(at, result, linalg.det(a))
    return 0


def _one_by_one(function, sources, shape, dtype):
    """`function` of each object. NumPy stops a stack at the first object that fails."""
    results = np.full(shape, np.nan, dtype)
    refused = 0
    for k, objects in enumerate(zip(*sources)):
        try:
            with np.errstate(all="ignore"):
                results[k] = function(*objects)
        except linalg.LinAlgError:
            refused += 1
    return results, refused


def cholesky(at, a, result):
    (a,) = _chosen(at, a)
    factors, refused = _one_by_one(linalg.cholesky, (a,), a.shape, a.dtype)
    _fill(at, result, factors)
    return refused


def cho_factor(at, a, result):
    (a,) = _chosen(at, a)
    factors, refused = _one_by_one(linalg.cholesky, (a,), a.shape, a.dtype)
    diagonal = np.arange(a.shape[-1])
    factors[:, diagonal, diagonal] = 1 / factors[:, diagonal, diagonal]
    _fill(at, result, factors)
    return refused


def _least_squares(a, b):
    if not (np.isfinite(a).all() and np.isfinite(b).all()):  # a ValueError of LAPACK's, from some versions of NumPy
        raise linalg.LinAlgError
    return linalg.lstsq(a, b, rcond=None)[0]


def lstsq(at, a, b, result):
    a, b = _chosen(at, a, b)
    shape = (a.shape[0], a.shape[2], *b.shape[2:])
    x, refused = _one_by_one(_least_squares, (a, b), shape, b.dtype)
    _fill(at, result, x)
    return refused


def qr(at, a, factor, tau):
    (a,) = _chosen(at, a)
    with np.errstate(all="ignore"):
        h, t = linalg.qr(a, mode="raw")
    _fill(at, factor, h)
    _fill(at, tau, t)
    return 0


def matmul(at, a, b, result):
    np.matmul(a, b, out=result)
    return 0


def matvec(at, a, x, result):
    np.matmul(a, x[..., np.newaxis], out=result[..., np.newaxis])
    return 0


def gaxpy(at, a, x, z, result):
    result[...] = np.matmul(a, x[..., np.newaxis])[..., 0] + z
    return 0


def _dot_in_pieces(x, y, length=1 << 13):
    pieces = (slice(first, first + length) for first in range(0, len(x), length))
    return sum(float(np.dot(np.ascontiguousarray(x[piece]), np.ascontiguousarray(y[piece]))) for piece in pieces)


def dot(at, x, y, result):
    for k in range(len(x)):
        result[k] = _dot_in_pieces(x[k], y[k])
    return 0


def norm(at, x, result):
    for k in range(len(x)):
        result[k] = np.sqrt(_dot_in_pieces(x[k], x[k]))
    return 0


def frobenius(at, a, result):
    for k in range(len(a)):
        result[k] = linalg.norm(a[k])
    return 0


def trace(at, a, result):
    result[...] = np.trace(a, axis1=-2, axis2=-1)
    return 0
