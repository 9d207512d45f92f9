from typing import Any, Literal, Sequence, overload

from numpy import ndarray
from numpy.linalg import LinAlgError as LinAlgError
from numpy.typing import ArrayLike, NDArray

Out = ndarray | tuple[ndarray | None, ...] | None
Axes = Sequence[tuple[int, ...] | int]
Singular = Literal["raise", "nan"]
# A number for a single object, an array for a stack; Dask arrays for Dask arrays.
Result = Any

__version__: str

def libzelm_version() -> str: ...
def add(
    x1: ArrayLike,
    x2: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def subtract(
    x1: ArrayLike,
    x2: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def scale(
    x: ArrayLike,
    factor: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def axpy(
    a: ArrayLike,
    x: ArrayLike,
    y: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def lcomb(
    a: ArrayLike,
    x: ArrayLike,
    b: ArrayLike,
    y: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def transpose(
    a: ArrayLike, /, out: Out = None, *, axes: Axes = ..., dtype: Any = ...
) -> Result: ...
def matmul(
    x1: ArrayLike,
    x2: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def matvec(
    a: ArrayLike,
    x: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def gaxpy(
    a: ArrayLike,
    x: ArrayLike,
    z: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def cross(
    x1: ArrayLike,
    x2: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    axis: int = ...,
    dtype: Any = ...,
) -> Result: ...
def dot(
    x1: ArrayLike,
    x2: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    axis: int = ...,
    keepdims: bool = ...,
    dtype: Any = ...,
) -> Result: ...
def norm(
    x: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    axis: int = ...,
    keepdims: bool = ...,
    dtype: Any = ...,
) -> Result: ...
def frobenius(
    a: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    keepdims: bool = ...,
    dtype: Any = ...,
) -> Result: ...
def trace(
    a: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    keepdims: bool = ...,
    dtype: Any = ...,
) -> Result: ...
def det(
    a: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    keepdims: bool = ...,
    dtype: Any = ...,
) -> Result: ...
def inv(
    a: ArrayLike,
    /,
    out: Out = None,
    *,
    singular: Singular = "raise",
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def solve(
    a: ArrayLike,
    b: ArrayLike,
    /,
    out: Out = None,
    *,
    singular: Singular = "raise",
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def lu_factor(
    a: ArrayLike, /, out: Out = None, *, singular: Singular = "raise", axes: Axes = ...
) -> tuple[Result, Result]: ...
def lu_solve(
    lu_and_piv: tuple[ArrayLike, ArrayLike],
    b: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
) -> Result: ...
def cholesky(
    a: ArrayLike,
    /,
    out: Out = None,
    *,
    singular: Singular = "raise",
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def cho_factor(
    a: ArrayLike,
    /,
    out: Out = None,
    *,
    singular: Singular = "raise",
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
def cho_solve(
    c: ArrayLike,
    b: ArrayLike,
    /,
    out: Out = None,
    *,
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
@overload
def qr(
    a: ArrayLike, /, mode: Literal["reduced", "complete", "raw"] = "reduced"
) -> tuple[Result, Result]: ...
@overload
def qr(a: ArrayLike, /, mode: Literal["r"]) -> NDArray[Any]: ...
def lstsq(
    a: ArrayLike,
    b: ArrayLike,
    /,
    out: Out = None,
    *,
    singular: Singular = "raise",
    axes: Axes = ...,
    dtype: Any = ...,
) -> Result: ...
