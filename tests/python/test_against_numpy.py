"""Every function against NumPy's result: random shapes, types, memory and broadcasting."""

import layouts
import numpy as np
import pytest
from hypothesis import given, settings
from hypothesis import strategies as st

import zelm

DTYPES = st.sampled_from((np.float32, np.float64))
SEEDS = st.integers(0, 2**32 - 1)


def column(x):
    return x[..., np.newaxis]


def as_lstsq(a, b):
    """numpy.linalg.lstsq over a broadcast stack."""
    stack = np.broadcast_shapes(a.shape[:-2], b.shape[:-2])
    a, b = np.broadcast_to(a, stack + a.shape[-2:]), np.broadcast_to(b, stack + b.shape[-2:])
    x = np.empty(stack + (a.shape[-1], b.shape[-1]), a.dtype)
    for at in np.ndindex(stack):
        x[at] = np.linalg.lstsq(a[at], b[at], rcond=None)[0]
    return x


# name: the operands' core shapes in letters, how the first one is made, what NumPy gives.
CASES = {
    "add": ("mn,mn", None, np.add),
    "subtract": ("mn,mn", None, np.subtract),
    "scale": ("mn,", None, lambda x, c: x * c[..., np.newaxis, np.newaxis]),
    "axpy": (",n,n", None, lambda a, x, y: column(a) * x + y),
    "lcomb": (",n,,n", None, lambda a, x, b, y: column(a) * x + column(b) * y),
    "transpose": ("mn", None, lambda a: a.swapaxes(-1, -2)),
    "matmul": ("mk,kn", None, np.matmul),
    "matvec": ("mn,n", None, lambda a, x: np.matmul(a, column(x))[..., 0]),
    "gaxpy": ("mn,n,m", None, lambda a, x, z: np.matmul(a, column(x))[..., 0] + z),
    "cross": ("3,3", None, np.cross),
    "dot": ("n,n", None, lambda x, y: (x * y).sum(-1)),
    "norm": ("n", None, lambda x: np.linalg.norm(x, axis=-1)),
    "frobenius": ("mn", None, lambda a: np.linalg.norm(a, axis=(-2, -1))),
    "trace": ("nn", None, lambda a: np.trace(a, axis1=-2, axis2=-1)),
    "det": ("nn", layouts.regular, np.linalg.det),
    "inv": ("nn", layouts.regular, np.linalg.inv),
    "solve": ("nn,nk", layouts.regular, np.linalg.solve),
    "cholesky": ("nn", layouts.definite, np.linalg.cholesky),
    "lstsq": ("tn,tk", None, as_lstsq),
}


def core_shapes(draw, letters):
    sizes = {letter: draw(st.integers(1, 8)) for letter in "mnk"}
    sizes["t"] = sizes["n"] + draw(st.integers(1, 5))
    sizes["3"] = 3
    return [tuple(sizes[letter] for letter in operand) for operand in letters.split(",")]


@pytest.mark.parametrize("name", CASES)
@settings(max_examples=120, deadline=None)
@given(data=st.data(), dtype=DTYPES, seed=SEEDS)
def test_function(name, data, dtype, seed):
    letters, first, expected = CASES[name]
    draw = data.draw
    stack = draw(layouts.stacks())
    operands = []
    for number, core in enumerate(core_shapes(draw, letters)):
        make = first if first and number == 0 else layouts.random
        shape = layouts.broadcastable(draw, stack, shorter=name not in ("solve", "lstsq")) + core
        operands.append(layouts.placed(draw, make(seed + number, shape, dtype)))
    before = [operand.copy() for operand in operands]

    result = getattr(zelm, name)(*operands)

    wanted = expected(*(operand.astype(np.float64) for operand in operands))
    assert result.dtype == dtype and result.shape == wanted.shape
    tolerance = 2e-4 if dtype == np.float32 else 1e-10
    if name == "det":
        tolerance *= max(1, np.abs(wanted).max(initial=0))
    np.testing.assert_allclose(result, wanted, rtol=tolerance, atol=tolerance)
    for operand, copy in zip(operands, before):
        np.testing.assert_array_equal(operand, copy)


@pytest.mark.parametrize("name", ["solve", "lu", "cho", "lstsq"])
@settings(max_examples=80, deadline=None)
@given(data=st.data(), dtype=DTYPES, seed=SEEDS, n=st.integers(1, 8), columns=st.integers(0, 4))
def test_solvers_by_their_equation(name, data, dtype, seed, n, columns):
    """a @ x = b, for right-hand sides that are vectors (columns 0) and matrices."""
    stack = data.draw(st.lists(st.integers(0, 4), max_size=2).map(tuple))
    make = layouts.definite if name == "cho" else layouts.regular
    a = layouts.placed(data.draw, make(seed, stack + (n, n), dtype))
    core = (n, columns) if columns else (n,)
    b = layouts.placed(data.draw, layouts.random(seed + 1, stack + core, dtype))
    functions = {
        "solve": lambda: zelm.solve(a, b),
        "lu": lambda: zelm.lu_solve(zelm.lu_factor(a), b),
        "cho": lambda: zelm.cho_solve(zelm.cho_factor(a), b),
        "lstsq": lambda: zelm.lstsq(a, b),
    }
    x = functions[name]()
    assert x.shape == b.shape and x.dtype == dtype
    residual = (a.astype(float) @ x if columns else (a.astype(float) @ column(x))[..., 0]) - b
    scale = np.abs(a).max(initial=1) * np.abs(x).max(initial=1)
    assert np.abs(residual).max(initial=0) <= scale * (1e-5 if dtype == np.float32 else 1e-13)


