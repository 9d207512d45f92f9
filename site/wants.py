"""What people want, each thing with the operation that does it and the words under which they look for it.

The finder offers these, the reference repeats the words of an operation, so that the search of the site finds its page.
A want is an operation with its operands, but for how many objects they are and whether they are used transposed.
"""

from dataclasses import dataclass


@dataclass(frozen=True)
class Want:
    operation: str
    operands: str  # the descriptor without a and T
    formula: str
    title: str
    words: str
    hint: str = ""


# What an operation's page is called, behind its name.
PURPOSES = {
    "Add": "sums of vectors and of matrices",
    "Sub": "differences of vectors and of matrices",
    "Mul": "products, and scaling by a constant",
    "Saxpy": "a vector times a factor, plus a vector",
    "LComb": "linear combinations of two vectors",
    "DotProduct": "dot products",
    "CrossProduct": "cross products",
    "L2Norm": "lengths of vectors",
    "FrobNorm": "norms of matrices",
    "Trace": "sums of diagonals",
    "Gaxpy": "a matrix times a vector, plus a vector",
    "LUDecomp": "LU decomposition",
    "LUBackSubst": "solving with LU factors",
    "CholeskyDecomp": "Cholesky decomposition",
    "CholeskyBackSubst": "solving with Cholesky factors",
    "QRDecomp": "QR decomposition",
    "QRBackSubst": "solving with QR factors",
    "Det": "determinants",
    "Invert": "inverses",
    "Transpose": "transposed matrices",
    "Copy": "copies from one layout to another",
    "Extract": "packing into a buffer",
    "LoadIdentity": "identity matrices",
}

