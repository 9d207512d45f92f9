"""Bit for bit what the C functions give when they are called as a C program calls them."""

import ctypes
import zlib

import layouts
import numpy as np
import pytest

import zelm
import zelm._core

COUNT = 37
LIBRARY = ctypes.CDLL(zelm._core.__file__)  # its symbols are found through the module that is linked with it


class Function:
    """A C function, called with arrays as their S2 arguments."""

    def __init__(self, name, dtype, size=""):
        parts = [name, "32f" if dtype == np.float32 else "64f", size, "S2"]
        self.call = getattr(LIBRARY, "_".join(part for part in parts if part))

    def __call__(self, *arguments):
        words = []
        for argument in arguments:
            if isinstance(argument, np.ndarray):
                words.append(ctypes.c_void_p(argument.ctypes.data))
                words += [ctypes.c_int32(stride) for stride in argument.strides]
            elif isinstance(argument, Packed):
                words.append(ctypes.c_void_p(argument.array.ctypes.data))
            elif isinstance(argument, float):
                words.append((ctypes.c_float if self.call.__name__.split("_")[2] == "32f" else ctypes.c_double)(argument))
            else:
                words.append(ctypes.c_uint32(argument))
        status = self.call(*words)
        assert status == 0, f"{self.call.__name__}: {status}"


class Packed:
    """A plain pointer: results of one number per object, row numbers, work space."""

    def __init__(self, array):
        self.array = array


def same_bits(x, y):
    assert x.dtype == y.dtype and x.shape == y.shape
    unsigned = {4: np.uint32, 8: np.uint64}[x.itemsize]
    np.testing.assert_array_equal(np.ascontiguousarray(x).view(unsigned), np.ascontiguousarray(y).view(unsigned))


def seed(*words):
    return zlib.crc32(repr(words).encode())


@pytest.fixture(params=[np.float32, np.float64], ids=["32f", "64f"])
def dtype(request):
    return request.param


@pytest.fixture(params=[3, 4, 5, 6])
def n(request):
    return request.param


def random(dtype, *core):
    return layouts.random(seed("bits", core, str(dtype)), (COUNT, *core), dtype)


def test_element_by_element(dtype, n):
    a, b = random(dtype, n, n), random(dtype, n, n)[::-1]
    x, y = a[:, 0], b[:, :, 1]
    matrix, vector, square, length = np.empty_like(a), np.empty((COUNT, n), dtype), f"{n}x{n}", f"{n}x1"
    for name, function in (("zelmAdd", zelm.add), ("zelmSub", zelm.subtract)):
        Function(f"{name}_mama", dtype, square)(a, b, matrix, COUNT)
        same_bits(function(a, b), matrix)
        Function(f"{name}_vava", dtype, length)(x, y, vector, COUNT)
        same_bits(function(x, y), vector)
    Function("zelmMul_mac", dtype, square)(a, 1.7, matrix, COUNT)
    same_bits(zelm.scale(a, 1.7), matrix)
    Function("zelmMul_vac", dtype, length)(x, 1.7, vector, COUNT)
    same_bits(zelm.scale(x, 1.7), vector)
    Function("zelmSaxpy_vava", dtype, length)(x, 1.7, y, vector, COUNT)
    same_bits(zelm.axpy(1.7, x, y), vector)
    Function("zelmLComb_vava", dtype, length)(x, 1.7, y, -0.3, vector, COUNT)
    same_bits(zelm.lcomb(1.7, x, -0.3, y), vector)
    Function("zelmTranspose_ma", dtype, square)(a, matrix, COUNT)
    same_bits(zelm.transpose(a), matrix)


def test_products(dtype, n):
    a, b = random(dtype, n, n), random(dtype, n, n)[::-1]
    x, z = b[:, 0], a[:, :, 1]
    matrix, vector, size = np.empty_like(a), np.empty((COUNT, n), dtype), f"{n}x{n}"
    Function("zelmMul_mama", dtype, size)(a, b, matrix, COUNT)
    same_bits(zelm.matmul(a, b), matrix)
    Function("zelmMul_mava", dtype, size)(a, x, vector, COUNT)
    same_bits(zelm.matvec(a, x), vector)
    same_bits(zelm.matmul(a, x[..., np.newaxis])[..., 0], vector)
    Function("zelmGaxpy_va", dtype, size)(a[0], x, z, vector, COUNT)
    same_bits(zelm.gaxpy(a[0], x, z), vector)
    Function("zelmGaxpy_v", dtype, size)(a[3], x[3], z[3], vector[3])
    same_bits(zelm.gaxpy(a, x, z)[3], vector[3])


def test_a_product_of_matrices_that_are_not_square(dtype):
    a, b = random(dtype, 2, 5), random(dtype, 5, 3)
    c = np.empty((COUNT, 2, 3), dtype)
    for k in range(COUNT):  # the single form is the true product for all shapes
        function = Function("zelmMul_mm", dtype)
        function(a[k], 5, 2, b[k], 3, 5, c[k])
    same_bits(zelm.matmul(a, b), c)


