"""The module as a whole: documents, threads, memory, the library that it carries."""

import doctest
import inspect
import pickle
import resource
import subprocess
import sys
import threading
import time
from pathlib import Path

import layouts
import numpy as np
import pytest

import zelm
import zelm._core
import zelm._functions

FUNCTIONS = [name for name in zelm.__all__ if name not in ("LinAlgError", "libzelm_version")]


def test_examples_of_the_docstrings():
    finder = doctest.DocTestFinder()
    runner = doctest.DocTestRunner(optionflags=doctest.ELLIPSIS)
    for name in FUNCTIONS:
        tests = finder.find(inspect.unwrap(getattr(zelm, name)), name, globs={"zelm": zelm, "np": np})
        assert tests and tests[0].examples, f"{name} has no example"
        for test in tests:
            runner.run(test)
    assert runner.failures == 0


def test_examples_of_the_page():
    page = Path(__file__).resolve().parents[2] / "docs" / "python.md"
    failed, examples = doctest.testfile(str(page), module_relative=False, optionflags=doctest.ELLIPSIS)
    assert failed == 0 and examples > 0


@pytest.mark.parametrize("name", FUNCTIONS)
def test_docstrings(name):
    function = getattr(zelm, name)
    assert "Signature ``(" in function.__doc__ and "Library: ``zelm" in function.__doc__
    assert function.__name__ == name and inspect.signature(function).parameters
    assert pickle.loads(pickle.dumps(function)) is function


def test_type_hints_name_the_same_functions():
    hints = open(zelm.__file__.replace(".py", ".pyi")).read()
    for name in FUNCTIONS:
        assert f"def {name}(" in hints


def test_version():
    assert zelm.libzelm_version() == "v4.1"


def test_the_library_is_found_beside_the_module():
    loaded = [line.split()[-1] for line in open("/proc/self/maps") if "libzelmx64" in line]
    assert loaded
    if "ZELM_TEST_SYSTEM" not in __import__("os").environ:
        assert all(path.startswith(zelm.__path__[0]) for path in loaded)


def test_threads_give_the_same_bits():
    a = layouts.definite(1, (20000, 6, 6), np.float64)
    a[77] = 0  # one for NumPy
    a[9000] *= 1e-12
    wanted = [zelm.inv(a, singular="nan"), zelm.cholesky(a, singular="nan"), zelm.matmul(a, a)]
    results = {}

    def work(number):
        results[number] = [zelm.inv(a, singular="nan"), zelm.cholesky(a, singular="nan"), zelm.matmul(a, a)]

    threads = [threading.Thread(target=work, args=(number,)) for number in range(6)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    for number in range(6):
        for result, expected in zip(results[number], wanted):
            np.testing.assert_array_equal(result, expected)


def test_the_interpreters_lock_is_released():
    """Another thread counts while one long call runs, although no thread is ever asked to let go."""
    a = np.broadcast_to(layouts.regular(1, (6, 6), np.float64), (4000000, 6, 6))
    counted, done = [0], threading.Event()

    def count():
        while not done.is_set():
            counted[0] += 1
            time.sleep(0)

    thread = threading.Thread(target=count)
    old = sys.getswitchinterval()
    sys.setswitchinterval(100)
    try:
        thread.start()
        before = counted[0]
        zelm.det(a)
        during = counted[0] - before
    finally:
        done.set()
        sys.setswitchinterval(old)
        thread.join()
    assert during > 10


def test_memory_does_not_grow():
    a, b = layouts.regular(1, (3, 3), np.float64), np.ones(3)
    singular = np.zeros((3, 3))
    out = np.empty((3, 3))

    def calls(number):
        for _ in range(number):
            zelm.inv(a)
            zelm.matmul(a, a, out=out)
            zelm.solve(a, b)
            zelm.add(a, b)

    def refused(number):
        for _ in range(number):
            zelm.inv(singular, singular="nan")
            try:
                zelm.cholesky(singular)
            except np.linalg.LinAlgError:
                pass

    calls(1000)
    refused(200)
    before = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
    calls(260000)
    refused(3000)
    assert resource.getrusage(resource.RUSAGE_SELF).ru_maxrss - before < 2048  # kilobytes, over a million calls


def test_references_do_not_leak():
    a = layouts.regular(1, (4, 3, 3), np.float64)
    zelm.inv(a)
    before = sys.getrefcount(a)
    for _ in range(100):
        zelm.inv(a)
        zelm.inv(a * 0, singular="nan")
        zelm.lu_solve(zelm.lu_factor(a), a)
        with pytest.raises(ValueError):
            zelm.matmul(a, np.ones((4, 4)))
    assert sys.getrefcount(a) == before


def test_importing_is_enough():
    """Without SciPy, Dask and xarray."""
    program = "import sys; import zelm; print(sorted(m for m in sys.modules if m in ('dask', 'scipy', 'xarray')))"
    assert subprocess.run([sys.executable, "-c", program], capture_output=True, text=True).stdout == "[]\n"
