#!/usr/bin/env python3
"""refused.py COMPILER FLAGS SOURCE_DIR: programs that must not compile, each with the message that must appear.

A program is a line for the body of a function in which the names below stand. Each is compiled by itself; the first one
compiles, so that the others fail for the reason that is named.
"""

import re
import shlex
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

NAMES = """
#include <zelm.hpp>
using namespace zelm;
struct Filter { double K[4][4]; double HP[4][4]; float w; double d; int id; };
std::vector<Filter> make();
std::vector<std::array<float, 3>> points();
"""
BEGIN = """
void program(std::vector<Filter> &filters, const std::vector<Filter> &fixed, std::vector<float> &line, double *p, float *q,
             double (&A)[4][4], double (&B)[4][4], double (&R)[2][3], double (&S)[3][3], float (&F)[4][4], float (&v)[3],
             float (&w)[3], float (&four)[4], const float (&c)[3], std::vector<std::array<float, 3>> &vs,
             std::vector<std::array<std::array<double, 4>, 4>> &Ms, std::vector<double> &xs, std::uint32_t (&pivots)[4],
             double (&b)[4], double (&x)[4], std::vector<std::array<float, 3> *> &ptrs, double *const *table, std::size_t n)
{
    (void)filters, (void)fixed, (void)line, (void)p, (void)q, (void)A, (void)B, (void)R, (void)S, (void)F, (void)v, (void)w;
    (void)four, (void)c, (void)vs, (void)Ms, (void)xs, (void)pivots, (void)b, (void)x, (void)ptrs, (void)table, (void)n;
"""

# A program and words of the message.
REFUSED = (
    # Shapes
    ("mul(R, A, S).or_throw();", "these matrices can't be multiplied"),
    ("mul(A, B, S).or_throw();", "the destination has not the shape of the product"),
    ("mul(A, b, v).or_throw();", "mix float and double"),
    ("mul(S, b, x).or_throw();", "the vector is not as long as the matrix"),
    ("add(v, four, w).or_throw();", "the shapes differ"),
    ("add(A, b, B).or_throw();", "vectors and matrices are mixed"),
    ("mul(v, w, w).or_throw();", "write dot or cross"),
    ("cross(four, four, four).or_throw();", "three elements"),
    ("dot(v, four, *q).or_throw();", "different lengths"),
    ("add(A, 1.0, B).or_throw();", "constants are added to vectors"),
    ("double t; trace(R, t).or_throw();", "takes square matrices"),
    ("axpy(2.0, A, B, A).or_throw();", "take vectors"),
    ("double t; norm(A, t).or_throw();", "write frobenius_norm"),
    # Element types
    ("add(A, F, B).or_throw();", "mix float and double"),
    ("mul(v, 0.5, w).or_throw();", "write it as a float"),
    ("double t; norm(v, t).or_throw();", "of the operands' element type"),
    # const and temporaries
    ("mul(field(filters, &Filter::K), A, field(fixed, &Filter::HP)).or_throw();", "the destination is const"),
    ("auto view = field(make(), &Filter::K);", "a view of a temporary container"),
    ("auto view = each(points());", "a view of a temporary container"),
    ("auto view = transposed(std::array<std::array<float, 3>, 3>());", "a view of a temporary container"),
    ("auto f = cholesky_factor(std::array<std::array<float, 3>, 3>());", "a view of a temporary container"),
    ("add(v, w, std::array<float, 3>()).or_throw();", "the destination is a temporary"),
    # One object, many objects
    ("add(vs, v, w).or_throw();", "a source is an array of objects"),
    ("add(v, w, vs).or_throw();", "pass one object of the array"),
    ("gaxpy(Ms, b, b, x).or_throw();", "one matrix for all vectors"),
    # Layouts
    ("add(list(ptrs), vs, vs).or_throw();", "does not go with an array by strides"),
    ("add(components(line, line, line), list(ptrs), components(line, line, line)).or_throw();", "does not go with"),
    ("norm(vs, field(filters, &Filter::w)).or_throw();", "written side by side"),
    ("mul(A, B, transposed(A)).or_throw();", "a destination is not used transposed"),
    (
        "mul(as_matrices_by_element(table, shape{2, 3}, n), as_matrices_by_element(table, shape{3, 2}, n), "
        "as_matrices_by_element(const_cast<double *const *>(table), shape{2, 2}, n)).or_throw();",
        "no function multiplies two arrays of this shape by components",
    ),
    (
        "transpose(as_matrix_by_element(table, shape{2, 3}), as_matrix_by_element(table, shape{3, 2})).or_throw();",
        "no function transposes by tables",
    ),
    # Strides and sizes under their names
    ("auto view = as_vectors<3>(q, n, 12);", "each under its name"),
    ("auto view = as_vectors<3>(q, n, row_bytes(12));", "a vector has no row_bytes"),
    ("auto view = as_matrix<3, 3>(q, object_bytes(36));", "one object has no object_bytes"),
    ("auto view = as_matrices_by_element<2, 2>(table, n, row_bytes(8));", "only object_bytes(n) can be given"),
    ("auto view = field(filters, &Filter::id);", "no vectors or matrices of float or double"),
    ("add(filters, filters, filters).or_throw();", "view one member of each by field"),
    ("add(5, 6, v).or_throw();", "both operands are constants"),
    ("auto view = components<2, 2>(line, line, line);", "R * C arrays"),
    ("auto view = components(line, line, xs);", "all are float or all are double"),
    ("auto view = list(vs);", "plain pointers"),
    # Factors
    ("lu(A, B).or_throw();", "lu writes LU factors"),
    ("cholesky(A, lu_factors(B, pivots)).or_throw();", "writes a Cholesky factor"),
    ("lu(A, cholesky_factor(B)).or_throw();", "lu writes LU factors"),
    ("solve(A, b, x).or_throw();", "solve takes factors"),
    ("auto f = lu_factors(A, xs);", "row numbers of type std::uint32_t"),
    ("auto f = qr_factors(as_matrix(p, shape{n, 3}));", "needs work space"),
    ("qr(R, qr_factors(R)).or_throw();", "at least as many rows as columns"),
    ("solve(cholesky_factor(Ms), b, x).or_throw();", "an array of factors needs an array of right-hand sides"),
    # Run-time determinants and inverses
    ("det(as_matrix(p, shape{4, 4}), *p).or_throw();", "write det_with_threshold"),
    ("double D[2][2], E[2][2]; inverse(D, E).or_throw();", "inverse_with_threshold"),
    # A result that nobody looks at
    ("lu(A, lu_factors(B, pivots));", "an operation may fail"),
)
COMPILES = "mul(A, B, B).or_throw(); add(vs, v, vs).or_throw(); lu(A, lu_factors(B, pivots)).or_throw();"