def test_numbers(dtype, n):
    a = random(dtype, n, n)
    x, y = a[:, 0], a[:, :, 1]
    numbers = np.empty(COUNT, dtype)
    Function("zelmDotProduct_vava", dtype, f"{n}x1")(x, y, Packed(numbers), COUNT)
    same_bits(zelm.dot(x, y), numbers)
    Function("zelmL2Norm_va", dtype, f"{n}x1")(x, Packed(numbers), COUNT)
    same_bits(zelm.norm(x), numbers)
    for name, function in (("FrobNorm", zelm.frobenius), ("Trace", zelm.trace), ("Det", zelm.det)):
        Function(f"zelm{name}_ma", dtype, f"{n}x{n}")(a, Packed(numbers), COUNT)
        same_bits(function(a), numbers)
        spread = np.zeros((COUNT, 3), dtype)
        function(a, out=spread[:, 1])
        same_bits(spread[:, 1], numbers)


def test_cross(dtype):
    x, y = random(dtype, 3, 3)[:, 0], random(dtype, 3, 3)[:, 1]
    vector = np.empty((COUNT, 3), dtype)
    Function("zelmCrossProduct_vava", dtype, "3x1")(x, y, vector, COUNT)
    same_bits(zelm.cross(x, y), vector)


def test_inverse(dtype, n):
    a = layouts.regular(seed(n), (COUNT, n, n), dtype)
    inverse = np.empty_like(a)
    Function("zelmInvert_ma", dtype, f"{n}x{n}")(a, inverse, COUNT)
    same_bits(zelm.inv(a), inverse)


def test_lu(dtype, n):
    a, b = layouts.regular(seed(n), (COUNT, n, n), dtype), random(dtype, n, 2)
    factors, pivots, x = np.empty_like(a), np.empty((COUNT, n), np.uint32), np.empty_like(b)
    Function("zelmLUDecomp_ma", dtype, f"{n}x{n}")(a, Packed(pivots), factors, COUNT)
    lu, piv = zelm.lu_factor(a)
    same_bits(lu, factors)
    same_bits(piv, pivots)
    for j in range(2):
        Function("zelmLUBackSubst_mava", dtype, f"{n}x{n}")(factors, Packed(pivots), b[..., j], x[..., j], COUNT)
    same_bits(zelm.lu_solve((lu, piv), b), x)
    same_bits(zelm.lu_solve((lu, piv), b[..., 0]), x[..., 0])
    same_bits(zelm.solve(a, b), x)
    same_bits(zelm.solve(a, b[..., 0]), x[..., 0])
    Function("zelmLUBackSubst_mava", dtype, f"{n}x{n}")(
        np.broadcast_to(factors[:1], factors.shape), Packed(np.repeat(pivots[:1], COUNT, 0)), b[..., 0], x[..., 0], COUNT
    )
    same_bits(zelm.solve(np.broadcast_to(a[0], a.shape), b[..., 0]), x[..., 0])


def test_cholesky(dtype, n):
    a, b = layouts.definite(seed(n), (COUNT, n, n), dtype), random(dtype, n, 2)
    factors, x = np.zeros_like(a), np.empty_like(b)
    Function("zelmCholeskyDecomp_ma", dtype, f"{n}x{n}")(a, factors, COUNT)
    same_bits(zelm.cho_factor(a), factors)
    lower = zelm.cholesky(a)
    same_bits(np.tril(lower, -1), np.tril(factors, -1))
    diagonal, i = a[:, range(n), range(n)], np.arange(n)
    for j in range(n):  # the pivots as the library computes them
        diagonal[:, j + 1 :] -= lower[:, j + 1 :, j] ** 2
    same_bits(lower[:, i, i], np.sqrt(diagonal))
    for j in range(2):
        Function("zelmCholeskyBackSubst_mava", dtype, f"{n}x{n}")(factors, b[..., j], x[..., j], COUNT)
    same_bits(zelm.cho_solve(factors, b), x)
    same_bits(zelm.cho_solve(factors, b[..., 0]), x[..., 0])


@pytest.mark.parametrize("height", [4, 7])
def test_qr(dtype, height):
    width = 4
    a, b = random(dtype, height, width), random(dtype, height, 2)
    factors, work, x = np.empty_like(a), Packed(np.empty(height, dtype)), np.empty((COUNT, width, 2), dtype)
    Function("zelmQRDecomp_ma", dtype)(a, work, factors, width, height, COUNT)
    h, tau = zelm.qr(a, "raw")
    same_bits(h.swapaxes(-1, -2), factors)
    for j in range(2):
        Function("zelmQRBackSubst_mava", dtype)(factors, work, b[..., j], x[..., j], width, height, COUNT)
    same_bits(zelm.lstsq(a, b), x)
    same_bits(zelm.lstsq(a, b[..., 0]), x[..., 0])


@pytest.mark.parametrize("order", [1, 2, 7])
def test_other_orders(dtype, order):
    a, b = layouts.regular(3, (COUNT, order, order), dtype), random(dtype, order)
    factors, pivots, x = np.empty_like(a), np.empty((COUNT, order), np.uint32), np.empty_like(b)
    Function("zelmLUDecomp_ma", dtype)(a, Packed(pivots), factors, order, COUNT)
    Function("zelmLUBackSubst_mava", dtype)(factors, Packed(pivots), b, x, order, COUNT)
    same_bits(zelm.solve(a, b), x)
    same_bits(zelm.inv(a), np.linalg.inv(a))
    same_bits(zelm.det(a), np.linalg.det(a))
