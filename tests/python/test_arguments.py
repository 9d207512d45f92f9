"""out=, axes=, overlap, read-only arrays, empty stacks, strides beyond 32 bits, wrong shapes."""

import mmap

import layouts
import numpy as np
import pytest

import zelm

A = layouts.definite(1, (20, 4, 4), np.float64)
B = layouts.random(2, (20, 4, 4), np.float64)
V = layouts.random(3, (20, 4), np.float64)
W = layouts.random(4, (20, 4), np.float64)

CALLS = {
    "add": (zelm.add, (A, B)),
    "subtract": (zelm.subtract, (A, B)),
    "scale": (zelm.scale, (A, V[:, 0])),
    "axpy": (zelm.axpy, (V[:, 0], V, W)),
    "lcomb": (zelm.lcomb, (V[:, 0], V, W[:, 1], W)),
    "transpose": (zelm.transpose, (A,)),
    "matmul": (zelm.matmul, (A, B)),
    "matvec": (zelm.matvec, (A, V)),
    "gaxpy": (zelm.gaxpy, (A, V, W)),
    "cross": (zelm.cross, (V[:, :3], W[:, 1:])),
    "dot": (zelm.dot, (V, W)),
    "norm": (zelm.norm, (V,)),
    "frobenius": (zelm.frobenius, (A,)),
    "trace": (zelm.trace, (A,)),
    "det": (zelm.det, (A,)),
    "inv": (zelm.inv, (A,)),
    "solve": (zelm.solve, (A, B)),
    "cholesky": (zelm.cholesky, (A,)),
    "cho_factor": (zelm.cho_factor, (A,)),
    "cho_solve": (zelm.cho_solve, (A, B)),
    "lstsq": (zelm.lstsq, (A, B)),
}


def lu_solve(a, b, **options):
    return zelm.lu_solve(zelm.lu_factor(a), b, **options)


CALLS["lu_solve"] = (lu_solve, (A, B))
ALL = pytest.mark.parametrize("name", CALLS)


@ALL
def test_out(name):
    function, operands = CALLS[name]
    wanted = function(*operands)
    out = np.full(wanted.shape, 7.0)
    assert function(*operands, out=out) is out
    np.testing.assert_array_equal(out, wanted)


@ALL
def test_out_over_an_input(name):
    """As if the result were somewhere else: out is an input, or overlaps it in part, forwards and backwards."""
    function, operands = CALLS[name]
    wanted = function(*operands)
    for number, operand in enumerate(operands):
        if operand.shape != wanted.shape:
            continue
        for move in (0, 1, -1, 3):
            memory = np.zeros(operand.size + 6)
            given = list(operands)
            given[number] = memory[3 : 3 + operand.size].reshape(operand.shape)
            given[number][...] = operand
            out = memory[3 + move : 3 + move + operand.size].reshape(operand.shape)
            function(*given, out=out)
            np.testing.assert_array_equal(out, wanted, err_msg=f"operand {number} moved by {move}")
        turned = np.ascontiguousarray(operand.swapaxes(-1, -2)).swapaxes(-1, -2)
        given = list(operands)
        given[number] = turned
        if turned.ndim == 3:
            out = turned.swapaxes(-1, -2)
            function(*given, out=out)
            np.testing.assert_array_equal(out, wanted)


@ALL
def test_the_same_array_twice(name):
    function, operands = CALLS[name]
    if len(operands) == 2 and operands[0].shape == operands[1].shape == function(*operands).shape:
        wanted = function(operands[0].copy(), operands[0])
        a = operands[0].copy()
        function(a, a, out=a)
        np.testing.assert_array_equal(a, wanted)


@ALL
def test_read_only(name):
    function, operands = CALLS[name]
    locked = [operand.copy() for operand in operands]
    for operand in locked:
        operand.flags.writeable = False
    wanted = function(*operands)
    np.testing.assert_array_equal(function(*locked), wanted)
    out = np.empty_like(wanted)
    out.flags.writeable = False
    with pytest.raises(ValueError, match="read-only"):
        function(*operands, out=out)


