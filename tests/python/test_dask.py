"""Dask arrays through NumPy's protocol, xarray objects by apply_ufunc."""

import layouts
import numpy as np
import pytest

import zelm

da = pytest.importorskip("dask.array")
xr = pytest.importorskip("xarray")
N = 40
A = layouts.definite(1, (N, 4, 4), np.float64)
B = layouts.random(2, (N, 4, 3), np.float64)
V = layouts.random(3, (N, 4), np.float64)


def chunked(array, rows=7):
    return da.from_array(array, chunks=(rows,) + array.shape[1:])


CALLS = {
    "add": (zelm.add, A, A[::-1]),
    "subtract": (zelm.subtract, V, V[::-1]),
    "scale": (zelm.scale, A, V[:, 0]),
    "axpy": (zelm.axpy, V[:, 0], V, V[::-1]),
    "lcomb": (zelm.lcomb, V[:, 0], V, V[:, 1], V[::-1]),
    "transpose": (zelm.transpose, B),
    "matmul": (zelm.matmul, A, B),
    "matvec": (zelm.matvec, A, V),
    "gaxpy": (zelm.gaxpy, A, V, V[::-1]),
    "cross": (zelm.cross, V[:, :3], V[:, 1:]),
    "dot": (zelm.dot, V, V[::-1]),
    "norm": (zelm.norm, V),
    "frobenius": (zelm.frobenius, A),
    "trace": (zelm.trace, A),
    "det": (zelm.det, A),
    "inv": (zelm.inv, A),
    "solve": (zelm.solve, A, B),
    "solve, vectors": (zelm.solve, A, V),
    "cholesky": (zelm.cholesky, A),
    "cho_factor": (zelm.cho_factor, A),
    "cho_solve": (lambda a, b: zelm.cho_solve(zelm.cho_factor(a), b), A, B),
    "lu_solve": (lambda a, b: zelm.lu_solve(zelm.lu_factor(a), b), A, B),
    "qr": (lambda a: zelm.qr(a)[1], A),
    "lstsq": (zelm.lstsq, A, B),
}


@pytest.mark.parametrize("name", CALLS)
@pytest.mark.parametrize("scheduler", ["synchronous", "threads"])
def test_blocks_have_the_bits_of_the_whole(name, scheduler):
    function, *operands = CALLS[name]
    wanted = function(*operands)
    lazy = function(*(chunked(operand) for operand in operands))
    assert isinstance(lazy, da.Array) and lazy.shape == wanted.shape and lazy.dtype == wanted.dtype
    np.testing.assert_array_equal(lazy.compute(scheduler=scheduler), wanted)


def test_32_bit_stays_32_bit():
    lazy = zelm.inv(chunked(A.astype(np.float32)))
    assert lazy.dtype == np.float32 and lazy.compute().dtype == np.float32


def test_vectors_beside_matrices():
    np.testing.assert_array_equal(zelm.matmul(chunked(A), da.from_array(V[0])).compute(), zelm.matmul(A, V[0]))
    np.testing.assert_array_equal(zelm.add(chunked(A), V[0]).compute(), A + V[0])
    np.testing.assert_array_equal(zelm.matmul(A[0], chunked(B)).compute(), zelm.matmul(A[0], B))


def test_singular_in_a_block():
    a = A.copy()
    a[17] = 0
    with pytest.raises(np.linalg.LinAlgError, match="Singular matrix"):
        zelm.inv(chunked(a)).compute()
    np.testing.assert_array_equal(zelm.inv(chunked(a), singular="nan").compute(), zelm.inv(a, singular="nan"))


def test_processes():
    """Through pickled tasks."""
    lazy = zelm.solve(chunked(A, 20), chunked(B, 20))
    np.testing.assert_array_equal(lazy.compute(scheduler="processes", num_workers=2), zelm.solve(A, B))


@pytest.mark.parametrize("dask", ["forbidden", "parallelized"])
def test_xarray(dask):
    dims = {"time": 5} if dask == "parallelized" else None
    a = xr.DataArray(A, dims=("time", "i", "j"), coords={"time": np.arange(N)})
    b = xr.DataArray(V, dims=("time", "j"))
    if dims:
        a, b = a.chunk(dims), b.chunk(dims)
    x = xr.apply_ufunc(
        zelm.solve, a, b, input_core_dims=[["i", "j"], ["j"]], output_core_dims=[["i"]], dask=dask, output_dtypes=[float]
    )
    assert x.dims == ("time", "i") and (x.chunks is not None) == (dask == "parallelized")
    np.testing.assert_array_equal(x.compute(), zelm.solve(A, V))
    np.testing.assert_array_equal(x.time, np.arange(N))