GROUPS = {
    "Vectors": (
        Want(
            "Add",
            "vv",
            "x + y",
            "Sum of two vectors",
            "add, plus, sum, translate, translation, offset, shift, move points, point cloud, vadd",
            "Where one x meets many y, take many and one: x + y = y + x.",
        ),
        Want("Add", "vc", "x + c", "Plus a constant", "add a scalar, bias, offset, increment"),
        Want(
            "Sub",
            "vv",
            "x − y",
            "Difference of two vectors",
            "subtract, minus, difference, relative position, direction, edge, residual, centre, center a point cloud, delta",
        ),
        Want("Sub", "vc", "x − c", "Minus a constant", "subtract a scalar, bias, decrement"),
        Want(
            "Sub", "cv", "c − x", "A constant minus a vector", "negate, negative, complement, reverse subtract, 0 - x, minus x"
        ),
        Want(
            "Mul",
            "vc",
            "x · c",
            "A vector times a constant",
            "scale, scal, sscal, dscal, multiply by a scalar, resize, stretch, normalize, normalise, divide by a scalar, negate",
        ),
        Want(
            "Saxpy",
            "vv",
            "x · α + y",
            "Scaled, plus a vector",
            "axpy, saxpy, daxpy, multiply and add, fma, integrate, Euler step, point on a ray, move along a direction, accumulate, velocity, position, time step",
        ),
        Want(
            "LComb",
            "vv",
            "x · α + y · β",
            "Linear combination",
            "axpby, daxpby, weighted sum, blend, lerp, mix, interpolate, interpolation, barycentric, average, mean, midpoint",
        ),
        Want(
            "DotProduct",
            "vv",
            "x · y",
            "Dot product",
            "dot, sdot, ddot, inner product, energy, work, power, scalar product, vdot, inner, projection, angle, cosine, plane distance, weighted sum, xᵀy",
        ),
        Want(
            "CrossProduct",
            "vv",
            "x × y",
            "Cross product",
            "cross, vector product, normal of a triangle, face normal, area, torque, moment, angular momentum, lever",
        ),
        Want(
            "L2Norm",
            "v",
            "‖x‖",
            "Length of a vector",
            "length, magnitude, euclidean norm, nrm2, snrm2, dnrm2, hypot, distance, modulus, normalize, normalise, unit vector, speed, radius",
        ),
    ),
    "Matrices, element by element": (
        Want(
            "Add",
            "mm",
            "A + B",
            "Sum of two matrices",
            "add, plus, sum, accumulate, process noise, covariance, omatadd, geadd, mixed",
            "Where one A meets many B, take many and one: A + B = B + A.",
        ),
        Want(
            "Sub",
            "mm",
            "A − B",
            "Difference of two matrices",
            "subtract, minus, difference, residual, joseph, I - KH, error, deviation",
        ),
        Want(
            "Mul",
            "mc",
            "A · c",
            "A matrix times a constant",
            "scale, multiply by a scalar, scal, weight, divide by a scalar, lascl, equilibrate",
        ),
        Want(
            "FrobNorm",
            "m",
            "‖A‖",
            "Frobenius norm",
            "norm of a matrix, lange, frobenius, size of a matrix, residual, magnitude",
        ),
        Want("Trace", "m", "tr A", "Trace of a matrix", "trace, sum of the diagonal, sum of the eigenvalues, diagonal"),
    ),
    "Products": (
        Want(
            "Mul",
            "mv",
            "A · x",
            "A matrix times a vector",
            "gemv, sgemv, dgemv, matvec, transform, rotate, rotation, point cloud, apply, change of basis, map, linear map, mulVec, project, predict a state",
        ),
        Want(
            "Gaxpy",
            "v",
            "A · x + y",
            "Affine map",
            "gemv, sgemv, dgemv, affine, affine map, rigid motion, rigid body, transform points, point cloud, rotate and translate, state update, control, registration",
            "One y for all x: its object stride is 0. P has no such stride, PS2 has.",
        ),
        Want(
            "Mul",
            "mm",
            "A · B",
            "Product of two matrices",
            "multiply, matrix product, gemm, sgemm, dgemm, matmul, chain of poses, concatenate transforms, compose, batched matrix multiply, kinematics, "
            "einsum, covariance, kalman, innovation, times, A·Bᵀ, Aᵀ·A, normal equations, jacobian, skinning, similarity, rotate a tensor, inertia",
        ),
    ),
    "Systems of equations": (
        Want(
            "LUDecomp",
            "m",
            "P·A = L·U",
            "LU decomposition",
            "getrf, sgetrf, dgetrf, lu, lu_factor, PartialPivLU, fullPivLu, gaussian elimination, factorise, factorize, factor, solve, linear system, gesv, decomposition",
            "The first of two calls that solve A·x = b: LUBackSubst is the second.",
        ),
        Want(
            "LUBackSubst",
            "mv",
            "A·x = b (LU)",
            "Solve with LU factors",
            "getrs, sgetrs, dgetrs, gesv, dgesv, solve, lu_solve, linear system, equations, right-hand sides, rhs, backslash, back substitution, PartialPivLU",
            "A is what LUDecomp made. One A with many b is one factorisation for all.",
        ),
        Want(
            "CholeskyDecomp",
            "m",
            "A = L·Lᵀ",
            "Cholesky decomposition",
            "potrf, spotrf, dpotrf, cholesky, LLT, llt, ldlt, cho_factor, whitening, whiten, covariance, positive definite, square root of a matrix, normal equations, solve, sample gaussian",
            "The first of two calls that solve A·x = b: CholeskyBackSubst is the second. The diagonal holds reciprocals.",
        ),
        Want(
            "CholeskyBackSubst",
            "mv",
            "A·x = b (LLᵀ)",
            "Solve with Cholesky factors",
            "potrs, spotrs, dpotrs, posv, dposv, solve, cho_solve, right-hand sides, rhs, symmetric system, positive definite, covariance, kalman gain, mahalanobis, normal equations, LLT",
            "A is what CholeskyDecomp made.",
        ),
        Want(
            "QRDecomp",
            "m",
            "A = Q·R",
            "QR decomposition",
            "geqrf, sgeqrf, dgeqrf, qr, HouseholderQR, colPivHouseholderQr, householder, orthogonal, least squares, fit, overdetermined, solve, lstsq, orthonormal",
            "The first of two calls that fit A·x to b: QRBackSubst is the second. Tall matrices: the size is given at run time.",
        ),
        Want(
            "QRBackSubst",
            "mv",
            "min ‖A·x − b‖",
            "Least squares with QR factors",
            "gels, sgels, dgels, ormqr, lstsq, least squares, solve, fit, right-hand sides, rhs, fit a plane, regression, polynomial fit, overdetermined, curve",
            "A is what QRDecomp made.",
        ),
        Want(
            "Invert",
            "m",
            "A⁻¹",
            "Inverse of a matrix",
            "inverse, invert, inv, getri, sgetri, dgetri, solve, undo a transform, information matrix, precision matrix, reciprocal",
            "To solve a system, LUDecomp and LUBackSubst are more exact and mostly faster.",
        ),
        Want(
            "Det",
            "m",
            "det A",
            "Determinant of a matrix",
            "determinant, det, volume, orientation, handedness, signed area, jacobian, is singular, invertible",
        ),
    ),
    "Moving data": (
        Want(
            "Transpose",
            "m",
            "Aᵀ",
            "Transposed matrix",
            "transpose, omatcopy, swapaxes, row-major to column-major, column major, flip, permute axes",
        ),
        Want(
            "Copy",
            "v",
            "x → y",
            "Vectors to another layout",
            "copy, dcopy, scopy, gather, scatter, array of structures to structure of arrays, AoS, SoA, interleave, deinterleave, planes, triples, move, relayout, convert layout, repack",
        ),
        Want(
            "Copy",
            "m",
            "A → B",
            "Matrices to another layout",
            "copy, lacpy, gather, scatter, AoS, SoA, interleave, move, relayout, convert layout, repack, column-major",
        ),
        Want(
            "Extract",
            "v",
            "x → packed",
            "Vectors into a buffer",
            "extract, pack, gather, flatten, contiguous, serialise, serialize, upload",
        ),
        Want(
            "Extract",
            "m",
            "A → packed",
            "Matrices into a buffer",
            "extract, pack, gather, flatten, ravel, contiguous, serialise, serialize, upload, uniform buffer",
        ),
        Want(
            "LoadIdentity",
            "m",
            "A = I",
            "Identity matrices",
            "identity, eye, laset, reset, initialise, initialize, unit matrix, ones on the diagonal",
            "One object per call: the ones run on from object to object, and behind the memory of the later ones.",
        ),
    ),
    "Beside the grid": (
        Want(
            "a6_Det",
            "m",
            "det A (kernel)",
            "Kernels of Det",
            "a6_Det, kernel, determinant in extended precision, x87, long double",
            "Callers use Det, which tests its arguments and calls these.",
        ),
        Want(
            "GetLibVersion", "", "version", "Version of the library", "version, target, build, zelmGetLibVersion, which library"
        ),
    ),
}

WANTS = tuple(want for wants in GROUPS.values() for want in wants)


def words_of(operation):
    """The words of all wants that an operation serves, each once."""
    words = [word for want in WANTS if want.operation == operation for word in want.words.split(", ")]
    return ", ".join(dict.fromkeys(words))
