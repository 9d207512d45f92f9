"""The functions of the module. Plain calls don't come here but go to the universal functions at once (_call.universal)."""

import numpy as np

from zelm import _core
from zelm._call import NOT_POSITIVE, dask_array, is_vector, plain, refusing, universal

# Dask reads signatures without optional dimensions.
_ELEMENTWISE = "(),()->()"


@universal(_core.add)
def add(x1, x2, /, out=None, **options):
    """Sum of vectors or matrices, element by element.

    Signature ``(m?,n?),(m?,n?)->(m?,n?)``: the objects of both stacks have one shape; the stacks are broadcast.

    >>> zelm.add([[1.0, 2.0], [3.0, 4.0]], [10.0, 20.0])
    array([[11., 22.],
           [13., 24.]])

    See also: numpy.add. Library: ``zelmAdd_vava``, ``zelmAdd_mama``.
    """
    return plain("add", _core.add, (x1, x2), out, options, _ELEMENTWISE)


@universal(_core.subtract)
def subtract(x1, x2, /, out=None, **options):
    """Difference of vectors or matrices, element by element.

    Signature ``(m?,n?),(m?,n?)->(m?,n?)``: the objects of both stacks have one shape; the stacks are broadcast.

    >>> zelm.subtract([[1.0, 2.0], [3.0, 4.0]], [1.0, 1.0])
    array([[0., 1.],
           [2., 3.]])

    See also: numpy.subtract. Library: ``zelmSub_vava``, ``zelmSub_mama``.
    """
    return plain("subtract", _core.subtract, (x1, x2), out, options, _ELEMENTWISE)


@universal(_core.scale)
def scale(x, factor, /, out=None, **options):
    """Matrices times a number, which may vary over the stack.

    Signature ``(m?,n?),()->(m?,n?)``. Vectors with a number each are matrices of one row: ``x[:, np.newaxis, :]``.

    >>> zelm.scale([[1.0, 2.0], [3.0, 4.0]], 2.0)
    array([[2., 4.],
           [6., 8.]])

    See also: numpy.multiply. Library: ``zelmMul_vac``, ``zelmMul_mac``.
    """
    core = ("()", "(n)", "(m,n)")[min(2, np.ndim(x))]
    return plain("scale", _core.scale, (x, factor), out, options, f"{core},()->{core}")


@universal(_core.axpy)
def axpy(a, x, y, /, out=None, **options):
    """``a * x + y`` for vectors x and y and a number a, which may vary over the stack.

    Signature ``(),(n),(n)->(n)``. The product is rounded before the sum: no fused step.

    >>> zelm.axpy(2.0, [1.0, 2.0, 3.0], [10.0, 10.0, 10.0])
    array([12., 14., 16.])

    See also: scipy.linalg.blas.daxpy. Library: ``zelmSaxpy_vava``.
    """
    return plain("axpy", _core.axpy, (a, x, y), out, options)


@universal(_core.lcomb)
def lcomb(a, x, b, y, /, out=None, **options):
    """Linear combination ``a * x + b * y`` of vectors x and y. The numbers a and b may vary over the stack.

    Signature ``(),(n),(),(n)->(n)``. Both products are rounded before the sum.

    >>> zelm.lcomb(2.0, [1.0, 2.0, 3.0], -1.0, [1.0, 1.0, 1.0])
    array([1., 3., 5.])

    Library: ``zelmLComb_vava``.
    """
    return plain("lcomb", _core.lcomb, (a, x, b, y), out, options)


@universal(_core.transpose)
def transpose(a, /, out=None, **options):
    """Transposed matrices, moved in memory. ``a.swapaxes(-1, -2)`` is a view of the same.

    Signature ``(m,n)->(n,m)``. Elements keep their bits.

    >>> zelm.transpose([[1.0, 2.0, 3.0], [4.0, 5.0, 6.0]])
    array([[1., 4.],
           [2., 5.],
           [3., 6.]])

    See also: numpy.swapaxes. Library: ``zelmTranspose_ma``.
    """
    return plain("transpose", _core.transpose, (a,), out, options)


