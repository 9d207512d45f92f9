#!/usr/bin/env python3
"""Time per matrix beside NumPy's ways to the same result, for the orders 2 to 8: a table and docs/images/python.svg.

One thread. Every function takes turns with its peers; the shortest of the samples counts. `--goals` prints the ratios to the
fastest of NumPy's ways and to np.negative, which only moves the data, and the time of a call on one small matrix.
"""

import os

os.environ["OPENBLAS_NUM_THREADS"] = "1"

import argparse  # noqa: E402
import sys  # noqa: E402
import time  # noqa: E402
from pathlib import Path  # noqa: E402

import numpy as np  # noqa: E402

import zelm  # noqa: E402

ORDERS = range(2, 9)


def operands(order, count, dtype):
    random = np.random.default_rng(order)
    a = random.uniform(-1, 1, (count, order, order)) + 2 * order * np.eye(order)
    return a.astype(dtype), (a @ a.swapaxes(-1, -2)).astype(dtype), random.uniform(-1, 1, (count, order)).astype(dtype)


def contenders(order, count, dtype):
    """For every operation the ways to its result, zelm's first."""
    a, definite, b = operands(order, count, dtype)
    # NumPy 2 takes b as a matrix unless it has one axis: a column says the same in all versions.
    column = b[..., np.newaxis]
    return {
        "inv": {"zelm": lambda: zelm.inv(a), "numpy.linalg.inv": lambda: np.linalg.inv(a)},
        "solve": {"zelm": lambda: zelm.solve(a, b), "numpy.linalg.solve": lambda: np.linalg.solve(a, column)},
        "matmul": {
            "zelm": lambda: zelm.matmul(a, definite),
            "numpy.matmul": lambda: np.matmul(a, definite),
            "numpy.einsum": lambda: np.einsum("kij,kjl->kil", a, definite),
        },
        "det": {"zelm": lambda: zelm.det(a), "numpy.linalg.det": lambda: np.linalg.det(a)},
        "cholesky": {"zelm": lambda: zelm.cholesky(definite), "numpy.linalg.cholesky": lambda: np.linalg.cholesky(definite)},
        "moving the data": {"numpy.negative": lambda: np.negative(a)},
    }


def shortest(functions, samples):
    """The shortest time of each function in seconds, samples interleaved."""
    times = dict.fromkeys(functions, float("inf"))
    for _ in range(samples):
        for name, function in functions.items():
            start = time.perf_counter()
            function()
            times[name] = min(times[name], time.perf_counter() - start)
    return times


def measure(count, samples, dtype):
    """{operation: {contender: [nanoseconds per matrix for each order]}}"""
    results = {}
    for order in ORDERS:
        for operation, functions in contenders(order, count, dtype).items():
            for name, seconds in shortest(functions, samples).items():
                results.setdefault(operation, {}).setdefault(name, []).append(seconds / count * 1e9)
    return results


def print_table(results):
    print("ns a matrix".ljust(44) + "".join(f"{order}x{order}".rjust(9) for order in ORDERS))
    for operation, rows in results.items():
        for name, row in rows.items():
            print(f"{operation}: {name}".ljust(44) + "".join(f"{value:9.1f}" for value in row))


GOALS = [("inv", 3, 0.04), ("inv", 6, 0.08), ("solve", 6, 0.25), ("matmul", 4, 0.4), ("cholesky", 6, 0.4), ("det", 4, 0.06)]


def print_goals(results):
    moved = results["moving the data"]["numpy.negative"]
    for operation, order, goal in GOALS:
        at = ORDERS.index(order)
        times = {name: row[at] for name, row in results[operation].items()}
        own = times.pop("zelm")
        numpys = min(times.values())
        print(
            f"{operation} {order}x{order}: {own:.1f} ns, {own / numpys:.3f} of NumPy's {numpys:.0f} ns (goal {goal}), "
            f"{own / moved[at]:.2f} of np.negative"
        )


def print_small_calls():
    a, b = np.eye(4) * 2, np.ones(4)
    calls = {
        "np.matmul": lambda: np.matmul(a, a),
        "zelm.matmul": lambda: zelm.matmul(a, a),
        "zelm.add": lambda: zelm.add(a, a),
        "zelm.det": lambda: zelm.det(a),
        "zelm.inv": lambda: zelm.inv(a),
        "zelm.solve": lambda: zelm.solve(a, b),
        "zelm.cholesky": lambda: zelm.cholesky(a),
        "np.linalg.inv": lambda: np.linalg.inv(a),
    }
    repeated = {name: lambda function=function: [function() for _ in range(200)] for name, function in calls.items()}
    for name, seconds in shortest(repeated, 200).items():
        print(f"one 4x4 matrix: {name} {seconds / 200 * 1e9:.0f} ns")


def plot(results, path, count):
    import matplotlib

    matplotlib.use("svg")
    from matplotlib import pyplot as plt

    plt.rcParams.update({"svg.fonttype": "none", "svg.hashsalt": "zelm", "font.size": 9, "font.family": "sans-serif"})
    operations = [operation for operation in results if operation != "moving the data"]
    figure, axes = plt.subplots(1, len(operations), figsize=(13, 3.4), sharey=True, layout="constrained")
    colours = {"zelm": "#b2182b", "numpy.einsum": "#8073ac", "numpy.negative": "#999999"}
    for axis, operation in zip(axes, operations):
        rows = results[operation] | results["moving the data"]
        for name, row in rows.items():
            style = {"linestyle": ":"} if name == "numpy.negative" else {"marker": "o", "markersize": 3}
            axis.plot(ORDERS, row, label=name, color=colours.get(name, "#2166ac"), **style)
        axis.set(title=operation, yscale="log", xlabel="order", xticks=list(ORDERS))
        axis.minorticks_off()
        axis.grid(True, linewidth=0.4)
        axis.legend(fontsize=7, frameon=False)
    axes[0].set_ylabel("ns a matrix")
    figure.suptitle(f"Stacks of {count:,} matrices of 64-bit float, one thread", fontsize=10)
    figure.savefig(path, metadata={"Date": None})


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--count", type=int, default=100000, metavar="N", help="matrices of a stack (100000)")
    parser.add_argument("--samples", type=int, default=15, metavar="N", help="samples, of which the shortest counts (15)")
    parser.add_argument("--type", choices=["float32", "float64"], default="float64")
    parser.add_argument("--goals", action="store_true", help="print ratios and the time of calls on one matrix")
    parser.add_argument("--output", type=Path, metavar="FILE", help="write the plot (docs/images/python.svg)")
    options = parser.parse_args()
    results = measure(options.count, options.samples, options.type)
    print_table(results)
    if options.goals:
        print_goals(results)
        print_small_calls()
    if options.output:
        plot(results, options.output, options.count)
    return 0


if __name__ == "__main__":
    sys.exit(main())
