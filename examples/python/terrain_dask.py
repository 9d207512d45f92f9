#!/usr/bin/env python3
"""Fits a quadratic surface to the 5x5 neighbourhood of every cell of an elevation grid, over several processes.

The grid is cut into blocks that overlap by two cells. Every block is a task of a local Dask cluster; the surfaces have the
same bits as those of a single call over the whole grid. The fit is that of examples/terrain: one 6x6 system per cell.
"""

import argparse
import os
import sys
import time
from pathlib import Path

# A process of the cluster is one worker: NumPy's own threads would only get in its way.
os.environ.setdefault("OPENBLAS_NUM_THREADS", "1")

import dask.array as da  # noqa: E402
import numpy as np  # noqa: E402
from dask.distributed import Client, LocalCluster, progress, wait  # noqa: E402

import zelm  # noqa: E402

BORDER = 2
EAST, NORTH = (axis.ravel() for axis in np.meshgrid(np.arange(-2.0, 3.0), np.arange(2.0, -3.0, -1.0)))
# z = a x^2 + b xy + c y^2 + d x + e y + f
TERMS = np.stack([EAST**2, EAST * NORTH, NORTH**2, EAST, NORTH, np.ones(25)], axis=-1)
PRODUCTS = (TERMS[:, :, np.newaxis] * TERMS[:, np.newaxis, :]).reshape(25, 36)


def read_grid(path):
    """The heights of an Esri ASCII grid, NaN where there are none, and the latitude of every row."""
    with open(path) as file:
        header = dict(zip(*[iter(word.lower() for _ in range(6) for word in file.readline().split())] * 2))
        heights = np.loadtxt(file)
    heights[heights == float(header["nodata_value"])] = np.nan
    rows = np.arange(len(heights))[::-1]
    return heights, float(header["yllcorner"]) + (rows + 0.5) * float(header["cellsize"])


def cell_shape(latitudes):
    """Width of a cell over its height, for cells of one angle on the WGS 84 ellipsoid."""
    flattening = 1 / 298.257223563
    eccentricity2 = flattening * (2 - flattening)
    radians = np.radians(latitudes)
    w2 = 1 - eccentricity2 * np.sin(radians) ** 2
    return np.cos(radians) * w2 / (1 - eccentricity2)


def fit(heights, latitudes):
    """The six coefficients of every cell but the border's: shape (rows - 4, columns - 4, 6)."""
    windows = np.lib.stride_tricks.sliding_window_view(heights, (5, 5)).reshape(
        heights.shape[0] - 2 * BORDER, heights.shape[1] - 2 * BORDER, 25
    )
    shape = cell_shape(latitudes[BORDER:-BORDER, :1])
    distances = np.sqrt(EAST**2 * shape + NORTH**2 / shape)
    weights = 1 / (1 + distances)
    weights *= 1 / 128 / weights.sum(axis=-1, keepdims=True)

    differences = windows - heights[BORDER:-BORDER, BORDER:-BORDER, np.newaxis]
    known = np.isfinite(differences)
    weights = np.where(known, weights[:, np.newaxis, :], 0)
    matrices = zelm.matmul(weights, PRODUCTS).reshape(weights.shape[:2] + (6, 6))
    right_sides = zelm.matmul(weights * np.where(known, differences, 0), TERMS)
    return zelm.solve(matrices, right_sides, singular="nan")


def whole(heights, latitudes):
    bordered = np.pad(heights, BORDER, constant_values=np.nan)
    return fit(bordered, np.pad(latitudes, BORDER, mode="edge"))


def in_blocks(heights, latitudes, size):
    """The same, lazily. The names of the tasks are new ones, so that no cluster has their results already."""
    heights = da.from_array(heights, chunks=size, name=False)
    latitudes = da.from_array(latitudes, chunks=size, name=False)
    borders = {0: BORDER, 1: BORDER}
    return da.map_blocks(
        fit,
        da.overlap.overlap(heights, borders, boundary=np.nan),
        da.overlap.overlap(latitudes, borders, boundary="nearest"),
        chunks=heights.chunks + ((6,),),
        new_axis=2,
        dtype=np.float64,
    )


def timed(function):
    start = time.perf_counter()
    result = function()
    return result, time.perf_counter() - start


def over_processes(make_surfaces, processes, repeat, show_progress):
    """The surfaces, and the shortest time until all blocks are computed, where they are."""
    with LocalCluster(n_workers=processes, threads_per_worker=1, dashboard_address=None) as cluster, Client(cluster) as client:

        def compute():
            lazy = client.persist(make_surfaces())
            if show_progress:
                progress(lazy, notebook=False)
            wait(lazy)
            return lazy

        client.run(lambda: __import__("zelm"))
        times = []
        for _ in range(repeat):
            computed, seconds = timed(compute)
            times.append(seconds)
            result = computed.compute() if len(times) == repeat else None
            del computed
        return result, min(times)


def main():
    default = Path(__file__).resolve().parent.parent / "data" / "jacksboro.asc"
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("grid", nargs="?", default=default, help="an Esri ASCII grid in degrees (examples/data/jacksboro.asc)")
    parser.add_argument("--processes", type=int, nargs="+", default=[1, 2], metavar="N", help="clusters to try (1 2)")
    parser.add_argument("--tiles", type=int, default=1, metavar="N", help="lay the grid out N by N times, for a longer run (1)")
    parser.add_argument("--block", type=int, default=172, metavar="CELLS", help="height and width of a block (172)")
    parser.add_argument("--repeat", type=int, default=3, metavar="N", help="runs, of which the shortest counts (3)")
    parser.add_argument("--quiet", action="store_true", help="no progress bar")
    options = parser.parse_args()

    heights, latitudes = read_grid(options.grid)
    heights = np.tile(heights, (options.tiles, options.tiles))
    latitudes = np.broadcast_to(np.tile(latitudes, options.tiles)[:, np.newaxis], heights.shape)
    cells = heights.size
    wanted, seconds = min((timed(lambda: whole(heights, latitudes)) for _ in range(options.repeat)), key=lambda run: run[1])
    print(
        f"{heights.shape[1]} x {heights.shape[0]} cells, a single call: {seconds:.2f} s, {cells / seconds / 1e6:.2f} million a second"
    )

    def make_surfaces():
        return in_blocks(heights, latitudes, options.block)

    blocks = make_surfaces().npartitions
    same, first = True, None
    for processes in options.processes:
        surfaces, seconds = over_processes(make_surfaces, processes, options.repeat, not options.quiet)
        first = first or seconds
        same &= np.array_equal(surfaces.view(np.uint64), wanted.view(np.uint64))
        print(
            f"\r{processes} process{'es' if processes > 1 else ''}: {seconds:.2f} s in {blocks} blocks, "
            f"speed-up {first / seconds:.2f}, {first / seconds / processes * options.processes[0]:.2f} per process"
        )
    print("the same bits as the single call" if same else "NOT the bits of the single call")
    return 0 if same else 1


if __name__ == "__main__":
    sys.exit(main())