@universal(_core.matmul)
def matmul(x1, x2, /, out=None, **options):
    """Products of matrices. An operand of one dimension is a row on the left, a column on the right.

    Signature ``(m?,k),(k,n?)->(m?,n?)``. Sums run in ascending k.

    >>> zelm.matmul([[1.0, 2.0], [3.0, 4.0]], [[0.0, 1.0], [1.0, 0.0]])
    array([[2., 1.],
           [4., 3.]])

    See also: numpy.matmul. Library: ``zelmMul_mama``, ``zelmMul_mava``, ``zelmMul_mamaT``.
    """
    left = "(k)" if np.ndim(x1) == 1 else "(m,k)"
    right = "(k)" if np.ndim(x2) == 1 else "(k,n)"
    core = ",".join("m" * (left == "(m,k)") + "n" * (right == "(k,n)"))
    return plain("matmul", _core.matmul, (x1, x2), out, options, f"{left},{right}->({core})")


@universal(_core.matvec)
def matvec(a, x, /, out=None, **options):
    """Products of matrices and column vectors.

    Signature ``(m,n),(n)->(m)``. Sums run in ascending n.

    >>> zelm.matvec([[1.0, 2.0], [3.0, 4.0]], [1.0, 1.0])
    array([3., 7.])

    Library: ``zelmMul_mava``.
    """
    return plain("matvec", _core.matvec, (a, x), out, options)


@universal(_core.gaxpy)
def gaxpy(a, x, z, /, out=None, **options):
    """``a @ x + z``: products of matrices and vectors, plus a vector.

    Signature ``(m,n),(n),(m)->(m)``. The vector z is added last.

    >>> zelm.gaxpy([[1.0, 2.0], [3.0, 4.0]], [1.0, 1.0], [10.0, 20.0])
    array([13., 27.])

    Library: ``zelmGaxpy_v``, ``zelmGaxpy_va``.
    """
    return plain("gaxpy", _core.gaxpy, (a, x, z), out, options)


@universal(_core.cross)
def cross(x1, x2, /, out=None, **options):
    """Vector products of vectors of three elements.

    Signature ``(3),(3)->(3)``.

    >>> zelm.cross([1.0, 0.0, 0.0], [0.0, 1.0, 0.0])
    array([0., 0., 1.])

    See also: numpy.cross. Library: ``zelmCrossProduct_vava``.
    """
    return plain("cross", _core.cross, (x1, x2), out, options)


@universal(_core.dot)
def dot(x1, x2, /, out=None, **options):
    """Dot products of vectors, one number per pair.

    Signature ``(n),(n)->()``. Sums run in ascending order.

    >>> zelm.dot([[1.0, 2.0, 3.0], [4.0, 5.0, 6.0]], [1.0, 1.0, 1.0])
    array([ 6., 15.])

    See also: numpy.dot, which multiplies stacks of matrices. Library: ``zelmDotProduct_vava``.
    """
    return plain("dot", _core.dot, (x1, x2), out, options)


@universal(_core.norm)
def norm(x, /, out=None, **options):
    """Euclidean lengths of vectors. ``axis`` names another axis than the last; squares may overflow.

    Signature ``(n)->()``.

    >>> zelm.norm([[3.0, 4.0], [0.0, 0.0]])
    array([5., 0.])

    See also: numpy.linalg.norm with axis=-1. Library: ``zelmL2Norm_va``.
    """
    return plain("norm", _core.norm, (x,), out, options)


@universal(_core.frobenius)
def frobenius(a, /, out=None, **options):
    """Frobenius norms of matrices: the root of the sum of the squares of all elements.

    Signature ``(m,n)->()``.

    >>> zelm.frobenius([[1.0, 1.0], [1.0, 1.0]])
    2.0

    See also: numpy.linalg.norm with axis=(-2, -1). Library: ``zelmFrobNorm_ma``.
    """
    return plain("frobenius", _core.frobenius, (a,), out, options)


@universal(_core.trace)
def trace(a, /, out=None, **options):
    """Sums of the diagonals of square matrices.

    Signature ``(n,n)->()``.

    >>> zelm.trace([[1.0, 2.0], [3.0, 4.0]])
    5.0

    See also: numpy.trace with axis1=-2, axis2=-1. Library: ``zelmTrace_ma``.
    """
    return plain("trace", _core.trace, (a,), out, options)


@universal(_core.det)
def det(a, /, out=None, **options):
    """Determinants of square matrices.

    Signature ``(n,n)->()``. Orders 3 to 6 are expanded by minors, without a test; others are numpy.linalg's.

    >>> zelm.det([[2.0, 0.0, 0.0], [0.0, 3.0, 0.0], [0.0, 0.0, 4.0]])
    24.0

    See also: numpy.linalg.det. Library: ``zelmDet_ma``.
    """
    return refusing("det", _core.det, (a,), out, options, None)


