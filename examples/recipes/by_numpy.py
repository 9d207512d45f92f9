#!/usr/bin/python3
"""Computes the recipes' results with NumPy (Debian's python3-numpy) and stores them beside the programs.

    by_numpy.py [RECIPE...]    writes RECIPE/numbers.txt

Each function computes from the problem, not from the program: with NumPy's products, inverses and least squares. The test
compares what the programs print with these files, number by number.
"""

import sys
from pathlib import Path

import numpy as np


def kalman():
    H = np.hstack([np.eye(3), 0.5 * np.eye(3)])
    out = []
    for k in range(2):
        i, j = np.indices((6, 6))
        P = (2 + k) * np.eye(6) + 1 / (1 + i + j)
        x, z = k + 0.25 * np.arange(6), 1 + k - 0.5 * np.arange(3)
        K = P @ H.T @ np.linalg.inv(H @ P @ H.T + 0.1 * np.eye(3))
        out += [x + K @ (z - H @ x), np.diag((np.eye(6) - K @ H) @ P)]
    return out


def points():
    turn = np.array([[0.36, 0.48, -0.8], [-0.8, 0.6, 0], [0.48, 0.64, 0.6]])
    moved = np.array([[1, 0, 0], [0, 1, 0], [0, 0, 1], [1, 2, 3]]) @ turn.T + [10, 20, 30]
    return [*moved, *moved]


def poses():
    out = []
    for c, s in ((1, 0), (0.6, 0.8), (0, 1)):
        world = np.eye(4)
        for j in range(4):
            world = world @ [[c, -s, 0, 1 + 0.5 * j], [s, c, 0, 0], [0, 0, 1, 0.125], [0, 0, 0, 1]]
        out += list(world[:3])
    return out


def bodies():
    out = []
    for k in range(3):
        i, j = np.indices((6, 6))
        inertia = np.where(i == j, 2.0 + k + i, 0.125 * (i + j))
        frame = np.where(i == j, 1, np.where(i > j, 0.25 * k, 0))
        motion = 1 - 0.5 * np.arange(6) + k
        momentum = inertia @ motion
        turned = frame.T @ inertia @ frame
        out += [[motion @ momentum / 2, *momentum], [turned[i, 5 - i] for i in range(6)]]
    return out


def fit():
    values = ([1, 2.1, 5.2, 9.8, 17.1, 26, 36.9], [3, 2, 1, 0.5, 1, 2, 3], [0, 1, 0, -1, 0, 1, 0])
    return [np.polynomial.polynomial.polyfit(np.arange(7) * (k + 1) * 0.5, value, 2) for k, value in enumerate(values)]


def mesh():
    vertex = np.array([[0, 0, 0], [2, 0, 0], [2, 2, 0], [0, 2, 0], [1, 1, 1.5]])
    out = []
    for a, b, c in ((0, 1, 4), (1, 2, 4), (2, 3, 4), (3, 0, 4), (0, 1, 1)):
        normal = np.cross(vertex[b] - vertex[a], vertex[c] - vertex[a])
        length = np.linalg.norm(normal)
        out.append([length / 2, *(normal / (length or 1))])
    return out


def scaling():
    a = np.array([[4e-9, 1e-9, 0, 2e-3], [1e-9, 3e-9, 1e-9, 1e-3], [0, 1e-9, 5e-9, 4e-3], [2e-10, 1e-10, 3e-10, 5e-4]])
    return [[x] for x in np.linalg.solve(a, [8.006e-3, 4.010e-3, 16.017e-3, 2.0013e-3])]


def whitening():
    covariance = np.array([[4, 2, 0.5, 0], [2, 5, 1, 0.5], [0.5, 1, 3, 1], [0, 0.5, 1, 2]])
    centred = np.array([[2, 2, 2, 2], [0, 5, 3, 4], [1, 2, 3, 4]]) - [1, 2, 3, 4]
    whiten = np.linalg.inv(np.linalg.cholesky(covariance))
    return [[*(whiten @ d), d @ np.linalg.solve(covariance, d)] for d in centred]


def gather():
    velocity, charge = np.array([[1, 0, 0], [0, 2, 0], [1, 1, 1]]), np.array([[2], [-1], [0.5]])
    return list(charge * np.cross(velocity, [0, 0, 2]))


def column_major():
    out = []
    i, j = np.indices((4, 4))
    for k in range(2):
        a = np.where(i == j, 3.0 + k, 0) + 0.5 * i - 0.25 * j
        product, inverse = a @ (i + 2 * j + k), np.linalg.inv(a)
        out += [[*product[:, c], *inverse[:, c]] for c in range(2)]
    return out


def volumes():
    vertex = np.array([[0, 0, 0], [1, 0, 0], [0, 2, 0], [0, 0, 3], [1, 1, 1]])
    return [
        [np.linalg.det(vertex[list(rest)] - vertex[apex]) / 6] for apex, *rest in ((0, 1, 2, 3), (0, 2, 1, 3), (4, 1, 2, 3))
    ]


RECIPES = {
    "bodies": bodies,
    "column-major": column_major,
    "fit": fit,
    "gather": gather,
    "kalman": kalman,
    "mesh": mesh,
    "points": points,
    "poses": poses,
    "scaling": scaling,
    "volumes": volumes,
    "whitening": whitening,
}


def main(names):
    for name in names or RECIPES:
        rows = "\n".join(" ".join(f"{value:.17g}" for value in row) for row in RECIPES[name]())
        heading = f"# {name}, by NumPy {np.__version__}: examples/recipes/by_numpy.py {name}\n"
        (Path(__file__).parent / name / "numbers.txt").write_text(heading + rows + "\n")


if __name__ == "__main__":
    main(sys.argv[1:])
