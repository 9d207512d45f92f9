"""Objects without a result, and objects that only the library's thresholds refuse."""

import warnings

import layouts
import numpy as np
import pytest

import zelm

ORDERS = pytest.mark.parametrize("n", [1, 2, 3, 4, 5, 6, 7])
TYPES = pytest.mark.parametrize("dtype", [np.float32, np.float64])
BAD = [0, 5, 6, 299]


def stack(n, dtype):
    """600 regular matrices but for those named in BAD, which are zero."""
    a = layouts.definite(n, (600, n, n), dtype)
    a[BAD] = 0
    return a


def good():
    return np.delete(np.arange(600), BAD)


FUNCTIONS = {
    "inv": (zelm.inv, np.linalg.inv, "Singular matrix"),
    "solve": (
        lambda a, **options: zelm.solve(a, np.ones(a.shape, a.dtype), **options),
        lambda a: np.linalg.solve(a, np.ones(a.shape, a.dtype)),
        "Singular matrix",
    ),
    "cholesky": (zelm.cholesky, np.linalg.cholesky, "Matrix is not positive definite"),
    "cho_factor": (zelm.cho_factor, None, "Matrix is not positive definite"),
    "lu_factor": (lambda a, **options: zelm.lu_factor(a, **options)[0], None, "Singular matrix"),
}
ALL = pytest.mark.parametrize("name", FUNCTIONS)


@ALL
@ORDERS
@TYPES
def test_singular(name, n, dtype):
    function, numpys, message = FUNCTIONS[name]
    a = stack(n, dtype)
    with pytest.raises(np.linalg.LinAlgError, match=message):
        function(a)
    if numpys:
        with pytest.raises(np.linalg.LinAlgError, match=message):
            numpys(a)
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        result = function(a, singular="nan")
    assert np.isnan(result[BAD]).all()
    np.testing.assert_array_equal(result[good()], function(a[good()]))


@pytest.mark.parametrize("name", ["inv", "cholesky", "cho_factor"])
def test_the_rest_is_right_when_raising(name):
    function = FUNCTIONS[name][0]
    a, out = stack(4, np.float64), np.zeros((600, 4, 4))
    with pytest.raises(np.linalg.LinAlgError):
        function(a, out=out)
    np.testing.assert_array_equal(out[good()], function(a[good()]))


@ORDERS
@TYPES
def test_small_matrices(n, dtype):
    """Regular, but their determinants or pivots lie below the library's thresholds: NumPy's results, or as good."""
    size = dtype(1e-9)
    a = layouts.regular(n, (50, n, n), dtype)
    a[::3] *= size
    b = layouts.random(1, (50, n), dtype)
    tolerance = 1e-4 if dtype == np.float32 else 1e-11
    np.testing.assert_allclose(zelm.inv(a), np.linalg.inv(a), rtol=tolerance, atol=tolerance)
    np.testing.assert_allclose(zelm.solve(a, b), np.linalg.solve(a, b), rtol=tolerance * 10, atol=tolerance)
    factors = zelm.lu_factor(a)
    np.testing.assert_allclose(zelm.lu_solve(factors, b), np.linalg.solve(a, b), rtol=tolerance * 10, atol=tolerance)
    np.testing.assert_allclose(zelm.lstsq(a, b), np.linalg.solve(a, b), rtol=tolerance * 10, atol=tolerance)
    q, r = zelm.qr(a)
    np.testing.assert_allclose(q @ r, a, atol=tolerance)
    np.testing.assert_allclose(zelm.det(a), np.linalg.det(a), rtol=tolerance * 10, atol=0)


def test_factors_of_a_small_matrix_have_the_same_digits():
    """Times a power of two, a matrix has the same multipliers, and the same U times that power."""
    a = layouts.regular(3, (5, 5, 5), np.float64)
    lu, piv = zelm.lu_factor(a)
    small, same_piv = zelm.lu_factor(a * 2.0**-80)
    np.testing.assert_array_equal(piv, same_piv)
    rows = np.take_along_axis(lu, piv[..., np.newaxis].astype(int), -2)
    scaled = np.take_along_axis(small, piv[..., np.newaxis].astype(int), -2)
    np.testing.assert_array_equal(np.tril(rows, -1), np.tril(scaled, -1))
    np.testing.assert_array_equal(np.triu(rows) * 2.0**-80, np.triu(scaled))


def test_a_permutation_that_the_block_inverse_refuses():
    a = np.stack([np.eye(6), np.roll(np.eye(6), -1, axis=1)[[5, 0, 1, 2, 3, 4]], np.roll(np.eye(6), 1, axis=0)])
    np.testing.assert_array_equal(zelm.inv(a), a.swapaxes(-1, -2))


@TYPES
@ORDERS
def test_nan_and_infinity(n, dtype):
    a = layouts.definite(n, (30, n, n), dtype)
    a[4, 0, 0], a[9, -1, -1], a[11] = np.nan, np.inf, np.nan
    b = np.ones((30, n), dtype)
    rest = np.delete(np.arange(30), [4, 9, 11])
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        results = [zelm.inv(a, singular="nan"), zelm.solve(a, b, singular="nan"), zelm.cholesky(a, singular="nan")]
        results.append(zelm.lstsq(a, b, singular="nan"))
        results.append(zelm.det(a))
    for result, function in zip(results, (zelm.inv, lambda a: zelm.solve(a, b[rest]), zelm.cholesky)):
        np.testing.assert_array_equal(result[rest], function(a[rest]))
        assert np.isnan(result[[4, 11]]).any(axis=tuple(range(1, result.ndim))).all()
    assert np.isnan(results[4][[4, 11]]).all()


def test_dependent_columns_are_numpys():
    a = layouts.random(1, (6, 5, 3), np.float64)
    a[2, :, 2] = a[2, :, 0] * 2
    a[4] = 0
    b = layouts.random(2, (6, 5), np.float64)
    wanted = [np.linalg.lstsq(x, y, rcond=None)[0] for x, y in zip(a, b)]
    np.testing.assert_allclose(zelm.lstsq(a, b), wanted, atol=1e-12)
    wide = layouts.random(3, (6, 3, 5), np.float64)
    wanted = [np.linalg.lstsq(x, y, rcond=None)[0] for x, y in zip(wide, b[:, :3])]
    np.testing.assert_allclose(zelm.lstsq(wide, b[:, :3]), wanted, atol=1e-12)
    square = np.ones((3, 3))
    np.testing.assert_allclose(zelm.lstsq(square, np.ones(3)), np.full(3, 1 / 3), atol=1e-12)


def test_singular_takes_two_words():
    with pytest.raises(ValueError, match="'raise' or 'nan'"):
        zelm.inv(np.eye(3), singular="zero")


def test_a_failure_is_not_remembered():
    zelm.inv(np.zeros((3, 3)), singular="nan")
    np.testing.assert_array_equal(zelm.inv(np.eye(3)), np.eye(3))


def test_overflow_warns_as_in_numpy():
    with pytest.warns(RuntimeWarning, match="overflow encountered in matmul"):
        zelm.matmul(np.full((3, 3), 1e300), np.full((3, 3), 1e300))