@ALL
def test_empty_stacks(name):
    function, operands = CALLS[name]
    wanted = function(*operands)
    for stack in ((0,), (2, 0, 3)):
        empty = [np.empty(stack + operand.shape[1:]) for operand in operands]
        result = function(*empty)
        assert result.shape == stack + wanted.shape[1:]


@pytest.mark.parametrize("n", [3, 4, 6])
def test_unaligned_and_foreign_bytes(n):
    a = layouts.regular(8, (9, n, n), np.float64)
    packed = np.zeros(9, np.dtype([("c", "u1"), ("a", "f8", (n, n))]))
    packed["a"] = a
    assert not packed["a"].flags.aligned
    np.testing.assert_array_equal(zelm.inv(packed["a"]), zelm.inv(a))
    np.testing.assert_array_equal(zelm.inv(a.astype(">f8")), zelm.inv(a))
    zelm.inv(a, out=packed["a"])
    np.testing.assert_array_equal(packed["a"], zelm.inv(a))


def test_axes():
    a = np.moveaxis(A, 0, -1)
    np.testing.assert_array_equal(zelm.inv(a, axes=[(0, 1), (1, 2)]), zelm.inv(A))
    np.testing.assert_array_equal(zelm.matmul(a, B, axes=[(0, 1), (1, 2), (1, 2)]), zelm.matmul(A, B))
    np.testing.assert_array_equal(zelm.solve(a, B, axes=[(0, 1), (1, 2), (1, 2)]), zelm.solve(A, B))
    np.testing.assert_array_equal(zelm.norm(V.T, axis=0), zelm.norm(V))
    np.testing.assert_array_equal(zelm.norm(V, keepdims=True), zelm.norm(V)[:, np.newaxis])
    np.testing.assert_array_equal(zelm.trace(a, axes=[(0, 1), ()]), zelm.trace(A))


@pytest.mark.parametrize("n", range(1, 8))
def test_dimensions_of_size_zero(n):
    none = np.empty
    np.testing.assert_array_equal(zelm.matmul(none((2, n, 0)), none((2, 0, 3))), np.zeros((2, n, 3)))
    np.testing.assert_array_equal(zelm.matvec(none((2, n, 0)), none((2, 0))), np.zeros((2, n)))
    np.testing.assert_array_equal(zelm.gaxpy(none((n, 0)), none((0,)), V[0, :1].repeat(n)), V[0, :1].repeat(n))
    assert zelm.solve(np.eye(n), none((n, 0))).shape == (n, 0)
    assert zelm.matmul(none((0, n)), none((n, 0))).shape == (0, 0)
    assert zelm.lstsq(none((n, 0)), none((n, 2))).shape == (0, 2)
    assert zelm.qr(none((2, n, 0)))[0].shape == (2, n, 0)


def test_orders_of_zero():
    none = np.empty((3, 0, 0))
    np.testing.assert_array_equal(zelm.det(none), np.ones(3))
    np.testing.assert_array_equal(zelm.trace(none), np.zeros(3))
    np.testing.assert_array_equal(zelm.frobenius(none), np.zeros(3))
    np.testing.assert_array_equal(zelm.norm(np.empty((3, 0))), np.zeros(3))
    np.testing.assert_array_equal(zelm.dot(np.empty((3, 0)), np.empty(0)), np.zeros(3))
    for function in (zelm.inv, zelm.cholesky, zelm.cho_factor, zelm.transpose):
        assert function(none).shape == (3, 0, 0)
    assert zelm.lu_factor(none)[1].shape == (3, 0)


def far_apart(values, axis, distance):
    """The values with `distance` bytes from one to the next along an axis, in memory that is there only where used."""
    strides = [0] * values.ndim
    place = values.itemsize
    for other in reversed(range(values.ndim)):
        if other != axis:
            strides[other], place = place, place * values.shape[other]
    strides[axis] = distance
    size = distance * (values.shape[axis] - 1) + place
    flags = mmap.MAP_PRIVATE | mmap.MAP_ANONYMOUS | getattr(mmap, "MAP_NORESERVE", 0x4000)
    memory = np.frombuffer(mmap.mmap(-1, size, flags=flags), np.uint8)
    view = np.lib.stride_tricks.as_strided(memory[: values.itemsize].view(values.dtype), values.shape, strides)
    view[...] = values
    return view


