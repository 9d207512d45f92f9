"""Builds the extension module, and the library unless the system's is to be used (see README.md)."""

import os
import shutil
import subprocess
import sys
from pathlib import Path

import numpy
from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent
PRESETS = ("x64", "x64-v3", "x64-v4")
SONAME = "libzelmx64.so.4"
READY = os.environ.get("ZELM_BUILD")  # a folder of build trees that are there already, named like their presets
SYSTEM = os.environ.get("ZELM_LIBRARY", "bundled") == "system"
SOURCES = ["src/module.cpp", "src/universal.cpp", "src/hand_over.cpp"]
# As in the library: every operation is rounded, none is fused.
FLAGS = ["-std=c++20", "-O3", "-ffp-contract=off", "-fvisibility=hidden", "-Wall", "-Wextra", "-Wpedantic"]


class BuildExt(build_ext):
    def run(self):
        work = Path(self.build_temp).resolve()
        work.mkdir(parents=True, exist_ok=True)
        grid, library = self.system() if SYSTEM else self.bundled(work)
        subprocess.run([sys.executable, HERE / "src/calls.py", grid, work / "calls.h"], check=True)
        for extension in self.extensions:
            extension.include_dirs.append(str(work))
        super().run()
        if library:
            self.carry(library)

    def system(self):
        """The library, headers and catalogue that are installed."""
        prefix = subprocess.run(
            ["pkg-config", "--variable=prefix", "zelm-x64"], capture_output=True, text=True, check=True
        ).stdout.strip()
        flags = subprocess.run(
            ["pkg-config", "--cflags", "--libs", "zelm-x64"], capture_output=True, text=True, check=True
        ).stdout.split()
        for extension in self.extensions:
            extension.extra_compile_args += [flag for flag in flags if flag.startswith("-I")]
            extension.extra_link_args += [flag for flag in flags if not flag.startswith("-I")]
        return Path(prefix) / "share/zelm/zelm-grid.json", None

    def bundled(self, work):
        """The library of the tree that this folder is part of, for every level of processors, in the build folder."""
        prefix = work / "zelm"
        shutil.rmtree(prefix, ignore_errors=True)
        trees = {preset: ROOT / READY / preset if READY else work / preset for preset in PRESETS}
        for preset, tree in trees.items():
            if not READY:
                options = ["-D", "ZELM_BUILD_TESTS=OFF", "-D", "ZELM_BUILD_SELFTEST=OFF"]
                subprocess.run(["cmake", "--preset", preset, "-B", tree, *options], cwd=ROOT, check=True)
                subprocess.run(["cmake", "--build", tree, "--target", "zelm"], check=True)
            if tree.is_dir():
                subprocess.run(["cmake", "--install", tree, "--prefix", prefix, "--component", "runtime"], check=True)
        libraries = min(prefix.rglob(SONAME), key=lambda path: len(path.parts)).parent
        for extension in self.extensions:
            extension.include_dirs.append(str(ROOT / "include"))
            extension.extra_link_args += [f"-L{libraries}", f"-l:{SONAME}", "-Wl,-rpath,$ORIGIN/lib"]
        return trees["x64"] / "generated/zelm-grid.json", libraries

    def carry(self, libraries):
        """Puts the library, and its builds for wider processors, into the package."""
        package = Path(self.get_ext_fullpath("zelm._core")).parent
        for path in libraries.rglob(SONAME):
            target = package / "lib" / path.relative_to(libraries)
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(path, target)


setup(
    ext_modules=[Extension("zelm._core", SOURCES, include_dirs=["src", numpy.get_include()], extra_compile_args=list(FLAGS))],
    cmdclass={"build_ext": BuildExt},
)