@universal(_core.inv)
def inv(a, /, out=None, *, singular="raise", **options):
    """Inverses of square matrices.

    Signature ``(n,n)->(n,n)``. Orders 3 to 6 are inverted in closed form, others by numpy.linalg, and so are matrices
    whose determinant the library takes for zero (below 1e-7 in 32-bit float, 1e-15 in 64-bit float).

    singular: ``"raise"`` raises LinAlgError if numpy.linalg has no inverse either, ``"nan"`` fills that matrix
    with NaN and goes on. With ``out`` the rest of the stack is right either way.

    >>> zelm.inv([[2.0, 0.0, 0.0], [0.0, 4.0, 0.0], [0.0, 0.0, 8.0]])
    array([[0.5  , 0.   , 0.   ],
           [0.   , 0.25 , 0.   ],
           [0.   , 0.   , 0.125]])

    See also: numpy.linalg.inv. Library: ``zelmInvert_ma``.
    """
    return refusing("inv", _core.inv, (a,), out, options, singular)


@universal(_core.solve, _core.solve_vector)
def solve(a, b, /, out=None, *, singular="raise", **options):
    """Solutions x of the systems ``a @ x = b``.

    Signature ``(n,n),(n,k)->(n,k)``, or ``(n,n),(n)->(n)`` where b has one dimension, or one less than a.

    By LU decomposition with partial pivoting. A matrix with a pivot below 2**-23 goes to numpy.linalg. ``singular`` as
    in `inv`.

    >>> zelm.solve([[2.0, 0.0], [0.0, 4.0]], [1.0, 1.0])
    array([0.5 , 0.25])

    See also: numpy.linalg.solve. Library: ``zelmLUDecomp_ma``, ``zelmLUBackSubst_mava``.
    """
    function = _core.solve_vector if is_vector(a, b) else _core.solve
    return refusing("solve", function, (a, b), out, options, singular)


@universal(_core.lu_factor)
def lu_factor(a, /, out=None, *, singular="raise", **options):
    """LU factors of square matrices, for `lu_solve`: the pair ``(lu, piv)``.

    Signature ``(n,n)->(n,n),(n)``. Rows are not exchanged in ``lu``: row i of the factors of the permuted matrix is row
    ``piv[i]`` of ``lu``, with U from the diagonal on and the multipliers of L before it. (SciPy's ``lu`` has its rows
    exchanged, and its ``piv`` is another list: the two don't mix.) ``singular`` as in `inv`.

    >>> lu, piv = zelm.lu_factor([[1.0, 2.0], [4.0, 4.0]])
    >>> lu, piv
    (array([[0.25, 1.  ],
           [4.  , 4.  ]]), array([1, 0], dtype=uint32))

    See also: scipy.linalg.lu_factor. Library: ``zelmLUDecomp_ma``.
    """
    return refusing("lu_factor", _core.lu_factor, (a,), out, options, singular)


def lu_solve(lu_and_piv, b, /, out=None, **options):
    """Solutions x of ``a @ x = b`` from the factors ``(lu, piv)`` of `lu_factor`.

    Signature ``(n,n),(n),(n,k)->(n,k)``, or ``(n,n),(n),(n)->(n)`` where b has one dimension, or one less than lu.

    >>> zelm.lu_solve(zelm.lu_factor([[1.0, 2.0], [4.0, 4.0]]), [5.0, 12.0])
    array([1., 2.])

    See also: scipy.linalg.lu_solve. Library: ``zelmLUBackSubst_mava``.
    """
    lu, piv = lu_and_piv
    if getattr(piv, "dtype", None) != np.uint32:
        raise TypeError("lu_solve() takes the factors of zelm.lu_factor, whose piv are uint32")
    function = _core.lu_solve_vector if is_vector(lu, b) else _core.lu_solve
    x = plain("lu_solve", function, (lu, piv, b), out, options)
    if dask_array((lu, piv, b)) is None and _core.refused():
        raise ValueError("lu_solve: piv names a row that the matrix doesn't have")
    return x


@universal(_core.cholesky)
def cholesky(a, /, out=None, *, singular="raise", **options):
    """Cholesky factors: the lower triangular L of ``a = L @ L.T``, zeros above its diagonal.

    Signature ``(n,n)->(n,n)``. Only the lower triangle of a is read. ``singular`` as in `inv`, for matrices that
    are not positive definite.

    >>> zelm.cholesky([[4.0, 2.0], [2.0, 5.0]])
    array([[2., 0.],
           [1., 2.]])

    See also: numpy.linalg.cholesky. Library: ``zelmCholeskyDecomp_ma``.
    """
    return refusing("cholesky", _core.cholesky, (a,), out, options, singular, NOT_POSITIVE)