def compile_program(command, names, body):
    ran = subprocess.run(
        [*command, "-fsyntax-only", "-include", names, "-x", "c++", "-"],
        input=BEGIN + body + "\n}\n",
        capture_output=True,
        text=True,
    )
    return ran.returncode, ran.stderr


def main():
    with tempfile.TemporaryDirectory() as folder:
        return check_all(Path(folder))


def check_all(folder):
    compiler, flags, source = sys.argv[1:]
    command = [*shlex.split(compiler), *shlex.split(flags), "-std=c++20", "-Werror=unused-result"]
    command += ["-I", f"{source}/cpp", "-I", f"{source}/include"]
    names = folder / "names.hpp"
    names.write_text(NAMES)
    # The header is read once for all programs.
    subprocess.run([*command, "-x", "c++-header", names, "-o", f"{names}.gch"], check=True)
    status, output = compile_program(command, names, COMPILES)
    if status != 0:
        sys.exit(f"this program must compile:\n{COMPILES}\n{output}")
    failures = 0

    def attempt(case):
        return case, compile_program(command, names, case[0])

    with ThreadPoolExecutor(2) as pool:
        for (body, message), (status, output) in pool.map(attempt, REFUSED):
            errors = [line for line in output.splitlines() if re.search(r"\berror:", line)]
            if status == 0:
                print(f"compiles: {body}")
                failures += 1
            elif not any(message in line for line in errors):
                print(f"{body}\n  lacks the message: {message}\n  " + "\n  ".join(errors[:5]))
                failures += 1
    print(f"{len(REFUSED)} programs, {failures} failures")
    return failures > 0


if __name__ == "__main__":
    sys.exit(main())
