"""Arrays of given contents that lie in memory in any way that NumPy can address."""

import numpy as np
from hypothesis import strategies as st


def placed(draw, values):
    """The same values in other memory: axes in any order, gaps, negative strides, a field of a structure."""
    values = np.asarray(values)
    if values.ndim == 0:
        return values
    order = draw(st.permutations(range(values.ndim)))
    steps = [draw(st.sampled_from((1, 1, 2, 3, -1, -2))) for _ in range(values.ndim)]
    shape = [values.shape[axis] * abs(steps[axis]) for axis in order]
    if draw(st.booleans()):
        fields = np.dtype({"names": ["before", "x"], "formats": [values.dtype] * 2})
        memory = np.zeros(shape, fields)["x"]
    else:
        memory = np.zeros(shape, values.dtype)
    memory[...] = 77
    view = memory.transpose(np.argsort(order))
    view = view[tuple(slice(None, None, step) for step in steps)]
    view[...] = values
    return view


@st.composite
def stacks(draw):
    """The leading shape of a stack: any number of axes, empty ones too."""
    return tuple(draw(st.lists(st.integers(0, 4), max_size=3)))


def broadcastable(draw, shape, shorter):
    """A leading shape that broadcasts to `shape` and may be shorter."""
    cut = draw(st.integers(0, len(shape))) if shorter else 0
    return tuple(1 if draw(st.booleans()) and size > 0 else size for size in shape[cut:])


def random(seed, shape, dtype):
    return np.random.default_rng(seed).uniform(-1, 1, shape).astype(dtype)


def regular(seed, shape, dtype):
    """Square matrices far from singular."""
    return random(seed, shape, dtype) + (2 * shape[-1] * np.eye(shape[-1])).astype(dtype)


def definite(seed, shape, dtype):
    a = random(seed, shape, np.float64)
    return (a @ a.swapaxes(-1, -2) + np.eye(shape[-1])).astype(dtype)