@universal(_core.cho_factor)
def cho_factor(a, /, out=None, *, singular="raise", **options):
    """Cholesky factors for `cho_solve`, as the library stores them: the reciprocals of L's diagonal in its place.

    Signature ``(n,n)->(n,n)``. ``singular`` as in `inv`, for matrices that are not positive definite.

    >>> zelm.cho_factor([[4.0, 2.0], [2.0, 5.0]])
    array([[0.5, 0. ],
           [1. , 0.5]])

    See also: scipy.linalg.cho_factor, whose factors are L itself. Library: ``zelmCholeskyDecomp_ma``.
    """
    return refusing("cho_factor", _core.cho_factor, (a,), out, options, singular, NOT_POSITIVE)


@universal(_core.cho_solve, _core.cho_solve_vector)
def cho_solve(c, b, /, out=None, **options):
    """Solutions x of ``a @ x = b`` from the factor c of `cho_factor`, and from no other.

    Signature ``(n,n),(n,k)->(n,k)``, or ``(n,n),(n)->(n)`` where b has one dimension, or one less than c.

    >>> zelm.cho_solve(zelm.cho_factor([[4.0, 2.0], [2.0, 5.0]]), [8.0, 12.0])
    array([1., 2.])

    See also: scipy.linalg.cho_solve. Library: ``zelmCholeskyBackSubst_mava``.
    """
    if isinstance(c, tuple):
        raise TypeError("cho_solve() takes the factor of zelm.cho_factor, which is one array")
    function = _core.cho_solve_vector if is_vector(c, b) else _core.cho_solve
    return plain("cho_solve", function, (c, b), out, options)


def qr(a, /, mode="reduced"):
    """QR factors of matrices, by Householder reflections.

    Signature ``(m,n)->(m,n),(n,n)``. ``mode`` as in numpy.linalg.qr: ``"reduced"``, ``"complete"``, ``"r"``, and ``"raw"``
    for the reflectors (transposed) and their factors tau. A diagonal element of R is negative where the element that its
    reflector began with was positive, and positive otherwise; the last one of a square matrix has either sign.
    Wide matrices, and those with a column of squared norm below 2**-23 under its reflectors, are numpy.linalg's.

    >>> q, r = zelm.qr([[3.0, 1.0], [4.0, 2.0]])
    >>> r
    array([[-5. , -2.2],
           [ 0. ,  0.4]])

    See also: numpy.linalg.qr. Library: ``zelmQRDecomp_ma``.
    """
    if mode not in ("reduced", "complete", "r", "raw"):
        raise ValueError(f"Unrecognized mode '{mode}'")
    if dask_array((a,)) is not None:
        if mode != "reduced":
            raise ValueError("qr() of Dask arrays has the mode 'reduced' only")
        return plain("qr", _core.qr, (a,), None, {}, "(m,n)->(m,n),(n,n)")
    a = np.asanyarray(a)
    if a.ndim < 2 or a.shape[-2] < a.shape[-1]:
        return np.linalg.qr(a, mode=mode)
    h, tau = _core.call(_core.qr, a)
    if mode == "raw":
        return h, tau
    factors = h.swapaxes(-1, -2)
    if mode == "complete":
        return _core.call(_core.qr_complete, h, tau), np.triu(factors)
    r = np.triu(factors[..., : a.shape[-1], :])
    return r if mode == "r" else (_core.call(_core.qr_reduced, h, tau), r)


@universal(_core.lstsq, _core.lstsq_vector)
def lstsq(a, b, /, out=None, *, singular="raise", **options):
    """Least-squares solutions x of ``a @ x = b``, which is all that is returned.

    Signature ``(m,n),(m,k)->(n,k)``, or ``(m,n),(m)->(n)`` where b has one dimension, or one less than a.

    By QR decomposition. Wide matrices, and those whose columns are dependent or too small for it (`qr`), are solved by
    numpy.linalg.lstsq with its default rcond=None, which gives the solution of least norm. ``singular`` as in
    `inv`, for the matrices whose singular values don't converge.

    >>> zelm.lstsq([[1.0, 0.0], [1.0, 1.0], [1.0, 2.0]], [1.0, 3.0, 5.0]).round(12)
    array([1., 2.])

    See also: numpy.linalg.lstsq. Library: ``zelmQRDecomp_ma``, ``zelmQRBackSubst_mava``.
    """
    function = _core.lstsq_vector if is_vector(a, b) else _core.lstsq
    return refusing("lstsq", function, (a, b), out, options, singular)
