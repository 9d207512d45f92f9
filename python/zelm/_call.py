"""How a function of the module reaches its universal function: errors in NumPy's words, and Dask's arrays."""

import functools
import sys
from dataclasses import dataclass, field

import numpy as np
from numpy.linalg import LinAlgError

from zelm import _core

SINGULAR = "Singular matrix"
NOT_POSITIVE = "Matrix is not positive definite"


def universal(matrices, vectors=None):
    """A decorator: plain calls go to the universal function at once, all others to the decorated function.

    `vectors` serves a last operand that has one dimension, or one less than the first.
    """

    def decorate(function):
        return functools.update_wrapper(_core.universal(function, matrices, vectors), function)

    return decorate


@dataclass(frozen=True)
class Chunk:
    """What a Dask array's __array_ufunc__ is given for a universal function: the call of one chunk."""

    name: str
    signature: str
    options: dict = field(default_factory=dict)

    @property
    def __name__(self):
        return self.name

    @property
    def nin(self):
        return self.signature.split("->")[0].count("(")

    @property
    def nout(self):
        return self.signature.split("->")[1].count("(")

    def __call__(self, *arrays):
        import zelm

        function = getattr(zelm, self.name)
        if self.name == "lu_solve":
            return function(arrays[:2], *arrays[2:], **self.options)
        return function(*arrays, **self.options)

    def __dask_tokenize__(self):
        return self.name, self.signature, tuple(sorted(self.options.items()))


def dask_array(arrays):
    """The first of the arrays that is Dask's, or None."""
    module = sys.modules.get("dask.array")
    if module is None:
        return None
    return next((array for array in arrays if isinstance(array, module.Array)), None)


def through_dask(array, chunk, arrays, options):
    """The call as NumPy's protocol makes it."""
    names = set(options) - {"axes", "axis", "keepdims"}
    if names:
        raise TypeError(f"{chunk.name}() takes no {', '.join(sorted(names))} with Dask arrays")
    dtype = np.result_type(*(getattr(a, "dtype", type(a)) for a in arrays), np.float32)
    dtype = np.dtype(np.float32 if dtype == np.float32 else np.float64)
    dtypes = (dtype, np.dtype(np.uint32)) if chunk.name == "lu_factor" else (dtype,) * chunk.nout
    return array.__array_ufunc__(chunk, "__call__", *arrays, output_dtypes=dtypes[0] if chunk.nout == 1 else dtypes, **options)


def plain(name, function, arrays, out, options, signature=None):
    """A function that has a result for every object."""
    if out is not None:
        options["out"] = out
    lazy = dask_array(arrays)
    if lazy is not None:
        return through_dask(lazy, Chunk(name, signature or function.signature), arrays, options)
    return _core.call(function, *arrays, **options)


def refusing(name, function, arrays, out, options, singular, message=SINGULAR):
    """A function of square matrices, or one that may have no result for an object (singular is not None)."""
    if out is not None:
        options["out"] = out
    if singular not in ("raise", "nan", None):
        raise ValueError(f"singular must be 'raise' or 'nan', not {singular!r}")
    lazy = dask_array(arrays)
    if lazy is not None:
        chosen = {} if singular is None else {"singular": singular}
        return through_dask(lazy, Chunk(name, function.signature, chosen), arrays, options)
    try:
        result = _core.call(function, *arrays, **options)
    except ValueError:
        if options.get("axes") is None:
            check_square(function, arrays[0])
        raise
    if singular == "raise" and _core.refused():
        raise LinAlgError(message)
    return result


def check_square(function, a):
    """Raises what numpy.linalg raises for a matrix that isn't square, or isn't one."""
    a = np.asanyarray(a)
    if a.ndim < 2:
        raise LinAlgError(f"{a.ndim}-dimensional array given. Array must be at least two-dimensional") from None
    if function.signature.startswith("(n,n)") and a.shape[-1] != a.shape[-2]:
        raise LinAlgError("Last 2 dimensions of the array must be square") from None


def is_vector(a, b):
    """Whether b is a vector or a stack of vectors beside the stack of matrices a, by the rule of numpy.linalg.solve."""
    return np.ndim(b) in (1, np.ndim(a) - 1)