@settings(max_examples=80, deadline=None)
@given(data=st.data(), dtype=DTYPES, seed=SEEDS, n=st.integers(1, 8), taller=st.integers(-2, 4))
def test_qr(data, dtype, seed, n, taller):
    m = max(1, n + taller)
    stack = data.draw(st.lists(st.integers(0, 3), max_size=2).map(tuple))
    a = layouts.placed(data.draw, layouts.random(seed, stack + (m, n), dtype))
    tolerance = 2e-5 if dtype == np.float32 else 1e-13
    for mode in ("reduced", "complete"):
        q, r = zelm.qr(a, mode)
        wanted = np.linalg.qr(a, mode)
        assert q.shape == wanted[0].shape and r.shape == wanted[1].shape and q.dtype == r.dtype == dtype
        np.testing.assert_allclose(q @ r, a, atol=tolerance * 10)
        unit = np.broadcast_to(np.eye(q.shape[-1]), q.shape[:-2] + (q.shape[-1],) * 2)
        np.testing.assert_allclose(q.swapaxes(-1, -2) @ q, unit, atol=tolerance * 10)
        np.testing.assert_array_equal(r, np.triu(r))
    np.testing.assert_array_equal(zelm.qr(a, "r"), zelm.qr(a)[1])
    h, tau = zelm.qr(a, "raw")
    assert h.shape == stack + (n, m) and tau.shape == stack + (min(m, n),)


def test_lu_factors_are_those_of_the_permuted_matrix():
    a = layouts.random(5, (40, 5, 5), np.float64)
    lu, piv = zelm.lu_factor(a)
    rows = np.take_along_axis(lu, piv[..., np.newaxis].astype(int), -2)
    lower, upper = np.tril(rows, -1) + np.eye(5), np.triu(rows)
    permuted = np.take_along_axis(a, piv[..., np.newaxis].astype(int), -2)
    np.testing.assert_allclose(lower @ upper, permuted, atol=1e-13)
    assert np.abs(np.tril(rows, -1)).max() <= 1
    assert (np.sort(piv, -1) == np.arange(5)).all()


def test_cho_factor_has_reciprocals_on_the_diagonal():
    a = layouts.definite(6, (30, 4, 4), np.float64)
    c, lower = zelm.cho_factor(a), zelm.cholesky(a)
    i = np.arange(4)
    np.testing.assert_array_equal(np.tril(c, -1), np.tril(lower, -1))
    np.testing.assert_array_equal(c[:, i, i], 1 / lower[:, i, i])
    np.testing.assert_array_equal(np.triu(c, 1), 0)
    np.testing.assert_array_equal(np.triu(lower, 1), 0)


def test_vectors_and_numbers_as_in_numpy():
    a, x = layouts.random(1, (7, 3, 3), np.float64), layouts.random(2, (3,), np.float64)
    np.testing.assert_allclose(zelm.matmul(a, x), a @ x, rtol=1e-14)
    np.testing.assert_allclose(zelm.matmul(x, a), x @ a, rtol=1e-14)
    np.testing.assert_allclose(zelm.matmul(x, x), x @ x, rtol=1e-14)
    np.testing.assert_array_equal(zelm.add(a, x), a + x)
    np.testing.assert_array_equal(zelm.subtract(a, 2.0), a - 2.0)
    np.testing.assert_array_equal(zelm.add(1.5, 2.0), 3.5)


def test_types():
    f32 = np.eye(3, dtype=np.float32)
    assert zelm.scale(f32, 2.0).dtype == np.float32
    assert zelm.axpy(2.0, f32, f32).dtype == np.float32
    assert zelm.add(f32, 2.0).dtype == np.float32
    assert zelm.matmul(f32, np.eye(3)).dtype == np.float64
    for integer in (np.int8, np.uint16, np.int64, bool):
        assert zelm.inv(np.eye(3, dtype=integer)).dtype == np.float64
    assert zelm.inv([[2, 0, 0], [0, 2, 0], [0, 0, 2]]).dtype == np.float64
    assert zelm.inv(np.eye(3, dtype=">f8")).dtype == np.float64
    with pytest.raises(TypeError, match="not supported for the input types"):
        zelm.inv(np.eye(3, dtype=complex))
    with pytest.raises(TypeError, match="not supported for the input types"):
        zelm.matmul(np.eye(3, dtype=object), np.eye(3))