@pytest.mark.parametrize("axis", [0, 1, 2])
@pytest.mark.parametrize("distance", [2**31 - 8, 2**31 + 8, 2**32 + 64])
def test_strides_beyond_32_bits(axis, distance):
    a, b = A[:3], B[:3]
    far = far_apart(a, axis, distance)
    np.testing.assert_array_equal(zelm.inv(far), zelm.inv(a))
    np.testing.assert_array_equal(zelm.matmul(b, far), zelm.matmul(b, a))
    np.testing.assert_array_equal(zelm.solve(far, b), zelm.solve(a, b))
    np.testing.assert_array_equal(zelm.det(far), zelm.det(a))
    np.testing.assert_array_equal(zelm.add(far, b), zelm.add(a, b))
    np.testing.assert_array_equal(zelm.norm(far), zelm.norm(a))
    out = far_apart(np.zeros_like(a), axis, distance)
    zelm.cholesky(a, out=out)
    np.testing.assert_array_equal(out, zelm.cholesky(a))
    backwards = far[::-1]
    np.testing.assert_array_equal(zelm.inv(backwards), zelm.inv(a)[::-1])


def test_a_vector_longer_than_32_bits():
    ones = np.broadcast_to(np.float64(1), 2**31 + 5)
    assert zelm.dot(ones, ones) == 2**31 + 5


def test_wrong_shapes():
    inverse = np.linalg.LinAlgError
    for function in (zelm.inv, zelm.cholesky, zelm.cho_factor, zelm.lu_factor, zelm.det):
        with pytest.raises(inverse, match="Last 2 dimensions of the array must be square"):
            function(np.ones((2, 3)))
        with pytest.raises(inverse, match="1-dimensional array given. Array must be at least two-dimensional"):
            function(np.ones(3))
    with pytest.raises(inverse, match="Last 2 dimensions of the array must be square"):
        zelm.solve(np.ones((2, 3)), np.ones(2))
    with pytest.raises(ValueError, match="solve: Input operand 1 has a mismatch in its core dimension 0"):
        zelm.solve(np.eye(3), np.ones(4))
    with pytest.raises(ValueError, match="matmul: Input operand 1 has a mismatch in its core dimension 0"):
        zelm.matmul(np.eye(3), np.eye(4))
    with pytest.raises(ValueError, match="cross: Input operand 0 has a mismatch in its core dimension 0"):
        zelm.cross(np.ones(2), np.ones(2))
    with pytest.raises(ValueError, match="could not be broadcast"):
        zelm.inv(np.ones((2, 3, 3)) + np.eye(3), out=np.empty((5, 3, 3)))
    with pytest.raises(TypeError, match="missing 1 required positional argument"):
        zelm.solve(np.eye(3))
    with pytest.raises(TypeError, match="got an unexpected keyword argument 'sorted'"):
        zelm.inv(np.eye(3), sorted=True)
    with pytest.raises(ValueError, match="Unrecognized mode"):
        zelm.qr(np.eye(3), "full")
    with pytest.raises(TypeError, match="zelm.lu_factor"):
        zelm.lu_solve((np.eye(3), np.arange(3)), np.ones(3))
    with pytest.raises(TypeError, match="zelm.cho_factor"):
        zelm.cho_solve((np.eye(3), True), np.ones(3))


def test_one_vector_for_a_stack():
    for function in (zelm.solve, zelm.lstsq, lu_solve, lambda a, b: zelm.cho_solve(zelm.cho_factor(a), b)):
        np.testing.assert_array_equal(function(A, V[0]), function(A, np.broadcast_to(V[0], V.shape)))


def test_row_numbers_are_checked():
    lu, piv = zelm.lu_factor(A)
    piv = piv.copy()
    piv[3, 1] = 4000000000
    with pytest.raises(ValueError, match="names a row"):
        zelm.lu_solve((lu, piv), B)
